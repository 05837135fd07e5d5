# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# Reports lines, functions and files of C++ that are too long; exits 1 when there is one.
#   LC_ALL=C awk -v file_limit=500 -f lengths.awk FILE...
#
# It relies on the format of the sources: a brace alone on its line opens a function, a class or an
# enumeration; only a function closes with a mere "}". Tables are long by nature and do not count:
# enumerations, initialisers of constants, and the rows that a test's NAME_data() adds. Characters
# are counted by hand, since not every awk knows UTF-8.

BEGIN {
    line_limit = 100
    function_limit = 60
}

function complain(line, what, limit) {
    printf "%s:%d: %s, the limit is %d\n", current, line, what, limit
    failed = 1
}

function end_file() {
    if (counted > file_limit)
        complain(last, "a file of " counted " lines", file_limit)
}

function indent() {
    match($0, /^ */)
    return RLENGTH
}

FNR == 1 {
    end_file()
    current = FILENAME
    counted = 0
    table = -1
    previous = ""
    delete opened
}

{ last = FNR }

length($0) > line_limit {
    text = $0
    gsub(/[\200-\277]/, "", text)
    if (length(text) > line_limit)
        complain(FNR, "a line of " length(text) " characters", line_limit)
}

table >= 0 {
    if ($0 ~ /^ *[})]+;/ && indent() <= table)
        table = -1
    next
}

{ ++counted }

/^ *((static|inline|constexpr|constinit|const) )+.*\{$/ && !/\)( const| mutable| noexcept)* \{$/ {
    table = indent()
}

/^ *enum .*[^;]$/ { table = indent() }

/^ *\{$/ { opened[indent()] = (previous ~ /_data\(\)$/) ? 0 : FNR }

/^ *\}$/ {
    start = opened[indent()]
    opened[indent()] = 0
    if (start && FNR - start - 1 > function_limit)
        complain(start, "a function of " FNR - start - 1 " lines", function_limit)
}

{ previous = $0 }

END {
    end_file()
    exit failed
}
