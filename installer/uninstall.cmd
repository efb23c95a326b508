@echo off
rem Takes back what install.cmd did; give it the same argument. A DLL that a program still holds
rem stays: sign out and in again, then delete its folder by hand.
setlocal
set "HIVE=HKLM"
set "TARGET=%ProgramFiles%\Orvane"
set "HOW=/s /u"
if /i not "%~1"=="user" goto remove
set "HIVE=HKCU"
set "TARGET=%LocalAppData%\Orvane"
set "HOW=/s /u /n /i:user"

:remove
call :dissociate "*"
call :dissociate "Directory"
call :dissociate "Directory\Background"
call :dissociate "Drive"
"%SystemRoot%\System32\regsvr32.exe" %HOW% "%TARGET%\orvane.dll"
del /q "%TARGET%\orvane.dll"
rmdir "%TARGET%"
echo Orvane is uninstalled.
exit /b 0

:dissociate
"%SystemRoot%\System32\reg.exe" delete "%HIVE%\Software\Classes\%~1\shellex\ContextMenuHandlers\Orvane" /f >nul
exit /b 0
