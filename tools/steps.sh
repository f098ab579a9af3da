# Shared by ./demo, ./test and .ci/run: one printed line for each step, a plain sentence when one fails.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
logs="$root/build/logs"
mkdir -p "$logs"

# fail SENTENCE [LOGFILE]: says what went wrong and stops.
fail() {
    printf 'FAILED: %s\n' "$1" >&2
    if [ -n "${2:-}" ] && [ -s "$2" ]; then
        printf 'The last lines of %s:\n' "$2" >&2
        tail -n 40 "$2" >&2
    fi
    exit 1
}

# step NAME COMMAND...: runs the command with its output in a file and prints one line with the time it took.
step() {
    local name=$1 log="$logs/${1// /-}.log" start=$SECONDS
    shift
    "$@" >"$log" 2>&1 </dev/null || fail "the step \"$name\" did not succeed ($*)." "$log"
    printf '%-28s ok, %d s\n' "$name" $((SECONDS - start))
}

# install_packages NAME...: asks the package manager for what is missing, as root or through sudo.
install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Missing: ${missing[*]}. Install them, or run this as root."; return 1; }
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y --no-install-recommends "${missing[@]}"
}

# listed_packages [FILE]: the packages that a build with tests needs, or those of another list in tools/.
listed_packages() {
    grep -v '^#' "$root/tools/${1:-packages.txt}"
}

# with_display COMMAND...: runs the command in a virtual display with a session bus and a window manager.
with_display() {
    export NO_AT_BRIDGE=1
    dbus-run-session -- xvfb-run -a -s "-screen 0 1920x1200x24 -noreset" \
        bash -c 'openbox >/dev/null 2>&1 & manager=$!; sleep 0.5; "$@"; result=$?; kill $manager 2>/dev/null; exit $result' \
        with_display "$@"
}
