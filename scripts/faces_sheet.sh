#!/usr/bin/env bash
# Draws docs/pictures/faces.png: all faces side by side with their names, on a light and on a dark toolbar; on each the
# form of 16 colours, then those of 16, 24 and 32 pixels.
set -eu
cd "$(dirname "$0")/.."
. scripts/prepare.sh
prepare_packages "${build_packages[@]}" fonts-liberation
build release qor_faces >/dev/null

columns=4
cell_width=280
cell_height=74
light='#f6f5f4'
dark='#2e2e2e'
faces=build/release/resources/faces # the sheet lies beside the pictures, because it may show only what lies below it
names=("$faces"/16/*.png)
rows=$(((${#names[@]} + columns - 1) / columns))

toolbar() {
    local name=$1 left=$2 top=$3 ground=$4 form size
    echo "<rect x='$left' y='$top' width='128' height='44' fill='$ground'/>"
    left=$((left + 8))
    for form in 16-colors 16 24 32; do
        size=${form%-colors}
        echo "<image href='$form/$name.png' x='$left' y='$((top + 22 - size / 2))' width='$size' height='$size'/>"
        left=$((left + size + 8))
    done
}

{
    echo "<svg xmlns='http://www.w3.org/2000/svg' width='$((columns * cell_width + 16))'" \
        "height='$((rows * cell_height + 12))'>"
    for index in "${!names[@]}"; do
        name=$(basename "${names[$index]}" .png)
        left=$((16 + index % columns * cell_width))
        top=$((12 + index / columns * cell_height))
        echo "<text x='$left' y='$((top + 11))' font-family='Liberation Sans' font-size='12'>$name</text>"
        toolbar "$name" "$left" "$((top + 18))" "$light"
        toolbar "$name" "$((left + 128))" "$((top + 18))" "$dark"
    done
    echo "</svg>"
} >"$faces/sheet.svg"

mkdir -p docs/pictures
rsvg-convert --background-color white --output docs/pictures/faces.png "$faces/sheet.svg"
optipng -quiet docs/pictures/faces.png
