# Compares what came on standard input, "=> STATUS" last, with a row's status and output
# in the environment. Says what differs first and then ends with 1. In the output "\n" and
# "\t" are a line end and a tab, "*" stands for any text in a line, "..." for any lines.

function fits(text, pattern,    parts, count, i, at) {
    count = split(pattern, parts, "[*]")
    if (count < 2) return text == pattern
    if (substr(text, 1, length(parts[1])) != parts[1]) return 0
    text = substr(text, length(parts[1]) + 1)
    for (i = 2; i < count; ++i) {
        if (parts[i] != "" && (at = index(text, parts[i])) == 0) return 0
        if (parts[i] != "") text = substr(text, at + length(parts[i]))
    }
    at = length(text) - length(parts[count])
    return at >= 0 && substr(text, at + 1) == parts[count]
}

# How many of a block of `size` expected lines fit what came from line `at` on.
function fitting(block, size, at,    n) {
    n = 0
    while (n < size && at + n <= came_count && fits(came[at + n], wanted[block + n])) ++n
    return n
}

# How many words of an expected line a line has: the nearest one is shown.
function likeness(text, pattern,    words, count, i, found) {
    count = split(pattern, words, "[ \t*]+")
    for (i = 1; i <= count; ++i) found += words[i] != "" && index(text, words[i]) > 0
    return found + (text == pattern)
}

function show(title, text) {
    gsub(/\t/, "\\t", text)
    if (length(text) > 170) text = substr(text, 1, 110) " ~ " substr(text, length(text) - 50)
    print "    " title text
}

function tell(expected, at,    i) {
    different = 1
    print "  line " at " of " came_count ":"
    show("expected: ", expected)
    if (at > came_count) show("came:     ", "nothing more")
    for (i = at; i < at + 3 && i <= came_count; ++i) show(i == at ? "came:     " : "          ", came[i])
}

{ came[NR] = $0 }

END {
    came_count = NR - 1
    if (came[NR] != "=> " ENVIRON["row_status"]) {
        different = 1
        print "  status: expected " ENVIRON["row_status"] ", came " came[NR]
    }
    text = ENVIRON["row_output"]
    gsub(/\\n/, "\n", text)
    gsub(/\\t/, "\t", text)
    wanted_count = split(text, wanted, "\n")
    at = 1
    for (block = 1; block <= wanted_count; block += size) {
        first = at
        last = at
        if (wanted[block] == "...") {
            ++block
            last = came_count + 1
        }
        for (size = 0; block + size <= wanted_count && wanted[block + size] != "..."; ) ++size
        # The last lines must be those at the end, and "..." there takes all that is left.
        if (last > at && block + size > wanted_count) {
            first = came_count + 1 - size
            if (first < at) first = at
            if (size == 0) at = first
        }
        best = -1
        for (start = first; start <= last && best < size * 1000; ++start) {
            score = fitting(block, size, start)
            if (score < size) score = score * 1000 + likeness(came[start + score], wanted[block + score])
            else score *= 1000
            if (score > best) {
                best = score
                at = start
            }
        }
        fit = fitting(block, size, at)
        if (fit < size) {
            tell(wanted[block + fit], at + fit)
            exit 1
        }
        at += size
    }
    if (at <= came_count) tell("no more", at)
    exit different
}
