#!/usr/bin/env bash
# Installs what is missing, builds the program with its manuals, and packs the portable archive.
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

install_packages
build release
rm -f build/release/ZN64_Clockwright-*.tar.gz
say "Packing the archive"
cpack --config build/release/CPackConfig.cmake || die "the archive could not be packed"
say "The archive is $(echo "$PWD"/build/release/ZN64_Clockwright-*.tar.gz)"
