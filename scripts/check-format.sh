#!/usr/bin/env bash
# Fails, naming the places, when a tracked C++ file is not formatted as .clang-format says.
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

install_packages
say "Checking the format of the C++ files"
mapfile -t files < <(git ls-files -- {src,tools,tests,bench}/'*.'{h,cpp})
[ ${#files[@]} -gt 0 ] || die "git lists no C++ file here"
clang-format --dry-run -Werror "${files[@]}" || die "format with: clang-format -i <file>"
