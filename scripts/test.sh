#!/usr/bin/env bash
# test.sh [preset]: installs what is missing, builds the preset (release, debug or asan) and runs all tests.
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

preset=${1:-release}
install_packages
build "$preset"
say "Running the tests of the preset $preset"
# File names with Chinese letters need a UTF-8 locale, which a bare system does not set.
LC_ALL=C.UTF-8 ctest --preset "$preset" --no-tests=error || die "tests of the preset $preset failed"
