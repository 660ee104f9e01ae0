#!/usr/bin/env bash
# Installs what is missing, builds the program with its manuals, tests both, and packs the portable archive.
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

install_packages
build release manual
say "Running the tests of the manuals and of the archive"
LC_ALL=C.UTF-8 ctest --preset release -C Archive -L archive --no-tests=error ||
    die "tests of the manuals or of the archive failed"
rm -f build/release/ZN64_Clockwright-*.tar.*
say "Packing the archive"
archive=$(packaging/pack.sh build/release "$PWD/build/release") || die "the archive could not be packed"
say "The archive is $archive, $(stat -c %s "$archive") bytes"
