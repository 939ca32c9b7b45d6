# SPDX-License-Identifier: GPL-3.0-or-later
# Functions are called by their names, variables are those of the sourcing script, which has set -e:
# shellcheck shell=bash disable=SC2317,SC2154,SC2034,SC2164
# The stage "trial": the tests, and the window on a real registry. Sourced by scripts/windows.sh.

trial_key() { trial_digest; }
trial_stamp() { echo "$source_folder/build/windows/.trial"; }
trial_says() { echo "the tests and the window under Wine, as Windows 10 and as 11; about 12 minutes"; }
trial_make() {
    in_root --caller inside_trial
    write_stamp "$(trial_stamp)" "$1"
    say "pictures are in build/windows/screenshots"
}

# Of all that the trial runs and reads
trial_digest() {
    (
        cd "$source_folder"
        find tests/data -type f -exec cat {} +
        cat build/windows/bin/*.exe scripts/windows.sh scripts/windows/{desk,trial}.sh resources/machines/*/*
    ) 2>/dev/null | digest
}

# The stock tools whose places stand-ins take in the throw-away prefix
readonly stand_ins=(sc schtasks powercfg bcdedit takeown icacls taskkill)

# What clicks through the window, in this order; the Automatizer, which takes the other pages' changes back, last
readonly page_tests=(tst_realwindow tst_reallists tst_realfeatures tst_realsysteminfo)

inside_trial() {
    local version
    rm -rf "$desk_logs"/win* "$inside_build"/screenshots/win*
    for version in win10 win11; do
        say "trial: as ${windows_machines[$version]}"
        desk_begin "$version"
        run_test_suite "$version"
        lay_trial_folder
        lay_stand_ins
        lay_pc "$version"
        run_window "$version"
        run_program "$version"
        [[ $version != win11 ]] || run_host_proof
        desk_end
    done
    rm -rf "$inside_making/trial"
    grep -h 'start until' "$desk_logs"/*/program.qtest | sed 's/^.*) /windows: trial: /'
}

# run_test_suite VERSION: rehearsal machines are the same on every Windows, so that their tests are run on one alone.
# ctest finds Wine by what the build was configured with.
run_test_suite() {
    local begin=$SECONDS labels='^native$'
    [[ $1 != win11 ]] || labels='^(native|wine)$'
    # One at a time, and once more where one hangs: under load Wine loses the end of a process now and then.
    quietly tests 3000 ctest --test-dir "$inside_build" --label-regex "$labels" --no-tests=error \
        --output-on-failure --repeat until-pass:2
    say "trial: $(sed -n \
        's/^\(.*tests passed\).*out of \(.*\)/\1 of \2/p' "$desk_log/tests.txt"), in $(took $((SECONDS - begin)))"
}

# A folder of its own with the program as it is packed
lay_trial_folder() {
    local folder=$inside_making/trial program
    rm -rf "$folder"
    mkdir -p "$folder"
    for program in kestrune kestrune-cli tests_program tests_trial marker started; do
        cp -l "$inside_build/bin/$program.exe" "$folder/" 2>/dev/null || cp "$inside_build/bin/$program.exe" "$folder/"
    done
    cp -r "$inside_build"/bin/{img,machines,Translations} "$folder/"
}

# In place of the system's own tools, and where Wine has none
lay_stand_ins() {
    local system=$WINEPREFIX/drive_c/windows tool
    mkdir -p "$system"/system32/WindowsPowerShell/v1.0 "$system/syswow64"
    for tool in "${stand_ins[@]/#/system32/}" system32/WindowsPowerShell/v1.0/powershell syswow64/OneDriveSetup; do
        cp --remove-destination "$inside_build/bin/standin.exe" "$system/$tool.exe"
    done
    prefer_files_to_wines "${stand_ins[@]}"
}

# prefer_files_to_wines PROGRAM…: else Wine would take its own programs of these names
prefer_files_to_wines() {
    local names=("${@/%/.exe}")
    WINEDLLOVERRIDES+=";$(IFS=,; echo "${names[*]}")=native"
}

# lay_pc VERSION: the registry of a built-in machine, as if it belonged to the user here
lay_pc() {
    local machine=${windows_machines[$1]} script copy
    for script in "$inside_source/resources/machines/$machine"/*.reg; do
        copy=$inside_making/trial/${script##*/}
        # In UTF-16: in any other file the bytes of texts are taken for another encoding.
        printf '\xff\xfe' >"$copy"
        # The folder of the user as Wine spells it.
        # shellcheck disable=SC1003  # a backslash before a quote is meant
        sed -E 's/\\\\Users\\\\[A-Z][a-z]+\\\\/\\\\users\\\\'"$USER"'\\\\/g' "$script" | iconv -f UTF-8 -t UTF-16LE >>"$copy"
        quietly "import-$(basename "$copy" .reg)" 120 wine reg import "Z:$copy"
    done
}

