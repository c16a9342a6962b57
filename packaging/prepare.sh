# Sourced by ./run and ./test: installs the missing packages, and builds a preset.

# install_packages [LIST...]: installs what the lists (packaging/apt-packages.txt if none is given)
# name and the machine has not.
install_packages() {
    local wanted missing="" package
    [ $# -gt 0 ] || set -- packaging/apt-packages.txt
    wanted=$(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$@")
    if ! command -v dpkg-query > /dev/null; then
        echo "No apt here: please install the counterparts of" $wanted >&2
        return
    fi
    for package in $wanted; do
        if ! dpkg-query -W -f='${Status}' "$package" 2> /dev/null | grep -q 'ok installed'; then
            missing="$missing $package"
        fi
    done
    [ -z "$missing" ] && return
    echo "Installing:$missing"
    local as_root=""
    [ "$(id -u)" -eq 0 ] || as_root="sudo"
    $as_root apt-get update -qq
    # shellcheck disable=SC2086  # a list of words
    DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -qq --no-install-recommends $missing
}

# build_preset NAME [OPTION...]: configures build/NAME where needed and builds all of it; an option such as
# --target NAME goes to the build.
build_preset() {
    cmake --preset "$1"
    cmake --build --preset "$@"
}
