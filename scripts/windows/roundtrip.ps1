# SPDX-License-Identifier: GPL-3.0-or-later
# Changes this PC, looks whether it was changed as planned, takes all of it back, and looks whether anything is left:
# roundtrip.ps1 -Programs FOLDER -Folder FOLDER [-Expected FILE...]. It changes the Windows that it runs on: for a PC that is
# thrown away afterwards. scripts/roundtrip.sh does the same to a rehearsal PC; both only call the programs.
param(
    [Parameter(Mandatory)] [string] $Programs,
    [Parameter(Mandatory)] [string] $Folder,
    [string[]] $Expected = @("$PSScriptRoot\..\roundtrip-expected.txt", "$PSScriptRoot\roundtrip-expected.txt")
)
$ErrorActionPreference = 'Stop'
$restartWanted = 3010
$cli = (Get-ChildItem -Recurse $Programs -Filter kestrune-cli.exe).FullName
$rehearse = (Get-ChildItem -Recurse $Programs -Filter kestrune-rehearse.exe).FullName
New-Item -ItemType Directory -Force $Folder | Out-Null
$Folder = (Resolve-Path $Folder).Path
$all = "$Folder\expected.txt"
Get-Content -Encoding UTF8 $Expected | Set-Content -Encoding UTF8 $all

function Check([string] $what, [int[]] $good = @(0)) {
    if ($LASTEXITCODE -notin $good) { throw "$what ended with $LASTEXITCODE" }
}

& $rehearse capture "$Folder\before" --with-names;                     Check 'capture'
& $cli plan --json "$Folder\plan.json" --html "$Folder\plan.html";     Check 'plan'
& $cli apply --yes --json "$Folder\applied.json" --log "$Folder\applied.log"; Check 'apply' @(0, $restartWanted)
& $cli verify --json "$Folder\verified.json";                          Check 'verify'
& $rehearse capture "$Folder\after" --with-names;                      Check 'capture'
& $rehearse diff "$Folder\before" "$Folder\after" --expect $all --json > "$Folder\changed.json"; Check 'diff: nothing was changed' @(1)
& $cli undo --json "$Folder\undone.json";                              Check 'undo' @(0, $restartWanted)
& $rehearse capture "$Folder\undone" --with-names;                     Check 'capture'
& $rehearse diff "$Folder\before" "$Folder\undone" --expect $all
$left = $LASTEXITCODE
# The same with neutral names, which may be shown to anybody
& $rehearse capture "$Folder\shared";                                  Check 'capture'
if ($left) { throw 'more than expected is left after undo' }
