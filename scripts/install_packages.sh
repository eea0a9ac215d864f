#!/usr/bin/env bash
# Installs the Debian packages that Valmerix is built with ("run") or built and tested with ("test").
# Does nothing when all of them are there.
set -euo pipefail

run=(g++ cmake ninja-build ccache pkgconf qt6-base-dev qt6-svg-dev qt6-multimedia-dev qt6-qpa-plugins
     qt6-translations-l10n libsane-dev libsane1 libsqlitecpp-dev libsqlite3-dev libmd4c-dev libmd4c-html0-dev
     libgtest-dev libgmock-dev libbenchmark-dev fonts-dejavu-core
     fonts-liberation sqlite3)
test=(appstream clang clang-format clang-tidy libclang-rt-14-dev desktop-file-utils dpkg-dev fakeroot git groff lintian lld
      man-db poppler-utils procps python3 strace xauth xvfb libreoffice-writer)

case "${1:-run}" in
    run) wanted=("${run[@]}") ;;
    test) wanted=("${run[@]}" "${test[@]}") ;;
    *) echo "usage: $0 [run|test]" >&2; exit 2 ;;
esac

missing=()
for package in "${wanted[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "root or sudo is needed to install: ${missing[*]}" >&2; exit 1; }
    root=(sudo)
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${root[@]}" apt-get update -q
"${root[@]}" apt-get install -q -y --no-install-recommends "${missing[@]}" </dev/null
