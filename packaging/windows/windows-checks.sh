# What packaging/windows/test does with the windows and the documents, on a display of its own.
# shellcheck shell=bash disable=SC2034,SC2154

display_file=$(mktemp)
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$display_file" >/dev/null 2>&1 &
server=$!
trap 'kill "$server" 2>/dev/null; rm -f "$display_file"' EXIT
for _ in {1..100}; do [[ -s $display_file ]] || sleep 0.1; done
DISPLAY=:$(<"$display_file")
export DISPLAY
# What still runs of Wine has no display.
wineserver -k || true

suite roads-in-windows "$work/build/all/zeugnis-window-driver-tests.exe"

# The package itself from here on, without anything of the build beside it.
package=$work/dist/Zeugnisprogramm
class="$work/Zeugnisse äöü/3a 2026-27-2"
unset WINEPATH
rm -rf "$(dirname "$class")"
mkdir -p "$(dirname "$class")"
cp -r "$package/Vorlage" "$class"

step documents
keys=(ZeugnisseSchreiben:ZeugnisseSchreiben ZeugnisseAnlagen:ZeugnisseAnlagen KlListe:Klassenliste
    StListe:Strichliste BldListe:Bilderliste Leerformular:Leerformular ZeugnislisteNeu:ZeugnislisteNeu)
good=0
cd "$class" || exit 1
for key in "${keys[@]}"; do
    if timeout 120 wine "$package/zeugnisdokumente.exe" "${key%:*}.doc" "/m${key#*:}" --no-window 2>>"$work/documents.log"; then
        good=$((good + 1))
    else
        echo "Not written: $key"
    fi
done
echo "$good of ${#keys[@]} keys wrote their document."
# Empty of letters it would be without fonts.
for pdf in ./*.pdf; do
    [[ $(pdftotext "$pdf" -) == *[[:alpha:]]* ]] || { echo "No letters in $pdf"; good=0; }
done
((good == ${#keys[@]})) || failed=1

# Installed and removed without any question; a class that is there stays.
step "Installer"
programs="$WINEPREFIX/drive_c/users/$(id -un)/AppData/Local/Programs/Zeugnisprogramm"
first_class=$work/home/Zeugnisse/Klasse
rm -rf "$first_class"
mkdir -p "$(dirname "$first_class")"
cp -r "$package/Vorlage" "$first_class"
installer="$work/Zeugnisprogramm-$(version)-win64-Installation.exe"
wine "$installer" /S
[[ -e $programs/zeugnisprogramm.exe && -e $programs/Vorlage/Daten/Namen.Txt ]] || { echo "Not installed."; failed=1; }
# An update touches nothing while the program runs, and afterwards leaves nothing old.
touch "$programs/plugins/old.dll"
wine "$programs/zeugnisprogramm.exe" --auswahl &
sleep 10
! wine "$installer" /S || { echo "Updated under the running program."; failed=1; }
[[ -e $programs/plugins/old.dll ]] || { echo "Changed under the running program."; failed=1; }
wineserver -k
wine "$installer" /S
[[ ! -e $programs/plugins/old.dll ]] || { echo "Left of the version before: old.dll"; failed=1; }
wine "$programs/Entfernen.exe" /S
for _ in {1..30}; do [[ ! -e $programs ]] || sleep 1; done
[[ ! -e $programs && -e $first_class/Daten/Namen.Txt ]] || { echo "Not removed, or the class is gone."; failed=1; }

step "The real window, and that of the first start"
wine "$package/zeugnisprogramm.exe" &
sleep 15
scrot -o "$work/window.png"
wineserver -k
wine "$package/zeugnisprogramm.exe" --auswahl &
sleep 10
scrot -o "$work/first-start.png"
wineserver -k
cd "$work" || exit 1
echo "Look at $work/window.png and $work/first-start.png"
