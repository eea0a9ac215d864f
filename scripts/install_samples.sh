#!/usr/bin/env bash
# Creates the database BASE with the sample cases. Refuses to touch a file that is there.
#   scripts/install_samples.sh BASE [folder of the built programs]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
base=${1:?usage: $0 BASE [BIN]} bin=${2:-$root/build/release/bin}
[ ! -e "$base" ] || { echo "$base is already there" >&2; exit 1; }
[ -x "$bin/valmerix-muestras" ] || { echo "build the target valmerix-muestras first" >&2; exit 1; }
exec "$bin/valmerix-muestras" "$base" "$root/data/muestras/muestras.sql"
