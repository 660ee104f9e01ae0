# shellcheck shell=bash
# Common to the scripts: messages, the Debian packages and the build. Source it; it moves to the top folder.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Arial is drawn with the Liberation fonts, the desktop's own texts with DejaVu, Chinese with Micro Hei. Xvfb stands in
# for a display, and openbox for the window manager on it. The archive's test reads its entries as desktops do;
# weasyprint makes the manuals, and poppler's tools check them.
PACKAGES=(
    cmake ninja-build ccache g++ clang-format
    qtbase5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools libqscintilla2-qt5-dev qttranslations5-l10n
    fonts-liberation fonts-dejavu-core fonts-wqy-microhei
    xvfb xauth x11-utils openbox openssl
    desktop-file-utils appstream libglib2.0-bin xz-utils
    weasyprint python3-markdown python3-jinja2 poppler-utils
)

say() { printf '== %s\n' "$*"; }

die() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

is_installed() {
    dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# Runs apt-get as root, asking nothing.
apt_get() {
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "installing packages needs root, and there is no sudo: run as root"
        as_root=(sudo)
    fi
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq "$@"
}

install_packages() {
    command -v dpkg-query >/dev/null || die "this is no Debian: install by hand what scripts/lib.sh lists"
    local package missing=()
    for package in "${PACKAGES[@]}"; do
        is_installed "$package" || missing+=("$package")
    done
    if [ ${#missing[@]} -eq 0 ]; then
        say "All Debian packages are there"
        return
    fi
    say "Installing: ${missing[*]}"
    apt_get update || say "The package lists could not be refreshed: trying with the old ones"
    apt_get install -y --no-install-recommends "${missing[@]}" ||
        die "these Debian packages could not be had: ${missing[*]}"
}

# build PRESET [TARGET...]: configures and builds build/PRESET, and targets beyond the default ones. JOBS bounds the
# compilers at work.
build() {
    say "Configuring and building the preset $1 in build/$1"
    cmake --preset "$1" >/dev/null || die "cmake could not configure the preset $1"
    cmake --build --preset "$1" --target all "${@:2}" -- -j "${JOBS:-$(nproc)}" || die "the preset $1 does not build"
}

# run_tour PRESET: drives the real windows through a whole design, on a virtual display.
run_tour() {
    local folder="build/$1/tour"
    rm -rf "$folder"
    say "Running the tour on a virtual display"
    scripts/tour.sh "$1" || die "the tour failed"
    say "The tour left its pictures and files in $PWD/$folder"
}
