#!/usr/bin/env bash
# Paints every form, and what stands in Calc's window, into docs/pictures.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh
. scripts/picture_of_sheet.sh
prepare_packages "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}" imagemagick
build release qorplus form_pictures test_calc_window test_calc_user
mkdir -p docs/pictures build/demo

# More pictures are taken than are kept.
seen=$(mktemp -d)
trap 'rm -rf "$seen"' EXIT
build/release/tests/wx/pictures/form_pictures "$seen"
rm "$seen/frmEveryKind.png"
cp "$seen"/frm*.png docs/pictures/
for suite in calc_window calc_user; do
    QORPLUS_PICTURES=$seen "build/release/tests/$suite/test_$suite"
done
for picture in calc-menu calc-toolbars calc-options calc-bookmarks calc-picking navigator-menu worksheet-summary-dialog; do
    cp "$seen/$picture.png" docs/pictures/
done
# The beginning of each report on the example model, as far as it says the same everywhere.
picture_of_report() {
    build/release/apps/qorplus/qorplus run "examples/$1.json" >/dev/null
    picture_of_sheet "build/demo/$1.xlsx" "docs/pictures/$1" "${@:2}"
}
picture_of_report cell-information -W 1400 -H 520
picture_of_report date-review -W 1400 -H 520
picture_of_report workbook-summary -W 970 -H 130
