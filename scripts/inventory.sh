#!/usr/bin/env bash
# inventory.sh [commit]: shows, line by line, what the work tree changes in what the pages of all series hold, against
# a commit (HEAD without one). Controls, places, limits, start values and orders: for the eyes of a reviewer.
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

commit=${1:-HEAD}
before=build/inventory

# painter FOLDER BUILD: builds the painter of a tree of sources.
painter() {
    cmake -S "$1" -B "$2" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null || die "cmake could not configure $1"
    cmake --build "$2" --target treepainter >/dev/null || die "the painter of $1 does not build"
}

# lists BUILD FOLDER: an inventory of each series into the folder.
lists() {
    local word
    mkdir -p "$2"
    for word in $words; do
        QT_QPA_PLATFORM=offscreen "$1/bin/treepainter" --list "$word" 2>/dev/null >"$2/$word.txt" ||
            say "$word has no inventory in $2"
    done
}

install_packages >/dev/null
git rev-parse --quiet --verify "$commit^{commit}" >/dev/null || die "there is no commit $commit"
words=$(sed -n 's/^ *{ZN64[A-Z0-9]*, *"\([A-Z0-9]*\)".*/\1/p' src/model/seriestraits.cpp)
[ -n "$words" ] || die "no series was found in src/model/seriestraits.cpp"

rm -rf "$before/then" "$before/now"
git worktree remove --force "$before/tree" 2>/dev/null || true
git worktree add --quiet --detach "$before/tree" "$commit"
trap 'git worktree remove --force "$before/tree"' EXIT
painter "$before/tree" "$before/build"
painter . build/release
lists "$before/build" "$before/then"
lists build/release "$before/now"
if diff -U0 -r "$before/then" "$before/now" | grep -v '^@@'; then
    say "These lines differ from $commit"
else
    say "Nothing differs from $commit"
fi
