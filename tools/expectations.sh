# shellcheck shell=bash
# For scripts that try something: what must hold, or they end.

fail() {
    echo "$0: $*" >&2
    exit 1
}

# What a command must print: expect TEXT COMMAND...
expect() {
    local expected=$1 actual
    shift
    actual=$("$@") || fail "failed: $*"
    [ "$actual" = "$expected" ] || fail "$* printed: $actual"
}
