#!/usr/bin/env bash
# Holds a Debian package of Valmerix against what it promises: lintian, its dependencies, an installation into a
# clean root, a first start there, a sample report drafted by the installed tool, and its removal.
#   scripts/check_package.sh PACKAGE.deb FOLDER_OF_THE_BUILT_PROGRAMS
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
package=$(realpath "${1:?usage: $0 PACKAGE.deb BIN}") bin=$(realpath "${2:?usage: $0 PACKAGE.deb BIN}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root=$work/root
fail() { echo "FAILED: $*"; exit 1; }

echo "== lintian"
lintian --fail-on error,warning --tag-display-limit 0 --allow-root "$package" || fail "lintian"

echo "== dependencies"
apt-get install -s --no-install-recommends "$package" >"$work/apt.txt" 2>&1 || { cat "$work/apt.txt"; fail "dependencies"; }
grep '^Inst valmerix ' "$work/apt.txt" || fail "apt would not install it"

echo "== installation into a clean root"
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates" "$root/etc"
touch "$root/var/lib/dpkg/status" "$root/var/lib/dpkg/available"
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(fakeroot)
# the libraries are this machine's: the root has no other package that could satisfy the dependencies
"${as_root[@]}" dpkg --root="$root" --force-depends --path-include="/usr/share/*" --log="$work/dpkg.log" -i "$package" >"$work/dpkg.txt" 2>&1 ||
    { cat "$work/dpkg.txt"; fail "dpkg -i"; }
[ "$(dpkg-query --admindir="$root/var/lib/dpkg" -W -f='${db:Status-Status}' valmerix)" = installed ] || fail "not installed"
(cd "$root" && md5sum --quiet -c var/lib/dpkg/info/valmerix.md5sums) || fail "damaged files"
for file in bin/valmerix bin/valmerix-informe share/valmerix/Valmerix.chm share/applications/valmerix.desktop \
    share/icons/hicolor/scalable/apps/valmerix.svg share/man/man1/valmerix.1.gz share/man/es/man1/valmerix.1.gz; do
    [ -s "$root/usr/$file" ] || fail "no /usr/$file"
done
desktop-file-validate "$root/usr/share/applications/valmerix.desktop" || fail "desktop file"
appstreamcli validate --no-net "$root/usr/share/metainfo/es.valmerix.Valmerix.metainfo.xml" || fail "metainfo"
for page in "$root"/usr/share/man/man1/*.gz "$root"/usr/share/man/es/man1/*.gz; do
    [ -z "$(LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)" ] || fail "man page $page"
done

echo "== first start"
export XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache HOME=$work/home
export XDG_RUNTIME_DIR=$work/run QT_QPA_PLATFORM=offscreen
mkdir -p "$HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"
find "$root" -type f -printf '%P %s %T@\n' | sort >"$work/before.txt"
"$root/usr/bin/valmerix" >"$work/program.txt" 2>&1 &
program=$!
for _ in $(seq 100); do
    [ ! -s "$XDG_DATA_HOME/valmerix/Datos/Testigos.mak" ] || break
    sleep 0.1
done
sleep 1
kill -0 $program 2>/dev/null || { cat "$work/program.txt"; fail "the program did not stay"; }
kill $program && wait $program || true
[ "$(sqlite3 "$XDG_DATA_HOME/valmerix/Datos/valmerix.mdb" 'PRAGMA integrity_check')" = ok ] || fail "the database of the first start"
find "$root" -type f -printf '%P %s %T@\n' | sort | cmp - "$work/before.txt" || fail "the program wrote among the installed files"

echo "== sample report"
"$here/scripts/install_samples.sh" "$work/muestras.mdb" "$bin"
"$root/usr/bin/valmerix-informe" "$work/muestras.mdb" P "Marta Ferrer Climent" 214 >"$work/report.txt" || fail "no report"
cmp "$work/report.txt" "$here/tests/golden/valencia/report.txt" || fail "another report than the one kept"

echo "== removal"
"${as_root[@]}" dpkg --root="$root" --log="$work/dpkg.log" -P valmerix >"$work/dpkg.txt" 2>&1 || { cat "$work/dpkg.txt"; fail "dpkg -P"; }
[ -z "$(find "$root/usr" -type f 2>/dev/null)" ] || fail "files are left behind"
echo "$(basename "$package"): all held"
