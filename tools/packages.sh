# Installs the Debian packages that are missing (sourced by the run and test scripts).
ensure_packages() {
    local missing=()
    local package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing ${missing[*]} ..."
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    export DEBIAN_FRONTEND=noninteractive
    $sudo apt-get install -y -qq "${missing[@]}" >/dev/null 2>&1 ||
        { $sudo apt-get update -qq && $sudo apt-get install -y -qq "${missing[@]}"; }
}

# What building and testing needs.
BUILD_PACKAGES=(cmake make g++ qt6-base-dev libgl-dev libgtest-dev libgmock-dev libbenchmark-dev fonts-liberation poppler-utils)
# The sanitizer and fuzzing build, and the sources of the decimal-comma locale the tests generate.
SANITIZER_PACKAGES=(clang libclang-rt-14-dev locales)

# The Debian package and its checks; the Windows cross build of the core, run under Wine.
PACKAGE_PACKAGES=(dpkg-dev lintian appstream desktop-file-utils)
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix wine64 googletest ccache)
