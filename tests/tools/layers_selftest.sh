#!/usr/bin/env bash
# The layer check must find what it is there for: each wrong include below is put into a small tree of its own.
check="$1"
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

expect() { # what it tells, exit code, file, include line
    rm -rf "$tree/src"
    mkdir -p "$tree/src/$(dirname "$3")"
    echo "$4" >"$tree/src/$3"
    "$check" "$tree" >/dev/null
    local code=$?
    [ $code -eq "$2" ] || { echo "FAILED: $1 (exit code $code)"; exit 1; }
}

expect "a lower folder includes a higher one" 1 common/dates.h '#include "store/query.h"'
expect "the core includes the screen" 1 shell/start_window.cpp '#include "ui/binder.h"'
expect "the core includes a widget" 1 report/viewer.cpp '#include <QTextEdit>'
expect "the core includes a widget by its module" 1 report/viewer.cpp '#include <QtWidgets/QTextEdit>'
expect "blanks hide nothing" 1 store/query.cpp '  #  include   <QColor>'
expect "a higher folder includes a lower one" 0 report/frame.cpp '#include "common/dates.h"'
expect "a folder includes itself" 0 report/frame.cpp '#include "report/frame.h"'
expect "the core includes Qt Core" 0 store/query.h '#include <QtCore/QString>'
expect "the core includes the language's library" 0 store/query.h '#include <memory>'
expect "the screen includes widgets and all below" 0 ui/binder.cpp '#include <QWidget>'
expect "the screen's own folders are the screen" 0 ui/help/help_page.cpp '#include <QTextBrowser>'
expect "the views include the folders under them" 0 ui/binder.cpp '#include "ui/widgets/list_widget.h"'
expect "a folder of the screen includes the views" 1 ui/widgets/list_widget.cpp '#include "ui/binder.h"'
expect "a folder of the screen includes one above it" 1 ui/look/theme.cpp '#include "ui/widgets/list_widget.h"'
echo "the layer check finds what it should"
