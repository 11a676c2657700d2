# shellcheck shell=sh
# What the scenarios share; each runs in an empty directory of its own.
# CNATOOL is the program as it is shipped, CNATOOL_STANDIN the same objects with
# the vendor CLI's path set to ./hbacmd.

example=$TESTDIR/../../examples/blade
unset TMPDIR

# The program with prepared reports, and with the stand-in.
simulated() { "$CNATOOL" --simulate --conpath blade "$@"; }
real() { "$CNATOOL_STANDIN" --conpath blade "$@"; }

# Lays the example as the working directory "blade".
lay_blade() { rm -rf blade && cp -r "$example" blade; }

# Lays the stand-in with the example's reports; "blade" keeps the conditions
# file and the images.
lay_standin() {
    rm -rf cli hbacmd && lay_blade && mkdir -p cli/reports
    mv blade/*.out cli/reports/ && cp "$TESTDIR/../hbacmd" .
}

# Runs the program once for each line of words on standard input, and tells
# its status.
each() {
    while IFS= read -r words; do
        echo "[$words]"
        status=0
        eval "\"$CNATOOL\" $words" </dev/null || status=$?
        echo "=> $status"
    done
}

# Keeps the lines on standard input that begin with one of the words given.
only() { grep -E "^($(echo "$@" | tr ' ' '|'))"; }
