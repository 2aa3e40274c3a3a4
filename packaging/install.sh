#!/bin/sh
# Installs Ledgrove into the user's home and the desktop's menu, updates an installed Ledgrove, or removes it.
# It never overwrites or removes the settings or files that the user has changed.
set -eu

id=org.ledgrove.Ledgrove
type=vnd.ledgrove.comparison+json
again="and run install.sh again."

fail() {
    echo "install.sh: $*" >&2
    exit 1
}

usage() {
    cat <<'EOF'
usage: ./install.sh            installs Ledgrove for you, or updates it
       ./install.sh --remove   removes it and keeps your settings
EOF
}

# All folders belong to the user who runs this script.
[ -n "${HOME:-}" ] || fail "HOME is not set. Set it to your home folder $again"
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd -P)
case "${XDG_DATA_HOME:-}" in
/*) data=$XDG_DATA_HOME ;;
*) data=$HOME/.local/share ;;
esac
bin=$HOME/.local/bin
program=$data/ledgrove
# The installed files, one per line: checksum and length of the shipped file, and its name.
list=$program/.installed

# Files that a user may change: install.sh replaces or removes them only while they are unchanged.
may_be_own() {
    case $1 in
    share/*) return 1 ;;
    *.ini | *.bmp | *.png | samples/*) return 0 ;;
    *) return 1 ;;
    esac
}

sum_of() {
    cksum <"$1" | tr '\t' ' '
}

# Checksum and length of a file as it was shipped; nothing for a file that install.sh did not install.
sum_as_it_came() {
    [ -f "$list" ] || return 0
    while read -r sum length name; do
        if [ "$name" = "$1" ]; then
            echo "$sum $length"
        fi
    done <"$list"
}

# A link that the Debian package's launcher made is not the user's own.
is_packages() {
    case $(readlink -- "$program/$1" || true) in
    */share/ledgrove/"$1") return 0 ;;
    *) return 1 ;;
    esac
}

is_own() {
    may_be_own "$1" && [ -e "$program/$1" ] && ! is_packages "$1" &&
        [ "$(sum_of "$program/$1")" != "$(sum_as_it_came "$1")" ]
}

has() {
    command -v "$1" >/dev/null 2>&1
}

make_folder() {
    mkdir -p -- "$1" || fail "The folder \"$1\" cannot be made. Get permission to write there $again"
}

# Renames a finished copy into place: a running program keeps its open file, and an interrupted copy leaves the old file.
copy() {
    make_folder "$(dirname -- "$2")"
    if ! cp -- "$1" "$2.new" || ! chmod u+w -- "$2.new" || ! mv -f -- "$2.new" "$2"; then
        rm -f -- "$2.new"
        fail "\"$2\" cannot be written. Free some space there, or get permission to write, $again"
    fi
}

check_links() {
    for name in ledgrove ledgrove-cli; do
        link=$bin/$name
        if [ -e "$link" ] || [ -L "$link" ]; then
            [ "$(readlink -- "$link" || true)" = "$program/$name" ] ||
                fail "\"$link\" is not a link to this Ledgrove. Move it away $again"
        fi
    done
}

check_source() {
    [ -f "$here/share/files" ] || fail "\"$here/share/files\" is missing. Unpack Ledgrove again $again"
    while read -r name; do
        [ -f "$here/$name" ] || fail "\"$here/$name\" is missing. Unpack Ledgrove again $again"
    done <"$here/share/files"
}

# Copies one file and prints its entry for the list; warns when it keeps a file that the user changed.
install_file() {
    came=$(sum_as_it_came "$1")
    if [ "$1" = Ledgrove.ini ]; then
        # After an interrupted save the settings are in the temporary file: a fresh copy would hide them.
        if [ ! -e "$program/$1" ] && [ ! -e "$program/Pennaro2.INI" ]; then
            copy "$here/$1" "$program/$1"
        fi
        return
    fi
    if is_own "$1" && ! cmp -s -- "$here/$1" "$program/$1"; then
        echo "Your own \"$1\" is kept." >&2
        [ -z "$came" ] || echo "$came $1"
        return
    fi
    copy "$here/$1" "$program/$1"
    echo "$(sum_of "$program/$1") $1"
}

