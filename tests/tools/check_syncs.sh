#!/usr/bin/env bash
# A save is one commit: it may sync files as often as the change of a single field does, and not once more.
#   check_syncs.sh SAVE_DRIVER FOLDER_OF_PROGRAMS MUESTRAS.sql
driver=$1 programs=$2 sql=$3
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
valuer="Marta Ferrer Climent" number=214

syncs() { # how often the driver syncs in that mode, on a fresh database
    rm -f "$folder/base.mdb"
    "$programs/valmerix-muestras" "$folder/base.mdb" "$sql" || exit 1
    strace -f -qq -e trace=fsync,fdatasync,sync,syncfs,sync_file_range -o "$folder/trace" \
        "$driver" "$folder/base.mdb" "$valuer" $number "$1" || { echo "the driver failed: $1" >&2; exit 1; }
    grep -c 'sync' "$folder/trace"
}

update=$(syncs update) || exit 1
save=$(syncs save) || exit 1
echo "syncs: one field $update, a whole save $save"
[ "$update" -gt 0 ] && [ "$save" -eq "$update" ]
