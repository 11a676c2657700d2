# shellcheck shell=sh
# What the scenarios share; each runs in an empty directory of its own. CNATOOL is the
# program as it is shipped, CNATOOL_STANDIN the same code with ./hbacmd as the vendor CLI.

example=$TESTDIR/../../examples/blade
unset TMPDIR

# The example's adapters: FM (VM10250117) sees DGC storage, which its record allows, FX
# (VM20713302) NRB, which its record does not allow. A check selects their FCoE ports, a
# flash their flash ports. Two ids select both; the first record of the device is FM's.
# shellcheck disable=SC2034
FM='-pci-id 19A2:0714:1C3E:11C1' FX='-pci-id 19A2:0714:1C3E:11C2' BOTH='-pci-id 19A2:0714' \
    FLASH_FM='--flash -pci-id 19A2:0700:1C3E:11C1' FLASH_FX='--flash -pci-id 19A2:0700:1C3E:11C2' \
    FLASH_BOTH='--flash -pci-id 19A2:0700' conditions=blade/FC_HBA_Conditions.txt

tool() { "$CNATOOL" "$@"; }
# With prepared reports; with the stand-in, whatever the caller ignores.
simulated() { tool --simulate --conpath blade "$@"; }
real() { env --default-signal=HUP,INT,QUIT "$CNATOOL_STANDIN" --conpath blade "$@"; }

# Lays the example as the working directory "blade".
lay_blade() { rm -rf blade && cp -r "$example" blade; }

# Lays the stand-in with the example's reports; "blade" keeps the conditions and the images.
lay_standin() {
    rm -rf cli hbacmd && lay_blade && mkdir -p cli/reports
    mv blade/*.out cli/reports/ && cp "$TESTDIR/../hbacmd" .
}

# Has the N-th call of a command of the stand-in do what is given, as "on download1 'exit 7'".
on() { printf '%s\n' "$2" >"cli/$1"; }

# Calls the function $1 with the words of each row on standard input, and compares its
# status and all that it prints; CONTRIBUTING.md tells what a row is. $2 lays what is
# needed, anew after a preparation and for each call of the stand-in.
rows() {
    row='' laid='' failures=0
    while IFS= read -r line; do
        case $line in
        '#'*) ;;
        '|'*) line=${line#|} && row="$row\\n${line# }" ;;
        *) try_row "$1" "${2-:}"; row=$line head=$line ;;
        esac
    done
    try_row "$1" "${2-:}"
    [ "$failures" -lt 4 ] || echo "$((failures - 3)) more rows of this table do not hold."
}

# Tries $row; the first three of a table that do not hold are told. What is told bears the
# time, so that it can't be accepted as expected output: the next run's differs.
try_row() {
    [ -n "$row" ] || return 0
    words=${row%% => *} expected=${row#* => } preparation=''
    case $words in *' :: '*) preparation=${words%% :: *} words=${words#* :: } laid='' ;; esac
    [ -n "$laid" ] || "$2"
    laid=yes && eval "$preparation"
    [ -z "$preparation" ] && [ "$2" != lay_standin ] || laid=''
    status=${expected%%[!0-9]*} expected=${expected#"${expected%%[!0-9]*}"}
    case $expected in '\n'*) expected=${expected#??} ;; *) expected=${expected# } ;; esac
    difference=$({ eval "$1 $words" 2>&1 </dev/null; echo "=> $?"; } |
        row_status=$status row_output=$expected awk -f "$TESTDIR/difference.awk") || failures=$((failures + 1))
    [ -z "$difference" ] || [ "$failures" -gt 3 ] || printf '%s\n' "Row at $(date +%T.%N): $head" "$difference"
}
