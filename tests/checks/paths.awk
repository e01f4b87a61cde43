# Reads names of source files, one a line, relative to the repository root, and refuses what makes a path of a
# narrow text: system::PathOf() does that, and system::TextOf() the way back. On some systems a path made of the
# text itself is another one as soon as a name has an accent. Exit status 1 where a file does so.
#
# What counts as a path: what PathOf() or the file library answers, plain names in quotes, names that the file
# declares as a path, and functions that the file or a header declares to answer one.

BEGIN {
    type = "(fs|std::filesystem)::path"
    calls = "(fs|std::filesystem)::(absolute|canonical|weakly_canonical|copy|copy_file|create_directory|" \
        "create_directories|directory_iterator|recursive_directory_iterator|equivalent|exists|file_size|" \
        "is_directory|is_empty|is_regular_file|is_symlink|last_write_time|permissions|read_symlink|relative|" \
        "remove|remove_all|rename|status|symlink_status)"
    stream = "std::[io]?fstream"
    part = "a part of a path of a narrow text: PathOf() makes it"
    word = "[A-Za-z_][A-Za-z_0-9]*"
    behind["parent_path"]; behind["PathOf"]; behind["temp_directory_path"]
}

function complain(number, reason) {
    if (told[file, number, reason]++)
        return
    printf "%s:%d: %s\n", file, number, reason
    broken = 1
}

# The line without its comment and without what stands in quotes; "~" is what is left of a text that is more
# than plain.
function bare(line,    before, quoted) {
    gsub(/\\./, "", line)
    gsub(/'[^']'/, "0", line)
    while (match(line, /"[^"]*"/)) {
        before = substr(line, 1, RSTART - 1)
        quoted = substr(line, RSTART + 1, RLENGTH - 2)
        line = before "\001" (quoted ~ /^[ -~]*$/ ? "" : "~") "\002" substr(line, RSTART + RLENGTH)
    }
    sub(/\/\/.*$/, "", line)
    return line
}

# Names of what is declared as a path, or answers one, in a text without comments.
function collect(text, names,    found) {
    while (match(text, type "&? +(" word "::)?" word)) {
        found = substr(text, RSTART, RLENGTH)
        text = substr(text, RSTART + RLENGTH)
        sub(/^.*[ :]/, "", found)
        names[found] = 1
    }
}

# Whether an expression begins with a path. What begins a call of the file library is looked at by itself.
function is_path(expression,    name) {
    sub(/^[ \n]+/, "", expression)
    if (expression ~ /^[)}]/ || expression ~ /^\001\002/)
        return 1
    if (expression ~ /^(kova::)?(system::)?PathOf\(/ || expression ~ "^" type "[({]" || expression ~ "^" calls "\\(")
        return 1
    if (expression ~ /^(fs|std::filesystem)::temp_directory_path\(/ || expression ~ /^entry\.path\(\)/)
        return 1
    # A list of parameters: this declares a function.
    if (expression ~ /^const / || expression ~ "^" word "(::" word ")*[&*]? " word "[,)]")
        return 1
    if (!match(expression, "^((kova::)?(system|host)::)?" word))
        return 0
    name = substr(expression, RSTART, RLENGTH)
    sub(/^.*:/, "", name)
    return name in own || name in announced
}

# Looks at what follows each match of `pattern` in the text.
function check_behind(text, pattern, reason,    rest, offset) {
    rest = text
    offset = 0
    while (match(rest, pattern)) {
        offset += RSTART + RLENGTH - 1
        rest = substr(rest, RSTART + RLENGTH)
        if (!is_path(rest))
            complain(line_at(text, offset), reason)
    }
}

# The number of the line that holds a character of the text, whose lines end in "\n".
function line_at(text, offset,    head) {
    head = substr(text, 1, offset)
    return gsub(/\n/, "", head) + 1
}

# What is put behind a path.
function check_parts(text, names,    name) {
    check_behind(text, "\001~?\002 / ", part)
    for (name in names)
        check_behind(text, "(^|[^A-Za-z_0-9])" name "(\\([^()]*\\))? /=? ", part)
}

function read_file(name,    text, line) {
    text = ""
    while ((getline line < name) > 0)
        text = text bare(line) "\n"
    close(name)
    return text
}

{ files[++count] = $0 }

END {
    if (!count) {
        print "no source was found: nothing was checked"
        exit 1
    }
    for (i = 1; i <= count; i++)
        if (files[i] ~ /\.hpp$/)
            collect(read_file(files[i]), announced)
    for (i = 1; i <= count; i++) {
        file = files[i]
        text = read_file(file)
        split("", own)
        collect(text, own)
        made = "a path made of a narrow text: PathOf() makes it"
        check_behind(text, type "[({]", made)
        check_behind(text, type " +" word "[({]", made)
        check_behind(text, type " +" word " = ", made)
        check_behind(text, calls "(::" word ")?( " word ")?\\(", made)
        check_behind(text, "(fs|std::filesystem)::(copy|copy_file|equivalent|rename)\\([^,;]*, ", made)
        check_behind(text, stream " *" word "[({]", made)
        check_behind(text, stream "[({]", made)
        check_parts(text, own)
        check_parts(text, behind)
        while (match(text, /\.(generic_)?string\(\)/)) {
            complain(line_at(text, RSTART), "the text of a path in the system's code: TextOf() gives it")
            sub(/\.(generic_)?string\(\)/, ".text", text)
        }
    }
    exit broken
}