remove_file() {
    is_own "$1" || rm -f -- "$program/$1"
}

# Removes files that the installed version has and this one lacks.
remove_dropped() {
    [ -f "$list" ] || return 0
    while read -r sum length name; do
        grep -qxF -- "$name" "$here/share/files" || remove_file "$name"
    done <"$list"
}

copy_program() {
    make_folder "$program"
    : >"$list.new" || fail "\"$program\" cannot be written to. Get permission to write there $again"
    while read -r name; do
        install_file "$name" >>"$list.new"
    done <"$here/share/files"
    remove_dropped
    mv -f -- "$list.new" "$list"
}

# A path in the form of the entry's Exec line: in quotes, then with every backslash doubled.
exec_path() {
    printf '%s\n' "$1" | sed -e 's/[\\"`$]/\\&/g' -e 's/\\/\\\\/g' -e 's/%/%%/g' -e 's/.*/"&"/'
}

# The Exec line's command. GLib looks for its first word before it reads "%%" as "%" and drops an entry without a program, so a
# shell starts a path with "%".
exec_command() {
    case $1 in
    *%*) printf '%s ' 'sh -c "exec \\"\\$0\\" \\"\\$@\\""' ;;
    esac
    exec_path "$1"
}

write_entry() {
    entry=$data/applications/$id.desktop
    make_folder "$data/applications"
    while IFS= read -r line; do
        case $line in
        Exec=*) printf 'Exec=%s %%f\n' "$(exec_command "$program/ledgrove")" ;;
        *) printf '%s\n' "$line" ;;
        esac
    done <"$program/share/applications/$id.desktop" >"$entry.new" ||
        fail "\"$entry\" cannot be written. Free some space there $again"
    mv -f -- "$entry.new" "$entry"
}

