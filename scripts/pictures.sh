#!/usr/bin/env bash
# Paints every form, and what stands in Calc's window, into docs/pictures.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh
prepare_packages "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}" imagemagick
build release form_pictures test_calc_window
mkdir -p docs/pictures
build/release/tests/wx/pictures/form_pictures docs/pictures
QORPLUS_PICTURES=$PWD/docs/pictures build/release/tests/calc_window/test_calc_window
