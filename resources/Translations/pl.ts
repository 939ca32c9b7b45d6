<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<!-- One context for all: see cmake/translations.cmake. -->
<context>
<name>texts</name>
<message>
<source>  20   (variable and long quantum, foreground boost X1)</source>
<translation>  20   (zmienny i długi kwant, wzmocnienie pierwszego planu X1)</translation>
</message>
<message>
<source>  21   (variable and long quantum, foreground boost X2)</source>
<translation>  21   (zmienny i długi kwant, wzmocnienie pierwszego planu X2)</translation>
</message>
<message>
<source>  22   (variable and long quantum, foreground boost X3)</source>
<translation>  22   (zmienny i długi kwant, wzmocnienie pierwszego planu X3)</translation>
</message>
<message>
<source>  24   (fixed and long quantum, foreground boost X1) (not recommended)</source>
<translation>  24   (stały i długi kwant, wzmocnienie pierwszego planu X1) (niezalecane)</translation>
</message>
<message>
<source>  36   (variable and short quantum, foreground boost X1)</source>
<translation>  36   (zmienny i krótki kwant, wzmocnienie pierwszego planu X1)</translation>
</message>
<message>
<source>  37   (variable and short quantum, foreground boost X2)</source>
<translation>  37   (zmienny i krótki kwant, wzmocnienie pierwszego planu X2)</translation>
</message>
<message>
<source>  38   (variable and short quantum, foreground boost X3) (recommended)</source>
<translation>  38   (zmienny i krótki kwant, wzmocnienie pierwszego planu X3) (zalecane)</translation>
</message>
<message>
<source>  40   (fixed and short quantum, foreground boost X1) (not recommended)</source>
<translation>  40   (stały i krótki kwant, wzmocnienie pierwszego planu X1) (niezalecane)</translation>
</message>
<message>
<source>1</source>
<translation>1</translation>
</message>
<message>
<source>10</source>
<translation>10</translation>
</message>
<message>
<source>2</source>
<translation>2</translation>
</message>
<message>
<source>3</source>
<translation>3</translation>
</message>
<message>
<source>30</source>
<translation>30</translation>
</message>
<message>
<source>4</source>
<translation>4</translation>
</message>
<message>
<source>5</source>
<translation>5</translation>
</message>
<message>
<source>60</source>
<translation>60</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot;font-family:'Lucida Console'; font-size:10pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;table border=&quot;0&quot; width=&quot;100%&quot; cellspacing=&quot;10&quot; cellpadding=&quot;0&quot;&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;%winName&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Edition:   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Build:   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Display version:   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Installed on SSD:   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Mother-board:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Model:   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Bios version:   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Bios date:   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Processor:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Default frequency:   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Cores / Threads:   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;L2 cache size:   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;L3 cache size:   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Socket:   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading:   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtualization:   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Memory:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Capacity:   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Free:   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequency:   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Form Factor:   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtual Memory:   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Graphics card and screen:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Driver version:   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Driver date:   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Screen:   loading screen info...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Resolution:   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Resolution max:   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Refresh rate:   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Refresh rate max:   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR:   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Disk:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;loading disk info...&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot;font-family:'Lucida Console'; font-size:10pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;table border=&quot;0&quot; width=&quot;100%&quot; cellspacing=&quot;10&quot; cellpadding=&quot;0&quot;&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;%winName&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Edycja:   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Kompilacja:   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Wersja:   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Zainstalowano na SSD:   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Płyta główna:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Model:   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Wersja BIOS:   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Data BIOS:   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Procesor:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Częstotliwość:   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Rdzenie / wątki:   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Pamięć L2:   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Pamięć L3:   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Gniazdo:   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading:   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Wirtualizacja:   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Pamięć:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Pojemność:   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Wolne:   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Częstotliwość:   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Format:   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Pamięć wirtualna:   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Karta graficzna i ekran:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Wersja sterownika:   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Data sterownika:   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Ekran:   ładowanie informacji o ekranie...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Rozdzielczość:   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Rozdzielczość maks.:   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Odświeżanie:   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Odświeżanie maks.:   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR:   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Dysk:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;ładowanie informacji o dysku...&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot;font-family:'Segoe UI'; font-size:10pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Version:&lt;/span&gt;   beta %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Date:&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Author:&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Contact:&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Website:&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Programming language and framework:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ with Qt 6, licensed under the GNU LGPL version 3&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Developped for Windows 10 and Windows 11&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Purpose:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;This application aims to improve general performance without distorting Windows, by helping you disable all features, programs, services, scheduled tasks, which may be superfluous and harm performance. It also configures some internal system features that are inaccessible through an interface and other options allow you to reduce the space occupied by Windows on the hard disk. (uninstalling unnecessary Windows applications, cleaning the WinSxs folder, ...)&lt;br /&gt;All in a few clicks and with the possibility of restoring to original values. &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Important informations:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;All options in this application are reversible.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Be careful with the Services section. Do not disable services if you are not really aware of what they are, dependencies etc... USE THE ASSISTANT BUTTON!!!&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot;font-family:'Segoe UI'; font-size:10pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Wersja:&lt;/span&gt;   beta %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Data:&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Autor:&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Kontakt:&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Witryna:&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Język programowania i platforma:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ z Qt 6, na licencji GNU LGPL w wersji 3&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Opracowano dla Windows 10 i Windows 11&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Cel:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Ta aplikacja ma poprawić ogólną wydajność bez zniekształcania systemu Windows. Pomaga wyłączyć wszystkie funkcje, programy, usługi i zaplanowane zadania, które mogą być zbyteczne i pogarszać wydajność. Konfiguruje też niektóre wewnętrzne funkcje systemu niedostępne w żadnym interfejsie, a inne opcje pozwalają zmniejszyć miejsce zajmowane przez Windows na dysku twardym. (odinstalowanie zbędnych aplikacji Windows, czyszczenie folderu WinSxS, ...)&lt;br /&gt;Wszystko za pomocą kilku kliknięć i z możliwością przywrócenia pierwotnych wartości. &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Ważne informacje:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;Wszystkie opcje w tej aplikacji są odwracalne.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Zachowaj ostrożność w sekcji Usługi. Nie wyłączaj usług, jeśli naprawdę nie wiesz, czym są, jakie mają zależności itd. UŻYJ PRZYCISKU ASYSTENT!!!&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- FIXED quantum: the processor time allocated to applications is divided equally between applications,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;while VARIABLE quantum allow applications to hold the processor for longer if needed.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- SHORT quantum: the processor time allocated to applications is faster to switch from task to task,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;as opposed to LONG quantum, which allocates more processor time to the application.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- FOREGROUND BOOST X times: the quantum is increased X times in favor of the application&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;that is in the foreground.&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;In a pure gaming context, depending on the value selected, you favor the FPS (22, 21),&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;FPS but also responsiveness (38, 37), or latency of your keyboard/mouse or gamepad (36, 24, 40).&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- STAŁY kwant: czas procesora jest dzielony równo między aplikacje,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;a kwant ZMIENNY pozwala im w razie potrzeby dłużej zajmować procesor.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- KRÓTKI kwant: czas procesora szybciej przechodzi od zadania do zadania,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;a kwant DŁUGI przydziela aplikacji więcej czasu procesora.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- WZMOCNIENIE PIERWSZEGO PLANU X razy: kwant rośnie X razy na korzyść&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;aplikacji na pierwszym planie.&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;W samych grach, zależnie od wartości, zyskują klatki na sekundę (22, 21),&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;FPS i czas reakcji (38, 37) lub opóźnienie klawiatury/myszy/pada (36, 24, 40).&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;czytaj więcej&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Advanced optimizations via motherboard BIOS settings &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Zaawansowane optymalizacje w ustawieniach BIOS płyty głównej &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;czytaj więcej&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft acknowledges performance impact with Memory Integrity and VMP enabled &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft przyznaje, że włączone integralność pamięci i VMP wpływają na wydajność &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;czytaj więcej&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;The WinSxS folder is an essential system component that serves as a repository for storing multiple versions of system files, allowing Windows to maintain good compatibility &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Folder WinSxS jest niezbędnym składnikiem systemu, w którym przechowywanych jest wiele wersji plików systemowych, dzięki czemu Windows zachowuje dobrą zgodność &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;czytaj więcej&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>%1 bytes</source>
<translation>%1 bajtów</translation>
</message>
<message>
<source>%1 of %2 are as they were.</source>
<translation>%1 z %2 jest tak, jak było.</translation>
</message>
<message>
<source>&amp;Sessions:</source>
<translation>&amp;Sesje:</translation>
</message>
<message>
<source>Clear the search</source>
<translation>Wyczyść wyszukiwanie</translation>
</message>
<message>
<source>Preview…</source>
<translation>Podgląd…</translation>
</message>
<message>
<source>Preview of Optimize</source>
<translation>Podgląd optymalizacji</translation>
</message>
<message>
<source>After Optimize</source>
<translation>Po optymalizacji</translation>
</message>
<message>
<source>After Restore</source>
<translation>Po przywróceniu</translation>
</message>
<message>
<source>Comes back</source>
<translation>Wraca</translation>
</message>
<message>
<source>Progress</source>
<translation>Postęp</translation>
</message>
<message>
<source>exactly</source>
<translation>dokładnie</translation>
</message>
<message>
<source>as a fixed value</source>
<translation>ze stałą wartością</translation>
</message>
<message>
<source>It is in the Store: %1</source>
<translation>Jest w sklepie Store: %1</translation>
</message>
<message>
<source>not at all</source>
<translation>wcale</translation>
</message>
<message>
<source>by Restore only</source>
<translation>tylko przez przywrócenie</translation>
</message>
<message>
<source>%1 come back exactly</source>
<translation>%1 wraca dokładnie</translation>
</message>
<message>
<source>%1 as a fixed value</source>
<translation>%1 ze stałą wartością</translation>
</message>
<message>
<source>%1 not at all</source>
<translation>%1 wcale</translation>
</message>
<message>
<source>%1 are changed by Restore only</source>
<translation>%1 zmienia tylko przywrócenie</translation>
</message>
<message>
<source>Programs started at logon</source>
<translation>Programy uruchamiane przy logowaniu</translation>
</message>
<message>
<source>System options</source>
<translation>Opcje systemu</translation>
</message>
<message>
<source>Files</source>
<translation>Pliki</translation>
</message>
<message>
<source>Other registry values</source>
<translation>Inne wartości rejestru</translation>
</message>
<message>
<source>Kestrune's own records</source>
<translation>Własne wpisy Kestrune</translation>
</message>
<message>
<source>Copying this PC…</source>
<translation>Kopiowanie tego komputera…</translation>
</message>
<message>
<source>Trying it on a copy…</source>
<translation>Próba na kopii…</translation>
</message>
<message>
<source>Trying it on the copy…</source>
<translation>Próba na tej kopii…</translation>
</message>
<message>
<source>There is no preview: %1</source>
<translation>Nie ma podglądu: %1</translation>
</message>
<message>
<source>What the next Optimize would change, and what the Restore button would bring back:</source>
<translation>Co zmieniłaby następna optymalizacja i co cofnąłby przycisk przywracania:</translation>
</message>
<message>
<source>“Way back…” brings back more than Restore: what was noted before each change.</source>
<translation>„Droga powrotna…” cofa więcej niż przywracanie: to, co zanotowano przed każdą zmianą.</translation>
</message>
<message>
<source>This PC was looked at without Admin rights: what needs them is missing here.</source>
<translation>Ten komputer sprawdzono bez uprawnień administratora: brakuje tu tego, co ich wymaga.</translation>
</message>
<message>
<source>With Admin rights a preview needs a copy of this app that nobody else can change, such as the installer makes in the folder for programs. Without Admin rights it works from any folder.</source>
<translation>Z uprawnieniami administratora podgląd wymaga kopii tej aplikacji, której nikt inny nie może zmienić, takiej jak ta, którą instalator umieszcza w folderze programów. Bez nich działa z dowolnego folderu.</translation>
</message>
<message>
<source>A preview needs the folder “rehearse” of this app, which isn't there.</source>
<translation>Podgląd wymaga folderu „rehearse” tej aplikacji, którego tu nie ma.</translation>
</message>
<message>
<source>Windows was updated from build %1 to %2 since. No longer in force: %3.</source>
<translation>Od tego czasu system Windows przeszedł z kompilacji %1 na %2. Już nie obowiązuje: %3.</translation>
</message>
<message>
<source>automatic (delayed)</source>
<translation>automatyczny (opóźniony)</translation>
</message>
<message>
<source>not installed</source>
<translation>nie zainstalowane</translation>
</message>
<message>
<source>starts</source>
<translation>uruchamia się</translation>
</message>
<message>
<source>doesn't start</source>
<translation>nie uruchamia się</translation>
</message>
<message>
<source>your setting</source>
<translation>obecne ustawienie</translation>
</message>
<message>
<source>applied</source>
<translation>zastosowano</translation>
</message>
<message>
<source>applied in part</source>
<translation>zastosowano częściowo</translation>
</message>
<message>
<source>a fixed value</source>
<translation>stała wartość</translation>
</message>
<message>
<source>not there</source>
<translation>brak</translation>
</message>
<message>
<source>but not as before</source>
<translation>ale nie jak przedtem</translation>
</message>
<message>
<source>Before the journal, not exact</source>
<translation>Przed dziennikiem, niedokładnie</translation>
</message>
<message>
<source>%1 (by the system)</source>
<translation>%1 (przez system)</translation>
</message>
<message>
<source>%1 (by another account)</source>
<translation>%1 (przez inne konto)</translation>
</message>
<message>
<source>Page: %1</source>
<translation>Strona: %1</translation>
</message>
<message>
<source>&amp;Take back</source>
<translation>&amp;Cofnij</translation>
</message>
<message>
<source>Clean-up of the WinSxS folder</source>
<translation>Czyszczenie folderu WinSxS</translation>
</message>
<message>
<source>Windows keeps no copy of what this removes</source>
<translation>Windows nie zachowuje kopii tego, co zostało usunięte</translation>
</message>
<message>
<source>its files are gone from this PC; get it from the Store</source>
<translation>jego plików nie ma już na tym komputerze; można go pobrać ze sklepu Microsoft Store</translation>
</message>
<message>
<source>Not everything was done.</source>
<translation>Nie wszystko zostało wykonane.</translation>
</message>
<message>
<source>a later session has changed it, too</source>
<translation>późniejsza sesja też to zmieniła</translation>
</message>
<message>
<source>A newer version of Kestrune is available!<byte value="xd"/>
Would you like to visit the website for download?<byte value="xd"/>
<byte value="xd"/>
Current version: %1<byte value="xd"/>
Online version: %2</source>
<translation>Dostępna jest nowsza wersja programu Kestrune!<byte value="xd"/>
Czy chcesz odwiedzić witrynę, aby ją pobrać?<byte value="xd"/>
<byte value="xd"/>
Bieżąca wersja: %1<byte value="xd"/>
Wersja online: %2</translation>
</message>
<message>
<source>About</source>
<translation>O programie</translation>
</message>
<message>
<source>absent</source>
<translation>brak</translation>
</message>
<message>
<source>Add indexing attribute of %1 finished</source>
<translation>Dodawanie atrybutu indeksowania do %1 zakończone</translation>
</message>
<message>
<source>Add indexing attribute of Windows partition %1</source>
<translation>Dodawanie atrybutu indeksowania do partycji Windows %1</translation>
</message>
<message>
<source>Apply a profile</source>
<translation>Zastosuj profil</translation>
</message>
<message>
<source>Analyze</source>
<translation>Analizuj</translation>
</message>
<message>
<source>Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring some that are inaccessible through an interface.
Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages.</source>
<translation>Analizuj i optymalizuj system Windows, aby poprawić ogólną wydajność przez wyłączenie zbędnych funkcji i skonfigurowanie tych, które nie są dostępne w żadnym interfejsie.
Optymalizacje pochodzą ze stron Usługi, Zaplanowane zadania, Programy i Funkcje.</translation>
</message>
<message>
<source>Application to play PC games if you have a Gamepass account (paid)</source>
<translation>Aplikacja do grania w gry PC z (płatną) subskrypcją Game Pass</translation>
</message>
<message>
<source>Apply</source>
<translation>Zastosuj</translation>
</message>
<message>
<source>Apply features</source>
<translation>Stosowanie funkcji</translation>
</message>
<message>
<source>Apply features finished successfully.</source>
<translation>Stosowanie funkcji zakończone pomyślnie.</translation>
</message>
<message>
<source>Are you sure to disable all checked services?</source>
<translation>Czy na pewno chcesz wyłączyć wszystkie zaznaczone usługi?</translation>
</message>
<message>
<source>Are you sure to disable all checked tasks?</source>
<translation>Czy na pewno chcesz wyłączyć wszystkie zaznaczone zadania?</translation>
</message>
<message>
<source>Are you sure you want to restore the original values?<byte value="xd"/>
All features, applications, services and tasks will be restored.</source>
<translation>Czy na pewno chcesz przywrócić pierwotne wartości?<byte value="xd"/>
Wszystkie funkcje, aplikacje, usługi i zadania zostaną przywrócone.</translation>
</message>
<message>
<source>Are you sure you want to restore the startup of all scheduled tasks?</source>
<translation>Czy na pewno chcesz przywrócić uruchamianie wszystkich zaplanowanych zadań?</translation>
</message>
<message>
<source>as it was</source>
<translation>jak było</translation>
</message>
<message>
<source>ASSISTANT - disable a list of non vital services</source>
<translation>ASYSTENT - wyłącz zbędne usługi z listy</translation>
</message>
<message>
<source>ASSISTANT - disable a list of scheduled tasks</source>
<translation>ASYSTENT - wyłącz zaplanowane zadania z listy</translation>
</message>
<message>
<source>Assistant - no services to deactivate</source>
<translation>Asystent - brak usług do wyłączenia</translation>
</message>
<message>
<source>Assistant - no tasks to deactivate</source>
<translation>Asystent - brak zadań do wyłączenia</translation>
</message>
<message>
<source>at boot</source>
<translation>przy rozruchu</translation>
</message>
<message>
<source>Attributes of %1</source>
<translation>Atrybuty: %1</translation>
</message>
<message>
<source>Auto</source>
<translation>Auto</translation>
</message>
<message>
<source>Auto started programs disabled:</source>
<translation>Wyłączone programy autostartu:</translation>
</message>
<message>
<source>automatic</source>
<translation>automatycznie</translation>
</message>
<message>
<source>Automatic start</source>
<translation>Uruchamianie automatyczne</translation>
</message>
<message>
<source>Automatically started programs</source>
<translation>Programy uruchamiane automatycznie</translation>
</message>
<message>
<source>Autorun</source>
<translation>Autostart</translation>
</message>
<message>
<source>Autorun program: disable %1 done</source>
<translation>Program autostartu: wyłączanie %1 zakończone</translation>
</message>
<message>
<source>Autorun program: enable %1 done</source>
<translation>Program autostartu: włączanie %1 zakończone</translation>
</message>
<message>
<source>Autorun:</source>
<translation>Autostart:</translation>
</message>
<message>
<source>Autorun: can be disabled: </source>
<translation>Autostart: można wyłączyć: </translation>
</message>
<message>
<source>Backup file exists</source>
<translation>Plik kopii zapasowej istnieje</translation>
</message>
<message>
<source>Before</source>
<translation>Przedtem</translation>
</message>
<message>
<source>Bluetooth audio</source>
<translation>Dźwięk Bluetooth</translation>
</message>
<message>
<source>Boot option %1</source>
<translation>Opcja rozruchu %1</translation>
</message>
<message>
<source>broken off</source>
<translation>przerwane</translation>
</message>
<message>
<source>Broken off: way back…</source>
<translation>Przerwane: droga powrotna…</translation>
</message>
<message>
<source>by the system</source>
<translation>przez system</translation>
</message>
<message>
<source>Cancel</source>
<translation>Anuluj</translation>
</message>
<message>
<source>Cannot restore if you have not yet optimized!</source>
<translation>Nie można przywrócić, jeśli nie przeprowadzono optymalizacji!</translation>
</message>
<message>
<source>Another instance of the program is changing this PC. Try again when it has finished.</source>
<translation>Inna instancja programu właśnie zmienia ten komputer. Spróbuj ponownie, gdy skończy.</translation>
</message>
<message>
<source>Capacity:</source>
<translation>Pojemność:</translation>
</message>
<message>
<source>Change</source>
<translation>Zmiana</translation>
</message>
<message>
<source>changed</source>
<translation>zmienione</translation>
</message>
<message>
<source>changed again</source>
<translation>zmienione ponownie</translation>
</message>
<message>
<source>Changes</source>
<translation>Zmiany</translation>
</message>
<message>
<source>Check all</source>
<translation>Zaznacz wszystko</translation>
</message>
<message>
<source>Check update of Kestrune version</source>
<translation>Sprawdzaj aktualizacje programu Kestrune</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool</source>
<translation>Wyczyść folder WinSxS narzędziem Microsoft DISM</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)</source>
<translation>Wyczyść folder WinSxS narzędziem Microsoft DISM  (obecny rozmiar: %1 GB)</translation>
</message>
<message>
<source>Close</source>
<translation>Zamknij</translation>
</message>
<message>
<source>Comments</source>
<translation>Komentarze</translation>
</message>
<message>
<source>Configure auto started programs done!</source>
<translation>Konfigurowanie programów autostartu zakończone!</translation>
</message>
<message>
<source>Content indexing off</source>
<translation>Indeksowanie zawartości wyłączone</translation>
</message>
<message>
<source>Content indexing on</source>
<translation>Indeksowanie zawartości włączone</translation>
</message>
<message>
<source>CPU</source>
<translation>CPU</translation>
</message>
<message>
<source>Dark</source>
<translation>Ciemny</translation>
</message>
<message>
<source>Date of the last execution</source>
<translation>Data ostatniego wykonania</translation>
</message>
<message>
<source>Description</source>
<translation>Opis</translation>
</message>
<message>
<source>Development applet</source>
<translation>Aplet dla deweloperów</translation>
</message>
<message>
<source>Disable advanced indexing options</source>
<translation>Wyłącz zaawansowane opcje indeksowania</translation>
</message>
<message>
<source>Disable automatic boot disk optimization</source>
<translation>Wyłącz automatyczną optymalizację dysku rozruchowego</translation>
</message>
<message>
<source>Disable checked programs</source>
<translation>Wyłącz zaznaczone programy</translation>
</message>
<message>
<source>DISABLE checked services</source>
<translation>WYŁĄCZ zaznaczone usługi</translation>
</message>
<message>
<source>Disable checked services</source>
<translation>Wyłączanie zaznaczonych usług</translation>
</message>
<message>
<source>Disable checked services finished</source>
<translation>Wyłączanie zaznaczonych usług zakończone</translation>
</message>
<message>
<source>DISABLE checked tasks</source>
<translation>WYŁĄCZ zaznaczone zadania</translation>
</message>
<message>
<source>Disable clearing of virtual memory swap file on every shutdown</source>
<translation>Wyłącz czyszczenie pliku stronicowania przy każdym zamknięciu systemu</translation>
</message>
<message>
<source>Disable cloud backup and restore functionalities</source>
<translation>Wyłącz kopię zapasową i przywracanie w chmurze</translation>
</message>
<message>
<source>Disable CPU power throttling
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Wyłącz ograniczanie zasilania procesora
(oszczędzanie energii, optymalizacja niezalecana dla laptopów)</translation>
</message>
<message>
<source>Disable distribution optimization of Windows updates</source>
<translation>Wyłącz optymalizację dostarczania aktualizacji systemu Windows</translation>
</message>
<message>
<source>Disable dynamic tick of system timers
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Wyłącz dynamiczny takt zegarów systemowych
(oszczędzanie energii, optymalizacja niezalecana dla laptopów)</translation>
</message>
<message>
<source>Disable enhance pointer precision
(to achieve precise mouse control and muscle memory)</source>
<translation>Wyłącz zwiększoną precyzję wskaźnika
(umożliwia precyzyjne sterowanie myszą i pamięć mięśniową)</translation>
</message>
<message>
<source>Disable fast start-up  (Windows function designed for HDD and not SSD)</source>
<translation>Wyłącz szybkie uruchamianie  (funkcja Windows przeznaczona dla HDD, nie SSD)</translation>
</message>
<message>
<source>Disable files history (even in explorer)</source>
<translation>Wyłącz historię plików (także w Eksploratorze)</translation>
</message>
<message>
<source>Disable game recording and broadcasting</source>
<translation>Wyłącz nagrywanie i transmitowanie gier</translation>
</message>
<message>
<source>Disable Gamebar</source>
<translation>Wyłącz Game Bar</translation>
</message>
<message>
<source>Disable hibernation mode</source>
<translation>Wyłącz tryb hibernacji</translation>
</message>
<message>
<source>Disable hibernation mode  (gain %1 GB of storage space)</source>
<translation>Wyłącz tryb hibernacji  (zwalnia %1 GB miejsca na dysku)</translation>
</message>
<message>
<source>Disable HPET  (High Precision Event Timer)
(use invariant TSC instead which may be faster for gaming)
(important: do not disable HPET in BIOS settings)</source>
<translation>Wyłącz HPET  (High Precision Event Timer)
(używa niezmiennego TSC, który może być szybszy w grach)
(ważne: nie wyłączaj HPET w ustawieniach BIOS)</translation>
</message>
<message>
<source>Disable last access time stamps  (NTFS drive only)</source>
<translation>Wyłącz znaczniki czasu ostatniego dostępu  (tylko dyski NTFS)</translation>
</message>
<message>
<source>Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)</source>
<translation>Wyłącz LockApp.exe  (dodatkowe informacje na ekranie blokady)</translation>
</message>
<message>
<source>Disable Multiplane Overlay (MPO)
(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,
especially for video playback apps)</source>
<translation>Wyłącz Multiplane Overlay (MPO)
(może usunąć migotanie lub zacinanie, ALE traci się optymalizacje
pełnego ekranu, zwłaszcza w aplikacjach do odtwarzania wideo)</translation>
</message>
<message>
<source>Disable Nagle’s Algorithm
(may improve the real-time responsiveness of your network connection, but may increase traffic)</source>
<translation>Wyłącz algorytm Nagle’a
(może poprawić szybkość reakcji połączenia sieciowego, ale zwiększyć ruch)</translation>
</message>
<message>
<source>Disable periodic registry backup</source>
<translation>Wyłącz okresową kopię zapasową rejestru</translation>
</message>
<message>
<source>Disable Prefetcher  (prevents preloading of applications)</source>
<translation>Wyłącz Prefetcher  (zapobiega wstępnemu ładowaniu aplikacji)</translation>
</message>
<message>
<source>Disable programs</source>
<translation>Wyłączanie programów</translation>
</message>
<message>
<source>Disable scheduled tasks</source>
<translation>Wyłączanie zaplanowanych zadań</translation>
</message>
<message>
<source>Disable scheduled tasks completed successfully</source>
<translation>Wyłączanie zaplanowanych zadań zakończone pomyślnie</translation>
</message>
<message>
<source>Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)</source>
<translation>Wyłącz SearchHost.exe  (wyszukiwanie plików; zaawansowane może źle działać)</translation>
</message>
<message>
<source>Disable services</source>
<translation>Wyłączanie usług</translation>
</message>
<message>
<source>Disable SvcHost splitting  (reduce the number of svchost.exe process)</source>
<translation>Wyłącz podział SvcHost  (zmniejsza liczbę procesów svchost.exe)</translation>
</message>
<message>
<source>Disable telemetry (data collection for Microsoft)
(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)</source>
<translation>Wyłącz telemetrię (zbieranie danych dla firmy Microsoft)
(Resztę wyłącza się na stronach Usługi, Zaplanowane zadania lub Optymalizuj)</translation>
</message>
<message>
<source>Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Wyłącz ULPS  (Ultra Low Power State, tylko dla kart graficznych AMD)
(oszczędzanie energii, optymalizacja niezalecana dla laptopów)</translation>
</message>
<message>
<source>Disable Windows write-cache buffer flushing</source>
<translation>Wyłącz opróżnianie buforu pamięci podręcznej zapisu systemu Windows</translation>
</message>
<message>
<source>Disabled</source>
<translation>Wyłączony</translation>
</message>
<message>
<source>disabled</source>
<translation>wyłączone</translation>
</message>
<message>
<source>disabled:</source>
<translation>wyłączone:</translation>
</message>
<message>
<source>disabled:</source>
<comment>tasks</comment>
<translation>wyłączone:</translation>
</message>
<message>
<source>DISK</source>
<translation>DYSK</translation>
</message>
<message>
<source>Display name</source>
<translation>Nazwa wyświetlana</translation>
</message>
<message>
<source>display threads and handles count</source>
<translation>pokazuj liczbę wątków i uchwytów</translation>
</message>
<message>
<source>Do you want to restore start mode option of all services?<byte value="xd"/>
<byte value="xd"/>
If you click No (recommended),<byte value="xd"/>
then restore only the services you have disabled</source>
<translation>Czy chcesz przywrócić typ uruchomienia wszystkich usług?<byte value="xd"/>
<byte value="xd"/>
Jeśli klikniesz Nie (zalecane),<byte value="xd"/>
przywrócone zostaną tylko usługi wyłączone przez Ciebie</translation>
</message>
<message>
<source>Do you want to start this app with Admin rights?</source>
<translation>Czy chcesz uruchomić tę aplikację ponownie jako administrator?</translation>
</message>
<message>
<source>done</source>
<translation>gotowe</translation>
</message>
<message>
<source>Enable Auto HDR  (forces HDR mode on SDR content)</source>
<translation>Włącz Auto HDR  (wymusza tryb HDR dla zawartości SDR)</translation>
</message>
<message>
<source>Enable checked programs</source>
<translation>Włącz zaznaczone programy</translation>
</message>
<message>
<source>ENABLE checked services</source>
<translation>WŁĄCZ zaznaczone usługi</translation>
</message>
<message>
<source>Enable checked services finished</source>
<translation>Włączanie zaznaczonych usług zakończone</translation>
</message>
<message>
<source>Enable game mode  (enabled by default)</source>
<translation>Włącz tryb gry  (domyślnie włączony)</translation>
</message>
<message>
<source>Enable programs</source>
<translation>Włączanie programów</translation>
</message>
<message>
<source>Enable services</source>
<translation>Włączanie usług</translation>
</message>
<message>
<source>Enable the context menu like Windows 10  (all entries in the context menu are displayed)</source>
<translation>Włącz menu kontekstowe jak w Windows 10  (wyświetlane są wszystkie pozycje)</translation>
</message>
<message>
<source>enabled</source>
<translation>włączone</translation>
</message>
<message>
<source>enabled:</source>
<translation>włączone:</translation>
</message>
<message>
<source>English</source>
<translation>English</translation>
</message>
<message>
<source>error</source>
<translation>błąd</translation>
</message>
<message>
<source>Features</source>
<translation>Funkcje</translation>
</message>
<message>
<source>Features applied successfully. Restart your PC!</source>
<translation>Funkcje zastosowano pomyślnie. Uruchom ponownie komputer!</translation>
</message>
<message>
<source>Features: %1 improvements can be applied</source>
<translation>Funkcje: można zastosować %1 ulepszeń</translation>
</message>
<message>
<source>Features: applied successfully. Restart your PC!</source>
<translation>Funkcje: zastosowano pomyślnie. Uruchom ponownie komputer!</translation>
</message>
<message>
<source>Features: applies Gaming optimizations</source>
<translation>Funkcje: stosowanie optymalizacji gier</translation>
</message>
<message>
<source>Features: applies SSD optimizations</source>
<translation>Funkcje: stosowanie optymalizacji SSD</translation>
</message>
<message>
<source>Features: applies Windows optimizations</source>
<translation>Funkcje: stosowanie optymalizacji systemu Windows</translation>
</message>
<message>
<source>Features: Battery detected! Some optimizations will not be applied to maintain battery life</source>
<translation>Funkcje: wykryto baterię! Niektóre optymalizacje nie zostaną zastosowane, aby zachować czas pracy na baterii</translation>
</message>
<message>
<source>Features: reset Gaming optimizations</source>
<translation>Funkcje: resetowanie optymalizacji gier</translation>
</message>
<message>
<source>Features: reset SSD optimizations</source>
<translation>Funkcje: resetowanie optymalizacji SSD</translation>
</message>
<message>
<source>Features: reset Windows optimizations</source>
<translation>Funkcje: resetowanie optymalizacji systemu Windows</translation>
</message>
<message>
<source>File %1</source>
<translation>Plik %1</translation>
</message>
<message>
<source>Files sharing</source>
<translation>Udostępnianie plików</translation>
</message>
<message>
<source>finished</source>
<translation>zakończone</translation>
</message>
<message>
<source>Folder for the files of the way back</source>
<translation>Folder na pliki drogi powrotnej</translation>
</message>
<message>
<source>Français</source>
<translation>Français</translation>
</message>
<message>
<source>free memory</source>
<translation>wolna pamięć</translation>
</message>
<message>
<source>free on</source>
<translation>wolne na</translation>
</message>
<message>
<source>GAMING</source>
<translation>GRY</translation>
</message>
<message>
<source>Get system info:</source>
<translation>Pobieranie informacji o systemie:</translation>
</message>
<message>
<source>Get WinSxS folder size in features page</source>
<translation>Pobieraj rozmiar folderu WinSxS na stronie Funkcje</translation>
</message>
<message>
<source>GPU</source>
<translation>GPU</translation>
</message>
<message>
<source>Grayed out services are considered necessary or critical</source>
<translation>Wyszarzone usługi są uważane za niezbędne lub krytyczne</translation>
</message>
<message>
<source>Grayed out services refer to those disabled outside this tab</source>
<translation>Wyszarzone usługi wyłączono poza tą kartą</translation>
</message>
<message>
<source>handles</source>
<translation>uchwyty</translation>
</message>
<message>
<source>Hibernation</source>
<translation>Hibernacja</translation>
</message>
<message>
<source>If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this</source>
<translation>Jeśli nie masz słuchawek ani sprzętu audio podłączonego przez Bluetooth, możesz odznaczyć tę opcję</translation>
</message>
<message>
<source>If you don't have any printers, you can uncheck this</source>
<translation>Jeśli nie masz drukarki, możesz odznaczyć tę opcję</translation>
</message>
<message>
<source>Increase maximum amount of physical memory that can be locked for I/O operations</source>
<translation>Zwiększ maksymalną pamięć fizyczną blokowaną na potrzeby operacji we/wy</translation>
</message>
<message>
<source>Install</source>
<translation>Zainstaluj</translation>
</message>
<message>
<source>Install packages</source>
<translation>Zainstaluj pakiety</translation>
</message>
<message>
<source>installed</source>
<translation>zainstalowane</translation>
</message>
<message>
<source>Intelligent personal assistant</source>
<translation>Inteligentny asystent osobisty</translation>
</message>
<message>
<source>Interface language:</source>
<translation>Język interfejsu:</translation>
</message>
<message>
<source>Interface type:</source>
<translation>Typ interfejsu:</translation>
</message>
<message>
<source>Internal system features that can slow down your PC unnecessarily.
Check them to optimize or uncheck them to restore defaults.</source>
<translation>Wewnętrzne funkcje systemu, które mogą niepotrzebnie spowalniać komputer.
Zaznacz je, aby optymalizować, lub odznacz, aby przywrócić wartości domyślne.</translation>
</message>
<message>
<source>interval in seconds:</source>
<translation>odstęp w sekundach:</translation>
</message>
<message>
<source>it didn't come back</source>
<translation>nie udało się tego przywrócić</translation>
</message>
<message>
<source>Keep features</source>
<translation>Zachowaj funkcje</translation>
</message>
<message>
<source>Kestrune</source>
<translation>Kestrune</translation>
</message>
<message>
<source>lblStatus</source>
<translation>lblStatus</translation>
</message>
<message>
<source>Light</source>
<translation>Jasny</translation>
</message>
<message>
<source>List of currently started services.
Services are programs that run in the background for various reasons and purposes. Some of them are essential, while others may be superfluous and consume CPU, memory and disk resources unnecessarily.</source>
<translation>Lista aktualnie uruchomionych usług.
Usługi to programy działające w tle z różnych powodów. Niektóre są niezbędne, inne mogą być zbyteczne i niepotrzebnie zużywać zasoby procesora, pamięci i dysku.</translation>
</message>
<message>
<source>List of enabled scheduled tasks.
Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily.</source>
<translation>Lista włączonych zaplanowanych zadań.
Zaplanowane zadania to programy działające w tle o określonej porze (lub po zdarzeniu) z różnych powodów. Niektóre mogą być zbyteczne i niepotrzebnie zużywać zasoby procesora, pamięci i dysku.</translation>
</message>
<message>
<source>List of programs started automatically each time Windows starts.
Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you don't use on every startup.</source>
<translation>Lista programów uruchamianych automatycznie przy każdym starcie systemu Windows.
Podobnie jak usługi i zaplanowane zadania, mogą one spowalniać system. Odznacz te, których nie używasz przy każdym uruchomieniu.</translation>
</message>
<message>
<source>List of Windows packages can be uninstalled without problems.
You can reinstall them directly by clicking on &quot;View uninstalled packages&quot; below the list.</source>
<translation>Lista pakietów Windows, które można bez problemu odinstalować.
Możesz zainstalować je ponownie, klikając „Pokaż odinstalowane pakiety” pod listą.</translation>
</message>
<message>
<source>Load system info:</source>
<translation>Ładowanie informacji o systemie:</translation>
</message>
<message>
<source>loading disk info...</source>
<translation>ładowanie informacji o dysku...</translation>
</message>
<message>
<source>loading screen info...</source>
<translation>ładowanie informacji o ekranie...</translation>
</message>
<message>
<source>Looking around</source>
<translation>Przeglądanie</translation>
</message>
<message>
<source>Mail &amp; Calendar</source>
<translation>Poczta i Kalendarz</translation>
</message>
<message>
<source>Manage features  (included in the page &quot;Features&quot;)</source>
<translation>Zarządzaj funkcjami  (zawarte na stronie „Funkcje”)</translation>
</message>
<message>
<source>Manage programs and packages  (included in the page &quot;Programs&quot;)</source>
<translation>Zarządzaj programami i pakietami  (zawarte na stronie „Programy”)</translation>
</message>
<message>
<source>Manual</source>
<translation>Ręczny</translation>
</message>
<message>
<source>manual</source>
<translation>ręcznie</translation>
</message>
<message>
<source>Manual start</source>
<translation>Uruchamianie ręczne</translation>
</message>
<message>
<source>Media extensions for Edge and Windows Media Player</source>
<translation>Rozszerzenia multimedialne dla Edge i Windows Media Player</translation>
</message>
<message>
<source>MEM</source>
<translation>PAM</translation>
</message>
<message>
<source>Microsoft Codecs extensions</source>
<translation>Kodeki Microsoft</translation>
</message>
<message>
<source>Microsoft codecs for video encoding/decoding. If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box</source>
<translation>Kodeki Microsoft do kodowania i dekodowania wideo. Jeśli nie używasz wewnętrznych funkcji systemu Windows do strumieniowania, kodowania lub odtwarzania filmów, odznacz to pole</translation>
</message>
<message>
<source>Microsoft video editor</source>
<translation>Edytor wideo Microsoft</translation>
</message>
<message>
<source>Mobile device synchronization</source>
<translation>Synchronizacja urządzeń przenośnych</translation>
</message>
<message>
<source>Monitor and display some system information in the title bar</source>
<translation>Monitoruj i wyświetlaj informacje o systemie na pasku tytułu</translation>
</message>
<message>
<source>MotherBoard</source>
<translation>Płyta główna</translation>
</message>
<message>
<source>Name</source>
<translation>Nazwa</translation>
</message>
<message>
<source>Name:</source>
<translation>Nazwa:</translation>
</message>
<message>
<source>Need reboot!</source>
<translation>Wymagane ponowne uruchomienie!</translation>
</message>
<message>
<source>NFC</source>
<translation>NFC</translation>
</message>
<message>
<source>No</source>
<translation>Nie</translation>
</message>
<message>
<source>No changes have been noted on this PC so far.</source>
<translation>Na tym komputerze nie zapisano jeszcze żadnych zmian.</translation>
</message>
<message>
<source>no description</source>
<translation>brak opisu</translation>
</message>
<message>
<source>No optimizations found!</source>
<translation>Nie znaleziono optymalizacji!</translation>
</message>
<message>
<source>not possible</source>
<translation>niemożliwe</translation>
</message>
<message>
<source>Now</source>
<translation>Teraz</translation>
</message>
<message>
<source>off</source>
<translation>wyłączona</translation>
</message>
<message>
<source>Old Xbox App, no longer supported!</source>
<translation>Stara aplikacja Xbox, nie jest już wspierana!</translation>
</message>
<message>
<source>on</source>
<translation>włączona</translation>
</message>
<message>
<source>on drive</source>
<translation>na dysku</translation>
</message>
<message>
<source>Optimization finished</source>
<translation>Optymalizacja zakończona</translation>
</message>
<message>
<source>Optimize</source>
<translation>Optymalizuj</translation>
</message>
<message>
<source>Optimizer</source>
<translation>Optymalizuj</translation>
</message>
<message>
<source>Options</source>
<translation>Opcje</translation>
</message>
<message>
<source>Other protocol dedicated to local network (eg: some video players use it to connect to network hard drives)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Inny protokół przeznaczony dla sieci lokalnej (np. niektóre odtwarzacze wideo łączą się nim z dyskami sieciowymi)<byte value="xd"/>
(domyślnie nieużywany, ale włączony!)</translation>
</message>
<message>
<source>Otherwise some scheduled tasks will not be detected!</source>
<translation>W przeciwnym razie niektóre zaplanowane zadania nie zostaną wykryte!</translation>
</message>
<message>
<source>Owner and rights of %1</source>
<translation>Właściciel i prawa: %1</translation>
</message>
<message>
<source>Package %1</source>
<translation>Pakiet %1</translation>
</message>
<message>
<source>package: </source>
<translation>pakiet: </translation>
</message>
<message>
<source>Package: can be installed: </source>
<translation>Pakiet: można zainstalować: </translation>
</message>
<message>
<source>Package: can be uninstalled: </source>
<translation>Pakiet: można odinstalować: </translation>
</message>
<message>
<source>Packages</source>
<translation>Pakiety</translation>
</message>
<message>
<source>packages finished</source>
<translation>pakiety zakończone</translation>
</message>
<message>
<source>Packages installed:</source>
<translation>Zainstalowane pakiety:</translation>
</message>
<message>
<source>Packages uninstalled:</source>
<translation>Odinstalowane pakiety:</translation>
</message>
<message>
<source>Packages:</source>
<translation>Pakiety:</translation>
</message>
<message>
<source>Path</source>
<translation>Ścieżka</translation>
</message>
<message>
<source>Phone link</source>
<translation>Łącze z telefonem</translation>
</message>
<message>
<source>Place of the file %1</source>
<translation>Miejsce pliku %1</translation>
</message>
<message>
<source>Printer</source>
<translation>Drukarka</translation>
</message>
<message>
<source>Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</source>
<translation>Nadaj priorytet grom  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</translation>
</message>
<message>
<source>Process: can be disable: %1 from Riva Tuner Statistic Server app!<byte value="xd"/>
This process only allows screen video capture.Does not affect the monitoring display in any way</source>
<translation>Proces: można wyłączyć: %1 z aplikacji Riva Tuner Statistic Server!<byte value="xd"/>
Ten proces służy tylko do przechwytywania wideo z ekranu. Nie ma żadnego wpływu na wyświetlanie monitorowania</translation>
</message>
<message>
<source>Process: disable EncoderServer done</source>
<translation>Proces: wyłączanie EncoderServer zakończone</translation>
</message>
<message>
<source>processes</source>
<translation>procesy</translation>
</message>
<message>
<source>Program started at logon: %1</source>
<translation>Program przy logowaniu: %1</translation>
</message>
<message>
<source>Programs</source>
<translation>Programy</translation>
</message>
<message>
<source>Programs started automatically</source>
<translation>Programy uruchamiane automatycznie</translation>
</message>
<message>
<source>Proxy and VPN</source>
<translation>Serwer proxy i VPN</translation>
</message>
<message>
<source>Proxy or VPN functionality to improve the security of your network traffic<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Funkcja serwera proxy lub VPN zwiększająca bezpieczeństwo ruchu sieciowego<byte value="xd"/>
(domyślnie nieużywana, ale włączona!)</translation>
</message>
<message>
<source>Quick setup of some bluetooth headsets<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Szybka konfiguracja niektórych słuchawek Bluetooth<byte value="xd"/>
(domyślnie nieużywana, ale włączona!)</translation>
</message>
<message>
<source>Reading what has become of it…</source>
<translation>Odczytywanie obecnego stanu…</translation>
</message>
<message>
<source>Reduces certain delays
(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)</source>
<translation>Skróć niektóre opóźnienia
(wyświetlanie menu, zamykanie aplikacji i usług, zawieszone aplikacje)</translation>
</message>
<message>
<source>Refresh</source>
<translation>Odśwież</translation>
</message>
<message>
<source>Registry key %1</source>
<translation>Klucz rejestru %1</translation>
</message>
<message>
<source>Registry value %1</source>
<translation>Wartość rejestru %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1</source>
<translation>Usuwanie atrybutu indeksowania z %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1 finished</source>
<translation>Usuwanie atrybutu indeksowania z %1 zakończone</translation>
</message>
<message>
<source>Remove indexing attribute of Windows partition %1</source>
<translation>Usuwanie atrybutu indeksowania z partycji Windows %1</translation>
</message>
<message>
<source>Remove the indexed attribute from all files in the Windows partition
(this operation may take some time)</source>
<translation>Usuń atrybut indeksowania ze wszystkich plików na partycji Windows
(ta operacja może potrwać)</translation>
</message>
<message>
<source>Restoration finished</source>
<translation>Przywracanie zakończone</translation>
</message>
<message>
<source>Restoration finished: Restart your PC!</source>
<translation>Przywracanie zakończone: uruchom ponownie komputer!</translation>
</message>
<message>
<source>Restore</source>
<translation>Przywróć</translation>
</message>
<message>
<source>RESTORE disabled scheduled tasks</source>
<translation>PRZYWRÓĆ wyłączone zaplanowane zadania</translation>
</message>
<message>
<source>RESTORE disabled services</source>
<translation>PRZYWRÓĆ wyłączone usługi</translation>
</message>
<message>
<source>Restore scheduled tasks completed successfully</source>
<translation>Przywracanie zaplanowanych zadań zakończone pomyślnie</translation>
</message>
<message>
<source>Restore services finished</source>
<translation>Przywracanie usług zakończone</translation>
</message>
<message>
<source>Restoring scheduled tasks</source>
<translation>Przywracanie zaplanowanych zadań</translation>
</message>
<message>
<source>running</source>
<translation>działa</translation>
</message>
<message>
<source>S&amp;earch:</source>
<translation>Sz&amp;ukaj:</translation>
</message>
<message>
<source>Sa&amp;ve as files…</source>
<translation>&amp;Zapisz jako pliki…</translation>
</message>
<message>
<source>Scheduled task %1</source>
<translation>Zaplanowane zadanie %1</translation>
</message>
<message>
<source>Scheduled tasks</source>
<translation>Zaplanowane zadania</translation>
</message>
<message>
<source>Screenshot tool</source>
<translation>Narzędzie Wycinanie</translation>
</message>
<message>
<source>Service %1: delayed start</source>
<translation>Usługa %1: opóźnione uruchamianie</translation>
</message>
<message>
<source>Service %1: run state</source>
<translation>Usługa %1: działanie</translation>
</message>
<message>
<source>Service %1: start mode</source>
<translation>Usługa %1: typ uruchomienia</translation>
</message>
<message>
<source>Service: can be disable: </source>
<translation>Usługa: można wyłączyć: </translation>
</message>
<message>
<source>Service: can be enable: </source>
<translation>Usługa: można włączyć: </translation>
</message>
<message>
<source>Service: can be set to manual:</source>
<translation>Usługa: można ustawić na ręczną:</translation>
</message>
<message>
<source>Service: disable %1</source>
<translation>Usługa: wyłączanie %1</translation>
</message>
<message>
<source>Service: disable and stop %1</source>
<translation>Usługa: wyłączanie i zatrzymywanie %1</translation>
</message>
<message>
<source>Service: enable %1</source>
<translation>Usługa: włączanie %1</translation>
</message>
<message>
<source>Service: enable %1 done</source>
<translation>Usługa: włączanie %1 zakończone</translation>
</message>
<message>
<source>Service: enable and start %1</source>
<translation>Usługa: włączanie i uruchamianie %1</translation>
</message>
<message>
<source>Service: enable and start %1 done</source>
<translation>Usługa: włączanie i uruchamianie %1 zakończone</translation>
</message>
<message>
<source>Service: enable and start %1, already running!</source>
<translation>Usługa: włączanie i uruchamianie %1, już działa!</translation>
</message>
<message>
<source>Service: set to manual:</source>
<translation>Usługa: ustawiono na ręczną:</translation>
</message>
<message>
<source>Services</source>
<translation>Usługi</translation>
</message>
<message>
<source>Services  (Experienced users)</source>
<translation>Usługi  (doświadczeni użytkownicy)</translation>
</message>
<message>
<source>Services:</source>
<translation>Usługi:</translation>
</message>
<message>
<source>Sessions</source>
<translation>Sesje</translation>
</message>
<message>
<source>Set the maximum number of GPU pre-rendered frames to 1
(if you have a good CPU, this reduces latency)</source>
<translation>Ustaw maksymalną liczbę klatek wstępnie renderowanych przez GPU na 1
(przy dobrym procesorze zmniejsza to opóźnienie)</translation>
</message>
<message>
<source>something else has changed it since</source>
<translation>od tego czasu zmieniło to coś innego</translation>
</message>
<message>
<source>SSD</source>
<translation>SSD</translation>
</message>
<message>
<source>Start mode</source>
<translation>Typ startu</translation>
</message>
<message>
<source>Start of services</source>
<translation>Uruchamianie usług</translation>
</message>
<message>
<source>Start service:</source>
<translation>Uruchamianie usługi:</translation>
</message>
<message>
<source>Start with adminstrator rights</source>
<translation>Uruchamiaj z uprawnieniami administratora</translation>
</message>
<message>
<source>started:</source>
<translation>uruchomione:</translation>
</message>
<message>
<source>State</source>
<translation>Stan</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size finished!</source>
<translation>Stan: pobieranie rozmiaru folderu WinSxS zakończone!</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size...</source>
<translation>Stan: pobieranie rozmiaru folderu WinSxS...</translation>
</message>
<message>
<source>Stop service:</source>
<translation>Zatrzymywanie usługi:</translation>
</message>
<message>
<source>stopped</source>
<translation>zatrzymana</translation>
</message>
<message>
<source>stopped:</source>
<translation>zatrzymane:</translation>
</message>
<message>
<source>System</source>
<translation>Systemowy</translation>
</message>
<message>
<source>System
Information</source>
<translation>Informacje
o systemie</translation>
</message>
<message>
<source>System Information</source>
<translation>Informacje o systemie</translation>
</message>
<message>
<source>Take back</source>
<translation>Cofanie</translation>
</message>
<message>
<source>Taking back…</source>
<translation>Trwa cofanie…</translation>
</message>
<message>
<source>Task:</source>
<translation>Zadanie:</translation>
</message>
<message>
<source>Task: can be disable: </source>
<translation>Zadanie: można wyłączyć: </translation>
</message>
<message>
<source>Task: can be enable: </source>
<translation>Zadanie: można włączyć: </translation>
</message>
<message>
<source>Task: disable and stop %1</source>
<translation>Zadanie: wyłączanie i zatrzymywanie %1</translation>
</message>
<message>
<source>Task: Enable and start %1 done</source>
<translation>Zadanie: włączanie i uruchamianie %1 zakończone</translation>
</message>
<message>
<source>Tasks</source>
<translation>Zadania</translation>
</message>
<message>
<source>Tasks:</source>
<translation>Zadania:</translation>
</message>
<message>
<source>the file is at neither place</source>
<translation>pliku nie ma w żadnym z obu miejsc</translation>
</message>
<message>
<source>The files can't bring back:</source>
<translation>Pliki nie mogą przywrócić:</translation>
</message>
<message>
<source>The way back needs Admin rights: only what was changed with them is noted.</source>
<translation>Droga powrotna wymaga uprawnień administratora: zapisane jest tylko to, co z nimi zmieniono.</translation>
</message>
<message>
<source>Theme:</source>
<translation>Motyw:</translation>
</message>
<message>
<source>there</source>
<translation>obecne</translation>
</message>
<message>
<source>threads</source>
<translation>wątki</translation>
</message>
<message>
<source>Tweaks</source>
<translation>Optymalizacje</translation>
</message>
<message>
<source>Uncheck all</source>
<translation>Odznacz wszystko</translation>
</message>
<message>
<source>under way</source>
<translation>w toku</translation>
</message>
<message>
<source>Uninstall</source>
<translation>Odinstaluj</translation>
</message>
<message>
<source>Uninstall packages</source>
<translation>Odinstaluj pakiety</translation>
</message>
<message>
<source>uninstalled:</source>
<translation>odinstalowane:</translation>
</message>
<message>
<source>unknown</source>
<translation>nieznane</translation>
</message>
<message>
<source>UPnP network services</source>
<translation>Usługi sieciowe UPnP</translation>
</message>
<message>
<source>View auto started programs</source>
<translation>Pokaż programy autostartu</translation>
</message>
<message>
<source>View disabled services</source>
<translation>Pokaż wyłączone usługi</translation>
</message>
<message>
<source>View installed packages</source>
<translation>Pokaż zainstalowane pakiety</translation>
</message>
<message>
<source>View programs disabled</source>
<translation>Pokaż wyłączone programy</translation>
</message>
<message>
<source>View started services</source>
<translation>Pokaż uruchomione usługi</translation>
</message>
<message>
<source>View uninstalled packages</source>
<translation>Pokaż odinstalowane pakiety</translation>
</message>
<message>
<source>Way back</source>
<translation>Droga powrotna</translation>
</message>
<message>
<source>Way back…</source>
<translation>Droga powrotna…</translation>
</message>
<message>
<source>What</source>
<translation>Co</translation>
</message>
<message>
<source>What was changed on this PC isn't noted, so there is no way back by notes.</source>
<translation>Zmiany na tym komputerze nie są zapisywane, więc nie ma drogi powrotnej.</translation>
</message>
<message>
<source>When</source>
<translation>Kiedy</translation>
</message>
<message>
<source>Widget app</source>
<translation>Aplikacja widżetów</translation>
</message>
<message>
<source>Win32PrioritySeparation:   Processor time allocated to applications.</source>
<translation>Win32PrioritySeparation:   czas procesora przydzielany aplikacjom.</translation>
</message>
<message>
<source>WINDOWS</source>
<translation>WINDOWS</translation>
</message>
<message>
<source>Windows</source>
<translation>Windows</translation>
</message>
<message>
<source>Windows application: ERROR install %1: </source>
<translation>Aplikacja Windows: BŁĄD instalowania %1: </translation>
</message>
<message>
<source>Windows application: ERROR uninstall %1: </source>
<translation>Aplikacja Windows: BŁĄD odinstalowywania %1: </translation>
</message>
<message>
<source>Windows application: install %1 done</source>
<translation>Aplikacja Windows: instalowanie %1 zakończone</translation>
</message>
<message>
<source>Windows application: uninstall %1 done</source>
<translation>Aplikacja Windows: odinstalowywanie %1 zakończone</translation>
</message>
<message>
<source>Windows applications</source>
<translation>Aplikacje Windows</translation>
</message>
<message>
<source>Windows packages installed</source>
<translation>Zainstalowane pakiety Windows</translation>
</message>
<message>
<source>Windows sharing functionality on a local network (SMB protocol) (eg: connect hard drives, printers on a local network)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Funkcja udostępniania systemu Windows w sieci lokalnej (protokół SMB) (np. podłączanie dysków twardych i drukarek w sieci lokalnej)<byte value="xd"/>
(domyślnie nieużywana, ale włączona!)</translation>
</message>
<message>
<source>With all &amp;later changes</source>
<translation>Ze wszystkimi &amp;późniejszymi zmianami</translation>
</message>
<message>
<source>Would you like to apply option for set indexing attributes of all files in Windows partition?</source>
<translation>Czy wyłączyć indeksowanie zawartości wszystkich plików na partycji Windows? Może to długo potrwać.</translation>
</message>
<message>
<source>Would you like to apply option to set indexing attributes of all files in Windows partition?</source>
<translation>Czy zastosować teraz to ustawienie indeksowania do wszystkich plików na partycji Windows? Może to długo potrwać.</translation>
</message>
<message>
<source>Written: %1</source>
<translation>Zapisano: %1</translation>
</message>
<message>
<source>Xbox App</source>
<translation>Aplikacja Xbox</translation>
</message>
<message>
<source>Xbox game bar</source>
<translation>Xbox Game Bar</translation>
</message>
<message>
<source>XBOX Game Bar that appears at the top of the screen, above a game. If you don't use it, uncheck this box</source>
<translation>Pasek Xbox Game Bar wyświetlany u góry ekranu nad grą. Jeśli go nie używasz, odznacz to pole</translation>
</message>
<message>
<source>Yes</source>
<translation>Tak</translation>
</message>
<message>
<source>You must launch this app with Admin rights!</source>
<translation>Tę aplikację należy uruchomić jako administrator!</translation>
</message>
<message>
<source>You should launch this app with Admin rights!</source>
<translation>Zaleca się uruchomienie tej aplikacji jako administrator!</translation>
</message>
<message>
<source>No known effect on today's Windows: write caching is set for each drive elsewhere.</source>
<translation>Brak znanego działania w obecnym systemie Windows: pamięć podręczną zapisu ustawia się gdzie indziej, dla każdego dysku.</translation>
</message>
<message>
<source>No known effect: Windows doesn't read this value.</source>
<translation>Brak znanego działania: system Windows nie odczytuje tej wartości.</translation>
</message>
<message>
<source>Saves small writes: Windows no longer records when a file was last read. Needs a restart.</source>
<translation>Oszczędza drobne zapisy: system Windows nie zapisuje już czasu ostatniego odczytu pliku. Wymaga ponownego uruchomienia.</translation>
</message>
<message>
<source>Windows no longer preloads programs: they start more slowly at first, and an SSD gains nothing. Needs a restart.</source>
<translation>System Windows nie ładuje już programów z wyprzedzeniem: pierwsze uruchomienia są wolniejsze, a SSD nic nie zyskuje. Wymaga ponownego uruchomienia.</translation>
</message>
<message>
<source>Windows' default: nothing changes. Taking it back clears the page file at each shutdown, which takes minutes.</source>
<translation>Ustawienie domyślne systemu Windows: nic się nie zmienia. Cofnięcie powoduje czyszczenie pliku stronicowania przy każdym zamknięciu, co trwa minuty.</translation>
</message>
<message>
<source>Each start is a full one: it takes a little longer, and drivers start afresh.</source>
<translation>Każde uruchomienie jest pełne: trwa nieco dłużej, a sterowniki startują od nowa.</translation>
</message>
<message>
<source>Frees the space of hiberfil.sys. The PC can't hibernate any more, and fast startup goes too.</source>
<translation>Zwalnia miejsce pliku hiberfil.sys. Komputer nie może już hibernować, znika też szybkie uruchamianie.</translation>
</message>
<message>
<source>Takes all files out of the content index: search gets slower and finds less.</source>
<translation>Usuwa wszystkie pliki z indeksu zawartości: wyszukiwanie jest wolniejsze i znajduje mniej.</translation>
</message>
<message>
<source>No known effect since Windows XP.</source>
<translation>Brak znanego działania od czasu Windows XP.</translation>
</message>
<message>
<source>Small effect: only for games that register with Windows' multimedia scheduler.</source>
<translation>Niewielki wpływ: tylko na gry zarejestrowane w harmonogramie multimediów systemu Windows.</translation>
</message>
<message>
<source>No known effect: Windows reads this setting elsewhere.</source>
<translation>Brak znanego działania: system Windows odczytuje to ustawienie gdzie indziej.</translation>
</message>
<message>
<source>Windows' default: game mode is on already. Taking it back switches it off.</source>
<translation>Ustawienie domyślne: tryb gry jest już włączony. Cofnięcie go wyłącza.</translation>
</message>
<message>
<source>Windows no longer records or broadcasts games. Settings shows this as managed by your organization.</source>
<translation>System Windows nie nagrywa już ani nie transmituje gier. Ustawienia pokazują to jako zarządzane przez organizację.</translation>
</message>
<message>
<source>Windows 11: the default already, and taking it back forces the slower platform timer. Windows 10: no known effect.</source>
<translation>Windows 11: już domyślne, a cofnięcie wymusza wolniejszy zegar platformy. Windows 10: brak znanego działania.</translation>
</message>
<message>
<source>Partly effective: the Game Bar's tips and the Xbox button are off, but Win+G still opens it.</source>
<translation>Działa częściowo: wskazówki Game Bar i przycisk Xbox są wyłączone, ale Win+G nadal ją otwiera.</translation>
</message>
<message>
<source>Windows 11: the system timer never pauses, which costs power; needs a restart. Windows 10: nothing changes.</source>
<translation>Windows 11: zegar systemowy nigdy się nie zatrzymuje, co zużywa energię; wymaga ponownego uruchomienia. Windows 10: nic się nie zmienia.</translation>
</message>
<message>
<source>Shows games without HDR in HDR. Resets other graphics settings such as variable refresh rate.</source>
<translation>Wyświetla gry bez HDR w HDR. Resetuje inne ustawienia grafiki, np. zmienną częstotliwość odświeżania.</translation>
</message>
<message>
<source>The pointer moves evenly with the mouse. Takes effect at the next sign-in.</source>
<translation>Wskaźnik porusza się równomiernie z myszą. Działa od następnego logowania.</translation>
</message>
<message>
<source>Partly effective: packets are acknowledged at once, not on connections with a fixed address. Needs a restart.</source>
<translation>Działa częściowo: pakiety są potwierdzane od razu, nie przy stałym adresie. Wymaga ponownego uruchomienia.</translation>
</message>
<message>
<source>38 is what Windows does by default; other choices change it. Taking it back deletes the value.</source>
<translation>38 to domyślne działanie systemu Windows; inne wartości je zmieniają. Cofnięcie usuwa wartość.</translation>
</message>
<message>
<source>No known effect: neither Direct3D nor drivers read this value today.</source>
<translation>Brak znanego działania: ani Direct3D, ani sterowniki nie odczytują dziś tej wartości.</translation>
</message>
<message>
<source>May fix flickering and stutter; some videos may run worse. Said to have no effect since Windows 11 24H2. Needs a restart.</source>
<translation>Może usunąć migotanie i zacięcia; niektóre filmy mogą działać gorzej. Podobno nie działa od Windows 11 24H2. Wymaga ponownego uruchomienia.</translation>
</message>
<message>
<source>Of use with several AMD graphics cards only; its effect is uncertain. Needs a restart.</source>
<translation>Przydatne tylko przy kilku kartach AMD; działanie jest niepewne. Wymaga ponownego uruchomienia.</translation>
</message>
<message>
<source>Fewer svchost.exe processes, but services are less isolated from each other. Needs a restart.</source>
<translation>Mniej procesów svchost.exe, ale usługi są słabiej od siebie odizolowane. Wymaga ponownego uruchomienia.</translation>
</message>
<message>
<source>Windows' default since version 1803: nothing changes. Taking it back switches the backup on.</source>
<translation>Domyślne od wersji 1803: nic się nie zmienia. Cofnięcie włącza kopię zapasową.</translation>
</message>
<message>
<source>Hides the button for advanced options only; indexing goes on.</source>
<translation>Ukrywa tylko przycisk opcji zaawansowanych; indeksowanie trwa.</translation>
</message>
<message>
<source>File History keeps no older versions of files any more. Recent files are still listed.</source>
<translation>Historia plików nie przechowuje już starszych wersji. Ostatnie pliki są nadal wyświetlane.</translation>
</message>
<message>
<source>A right-click shows all entries, once Explorer has been restarted. Taking it back leaves the old menu.</source>
<translation>Kliknięcie prawym przyciskiem pokazuje wszystko, po ponownym uruchomieniu Eksploratora. Po cofnięciu stare menu zostaje.</translation>
</message>
<message>
<source>Updates are no longer exchanged with other PCs.</source>
<translation>Aktualizacje nie są już wymieniane z innymi komputerami.</translation>
</message>
<message>
<source>Less data goes to Microsoft. Clipboard history (Win+V), location and error reports stop working too.</source>
<translation>Mniej danych trafia do firmy Microsoft. Przestają też działać historia schowka (Win+V), lokalizacja i raporty o błędach.</translation>
</message>
<message>
<source>Menus open faster. At sign-out programs may be closed with unsaved work. Takes effect at the next sign-in.</source>
<translation>Menu otwierają się szybciej. Przy wylogowaniu programy mogą zostać zamknięte bez zapisania pracy. Działa od następnego logowania.</translation>
</message>
<message>
<source>Windows 11: removes the whole lock screen; some editions ignore it. Windows 10: nothing changes.</source>
<translation>Windows 11: usuwa cały ekran blokady; niektóre edycje to ignorują. Windows 10: nic się nie zmienia.</translation>
</message>
<message>
<source>Search in Start and on the taskbar stops working. An update may bring it back while this box stays checked.</source>
<translation>Wyszukiwanie w menu Start i na pasku zadań przestaje działać. Aktualizacja może je przywrócić, choć pole pozostanie zaznaczone.</translation>
</message>
<message>
<source>Partly effective: two tasks stay off, but the service comes back at the next sign-in.</source>
<translation>Działa częściowo: dwa zadania pozostają wyłączone, ale usługa wraca przy następnym logowaniu.</translation>
</message>
<message>
<source>none changed</source>
<translation>żadna nie zmieniona</translation>
</message>
<message>
<source>an empty key</source>
<translation>pusty klucz</translation>
</message>
<message>
<source>yes</source>
<translation>tak</translation>
</message>
<message>
<source>no</source>
<translation>nie</translation>
</message>
<message>
<source>%1 values</source>
<translation>wartości: %1</translation>
</message>
<message>
<source>%1 changed</source>
<translation>zmienione: %1</translation>
</message>
<message>
<source>%1 as before</source>
<translation>jak przedtem: %1</translation>
</message>
<message>
<source>%1 otherwise</source>
<translation>inaczej: %1</translation>
</message>
<message>
<source>%1 stay changed</source>
<translation>pozostają zmienione: %1</translation>
</message>
<message>
<source>start mode</source>
<translation>typ uruchomienia</translation>
</message>
<message>
<source>delayed start</source>
<translation>opóźnione uruchamianie</translation>
</message>
<message>
<source>state</source>
<translation>stan</translation>
</message>
<message>
<source>the key itself</source>
<translation>sam klucz</translation>
</message>
<message>
<source>the file</source>
<translation>plik</translation>
</message>
<message>
<source>its attributes</source>
<translation>jego atrybuty</translation>
</message>
<message>
<source>its owner and permissions</source>
<translation>jego właściciel i uprawnienia</translation>
</message>
<message>
<source>in the boot configuration</source>
<translation>w konfiguracji rozruchu</translation>
</message>
<message>
<source>Records of what was done</source>
<translation>Wpisy o tym, co zrobiono</translation>
</message>
<message>
<source>Log and backups beside the program</source>
<translation>Dziennik i kopie zapasowe przy programie</translation>
</message>
<message>
<source>Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically.</source>
<translation>Przywracanie uruchamia każdą usługę wyłączoną przez optymalizację i ustawia ją na automatyczną: usługa, która uruchamiała się na żądanie lub z opóźnieniem, uruchamia się teraz automatycznie.</translation>
</message>
<message>
<source>Optimize does not record services that it sets to manual, so Restore doesn't know of them.</source>
<translation>Optymalizacja nie zapisuje usług, które ustawia na ręczne, więc przywracanie o nich nie wie.</translation>
</message>
<message>
<source>Restore enables only the tasks that Optimize has recorded.</source>
<translation>Przywracanie włącza tylko zadania zapisane przez optymalizację.</translation>
</message>
<message>
<source>Restore re-registers the app from its files, as Windows itself does for a new user.</source>
<translation>Przywracanie ponownie rejestruje aplikację z jej plików, tak jak Windows robi to dla nowego użytkownika.</translation>
</message>
<message>
<source>The app comes back as newly installed, without what it had stored.</source>
<translation>Aplikacja wraca jak świeżo zainstalowana, bez tego, co zapisała.</translation>
</message>
<message>
<source>Restore re-registers an app from its files, which could not be found.</source>
<translation>Przywracanie ponownie rejestruje aplikację z jej plików, a tych nie znaleziono.</translation>
</message>
<message>
<source>The saved command is cut at its first "=", so the program starts without the rest of its arguments.</source>
<translation>Zapisane polecenie jest ucinane przy pierwszym „=”, więc program uruchamia się bez reszty argumentów.</translation>
</message>
<message>
<source>Restore brings back only a command whose program is in quotation marks and exists on the disk.</source>
<translation>Przywracanie cofa tylko polecenie, którego program jest w cudzysłowie i istnieje na dysku.</translation>
</message>
<message>
<source>Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it.</source>
<translation>Przywracanie nie wie, co było wcześniej: zapisuje stałą wartość, zwykle domyślną dla Windows, albo ją usuwa.</translation>
</message>
<message>
<source>Restore doesn't reset this option, or not all of its values.</source>
<translation>Przywracanie nie resetuje tej opcji albo nie wszystkich jej wartości.</translation>
</message>
<message>
<source>The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway.</source>
<translation>Opcja była już taka, jakiej chce optymalizacja, albo do niej nie należy; przywracanie i tak ją resetuje.</translation>
</message>
<message>
<source>Restore doesn't touch this file.</source>
<translation>Przywracanie nie rusza tego pliku.</translation>
</message>
<message>
<source>Restore doesn't touch this value.</source>
<translation>Przywracanie nie rusza tej wartości.</translation>
</message>
<message>
<source>Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it stops there: what is changed by then stays changed.</source>
<translation>Zmienia wszystko, co znalazła analiza, co chwilę trwa. Jeśli w tym czasie zamkniesz okno, zmiany się zatrzymają: to, co już zmieniono, pozostanie zmienione.</translation>
</message>
<message>
<source>Acts on all checked packages at once, without asking. The list stays as it is until the page is shown again.</source>
<translation>Działa od razu na wszystkie zaznaczone pakiety, bez pytania. Lista pozostaje bez zmian, dopóki strona nie zostanie pokazana ponownie.</translation>
</message>
<message>
<source>Nothing changes either.</source>
<translation>Wtedy też nic się nie zmienia.</translation>
</message>
<message>
<source>Last access times are recorded again, but Windows no longer decides about them by itself.</source>
<translation>Czasy ostatniego dostępu są znów zapisywane, ale Windows nie decyduje już o tym sam.</translation>
</message>
<message>
<source>The default is back.</source>
<translation>Wraca ustawienie domyślne.</translation>
</message>
<message>
<source>The defaults are back.</source>
<translation>Wracają ustawienia domyślne.</translation>
</message>
<message>
<source>The page file is cleared at each shutdown, which isn't the default and takes minutes.</source>
<translation>Plik stronicowania jest czyszczony przy każdym zamknięciu, co nie jest domyślne i trwa minuty.</translation>
</message>
<message>
<source>Hibernation is on, even if it was off before, and takes its space again.</source>
<translation>Hibernacja jest włączona, nawet jeśli wcześniej nie była, i znów zajmuje miejsce.</translation>
</message>
<message>
<source>The attribute is cleared, even where Windows or you had set it.</source>
<translation>Atrybut jest usuwany, także tam, gdzie ustawił go Windows lub użytkownik.</translation>
</message>
<message>
<source>Some priorities stay higher than the default.</source>
<translation>Niektóre priorytety pozostają wyższe niż domyślne.</translation>
</message>
<message>
<source>Game mode is off, and the default is on.</source>
<translation>Tryb gry jest wyłączony, a domyślnie jest włączony.</translation>
</message>
<message>
<source>Recording is allowed; Settings still shows it as managed.</source>
<translation>Nagrywanie jest dozwolone; Ustawienia nadal pokazują to jako zarządzane.</translation>
</message>
<message>
<source>On Windows 11 the platform timer is forced on, which may slow down games; the default is no entry at all.</source>
<translation>W Windows 11 wymuszany jest zegar platformy, co może spowalniać gry; domyślnie nie ma żadnego wpisu.</translation>
</message>
<message>
<source>The same effect as the default.</source>
<translation>Działa tak samo jak ustawienie domyślne.</translation>
</message>
<message>
<source>Auto HDR is off.</source>
<translation>Auto HDR jest wyłączone.</translation>
</message>
<message>
<source>The values are deleted, which is the default.</source>
<translation>Wartości są usuwane, co jest stanem domyślnym.</translation>
</message>
<message>
<source>The value is deleted. It is there by default, and what Windows does without it is uncertain.</source>
<translation>Wartość jest usuwana. Domyślnie istnieje, a co Windows robi bez niej, nie jest pewne.</translation>
</message>
<message>
<source>ULPS is switched on, even for adapters that never had it.</source>
<translation>ULPS jest włączane, także dla kart, które go nigdy nie miały.</translation>
</message>
<message>
<source>The same effect as the default on a PC with more than 3.5 GB of memory.</source>
<translation>Działa tak samo jak ustawienie domyślne na komputerze z ponad 3,5 GB pamięci.</translation>
</message>
<message>
<source>The backup is on, which isn't the default and does no harm.</source>
<translation>Kopia zapasowa jest włączona, co nie jest domyślne i nie szkodzi.</translation>
</message>
<message>
<source>The button is back.</source>
<translation>Przycisk wraca.</translation>
</message>
<message>
<source>File History is allowed again.</source>
<translation>Historia plików jest znów dozwolona.</translation>
</message>
<message>
<source>The old menu stays: key and empty value are left.</source>
<translation>Stare menu zostaje: klucz i pusta wartość pozostają.</translation>
</message>
<message>
<source>Some values are less private than before: diagnostic data in full, suggestions on, synchronization on.</source>
<translation>Niektóre wartości są mniej prywatne niż przedtem: pełne dane diagnostyczne, sugestie i synchronizacja włączone.</translation>
</message>
<message>
<source>The lock screen is back.</source>
<translation>Ekran blokady wraca.</translation>
</message>
<message>
<source>The program is back; its owner and rights stay changed.</source>
<translation>Program wraca; jego właściciel i uprawnienia pozostają zmienione.</translation>
</message>
<message>
<source>as now</source>
<translation>jak teraz</translation>
</message>
<message>
<source>written</source>
<translation>zapisane</translation>
</message>
<message>
<source>kept</source>
<translation>zachowane</translation>
</message>
<message>
<source>as before</source>
<translation>jak przedtem</translation>
</message>
</context>
</TS>
