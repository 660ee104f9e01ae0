#!/usr/bin/env bash
# Puts ZN64 Clockwright, where it lies now, into the menu of the desktop of this user; --remove takes it out again.
# Usage: install-desktop.sh [--remove]
set -euo pipefail

id=org.clockwright.ZN64Clockwright
here=$(dirname "$(readlink -f "$0")")
data=${XDG_DATA_HOME:-$HOME/.local/share}
entry=applications/$id.desktop

die() {
    printf 'install-desktop.sh: %s\n' "$*" >&2
    exit 1
}

# in_entry TEXT, as_argument TEXT: the text as a value of a desktop entry, and as one argument of its command.
in_entry() { printf '%s' "$1" | sed 's/\\/\\\\/g'; }
as_argument() { in_entry "\"$(printf '%s' "$1" | sed 's/[\\"`$]/\\&/g')\""; }

# Desktops look at the time of the folder, or at a cache where somebody made one.
refresh() {
    local theme=$data/icons/hicolor
    [ -d "$theme" ] || return 0
    touch "$theme"
    if [ -f "$theme/icon-theme.cache" ] && command -v gtk-update-icon-cache >/dev/null; then
        gtk-update-icon-cache --quiet --force --ignore-theme-index "$theme"
    fi
}

install_entry() {
    local program=$here/bin/zn64-clockwright line file
    [ -x "$program" ] || die "there is no program at $program"
    # A menu takes a % for a letter code, and some look for the program before they take a pair of them for one.
    case $program in *%* | *$'\n'*) die "menus cannot start a program below a folder with % in its name: $here" ;; esac
    mkdir -p "$data/applications"
    while IFS= read -r line; do
        case $line in
        Exec=*) printf 'Exec=%s\n' "$(as_argument "$program")" ;;
        TryExec=*) printf 'TryExec=%s\n' "$(in_entry "$program")" ;;
        *) printf '%s\n' "$line" ;;
        esac
    done <"$here/share/$entry" >"$data/$entry"
    for file in "$here"/share/icons/hicolor/*/apps/*; do
        install -D -m 644 "$file" "$data/${file#"$here/share/"}"
    done
    echo "ZN64 Clockwright is in the menu now. Run this again after moving the folder; --remove takes it out."
}

remove_entry() {
    local file
    for file in "$data/$entry" "$data"/icons/hicolor/*/apps/"$id".*; do
        [ -e "$file" ] || continue
        rm "$file"
        file=${file#"$data/"}
        (cd "$data" && rmdir --parents --ignore-fail-on-non-empty "${file%/*}")
    done
    echo "ZN64 Clockwright is no longer in the menu."
}

case $#,${1:-} in
0,) install_entry ;;
1,--remove) remove_entry ;;
*)
    echo "Usage: install-desktop.sh [--remove]" >&2
    exit 2
    ;;
esac
refresh
