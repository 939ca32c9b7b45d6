<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<!-- One context for all: see cmake/translations.cmake. -->
<context>
<name>texts</name>
<message>
<source>  20   (variable and long quantum, foreground boost X1)</source>
<translation>  20   (variabel en lang quantum, voorgrondboost X1)</translation>
</message>
<message>
<source>  21   (variable and long quantum, foreground boost X2)</source>
<translation>  21   (variabel en lang quantum, voorgrondboost X2)</translation>
</message>
<message>
<source>  22   (variable and long quantum, foreground boost X3)</source>
<translation>  22   (variabel en lang quantum, voorgrondboost X3)</translation>
</message>
<message>
<source>  24   (fixed and long quantum, foreground boost X1) (not recommended)</source>
<translation>  24   (vast en lang quantum, voorgrondboost X1) (niet aanbevolen)</translation>
</message>
<message>
<source>  36   (variable and short quantum, foreground boost X1)</source>
<translation>  36   (variabel en kort quantum, voorgrondboost X1)</translation>
</message>
<message>
<source>  37   (variable and short quantum, foreground boost X2)</source>
<translation>  37   (variabel en kort quantum, voorgrondboost X2)</translation>
</message>
<message>
<source>  38   (variable and short quantum, foreground boost X3) (recommended)</source>
<translation>  38   (variabel en kort quantum, voorgrondboost X3) (aanbevolen)</translation>
</message>
<message>
<source>  40   (fixed and short quantum, foreground boost X1) (not recommended)</source>
<translation>  40   (vast en kort quantum, voorgrondboost X1) (niet aanbevolen)</translation>
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Editie:   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Build:   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versie:   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Geïnstalleerd op SSD:   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Moederbord:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Model:   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;BIOS-versie:   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;BIOS-datum:   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Processor:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Standaardfrequentie:   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Cores / threads:   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Grootte L2-cache:   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Grootte L3-cache:   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Socket:   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading:   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtualisatie:   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Geheugen:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Capaciteit:   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Vrij:   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequentie:   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Vormfactor:   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtueel geheugen:   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Grafische kaart en scherm:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Stuurprogrammaversie:   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Stuurprogrammadatum:   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Scherm:   scherminfo laden...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Resolutie:   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Max. resolutie:   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequentie:   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Max. frequentie:   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR:   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Schijf:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;schijfinfo laden...&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Versie:&lt;/span&gt;   bèta %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Datum:&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Auteur:&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Contact:&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Website:&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Programmeertaal en framework:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ met Qt 6, gelicentieerd onder de GNU LGPL versie 3&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Ontwikkeld voor Windows 10 en Windows 11&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Doel:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Deze app is bedoeld om de algehele prestaties te verbeteren zonder Windows te ontwrichten, door u te helpen functies, programma’s, services en geplande taken uit te schakelen die overbodig kunnen zijn en de prestaties schaden. De app configureert ook enkele interne systeemfuncties die via geen enkele interface bereikbaar zijn, en met andere opties verkleint u de ruimte die Windows op de harde schijf inneemt. (onnodige Windows-toepassingen verwijderen, de map WinSxS opschonen, ...)&lt;br /&gt;Dit alles met een paar klikken en met de mogelijkheid om de oorspronkelijke waarden te herstellen. &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Belangrijke informatie:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;Alle opties in deze app kunnen ongedaan worden gemaakt.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Wees voorzichtig met het gedeelte Services. Schakel geen services uit als u niet echt weet wat ze doen, welke afhankelijkheden ze hebben, enz. GEBRUIK DE KNOP ASSISTENT!!!&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- VAST quantum: de processortijd wordt gelijk over de toepassingen verdeeld,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;bij een VARIABEL quantum mogen ze de processor zo nodig langer vasthouden.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- KORT quantum: de processortijd gaat sneller van taak naar taak,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;een LANG quantum wijst juist meer processortijd aan de toepassing toe.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- VOORGRONDBOOST X keer: het quantum wordt X keer verhoogd ten gunste van&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;de toepassing op de voorgrond.&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Puur voor gaming bevordert u, afhankelijk van de waarde, de FPS (22, 21),&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;FPS en respons (38, 37) of latentie van toetsenbord/muis of gamepad (36, 24, 40).&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;meer informatie&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Advanced optimizations via motherboard BIOS settings &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Geavanceerde optimalisaties via de BIOS-instellingen van het moederbord &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;meer informatie&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft acknowledges performance impact with Memory Integrity and VMP enabled &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft erkent prestatieverlies als Geheugenintegriteit en VMP zijn ingeschakeld &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;meer informatie&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;The WinSxS folder is an essential system component that serves as a repository for storing multiple versions of system files, allowing Windows to maintain good compatibility &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;De map WinSxS is een essentieel systeemonderdeel dat meerdere versies van systeembestanden bewaart, waardoor Windows een goede compatibiliteit behoudt &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;meer informatie&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>%1 bytes</source>
<translation>%1 bytes</translation>
</message>
<message>
<source>%1 of %2 are as they were.</source>
<translation>%1 van %2 zijn zoals ze waren.</translation>
</message>
<message>
<source>&amp;Sessions:</source>
<translation>&amp;Sessies:</translation>
</message>
<message>
<source>Clear the search</source>
<translation>Zoekopdracht wissen</translation>
</message>
<message>
<source>Preview…</source>
<translation>Voorbeeld…</translation>
</message>
<message>
<source>Preview of Optimize</source>
<translation>Voorbeeld van de optimalisatie</translation>
</message>
<message>
<source>After Optimize</source>
<translation>Na optimaliseren</translation>
</message>
<message>
<source>After Restore</source>
<translation>Na herstellen</translation>
</message>
<message>
<source>Comes back</source>
<translation>Komt terug</translation>
</message>
<message>
<source>Progress</source>
<translation>Voortgang</translation>
</message>
<message>
<source>exactly</source>
<translation>precies</translation>
</message>
<message>
<source>as a fixed value</source>
<translation>met een vaste waarde</translation>
</message>
<message>
<source>It is in the Store: %1</source>
<translation>Hij staat in de Store: %1</translation>
</message>
<message>
<source>not at all</source>
<translation>helemaal niet</translation>
</message>
<message>
<source>by Restore only</source>
<translation>alleen door herstellen</translation>
</message>
<message>
<source>%1 come back exactly</source>
<translation>%1 komen precies terug</translation>
</message>
<message>
<source>%1 as a fixed value</source>
<translation>%1 met een vaste waarde</translation>
</message>
<message>
<source>%1 not at all</source>
<translation>%1 helemaal niet</translation>
</message>
<message>
<source>%1 are changed by Restore only</source>
<translation>%1 worden alleen door herstellen gewijzigd</translation>
</message>
<message>
<source>Programs started at logon</source>
<translation>Programma’s die bij aanmelden starten</translation>
</message>
<message>
<source>System options</source>
<translation>Systeemopties</translation>
</message>
<message>
<source>Files</source>
<translation>Bestanden</translation>
</message>
<message>
<source>Other registry values</source>
<translation>Andere registerwaarden</translation>
</message>
<message>
<source>Kestrune's own records</source>
<translation>Eigen aantekeningen van Kestrune</translation>
</message>
<message>
<source>Copying this PC…</source>
<translation>Deze pc wordt gekopieerd…</translation>
</message>
<message>
<source>Trying it on a copy…</source>
<translation>Wordt op een kopie geprobeerd…</translation>
</message>
<message>
<source>Trying it on the copy…</source>
<translation>Wordt op de kopie geprobeerd…</translation>
</message>
<message>
<source>There is no preview: %1</source>
<translation>Er is geen voorbeeld: %1</translation>
</message>
<message>
<source>What the next Optimize would change, and what the Restore button would bring back:</source>
<translation>Wat de volgende optimalisatie zou wijzigen en wat de knop Herstellen zou terugbrengen:</translation>
</message>
<message>
<source>“Way back…” brings back more than Restore: what was noted before each change.</source>
<translation>“Weg terug…” brengt meer terug dan herstellen: wat vóór elke wijziging is genoteerd.</translation>
</message>
<message>
<source>This PC was looked at without Admin rights: what needs them is missing here.</source>
<translation>Deze pc is zonder administratorrechten bekeken: wat die nodig heeft, ontbreekt hier.</translation>
</message>
<message>
<source>With Admin rights a preview needs a copy of this app that nobody else can change, such as the installer makes in the folder for programs. Without Admin rights it works from any folder.</source>
<translation>Met administratorrechten heeft een voorbeeld een kopie van deze app nodig die niemand anders kan wijzigen, zoals het installatieprogramma die in de programmamap zet. Zonder die rechten werkt het vanuit elke map.</translation>
</message>
<message>
<source>A preview needs the folder “rehearse” of this app, which isn't there.</source>
<translation>Een voorbeeld heeft de map “rehearse” van deze app nodig, en die is er niet.</translation>
</message>
<message>
<source>Windows was updated from build %1 to %2 since. No longer in force: %3.</source>
<translation>Windows is sindsdien van build %1 naar %2 bijgewerkt. Niet meer van kracht: %3.</translation>
</message>
<message>
<source>automatic (delayed)</source>
<translation>automatisch (vertraagd)</translation>
</message>
<message>
<source>not installed</source>
<translation>niet geïnstalleerd</translation>
</message>
<message>
<source>starts</source>
<translation>start</translation>
</message>
<message>
<source>doesn't start</source>
<translation>start niet</translation>
</message>
<message>
<source>your setting</source>
<translation>uw instelling</translation>
</message>
<message>
<source>applied</source>
<translation>toegepast</translation>
</message>
<message>
<source>applied in part</source>
<translation>deels toegepast</translation>
</message>
<message>
<source>a fixed value</source>
<translation>een vaste waarde</translation>
</message>
<message>
<source>not there</source>
<translation>niet aanwezig</translation>
</message>
<message>
<source>but not as before</source>
<translation>maar niet zoals eerst</translation>
</message>
<message>
<source>Before the journal, not exact</source>
<translation>Vóór het logboek, niet precies</translation>
</message>
<message>
<source>%1 (by the system)</source>
<translation>%1 (door het systeem)</translation>
</message>
<message>
<source>%1 (by another account)</source>
<translation>%1 (door een ander account)</translation>
</message>
<message>
<source>Page: %1</source>
<translation>Pagina: %1</translation>
</message>
<message>
<source>&amp;Take back</source>
<translation>&amp;Terugdraaien</translation>
</message>
<message>
<source>Clean-up of the WinSxS folder</source>
<translation>Opschoning van de map WinSxS</translation>
</message>
<message>
<source>Windows keeps no copy of what this removes</source>
<translation>Windows bewaart geen kopie van wat dit verwijdert</translation>
</message>
<message>
<source>its files are gone from this PC; get it from the Store</source>
<translation>de bestanden staan niet meer op deze pc; verkrijgbaar in de Store</translation>
</message>
<message>
<source>Not everything was done.</source>
<translation>Niet alles is uitgevoerd.</translation>
</message>
<message>
<source>a later session has changed it, too</source>
<translation>een latere sessie heeft het ook gewijzigd</translation>
</message>
<message>
<source>A newer version of Kestrune is available!<byte value="xd"/>
Would you like to visit the website for download?<byte value="xd"/>
<byte value="xd"/>
Current version: %1<byte value="xd"/>
Online version: %2</source>
<translation>Er is een nieuwere versie van Kestrune beschikbaar!<byte value="xd"/>
Wilt u de website bezoeken om deze te downloaden?<byte value="xd"/>
<byte value="xd"/>
Huidige versie: %1<byte value="xd"/>
Onlineversie: %2</translation>
</message>
<message>
<source>About</source>
<translation>Info</translation>
</message>
<message>
<source>absent</source>
<translation>afwezig</translation>
</message>
<message>
<source>Add indexing attribute of %1 finished</source>
<translation>Indexeringskenmerk van %1 toegevoegd</translation>
</message>
<message>
<source>Add indexing attribute of Windows partition %1</source>
<translation>Indexeringskenmerk van Windows-partitie %1 toevoegen</translation>
</message>
<message>
<source>Apply a profile</source>
<translation>Profiel toepassen</translation>
</message>
<message>
<source>Analyze</source>
<translation>Analyseren</translation>
</message>
<message>
<source>Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring some that are inaccessible through an interface.
Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages.</source>
<translation>Analyseer en optimaliseer Windows om de algehele prestaties te verbeteren door onnodige functies uit te schakelen en functies te configureren die via geen enkele interface bereikbaar zijn.
De optimalisaties komen van de pagina’s Services, Geplande taken, Programma’s en Functies.</translation>
</message>
<message>
<source>Application to play PC games if you have a Gamepass account (paid)</source>
<translation>App om pc-games te spelen met een (betaald) Game Pass-abonnement</translation>
</message>
<message>
<source>Apply</source>
<translation>Toepassen</translation>
</message>
<message>
<source>Apply features</source>
<translation>Functies toepassen</translation>
</message>
<message>
<source>Apply features finished successfully.</source>
<translation>De functies zijn toegepast.</translation>
</message>
<message>
<source>Are you sure to disable all checked services?</source>
<translation>Weet u zeker dat u alle aangevinkte services wilt uitschakelen?</translation>
</message>
<message>
<source>Are you sure to disable all checked tasks?</source>
<translation>Weet u zeker dat u alle aangevinkte taken wilt uitschakelen?</translation>
</message>
<message>
<source>Are you sure you want to restore the original values?<byte value="xd"/>
All features, applications, services and tasks will be restored.</source>
<translation>Weet u zeker dat u de oorspronkelijke waarden wilt herstellen?<byte value="xd"/>
Alle functies, toepassingen, services en taken worden hersteld.</translation>
</message>
<message>
<source>Are you sure you want to restore the startup of all scheduled tasks?</source>
<translation>Weet u zeker dat u het starten van alle geplande taken wilt herstellen?</translation>
</message>
<message>
<source>as it was</source>
<translation>zoals het was</translation>
</message>
<message>
<source>ASSISTANT - disable a list of non vital services</source>
<translation>ASSISTENT - niet-vitale services uitschakelen</translation>
</message>
<message>
<source>ASSISTANT - disable a list of scheduled tasks</source>
<translation>ASSISTENT - een lijst van geplande taken uitschakelen</translation>
</message>
<message>
<source>Assistant - no services to deactivate</source>
<translation>Assistent - geen services om uit te schakelen</translation>
</message>
<message>
<source>Assistant - no tasks to deactivate</source>
<translation>Assistent - geen taken om uit te schakelen</translation>
</message>
<message>
<source>at boot</source>
<translation>bij het opstarten</translation>
</message>
<message>
<source>Attributes of %1</source>
<translation>Kenmerken van %1</translation>
</message>
<message>
<source>Auto</source>
<translation>Auto</translation>
</message>
<message>
<source>Auto started programs disabled:</source>
<translation>Uitgeschakelde opstartprogramma’s:</translation>
</message>
<message>
<source>automatic</source>
<translation>automatisch</translation>
</message>
<message>
<source>Automatic start</source>
<translation>Automatisch starten</translation>
</message>
<message>
<source>Automatically started programs</source>
<translation>Automatisch gestarte programma’s</translation>
</message>
<message>
<source>Autorun</source>
<translation>Opstarten</translation>
</message>
<message>
<source>Autorun program: disable %1 done</source>
<translation>Opstartprogramma: %1 uitgeschakeld</translation>
</message>
<message>
<source>Autorun program: enable %1 done</source>
<translation>Opstartprogramma: %1 ingeschakeld</translation>
</message>
<message>
<source>Autorun:</source>
<translation>Opstarten:</translation>
</message>
<message>
<source>Autorun: can be disabled: </source>
<translation>Opstarten: kan worden uitgeschakeld: </translation>
</message>
<message>
<source>Backup file exists</source>
<translation>Er is een back-upbestand</translation>
</message>
<message>
<source>Before</source>
<translation>Daarvoor</translation>
</message>
<message>
<source>Bluetooth audio</source>
<translation>Bluetooth-audio</translation>
</message>
<message>
<source>Boot option %1</source>
<translation>Opstartoptie %1</translation>
</message>
<message>
<source>broken off</source>
<translation>afgebroken</translation>
</message>
<message>
<source>Broken off: way back…</source>
<translation>Afgebroken: weg terug…</translation>
</message>
<message>
<source>by the system</source>
<translation>door het systeem</translation>
</message>
<message>
<source>Cancel</source>
<translation>Annuleren</translation>
</message>
<message>
<source>Cannot restore if you have not yet optimized!</source>
<translation>U kunt pas herstellen als u hebt geoptimaliseerd!</translation>
</message>
<message>
<source>Another instance of the program is changing this PC. Try again when it has finished.</source>
<translation>Een ander exemplaar van het programma wijzigt deze pc. Probeer het opnieuw wanneer het klaar is.</translation>
</message>
<message>
<source>Capacity:</source>
<translation>Capaciteit:</translation>
</message>
<message>
<source>Change</source>
<translation>Wijziging</translation>
</message>
<message>
<source>changed</source>
<translation>gewijzigd</translation>
</message>
<message>
<source>changed again</source>
<translation>opnieuw gewijzigd</translation>
</message>
<message>
<source>Changes</source>
<translation>Wijzigingen</translation>
</message>
<message>
<source>Check all</source>
<translation>Alles aanvinken</translation>
</message>
<message>
<source>Check update of Kestrune version</source>
<translation>Controleren op updates van Kestrune</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool</source>
<translation>WinSxS-map opschonen met het Microsoft-hulpprogramma DISM</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)</source>
<translation>WinSxS-map opschonen met het Microsoft-hulpprogramma DISM  (huidige grootte: %1 GB)</translation>
</message>
<message>
<source>Close</source>
<translation>Sluiten</translation>
</message>
<message>
<source>Comments</source>
<translation>Opmerkingen</translation>
</message>
<message>
<source>Configure auto started programs done!</source>
<translation>Configuratie van opstartprogramma’s voltooid!</translation>
</message>
<message>
<source>Content indexing off</source>
<translation>Inhoudsindexering uit</translation>
</message>
<message>
<source>Content indexing on</source>
<translation>Inhoudsindexering aan</translation>
</message>
<message>
<source>CPU</source>
<translation>CPU</translation>
</message>
<message>
<source>Dark</source>
<translation>Donker</translation>
</message>
<message>
<source>Date of the last execution</source>
<translation>Datum van de laatste uitvoering</translation>
</message>
<message>
<source>Description</source>
<translation>Beschrijving</translation>
</message>
<message>
<source>Development applet</source>
<translation>Applet voor ontwikkelaars</translation>
</message>
<message>
<source>Disable advanced indexing options</source>
<translation>Geavanceerde indexeringsopties uitschakelen</translation>
</message>
<message>
<source>Disable automatic boot disk optimization</source>
<translation>Automatische optimalisatie van de opstartschijf uitschakelen</translation>
</message>
<message>
<source>Disable checked programs</source>
<translation>Aangevinkte programma’s uitschakelen</translation>
</message>
<message>
<source>DISABLE checked services</source>
<translation>Aangevinkte services UITSCHAKELEN</translation>
</message>
<message>
<source>Disable checked services</source>
<translation>Aangevinkte services uitschakelen</translation>
</message>
<message>
<source>Disable checked services finished</source>
<translation>Uitschakelen van aangevinkte services voltooid</translation>
</message>
<message>
<source>DISABLE checked tasks</source>
<translation>Aangevinkte taken UITSCHAKELEN</translation>
</message>
<message>
<source>Disable clearing of virtual memory swap file on every shutdown</source>
<translation>Wissen van het wisselbestand bij elke afsluiting uitschakelen</translation>
</message>
<message>
<source>Disable cloud backup and restore functionalities</source>
<translation>Back-up en herstel in de cloud uitschakelen</translation>
</message>
<message>
<source>Disable CPU power throttling
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Energiebeperking van de processor uitschakelen
(energiebesparing, optimalisatie niet aanbevolen voor laptops)</translation>
</message>
<message>
<source>Disable distribution optimization of Windows updates</source>
<translation>Leveringsoptimalisatie van Windows-updates uitschakelen</translation>
</message>
<message>
<source>Disable dynamic tick of system timers
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Dynamische tik van systeemtimers uitschakelen
(energiebesparing, optimalisatie niet aanbevolen voor laptops)</translation>
</message>
<message>
<source>Disable enhance pointer precision
(to achieve precise mouse control and muscle memory)</source>
<translation>Verhoogde precisie van de aanwijzer uitschakelen
(voor nauwkeurige muisbesturing en spiergeheugen)</translation>
</message>
<message>
<source>Disable fast start-up  (Windows function designed for HDD and not SSD)</source>
<translation>Snel opstarten uitschakelen  (Windows-functie voor HDD’s, niet voor SSD’s)</translation>
</message>
<message>
<source>Disable files history (even in explorer)</source>
<translation>Bestandsgeschiedenis uitschakelen (ook in Verkenner)</translation>
</message>
<message>
<source>Disable game recording and broadcasting</source>
<translation>Opnemen en uitzenden van games uitschakelen</translation>
</message>
<message>
<source>Disable Gamebar</source>
<translation>Game Bar uitschakelen</translation>
</message>
<message>
<source>Disable hibernation mode</source>
<translation>Sluimerstand uitschakelen</translation>
</message>
<message>
<source>Disable hibernation mode  (gain %1 GB of storage space)</source>
<translation>Sluimerstand uitschakelen  (levert %1 GB opslagruimte op)</translation>
</message>
<message>
<source>Disable HPET  (High Precision Event Timer)
(use invariant TSC instead which may be faster for gaming)
(important: do not disable HPET in BIOS settings)</source>
<translation>HPET uitschakelen  (High Precision Event Timer)
(gebruikt de invariante TSC, die voor games sneller kan zijn)
(belangrijk: schakel HPET niet uit in de BIOS-instellingen)</translation>
</message>
<message>
<source>Disable last access time stamps  (NTFS drive only)</source>
<translation>Tijdstempel van laatste toegang uitschakelen  (alleen NTFS-stations)</translation>
</message>
<message>
<source>Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)</source>
<translation>LockApp.exe uitschakelen  (extra informatie op het vergrendelingsscherm)</translation>
</message>
<message>
<source>Disable Multiplane Overlay (MPO)
(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,
especially for video playback apps)</source>
<translation>Multiplane Overlay (MPO) uitschakelen
(kan flikkeren of haperen verhelpen, MAAR u verliest optimalisaties voor
volledig scherm, vooral in apps voor videoweergave)</translation>
</message>
<message>
<source>Disable Nagle’s Algorithm
(may improve the real-time responsiveness of your network connection, but may increase traffic)</source>
<translation>Algoritme van Nagle uitschakelen
(kan de netwerkverbinding sneller laten reageren, maar het verkeer verhogen)</translation>
</message>
<message>
<source>Disable periodic registry backup</source>
<translation>Periodieke back-up van het register uitschakelen</translation>
</message>
<message>
<source>Disable Prefetcher  (prevents preloading of applications)</source>
<translation>Prefetcher uitschakelen  (voorkomt het vooraf laden van toepassingen)</translation>
</message>
<message>
<source>Disable programs</source>
<translation>Programma’s uitschakelen</translation>
</message>
<message>
<source>Disable scheduled tasks</source>
<translation>Geplande taken uitschakelen</translation>
</message>
<message>
<source>Disable scheduled tasks completed successfully</source>
<translation>Geplande taken zijn uitgeschakeld</translation>
</message>
<message>
<source>Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)</source>
<translation>SearchHost.exe uitschakelen  (zoekt bestanden; geavanceerd zoeken kan haperen)</translation>
</message>
<message>
<source>Disable services</source>
<translation>Services uitschakelen</translation>
</message>
<message>
<source>Disable SvcHost splitting  (reduce the number of svchost.exe process)</source>
<translation>SvcHost-splitsing uitschakelen  (vermindert het aantal svchost.exe-processen)</translation>
</message>
<message>
<source>Disable telemetry (data collection for Microsoft)
(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)</source>
<translation>Telemetrie uitschakelen (gegevensverzameling voor Microsoft)
(De rest schakelt u uit bij Services, Geplande taken of Optimalisatie)</translation>
</message>
<message>
<source>Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)
(power-saving feature, optimization not recommended for laptop)</source>
<translation>ULPS uitschakelen  (Ultra Low Power State, alleen voor grafische kaarten van AMD)
(energiebesparing, optimalisatie niet aanbevolen voor laptops)</translation>
</message>
<message>
<source>Disable Windows write-cache buffer flushing</source>
<translation>Leegmaken van de schrijfcachebuffer van Windows uitschakelen</translation>
</message>
<message>
<source>Disabled</source>
<translation>Uitgeschakeld</translation>
</message>
<message>
<source>disabled</source>
<translation>uitgeschakeld</translation>
</message>
<message>
<source>disabled:</source>
<translation>uitgeschakeld:</translation>
</message>
<message>
<source>disabled:</source>
<comment>tasks</comment>
<translation>uitgeschakeld:</translation>
</message>
<message>
<source>DISK</source>
<translation>SCHIJF</translation>
</message>
<message>
<source>Display name</source>
<translation>Weergavenaam</translation>
</message>
<message>
<source>display threads and handles count</source>
<translation>aantal threads en handles weergeven</translation>
</message>
<message>
<source>Do you want to restore start mode option of all services?<byte value="xd"/>
<byte value="xd"/>
If you click No (recommended),<byte value="xd"/>
then restore only the services you have disabled</source>
<translation>Wilt u het opstarttype van alle services herstellen?<byte value="xd"/>
<byte value="xd"/>
Als u op Nee klikt (aanbevolen),<byte value="xd"/>
worden alleen de door u uitgeschakelde services hersteld</translation>
</message>
<message>
<source>Do you want to start this app with Admin rights?</source>
<translation>Wilt u deze app als administrator starten?</translation>
</message>
<message>
<source>done</source>
<translation>klaar</translation>
</message>
<message>
<source>Enable Auto HDR  (forces HDR mode on SDR content)</source>
<translation>Auto HDR inschakelen  (forceert HDR-modus voor SDR-inhoud)</translation>
</message>
<message>
<source>Enable checked programs</source>
<translation>Aangevinkte programma’s inschakelen</translation>
</message>
<message>
<source>ENABLE checked services</source>
<translation>Aangevinkte services INSCHAKELEN</translation>
</message>
<message>
<source>Enable checked services finished</source>
<translation>Inschakelen van aangevinkte services voltooid</translation>
</message>
<message>
<source>Enable game mode  (enabled by default)</source>
<translation>Gamemodus inschakelen  (standaard ingeschakeld)</translation>
</message>
<message>
<source>Enable programs</source>
<translation>Programma’s inschakelen</translation>
</message>
<message>
<source>Enable services</source>
<translation>Services inschakelen</translation>
</message>
<message>
<source>Enable the context menu like Windows 10  (all entries in the context menu are displayed)</source>
<translation>Contextmenu van Windows 10 inschakelen  (alle items worden weergegeven)</translation>
</message>
<message>
<source>enabled</source>
<translation>ingeschakeld</translation>
</message>
<message>
<source>enabled:</source>
<translation>ingeschakeld:</translation>
</message>
<message>
<source>English</source>
<translation>English</translation>
</message>
<message>
<source>error</source>
<translation>fout</translation>
</message>
<message>
<source>Features</source>
<translation>Functies</translation>
</message>
<message>
<source>Features applied successfully. Restart your PC!</source>
<translation>Functies toegepast. Start uw pc opnieuw op!</translation>
</message>
<message>
<source>Features: %1 improvements can be applied</source>
<translation>Functies: er kunnen %1 verbeteringen worden toegepast</translation>
</message>
<message>
<source>Features: applied successfully. Restart your PC!</source>
<translation>Functies: toegepast. Start uw pc opnieuw op!</translation>
</message>
<message>
<source>Features: applies Gaming optimizations</source>
<translation>Functies: gamingoptimalisaties worden toegepast</translation>
</message>
<message>
<source>Features: applies SSD optimizations</source>
<translation>Functies: SSD-optimalisaties worden toegepast</translation>
</message>
<message>
<source>Features: applies Windows optimizations</source>
<translation>Functies: Windows-optimalisaties worden toegepast</translation>
</message>
<message>
<source>Features: Battery detected! Some optimizations will not be applied to maintain battery life</source>
<translation>Functies: accu gedetecteerd! Sommige optimalisaties worden niet toegepast om de accuduur te behouden</translation>
</message>
<message>
<source>Features: reset Gaming optimizations</source>
<translation>Functies: gamingoptimalisaties worden hersteld</translation>
</message>
<message>
<source>Features: reset SSD optimizations</source>
<translation>Functies: SSD-optimalisaties worden hersteld</translation>
</message>
<message>
<source>Features: reset Windows optimizations</source>
<translation>Functies: Windows-optimalisaties worden hersteld</translation>
</message>
<message>
<source>File %1</source>
<translation>Bestand %1</translation>
</message>
<message>
<source>Files sharing</source>
<translation>Bestandsdeling</translation>
</message>
<message>
<source>finished</source>
<translation>voltooid</translation>
</message>
<message>
<source>Folder for the files of the way back</source>
<translation>Map voor de bestanden van de weg terug</translation>
</message>
<message>
<source>Français</source>
<translation>Français</translation>
</message>
<message>
<source>free memory</source>
<translation>vrij geheugen</translation>
</message>
<message>
<source>free on</source>
<translation>vrij op</translation>
</message>
<message>
<source>GAMING</source>
<translation>GAMING</translation>
</message>
<message>
<source>Get system info:</source>
<translation>Systeeminformatie ophalen:</translation>
</message>
<message>
<source>Get WinSxS folder size in features page</source>
<translation>Grootte van de WinSxS-map ophalen op de pagina Functies</translation>
</message>
<message>
<source>GPU</source>
<translation>GPU</translation>
</message>
<message>
<source>Grayed out services are considered necessary or critical</source>
<translation>Grijze services worden als noodzakelijk of kritiek beschouwd</translation>
</message>
<message>
<source>Grayed out services refer to those disabled outside this tab</source>
<translation>Grijze services zijn buiten dit tabblad uitgeschakeld</translation>
</message>
<message>
<source>handles</source>
<translation>handles</translation>
</message>
<message>
<source>Hibernation</source>
<translation>Sluimerstand</translation>
</message>
<message>
<source>If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this</source>
<translation>Als u geen headset of audioapparatuur via Bluetooth hebt aangesloten, kunt u dit uitvinken</translation>
</message>
<message>
<source>If you don't have any printers, you can uncheck this</source>
<translation>Als u geen printer hebt, kunt u dit uitvinken</translation>
</message>
<message>
<source>Increase maximum amount of physical memory that can be locked for I/O operations</source>
<translation>Maximaal te vergrendelen fysiek geheugen voor I/O-bewerkingen verhogen</translation>
</message>
<message>
<source>Install</source>
<translation>Installeren</translation>
</message>
<message>
<source>Install packages</source>
<translation>Pakketten installeren</translation>
</message>
<message>
<source>installed</source>
<translation>geïnstalleerd</translation>
</message>
<message>
<source>Intelligent personal assistant</source>
<translation>Intelligente persoonlijke assistent</translation>
</message>
<message>
<source>Interface language:</source>
<translation>Taal van interface:</translation>
</message>
<message>
<source>Interface type:</source>
<translation>Interfacetype:</translation>
</message>
<message>
<source>Internal system features that can slow down your PC unnecessarily.
Check them to optimize or uncheck them to restore defaults.</source>
<translation>Interne systeemfuncties die uw pc onnodig kunnen vertragen.
Vink ze aan om te optimaliseren of uit om de standaardwaarden te herstellen.</translation>
</message>
<message>
<source>interval in seconds:</source>
<translation>interval in seconden:</translation>
</message>
<message>
<source>it didn't come back</source>
<translation>het kwam niet terug</translation>
</message>
<message>
<source>Keep features</source>
<translation>Functies behouden</translation>
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
<translation>Licht</translation>
</message>
<message>
<source>List of currently started services.
Services are programs that run in the background for various reasons and purposes. Some of them are essential, while others may be superfluous and consume CPU, memory and disk resources unnecessarily.</source>
<translation>Lijst van momenteel gestarte services.
Services zijn programma’s die om allerlei redenen op de achtergrond worden uitgevoerd. Sommige zijn essentieel, andere kunnen overbodig zijn en onnodig processor, geheugen en schijf gebruiken.</translation>
</message>
<message>
<source>List of enabled scheduled tasks.
Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily.</source>
<translation>Lijst van ingeschakelde geplande taken.
Geplande taken zijn programma’s die om allerlei redenen op een bepaald tijdstip (of bij een gebeurtenis) op de achtergrond worden uitgevoerd. Sommige kunnen overbodig zijn en onnodig processor, geheugen en schijf gebruiken.</translation>
</message>
<message>
<source>List of programs started automatically each time Windows starts.
Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you don't use on every startup.</source>
<translation>Lijst van programma’s die bij elke start van Windows automatisch worden gestart.
Net als services en geplande taken kunnen ze uw systeem vertragen. Vink de programma’s uit die u niet bij elke start gebruikt.</translation>
</message>
<message>
<source>List of Windows packages can be uninstalled without problems.
You can reinstall them directly by clicking on &quot;View uninstalled packages&quot; below the list.</source>
<translation>Lijst van Windows-pakketten die zonder problemen kunnen worden verwijderd.
U kunt ze rechtstreeks opnieuw installeren door onder de lijst op &quot;Verwijderde pakketten weergeven&quot; te klikken.</translation>
</message>
<message>
<source>Load system info:</source>
<translation>Systeeminformatie laden:</translation>
</message>
<message>
<source>loading disk info...</source>
<translation>schijfinfo laden...</translation>
</message>
<message>
<source>loading screen info...</source>
<translation>scherminfo laden...</translation>
</message>
<message>
<source>Looking around</source>
<translation>Rondkijken</translation>
</message>
<message>
<source>Mail &amp; Calendar</source>
<translation>E-mail en Agenda</translation>
</message>
<message>
<source>Manage features  (included in the page &quot;Features&quot;)</source>
<translation>Functies beheren  (opgenomen op de pagina &quot;Functies&quot;)</translation>
</message>
<message>
<source>Manage programs and packages  (included in the page &quot;Programs&quot;)</source>
<translation>Programma’s en pakketten beheren  (opgenomen op de pagina &quot;Programma’s&quot;)</translation>
</message>
<message>
<source>Manual</source>
<translation>Handmatig</translation>
</message>
<message>
<source>manual</source>
<translation>handmatig</translation>
</message>
<message>
<source>Manual start</source>
<translation>Handmatig starten</translation>
</message>
<message>
<source>Media extensions for Edge and Windows Media Player</source>
<translation>Media-extensies voor Edge en Windows Media Player</translation>
</message>
<message>
<source>MEM</source>
<translation>GEH</translation>
</message>
<message>
<source>Microsoft Codecs extensions</source>
<translation>Microsoft-codecs</translation>
</message>
<message>
<source>Microsoft codecs for video encoding/decoding. If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box</source>
<translation>Microsoft-codecs voor het coderen en decoderen van video. Vink dit vakje uit als u de interne functies van Windows voor het streamen, coderen of afspelen van video’s niet gebruikt</translation>
</message>
<message>
<source>Microsoft video editor</source>
<translation>Video-editor van Microsoft</translation>
</message>
<message>
<source>Mobile device synchronization</source>
<translation>Synchronisatie van mobiele apparaten</translation>
</message>
<message>
<source>Monitor and display some system information in the title bar</source>
<translation>Systeeminformatie bewaken en weergeven in de titelbalk</translation>
</message>
<message>
<source>MotherBoard</source>
<translation>Moederbord</translation>
</message>
<message>
<source>Name</source>
<translation>Naam</translation>
</message>
<message>
<source>Name:</source>
<translation>Naam:</translation>
</message>
<message>
<source>Need reboot!</source>
<translation>Opnieuw opstarten vereist!</translation>
</message>
<message>
<source>NFC</source>
<translation>NFC</translation>
</message>
<message>
<source>No</source>
<translation>Nee</translation>
</message>
<message>
<source>No changes have been noted on this PC so far.</source>
<translation>Op deze pc zijn nog geen wijzigingen genoteerd.</translation>
</message>
<message>
<source>no description</source>
<translation>geen beschrijving</translation>
</message>
<message>
<source>No optimizations found!</source>
<translation>Geen optimalisaties gevonden!</translation>
</message>
<message>
<source>not possible</source>
<translation>niet mogelijk</translation>
</message>
<message>
<source>Now</source>
<translation>Nu</translation>
</message>
<message>
<source>off</source>
<translation>uit</translation>
</message>
<message>
<source>Old Xbox App, no longer supported!</source>
<translation>Oude Xbox-app, niet meer ondersteund!</translation>
</message>
<message>
<source>on</source>
<translation>aan</translation>
</message>
<message>
<source>on drive</source>
<translation>op station</translation>
</message>
<message>
<source>Optimization finished</source>
<translation>Optimalisatie voltooid</translation>
</message>
<message>
<source>Optimize</source>
<translation>Optimaliseren</translation>
</message>
<message>
<source>Optimizer</source>
<translation>Optimalisatie</translation>
</message>
<message>
<source>Options</source>
<translation>Opties</translation>
</message>
<message>
<source>Other protocol dedicated to local network (eg: some video players use it to connect to network hard drives)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Ander protocol voor het lokale netwerk (sommige videospelers maken er bijv. verbinding met netwerkschijven mee)<byte value="xd"/>
(standaard niet gebruikt, maar wel ingeschakeld!)</translation>
</message>
<message>
<source>Otherwise some scheduled tasks will not be detected!</source>
<translation>Anders worden sommige geplande taken niet gevonden!</translation>
</message>
<message>
<source>Owner and rights of %1</source>
<translation>Eigenaar en rechten van %1</translation>
</message>
<message>
<source>Package %1</source>
<translation>Pakket %1</translation>
</message>
<message>
<source>package: </source>
<translation>pakket: </translation>
</message>
<message>
<source>Package: can be installed: </source>
<translation>Pakket: kan worden geïnstalleerd: </translation>
</message>
<message>
<source>Package: can be uninstalled: </source>
<translation>Pakket: kan worden verwijderd: </translation>
</message>
<message>
<source>Packages</source>
<translation>Pakketten</translation>
</message>
<message>
<source>packages finished</source>
<translation>pakketten voltooid</translation>
</message>
<message>
<source>Packages installed:</source>
<translation>Geïnstalleerde pakketten:</translation>
</message>
<message>
<source>Packages uninstalled:</source>
<translation>Verwijderde pakketten:</translation>
</message>
<message>
<source>Packages:</source>
<translation>Pakketten:</translation>
</message>
<message>
<source>Path</source>
<translation>Pad</translation>
</message>
<message>
<source>Phone link</source>
<translation>Mobiel verbinden</translation>
</message>
<message>
<source>Place of the file %1</source>
<translation>Plaats van het bestand %1</translation>
</message>
<message>
<source>Printer</source>
<translation>Printer</translation>
</message>
<message>
<source>Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</source>
<translation>Games voorrang geven  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</translation>
</message>
<message>
<source>Process: can be disable: %1 from Riva Tuner Statistic Server app!<byte value="xd"/>
This process only allows screen video capture.Does not affect the monitoring display in any way</source>
<translation>Proces: kan worden uitgeschakeld: %1 van de app Riva Tuner Statistic Server!<byte value="xd"/>
Dit proces dient alleen voor video-opname van het scherm. Het heeft geen invloed op de weergave van de bewaking</translation>
</message>
<message>
<source>Process: disable EncoderServer done</source>
<translation>Proces: EncoderServer uitgeschakeld</translation>
</message>
<message>
<source>processes</source>
<translation>processen</translation>
</message>
<message>
<source>Program started at logon: %1</source>
<translation>Programma bij het aanmelden: %1</translation>
</message>
<message>
<source>Programs</source>
<translation>Programma’s</translation>
</message>
<message>
<source>Programs started automatically</source>
<translation>Automatisch gestarte programma’s</translation>
</message>
<message>
<source>Proxy and VPN</source>
<translation>Proxy en VPN</translation>
</message>
<message>
<source>Proxy or VPN functionality to improve the security of your network traffic<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Proxy- of VPN-functie om uw netwerkverkeer beter te beveiligen<byte value="xd"/>
(standaard niet gebruikt, maar wel ingeschakeld!)</translation>
</message>
<message>
<source>Quick setup of some bluetooth headsets<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Snelle configuratie van sommige Bluetooth-headsets<byte value="xd"/>
(standaard niet gebruikt, maar wel ingeschakeld!)</translation>
</message>
<message>
<source>Reading what has become of it…</source>
<translation>De huidige stand wordt gelezen…</translation>
</message>
<message>
<source>Reduces certain delays
(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)</source>
<translation>Bepaalde vertragingen verkorten
(weergave van menu’s, afsluiten van apps en services, vastgelopen toepassingen)</translation>
</message>
<message>
<source>Refresh</source>
<translation>Vernieuwen</translation>
</message>
<message>
<source>Registry key %1</source>
<translation>Registersleutel %1</translation>
</message>
<message>
<source>Registry value %1</source>
<translation>Registerwaarde %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1</source>
<translation>Indexeringskenmerk van %1 verwijderen</translation>
</message>
<message>
<source>Remove indexing attribute of %1 finished</source>
<translation>Indexeringskenmerk van %1 verwijderd</translation>
</message>
<message>
<source>Remove indexing attribute of Windows partition %1</source>
<translation>Indexeringskenmerk van Windows-partitie %1 verwijderen</translation>
</message>
<message>
<source>Remove the indexed attribute from all files in the Windows partition
(this operation may take some time)</source>
<translation>Indexeringskenmerk van alle bestanden in de Windows-partitie verwijderen
(deze bewerking kan enige tijd duren)</translation>
</message>
<message>
<source>Restoration finished</source>
<translation>Herstel voltooid</translation>
</message>
<message>
<source>Restoration finished: Restart your PC!</source>
<translation>Herstel voltooid: start uw pc opnieuw op!</translation>
</message>
<message>
<source>Restore</source>
<translation>Herstellen</translation>
</message>
<message>
<source>RESTORE disabled scheduled tasks</source>
<translation>Uitgeschakelde geplande taken HERSTELLEN</translation>
</message>
<message>
<source>RESTORE disabled services</source>
<translation>Uitgeschakelde services HERSTELLEN</translation>
</message>
<message>
<source>Restore scheduled tasks completed successfully</source>
<translation>Geplande taken zijn hersteld</translation>
</message>
<message>
<source>Restore services finished</source>
<translation>Herstellen van services voltooid</translation>
</message>
<message>
<source>Restoring scheduled tasks</source>
<translation>Geplande taken herstellen</translation>
</message>
<message>
<source>running</source>
<translation>actief</translation>
</message>
<message>
<source>S&amp;earch:</source>
<translation>&amp;Zoeken:</translation>
</message>
<message>
<source>Sa&amp;ve as files…</source>
<translation>&amp;Opslaan als bestanden…</translation>
</message>
<message>
<source>Scheduled task %1</source>
<translation>Geplande taak %1</translation>
</message>
<message>
<source>Scheduled tasks</source>
<translation>Geplande taken</translation>
</message>
<message>
<source>Screenshot tool</source>
<translation>Knipprogramma</translation>
</message>
<message>
<source>Service %1: delayed start</source>
<translation>Service %1: uitgestelde start</translation>
</message>
<message>
<source>Service %1: run state</source>
<translation>Service %1: uitvoering</translation>
</message>
<message>
<source>Service %1: start mode</source>
<translation>Service %1: opstarttype</translation>
</message>
<message>
<source>Service: can be disable: </source>
<translation>Service: kan worden uitgeschakeld: </translation>
</message>
<message>
<source>Service: can be enable: </source>
<translation>Service: kan worden ingeschakeld: </translation>
</message>
<message>
<source>Service: can be set to manual:</source>
<translation>Service: kan op handmatig worden ingesteld:</translation>
</message>
<message>
<source>Service: disable %1</source>
<translation>Service: %1 uitschakelen</translation>
</message>
<message>
<source>Service: disable and stop %1</source>
<translation>Service: %1 uitschakelen en stoppen</translation>
</message>
<message>
<source>Service: enable %1</source>
<translation>Service: %1 inschakelen</translation>
</message>
<message>
<source>Service: enable %1 done</source>
<translation>Service: %1 ingeschakeld</translation>
</message>
<message>
<source>Service: enable and start %1</source>
<translation>Service: %1 inschakelen en starten</translation>
</message>
<message>
<source>Service: enable and start %1 done</source>
<translation>Service: %1 ingeschakeld en gestart</translation>
</message>
<message>
<source>Service: enable and start %1, already running!</source>
<translation>Service: %1 inschakelen en starten, wordt al uitgevoerd!</translation>
</message>
<message>
<source>Service: set to manual:</source>
<translation>Service: ingesteld op handmatig:</translation>
</message>
<message>
<source>Services</source>
<translation>Services</translation>
</message>
<message>
<source>Services  (Experienced users)</source>
<translation>Services  (ervaren gebruikers)</translation>
</message>
<message>
<source>Services:</source>
<translation>Services:</translation>
</message>
<message>
<source>Sessions</source>
<translation>Sessies</translation>
</message>
<message>
<source>Set the maximum number of GPU pre-rendered frames to 1
(if you have a good CPU, this reduces latency)</source>
<translation>Maximumaantal vooraf door de GPU gerenderde frames op 1 instellen
(met een goede processor vermindert dit de latentie)</translation>
</message>
<message>
<source>something else has changed it since</source>
<translation>iets anders heeft het sindsdien gewijzigd</translation>
</message>
<message>
<source>SSD</source>
<translation>SSD</translation>
</message>
<message>
<source>Start mode</source>
<translation>Opstarttype</translation>
</message>
<message>
<source>Start of services</source>
<translation>Start van services</translation>
</message>
<message>
<source>Start service:</source>
<translation>Service starten:</translation>
</message>
<message>
<source>Start with adminstrator rights</source>
<translation>Starten met administratorrechten</translation>
</message>
<message>
<source>started:</source>
<translation>gestart:</translation>
</message>
<message>
<source>State</source>
<translation>Stand</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size finished!</source>
<translation>Status: grootte van de WinSxS-map opgehaald!</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size...</source>
<translation>Status: grootte van de WinSxS-map ophalen...</translation>
</message>
<message>
<source>Stop service:</source>
<translation>Service stoppen:</translation>
</message>
<message>
<source>stopped</source>
<translation>gestopt</translation>
</message>
<message>
<source>stopped:</source>
<translation>gestopt:</translation>
</message>
<message>
<source>System</source>
<translation>Systeem</translation>
</message>
<message>
<source>System
Information</source>
<translation>Systeem-
informatie</translation>
</message>
<message>
<source>System Information</source>
<translation>Systeeminformatie</translation>
</message>
<message>
<source>Take back</source>
<translation>Terugdraaien</translation>
</message>
<message>
<source>Taking back…</source>
<translation>Bezig met terugdraaien…</translation>
</message>
<message>
<source>Task:</source>
<translation>Taak:</translation>
</message>
<message>
<source>Task: can be disable: </source>
<translation>Taak: kan worden uitgeschakeld: </translation>
</message>
<message>
<source>Task: can be enable: </source>
<translation>Taak: kan worden ingeschakeld: </translation>
</message>
<message>
<source>Task: disable and stop %1</source>
<translation>Taak: %1 uitschakelen en stoppen</translation>
</message>
<message>
<source>Task: Enable and start %1 done</source>
<translation>Taak: %1 ingeschakeld en gestart</translation>
</message>
<message>
<source>Tasks</source>
<translation>Taken</translation>
</message>
<message>
<source>Tasks:</source>
<translation>Taken:</translation>
</message>
<message>
<source>the file is at neither place</source>
<translation>het bestand staat op geen van beide plaatsen</translation>
</message>
<message>
<source>The files can't bring back:</source>
<translation>De bestanden kunnen niet terugbrengen:</translation>
</message>
<message>
<source>The way back needs Admin rights: only what was changed with them is noted.</source>
<translation>De weg terug vereist administratorrechten: alleen wat daarmee is gewijzigd, is genoteerd.</translation>
</message>
<message>
<source>Theme:</source>
<translation>Thema:</translation>
</message>
<message>
<source>there</source>
<translation>aanwezig</translation>
</message>
<message>
<source>threads</source>
<translation>threads</translation>
</message>
<message>
<source>Tweaks</source>
<translation>Aanpassingen</translation>
</message>
<message>
<source>Uncheck all</source>
<translation>Alles uitvinken</translation>
</message>
<message>
<source>under way</source>
<translation>bezig</translation>
</message>
<message>
<source>Uninstall</source>
<translation>Verwijderen</translation>
</message>
<message>
<source>Uninstall packages</source>
<translation>Pakketten verwijderen</translation>
</message>
<message>
<source>uninstalled:</source>
<translation>verwijderd:</translation>
</message>
<message>
<source>unknown</source>
<translation>onbekend</translation>
</message>
<message>
<source>UPnP network services</source>
<translation>UPnP-netwerkservices</translation>
</message>
<message>
<source>View auto started programs</source>
<translation>Opstartprogramma’s</translation>
</message>
<message>
<source>View disabled services</source>
<translation>Uitgeschakelde services</translation>
</message>
<message>
<source>View installed packages</source>
<translation>Geïnstalleerde pakketten weergeven</translation>
</message>
<message>
<source>View programs disabled</source>
<translation>Uitgeschakelde programma’s</translation>
</message>
<message>
<source>View started services</source>
<translation>Gestarte services</translation>
</message>
<message>
<source>View uninstalled packages</source>
<translation>Verwijderde pakketten weergeven</translation>
</message>
<message>
<source>Way back</source>
<translation>Weg terug</translation>
</message>
<message>
<source>Way back…</source>
<translation>Weg terug…</translation>
</message>
<message>
<source>What</source>
<translation>Wat</translation>
</message>
<message>
<source>What was changed on this PC isn't noted, so there is no way back by notes.</source>
<translation>Wat op deze pc is gewijzigd, is niet genoteerd; er is dus geen weg terug.</translation>
</message>
<message>
<source>When</source>
<translation>Wanneer</translation>
</message>
<message>
<source>Widget app</source>
<translation>Widget-app</translation>
</message>
<message>
<source>Win32PrioritySeparation:   Processor time allocated to applications.</source>
<translation>Win32PrioritySeparation:   processortijd die aan toepassingen wordt toegewezen.</translation>
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
<translation>Windows-toepassing: FOUT bij installatie van %1: </translation>
</message>
<message>
<source>Windows application: ERROR uninstall %1: </source>
<translation>Windows-toepassing: FOUT bij verwijdering van %1: </translation>
</message>
<message>
<source>Windows application: install %1 done</source>
<translation>Windows-toepassing: installatie van %1 klaar</translation>
</message>
<message>
<source>Windows application: uninstall %1 done</source>
<translation>Windows-toepassing: verwijdering van %1 klaar</translation>
</message>
<message>
<source>Windows applications</source>
<translation>Windows-toepassingen</translation>
</message>
<message>
<source>Windows packages installed</source>
<translation>Geïnstalleerde Windows-pakketten</translation>
</message>
<message>
<source>Windows sharing functionality on a local network (SMB protocol) (eg: connect hard drives, printers on a local network)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Deelfunctie van Windows in een lokaal netwerk (SMB-protocol) (bijv. harde schijven of printers in een lokaal netwerk verbinden)<byte value="xd"/>
(standaard niet gebruikt, maar wel ingeschakeld!)</translation>
</message>
<message>
<source>With all &amp;later changes</source>
<translation>Met alle &amp;latere wijzigingen</translation>
</message>
<message>
<source>Would you like to apply option for set indexing attributes of all files in Windows partition?</source>
<translation>Wilt u de inhoudsindexering van alle bestanden op de Windows-partitie uitschakelen? Dit kan lang duren.</translation>
</message>
<message>
<source>Would you like to apply option to set indexing attributes of all files in Windows partition?</source>
<translation>Wilt u deze indexeringsinstelling nu toepassen op alle bestanden op de Windows-partitie? Dit kan lang duren.</translation>
</message>
<message>
<source>Written: %1</source>
<translation>Geschreven: %1</translation>
</message>
<message>
<source>Xbox App</source>
<translation>Xbox-app</translation>
</message>
<message>
<source>Xbox game bar</source>
<translation>Xbox Game Bar</translation>
</message>
<message>
<source>XBOX Game Bar that appears at the top of the screen, above a game. If you don't use it, uncheck this box</source>
<translation>Xbox Game Bar die boven aan het scherm over een game verschijnt. Vink dit vakje uit als u deze niet gebruikt</translation>
</message>
<message>
<source>Yes</source>
<translation>Ja</translation>
</message>
<message>
<source>You must launch this app with Admin rights!</source>
<translation>U moet deze app als administrator uitvoeren!</translation>
</message>
<message>
<source>You should launch this app with Admin rights!</source>
<translation>U kunt deze app het beste als administrator uitvoeren!</translation>
</message>
<message>
<source>No known effect on today's Windows: write caching is set for each drive elsewhere.</source>
<translation>Geen bekend effect in het huidige Windows: de schrijfcache wordt elders per station ingesteld.</translation>
</message>
<message>
<source>No known effect: Windows doesn't read this value.</source>
<translation>Geen bekend effect: Windows leest deze waarde niet.</translation>
</message>
<message>
<source>Saves small writes: Windows no longer records when a file was last read. Needs a restart.</source>
<translation>Bespaart kleine schrijfacties: Windows noteert niet meer wanneer een bestand voor het laatst is gelezen. Vereist een herstart.</translation>
</message>
<message>
<source>Windows no longer preloads programs: they start more slowly at first, and an SSD gains nothing. Needs a restart.</source>
<translation>Windows laadt programma’s niet meer vooraf: ze starten eerst trager en een SSD wint niets. Vereist een herstart.</translation>
</message>
<message>
<source>Windows' default: nothing changes. Taking it back clears the page file at each shutdown, which takes minutes.</source>
<translation>De standaard van Windows: er verandert niets. Ongedaan maken wist het wisselbestand bij elke afsluiting, wat minuten duurt.</translation>
</message>
<message>
<source>Each start is a full one: it takes a little longer, and drivers start afresh.</source>
<translation>Elke start is volledig: die duurt iets langer en stuurprogramma’s beginnen opnieuw.</translation>
</message>
<message>
<source>Frees the space of hiberfil.sys. The PC can't hibernate any more, and fast startup goes too.</source>
<translation>Maakt de ruimte van hiberfil.sys vrij. De pc kan niet meer in sluimerstand en snel opstarten vervalt.</translation>
</message>
<message>
<source>Takes all files out of the content index: search gets slower and finds less.</source>
<translation>Haalt alle bestanden uit de inhoudsindex: zoeken wordt trager en vindt minder.</translation>
</message>
<message>
<source>No known effect since Windows XP.</source>
<translation>Geen bekend effect sinds Windows XP.</translation>
</message>
<message>
<source>Small effect: only for games that register with Windows' multimedia scheduler.</source>
<translation>Klein effect: alleen voor games die zich aanmelden bij de multimediaplanner van Windows.</translation>
</message>
<message>
<source>No known effect: Windows reads this setting elsewhere.</source>
<translation>Geen bekend effect: Windows leest deze instelling elders.</translation>
</message>
<message>
<source>Windows' default: game mode is on already. Taking it back switches it off.</source>
<translation>De standaard van Windows: de gamemodus staat al aan. Ongedaan maken zet die uit.</translation>
</message>
<message>
<source>Windows no longer records or broadcasts games. Settings shows this as managed by your organization.</source>
<translation>Windows neemt geen games meer op en zendt ze niet uit. Instellingen toont dit als beheerd door uw organisatie.</translation>
</message>
<message>
<source>Windows 11: the default already, and taking it back forces the slower platform timer. Windows 10: no known effect.</source>
<translation>Windows 11: al de standaard, en ongedaan maken dwingt de tragere platformtimer af. Windows 10: geen bekend effect.</translation>
</message>
<message>
<source>Partly effective: the Game Bar's tips and the Xbox button are off, but Win+G still opens it.</source>
<translation>Werkt deels: tips van de Game Bar en de Xbox-knop zijn uit, maar Win+G opent hem nog.</translation>
</message>
<message>
<source>Windows 11: the system timer never pauses, which costs power; needs a restart. Windows 10: nothing changes.</source>
<translation>Windows 11: de systeemtimer pauzeert nooit, wat stroom kost; vereist een herstart. Windows 10: er verandert niets.</translation>
</message>
<message>
<source>Shows games without HDR in HDR. Resets other graphics settings such as variable refresh rate.</source>
<translation>Toont games zonder HDR in HDR. Zet andere grafische instellingen terug, zoals de variabele vernieuwingsfrequentie.</translation>
</message>
<message>
<source>The pointer moves evenly with the mouse. Takes effect at the next sign-in.</source>
<translation>De aanwijzer volgt de muis gelijkmatig. Werkt vanaf de volgende aanmelding.</translation>
</message>
<message>
<source>Partly effective: packets are acknowledged at once, not on connections with a fixed address. Needs a restart.</source>
<translation>Werkt deels: pakketten worden direct bevestigd, niet bij een vast adres. Vereist een herstart.</translation>
</message>
<message>
<source>38 is what Windows does by default; other choices change it. Taking it back deletes the value.</source>
<translation>38 is wat Windows standaard doet; andere keuzes veranderen dat. Ongedaan maken verwijdert de waarde.</translation>
</message>
<message>
<source>No known effect: neither Direct3D nor drivers read this value today.</source>
<translation>Geen bekend effect: Direct3D noch stuurprogramma’s lezen deze waarde nu.</translation>
</message>
<message>
<source>May fix flickering and stutter; some videos may run worse. Said to have no effect since Windows 11 24H2. Needs a restart.</source>
<translation>Kan flikkeren en haperen verhelpen; sommige video’s worden slechter. Zou sinds Windows 11 24H2 niet werken. Vereist een herstart.</translation>
</message>
<message>
<source>Of use with several AMD graphics cards only; its effect is uncertain. Needs a restart.</source>
<translation>Alleen nuttig met meerdere AMD-kaarten; het effect is onzeker. Vereist een herstart.</translation>
</message>
<message>
<source>Fewer svchost.exe processes, but services are less isolated from each other. Needs a restart.</source>
<translation>Minder svchost.exe-processen, maar services zijn minder van elkaar gescheiden. Vereist een herstart.</translation>
</message>
<message>
<source>Windows' default since version 1803: nothing changes. Taking it back switches the backup on.</source>
<translation>De standaard sinds versie 1803: er verandert niets. Ongedaan maken zet de back-up aan.</translation>
</message>
<message>
<source>Hides the button for advanced options only; indexing goes on.</source>
<translation>Verbergt alleen de knop voor geavanceerde opties; het indexeren gaat door.</translation>
</message>
<message>
<source>File History keeps no older versions of files any more. Recent files are still listed.</source>
<translation>Bestandsgeschiedenis bewaart geen oudere versies meer. Recente bestanden blijven zichtbaar.</translation>
</message>
<message>
<source>A right-click shows all entries, once Explorer has been restarted. Taking it back leaves the old menu.</source>
<translation>Rechtsklikken toont alle items, zodra Verkenner opnieuw is gestart. Bij ongedaan maken blijft het oude menu.</translation>
</message>
<message>
<source>Updates are no longer exchanged with other PCs.</source>
<translation>Updates worden niet meer met andere pc’s uitgewisseld.</translation>
</message>
<message>
<source>Less data goes to Microsoft. Clipboard history (Win+V), location and error reports stop working too.</source>
<translation>Er gaan minder gegevens naar Microsoft. Ook klembordgeschiedenis (Win+V), locatie en foutrapporten werken niet meer.</translation>
</message>
<message>
<source>Menus open faster. At sign-out programs may be closed with unsaved work. Takes effect at the next sign-in.</source>
<translation>Menu’s openen sneller. Bij afmelden kunnen programma’s met niet-opgeslagen werk worden gesloten. Werkt vanaf de volgende aanmelding.</translation>
</message>
<message>
<source>Windows 11: removes the whole lock screen; some editions ignore it. Windows 10: nothing changes.</source>
<translation>Windows 11: verwijdert het hele vergrendelingsscherm; sommige edities negeren dit. Windows 10: er verandert niets.</translation>
</message>
<message>
<source>Search in Start and on the taskbar stops working. An update may bring it back while this box stays checked.</source>
<translation>Zoeken in Start en op de taakbalk werkt niet meer. Een update kan het terugbrengen terwijl dit vakje aangevinkt blijft.</translation>
</message>
<message>
<source>Partly effective: two tasks stay off, but the service comes back at the next sign-in.</source>
<translation>Werkt deels: twee taken blijven uit, maar de service komt bij de volgende aanmelding terug.</translation>
</message>
<message>
<source>none changed</source>
<translation>geen gewijzigd</translation>
</message>
<message>
<source>an empty key</source>
<translation>een lege sleutel</translation>
</message>
<message>
<source>yes</source>
<translation>ja</translation>
</message>
<message>
<source>no</source>
<translation>nee</translation>
</message>
<message>
<source>%1 values</source>
<translation>%1 waarden</translation>
</message>
<message>
<source>%1 changed</source>
<translation>%1 gewijzigd</translation>
</message>
<message>
<source>%1 as before</source>
<translation>%1 zoals eerst</translation>
</message>
<message>
<source>%1 otherwise</source>
<translation>%1 anders</translation>
</message>
<message>
<source>%1 stay changed</source>
<translation>%1 blijven gewijzigd</translation>
</message>
<message>
<source>start mode</source>
<translation>opstarttype</translation>
</message>
<message>
<source>delayed start</source>
<translation>uitgestelde start</translation>
</message>
<message>
<source>state</source>
<translation>stand</translation>
</message>
<message>
<source>the key itself</source>
<translation>de sleutel zelf</translation>
</message>
<message>
<source>the file</source>
<translation>het bestand</translation>
</message>
<message>
<source>its attributes</source>
<translation>de kenmerken ervan</translation>
</message>
<message>
<source>its owner and permissions</source>
<translation>de eigenaar en de rechten</translation>
</message>
<message>
<source>in the boot configuration</source>
<translation>in de opstartconfiguratie</translation>
</message>
<message>
<source>Records of what was done</source>
<translation>Aantekeningen van wat is gedaan</translation>
</message>
<message>
<source>Log and backups beside the program</source>
<translation>Logbestand en back-ups bij het programma</translation>
</message>
<message>
<source>Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically.</source>
<translation>Herstellen start elke service die door het optimaliseren is uitgeschakeld en stelt die in op automatisch: een service die op verzoek of uitgesteld startte, start nu automatisch.</translation>
</message>
<message>
<source>Optimize does not record services that it sets to manual, so Restore doesn't know of them.</source>
<translation>Het optimaliseren noteert services die het op handmatig zet niet, dus herstellen weet er niets van.</translation>
</message>
<message>
<source>Restore enables only the tasks that Optimize has recorded.</source>
<translation>Herstellen schakelt alleen de taken in die het optimaliseren heeft genoteerd.</translation>
</message>
<message>
<source>Restore re-registers the app from its files, as Windows itself does for a new user.</source>
<translation>Herstellen registreert de app opnieuw vanuit de bestanden, zoals Windows zelf voor een nieuwe gebruiker doet.</translation>
</message>
<message>
<source>The app comes back as newly installed, without what it had stored.</source>
<translation>De app komt terug als pas geïnstalleerd, zonder wat die had opgeslagen.</translation>
</message>
<message>
<source>Restore re-registers an app from its files, which could not be found.</source>
<translation>Herstellen registreert een app opnieuw vanuit de bestanden, en die zijn niet gevonden.</translation>
</message>
<message>
<source>The saved command is cut at its first "=", so the program starts without the rest of its arguments.</source>
<translation>De opgeslagen opdracht wordt bij de eerste “=” afgebroken, dus het programma start zonder de rest van de argumenten.</translation>
</message>
<message>
<source>Restore brings back only a command whose program is in quotation marks and exists on the disk.</source>
<translation>Herstellen brengt alleen een opdracht terug waarvan het programma tussen aanhalingstekens staat en op de schijf aanwezig is.</translation>
</message>
<message>
<source>Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it.</source>
<translation>Herstellen weet niet wat u had: het schrijft een vaste waarde, meestal de standaard van Windows, of verwijdert die.</translation>
</message>
<message>
<source>Restore doesn't reset this option, or not all of its values.</source>
<translation>Herstellen zet deze optie niet terug, of niet alle waarden ervan.</translation>
</message>
<message>
<source>The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway.</source>
<translation>De optie stond al zoals het optimaliseren die wil, of hoort er niet bij; herstellen zet die toch terug.</translation>
</message>
<message>
<source>Restore doesn't touch this file.</source>
<translation>Herstellen raakt dit bestand niet aan.</translation>
</message>
<message>
<source>Restore doesn't touch this value.</source>
<translation>Herstellen raakt deze waarde niet aan.</translation>
</message>
<message>
<source>Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it stops there: what is changed by then stays changed.</source>
<translation>Wijzigt alles wat de analyse heeft gevonden, wat even duurt. Als u het venster intussen sluit, stopt het daar: wat dan al is gewijzigd, blijft gewijzigd.</translation>
</message>
<message>
<source>Acts on all checked packages at once, without asking. The list stays as it is until the page is shown again.</source>
<translation>Werkt meteen op alle aangevinkte pakketten, zonder te vragen. De lijst blijft zoals die is tot de pagina opnieuw wordt weergegeven.</translation>
</message>
<message>
<source>Nothing changes either.</source>
<translation>Ook dan verandert er niets.</translation>
</message>
<message>
<source>Last access times are recorded again, but Windows no longer decides about them by itself.</source>
<translation>Laatste toegang wordt weer genoteerd, maar Windows beslist daar niet meer zelf over.</translation>
</message>
<message>
<source>The default is back.</source>
<translation>De standaard geldt weer.</translation>
</message>
<message>
<source>The defaults are back.</source>
<translation>De standaardwaarden gelden weer.</translation>
</message>
<message>
<source>The page file is cleared at each shutdown, which isn't the default and takes minutes.</source>
<translation>Het wisselbestand wordt bij elke afsluiting gewist; dat is niet de standaard en duurt minuten.</translation>
</message>
<message>
<source>Hibernation is on, even if it was off before, and takes its space again.</source>
<translation>De sluimerstand staat aan, ook als die eerst uit was, en neemt weer ruimte in.</translation>
</message>
<message>
<source>The attribute is cleared, even where Windows or you had set it.</source>
<translation>Het kenmerk wordt gewist, ook waar Windows of u het had ingesteld.</translation>
</message>
<message>
<source>Some priorities stay higher than the default.</source>
<translation>Sommige prioriteiten blijven hoger dan de standaard.</translation>
</message>
<message>
<source>Game mode is off, and the default is on.</source>
<translation>De gamemodus staat uit, terwijl die standaard aan staat.</translation>
</message>
<message>
<source>Recording is allowed; Settings still shows it as managed.</source>
<translation>Opnemen is toegestaan; Instellingen toont het nog als beheerd.</translation>
</message>
<message>
<source>On Windows 11 the platform timer is forced on, which may slow down games; the default is no entry at all.</source>
<translation>Op Windows 11 wordt de platformtimer afgedwongen, wat games kan vertragen; standaard is er geen vermelding.</translation>
</message>
<message>
<source>The same effect as the default.</source>
<translation>Hetzelfde effect als de standaard.</translation>
</message>
<message>
<source>Auto HDR is off.</source>
<translation>Auto HDR staat uit.</translation>
</message>
<message>
<source>The values are deleted, which is the default.</source>
<translation>De waarden worden verwijderd, wat de standaard is.</translation>
</message>
<message>
<source>The value is deleted. It is there by default, and what Windows does without it is uncertain.</source>
<translation>De waarde wordt verwijderd. Standaard is die er, en wat Windows zonder doet, is onzeker.</translation>
</message>
<message>
<source>ULPS is switched on, even for adapters that never had it.</source>
<translation>ULPS wordt ingeschakeld, ook voor kaarten die het nooit hadden.</translation>
</message>
<message>
<source>The same effect as the default on a PC with more than 3.5 GB of memory.</source>
<translation>Hetzelfde effect als de standaard op een pc met meer dan 3,5 GB geheugen.</translation>
</message>
<message>
<source>The backup is on, which isn't the default and does no harm.</source>
<translation>De back-up staat aan; dat is niet de standaard en kan geen kwaad.</translation>
</message>
<message>
<source>The button is back.</source>
<translation>De knop is terug.</translation>
</message>
<message>
<source>File History is allowed again.</source>
<translation>Bestandsgeschiedenis is weer toegestaan.</translation>
</message>
<message>
<source>The old menu stays: key and empty value are left.</source>
<translation>Het oude menu blijft: sleutel en lege waarde zijn er nog.</translation>
</message>
<message>
<source>Some values are less private than before: diagnostic data in full, suggestions on, synchronization on.</source>
<translation>Sommige waarden zijn minder privé dan eerst: volledige diagnostische gegevens, suggesties en synchronisatie aan.</translation>
</message>
<message>
<source>The lock screen is back.</source>
<translation>Het vergrendelingsscherm is terug.</translation>
</message>
<message>
<source>The program is back; its owner and rights stay changed.</source>
<translation>Het programma is terug; eigenaar en rechten blijven gewijzigd.</translation>
</message>
<message>
<source>as now</source>
<translation>zoals nu</translation>
</message>
<message>
<source>written</source>
<translation>geschreven</translation>
</message>
<message>
<source>kept</source>
<translation>behouden</translation>
</message>
<message>
<source>as before</source>
<translation>zoals eerst</translation>
</message>
</context>
</TS>
