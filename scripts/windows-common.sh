# shellcheck shell=bash
# What the Windows scripts share: where the cached wxWidgets lies, and how its source is had.

# A step that fails within $(...) ends the script too: nothing half fetched is marked as complete.
shopt -s inherit_errexit

cache=${TARVEX_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/tarvex}

say() { printf '%s\n' "== $*"; }

# The MinGW prefix of an architecture name of ours.
triplet_of() {
    case $1 in
        x64) echo x86_64-w64-mingw32 ;;
        x86) echo i686-w64-mingw32 ;;
        *) echo "unknown architecture $1" >&2; return 1 ;;
    esac
}

# What of wxWidgets the program links: pictures as PNG, with the sources that wxWidgets brings, and nothing to read
# or show what the program has not.
wx_options=(
    --disable-shared --enable-unicode --disable-debug_flag --disable-precomp-headers
    --with-libpng=builtin --with-zlib=builtin
    --without-expat --without-libjpeg --without-libtiff --without-regex --without-nanosvg
    --disable-mediactrl --disable-webview --disable-stc --disable-xrc --disable-aui --disable-propgrid --disable-ribbon
    --disable-richtext --disable-html --disable-sockets --disable-fs_archive --disable-fs_inet --disable-fs_zip
    --disable-zipstream --disable-tarstream --disable-protocol --disable-url --disable-printarch --disable-mdi
    --disable-help --disable-debugreport --disable-svg --disable-joystick --disable-sound --disable-tests
    CFLAGS=-Os "CXXFLAGS=-Os -std=gnu++17"
)

wx_prefix() { echo "$cache/wx-$1"; }

# One line for each way to build it. A build that ended well holds the line of its way; any other is none.
wx_stamp() { printf '%s\n' "${wx_options[@]}" | sha256sum | cut -d ' ' -f 1; }
wx_is_built() { [ "$(cat "$(wx_prefix "$1")/complete" 2>/dev/null)" = "$(wx_stamp)" ]; }

# The source packages of which the tree is made: wxWidgets, and what its package leaves out of src.
wx_packages=(wxwidgets3.2 zlib libpng1.6)

# Unpacks the archive of a source package that lies in a folder.
unpack_source() {
    local folder=$1 package=$2 into=$3 archive
    archive=$(find "$folder" -maxdepth 1 -name "${package}_*.orig.tar.*" ! -name '*.asc' | head -n 1)
    [ -n "$archive" ] || { echo "the source package $package held no archive" >&2; return 1; }
    mkdir -p "$into" && tar -xf "$archive" -C "$into" --strip-components=1
}

# Fetches the source packages into the cache and prints the folder of the tree. The package list comes from a list
# of the script's own, made of the machine's own sources with source packages switched on; what the machine is set up
# to use stays as it is.
wx_source() {
    local found
    found=$(find "$cache" -maxdepth 1 -type d -name 'wxWidgets-*' 2>/dev/null | head -n 1)
    if [ -n "$found" ] && [ "$(cat "$found/complete" 2>/dev/null)" = "${wx_packages[*]}" ]; then
        echo "$found"
        return
    fi

    local work=$cache/source
    rm -rf "$work" && mkdir -p "$work/lists/partial" "$work/parts"
    sed -n 's/^deb /deb-src /p' /etc/apt/sources.list 2>/dev/null > "$work/parts/own.list" || true
    local file
    for file in /etc/apt/sources.list.d/*.list; do
        [ -f "$file" ] && grep -q debian "$file" && sed -n 's/^deb /deb-src /p' "$file" > "$work/parts/$(basename "$file")"
    done
    for file in /etc/apt/sources.list.d/*.sources; do
        [ -f "$file" ] && grep -q debian-archive "$file" &&
            sed 's/^Types:.*/Types: deb-src/' "$file" > "$work/parts/$(basename "$file")"
    done
    local apt=(-o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$work/parts"
               -o "Dir::State::Lists=$work/lists" -o APT::Sandbox::User=root)
    say "fetching the source packages ${wx_packages[*]}" >&2
    apt-get "${apt[@]}" -qq update >&2
    (cd "$work" && apt-get "${apt[@]}" -qq --download-only --tar-only source "${wx_packages[@]}" >&2)
    local tree=$work/tree version
    unpack_source "$work" wxwidgets3.2 "$tree"
    unpack_source "$work" zlib "$tree/src/zlib"
    unpack_source "$work" libpng1.6 "$tree/src/png"
    cp "$tree/src/png/scripts/pnglibconf.h.prebuilt" "$tree/src/png/pnglibconf.h"
    version=$(basename "$work"/wxwidgets3.2_*.orig.tar.* | sed 's/wxwidgets3.2_\([0-9.]*[0-9]\).*/\1/')
    rm -rf "$cache"/wxWidgets-* && mv "$tree" "$cache/wxWidgets-$version"
    echo "${wx_packages[*]}" > "$cache/wxWidgets-$version/complete" && rm -rf "$work"
    echo "$cache/wxWidgets-$version"
}

# Builds wxWidgets static for one architecture, once for each set of options.
build_wx() {
    local arch=$1 triplet prefix source
    triplet=$(triplet_of "$arch")
    prefix=$(wx_prefix "$arch")
    if wx_is_built "$arch"; then say "wxWidgets for $arch is in the cache"; return; fi
    source=$(wx_source)
    say "building wxWidgets for $arch (once; about a quarter of an hour on two cores)"
    local build=$cache/build-$arch
    rm -rf "$build" "$prefix" && mkdir -p "$build"
    (
        cd "$build"
        "$source/configure" --quiet --host="$triplet" --build=x86_64-linux-gnu --prefix="$prefix" \
            "${wx_options[@]}" CC="$triplet-gcc-posix" CXX="$triplet-g++-posix" \
            > "$cache/configure-$arch.log" 2>&1 ||
            { tail -n 20 "$cache/configure-$arch.log" >&2; exit 1; }
        local total done_count
        total=$(make -n 2>/dev/null | grep -c -- ' -c ' || true)
        make -j"$(nproc)" > "$cache/make-$arch.log" 2>&1 &
        local maker=$!
        trap 'kill "$maker" 2>/dev/null || true' EXIT
        while kill -0 "$maker" 2>/dev/null; do
            sleep 20
            done_count=$(find . -name '*.o' | wc -l)
            printf '   %s of about %s files compiled\n' "$done_count" "$total"
        done
        wait "$maker" || { tail -n 30 "$cache/make-$arch.log" >&2; exit 1; }
        make install > "$cache/install-$arch.log" 2>&1
    )
    wx_stamp > "$prefix/complete"
    rm -rf "$build"
}
