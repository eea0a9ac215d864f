#!/usr/bin/env bash
# A folder of src/ includes itself and those before it in the list, never one behind it; all but ui and its own
# folders is the core, whose Qt includes are those of Qt Core alone. Prints every include that breaks this, and
# fails then.
cd "${1:-$(dirname "$0")/..}/src" || exit 2
core=$(ls -d /usr/include/*/qt6/QtCore | head -n 1)
[ -d "$core" ] || { echo "no Qt Core headers found"; exit 2; }
included='[<"]([^>"]+)[>"]' allowed='[a-z_]+\.moc' wrong=0
for folder in common controls store valuation report comparables settings shell \
    ui/look ui/pictures ui/printing ui/help ui/widgets ui; do
    allowed+="|$folder/[a-z0-9_]+\.h"
    while IFS=: read -r file line text; do
        [[ $text =~ $included ]] || continue
        name=${BASH_REMATCH[1]}
        if [[ $text == *'"'* ]]; then [[ $name =~ ^($allowed)$ ]] && continue
        elif [[ $folder == ui* || $name != Q* || -e $core/${name#QtCore/} ]]; then continue; fi
        echo "src/$file:$line: $folder may not include $name"; wrong=1
    done < <(grep -nHE '^\s*#\s*include\s*[<"]' "$folder"/*.h "$folder"/*.cpp 2>/dev/null)
done
exit $wrong
