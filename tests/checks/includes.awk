# Reads names of source files, one a line, relative to the repository root, and checks their includes.
# Exit status 1 where one breaks a rule.

# The table of walls, whose name comes as -v walls=FILE: a folder, the folders of the project and the families
# of system headers that it may include.
function read_walls(    line, cell, rows) {
    while ((getline line < walls) > 0) {
        if (line !~ /^\| *[a-z]/)
            continue
        split(line, cell, / *\| */)
        sub(/\/$/, "", cell[2])
        projectAllowed[cell[2]] = cell[3]
        systemAllowed[cell[2]] = cell[4]
        rows++
    }
    close(walls)
    if (!rows) {
        print "no walls were read from " walls
        exit 1
    }
}

BEGIN {
    read_walls()

    names = "algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts" \
        " condition_variable coroutine deque exception execution filesystem forward_list fstream functional" \
        " future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map" \
        " memory memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex" \
        " scoped_allocator semaphore set shared_mutex source_location span sstream stack stdexcept" \
        " stop_token streambuf string string_view syncstream system_error thread tuple type_traits typeindex" \
        " typeinfo unordered_map unordered_set utility valarray variant vector version cassert cctype cerrno" \
        " cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef cstdint cstdio" \
        " cstdlib cstring ctime cuchar cwchar cwctype"
    count = split(names, list, " ")
    for (i = 1; i <= count; i++)
        standard[list[i]] = 1
}

# More than one where several systems have a header of that name.
function families_of(header) {
    if (header in standard)
        return "std"
    if (header ~ /^Q[A-Z]/ || header ~ /^Qt([A-Z][A-Za-z]*)?(\/|$)/)
        return "qt"
    if (header ~ /^soci\//)
        return "soci"
    if (header ~ /^nlohmann\//)
        return "json"
    if (header ~ /^CLI\//)
        return "cli11"
    if (header == "libpq-fe.h")
        return "libpq"
    if (header == "utf8proc.h")
        return "utf8proc"
    if (header == "sodium.h")
        return "sodium"
    if (header ~ /^(gtest|gmock)\//)
        return "gtest"
    if (header ~ /^(sys\/[a-z]+|dlfcn|execinfo|link|netdb|poll|pwd|termios|unistd)\.h$/)
        return "posix"
    if (header ~ /^(commctrl|dispex|initguid|io|knownfolders|lm|shellapi|shlobj|windows|winsock2|ws2tcpip)\.h$/)
        return "windows"
    if (header == "fcntl.h")
        return "posix windows"
    return "other"
}

function rule_of(file,    folder) {
    folder = file
    while (sub(/\/[^\/]*$/, "", folder))
        if (folder in projectAllowed)
            return folder
    return ""
}

function complain(reason) {
    printf "%s:%d: %s\n", file, number, reason
    broken = 1
}

function exists(path,    line, answer) {
    answer = (getline line < path) >= 0
    close(path)
    return answer
}

function check_project(header, allowed,    count, parts, i) {
    if (!exists(header)) {
        complain("\"" header "\" is not written from the repository root")
        return
    }
    if (allowed == "everything")
        return
    # A folder with walls of its own is not seen by who may see the folder around it.
    count = split(allowed, parts, " ")
    for (i = 1; i <= count; i++)
        if (index(header, parts[i]) == 1 && length(parts[i]) > length(rule_of(header)))
            return
    complain(folder "/ may not include \"" header "\"")
}

function check_system(header, allowed,    count, families, i) {
    if (allowed == "everything")
        return
    count = split(families_of(header), families, " ")
    for (i = 1; i <= count; i++)
        if (index(" " allowed " ", " " families[i] " ") > 0)
            return
    complain(folder "/ may not include <" header ">")
}

{
    file = $0
    folder = rule_of(file)
    number = 0
    while ((getline line < file) > 0) {
        number++
        if (line !~ /^[ \t]*#[ \t]*include/)
            continue
        checked++
        sub(/^[ \t]*#[ \t]*include[ \t]*/, "", line)
        header = substr(line, 2)
        sub(/[">].*$/, "", header)
        if (folder == "")
            complain("no rule names this folder")
        else if (line ~ /^"/)
            check_project(header, projectAllowed[folder])
        else
            check_system(header, systemAllowed[folder])
    }
    close(file)
}

END {
    if (!length(projectAllowed))
        exit 1
    if (!checked) {
        print "no include was found: nothing was checked"
        exit 1
    }
    exit broken
}
