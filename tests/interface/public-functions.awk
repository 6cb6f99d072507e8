# Lists the public functions that headers declare, one a line, as "Class::name(types)": without
# names of parameters, defaults and qualifiers. Destructors and deleted functions are left out.
#
# Understands the headers of this library, not C++: a declaration ends with a semicolon or a body,
# and only namespaces and classes hold declarations.

{
    sub(/\/\/.*/, "")
    if ($0 !~ /^#/)
        text = text " " $0
}

# The type of one parameter: what stands before its name and its default.
function typeOf(parameter,    words, count) {
    sub(/=.*/, "", parameter)
    gsub(/^ +| +$/, "", parameter)
    if (parameter ~ /[&*]/) {
        sub(/[^&*]*$/, "", parameter)
        return parameter
    }
    count = split(parameter, words, / +/)
    if (count > 1 && words[count] !~ /^(int|char|long|bool|float|double)$/)
        sub(/ +[^ ]+$/, "", parameter)
    return parameter
}

function typesOf(parameters,    all, count, i, types) {
    count = split(parameters, all, ",")
    for (i = 1; i <= count; ++i)
        types = types (i > 1 ? ", " : "") typeOf(all[i])
    return types
}

function tell(declaration,    name, parameters) {
    gsub(/\[\[[^]]*\]\]/, "", declaration)
    if (declaration !~ /\(/ || declaration ~ /= delete|friend |~/)
        return
    name = parameters = declaration
    sub(/\(.*/, "", name)
    sub(/^[^(]*\(/, "", parameters)
    sub(/\).*/, "", parameters)
    sub(/ +$/, "", name)
    if (match(name, /operator.*$/))
        name = substr(name, RSTART)
    else
        sub(/^.*[ &*]/, "", name)
    print (scopeName[depth] != "" ? scopeName[depth] "::" : "") name "(" typesOf(parameters) ")"
}

function enter(declaration,    words) {
    ++depth
    open[depth] = declaration ~ /^ *(class|struct|namespace) / && declaration !~ /\(/
    scopeName[depth] = ""
    hidden[depth] = declaration ~ /^ *class /
    if (open[depth] && declaration !~ /^ *namespace /) {
        split(declaration, words, / +/)
        scopeName[depth] = words[declaration ~ /^ / ? 3 : 2]
    }
}

END {
    depth = 0
    open[depth] = 1
    length_ = length(text)
    for (i = 1; i <= length_; ++i) {
        c = substr(text, i, 1)
        if (c == "{") {
            if (open[depth] && !hidden[depth] && declaration !~ /^ *(class|struct|namespace) /)
                tell(declaration)
            enter(declaration)
            declaration = ""
        } else if (c == "}") {
            --depth
            declaration = ""
        } else if (c == ";") {
            if (open[depth] && !hidden[depth])
                tell(declaration)
            declaration = ""
        } else if (c == ":" && declaration ~ /^ *(public|private|protected)$/) {
            hidden[depth] = declaration !~ /public/
            declaration = ""
        } else if (open[depth]) {
            declaration = declaration c
        }
    }
}
