#!/usr/bin/env bash
# The install step of scripts/dev against stand-in package tools: it asks dpkg which packages are
# there, runs `apt-get update` once and `apt-get install -y` of only the missing ones, goes through
# sudo when not root, and stops with a clear message and a nonzero exit when it cannot install.
#
# usage: dev_install_test.sh SCRIPT WORKDIR
set -uo pipefail
script=$1
work=$2
rm -rf "$work"
mkdir -p "$work"

# Stand-ins, driven by files in $work: installed (one package a line), log (one command a line).
make_tools() {
    local bin=$1
    mkdir -p "$bin"
    # The only other tools the script uses; the stand-ins call theirs by full path.
    ln -sf "$(command -v dirname)" "$bin/dirname"
    ln -sf "$(command -v sed)" "$bin/sed"
    cat >"$bin/dpkg-query" <<'TOOL'
#!/bin/bash
pkg=${!#}
if /usr/bin/grep -qx "$pkg" "$FAKE/installed"; then printf 'install ok installed'; exit 0; fi
echo "dpkg-query: no packages found matching $pkg" >&2
exit 1
TOOL
    cat >"$bin/apt-get" <<'TOOL'
#!/bin/bash
echo "apt-get $*" >>"$FAKE/log"
[ "${FAKE_APT_FAIL:-}" = "$1" ] && exit 100
if [ "$1" = install ] && [ "${FAKE_APT_NOOP:-}" != 1 ]; then
    for a in "$@"; do case "$a" in -*|install) ;; *) echo "$a" >>"$FAKE/installed" ;; esac; done
fi
exit 0
TOOL
    cat >"$bin/id" <<'TOOL'
#!/bin/bash
echo "${FAKE_UID:-0}"
TOOL
    cat >"$bin/sudo" <<'TOOL'
#!/bin/bash
echo -n "sudo " >>"$FAKE/log"
exec "$@"
TOOL
    chmod +x "$bin"/*
}

all="cmake make g++ libgtest-dev libgmock-dev libbenchmark-dev libedit-dev pkg-config"
passed=0
failed=0

# check NAME INSTALLED EXPECT_RC EXPECT_LOG EXPECT_MESSAGE [VAR=VALUE...] -- ARGS...
#   INSTALLED: packages already there; EXPECT_LOG: the package commands run, ' | ' between them;
#   EXPECT_MESSAGE: text the script's standard error must hold (empty: anything).
check() {
    local name=$1 installed=$2 rc_want=$3 log_want=$4 msg_want=$5
    shift 5
    local env=()
    while [ "$1" != -- ]; do
        env+=("$1")
        shift
    done
    shift
    local dir=$work/$name
    make_tools "$dir/bin"
    tr ' ' '\n' <<<"$installed" | sed '/^$/d' >"$dir/installed"
    : >"$dir/log"
    local path=$dir/bin
    for e in "${env[@]}"; do
        case "$e" in NOSUDO=1) rm "$dir/bin/sudo" ;; NODPKG=1) rm "$dir/bin/dpkg-query" ;; esac
    done
    env -i PATH="$path" FAKE="$dir" "${env[@]}" /bin/bash "$script" "$@" >"$dir/out" 2>"$dir/err"
    local rc=$?
    local log
    log=$(paste -sd'|' "$dir/log" | sed 's/|/ | /g')
    local ok=1
    [ "$rc" = "$rc_want" ] || { echo "$name: exit $rc, expected $rc_want"; ok=0; }
    [ "$log" = "$log_want" ] || { printf '%s: ran  [%s]\n%s  expected [%s]\n' "$name" "$log" "${name//?/ }" "$log_want"; ok=0; }
    if [ -n "$msg_want" ] && ! grep -qF -- "$msg_want" "$dir/err"; then
        echo "$name: no '$msg_want' in:"
        cat "$dir/err"
        ok=0
    fi
    if [ $ok = 1 ]; then passed=$((passed + 1)); else failed=$((failed + 1)); fi
}

inst="apt-get install -y --no-install-recommends"
check nothing-missing "$all" 0 "" "" -- deps test
check two-missing "cmake make g++ libgmock-dev libbenchmark-dev pkg-config" 0 \
    "apt-get update | $inst libgtest-dev libedit-dev" "installing the missing Debian packages: libgtest-dev libedit-dev" \
    -- deps test
check all-missing "" 0 "apt-get update | $inst $all" "" -- deps test
check shell-needs-less "cmake make g++ libedit-dev" 0 "" "" -- deps shell
check shell-without-libedit "cmake make g++ libgtest-dev" 0 "apt-get update | $inst libedit-dev" "" -- deps shell
check through-sudo "cmake make g++" 0 "sudo apt-get update | sudo $inst libedit-dev" "" FAKE_UID=1000 -- deps shell
check no-sudo "cmake make g++" 1 "" "missing Debian packages: libedit-dev; not root and no sudo" \
    FAKE_UID=1000 NOSUDO=1 -- deps shell
check update-fails "cmake make g++" 1 "apt-get update" "'apt-get update' failed; the missing packages are: libedit-dev" \
    FAKE_APT_FAIL=update -- deps shell
check install-fails "cmake g++" 1 "apt-get update | $inst make libedit-dev" "'apt-get install' failed for: make libedit-dev" \
    FAKE_APT_FAIL=install -- deps shell
check still-missing "cmake make g++" 1 "apt-get update | $inst libedit-dev" "still not installed after apt-get: libedit-dev" \
    FAKE_APT_NOOP=1 -- deps shell
check not-debian "" 1 "" "cannot check or install packages: no dpkg-query or apt-get" NODPKG=1 -- deps test
check install-skipped "" 0 "" "" VQ6192_DEV_NO_INSTALL=1 -- deps test
check bad-verb "$all" 2 "" "unknown verb 'nosuch'" -- nosuch

echo "$passed passed, $failed failed"
[ "$failed" = 0 ]
