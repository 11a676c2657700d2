#!/bin/sh
# Runs the role against this machine in simulate mode, as five hosts in batches of
# three, each with a directory of its own.
set -eu
cd "$(dirname "$0")/.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "ansible: $1" >&2; cat "$scratch/log" "$scratch/cnatool.csv" >&2; exit 1; }

repository=$PWD
cd "$scratch"
mkdir tmp images none
cp -r "$repository/examples/blade/FC_HBA_Conditions.txt" .
cp -r "$repository"/examples/blade/fm* "$repository"/examples/blade/CNA-10102-FX images
for host in storage bare good current away; do
    cp -r "$repository/examples/blade" $host && rm -r $host/is* $host/CNA-10102-FX
    cp "$repository/build/release/cnatool" $host && echo traced >$host/FWtrace.out
    [ $host = storage ] || sed -i 's/: NRB/: DGC/; s/_SX1/_CX1/' $host/*_target_mapping.out
done
mkdir good/CNA-10102-FM && touch good/fm10102-4.0.ufi good/CNA-10102-FM/FWtrace.out
cat >inventory <<END
[blades]
storage
bare cnatool_images=none
good
current cnatool_firmware_version=4.6.142.10
away
[blades:vars]
ansible_connection=local
ansible_become=false
ansible_python_interpreter=/usr/bin/python3
cnatool_simulate=true
cnatool_home=$scratch/{{ inventory_hostname }}
END

# Files and traces are given as from the current directory, like anyone would.
play() {
    rm -rf fwtrace cnatool.csv
    ANSIBLE_HOME=$scratch/ansible ANSIBLE_REMOTE_TMP=$scratch/tmp ANSIBLE_LOCALHOST_WARNING=false LC_ALL=C.UTF-8 \
        PYTHONDONTWRITEBYTECODE=1 ansible-playbook -i inventory "$repository/contrib/ansible/site.yml" \
        -e cnatool_batches=3 "$@" >log 2>&1 </dev/null
}
# Compares host, outcome, statuses and firmware of all hosts in the table.
table() {
    sed '1d; s/ RET_[A-Z_]*//g' cnatool.csv | cut -d , -f 1-6 >rows
    diff - rows >&2 || fail "the table is wrong"
}
v=4.6.142.10

sed -i 's,^away,& ansible_remote_tmp=/proc/none,' inventory
! play -e cnatool_images=images || fail "nothing tells that a host was not reached"
table <<END
storage,left out,4,,$v,
bare,simulated,0,0,$v,$v
good,simulated,0,0,$v,$v
current,up to date,0,,$v,
away,unreachable,,,,
END
grep -q '"away *unreachable' log || fail "the table is not shown"
[ ! -e good/fm10102-4.0.ufi ] || fail "an image of an earlier set stays"
ls good/VM10250117_0_hba_attributes.out good/FWtrace.out good/CNA-10102-FX/*.grp good/CNA-10102-FM.old/FWtrace.out \
    >log 2>&1 || fail "more than images has gone, or the new ones have not come"

stopped=$(printf '%s,not begun,,,,\n' current away)
! play || fail "a flash without an image passes"
printf '%s\n' "storage,left out,4,,$v," "bare,failed,0,20,$v," "good,simulated,0,0,$v,$v" "$stopped" | table
cmp -s bare/FWtrace.out "fwtrace/bare$scratch/bare/FWtrace.out" || fail "no trace of the failure is collected"
[ ! -e fwtrace/storage ] || fail "a host that is left out is flashed"

chmod -x bare/cnatool
! play -e cnatool_flash_selection=19A2:0799 -e cnatool_images=images || fail "faults of the set-up pass"
printf '%s\n' "storage,left out,4,,," "bare,failed,,,," "good,failed,0,12,," "$stopped" | table

! play -e cnatool_flash_selection=19A2:07O0 || fail "a misspelt selection passes"
printf '%s,failed,,,,\n' storage bare good | cat - rows | sed -n '1,3p; 7,$p' >expected && table <expected
chmod +x bare/cnatool && touch images/fm10102-4.7.ufi
! play -e cnatool_images=images || fail "a set in which two images fit passes"
table <expected
