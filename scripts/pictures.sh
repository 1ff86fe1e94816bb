#!/usr/bin/env bash
# Paints every form into docs/pictures.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh
prepare_packages "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}" imagemagick
build release form_pictures
mkdir -p docs/pictures
build/release/tests/wx/pictures/form_pictures docs/pictures
