#!/usr/bin/env bash
# Builds Valmerix and opens it on its own database, programa/Datos/valmerix.mdb, which the first start creates.
# Without a display it drafts the reports of the sample cases and takes pictures of the windows instead, into
# the folder given (build/muestras by default).
set -euo pipefail
cd "$(dirname "$0")/.."
samples=${1:-build/muestras}

scripts/install_packages.sh run
mkdir -p build
command -v ccache >/dev/null && export CMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --preset release >build/configure.txt 2>&1 || { cat build/configure.txt; exit 1; }
cmake --build --preset release --target valmerix valmerix-informe valmerix-muestras valmerix-fotos manual
bin=build/release/bin

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    mkdir -p programa
    cp -u "$bin/valmerix" "$bin/valmerix-informe" "$bin/Valmerix.chm" programa/
    exec programa/valmerix
fi

rm -rf "$samples/informes" "$samples/fotos" "$samples/valmerix.mdb"
mkdir -p "$samples/informes" "$samples/fotos"
scripts/install_samples.sh "$samples/valmerix.mdb" "$bin"
while IFS='|' read -r tipo valuer number; do
    report="$samples/informes/$tipo $number $valuer"
    "$bin/valmerix-informe" "$samples/valmerix.mdb" "$tipo" "$valuer" "$number" --rtf "$report.rtf" >"$report.txt"
done < <(sqlite3 "$samples/valmerix.mdb" 'SELECT Tipo, NombreTasador, NumeroTasacion FROM Viviendas ORDER BY 3')
QT_QPA_PLATFORM=offscreen:configfile=tools/pantalla.json \
    "$bin/valmerix-fotos" "$samples/valmerix.mdb" "$samples/fotos" 2>build/fotos.txt || { cat build/fotos.txt; exit 1; }

echo "No display here, so instead of the program:"
echo "  sample database  $samples/valmerix.mdb"
echo "  reports          $samples/informes/"
echo "  pictures         $samples/fotos/"
