# Sourced by ./run and scripts/pictures.sh.

# picture_of_sheet FILE PICTURE [OPTION...]: the first sheet of a workbook as PICTURE.png; the options are pdftoppm's
picture_of_sheet() {
    local file=$1 picture=$2 folder
    shift 2
    folder=$(mktemp -d)
    local one_page='pdf:calc_pdf_Export:{"SinglePageSheets":{"type":"boolean","value":"true"}}'
    soffice "-env:UserInstallation=file://$folder/profile" --headless --convert-to "$one_page" --outdir "$folder" "$file" \
        >/dev/null 2>&1 &&
        pdftoppm -png -singlefile -r 110 "$@" "$folder/$(basename "${file%.*}").pdf" "$picture"
    local status=$?
    rm -rf "$folder"
    return $status
}
