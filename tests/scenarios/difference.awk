# Compares what came on standard input, "=> STATUS" last, with a row's status and output in
# the environment. Says what differs first and then ends with 1. In the output "\n" and "\t"
# are a line end and a tab, "*" stands for any text in a line, "..." for any lines.

function fits(text, pattern) {
    gsub(/[][\\.^$+?(){}|]/, "\\\\&", pattern)
    gsub(/[*]/, ".*", pattern)
    return text ~ ("^" pattern "$")
}

# How many of `size` expected lines from `first` on fit what came from line `at` on; of the next
# one, which does not, the share of its words that came there.
function fitting(first, size, at,    fit, words, count, i) {
    for (fit = 0; fit < size && at <= lines && fits(came[at], wanted[first + fit]); ++at) ++fit
    if (fit == size) return fit
    count = split(wanted[first + fit], words, "[ \t*]+")
    for (i = 1; i <= count; ++i) fit += (words[i] != "" && index(came[at], words[i])) / (count + 1)
    return fit
}

function show(title, text) {
    gsub(/\t/, "\\t", text)
    if (length(text) > 170) text = substr(text, 1, 110) " ~ " substr(text, length(text) - 50)
    print "    " title text
}

function tell(expected, at,    i) {
    print "  line " at " of " lines ":"
    show("expected: ", expected)
    show("came:     ", at > lines ? "nothing more" : came[at])
    for (i = at + 1; i < at + 3 && i <= lines; ++i) show("          ", came[i])
    exit 1
}

{ came[NR] = $0 }

END {
    lines = NR - 1
    wrong_status = came[NR] != "=> " ENVIRON["row_status"]
    if (wrong_status) print "  status: expected " ENVIRON["row_status"] ", came " came[NR]
    output = ENVIRON["row_output"]
    gsub(/\\n/, "\n", output)
    gsub(/\\t/, "\t", output)
    count = split(output, wanted, "\n")
    at = 1
    for (first = 1; first <= count; first += size) {
        from = to = at
        if (wanted[first] == "...") {
            ++first
            to = lines + 1
        }
        for (size = 0; first + size <= count && wanted[first + size] != "..."; ) ++size
        # The last of the expected lines must be the last that came.
        if (to > at && first + size > count) from = lines + 1 - size > at ? lines + 1 - size : at
        for (best = -1; from <= to && best < size; ++from)
            if ((fit = fitting(first, size, from)) > best) {
                best = fit
                at = from
            }
        if (best < size) tell(wanted[first + int(best)], at + int(best))
        at += size
    }
    if (at <= lines) tell("nothing more", at)
    exit wrong_status
}
