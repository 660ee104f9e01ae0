#!/usr/bin/env bash
# tst_archive.sh BUILD DRIVER CHANGELOG PACKAGING: packs the archive of a build and tries it as the ordinary user who got it.
set -euo pipefail
export LC_ALL=C.UTF-8

fail() { printf 'FAIL: %s\n' "$*" >&2; exit 1; }
# same WHAT EXPECTED ACTUAL
same() { [ "$2" = "$3" ] || fail "$1"$'\n'"$(diff <(echo "$2") <(echo "$3"))"; }

tmp=$(mktemp -d)
trap 'chmod -R u+w "$tmp"; rm -rf "$tmp"' EXIT
# What a shell, a desktop entry or a link might stumble over.
home="$tmp/a \"home\" of \$USER, \\ 家"
mkdir "$home"
cp "$2" "$tmp/driver.so"
chmod 755 "$tmp"
chmod 700 "$home"
ordinary=()
if [ "$(id -u)" -eq 0 ]; then
    chown nobody:nogroup "$home"
    ordinary=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
fi
as_user() {
    "${ordinary[@]}" env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 HOME="$home" XDG_RUNTIME_DIR="$home" \
        QT_QPA_PLATFORM=offscreen "$@"
}

# Packed by two people: nothing of either is in it, and it is small.
pack() { (umask "$1" && mkdir "$tmp/$1" && "$5/pack.sh" "$2" "$tmp/$1"); }
archive=$(pack 022 "$@")
cmp "$archive" "$(pack 077 "$@")"
same "owners" "0/0" "$(tar --numeric-owner -tvf "$archive" | awk '{print $2}' | sort -u)"
[ "$(stat -c %s "$archive")" -lt 6000000 ] || fail "the archive has $(stat -c %s "$archive") bytes"
name=$(basename "$archive" .tar.xz)
id=org.clockwright.ZN64Clockwright
version=$(sed -n '/^## [0-9]/{s/^## \([0-9.]*\).*/\1/p;q}' "$3")
same "name" "ZN64_Clockwright-$version-linux-$(uname -m)" "$name"

as_user tar -C "$home" -xf "$archive"
top=$home/$name
icons=$(for size in 16 22 24 32 48 64 96 128 256 512; do
    echo "share/icons/hicolor/${size}x$size/apps/$id.png"
done)
examples=$(cd "$4" && printf '%s\n' examples/*.ZNCK)
same "what is in it" "$(sort <<END
Documents/UM_ZN64_Clockwright.pdf
Documents/UM_ZN64_Clockwright_EN.pdf
LICENSE
README
bin/zn64-clockwright
install-desktop.sh
$examples
share/applications/$id.desktop
share/icons/hicolor/scalable/apps/$id.svg
share/metainfo/$id.metainfo.xml
$icons
END
)" "$(cd "$top" && find . ! -type d -printf '%P\n' | sort)"
same "symbols of the program" "" "$(nm "$top/bin/zn64-clockwright" 2>/dev/null)"
for manual in "$top"/Documents/*; do
    same "start of $manual" "%PDF" "$(head -c 4 "$manual")"
done
as_user desktop-file-validate "$top/share/applications/$id.desktop"
as_user appstreamcli validate --no-net "$top/share/metainfo/$id.metainfo.xml" >&2
same "newest release" "$version" \
    "$(sed -n '/<release version/{s/.*version="\([^"]*\)".*/\1/p;q}' "$top/share/metainfo/$id.metainfo.xml")"

# Hardened: position-independent, read-only once it is linked, no executable stack, a guarded stack. The guard of the C
# library shows in the commands alone: the program calls none of the functions that it replaces.
elf=$(readelf -hldW --dyn-syms "$top/bin/zn64-clockwright")
for mark in 'DYN (Pos' GNU_RELRO 'FLAGS).*BIND_NOW' 'GNU_STACK .* RW ' __stack_chk_fail; do
    grep -q -- "$mark" <<<"$elf" || fail "the program is not hardened: no $mark"
done
same "compiled unguarded" "" \
    "$(sed -n 's/^ *"command": //p' "$1/compile_commands.json" | grep -F zn64_shell.dir | grep -v 'D_FORTIFY_SOURCE=2')"
! grep -qF -- "$(realpath "$1/../..")" "$top/bin/zn64-clockwright" || fail "the program holds the path of its build"

# Every library that the program asks for itself is in a package that the README names, or on any Debian.
objdump -p "$top/bin/zn64-clockwright" | awk '/NEEDED/ {print $2}' | grep -v '^lib\(c\|m\|gcc_s\|stdc++\)\.so' |
    while read -r library; do
        package=$(dpkg-query -S "*/$library" | cut -d: -f1)
        grep -qwF -- "$package" "$top/README" || fail "the README does not name $package, for $library"
    done

# drive EXPECTED COMMAND...: starts the program by the command and compares what it showed.
drive() {
    same "shown by ${*:2}" "window Velmora Clockwright V$version, entry $id
manual $top/Documents/UM_ZN64_Clockwright_EN.pdf
$1" "$(as_user LD_PRELOAD="$tmp/driver.so" "${@:2}")"
}
as_user ln -s "$top/bin/zn64-clockwright" "$home/a link"
as_user ln -s "$top/install-desktop.sh" "$home/to the menu"
drive "preview shown" "$home/a link"

# The examples are as the program writes them, one for each family.
as_user mkdir "$home/saved"
same "shown of the examples" "$(sed 's,.*/\(.*\)\.ZNCK,Clock Configuration---\1\, preview shown,' <<<"$examples")" \
    "$(as_user LD_PRELOAD="$tmp/driver.so" SAVE_EXAMPLES_TO="$home/saved" "$top/bin/zn64-clockwright")"
diff -r "$top/examples" "$home/saved"

as_user rm -r "$top/bin/Code_Sample"
chmod -R a-w "$top"
data=$home/data
as_user mkdir -p "$data/applications"
as_user touch "$data/applications/other.desktop"
as_user XDG_DATA_HOME="$data" "$home/to the menu" >&2
as_user desktop-file-validate "$data/applications/$id.desktop"
same "icons of the entry" "$(cd "$top/share" && find icons -type f | sort)" "$(cd "$data" && find icons -type f | sort)"
drive 'preview not shown
box critical | Error | Creating "inc" folder error! | Ok' gio launch "$data/applications/$id.desktop"
as_user XDG_DATA_HOME="$data" "$home/to the menu" --remove >&2
same "left behind" "applications/other.desktop" "$(cd "$data" && find . -mindepth 1 ! -name applications -printf '%P\n')"
