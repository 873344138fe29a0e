@echo off
rem To be double-clicked: collects, writes a report beside this file and opens it.
setlocal
pushd "%~dp0"
set status=1
if not exist hxahost.exe goto alone

rem Windows runs this one for administrators alone.
fltmc >nul 2>&1
if not errorlevel 1 goto collect
echo You are not running this as administrator. If no controller is found: close this
echo window, right-click report.cmd and choose "Run as administrator".
echo.

:collect
set now=
for /f %%t in ('powershell -NoProfile -Command "Get-Date -Format yyyy-MM-dd-HHmm" 2^>nul') do set "now=%%t"
rem Without PowerShell the date as this user writes it.
if not defined now set "now=%DATE:/=-%"
set "report=%CD%\report-%COMPUTERNAME%-%now%.html"
echo Collecting. This takes some minutes.
rem The task that collects for monitoring may take that long.
hxahost query --wait 900 --format html --output "%report%"
set status=%ERRORLEVEL%
if %status%==0 goto open
if %status%==4 goto nothing
echo.
if exist "%report%" goto part
echo There is no report. The last line above says why.
goto end

:part
echo The report is not complete. The last line above says why.
goto open

:nothing
echo.
echo No controller was found. Are the controller utilities in the folder zenx? The report
echo says what each of them answered.

:open
echo.
echo The report is "%report%"
start "" "%report%"
goto end

:alone
echo hxahost.exe is not in the folder of report.cmd. Unpack the whole zip into a folder,
echo and start the report.cmd that is there.

:end
popd
pause
exit /b %status%
