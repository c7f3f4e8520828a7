#!/usr/bin/env bash
# Takes the pictures of the manual: builds tools/take_screenshots.cpp, runs it
# under a virtual X server on a fresh program folder, and puts the PNG files
# in help/images (the README shows some of them too).
#
#   tools/screenshots.sh [build folder]       (default: build)
#
# Without xvfb-run the pictures are taken on Qt's offscreen platform instead.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(realpath -m "${1:-$root/build}")

cmake -S "$root" -B "$build" -G Ninja >/dev/null
cmake --build "$build" --target take_screenshots

# A fixed folder, since the package screens show its path: the pictures then
# come out the same at every run.
work=/tmp/cartomar-screenshots
rm -rf "$work"
trap 'rm -rf "$work"' EXIT
export QT_LOGGING_RULES="qt.multimedia*=false"
# take <program folder> [arguments]: one run of the tool on a fresh folder.
take() {
  local tool=("$build/tools/take_screenshots" "$1" "$work/images" "${@:2}")
  if command -v xvfb-run >/dev/null; then
    env -u QT_QPA_PLATFORM xvfb-run -a -s "-screen 0 1280x1024x24" "${tool[@]}"
  else
    QT_QPA_PLATFORM=offscreen "${tool[@]}"
  fi
}
take "$work/Cartomar" "$root/help"
# The reading once more in each translation, for the README.
for language in es de; do
  take "$work/Cartomar-$language" "--language=$language"
  # The README shows the dealt reading only; the tour's other pictures go.
  find "$work/images" -name "*-$language.png" ! -name "reading-dealt-$language.png" -delete
done

mkdir -p "$root/help/images"
rm -f "$root/help/images/"*.png
cp "$work/images/"*.png "$root/help/images/"
du -ch "$root/help/images/"*.png | tail -1
