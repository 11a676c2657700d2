#!/bin/sh
# Runs the role against this machine as hosts with a directory each, through the stand-in
# for the vendor's CLI.
set -eu
cd "$(dirname "$0")/.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "ansible: $1" >&2; tail -n 60 "$scratch/log" >&2; exit 1; }

repository=$PWD
cd "$scratch"
mkdir tmp images two
cp -r "$repository"/examples/blade/fm* "$repository"/examples/blade/CNA-10102-FX images
cp images/fm* two && touch two/fm10102-4.7.ufi
cp "$repository/examples/blade/FC_HBA_Conditions.txt" . && sed 's/0700/O700/' FC_HBA_Conditions.txt >typo.txt

# The programs as they are installed, images of an earlier set, and the stand-in with
# firmware that the first download replaces on FM, the second one on FX.
for host in good storage away second current typo; do
    mkdir -p $host/cli/reports $host/CNA-10102-FM && touch $host/fm10102-4.0.ufi $host/CNA-10102-FM/FWtrace.out
    cp "$repository"/examples/blade/*.out $host/cli/reports
    cp "$repository/tests/hbacmd" "$repository"/build/release/tests/*_standin $host
    cat >$host/cnatool <<'END' && chmod +x $host/cnatool && cp $host/cnatool $host/lscna
#!/bin/sh
cd "${0%/*}" && exec "$PWD/${0##*/}_standin" "$@"
END
    for n in 1 2; do echo "sed -i 's/4.6.100.0/4.6.142.10/' cli/reports/VM$n*" >$host/cli/download$n; done
    [ $host = current ] || sed -i 's/4.6.142.10/4.6.100.0/' $host/cli/reports/*
    [ $host = storage ] || sed -i 's/: NRB/: DGC/; s/_SX1/_CX1/' $host/cli/reports/*_mapping.out
done
echo 'exit 7' >second/cli/download2

cat >inventory <<END
[blades]
good
storage
away ansible_remote_tmp=/proc/none
second
current
typo cnatool_conditions=typo.txt
[blades:vars]
ansible_connection=local
ansible_become=false
ansible_python_interpreter=/usr/bin/python3
cnatool_home=$scratch/{{ inventory_hostname }}
cnatool_firmware_version={'CNA-10102-FM': '4.6.142.10', 'CNA-10102-FX': '4.6.142.10'}
END

# Files and traces are given as from the current directory, like anyone would.
play() {
    ANSIBLE_HOME=$scratch/ansible ANSIBLE_REMOTE_TMP=$scratch/tmp ANSIBLE_LOCALHOST_WARNING=false LC_ALL=C.UTF-8 \
        PYTHONDONTWRITEBYTECODE=1 ansible-playbook -i inventory "$repository/contrib/ansible/site.yml" \
        -e cnatool_batches=6 "$@" >log 2>&1 </dev/null
}
# Compares all columns of a table but the reasons.
table() {
    sed '1d; s/ RET_[A-Z_]*//g; s/VM10250117/FM/g; s/VM20713302/FX/g' "$1" | cut -d , -f 1-7 >rows
    diff - rows >&2 || fail "the table is wrong"
}
reason() { grep -q "^$1,.*$2" cnatool.csv || { cat cnatool.csv >&2 && fail "the reason of $1 is wrong"; }; }
old='FX 4.6.100.0; FM 4.6.100.0' half='FX 4.6.100.0; FM 4.6.142.10' new='FX 4.6.142.10; FM 4.6.142.10'

# The first command that the documents show, on hosts that have never been touched.
! play --tags prepare,check --limit good,storage,away || fail "a limited play is called done without a host"
table cnatool-partial.csv <<END
good,checked,0,,,$old,
storage,left out,4,,,$old,
away,unreachable,,,,,
END
[ -z "$(ls good/FWtrace.out cnatool.csv good/*-4.0.ufi 2>log)" ] || fail "a check flashes, or an old image stays"
ls good/CNA-10102-FM.old/FWtrace.out good/CNA-10102-FX/*.grp good/lscna >log || fail "more than images is removed"

! play || fail "nothing tells that hosts have failed"
table cnatool.csv <<END
good,flashed,0,0,3 of 3,$old,$new
storage,left out,4,,,$old,
away,unreachable,,,,,
second,failed,0,10,1 of 3,$old,$half
current,up to date,0,,,$new,
typo,failed,55,,,$old,
END
reason storage 'VM20713302, function 3 sees NRB Marlovan_SX1, record 2 allows DGC Marlovan_CX'
reason second 'Fail, flash command returned code 1792'
reason typo "typo/FC_HBA_Conditions.txt:23: device id 'O700'"
grep -q '"away *unreachable' log || fail "the table is not shown"
cmp -s second/FWtrace.out "fwtrace/second$scratch/second/FWtrace.out" || fail "no trace of the failure is collected"
[ "$(cat ./*/cli/calls.log | grep -c ^download)" -eq 5 ] || fail "a host is flashed that should not be"

# After the repair there is something to do on the repaired hosts alone.
sed -i 's, ansible_remote_tmp=.*,,; s/ cnatool_conditions=.*//' inventory
cp good/cli/reports/*_mapping.out storage/cli/reports && cp good/cli/download2 second/cli && rm ./*/cli/calls.log
play || fail "the repaired fleet fails"
table cnatool.csv <<END
good,up to date,0,,,$new,
storage,flashed,0,0,3 of 3,$old,$new
away,flashed,0,0,3 of 3,$old,$new
second,flashed,0,0,3 of 3,$half,$new
current,up to date,0,,,$new,
typo,flashed,0,0,3 of 3,$old,$new
END
[ "$(grep -E 'changed=0 .*failed=0' log | cut -d ' ' -f 1 | xargs)" = 'current good' ] || fail "more is changed"

rm ./*/cli/calls.log
play --check --limit good -e cnatool_firmware_version=4.7 || fail "check mode fails"
echo "good,would be flashed,0,,,$new," | table cnatool-partial.csv
[ ! -e good/cli/calls.log ] || fail "check mode starts the vendor's CLI"

# A fault on each host: two images that match one name, a misspelt selection, an adapter that
# the flash leaves out, no conditions file. The others are not begun.
sed -i 's/^good/& cnatool_images=two/; s/^storage/& cnatool_check_selection=X/; s/^second/& cnatool_conditions=-/' inventory
echo 'rm cli/reports/VM10250117_[01]*' >away/cli/listhbas3
! play -e cnatool_batches=4 -e cnatool_firmware_version=4.7 || fail "faults of the set-up pass"
table cnatool.csv <<END
good,failed,0,,,$new,
storage,failed,55,,,,
away,failed,0,0,2 of 3,$new,FX 4.6.142.10; FM ?
second,failed,,,,,
current,not begun,,,,,
typo,not begun,,,,,
END
reason good "fm10102-4.7.ufi.* match the firmware image 'fm10102-'"
reason storage 'lscna: --pci-id: not a list of '
reason second "there is no conditions file $scratch/-"
