# Reads "object source" lines, a line "--", and what nm -A tells of the objects, and names what is called upward.

# The table of walls, whose name comes as -v walls=FILE: a folder, and the folders that it may include.
BEGIN {
    while ((getline line < walls) > 0)
        if (split(line, cell, / *\| */) > 3 && cell[2] ~ /^[a-z]/)
            sees[cell[2]] = " " cell[3] " "
}

# Each operating system's sources define what the folder around them declares.
function room_of(source) {
    sub(/^system\/(posix|windows)\//, "system/", source)
    sub(/^component\/(posix|windows)\//, "component/", source)
    while (sub(/[^\/]*\/?$/, "", source) && source != "")
        if (source in sees)
            return source
    return ""
}

function may_see(room, other) {
    return sees[room] == " everything " || index(sees[room], " " other " ") > 0
}

/^--$/ { listed = 1; next }
!listed { sources[$1] = $2; next }

# What is defined in several objects, as templates are, is at home in none of them.
{
    object = $1
    sub(/:[^:]*$/, "", object)
    if ($(NF - 1) ~ /^[TDBR]$/)
        home[$NF] = sources[object]
    else if ($(NF - 1) == "U")
        asked[$NF] = asked[$NF] " " sources[object]
}

END {
    for (name in asked) {
        count = (name in home) ? split(asked[name], callers, " ") : 0
        for (i = 1; i <= count; i++) {
            from = room_of(callers[i])
            to = room_of(home[name])
            if (from != to && may_see(to, from) && !may_see(from, to))
                print callers[i] " -> " home[name] ": " name
        }
    }
}
