<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<!-- One context for all: see cmake/translations.cmake. -->
<context>
<name>texts</name>
<message>
<source>  20   (variable and long quantum, foreground boost X1)</source>
<translation>  20   (quantum variável e longo, reforço de primeiro plano X1)</translation>
</message>
<message>
<source>  21   (variable and long quantum, foreground boost X2)</source>
<translation>  21   (quantum variável e longo, reforço de primeiro plano X2)</translation>
</message>
<message>
<source>  22   (variable and long quantum, foreground boost X3)</source>
<translation>  22   (quantum variável e longo, reforço de primeiro plano X3)</translation>
</message>
<message>
<source>  24   (fixed and long quantum, foreground boost X1) (not recommended)</source>
<translation>  24   (quantum fixo e longo, reforço de primeiro plano X1) (não recomendado)</translation>
</message>
<message>
<source>  36   (variable and short quantum, foreground boost X1)</source>
<translation>  36   (quantum variável e curto, reforço de primeiro plano X1)</translation>
</message>
<message>
<source>  37   (variable and short quantum, foreground boost X2)</source>
<translation>  37   (quantum variável e curto, reforço de primeiro plano X2)</translation>
</message>
<message>
<source>  38   (variable and short quantum, foreground boost X3) (recommended)</source>
<translation>  38   (quantum variável e curto, reforço de primeiro plano X3) (recomendado)</translation>
</message>
<message>
<source>  40   (fixed and short quantum, foreground boost X1) (not recommended)</source>
<translation>  40   (quantum fixo e curto, reforço de primeiro plano X1) (não recomendado)</translation>
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Edição:   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Compilação:   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versão:   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Instalado em SSD:   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Placa-mãe:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Modelo:   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versão do BIOS:   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Data do BIOS:   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Processador:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequência padrão:   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Núcleos / Threads:   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Tamanho do cache L2:   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Tamanho do cache L3:   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Soquete:   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading:   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Virtualização:   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Memória:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Capacidade:   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Livre:   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequência:   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Formato:   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Memória virtual:   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Placa gráfica e tela:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Versão do driver:   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Data do driver:   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Tela:   carregando dados da tela...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Resolução:   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Resolução máx.:   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequência:   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Frequência máx.:   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR:   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;Disco:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;carregando dados do disco...&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Versão:&lt;/span&gt;   beta %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Data:&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Autor:&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Contato:&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Site:&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Linguagem de programação e framework:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ com Qt 6, licenciado sob a GNU LGPL versão 3&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Desenvolvido para Windows 10 e Windows 11&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Objetivo:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Este aplicativo visa melhorar o desempenho geral sem descaracterizar o Windows, ajudando você a desabilitar recursos, programas, serviços e tarefas agendadas que podem ser supérfluos e prejudicar o desempenho. Ele também configura alguns recursos internos do sistema que não são acessíveis por nenhuma interface, e outras opções permitem reduzir o espaço ocupado pelo Windows no disco rígido. (desinstalar aplicativos do Windows desnecessários, limpar a pasta WinSxS, ...)&lt;br /&gt;Tudo em poucos cliques e com a possibilidade de restaurar os valores originais. &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;Informações importantes:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;Todas as opções deste aplicativo são reversíveis.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Tenha cuidado com a seção Serviços. Não desabilite serviços se você não souber realmente o que são, suas dependências etc. USE O BOTÃO ASSISTENTE!!!&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- Quantum FIXO: o tempo de processador é dividido igualmente entre os aplicativos,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;o quantum VARIÁVEL permite que eles retenham o processador por mais tempo.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- Quantum CURTO: o tempo de processador passa mais rápido de tarefa em tarefa,&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;já o quantum LONGO aloca mais tempo de processador ao aplicativo.&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- REFORÇO DE PRIMEIRO PLANO X vezes: o quantum é multiplicado por X&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;em favor do aplicativo em primeiro plano.&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Para jogos, conforme o valor escolhido, você favorece o FPS (22, 21),&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;FPS e resposta (38, 37) ou latência do teclado/mouse ou controle (36, 24, 40).&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;leia mais&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Advanced optimizations via motherboard BIOS settings &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Otimizações avançadas nas configurações do BIOS da placa-mãe &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;leia mais&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft acknowledges performance impact with Memory Integrity and VMP enabled &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft admite que a integridade da memória e o VMP afetam o desempenho &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;leia mais&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;The WinSxS folder is an essential system component that serves as a repository for storing multiple versions of system files, allowing Windows to maintain good compatibility &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;A pasta WinSxS é um componente essencial do sistema que serve de repositório para várias versões de arquivos do sistema, permitindo que o Windows mantenha boa compatibilidade &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;leia mais&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>%1 bytes</source>
<translation>%1 bytes</translation>
</message>
<message>
<source>%1 of %2 are as they were.</source>
<translation>%1 de %2 estão como eram.</translation>
</message>
<message>
<source>&amp;Sessions:</source>
<translation>&amp;Sessões:</translation>
</message>
<message>
<source>Clear the search</source>
<translation>Limpar a busca</translation>
</message>
<message>
<source>Preview…</source>
<translation>Prévia…</translation>
</message>
<message>
<source>Preview of Optimize</source>
<translation>Prévia da otimização</translation>
</message>
<message>
<source>After Optimize</source>
<translation>Após otimizar</translation>
</message>
<message>
<source>After Restore</source>
<translation>Após restaurar</translation>
</message>
<message>
<source>Comes back</source>
<translation>Volta</translation>
</message>
<message>
<source>Progress</source>
<translation>Progresso</translation>
</message>
<message>
<source>exactly</source>
<translation>exatamente</translation>
</message>
<message>
<source>as a fixed value</source>
<translation>com um valor fixo</translation>
</message>
<message>
<source>It is in the Store: %1</source>
<translation>Está na Store: %1</translation>
</message>
<message>
<source>not at all</source>
<translation>de modo algum</translation>
</message>
<message>
<source>by Restore only</source>
<translation>só ao restaurar</translation>
</message>
<message>
<source>%1 come back exactly</source>
<translation>%1 voltam exatamente</translation>
</message>
<message>
<source>%1 as a fixed value</source>
<translation>%1 com um valor fixo</translation>
</message>
<message>
<source>%1 not at all</source>
<translation>%1 de modo algum</translation>
</message>
<message>
<source>%1 are changed by Restore only</source>
<translation>%1 mudam só ao restaurar</translation>
</message>
<message>
<source>Programs started at logon</source>
<translation>Programas iniciados no logon</translation>
</message>
<message>
<source>System options</source>
<translation>Opções do sistema</translation>
</message>
<message>
<source>Files</source>
<translation>Arquivos</translation>
</message>
<message>
<source>Other registry values</source>
<translation>Outros valores do Registro</translation>
</message>
<message>
<source>Kestrune's own records</source>
<translation>Registros do Kestrune</translation>
</message>
<message>
<source>Copying this PC…</source>
<translation>Copiando este PC…</translation>
</message>
<message>
<source>Trying it on a copy…</source>
<translation>Testando em uma cópia…</translation>
</message>
<message>
<source>Trying it on the copy…</source>
<translation>Testando na cópia…</translation>
</message>
<message>
<source>There is no preview: %1</source>
<translation>Não há prévia: %1</translation>
</message>
<message>
<source>What the next Optimize would change, and what the Restore button would bring back:</source>
<translation>O que a próxima otimização mudaria e o que o botão de restaurar traria de volta:</translation>
</message>
<message>
<source>“Way back…” brings back more than Restore: what was noted before each change.</source>
<translation>“Caminho de volta…” traz de volta mais do que restaurar: o que foi anotado antes de cada mudança.</translation>
</message>
<message>
<source>This PC was looked at without Admin rights: what needs them is missing here.</source>
<translation>Este PC foi examinado sem direitos de administrador: o que precisa deles falta aqui.</translation>
</message>
<message>
<source>With Admin rights a preview needs a copy of this app that nobody else can change, such as the installer makes in the folder for programs. Without Admin rights it works from any folder.</source>
<translation>Com direitos de administrador, a prévia precisa de uma cópia deste aplicativo que ninguém mais possa mudar, como a que o instalador põe na pasta de programas. Sem eles funciona de qualquer pasta.</translation>
</message>
<message>
<source>A preview needs the folder “rehearse” of this app, which isn't there.</source>
<translation>A prévia precisa da pasta “rehearse” deste aplicativo, que não está aqui.</translation>
</message>
<message>
<source>Windows was updated from build %1 to %2 since. No longer in force: %3.</source>
<translation>Desde então o Windows passou da compilação %1 para a %2. Não mais em vigor: %3.</translation>
</message>
<message>
<source>automatic (delayed)</source>
<translation>automático (atrasado)</translation>
</message>
<message>
<source>not installed</source>
<translation>não instalado</translation>
</message>
<message>
<source>starts</source>
<translation>inicia</translation>
</message>
<message>
<source>doesn't start</source>
<translation>não inicia</translation>
</message>
<message>
<source>your setting</source>
<translation>sua configuração</translation>
</message>
<message>
<source>applied</source>
<translation>aplicada</translation>
</message>
<message>
<source>applied in part</source>
<translation>aplicada em parte</translation>
</message>
<message>
<source>a fixed value</source>
<translation>um valor fixo</translation>
</message>
<message>
<source>not there</source>
<translation>inexistente</translation>
</message>
<message>
<source>but not as before</source>
<translation>mas não como antes</translation>
</message>
<message>
<source>Before the journal, not exact</source>
<translation>Antes do diário, não exato</translation>
</message>
<message>
<source>%1 (by the system)</source>
<translation>%1 (pelo sistema)</translation>
</message>
<message>
<source>%1 (by another account)</source>
<translation>%1 (por outra conta)</translation>
</message>
<message>
<source>Page: %1</source>
<translation>Página: %1</translation>
</message>
<message>
<source>&amp;Take back</source>
<translation>&amp;Desfazer</translation>
</message>
<message>
<source>Clean-up of the WinSxS folder</source>
<translation>Limpeza da pasta WinSxS</translation>
</message>
<message>
<source>Windows keeps no copy of what this removes</source>
<translation>O Windows não guarda cópia do que isso remove</translation>
</message>
<message>
<source>its files are gone from this PC; get it from the Store</source>
<translation>os arquivos não estão mais neste PC; obtenha-o na Store</translation>
</message>
<message>
<source>Not everything was done.</source>
<translation>Nem tudo foi feito.</translation>
</message>
<message>
<source>a later session has changed it, too</source>
<translation>uma sessão posterior também o alterou</translation>
</message>
<message>
<source>A newer version of Kestrune is available!<byte value="xd"/>
Would you like to visit the website for download?<byte value="xd"/>
<byte value="xd"/>
Current version: %1<byte value="xd"/>
Online version: %2</source>
<translation>Uma versão mais recente do Kestrune está disponível!<byte value="xd"/>
Deseja visitar o site para baixá-la?<byte value="xd"/>
<byte value="xd"/>
Versão atual: %1<byte value="xd"/>
Versão online: %2</translation>
</message>
<message>
<source>About</source>
<translation>Sobre</translation>
</message>
<message>
<source>absent</source>
<translation>ausente</translation>
</message>
<message>
<source>Add indexing attribute of %1 finished</source>
<translation>Atributo de indexação de %1 adicionado</translation>
</message>
<message>
<source>Add indexing attribute of Windows partition %1</source>
<translation>Adicionando o atributo de indexação da partição do Windows %1</translation>
</message>
<message>
<source>Apply a profile</source>
<translation>Aplicar um perfil</translation>
</message>
<message>
<source>Analyze</source>
<translation>Analisar</translation>
</message>
<message>
<source>Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring some that are inaccessible through an interface.
Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages.</source>
<translation>Analise e otimize o Windows para melhorar o desempenho geral, desabilitando recursos desnecessários e configurando outros que não são acessíveis por nenhuma interface.
As otimizações vêm das páginas Serviços, Tarefas agendadas, Programas e Recursos.</translation>
</message>
<message>
<source>Application to play PC games if you have a Gamepass account (paid)</source>
<translation>Aplicativo para jogar no PC com uma assinatura do Game Pass (paga)</translation>
</message>
<message>
<source>Apply</source>
<translation>Aplicar</translation>
</message>
<message>
<source>Apply features</source>
<translation>Aplicar recursos</translation>
</message>
<message>
<source>Apply features finished successfully.</source>
<translation>Recursos aplicados com êxito.</translation>
</message>
<message>
<source>Are you sure to disable all checked services?</source>
<translation>Tem certeza de que deseja desabilitar todos os serviços marcados?</translation>
</message>
<message>
<source>Are you sure to disable all checked tasks?</source>
<translation>Tem certeza de que deseja desabilitar todas as tarefas marcadas?</translation>
</message>
<message>
<source>Are you sure you want to restore the original values?<byte value="xd"/>
All features, applications, services and tasks will be restored.</source>
<translation>Tem certeza de que deseja restaurar os valores originais?<byte value="xd"/>
Todos os recursos, aplicativos, serviços e tarefas serão restaurados.</translation>
</message>
<message>
<source>Are you sure you want to restore the startup of all scheduled tasks?</source>
<translation>Tem certeza de que deseja restaurar o início de todas as tarefas agendadas?</translation>
</message>
<message>
<source>as it was</source>
<translation>como era</translation>
</message>
<message>
<source>ASSISTANT - disable a list of non vital services</source>
<translation>ASSISTENTE - desabilitar serviços não vitais</translation>
</message>
<message>
<source>ASSISTANT - disable a list of scheduled tasks</source>
<translation>ASSISTENTE - desabilitar uma lista de tarefas agendadas</translation>
</message>
<message>
<source>Assistant - no services to deactivate</source>
<translation>Assistente - nenhum serviço a desabilitar</translation>
</message>
<message>
<source>Assistant - no tasks to deactivate</source>
<translation>Assistente - nenhuma tarefa a desabilitar</translation>
</message>
<message>
<source>at boot</source>
<translation>na inicialização</translation>
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
<translation>Programas de inicialização desabilitados:</translation>
</message>
<message>
<source>automatic</source>
<translation>automático</translation>
</message>
<message>
<source>Automatic start</source>
<translation>Início automático</translation>
</message>
<message>
<source>Automatically started programs</source>
<translation>Programas iniciados automaticamente</translation>
</message>
<message>
<source>Autorun</source>
<translation>Inicialização</translation>
</message>
<message>
<source>Autorun program: disable %1 done</source>
<translation>Programa de inicialização: %1 desabilitado</translation>
</message>
<message>
<source>Autorun program: enable %1 done</source>
<translation>Programa de inicialização: %1 habilitado</translation>
</message>
<message>
<source>Autorun:</source>
<translation>Inicialização:</translation>
</message>
<message>
<source>Autorun: can be disabled: </source>
<translation>Inicialização: pode ser desabilitado: </translation>
</message>
<message>
<source>Backup file exists</source>
<translation>O arquivo de backup existe</translation>
</message>
<message>
<source>Before</source>
<translation>Antes</translation>
</message>
<message>
<source>Bluetooth audio</source>
<translation>Áudio Bluetooth</translation>
</message>
<message>
<source>Boot option %1</source>
<translation>Opção de inicialização %1</translation>
</message>
<message>
<source>broken off</source>
<translation>interrompido</translation>
</message>
<message>
<source>Broken off: way back…</source>
<translation>Interrompido: caminho de volta…</translation>
</message>
<message>
<source>by the system</source>
<translation>pelo sistema</translation>
</message>
<message>
<source>Cancel</source>
<translation>Cancelar</translation>
</message>
<message>
<source>Cannot restore if you have not yet optimized!</source>
<translation>Não é possível restaurar se você ainda não otimizou!</translation>
</message>
<message>
<source>Another instance of the program is changing this PC. Try again when it has finished.</source>
<translation>Outra instância do programa está alterando este PC. Tente novamente quando ela terminar.</translation>
</message>
<message>
<source>Capacity:</source>
<translation>Capacidade:</translation>
</message>
<message>
<source>Change</source>
<translation>Alteração</translation>
</message>
<message>
<source>changed</source>
<translation>alterado</translation>
</message>
<message>
<source>changed again</source>
<translation>alterado novamente</translation>
</message>
<message>
<source>Changes</source>
<translation>Alterações</translation>
</message>
<message>
<source>Check all</source>
<translation>Marcar tudo</translation>
</message>
<message>
<source>Check update of Kestrune version</source>
<translation>Verificar atualizações do Kestrune</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool</source>
<translation>Limpar a pasta WinSxS com a ferramenta Microsoft DISM</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)</source>
<translation>Limpar a pasta WinSxS com a ferramenta Microsoft DISM  (tamanho atual: %1 GB)</translation>
</message>
<message>
<source>Close</source>
<translation>Fechar</translation>
</message>
<message>
<source>Comments</source>
<translation>Comentários</translation>
</message>
<message>
<source>Configure auto started programs done!</source>
<translation>Configuração dos programas de inicialização concluída!</translation>
</message>
<message>
<source>Content indexing off</source>
<translation>Indexação de conteúdo desabilitada</translation>
</message>
<message>
<source>Content indexing on</source>
<translation>Indexação de conteúdo habilitada</translation>
</message>
<message>
<source>CPU</source>
<translation>CPU</translation>
</message>
<message>
<source>Dark</source>
<translation>Escuro</translation>
</message>
<message>
<source>Date of the last execution</source>
<translation>Data da última execução</translation>
</message>
<message>
<source>Description</source>
<translation>Descrição</translation>
</message>
<message>
<source>Development applet</source>
<translation>Applet de desenvolvimento</translation>
</message>
<message>
<source>Disable advanced indexing options</source>
<translation>Desabilitar as opções avançadas de indexação</translation>
</message>
<message>
<source>Disable automatic boot disk optimization</source>
<translation>Desabilitar a otimização automática do disco de inicialização</translation>
</message>
<message>
<source>Disable checked programs</source>
<translation>Desabilitar programas marcados</translation>
</message>
<message>
<source>DISABLE checked services</source>
<translation>DESABILITAR serviços marcados</translation>
</message>
<message>
<source>Disable checked services</source>
<translation>Desabilitar serviços marcados</translation>
</message>
<message>
<source>Disable checked services finished</source>
<translation>Desabilitação dos serviços marcados concluída</translation>
</message>
<message>
<source>DISABLE checked tasks</source>
<translation>DESABILITAR tarefas marcadas</translation>
</message>
<message>
<source>Disable clearing of virtual memory swap file on every shutdown</source>
<translation>Desabilitar a limpeza do arquivo de paginação a cada desligamento</translation>
</message>
<message>
<source>Disable cloud backup and restore functionalities</source>
<translation>Desabilitar o backup e a restauração na nuvem</translation>
</message>
<message>
<source>Disable CPU power throttling
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Desabilitar a limitação de energia da CPU
(economia de energia, otimização não recomendada para laptops)</translation>
</message>
<message>
<source>Disable distribution optimization of Windows updates</source>
<translation>Desabilitar a Otimização de Entrega das atualizações do Windows</translation>
</message>
<message>
<source>Disable dynamic tick of system timers
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Desabilitar o tique dinâmico dos temporizadores do sistema
(economia de energia, otimização não recomendada para laptops)</translation>
</message>
<message>
<source>Disable enhance pointer precision
(to achieve precise mouse control and muscle memory)</source>
<translation>Desabilitar o aumento da precisão do ponteiro
(para um controle preciso do mouse e memória muscular)</translation>
</message>
<message>
<source>Disable fast start-up  (Windows function designed for HDD and not SSD)</source>
<translation>Desabilitar a inicialização rápida  (função do Windows feita para HDD, não SSD)</translation>
</message>
<message>
<source>Disable files history (even in explorer)</source>
<translation>Desabilitar o histórico de arquivos (também no Explorador)</translation>
</message>
<message>
<source>Disable game recording and broadcasting</source>
<translation>Desabilitar a gravação e transmissão de jogos</translation>
</message>
<message>
<source>Disable Gamebar</source>
<translation>Desabilitar a Game Bar</translation>
</message>
<message>
<source>Disable hibernation mode</source>
<translation>Desabilitar o modo de hibernação</translation>
</message>
<message>
<source>Disable hibernation mode  (gain %1 GB of storage space)</source>
<translation>Desabilitar o modo de hibernação  (libera %1 GB de espaço de armazenamento)</translation>
</message>
<message>
<source>Disable HPET  (High Precision Event Timer)
(use invariant TSC instead which may be faster for gaming)
(important: do not disable HPET in BIOS settings)</source>
<translation>Desabilitar HPET  (High Precision Event Timer)
(usa o TSC invariável, que pode ser mais rápido para jogos)
(importante: não desabilite HPET nas configurações do BIOS)</translation>
</message>
<message>
<source>Disable last access time stamps  (NTFS drive only)</source>
<translation>Desabilitar o registro da hora do último acesso  (somente unidades NTFS)</translation>
</message>
<message>
<source>Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)</source>
<translation>Desabilitar LockApp.exe  (informações adicionais na tela de bloqueio)</translation>
</message>
<message>
<source>Disable Multiplane Overlay (MPO)
(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,
especially for video playback apps)</source>
<translation>Desabilitar Multiplane Overlay (MPO)
(pode corrigir tremulações ou engasgos, MAS perde algumas otimizações
de tela inteira, principalmente em aplicativos de vídeo)</translation>
</message>
<message>
<source>Disable Nagle’s Algorithm
(may improve the real-time responsiveness of your network connection, but may increase traffic)</source>
<translation>Desabilitar o algoritmo de Nagle
(pode melhorar a resposta da conexão de rede, mas aumentar o tráfego)</translation>
</message>
<message>
<source>Disable periodic registry backup</source>
<translation>Desabilitar o backup periódico do Registro</translation>
</message>
<message>
<source>Disable Prefetcher  (prevents preloading of applications)</source>
<translation>Desabilitar o Prefetcher  (impede o pré-carregamento de aplicativos)</translation>
</message>
<message>
<source>Disable programs</source>
<translation>Desabilitar programas</translation>
</message>
<message>
<source>Disable scheduled tasks</source>
<translation>Desabilitar tarefas agendadas</translation>
</message>
<message>
<source>Disable scheduled tasks completed successfully</source>
<translation>Desabilitação das tarefas agendadas concluída com êxito</translation>
</message>
<message>
<source>Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)</source>
<translation>Desabilitar SearchHost.exe  (busca de arquivos; a busca avançada pode falhar)</translation>
</message>
<message>
<source>Disable services</source>
<translation>Desabilitar serviços</translation>
</message>
<message>
<source>Disable SvcHost splitting  (reduce the number of svchost.exe process)</source>
<translation>Desabilitar a divisão do SvcHost  (reduz o número de processos svchost.exe)</translation>
</message>
<message>
<source>Disable telemetry (data collection for Microsoft)
(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)</source>
<translation>Desabilitar a telemetria (coleta de dados para a Microsoft)
(O restante é desabilitado em Serviços, Tarefas agendadas ou Otimizador)</translation>
</message>
<message>
<source>Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)
(power-saving feature, optimization not recommended for laptop)</source>
<translation>Desabilitar ULPS  (Ultra Low Power State, somente para placas gráficas AMD)
(economia de energia, otimização não recomendada para laptops)</translation>
</message>
<message>
<source>Disable Windows write-cache buffer flushing</source>
<translation>Desabilitar a liberação do buffer de cache de gravação do Windows</translation>
</message>
<message>
<source>Disabled</source>
<translation>Desabilitado</translation>
</message>
<message>
<source>disabled</source>
<translation>desabilitado</translation>
</message>
<message>
<source>disabled:</source>
<translation>desabilitados:</translation>
</message>
<message>
<source>disabled:</source>
<comment>tasks</comment>
<translation>desabilitadas:</translation>
</message>
<message>
<source>DISK</source>
<translation>DISCO</translation>
</message>
<message>
<source>Display name</source>
<translation>Nome de exibição</translation>
</message>
<message>
<source>display threads and handles count</source>
<translation>exibir o número de threads e identificadores</translation>
</message>
<message>
<source>Do you want to restore start mode option of all services?<byte value="xd"/>
<byte value="xd"/>
If you click No (recommended),<byte value="xd"/>
then restore only the services you have disabled</source>
<translation>Deseja restaurar o tipo de inicialização de todos os serviços?<byte value="xd"/>
<byte value="xd"/>
Se você clicar em Não (recomendado),<byte value="xd"/>
somente os serviços que você desabilitou serão restaurados</translation>
</message>
<message>
<source>Do you want to start this app with Admin rights?</source>
<translation>Deseja reiniciar este aplicativo como administrador?</translation>
</message>
<message>
<source>done</source>
<translation>pronto</translation>
</message>
<message>
<source>Enable Auto HDR  (forces HDR mode on SDR content)</source>
<translation>Habilitar Auto HDR  (força o modo HDR em conteúdo SDR)</translation>
</message>
<message>
<source>Enable checked programs</source>
<translation>Habilitar programas marcados</translation>
</message>
<message>
<source>ENABLE checked services</source>
<translation>HABILITAR serviços marcados</translation>
</message>
<message>
<source>Enable checked services finished</source>
<translation>Habilitação dos serviços marcados concluída</translation>
</message>
<message>
<source>Enable game mode  (enabled by default)</source>
<translation>Habilitar o modo de jogo  (habilitado por padrão)</translation>
</message>
<message>
<source>Enable programs</source>
<translation>Habilitar programas</translation>
</message>
<message>
<source>Enable services</source>
<translation>Habilitar serviços</translation>
</message>
<message>
<source>Enable the context menu like Windows 10  (all entries in the context menu are displayed)</source>
<translation>Habilitar o menu de contexto do Windows 10  (todas as entradas são exibidas)</translation>
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
<translation>erro</translation>
</message>
<message>
<source>Features</source>
<translation>Recursos</translation>
</message>
<message>
<source>Features applied successfully. Restart your PC!</source>
<translation>Recursos aplicados com êxito. Reinicie o PC!</translation>
</message>
<message>
<source>Features: %1 improvements can be applied</source>
<translation>Recursos: %1 melhorias podem ser aplicadas</translation>
</message>
<message>
<source>Features: applied successfully. Restart your PC!</source>
<translation>Recursos: aplicados com êxito. Reinicie o PC!</translation>
</message>
<message>
<source>Features: applies Gaming optimizations</source>
<translation>Recursos: aplicando otimizações de jogos</translation>
</message>
<message>
<source>Features: applies SSD optimizations</source>
<translation>Recursos: aplicando otimizações de SSD</translation>
</message>
<message>
<source>Features: applies Windows optimizations</source>
<translation>Recursos: aplicando otimizações do Windows</translation>
</message>
<message>
<source>Features: Battery detected! Some optimizations will not be applied to maintain battery life</source>
<translation>Recursos: bateria detectada! Algumas otimizações não serão aplicadas para preservar a duração da bateria</translation>
</message>
<message>
<source>Features: reset Gaming optimizations</source>
<translation>Recursos: redefinindo otimizações de jogos</translation>
</message>
<message>
<source>Features: reset SSD optimizations</source>
<translation>Recursos: redefinindo otimizações de SSD</translation>
</message>
<message>
<source>Features: reset Windows optimizations</source>
<translation>Recursos: redefinindo otimizações do Windows</translation>
</message>
<message>
<source>File %1</source>
<translation>Arquivo %1</translation>
</message>
<message>
<source>Files sharing</source>
<translation>Compartilhamento de arquivos</translation>
</message>
<message>
<source>finished</source>
<translation>concluído</translation>
</message>
<message>
<source>Folder for the files of the way back</source>
<translation>Pasta para os arquivos do caminho de volta</translation>
</message>
<message>
<source>Français</source>
<translation>Français</translation>
</message>
<message>
<source>free memory</source>
<translation>memória livre</translation>
</message>
<message>
<source>free on</source>
<translation>livre em</translation>
</message>
<message>
<source>GAMING</source>
<translation>JOGOS</translation>
</message>
<message>
<source>Get system info:</source>
<translation>Obter informações do sistema:</translation>
</message>
<message>
<source>Get WinSxS folder size in features page</source>
<translation>Obter o tamanho da pasta WinSxS na página Recursos</translation>
</message>
<message>
<source>GPU</source>
<translation>GPU</translation>
</message>
<message>
<source>Grayed out services are considered necessary or critical</source>
<translation>Os serviços esmaecidos são considerados necessários ou críticos</translation>
</message>
<message>
<source>Grayed out services refer to those disabled outside this tab</source>
<translation>Os serviços esmaecidos foram desabilitados fora desta guia</translation>
</message>
<message>
<source>handles</source>
<translation>identificadores</translation>
</message>
<message>
<source>Hibernation</source>
<translation>Hibernação</translation>
</message>
<message>
<source>If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this</source>
<translation>Se você não tem fone de ouvido ou equipamento de áudio conectado por Bluetooth, pode desmarcar esta opção</translation>
</message>
<message>
<source>If you don't have any printers, you can uncheck this</source>
<translation>Se você não tem impressora, pode desmarcar esta opção</translation>
</message>
<message>
<source>Increase maximum amount of physical memory that can be locked for I/O operations</source>
<translation>Aumentar a memória física máxima que pode ser bloqueada para operações de E/S</translation>
</message>
<message>
<source>Install</source>
<translation>Instalar</translation>
</message>
<message>
<source>Install packages</source>
<translation>Instalar pacotes</translation>
</message>
<message>
<source>installed</source>
<translation>instalado</translation>
</message>
<message>
<source>Intelligent personal assistant</source>
<translation>Assistente pessoal inteligente</translation>
</message>
<message>
<source>Interface language:</source>
<translation>Idioma da interface:</translation>
</message>
<message>
<source>Interface type:</source>
<translation>Tipo de interface:</translation>
</message>
<message>
<source>Internal system features that can slow down your PC unnecessarily.
Check them to optimize or uncheck them to restore defaults.</source>
<translation>Recursos internos do sistema que podem deixar o PC mais lento desnecessariamente.
Marque-os para otimizar ou desmarque-os para restaurar os padrões.</translation>
</message>
<message>
<source>interval in seconds:</source>
<translation>intervalo em segundos:</translation>
</message>
<message>
<source>it didn't come back</source>
<translation>não voltou</translation>
</message>
<message>
<source>Keep features</source>
<translation>Recursos a manter</translation>
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
<translation>Lista dos serviços iniciados no momento.
Serviços são programas executados em segundo plano por vários motivos. Alguns são essenciais, outros podem ser supérfluos e consumir CPU, memória e disco desnecessariamente.</translation>
</message>
<message>
<source>List of enabled scheduled tasks.
Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily.</source>
<translation>Lista das tarefas agendadas habilitadas.
Tarefas agendadas são programas executados em segundo plano em um horário (ou evento) específico por vários motivos. Algumas podem ser desnecessárias e consumir CPU, memória e disco à toa.</translation>
</message>
<message>
<source>List of programs started automatically each time Windows starts.
Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you don't use on every startup.</source>
<translation>Lista de programas iniciados automaticamente sempre que o Windows é iniciado.
Como os serviços e as tarefas agendadas, eles podem deixar o sistema mais lento. Desmarque os que você não usa em toda inicialização.</translation>
</message>
<message>
<source>List of Windows packages can be uninstalled without problems.
You can reinstall them directly by clicking on &quot;View uninstalled packages&quot; below the list.</source>
<translation>Lista de pacotes do Windows que podem ser desinstalados sem problemas.
Você pode reinstalá-los diretamente clicando em &quot;Ver pacotes desinstalados&quot; abaixo da lista.</translation>
</message>
<message>
<source>Load system info:</source>
<translation>Carregar informações do sistema:</translation>
</message>
<message>
<source>loading disk info...</source>
<translation>carregando dados do disco...</translation>
</message>
<message>
<source>loading screen info...</source>
<translation>carregando dados da tela...</translation>
</message>
<message>
<source>Looking around</source>
<translation>Consulta</translation>
</message>
<message>
<source>Mail &amp; Calendar</source>
<translation>Email e Calendário</translation>
</message>
<message>
<source>Manage features  (included in the page &quot;Features&quot;)</source>
<translation>Gerenciar recursos  (incluídos na página &quot;Recursos&quot;)</translation>
</message>
<message>
<source>Manage programs and packages  (included in the page &quot;Programs&quot;)</source>
<translation>Gerenciar programas e pacotes  (incluídos na página &quot;Programas&quot;)</translation>
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
<translation>Início manual</translation>
</message>
<message>
<source>Media extensions for Edge and Windows Media Player</source>
<translation>Extensões de mídia para Edge e Windows Media Player</translation>
</message>
<message>
<source>MEM</source>
<translation>MEM</translation>
</message>
<message>
<source>Microsoft Codecs extensions</source>
<translation>Codecs da Microsoft</translation>
</message>
<message>
<source>Microsoft codecs for video encoding/decoding. If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box</source>
<translation>Codecs da Microsoft para codificar e decodificar vídeo. Se você não usa os recursos internos do Windows para transmitir, codificar ou reproduzir vídeos, desmarque esta caixa</translation>
</message>
<message>
<source>Microsoft video editor</source>
<translation>Editor de vídeo da Microsoft</translation>
</message>
<message>
<source>Mobile device synchronization</source>
<translation>Sincronização de dispositivos móveis</translation>
</message>
<message>
<source>Monitor and display some system information in the title bar</source>
<translation>Monitorar e exibir informações do sistema na barra de título</translation>
</message>
<message>
<source>MotherBoard</source>
<translation>Placa-mãe</translation>
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
<translation>É necessário reiniciar!</translation>
</message>
<message>
<source>NFC</source>
<translation>NFC</translation>
</message>
<message>
<source>No</source>
<translation>Não</translation>
</message>
<message>
<source>No changes have been noted on this PC so far.</source>
<translation>Nenhuma alteração foi registrada neste PC até agora.</translation>
</message>
<message>
<source>no description</source>
<translation>sem descrição</translation>
</message>
<message>
<source>No optimizations found!</source>
<translation>Nenhuma otimização encontrada!</translation>
</message>
<message>
<source>not possible</source>
<translation>não é possível</translation>
</message>
<message>
<source>Now</source>
<translation>Agora</translation>
</message>
<message>
<source>off</source>
<translation>desabilitado</translation>
</message>
<message>
<source>Old Xbox App, no longer supported!</source>
<translation>Aplicativo Xbox antigo, não é mais suportado!</translation>
</message>
<message>
<source>on</source>
<translation>habilitado</translation>
</message>
<message>
<source>on drive</source>
<translation>na unidade</translation>
</message>
<message>
<source>Optimization finished</source>
<translation>Otimização concluída</translation>
</message>
<message>
<source>Optimize</source>
<translation>Otimizar</translation>
</message>
<message>
<source>Optimizer</source>
<translation>Otimizador</translation>
</message>
<message>
<source>Options</source>
<translation>Opções</translation>
</message>
<message>
<source>Other protocol dedicated to local network (eg: some video players use it to connect to network hard drives)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Outro protocolo dedicado à rede local (ex.: alguns reprodutores de vídeo o usam para se conectar a discos de rede)<byte value="xd"/>
(por padrão não é usado, mas está habilitado!)</translation>
</message>
<message>
<source>Otherwise some scheduled tasks will not be detected!</source>
<translation>Caso contrário, algumas tarefas agendadas não serão detectadas!</translation>
</message>
<message>
<source>Owner and rights of %1</source>
<translation>Proprietário e permissões de %1</translation>
</message>
<message>
<source>Package %1</source>
<translation>Pacote %1</translation>
</message>
<message>
<source>package: </source>
<translation>pacote: </translation>
</message>
<message>
<source>Package: can be installed: </source>
<translation>Pacote: pode ser instalado: </translation>
</message>
<message>
<source>Package: can be uninstalled: </source>
<translation>Pacote: pode ser desinstalado: </translation>
</message>
<message>
<source>Packages</source>
<translation>Pacotes</translation>
</message>
<message>
<source>packages finished</source>
<translation>pacotes concluídos</translation>
</message>
<message>
<source>Packages installed:</source>
<translation>Pacotes instalados:</translation>
</message>
<message>
<source>Packages uninstalled:</source>
<translation>Pacotes desinstalados:</translation>
</message>
<message>
<source>Packages:</source>
<translation>Pacotes:</translation>
</message>
<message>
<source>Path</source>
<translation>Caminho</translation>
</message>
<message>
<source>Phone link</source>
<translation>Vincular ao Celular</translation>
</message>
<message>
<source>Place of the file %1</source>
<translation>Local do arquivo %1</translation>
</message>
<message>
<source>Printer</source>
<translation>Impressora</translation>
</message>
<message>
<source>Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</source>
<translation>Priorizar jogos  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</translation>
</message>
<message>
<source>Process: can be disable: %1 from Riva Tuner Statistic Server app!<byte value="xd"/>
This process only allows screen video capture.Does not affect the monitoring display in any way</source>
<translation>Processo: pode ser desabilitado: %1 do aplicativo Riva Tuner Statistic Server!<byte value="xd"/>
Este processo permite apenas a captura de vídeo da tela. Não afeta de forma alguma a exibição do monitoramento</translation>
</message>
<message>
<source>Process: disable EncoderServer done</source>
<translation>Processo: EncoderServer desabilitado</translation>
</message>
<message>
<source>processes</source>
<translation>processos</translation>
</message>
<message>
<source>Program started at logon: %1</source>
<translation>Programa iniciado no logon: %1</translation>
</message>
<message>
<source>Programs</source>
<translation>Programas</translation>
</message>
<message>
<source>Programs started automatically</source>
<translation>Programas iniciados automaticamente</translation>
</message>
<message>
<source>Proxy and VPN</source>
<translation>Proxy e VPN</translation>
</message>
<message>
<source>Proxy or VPN functionality to improve the security of your network traffic<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Recurso de proxy ou VPN para melhorar a segurança do tráfego de rede<byte value="xd"/>
(por padrão não é usado, mas está habilitado!)</translation>
</message>
<message>
<source>Quick setup of some bluetooth headsets<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Configuração rápida de alguns fones de ouvido Bluetooth<byte value="xd"/>
(por padrão não é usado, mas está habilitado!)</translation>
</message>
<message>
<source>Reading what has become of it…</source>
<translation>Lendo o estado atual…</translation>
</message>
<message>
<source>Reduces certain delays
(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)</source>
<translation>Reduzir certos atrasos
(exibição de menus, encerramento de aplicativos e serviços, travamentos)</translation>
</message>
<message>
<source>Refresh</source>
<translation>Atualizar</translation>
</message>
<message>
<source>Registry key %1</source>
<translation>Chave do Registro %1</translation>
</message>
<message>
<source>Registry value %1</source>
<translation>Valor do Registro %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1</source>
<translation>Removendo o atributo de indexação de %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1 finished</source>
<translation>Atributo de indexação de %1 removido</translation>
</message>
<message>
<source>Remove indexing attribute of Windows partition %1</source>
<translation>Removendo o atributo de indexação da partição do Windows %1</translation>
</message>
<message>
<source>Remove the indexed attribute from all files in the Windows partition
(this operation may take some time)</source>
<translation>Remover o atributo de indexação de todos os arquivos da partição do Windows
(esta operação pode demorar)</translation>
</message>
<message>
<source>Restoration finished</source>
<translation>Restauração concluída</translation>
</message>
<message>
<source>Restoration finished: Restart your PC!</source>
<translation>Restauração concluída: reinicie o PC!</translation>
</message>
<message>
<source>Restore</source>
<translation>Restaurar</translation>
</message>
<message>
<source>RESTORE disabled scheduled tasks</source>
<translation>RESTAURAR tarefas agendadas desabilitadas</translation>
</message>
<message>
<source>RESTORE disabled services</source>
<translation>RESTAURAR serviços desabilitados</translation>
</message>
<message>
<source>Restore scheduled tasks completed successfully</source>
<translation>Restauração das tarefas agendadas concluída com êxito</translation>
</message>
<message>
<source>Restore services finished</source>
<translation>Restauração dos serviços concluída</translation>
</message>
<message>
<source>Restoring scheduled tasks</source>
<translation>Restauração das tarefas agendadas</translation>
</message>
<message>
<source>running</source>
<translation>em execução</translation>
</message>
<message>
<source>S&amp;earch:</source>
<translation>&amp;Pesquisar:</translation>
</message>
<message>
<source>Sa&amp;ve as files…</source>
<translation>Sal&amp;var como arquivos…</translation>
</message>
<message>
<source>Scheduled task %1</source>
<translation>Tarefa agendada %1</translation>
</message>
<message>
<source>Scheduled tasks</source>
<translation>Tarefas agendadas</translation>
</message>
<message>
<source>Screenshot tool</source>
<translation>Ferramenta de captura</translation>
</message>
<message>
<source>Service %1: delayed start</source>
<translation>Serviço %1: início atrasado</translation>
</message>
<message>
<source>Service %1: run state</source>
<translation>Serviço %1: execução</translation>
</message>
<message>
<source>Service %1: start mode</source>
<translation>Serviço %1: tipo de inicialização</translation>
</message>
<message>
<source>Service: can be disable: </source>
<translation>Serviço: pode ser desabilitado: </translation>
</message>
<message>
<source>Service: can be enable: </source>
<translation>Serviço: pode ser habilitado: </translation>
</message>
<message>
<source>Service: can be set to manual:</source>
<translation>Serviço: pode ser definido como manual:</translation>
</message>
<message>
<source>Service: disable %1</source>
<translation>Serviço: desabilitar %1</translation>
</message>
<message>
<source>Service: disable and stop %1</source>
<translation>Serviço: desabilitar e parar %1</translation>
</message>
<message>
<source>Service: enable %1</source>
<translation>Serviço: habilitar %1</translation>
</message>
<message>
<source>Service: enable %1 done</source>
<translation>Serviço: %1 habilitado</translation>
</message>
<message>
<source>Service: enable and start %1</source>
<translation>Serviço: habilitar e iniciar %1</translation>
</message>
<message>
<source>Service: enable and start %1 done</source>
<translation>Serviço: %1 habilitado e iniciado</translation>
</message>
<message>
<source>Service: enable and start %1, already running!</source>
<translation>Serviço: habilitar e iniciar %1, já em execução!</translation>
</message>
<message>
<source>Service: set to manual:</source>
<translation>Serviço: definido como manual:</translation>
</message>
<message>
<source>Services</source>
<translation>Serviços</translation>
</message>
<message>
<source>Services  (Experienced users)</source>
<translation>Serviços  (usuários experientes)</translation>
</message>
<message>
<source>Services:</source>
<translation>Serviços:</translation>
</message>
<message>
<source>Sessions</source>
<translation>Sessões</translation>
</message>
<message>
<source>Set the maximum number of GPU pre-rendered frames to 1
(if you have a good CPU, this reduces latency)</source>
<translation>Definir como 1 o número máximo de quadros pré-renderizados pela GPU
(com uma boa CPU, isso reduz a latência)</translation>
</message>
<message>
<source>something else has changed it since</source>
<translation>outra coisa o alterou desde então</translation>
</message>
<message>
<source>SSD</source>
<translation>SSD</translation>
</message>
<message>
<source>Start mode</source>
<translation>Início</translation>
</message>
<message>
<source>Start of services</source>
<translation>Início de serviços</translation>
</message>
<message>
<source>Start service:</source>
<translation>Iniciar serviço:</translation>
</message>
<message>
<source>Start with adminstrator rights</source>
<translation>Iniciar com direitos de administrador</translation>
</message>
<message>
<source>started:</source>
<translation>iniciados:</translation>
</message>
<message>
<source>State</source>
<translation>Situação</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size finished!</source>
<translation>Status: tamanho da pasta WinSxS obtido!</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size...</source>
<translation>Status: obtendo o tamanho da pasta WinSxS...</translation>
</message>
<message>
<source>Stop service:</source>
<translation>Parar serviço:</translation>
</message>
<message>
<source>stopped</source>
<translation>parado</translation>
</message>
<message>
<source>stopped:</source>
<translation>parados:</translation>
</message>
<message>
<source>System</source>
<translation>Sistema</translation>
</message>
<message>
<source>System
Information</source>
<translation>Informações
do sistema</translation>
</message>
<message>
<source>System Information</source>
<translation>Informações do sistema</translation>
</message>
<message>
<source>Take back</source>
<translation>Desfazer</translation>
</message>
<message>
<source>Taking back…</source>
<translation>Desfazendo…</translation>
</message>
<message>
<source>Task:</source>
<translation>Tarefa:</translation>
</message>
<message>
<source>Task: can be disable: </source>
<translation>Tarefa: pode ser desabilitada: </translation>
</message>
<message>
<source>Task: can be enable: </source>
<translation>Tarefa: pode ser habilitada: </translation>
</message>
<message>
<source>Task: disable and stop %1</source>
<translation>Tarefa: desabilitar e parar %1</translation>
</message>
<message>
<source>Task: Enable and start %1 done</source>
<translation>Tarefa: %1 habilitada e iniciada</translation>
</message>
<message>
<source>Tasks</source>
<translation>Tarefas</translation>
</message>
<message>
<source>Tasks:</source>
<translation>Tarefas:</translation>
</message>
<message>
<source>the file is at neither place</source>
<translation>o arquivo não está em nenhum dos dois lugares</translation>
</message>
<message>
<source>The files can't bring back:</source>
<translation>Os arquivos não podem recuperar:</translation>
</message>
<message>
<source>The way back needs Admin rights: only what was changed with them is noted.</source>
<translation>O caminho de volta exige direitos de administrador: só é registrado o que foi alterado com eles.</translation>
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
<translation>threads</translation>
</message>
<message>
<source>Tweaks</source>
<translation>Ajustes</translation>
</message>
<message>
<source>Uncheck all</source>
<translation>Desmarcar tudo</translation>
</message>
<message>
<source>under way</source>
<translation>em andamento</translation>
</message>
<message>
<source>Uninstall</source>
<translation>Desinstalar</translation>
</message>
<message>
<source>Uninstall packages</source>
<translation>Desinstalar pacotes</translation>
</message>
<message>
<source>uninstalled:</source>
<translation>desinstalados:</translation>
</message>
<message>
<source>unknown</source>
<translation>desconhecido</translation>
</message>
<message>
<source>UPnP network services</source>
<translation>Serviços de rede UPnP</translation>
</message>
<message>
<source>View auto started programs</source>
<translation>Ver programas de inicialização</translation>
</message>
<message>
<source>View disabled services</source>
<translation>Ver serviços desabilitados</translation>
</message>
<message>
<source>View installed packages</source>
<translation>Ver pacotes instalados</translation>
</message>
<message>
<source>View programs disabled</source>
<translation>Ver programas desabilitados</translation>
</message>
<message>
<source>View started services</source>
<translation>Ver serviços iniciados</translation>
</message>
<message>
<source>View uninstalled packages</source>
<translation>Ver pacotes desinstalados</translation>
</message>
<message>
<source>Way back</source>
<translation>Caminho de volta</translation>
</message>
<message>
<source>Way back…</source>
<translation>Caminho de volta…</translation>
</message>
<message>
<source>What</source>
<translation>O quê</translation>
</message>
<message>
<source>What was changed on this PC isn't noted, so there is no way back by notes.</source>
<translation>As alterações neste PC não são registradas, portanto não há caminho de volta.</translation>
</message>
<message>
<source>When</source>
<translation>Quando</translation>
</message>
<message>
<source>Widget app</source>
<translation>Aplicativo de widgets</translation>
</message>
<message>
<source>Win32PrioritySeparation:   Processor time allocated to applications.</source>
<translation>Win32PrioritySeparation:   tempo de processador alocado aos aplicativos.</translation>
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
<translation>Aplicativo do Windows: ERRO ao instalar %1: </translation>
</message>
<message>
<source>Windows application: ERROR uninstall %1: </source>
<translation>Aplicativo do Windows: ERRO ao desinstalar %1: </translation>
</message>
<message>
<source>Windows application: install %1 done</source>
<translation>Aplicativo do Windows: instalação de %1 concluída</translation>
</message>
<message>
<source>Windows application: uninstall %1 done</source>
<translation>Aplicativo do Windows: desinstalação de %1 concluída</translation>
</message>
<message>
<source>Windows applications</source>
<translation>Aplicativos do Windows</translation>
</message>
<message>
<source>Windows packages installed</source>
<translation>Pacotes do Windows instalados</translation>
</message>
<message>
<source>Windows sharing functionality on a local network (SMB protocol) (eg: connect hard drives, printers on a local network)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>Compartilhamento do Windows em uma rede local (protocolo SMB) (ex.: conectar discos rígidos e impressoras em uma rede local)<byte value="xd"/>
(por padrão não é usado, mas está habilitado!)</translation>
</message>
<message>
<source>With all &amp;later changes</source>
<translation>Com todas as alterações p&amp;osteriores</translation>
</message>
<message>
<source>Would you like to apply option for set indexing attributes of all files in Windows partition?</source>
<translation>Deseja desabilitar a indexação do conteúdo de todos os arquivos da partição do Windows? Isso pode demorar.</translation>
</message>
<message>
<source>Would you like to apply option to set indexing attributes of all files in Windows partition?</source>
<translation>Deseja aplicar agora esta configuração de indexação a todos os arquivos da partição do Windows? Isso pode demorar.</translation>
</message>
<message>
<source>Written: %1</source>
<translation>Gravado: %1</translation>
</message>
<message>
<source>Xbox App</source>
<translation>Aplicativo Xbox</translation>
</message>
<message>
<source>Xbox game bar</source>
<translation>Xbox Game Bar</translation>
</message>
<message>
<source>XBOX Game Bar that appears at the top of the screen, above a game. If you don't use it, uncheck this box</source>
<translation>Xbox Game Bar que aparece na parte superior da tela, sobre o jogo. Se você não a usa, desmarque esta caixa</translation>
</message>
<message>
<source>Yes</source>
<translation>Sim</translation>
</message>
<message>
<source>You must launch this app with Admin rights!</source>
<translation>Você precisa executar este aplicativo como administrador!</translation>
</message>
<message>
<source>You should launch this app with Admin rights!</source>
<translation>É recomendável executar este aplicativo como administrador!</translation>
</message>
<message>
<source>No known effect on today's Windows: write caching is set for each drive elsewhere.</source>
<translation>Sem efeito conhecido no Windows atual: o cache de gravação é definido em outro lugar, por unidade.</translation>
</message>
<message>
<source>No known effect: Windows doesn't read this value.</source>
<translation>Sem efeito conhecido: o Windows não lê este valor.</translation>
</message>
<message>
<source>Saves small writes: Windows no longer records when a file was last read. Needs a restart.</source>
<translation>Evita pequenas gravações: o Windows não registra mais quando um arquivo foi lido pela última vez. Exige reinicialização.</translation>
</message>
<message>
<source>Windows no longer preloads programs: they start more slowly at first, and an SSD gains nothing. Needs a restart.</source>
<translation>O Windows não pré-carrega mais programas: a primeira inicialização fica mais lenta e um SSD não ganha nada. Exige reinicialização.</translation>
</message>
<message>
<source>Windows' default: nothing changes. Taking it back clears the page file at each shutdown, which takes minutes.</source>
<translation>Padrão do Windows: nada muda. Ao desfazer, o arquivo de paginação é limpo a cada desligamento, o que leva minutos.</translation>
</message>
<message>
<source>Each start is a full one: it takes a little longer, and drivers start afresh.</source>
<translation>Cada inicialização é completa: demora um pouco mais e os drivers recomeçam do zero.</translation>
</message>
<message>
<source>Frees the space of hiberfil.sys. The PC can't hibernate any more, and fast startup goes too.</source>
<translation>Libera o espaço de hiberfil.sys. O PC não pode mais hibernar, e a inicialização rápida também se perde.</translation>
</message>
<message>
<source>Takes all files out of the content index: search gets slower and finds less.</source>
<translation>Retira todos os arquivos do índice de conteúdo: a busca fica mais lenta e encontra menos.</translation>
</message>
<message>
<source>No known effect since Windows XP.</source>
<translation>Sem efeito conhecido desde o Windows XP.</translation>
</message>
<message>
<source>Small effect: only for games that register with Windows' multimedia scheduler.</source>
<translation>Efeito pequeno: só para jogos que se registram no agendador multimídia do Windows.</translation>
</message>
<message>
<source>No known effect: Windows reads this setting elsewhere.</source>
<translation>Sem efeito conhecido: o Windows lê esta configuração em outro lugar.</translation>
</message>
<message>
<source>Windows' default: game mode is on already. Taking it back switches it off.</source>
<translation>Padrão do Windows: o modo de jogo já está habilitado. Desfazer o desabilita.</translation>
</message>
<message>
<source>Windows no longer records or broadcasts games. Settings shows this as managed by your organization.</source>
<translation>O Windows não grava nem transmite mais jogos. Configurações mostra isso como gerenciado pela organização.</translation>
</message>
<message>
<source>Windows 11: the default already, and taking it back forces the slower platform timer. Windows 10: no known effect.</source>
<translation>Windows 11: já é o padrão, e desfazer força o temporizador da plataforma, mais lento. Windows 10: sem efeito conhecido.</translation>
</message>
<message>
<source>Partly effective: the Game Bar's tips and the Xbox button are off, but Win+G still opens it.</source>
<translation>Efeito parcial: as dicas da Game Bar e o botão Xbox ficam desabilitados, mas Win+G ainda a abre.</translation>
</message>
<message>
<source>Windows 11: the system timer never pauses, which costs power; needs a restart. Windows 10: nothing changes.</source>
<translation>Windows 11: o temporizador do sistema nunca para, o que gasta energia; exige reinicialização. Windows 10: nada muda.</translation>
</message>
<message>
<source>Shows games without HDR in HDR. Resets other graphics settings such as variable refresh rate.</source>
<translation>Mostra em HDR jogos sem HDR. Redefine outras configurações gráficas, como a taxa de atualização variável.</translation>
</message>
<message>
<source>The pointer moves evenly with the mouse. Takes effect at the next sign-in.</source>
<translation>O ponteiro segue o mouse de modo uniforme. Efeito a partir do próximo logon.</translation>
</message>
<message>
<source>Partly effective: packets are acknowledged at once, not on connections with a fixed address. Needs a restart.</source>
<translation>Efeito parcial: os pacotes são confirmados na hora, exceto com endereço fixo. Exige reinicialização.</translation>
</message>
<message>
<source>38 is what Windows does by default; other choices change it. Taking it back deletes the value.</source>
<translation>38 é o que o Windows faz por padrão; os outros valores mudam isso. Desfazer exclui o valor.</translation>
</message>
<message>
<source>No known effect: neither Direct3D nor drivers read this value today.</source>
<translation>Sem efeito conhecido: nem o Direct3D nem os drivers leem este valor hoje.</translation>
</message>
<message>
<source>May fix flickering and stutter; some videos may run worse. Said to have no effect since Windows 11 24H2. Needs a restart.</source>
<translation>Pode corrigir cintilação e travamentos; alguns vídeos podem piorar. Dizem não ter efeito desde o Windows 11 24H2. Exige reinicialização.</translation>
</message>
<message>
<source>Of use with several AMD graphics cards only; its effect is uncertain. Needs a restart.</source>
<translation>Útil só com várias placas AMD; o efeito é incerto. Exige reinicialização.</translation>
</message>
<message>
<source>Fewer svchost.exe processes, but services are less isolated from each other. Needs a restart.</source>
<translation>Menos processos svchost.exe, mas serviços menos isolados entre si. Exige reinicialização.</translation>
</message>
<message>
<source>Windows' default since version 1803: nothing changes. Taking it back switches the backup on.</source>
<translation>Padrão do Windows desde a versão 1803: nada muda. Desfazer habilita o backup.</translation>
</message>
<message>
<source>Hides the button for advanced options only; indexing goes on.</source>
<translation>Só oculta o botão de opções avançadas; a indexação continua.</translation>
</message>
<message>
<source>File History keeps no older versions of files any more. Recent files are still listed.</source>
<translation>O Histórico de Arquivos não guarda mais versões antigas. Os arquivos recentes continuam listados.</translation>
</message>
<message>
<source>A right-click shows all entries, once Explorer has been restarted. Taking it back leaves the old menu.</source>
<translation>O clique direito mostra todos os itens, após reiniciar o Explorador. Ao desfazer, o menu antigo permanece.</translation>
</message>
<message>
<source>Updates are no longer exchanged with other PCs.</source>
<translation>As atualizações não são mais trocadas com outros PCs.</translation>
</message>
<message>
<source>Less data goes to Microsoft. Clipboard history (Win+V), location and error reports stop working too.</source>
<translation>Menos dados vão para a Microsoft. Também param o histórico da área de transferência (Win+V), a localização e os relatórios de erros.</translation>
</message>
<message>
<source>Menus open faster. At sign-out programs may be closed with unsaved work. Takes effect at the next sign-in.</source>
<translation>Os menus abrem mais rápido. Ao sair, programas com trabalho não salvo podem ser fechados. Efeito a partir do próximo logon.</translation>
</message>
<message>
<source>Windows 11: removes the whole lock screen; some editions ignore it. Windows 10: nothing changes.</source>
<translation>Windows 11: remove toda a tela de bloqueio; algumas edições ignoram isso. Windows 10: nada muda.</translation>
</message>
<message>
<source>Search in Start and on the taskbar stops working. An update may bring it back while this box stays checked.</source>
<translation>A busca no Iniciar e na barra de tarefas para de funcionar. Uma atualização pode trazê-la de volta com esta caixa ainda marcada.</translation>
</message>
<message>
<source>Partly effective: two tasks stay off, but the service comes back at the next sign-in.</source>
<translation>Efeito parcial: duas tarefas ficam desabilitadas, mas o serviço volta no próximo logon.</translation>
</message>
<message>
<source>none changed</source>
<translation>nenhum alterado</translation>
</message>
<message>
<source>an empty key</source>
<translation>uma chave vazia</translation>
</message>
<message>
<source>yes</source>
<translation>sim</translation>
</message>
<message>
<source>no</source>
<translation>não</translation>
</message>
<message>
<source>%1 values</source>
<translation>%1 valores</translation>
</message>
<message>
<source>%1 changed</source>
<translation>%1 alterados</translation>
</message>
<message>
<source>%1 as before</source>
<translation>%1 como antes</translation>
</message>
<message>
<source>%1 otherwise</source>
<translation>%1 de outro modo</translation>
</message>
<message>
<source>%1 stay changed</source>
<translation>%1 continuam alterados</translation>
</message>
<message>
<source>start mode</source>
<translation>tipo de inicialização</translation>
</message>
<message>
<source>delayed start</source>
<translation>início atrasado</translation>
</message>
<message>
<source>state</source>
<translation>estado</translation>
</message>
<message>
<source>the key itself</source>
<translation>a própria chave</translation>
</message>
<message>
<source>the file</source>
<translation>o arquivo</translation>
</message>
<message>
<source>its attributes</source>
<translation>seus atributos</translation>
</message>
<message>
<source>its owner and permissions</source>
<translation>seu proprietário e suas permissões</translation>
</message>
<message>
<source>in the boot configuration</source>
<translation>na configuração de inicialização</translation>
</message>
<message>
<source>Records of what was done</source>
<translation>Registros do que foi feito</translation>
</message>
<message>
<source>Log and backups beside the program</source>
<translation>Log e backups ao lado do programa</translation>
</message>
<message>
<source>Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically.</source>
<translation>Restaurar inicia cada serviço que a otimização desabilitou e o define como automático: um serviço que iniciava sob demanda ou com atraso agora inicia automaticamente.</translation>
</message>
<message>
<source>Optimize does not record services that it sets to manual, so Restore doesn't know of them.</source>
<translation>A otimização não anota os serviços que define como manuais, portanto restaurar não os conhece.</translation>
</message>
<message>
<source>Restore enables only the tasks that Optimize has recorded.</source>
<translation>Restaurar habilita só as tarefas que a otimização anotou.</translation>
</message>
<message>
<source>Restore re-registers the app from its files, as Windows itself does for a new user.</source>
<translation>Restaurar registra de novo o aplicativo a partir dos seus arquivos, como o Windows faz para um novo usuário.</translation>
</message>
<message>
<source>The app comes back as newly installed, without what it had stored.</source>
<translation>O aplicativo volta como recém-instalado, sem o que havia guardado.</translation>
</message>
<message>
<source>Restore re-registers an app from its files, which could not be found.</source>
<translation>Restaurar registra de novo um aplicativo a partir dos seus arquivos, que não foram encontrados.</translation>
</message>
<message>
<source>The saved command is cut at its first "=", so the program starts without the rest of its arguments.</source>
<translation>O comando salvo é cortado no primeiro “=”, portanto o programa inicia sem o resto dos argumentos.</translation>
</message>
<message>
<source>Restore brings back only a command whose program is in quotation marks and exists on the disk.</source>
<translation>Restaurar traz de volta só um comando cujo programa está entre aspas e existe no disco.</translation>
</message>
<message>
<source>Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it.</source>
<translation>Restaurar não sabe o que você tinha: grava um valor fixo, quase sempre o padrão do Windows, ou o exclui.</translation>
</message>
<message>
<source>Restore doesn't reset this option, or not all of its values.</source>
<translation>Restaurar não redefine esta opção, ou não todos os seus valores.</translation>
</message>
<message>
<source>The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway.</source>
<translation>A opção já estava como a otimização quer, ou não faz parte dela; restaurar a redefine mesmo assim.</translation>
</message>
<message>
<source>Restore doesn't touch this file.</source>
<translation>Restaurar não mexe neste arquivo.</translation>
</message>
<message>
<source>Restore doesn't touch this value.</source>
<translation>Restaurar não mexe neste valor.</translation>
</message>
<message>
<source>Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it stops there: what is changed by then stays changed.</source>
<translation>Altera tudo o que a análise encontrou, o que demora um pouco. Se você fechar a janela nesse meio-tempo, para por aí: o que já foi alterado continua alterado.</translation>
</message>
<message>
<source>Acts on all checked packages at once, without asking. The list stays as it is until the page is shown again.</source>
<translation>Age imediatamente sobre todos os pacotes marcados, sem perguntar. A lista fica como está até a página ser exibida de novo.</translation>
</message>
<message>
<source>Nothing changes either.</source>
<translation>Também não muda nada.</translation>
</message>
<message>
<source>Last access times are recorded again, but Windows no longer decides about them by itself.</source>
<translation>Os últimos acessos voltam a ser registrados, mas o Windows não decide mais isso sozinho.</translation>
</message>
<message>
<source>The default is back.</source>
<translation>O padrão volta a valer.</translation>
</message>
<message>
<source>The defaults are back.</source>
<translation>Os padrões voltam a valer.</translation>
</message>
<message>
<source>The page file is cleared at each shutdown, which isn't the default and takes minutes.</source>
<translation>O arquivo de paginação é limpo a cada desligamento, o que não é o padrão e leva minutos.</translation>
</message>
<message>
<source>Hibernation is on, even if it was off before, and takes its space again.</source>
<translation>A hibernação fica habilitada, mesmo que antes não estivesse, e volta a ocupar espaço.</translation>
</message>
<message>
<source>The attribute is cleared, even where Windows or you had set it.</source>
<translation>O atributo é removido, mesmo onde o Windows ou você o havia definido.</translation>
</message>
<message>
<source>Some priorities stay higher than the default.</source>
<translation>Algumas prioridades continuam acima do padrão.</translation>
</message>
<message>
<source>Game mode is off, and the default is on.</source>
<translation>O modo de jogo fica desabilitado, e o padrão é habilitado.</translation>
</message>
<message>
<source>Recording is allowed; Settings still shows it as managed.</source>
<translation>A gravação é permitida; Configurações ainda a mostra como gerenciada.</translation>
</message>
<message>
<source>On Windows 11 the platform timer is forced on, which may slow down games; the default is no entry at all.</source>
<translation>No Windows 11 o temporizador da plataforma é forçado, o que pode deixar os jogos mais lentos; o padrão é não haver entrada.</translation>
</message>
<message>
<source>The same effect as the default.</source>
<translation>O mesmo efeito do padrão.</translation>
</message>
<message>
<source>Auto HDR is off.</source>
<translation>O Auto HDR fica desabilitado.</translation>
</message>
<message>
<source>The values are deleted, which is the default.</source>
<translation>Os valores são excluídos, o que é o padrão.</translation>
</message>
<message>
<source>The value is deleted. It is there by default, and what Windows does without it is uncertain.</source>
<translation>O valor é excluído. Por padrão ele existe, e o que o Windows faz sem ele é incerto.</translation>
</message>
<message>
<source>ULPS is switched on, even for adapters that never had it.</source>
<translation>O ULPS é habilitado, mesmo em placas que nunca o tiveram.</translation>
</message>
<message>
<source>The same effect as the default on a PC with more than 3.5 GB of memory.</source>
<translation>O mesmo efeito do padrão em um PC com mais de 3,5 GB de memória.</translation>
</message>
<message>
<source>The backup is on, which isn't the default and does no harm.</source>
<translation>O backup fica habilitado, o que não é o padrão e não faz mal.</translation>
</message>
<message>
<source>The button is back.</source>
<translation>O botão volta.</translation>
</message>
<message>
<source>File History is allowed again.</source>
<translation>O Histórico de Arquivos volta a ser permitido.</translation>
</message>
<message>
<source>The old menu stays: key and empty value are left.</source>
<translation>O menu antigo permanece: a chave e o valor vazio continuam.</translation>
</message>
<message>
<source>Some values are less private than before: diagnostic data in full, suggestions on, synchronization on.</source>
<translation>Alguns valores são menos privados que antes: dados de diagnóstico completos, sugestões e sincronização habilitadas.</translation>
</message>
<message>
<source>The lock screen is back.</source>
<translation>A tela de bloqueio volta.</translation>
</message>
<message>
<source>The program is back; its owner and rights stay changed.</source>
<translation>O programa volta; seu proprietário e suas permissões continuam alterados.</translation>
</message>
<message>
<source>as now</source>
<translation>como agora</translation>
</message>
<message>
<source>written</source>
<translation>gravado</translation>
</message>
<message>
<source>kept</source>
<translation>mantido</translation>
</message>
<message>
<source>as before</source>
<translation>como antes</translation>
</message>
</context>
</TS>
