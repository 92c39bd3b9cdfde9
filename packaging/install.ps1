# Installs Tintora for the current Windows user, or removes it; administrator rights are not needed. Close Fusion 360,
# unpack the whole zip file, and run this in the folder:
#
#   powershell -ExecutionPolicy Bypass -File install.ps1
#   powershell -ExecutionPolicy Bypass -File install.ps1 -Uninstall
#
# Only what a package put there is replaced or removed. All else in Tintora's folder is yours and stays: settings,
# libraries, pictures beside them.
#
# This script has never been run: it was written where there is no PowerShell. That Fusion 360 looks for add-ins and
# scripts below the folder $api, and that it shows as the process $program while it runs, are assumptions, too.

param([switch]$Uninstall)

$ErrorActionPreference = 'Stop'
Set-StrictMode -Version 2.0

$program = 'Fusion360'
$headlessHost = 'TintoraHost.dll'
$api = Join-Path $env:APPDATA 'Autodesk\Autodesk Fusion 360\API'
$addIn = Join-Path $api 'AddIns\Tintora'
$builder = Join-Path $api 'Scripts\TintoraLibraryBuilder'

# What packages put into the two folders.
$addInFiles = @(
    'Tintora.dll',
    'Tintora.manifest',
    'Tintora_UsersGuide.pdf',
    'resources\BtnApply\*.png',
    'resources\BtnSelects\*.png',
    'resources\Button\*.png',
    'resources\Help\*.png',
    'resources\RemoveAppearance\*.png',
    'resources\Libs\Appearances\RAL_COLORS\RAL????\16x16*.png'
)
$builderFiles = @(
    'TintoraLibraryBuilder.dll',
    'TintoraLibraryBuilder.manifest'
)

function Stop-WithMessage([string]$message) {
    Write-Host $message -ForegroundColor Red
    exit 1
}

# Names of all files in a folder, at every depth; none when it is not there.
function Get-Files([string]$folder) {
    if (Test-Path -LiteralPath $folder) {
        [IO.Directory]::GetFiles($folder, '*', [IO.SearchOption]::AllDirectories)
    }
}

# Names of those that a package put there.
function Get-PackageFiles([string]$folder, [string[]]$patterns) {
    foreach ($file in @(Get-Files $folder)) {
        $name = $file.Substring($folder.Length + 1)
        if (@($patterns | Where-Object { $name -like $_ }).Count -gt 0) {
            $file
        }
    }
}

