#!/bin/sh
# Runs the play against this machine in simulate mode: a host that is flashed, and
# one whose flash fails for want of an image, which must stop the play.
set -eu
cd "$(dirname "$0")/.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "ansible: $1" >&2 && cat "$scratch/log" >&2 && exit 1; }

cp -r examples/blade "$scratch/good"
cp -r examples/blade "$scratch/bad" && rm "$scratch/bad"/*.ufi
cp -r examples/blade "$scratch/storage"
sed -i 's/: DGC/: ABC/' "$scratch"/storage/*_target_mapping.out
for host in good bad storage; do
    cp build/release/cnatool "$scratch/$host" && echo traced >"$scratch/$host/FWtrace.out"
done
mkdir "$scratch/images"
cp examples/blade/FC_HBA_Conditions.txt "$scratch"
echo '[blades]' >"$scratch/inventory"
for host in storage bad good; do
    echo "$host ansible_connection=local ansible_python_interpreter=/usr/bin/python3"
done >>"$scratch/inventory"

# Files and traces are given as from the current directory, like anyone would.
repository=$PWD
cd "$scratch"
play() {
    ANSIBLE_HOME=$scratch/ansible ANSIBLE_REMOTE_TMP=$scratch/tmp ANSIBLE_LOCALHOST_WARNING=false LC_ALL=C.UTF-8 \
        ansible-playbook -i inventory "$repository/contrib/ansible/cnatool.yml" \
        -e "cnatool_home=$scratch/{{ inventory_hostname }}" -e cnatool_become=false -e cnatool_simulate=true -e cnatool_batch=1 \
        "$@" >"$scratch/log" 2>&1 </dev/null
}

play --limit good,storage || fail "the good host fails"
grep -q 'storage is left out: the check ended with 4' "$scratch/log" || fail "storage passes"
[ -s "$scratch/fwtrace/good$scratch/good/FWtrace.out" ] || fail "no trace is collected"
[ ! -e "$scratch/fwtrace/storage" ] || fail "a host that is left out is flashed"

rm -r "$scratch/fwtrace"
! play || fail "a flash without an image passes"
[ -s "$scratch/fwtrace/bad$scratch/bad/FWtrace.out" ] || fail "no trace of the failure is collected"
! grep -q '^ok: \[good\]' "$scratch/log" || fail "the play goes on behind the failure"
