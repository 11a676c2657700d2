# shellcheck shell=sh
# What the scenarios share; each runs in an empty directory of its own. CNATOOL is
# the program as it is shipped, CNATOOL_STANDIN the same code with ./hbacmd as the
# vendor CLI.

example=$TESTDIR/../../examples/blade
unset TMPDIR

tool() { "$CNATOOL" "$@"; }
# With prepared reports; with the stand-in, whatever the caller ignores.
simulated() { tool --simulate --conpath blade "$@"; }
real() { env --default-signal=HUP,INT,QUIT "$CNATOOL_STANDIN" --conpath blade "$@"; }

# Lays the example as the working directory "blade".
lay_blade() { rm -rf blade && cp -r "$example" blade; }

# Lays the stand-in with the example's reports; "blade" keeps the conditions
# file and the images.
lay_standin() {
    rm -rf cli hbacmd && lay_blade && mkdir -p cli/reports
    mv blade/*.out cli/reports/ && cp "$TESTDIR/../hbacmd" .
}

# Calls the function $1 once for each row on standard input; a row that holds prints
# nothing. A row is "[PREPARATION ::] WORDS => STATUS [PATTERN]": the pattern, a
# shell pattern with \n and \t, must fit all that is printed. $2 lays what is needed,
# anew after a preparation and for each call of the stand-in.
rows() {
    laid=
    while IFS= read -r row; do
        words=${row%% => *} expected=${row#* => } preparation=
        case $words in *' :: '*) preparation=${words%% :: *} words=${words#* :: } laid= ;; esac
        [ -n "$laid" ] || ${2-:}
        laid=yes && eval "$preparation"
        [ -z "$preparation" ] && [ "${2-}" != lay_standin ] || laid=
        came=$(eval "$1 $words" 2>&1 </dev/null; echo " => $?")
        pattern=$(printf '%b ' "${expected#"${expected%% *}"}")
        pattern=${pattern# } pattern="${pattern% } => ${expected%% *}"
        # It is a pattern.
        # shellcheck disable=SC2254
        case $came in $pattern) ;; *) printf '%s\ncame:\n%s\n' "$row" "$came" | cat -A ;; esac
    done
}

# Tells of a call with the words given at each level how many lines it prints, 0 to
# 6, then how many a debug run logs, then the checksum of it all.
profile() {
    : >all
    for level in 0 1 2 3 4 5 6; do
        simulated -v "$level" "$@" >out 2>&1
        cat out >>all && printf '%s ' "$(wc -l <out)"
    done
    simulated -d 6 "$@" >>all
    cat blade/Merlie_DLL.log >>all
    printf '%s, %s\n' "$(wc -l <blade/Merlie_DLL.log)" "$(cksum <all)"
}