# Whether a folder is another one or lies in it.
function Test-Within([string]$folder, [string]$other) {
    $inner = [IO.Path]::GetFullPath($folder).TrimEnd('\') + '\'
    $outer = [IO.Path]::GetFullPath($other).TrimEnd('\') + '\'
    return $inner.StartsWith($outer, [StringComparison]::OrdinalIgnoreCase)
}

function Test-Free([string]$file) {
    try {
        [IO.File]::Open($file, 'Open', 'ReadWrite', 'None').Close()
        return $true
    } catch {
        return $false
    }
}

# Stops, with everything as it was, when a file that is to be replaced or removed cannot be.
function Assert-Free {
    $installed = @(Get-PackageFiles $addIn $addInFiles) + @(Get-PackageFiles $builder $builderFiles)
    $held = @($installed | Where-Object { -not (Test-Free $_) })
    if ($held.Count -gt 0) {
        $names = $held -join "`n  "
        Stop-WithMessage "These files are in use or write-protected:`n  $names`nClose the programs that use them and run this script again. Nothing was changed."
    }
}

function Remove-PackageFiles {
    foreach ($file in @(Get-PackageFiles $addIn $addInFiles) + @(Get-PackageFiles $builder $builderFiles)) {
        Remove-Item -LiteralPath $file -Force
    }
}

function Remove-EmptyFolders([string]$folder) {
    if (Test-Path -LiteralPath $folder) {
        $inside = [IO.Directory]::GetDirectories($folder, '*', [IO.SearchOption]::AllDirectories)
        # Longer names first: what is in a folder goes before it.
        foreach ($each in @($inside | Sort-Object -Property Length -Descending) + @($folder)) {
            if ([IO.Directory]::GetFileSystemEntries($each).Length -eq 0) {
                [IO.Directory]::Delete($each)
            }
        }
    }
}

function Copy-Package([string]$source, [string]$target) {
    New-Item -ItemType Directory -Path $target -Force | Out-Null
    Get-ChildItem -LiteralPath $source -Force |
        ForEach-Object { Copy-Item -LiteralPath $_.FullName -Destination $target -Recurse -Force }
}

# Replaces what is installed once all of the new package has come to this disk.
function Update-Packages([string]$source, [string]$builderSource) {
    Assert-Free
    $stage = Join-Path $env:TEMP ('Tintora-' + [Guid]::NewGuid())
    try {
        Copy-Package $source (Join-Path $stage 'Tintora')
        Copy-Package $builderSource (Join-Path $stage 'TintoraLibraryBuilder')
        # What came from the internet carries a mark that can keep a module from being loaded.
        Get-Files $stage | ForEach-Object { Unblock-File -LiteralPath $_ }
        Remove-PackageFiles
        Copy-Package (Join-Path $stage 'Tintora') $addIn
        Copy-Package (Join-Path $stage 'TintoraLibraryBuilder') $builder
    } finally {
        if (Test-Path -LiteralPath $stage) {
            Remove-Item -LiteralPath $stage -Recurse -Force
        }
    }
}

# Tells which chapter of the guide helps where a folder holds no library yet.
function Show-MissingLibraries([string]$kind, [string]$chapter) {
    $folder = Join-Path $addIn "resources\Libs\$kind"
    if (@([IO.Directory]::GetFiles($folder, '*.adsklib*')).Count -eq 0) {
        Write-Host "There is no library in $folder yet: see README.txt and the chapter '$chapter' of the guide."
    }
}

function Install-Tintora {
    $source = Join-Path $PSScriptRoot 'Tintora'
    $builderSource = Join-Path $PSScriptRoot 'TintoraLibraryBuilder'
    $module = Join-Path $source 'Tintora.dll'
    if (-not (Test-Path -LiteralPath $module) -or -not (Test-Path -LiteralPath $builderSource)) {
        Stop-WithMessage "The folders Tintora and TintoraLibraryBuilder are not beside this script. Unpack the whole zip file first."
    }
    if ([IO.File]::ReadAllText($module, [Text.Encoding]::ASCII).Contains($headlessHost)) {
        Stop-WithMessage "This package is for trying Tintora without Fusion 360, which cannot load it; see README.txt. Nothing was installed."
    }
    if ((Test-Within $source $addIn) -or (Test-Within $builderSource $builder)) {
        Stop-WithMessage "The zip file was unpacked where Tintora is to be installed. Unpack it elsewhere and run this script there."
    }
    if (-not (Test-Path -LiteralPath $api)) {
        Write-Warning "There is no folder $api. Either Fusion 360 was never started by this Windows user, or it looks for add-ins elsewhere; then it does not find Tintora."
    }
    Update-Packages $source $builderSource
    # Some programs leave out empty folders when they unpack, and Tintora needs this one.
    New-Item -ItemType Directory -Path (Join-Path $addIn 'resources\Libs\Materials') -Force | Out-Null
    Write-Host "Tintora is installed in $addIn."
    Write-Host "Start Fusion 360 and open Utilities > Scripts and Add-Ins to run it."
    Show-MissingLibraries 'Appearances' 'Making the RAL library'
    Show-MissingLibraries 'Materials' 'A library of materials'
}

function Uninstall-Tintora {
    if (-not (Test-Path -LiteralPath $addIn) -and -not (Test-Path -LiteralPath $builder)) {
        Write-Host "Tintora is not installed in $addIn."
        return
    }
    Assert-Free
    Remove-PackageFiles
    Remove-EmptyFolders $addIn
    Remove-EmptyFolders $builder
    Write-Host "Tintora is removed."
    $kept = @(Get-Files $addIn) + @(Get-Files $builder)
    if ($kept.Count -gt 0) {
        Write-Host "These files did not come with Tintora and were kept; delete them by hand if you do not need them:"
        $kept | ForEach-Object { Write-Host "  $_" }
    }
}

if ((Test-Within $PSScriptRoot $addIn) -or (Test-Within $PSScriptRoot $builder)) {
    Stop-WithMessage "This script lies in a folder that it would change. Unpack the zip file elsewhere and run it there."
}
if (Get-Process -Name $program -ErrorAction SilentlyContinue) {
    Stop-WithMessage "Fusion 360 is running. Close it and run this script again."
}
if ($Uninstall) {
    Uninstall-Tintora
} else {
    Install-Tintora
}
