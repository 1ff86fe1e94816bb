#!/usr/bin/env bash
# Paints every form, and what stands in Calc's window, into docs/pictures.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh
prepare_packages "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}" imagemagick
build release form_pictures test_calc_window test_calc_user
mkdir -p docs/pictures

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
