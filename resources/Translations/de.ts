<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<!-- One context for all: see cmake/translations.cmake. -->
<context>
<name>texts</name>
<message>
<source>  20   (variable and long quantum, foreground boost X1)</source>
<translation>  20   (variables und langes Quantum, Vordergrund-Boost X1)</translation>
</message>
<message>
<source>  21   (variable and long quantum, foreground boost X2)</source>
<translation>  21   (variables und langes Quantum, Vordergrund-Boost X2)</translation>
</message>
<message>
<source>  22   (variable and long quantum, foreground boost X3)</source>
<translation>  22   (variables und langes Quantum, Vordergrund-Boost X3)</translation>
</message>
<message>
<source>  24   (fixed and long quantum, foreground boost X1) (not recommended)</source>
<translation>  24   (festes und langes Quantum, Vordergrund-Boost X1) (nicht empfohlen)</translation>
</message>
<message>
<source>  36   (variable and short quantum, foreground boost X1)</source>
<translation>  36   (variables und kurzes Quantum, Vordergrund-Boost X1)</translation>
</message>
<message>
<source>  37   (variable and short quantum, foreground boost X2)</source>
<translation>  37   (variables und kurzes Quantum, Vordergrund-Boost X2)</translation>
</message>
<message>
<source>  38   (variable and short quantum, foreground boost X3) (recommended)</source>
<translation>  38   (variables und kurzes Quantum, Vordergrund-Boost X3) (empfohlen)</translation>
</message>
<message>
<source>  40   (fixed and short quantum, foreground boost X1) (not recommended)</source>
<translation>  40   (festes und kurzes Quantum, Vordergrund-Boost X1) (nicht empfohlen)</translation>
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Edition:   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Build:   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Version:   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Auf SSD installiert:   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Hauptplatine:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Modell:   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;BIOS-Version:   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;BIOS-Datum:   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Prozessor:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Standardtakt:   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Kerne / Threads:   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;L2-Cachegröße:   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;L3-Cachegröße:   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Sockel:   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading:   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtualisierung:   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Arbeitsspeicher:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Kapazität:   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frei:   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Takt:   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Formfaktor:   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtueller Speicher:   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Grafikkarte und Bildschirm:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Treiberversion:   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Treiberdatum:   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Bildschirm:   Bildschirminfos werden geladen...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Auflösung:   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Auflösung max.:   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Bildfrequenz:   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Bildfrequenz max.:   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR:   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Datenträger:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Datenträgerinfos werden geladen...&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Version:&lt;/span&gt;   Beta %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Datum:&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Autor:&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Kontakt:&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Website:&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Programmiersprache und Framework:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ mit Qt 6, lizenziert unter der GNU LGPL Version 3&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Entwickelt für Windows 10 und Windows 11&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Zweck:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Diese App soll die allgemeine Leistung verbessern, ohne Windows zu verfälschen. Sie hilft Ihnen, alle Funktionen, Programme, Dienste und geplanten Aufgaben zu deaktivieren, die überflüssig sind und die Leistung beeinträchtigen können. Außerdem konfiguriert sie einige interne Systemfunktionen, die über keine Oberfläche zugänglich sind, und weitere Optionen verringern den Platz, den Windows auf der Festplatte belegt. (Deinstallieren unnötiger Windows-Anwendungen, Bereinigen des Ordners WinSxS, ...)&lt;br /&gt;Alles mit wenigen Klicks und mit der Möglichkeit, die ursprünglichen Werte wiederherzustellen. &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Wichtige Informationen:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;Alle Optionen dieser App lassen sich rückgängig machen.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Seien Sie vorsichtig im Bereich Dienste. Deaktivieren Sie keine Dienste, wenn Sie nicht wirklich wissen, was sie tun, welche Abhängigkeiten sie haben usw. VERWENDEN SIE DIE SCHALTFLÄCHE „ASSISTENT“!!!&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- FESTES Quantum: Die Prozessorzeit wird gleichmäßig auf die Anwendungen verteilt,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;ein VARIABLES Quantum lässt sie den Prozessor bei Bedarf länger behalten.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- KURZES Quantum: Die Prozessorzeit wechselt schneller von Task zu Task,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;ein LANGES Quantum teilt der Anwendung dagegen mehr Prozessorzeit zu.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- VORDERGRUND-BOOST X-fach: Das Quantum wird für die Anwendung im Vordergrund&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;um das X-Fache erhöht.&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Beim reinen Spielen fördern Sie je nach Wert die FPS (22, 21),&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;FPS und Reaktionszeit (38, 37) oder Tastatur-/Maus-/Gamepadlatenz (36, 24, 40).&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;mehr dazu&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Advanced optimizations via motherboard BIOS settings &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Weitergehende Optimierungen in den BIOS-Einstellungen der Hauptplatine &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;mehr dazu&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft acknowledges performance impact with Memory Integrity and VMP enabled &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft räumt Leistungseinbußen ein, wenn Speicherintegrität und VMP aktiviert sind &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;mehr dazu&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;The WinSxS folder is an essential system component that serves as a repository for storing multiple versions of system files, allowing Windows to maintain good compatibility &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Der Ordner WinSxS ist eine wesentliche Systemkomponente, die mehrere Versionen von Systemdateien aufbewahrt, damit Windows eine gute Kompatibilität behält &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;mehr dazu&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>%1 bytes</source>
<translation>%1 Byte</translation>
</message>
<message>
<source>%1 of %2 are as they were.</source>
<translation>%1 von %2 sind, wie sie waren.</translation>
</message>
<message>
<source>&amp;Sessions:</source>
<translation>&amp;Sitzungen:</translation>
</message>
<message>
<source>Clear the search</source>
<translation>Suche leeren</translation>
</message>
<message>
<source>Preview…</source>
<translation>Vorschau …</translation>
</message>
<message>
<source>Preview of Optimize</source>
<translation>Vorschau auf „Optimieren“</translation>
</message>
<message>
<source>After Optimize</source>
<translation>Nach dem Optimieren</translation>
</message>
<message>
<source>After Restore</source>
<translation>Nach dem Wiederherstellen</translation>
</message>
<message>
<source>Comes back</source>
<translation>Kommt zurück</translation>
</message>
<message>
<source>Progress</source>
<translation>Fortschritt</translation>
</message>
<message>
<source>exactly</source>
<translation>genau</translation>
</message>
<message>
<source>as a fixed value</source>
<translation>mit festem Wert</translation>
</message>
<message>
<source>It is in the Store: %1</source>
<translation>Sie ist im Store: %1</translation>
</message>
<message>
<source>not at all</source>
<translation>gar nicht</translation>
</message>
<message>
<source>by Restore only</source>
<translation>nur durch Wiederherstellen</translation>
</message>
<message>
<source>%1 come back exactly</source>
<translation>%1 kommen genau zurück</translation>
</message>
<message>
<source>%1 as a fixed value</source>
<translation>%1 mit festem Wert</translation>
</message>
<message>
<source>%1 not at all</source>
<translation>%1 gar nicht</translation>
</message>
<message>
<source>%1 are changed by Restore only</source>
<translation>%1 ändert nur das Wiederherstellen</translation>
</message>
<message>
<source>Programs started at logon</source>
<translation>Programme, die bei der Anmeldung starten</translation>
</message>
<message>
<source>System options</source>
<translation>Systemoptionen</translation>
</message>
<message>
<source>Files</source>
<translation>Dateien</translation>
</message>
<message>
<source>Other registry values</source>
<translation>Andere Registrierungswerte</translation>
</message>
<message>
<source>Kestrune's own records</source>
<translation>Kestrunes eigene Einträge</translation>
</message>
<message>
<source>Copying this PC…</source>
<translation>Dieser PC wird kopiert …</translation>
</message>
<message>
<source>Trying it on a copy…</source>
<translation>Wird an einer Kopie ausprobiert …</translation>
</message>
<message>
<source>Trying it on the copy…</source>
<translation>Wird an der Kopie ausprobiert …</translation>
</message>
<message>
<source>There is no preview: %1</source>
<translation>Es gibt keine Vorschau: %1</translation>
</message>
<message>
<source>What the next Optimize would change, and what the Restore button would bring back:</source>
<translation>Was das nächste Optimieren ändern würde, und was die Schaltfläche „Wiederherstellen“ zurückbrächte:</translation>
</message>
<message>
<source>“Way back…” brings back more than Restore: what was noted before each change.</source>
<translation>„Weg zurück …“ bringt mehr zurück als das Wiederherstellen: was vor jeder Änderung notiert wurde.</translation>
</message>
<message>
<source>This PC was looked at without Admin rights: what needs them is missing here.</source>
<translation>Dieser PC wurde ohne Administratorrechte betrachtet: was sie braucht, fehlt hier.</translation>
</message>
<message>
<source>With Admin rights a preview needs a copy of this app that nobody else can change, such as the installer makes in the folder for programs. Without Admin rights it works from any folder.</source>
<translation>Mit Administratorrechten braucht eine Vorschau eine Kopie dieser App, die sonst niemand ändern kann, wie sie das Installationsprogramm im Programmordner anlegt. Ohne Administratorrechte geht es aus jedem Ordner.</translation>
</message>
<message>
<source>A preview needs the folder “rehearse” of this app, which isn't there.</source>
<translation>Eine Vorschau braucht den Ordner „rehearse“ dieser App, und den gibt es hier nicht.</translation>
</message>
<message>
<source>Windows was updated from build %1 to %2 since. No longer in force: %3.</source>
<translation>Windows wurde seither von Build %1 auf %2 aktualisiert. Nicht mehr in Kraft: %3.</translation>
</message>
<message>
<source>automatic (delayed)</source>
<translation>automatisch (verzögert)</translation>
</message>
<message>
<source>not installed</source>
<translation>nicht installiert</translation>
</message>
<message>
<source>starts</source>
<translation>startet</translation>
</message>
<message>
<source>doesn't start</source>
<translation>startet nicht</translation>
</message>
<message>
<source>your setting</source>
<translation>Ihre Einstellung</translation>
</message>
<message>
<source>applied</source>
<translation>angewendet</translation>
</message>
<message>
<source>applied in part</source>
<translation>teilweise angewendet</translation>
</message>
<message>
<source>a fixed value</source>
<translation>ein fester Wert</translation>
</message>
<message>
<source>not there</source>
<translation>nicht vorhanden</translation>
</message>
<message>
<source>but not as before</source>
<translation>aber nicht wie zuvor</translation>
</message>
<message>
<source>Before the journal, not exact</source>
<translation>Vor dem Journal, nicht genau</translation>
</message>
<message>
<source>%1 (by the system)</source>
<translation>%1 (durch das System)</translation>
</message>
<message>
<source>%1 (by another account)</source>
<translation>%1 (durch ein anderes Konto)</translation>
</message>
<message>
<source>Page: %1</source>
<translation>Seite: %1</translation>
</message>
<message>
<source>&amp;Take back</source>
<translation>&amp;Zurücknehmen</translation>
</message>
<message>
<source>Clean-up of the WinSxS folder</source>
<translation>Bereinigung des Ordners WinSxS</translation>
</message>
<message>
<source>Windows keeps no copy of what this removes</source>
<translation>Windows behält keine Kopie von dem, was das entfernt</translation>
</message>
<message>
<source>its files are gone from this PC; get it from the Store</source>
<translation>die Dateien sind auf diesem PC nicht mehr vorhanden; im Store erhältlich</translation>
</message>
<message>
<source>Not everything was done.</source>
<translation>Es wurde nicht alles ausgeführt.</translation>
</message>
<message>
<source>a later session has changed it, too</source>
<translation>eine spätere Sitzung hat es auch geändert</translation>
</message>
<message>
<source>A newer version of Kestrune is available!<byte value="xd"/>
Would you like to visit the website for download?<byte value="xd"/>
<byte value="xd"/>
Current version: %1<byte value="xd"/>
Online version: %2</source>
<translation>Eine neuere Version von Kestrune ist verfügbar!<byte value="xd"/>
Möchten Sie die Website zum Herunterladen besuchen?<byte value="xd"/>
<byte value="xd"/>
Aktuelle Version: %1<byte value="xd"/>
Onlineversion: %2</translation>
</message>
<message>
<source>About</source>
<translation>Info</translation>
</message>
<message>
<source>absent</source>
<translation>nicht vorhanden</translation>
</message>
<message>
<source>Add indexing attribute of %1 finished</source>
<translation>Indizierungsattribut von %1 hinzugefügt</translation>
</message>
<message>
<source>Add indexing attribute of Windows partition %1</source>
<translation>Indizierungsattribut der Windows-Partition %1 wird hinzugefügt</translation>
</message>
<message>
<source>Apply a profile</source>
<translation>Profil anwenden</translation>
</message>
<message>
<source>Analyze</source>
<translation>Analysieren</translation>
</message>
<message>
<source>Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring some that are inaccessible through an interface.
Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages.</source>
<translation>Analysieren und optimieren Sie Windows, um die Gesamtleistung zu verbessern: Unnötige Funktionen werden deaktiviert und solche konfiguriert, die über keine Oberfläche zugänglich sind.
Die Optimierungen stammen von den Seiten Dienste, Geplante Aufgaben, Programme und Funktionen.</translation>
</message>
<message>
<source>Application to play PC games if you have a Gamepass account (paid)</source>
<translation>App zum Spielen von PC-Spielen mit einem (kostenpflichtigen) Game-Pass-Abonnement</translation>
</message>
<message>
<source>Apply</source>
<translation>Übernehmen</translation>
</message>
<message>
<source>Apply features</source>
<translation>Funktionen anwenden</translation>
</message>
<message>
<source>Apply features finished successfully.</source>
<translation>Funktionen erfolgreich angewendet.</translation>
</message>
<message>
<source>Are you sure to disable all checked services?</source>
<translation>Möchten Sie wirklich alle angehakten Dienste deaktivieren?</translation>
</message>
<message>
<source>Are you sure to disable all checked tasks?</source>
<translation>Möchten Sie wirklich alle angehakten Aufgaben deaktivieren?</translation>
</message>
<message>
<source>Are you sure you want to restore the original values?<byte value="xd"/>
All features, applications, services and tasks will be restored.</source>
<translation>Möchten Sie wirklich die ursprünglichen Werte wiederherstellen?<byte value="xd"/>
Alle Funktionen, Anwendungen, Dienste und Aufgaben werden wiederhergestellt.</translation>
</message>
<message>
<source>Are you sure you want to restore the startup of all scheduled tasks?</source>
<translation>Möchten Sie wirklich den Start aller geplanten Aufgaben wiederherstellen?</translation>
</message>
<message>
<source>as it was</source>
<translation>wie es war</translation>
</message>
<message>
<source>ASSISTANT - disable a list of non vital services</source>
<translation>ASSISTENT - nicht notwendige Dienste deaktivieren</translation>
</message>
<message>
<source>ASSISTANT - disable a list of scheduled tasks</source>
<translation>ASSISTENT - eine Liste geplanter Aufgaben deaktivieren</translation>
</message>
<message>
<source>Assistant - no services to deactivate</source>
<translation>Assistent - keine Dienste zu deaktivieren</translation>
</message>
<message>
<source>Assistant - no tasks to deactivate</source>
<translation>Assistent - keine Aufgaben zu deaktivieren</translation>
</message>
<message>
<source>at boot</source>
<translation>beim Systemstart</translation>
</message>
<message>
<source>Attributes of %1</source>
<translation>Attribute von %1</translation>
</message>
<message>
<source>Auto</source>
<translation>Auto</translation>
</message>
<message>
<source>Auto started programs disabled:</source>
<translation>Deaktivierte Autostartprogramme:</translation>
</message>
<message>
<source>automatic</source>
<translation>automatisch</translation>
</message>
<message>
<source>Automatic start</source>
<translation>Automatischer Start</translation>
</message>
<message>
<source>Automatically started programs</source>
<translation>Automatisch gestartete Programme</translation>
</message>
<message>
<source>Autorun</source>
<translation>Autostart</translation>
</message>
<message>
<source>Autorun program: disable %1 done</source>
<translation>Autostartprogramm: %1 deaktiviert</translation>
</message>
<message>
<source>Autorun program: enable %1 done</source>
<translation>Autostartprogramm: %1 aktiviert</translation>
</message>
<message>
<source>Autorun:</source>
<translation>Autostart:</translation>
</message>
<message>
<source>Autorun: can be disabled: </source>
<translation>Autostart: kann deaktiviert werden: </translation>
</message>
<message>
<source>Backup file exists</source>
<translation>Sicherungsdatei vorhanden</translation>
</message>
<message>
<source>Before</source>
<translation>Vorher</translation>
</message>
<message>
<source>Bluetooth audio</source>
<translation>Bluetooth-Audio</translation>
</message>
<message>
<source>Boot option %1</source>
<translation>Startoption %1</translation>
</message>
<message>
<source>broken off</source>
<translation>abgebrochen</translation>
</message>
<message>
<source>Broken off: way back…</source>
<translation>Abgebrochen: Weg zurück …</translation>
</message>
<message>
<source>by the system</source>
<translation>durch das System</translation>
</message>
<message>
<source>Cancel</source>
<translation>Abbrechen</translation>
</message>
<message>
<source>Cannot restore if you have not yet optimized!</source>
<translation>Wiederherstellen ist erst nach einer Optimierung möglich!</translation>
</message>
<message>
<source>Another instance of the program is changing this PC. Try again when it has finished.</source>
<translation>Eine andere Instanz des Programms ändert gerade diesen PC. Versuchen Sie es erneut, wenn sie fertig ist.</translation>
</message>
<message>
<source>Capacity:</source>
<translation>Kapazität:</translation>
</message>
<message>
<source>Change</source>
<translation>Änderung</translation>
</message>
<message>
<source>changed</source>
<translation>geändert</translation>
</message>
<message>
<source>changed again</source>
<translation>wieder geändert</translation>
</message>
<message>
<source>Changes</source>
<translation>Änderungen</translation>
</message>
<message>
<source>Check all</source>
<translation>Alle anhaken</translation>
</message>
<message>
<source>Check update of Kestrune version</source>
<translation>Nach Updates von Kestrune suchen</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool</source>
<translation>WinSxS-Ordner mit dem Microsoft-Tool DISM bereinigen</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)</source>
<translation>WinSxS-Ordner mit dem Microsoft-Tool DISM bereinigen  (aktuelle Größe: %1 GB)</translation>
</message>
<message>
<source>Close</source>
<translation>Schließen</translation>
</message>
<message>
<source>Comments</source>
<translation>Kommentare</translation>
</message>
<message>
<source>Configure auto started programs done!</source>
<translation>Konfiguration der Autostartprogramme abgeschlossen!</translation>
</message>
<message>
<source>Content indexing off</source>
<translation>Inhaltsindizierung aus</translation>
</message>
<message>
<source>Content indexing on</source>
<translation>Inhaltsindizierung ein</translation>
</message>
<message>
<source>CPU</source>
<translation>CPU</translation>
</message>
<message>
<source>Dark</source>
<translation>Dunkel</translation>
</message>
<message>
<source>Date of the last execution</source>
<translation>Datum der letzten Ausführung</translation>
</message>
<message>
<source>Description</source>
<translation>Beschreibung</translation>
</message>
<message>
<source>Development applet</source>
<translation>Applet für Entwickler</translation>
</message>
<message>
<source>Disable advanced indexing options</source>
<translation>Erweiterte Indizierungsoptionen deaktivieren</translation>
</message>
<message>
<source>Disable automatic boot disk optimization</source>
<translation>Automatische Optimierung des Startdatenträgers deaktivieren</translation>
</message>
<message>
<source>Disable checked programs</source>
<translation>Angehakte Programme deaktivieren</translation>
</message>
<message>
<source>DISABLE checked services</source>
<translation>Angehakte Dienste DEAKTIVIEREN</translation>
</message>
<message>
<source>Disable checked services</source>
<translation>Angehakte Dienste deaktivieren</translation>
</message>
<message>
<source>Disable checked services finished</source>
<translation>Deaktivieren der angehakten Dienste abgeschlossen</translation>
</message>
<message>
<source>DISABLE checked tasks</source>
<translation>Angehakte Aufgaben DEAKTIVIEREN</translation>
</message>
<message>
<source>Disable clearing of virtual memory swap file on every shutdown</source>
<translation>Löschen der Auslagerungsdatei bei jedem Herunterfahren deaktivieren</translation>
</message>
<message>
<source>Disable cloud backup and restore functionalities</source>
<translation>Sicherung und Wiederherstellung in der Cloud deaktivieren</translation>
</message>
<message>
<source>Disable CPU power throttling
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Leistungsdrosselung des Prozessors deaktivieren
(Energiesparfunktion, Optimierung für Notebooks nicht empfohlen)</translation>
</message>
<message>
<source>Disable distribution optimization of Windows updates</source>
<translation>Übermittlungsoptimierung von Windows-Updates deaktivieren</translation>
</message>
<message>
<source>Disable dynamic tick of system timers
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Dynamischen Takt der Systemzeitgeber deaktivieren
(Energiesparfunktion, Optimierung für Notebooks nicht empfohlen)</translation>
</message>
<message>
<source>Disable enhance pointer precision
(to achieve precise mouse control and muscle memory)</source>
<translation>Zeigerbeschleunigung deaktivieren
(für präzise Maussteuerung und Muskelgedächtnis)</translation>
</message>
<message>
<source>Disable fast start-up  (Windows function designed for HDD and not SSD)</source>
<translation>Schnellstart deaktivieren  (Windows-Funktion für Festplatten, nicht für SSDs)</translation>
</message>
<message>
<source>Disable files history (even in explorer)</source>
<translation>Dateiversionsverlauf deaktivieren (auch im Explorer)</translation>
</message>
<message>
<source>Disable game recording and broadcasting</source>
<translation>Spieleaufzeichnung und -übertragung deaktivieren</translation>
</message>
<message>
<source>Disable Gamebar</source>
<translation>Game Bar deaktivieren</translation>
</message>
<message>
<source>Disable hibernation mode</source>
<translation>Ruhezustand deaktivieren</translation>
</message>
<message>
<source>Disable hibernation mode  (gain %1 GB of storage space)</source>
<translation>Ruhezustand deaktivieren  (gewinnt %1 GB Speicherplatz)</translation>
</message>
<message>
<source>Disable HPET  (High Precision Event Timer)
(use invariant TSC instead which may be faster for gaming)
(important: do not disable HPET in BIOS settings)</source>
<translation>HPET deaktivieren  (High Precision Event Timer)
(verwendet den invarianten TSC, der für Spiele schneller sein kann)
(wichtig: HPET nicht in den BIOS-Einstellungen deaktivieren)</translation>
</message>
<message>
<source>Disable last access time stamps  (NTFS drive only)</source>
<translation>Zeitstempel des letzten Zugriffs deaktivieren  (nur NTFS-Laufwerke)</translation>
</message>
<message>
<source>Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)</source>
<translation>LockApp.exe deaktivieren  (zusätzliche Informationen auf dem Sperrbildschirm)</translation>
</message>
<message>
<source>Disable Multiplane Overlay (MPO)
(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,
especially for video playback apps)</source>
<translation>Multiplane Overlay (MPO) deaktivieren
(kann Flackern oder Ruckeln beheben, ABER manche Vollbildoptimierungen gehen verloren,
vor allem bei Apps zur Videowiedergabe)</translation>
</message>
<message>
<source>Disable Nagle’s Algorithm
(may improve the real-time responsiveness of your network connection, but may increase traffic)</source>
<translation>Nagle-Algorithmus deaktivieren
(kann die Netzwerkverbindung reaktionsschneller machen, aber den Datenverkehr erhöhen)</translation>
</message>
<message>
<source>Disable periodic registry backup</source>
<translation>Regelmäßige Sicherung der Registrierung deaktivieren</translation>
</message>
<message>
<source>Disable Prefetcher  (prevents preloading of applications)</source>
<translation>Prefetcher deaktivieren  (verhindert das Vorausladen von Anwendungen)</translation>
</message>
<message>
<source>Disable programs</source>
<translation>Programme deaktivieren</translation>
</message>
<message>
<source>Disable scheduled tasks</source>
<translation>Geplante Aufgaben deaktivieren</translation>
</message>
<message>
<source>Disable scheduled tasks completed successfully</source>
<translation>Deaktivieren der geplanten Aufgaben erfolgreich abgeschlossen</translation>
</message>
<message>
<source>Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)</source>
<translation>SearchHost.exe deaktivieren  (Dateisuche; die erweiterte Suche kann gestört sein)</translation>
</message>
<message>
<source>Disable services</source>
<translation>Dienste deaktivieren</translation>
</message>
<message>
<source>Disable SvcHost splitting  (reduce the number of svchost.exe process)</source>
<translation>SvcHost-Aufteilung deaktivieren  (verringert die Zahl der svchost.exe-Prozesse)</translation>
</message>
<message>
<source>Disable telemetry (data collection for Microsoft)
(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)</source>
<translation>Telemetrie deaktivieren (Datensammlung für Microsoft)
(Weitere Telemetrie wird unter Dienste, Geplante Aufgaben oder Optimierer deaktiviert)</translation>
</message>
<message>
<source>Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)
(power-saving feature, optimization not recommended for laptop)</source>
<translation>ULPS deaktivieren  (Ultra Low Power State, nur für AMD-Grafikkarten)
(Energiesparfunktion, Optimierung für Notebooks nicht empfohlen)</translation>
</message>
<message>
<source>Disable Windows write-cache buffer flushing</source>
<translation>Leeren des Windows-Schreibcachepuffers deaktivieren</translation>
</message>
<message>
<source>Disabled</source>
<translation>Deaktiviert</translation>
</message>
<message>
<source>disabled</source>
<translation>deaktiviert</translation>
</message>
<message>
<source>disabled:</source>
<translation>deaktiviert:</translation>
</message>
<message>
<source>disabled:</source>
<comment>tasks</comment>
<translation>deaktiviert:</translation>
</message>
<message>
<source>DISK</source>
<translation>DATENTRÄGER</translation>
</message>
<message>
<source>Display name</source>
<translation>Anzeigename</translation>
</message>
<message>
<source>display threads and handles count</source>
<translation>Zahl der Threads und Handles anzeigen</translation>
</message>
<message>
<source>Do you want to restore start mode option of all services?<byte value="xd"/>
<byte value="xd"/>
If you click No (recommended),<byte value="xd"/>
then restore only the services you have disabled</source>
<translation>Möchten Sie den Starttyp aller Dienste wiederherstellen?<byte value="xd"/>
<byte value="xd"/>
Wenn Sie auf Nein klicken (empfohlen),<byte value="xd"/>
werden nur die von Ihnen deaktivierten Dienste wiederhergestellt</translation>
</message>
<message>
<source>Do you want to start this app with Admin rights?</source>
<translation>Möchten Sie diese App als Administrator neu starten?</translation>
</message>
<message>
<source>done</source>
<translation>fertig</translation>
</message>
<message>
<source>Enable Auto HDR  (forces HDR mode on SDR content)</source>
<translation>Auto HDR aktivieren  (erzwingt den HDR-Modus bei SDR-Inhalten)</translation>
</message>
<message>
<source>Enable checked programs</source>
<translation>Angehakte Programme aktivieren</translation>
</message>
<message>
<source>ENABLE checked services</source>
<translation>Angehakte Dienste AKTIVIEREN</translation>
</message>
<message>
<source>Enable checked services finished</source>
<translation>Aktivieren der angehakten Dienste abgeschlossen</translation>
</message>
<message>
<source>Enable game mode  (enabled by default)</source>
<translation>Spielmodus aktivieren  (standardmäßig aktiviert)</translation>
</message>
<message>
<source>Enable programs</source>
<translation>Programme aktivieren</translation>
</message>
<message>
<source>Enable services</source>
<translation>Dienste aktivieren</translation>
</message>
<message>
<source>Enable the context menu like Windows 10  (all entries in the context menu are displayed)</source>
<translation>Kontextmenü wie in Windows 10 aktivieren  (alle Einträge werden angezeigt)</translation>
</message>
<message>
<source>enabled</source>
<translation>aktiviert</translation>
</message>
<message>
<source>enabled:</source>
<translation>aktiviert:</translation>
</message>
<message>
<source>English</source>
<translation>English</translation>
</message>
<message>
<source>error</source>
<translation>Fehler</translation>
</message>
<message>
<source>Features</source>
<translation>Funktionen</translation>
</message>
<message>
<source>Features applied successfully. Restart your PC!</source>
<translation>Funktionen erfolgreich angewendet. Starten Sie Ihren PC neu!</translation>
</message>
<message>
<source>Features: %1 improvements can be applied</source>
<translation>Funktionen: %1 Verbesserungen können angewendet werden</translation>
</message>
<message>
<source>Features: applied successfully. Restart your PC!</source>
<translation>Funktionen: erfolgreich angewendet. Starten Sie Ihren PC neu!</translation>
</message>
<message>
<source>Features: applies Gaming optimizations</source>
<translation>Funktionen: Spieleoptimierungen werden angewendet</translation>
</message>
<message>
<source>Features: applies SSD optimizations</source>
<translation>Funktionen: SSD-Optimierungen werden angewendet</translation>
</message>
<message>
<source>Features: applies Windows optimizations</source>
<translation>Funktionen: Windows-Optimierungen werden angewendet</translation>
</message>
<message>
<source>Features: Battery detected! Some optimizations will not be applied to maintain battery life</source>
<translation>Funktionen: Akku erkannt! Einige Optimierungen werden nicht angewendet, um die Akkulaufzeit zu erhalten</translation>
</message>
<message>
<source>Features: reset Gaming optimizations</source>
<translation>Funktionen: Spieleoptimierungen werden zurückgesetzt</translation>
</message>
<message>
<source>Features: reset SSD optimizations</source>
<translation>Funktionen: SSD-Optimierungen werden zurückgesetzt</translation>
</message>
<message>
<source>Features: reset Windows optimizations</source>
<translation>Funktionen: Windows-Optimierungen werden zurückgesetzt</translation>
</message>
<message>
<source>File %1</source>
<translation>Datei %1</translation>
</message>
<message>
<source>Files sharing</source>
<translation>Dateifreigabe</translation>
</message>
<message>
<source>finished</source>
<translation>fertig</translation>
</message>
<message>
<source>Folder for the files of the way back</source>
<translation>Ordner für die Dateien des Wegs zurück</translation>
</message>
<message>
<source>Français</source>
<translation>Français</translation>
</message>
<message>
<source>free memory</source>
<translation>freier Speicher</translation>
</message>
<message>
<source>free on</source>
<translation>frei auf</translation>
</message>
<message>
<source>GAMING</source>
<translation>SPIELE</translation>
</message>
<message>
<source>Get system info:</source>
<translation>Systeminformationen lesen:</translation>
</message>
<message>
<source>Get WinSxS folder size in features page</source>
<translation>Größe des WinSxS-Ordners auf der Seite „Funktionen“ ermitteln</translation>
</message>
<message>
<source>GPU</source>
<translation>GPU</translation>
</message>
<message>
<source>Grayed out services are considered necessary or critical</source>
<translation>Ausgegraute Dienste gelten als notwendig oder kritisch</translation>
</message>
<message>
<source>Grayed out services refer to those disabled outside this tab</source>
<translation>Ausgegraute Dienste wurden außerhalb dieser Seite deaktiviert</translation>
</message>
<message>
<source>handles</source>
<translation>Handles</translation>
</message>
<message>
<source>Hibernation</source>
<translation>Ruhezustand</translation>
</message>
<message>
<source>If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this</source>
<translation>Wenn Sie weder Headset noch Audiogeräte über Bluetooth verwenden, können Sie diese Option deaktivieren</translation>
</message>
<message>
<source>If you don't have any printers, you can uncheck this</source>
<translation>Wenn Sie keinen Drucker haben, können Sie diese Option deaktivieren</translation>
</message>
<message>
<source>Increase maximum amount of physical memory that can be locked for I/O operations</source>
<translation>Maximalen physischen Speicher erhöhen, der für E/A-Vorgänge gesperrt werden kann</translation>
</message>
<message>
<source>Install</source>
<translation>Installieren</translation>
</message>
<message>
<source>Install packages</source>
<translation>Pakete installieren</translation>
</message>
<message>
<source>installed</source>
<translation>installiert</translation>
</message>
<message>
<source>Intelligent personal assistant</source>
<translation>Intelligenter persönlicher Assistent</translation>
</message>
<message>
<source>Interface language:</source>
<translation>Anzeigesprache:</translation>
</message>
<message>
<source>Interface type:</source>
<translation>Schnittstelle:</translation>
</message>
<message>
<source>Internal system features that can slow down your PC unnecessarily.
Check them to optimize or uncheck them to restore defaults.</source>
<translation>Interne Systemfunktionen, die Ihren PC unnötig verlangsamen können.
Haken Sie sie zum Optimieren an, oder entfernen Sie das Häkchen, um die Standardwerte wiederherzustellen.</translation>
</message>
<message>
<source>interval in seconds:</source>
<translation>Intervall in Sekunden:</translation>
</message>
<message>
<source>it didn't come back</source>
<translation>es kam nicht zurück</translation>
</message>
<message>
<source>Keep features</source>
<translation>Funktionen behalten</translation>
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
<translation>Hell</translation>
</message>
<message>
<source>List of currently started services.
Services are programs that run in the background for various reasons and purposes. Some of them are essential, while others may be superfluous and consume CPU, memory and disk resources unnecessarily.</source>
<translation>Liste der derzeit gestarteten Dienste.
Dienste sind Programme, die zu verschiedenen Zwecken im Hintergrund ausgeführt werden. Einige sind unverzichtbar, andere überflüssig und belasten unnötig Prozessor, Arbeitsspeicher und Datenträger.</translation>
</message>
<message>
<source>List of enabled scheduled tasks.
Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily.</source>
<translation>Liste der aktivierten geplanten Aufgaben.
Geplante Aufgaben sind Programme, die aus verschiedenen Gründen zu einem bestimmten Zeitpunkt (oder Ereignis) im Hintergrund ausgeführt werden. Einige können überflüssig sein und unnötig Prozessor, Arbeitsspeicher und Datenträger belasten.</translation>
</message>
<message>
<source>List of programs started automatically each time Windows starts.
Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you don't use on every startup.</source>
<translation>Liste der Programme, die bei jedem Start von Windows automatisch gestartet werden.
Wie Dienste und geplante Aufgaben können sie Ihr System verlangsamen. Entfernen Sie das Häkchen bei denen, die Sie nicht bei jedem Start verwenden.</translation>
</message>
<message>
<source>List of Windows packages can be uninstalled without problems.
You can reinstall them directly by clicking on &quot;View uninstalled packages&quot; below the list.</source>
<translation>Liste der Windows-Pakete, die sich problemlos deinstallieren lassen.
Mit „Deinstallierte Pakete anzeigen“ unter der Liste können Sie sie direkt wieder installieren.</translation>
</message>
<message>
<source>Load system info:</source>
<translation>Systeminformationen laden:</translation>
</message>
<message>
<source>loading disk info...</source>
<translation>Datenträgerinfos werden geladen...</translation>
</message>
<message>
<source>loading screen info...</source>
<translation>Bildschirminfos werden geladen...</translation>
</message>
<message>
<source>Looking around</source>
<translation>Umsehen</translation>
</message>
<message>
<source>Mail &amp; Calendar</source>
<translation>Mail und Kalender</translation>
</message>
<message>
<source>Manage features  (included in the page &quot;Features&quot;)</source>
<translation>Funktionen verwalten  (auf der Seite „Funktionen“ enthalten)</translation>
</message>
<message>
<source>Manage programs and packages  (included in the page &quot;Programs&quot;)</source>
<translation>Programme und Pakete verwalten  (auf der Seite „Programme“ enthalten)</translation>
</message>
<message>
<source>Manual</source>
<translation>Manuell</translation>
</message>
<message>
<source>manual</source>
<translation>manuell</translation>
</message>
<message>
<source>Manual start</source>
<translation>Manueller Start</translation>
</message>
<message>
<source>Media extensions for Edge and Windows Media Player</source>
<translation>Medienerweiterungen für Edge und Windows Media Player</translation>
</message>
<message>
<source>MEM</source>
<translation>RAM</translation>
</message>
<message>
<source>Microsoft Codecs extensions</source>
<translation>Microsoft-Codecerweiterungen</translation>
</message>
<message>
<source>Microsoft codecs for video encoding/decoding. If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box</source>
<translation>Microsoft-Codecs zum Codieren und Decodieren von Videos. Wenn Sie zum Streamen, Codieren oder Wiedergeben von Videos keine Windows-Funktionen verwenden, deaktivieren Sie diese Option</translation>
</message>
<message>
<source>Microsoft video editor</source>
<translation>Microsoft-Video-Editor</translation>
</message>
<message>
<source>Mobile device synchronization</source>
<translation>Synchronisierung mobiler Geräte</translation>
</message>
<message>
<source>Monitor and display some system information in the title bar</source>
<translation>Systeminformationen überwachen und in der Titelleiste anzeigen</translation>
</message>
<message>
<source>MotherBoard</source>
<translation>Hauptplatine</translation>
</message>
<message>
<source>Name</source>
<translation>Name</translation>
</message>
<message>
<source>Name:</source>
<translation>Name:</translation>
</message>
<message>
<source>Need reboot!</source>
<translation>Neustart erforderlich!</translation>
</message>
<message>
<source>NFC</source>
<translation>NFC</translation>
</message>
<message>
<source>No</source>
<translation>Nein</translation>
</message>
<message>
<source>No changes have been noted on this PC so far.</source>
<translation>Auf diesem PC wurden bisher keine Änderungen notiert.</translation>
</message>
<message>
<source>no description</source>
<translation>keine Beschreibung</translation>
</message>
<message>
<source>No optimizations found!</source>
<translation>Keine Optimierungen gefunden!</translation>
</message>
<message>
<source>not possible</source>
<translation>nicht möglich</translation>
</message>
<message>
<source>Now</source>
<translation>Jetzt</translation>
</message>
<message>
<source>off</source>
<translation>aus</translation>
</message>
<message>
<source>Old Xbox App, no longer supported!</source>
<translation>Alte Xbox-App, wird nicht mehr unterstützt!</translation>
</message>
<message>
<source>on</source>
<translation>ein</translation>
</message>
<message>
<source>on drive</source>
<translation>auf Laufwerk</translation>
</message>
<message>
<source>Optimization finished</source>
<translation>Optimierung abgeschlossen</translation>
</message>
<message>
<source>Optimize</source>
<translation>Optimieren</translation>
</message>
<message>
<source>Optimizer</source>
<translation>Optimierer</translation>
</message>
<message>
<source>Options</source>
<translation>Optionen</translation>
</message>
<message>
<source>Other protocol dedicated to local network (eg: some video players use it to connect to network hard drives)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Weiteres Protokoll für das lokale Netzwerk (z. B. verbinden sich manche Videoplayer damit mit Netzwerkfestplatten)<byte value="xd"/>
(standardmäßig nicht verwendet, aber aktiviert!)</translation>
</message>
<message>
<source>Otherwise some scheduled tasks will not be detected!</source>
<translation>Andernfalls werden einige geplante Aufgaben nicht erkannt!</translation>
</message>
<message>
<source>Owner and rights of %1</source>
<translation>Besitzer und Rechte von %1</translation>
</message>
<message>
<source>Package %1</source>
<translation>Paket %1</translation>
</message>
<message>
<source>package: </source>
<translation>Paket: </translation>
</message>
<message>
<source>Package: can be installed: </source>
<translation>Paket: kann installiert werden: </translation>
</message>
<message>
<source>Package: can be uninstalled: </source>
<translation>Paket: kann deinstalliert werden: </translation>
</message>
<message>
<source>Packages</source>
<translation>Pakete</translation>
</message>
<message>
<source>packages finished</source>
<translation>Pakete abgeschlossen</translation>
</message>
<message>
<source>Packages installed:</source>
<translation>Installierte Pakete:</translation>
</message>
<message>
<source>Packages uninstalled:</source>
<translation>Deinstallierte Pakete:</translation>
</message>
<message>
<source>Packages:</source>
<translation>Pakete:</translation>
</message>
<message>
<source>Path</source>
<translation>Pfad</translation>
</message>
<message>
<source>Phone link</source>
<translation>Smartphone-Link</translation>
</message>
<message>
<source>Place of the file %1</source>
<translation>Ort der Datei %1</translation>
</message>
<message>
<source>Printer</source>
<translation>Drucker</translation>
</message>
<message>
<source>Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</source>
<translation>Spiele priorisieren  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</translation>
</message>
<message>
<source>Process: can be disable: %1 from Riva Tuner Statistic Server app!<byte value="xd"/>
This process only allows screen video capture.Does not affect the monitoring display in any way</source>
<translation>Prozess: kann deaktiviert werden: %1 der App Riva Tuner Statistic Server!<byte value="xd"/>
Dieser Prozess dient nur der Videoaufnahme des Bildschirms. Er hat keinen Einfluss auf die Anzeige der Überwachung</translation>
</message>
<message>
<source>Process: disable EncoderServer done</source>
<translation>Prozess: EncoderServer deaktiviert</translation>
</message>
<message>
<source>processes</source>
<translation>Prozesse</translation>
</message>
<message>
<source>Program started at logon: %1</source>
<translation>Programm beim Anmelden: %1</translation>
</message>
<message>
<source>Programs</source>
<translation>Programme</translation>
</message>
<message>
<source>Programs started automatically</source>
<translation>Automatisch gestartete Programme</translation>
</message>
<message>
<source>Proxy and VPN</source>
<translation>Proxy und VPN</translation>
</message>
<message>
<source>Proxy or VPN functionality to improve the security of your network traffic<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Proxy- oder VPN-Funktion, die Ihren Netzwerkverkehr sicherer macht<byte value="xd"/>
(standardmäßig nicht verwendet, aber aktiviert!)</translation>
</message>
<message>
<source>Quick setup of some bluetooth headsets<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Schnelles Einrichten mancher Bluetooth-Headsets<byte value="xd"/>
(standardmäßig nicht verwendet, aber aktiviert!)</translation>
</message>
<message>
<source>Reading what has become of it…</source>
<translation>Der heutige Stand wird gelesen …</translation>
</message>
<message>
<source>Reduces certain delays
(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)</source>
<translation>Bestimmte Verzögerungen verringern
(Menüanzeige, Beenden von Apps und Diensten, hängende Anwendungen)</translation>
</message>
<message>
<source>Refresh</source>
<translation>Aktualisieren</translation>
</message>
<message>
<source>Registry key %1</source>
<translation>Registrierungsschlüssel %1</translation>
</message>
<message>
<source>Registry value %1</source>
<translation>Registrierungswert %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1</source>
<translation>Indizierungsattribut von %1 wird entfernt</translation>
</message>
<message>
<source>Remove indexing attribute of %1 finished</source>
<translation>Indizierungsattribut von %1 entfernt</translation>
</message>
<message>
<source>Remove indexing attribute of Windows partition %1</source>
<translation>Indizierungsattribut der Windows-Partition %1 wird entfernt</translation>
</message>
<message>
<source>Remove the indexed attribute from all files in the Windows partition
(this operation may take some time)</source>
<translation>Indizierungsattribut von allen Dateien der Windows-Partition entfernen
(dieser Vorgang kann einige Zeit dauern)</translation>
</message>
<message>
<source>Restoration finished</source>
<translation>Wiederherstellung abgeschlossen</translation>
</message>
<message>
<source>Restoration finished: Restart your PC!</source>
<translation>Wiederherstellung abgeschlossen: Starten Sie Ihren PC neu!</translation>
</message>
<message>
<source>Restore</source>
<translation>Wiederherstellen</translation>
</message>
<message>
<source>RESTORE disabled scheduled tasks</source>
<translation>Deaktivierte geplante Aufgaben WIEDERHERSTELLEN</translation>
</message>
<message>
<source>RESTORE disabled services</source>
<translation>Deaktivierte Dienste WIEDERHERSTELLEN</translation>
</message>
<message>
<source>Restore scheduled tasks completed successfully</source>
<translation>Wiederherstellen der geplanten Aufgaben erfolgreich abgeschlossen</translation>
</message>
<message>
<source>Restore services finished</source>
<translation>Wiederherstellen der Dienste abgeschlossen</translation>
</message>
<message>
<source>Restoring scheduled tasks</source>
<translation>Geplante Aufgaben wiederherstellen</translation>
</message>
<message>
<source>running</source>
<translation>läuft</translation>
</message>
<message>
<source>S&amp;earch:</source>
<translation>Su&amp;che:</translation>
</message>
<message>
<source>Sa&amp;ve as files…</source>
<translation>Als &amp;Dateien speichern …</translation>
</message>
<message>
<source>Scheduled task %1</source>
<translation>Geplante Aufgabe %1</translation>
</message>
<message>
<source>Scheduled tasks</source>
<translation>Geplante Aufgaben</translation>
</message>
<message>
<source>Screenshot tool</source>
<translation>Tool für Bildschirmfotos</translation>
</message>
<message>
<source>Service %1: delayed start</source>
<translation>Dienst %1: verzögerter Start</translation>
</message>
<message>
<source>Service %1: run state</source>
<translation>Dienst %1: Ausführung</translation>
</message>
<message>
<source>Service %1: start mode</source>
<translation>Dienst %1: Starttyp</translation>
</message>
<message>
<source>Service: can be disable: </source>
<translation>Dienst: kann deaktiviert werden: </translation>
</message>
<message>
<source>Service: can be enable: </source>
<translation>Dienst: kann aktiviert werden: </translation>
</message>
<message>
<source>Service: can be set to manual:</source>
<translation>Dienst: kann auf manuell gesetzt werden:</translation>
</message>
<message>
<source>Service: disable %1</source>
<translation>Dienst: %1 deaktivieren</translation>
</message>
<message>
<source>Service: disable and stop %1</source>
<translation>Dienst: %1 deaktivieren und beenden</translation>
</message>
<message>
<source>Service: enable %1</source>
<translation>Dienst: %1 aktivieren</translation>
</message>
<message>
<source>Service: enable %1 done</source>
<translation>Dienst: %1 aktiviert</translation>
</message>
<message>
<source>Service: enable and start %1</source>
<translation>Dienst: %1 aktivieren und starten</translation>
</message>
<message>
<source>Service: enable and start %1 done</source>
<translation>Dienst: %1 aktiviert und gestartet</translation>
</message>
<message>
<source>Service: enable and start %1, already running!</source>
<translation>Dienst: %1 aktivieren und starten, wird bereits ausgeführt!</translation>
</message>
<message>
<source>Service: set to manual:</source>
<translation>Dienst: auf manuell gesetzt:</translation>
</message>
<message>
<source>Services</source>
<translation>Dienste</translation>
</message>
<message>
<source>Services  (Experienced users)</source>
<translation>Dienste  (erfahrene Benutzer)</translation>
</message>
<message>
<source>Services:</source>
<translation>Dienste:</translation>
</message>
<message>
<source>Sessions</source>
<translation>Sitzungen</translation>
</message>
<message>
<source>Set the maximum number of GPU pre-rendered frames to 1
(if you have a good CPU, this reduces latency)</source>
<translation>Höchstzahl der von der GPU vorgerenderten Bilder auf 1 festlegen
(mit einem guten Prozessor verringert dies die Latenz)</translation>
</message>
<message>
<source>something else has changed it since</source>
<translation>etwas anderes hat es seitdem geändert</translation>
</message>
<message>
<source>SSD</source>
<translation>SSD</translation>
</message>
<message>
<source>Start mode</source>
<translation>Starttyp</translation>
</message>
<message>
<source>Start of services</source>
<translation>Start von Diensten</translation>
</message>
<message>
<source>Start service:</source>
<translation>Dienst wird gestartet:</translation>
</message>
<message>
<source>Start with adminstrator rights</source>
<translation>Mit Administratorrechten starten</translation>
</message>
<message>
<source>started:</source>
<translation>gestartet:</translation>
</message>
<message>
<source>State</source>
<translation>Stand</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size finished!</source>
<translation>Status: Größe des WinSxS-Ordners ermittelt!</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size...</source>
<translation>Status: Größe des WinSxS-Ordners wird ermittelt...</translation>
</message>
<message>
<source>Stop service:</source>
<translation>Dienst wird beendet:</translation>
</message>
<message>
<source>stopped</source>
<translation>beendet</translation>
</message>
<message>
<source>stopped:</source>
<translation>beendet:</translation>
</message>
<message>
<source>System</source>
<translation>System</translation>
</message>
<message>
<source>System
Information</source>
<translation>System-
info</translation>
</message>
<message>
<source>System Information</source>
<translation>Systeminformationen</translation>
</message>
<message>
<source>Take back</source>
<translation>Zurücknehmen</translation>
</message>
<message>
<source>Taking back…</source>
<translation>Wird zurückgenommen …</translation>
</message>
<message>
<source>Task:</source>
<translation>Aufgabe:</translation>
</message>
<message>
<source>Task: can be disable: </source>
<translation>Aufgabe: kann deaktiviert werden: </translation>
</message>
<message>
<source>Task: can be enable: </source>
<translation>Aufgabe: kann aktiviert werden: </translation>
</message>
<message>
<source>Task: disable and stop %1</source>
<translation>Aufgabe: %1 deaktivieren und beenden</translation>
</message>
<message>
<source>Task: Enable and start %1 done</source>
<translation>Aufgabe: %1 aktiviert und gestartet</translation>
</message>
<message>
<source>Tasks</source>
<translation>Aufgaben</translation>
</message>
<message>
<source>Tasks:</source>
<translation>Aufgaben:</translation>
</message>
<message>
<source>the file is at neither place</source>
<translation>die Datei ist an keinem der beiden Orte</translation>
</message>
<message>
<source>The files can't bring back:</source>
<translation>Die Dateien können nicht zurückbringen:</translation>
</message>
<message>
<source>The way back needs Admin rights: only what was changed with them is noted.</source>
<translation>Der Weg zurück braucht Administratorrechte: Nur was mit ihnen geändert wurde, ist notiert.</translation>
</message>
<message>
<source>Theme:</source>
<translation>Design:</translation>
</message>
<message>
<source>there</source>
<translation>vorhanden</translation>
</message>
<message>
<source>threads</source>
<translation>Threads</translation>
</message>
<message>
<source>Tweaks</source>
<translation>Optimierungen</translation>
</message>
<message>
<source>Uncheck all</source>
<translation>Alle Häkchen entfernen</translation>
</message>
<message>
<source>under way</source>
<translation>im Gange</translation>
</message>
<message>
<source>Uninstall</source>
<translation>Deinstallieren</translation>
</message>
<message>
<source>Uninstall packages</source>
<translation>Pakete deinstallieren</translation>
</message>
<message>
<source>uninstalled:</source>
<translation>deinstalliert:</translation>
</message>
<message>
<source>unknown</source>
<translation>unbekannt</translation>
</message>
<message>
<source>UPnP network services</source>
<translation>UPnP-Netzwerkdienste</translation>
</message>
<message>
<source>View auto started programs</source>
<translation>Autostartprogramme anzeigen</translation>
</message>
<message>
<source>View disabled services</source>
<translation>Deaktivierte Dienste anzeigen</translation>
</message>
<message>
<source>View installed packages</source>
<translation>Installierte Pakete anzeigen</translation>
</message>
<message>
<source>View programs disabled</source>
<translation>Deaktivierte Programme anzeigen</translation>
</message>
<message>
<source>View started services</source>
<translation>Gestartete Dienste anzeigen</translation>
</message>
<message>
<source>View uninstalled packages</source>
<translation>Deinstallierte Pakete anzeigen</translation>
</message>
<message>
<source>Way back</source>
<translation>Weg zurück</translation>
</message>
<message>
<source>Way back…</source>
<translation>Weg zurück …</translation>
</message>
<message>
<source>What</source>
<translation>Was</translation>
</message>
<message>
<source>What was changed on this PC isn't noted, so there is no way back by notes.</source>
<translation>Was auf diesem PC geändert wurde, ist nicht notiert; deshalb gibt es keinen Weg zurück.</translation>
</message>
<message>
<source>When</source>
<translation>Wann</translation>
</message>
<message>
<source>Widget app</source>
<translation>Widget-App</translation>
</message>
<message>
<source>Win32PrioritySeparation:   Processor time allocated to applications.</source>
<translation>Win32PrioritySeparation:   den Anwendungen zugeteilte Prozessorzeit.</translation>
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
<translation>Windows-Anwendung: FEHLER bei der Installation von %1: </translation>
</message>
<message>
<source>Windows application: ERROR uninstall %1: </source>
<translation>Windows-Anwendung: FEHLER bei der Deinstallation von %1: </translation>
</message>
<message>
<source>Windows application: install %1 done</source>
<translation>Windows-Anwendung: Installation von %1 fertig</translation>
</message>
<message>
<source>Windows application: uninstall %1 done</source>
<translation>Windows-Anwendung: Deinstallation von %1 fertig</translation>
</message>
<message>
<source>Windows applications</source>
<translation>Windows-Anwendungen</translation>
</message>
<message>
<source>Windows packages installed</source>
<translation>Installierte Windows-Pakete</translation>
</message>
<message>
<source>Windows sharing functionality on a local network (SMB protocol) (eg: connect hard drives, printers on a local network)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Windows-Freigabe im lokalen Netzwerk (SMB-Protokoll) (z. B. zum Verbinden von Festplatten oder Druckern im lokalen Netzwerk)<byte value="xd"/>
(standardmäßig nicht verwendet, aber aktiviert!)</translation>
</message>
<message>
<source>With all &amp;later changes</source>
<translation>Mit &amp;allen späteren Änderungen</translation>
</message>
<message>
<source>Would you like to apply option for set indexing attributes of all files in Windows partition?</source>
<translation>Soll der Inhaltsindex für alle Dateien der Windows-Partition abgeschaltet werden? Das kann lange dauern.</translation>
</message>
<message>
<source>Would you like to apply option to set indexing attributes of all files in Windows partition?</source>
<translation>Soll die Einstellung zum Inhaltsindex jetzt auf alle Dateien der Windows-Partition angewendet werden? Das kann lange dauern.</translation>
</message>
<message>
<source>Written: %1</source>
<translation>Geschrieben: %1</translation>
</message>
<message>
<source>Xbox App</source>
<translation>Xbox-App</translation>
</message>
<message>
<source>Xbox game bar</source>
<translation>Xbox Game Bar</translation>
</message>
<message>
<source>XBOX Game Bar that appears at the top of the screen, above a game. If you don't use it, uncheck this box</source>
<translation>Xbox Game Bar, die am oberen Bildschirmrand über einem Spiel erscheint. Wenn Sie sie nicht verwenden, deaktivieren Sie diese Option</translation>
</message>
<message>
<source>Yes</source>
<translation>Ja</translation>
</message>
<message>
<source>You must launch this app with Admin rights!</source>
<translation>Sie müssen diese App als Administrator ausführen!</translation>
</message>
<message>
<source>You should launch this app with Admin rights!</source>
<translation>Sie sollten diese App als Administrator ausführen!</translation>
</message>
<message>
<source>No known effect on today's Windows: write caching is set for each drive elsewhere.</source>
<translation>Keine bekannte Wirkung im heutigen Windows: Der Schreibcache wird anderswo für jedes Laufwerk eingestellt.</translation>
</message>
<message>
<source>No known effect: Windows doesn't read this value.</source>
<translation>Keine bekannte Wirkung: Windows liest diesen Wert nicht.</translation>
</message>
<message>
<source>Saves small writes: Windows no longer records when a file was last read. Needs a restart.</source>
<translation>Spart kleine Schreibvorgänge: Windows merkt sich nicht mehr, wann eine Datei zuletzt gelesen wurde. Braucht einen Neustart.</translation>
</message>
<message>
<source>Windows no longer preloads programs: they start more slowly at first, and an SSD gains nothing. Needs a restart.</source>
<translation>Windows lädt Programme nicht mehr voraus: Sie starten anfangs langsamer, und eine SSD gewinnt nichts. Braucht einen Neustart.</translation>
</message>
<message>
<source>Windows' default: nothing changes. Taking it back clears the page file at each shutdown, which takes minutes.</source>
<translation>Der Standard von Windows: Es ändert sich nichts. Das Zurücknehmen leert die Auslagerungsdatei bei jedem Herunterfahren, was Minuten dauert.</translation>
</message>
<message>
<source>Each start is a full one: it takes a little longer, and drivers start afresh.</source>
<translation>Jeder Start ist ein vollständiger: Er dauert etwas länger, und die Treiber beginnen neu.</translation>
</message>
<message>
<source>Frees the space of hiberfil.sys. The PC can't hibernate any more, and fast startup goes too.</source>
<translation>Gibt den Platz von hiberfil.sys frei. Der PC kann nicht mehr in den Ruhezustand, und auch der Schnellstart entfällt.</translation>
</message>
<message>
<source>Takes all files out of the content index: search gets slower and finds less.</source>
<translation>Nimmt alle Dateien aus dem Inhaltsindex: Die Suche wird langsamer und findet weniger.</translation>
</message>
<message>
<source>No known effect since Windows XP.</source>
<translation>Seit Windows XP keine bekannte Wirkung.</translation>
</message>
<message>
<source>Small effect: only for games that register with Windows' multimedia scheduler.</source>
<translation>Geringe Wirkung: nur für Spiele, die sich beim Multimedia-Planer von Windows anmelden.</translation>
</message>
<message>
<source>No known effect: Windows reads this setting elsewhere.</source>
<translation>Keine bekannte Wirkung: Windows liest diese Einstellung an anderer Stelle.</translation>
</message>
<message>
<source>Windows' default: game mode is on already. Taking it back switches it off.</source>
<translation>Der Standard von Windows: Der Spielmodus ist schon ein. Das Zurücknehmen schaltet ihn aus.</translation>
</message>
<message>
<source>Windows no longer records or broadcasts games. Settings shows this as managed by your organization.</source>
<translation>Windows zeichnet keine Spiele mehr auf und überträgt keine. Die Einstellungen zeigen das als von der Organisation verwaltet.</translation>
</message>
<message>
<source>Windows 11: the default already, and taking it back forces the slower platform timer. Windows 10: no known effect.</source>
<translation>Windows 11: schon der Standard, und das Zurücknehmen erzwingt den langsameren Plattformzeitgeber. Windows 10: keine bekannte Wirkung.</translation>
</message>
<message>
<source>Partly effective: the Game Bar's tips and the Xbox button are off, but Win+G still opens it.</source>
<translation>Wirkt zum Teil: Tipps der Game Bar und Xbox-Taste sind aus, aber Win+G öffnet sie weiterhin.</translation>
</message>
<message>
<source>Windows 11: the system timer never pauses, which costs power; needs a restart. Windows 10: nothing changes.</source>
<translation>Windows 11: Der Systemzeitgeber pausiert nie, was Strom kostet; braucht einen Neustart. Windows 10: Es ändert sich nichts.</translation>
</message>
<message>
<source>Shows games without HDR in HDR. Resets other graphics settings such as variable refresh rate.</source>
<translation>Zeigt Spiele ohne HDR in HDR. Setzt andere Grafikeinstellungen wie die variable Bildfrequenz zurück.</translation>
</message>
<message>
<source>The pointer moves evenly with the mouse. Takes effect at the next sign-in.</source>
<translation>Der Zeiger folgt der Maus gleichmäßig. Wirkt ab der nächsten Anmeldung.</translation>
</message>
<message>
<source>Partly effective: packets are acknowledged at once, not on connections with a fixed address. Needs a restart.</source>
<translation>Wirkt zum Teil: Pakete werden sofort bestätigt, nicht auf Verbindungen mit fester Adresse. Braucht einen Neustart.</translation>
</message>
<message>
<source>38 is what Windows does by default; other choices change it. Taking it back deletes the value.</source>
<translation>38 ist, was Windows von sich aus tut; die anderen Werte ändern es. Das Zurücknehmen löscht den Wert.</translation>
</message>
<message>
<source>No known effect: neither Direct3D nor drivers read this value today.</source>
<translation>Keine bekannte Wirkung: Weder Direct3D noch Treiber lesen diesen Wert heute.</translation>
</message>
<message>
<source>May fix flickering and stutter; some videos may run worse. Said to have no effect since Windows 11 24H2. Needs a restart.</source>
<translation>Kann Flackern und Ruckeln beheben; manche Videos laufen schlechter. Seit Windows 11 24H2 angeblich ohne Wirkung. Braucht einen Neustart.</translation>
</message>
<message>
<source>Of use with several AMD graphics cards only; its effect is uncertain. Needs a restart.</source>
<translation>Nur mit mehreren AMD-Grafikkarten von Nutzen; die Wirkung ist unsicher. Braucht einen Neustart.</translation>
</message>
<message>
<source>Fewer svchost.exe processes, but services are less isolated from each other. Needs a restart.</source>
<translation>Weniger svchost.exe-Prozesse, aber Dienste sind weniger voneinander getrennt. Braucht einen Neustart.</translation>
</message>
<message>
<source>Windows' default since version 1803: nothing changes. Taking it back switches the backup on.</source>
<translation>Seit Version 1803 der Standard von Windows: Es ändert sich nichts. Das Zurücknehmen schaltet die Sicherung ein.</translation>
</message>
<message>
<source>Hides the button for advanced options only; indexing goes on.</source>
<translation>Blendet nur die Schaltfläche für erweiterte Optionen aus; indiziert wird weiterhin.</translation>
</message>
<message>
<source>File History keeps no older versions of files any more. Recent files are still listed.</source>
<translation>Der Dateiversionsverlauf bewahrt keine älteren Versionen mehr auf. Zuletzt verwendete Dateien werden weiterhin angezeigt.</translation>
</message>
<message>
<source>A right-click shows all entries, once Explorer has been restarted. Taking it back leaves the old menu.</source>
<translation>Ein Rechtsklick zeigt alle Einträge, sobald der Explorer neu gestartet ist. Nach dem Zurücknehmen bleibt das alte Menü.</translation>
</message>
<message>
<source>Updates are no longer exchanged with other PCs.</source>
<translation>Updates werden nicht mehr mit anderen PCs ausgetauscht.</translation>
</message>
<message>
<source>Less data goes to Microsoft. Clipboard history (Win+V), location and error reports stop working too.</source>
<translation>Weniger Daten gehen an Microsoft. Auch Zwischenablageverlauf (Win+V), Standort und Fehlerberichte funktionieren nicht mehr.</translation>
</message>
<message>
<source>Menus open faster. At sign-out programs may be closed with unsaved work. Takes effect at the next sign-in.</source>
<translation>Menüs öffnen sich schneller. Beim Abmelden können Programme mit ungespeicherter Arbeit geschlossen werden. Wirkt ab der nächsten Anmeldung.</translation>
</message>
<message>
<source>Windows 11: removes the whole lock screen; some editions ignore it. Windows 10: nothing changes.</source>
<translation>Windows 11: entfernt den ganzen Sperrbildschirm; manche Editionen beachten es nicht. Windows 10: Es ändert sich nichts.</translation>
</message>
<message>
<source>Search in Start and on the taskbar stops working. An update may bring it back while this box stays checked.</source>
<translation>Die Suche in Startmenü und Taskleiste funktioniert nicht mehr. Ein Update kann sie zurückbringen, während dieses Kästchen angehakt bleibt.</translation>
</message>
<message>
<source>Partly effective: two tasks stay off, but the service comes back at the next sign-in.</source>
<translation>Wirkt zum Teil: Zwei Aufgaben bleiben aus, aber der Dienst kommt bei der nächsten Anmeldung zurück.</translation>
</message>
<message>
<source>none changed</source>
<translation>nichts geändert</translation>
</message>
<message>
<source>an empty key</source>
<translation>ein leerer Schlüssel</translation>
</message>
<message>
<source>yes</source>
<translation>ja</translation>
</message>
<message>
<source>no</source>
<translation>nein</translation>
</message>
<message>
<source>%1 values</source>
<translation>%1 Werte</translation>
</message>
<message>
<source>%1 changed</source>
<translation>%1 geändert</translation>
</message>
<message>
<source>%1 as before</source>
<translation>%1 wie zuvor</translation>
</message>
<message>
<source>%1 otherwise</source>
<translation>%1 anders</translation>
</message>
<message>
<source>%1 stay changed</source>
<translation>%1 bleiben geändert</translation>
</message>
<message>
<source>start mode</source>
<translation>Starttyp</translation>
</message>
<message>
<source>delayed start</source>
<translation>verzögerter Start</translation>
</message>
<message>
<source>state</source>
<translation>Stand</translation>
</message>
<message>
<source>the key itself</source>
<translation>der Schlüssel selbst</translation>
</message>
<message>
<source>the file</source>
<translation>die Datei</translation>
</message>
<message>
<source>its attributes</source>
<translation>ihre Attribute</translation>
</message>
<message>
<source>its owner and permissions</source>
<translation>ihr Besitzer und ihre Rechte</translation>
</message>
<message>
<source>in the boot configuration</source>
<translation>in der Startkonfiguration</translation>
</message>
<message>
<source>Records of what was done</source>
<translation>Einträge über das, was getan wurde</translation>
</message>
<message>
<source>Log and backups beside the program</source>
<translation>Protokoll und Sicherungen beim Programm</translation>
</message>
<message>
<source>Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically.</source>
<translation>Das Wiederherstellen startet jeden Dienst, den das Optimieren deaktiviert hat, und setzt ihn auf automatisch: Ein Dienst, der zuvor bei Bedarf oder verzögert startete, startet nun automatisch.</translation>
</message>
<message>
<source>Optimize does not record services that it sets to manual, so Restore doesn't know of them.</source>
<translation>Das Optimieren notiert Dienste nicht, die es auf manuell setzt; das Wiederherstellen weiß daher nichts von ihnen.</translation>
</message>
<message>
<source>Restore enables only the tasks that Optimize has recorded.</source>
<translation>Das Wiederherstellen aktiviert nur die Aufgaben, die das Optimieren notiert hat.</translation>
</message>
<message>
<source>Restore re-registers the app from its files, as Windows itself does for a new user.</source>
<translation>Das Wiederherstellen registriert die App aus ihren Dateien neu, wie es Windows selbst für einen neuen Benutzer tut.</translation>
</message>
<message>
<source>The app comes back as newly installed, without what it had stored.</source>
<translation>Die App kommt wie neu installiert zurück, ohne das, was sie gespeichert hatte.</translation>
</message>
<message>
<source>Restore re-registers an app from its files, which could not be found.</source>
<translation>Das Wiederherstellen registriert eine App aus ihren Dateien neu, und diese wurden nicht gefunden.</translation>
</message>
<message>
<source>The saved command is cut at its first "=", so the program starts without the rest of its arguments.</source>
<translation>Der gespeicherte Befehl wird am ersten „=“ abgeschnitten; das Programm startet daher ohne den Rest seiner Argumente.</translation>
</message>
<message>
<source>Restore brings back only a command whose program is in quotation marks and exists on the disk.</source>
<translation>Das Wiederherstellen bringt nur einen Befehl zurück, dessen Programm in Anführungszeichen steht und auf dem Datenträger vorhanden ist.</translation>
</message>
<message>
<source>Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it.</source>
<translation>Das Wiederherstellen weiß nicht, was Sie hatten: Es schreibt einen festen Wert, meist den Standard von Windows, oder löscht ihn.</translation>
</message>
<message>
<source>Restore doesn't reset this option, or not all of its values.</source>
<translation>Das Wiederherstellen setzt diese Option nicht zurück, oder nicht alle ihre Werte.</translation>
</message>
<message>
<source>The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway.</source>
<translation>Die Option war schon so, wie das Optimieren sie will, oder gehört nicht dazu; das Wiederherstellen setzt sie trotzdem zurück.</translation>
</message>
<message>
<source>Restore doesn't touch this file.</source>
<translation>Das Wiederherstellen rührt diese Datei nicht an.</translation>
</message>
<message>
<source>Restore doesn't touch this value.</source>
<translation>Das Wiederherstellen rührt diesen Wert nicht an.</translation>
</message>
<message>
<source>Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it stops there: what is changed by then stays changed.</source>
<translation>Ändert alles, was die Analyse gefunden hat; das dauert eine Weile. Wenn Sie das Fenster währenddessen schließen, hört es dort auf: Was bis dahin geändert ist, bleibt geändert.</translation>
</message>
<message>
<source>Acts on all checked packages at once, without asking. The list stays as it is until the page is shown again.</source>
<translation>Wirkt sofort auf alle angehakten Pakete, ohne nachzufragen. Die Liste bleibt, wie sie ist, bis die Seite erneut angezeigt wird.</translation>
</message>
<message>
<source>Nothing changes either.</source>
<translation>Auch dabei ändert sich nichts.</translation>
</message>
<message>
<source>Last access times are recorded again, but Windows no longer decides about them by itself.</source>
<translation>Letzte Zugriffe werden wieder vermerkt, aber Windows entscheidet darüber nicht mehr selbst.</translation>
</message>
<message>
<source>The default is back.</source>
<translation>Der Standard gilt wieder.</translation>
</message>
<message>
<source>The defaults are back.</source>
<translation>Die Standardwerte gelten wieder.</translation>
</message>
<message>
<source>The page file is cleared at each shutdown, which isn't the default and takes minutes.</source>
<translation>Die Auslagerungsdatei wird bei jedem Herunterfahren geleert; das ist nicht der Standard und dauert Minuten.</translation>
</message>
<message>
<source>Hibernation is on, even if it was off before, and takes its space again.</source>
<translation>Der Ruhezustand ist ein, auch wenn er vorher aus war, und belegt wieder seinen Platz.</translation>
</message>
<message>
<source>The attribute is cleared, even where Windows or you had set it.</source>
<translation>Das Attribut wird gelöscht, auch wo Windows oder Sie es gesetzt hatten.</translation>
</message>
<message>
<source>Some priorities stay higher than the default.</source>
<translation>Einige Prioritäten bleiben höher als der Standard.</translation>
</message>
<message>
<source>Game mode is off, and the default is on.</source>
<translation>Der Spielmodus ist aus, und der Standard ist ein.</translation>
</message>
<message>
<source>Recording is allowed; Settings still shows it as managed.</source>
<translation>Das Aufzeichnen ist erlaubt; die Einstellungen zeigen es weiterhin als verwaltet.</translation>
</message>
<message>
<source>On Windows 11 the platform timer is forced on, which may slow down games; the default is no entry at all.</source>
<translation>Unter Windows 11 wird der Plattformzeitgeber erzwungen, was Spiele verlangsamen kann; der Standard ist gar kein Eintrag.</translation>
</message>
<message>
<source>The same effect as the default.</source>
<translation>Dieselbe Wirkung wie der Standard.</translation>
</message>
<message>
<source>Auto HDR is off.</source>
<translation>Auto HDR ist aus.</translation>
</message>
<message>
<source>The values are deleted, which is the default.</source>
<translation>Die Werte werden gelöscht, was der Standard ist.</translation>
</message>
<message>
<source>The value is deleted. It is there by default, and what Windows does without it is uncertain.</source>
<translation>Der Wert wird gelöscht. Standardmäßig ist er da, und was Windows ohne ihn tut, ist ungewiss.</translation>
</message>
<message>
<source>ULPS is switched on, even for adapters that never had it.</source>
<translation>ULPS wird eingeschaltet, auch für Karten, die es nie hatten.</translation>
</message>
<message>
<source>The same effect as the default on a PC with more than 3.5 GB of memory.</source>
<translation>Dieselbe Wirkung wie der Standard auf einem PC mit mehr als 3,5 GB Arbeitsspeicher.</translation>
</message>
<message>
<source>The backup is on, which isn't the default and does no harm.</source>
<translation>Die Sicherung ist ein; das ist nicht der Standard und schadet nicht.</translation>
</message>
<message>
<source>The button is back.</source>
<translation>Die Schaltfläche ist wieder da.</translation>
</message>
<message>
<source>File History is allowed again.</source>
<translation>Der Dateiversionsverlauf ist wieder erlaubt.</translation>
</message>
<message>
<source>The old menu stays: key and empty value are left.</source>
<translation>Das alte Menü bleibt: Schlüssel und leerer Wert sind noch da.</translation>
</message>
<message>
<source>Some values are less private than before: diagnostic data in full, suggestions on, synchronization on.</source>
<translation>Einige Werte sind weniger privat als zuvor: vollständige Diagnosedaten, Vorschläge ein, Synchronisierung ein.</translation>
</message>
<message>
<source>The lock screen is back.</source>
<translation>Der Sperrbildschirm ist wieder da.</translation>
</message>
<message>
<source>The program is back; its owner and rights stay changed.</source>
<translation>Das Programm ist wieder da; Besitzer und Rechte bleiben geändert.</translation>
</message>
<message>
<source>as now</source>
<translation>wie jetzt</translation>
</message>
<message>
<source>written</source>
<translation>geschrieben</translation>
</message>
<message>
<source>kept</source>
<translation>behalten</translation>
</message>
<message>
<source>as before</source>
<translation>wie zuvor</translation>
</message>
</context>
</TS>
