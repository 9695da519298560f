#!/usr/bin/env bash
# check.sh PREFIX: proves that the package installed under PREFIX serves a consumer: by CMake and by
# pkg-config, from another folder too, with headers that stand alone and the example that the README shows.
set -euo pipefail
[ $# -eq 1 ] || { echo "usage: $0 PREFIX" >&2; exit 2; }
prefix=$(realpath "$1")
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

step() { printf -- '-- %s\n' "$*"; }
fail() { echo "$*" >&2; exit 1; }

step "The example of README.md is the one that is built"
example=$(sed -n '/^\/\/ \[example\]$/,/^\/\/ \[example\]$/{/^\/\/ \[example\]$/d;p}' "$here/readme_example.cpp")
[ -n "$example" ] || fail "no example in readme_example.cpp"
shown=$(sed -n '/^```cpp$/,/^```$/{/^```/d;p}' "$root/README.md")
diff <(printf '%s\n' "$example") <(printf '%s\n' "$shown") || fail "README.md shows another example"

step "CMake: find_package(Quillon), each header alone"
cmake -S "$here" -B "$work/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
grep -E 'headers in' "$work/log"
cmake --build "$work/cmake" >"$work/log" 2>&1 || { grep -E -A5 'error|FAILED' "$work/log"; exit 1; }
"$work/cmake/consumer" >"$work/by-cmake.json"
"$work/cmake/documents" "$root/samples/household.mvdb" "$work/copy.mvdb" >"$work/documents-by-cmake.txt"

step "pkg-config"
export PKG_CONFIG_PATH=$prefix/lib/pkgconfig
make -s -f "$here/Makefile" -C "$here" OUT="$work/by-pkg-config"
LD_LIBRARY_PATH=$prefix/lib "$work/by-pkg-config" >"$work/by-pkg-config.json"
cmp "$work/by-cmake.json" "$work/by-pkg-config.json"
make -s -f "$here/Makefile" -C "$here" SOURCE=documents.cpp OUT="$work/documents-by-pkg-config"
LD_LIBRARY_PATH=$prefix/lib "$work/documents-by-pkg-config" "$root/samples/household.mvdb" "$work/again.mvdb" \
    >"$work/documents-by-pkg-config.txt"
cmp "$work/documents-by-cmake.txt" "$work/documents-by-pkg-config.txt"
cmp "$work/copy.mvdb" "$work/again.mvdb"

step "Both again after the installed tree has moved"
mkdir "$work/moved"
cp -a "$prefix/." "$work/moved/"
cmake -S "$here" -B "$work/moved-cmake" -G Ninja -DCMAKE_PREFIX_PATH="$work/moved" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
cmake --build "$work/moved-cmake" --target consumer >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
"$work/moved-cmake/consumer" >/dev/null
flags=$(PKG_CONFIG_PATH=$work/moved/lib/pkgconfig pkg-config --cflags --libs quillon)
case "$flags" in *"$work/moved"*) ;; *) fail "pkg-config still answers $flags" ;; esac
case "$flags" in *"$prefix/"*) fail "pkg-config still answers $flags" ;; esac

step "The installed program finds its libraries"
if [ -x "$work/moved/bin/quillon" ]; then
    "$work/moved/bin/quillon" show "$root/samples/household.mvdb" >/dev/null
    ldd "$work/moved/bin/quillon" | grep -F "$work/moved" >/dev/null || fail "it takes its libraries from elsewhere"
else
    fail "there is no bin/quillon"
fi

step "The installed man page has no faults and can be shown"
page=$work/moved/share/man/man1/quillon.1
groff -man -Tutf8 -ww -z "$page" 2>"$work/faults"
LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l "$page" 2>>"$work/faults" >"$work/page"
[ ! -s "$work/faults" ] || fail "$(cat "$work/faults")"
for verb in check codebook convert diff import show; do
    grep -E "^ +quillon $verb" "$work/page" >/dev/null || fail "the man page does not show $verb"
done

step "The installed completion completes in bash"
completion=$work/moved/share/bash-completion/completions/quillon
touch "$work/one.mvdb" "$work/data.sav"
# completions_of WORD...: what bash would offer for the last word of the line.
completions_of() {
    (cd "$work" && bash --norc -u -c '
        source "$1"; shift
        complete -p quillon >/dev/null
        COMP_WORDS=(quillon "$@"); COMP_CWORD=$#; COMPREPLY=()
        _quillon
        printf "%s\n" "${COMPREPLY[@]}" | sort | tr "\n" " "' bash "$completion" "$@")
}
# offers EXPECTED WORD...
offers() {
    local expected=$1 offered
    shift
    offered=$(completions_of "$@")
    [ "$offered" = "$expected " ] || fail "quillon $*: \"$offered\" is offered instead of \"$expected\""
}
offers "check codebook convert" c
offers "check" ch
offers "--json" check --j
offers "--no-data --no-header --no-split" import --no
offers "one.mvdb" check on
offers "data.sav" import da
offers "--help --version" --

echo "the installed package works"
