#!/usr/bin/env bash
# Takes the pictures of the manual from the running program, on the sample cases, and puts those that its pages
# show into docs/manual/img, with few colours so that they stay small.
#   scripts/manual_pictures.sh [folder of the built programs]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
bin=${1:-$root/build/release/bin}
command -v pngquant >/dev/null || { echo "pngquant is missing (apt-get install pngquant)" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$root/scripts/install_samples.sh" "$work/valmerix.mdb" "$bin"
mkdir "$work/fotos"
unset DISPLAY WAYLAND_DISPLAY
QT_QPA_PLATFORM=offscreen:configfile=$root/tools/pantalla.json "$bin/valmerix-fotos" "$work/valmerix.mdb" "$work/fotos"

mkdir -p "$root/docs/manual/img"
rm -f "$root"/docs/manual/img/*.png
grep -rho 'img/[a-z_0-9]*\.png' "$root"/docs/manual/*.md | sort -u | while read -r picture; do
    pngquant --strip --speed 1 --output "$root/docs/manual/$picture" 64 "$work/fotos/${picture#img/}"
done
ls -l "$root/docs/manual/img"