# Where the desktop, "man" and the shells look for a shipped file; nothing for a file that only the program reads.
place_of() {
    case $1 in
    share/icons/* | share/man/* | share/bash-completion/* | share/zsh/* | share/fish/*) echo "$data/${1#share/}" ;;
    esac
}

copy_places() {
    while read -r name; do
        place=$(place_of "$name")
        [ -z "$place" ] || copy "$program/$name" "$place"
    done <"$program/share/files"
}

remove_places() {
    [ -f "$program/share/files" ] || return 0
    while read -r name; do
        place=$(place_of "$name")
        [ -z "$place" ] || rm -f -- "$place"
    done <"$program/share/files"
    rmdir -- "$data/man/man1" "$data/man" "$data/bash-completion/completions" "$data/bash-completion" \
        "$data/zsh/site-functions" "$data/zsh" "$data/fish/vendor_completions.d" "$data/fish" 2>/dev/null || true
}

make_links() {
    make_folder "$bin"
    for name in ledgrove ledgrove-cli; do
        [ -L "$bin/$name" ] || ln -s -- "$program/$name" "$bin/$name" ||
            fail "\"$bin/$name\" cannot be made. Get permission to write there $again"
    done
}

# Writes the desktop's list of programs by file type without the tool for it: keeps the other programs' lines.
write_programs_by_type() {
    cache=$data/applications/mimeinfo.cache
    line="application/$type=$id.desktop;"
    [ -f "$data/applications/$id.desktop" ] || [ -f "$cache" ] || return 0
    {
        echo "[MIME Cache]"
        [ ! -f "$cache" ] || grep -vxF -e "[MIME Cache]" -e "$line" -- "$cache" || true
        [ ! -f "$data/applications/$id.desktop" ] || echo "$line"
    } >"$cache.new" || fail "\"$cache\" cannot be written. Free some space there $again"
    mv -f -- "$cache.new" "$cache"
}

# The desktop's lists of file types, of programs by file type, and of icons.
refresh_desktop() {
    if [ -d "$data/mime/packages" ] && has update-mime-database; then
        update-mime-database "$data/mime" >/dev/null 2>&1 || true
    fi
    if [ -d "$data/applications" ]; then
        { has update-desktop-database && update-desktop-database -q "$data/applications" >/dev/null 2>&1; } ||
            write_programs_by_type
    fi
    if [ -f "$data/icons/hicolor/icon-theme.cache" ] && has gtk-update-icon-cache; then
        gtk-update-icon-cache -q -f -t "$data/icons/hicolor" >/dev/null 2>&1 || true
    fi
}

version() {
    sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$program/share/metainfo/$id.metainfo.xml"
}

install_all() {
    check_links
    check_source
    if [ "$here" != "$(CDPATH='' cd -- "$program" 2>/dev/null && pwd -P)" ]; then
        copy_program
    fi
    write_entry
    copy_places
    copy "$program/share/mime/packages/$id.xml" "$data/mime/packages/$id.xml"
    make_links
    refresh_desktop
    echo "Ledgrove $(version) is installed in \"$program\"."
    echo "Start it from the desktop's menu, or as \"$bin/ledgrove\"."
    case ":${PATH:-}:" in
    *":$bin:"*)
        echo "In a terminal, \"man ledgrove-cli\" describes the commands, and Tab completes them in bash and fish."
        ;;
    *)
        echo "The folder \"$bin\" is not on your PATH. To type \"ledgrove-cli\" alone, add this line to \"$HOME/.profile\" and log" \
            "in again: PATH=\"$bin:\$PATH\""
        ;;
    esac
    echo "For zsh, add this line before compinit in \"$HOME/.zshrc\": fpath=(\"$data/zsh/site-functions\" \$fpath)"
    has update-mime-database ||
        echo "A double click does not open comparisons yet: the tool update-mime-database is missing. Install the Debian" \
            "package shared-mime-info $again" >&2
    if ldd "$program/ledgrove" "$program/modules/"*.so "$program/ledgrove-cli" 2>/dev/null |
        grep -q 'not found'; then
        echo "It cannot start yet: libraries are missing. \"$program/README.md\" names the packages to install." >&2
    fi
}

remove_desktop() {
    for name in ledgrove ledgrove-cli; do
        if [ "$(readlink -- "$bin/$name" || true)" = "$program/$name" ]; then
            rm -f -- "$bin/$name"
        fi
    done
    rm -f -- "$data/applications/$id.desktop" "$data/mime/packages/$id.xml"
    remove_places
    refresh_desktop
    remove_empty_lists
}

# Removes the desktop's caches that have become empty.
remove_empty_lists() {
    rm -f -- "$data/mime/application/$type.xml"
    rmdir -- "$data/mime/application" "$data/mime/packages" 2>/dev/null || true
    if [ -d "$data/mime" ] && [ ! -d "$data/mime/packages" ]; then
        (cd -- "$data/mime" && rm -f aliases generic-icons globs globs2 icons magic mime.cache subclasses treemagic \
            types version XMLnamespaces)
    fi
    if [ "$(ls -A -- "$data/applications" 2>/dev/null)" = mimeinfo.cache ]; then
        rm -f -- "$data/applications/mimeinfo.cache"
    fi
    for folder in "$data/icons/hicolor/"*/; do
        rmdir -- "$folder/apps" "$folder" 2>/dev/null || true
    done
    rmdir -- "$data/icons/hicolor" "$data/icons" "$data/mime" "$data/applications" 2>/dev/null || true
}

# Removes folders that have become empty, the innermost first.
remove_folders() {
    find "$program" -depth -type d -exec rmdir -- {} + 2>/dev/null || true
}

remove_all() {
    remove_desktop
    if [ ! -f "$list" ]; then
        echo "Ledgrove is not installed in \"$program\"."
        return
    fi
    while read -r sum length name; do
        remove_file "$name"
    done <"$list"
    rm -f -- "$list" "$list.new"
    remove_folders
    echo "Ledgrove is removed."
    if [ -d "$program" ]; then
        echo "Your settings, and files that are your own, are still in \"$program\":"
        (cd -- "$program" && find . ! -type d ! -lname '*/share/ledgrove/*') | sed 's|^\./|    |' | sort
    fi
}

case "${1:-}" in
"") install_all ;;
--remove) remove_all ;;
--help | -h) usage ;;
*)
    usage >&2
    exit 2
    ;;
esac
