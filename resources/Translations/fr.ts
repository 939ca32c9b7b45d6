<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<!-- One context for all: see cmake/translations.cmake. -->
<context>
<name>texts</name>
<message>
<source>  20   (variable and long quantum, foreground boost X1)</source>
<translation>  20   (quantum variable et long, boost premier plan X1)</translation>
</message>
<message>
<source>  21   (variable and long quantum, foreground boost X2)</source>
<translation>  21   (quantum variable et long, boost premier plan X2)</translation>
</message>
<message>
<source>  22   (variable and long quantum, foreground boost X3)</source>
<translation>  22   (quantum variable et long, boost premier plan X3)</translation>
</message>
<message>
<source>  24   (fixed and long quantum, foreground boost X1) (not recommended)</source>
<translation>  24   (quantum fixe et long, boost premier plan X1) (non recommandé)</translation>
</message>
<message>
<source>  36   (variable and short quantum, foreground boost X1)</source>
<translation>  36   (quantum variable et court, boost premier plan X1)</translation>
</message>
<message>
<source>  37   (variable and short quantum, foreground boost X2)</source>
<translation>  37   (quantum variable et court, boost premier plan X2)</translation>
</message>
<message>
<source>  38   (variable and short quantum, foreground boost X3) (recommended)</source>
<translation>  38   (quantum variable et court, boost premier plan X3) (recommandé)</translation>
</message>
<message>
<source>  40   (fixed and short quantum, foreground boost X1) (not recommended)</source>
<translation>  40   (quantum fixe et court, boost premier plan X1) (non recommandé)</translation>
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Édition :   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Build :   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Version :   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Installé sur SSD :   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Carte mère :&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Modèle :   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Version du BIOS :   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Date du BIOS :   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Processeur :&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Fréquence par défaut :   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Cœurs / Threads :   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Taille du cache L2 :   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Taille du cache L3 :   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Socket :   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading :   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtualisation :   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Mémoire :&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Capacité :   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Libre :   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Fréquence :   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Format :   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Mémoire virtuelle :   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Carte graphique et écran :&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Version du pilote :   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Date du pilote :   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Écran :   chargement des infos de l’écran...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Résolution :   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Résolution max :   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Fréquence :   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Fréquence max :   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR :   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Disque :&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;chargement des infos du disque...&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Version :&lt;/span&gt;   bêta %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Date :&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Auteur :&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Contact :&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Site web :&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Langage de programmation et framework :&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ avec Qt 6, sous licence GNU LGPL version 3&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Développé pour Windows 10 et Windows 11&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Objectif :&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Cette application vise à améliorer les performances générales sans dénaturer Windows, en vous aidant à désactiver les fonctionnalités, programmes, services et tâches planifiées superflus qui peuvent nuire aux performances. Elle configure également certaines fonctions internes du système qui ne sont accessibles par aucune interface, et d’autres options permettent de réduire l’espace occupé par Windows sur le disque dur. (désinstallation d’applications Windows inutiles, nettoyage du dossier WinSxS, ...)&lt;br /&gt;Le tout en quelques clics et avec la possibilité de restaurer les valeurs d’origine. &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Informations importantes :&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;Toutes les options de cette application sont réversibles.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Soyez prudent avec la section Services. Ne désactivez pas de services si vous ne savez pas vraiment ce qu’ils sont, leurs dépendances, etc. UTILISEZ LE BOUTON ASSISTANT !!!&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- Quantum FIXE : le temps processeur est réparti à parts égales entre les applications,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;un quantum VARIABLE leur permet de garder le processeur plus longtemps si besoin.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- Quantum COURT : le temps processeur passe plus vite d’une tâche à l’autre,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;un quantum LONG donne au contraire plus de temps processeur à l’application.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- BOOST PREMIER PLAN X fois : le quantum est multiplié par X au profit&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;de l’application au premier plan.&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Pour le jeu uniquement, selon la valeur choisie, vous favorisez les FPS (22, 21),&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;les FPS et la réactivité (38, 37) ou la latence clavier/souris ou manette (36, 24, 40).&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;en savoir plus&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Advanced optimizations via motherboard BIOS settings &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Optimisations avancées par les paramètres du BIOS de la carte mère &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;en savoir plus&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft acknowledges performance impact with Memory Integrity and VMP enabled &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft : l’intégrité de la mémoire et VMP réduisent les performances &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;en savoir plus&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;The WinSxS folder is an essential system component that serves as a repository for storing multiple versions of system files, allowing Windows to maintain good compatibility &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Le dossier WinSxS est un composant essentiel du système qui sert de dépôt pour plusieurs versions des fichiers système, ce qui permet à Windows de conserver une bonne compatibilité &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;en savoir plus&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>%1 bytes</source>
<translation>%1 octets</translation>
</message>
<message>
<source>%1 of %2 are as they were.</source>
<translation>%1 sur %2 sont comme avant.</translation>
</message>
<message>
<source>&amp;Sessions:</source>
<translation>&amp;Sessions :</translation>
</message>
<message>
<source>Clear the search</source>
<translation>Effacer la recherche</translation>
</message>
<message>
<source>Preview…</source>
<translation>Aperçu…</translation>
</message>
<message>
<source>Preview of Optimize</source>
<translation>Aperçu de l’optimisation</translation>
</message>
<message>
<source>After Optimize</source>
<translation>Après l’optimisation</translation>
</message>
<message>
<source>After Restore</source>
<translation>Après la restauration</translation>
</message>
<message>
<source>Comes back</source>
<translation>Revient</translation>
</message>
<message>
<source>Progress</source>
<translation>Progression</translation>
</message>
<message>
<source>exactly</source>
<translation>exactement</translation>
</message>
<message>
<source>as a fixed value</source>
<translation>avec une valeur fixe</translation>
</message>
<message>
<source>It is in the Store: %1</source>
<translation>Il se trouve dans le Store : %1</translation>
</message>
<message>
<source>not at all</source>
<translation>pas du tout</translation>
</message>
<message>
<source>by Restore only</source>
<translation>par la restauration seule</translation>
</message>
<message>
<source>%1 come back exactly</source>
<translation>%1 reviennent exactement</translation>
</message>
<message>
<source>%1 as a fixed value</source>
<translation>%1 avec une valeur fixe</translation>
</message>
<message>
<source>%1 not at all</source>
<translation>%1 pas du tout</translation>
</message>
<message>
<source>%1 are changed by Restore only</source>
<translation>%1 modifiés par la restauration seule</translation>
</message>
<message>
<source>Programs started at logon</source>
<translation>Programmes lancés à l’ouverture de session</translation>
</message>
<message>
<source>System options</source>
<translation>Options du système</translation>
</message>
<message>
<source>Files</source>
<translation>Fichiers</translation>
</message>
<message>
<source>Other registry values</source>
<translation>Autres valeurs du registre</translation>
</message>
<message>
<source>Kestrune's own records</source>
<translation>Enregistrements de Kestrune</translation>
</message>
<message>
<source>Copying this PC…</source>
<translation>Copie de ce PC…</translation>
</message>
<message>
<source>Trying it on a copy…</source>
<translation>Essai sur une copie…</translation>
</message>
<message>
<source>Trying it on the copy…</source>
<translation>Essai sur la copie…</translation>
</message>
<message>
<source>There is no preview: %1</source>
<translation>Pas d’aperçu : %1</translation>
</message>
<message>
<source>What the next Optimize would change, and what the Restore button would bring back:</source>
<translation>Ce que la prochaine optimisation changerait, et ce que le bouton de restauration rétablirait :</translation>
</message>
<message>
<source>“Way back…” brings back more than Restore: what was noted before each change.</source>
<translation>« Retour en arrière… » rétablit plus que la restauration : ce qui a été noté avant chaque modification.</translation>
</message>
<message>
<source>This PC was looked at without Admin rights: what needs them is missing here.</source>
<translation>Ce PC a été examiné sans droits d’administrateur : ce qui les exige manque ici.</translation>
</message>
<message>
<source>With Admin rights a preview needs a copy of this app that nobody else can change, such as the installer makes in the folder for programs. Without Admin rights it works from any folder.</source>
<translation>Avec les droits d’administrateur, un aperçu exige une copie de cette application que personne d’autre ne peut modifier, comme celle que le programme d’installation place dans le dossier des programmes. Sans ces droits, il fonctionne depuis n’importe quel dossier.</translation>
</message>
<message>
<source>A preview needs the folder “rehearse” of this app, which isn't there.</source>
<translation>Un aperçu exige le dossier « rehearse » de cette application, qui est absent.</translation>
</message>
<message>
<source>Windows was updated from build %1 to %2 since. No longer in force: %3.</source>
<translation>Windows est passé depuis de la build %1 à la %2. Plus en vigueur : %3.</translation>
</message>
<message>
<source>automatic (delayed)</source>
<translation>automatique (différé)</translation>
</message>
<message>
<source>not installed</source>
<translation>non installé</translation>
</message>
<message>
<source>starts</source>
<translation>démarre</translation>
</message>
<message>
<source>doesn't start</source>
<translation>ne démarre pas</translation>
</message>
<message>
<source>your setting</source>
<translation>votre réglage</translation>
</message>
<message>
<source>applied</source>
<translation>appliquée</translation>
</message>
<message>
<source>applied in part</source>
<translation>appliquée en partie</translation>
</message>
<message>
<source>a fixed value</source>
<translation>une valeur fixe</translation>
</message>
<message>
<source>not there</source>
<translation>absent</translation>
</message>
<message>
<source>but not as before</source>
<translation>mais pas comme avant</translation>
</message>
<message>
<source>Before the journal, not exact</source>
<translation>Avant le journal, pas exact</translation>
</message>
<message>
<source>%1 (by the system)</source>
<translation>%1 (par le système)</translation>
</message>
<message>
<source>%1 (by another account)</source>
<translation>%1 (par un autre compte)</translation>
</message>
<message>
<source>Page: %1</source>
<translation>Page : %1</translation>
</message>
<message>
<source>&amp;Take back</source>
<translation>A&amp;nnuler ces modifications</translation>
</message>
<message>
<source>Clean-up of the WinSxS folder</source>
<translation>Nettoyage du dossier WinSxS</translation>
</message>
<message>
<source>Windows keeps no copy of what this removes</source>
<translation>Windows ne garde aucune copie de ce que cela supprime</translation>
</message>
<message>
<source>its files are gone from this PC; get it from the Store</source>
<translation>ses fichiers ne sont plus sur ce PC ; disponible dans le Store</translation>
</message>
<message>
<source>Not everything was done.</source>
<translation>Tout n’a pas été fait.</translation>
</message>
<message>
<source>a later session has changed it, too</source>
<translation>une session ultérieure l’a modifié aussi</translation>
</message>
<message>
<source>A newer version of Kestrune is available!<byte value="xd"/>
Would you like to visit the website for download?<byte value="xd"/>
<byte value="xd"/>
Current version: %1<byte value="xd"/>
Online version: %2</source>
<translation>Une version plus récente de Kestrune est disponible !<byte value="xd"/>
Souhaitez-vous visiter le site web pour la télécharger ?<byte value="xd"/>
<byte value="xd"/>
Version actuelle : %1<byte value="xd"/>
Version en ligne : %2</translation>
</message>
<message>
<source>About</source>
<translation>À propos</translation>
</message>
<message>
<source>absent</source>
<translation>absent</translation>
</message>
<message>
<source>Add indexing attribute of %1 finished</source>
<translation>Ajout de l’attribut d’indexation de %1 terminé</translation>
</message>
<message>
<source>Add indexing attribute of Windows partition %1</source>
<translation>Ajout de l’attribut d’indexation de la partition Windows %1</translation>
</message>
<message>
<source>Apply a profile</source>
<translation>Appliquer un profil</translation>
</message>
<message>
<source>Analyze</source>
<translation>Analyser</translation>
</message>
<message>
<source>Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring some that are inaccessible through an interface.
Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages.</source>
<translation>Analysez et optimisez Windows pour améliorer ses performances globales en désactivant les fonctionnalités inutiles et en configurant celles qui ne sont accessibles par aucune interface.
Les optimisations proviennent des pages Services, Tâches planifiées, Programmes et Fonctions.</translation>
</message>
<message>
<source>Application to play PC games if you have a Gamepass account (paid)</source>
<translation>Application permettant de jouer à des jeux PC avec un abonnement Game Pass (payant)</translation>
</message>
<message>
<source>Apply</source>
<translation>Appliquer</translation>
</message>
<message>
<source>Apply features</source>
<translation>Appliquer les fonctions</translation>
</message>
<message>
<source>Apply features finished successfully.</source>
<translation>Application des fonctions terminée avec succès.</translation>
</message>
<message>
<source>Are you sure to disable all checked services?</source>
<translation>Voulez-vous vraiment désactiver tous les services cochés ?</translation>
</message>
<message>
<source>Are you sure to disable all checked tasks?</source>
<translation>Voulez-vous vraiment désactiver toutes les tâches cochées ?</translation>
</message>
<message>
<source>Are you sure you want to restore the original values?<byte value="xd"/>
All features, applications, services and tasks will be restored.</source>
<translation>Voulez-vous vraiment restaurer les valeurs d’origine ?<byte value="xd"/>
Toutes les fonctions, applications, tous les services et toutes les tâches seront restaurés.</translation>
</message>
<message>
<source>Are you sure you want to restore the startup of all scheduled tasks?</source>
<translation>Voulez-vous vraiment restaurer le démarrage de toutes les tâches planifiées ?</translation>
</message>
<message>
<source>as it was</source>
<translation>comme avant</translation>
</message>
<message>
<source>ASSISTANT - disable a list of non vital services</source>
<translation>ASSISTANT - désactiver une liste de services non vitaux</translation>
</message>
<message>
<source>ASSISTANT - disable a list of scheduled tasks</source>
<translation>ASSISTANT - désactiver une liste de tâches planifiées</translation>
</message>
<message>
<source>Assistant - no services to deactivate</source>
<translation>Assistant - aucun service à désactiver</translation>
</message>
<message>
<source>Assistant - no tasks to deactivate</source>
<translation>Assistant - aucune tâche à désactiver</translation>
</message>
<message>
<source>at boot</source>
<translation>au démarrage</translation>
</message>
<message>
<source>Attributes of %1</source>
<translation>Attributs de %1</translation>
</message>
<message>
<source>Auto</source>
<translation>Auto</translation>
</message>
<message>
<source>Auto started programs disabled:</source>
<translation>Programmes au démarrage désactivés :</translation>
</message>
<message>
<source>automatic</source>
<translation>automatique</translation>
</message>
<message>
<source>Automatic start</source>
<translation>Démarrage automatique</translation>
</message>
<message>
<source>Automatically started programs</source>
<translation>Programmes démarrés automatiquement</translation>
</message>
<message>
<source>Autorun</source>
<translation>Démarrage</translation>
</message>
<message>
<source>Autorun program: disable %1 done</source>
<translation>Programme au démarrage : désactivation de %1 terminée</translation>
</message>
<message>
<source>Autorun program: enable %1 done</source>
<translation>Programme au démarrage : activation de %1 terminée</translation>
</message>
<message>
<source>Autorun:</source>
<translation>Démarrage :</translation>
</message>
<message>
<source>Autorun: can be disabled: </source>
<translation>Démarrage : peut être désactivé : </translation>
</message>
<message>
<source>Backup file exists</source>
<translation>Le fichier de sauvegarde existe</translation>
</message>
<message>
<source>Before</source>
<translation>Avant</translation>
</message>
<message>
<source>Bluetooth audio</source>
<translation>Audio Bluetooth</translation>
</message>
<message>
<source>Boot option %1</source>
<translation>Option de démarrage %1</translation>
</message>
<message>
<source>broken off</source>
<translation>interrompu</translation>
</message>
<message>
<source>Broken off: way back…</source>
<translation>Interrompu : retour en arrière…</translation>
</message>
<message>
<source>by the system</source>
<translation>par le système</translation>
</message>
<message>
<source>Cancel</source>
<translation>Annuler</translation>
</message>
<message>
<source>Cannot restore if you have not yet optimized!</source>
<translation>Restauration impossible : vous n’avez pas encore optimisé !</translation>
</message>
<message>
<source>Another instance of the program is changing this PC. Try again when it has finished.</source>
<translation>Une autre instance du programme modifie ce PC. Réessayez lorsqu’elle aura terminé.</translation>
</message>
<message>
<source>Capacity:</source>
<translation>Capacité :</translation>
</message>
<message>
<source>Change</source>
<translation>Modification</translation>
</message>
<message>
<source>changed</source>
<translation>modifié</translation>
</message>
<message>
<source>changed again</source>
<translation>modifié à nouveau</translation>
</message>
<message>
<source>Changes</source>
<translation>Modifications</translation>
</message>
<message>
<source>Check all</source>
<translation>Tout cocher</translation>
</message>
<message>
<source>Check update of Kestrune version</source>
<translation>Vérifier les mises à jour de Kestrune</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool</source>
<translation>Nettoyer le dossier WinSxS avec l’outil Microsoft DISM</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)</source>
<translation>Nettoyer le dossier WinSxS avec l’outil Microsoft DISM  (taille actuelle : %1 Go)</translation>
</message>
<message>
<source>Close</source>
<translation>Fermer</translation>
</message>
<message>
<source>Comments</source>
<translation>Commentaires</translation>
</message>
<message>
<source>Configure auto started programs done!</source>
<translation>Configuration des programmes au démarrage terminée !</translation>
</message>
<message>
<source>Content indexing off</source>
<translation>Indexation du contenu désactivée</translation>
</message>
<message>
<source>Content indexing on</source>
<translation>Indexation du contenu activée</translation>
</message>
<message>
<source>CPU</source>
<translation>CPU</translation>
</message>
<message>
<source>Dark</source>
<translation>Sombre</translation>
</message>
<message>
<source>Date of the last execution</source>
<translation>Date de la dernière exécution</translation>
</message>
<message>
<source>Description</source>
<translation>Description</translation>
</message>
<message>
<source>Development applet</source>
<translation>Applet de développement</translation>
</message>
<message>
<source>Disable advanced indexing options</source>
<translation>Désactiver les options d’indexation avancées</translation>
</message>
<message>
<source>Disable automatic boot disk optimization</source>
<translation>Désactiver l’optimisation automatique du disque de démarrage</translation>
</message>
<message>
<source>Disable checked programs</source>
<translation>Désactiver les programmes cochés</translation>
</message>
<message>
<source>DISABLE checked services</source>
<translation>DÉSACTIVER les services cochés</translation>
</message>
<message>
<source>Disable checked services</source>
<translation>Désactiver les services cochés</translation>
</message>
<message>
<source>Disable checked services finished</source>
<translation>Désactivation des services cochés terminée</translation>
</message>
<message>
<source>DISABLE checked tasks</source>
<translation>DÉSACTIVER les tâches cochées</translation>
</message>
<message>
<source>Disable clearing of virtual memory swap file on every shutdown</source>
<translation>Désactiver l’effacement du fichier d’échange à chaque arrêt</translation>
</message>
<message>
<source>Disable cloud backup and restore functionalities</source>
<translation>Désactiver la sauvegarde et la restauration dans le cloud</translation>
</message>
<message>
<source>Disable CPU power throttling
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Désactiver la limitation de puissance du processeur
(économie d’énergie, optimisation non recommandée sur un ordinateur portable)</translation>
</message>
<message>
<source>Disable distribution optimization of Windows updates</source>
<translation>Désactiver l’optimisation de la distribution des mises à jour Windows</translation>
</message>
<message>
<source>Disable dynamic tick of system timers
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Désactiver le « dynamic tick » des minuteurs système
(économie d’énergie, optimisation non recommandée sur un ordinateur portable)</translation>
</message>
<message>
<source>Disable enhance pointer precision
(to achieve precise mouse control and muscle memory)</source>
<translation>Désactiver l’amélioration de la précision du pointeur
(pour un contrôle précis de la souris et la mémoire musculaire)</translation>
</message>
<message>
<source>Disable fast start-up  (Windows function designed for HDD and not SSD)</source>
<translation>Désactiver le démarrage rapide  (fonction de Windows conçue pour HDD et non SSD)</translation>
</message>
<message>
<source>Disable files history (even in explorer)</source>
<translation>Désactiver l’historique des fichiers (même dans l’Explorateur)</translation>
</message>
<message>
<source>Disable game recording and broadcasting</source>
<translation>Désactiver l’enregistrement et la diffusion des jeux</translation>
</message>
<message>
<source>Disable Gamebar</source>
<translation>Désactiver la Game Bar</translation>
</message>
<message>
<source>Disable hibernation mode</source>
<translation>Désactiver le mode veille prolongée</translation>
</message>
<message>
<source>Disable hibernation mode  (gain %1 GB of storage space)</source>
<translation>Désactiver le mode veille prolongée  (gain de %1 Go d’espace de stockage)</translation>
</message>
<message>
<source>Disable HPET  (High Precision Event Timer)
(use invariant TSC instead which may be faster for gaming)
(important: do not disable HPET in BIOS settings)</source>
<translation>Désactiver HPET  (High Precision Event Timer)
(utilise le TSC invariant, qui peut être plus rapide pour les jeux)
(important : ne désactivez pas HPET dans les paramètres du BIOS)</translation>
</message>
<message>
<source>Disable last access time stamps  (NTFS drive only)</source>
<translation>Désactiver l’horodatage du dernier accès  (lecteurs NTFS uniquement)</translation>
</message>
<message>
<source>Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)</source>
<translation>Désactiver LockApp.exe  (informations supplémentaires sur l’écran de verrouillage)</translation>
</message>
<message>
<source>Disable Multiplane Overlay (MPO)
(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,
especially for video playback apps)</source>
<translation>Désactiver Multiplane Overlay (MPO)
(peut corriger des scintillements ou saccades MAIS fait perdre des optimisations
du plein écran, surtout dans les applications de lecture vidéo)</translation>
</message>
<message>
<source>Disable Nagle’s Algorithm
(may improve the real-time responsiveness of your network connection, but may increase traffic)</source>
<translation>Désactiver l’algorithme de Nagle
(peut améliorer la réactivité de la connexion réseau, mais augmenter le trafic)</translation>
</message>
<message>
<source>Disable periodic registry backup</source>
<translation>Désactiver la sauvegarde périodique du Registre</translation>
</message>
<message>
<source>Disable Prefetcher  (prevents preloading of applications)</source>
<translation>Désactiver Prefetcher  (empêche le préchargement des applications)</translation>
</message>
<message>
<source>Disable programs</source>
<translation>Désactiver des programmes</translation>
</message>
<message>
<source>Disable scheduled tasks</source>
<translation>Désactiver les tâches planifiées</translation>
</message>
<message>
<source>Disable scheduled tasks completed successfully</source>
<translation>Désactivation des tâches planifiées terminée</translation>
</message>
<message>
<source>Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)</source>
<translation>Désactiver SearchHost.exe  (recherche de fichiers ; la recherche avancée peut en souffrir)</translation>
</message>
<message>
<source>Disable services</source>
<translation>Désactiver des services</translation>
</message>
<message>
<source>Disable SvcHost splitting  (reduce the number of svchost.exe process)</source>
<translation>Désactiver la séparation des SvcHost  (réduit le nombre de processus svchost.exe)</translation>
</message>
<message>
<source>Disable telemetry (data collection for Microsoft)
(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)</source>
<translation>Désactiver la télémétrie (collecte de données pour Microsoft)
(le reste se désactive dans Services, Tâches planifiées ou Optimiseur)</translation>
</message>
<message>
<source>Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Désactiver ULPS  (Ultra Low Power State, cartes graphiques AMD uniquement)
(économie d’énergie, optimisation non recommandée sur un ordinateur portable)</translation>
</message>
<message>
<source>Disable Windows write-cache buffer flushing</source>
<translation>Désactiver le vidage de la mémoire tampon du cache d’écriture de Windows</translation>
</message>
<message>
<source>Disabled</source>
<translation>Désactivé</translation>
</message>
<message>
<source>disabled</source>
<translation>désactivé</translation>
</message>
<message>
<source>disabled:</source>
<translation>désactivés :</translation>
</message>
<message>
<source>disabled:</source>
<comment>tasks</comment>
<translation>désactivées :</translation>
</message>
<message>
<source>DISK</source>
<translation>DISQUE</translation>
</message>
<message>
<source>Display name</source>
<translation>Nom complet</translation>
</message>
<message>
<source>display threads and handles count</source>
<translation>afficher le nombre de threads et handles</translation>
</message>
<message>
<source>Do you want to restore start mode option of all services?<byte value="xd"/>
<byte value="xd"/>
If you click No (recommended),<byte value="xd"/>
then restore only the services you have disabled</source>
<translation>Voulez-vous restaurer le mode de démarrage de tous les services ?<byte value="xd"/>
<byte value="xd"/>
Si vous cliquez sur Non (recommandé),<byte value="xd"/>
seuls les services que vous avez désactivés seront restaurés</translation>
</message>
<message>
<source>Do you want to start this app with Admin rights?</source>
<translation>Voulez-vous redémarrer l’application en tant qu’administrateur ?</translation>
</message>
<message>
<source>done</source>
<translation>terminé</translation>
</message>
<message>
<source>Enable Auto HDR  (forces HDR mode on SDR content)</source>
<translation>Activer Auto HDR  (force le mode HDR sur les contenus SDR)</translation>
</message>
<message>
<source>Enable checked programs</source>
<translation>Activer les programmes cochés</translation>
</message>
<message>
<source>ENABLE checked services</source>
<translation>ACTIVER les services cochés</translation>
</message>
<message>
<source>Enable checked services finished</source>
<translation>Activation des services cochés terminée</translation>
</message>
<message>
<source>Enable game mode  (enabled by default)</source>
<translation>Activer le mode Jeu  (activé par défaut)</translation>
</message>
<message>
<source>Enable programs</source>
<translation>Activer des programmes</translation>
</message>
<message>
<source>Enable services</source>
<translation>Activer des services</translation>
</message>
<message>
<source>Enable the context menu like Windows 10  (all entries in the context menu are displayed)</source>
<translation>Activer le menu contextuel de Windows 10  (toutes ses entrées sont affichées)</translation>
</message>
<message>
<source>enabled</source>
<translation>activé</translation>
</message>
<message>
<source>enabled:</source>
<translation>activées :</translation>
</message>
<message>
<source>English</source>
<translation>English</translation>
</message>
<message>
<source>error</source>
<translation>erreur</translation>
</message>
<message>
<source>Features</source>
<translation>Fonctions</translation>
</message>
<message>
<source>Features applied successfully. Restart your PC!</source>
<translation>Fonctions appliquées avec succès. Redémarrez votre PC !</translation>
</message>
<message>
<source>Features: %1 improvements can be applied</source>
<translation>Fonctions : %1 améliorations peuvent être appliquées</translation>
</message>
<message>
<source>Features: applied successfully. Restart your PC!</source>
<translation>Fonctions : appliquées avec succès. Redémarrez votre PC !</translation>
</message>
<message>
<source>Features: applies Gaming optimizations</source>
<translation>Fonctions : application des optimisations de jeu</translation>
</message>
<message>
<source>Features: applies SSD optimizations</source>
<translation>Fonctions : application des optimisations SSD</translation>
</message>
<message>
<source>Features: applies Windows optimizations</source>
<translation>Fonctions : application des optimisations Windows</translation>
</message>
<message>
<source>Features: Battery detected! Some optimizations will not be applied to maintain battery life</source>
<translation>Fonctions : batterie détectée ! Certaines optimisations ne seront pas appliquées afin de préserver l’autonomie</translation>
</message>
<message>
<source>Features: reset Gaming optimizations</source>
<translation>Fonctions : réinitialisation des optimisations de jeu</translation>
</message>
<message>
<source>Features: reset SSD optimizations</source>
<translation>Fonctions : réinitialisation des optimisations SSD</translation>
</message>
<message>
<source>Features: reset Windows optimizations</source>
<translation>Fonctions : réinitialisation des optimisations Windows</translation>
</message>
<message>
<source>File %1</source>
<translation>Fichier %1</translation>
</message>
<message>
<source>Files sharing</source>
<translation>Partage de fichiers</translation>
</message>
<message>
<source>finished</source>
<translation>terminé</translation>
</message>
<message>
<source>Folder for the files of the way back</source>
<translation>Dossier des fichiers du retour en arrière</translation>
</message>
<message>
<source>Français</source>
<translation>Français</translation>
</message>
<message>
<source>free memory</source>
<translation>mémoire libre</translation>
</message>
<message>
<source>free on</source>
<translation>libre sur</translation>
</message>
<message>
<source>GAMING</source>
<translation>JEUX</translation>
</message>
<message>
<source>Get system info:</source>
<translation>Lecture des informations système :</translation>
</message>
<message>
<source>Get WinSxS folder size in features page</source>
<translation>Obtenir la taille du dossier WinSxS dans la page Fonctions</translation>
</message>
<message>
<source>GPU</source>
<translation>GPU</translation>
</message>
<message>
<source>Grayed out services are considered necessary or critical</source>
<translation>Les services grisés sont considérés comme nécessaires ou critiques</translation>
</message>
<message>
<source>Grayed out services refer to those disabled outside this tab</source>
<translation>Les services grisés ont été désactivés en dehors de cet onglet</translation>
</message>
<message>
<source>handles</source>
<translation>handles</translation>
</message>
<message>
<source>Hibernation</source>
<translation>Veille prolongée</translation>
</message>
<message>
<source>If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this</source>
<translation>Si vous n’avez ni casque ni équipement audio connecté en Bluetooth, vous pouvez décocher cette case</translation>
</message>
<message>
<source>If you don't have any printers, you can uncheck this</source>
<translation>Si vous n’avez pas d’imprimante, vous pouvez décocher cette case</translation>
</message>
<message>
<source>Increase maximum amount of physical memory that can be locked for I/O operations</source>
<translation>Augmenter la mémoire physique maximale verrouillable pour les opérations d’E/S</translation>
</message>
<message>
<source>Install</source>
<translation>Installer</translation>
</message>
<message>
<source>Install packages</source>
<translation>Installer les packages</translation>
</message>
<message>
<source>installed</source>
<translation>installé</translation>
</message>
<message>
<source>Intelligent personal assistant</source>
<translation>Assistant personnel intelligent</translation>
</message>
<message>
<source>Interface language:</source>
<translation>Langue de l’interface :</translation>
</message>
<message>
<source>Interface type:</source>
<translation>Type d’interface :</translation>
</message>
<message>
<source>Internal system features that can slow down your PC unnecessarily.
Check them to optimize or uncheck them to restore defaults.</source>
<translation>Fonctions internes du système pouvant ralentir inutilement votre PC.
Cochez-les pour optimiser ou décochez-les pour rétablir les valeurs par défaut.</translation>
</message>
<message>
<source>interval in seconds:</source>
<translation>intervalle en secondes :</translation>
</message>
<message>
<source>it didn't come back</source>
<translation>il n’est pas revenu</translation>
</message>
<message>
<source>Keep features</source>
<translation>Éléments à conserver</translation>
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
<translation>Clair</translation>
</message>
<message>
<source>List of currently started services.
Services are programs that run in the background for various reasons and purposes. Some of them are essential, while others may be superfluous and consume CPU, memory and disk resources unnecessarily.</source>
<translation>Liste des services actuellement démarrés.
Les services sont des programmes exécutés en arrière-plan pour diverses raisons. Certains sont essentiels, d’autres superflus : ils consomment inutilement processeur, mémoire et disque.</translation>
</message>
<message>
<source>List of enabled scheduled tasks.
Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily.</source>
<translation>Liste des tâches planifiées activées.
Les tâches planifiées sont des programmes qui s’exécutent en arrière-plan à un moment précis (ou lors d’un événement) pour diverses raisons. Certaines peuvent être superflues et consommer inutilement du processeur, de la mémoire et du disque.</translation>
</message>
<message>
<source>List of programs started automatically each time Windows starts.
Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you don't use on every startup.</source>
<translation>Liste des programmes démarrés automatiquement à chaque démarrage de Windows.
Comme les services et les tâches planifiées, ils peuvent ralentir votre système. Décochez ceux que vous n’utilisez pas à chaque démarrage.</translation>
</message>
<message>
<source>List of Windows packages can be uninstalled without problems.
You can reinstall them directly by clicking on &quot;View uninstalled packages&quot; below the list.</source>
<translation>Liste des packages Windows pouvant être désinstallés sans problème.
Vous pouvez les réinstaller directement en cliquant sur « Voir les packages désinstallés » sous la liste.</translation>
</message>
<message>
<source>Load system info:</source>
<translation>Chargement des informations système :</translation>
</message>
<message>
<source>loading disk info...</source>
<translation>chargement des infos du disque...</translation>
</message>
<message>
<source>loading screen info...</source>
<translation>chargement des infos de l’écran...</translation>
</message>
<message>
<source>Looking around</source>
<translation>Consultation</translation>
</message>
<message>
<source>Mail &amp; Calendar</source>
<translation>Courrier et calendrier</translation>
</message>
<message>
<source>Manage features  (included in the page &quot;Features&quot;)</source>
<translation>Gérer les fonctions  (incluses dans la page « Fonctions »)</translation>
</message>
<message>
<source>Manage programs and packages  (included in the page &quot;Programs&quot;)</source>
<translation>Gérer les programmes et packages  (inclus dans la page « Programmes »)</translation>
</message>
<message>
<source>Manual</source>
<translation>Manuel</translation>
</message>
<message>
<source>manual</source>
<translation>manuel</translation>
</message>
<message>
<source>Manual start</source>
<translation>Démarrage manuel</translation>
</message>
<message>
<source>Media extensions for Edge and Windows Media Player</source>
<translation>Extensions multimédias pour Edge et le Lecteur Windows Media</translation>
</message>
<message>
<source>MEM</source>
<translation>MÉM</translation>
</message>
<message>
<source>Microsoft Codecs extensions</source>
<translation>Extensions de codecs Microsoft</translation>
</message>
<message>
<source>Microsoft codecs for video encoding/decoding. If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box</source>
<translation>Codecs Microsoft pour l’encodage et le décodage vidéo. Si vous n’utilisez pas les fonctionnalités internes de Windows pour diffuser, encoder ou lire des vidéos, décochez cette case</translation>
</message>
<message>
<source>Microsoft video editor</source>
<translation>Éditeur vidéo Microsoft</translation>
</message>
<message>
<source>Mobile device synchronization</source>
<translation>Synchronisation des appareils mobiles</translation>
</message>
<message>
<source>Monitor and display some system information in the title bar</source>
<translation>Surveiller et afficher des informations système dans la barre de titre</translation>
</message>
<message>
<source>MotherBoard</source>
<translation>Carte mère</translation>
</message>
<message>
<source>Name</source>
<translation>Nom</translation>
</message>
<message>
<source>Name:</source>
<translation>Nom :</translation>
</message>
<message>
<source>Need reboot!</source>
<translation>Redémarrage nécessaire !</translation>
</message>
<message>
<source>NFC</source>
<translation>NFC</translation>
</message>
<message>
<source>No</source>
<translation>Non</translation>
</message>
<message>
<source>No changes have been noted on this PC so far.</source>
<translation>Aucune modification n’a été notée sur ce PC jusqu’ici.</translation>
</message>
<message>
<source>no description</source>
<translation>aucune description</translation>
</message>
<message>
<source>No optimizations found!</source>
<translation>Aucune optimisation trouvée !</translation>
</message>
<message>
<source>not possible</source>
<translation>impossible</translation>
</message>
<message>
<source>Now</source>
<translation>Maintenant</translation>
</message>
<message>
<source>off</source>
<translation>désactivé</translation>
</message>
<message>
<source>Old Xbox App, no longer supported!</source>
<translation>Ancienne application Xbox, plus prise en charge !</translation>
</message>
<message>
<source>on</source>
<translation>activé</translation>
</message>
<message>
<source>on drive</source>
<translation>sur le lecteur</translation>
</message>
<message>
<source>Optimization finished</source>
<translation>Optimisation terminée</translation>
</message>
<message>
<source>Optimize</source>
<translation>Optimiser</translation>
</message>
<message>
<source>Optimizer</source>
<translation>Optimiseur</translation>
</message>
<message>
<source>Options</source>
<translation>Options</translation>
</message>
<message>
<source>Other protocol dedicated to local network (eg: some video players use it to connect to network hard drives)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Autre protocole dédié au réseau local (ex. : certains lecteurs vidéo l’utilisent pour se connecter à des disques durs réseau)<byte value="xd"/>
(par défaut, il n’est pas utilisé mais activé !)</translation>
</message>
<message>
<source>Otherwise some scheduled tasks will not be detected!</source>
<translation>Sinon, certaines tâches planifiées ne seront pas détectées !</translation>
</message>
<message>
<source>Owner and rights of %1</source>
<translation>Propriétaire et droits de %1</translation>
</message>
<message>
<source>Package %1</source>
<translation>Package %1</translation>
</message>
<message>
<source>package: </source>
<translation>package : </translation>
</message>
<message>
<source>Package: can be installed: </source>
<translation>Package : peut être installé : </translation>
</message>
<message>
<source>Package: can be uninstalled: </source>
<translation>Package : peut être désinstallé : </translation>
</message>
<message>
<source>Packages</source>
<translation>Packages</translation>
</message>
<message>
<source>packages finished</source>
<translation>packages terminés</translation>
</message>
<message>
<source>Packages installed:</source>
<translation>Packages installés :</translation>
</message>
<message>
<source>Packages uninstalled:</source>
<translation>Packages désinstallés :</translation>
</message>
<message>
<source>Packages:</source>
<translation>Packages :</translation>
</message>
<message>
<source>Path</source>
<translation>Chemin</translation>
</message>
<message>
<source>Phone link</source>
<translation>Mobile connecté</translation>
</message>
<message>
<source>Place of the file %1</source>
<translation>Emplacement du fichier %1</translation>
</message>
<message>
<source>Printer</source>
<translation>Imprimante</translation>
</message>
<message>
<source>Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</source>
<translation>Donner la priorité aux jeux  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</translation>
</message>
<message>
<source>Process: can be disable: %1 from Riva Tuner Statistic Server app!<byte value="xd"/>
This process only allows screen video capture.Does not affect the monitoring display in any way</source>
<translation>Processus : peut être désactivé : %1 de l’application Riva Tuner Statistic Server !<byte value="xd"/>
Ce processus ne sert qu’à la capture vidéo de l’écran. Il n’a aucun effet sur l’affichage de la surveillance</translation>
</message>
<message>
<source>Process: disable EncoderServer done</source>
<translation>Processus : désactivation d’EncoderServer terminée</translation>
</message>
<message>
<source>processes</source>
<translation>processus</translation>
</message>
<message>
<source>Program started at logon: %1</source>
<translation>Programme à l’ouverture de session : %1</translation>
</message>
<message>
<source>Programs</source>
<translation>Programmes</translation>
</message>
<message>
<source>Programs started automatically</source>
<translation>Programmes démarrés automatiquement</translation>
</message>
<message>
<source>Proxy and VPN</source>
<translation>Proxy et VPN</translation>
</message>
<message>
<source>Proxy or VPN functionality to improve the security of your network traffic<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Fonctionnalité de proxy ou de VPN pour améliorer la sécurité de votre trafic réseau<byte value="xd"/>
(par défaut, elle n’est pas utilisée mais activée !)</translation>
</message>
<message>
<source>Quick setup of some bluetooth headsets<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Configuration rapide de certains casques Bluetooth<byte value="xd"/>
(par défaut, elle n’est pas utilisée mais activée !)</translation>
</message>
<message>
<source>Reading what has become of it…</source>
<translation>Lecture de l’état actuel…</translation>
</message>
<message>
<source>Reduces certain delays
(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)</source>
<translation>Réduire certains délais
(affichage des menus, fermeture des applications et services, tâches bloquées)</translation>
</message>
<message>
<source>Refresh</source>
<translation>Actualiser</translation>
</message>
<message>
<source>Registry key %1</source>
<translation>Clé du registre %1</translation>
</message>
<message>
<source>Registry value %1</source>
<translation>Valeur du registre %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1</source>
<translation>Suppression de l’attribut d’indexation de %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1 finished</source>
<translation>Suppression de l’attribut d’indexation de %1 terminée</translation>
</message>
<message>
<source>Remove indexing attribute of Windows partition %1</source>
<translation>Suppression de l’attribut d’indexation de la partition Windows %1</translation>
</message>
<message>
<source>Remove the indexed attribute from all files in the Windows partition
(this operation may take some time)</source>
<translation>Supprimer l’attribut d’indexation de tous les fichiers de la partition Windows
(cette opération peut prendre un certain temps)</translation>
</message>
<message>
<source>Restoration finished</source>
<translation>Restauration terminée</translation>
</message>
<message>
<source>Restoration finished: Restart your PC!</source>
<translation>Restauration terminée : redémarrez votre PC !</translation>
</message>
<message>
<source>Restore</source>
<translation>Restaurer</translation>
</message>
<message>
<source>RESTORE disabled scheduled tasks</source>
<translation>RESTAURER les tâches planifiées désactivées</translation>
</message>
<message>
<source>RESTORE disabled services</source>
<translation>RESTAURER les services désactivés</translation>
</message>
<message>
<source>Restore scheduled tasks completed successfully</source>
<translation>Restauration des tâches planifiées terminée</translation>
</message>
<message>
<source>Restore services finished</source>
<translation>Restauration des services terminée</translation>
</message>
<message>
<source>Restoring scheduled tasks</source>
<translation>Restauration des tâches planifiées</translation>
</message>
<message>
<source>running</source>
<translation>en cours d’exécution</translation>
</message>
<message>
<source>S&amp;earch:</source>
<translation>&amp;Rechercher :</translation>
</message>
<message>
<source>Sa&amp;ve as files…</source>
<translation>&amp;Enregistrer en fichiers…</translation>
</message>
<message>
<source>Scheduled task %1</source>
<translation>Tâche planifiée %1</translation>
</message>
<message>
<source>Scheduled tasks</source>
<translation>Tâches planifiées</translation>
</message>
<message>
<source>Screenshot tool</source>
<translation>Outil de capture d’écran</translation>
</message>
<message>
<source>Service %1: delayed start</source>
<translation>Service %1 : démarrage différé</translation>
</message>
<message>
<source>Service %1: run state</source>
<translation>Service %1 : exécution</translation>
</message>
<message>
<source>Service %1: start mode</source>
<translation>Service %1 : mode de démarrage</translation>
</message>
<message>
<source>Service: can be disable: </source>
<translation>Service : peut être désactivé : </translation>
</message>
<message>
<source>Service: can be enable: </source>
<translation>Service : peut être activé : </translation>
</message>
<message>
<source>Service: can be set to manual:</source>
<translation>Service : peut passer en démarrage manuel :</translation>
</message>
<message>
<source>Service: disable %1</source>
<translation>Service : désactivation de %1</translation>
</message>
<message>
<source>Service: disable and stop %1</source>
<translation>Service : désactivation et arrêt de %1</translation>
</message>
<message>
<source>Service: enable %1</source>
<translation>Service : activation de %1</translation>
</message>
<message>
<source>Service: enable %1 done</source>
<translation>Service : activation de %1 terminée</translation>
</message>
<message>
<source>Service: enable and start %1</source>
<translation>Service : activation et démarrage de %1</translation>
</message>
<message>
<source>Service: enable and start %1 done</source>
<translation>Service : activation et démarrage de %1 terminés</translation>
</message>
<message>
<source>Service: enable and start %1, already running!</source>
<translation>Service : activation et démarrage de %1, déjà en cours d’exécution !</translation>
</message>
<message>
<source>Service: set to manual:</source>
<translation>Service : passage en démarrage manuel :</translation>
</message>
<message>
<source>Services</source>
<translation>Services</translation>
</message>
<message>
<source>Services  (Experienced users)</source>
<translation>Services  (utilisateurs expérimentés)</translation>
</message>
<message>
<source>Services:</source>
<translation>Services :</translation>
</message>
<message>
<source>Sessions</source>
<translation>Sessions</translation>
</message>
<message>
<source>Set the maximum number of GPU pre-rendered frames to 1
(if you have a good CPU, this reduces latency)</source>
<translation>Régler le nombre maximal d’images pré-rendues par le GPU sur 1
(avec un bon processeur, cela réduit la latence)</translation>
</message>
<message>
<source>something else has changed it since</source>
<translation>autre chose l’a modifié depuis</translation>
</message>
<message>
<source>SSD</source>
<translation>SSD</translation>
</message>
<message>
<source>Start mode</source>
<translation>Démarrage</translation>
</message>
<message>
<source>Start of services</source>
<translation>Démarrage de services</translation>
</message>
<message>
<source>Start service:</source>
<translation>Démarrage du service :</translation>
</message>
<message>
<source>Start with adminstrator rights</source>
<translation>Démarrer avec les droits d’administrateur</translation>
</message>
<message>
<source>started:</source>
<translation>démarrés :</translation>
</message>
<message>
<source>State</source>
<translation>État</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size finished!</source>
<translation>État : calcul de la taille du dossier WinSxS terminé !</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size...</source>
<translation>État : calcul de la taille du dossier WinSxS...</translation>
</message>
<message>
<source>Stop service:</source>
<translation>Arrêt du service :</translation>
</message>
<message>
<source>stopped</source>
<translation>arrêté</translation>
</message>
<message>
<source>stopped:</source>
<translation>arrêtés :</translation>
</message>
<message>
<source>System</source>
<translation>Système</translation>
</message>
<message>
<source>System
Information</source>
<translation>Informations
système</translation>
</message>
<message>
<source>System Information</source>
<translation>Informations système</translation>
</message>
<message>
<source>Take back</source>
<translation>Annulation de modifications</translation>
</message>
<message>
<source>Taking back…</source>
<translation>Annulation des modifications…</translation>
</message>
<message>
<source>Task:</source>
<translation>Tâche :</translation>
</message>
<message>
<source>Task: can be disable: </source>
<translation>Tâche : peut être désactivée : </translation>
</message>
<message>
<source>Task: can be enable: </source>
<translation>Tâche : peut être activée : </translation>
</message>
<message>
<source>Task: disable and stop %1</source>
<translation>Tâche : désactivation et arrêt de %1</translation>
</message>
<message>
<source>Task: Enable and start %1 done</source>
<translation>Tâche : activation et démarrage de %1 terminés</translation>
</message>
<message>
<source>Tasks</source>
<translation>Tâches</translation>
</message>
<message>
<source>Tasks:</source>
<translation>Tâches :</translation>
</message>
<message>
<source>the file is at neither place</source>
<translation>le fichier n’est à aucun des deux endroits</translation>
</message>
<message>
<source>The files can't bring back:</source>
<translation>Les fichiers ne peuvent pas rétablir :</translation>
</message>
<message>
<source>The way back needs Admin rights: only what was changed with them is noted.</source>
<translation>Le retour en arrière demande des droits d’administrateur : seul ce qui a été modifié avec eux est noté.</translation>
</message>
<message>
<source>Theme:</source>
<translation>Thème :</translation>
</message>
<message>
<source>there</source>
<translation>présent</translation>
</message>
<message>
<source>threads</source>
<translation>threads</translation>
</message>
<message>
<source>Tweaks</source>
<translation>Réglages</translation>
</message>
<message>
<source>Uncheck all</source>
<translation>Tout décocher</translation>
</message>
<message>
<source>under way</source>
<translation>en cours</translation>
</message>
<message>
<source>Uninstall</source>
<translation>Désinstaller</translation>
</message>
<message>
<source>Uninstall packages</source>
<translation>Désinstaller les packages</translation>
</message>
<message>
<source>uninstalled:</source>
<translation>désinstallés :</translation>
</message>
<message>
<source>unknown</source>
<translation>inconnu</translation>
</message>
<message>
<source>UPnP network services</source>
<translation>Services réseau UPnP</translation>
</message>
<message>
<source>View auto started programs</source>
<translation>Voir les programmes au démarrage</translation>
</message>
<message>
<source>View disabled services</source>
<translation>Voir les services désactivés</translation>
</message>
<message>
<source>View installed packages</source>
<translation>Voir les packages installés</translation>
</message>
<message>
<source>View programs disabled</source>
<translation>Voir les programmes désactivés</translation>
</message>
<message>
<source>View started services</source>
<translation>Voir les services démarrés</translation>
</message>
<message>
<source>View uninstalled packages</source>
<translation>Voir les packages désinstallés</translation>
</message>
<message>
<source>Way back</source>
<translation>Retour en arrière</translation>
</message>
<message>
<source>Way back…</source>
<translation>Retour en arrière…</translation>
</message>
<message>
<source>What</source>
<translation>Quoi</translation>
</message>
<message>
<source>What was changed on this PC isn't noted, so there is no way back by notes.</source>
<translation>Les modifications de ce PC ne sont pas notées : il n’y a donc pas de retour en arrière.</translation>
</message>
<message>
<source>When</source>
<translation>Quand</translation>
</message>
<message>
<source>Widget app</source>
<translation>Application de widgets</translation>
</message>
<message>
<source>Win32PrioritySeparation:   Processor time allocated to applications.</source>
<translation>Win32PrioritySeparation :   temps processeur alloué aux applications.</translation>
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
<translation>Application Windows : ERREUR d’installation de %1 : </translation>
</message>
<message>
<source>Windows application: ERROR uninstall %1: </source>
<translation>Application Windows : ERREUR de désinstallation de %1 : </translation>
</message>
<message>
<source>Windows application: install %1 done</source>
<translation>Application Windows : installation de %1 terminée</translation>
</message>
<message>
<source>Windows application: uninstall %1 done</source>
<translation>Application Windows : désinstallation de %1 terminée</translation>
</message>
<message>
<source>Windows applications</source>
<translation>Applications Windows</translation>
</message>
<message>
<source>Windows packages installed</source>
<translation>Packages Windows installés</translation>
</message>
<message>
<source>Windows sharing functionality on a local network (SMB protocol) (eg: connect hard drives, printers on a local network)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Fonctionnalité de partage de Windows sur un réseau local (protocole SMB) (ex. : connexion de disques durs, d’imprimantes sur un réseau local)<byte value="xd"/>
(par défaut, elle n’est pas utilisée mais activée !)</translation>
</message>
<message>
<source>With all &amp;later changes</source>
<translation>Avec toutes les modifications &amp;ultérieures</translation>
</message>
<message>
<source>Would you like to apply option for set indexing attributes of all files in Windows partition?</source>
<translation>Faut-il désactiver l’indexation du contenu de tous les fichiers de la partition Windows ? Cela peut prendre longtemps.</translation>
</message>
<message>
<source>Would you like to apply option to set indexing attributes of all files in Windows partition?</source>
<translation>Faut-il appliquer maintenant ce réglage d’indexation à tous les fichiers de la partition Windows ? Cela peut prendre longtemps.</translation>
</message>
<message>
<source>Written: %1</source>
<translation>Écrit : %1</translation>
</message>
<message>
<source>Xbox App</source>
<translation>Application Xbox</translation>
</message>
<message>
<source>Xbox game bar</source>
<translation>Xbox Game Bar</translation>
</message>
<message>
<source>XBOX Game Bar that appears at the top of the screen, above a game. If you don't use it, uncheck this box</source>
<translation>Xbox Game Bar qui s’affiche en haut de l’écran, par-dessus un jeu. Si vous ne l’utilisez pas, décochez cette case</translation>
</message>
<message>
<source>Yes</source>
<translation>Oui</translation>
</message>
<message>
<source>You must launch this app with Admin rights!</source>
<translation>Vous devez exécuter cette application en tant qu’administrateur !</translation>
</message>
<message>
<source>You should launch this app with Admin rights!</source>
<translation>Il est conseillé d’exécuter cette application en tant qu’administrateur !</translation>
</message>
<message>
<source>No known effect on today's Windows: write caching is set for each drive elsewhere.</source>
<translation>Sans effet connu sur Windows actuel : le cache d’écriture se règle ailleurs, pour chaque lecteur.</translation>
</message>
<message>
<source>No known effect: Windows doesn't read this value.</source>
<translation>Sans effet connu : Windows ne lit pas cette valeur.</translation>
</message>
<message>
<source>Saves small writes: Windows no longer records when a file was last read. Needs a restart.</source>
<translation>Évite de petites écritures : Windows ne note plus la dernière lecture d’un fichier. Redémarrage nécessaire.</translation>
</message>
<message>
<source>Windows no longer preloads programs: they start more slowly at first, and an SSD gains nothing. Needs a restart.</source>
<translation>Windows ne précharge plus les programmes : leur premier démarrage ralentit, sans gain sur un SSD. Redémarrage nécessaire.</translation>
</message>
<message>
<source>Windows' default: nothing changes. Taking it back clears the page file at each shutdown, which takes minutes.</source>
<translation>Réglage par défaut de Windows : rien ne change. L’annuler vide le fichier d’échange à chaque arrêt, ce qui prend des minutes.</translation>
</message>
<message>
<source>Each start is a full one: it takes a little longer, and drivers start afresh.</source>
<translation>Chaque démarrage est complet : un peu plus long, avec des pilotes rechargés.</translation>
</message>
<message>
<source>Frees the space of hiberfil.sys. The PC can't hibernate any more, and fast startup goes too.</source>
<translation>Libère la place de hiberfil.sys. Plus de mise en veille prolongée ni de démarrage rapide.</translation>
</message>
<message>
<source>Takes all files out of the content index: search gets slower and finds less.</source>
<translation>Retire tous les fichiers de l’index de contenu : la recherche ralentit et trouve moins.</translation>
</message>
<message>
<source>No known effect since Windows XP.</source>
<translation>Sans effet connu depuis Windows XP.</translation>
</message>
<message>
<source>Small effect: only for games that register with Windows' multimedia scheduler.</source>
<translation>Effet faible : seulement pour les jeux inscrits au planificateur multimédia de Windows.</translation>
</message>
<message>
<source>No known effect: Windows reads this setting elsewhere.</source>
<translation>Sans effet connu : Windows lit ce réglage ailleurs.</translation>
</message>
<message>
<source>Windows' default: game mode is on already. Taking it back switches it off.</source>
<translation>Réglage par défaut : le mode Jeu est déjà activé. L’annuler le désactive.</translation>
</message>
<message>
<source>Windows no longer records or broadcasts games. Settings shows this as managed by your organization.</source>
<translation>Windows n’enregistre et ne diffuse plus les jeux. Paramètres indique « géré par votre organisation ».</translation>
</message>
<message>
<source>Windows 11: the default already, and taking it back forces the slower platform timer. Windows 10: no known effect.</source>
<translation>Windows 11 : déjà par défaut, et l’annuler impose l’horloge de plateforme, plus lente. Windows 10 : sans effet connu.</translation>
</message>
<message>
<source>Partly effective: the Game Bar's tips and the Xbox button are off, but Win+G still opens it.</source>
<translation>Effet partiel : les conseils de la Game Bar et la touche Xbox sont désactivés, mais Win+G l’ouvre encore.</translation>
</message>
<message>
<source>Windows 11: the system timer never pauses, which costs power; needs a restart. Windows 10: nothing changes.</source>
<translation>Windows 11 : l’horloge système ne s’arrête jamais, ce qui consomme ; redémarrage nécessaire. Windows 10 : rien ne change.</translation>
</message>
<message>
<source>Shows games without HDR in HDR. Resets other graphics settings such as variable refresh rate.</source>
<translation>Affiche en HDR les jeux sans HDR. Réinitialise d’autres réglages graphiques, dont la fréquence d’actualisation variable.</translation>
</message>
<message>
<source>The pointer moves evenly with the mouse. Takes effect at the next sign-in.</source>
<translation>Le pointeur suit la souris de façon régulière. Effet à la prochaine ouverture de session.</translation>
</message>
<message>
<source>Partly effective: packets are acknowledged at once, not on connections with a fixed address. Needs a restart.</source>
<translation>Effet partiel : accusé de réception immédiat, sauf avec une adresse fixe. Redémarrage nécessaire.</translation>
</message>
<message>
<source>38 is what Windows does by default; other choices change it. Taking it back deletes the value.</source>
<translation>38 correspond au comportement par défaut ; les autres valeurs le changent. L’annuler supprime la valeur.</translation>
</message>
<message>
<source>No known effect: neither Direct3D nor drivers read this value today.</source>
<translation>Sans effet connu : ni Direct3D ni les pilotes ne lisent cette valeur aujourd’hui.</translation>
</message>
<message>
<source>May fix flickering and stutter; some videos may run worse. Said to have no effect since Windows 11 24H2. Needs a restart.</source>
<translation>Peut corriger scintillements et saccades ; certaines vidéos en souffrent. Serait sans effet depuis Windows 11 24H2. Redémarrage nécessaire.</translation>
</message>
<message>
<source>Of use with several AMD graphics cards only; its effect is uncertain. Needs a restart.</source>
<translation>Utile seulement avec plusieurs cartes AMD ; effet incertain. Redémarrage nécessaire.</translation>
</message>
<message>
<source>Fewer svchost.exe processes, but services are less isolated from each other. Needs a restart.</source>
<translation>Moins de processus svchost.exe, mais des services moins isolés. Redémarrage nécessaire.</translation>
</message>
<message>
<source>Windows' default since version 1803: nothing changes. Taking it back switches the backup on.</source>
<translation>Réglage par défaut depuis la version 1803 : rien ne change. L’annuler active la sauvegarde.</translation>
</message>
<message>
<source>Hides the button for advanced options only; indexing goes on.</source>
<translation>Masque seulement le bouton des options avancées ; l’indexation continue.</translation>
</message>
<message>
<source>File History keeps no older versions of files any more. Recent files are still listed.</source>
<translation>L’historique des fichiers ne garde plus d’anciennes versions. Les fichiers récents restent affichés.</translation>
</message>
<message>
<source>A right-click shows all entries, once Explorer has been restarted. Taking it back leaves the old menu.</source>
<translation>Un clic droit montre toutes les entrées, après redémarrage de l’Explorateur. L’ancien menu reste même après annulation.</translation>
</message>
<message>
<source>Updates are no longer exchanged with other PCs.</source>
<translation>Les mises à jour ne sont plus échangées avec d’autres PC.</translation>
</message>
<message>
<source>Less data goes to Microsoft. Clipboard history (Win+V), location and error reports stop working too.</source>
<translation>Moins de données envoyées à Microsoft. L’historique du Presse-papiers (Win+V), la localisation et les rapports d’erreurs cessent aussi.</translation>
</message>
<message>
<source>Menus open faster. At sign-out programs may be closed with unsaved work. Takes effect at the next sign-in.</source>
<translation>Les menus s’ouvrent plus vite. À la fermeture de session, un travail non enregistré peut être perdu. Effet à la prochaine session.</translation>
</message>
<message>
<source>Windows 11: removes the whole lock screen; some editions ignore it. Windows 10: nothing changes.</source>
<translation>Windows 11 : supprime tout l’écran de verrouillage ; certaines éditions l’ignorent. Windows 10 : rien ne change.</translation>
</message>
<message>
<source>Search in Start and on the taskbar stops working. An update may bring it back while this box stays checked.</source>
<translation>La recherche du menu Démarrer et de la barre des tâches ne marche plus. Une mise à jour peut la rétablir sans que cette case change.</translation>
</message>
<message>
<source>Partly effective: two tasks stay off, but the service comes back at the next sign-in.</source>
<translation>Effet partiel : deux tâches restent désactivées, mais le service revient à la prochaine session.</translation>
</message>
<message>
<source>none changed</source>
<translation>aucune modifiée</translation>
</message>
<message>
<source>an empty key</source>
<translation>une clé vide</translation>
</message>
<message>
<source>yes</source>
<translation>oui</translation>
</message>
<message>
<source>no</source>
<translation>non</translation>
</message>
<message>
<source>%1 values</source>
<translation>%1 valeurs</translation>
</message>
<message>
<source>%1 changed</source>
<translation>%1 modifiées</translation>
</message>
<message>
<source>%1 as before</source>
<translation>%1 comme avant</translation>
</message>
<message>
<source>%1 otherwise</source>
<translation>%1 autrement</translation>
</message>
<message>
<source>%1 stay changed</source>
<translation>%1 restent modifiées</translation>
</message>
<message>
<source>start mode</source>
<translation>mode de démarrage</translation>
</message>
<message>
<source>delayed start</source>
<translation>démarrage différé</translation>
</message>
<message>
<source>state</source>
<translation>état</translation>
</message>
<message>
<source>the key itself</source>
<translation>la clé elle-même</translation>
</message>
<message>
<source>the file</source>
<translation>le fichier</translation>
</message>
<message>
<source>its attributes</source>
<translation>ses attributs</translation>
</message>
<message>
<source>its owner and permissions</source>
<translation>son propriétaire et ses droits</translation>
</message>
<message>
<source>in the boot configuration</source>
<translation>dans la configuration de démarrage</translation>
</message>
<message>
<source>Records of what was done</source>
<translation>Enregistrements de ce qui a été fait</translation>
</message>
<message>
<source>Log and backups beside the program</source>
<translation>Journal et sauvegardes près du programme</translation>
</message>
<message>
<source>Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically.</source>
<translation>La restauration démarre chaque service que l’optimisation a désactivé et le règle sur automatique : un service qui démarrait à la demande ou en différé démarre désormais automatiquement.</translation>
</message>
<message>
<source>Optimize does not record services that it sets to manual, so Restore doesn't know of them.</source>
<translation>L’optimisation ne note pas les services qu’elle passe en manuel ; la restauration ne les connaît donc pas.</translation>
</message>
<message>
<source>Restore enables only the tasks that Optimize has recorded.</source>
<translation>La restauration n’active que les tâches que l’optimisation a notées.</translation>
</message>
<message>
<source>Restore re-registers the app from its files, as Windows itself does for a new user.</source>
<translation>La restauration réenregistre l’application à partir de ses fichiers, comme le fait Windows pour un nouvel utilisateur.</translation>
</message>
<message>
<source>The app comes back as newly installed, without what it had stored.</source>
<translation>L’application revient comme neuve, sans ce qu’elle avait enregistré.</translation>
</message>
<message>
<source>Restore re-registers an app from its files, which could not be found.</source>
<translation>La restauration réenregistre une application à partir de ses fichiers, qui n’ont pas été trouvés.</translation>
</message>
<message>
<source>The saved command is cut at its first "=", so the program starts without the rest of its arguments.</source>
<translation>La commande enregistrée est coupée à son premier « = » : le programme démarre donc sans la suite de ses arguments.</translation>
</message>
<message>
<source>Restore brings back only a command whose program is in quotation marks and exists on the disk.</source>
<translation>La restauration ne rétablit qu’une commande dont le programme est entre guillemets et existe sur le disque.</translation>
</message>
<message>
<source>Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it.</source>
<translation>La restauration ne sait pas ce que vous aviez : elle écrit une valeur fixe, le plus souvent celle par défaut de Windows, ou la supprime.</translation>
</message>
<message>
<source>Restore doesn't reset this option, or not all of its values.</source>
<translation>La restauration ne réinitialise pas cette option, ou pas toutes ses valeurs.</translation>
</message>
<message>
<source>The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway.</source>
<translation>L’option était déjà telle que l’optimisation la veut, ou n’en fait pas partie ; la restauration la réinitialise quand même.</translation>
</message>
<message>
<source>Restore doesn't touch this file.</source>
<translation>La restauration ne touche pas à ce fichier.</translation>
</message>
<message>
<source>Restore doesn't touch this value.</source>
<translation>La restauration ne touche pas à cette valeur.</translation>
</message>
<message>
<source>Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it stops there: what is changed by then stays changed.</source>
<translation>Modifie tout ce que l’analyse a trouvé, ce qui prend un moment. Si vous fermez la fenêtre entre-temps, tout s’arrête là : ce qui est déjà modifié le reste.</translation>
</message>
<message>
<source>Acts on all checked packages at once, without asking. The list stays as it is until the page is shown again.</source>
<translation>Agit aussitôt sur tous les packages cochés, sans poser de question. La liste reste telle quelle jusqu’à ce que la page soit affichée à nouveau.</translation>
</message>
<message>
<source>Nothing changes either.</source>
<translation>Là non plus, rien ne change.</translation>
</message>
<message>
<source>Last access times are recorded again, but Windows no longer decides about them by itself.</source>
<translation>Les derniers accès sont à nouveau notés, mais Windows n’en décide plus lui-même.</translation>
</message>
<message>
<source>The default is back.</source>
<translation>La valeur par défaut est rétablie.</translation>
</message>
<message>
<source>The defaults are back.</source>
<translation>Les valeurs par défaut sont rétablies.</translation>
</message>
<message>
<source>The page file is cleared at each shutdown, which isn't the default and takes minutes.</source>
<translation>Le fichier d’échange est vidé à chaque arrêt, ce qui n’est pas le réglage par défaut et prend des minutes.</translation>
</message>
<message>
<source>Hibernation is on, even if it was off before, and takes its space again.</source>
<translation>La veille prolongée est activée, même si elle ne l’était pas, et reprend sa place sur le disque.</translation>
</message>
<message>
<source>The attribute is cleared, even where Windows or you had set it.</source>
<translation>L’attribut est effacé, même là où Windows ou vous l’aviez posé.</translation>
</message>
<message>
<source>Some priorities stay higher than the default.</source>
<translation>Certaines priorités restent plus hautes que par défaut.</translation>
</message>
<message>
<source>Game mode is off, and the default is on.</source>
<translation>Le mode Jeu est désactivé, alors qu’il est activé par défaut.</translation>
</message>
<message>
<source>Recording is allowed; Settings still shows it as managed.</source>
<translation>L’enregistrement est permis ; Paramètres l’indique toujours comme géré.</translation>
</message>
<message>
<source>On Windows 11 the platform timer is forced on, which may slow down games; the default is no entry at all.</source>
<translation>Sur Windows 11, l’horloge de plateforme est imposée, ce qui peut ralentir les jeux ; par défaut, il n’y a aucune entrée.</translation>
</message>
<message>
<source>The same effect as the default.</source>
<translation>Le même effet que par défaut.</translation>
</message>
<message>
<source>Auto HDR is off.</source>
<translation>Auto HDR est désactivé.</translation>
</message>
<message>
<source>The values are deleted, which is the default.</source>
<translation>Les valeurs sont supprimées, comme par défaut.</translation>
</message>
<message>
<source>The value is deleted. It is there by default, and what Windows does without it is uncertain.</source>
<translation>La valeur est supprimée. Elle existe par défaut, et ce que fait Windows sans elle est incertain.</translation>
</message>
<message>
<source>ULPS is switched on, even for adapters that never had it.</source>
<translation>ULPS est activé, même pour les cartes qui ne l’ont jamais eu.</translation>
</message>
<message>
<source>The same effect as the default on a PC with more than 3.5 GB of memory.</source>
<translation>Le même effet que par défaut sur un PC de plus de 3,5 Go de mémoire.</translation>
</message>
<message>
<source>The backup is on, which isn't the default and does no harm.</source>
<translation>La sauvegarde est activée, ce qui n’est pas le réglage par défaut et ne nuit pas.</translation>
</message>
<message>
<source>The button is back.</source>
<translation>Le bouton est de retour.</translation>
</message>
<message>
<source>File History is allowed again.</source>
<translation>L’historique des fichiers est à nouveau permis.</translation>
</message>
<message>
<source>The old menu stays: key and empty value are left.</source>
<translation>L’ancien menu reste : la clé et la valeur vide subsistent.</translation>
</message>
<message>
<source>Some values are less private than before: diagnostic data in full, suggestions on, synchronization on.</source>
<translation>Certaines valeurs protègent moins qu’avant : données de diagnostic complètes, suggestions et synchronisation activées.</translation>
</message>
<message>
<source>The lock screen is back.</source>
<translation>L’écran de verrouillage est de retour.</translation>
</message>
<message>
<source>The program is back; its owner and rights stay changed.</source>
<translation>Le programme est de retour ; son propriétaire et ses droits restent modifiés.</translation>
</message>
<message>
<source>as now</source>
<translation>comme maintenant</translation>
</message>
<message>
<source>written</source>
<translation>écrit</translation>
</message>
<message>
<source>kept</source>
<translation>conservé</translation>
</message>
<message>
<source>as before</source>
<translation>comme avant</translation>
</message>
</context>
</TS>
