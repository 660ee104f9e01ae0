#!/usr/bin/env bash
# Installs what is missing, builds the program with its manuals, and packs the portable archive.
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

install_packages
build release
rm -f build/release/ZN64_Clockwright-*.tar.*
say "Packing the archive"
archive=$(packaging/pack.sh build/release "$PWD/build/release") || die "the archive could not be packed"
say "The archive is $archive, $(stat -c %s "$archive") bytes"
