#!/usr/bin/env bash
# pack.sh BUILD FOLDER: packs what the install rules of the build name into FOLDER, and prints the archive's path. Every
# build of a commit gives the same bytes: nothing in the archive tells when, where or by whom it was packed.
set -euo pipefail
umask 022

source=$(dirname "$0")/..
build=$1
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
# The name of the archive and of its one top folder.
name=ZN64_Clockwright-$version-linux-$(uname -m)
archive=$2/$name.tar.xz

# Where there is no repository, the change log is the youngest that a release touches.
time=${SOURCE_DATE_EPOCH:-$(git -C "$source" log -1 --format=%ct 2>/dev/null || stat -c %Y "$source/CHANGELOG.md")}
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
cmake --install "$build" --prefix "$stage/$name" --strip >/dev/null
tar -C "$stage" --format=ustar --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$time" -cf - "$name" |
    xz -9e --threads=1 >"$archive"
printf '%s\n' "$archive"
