# shellcheck shell=bash disable=SC2034
# Debian packages that the scripts need, and their installation. Sourced, not run.

picture_packages=(librsvg2-bin pngquant)
build_packages=(g++ cmake ninja-build qt6-base-dev libicu-dev libcups2-dev fonts-liberation
    "${picture_packages[@]}")
display_packages=(xvfb openbox imagemagick x11-utils xdotool fonts-dejavu-core)
print_packages=(cups cups-client cups-filters printer-driver-cups-pdf poppler-utils)
test_packages=(libgtest-dev libbenchmark-dev desktop-file-utils appstream libglib2.0-bin
    gtk-update-icon-cache galculator at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi
    weston qt6-wayland "${print_packages[@]}" "${display_packages[@]}")
# The cross compiler, Wine to run what it makes, and what its windows need.
windows_packages=(cmake ninja-build g++-mingw-w64-x86-64-posix googletest wine wine64 fonts-wine
    fonts-liberation locales icoutils python3 zip "${picture_packages[@]}" "${print_packages[@]}"
    "${display_packages[@]}")
check_packages=(clang-format clang-tidy shellcheck pylint)

# Installs those of the named packages that are missing, through sudo where not root.
need() {
    if ! command -v apt-get >/dev/null; then
        echo "There is no apt-get here to install what is missing. Debian's names of what is needed:"
        echo "    $*"
        echo "README.md, \"On another Linux\", has the names of the projects. Trying with what is here."
        return
    fi
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    echo "Installing: ${missing[*]}"
    local as_root=()
    ((EUID == 0)) || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
