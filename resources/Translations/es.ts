<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<!-- One context for all: see cmake/translations.cmake. -->
<context>
<name>texts</name>
<message>
<source>  20   (variable and long quantum, foreground boost X1)</source>
<translation>  20   (cuanto variable y largo, impulso en primer plano X1)</translation>
</message>
<message>
<source>  21   (variable and long quantum, foreground boost X2)</source>
<translation>  21   (cuanto variable y largo, impulso en primer plano X2)</translation>
</message>
<message>
<source>  22   (variable and long quantum, foreground boost X3)</source>
<translation>  22   (cuanto variable y largo, impulso en primer plano X3)</translation>
</message>
<message>
<source>  24   (fixed and long quantum, foreground boost X1) (not recommended)</source>
<translation>  24   (cuanto fijo y largo, impulso en primer plano X1) (no recomendado)</translation>
</message>
<message>
<source>  36   (variable and short quantum, foreground boost X1)</source>
<translation>  36   (cuanto variable y corto, impulso en primer plano X1)</translation>
</message>
<message>
<source>  37   (variable and short quantum, foreground boost X2)</source>
<translation>  37   (cuanto variable y corto, impulso en primer plano X2)</translation>
</message>
<message>
<source>  38   (variable and short quantum, foreground boost X3) (recommended)</source>
<translation>  38   (cuanto variable y corto, impulso en primer plano X3) (recomendado)</translation>
</message>
<message>
<source>  40   (fixed and short quantum, foreground boost X1) (not recommended)</source>
<translation>  40   (cuanto fijo y corto, impulso en primer plano X1) (no recomendado)</translation>
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Edición:   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Compilación:   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versión:   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Instalado en SSD:   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Placa base:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Modelo:   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versión del BIOS:   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Fecha del BIOS:   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Procesador:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frecuencia base:   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Núcleos / Hilos:   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Tamaño de caché L2:   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Tamaño de caché L3:   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Zócalo:   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading:   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtualización:   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Memoria:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Capacidad:   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Libre:   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frecuencia:   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Formato:   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Memoria virtual:   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Tarjeta gráfica y pantalla:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versión controlador:   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Fecha controlador:   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Pantalla:   cargando datos de la pantalla...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Resolución:   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Resolución máx.:   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frecuencia:   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frecuencia máx.:   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR:   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Disco:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;cargando datos del disco...&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Versión:&lt;/span&gt;   beta %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Fecha:&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Autor:&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Contacto:&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Sitio web:&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Lenguaje de programación y framework:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ con Qt 6, con licencia GNU LGPL versión 3&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Desarrollado para Windows 10 y Windows 11&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Objetivo:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Esta aplicación pretende mejorar el rendimiento general sin desvirtuar Windows, ayudándole a deshabilitar todas las funciones, programas, servicios y tareas programadas que puedan ser superfluos y perjudicar el rendimiento. También configura algunas funciones internas del sistema a las que no se accede desde ninguna interfaz, y otras opciones permiten reducir el espacio que ocupa Windows en el disco duro. (desinstalar aplicaciones de Windows innecesarias, limpiar la carpeta WinSxS, ...)&lt;br /&gt;Todo en unos pocos clics y con la posibilidad de restaurar los valores originales. &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Información importante:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;Todas las opciones de esta aplicación son reversibles.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Tenga cuidado con la sección Servicios. No deshabilite servicios si no sabe realmente qué son, sus dependencias, etc. ¡¡¡USE EL BOTÓN ASISTENTE!!!&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- Cuanto FIJO: el tiempo de procesador se reparte por igual entre las aplicaciones,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;un cuanto VARIABLE les permite retener el procesador más tiempo si hace falta.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- Cuanto CORTO: el tiempo de procesador pasa más rápido de una tarea a otra,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;un cuanto LARGO, en cambio, asigna más tiempo a la aplicación.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- IMPULSO EN PRIMER PLANO X veces: el cuanto se multiplica por X en favor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;de la aplicación en primer plano.&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;En un contexto puramente de juego, según el valor, favorece los FPS (22, 21),&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;FPS y respuesta (38, 37) o latencia de teclado/ratón o mando (36, 24, 40).&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;más información&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Advanced optimizations via motherboard BIOS settings &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Optimizaciones avanzadas en la configuración del BIOS de la placa base &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;más información&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft acknowledges performance impact with Memory Integrity and VMP enabled &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft admite que la integridad de memoria y VMP reducen el rendimiento &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;más información&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;The WinSxS folder is an essential system component that serves as a repository for storing multiple versions of system files, allowing Windows to maintain good compatibility &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;La carpeta WinSxS es un componente esencial del sistema que sirve de repositorio para varias versiones de archivos del sistema, lo que permite a Windows mantener una buena compatibilidad &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;más información&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>%1 bytes</source>
<translation>%1 bytes</translation>
</message>
<message>
<source>%1 of %2 are as they were.</source>
<translation>%1 de %2 están como estaban.</translation>
</message>
<message>
<source>&amp;Sessions:</source>
<translation>&amp;Sesiones:</translation>
</message>
<message>
<source>Clear the search</source>
<translation>Borrar la búsqueda</translation>
</message>
<message>
<source>Preview…</source>
<translation>Vista previa…</translation>
</message>
<message>
<source>Preview of Optimize</source>
<translation>Vista previa de la optimización</translation>
</message>
<message>
<source>After Optimize</source>
<translation>Tras optimizar</translation>
</message>
<message>
<source>After Restore</source>
<translation>Tras restaurar</translation>
</message>
<message>
<source>Comes back</source>
<translation>Vuelve</translation>
</message>
<message>
<source>Progress</source>
<translation>Progreso</translation>
</message>
<message>
<source>exactly</source>
<translation>exactamente</translation>
</message>
<message>
<source>as a fixed value</source>
<translation>con un valor fijo</translation>
</message>
<message>
<source>It is in the Store: %1</source>
<translation>Está en la Store: %1</translation>
</message>
<message>
<source>not at all</source>
<translation>de ningún modo</translation>
</message>
<message>
<source>by Restore only</source>
<translation>solo al restaurar</translation>
</message>
<message>
<source>%1 come back exactly</source>
<translation>%1 vuelven exactamente</translation>
</message>
<message>
<source>%1 as a fixed value</source>
<translation>%1 con un valor fijo</translation>
</message>
<message>
<source>%1 not at all</source>
<translation>%1 de ningún modo</translation>
</message>
<message>
<source>%1 are changed by Restore only</source>
<translation>%1 solo cambian al restaurar</translation>
</message>
<message>
<source>Programs started at logon</source>
<translation>Programas que se inician con la sesión</translation>
</message>
<message>
<source>System options</source>
<translation>Opciones del sistema</translation>
</message>
<message>
<source>Files</source>
<translation>Archivos</translation>
</message>
<message>
<source>Other registry values</source>
<translation>Otros valores del registro</translation>
</message>
<message>
<source>Kestrune's own records</source>
<translation>Registros propios de Kestrune</translation>
</message>
<message>
<source>Copying this PC…</source>
<translation>Copiando este PC…</translation>
</message>
<message>
<source>Trying it on a copy…</source>
<translation>Probando en una copia…</translation>
</message>
<message>
<source>Trying it on the copy…</source>
<translation>Probando en la copia…</translation>
</message>
<message>
<source>There is no preview: %1</source>
<translation>No hay vista previa: %1</translation>
</message>
<message>
<source>What the next Optimize would change, and what the Restore button would bring back:</source>
<translation>Lo que cambiaría la próxima optimización y lo que recuperaría el botón de restaurar:</translation>
</message>
<message>
<source>“Way back…” brings back more than Restore: what was noted before each change.</source>
<translation>«Vuelta atrás…» recupera más que restaurar: lo que se anotó antes de cada cambio.</translation>
</message>
<message>
<source>This PC was looked at without Admin rights: what needs them is missing here.</source>
<translation>Este PC se examinó sin derechos de administrador: falta lo que los necesita.</translation>
</message>
<message>
<source>With Admin rights a preview needs a copy of this app that nobody else can change, such as the installer makes in the folder for programs. Without Admin rights it works from any folder.</source>
<translation>Con derechos de administrador, la vista previa necesita una copia de esta aplicación que nadie más pueda cambiar, como la que el instalador pone en la carpeta de programas. Sin ellos funciona desde cualquier carpeta.</translation>
</message>
<message>
<source>A preview needs the folder “rehearse” of this app, which isn't there.</source>
<translation>La vista previa necesita la carpeta «rehearse» de esta aplicación, que no está.</translation>
</message>
<message>
<source>Windows was updated from build %1 to %2 since. No longer in force: %3.</source>
<translation>Desde entonces Windows pasó de la compilación %1 a la %2. Ya no en vigor: %3.</translation>
</message>
<message>
<source>automatic (delayed)</source>
<translation>automático (retrasado)</translation>
</message>
<message>
<source>not installed</source>
<translation>no instalado</translation>
</message>
<message>
<source>starts</source>
<translation>se inicia</translation>
</message>
<message>
<source>doesn't start</source>
<translation>no se inicia</translation>
</message>
<message>
<source>your setting</source>
<translation>su configuración</translation>
</message>
<message>
<source>applied</source>
<translation>aplicada</translation>
</message>
<message>
<source>applied in part</source>
<translation>aplicada en parte</translation>
</message>
<message>
<source>a fixed value</source>
<translation>un valor fijo</translation>
</message>
<message>
<source>not there</source>
<translation>no existe</translation>
</message>
<message>
<source>but not as before</source>
<translation>pero no como antes</translation>
</message>
<message>
<source>Before the journal, not exact</source>
<translation>Antes del diario, no exacto</translation>
</message>
<message>
<source>%1 (by the system)</source>
<translation>%1 (por el sistema)</translation>
</message>
<message>
<source>%1 (by another account)</source>
<translation>%1 (por otra cuenta)</translation>
</message>
<message>
<source>Page: %1</source>
<translation>Página: %1</translation>
</message>
<message>
<source>&amp;Take back</source>
<translation>&amp;Deshacer</translation>
</message>
<message>
<source>Clean-up of the WinSxS folder</source>
<translation>Limpieza de la carpeta WinSxS</translation>
</message>
<message>
<source>Windows keeps no copy of what this removes</source>
<translation>Windows no guarda copia de lo que esto elimina</translation>
</message>
<message>
<source>its files are gone from this PC; get it from the Store</source>
<translation>sus archivos ya no están en este PC; puede obtenerse en la Store</translation>
</message>
<message>
<source>Not everything was done.</source>
<translation>No se ha hecho todo.</translation>
</message>
<message>
<source>a later session has changed it, too</source>
<translation>una sesión posterior también lo ha cambiado</translation>
</message>
<message>
<source>A newer version of Kestrune is available!<byte value="xd"/>
Would you like to visit the website for download?<byte value="xd"/>
<byte value="xd"/>
Current version: %1<byte value="xd"/>
Online version: %2</source>
<translation>¡Hay una versión más reciente de Kestrune disponible!<byte value="xd"/>
¿Desea visitar el sitio web para descargarla?<byte value="xd"/>
<byte value="xd"/>
Versión actual: %1<byte value="xd"/>
Versión en línea: %2</translation>
</message>
<message>
<source>About</source>
<translation>Acerca de</translation>
</message>
<message>
<source>absent</source>
<translation>ausente</translation>
</message>
<message>
<source>Add indexing attribute of %1 finished</source>
<translation>Atributo de indexación de %1 añadido</translation>
</message>
<message>
<source>Add indexing attribute of Windows partition %1</source>
<translation>Añadiendo el atributo de indexación de la partición de Windows %1</translation>
</message>
<message>
<source>Apply a profile</source>
<translation>Aplicar un perfil</translation>
</message>
<message>
<source>Analyze</source>
<translation>Analizar</translation>
</message>
<message>
<source>Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring some that are inaccessible through an interface.
Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages.</source>
<translation>Analice y optimice Windows para mejorar el rendimiento general deshabilitando funciones innecesarias y configurando otras a las que no se accede desde ninguna interfaz.
Las optimizaciones proceden de las páginas Servicios, Tareas programadas, Programas y Funciones.</translation>
</message>
<message>
<source>Application to play PC games if you have a Gamepass account (paid)</source>
<translation>Aplicación para jugar a juegos de PC con una suscripción Game Pass (de pago)</translation>
</message>
<message>
<source>Apply</source>
<translation>Aplicar</translation>
</message>
<message>
<source>Apply features</source>
<translation>Aplicar funciones</translation>
</message>
<message>
<source>Apply features finished successfully.</source>
<translation>Funciones aplicadas correctamente.</translation>
</message>
<message>
<source>Are you sure to disable all checked services?</source>
<translation>¿Seguro que desea deshabilitar todos los servicios marcados?</translation>
</message>
<message>
<source>Are you sure to disable all checked tasks?</source>
<translation>¿Seguro que desea deshabilitar todas las tareas marcadas?</translation>
</message>
<message>
<source>Are you sure you want to restore the original values?<byte value="xd"/>
All features, applications, services and tasks will be restored.</source>
<translation>¿Seguro que desea restaurar los valores originales?<byte value="xd"/>
Se restaurarán todas las funciones, aplicaciones, servicios y tareas.</translation>
</message>
<message>
<source>Are you sure you want to restore the startup of all scheduled tasks?</source>
<translation>¿Seguro que desea restaurar el inicio de todas las tareas programadas?</translation>
</message>
<message>
<source>as it was</source>
<translation>como estaba</translation>
</message>
<message>
<source>ASSISTANT - disable a list of non vital services</source>
<translation>ASISTENTE: deshabilitar servicios no vitales</translation>
</message>
<message>
<source>ASSISTANT - disable a list of scheduled tasks</source>
<translation>ASISTENTE: deshabilitar una lista de tareas programadas</translation>
</message>
<message>
<source>Assistant - no services to deactivate</source>
<translation>Asistente: no hay servicios que deshabilitar</translation>
</message>
<message>
<source>Assistant - no tasks to deactivate</source>
<translation>Asistente: no hay tareas que deshabilitar</translation>
</message>
<message>
<source>at boot</source>
<translation>al arrancar</translation>
</message>
<message>
<source>Attributes of %1</source>
<translation>Atributos de %1</translation>
</message>
<message>
<source>Auto</source>
<translation>Auto</translation>
</message>
<message>
<source>Auto started programs disabled:</source>
<translation>Programas de inicio deshabilitados:</translation>
</message>
<message>
<source>automatic</source>
<translation>automático</translation>
</message>
<message>
<source>Automatic start</source>
<translation>Inicio automático</translation>
</message>
<message>
<source>Automatically started programs</source>
<translation>Programas iniciados automáticamente</translation>
</message>
<message>
<source>Autorun</source>
<translation>Inicio</translation>
</message>
<message>
<source>Autorun program: disable %1 done</source>
<translation>Programa de inicio: %1 deshabilitado</translation>
</message>
<message>
<source>Autorun program: enable %1 done</source>
<translation>Programa de inicio: %1 habilitado</translation>
</message>
<message>
<source>Autorun:</source>
<translation>Inicio:</translation>
</message>
<message>
<source>Autorun: can be disabled: </source>
<translation>Inicio: se puede deshabilitar: </translation>
</message>
<message>
<source>Backup file exists</source>
<translation>Existe un archivo de copia de seguridad</translation>
</message>
<message>
<source>Before</source>
<translation>Antes</translation>
</message>
<message>
<source>Bluetooth audio</source>
<translation>Audio Bluetooth</translation>
</message>
<message>
<source>Boot option %1</source>
<translation>Opción de arranque %1</translation>
</message>
<message>
<source>broken off</source>
<translation>interrumpido</translation>
</message>
<message>
<source>Broken off: way back…</source>
<translation>Interrumpido: vuelta atrás…</translation>
</message>
<message>
<source>by the system</source>
<translation>por el sistema</translation>
</message>
<message>
<source>Cancel</source>
<translation>Cancelar</translation>
</message>
<message>
<source>Cannot restore if you have not yet optimized!</source>
<translation>¡No se puede restaurar si aún no ha optimizado!</translation>
</message>
<message>
<source>Another instance of the program is changing this PC. Try again when it has finished.</source>
<translation>Otra instancia del programa está modificando este PC. Inténtelo de nuevo cuando haya terminado.</translation>
</message>
<message>
<source>Capacity:</source>
<translation>Capacidad:</translation>
</message>
<message>
<source>Change</source>
<translation>Cambio</translation>
</message>
<message>
<source>changed</source>
<translation>cambiado</translation>
</message>
<message>
<source>changed again</source>
<translation>cambiado de nuevo</translation>
</message>
<message>
<source>Changes</source>
<translation>Cambios</translation>
</message>
<message>
<source>Check all</source>
<translation>Marcar todo</translation>
</message>
<message>
<source>Check update of Kestrune version</source>
<translation>Buscar actualizaciones de Kestrune</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool</source>
<translation>Limpiar la carpeta WinSxS con la herramienta DISM de Microsoft</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)</source>
<translation>Limpiar la carpeta WinSxS con la herramienta DISM de Microsoft  (tamaño actual: %1 GB)</translation>
</message>
<message>
<source>Close</source>
<translation>Cerrar</translation>
</message>
<message>
<source>Comments</source>
<translation>Comentarios</translation>
</message>
<message>
<source>Configure auto started programs done!</source>
<translation>¡Configuración de los programas de inicio completada!</translation>
</message>
<message>
<source>Content indexing off</source>
<translation>Indexación de contenido deshabilitada</translation>
</message>
<message>
<source>Content indexing on</source>
<translation>Indexación de contenido habilitada</translation>
</message>
<message>
<source>CPU</source>
<translation>CPU</translation>
</message>
<message>
<source>Dark</source>
<translation>Oscuro</translation>
</message>
<message>
<source>Date of the last execution</source>
<translation>Fecha de la última ejecución</translation>
</message>
<message>
<source>Description</source>
<translation>Descripción</translation>
</message>
<message>
<source>Development applet</source>
<translation>Applet de desarrollo</translation>
</message>
<message>
<source>Disable advanced indexing options</source>
<translation>Deshabilitar las opciones avanzadas de indexación</translation>
</message>
<message>
<source>Disable automatic boot disk optimization</source>
<translation>Deshabilitar la optimización automática del disco de arranque</translation>
</message>
<message>
<source>Disable checked programs</source>
<translation>Deshabilitar los programas marcados</translation>
</message>
<message>
<source>DISABLE checked services</source>
<translation>DESHABILITAR los servicios marcados</translation>
</message>
<message>
<source>Disable checked services</source>
<translation>Deshabilitar los servicios marcados</translation>
</message>
<message>
<source>Disable checked services finished</source>
<translation>Deshabilitación de los servicios marcados completada</translation>
</message>
<message>
<source>DISABLE checked tasks</source>
<translation>DESHABILITAR las tareas marcadas</translation>
</message>
<message>
<source>Disable clearing of virtual memory swap file on every shutdown</source>
<translation>Deshabilitar el borrado del archivo de paginación en cada apagado</translation>
</message>
<message>
<source>Disable cloud backup and restore functionalities</source>
<translation>Deshabilitar la copia de seguridad y restauración en la nube</translation>
</message>
<message>
<source>Disable CPU power throttling
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Deshabilitar la limitación de energía de la CPU
(función de ahorro, optimización no recomendada para portátiles)</translation>
</message>
<message>
<source>Disable distribution optimization of Windows updates</source>
<translation>Deshabilitar la optimización de distribución de las actualizaciones de Windows</translation>
</message>
<message>
<source>Disable dynamic tick of system timers
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Deshabilitar el pulso dinámico de los temporizadores del sistema
(función de ahorro, optimización no recomendada para portátiles)</translation>
</message>
<message>
<source>Disable enhance pointer precision
(to achieve precise mouse control and muscle memory)</source>
<translation>Deshabilitar la mejora de la precisión del puntero
(para lograr un control preciso del ratón y memoria muscular)</translation>
</message>
<message>
<source>Disable fast start-up  (Windows function designed for HDD and not SSD)</source>
<translation>Deshabilitar el inicio rápido  (función de Windows para HDD, no para SSD)</translation>
</message>
<message>
<source>Disable files history (even in explorer)</source>
<translation>Deshabilitar el historial de archivos (también en el Explorador)</translation>
</message>
<message>
<source>Disable game recording and broadcasting</source>
<translation>Deshabilitar la grabación y difusión de juegos</translation>
</message>
<message>
<source>Disable Gamebar</source>
<translation>Deshabilitar Game Bar</translation>
</message>
<message>
<source>Disable hibernation mode</source>
<translation>Deshabilitar la hibernación</translation>
</message>
<message>
<source>Disable hibernation mode  (gain %1 GB of storage space)</source>
<translation>Deshabilitar la hibernación  (libera %1 GB de espacio de almacenamiento)</translation>
</message>
<message>
<source>Disable HPET  (High Precision Event Timer)
(use invariant TSC instead which may be faster for gaming)
(important: do not disable HPET in BIOS settings)</source>
<translation>Deshabilitar HPET  (High Precision Event Timer)
(usa el TSC invariante, que puede ser más rápido para los juegos)
(importante: no deshabilite HPET en la configuración del BIOS)</translation>
</message>
<message>
<source>Disable last access time stamps  (NTFS drive only)</source>
<translation>Deshabilitar la marca de hora del último acceso  (solo unidades NTFS)</translation>
</message>
<message>
<source>Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)</source>
<translation>Deshabilitar LockApp.exe  (información adicional en la pantalla de bloqueo)</translation>
</message>
<message>
<source>Disable Multiplane Overlay (MPO)
(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,
especially for video playback apps)</source>
<translation>Deshabilitar Multiplane Overlay (MPO)
(puede corregir parpadeos o tirones, PERO se pierden algunas optimizaciones
de pantalla completa, sobre todo en aplicaciones de vídeo)</translation>
</message>
<message>
<source>Disable Nagle’s Algorithm
(may improve the real-time responsiveness of your network connection, but may increase traffic)</source>
<translation>Deshabilitar el algoritmo de Nagle
(puede mejorar la respuesta de la conexión de red, pero aumentar el tráfico)</translation>
</message>
<message>
<source>Disable periodic registry backup</source>
<translation>Deshabilitar la copia de seguridad periódica del Registro</translation>
</message>
<message>
<source>Disable Prefetcher  (prevents preloading of applications)</source>
<translation>Deshabilitar Prefetcher  (impide la precarga de aplicaciones)</translation>
</message>
<message>
<source>Disable programs</source>
<translation>Deshabilitar programas</translation>
</message>
<message>
<source>Disable scheduled tasks</source>
<translation>Deshabilitar tareas programadas</translation>
</message>
<message>
<source>Disable scheduled tasks completed successfully</source>
<translation>Deshabilitación de las tareas programadas completada correctamente</translation>
</message>
<message>
<source>Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)</source>
<translation>Deshabilitar SearchHost.exe  (busca archivos; la búsqueda avanzada puede fallar)</translation>
</message>
<message>
<source>Disable services</source>
<translation>Deshabilitar servicios</translation>
</message>
<message>
<source>Disable SvcHost splitting  (reduce the number of svchost.exe process)</source>
<translation>Deshabilitar la división de SvcHost  (reduce el número de procesos svchost.exe)</translation>
</message>
<message>
<source>Disable telemetry (data collection for Microsoft)
(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)</source>
<translation>Deshabilitar la telemetría (recopilación de datos para Microsoft)
(El resto se deshabilita en Servicios, Tareas programadas u Optimizador)</translation>
</message>
<message>
<source>Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Deshabilitar ULPS  (Ultra Low Power State, solo para gráficas AMD)
(función de ahorro, optimización no recomendada para portátiles)</translation>
</message>
<message>
<source>Disable Windows write-cache buffer flushing</source>
<translation>Deshabilitar el vaciado del búfer de caché de escritura de Windows</translation>
</message>
<message>
<source>Disabled</source>
<translation>Deshabilitado</translation>
</message>
<message>
<source>disabled</source>
<translation>deshabilitado</translation>
</message>
<message>
<source>disabled:</source>
<translation>deshabilitados:</translation>
</message>
<message>
<source>disabled:</source>
<comment>tasks</comment>
<translation>deshabilitadas:</translation>
</message>
<message>
<source>DISK</source>
<translation>DISCO</translation>
</message>
<message>
<source>Display name</source>
<translation>Nombre para mostrar</translation>
</message>
<message>
<source>display threads and handles count</source>
<translation>mostrar subprocesos e identificadores</translation>
</message>
<message>
<source>Do you want to restore start mode option of all services?<byte value="xd"/>
<byte value="xd"/>
If you click No (recommended),<byte value="xd"/>
then restore only the services you have disabled</source>
<translation>¿Desea restaurar el tipo de inicio de todos los servicios?<byte value="xd"/>
<byte value="xd"/>
Si hace clic en No (recomendado),<byte value="xd"/>
solo se restaurarán los servicios que usted deshabilitó</translation>
</message>
<message>
<source>Do you want to start this app with Admin rights?</source>
<translation>¿Desea reiniciar esta aplicación como administrador?</translation>
</message>
<message>
<source>done</source>
<translation>listo</translation>
</message>
<message>
<source>Enable Auto HDR  (forces HDR mode on SDR content)</source>
<translation>Habilitar Auto HDR  (fuerza el modo HDR en contenido SDR)</translation>
</message>
<message>
<source>Enable checked programs</source>
<translation>Habilitar los programas marcados</translation>
</message>
<message>
<source>ENABLE checked services</source>
<translation>HABILITAR los servicios marcados</translation>
</message>
<message>
<source>Enable checked services finished</source>
<translation>Habilitación de los servicios marcados completada</translation>
</message>
<message>
<source>Enable game mode  (enabled by default)</source>
<translation>Habilitar el modo de juego  (habilitado de forma predeterminada)</translation>
</message>
<message>
<source>Enable programs</source>
<translation>Habilitar programas</translation>
</message>
<message>
<source>Enable services</source>
<translation>Habilitar servicios</translation>
</message>
<message>
<source>Enable the context menu like Windows 10  (all entries in the context menu are displayed)</source>
<translation>Habilitar el menú contextual de Windows 10  (se muestran todas sus entradas)</translation>
</message>
<message>
<source>enabled</source>
<translation>habilitado</translation>
</message>
<message>
<source>enabled:</source>
<translation>habilitadas:</translation>
</message>
<message>
<source>English</source>
<translation>English</translation>
</message>
<message>
<source>error</source>
<translation>error</translation>
</message>
<message>
<source>Features</source>
<translation>Funciones</translation>
</message>
<message>
<source>Features applied successfully. Restart your PC!</source>
<translation>Funciones aplicadas correctamente. ¡Reinicie el PC!</translation>
</message>
<message>
<source>Features: %1 improvements can be applied</source>
<translation>Funciones: se pueden aplicar %1 mejoras</translation>
</message>
<message>
<source>Features: applied successfully. Restart your PC!</source>
<translation>Funciones: aplicadas correctamente. ¡Reinicie el PC!</translation>
</message>
<message>
<source>Features: applies Gaming optimizations</source>
<translation>Funciones: aplicando optimizaciones de juegos</translation>
</message>
<message>
<source>Features: applies SSD optimizations</source>
<translation>Funciones: aplicando optimizaciones de SSD</translation>
</message>
<message>
<source>Features: applies Windows optimizations</source>
<translation>Funciones: aplicando optimizaciones de Windows</translation>
</message>
<message>
<source>Features: Battery detected! Some optimizations will not be applied to maintain battery life</source>
<translation>Funciones: ¡batería detectada! Algunas optimizaciones no se aplicarán para conservar la autonomía</translation>
</message>
<message>
<source>Features: reset Gaming optimizations</source>
<translation>Funciones: restableciendo optimizaciones de juegos</translation>
</message>
<message>
<source>Features: reset SSD optimizations</source>
<translation>Funciones: restableciendo optimizaciones de SSD</translation>
</message>
<message>
<source>Features: reset Windows optimizations</source>
<translation>Funciones: restableciendo optimizaciones de Windows</translation>
</message>
<message>
<source>File %1</source>
<translation>Archivo %1</translation>
</message>
<message>
<source>Files sharing</source>
<translation>Uso compartido de archivos</translation>
</message>
<message>
<source>finished</source>
<translation>completado</translation>
</message>
<message>
<source>Folder for the files of the way back</source>
<translation>Carpeta para los archivos de la vuelta atrás</translation>
</message>
<message>
<source>Français</source>
<translation>Français</translation>
</message>
<message>
<source>free memory</source>
<translation>memoria libre</translation>
</message>
<message>
<source>free on</source>
<translation>libre en</translation>
</message>
<message>
<source>GAMING</source>
<translation>JUEGOS</translation>
</message>
<message>
<source>Get system info:</source>
<translation>Obtener información del sistema:</translation>
</message>
<message>
<source>Get WinSxS folder size in features page</source>
<translation>Obtener el tamaño de la carpeta WinSxS en la página Funciones</translation>
</message>
<message>
<source>GPU</source>
<translation>GPU</translation>
</message>
<message>
<source>Grayed out services are considered necessary or critical</source>
<translation>Los servicios atenuados se consideran necesarios o críticos</translation>
</message>
<message>
<source>Grayed out services refer to those disabled outside this tab</source>
<translation>Los servicios atenuados se deshabilitaron fuera de esta pestaña</translation>
</message>
<message>
<source>handles</source>
<translation>identificadores</translation>
</message>
<message>
<source>Hibernation</source>
<translation>Hibernación</translation>
</message>
<message>
<source>If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this</source>
<translation>Si no tiene auriculares ni equipos de audio conectados por Bluetooth, puede desmarcar esta opción</translation>
</message>
<message>
<source>If you don't have any printers, you can uncheck this</source>
<translation>Si no tiene ninguna impresora, puede desmarcar esta opción</translation>
</message>
<message>
<source>Increase maximum amount of physical memory that can be locked for I/O operations</source>
<translation>Aumentar la memoria física máxima que puede bloquearse para operaciones de E/S</translation>
</message>
<message>
<source>Install</source>
<translation>Instalar</translation>
</message>
<message>
<source>Install packages</source>
<translation>Instalar paquetes</translation>
</message>
<message>
<source>installed</source>
<translation>instalado</translation>
</message>
<message>
<source>Intelligent personal assistant</source>
<translation>Asistente personal inteligente</translation>
</message>
<message>
<source>Interface language:</source>
<translation>Idioma de interfaz:</translation>
</message>
<message>
<source>Interface type:</source>
<translation>Tipo de interfaz:</translation>
</message>
<message>
<source>Internal system features that can slow down your PC unnecessarily.
Check them to optimize or uncheck them to restore defaults.</source>
<translation>Funciones internas del sistema que pueden ralentizar el PC innecesariamente.
Márquelas para optimizar o desmárquelas para restaurar los valores predeterminados.</translation>
</message>
<message>
<source>interval in seconds:</source>
<translation>intervalo en segundos:</translation>
</message>
<message>
<source>it didn't come back</source>
<translation>no se pudo recuperar</translation>
</message>
<message>
<source>Keep features</source>
<translation>Funciones a conservar</translation>
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
<translation>Claro</translation>
</message>
<message>
<source>List of currently started services.
Services are programs that run in the background for various reasons and purposes. Some of them are essential, while others may be superfluous and consume CPU, memory and disk resources unnecessarily.</source>
<translation>Lista de los servicios iniciados actualmente.
Los servicios son programas que se ejecutan en segundo plano por diversos motivos. Algunos son esenciales y otros pueden ser superfluos y consumir CPU, memoria y disco innecesariamente.</translation>
</message>
<message>
<source>List of enabled scheduled tasks.
Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily.</source>
<translation>Lista de las tareas programadas habilitadas.
Las tareas programadas son programas que se ejecutan en segundo plano en un momento concreto (o evento) por diversos motivos. Algunas pueden ser innecesarias y consumir CPU, memoria y disco sin necesidad.</translation>
</message>
<message>
<source>List of programs started automatically each time Windows starts.
Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you don't use on every startup.</source>
<translation>Lista de programas que se inician automáticamente cada vez que se inicia Windows.
Como los servicios y las tareas programadas, pueden ralentizar el sistema. Desmarque los que no use en cada inicio.</translation>
</message>
<message>
<source>List of Windows packages can be uninstalled without problems.
You can reinstall them directly by clicking on &quot;View uninstalled packages&quot; below the list.</source>
<translation>Lista de paquetes de Windows que pueden desinstalarse sin problemas.
Puede volver a instalarlos directamente haciendo clic en «Ver paquetes desinstalados» debajo de la lista.</translation>
</message>
<message>
<source>Load system info:</source>
<translation>Cargar información del sistema:</translation>
</message>
<message>
<source>loading disk info...</source>
<translation>cargando datos del disco...</translation>
</message>
<message>
<source>loading screen info...</source>
<translation>cargando datos de la pantalla...</translation>
</message>
<message>
<source>Looking around</source>
<translation>Consulta</translation>
</message>
<message>
<source>Mail &amp; Calendar</source>
<translation>Correo y Calendario</translation>
</message>
<message>
<source>Manage features  (included in the page &quot;Features&quot;)</source>
<translation>Administrar funciones  (incluido en la página «Funciones»)</translation>
</message>
<message>
<source>Manage programs and packages  (included in the page &quot;Programs&quot;)</source>
<translation>Administrar programas y paquetes  (incluido en la página «Programas»)</translation>
</message>
<message>
<source>Manual</source>
<translation>Manual</translation>
</message>
<message>
<source>manual</source>
<translation>manual</translation>
</message>
<message>
<source>Manual start</source>
<translation>Inicio manual</translation>
</message>
<message>
<source>Media extensions for Edge and Windows Media Player</source>
<translation>Extensiones multimedia para Edge y Windows Media Player</translation>
</message>
<message>
<source>MEM</source>
<translation>MEM</translation>
</message>
<message>
<source>Microsoft Codecs extensions</source>
<translation>Códecs de Microsoft</translation>
</message>
<message>
<source>Microsoft codecs for video encoding/decoding. If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box</source>
<translation>Códecs de Microsoft para codificar y descodificar vídeo. Si no usa las funciones internas de Windows para transmitir, codificar o reproducir vídeos, desmarque esta casilla</translation>
</message>
<message>
<source>Microsoft video editor</source>
<translation>Editor de vídeo de Microsoft</translation>
</message>
<message>
<source>Mobile device synchronization</source>
<translation>Sincronización de dispositivos móviles</translation>
</message>
<message>
<source>Monitor and display some system information in the title bar</source>
<translation>Supervisar y mostrar información del sistema en la barra de título</translation>
</message>
<message>
<source>MotherBoard</source>
<translation>Placa base</translation>
</message>
<message>
<source>Name</source>
<translation>Nombre</translation>
</message>
<message>
<source>Name:</source>
<translation>Nombre:</translation>
</message>
<message>
<source>Need reboot!</source>
<translation>¡Es necesario reiniciar!</translation>
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
<translation>Aún no se ha anotado ningún cambio en este PC.</translation>
</message>
<message>
<source>no description</source>
<translation>sin descripción</translation>
</message>
<message>
<source>No optimizations found!</source>
<translation>¡No se encontraron optimizaciones!</translation>
</message>
<message>
<source>not possible</source>
<translation>no es posible</translation>
</message>
<message>
<source>Now</source>
<translation>Ahora</translation>
</message>
<message>
<source>off</source>
<translation>deshabilitado</translation>
</message>
<message>
<source>Old Xbox App, no longer supported!</source>
<translation>¡Antigua aplicación Xbox, ya sin soporte!</translation>
</message>
<message>
<source>on</source>
<translation>habilitado</translation>
</message>
<message>
<source>on drive</source>
<translation>en la unidad</translation>
</message>
<message>
<source>Optimization finished</source>
<translation>Optimización completada</translation>
</message>
<message>
<source>Optimize</source>
<translation>Optimizar</translation>
</message>
<message>
<source>Optimizer</source>
<translation>Optimizador</translation>
</message>
<message>
<source>Options</source>
<translation>Opciones</translation>
</message>
<message>
<source>Other protocol dedicated to local network (eg: some video players use it to connect to network hard drives)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Otro protocolo dedicado a la red local (p. ej., algunos reproductores de vídeo lo usan para conectarse a discos duros de red)<byte value="xd"/>
(de forma predeterminada no se usa, pero está habilitado)</translation>
</message>
<message>
<source>Otherwise some scheduled tasks will not be detected!</source>
<translation>De lo contrario, algunas tareas programadas no se detectarán.</translation>
</message>
<message>
<source>Owner and rights of %1</source>
<translation>Propietario y permisos de %1</translation>
</message>
<message>
<source>Package %1</source>
<translation>Paquete %1</translation>
</message>
<message>
<source>package: </source>
<translation>paquete: </translation>
</message>
<message>
<source>Package: can be installed: </source>
<translation>Paquete: se puede instalar: </translation>
</message>
<message>
<source>Package: can be uninstalled: </source>
<translation>Paquete: se puede desinstalar: </translation>
</message>
<message>
<source>Packages</source>
<translation>Paquetes</translation>
</message>
<message>
<source>packages finished</source>
<translation>paquetes completados</translation>
</message>
<message>
<source>Packages installed:</source>
<translation>Paquetes instalados:</translation>
</message>
<message>
<source>Packages uninstalled:</source>
<translation>Paquetes desinstalados:</translation>
</message>
<message>
<source>Packages:</source>
<translation>Paquetes:</translation>
</message>
<message>
<source>Path</source>
<translation>Ruta</translation>
</message>
<message>
<source>Phone link</source>
<translation>Enlace Móvil</translation>
</message>
<message>
<source>Place of the file %1</source>
<translation>Lugar del archivo %1</translation>
</message>
<message>
<source>Printer</source>
<translation>Impresora</translation>
</message>
<message>
<source>Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</source>
<translation>Dar prioridad a los juegos  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</translation>
</message>
<message>
<source>Process: can be disable: %1 from Riva Tuner Statistic Server app!<byte value="xd"/>
This process only allows screen video capture.Does not affect the monitoring display in any way</source>
<translation>Proceso: se puede deshabilitar: ¡%1 de la aplicación Riva Tuner Statistic Server!<byte value="xd"/>
Este proceso solo permite capturar vídeo de la pantalla. No afecta en absoluto a la visualización de la supervisión</translation>
</message>
<message>
<source>Process: disable EncoderServer done</source>
<translation>Proceso: EncoderServer deshabilitado</translation>
</message>
<message>
<source>processes</source>
<translation>procesos</translation>
</message>
<message>
<source>Program started at logon: %1</source>
<translation>Programa al iniciar sesión: %1</translation>
</message>
<message>
<source>Programs</source>
<translation>Programas</translation>
</message>
<message>
<source>Programs started automatically</source>
<translation>Programas iniciados automáticamente</translation>
</message>
<message>
<source>Proxy and VPN</source>
<translation>Proxy y VPN</translation>
</message>
<message>
<source>Proxy or VPN functionality to improve the security of your network traffic<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Función de proxy o VPN para mejorar la seguridad del tráfico de red<byte value="xd"/>
(de forma predeterminada no se usa, pero está habilitada)</translation>
</message>
<message>
<source>Quick setup of some bluetooth headsets<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Configuración rápida de algunos auriculares Bluetooth<byte value="xd"/>
(de forma predeterminada no se usa, pero está habilitada)</translation>
</message>
<message>
<source>Reading what has become of it…</source>
<translation>Leyendo el estado actual…</translation>
</message>
<message>
<source>Reduces certain delays
(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)</source>
<translation>Reducir ciertos retrasos
(aparición de menús, cierre de aplicaciones y servicios, aplicaciones bloqueadas)</translation>
</message>
<message>
<source>Refresh</source>
<translation>Actualizar</translation>
</message>
<message>
<source>Registry key %1</source>
<translation>Clave del registro %1</translation>
</message>
<message>
<source>Registry value %1</source>
<translation>Valor del registro %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1</source>
<translation>Quitando el atributo de indexación de %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1 finished</source>
<translation>Atributo de indexación de %1 quitado</translation>
</message>
<message>
<source>Remove indexing attribute of Windows partition %1</source>
<translation>Quitando el atributo de indexación de la partición de Windows %1</translation>
</message>
<message>
<source>Remove the indexed attribute from all files in the Windows partition
(this operation may take some time)</source>
<translation>Quitar el atributo de indexación de todos los archivos de la partición de Windows
(esta operación puede tardar)</translation>
</message>
<message>
<source>Restoration finished</source>
<translation>Restauración completada</translation>
</message>
<message>
<source>Restoration finished: Restart your PC!</source>
<translation>Restauración completada: ¡reinicie el PC!</translation>
</message>
<message>
<source>Restore</source>
<translation>Restaurar</translation>
</message>
<message>
<source>RESTORE disabled scheduled tasks</source>
<translation>RESTAURAR las tareas programadas deshabilitadas</translation>
</message>
<message>
<source>RESTORE disabled services</source>
<translation>RESTAURAR los servicios deshabilitados</translation>
</message>
<message>
<source>Restore scheduled tasks completed successfully</source>
<translation>Restauración de las tareas programadas completada correctamente</translation>
</message>
<message>
<source>Restore services finished</source>
<translation>Restauración de los servicios completada</translation>
</message>
<message>
<source>Restoring scheduled tasks</source>
<translation>Restauración de tareas programadas</translation>
</message>
<message>
<source>running</source>
<translation>en ejecución</translation>
</message>
<message>
<source>S&amp;earch:</source>
<translation>&amp;Buscar:</translation>
</message>
<message>
<source>Sa&amp;ve as files…</source>
<translation>&amp;Guardar como archivos…</translation>
</message>
<message>
<source>Scheduled task %1</source>
<translation>Tarea programada %1</translation>
</message>
<message>
<source>Scheduled tasks</source>
<translation>Tareas programadas</translation>
</message>
<message>
<source>Screenshot tool</source>
<translation>Herramienta de recortes</translation>
</message>
<message>
<source>Service %1: delayed start</source>
<translation>Servicio %1: inicio retrasado</translation>
</message>
<message>
<source>Service %1: run state</source>
<translation>Servicio %1: ejecución</translation>
</message>
<message>
<source>Service %1: start mode</source>
<translation>Servicio %1: tipo de inicio</translation>
</message>
<message>
<source>Service: can be disable: </source>
<translation>Servicio: se puede deshabilitar: </translation>
</message>
<message>
<source>Service: can be enable: </source>
<translation>Servicio: se puede habilitar: </translation>
</message>
<message>
<source>Service: can be set to manual:</source>
<translation>Servicio: se puede poner en manual:</translation>
</message>
<message>
<source>Service: disable %1</source>
<translation>Servicio: deshabilitar %1</translation>
</message>
<message>
<source>Service: disable and stop %1</source>
<translation>Servicio: deshabilitar y detener %1</translation>
</message>
<message>
<source>Service: enable %1</source>
<translation>Servicio: habilitar %1</translation>
</message>
<message>
<source>Service: enable %1 done</source>
<translation>Servicio: %1 habilitado</translation>
</message>
<message>
<source>Service: enable and start %1</source>
<translation>Servicio: habilitar e iniciar %1</translation>
</message>
<message>
<source>Service: enable and start %1 done</source>
<translation>Servicio: %1 habilitado e iniciado</translation>
</message>
<message>
<source>Service: enable and start %1, already running!</source>
<translation>Servicio: habilitar e iniciar %1, ¡ya está en ejecución!</translation>
</message>
<message>
<source>Service: set to manual:</source>
<translation>Servicio: puesto en manual:</translation>
</message>
<message>
<source>Services</source>
<translation>Servicios</translation>
</message>
<message>
<source>Services  (Experienced users)</source>
<translation>Servicios  (usuarios avanzados)</translation>
</message>
<message>
<source>Services:</source>
<translation>Servicios:</translation>
</message>
<message>
<source>Sessions</source>
<translation>Sesiones</translation>
</message>
<message>
<source>Set the maximum number of GPU pre-rendered frames to 1
(if you have a good CPU, this reduces latency)</source>
<translation>Establecer en 1 el número máximo de fotogramas prerrenderizados por la GPU
(con una buena CPU, esto reduce la latencia)</translation>
</message>
<message>
<source>something else has changed it since</source>
<translation>otra cosa lo ha cambiado desde entonces</translation>
</message>
<message>
<source>SSD</source>
<translation>SSD</translation>
</message>
<message>
<source>Start mode</source>
<translation>Inicio</translation>
</message>
<message>
<source>Start of services</source>
<translation>Inicio de servicios</translation>
</message>
<message>
<source>Start service:</source>
<translation>Iniciar servicio:</translation>
</message>
<message>
<source>Start with adminstrator rights</source>
<translation>Iniciar con derechos de administrador</translation>
</message>
<message>
<source>started:</source>
<translation>iniciados:</translation>
</message>
<message>
<source>State</source>
<translation>Estado</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size finished!</source>
<translation>Estado: ¡tamaño de la carpeta WinSxS obtenido!</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size...</source>
<translation>Estado: obteniendo el tamaño de la carpeta WinSxS...</translation>
</message>
<message>
<source>Stop service:</source>
<translation>Detener servicio:</translation>
</message>
<message>
<source>stopped</source>
<translation>detenido</translation>
</message>
<message>
<source>stopped:</source>
<translation>detenidos:</translation>
</message>
<message>
<source>System</source>
<translation>Sistema</translation>
</message>
<message>
<source>System
Information</source>
<translation>Información
del sistema</translation>
</message>
<message>
<source>System Information</source>
<translation>Información del sistema</translation>
</message>
<message>
<source>Take back</source>
<translation>Deshacer</translation>
</message>
<message>
<source>Taking back…</source>
<translation>Deshaciendo…</translation>
</message>
<message>
<source>Task:</source>
<translation>Tarea:</translation>
</message>
<message>
<source>Task: can be disable: </source>
<translation>Tarea: se puede deshabilitar: </translation>
</message>
<message>
<source>Task: can be enable: </source>
<translation>Tarea: se puede habilitar: </translation>
</message>
<message>
<source>Task: disable and stop %1</source>
<translation>Tarea: deshabilitar y detener %1</translation>
</message>
<message>
<source>Task: Enable and start %1 done</source>
<translation>Tarea: %1 habilitada e iniciada</translation>
</message>
<message>
<source>Tasks</source>
<translation>Tareas</translation>
</message>
<message>
<source>Tasks:</source>
<translation>Tareas:</translation>
</message>
<message>
<source>the file is at neither place</source>
<translation>el archivo no está en ninguno de los dos sitios</translation>
</message>
<message>
<source>The files can't bring back:</source>
<translation>Los archivos no pueden recuperar:</translation>
</message>
<message>
<source>The way back needs Admin rights: only what was changed with them is noted.</source>
<translation>La vuelta atrás requiere derechos de administrador: solo se anota lo que se cambió con ellos.</translation>
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
<translation>subprocesos</translation>
</message>
<message>
<source>Tweaks</source>
<translation>Ajustes</translation>
</message>
<message>
<source>Uncheck all</source>
<translation>Desmarcar todo</translation>
</message>
<message>
<source>under way</source>
<translation>en curso</translation>
</message>
<message>
<source>Uninstall</source>
<translation>Desinstalar</translation>
</message>
<message>
<source>Uninstall packages</source>
<translation>Desinstalar paquetes</translation>
</message>
<message>
<source>uninstalled:</source>
<translation>desinstalados:</translation>
</message>
<message>
<source>unknown</source>
<translation>desconocido</translation>
</message>
<message>
<source>UPnP network services</source>
<translation>Servicios de red UPnP</translation>
</message>
<message>
<source>View auto started programs</source>
<translation>Ver programas de inicio</translation>
</message>
<message>
<source>View disabled services</source>
<translation>Ver servicios deshabilitados</translation>
</message>
<message>
<source>View installed packages</source>
<translation>Ver paquetes instalados</translation>
</message>
<message>
<source>View programs disabled</source>
<translation>Ver programas deshabilitados</translation>
</message>
<message>
<source>View started services</source>
<translation>Ver servicios iniciados</translation>
</message>
<message>
<source>View uninstalled packages</source>
<translation>Ver paquetes desinstalados</translation>
</message>
<message>
<source>Way back</source>
<translation>Vuelta atrás</translation>
</message>
<message>
<source>Way back…</source>
<translation>Vuelta atrás…</translation>
</message>
<message>
<source>What</source>
<translation>Qué</translation>
</message>
<message>
<source>What was changed on this PC isn't noted, so there is no way back by notes.</source>
<translation>Los cambios en este PC no se anotan, así que no hay vuelta atrás.</translation>
</message>
<message>
<source>When</source>
<translation>Cuándo</translation>
</message>
<message>
<source>Widget app</source>
<translation>Aplicación de widgets</translation>
</message>
<message>
<source>Win32PrioritySeparation:   Processor time allocated to applications.</source>
<translation>Win32PrioritySeparation:   tiempo de procesador asignado a las aplicaciones.</translation>
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
<translation>Aplicación de Windows: ERROR al instalar %1: </translation>
</message>
<message>
<source>Windows application: ERROR uninstall %1: </source>
<translation>Aplicación de Windows: ERROR al desinstalar %1: </translation>
</message>
<message>
<source>Windows application: install %1 done</source>
<translation>Aplicación de Windows: instalación de %1 lista</translation>
</message>
<message>
<source>Windows application: uninstall %1 done</source>
<translation>Aplicación de Windows: desinstalación de %1 lista</translation>
</message>
<message>
<source>Windows applications</source>
<translation>Aplicaciones de Windows</translation>
</message>
<message>
<source>Windows packages installed</source>
<translation>Paquetes de Windows instalados</translation>
</message>
<message>
<source>Windows sharing functionality on a local network (SMB protocol) (eg: connect hard drives, printers on a local network)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Uso compartido de Windows en una red local (protocolo SMB) (p. ej., conectar discos duros o impresoras en una red local)<byte value="xd"/>
(de forma predeterminada no se usa, pero está habilitado)</translation>
</message>
<message>
<source>With all &amp;later changes</source>
<translation>Con todos los cambios &amp;posteriores</translation>
</message>
<message>
<source>Would you like to apply option for set indexing attributes of all files in Windows partition?</source>
<translation>¿Desea deshabilitar la indexación del contenido de todos los archivos de la partición de Windows? Puede tardar mucho.</translation>
</message>
<message>
<source>Would you like to apply option to set indexing attributes of all files in Windows partition?</source>
<translation>¿Desea aplicar ahora este ajuste de indexación a todos los archivos de la partición de Windows? Puede tardar mucho.</translation>
</message>
<message>
<source>Written: %1</source>
<translation>Escrito: %1</translation>
</message>
<message>
<source>Xbox App</source>
<translation>Aplicación Xbox</translation>
</message>
<message>
<source>Xbox game bar</source>
<translation>Xbox Game Bar</translation>
</message>
<message>
<source>XBOX Game Bar that appears at the top of the screen, above a game. If you don't use it, uncheck this box</source>
<translation>Xbox Game Bar, que aparece en la parte superior de la pantalla, sobre el juego. Si no la usa, desmarque esta casilla</translation>
</message>
<message>
<source>Yes</source>
<translation>Sí</translation>
</message>
<message>
<source>You must launch this app with Admin rights!</source>
<translation>¡Debe ejecutar esta aplicación como administrador!</translation>
</message>
<message>
<source>You should launch this app with Admin rights!</source>
<translation>¡Debería ejecutar esta aplicación como administrador!</translation>
</message>
<message>
<source>No known effect on today's Windows: write caching is set for each drive elsewhere.</source>
<translation>Sin efecto conocido en el Windows actual: la caché de escritura se configura en otro lugar para cada unidad.</translation>
</message>
<message>
<source>No known effect: Windows doesn't read this value.</source>
<translation>Sin efecto conocido: Windows no lee este valor.</translation>
</message>
<message>
<source>Saves small writes: Windows no longer records when a file was last read. Needs a restart.</source>
<translation>Ahorra pequeñas escrituras: Windows ya no anota cuándo se leyó un archivo por última vez. Requiere reiniciar.</translation>
</message>
<message>
<source>Windows no longer preloads programs: they start more slowly at first, and an SSD gains nothing. Needs a restart.</source>
<translation>Windows ya no precarga programas: al principio se inician más despacio y un SSD no gana nada. Requiere reiniciar.</translation>
</message>
<message>
<source>Windows' default: nothing changes. Taking it back clears the page file at each shutdown, which takes minutes.</source>
<translation>Valor predeterminado de Windows: nada cambia. Al revertirlo, el archivo de paginación se borra en cada apagado, lo que tarda minutos.</translation>
</message>
<message>
<source>Each start is a full one: it takes a little longer, and drivers start afresh.</source>
<translation>Cada inicio es completo: tarda algo más y los controladores empiezan de nuevo.</translation>
</message>
<message>
<source>Frees the space of hiberfil.sys. The PC can't hibernate any more, and fast startup goes too.</source>
<translation>Libera el espacio de hiberfil.sys. El PC ya no puede hibernar y se pierde el inicio rápido.</translation>
</message>
<message>
<source>Takes all files out of the content index: search gets slower and finds less.</source>
<translation>Quita todos los archivos del índice de contenido: la búsqueda es más lenta y encuentra menos.</translation>
</message>
<message>
<source>No known effect since Windows XP.</source>
<translation>Sin efecto conocido desde Windows XP.</translation>
</message>
<message>
<source>Small effect: only for games that register with Windows' multimedia scheduler.</source>
<translation>Efecto pequeño: solo para juegos que se registran en el planificador multimedia de Windows.</translation>
</message>
<message>
<source>No known effect: Windows reads this setting elsewhere.</source>
<translation>Sin efecto conocido: Windows lee este ajuste en otro lugar.</translation>
</message>
<message>
<source>Windows' default: game mode is on already. Taking it back switches it off.</source>
<translation>Valor predeterminado: el modo de juego ya está habilitado. Al revertirlo se deshabilita.</translation>
</message>
<message>
<source>Windows no longer records or broadcasts games. Settings shows this as managed by your organization.</source>
<translation>Windows ya no graba ni transmite juegos. Configuración lo muestra como administrado por la organización.</translation>
</message>
<message>
<source>Windows 11: the default already, and taking it back forces the slower platform timer. Windows 10: no known effect.</source>
<translation>Windows 11: ya es lo predeterminado, y revertirlo fuerza el temporizador de plataforma, más lento. Windows 10: sin efecto conocido.</translation>
</message>
<message>
<source>Partly effective: the Game Bar's tips and the Xbox button are off, but Win+G still opens it.</source>
<translation>Efecto parcial: se deshabilitan los consejos de la Game Bar y el botón Xbox, pero Win+G aún la abre.</translation>
</message>
<message>
<source>Windows 11: the system timer never pauses, which costs power; needs a restart. Windows 10: nothing changes.</source>
<translation>Windows 11: el temporizador del sistema nunca se detiene, lo que gasta energía; requiere reiniciar. Windows 10: nada cambia.</translation>
</message>
<message>
<source>Shows games without HDR in HDR. Resets other graphics settings such as variable refresh rate.</source>
<translation>Muestra en HDR los juegos sin HDR. Restablece otros ajustes gráficos, como la frecuencia de actualización variable.</translation>
</message>
<message>
<source>The pointer moves evenly with the mouse. Takes effect at the next sign-in.</source>
<translation>El puntero sigue al ratón de forma uniforme. Efecto en el próximo inicio de sesión.</translation>
</message>
<message>
<source>Partly effective: packets are acknowledged at once, not on connections with a fixed address. Needs a restart.</source>
<translation>Efecto parcial: los paquetes se confirman al instante, salvo con dirección fija. Requiere reiniciar.</translation>
</message>
<message>
<source>38 is what Windows does by default; other choices change it. Taking it back deletes the value.</source>
<translation>38 es lo que Windows hace de forma predeterminada; los demás valores lo cambian. Revertirlo borra el valor.</translation>
</message>
<message>
<source>No known effect: neither Direct3D nor drivers read this value today.</source>
<translation>Sin efecto conocido: ni Direct3D ni los controladores leen hoy este valor.</translation>
</message>
<message>
<source>May fix flickering and stutter; some videos may run worse. Said to have no effect since Windows 11 24H2. Needs a restart.</source>
<translation>Puede corregir parpadeos y tirones; algunos vídeos irán peor. Se dice que no tiene efecto desde Windows 11 24H2. Requiere reiniciar.</translation>
</message>
<message>
<source>Of use with several AMD graphics cards only; its effect is uncertain. Needs a restart.</source>
<translation>Útil solo con varias tarjetas AMD; su efecto es incierto. Requiere reiniciar.</translation>
</message>
<message>
<source>Fewer svchost.exe processes, but services are less isolated from each other. Needs a restart.</source>
<translation>Menos procesos svchost.exe, pero servicios menos aislados entre sí. Requiere reiniciar.</translation>
</message>
<message>
<source>Windows' default since version 1803: nothing changes. Taking it back switches the backup on.</source>
<translation>Valor predeterminado desde la versión 1803: nada cambia. Revertirlo habilita la copia.</translation>
</message>
<message>
<source>Hides the button for advanced options only; indexing goes on.</source>
<translation>Solo oculta el botón de opciones avanzadas; la indexación continúa.</translation>
</message>
<message>
<source>File History keeps no older versions of files any more. Recent files are still listed.</source>
<translation>El historial de archivos ya no guarda versiones antiguas. Los archivos recientes se siguen mostrando.</translation>
</message>
<message>
<source>A right-click shows all entries, once Explorer has been restarted. Taking it back leaves the old menu.</source>
<translation>El clic derecho muestra todas las opciones, tras reiniciar el Explorador. Al revertirlo queda el menú antiguo.</translation>
</message>
<message>
<source>Updates are no longer exchanged with other PCs.</source>
<translation>Las actualizaciones ya no se intercambian con otros PC.</translation>
</message>
<message>
<source>Less data goes to Microsoft. Clipboard history (Win+V), location and error reports stop working too.</source>
<translation>Se envían menos datos a Microsoft. También dejan de funcionar el historial del portapapeles (Win+V), la ubicación y los informes de errores.</translation>
</message>
<message>
<source>Menus open faster. At sign-out programs may be closed with unsaved work. Takes effect at the next sign-in.</source>
<translation>Los menús se abren antes. Al cerrar sesión pueden cerrarse programas con trabajo sin guardar. Efecto en el próximo inicio de sesión.</translation>
</message>
<message>
<source>Windows 11: removes the whole lock screen; some editions ignore it. Windows 10: nothing changes.</source>
<translation>Windows 11: quita toda la pantalla de bloqueo; algunas ediciones lo ignoran. Windows 10: nada cambia.</translation>
</message>
<message>
<source>Search in Start and on the taskbar stops working. An update may bring it back while this box stays checked.</source>
<translation>La búsqueda de Inicio y de la barra de tareas deja de funcionar. Una actualización puede devolverla aunque esta casilla siga marcada.</translation>
</message>
<message>
<source>Partly effective: two tasks stay off, but the service comes back at the next sign-in.</source>
<translation>Efecto parcial: dos tareas quedan deshabilitadas, pero el servicio vuelve en el próximo inicio de sesión.</translation>
</message>
<message>
<source>none changed</source>
<translation>ninguno cambiado</translation>
</message>
<message>
<source>an empty key</source>
<translation>una clave vacía</translation>
</message>
<message>
<source>yes</source>
<translation>sí</translation>
</message>
<message>
<source>no</source>
<translation>no</translation>
</message>
<message>
<source>%1 values</source>
<translation>%1 valores</translation>
</message>
<message>
<source>%1 changed</source>
<translation>%1 cambiados</translation>
</message>
<message>
<source>%1 as before</source>
<translation>%1 como antes</translation>
</message>
<message>
<source>%1 otherwise</source>
<translation>%1 de otro modo</translation>
</message>
<message>
<source>%1 stay changed</source>
<translation>%1 siguen cambiados</translation>
</message>
<message>
<source>start mode</source>
<translation>tipo de inicio</translation>
</message>
<message>
<source>delayed start</source>
<translation>inicio retrasado</translation>
</message>
<message>
<source>state</source>
<translation>estado</translation>
</message>
<message>
<source>the key itself</source>
<translation>la propia clave</translation>
</message>
<message>
<source>the file</source>
<translation>el archivo</translation>
</message>
<message>
<source>its attributes</source>
<translation>sus atributos</translation>
</message>
<message>
<source>its owner and permissions</source>
<translation>su propietario y sus permisos</translation>
</message>
<message>
<source>in the boot configuration</source>
<translation>en la configuración de arranque</translation>
</message>
<message>
<source>Records of what was done</source>
<translation>Registros de lo que se hizo</translation>
</message>
<message>
<source>Log and backups beside the program</source>
<translation>Registro y copias junto al programa</translation>
</message>
<message>
<source>Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically.</source>
<translation>Restaurar inicia cada servicio que la optimización deshabilitó y lo pone en automático: un servicio que se iniciaba bajo demanda o con retraso se inicia ahora automáticamente.</translation>
</message>
<message>
<source>Optimize does not record services that it sets to manual, so Restore doesn't know of them.</source>
<translation>La optimización no anota los servicios que pone en manual, así que restaurar no los conoce.</translation>
</message>
<message>
<source>Restore enables only the tasks that Optimize has recorded.</source>
<translation>Restaurar solo habilita las tareas que la optimización anotó.</translation>
</message>
<message>
<source>Restore re-registers the app from its files, as Windows itself does for a new user.</source>
<translation>Restaurar vuelve a registrar la aplicación desde sus archivos, como hace Windows para un usuario nuevo.</translation>
</message>
<message>
<source>The app comes back as newly installed, without what it had stored.</source>
<translation>La aplicación vuelve como recién instalada, sin lo que había guardado.</translation>
</message>
<message>
<source>Restore re-registers an app from its files, which could not be found.</source>
<translation>Restaurar vuelve a registrar una aplicación desde sus archivos, y estos no se encontraron.</translation>
</message>
<message>
<source>The saved command is cut at its first "=", so the program starts without the rest of its arguments.</source>
<translation>El comando guardado se corta en el primer «=», así que el programa se inicia sin el resto de sus argumentos.</translation>
</message>
<message>
<source>Restore brings back only a command whose program is in quotation marks and exists on the disk.</source>
<translation>Restaurar solo recupera un comando cuyo programa está entre comillas y existe en el disco.</translation>
</message>
<message>
<source>Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it.</source>
<translation>Restaurar no sabe lo que tenía: escribe un valor fijo, casi siempre el predeterminado de Windows, o lo borra.</translation>
</message>
<message>
<source>Restore doesn't reset this option, or not all of its values.</source>
<translation>Restaurar no restablece esta opción, o no todos sus valores.</translation>
</message>
<message>
<source>The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway.</source>
<translation>La opción ya estaba como la quiere la optimización, o no forma parte de ella; restaurar la restablece de todos modos.</translation>
</message>
<message>
<source>Restore doesn't touch this file.</source>
<translation>Restaurar no toca este archivo.</translation>
</message>
<message>
<source>Restore doesn't touch this value.</source>
<translation>Restaurar no toca este valor.</translation>
</message>
<message>
<source>Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it stops there: what is changed by then stays changed.</source>
<translation>Cambia todo lo que encontró el análisis, lo que tarda un rato. Si cierra la ventana mientras tanto, se detiene ahí: lo ya cambiado queda cambiado.</translation>
</message>
<message>
<source>Acts on all checked packages at once, without asking. The list stays as it is until the page is shown again.</source>
<translation>Actúa de inmediato sobre todos los paquetes marcados, sin preguntar. La lista queda como está hasta que se vuelva a mostrar la página.</translation>
</message>
<message>
<source>Nothing changes either.</source>
<translation>Tampoco cambia nada.</translation>
</message>
<message>
<source>Last access times are recorded again, but Windows no longer decides about them by itself.</source>
<translation>Los últimos accesos se anotan de nuevo, pero Windows ya no lo decide por sí mismo.</translation>
</message>
<message>
<source>The default is back.</source>
<translation>Vuelve el valor predeterminado.</translation>
</message>
<message>
<source>The defaults are back.</source>
<translation>Vuelven los valores predeterminados.</translation>
</message>
<message>
<source>The page file is cleared at each shutdown, which isn't the default and takes minutes.</source>
<translation>El archivo de paginación se borra en cada apagado, lo que no es lo predeterminado y tarda minutos.</translation>
</message>
<message>
<source>Hibernation is on, even if it was off before, and takes its space again.</source>
<translation>La hibernación queda habilitada, aunque antes no lo estuviera, y vuelve a ocupar su espacio.</translation>
</message>
<message>
<source>The attribute is cleared, even where Windows or you had set it.</source>
<translation>El atributo se borra, incluso donde Windows o usted lo habían puesto.</translation>
</message>
<message>
<source>Some priorities stay higher than the default.</source>
<translation>Algunas prioridades siguen más altas que lo predeterminado.</translation>
</message>
<message>
<source>Game mode is off, and the default is on.</source>
<translation>El modo de juego queda deshabilitado, y lo predeterminado es habilitado.</translation>
</message>
<message>
<source>Recording is allowed; Settings still shows it as managed.</source>
<translation>Se permite grabar; Configuración lo sigue mostrando como administrado.</translation>
</message>
<message>
<source>On Windows 11 the platform timer is forced on, which may slow down games; the default is no entry at all.</source>
<translation>En Windows 11 se fuerza el temporizador de plataforma, lo que puede ralentizar los juegos; lo predeterminado es que no haya entrada.</translation>
</message>
<message>
<source>The same effect as the default.</source>
<translation>El mismo efecto que lo predeterminado.</translation>
</message>
<message>
<source>Auto HDR is off.</source>
<translation>Auto HDR queda deshabilitado.</translation>
</message>
<message>
<source>The values are deleted, which is the default.</source>
<translation>Los valores se borran, que es lo predeterminado.</translation>
</message>
<message>
<source>The value is deleted. It is there by default, and what Windows does without it is uncertain.</source>
<translation>El valor se borra. De forma predeterminada existe, y lo que hace Windows sin él es incierto.</translation>
</message>
<message>
<source>ULPS is switched on, even for adapters that never had it.</source>
<translation>Se habilita ULPS, incluso en tarjetas que nunca lo tuvieron.</translation>
</message>
<message>
<source>The same effect as the default on a PC with more than 3.5 GB of memory.</source>
<translation>El mismo efecto que lo predeterminado en un PC con más de 3,5 GB de memoria.</translation>
</message>
<message>
<source>The backup is on, which isn't the default and does no harm.</source>
<translation>La copia queda habilitada, que no es lo predeterminado y no hace daño.</translation>
</message>
<message>
<source>The button is back.</source>
<translation>El botón vuelve.</translation>
</message>
<message>
<source>File History is allowed again.</source>
<translation>El historial de archivos se permite de nuevo.</translation>
</message>
<message>
<source>The old menu stays: key and empty value are left.</source>
<translation>El menú antiguo sigue: quedan la clave y el valor vacío.</translation>
</message>
<message>
<source>Some values are less private than before: diagnostic data in full, suggestions on, synchronization on.</source>
<translation>Algunos valores son menos privados que antes: datos de diagnóstico completos, sugerencias y sincronización habilitadas.</translation>
</message>
<message>
<source>The lock screen is back.</source>
<translation>Vuelve la pantalla de bloqueo.</translation>
</message>
<message>
<source>The program is back; its owner and rights stay changed.</source>
<translation>El programa vuelve; su propietario y sus permisos siguen cambiados.</translation>
</message>
<message>
<source>as now</source>
<translation>como ahora</translation>
</message>
<message>
<source>written</source>
<translation>escrito</translation>
</message>
<message>
<source>kept</source>
<translation>conservado</translation>
</message>
<message>
<source>as before</source>
<translation>como antes</translation>
</message>
</context>
</TS>
