# What the scripts of this folder share: names, folders and how a library is built once.
# shellcheck shell=bash disable=SC2034
set -euo pipefail
# A bare machine has no locale of UTF-8: Wine then makes no files with umlauts in their names, and the
# maker of the installer breaks down over them.
export LC_ALL=C.UTF-8

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
project=$(cd "$here/../.." && pwd)
host=x86_64-w64-mingw32
# icupkg lies where not everybody looks.
PATH=$PATH:/usr/sbin
jobs=${JOBS:-$(nproc)}

# use_folder FOLDER: where sources, libraries and builds are kept.
use_folder() {
    mkdir -p "$1"
    work=$(cd "$1" && pwd)
    prefix=$work/prefix
    export ZEUGNIS_CROSS_PREFIX=$prefix
}

step() { printf '\n== %s (%s)\n' "$1" "$(date +%T)"; }

# as_root COMMAND...
as_root() { if ((EUID)); then sudo "$@"; else "$@"; fi; }

version() { sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' "$project/CMakeLists.txt"; }

# The day of the last commit, so that the same sources give the same bytes.
use_source_date() {
    [[ -n ${SOURCE_DATE_EPOCH:-} ]] ||
        SOURCE_DATE_EPOCH=$(git -C "$project" log -1 --format=%ct 2>/dev/null || echo 1790000000)
    export SOURCE_DATE_EPOCH
}

# configure NAME SOURCE OPTIONS...: prepares a build for Windows in the work folder.
configure() {
    local name=$1 source=$2
    shift 2
    # No library of this machine may be found.
    PKG_CONFIG_LIBDIR=$prefix/lib/pkgconfig cmake -G Ninja -S "$source" -B "$work/build/$name" \
        -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DCMAKE_INSTALL_PREFIX="$prefix" \
        -DCMAKE_BUILD_TYPE=Release "$@" >"$work/build/$name.log"
}

# cross NAME SOURCE OPTIONS...: and builds it.
cross() {
    configure "$@"
    cmake --build "$work/build/$1" -j "$jobs"
}
