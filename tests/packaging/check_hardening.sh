#!/bin/sh
# packaging/check-hardening passes a program that has it all and misses each thing by itself.
#   check_hardening.sh CXX CHECK
set -e
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
cat >"$out/program.cpp" <<'END'
#include <cstdio>
#ifdef WRITABLE_CODE
asm(".section odd, \"awx\", @progbits; .byte 0; .previous");
#endif
int main(int argc, char **)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%d", argc);
    return std::fprintf(stderr, "%s\n", text) < 0;
}
END
build() {
    "$cxx" -O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fPIE -pie \
        -Wl,-z,relro,-z,now "$@" "$out/program.cpp" -o "$out/program"
}
cxx=$1
check=$2

build
"$check" "$out/program"
expect() {
    complaint=$1
    shift
    build "$@"
    if "$check" "$out/program" >"$out/said"; then
        echo "not noticed: $complaint"
        exit 1
    fi
    if ! grep -qx "$out/program: $complaint" "$out/said"; then
        echo "expected \"$complaint\", got:"
        cat "$out/said"
        exit 1
    fi
}
expect "not position independent" -no-pie
expect "relocations stay writable" -Wl,-z,norelro
expect "relocations are done late" -Wl,-z,lazy
expect "its stack can be run" -Wl,-z,execstack
expect "it says where to look for libraries" -Wl,-rpath,/tmp
expect "stacks are not guarded" -fno-stack-protector
expect "copies are not checked" -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=0
expect "it has code that can be written" -DWRITABLE_CODE
! "$check" "$out/missing" >/dev/null
