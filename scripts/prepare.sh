# Sourced by ./run and ./test: installs what a build, a run or a test needs, on Debian 12, as root or by sudo.

# prepare_packages PACKAGE...: installs those that are missing; asks the network for nothing when none is.
prepare_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing and there is no sudo to install them: ${missing[*]}" >&2
            return 3
        }
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
            "${missing[@]}" >&2 || {
        echo "The packages could not be installed: ${missing[*]}" >&2
        return 3
    }
}

# unpack_packages FOLDER PACKAGE...: the files of packages that need not be installed, each package in a folder of its
# own; asks the network for nothing when they are there.
unpack_packages() {
    local folder=$1 package
    shift
    for package in "$@"; do
        [ -d "$folder/$package" ] && continue
        rm -rf "$folder/part" && mkdir -p "$folder/part/files" &&
            (cd "$folder/part" && apt-get download -qq "$package" && dpkg-deb -x ./*.deb files) &&
            mv "$folder/part/files" "$folder/$package" && rm -rf "$folder/part" || {
            echo "The package could not be unpacked: $package" >&2
            return 3
        }
    done
}

# unpack_toolkit_headers FOLDER: the window toolkit's headers for every system, which only its source package holds.
toolkit_source=wxwidgets3.2_3.2.2+dfsg.orig.tar.xz
toolkit_sum=SHA256:e825125ac61f68548a3faae0fd5b3fc5377c0538961f02ac7cc2f0eae4e4f3e4
unpack_toolkit_headers() {
    local folder=$1 pool
    [ -d "$folder/include" ] && return 0
    pool=$(apt-get download --print-uris libwxgtk3.2-dev | sed -nE "s|^'([^']*)/[^/']*'.*|\\1|p")
    rm -rf "$folder" && mkdir -p "$folder" &&
        /usr/lib/apt/apt-helper download-file "$pool/$toolkit_source" "$folder/source.tar.xz" "$toolkit_sum" >/dev/null &&
        tar -xf "$folder/source.tar.xz" -C "$folder" --strip-components 1 --wildcards '*/include/wx' &&
        rm "$folder/source.tar.xz" || {
        echo "The toolkit's headers could not be unpacked" >&2
        return 3
    }
}

build_packages=(g++ cmake ninja-build ccache pkg-config libglib2.0-dev libcli11-dev nlohmann-json3-dev libfmt-dev
    libreoffice-calc libreoffice-dev librsvg2-bin optipng libwxgtk3.2-dev libgtk-3-dev
    doctest-dev librapidcheck-dev libbenchmark-dev libpng-dev)  # the last four: configuring looks at tests and bench too
run_packages=(libreoffice-gtk3 libreoffice-base-drivers librsvg2-common xdg-utils poppler-utils fonts-liberation)
test_packages=(git python3 clang-format clang-tidy
    xvfb openbox xdotool hunspell-en-us python3-openpyxl python3-xlrd)
sample_packages=(libreoffice-dev-doc python-odf-doc r-cran-openxlsx r-cran-readxl)  # workbooks that others made
windows_packages=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools wine64 libwine-dev xz-utils)

# Checkouts in other folders share what ccache keeps.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
    # What an earlier state of the project built goes, or it would be tested, too.
    cmake --build "build/$preset" ${1:+--target "$@"} && ninja -C "build/$preset" -t cleandead >/dev/null
}
