#!/usr/bin/env bash
# Installs a build into a temporary prefix and checks it as the desktop and the program see it:
# the launcher in bin/, what lies beside the executable, the desktop entry, icons, MIME type and
# AppStream data (valid and naming each other), and the installed program starting.
#   check-install.sh BUILD_DIR SOURCE_DIR STAGED_EXECUTABLE VERSION
set -uo pipefail
build=$1 source=$2 staged=$3 version=$4

for tool in desktop-file-validate appstreamcli update-mime-database file readelf; do
    command -v "$tool" > /dev/null || { echo "FAIL: no $tool (./build.sh installs it)"; exit 1; }
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" > "$work/log" || { cat "$work/log"; exit 1; }

passed=0 failed=0
# Runs one check, a command and its arguments, and names it with its output when it fails.
check() {
    local what=$1
    shift
    if "$@" > "$work/log" 2>&1; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAIL: $what"
        cat "$work/log"
    fi
}
# The one file a glob names, or nothing when it names none or several.
only() { [ $# -eq 1 ] && [ -e "$1" ] && echo "$1"; }
equal() { [ "$1" = "$2" ] || { echo "'$1' is not '$2'"; false; }; }
# Each grep after a pipe reads to the end, as the writer would fail on a closed pipe.
png_of_size() { file "$1" | grep "PNG image data, $2 x $2,"; }
resolves_beside() { ldd "$1" | grep "libBrivaneCore.so => $2/libBrivaneCore.so"; }
resolves_all() { ! ldd "$1" | grep 'not found'; }
no_build_rpath() { ! readelf -d "$1" | grep -E 'R(UN)?PATH' | grep -F "$build"; }
same_listing() { diff <(cd "$1" && find . | sort) <(cd "$2" && find . | sort); }
relative_link() { [ -L "$1" ] && [[ $(readlink "$1") != /* ]]; }

# The launcher: a relative link, so the tree can be moved or packed, to the executable.
launcher=$prefix/bin/brivane
check "bin/brivane is a relative link" relative_link "$launcher"
executable=$(readlink -f "$launcher")
app=$(dirname "$executable")
check "bin/brivane leads to the executable" test -x "$executable"
check "bin/brivane leads to the executable" \
    equal "$(basename "$executable")" "$(basename "$staged")"
check "the program's folder is in the prefix" test "${app#"$prefix"/}" != "$app"

# Beside the executable: the core library it finds there, the marker, data, doc and lib.
check "the core library is found beside the executable" resolves_beside "$executable" "$app"
for binary in "$executable" "$app"/*.so $(find "$app/lib" -name '*.so'); do
    check "${binary#"$app"/} finds its libraries" resolves_all "$binary"
    check "${binary#"$app"/} has no path into the build" no_build_rpath "$binary"
done
check "the marker is one line" equal "$(wc -l < "$app/installed")" 1
check "data is that of the sources" diff -r "$source/data" "$app/data"
check "doc is that of the sources" diff -r "$source/doc" "$app/doc"
check "lib holds the staged extensions" same_listing "$(dirname "$staged")/lib" "$app/lib"
check "the repository server is not installed" \
    test -z "$(find "$prefix" -name 'brivane-repository*')"

# The desktop entry, and the program, icons and file type it names.
share=$prefix/share
desktop=$(only "$share"/applications/*.desktop)
check "one desktop entry" test -n "$desktop"
check "the desktop entry is valid" desktop-file-validate "$desktop"
command=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$desktop")
check "the desktop entry starts bin/$command" test "$prefix/bin/$command" -ef "$executable"
icon=$(sed -n 's/^Icon=//p' "$desktop")
mimeType=$(sed -n 's/^MimeType=\([^;]*\);$/\1/p' "$desktop")
check "the desktop entry opens one file type" test -n "$mimeType"
mimeIcon=${mimeType//\//-}
for size in 16 22 24 32 48 64 128 256; do
    icons=$share/icons/hicolor/${size}x$size
    check "the $size pixel icon" png_of_size "$icons/apps/$icon.png" $size
    check "the $size pixel file icon" png_of_size "$icons/mimetypes/$mimeIcon.png" $size
done
check "the scalable icon" test -s "$share/icons/hicolor/scalable/apps/$icon.svg"
check "the scalable file icon" test -s "$share/icons/hicolor/scalable/mimetypes/$mimeIcon.svg"

# The MIME type as the desktop's database reads it: scenes are zip archives named as the
# example scenes are.
check "the MIME database takes the file type" update-mime-database "$share/mime"
check "the file type is defined" test -s "$share/mime/$mimeType.xml"
check "the file type is a kind of zip archive" \
    grep -qx "$mimeType application/zip" "$share/mime/subclasses"
example=$(find "$app/data/saves" -type f | head -n 1)
check "the example scenes are of the file type" \
    grep -q ":$mimeType:\*\.${example##*.}\$" "$share/mime/globs2"

# The AppStream data: valid, for the desktop entry, and of this version.
metainfo=$(only "$share"/metainfo/*.metainfo.xml)
check "one AppStream file" test -n "$metainfo"
check "the AppStream data is valid" appstreamcli validate --no-net "$metainfo"
desktopId=$(basename "$desktop")
check "the AppStream id is the desktop entry's" \
    equal "$(sed -n 's:.*<id>\(.*\)</id>.*:\1:p' "$metainfo")" "${desktopId%.desktop}"
check "the AppStream data launches the desktop entry" \
    equal "$(sed -n 's:.*<launchable type="desktop-id">\(.*\)</launchable>.*:\1:p' "$metainfo")" \
    "$desktopId"
check "the AppStream data provides the command" \
    equal "$(sed -n 's:.*<binary>\(.*\)</binary>.*:\1:p' "$metainfo")" "$command"
check "the newest release is this version" \
    equal "$(grep -m 1 -o '<release version="[^"]*"' "$metainfo" | cut -d'"' -f2)" "$version"

# Started from its link, the installed program names its version and, marked as installed,
# makes its temporary folder in the user's cache and writes nothing beside itself.
find "$app" | sort > "$work/before"
home=$work/home
mkdir -p -m 700 "$home/runtime"
output=$(env QT_QPA_PLATFORM=offscreen HOME="$home" XDG_CONFIG_HOME="$home/config" \
    XDG_DATA_HOME="$home/data" XDG_CACHE_HOME="$home/cache" XDG_RUNTIME_DIR="$home/runtime" \
    "$launcher" --version 2>&1)
check "brivane --version names $version" grep -qF "$version" <<< "$output"
check "the installed program's temporary folder is in the user's cache" \
    test -d "$home/cache/Brivane"
check "the installed program writes nothing beside itself" \
    diff "$work/before" <(find "$app" | sort)

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
