# Installs Tintora for the current Windows user, or removes it; administrator rights are not needed. Close Fusion 360,
# unpack the whole zip file, and run this in the folder:
#
#   powershell -ExecutionPolicy Bypass -File install.ps1
#   powershell -ExecutionPolicy Bypass -File install.ps1 -Uninstall
#
# Settings (*_CmdSet.txt) and libraries (*.adsklib*) in Tintora's folder are yours: an update leaves them in place, and
# removing keeps them unless you say otherwise.
#
# This script has never been run: it was written where there is no PowerShell. That a running Fusion 360 shows as the
# process "Fusion360" is an assumption, too.

param([switch]$Uninstall)

$ErrorActionPreference = 'Stop'
Set-StrictMode -Version 2.0

$program = 'Fusion360'
$api = Join-Path $env:APPDATA 'Autodesk\Autodesk Fusion 360\API'
$addIn = Join-Path $api 'AddIns\Tintora'
$builder = Join-Path $api 'Scripts\TintoraLibraryBuilder'

function Stop-WithMessage([string]$message) {
    Write-Host $message -ForegroundColor Red
    exit 1
}

function Test-OfUser($file) {
    return $file.Name -like '*_CmdSet.txt' -or $file.Name -like '*.adsklib*'
}

function Get-Files([string]$folder) {
    if (Test-Path -LiteralPath $folder) {
        Get-ChildItem -LiteralPath $folder -Recurse -Force | Where-Object { -not $_.PSIsContainer }
    }
}

# Removes what a package put there; the folder too, unless something of the user's is in it.
function Remove-Package([string]$folder) {
    @(Get-Files $folder) | Where-Object { -not (Test-OfUser $_) } |
        ForEach-Object { Remove-Item -LiteralPath $_.FullName -Force }
    if (@(Get-Files $folder).Count -eq 0 -and (Test-Path -LiteralPath $folder)) {
        Remove-Item -LiteralPath $folder -Recurse -Force
    }
}

function Test-SameFolder([string]$one, [string]$other) {
    return (Test-Path -LiteralPath $other) -and
        (Get-Item -LiteralPath $one -Force).FullName -eq (Get-Item -LiteralPath $other -Force).FullName
}

function Copy-Package([string]$source, [string]$target) {
    New-Item -ItemType Directory -Path $target -Force | Out-Null
    Get-ChildItem -LiteralPath $source -Force |
        ForEach-Object { Copy-Item -LiteralPath $_.FullName -Destination $target -Recurse -Force }
    # What came from the internet carries a mark that can keep a module from being loaded.
    Get-Files $target | ForEach-Object { Unblock-File -LiteralPath $_.FullName }
}

# Replaces what is installed, once all of the new package has come to this disk: if it does not, nothing was touched.
function Update-Package([string]$source, [string]$target) {
    $fresh = "$target.new"
    if (Test-Path -LiteralPath $fresh) {
        Remove-Item -LiteralPath $fresh -Recurse -Force
    }
    Copy-Package $source $fresh
    Remove-Package $target
    Copy-Package $fresh $target
    Remove-Item -LiteralPath $fresh -Recurse -Force
}

function Install-Tintora {
    $source = Join-Path $PSScriptRoot 'Tintora'
    $builderSource = Join-Path $PSScriptRoot 'TintoraLibraryBuilder'
    $module = Join-Path $source 'Tintora.dll'
    if (-not (Test-Path -LiteralPath $module) -or -not (Test-Path -LiteralPath $builderSource)) {
        Stop-WithMessage "The folders Tintora and TintoraLibraryBuilder are not beside this script. Unpack the whole zip file first."
    }
    if ([IO.File]::ReadAllText($module, [Text.Encoding]::ASCII).Contains('TintoraHost.dll')) {
        Stop-WithMessage "This package is for trying Tintora without Fusion 360, which cannot load it; see README.txt. Nothing was installed."
    }
    if ((Test-SameFolder $source $addIn) -or (Test-SameFolder $builderSource $builder)) {
        Stop-WithMessage "The zip file was unpacked where Tintora is to be installed. Unpack it elsewhere and run this script there."
    }
    Update-Package $source $addIn
    Update-Package $builderSource $builder
    # Some programs leave out empty folders when they unpack, and Tintora needs this one.
    New-Item -ItemType Directory -Path (Join-Path $addIn 'resources\Libs\Materials') -Force | Out-Null
    Write-Host "Tintora is installed in $addIn."
    Write-Host "Start Fusion 360 and open Utilities > Scripts and Add-Ins to run it."
    if (@(Get-Files $addIn | Where-Object { $_.Name -like '*.adsklib' }).Count -eq 0) {
        Write-Host "It has no libraries yet: see README.txt and the chapter 'Making the RAL library' of the guide."
    }
}

function Uninstall-Tintora {
    if (-not (Test-Path -LiteralPath $addIn) -and -not (Test-Path -LiteralPath $builder)) {
        Write-Host "Tintora is not installed in $addIn."
        return
    }
    Remove-Package $addIn
    Remove-Package $builder
    $kept = @(Get-Files $addIn) + @(Get-Files $builder)
    if ($kept.Count -gt 0) {
        Write-Host "These files are yours:"
        $kept | ForEach-Object { Write-Host "  $($_.FullName)" }
        if ((Read-Host "Delete them, too? They cannot be brought back. [y/N]") -eq 'y') {
            foreach ($folder in $addIn, $builder) {
                if (Test-Path -LiteralPath $folder) {
                    Remove-Item -LiteralPath $folder -Recurse -Force
                }
            }
        } else {
            Write-Host "They were kept."
        }
    }
    Write-Host "Tintora is removed."
}

if (Get-Process -Name $program -ErrorAction SilentlyContinue) {
    Stop-WithMessage "Fusion 360 is running. Close it and run this script again."
}
if ($Uninstall) {
    Uninstall-Tintora
} else {
    Install-Tintora
}
