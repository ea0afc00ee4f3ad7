#!/usr/bin/env bash
# Makes the screenshots in docs/screenshots with script mode, one per group of
# calculators, each with a typical computed example:
#   tools/screenshots.sh
# A group whose menu item is still disabled (its calculator is not built yet)
# is skipped with a note. Afterwards docs/screenshots/screenshots.txt lists
# the pictures with their captions (the AppStream metadata takes them from
# there) and the row of pictures at the top of README.md is rewritten.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/setup.sh
quarzel_ensure_packages "${QUARZEL_RUN_PACKAGES[@]}" fonts-dejavu-core
quarzel_build build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUARZEL_TESTS=OFF >/dev/null
exe=$PWD/build/quarzel
out=$PWD/docs/screenshots
mkdir -p "$out"

# One group per line:
#   file | menu item that must be enabled (- none) | screen size | English caption | German caption | script commands, ";" between them
# The main window sizes itself from the screen: 160 pixels narrower and 26 lower
# at 96 dpi, and the picture is that window. Pick a screen on which every window
# of the group is whole and little grey area is left over.
groups=$(cat <<'GROUPS'
grundgroessen|mnuOhm|1010x356|Ohm's law, reactance and resonant circuit|Ohmsches Gesetz, Blindwiderstand und Schwingkreis|menu mnuOhm; type Text1 12; type Text3 1,5; click Command1; menu mnuSchwingkreis; set Text1 455; select ComboF 1; set Text2 1; select ComboL 2; click Command1; menu mnuBlindXC; set Text1 50; set Text2 100; select ComboC 2; click Command1
netzwerke|mnuRLC|1180x690|RLC series network, circuit quality, decibels and resistors in parallel|RLC-Reihenschaltung, Güte und Bandbreite, dB-Rechner und Parallelschaltung von Widerständen|menu mnuRLC; type Text1 1; type Text2 100; type Text3 10; type Text4 1; click Command1; menu mnuSchwingkreisGüte; set Text1 1; set Text3 100; type Text4 100; click Command1; menu mnudB; type Text1 1; type Text2 10; click Command1; menu mnuParR; set Text1 4,7; set Text2 10; click Command1
teiler|mnuCTeiler|900x470|Capacitive voltage divider with its circuit|Kapazitiver Spannungsteiler mit Schaltbild|menu mnuCTeiler; set Text2 50; set Text3 1; set Text6 10; click Command1
spulen|mnuLuftSpule|1060x268|Coil with core and air-core coil|Spule mit Kern und Luftspule|menu mnuKernSpule; type Text1 250; type Text3 20; click Command1; menu mnuLuftSpule; set Text3 10; set Text4 20; set Text2 20; click Command1
weichen|LP_2Weg_12dB|820x612|Two-way loudspeaker crossover, 12 dB/octave|Frequenzweiche Zwei-Wegebox, 12 dB/Oktave|menu LP_2Weg_12dB; set Text1 8; set Text8 8; set Text9 3000; click Command1
superhet|mnuSuperhet|1040x980|Superheterodyne tracking with its tracking-error curve|Superhet-Gleichlauf mit Kurve des Gleichlauffehlers|menu mnuSuperhet; click Command1; click Command5
verstaerker|mnuTransistor|1050x470|Transistor class-A amplifier with its schematic|Transistor-A-Verstärker mit Schaltbild|menu mnuTransistor; click Befehl1; click Befehl2
kuehlkoerper|-|780x556|Heat sink for a transistor from the catalogue|Kühlkörper für einen Transistor aus dem Katalog|transistor "BD139" 5 12.5 npn 24; open frmKühlg2; set Text1 4; click Befehl1
GROUPS
)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
run() {  # run SCREEN SCRIPT: script mode on an offscreen screen of that size
  local w=${1%x*} h=${1#*x}
  printf '{"screens":[{"name":"s","x":0,"y":0,"width":%d,"height":%d,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]}' \
    "$w" "$h" >"$work/screen.json"
  QT_QPA_PLATFORM="offscreen:configfile=$work/screen.json" QUARZEL_INSTANCE="screenshots-$$" LC_ALL=C.UTF-8 \
    "$exe" --script "$2" 2>/dev/null
}

list=$out/screenshots.txt
: >"$list"
while IFS='|' read -r name gate screen en de commands; do
  if [ "$gate" != "-" ]; then
    printf 'menustate %s\n' "$gate" >"$work/gate.qzs"
    state=$(run "$screen" "$work/gate.qzs")
    if ! grep -q '"enabled":true' <<<"$state"; then
      echo "übersprungen: $name (Menüpunkt $gate ist noch gesperrt)"
      continue
    fi
  fi
  { echo "locale de_DE"; tr ';' '\n' <<<"$commands" | sed 's/^ *//'; echo "screenshot $out/$name.png"; } >"$work/$name.qzs"
  result=$(run "$screen" "$work/$name.qzs")
  if grep -q '"error"' <<<"$result"; then
    echo "Fehler in der Gruppe $name:" >&2
    echo "$result" >&2
    exit 1
  fi
  echo "$name|$en|$de" >>"$list"
  echo "$out/$name.png"
done <<<"$groups"

# The row of pictures at the top of the README, between its two markers.
row=$(while IFS='|' read -r name en de; do
  printf '<img src="docs/screenshots/%s.png" alt="%s" title="%s" height="180">\n' "$name" "$de" "$de"
done <"$list")
awk -v row="$row" '
  /<!-- screenshots -->/ { print; print row; skip = 1; next }
  /<!-- \/screenshots -->/ { skip = 0 }
  !skip { print }' README.md >"$work/README.md"
cp "$work/README.md" README.md
