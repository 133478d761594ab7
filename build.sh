#!/usr/bin/env bash
# Installs what is missing, builds, and then starts Brivane, runs its tests or packs it.
#   ./build.sh run            build and start the program
#   ./build.sh test           build and run the whole test suite
#   ./build.sh test sanitize  the same with AddressSanitizer and UndefinedBehaviorSanitizer
#   ./build.sh package        build and make the Debian package build/brivane_<version>_<arch>.deb
set -euo pipefail
cd "$(dirname "$0")"

action=${1:-run}
variant=${2:-}

packages=(
    cmake ninja-build g++ pkg-config clang clang-format
    qtbase5-dev libqt5svg5-dev libqt5svg5 qtscript5-dev libqt5opengl5-dev qttools5-dev qttools5-dev-tools
    libbox2d-dev libpolyclipping-dev libcgal-dev libgmp-dev libmpfr-dev libquazip5-dev libqwt-qt5-dev
    libbenchmark-dev xvfb xauth libgl1-mesa-dri
    # The scene repository server, the keyring for its password, and a browser to check its pages.
    libcpp-httplib-dev libqt5sql5-sqlite qtkeychain-qt5-dev chromium
    # Glyphs for every language the program speaks: Latin, Greek and Cyrillic, Japanese, Chinese.
    fonts-dejavu-core fonts-ipafont-gothic fonts-wqy-zenhei
    # Renders exported PDF pictures in the tests.
    poppler-utils
    # The Debian package, and the checks of the installation's desktop entry, AppStream data,
    # MIME type and icons.
    dpkg-dev file desktop-file-utils appstream shared-mime-info
)

install_missing() {
    local missing=()
    for package in "${packages[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" \
            || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing: ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

install_missing

build_dir=build
options=()
if [ "$variant" = sanitize ]; then
    build_dir=build-sanitize
    options+=(-DBRIVANE_SANITIZE=ON -DBRIVANE_BUILD_BENCHMARKS=OFF)
fi
cmake -S . -B "$build_dir" -G Ninja "${options[@]}"
cmake --build "$build_dir"

case "$action" in
    run) exec "$build_dir/bin/Brivane" ;;
    test) cd "$build_dir" && exec ctest --output-on-failure ;;
    # An older version's package would lie beside the new one.
    package) rm -f "$build_dir"/brivane_*.deb && exec cmake --build "$build_dir" --target package ;;
    *) echo "usage: $0 run|test|package [sanitize]" >&2; exit 2 ;;
esac
