@echo off
rem Installs Orvane for all users: copies orvane.dll, registers its class and adds it to the
rem right-click menus of files, folders, folder backgrounds and drives. Run it as administrator.
rem With the argument "user" it installs for the current user alone and needs no such rights.
setlocal
set "CLSID={493E3910-BC83-443B-9017-F5B53DB5F5C4}"
set "HIVE=HKLM"
set "TARGET=%ProgramFiles%\Orvane"
set "HOW=/s"
set "REFUSED="
if /i not "%~1"=="user" goto copy
set "HIVE=HKCU"
set "TARGET=%LocalAppData%\Orvane"
set "HOW=/s /n /i:user"

:copy
if not exist "%TARGET%" mkdir "%TARGET%"
copy /y "%~dp0orvane.dll" "%TARGET%\orvane.dll" >nul
if errorlevel 1 goto failed
"%SystemRoot%\System32\regsvr32.exe" %HOW% "%TARGET%\orvane.dll"
if errorlevel 1 goto failed
call :associate "*"
call :associate "Directory"
call :associate "Directory\Background"
call :associate "Drive"
if defined REFUSED goto failed
echo Orvane is installed in %TARGET%.
exit /b 0

:associate
"%SystemRoot%\System32\reg.exe" add "%HIVE%\Software\Classes\%~1\shellex\ContextMenuHandlers\Orvane" /ve /d "%CLSID%" /f >nul
if errorlevel 1 set "REFUSED=yes"
exit /b 0

:failed
echo Orvane could not be installed. orvane.dll must lie beside this script; the installation for
echo all users needs administrator rights.
exit /b 1
