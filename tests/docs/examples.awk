# Makes a program of tests from the C++ blocks of pages in Markdown: one test a block, named after
# the heading above it. A comment behind a statement is its value:
#
#     CharFunctions::EndsWith("abc", "cb");  // true
#
# or "ends the process", or "does not return". All other lines stay as they are, and functions that
# open a block are defined before its test. Failures name the line of the page.
BEGIN { print "#include \"Examples.h\"" }

FNR == 1 {
    page = FILENAME
    sub(/.*\//, "", page)
    sub(/\.md$/, "", page)
}

!inside && /^#/ {
    name = $0
    gsub(/[^A-Za-z0-9]/, "", name)
}

/^```/ {
    if (inside)
        print "}"
    inside = !inside && $0 == "```cpp"
    begun = 0
    next
}

!inside { next }

!begun && /^[A-Za-z].*\) \{$/ {
    inFunction = 1
    printf "\n#line %d \"%s\"\nstatic ", FNR, FILENAME
}

inFunction {
    print
    inFunction = $0 != "}"
    next
}

!begun && NF {
    printf "\n#line %d \"%s\"\nTEST_F(Examples, %s_%s_%d) {\n", FNR - 1, FILENAME, page, name, FNR
    begun = 1
    ++count
}

match($0, /; *\/\/ /) {
    statement = substr($0, 1, RSTART - 1)
    value = substr($0, RSTART + RLENGTH)
    if (value == "ends the process")
        print "EXPECT_DEATH((void)(" statement "), \"\");"
    else if (value == "does not return")
        print "EXPECT_TRUE(doesNotReturn([&] { (void)(" statement "); }));"
    else
        print "EXPECT_EQ((" statement "), (valueLike<decltype(" statement ")>(" value ")));"
    next
}

{ print }

END {
    if (inside || count == 0)
        exit 1
}
