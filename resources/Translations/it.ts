<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<!-- One context for all: see cmake/translations.cmake. -->
<context>
<name>texts</name>
<message>
<source>  20   (variable and long quantum, foreground boost X1)</source>
<translation>  20   (quanto variabile e lungo, boost in primo piano X1)</translation>
</message>
<message>
<source>  21   (variable and long quantum, foreground boost X2)</source>
<translation>  21   (quanto variabile e lungo, boost in primo piano X2)</translation>
</message>
<message>
<source>  22   (variable and long quantum, foreground boost X3)</source>
<translation>  22   (quanto variabile e lungo, boost in primo piano X3)</translation>
</message>
<message>
<source>  24   (fixed and long quantum, foreground boost X1) (not recommended)</source>
<translation>  24   (quanto fisso e lungo, boost in primo piano X1) (sconsigliato)</translation>
</message>
<message>
<source>  36   (variable and short quantum, foreground boost X1)</source>
<translation>  36   (quanto variabile e breve, boost in primo piano X1)</translation>
</message>
<message>
<source>  37   (variable and short quantum, foreground boost X2)</source>
<translation>  37   (quanto variabile e breve, boost in primo piano X2)</translation>
</message>
<message>
<source>  38   (variable and short quantum, foreground boost X3) (recommended)</source>
<translation>  38   (quanto variabile e breve, boost in primo piano X3) (consigliato)</translation>
</message>
<message>
<source>  40   (fixed and short quantum, foreground boost X1) (not recommended)</source>
<translation>  40   (quanto fisso e breve, boost in primo piano X1) (sconsigliato)</translation>
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Edizione:   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Build:   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versione:   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Installato su SSD:   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Scheda madre:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Modello:   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versione BIOS:   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Data BIOS:   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Processore:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequenza base:   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Core / Thread:   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Dimensione cache L2:   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Dimensione cache L3:   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Socket:   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading:   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtualizzazione:   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Memoria:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Capacità:   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Libera:   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequenza:   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Formato:   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Memoria virtuale:   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Scheda grafica e schermo:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versione driver:   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Data driver:   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Schermo:   caricamento info schermo...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Risoluzione:   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Risoluzione max:   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequenza:   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequenza max:   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR:   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Disco:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;caricamento info disco...&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Versione:&lt;/span&gt;   beta %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Data:&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Autore:&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Contatto:&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Sito web:&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Linguaggio di programmazione e framework:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ con Qt 6, con licenza GNU LGPL versione 3&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Sviluppato per Windows 10 e Windows 11&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Scopo:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Questa applicazione mira a migliorare le prestazioni generali senza snaturare Windows, aiutando a disabilitare funzionalità, programmi, servizi e attività pianificate che possono essere superflui e ridurre le prestazioni. Configura inoltre alcune funzionalità interne del sistema non accessibili da un’interfaccia, e altre opzioni consentono di ridurre lo spazio occupato da Windows sul disco rigido. (disinstallazione di applicazioni Windows non necessarie, pulizia della cartella WinSxS, ...)&lt;br /&gt;Il tutto in pochi clic e con la possibilità di ripristinare i valori originali. &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Informazioni importanti:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;Tutte le opzioni di questa applicazione sono reversibili.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Fare attenzione alla sezione Servizi. Non disabilitare servizi se non si sa davvero cosa sono, le loro dipendenze ecc. USARE IL PULSANTE ASSISTENTE!!!&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- Quanto FISSO: il tempo di processore è diviso equamente tra le applicazioni,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;un quanto VARIABILE consente loro di tenere il processore più a lungo.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- Quanto BREVE: il tempo di processore passa più rapidamente da un task all’altro,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;un quanto LUNGO assegna invece più tempo di processore all’applicazione.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- BOOST IN PRIMO PIANO X volte: il quanto è moltiplicato per X a favore&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;dell’applicazione in primo piano.&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;In un contesto di solo gioco, in base al valore, si favoriscono gli FPS (22, 21),&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;FPS e reattività (38, 37) o latenza di tastiera/mouse o gamepad (36, 24, 40).&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;altre informazioni&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Advanced optimizations via motherboard BIOS settings &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Ottimizzazioni avanzate tramite le impostazioni del BIOS della scheda madre &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;altre informazioni&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft acknowledges performance impact with Memory Integrity and VMP enabled &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Per Microsoft, integrità della memoria e VMP riducono le prestazioni &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;altre informazioni&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;The WinSxS folder is an essential system component that serves as a repository for storing multiple versions of system files, allowing Windows to maintain good compatibility &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;La cartella WinSxS è un componente essenziale del sistema che funge da archivio per più versioni dei file di sistema, consentendo a Windows di mantenere una buona compatibilità &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;altre informazioni&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>%1 bytes</source>
<translation>%1 byte</translation>
</message>
<message>
<source>%1 of %2 are as they were.</source>
<translation>%1 su %2 sono come prima.</translation>
</message>
<message>
<source>&amp;Sessions:</source>
<translation>&amp;Sessioni:</translation>
</message>
<message>
<source>Clear the search</source>
<translation>Cancella la ricerca</translation>
</message>
<message>
<source>Preview…</source>
<translation>Anteprima…</translation>
</message>
<message>
<source>Preview of Optimize</source>
<translation>Anteprima dell’ottimizzazione</translation>
</message>
<message>
<source>After Optimize</source>
<translation>Dopo l’ottimizzazione</translation>
</message>
<message>
<source>After Restore</source>
<translation>Dopo il ripristino</translation>
</message>
<message>
<source>Comes back</source>
<translation>Torna</translation>
</message>
<message>
<source>Progress</source>
<translation>Avanzamento</translation>
</message>
<message>
<source>exactly</source>
<translation>esattamente</translation>
</message>
<message>
<source>as a fixed value</source>
<translation>con un valore fisso</translation>
</message>
<message>
<source>It is in the Store: %1</source>
<translation>Si trova nello Store: %1</translation>
</message>
<message>
<source>not at all</source>
<translation>per niente</translation>
</message>
<message>
<source>by Restore only</source>
<translation>solo dal ripristino</translation>
</message>
<message>
<source>%1 come back exactly</source>
<translation>%1 tornano esattamente</translation>
</message>
<message>
<source>%1 as a fixed value</source>
<translation>%1 con un valore fisso</translation>
</message>
<message>
<source>%1 not at all</source>
<translation>%1 per niente</translation>
</message>
<message>
<source>%1 are changed by Restore only</source>
<translation>%1 cambiano solo con il ripristino</translation>
</message>
<message>
<source>Programs started at logon</source>
<translation>Programmi avviati all’accesso</translation>
</message>
<message>
<source>System options</source>
<translation>Opzioni di sistema</translation>
</message>
<message>
<source>Files</source>
<translation>File</translation>
</message>
<message>
<source>Other registry values</source>
<translation>Altri valori del registro</translation>
</message>
<message>
<source>Kestrune's own records</source>
<translation>Registrazioni di Kestrune</translation>
</message>
<message>
<source>Copying this PC…</source>
<translation>Copia di questo PC…</translation>
</message>
<message>
<source>Trying it on a copy…</source>
<translation>Prova su una copia…</translation>
</message>
<message>
<source>Trying it on the copy…</source>
<translation>Prova sulla copia…</translation>
</message>
<message>
<source>There is no preview: %1</source>
<translation>Nessuna anteprima: %1</translation>
</message>
<message>
<source>What the next Optimize would change, and what the Restore button would bring back:</source>
<translation>Che cosa cambierebbe la prossima ottimizzazione e che cosa riporterebbe il pulsante di ripristino:</translation>
</message>
<message>
<source>“Way back…” brings back more than Restore: what was noted before each change.</source>
<translation>«Ritorno…» riporta più del ripristino: ciò che è stato annotato prima di ogni modifica.</translation>
</message>
<message>
<source>This PC was looked at without Admin rights: what needs them is missing here.</source>
<translation>Questo PC è stato esaminato senza diritti di amministratore: ciò che li richiede manca qui.</translation>
</message>
<message>
<source>With Admin rights a preview needs a copy of this app that nobody else can change, such as the installer makes in the folder for programs. Without Admin rights it works from any folder.</source>
<translation>Con i diritti di amministratore un’anteprima richiede una copia di questa app che nessun altro possa modificare, come quella che l’installatore mette nella cartella dei programmi. Senza funziona da qualsiasi cartella.</translation>
</message>
<message>
<source>A preview needs the folder “rehearse” of this app, which isn't there.</source>
<translation>Un’anteprima richiede la cartella «rehearse» di questa app, che manca.</translation>
</message>
<message>
<source>Windows was updated from build %1 to %2 since. No longer in force: %3.</source>
<translation>Da allora Windows è passato dalla build %1 alla %2. Non più in vigore: %3.</translation>
</message>
<message>
<source>automatic (delayed)</source>
<translation>automatico (ritardato)</translation>
</message>
<message>
<source>not installed</source>
<translation>non installato</translation>
</message>
<message>
<source>starts</source>
<translation>si avvia</translation>
</message>
<message>
<source>doesn't start</source>
<translation>non si avvia</translation>
</message>
<message>
<source>your setting</source>
<translation>l’impostazione attuale</translation>
</message>
<message>
<source>applied</source>
<translation>applicata</translation>
</message>
<message>
<source>applied in part</source>
<translation>applicata in parte</translation>
</message>
<message>
<source>a fixed value</source>
<translation>un valore fisso</translation>
</message>
<message>
<source>not there</source>
<translation>assente</translation>
</message>
<message>
<source>but not as before</source>
<translation>ma non come prima</translation>
</message>
<message>
<source>Before the journal, not exact</source>
<translation>Prima del diario, non esatto</translation>
</message>
<message>
<source>%1 (by the system)</source>
<translation>%1 (dal sistema)</translation>
</message>
<message>
<source>%1 (by another account)</source>
<translation>%1 (da un altro account)</translation>
</message>
<message>
<source>Page: %1</source>
<translation>Pagina: %1</translation>
</message>
<message>
<source>&amp;Take back</source>
<translation>&amp;Annulla modifiche</translation>
</message>
<message>
<source>Clean-up of the WinSxS folder</source>
<translation>Pulizia della cartella WinSxS</translation>
</message>
<message>
<source>Windows keeps no copy of what this removes</source>
<translation>Windows non conserva copie di ciò che viene rimosso</translation>
</message>
<message>
<source>its files are gone from this PC; get it from the Store</source>
<translation>i suoi file non sono più su questo PC; disponibile nello Store</translation>
</message>
<message>
<source>Not everything was done.</source>
<translation>Non è stato fatto tutto.</translation>
</message>
<message>
<source>a later session has changed it, too</source>
<translation>anche una sessione successiva l’ha modificato</translation>
</message>
<message>
<source>A newer version of Kestrune is available!<byte value="xd"/>
Would you like to visit the website for download?<byte value="xd"/>
<byte value="xd"/>
Current version: %1<byte value="xd"/>
Online version: %2</source>
<translation>È disponibile una versione più recente di Kestrune!<byte value="xd"/>
Visitare il sito web per scaricarla?<byte value="xd"/>
<byte value="xd"/>
Versione attuale: %1<byte value="xd"/>
Versione online: %2</translation>
</message>
<message>
<source>About</source>
<translation>Info</translation>
</message>
<message>
<source>absent</source>
<translation>assente</translation>
</message>
<message>
<source>Add indexing attribute of %1 finished</source>
<translation>Aggiunta dell’attributo di indicizzazione di %1 completata</translation>
</message>
<message>
<source>Add indexing attribute of Windows partition %1</source>
<translation>Aggiunta dell’attributo di indicizzazione della partizione di Windows %1</translation>
</message>
<message>
<source>Apply a profile</source>
<translation>Applica un profilo</translation>
</message>
<message>
<source>Analyze</source>
<translation>Analizza</translation>
</message>
<message>
<source>Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring some that are inaccessible through an interface.
Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages.</source>
<translation>Analizza e ottimizza Windows per migliorare le prestazioni generali disabilitando le funzionalità non necessarie e configurandone alcune non accessibili da un’interfaccia.
Le ottimizzazioni provengono dalle pagine Servizi, Attività pianificate, Programmi e Funzionalità.</translation>
</message>
<message>
<source>Application to play PC games if you have a Gamepass account (paid)</source>
<translation>App per giocare su PC con un abbonamento Game Pass (a pagamento)</translation>
</message>
<message>
<source>Apply</source>
<translation>Applica</translation>
</message>
<message>
<source>Apply features</source>
<translation>Applica funzionalità</translation>
</message>
<message>
<source>Apply features finished successfully.</source>
<translation>Applicazione delle funzionalità completata.</translation>
</message>
<message>
<source>Are you sure to disable all checked services?</source>
<translation>Disabilitare tutti i servizi spuntati?</translation>
</message>
<message>
<source>Are you sure to disable all checked tasks?</source>
<translation>Disabilitare tutte le attività spuntate?</translation>
</message>
<message>
<source>Are you sure you want to restore the original values?<byte value="xd"/>
All features, applications, services and tasks will be restored.</source>
<translation>Ripristinare i valori originali?<byte value="xd"/>
Verranno ripristinati tutte le funzionalità, le applicazioni, i servizi e le attività.</translation>
</message>
<message>
<source>Are you sure you want to restore the startup of all scheduled tasks?</source>
<translation>Ripristinare l’avvio di tutte le attività pianificate?</translation>
</message>
<message>
<source>as it was</source>
<translation>com’era</translation>
</message>
<message>
<source>ASSISTANT - disable a list of non vital services</source>
<translation>ASSISTENTE - disabilita servizi non essenziali</translation>
</message>
<message>
<source>ASSISTANT - disable a list of scheduled tasks</source>
<translation>ASSISTENTE - disabilita un elenco di attività pianificate</translation>
</message>
<message>
<source>Assistant - no services to deactivate</source>
<translation>Assistente - nessun servizio da disabilitare</translation>
</message>
<message>
<source>Assistant - no tasks to deactivate</source>
<translation>Assistente - nessuna attività da disabilitare</translation>
</message>
<message>
<source>at boot</source>
<translation>all’avvio</translation>
</message>
<message>
<source>Attributes of %1</source>
<translation>Attributi di %1</translation>
</message>
<message>
<source>Auto</source>
<translation>Auto</translation>
</message>
<message>
<source>Auto started programs disabled:</source>
<translation>Programmi di avvio disabilitati:</translation>
</message>
<message>
<source>automatic</source>
<translation>automatico</translation>
</message>
<message>
<source>Automatic start</source>
<translation>Avvio automatico</translation>
</message>
<message>
<source>Automatically started programs</source>
<translation>Programmi avviati automaticamente</translation>
</message>
<message>
<source>Autorun</source>
<translation>Avvio</translation>
</message>
<message>
<source>Autorun program: disable %1 done</source>
<translation>Programma di avvio: %1 disabilitato</translation>
</message>
<message>
<source>Autorun program: enable %1 done</source>
<translation>Programma di avvio: %1 abilitato</translation>
</message>
<message>
<source>Autorun:</source>
<translation>Avvio:</translation>
</message>
<message>
<source>Autorun: can be disabled: </source>
<translation>Avvio: può essere disabilitato: </translation>
</message>
<message>
<source>Backup file exists</source>
<translation>Il file di backup esiste</translation>
</message>
<message>
<source>Before</source>
<translation>Prima</translation>
</message>
<message>
<source>Bluetooth audio</source>
<translation>Audio Bluetooth</translation>
</message>
<message>
<source>Boot option %1</source>
<translation>Opzione di avvio %1</translation>
</message>
<message>
<source>broken off</source>
<translation>interrotto</translation>
</message>
<message>
<source>Broken off: way back…</source>
<translation>Interrotto: ritorno…</translation>
</message>
<message>
<source>by the system</source>
<translation>dal sistema</translation>
</message>
<message>
<source>Cancel</source>
<translation>Annulla</translation>
</message>
<message>
<source>Cannot restore if you have not yet optimized!</source>
<translation>Impossibile ripristinare se non si è ancora ottimizzato!</translation>
</message>
<message>
<source>Another instance of the program is changing this PC. Try again when it has finished.</source>
<translation>Un’altra istanza del programma sta modificando questo PC. Riprovare quando ha finito.</translation>
</message>
<message>
<source>Capacity:</source>
<translation>Capacità:</translation>
</message>
<message>
<source>Change</source>
<translation>Modifica</translation>
</message>
<message>
<source>changed</source>
<translation>modificato</translation>
</message>
<message>
<source>changed again</source>
<translation>modificato di nuovo</translation>
</message>
<message>
<source>Changes</source>
<translation>Modifiche</translation>
</message>
<message>
<source>Check all</source>
<translation>Spunta tutto</translation>
</message>
<message>
<source>Check update of Kestrune version</source>
<translation>Verifica aggiornamenti di Kestrune</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool</source>
<translation>Pulisci la cartella WinSxS con lo strumento Microsoft DISM</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)</source>
<translation>Pulisci la cartella WinSxS con lo strumento Microsoft DISM  (dimensione attuale: %1 GB)</translation>
</message>
<message>
<source>Close</source>
<translation>Chiudi</translation>
</message>
<message>
<source>Comments</source>
<translation>Commenti</translation>
</message>
<message>
<source>Configure auto started programs done!</source>
<translation>Configurazione dei programmi di avvio completata!</translation>
</message>
<message>
<source>Content indexing off</source>
<translation>Indicizzazione dei contenuti disabilitata</translation>
</message>
<message>
<source>Content indexing on</source>
<translation>Indicizzazione dei contenuti abilitata</translation>
</message>
<message>
<source>CPU</source>
<translation>CPU</translation>
</message>
<message>
<source>Dark</source>
<translation>Scuro</translation>
</message>
<message>
<source>Date of the last execution</source>
<translation>Data dell’ultima esecuzione</translation>
</message>
<message>
<source>Description</source>
<translation>Descrizione</translation>
</message>
<message>
<source>Development applet</source>
<translation>Applet di sviluppo</translation>
</message>
<message>
<source>Disable advanced indexing options</source>
<translation>Disabilita le opzioni di indicizzazione avanzate</translation>
</message>
<message>
<source>Disable automatic boot disk optimization</source>
<translation>Disabilita l’ottimizzazione automatica del disco di avvio</translation>
</message>
<message>
<source>Disable checked programs</source>
<translation>Disabilita i programmi spuntati</translation>
</message>
<message>
<source>DISABLE checked services</source>
<translation>DISABILITA i servizi spuntati</translation>
</message>
<message>
<source>Disable checked services</source>
<translation>Disabilita i servizi spuntati</translation>
</message>
<message>
<source>Disable checked services finished</source>
<translation>Disabilitazione dei servizi spuntati completata</translation>
</message>
<message>
<source>DISABLE checked tasks</source>
<translation>DISABILITA le attività spuntate</translation>
</message>
<message>
<source>Disable clearing of virtual memory swap file on every shutdown</source>
<translation>Disabilita la cancellazione del file di paging a ogni arresto</translation>
</message>
<message>
<source>Disable cloud backup and restore functionalities</source>
<translation>Disabilita il backup e ripristino nel cloud</translation>
</message>
<message>
<source>Disable CPU power throttling
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Disabilita la limitazione di potenza della CPU
(risparmio energetico, ottimizzazione sconsigliata per i portatili)</translation>
</message>
<message>
<source>Disable distribution optimization of Windows updates</source>
<translation>Disabilita l’ottimizzazione recapito degli aggiornamenti di Windows</translation>
</message>
<message>
<source>Disable dynamic tick of system timers
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Disabilita il tick dinamico dei timer di sistema
(risparmio energetico, ottimizzazione sconsigliata per i portatili)</translation>
</message>
<message>
<source>Disable enhance pointer precision
(to achieve precise mouse control and muscle memory)</source>
<translation>Disabilita l’aumento della precisione del puntatore
(per un controllo preciso del mouse e la memoria muscolare)</translation>
</message>
<message>
<source>Disable fast start-up  (Windows function designed for HDD and not SSD)</source>
<translation>Disabilita l’avvio rapido  (funzione di Windows pensata per HDD e non per SSD)</translation>
</message>
<message>
<source>Disable files history (even in explorer)</source>
<translation>Disabilita la cronologia file (anche in Esplora file)</translation>
</message>
<message>
<source>Disable game recording and broadcasting</source>
<translation>Disabilita la registrazione e la trasmissione dei giochi</translation>
</message>
<message>
<source>Disable Gamebar</source>
<translation>Disabilita Game Bar</translation>
</message>
<message>
<source>Disable hibernation mode</source>
<translation>Disabilita la modalità di ibernazione</translation>
</message>
<message>
<source>Disable hibernation mode  (gain %1 GB of storage space)</source>
<translation>Disabilita la modalità di ibernazione  (libera %1 GB di spazio di archiviazione)</translation>
</message>
<message>
<source>Disable HPET  (High Precision Event Timer)
(use invariant TSC instead which may be faster for gaming)
(important: do not disable HPET in BIOS settings)</source>
<translation>Disabilita HPET  (High Precision Event Timer)
(usa il TSC invariante, che può essere più veloce per i giochi)
(importante: non disabilitare HPET nelle impostazioni del BIOS)</translation>
</message>
<message>
<source>Disable last access time stamps  (NTFS drive only)</source>
<translation>Disabilita la data dell’ultimo accesso  (solo unità NTFS)</translation>
</message>
<message>
<source>Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)</source>
<translation>Disabilita LockApp.exe  (informazioni aggiuntive nella schermata di blocco)</translation>
</message>
<message>
<source>Disable Multiplane Overlay (MPO)
(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,
especially for video playback apps)</source>
<translation>Disabilita Multiplane Overlay (MPO)
(può risolvere sfarfallii o scatti, MA si perdono alcune ottimizzazioni
a schermo intero, soprattutto nelle app di riproduzione video)</translation>
</message>
<message>
<source>Disable Nagle’s Algorithm
(may improve the real-time responsiveness of your network connection, but may increase traffic)</source>
<translation>Disabilita l’algoritmo di Nagle
(può migliorare la reattività della connessione di rete, ma aumentare il traffico)</translation>
</message>
<message>
<source>Disable periodic registry backup</source>
<translation>Disabilita il backup periodico del Registro di sistema</translation>
</message>
<message>
<source>Disable Prefetcher  (prevents preloading of applications)</source>
<translation>Disabilita Prefetcher  (impedisce il precaricamento delle applicazioni)</translation>
</message>
<message>
<source>Disable programs</source>
<translation>Disabilita programmi</translation>
</message>
<message>
<source>Disable scheduled tasks</source>
<translation>Disabilita le attività pianificate</translation>
</message>
<message>
<source>Disable scheduled tasks completed successfully</source>
<translation>Disabilitazione delle attività pianificate completata</translation>
</message>
<message>
<source>Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)</source>
<translation>Disabilita SearchHost.exe  (ricerca file; la ricerca avanzata può non funzionare)</translation>
</message>
<message>
<source>Disable services</source>
<translation>Disabilita servizi</translation>
</message>
<message>
<source>Disable SvcHost splitting  (reduce the number of svchost.exe process)</source>
<translation>Disabilita la suddivisione di SvcHost  (riduce il numero di processi svchost.exe)</translation>
</message>
<message>
<source>Disable telemetry (data collection for Microsoft)
(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)</source>
<translation>Disabilita la telemetria (raccolta di dati per Microsoft)
(Il resto si disabilita in Servizi, Attività pianificate o Ottimizza PC)</translation>
</message>
<message>
<source>Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Disabilita ULPS  (Ultra Low Power State, solo per schede grafiche AMD)
(risparmio energetico, ottimizzazione sconsigliata per i portatili)</translation>
</message>
<message>
<source>Disable Windows write-cache buffer flushing</source>
<translation>Disabilita lo scaricamento del buffer della cache in scrittura di Windows</translation>
</message>
<message>
<source>Disabled</source>
<translation>Disabilitato</translation>
</message>
<message>
<source>disabled</source>
<translation>disabilitato</translation>
</message>
<message>
<source>disabled:</source>
<translation>disabilitati:</translation>
</message>
<message>
<source>disabled:</source>
<comment>tasks</comment>
<translation>disabilitate:</translation>
</message>
<message>
<source>DISK</source>
<translation>DISCO</translation>
</message>
<message>
<source>Display name</source>
<translation>Nome visualizzato</translation>
</message>
<message>
<source>display threads and handles count</source>
<translation>mostra il numero di thread e handle</translation>
</message>
<message>
<source>Do you want to restore start mode option of all services?<byte value="xd"/>
<byte value="xd"/>
If you click No (recommended),<byte value="xd"/>
then restore only the services you have disabled</source>
<translation>Ripristinare il tipo di avvio di tutti i servizi?<byte value="xd"/>
<byte value="xd"/>
Se si fa clic su No (consigliato),<byte value="xd"/>
verranno ripristinati solo i servizi disabilitati dall’utente</translation>
</message>
<message>
<source>Do you want to start this app with Admin rights?</source>
<translation>Riavviare questa app come amministratore?</translation>
</message>
<message>
<source>done</source>
<translation>fatto</translation>
</message>
<message>
<source>Enable Auto HDR  (forces HDR mode on SDR content)</source>
<translation>Abilita Auto HDR  (forza la modalità HDR sui contenuti SDR)</translation>
</message>
<message>
<source>Enable checked programs</source>
<translation>Abilita i programmi spuntati</translation>
</message>
<message>
<source>ENABLE checked services</source>
<translation>ABILITA i servizi spuntati</translation>
</message>
<message>
<source>Enable checked services finished</source>
<translation>Abilitazione dei servizi spuntati completata</translation>
</message>
<message>
<source>Enable game mode  (enabled by default)</source>
<translation>Abilita la modalità gioco  (abilitata per impostazione predefinita)</translation>
</message>
<message>
<source>Enable programs</source>
<translation>Abilita programmi</translation>
</message>
<message>
<source>Enable services</source>
<translation>Abilita servizi</translation>
</message>
<message>
<source>Enable the context menu like Windows 10  (all entries in the context menu are displayed)</source>
<translation>Abilita il menu contestuale di Windows 10  (sono visibili tutte le voci)</translation>
</message>
<message>
<source>enabled</source>
<translation>abilitato</translation>
</message>
<message>
<source>enabled:</source>
<translation>abilitate:</translation>
</message>
<message>
<source>English</source>
<translation>English</translation>
</message>
<message>
<source>error</source>
<translation>errore</translation>
</message>
<message>
<source>Features</source>
<translation>Funzionalità</translation>
</message>
<message>
<source>Features applied successfully. Restart your PC!</source>
<translation>Funzionalità applicate correttamente. Riavviare il PC!</translation>
</message>
<message>
<source>Features: %1 improvements can be applied</source>
<translation>Funzionalità: è possibile applicare %1 miglioramenti</translation>
</message>
<message>
<source>Features: applied successfully. Restart your PC!</source>
<translation>Funzionalità: applicate correttamente. Riavviare il PC!</translation>
</message>
<message>
<source>Features: applies Gaming optimizations</source>
<translation>Funzionalità: applicazione delle ottimizzazioni per i giochi</translation>
</message>
<message>
<source>Features: applies SSD optimizations</source>
<translation>Funzionalità: applicazione delle ottimizzazioni SSD</translation>
</message>
<message>
<source>Features: applies Windows optimizations</source>
<translation>Funzionalità: applicazione delle ottimizzazioni di Windows</translation>
</message>
<message>
<source>Features: Battery detected! Some optimizations will not be applied to maintain battery life</source>
<translation>Funzionalità: batteria rilevata! Alcune ottimizzazioni non verranno applicate per preservare la durata della batteria</translation>
</message>
<message>
<source>Features: reset Gaming optimizations</source>
<translation>Funzionalità: ripristino delle ottimizzazioni per i giochi</translation>
</message>
<message>
<source>Features: reset SSD optimizations</source>
<translation>Funzionalità: ripristino delle ottimizzazioni SSD</translation>
</message>
<message>
<source>Features: reset Windows optimizations</source>
<translation>Funzionalità: ripristino delle ottimizzazioni di Windows</translation>
</message>
<message>
<source>File %1</source>
<translation>File %1</translation>
</message>
<message>
<source>Files sharing</source>
<translation>Condivisione file</translation>
</message>
<message>
<source>finished</source>
<translation>completato</translation>
</message>
<message>
<source>Folder for the files of the way back</source>
<translation>Cartella per i file del ritorno</translation>
</message>
<message>
<source>Français</source>
<translation>Français</translation>
</message>
<message>
<source>free memory</source>
<translation>memoria libera</translation>
</message>
<message>
<source>free on</source>
<translation>libero su</translation>
</message>
<message>
<source>GAMING</source>
<translation>GIOCHI</translation>
</message>
<message>
<source>Get system info:</source>
<translation>Lettura informazioni di sistema:</translation>
</message>
<message>
<source>Get WinSxS folder size in features page</source>
<translation>Ottieni la dimensione della cartella WinSxS nella pagina Funzionalità</translation>
</message>
<message>
<source>GPU</source>
<translation>GPU</translation>
</message>
<message>
<source>Grayed out services are considered necessary or critical</source>
<translation>I servizi in grigio sono considerati necessari o critici</translation>
</message>
<message>
<source>Grayed out services refer to those disabled outside this tab</source>
<translation>I servizi in grigio sono stati disabilitati fuori da questa scheda</translation>
</message>
<message>
<source>handles</source>
<translation>handle</translation>
</message>
<message>
<source>Hibernation</source>
<translation>Ibernazione</translation>
</message>
<message>
<source>If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this</source>
<translation>Se non si usano cuffie o dispositivi audio collegati tramite Bluetooth, è possibile togliere la spunta</translation>
</message>
<message>
<source>If you don't have any printers, you can uncheck this</source>
<translation>Se non si dispone di stampanti, è possibile togliere la spunta</translation>
</message>
<message>
<source>Increase maximum amount of physical memory that can be locked for I/O operations</source>
<translation>Aumenta la memoria fisica massima bloccabile per le operazioni di I/O</translation>
</message>
<message>
<source>Install</source>
<translation>Installa</translation>
</message>
<message>
<source>Install packages</source>
<translation>Installa pacchetti</translation>
</message>
<message>
<source>installed</source>
<translation>installato</translation>
</message>
<message>
<source>Intelligent personal assistant</source>
<translation>Assistente personale intelligente</translation>
</message>
<message>
<source>Interface language:</source>
<translation>Lingua interfaccia:</translation>
</message>
<message>
<source>Interface type:</source>
<translation>Tipo di interfaccia:</translation>
</message>
<message>
<source>Internal system features that can slow down your PC unnecessarily.
Check them to optimize or uncheck them to restore defaults.</source>
<translation>Funzionalità interne del sistema che possono rallentare inutilmente il PC.
Spuntarle per ottimizzare o togliere la spunta per ripristinare i valori predefiniti.</translation>
</message>
<message>
<source>interval in seconds:</source>
<translation>intervallo in secondi:</translation>
</message>
<message>
<source>it didn't come back</source>
<translation>non è stato ripristinato</translation>
</message>
<message>
<source>Keep features</source>
<translation>Funzionalità da mantenere</translation>
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
<translation>Chiaro</translation>
</message>
<message>
<source>List of currently started services.
Services are programs that run in the background for various reasons and purposes. Some of them are essential, while others may be superfluous and consume CPU, memory and disk resources unnecessarily.</source>
<translation>Elenco dei servizi attualmente avviati.
I servizi sono programmi eseguiti in background per vari motivi. Alcuni sono essenziali, altri possono essere superflui e consumare inutilmente CPU, memoria e disco.</translation>
</message>
<message>
<source>List of enabled scheduled tasks.
Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily.</source>
<translation>Elenco delle attività pianificate abilitate.
Le attività pianificate sono programmi eseguiti in background in un momento specifico (o evento) per vari motivi. Alcune possono essere superflue e consumare inutilmente CPU, memoria e disco.</translation>
</message>
<message>
<source>List of programs started automatically each time Windows starts.
Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you don't use on every startup.</source>
<translation>Elenco dei programmi avviati automaticamente a ogni avvio di Windows.
Come i servizi e le attività pianificate, possono rallentare il sistema. Togliere la spunta a quelli che non si usano a ogni avvio.</translation>
</message>
<message>
<source>List of Windows packages can be uninstalled without problems.
You can reinstall them directly by clicking on &quot;View uninstalled packages&quot; below the list.</source>
<translation>Elenco dei pacchetti Windows che possono essere disinstallati senza problemi.
È possibile reinstallarli direttamente facendo clic su &quot;Mostra pacchetti disinstallati&quot; sotto l’elenco.</translation>
</message>
<message>
<source>Load system info:</source>
<translation>Caricamento informazioni di sistema:</translation>
</message>
<message>
<source>loading disk info...</source>
<translation>caricamento info disco...</translation>
</message>
<message>
<source>loading screen info...</source>
<translation>caricamento info schermo...</translation>
</message>
<message>
<source>Looking around</source>
<translation>Consultazione</translation>
</message>
<message>
<source>Mail &amp; Calendar</source>
<translation>Posta e Calendario</translation>
</message>
<message>
<source>Manage features  (included in the page &quot;Features&quot;)</source>
<translation>Gestisci funzionalità  (incluse nella pagina &quot;Funzionalità&quot;)</translation>
</message>
<message>
<source>Manage programs and packages  (included in the page &quot;Programs&quot;)</source>
<translation>Gestisci programmi e pacchetti  (inclusi nella pagina &quot;Programmi&quot;)</translation>
</message>
<message>
<source>Manual</source>
<translation>Manuale</translation>
</message>
<message>
<source>manual</source>
<translation>manuale</translation>
</message>
<message>
<source>Manual start</source>
<translation>Avvio manuale</translation>
</message>
<message>
<source>Media extensions for Edge and Windows Media Player</source>
<translation>Estensioni multimediali per Edge e Windows Media Player</translation>
</message>
<message>
<source>MEM</source>
<translation>MEM</translation>
</message>
<message>
<source>Microsoft Codecs extensions</source>
<translation>Codec Microsoft</translation>
</message>
<message>
<source>Microsoft codecs for video encoding/decoding. If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box</source>
<translation>Codec Microsoft per la codifica e decodifica video. Se non si usano le funzionalità interne di Windows per lo streaming, la codifica o la riproduzione di video, togliere la spunta</translation>
</message>
<message>
<source>Microsoft video editor</source>
<translation>Editor video Microsoft</translation>
</message>
<message>
<source>Mobile device synchronization</source>
<translation>Sincronizzazione dispositivi mobili</translation>
</message>
<message>
<source>Monitor and display some system information in the title bar</source>
<translation>Monitora e mostra informazioni di sistema nella barra del titolo</translation>
</message>
<message>
<source>MotherBoard</source>
<translation>Scheda madre</translation>
</message>
<message>
<source>Name</source>
<translation>Nome</translation>
</message>
<message>
<source>Name:</source>
<translation>Nome:</translation>
</message>
<message>
<source>Need reboot!</source>
<translation>Riavvio necessario!</translation>
</message>
<message>
<source>NFC</source>
<translation>NFC</translation>
</message>
<message>
<source>No</source>
<translation>No</translation>
</message>
<message>
<source>No changes have been noted on this PC so far.</source>
<translation>Finora su questo PC non è stata annotata alcuna modifica.</translation>
</message>
<message>
<source>no description</source>
<translation>nessuna descrizione</translation>
</message>
<message>
<source>No optimizations found!</source>
<translation>Nessuna ottimizzazione trovata!</translation>
</message>
<message>
<source>not possible</source>
<translation>non possibile</translation>
</message>
<message>
<source>Now</source>
<translation>Adesso</translation>
</message>
<message>
<source>off</source>
<translation>disabilitato</translation>
</message>
<message>
<source>Old Xbox App, no longer supported!</source>
<translation>Vecchia app Xbox, non più supportata!</translation>
</message>
<message>
<source>on</source>
<translation>abilitato</translation>
</message>
<message>
<source>on drive</source>
<translation>sull’unità</translation>
</message>
<message>
<source>Optimization finished</source>
<translation>Ottimizzazione completata</translation>
</message>
<message>
<source>Optimize</source>
<translation>Ottimizza</translation>
</message>
<message>
<source>Optimizer</source>
<translation>Ottimizza PC</translation>
</message>
<message>
<source>Options</source>
<translation>Opzioni</translation>
</message>
<message>
<source>Other protocol dedicated to local network (eg: some video players use it to connect to network hard drives)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Altro protocollo dedicato alla rete locale (ad es. alcuni lettori video lo usano per collegarsi a dischi di rete)<byte value="xd"/>
(per impostazione predefinita non è usato ma abilitato!)</translation>
</message>
<message>
<source>Otherwise some scheduled tasks will not be detected!</source>
<translation>Altrimenti alcune attività pianificate non verranno rilevate!</translation>
</message>
<message>
<source>Owner and rights of %1</source>
<translation>Proprietario e diritti di %1</translation>
</message>
<message>
<source>Package %1</source>
<translation>Pacchetto %1</translation>
</message>
<message>
<source>package: </source>
<translation>pacchetto: </translation>
</message>
<message>
<source>Package: can be installed: </source>
<translation>Pacchetto: può essere installato: </translation>
</message>
<message>
<source>Package: can be uninstalled: </source>
<translation>Pacchetto: può essere disinstallato: </translation>
</message>
<message>
<source>Packages</source>
<translation>Pacchetti</translation>
</message>
<message>
<source>packages finished</source>
<translation>pacchetti completati</translation>
</message>
<message>
<source>Packages installed:</source>
<translation>Pacchetti installati:</translation>
</message>
<message>
<source>Packages uninstalled:</source>
<translation>Pacchetti disinstallati:</translation>
</message>
<message>
<source>Packages:</source>
<translation>Pacchetti:</translation>
</message>
<message>
<source>Path</source>
<translation>Percorso</translation>
</message>
<message>
<source>Phone link</source>
<translation>Collegamento al telefono</translation>
</message>
<message>
<source>Place of the file %1</source>
<translation>Posizione del file %1</translation>
</message>
<message>
<source>Printer</source>
<translation>Stampante</translation>
</message>
<message>
<source>Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</source>
<translation>Dai priorità ai giochi  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</translation>
</message>
<message>
<source>Process: can be disable: %1 from Riva Tuner Statistic Server app!<byte value="xd"/>
This process only allows screen video capture.Does not affect the monitoring display in any way</source>
<translation>Processo: può essere disabilitato: %1 dell’app Riva Tuner Statistic Server!<byte value="xd"/>
Questo processo consente solo l’acquisizione video dello schermo. Non influisce in alcun modo sulla visualizzazione del monitoraggio</translation>
</message>
<message>
<source>Process: disable EncoderServer done</source>
<translation>Processo: EncoderServer disabilitato</translation>
</message>
<message>
<source>processes</source>
<translation>processi</translation>
</message>
<message>
<source>Program started at logon: %1</source>
<translation>Programma all’accesso: %1</translation>
</message>
<message>
<source>Programs</source>
<translation>Programmi</translation>
</message>
<message>
<source>Programs started automatically</source>
<translation>Programmi avviati automaticamente</translation>
</message>
<message>
<source>Proxy and VPN</source>
<translation>Proxy e VPN</translation>
</message>
<message>
<source>Proxy or VPN functionality to improve the security of your network traffic<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Funzionalità proxy o VPN per migliorare la sicurezza del traffico di rete<byte value="xd"/>
(per impostazione predefinita non è usata ma abilitata!)</translation>
</message>
<message>
<source>Quick setup of some bluetooth headsets<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Configurazione rapida di alcune cuffie Bluetooth<byte value="xd"/>
(per impostazione predefinita non è usata ma abilitata!)</translation>
</message>
<message>
<source>Reading what has become of it…</source>
<translation>Lettura dello stato attuale…</translation>
</message>
<message>
<source>Reduces certain delays
(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)</source>
<translation>Riduci alcuni ritardi
(visualizzazione dei menu, chiusura di app e servizi, applicazioni bloccate)</translation>
</message>
<message>
<source>Refresh</source>
<translation>Aggiorna</translation>
</message>
<message>
<source>Registry key %1</source>
<translation>Chiave del registro %1</translation>
</message>
<message>
<source>Registry value %1</source>
<translation>Valore del registro %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1</source>
<translation>Rimozione dell’attributo di indicizzazione di %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1 finished</source>
<translation>Rimozione dell’attributo di indicizzazione di %1 completata</translation>
</message>
<message>
<source>Remove indexing attribute of Windows partition %1</source>
<translation>Rimozione dell’attributo di indicizzazione della partizione di Windows %1</translation>
</message>
<message>
<source>Remove the indexed attribute from all files in the Windows partition
(this operation may take some time)</source>
<translation>Rimuovi l’attributo di indicizzazione da tutti i file della partizione di Windows
(questa operazione può richiedere tempo)</translation>
</message>
<message>
<source>Restoration finished</source>
<translation>Ripristino completato</translation>
</message>
<message>
<source>Restoration finished: Restart your PC!</source>
<translation>Ripristino completato: riavviare il PC!</translation>
</message>
<message>
<source>Restore</source>
<translation>Ripristina</translation>
</message>
<message>
<source>RESTORE disabled scheduled tasks</source>
<translation>RIPRISTINA le attività pianificate disabilitate</translation>
</message>
<message>
<source>RESTORE disabled services</source>
<translation>RIPRISTINA i servizi disabilitati</translation>
</message>
<message>
<source>Restore scheduled tasks completed successfully</source>
<translation>Ripristino delle attività pianificate completato</translation>
</message>
<message>
<source>Restore services finished</source>
<translation>Ripristino dei servizi completato</translation>
</message>
<message>
<source>Restoring scheduled tasks</source>
<translation>Ripristino delle attività pianificate</translation>
</message>
<message>
<source>running</source>
<translation>in esecuzione</translation>
</message>
<message>
<source>S&amp;earch:</source>
<translation>Ce&amp;rca:</translation>
</message>
<message>
<source>Sa&amp;ve as files…</source>
<translation>Sal&amp;va come file…</translation>
</message>
<message>
<source>Scheduled task %1</source>
<translation>Attività pianificata %1</translation>
</message>
<message>
<source>Scheduled tasks</source>
<translation>Attività pianificate</translation>
</message>
<message>
<source>Screenshot tool</source>
<translation>Strumento di cattura</translation>
</message>
<message>
<source>Service %1: delayed start</source>
<translation>Servizio %1: avvio ritardato</translation>
</message>
<message>
<source>Service %1: run state</source>
<translation>Servizio %1: esecuzione</translation>
</message>
<message>
<source>Service %1: start mode</source>
<translation>Servizio %1: modalità di avvio</translation>
</message>
<message>
<source>Service: can be disable: </source>
<translation>Servizio: può essere disabilitato: </translation>
</message>
<message>
<source>Service: can be enable: </source>
<translation>Servizio: può essere abilitato: </translation>
</message>
<message>
<source>Service: can be set to manual:</source>
<translation>Servizio: può essere impostato su manuale:</translation>
</message>
<message>
<source>Service: disable %1</source>
<translation>Servizio: disabilita %1</translation>
</message>
<message>
<source>Service: disable and stop %1</source>
<translation>Servizio: disabilita e arresta %1</translation>
</message>
<message>
<source>Service: enable %1</source>
<translation>Servizio: abilita %1</translation>
</message>
<message>
<source>Service: enable %1 done</source>
<translation>Servizio: %1 abilitato</translation>
</message>
<message>
<source>Service: enable and start %1</source>
<translation>Servizio: abilita e avvia %1</translation>
</message>
<message>
<source>Service: enable and start %1 done</source>
<translation>Servizio: %1 abilitato e avviato</translation>
</message>
<message>
<source>Service: enable and start %1, already running!</source>
<translation>Servizio: abilita e avvia %1, già in esecuzione!</translation>
</message>
<message>
<source>Service: set to manual:</source>
<translation>Servizio: impostato su manuale:</translation>
</message>
<message>
<source>Services</source>
<translation>Servizi</translation>
</message>
<message>
<source>Services  (Experienced users)</source>
<translation>Servizi  (utenti esperti)</translation>
</message>
<message>
<source>Services:</source>
<translation>Servizi:</translation>
</message>
<message>
<source>Sessions</source>
<translation>Sessioni</translation>
</message>
<message>
<source>Set the maximum number of GPU pre-rendered frames to 1
(if you have a good CPU, this reduces latency)</source>
<translation>Imposta a 1 il numero massimo di fotogrammi prerenderizzati dalla GPU
(con una buona CPU, riduce la latenza)</translation>
</message>
<message>
<source>something else has changed it since</source>
<translation>altro l’ha modificato da allora</translation>
</message>
<message>
<source>SSD</source>
<translation>SSD</translation>
</message>
<message>
<source>Start mode</source>
<translation>Avvio</translation>
</message>
<message>
<source>Start of services</source>
<translation>Avvio di servizi</translation>
</message>
<message>
<source>Start service:</source>
<translation>Avvio servizio:</translation>
</message>
<message>
<source>Start with adminstrator rights</source>
<translation>Avvia con diritti di amministratore</translation>
</message>
<message>
<source>started:</source>
<translation>avviati:</translation>
</message>
<message>
<source>State</source>
<translation>Stato</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size finished!</source>
<translation>Stato: calcolo della dimensione della cartella WinSxS completato!</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size...</source>
<translation>Stato: calcolo della dimensione della cartella WinSxS...</translation>
</message>
<message>
<source>Stop service:</source>
<translation>Arresto servizio:</translation>
</message>
<message>
<source>stopped</source>
<translation>arrestato</translation>
</message>
<message>
<source>stopped:</source>
<translation>arrestati:</translation>
</message>
<message>
<source>System</source>
<translation>Sistema</translation>
</message>
<message>
<source>System
Information</source>
<translation>Informazioni
sul sistema</translation>
</message>
<message>
<source>System Information</source>
<translation>Informazioni sul sistema</translation>
</message>
<message>
<source>Take back</source>
<translation>Annullamento di modifiche</translation>
</message>
<message>
<source>Taking back…</source>
<translation>Annullamento delle modifiche…</translation>
</message>
<message>
<source>Task:</source>
<translation>Attività:</translation>
</message>
<message>
<source>Task: can be disable: </source>
<translation>Attività: può essere disabilitata: </translation>
</message>
<message>
<source>Task: can be enable: </source>
<translation>Attività: può essere abilitata: </translation>
</message>
<message>
<source>Task: disable and stop %1</source>
<translation>Attività: disabilita e arresta %1</translation>
</message>
<message>
<source>Task: Enable and start %1 done</source>
<translation>Attività: %1 abilitata e avviata</translation>
</message>
<message>
<source>Tasks</source>
<translation>Attività</translation>
</message>
<message>
<source>Tasks:</source>
<translation>Attività:</translation>
</message>
<message>
<source>the file is at neither place</source>
<translation>il file non è in nessuno dei due posti</translation>
</message>
<message>
<source>The files can't bring back:</source>
<translation>I file non possono ripristinare:</translation>
</message>
<message>
<source>The way back needs Admin rights: only what was changed with them is noted.</source>
<translation>Il ritorno richiede diritti di amministratore: è annotato solo ciò che è stato modificato con essi.</translation>
</message>
<message>
<source>Theme:</source>
<translation>Tema:</translation>
</message>
<message>
<source>there</source>
<translation>presente</translation>
</message>
<message>
<source>threads</source>
<translation>thread</translation>
</message>
<message>
<source>Tweaks</source>
<translation>Ottimizzazioni</translation>
</message>
<message>
<source>Uncheck all</source>
<translation>Togli tutte le spunte</translation>
</message>
<message>
<source>under way</source>
<translation>in corso</translation>
</message>
<message>
<source>Uninstall</source>
<translation>Disinstalla</translation>
</message>
<message>
<source>Uninstall packages</source>
<translation>Disinstalla pacchetti</translation>
</message>
<message>
<source>uninstalled:</source>
<translation>disinstallati:</translation>
</message>
<message>
<source>unknown</source>
<translation>sconosciuto</translation>
</message>
<message>
<source>UPnP network services</source>
<translation>Servizi di rete UPnP</translation>
</message>
<message>
<source>View auto started programs</source>
<translation>Mostra programmi di avvio</translation>
</message>
<message>
<source>View disabled services</source>
<translation>Mostra servizi disabilitati</translation>
</message>
<message>
<source>View installed packages</source>
<translation>Mostra pacchetti installati</translation>
</message>
<message>
<source>View programs disabled</source>
<translation>Mostra programmi disabilitati</translation>
</message>
<message>
<source>View started services</source>
<translation>Mostra servizi avviati</translation>
</message>
<message>
<source>View uninstalled packages</source>
<translation>Mostra pacchetti disinstallati</translation>
</message>
<message>
<source>Way back</source>
<translation>Ritorno</translation>
</message>
<message>
<source>Way back…</source>
<translation>Ritorno…</translation>
</message>
<message>
<source>What</source>
<translation>Cosa</translation>
</message>
<message>
<source>What was changed on this PC isn't noted, so there is no way back by notes.</source>
<translation>Le modifiche su questo PC non sono annotate, quindi non c’è un ritorno.</translation>
</message>
<message>
<source>When</source>
<translation>Quando</translation>
</message>
<message>
<source>Widget app</source>
<translation>App widget</translation>
</message>
<message>
<source>Win32PrioritySeparation:   Processor time allocated to applications.</source>
<translation>Win32PrioritySeparation:   tempo di processore assegnato alle applicazioni.</translation>
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
<translation>Applicazione Windows: ERRORE nell’installazione di %1: </translation>
</message>
<message>
<source>Windows application: ERROR uninstall %1: </source>
<translation>Applicazione Windows: ERRORE nella disinstallazione di %1: </translation>
</message>
<message>
<source>Windows application: install %1 done</source>
<translation>Applicazione Windows: installazione di %1 completata</translation>
</message>
<message>
<source>Windows application: uninstall %1 done</source>
<translation>Applicazione Windows: disinstallazione di %1 completata</translation>
</message>
<message>
<source>Windows applications</source>
<translation>Applicazioni Windows</translation>
</message>
<message>
<source>Windows packages installed</source>
<translation>Pacchetti Windows installati</translation>
</message>
<message>
<source>Windows sharing functionality on a local network (SMB protocol) (eg: connect hard drives, printers on a local network)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Funzionalità di condivisione di Windows in una rete locale (protocollo SMB) (ad es. per collegare dischi rigidi o stampanti in rete locale)<byte value="xd"/>
(per impostazione predefinita non è usata ma abilitata!)</translation>
</message>
<message>
<source>With all &amp;later changes</source>
<translation>Con tutte le modifiche s&amp;uccessive</translation>
</message>
<message>
<source>Would you like to apply option for set indexing attributes of all files in Windows partition?</source>
<translation>Disabilitare l’indicizzazione del contenuto di tutti i file della partizione di Windows? Può richiedere molto tempo.</translation>
</message>
<message>
<source>Would you like to apply option to set indexing attributes of all files in Windows partition?</source>
<translation>Applicare ora questa impostazione di indicizzazione a tutti i file della partizione di Windows? Può richiedere molto tempo.</translation>
</message>
<message>
<source>Written: %1</source>
<translation>Scritto: %1</translation>
</message>
<message>
<source>Xbox App</source>
<translation>App Xbox</translation>
</message>
<message>
<source>Xbox game bar</source>
<translation>Xbox Game Bar</translation>
</message>
<message>
<source>XBOX Game Bar that appears at the top of the screen, above a game. If you don't use it, uncheck this box</source>
<translation>Xbox Game Bar che appare nella parte superiore dello schermo, sopra il gioco. Se non la si usa, togliere la spunta</translation>
</message>
<message>
<source>Yes</source>
<translation>Sì</translation>
</message>
<message>
<source>You must launch this app with Admin rights!</source>
<translation>È necessario eseguire questa app come amministratore!</translation>
</message>
<message>
<source>You should launch this app with Admin rights!</source>
<translation>È consigliabile eseguire questa app come amministratore!</translation>
</message>
<message>
<source>No known effect on today's Windows: write caching is set for each drive elsewhere.</source>
<translation>Nessun effetto noto su Windows attuale: la cache di scrittura si imposta altrove, per ogni unità.</translation>
</message>
<message>
<source>No known effect: Windows doesn't read this value.</source>
<translation>Nessun effetto noto: Windows non legge questo valore.</translation>
</message>
<message>
<source>Saves small writes: Windows no longer records when a file was last read. Needs a restart.</source>
<translation>Evita piccole scritture: Windows non registra più l’ultima lettura di un file. Richiede un riavvio.</translation>
</message>
<message>
<source>Windows no longer preloads programs: they start more slowly at first, and an SSD gains nothing. Needs a restart.</source>
<translation>Windows non precarica più i programmi: il primo avvio rallenta e un SSD non ci guadagna. Richiede un riavvio.</translation>
</message>
<message>
<source>Windows' default: nothing changes. Taking it back clears the page file at each shutdown, which takes minutes.</source>
<translation>Impostazione predefinita di Windows: non cambia nulla. Annullandola, il file di paging viene svuotato a ogni arresto, il che richiede minuti.</translation>
</message>
<message>
<source>Each start is a full one: it takes a little longer, and drivers start afresh.</source>
<translation>Ogni avvio è completo: dura un po' di più e i driver ripartono da zero.</translation>
</message>
<message>
<source>Frees the space of hiberfil.sys. The PC can't hibernate any more, and fast startup goes too.</source>
<translation>Libera lo spazio di hiberfil.sys. Il PC non può più ibernarsi e si perde l’avvio rapido.</translation>
</message>
<message>
<source>Takes all files out of the content index: search gets slower and finds less.</source>
<translation>Toglie tutti i file dall’indice dei contenuti: la ricerca rallenta e trova meno.</translation>
</message>
<message>
<source>No known effect since Windows XP.</source>
<translation>Nessun effetto noto da Windows XP in poi.</translation>
</message>
<message>
<source>Small effect: only for games that register with Windows' multimedia scheduler.</source>
<translation>Effetto limitato: solo per i giochi registrati nell’utilità di pianificazione multimediale di Windows.</translation>
</message>
<message>
<source>No known effect: Windows reads this setting elsewhere.</source>
<translation>Nessun effetto noto: Windows legge questa impostazione altrove.</translation>
</message>
<message>
<source>Windows' default: game mode is on already. Taking it back switches it off.</source>
<translation>Impostazione predefinita: la modalità gioco è già attiva. Annullandola si disabilita.</translation>
</message>
<message>
<source>Windows no longer records or broadcasts games. Settings shows this as managed by your organization.</source>
<translation>Windows non registra né trasmette più i giochi. Impostazioni lo indica come gestito dall’organizzazione.</translation>
</message>
<message>
<source>Windows 11: the default already, and taking it back forces the slower platform timer. Windows 10: no known effect.</source>
<translation>Windows 11: già predefinito, e annullarlo impone il timer di piattaforma, più lento. Windows 10: nessun effetto noto.</translation>
</message>
<message>
<source>Partly effective: the Game Bar's tips and the Xbox button are off, but Win+G still opens it.</source>
<translation>Effetto parziale: suggerimenti della Game Bar e pulsante Xbox disabilitati, ma Win+G la apre ancora.</translation>
</message>
<message>
<source>Windows 11: the system timer never pauses, which costs power; needs a restart. Windows 10: nothing changes.</source>
<translation>Windows 11: il timer di sistema non si ferma mai, il che consuma energia; richiede un riavvio. Windows 10: non cambia nulla.</translation>
</message>
<message>
<source>Shows games without HDR in HDR. Resets other graphics settings such as variable refresh rate.</source>
<translation>Mostra in HDR i giochi senza HDR. Reimposta altre impostazioni grafiche, come la frequenza di aggiornamento variabile.</translation>
</message>
<message>
<source>The pointer moves evenly with the mouse. Takes effect at the next sign-in.</source>
<translation>Il puntatore segue il mouse in modo uniforme. Effetto dal prossimo accesso.</translation>
</message>
<message>
<source>Partly effective: packets are acknowledged at once, not on connections with a fixed address. Needs a restart.</source>
<translation>Effetto parziale: i pacchetti vengono confermati subito, non con indirizzo fisso. Richiede un riavvio.</translation>
</message>
<message>
<source>38 is what Windows does by default; other choices change it. Taking it back deletes the value.</source>
<translation>38 è il comportamento predefinito; gli altri valori lo cambiano. Annullandolo il valore viene eliminato.</translation>
</message>
<message>
<source>No known effect: neither Direct3D nor drivers read this value today.</source>
<translation>Nessun effetto noto: né Direct3D né i driver leggono oggi questo valore.</translation>
</message>
<message>
<source>May fix flickering and stutter; some videos may run worse. Said to have no effect since Windows 11 24H2. Needs a restart.</source>
<translation>Può correggere sfarfallii e scatti; alcuni video peggiorano. Pare senza effetto da Windows 11 24H2. Richiede un riavvio.</translation>
</message>
<message>
<source>Of use with several AMD graphics cards only; its effect is uncertain. Needs a restart.</source>
<translation>Utile solo con più schede AMD; l’effetto è incerto. Richiede un riavvio.</translation>
</message>
<message>
<source>Fewer svchost.exe processes, but services are less isolated from each other. Needs a restart.</source>
<translation>Meno processi svchost.exe, ma servizi meno isolati tra loro. Richiede un riavvio.</translation>
</message>
<message>
<source>Windows' default since version 1803: nothing changes. Taking it back switches the backup on.</source>
<translation>Predefinito dalla versione 1803: non cambia nulla. Annullandolo si abilita il backup.</translation>
</message>
<message>
<source>Hides the button for advanced options only; indexing goes on.</source>
<translation>Nasconde solo il pulsante delle opzioni avanzate; l’indicizzazione continua.</translation>
</message>
<message>
<source>File History keeps no older versions of files any more. Recent files are still listed.</source>
<translation>Cronologia file non conserva più versioni precedenti. I file recenti restano elencati.</translation>
</message>
<message>
<source>A right-click shows all entries, once Explorer has been restarted. Taking it back leaves the old menu.</source>
<translation>Il clic destro mostra tutte le voci, dopo il riavvio di Esplora file. Annullandolo resta il vecchio menu.</translation>
</message>
<message>
<source>Updates are no longer exchanged with other PCs.</source>
<translation>Gli aggiornamenti non vengono più scambiati con altri PC.</translation>
</message>
<message>
<source>Less data goes to Microsoft. Clipboard history (Win+V), location and error reports stop working too.</source>
<translation>Meno dati a Microsoft. Non funzionano più nemmeno cronologia degli Appunti (Win+V), posizione e segnalazioni di errori.</translation>
</message>
<message>
<source>Menus open faster. At sign-out programs may be closed with unsaved work. Takes effect at the next sign-in.</source>
<translation>I menu si aprono prima. Alla disconnessione si può perdere il lavoro non salvato. Effetto dal prossimo accesso.</translation>
</message>
<message>
<source>Windows 11: removes the whole lock screen; some editions ignore it. Windows 10: nothing changes.</source>
<translation>Windows 11: rimuove l’intera schermata di blocco; alcune edizioni lo ignorano. Windows 10: non cambia nulla.</translation>
</message>
<message>
<source>Search in Start and on the taskbar stops working. An update may bring it back while this box stays checked.</source>
<translation>La ricerca in Start e sulla barra delle applicazioni smette di funzionare. Un aggiornamento può ripristinarla anche se la casella resta spuntata.</translation>
</message>
<message>
<source>Partly effective: two tasks stay off, but the service comes back at the next sign-in.</source>
<translation>Effetto parziale: due attività restano disabilitate, ma il servizio torna al prossimo accesso.</translation>
</message>
<message>
<source>none changed</source>
<translation>nessuno modificato</translation>
</message>
<message>
<source>an empty key</source>
<translation>una chiave vuota</translation>
</message>
<message>
<source>yes</source>
<translation>sì</translation>
</message>
<message>
<source>no</source>
<translation>no</translation>
</message>
<message>
<source>%1 values</source>
<translation>%1 valori</translation>
</message>
<message>
<source>%1 changed</source>
<translation>%1 modificati</translation>
</message>
<message>
<source>%1 as before</source>
<translation>%1 come prima</translation>
</message>
<message>
<source>%1 otherwise</source>
<translation>%1 diversi</translation>
</message>
<message>
<source>%1 stay changed</source>
<translation>%1 restano modificati</translation>
</message>
<message>
<source>start mode</source>
<translation>tipo di avvio</translation>
</message>
<message>
<source>delayed start</source>
<translation>avvio ritardato</translation>
</message>
<message>
<source>state</source>
<translation>stato</translation>
</message>
<message>
<source>the key itself</source>
<translation>la chiave stessa</translation>
</message>
<message>
<source>the file</source>
<translation>il file</translation>
</message>
<message>
<source>its attributes</source>
<translation>i suoi attributi</translation>
</message>
<message>
<source>its owner and permissions</source>
<translation>il proprietario e i diritti</translation>
</message>
<message>
<source>in the boot configuration</source>
<translation>nella configurazione di avvio</translation>
</message>
<message>
<source>Records of what was done</source>
<translation>Registrazioni di ciò che è stato fatto</translation>
</message>
<message>
<source>Log and backups beside the program</source>
<translation>Log e backup accanto al programma</translation>
</message>
<message>
<source>Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically.</source>
<translation>Il ripristino avvia ogni servizio che l’ottimizzazione ha disabilitato e lo imposta su automatico: un servizio che si avviava su richiesta o in ritardo ora si avvia automaticamente.</translation>
</message>
<message>
<source>Optimize does not record services that it sets to manual, so Restore doesn't know of them.</source>
<translation>L’ottimizzazione non annota i servizi che imposta su manuale, quindi il ripristino non li conosce.</translation>
</message>
<message>
<source>Restore enables only the tasks that Optimize has recorded.</source>
<translation>Il ripristino abilita solo le attività annotate dall’ottimizzazione.</translation>
</message>
<message>
<source>Restore re-registers the app from its files, as Windows itself does for a new user.</source>
<translation>Il ripristino registra di nuovo l’app dai suoi file, come fa Windows per un nuovo utente.</translation>
</message>
<message>
<source>The app comes back as newly installed, without what it had stored.</source>
<translation>L’app torna come appena installata, senza ciò che aveva salvato.</translation>
</message>
<message>
<source>Restore re-registers an app from its files, which could not be found.</source>
<translation>Il ripristino registra di nuovo un’app dai suoi file, che non sono stati trovati.</translation>
</message>
<message>
<source>The saved command is cut at its first "=", so the program starts without the rest of its arguments.</source>
<translation>Il comando salvato viene tagliato al primo «=», quindi il programma si avvia senza il resto degli argomenti.</translation>
</message>
<message>
<source>Restore brings back only a command whose program is in quotation marks and exists on the disk.</source>
<translation>Il ripristino riporta solo un comando il cui programma è tra virgolette ed esiste sul disco.</translation>
</message>
<message>
<source>Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it.</source>
<translation>Il ripristino non sa che cosa c’era: scrive un valore fisso, per lo più quello predefinito di Windows, o lo elimina.</translation>
</message>
<message>
<source>Restore doesn't reset this option, or not all of its values.</source>
<translation>Il ripristino non reimposta questa opzione, o non tutti i suoi valori.</translation>
</message>
<message>
<source>The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway.</source>
<translation>L’opzione era già come la vuole l’ottimizzazione, o non ne fa parte; il ripristino la reimposta comunque.</translation>
</message>
<message>
<source>Restore doesn't touch this file.</source>
<translation>Il ripristino non tocca questo file.</translation>
</message>
<message>
<source>Restore doesn't touch this value.</source>
<translation>Il ripristino non tocca questo valore.</translation>
</message>
<message>
<source>Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it stops there: what is changed by then stays changed.</source>
<translation>Modifica tutto ciò che l’analisi ha trovato, il che richiede un po’ di tempo. Se nel frattempo si chiude la finestra, si ferma lì: ciò che è già modificato resta modificato.</translation>
</message>
<message>
<source>Acts on all checked packages at once, without asking. The list stays as it is until the page is shown again.</source>
<translation>Agisce subito su tutti i pacchetti spuntati, senza chiedere conferma. L’elenco resta com’è finché la pagina non viene mostrata di nuovo.</translation>
</message>
<message>
<source>Nothing changes either.</source>
<translation>Anche così non cambia nulla.</translation>
</message>
<message>
<source>Last access times are recorded again, but Windows no longer decides about them by itself.</source>
<translation>Gli ultimi accessi vengono di nuovo annotati, ma Windows non decide più da solo.</translation>
</message>
<message>
<source>The default is back.</source>
<translation>Torna il valore predefinito.</translation>
</message>
<message>
<source>The defaults are back.</source>
<translation>Tornano i valori predefiniti.</translation>
</message>
<message>
<source>The page file is cleared at each shutdown, which isn't the default and takes minutes.</source>
<translation>Il file di paging viene svuotato a ogni arresto: non è l’impostazione predefinita e richiede minuti.</translation>
</message>
<message>
<source>Hibernation is on, even if it was off before, and takes its space again.</source>
<translation>L’ibernazione è abilitata, anche se prima non lo era, e occupa di nuovo il suo spazio.</translation>
</message>
<message>
<source>The attribute is cleared, even where Windows or you had set it.</source>
<translation>L’attributo viene tolto, anche dove l’aveva impostato Windows o l’utente.</translation>
</message>
<message>
<source>Some priorities stay higher than the default.</source>
<translation>Alcune priorità restano più alte del valore predefinito.</translation>
</message>
<message>
<source>Game mode is off, and the default is on.</source>
<translation>La modalità gioco è disabilitata, mentre è abilitata per impostazione predefinita.</translation>
</message>
<message>
<source>Recording is allowed; Settings still shows it as managed.</source>
<translation>La registrazione è consentita; Impostazioni la indica ancora come gestita.</translation>
</message>
<message>
<source>On Windows 11 the platform timer is forced on, which may slow down games; the default is no entry at all.</source>
<translation>Su Windows 11 viene imposto il timer di piattaforma, che può rallentare i giochi; per impostazione predefinita non c’è alcuna voce.</translation>
</message>
<message>
<source>The same effect as the default.</source>
<translation>Lo stesso effetto del valore predefinito.</translation>
</message>
<message>
<source>Auto HDR is off.</source>
<translation>Auto HDR è disabilitato.</translation>
</message>
<message>
<source>The values are deleted, which is the default.</source>
<translation>I valori vengono eliminati, come per impostazione predefinita.</translation>
</message>
<message>
<source>The value is deleted. It is there by default, and what Windows does without it is uncertain.</source>
<translation>Il valore viene eliminato. Per impostazione predefinita esiste, e che cosa faccia Windows senza è incerto.</translation>
</message>
<message>
<source>ULPS is switched on, even for adapters that never had it.</source>
<translation>ULPS viene abilitato, anche per schede che non l’hanno mai avuto.</translation>
</message>
<message>
<source>The same effect as the default on a PC with more than 3.5 GB of memory.</source>
<translation>Lo stesso effetto del valore predefinito su un PC con più di 3,5 GB di memoria.</translation>
</message>
<message>
<source>The backup is on, which isn't the default and does no harm.</source>
<translation>Il backup è abilitato: non è l’impostazione predefinita e non fa danni.</translation>
</message>
<message>
<source>The button is back.</source>
<translation>Il pulsante torna.</translation>
</message>
<message>
<source>File History is allowed again.</source>
<translation>Cronologia file è di nuovo consentita.</translation>
</message>
<message>
<source>The old menu stays: key and empty value are left.</source>
<translation>Resta il vecchio menu: la chiave e il valore vuoto rimangono.</translation>
</message>
<message>
<source>Some values are less private than before: diagnostic data in full, suggestions on, synchronization on.</source>
<translation>Alcuni valori sono meno riservati di prima: dati di diagnostica completi, suggerimenti e sincronizzazione abilitati.</translation>
</message>
<message>
<source>The lock screen is back.</source>
<translation>La schermata di blocco torna.</translation>
</message>
<message>
<source>The program is back; its owner and rights stay changed.</source>
<translation>Il programma torna; proprietario e diritti restano modificati.</translation>
</message>
<message>
<source>as now</source>
<translation>come adesso</translation>
</message>
<message>
<source>written</source>
<translation>scritto</translation>
</message>
<message>
<source>kept</source>
<translation>conservato</translation>
</message>
<message>
<source>as before</source>
<translation>come prima</translation>
</message>
</context>
</TS>
