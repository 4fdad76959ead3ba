# What the tests of the package share: a folder for this run, and how a failure is told.
# shellcheck shell=bash

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# expect_equal WHAT ACTUAL EXPECTED
expect_equal() {
    [[ $2 == "$3" ]] || fail "$1:"$'\n'"$(diff <(echo "$3") <(echo "$2") | sed 's/^</expected:/; s/^>/but is:  /')"
}

# Sets `output` and `status` to what a command prints to stdout, without carriage returns, and returns.
run() {
    status=0
    output=$("$@" 2>"$scratch/errors") || status=$?
    output=${output//$'\r'/}
}

expect_status() {
    [[ $status -eq $1 ]] || fail "exit status $status, expected $1; output:"$'\n'"$output"$'\n'"$(<"$scratch/errors")"
}

# The lines of the output whose columns, with one blank between them, are these.
expect_row() {
    tr -s ' ' <<<"$output" | sed 's/ $//' | grep -qxF "$1" || fail "no line \"$1\" in:"$'\n'"$output"
}

# expect_package FOLDER SOURCE FILES…: the files of the folder are those that every package has, and these.
expect_package() {
    local folder=$1 source=$2
    shift 2
    expect_equal "files of the package" "$(cd "$folder" && find . -type f -printf '%P\n' | LC_ALL=C sort)" "$(
        {
            printf '%s\n' README.md bin/catalogue.json docs/catalogue.schema.json docs/host/{CMakeLists.txt,main.cpp,mingw-w64.cmake} \
                include/luruludri/{GameLocation,IGameFinder,IGameFinderFactory}.h \
                lib/cmake/Luruludri/{DebugHost.h,LuruludriConfig.cmake,LuruludriConfigVersion.cmake} "$@"
            (cd "$source" && printf '%s\n' docs/*.md | grep -vE '/(architecture|testing|performance)\.md$')
        } | LC_ALL=C sort
    )"
    cmp "$folder/bin/catalogue.json" "$source/samples/catalogue.json" || fail "the catalogue differs"
    expect_links "$folder"
    expect_citations "$folder" "$source"
}

# What the documents link is there.
expect_links() {
    local document link
    while read -r document; do
        while read -r link; do
            [[ $link == https:* || -e ${document%/*}/$link ]] || fail "$document: nothing to be found at $link"
        done < <(grep -oE '\]\([^)#]+' "$document" | cut -c 3-)
    done < <(find "$1" -name '*.md')
}

# What the documents cite of the source tree is in the package, too; what programs print aside.
expect_citations() {
    local folder=$1 source=$2 document word
    # shellcheck disable=SC2016 # these are no commands
    local paths='[A-Za-z0-9_.-]*/[A-Za-z0-9_./-]*[A-Za-z0-9_]|[A-Z]+\.md|`[a-z][a-z-]*/`' output='/^`{3}/,/^`{3}/d'
    while read -r document; do
        while read -r word; do
            [[ ! -e $source/$word || -e $folder/$word || -e ${document%/*}/$word ]] ||
                fail "${document#"$folder/"}: cites $word, which is not in the package"
        done < <(sed -E "$output" "$document" | grep -oE "$paths" | tr -d '`' | sort -u)
    done < <(find "$folder" -name '*.md')
}

export LC_ALL=C.UTF-8 # names are not all ASCII, and the system's locale may be "C"
scratch=$(mktemp -d "${TMPDIR:-/tmp}/luruludri-package.XXXXXX")
wine_run=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../../windows/wine-run")

clean_up() {
    [[ ! -d $scratch/prefix ]] || "$wine_run" --drop "$scratch/prefix"
    rm -rf "$scratch"
}
trap clean_up EXIT

# A Wine prefix of this run, which `windows_program` uses.
need_prefix() {
    "$wine_run" --prefix "$scratch/prefix"
    c_drive=$scratch/prefix/drive_c
}

# Runs a Windows program with no more than Windows and what lies beside it: no Qt, no runtime of the compiler.
windows_program() {
    env -u LURULUDRI_QT_WINDOWS -u WINEPATH LURULUDRI_WINEPREFIX="$scratch/prefix" "$wine_run" "$@"
}

# Takes the text on stdin over into the registry.
import_registry() {
    { printf 'Windows Registry Editor Version 5.00\r\n\r\n' && cat; } | iconv -f UTF-8 -t UTF-16 >"$c_drive/import.reg"
    windows_program regedit /S 'C:\import.reg'
}
