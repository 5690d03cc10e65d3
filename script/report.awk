# Fills a template with what tests have recorded, see tests/support/record.h:
#
#     awk -f script/report.awk PAGES RESULTS... TEMPLATE
#
# PAGES is what tavrune_list_pages prints, RESULTS what --gtest_output=xml writes. A row of a table with words like
# @openings@ stands for as many rows as there are tests that have recorded all of these: where its first is @form@, one
# at least for each form in the order of the menu, where it is @page@, one for each page. Elsewhere such a word stands
# for a variable of the environment. Exits with 1, and says why, if there is nothing for a row or a word.

FILENAME == ARGV[1] {
    if ($1 == "form") forms[++count["form"]] = $7
    if ($1 == "form" || $1 == "page") pages[++count["page"]] = $7
    next
}

FILENAME != ARGV[ARGC - 1] {
    if (/<testcase /) tests++
    if (/<property /) figures[tests, attribute("name")] = attribute("value")
    next
}

/^\|.*@[A-Za-z]+@/ { fill_rows($0); next }
{ print filled($0, 0) }
END { exit wanting != "" }

function attribute(name,    text) {
    text = $0
    sub(".* " name "=\"", "", text)
    sub("\".*", "", text)
    gsub("&lt;", "<", text)
    gsub("&gt;", ">", text)
    gsub("&quot;", "\"", text)
    gsub("&apos;", "'", text)
    gsub("&amp;", "\\&", text)
    return text
}

function fill_rows(row,    key, n) {
    match(row, /@[A-Za-z]+@/)
    key = substr(row, RSTART + 1, RLENGTH - 2)
    if (!(key in count)) {
        rows_of(row, "", "")
    } else for (n = 1; n <= count[key]; n++) {
        rows_of(row, key, key == "form" ? forms[n] : pages[n])
    }
}

# Prints the row for every test that has all its words; with a key, only for those of the named page.
function rows_of(row, key, name,    test, any) {
    for (test = 1; test <= tests; test++) {
        if ((key == "" || figures[test, key] == name) && has_all(row, test)) {
            print filled(row, test)
            any = 1
        }
    }
    if (!any) miss(name " in the row " row)
}

function has_all(row, test) {
    while (match(row, /@[A-Za-z]+@/)) {
        if (!((test, substr(row, RSTART + 1, RLENGTH - 2)) in figures)) return 0
        row = substr(row, RSTART + RLENGTH)
    }
    return 1
}

# The words replaced by what the test has recorded, or for test 0 by the environment.
function filled(line, test,    done, word) {
    while (match(line, /@[A-Za-z]+@/)) {
        word = substr(line, RSTART + 1, RLENGTH - 2)
        if (!test && !(word in ENVIRON)) miss(word)
        done = done substr(line, 1, RSTART - 1) (test ? figures[test, word] : ENVIRON[word])
        line = substr(line, RSTART + RLENGTH)
    }
    return done line
}

function miss(what) {
    wanting = what
    print "Nothing is recorded for: " what >"/dev/stderr"
}
