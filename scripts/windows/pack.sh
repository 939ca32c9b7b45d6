# SPDX-License-Identifier: GPL-3.0-or-later
# Functions are called by their names, variables are those of the sourcing script, which has set -e:
# shellcheck shell=bash disable=SC2317,SC2154,SC2034,SC2164
# The stages "pack" and "install": what people download, and whether it installs. Sourced by scripts/windows.sh.

readonly inside_packages_folder=$inside_build/packages

# --- pack ------------------------------------------------------------------------------------------------------------

pack_key() { { bytes_key; echo "$SOURCE_DATE_EPOCH"; pack_inputs; } | digest; }
pack_inputs() {
    cd "$source_folder"
    cat LICENSE packaging/windows/* resources/img/*.png resources/machines/*/* resources/Translations/* scripts/windows/{pack.sh,sbom.pl}
}
pack_stamp() { echo "$source_folder/build/windows/.packed"; }
pack_says() { echo "the ZIP archive, the installer, the package managers' manifests, and what is in it all; about 1 minute"; }
pack_make() {
    in_root --caller inside_pack
    write_stamp "$(pack_stamp)" "$1"
    (cd "$source_folder/build/windows/packages" && stat -c 'windows: %s bytes: %n' -- *.zip *.exe)
}

version_of_project() { sed -nE 's/^project\(Kestrune VERSION ([0-9.]+) .*/\1/p' "$inside_source/CMakeLists.txt"; }

inside_pack() {
    local version files=$inside_making/files
    version=$(version_of_project)
    rm -rf "$files" "$inside_packages_folder"
    mkdir -p "$inside_packages_folder"
    install_component kestrune "$files/kestrune"
    zip_folder "$files/kestrune" "kestrune-$version-windows-x64.zip"
    removal_of "$files/kestrune" >"$files/removal.nsh"
    makensis -V2 -WX -NOCD -DVERSION="$version" -DFILES="$files/kestrune" -DREMOVAL="$files/removal.nsh" \
        -DICON="$inside_source/resources/icon/kestrune.ico" \
        -DOUTPUT="$inside_packages_folder/kestrune-$version-setup.exe" "$inside_source/packaging/windows/kestrune.nsi"
    rm -rf "$files"
    write_manifests "$version"
    perl "$inside_source/scripts/windows/sbom.pl" "$version" "$SOURCE_DATE_EPOCH" \
        "${programs[@]/#/$inside_build/bin/}" >"$inside_packages_folder/kestrune-$version.cdx.json"
    (cd "$inside_packages_folder" && LC_ALL=C sha256sum -- * >"$inside_making/SHA256SUMS")
    mv "$inside_making/SHA256SUMS" "$inside_packages_folder/"
    [[ $(web_host) != *.example ]] ||
        say "warning: the links and manifests lead to $(web_host), which is nobody's; KESTRUNE_WEB_HOST names another"
}

# install_component NAME FOLDER: files all bear the commit's time
install_component() {
    cmake --install "$inside_build" --prefix "$2" --component "$1" >/dev/null
    find "$2" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
}

# zip_folder FOLDER ARCHIVE: in an order of its own, without what differs from computer to computer
zip_folder() {
    (
        cd "$(dirname "$1")"
        find "$(basename "$1")" -type f | LC_ALL=C sort | TZ=UTC zip -9 -X -q -@ "$inside_packages_folder/$2"
    )
}

# removal_of FOLDER: what takes its files away on a PC, and the folders that are empty then
removal_of() {
    (
        cd "$1"
        ! find . -name '*[$"`]*' | grep . >&2 || fail "a packed file has a name that the installer would misread"
        find . -type f -printf '%P\n' | LC_ALL=C sort | sed -e 's|/|\\|g' -e 's|.*|Delete "$INSTDIR\\&"|'
        find . -mindepth 1 -type d -printf '%P\n' | LC_ALL=C sort -r | sed -e 's|/|\\|g' -e 's|.*|RMDir "$INSTDIR\\&"|'
    )
}

# write_manifests VERSION: a template's @NAMES@ get their values
write_manifests() {
    local template target zip_sum setup_sum
    zip_sum=$(sha256sum <"$inside_packages_folder/kestrune-$1-windows-x64.zip" | cut -d' ' -f1)
    setup_sum=$(sha256sum <"$inside_packages_folder/kestrune-$1-setup.exe" | cut -d' ' -f1)
    for template in "$inside_source"/packaging/windows/*.in; do
        target=$(basename "$template" .in)
        sed -e "s/@VERSION@/$1/g" -e "s/@HOST@/$(web_host)/g" -e "s/@ZIP_SHA256@/$zip_sum/g" -e "s/@SETUP_SHA256@/${setup_sum^^}/g" \
            -e "s/@DATE@/$(date -u -d "@$SOURCE_DATE_EPOCH" +%F)/g" "$template" >"$inside_packages_folder/$target"
        ! grep -q '@[A-Z_]*@' "$inside_packages_folder/$target" || fail "$target lacks a value"
    done
}

# --- install ---------------------------------------------------------------------------------------------------------

install_key() {
    {
        cd "$source_folder"
        cat build/windows/packages/*setup.exe build/windows/bin/{tests_program,started}.exe scripts/windows/{desk,pack}.sh
        cat tests/data/small/*
    } 2>/dev/null | digest
}
install_stamp() { echo "$source_folder/build/windows/.installed"; }
install_says() { echo "installs, starts and uninstalls the program under Wine; about 2 minutes"; }
install_make() {
    in_root --caller inside_install
    write_stamp "$(install_stamp)" "$1"
}

inside_install() {
    mkdir -p "$inside_build/screenshots"
    desk_begin win11 install
    try_last_page
    try_installer CurrentUser HKCU
    try_installer AllUsers HKLM
    purge_installation
    install_without_rehearsals
    install_on_path CurrentUser HKCU 'HKCU\Environment'
    install_on_path AllUsers HKLM 'HKLM\SYSTEM\CurrentControlSet\Control\Session Manager\Environment'
    desk_end
}

# The program that the last page starts must not get the rights of the installer: it is handed to the desktop's own program,
# in whose place stands one that writes down what it was given.
try_last_page() {
    cp --remove-destination "$inside_build/bin/started.exe" "$WINEPREFIX/drive_c/windows/explorer.exe"
    KESTRUNE_TRIAL_SETUP=Z:$(echo "$inside_packages_folder"/kestrune-*-setup.exe)
    export KESTRUNE_TRIAL_SETUP
    run_qtest lastpage "$inside_build/bin/tests_program.exe" tst_setup
}

# try_installer MODE HIVE: what people did with the program, and put beside it, must outlive the uninstaller.
try_installer() {
    local folder=$inside_making/installed place
    install_program "$1" "$2"
    try_rehearsals "$1"
    mkdir -p "$folder"/backup_{svc,tasks}
    echo kept | tee "$folder/backup_svc/StartMode.reg" >"$folder/backup_tasks/tasks.xml"
    set_value 'HKCU\Software\Kestrune\Ondrevale' lang REG_SZ en
    find "$folder/" -type d ! -path '*/rehearse/mine/*' >"$desk_log/folders.txt"
    while read -r place; do echo kept >"$place/mine.txt"; done <"$desk_log/folders.txt"
    uninstall_program "$2"
    while read -r place; do
        [[ -e $place/mine.txt ]] || fail "the uninstaller took a file of people's own from $place"
        rm "$place/mine.txt"
    done <"$desk_log/folders.txt"
    [[ -e $folder/backup_svc/StartMode.reg && -e $folder/backup_tasks/tasks.xml ]] ||
        fail "the uninstaller took people's backups"
    expect "the setting after the uninstaller" "$(value 'HKCU\Software\Kestrune\Ondrevale' lang)" en
    [[ -e $inside_making/rehearsals/$1/machine.sqlite && -e $folder/rehearse/mine/machine.sqlite ]] ||
        fail "the uninstaller took people's rehearsal PCs"
    rm -rf "$folder/rehearse/mine"
    find "$folder/" -mindepth 1 -type d -empty -delete
    expect "what is left of the program" "$(listing_of_files "$folder")" "$(printf '%s\n' backup_{svc/StartMode.reg,tasks/tasks.xml})"
}

listing_of_files() { find "$1/" -type f -printf '%P\n' | sort; }

# try_rehearsals MODE: from the installed place, which is left as it is. The PC that was made elsewhere must outlive the
# uninstaller, and so must one that somebody made in the program's own folder.
try_rehearsals() {
    local folder=$inside_making/installed/rehearse machines=$inside_making/rehearsals before
    rm -rf "$machines"
    mkdir -p "$machines"
    before=$(listing "$folder")
    rehearse_installed "new-$1" new "Z:$machines/$1" --from windows11
    rehearse_installed "new-small-$1" new "Z:$machines/small" --from "Z:$inside_source/tests/data/small"
    rehearse_installed "preview-$1" preview "Z:$machines/small" --html "Z:$machines/preview.html" --undo "Z:$machines/undo.reg"
    rehearse_installed "tour-$1" tour "Z:$machines/small" --out "Z:$machines/pictures"
    grep -q '</html>' "$machines/preview.html" || fail "the installed kestrune-rehearse wrote no preview"
    expect "the number of pictures of the tour" "$(find "$machines/pictures" -size +4k | wc -l)" 18
    expect "the installed folder after a rehearsal" "$(listing "$folder")" "$before"
    rehearse_installed "new-inside-$1" new "Z:$(readlink -f "$folder")/mine"
}

rehearse_installed() { quietly "rehearse-$1" 300 wine "$inside_making/installed/rehearse/kestrune-rehearse.exe" "${@:2}"; }

# listing FOLDER: all files with their size and time
listing() { find "$1/" -printf '%P %s %T@\n' | sort; }

readonly uninstall_key='Software\Microsoft\Windows\CurrentVersion\Uninstall\Kestrune'

# install_program MODE HIVE: leaves a link to the installation's folder in $inside_making/installed
install_program() {
    local setup place program
    setup=$(echo "$inside_packages_folder"/kestrune-*-setup.exe)
    quietly "install-$1" 120 wine "$setup" /S "/$1"
    place=$(value "$2\\$uninstall_key" InstallLocation)
    [[ -n $place ]] || fail "the installer left no uninstall entry in $2"
    expect "the version of the uninstall entry" "$(value "$2\\$uninstall_key" DisplayVersion)" "$(version_of_project)"
    ln -sfn "$(winepath -u "$place" 2>/dev/null)" "$inside_making/installed"
    [[ -e $inside_making/installed/kestrune.exe && -e $inside_making/installed/img/services.png ]] ||
        fail "the installer left no program in $place"
    [[ -e $inside_making/installed/kestrune-cli.exe ]] || fail "the installer left no kestrune-cli.exe in $place"
    for program in kestrune-rehearse kestrune-rehearsal kestrune-stocktool; do
        [[ -e $inside_making/installed/rehearse/$program.exe ]] || fail "the installer left no $program.exe in $place"
    done
    [[ -n $(find "$WINEPREFIX/drive_c" -name Kestrune.lnk) ]] || fail "the installer made no entry in the start menu"
    export KESTRUNE_TRIAL_PROGRAM="$place\\kestrune.exe"
    export KESTRUNE_TRIAL_PICTURE=Z:$inside_build/screenshots/installed-$1.png
    run_qtest "installed-$1" "$inside_build/bin/tests_program.exe" tst_program startsIsSeenAndEnds
}

# uninstall_program HIVE [ARGUMENT…]: the uninstaller goes on in a copy of itself, so it is waited for
uninstall_program() {
    local waited
    quietly "uninstall-$1" 120 wine "$inside_making/installed/uninstall.exe" /S "${@:2}"
    for ((waited = 0; waited < 100; ++waited)); do
        [[ -e $inside_making/installed/uninstall.exe ]] || break
        sleep 0.2
    done
    # Only what somebody made there
    expect "what the uninstaller left of the program" \
        "$(find "$inside_making/installed/" -type f ! -name mine.txt ! -path '*/backup_*' ! -path '*/rehearse/mine/*' \
            2>/dev/null)" ''
    expect "the uninstall entry" "$(value "$1\\$uninstall_key" InstallLocation)" ''
    [[ -z $(find "$WINEPREFIX/drive_c" -name Kestrune.lnk) ]] || fail "the uninstaller left the start menu's entry"
}

# Asked for it, the uninstaller takes all that the program wrote, too.
purge_installation() {
    local folder=$inside_making/installed
    install_program CurrentUser HKCU
    echo kept >"$folder/backup_svc/mine.txt"
    uninstall_program HKCU /PURGE
    expect "what the purge left" "$(listing_of_files "$folder")" backup_svc/mine.txt
    expect "the setting after the purge" "$(value 'HKCU\Software\Kestrune\Ondrevale' lang)" ''
    rm -r "$folder/backup_svc"
    install_program CurrentUser HKCU
    uninstall_program HKCU /PURGE
    [[ ! -e $folder/ ]] || fail "the uninstaller left its folder"
    rm -f "$inside_making/installed"
}

# The part that can be left out
install_without_rehearsals() {
    local place
    quietly install-alone 120 wine "$(echo "$inside_packages_folder"/kestrune-*-setup.exe)" /S /CurrentUser /NOREHEARSE
    place=$(winepath -u "$(value "HKCU\\$uninstall_key" InstallLocation)" 2>/dev/null)
    [[ -e $place/kestrune.exe && ! -e $place/rehearse ]] || fail "the installer didn't leave the rehearsal PCs out"
    ln -sfn "$place" "$inside_making/installed"
    uninstall_program HKCU
    rm -rf "$inside_making/installed" "$inside_making/rehearsals"
}

# install_on_path MODE HIVE KEY: PATH gets the folder where that is asked for, and is as it was afterwards; one that is too
# long for the installer's texts is left alone.
install_on_path() {
    local had='%SystemRoot%\system32;C:\tools' long place former
    former=$(value "$3" Path)
    long="$had;C:/$(printf 'x%.0s' {1..1200})"
    for was in "$had" "$long"; do
        set_value "$3" Path REG_EXPAND_SZ "$was"
        quietly "install-path-$1" 120 wine "$(echo "$inside_packages_folder"/kestrune-*-setup.exe)" /S "/$1" /PATH
        place=$(value "$2\\$uninstall_key" InstallLocation)
        if [[ $was == "$had" ]]; then
            expect "PATH with the program" "$(value "$3" Path)" "$was;$place"
        else
            expect "a long PATH" "$(value "$3" Path)" "$was"
        fi
        ln -sfn "$(winepath -u "$place" 2>/dev/null)" "$inside_making/installed"
        uninstall_program "$2"
        expect "PATH afterwards" "$(value "$3" Path)" "$was"
        rm -rf "$inside_making/installed"
    done
    [[ -z $former ]] || set_value "$3" Path REG_EXPAND_SZ "$former"
}