# run_window VERSION: clicks through the window, and looks at the registry
run_window() {
    local test begin=$SECONDS
    export KESTRUNE_TRIAL_MACHINE=${windows_machines[$1]} KESTRUNE_STANDIN=1
    export KESTRUNE_TRIAL_PICTURES=Z:$inside_build/screenshots/$1
    mkdir -p "$inside_build/screenshots/$1"
    for test in "${page_tests[@]}"; do run_window_test "$test"; done
    expect_changes_of_pages
    run_window_test tst_realautomatizer
    run_window_test tst_realcli
    say "trial: the window in $(took $((SECONDS - begin)))"
}

run_window_test() {
    (cd "$inside_making/trial" && run_qtest "${1#tst_}" tests_trial.exe "$1")
}

# What the tests of the pages leave, as Windows' own tool sees it
expect_changes_of_pages() {
    local services='HKLM\System\CurrentControlSet\Services' records='HKCU\Software\Kestrune\Ondrevale'
    local repository='HKCU\Software\Classes\Local Settings\Software\Microsoft\Windows\CurrentVersion\AppModel\Repository'
    local news="$repository\\Packages\\Microsoft.BingNews_4.55.62231.0_x64__8wekyb3d8bbwe"
    local appraiser='Microsoft/Windows/Application Experience/Microsoft Compatibility Appraiser'
    expect "the start mode of the disabled service" "$(value "$services\\DiagTrack" Start)" 0x4
    expect "the record of the disabled service" "$(value "$records\\SVC" DiagTrack)" 0x1
    expect "the start mode of the restored service" "$(value "$services\\SysMain" Start)" 0x2
    expect "the record of the restored service" "$(value "$records\\SVC" SysMain)" ''
    expect "the record of the disabled task" "$(value "$records\\Task" "$appraiser")" 0x1
    expect "the record of the restored package" "$(value "$records\\Packages" Microsoft.BingNews)" ''
    expect "the name of the restored package" "$(value "$news" DisplayName | cut -d_ -f1)" '@{Microsoft.BingNews'
    expect "the record of the restored program" "$(value "$records\\Autorun" OneDrive)" ''
}

# run_program VERSION: kestrune.exe itself, opened on the Services page; and once more among planted programs
run_program() {
    set_value 'HKCU\Software\Kestrune\Ondrevale' lastPage REG_DWORD 1
    export KESTRUNE_TRIAL_PROGRAM=Z:$inside_making/trial/kestrune.exe
    export KESTRUNE_TRIAL_PICTURE=Z:$inside_build/screenshots/$1/kestrune.png
    (cd "$inside_making/trial" && run_qtest program tests_program.exe tst_program)
    run_window_test tst_realground
    # A registry editor that asks nobody
    cp --remove-destination "$inside_build/bin/started.exe" "$WINEPREFIX/drive_c/windows/regedit.exe"
    prefer_files_to_wines regedit
    restart_desktop
    run_window_test tst_reallinks
}

# The desktop that Wine starts with a new prefix is there before the service that hands out what programs ask it by.
restart_desktop() {
    local service='HKLM\System\CurrentControlSet\Services\RpcSs' attempt
    # The machine's registry has the service as Windows does, and Wine would look for a program that it hasn't.
    set_value "$service" ImagePath REG_SZ 'C:\windows\system32\rpcss.exe'
    wine reg delete "$service" /v DependOnService /f >"$desk_log/rpcss.txt" 2>&1 </dev/null || true
    wineserver -k || true
    wineserver -w
    quietly reboot 120 wineboot
    # On a busy computer it needs more than the ten seconds that Wine gives a service to answer, and comes all the same.
    for attempt in 1 2 3 4 5 6; do
        timeout 60 wine net start rpcss >>"$desk_log/rpcss.txt" 2>&1 </dev/null || true
        wine net start 2>/dev/null </dev/null | grep -q 'combase.dll,-5010' && return
    done
    fail "Wine's service rpcss doesn't start; what it says is in build/windows/logs"
}

# Programs of Windows that a rehearsal might start in place of its own
readonly marked_programs=(sc schtasks taskkill cmd powercfg bcdedit takeown icacls dism reg powershell OneDriveSetup)

# run_host_proof: whatever a rehearsal machine holds, it starts no program of the PC. The system's own are replaced by
# stand-ins that leave a mark; nothing else can be tried in this prefix after that.
run_host_proof() {
    local windows=$WINEPREFIX/drive_c/windows program folder place begin=$SECONDS
    local marked=()
    for program in "${marked_programs[@]}"; do
        for folder in /system32 /syswow64 '' /system32/WindowsPowerShell/v1.0; do
            place=$windows$folder/$program.exe
            mkdir -p "$(dirname "$place")"
            cp --remove-destination "$inside_build/bin/marker.exe" "$place"
            marked+=("$(sed -e 's|.*/drive_c/|C:/|' <<<"$place")")
        done
    done
    prefer_files_to_wines "${marked_programs[@]}"
    KESTRUNE_MARKED_PROGRAMS=$(IFS=';'; echo "${marked[*]}")
    export KESTRUNE_MARKED_PROGRAMS
    QTEST_FUNCTION_TIMEOUT=800000 quietly hostuntouched 900 \
        wine "$inside_build/bin/tests_rehearse.exe" tst_hostuntouched -o "Z:$desk_log/hostuntouched.qtest,txt"
    without_warnings hostuntouched
    say "trial: nothing of the host is started, in $(took $((SECONDS - begin)))"
}
