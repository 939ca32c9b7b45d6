<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<!-- One context for all: see cmake/translations.cmake. -->
<context>
<name>texts</name>
<message>
<source>  20   (variable and long quantum, foreground boost X1)</source>
<translation>  20   （可变长时间片，前台提升 X1）</translation>
</message>
<message>
<source>  21   (variable and long quantum, foreground boost X2)</source>
<translation>  21   （可变长时间片，前台提升 X2）</translation>
</message>
<message>
<source>  22   (variable and long quantum, foreground boost X3)</source>
<translation>  22   （可变长时间片，前台提升 X3）</translation>
</message>
<message>
<source>  24   (fixed and long quantum, foreground boost X1) (not recommended)</source>
<translation>  24   （固定长时间片，前台提升 X1）（不推荐）</translation>
</message>
<message>
<source>  36   (variable and short quantum, foreground boost X1)</source>
<translation>  36   （可变短时间片，前台提升 X1）</translation>
</message>
<message>
<source>  37   (variable and short quantum, foreground boost X2)</source>
<translation>  37   （可变短时间片，前台提升 X2）</translation>
</message>
<message>
<source>  38   (variable and short quantum, foreground boost X3) (recommended)</source>
<translation>  38   （可变短时间片，前台提升 X3）（推荐）</translation>
</message>
<message>
<source>  40   (fixed and short quantum, foreground boost X1) (not recommended)</source>
<translation>  40   （固定短时间片，前台提升 X1）（不推荐）</translation>
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;版本：   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;内部版本：   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;显示版本：   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;安装在 SSD 上：   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;主板：&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;型号：   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;BIOS 版本：   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;BIOS 日期：   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;处理器：&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;默认频率：   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;内核 / 线程：   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;L2 缓存大小：   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;L3 缓存大小：   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;插槽：   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading:   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;虚拟化：   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;内存：&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;容量：   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;可用：   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;频率：   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;外形规格：   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;虚拟内存：   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;显卡和屏幕：&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;驱动程序版本：   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;驱动程序日期：   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;屏幕：   正在加载屏幕信息...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;分辨率：   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;最大分辨率：   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;刷新率：   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;最大刷新率：   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR:   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;磁盘：&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;正在加载磁盘信息...&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;版本：&lt;/span&gt;   测试版 %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;日期：&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;作者：&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;联系方式：&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;网站：&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;编程语言和框架：&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ 与 Qt 6，采用 GNU LGPL 第 3 版许可&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;为 Windows 10 和 Windows 11 开发&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;目的：&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;此应用旨在提高整体性能而不改变 Windows 的本质，帮助你禁用所有可能多余且影响性能的功能、程序、服务和计划任务。它还会配置一些无法通过界面访问的系统内部功能，其他选项可减少 Windows 在硬盘上占用的空间。（卸载不必要的 Windows 应用、清理 WinSxS 文件夹等）&lt;br /&gt;只需单击几下即可完成，并且可以还原为原始值。 &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;重要信息：&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;此应用中的所有选项都是可逆的。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;请谨慎使用“服务”部分。如果你不清楚服务的用途、依赖关系等，请勿禁用。请使用“助手”按钮！！！&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- 固定时间片：处理器时间在应用程序之间平均分配，&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;而可变时间片允许应用程序在需要时占用处理器更长时间。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- 短时间片：处理器时间在任务之间切换更快，&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;而长时间片则为应用程序分配更多处理器时间。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- 前台提升 X 倍：时间片增加 X 倍，&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;有利于前台应用程序。&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;在纯游戏场景中，根据所选的值，可提高 FPS（22, 21）、&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;FPS 和响应能力（38, 37），或降低键盘/鼠标或手柄的延迟（36, 24, 40）。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;了解更多&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Advanced optimizations via motherboard BIOS settings &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;通过主板 BIOS 设置进行高级优化 &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;了解更多&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft acknowledges performance impact with Memory Integrity and VMP enabled &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft 承认启用内存完整性和 VMP 会影响性能 &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;了解更多&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;The WinSxS folder is an essential system component that serves as a repository for storing multiple versions of system files, allowing Windows to maintain good compatibility &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;WinSxS 文件夹是重要的系统组件，用于存储系统文件的多个版本，使 Windows 保持良好的兼容性 &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;了解更多&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>%1 bytes</source>
<translation>%1 字节</translation>
</message>
<message>
<source>%1 of %2 are as they were.</source>
<translation>%2 项中有 %1 项与原来相同。</translation>
</message>
<message>
<source>&amp;Sessions:</source>
<translation>会话(&amp;S)：</translation>
</message>
<message>
<source>Clear the search</source>
<translation>清除搜索</translation>
</message>
<message>
<source>Preview…</source>
<translation>预览…</translation>
</message>
<message>
<source>Preview of Optimize</source>
<translation>优化预览</translation>
</message>
<message>
<source>After Optimize</source>
<translation>优化后</translation>
</message>
<message>
<source>After Restore</source>
<translation>还原后</translation>
</message>
<message>
<source>Comes back</source>
<translation>能否还原</translation>
</message>
<message>
<source>Progress</source>
<translation>进度</translation>
</message>
<message>
<source>exactly</source>
<translation>完全还原</translation>
</message>
<message>
<source>as a fixed value</source>
<translation>还原为固定值</translation>
</message>
<message>
<source>It is in the Store: %1</source>
<translation>可在 Store 中获取：%1</translation>
</message>
<message>
<source>not at all</source>
<translation>不能还原</translation>
</message>
<message>
<source>by Restore only</source>
<translation>仅由还原更改</translation>
</message>
<message>
<source>%1 come back exactly</source>
<translation>%1 项完全还原</translation>
</message>
<message>
<source>%1 as a fixed value</source>
<translation>%1 项还原为固定值</translation>
</message>
<message>
<source>%1 not at all</source>
<translation>%1 项不能还原</translation>
</message>
<message>
<source>%1 are changed by Restore only</source>
<translation>%1 项仅由还原更改</translation>
</message>
<message>
<source>Programs started at logon</source>
<translation>登录时启动的程序</translation>
</message>
<message>
<source>System options</source>
<translation>系统选项</translation>
</message>
<message>
<source>Files</source>
<translation>文件</translation>
</message>
<message>
<source>Other registry values</source>
<translation>其他注册表值</translation>
</message>
<message>
<source>Kestrune's own records</source>
<translation>Kestrune 自己的记录</translation>
</message>
<message>
<source>Copying this PC…</source>
<translation>正在复制此电脑…</translation>
</message>
<message>
<source>Trying it on a copy…</source>
<translation>正在副本上试运行…</translation>
</message>
<message>
<source>Trying it on the copy…</source>
<translation>正在该副本上试运行…</translation>
</message>
<message>
<source>There is no preview: %1</source>
<translation>无法预览：%1</translation>
</message>
<message>
<source>What the next Optimize would change, and what the Restore button would bring back:</source>
<translation>下次优化会更改的内容，以及“还原”按钮会恢复的内容：</translation>
</message>
<message>
<source>“Way back…” brings back more than Restore: what was noted before each change.</source>
<translation>“撤回更改…”比还原恢复得更多：每次更改前记录的内容。</translation>
</message>
<message>
<source>This PC was looked at without Admin rights: what needs them is missing here.</source>
<translation>此电脑是在没有管理员权限的情况下检查的：此处缺少需要该权限的内容。</translation>
</message>
<message>
<source>With Admin rights a preview needs a copy of this app that nobody else can change, such as the installer makes in the folder for programs. Without Admin rights it works from any folder.</source>
<translation>使用管理员权限预览时，需要一份其他人无法更改的本应用副本，例如安装程序放在程序文件夹中的副本。没有管理员权限时，可在任何文件夹中预览。</translation>
</message>
<message>
<source>A preview needs the folder “rehearse” of this app, which isn't there.</source>
<translation>预览需要本应用的“rehearse”文件夹，但此处没有。</translation>
</message>
<message>
<source>Windows was updated from build %1 to %2 since. No longer in force: %3.</source>
<translation>此后 Windows 已从内部版本 %1 更新到 %2。不再有效：%3。</translation>
</message>
<message>
<source>automatic (delayed)</source>
<translation>自动（延迟启动）</translation>
</message>
<message>
<source>not installed</source>
<translation>未安装</translation>
</message>
<message>
<source>starts</source>
<translation>启动</translation>
</message>
<message>
<source>doesn't start</source>
<translation>不启动</translation>
</message>
<message>
<source>your setting</source>
<translation>你的设置</translation>
</message>
<message>
<source>applied</source>
<translation>已应用</translation>
</message>
<message>
<source>applied in part</source>
<translation>部分应用</translation>
</message>
<message>
<source>a fixed value</source>
<translation>固定值</translation>
</message>
<message>
<source>not there</source>
<translation>不存在</translation>
</message>
<message>
<source>but not as before</source>
<translation>但与之前不同</translation>
</message>
<message>
<source>Before the journal, not exact</source>
<translation>日志开始之前，不精确</translation>
</message>
<message>
<source>%1 (by the system)</source>
<translation>%1（由系统执行）</translation>
</message>
<message>
<source>%1 (by another account)</source>
<translation>%1（由其他帐户执行）</translation>
</message>
<message>
<source>Page: %1</source>
<translation>页面：%1</translation>
</message>
<message>
<source>&amp;Take back</source>
<translation>撤回(&amp;T)</translation>
</message>
<message>
<source>Clean-up of the WinSxS folder</source>
<translation>清理 WinSxS 文件夹</translation>
</message>
<message>
<source>Windows keeps no copy of what this removes</source>
<translation>Windows 不会保留被删除内容的副本</translation>
</message>
<message>
<source>its files are gone from this PC; get it from the Store</source>
<translation>其文件已不在此电脑上；可从 Store 获取</translation>
</message>
<message>
<source>Not everything was done.</source>
<translation>并非所有操作都已完成。</translation>
</message>
<message>
<source>a later session has changed it, too</source>
<translation>之后的会话也更改了它</translation>
</message>
<message>
<source>A newer version of Kestrune is available!<byte value="xd"/>
Would you like to visit the website for download?<byte value="xd"/>
<byte value="xd"/>
Current version: %1<byte value="xd"/>
Online version: %2</source>
<translation>Kestrune 有新版本可用！<byte value="xd"/>
是否访问网站进行下载？<byte value="xd"/>
<byte value="xd"/>
当前版本：%1<byte value="xd"/>
在线版本：%2</translation>
</message>
<message>
<source>About</source>
<translation>关于</translation>
</message>
<message>
<source>absent</source>
<translation>不存在</translation>
</message>
<message>
<source>Add indexing attribute of %1 finished</source>
<translation>添加 %1 的索引属性完成</translation>
</message>
<message>
<source>Add indexing attribute of Windows partition %1</source>
<translation>添加 Windows 分区 %1 的索引属性</translation>
</message>
<message>
<source>Apply a profile</source>
<translation>应用配置文件</translation>
</message>
<message>
<source>Analyze</source>
<translation>分析</translation>
</message>
<message>
<source>Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring some that are inaccessible through an interface.
Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages.</source>
<translation>分析并优化 Windows，通过禁用不必要的功能并配置某些无法通过界面访问的功能来提高整体性能。
优化项目来自“服务”、“计划任务”、“程序”和“功能”页面。</translation>
</message>
<message>
<source>Application to play PC games if you have a Gamepass account (paid)</source>
<translation>使用 Game Pass 订阅（付费）玩电脑游戏的应用</translation>
</message>
<message>
<source>Apply</source>
<translation>应用</translation>
</message>
<message>
<source>Apply features</source>
<translation>应用功能</translation>
</message>
<message>
<source>Apply features finished successfully.</source>
<translation>功能已成功应用。</translation>
</message>
<message>
<source>Are you sure to disable all checked services?</source>
<translation>确定要禁用所有选中的服务吗？</translation>
</message>
<message>
<source>Are you sure to disable all checked tasks?</source>
<translation>确定要禁用所有选中的任务吗？</translation>
</message>
<message>
<source>Are you sure you want to restore the original values?<byte value="xd"/>
All features, applications, services and tasks will be restored.</source>
<translation>确定要还原原始值吗？<byte value="xd"/>
所有功能、应用程序、服务和任务都将还原。</translation>
</message>
<message>
<source>Are you sure you want to restore the startup of all scheduled tasks?</source>
<translation>确定要还原所有计划任务的启动吗？</translation>
</message>
<message>
<source>as it was</source>
<translation>与原来相同</translation>
</message>
<message>
<source>ASSISTANT - disable a list of non vital services</source>
<translation>助手 - 禁用一组非关键服务</translation>
</message>
<message>
<source>ASSISTANT - disable a list of scheduled tasks</source>
<translation>助手 - 禁用一组计划任务</translation>
</message>
<message>
<source>Assistant - no services to deactivate</source>
<translation>助手 - 没有要禁用的服务</translation>
</message>
<message>
<source>Assistant - no tasks to deactivate</source>
<translation>助手 - 没有要禁用的任务</translation>
</message>
<message>
<source>at boot</source>
<translation>引导时</translation>
</message>
<message>
<source>Attributes of %1</source>
<translation>%1 的属性</translation>
</message>
<message>
<source>Auto</source>
<translation>自动</translation>
</message>
<message>
<source>Auto started programs disabled:</source>
<translation>已禁用的自启动程序：</translation>
</message>
<message>
<source>automatic</source>
<translation>自动</translation>
</message>
<message>
<source>Automatic start</source>
<translation>自动启动</translation>
</message>
<message>
<source>Automatically started programs</source>
<translation>自动启动的程序</translation>
</message>
<message>
<source>Autorun</source>
<translation>启动项</translation>
</message>
<message>
<source>Autorun program: disable %1 done</source>
<translation>自启动程序：已禁用 %1</translation>
</message>
<message>
<source>Autorun program: enable %1 done</source>
<translation>自启动程序：已启用 %1</translation>
</message>
<message>
<source>Autorun:</source>
<translation>启动项：</translation>
</message>
<message>
<source>Autorun: can be disabled: </source>
<translation>启动项：可以禁用： </translation>
</message>
<message>
<source>Backup file exists</source>
<translation>备份文件已存在</translation>
</message>
<message>
<source>Before</source>
<translation>之前</translation>
</message>
<message>
<source>Bluetooth audio</source>
<translation>蓝牙音频</translation>
</message>
<message>
<source>Boot option %1</source>
<translation>启动选项 %1</translation>
</message>
<message>
<source>broken off</source>
<translation>已中断</translation>
</message>
<message>
<source>Broken off: way back…</source>
<translation>已中断：撤回更改…</translation>
</message>
<message>
<source>by the system</source>
<translation>由系统</translation>
</message>
<message>
<source>Cancel</source>
<translation>取消</translation>
</message>
<message>
<source>Cannot restore if you have not yet optimized!</source>
<translation>尚未进行优化，无法还原！</translation>
</message>
<message>
<source>Another instance of the program is changing this PC. Try again when it has finished.</source>
<translation>该程序的另一个实例正在更改此电脑。请在其完成后重试。</translation>
</message>
<message>
<source>Capacity:</source>
<translation>容量：</translation>
</message>
<message>
<source>Change</source>
<translation>更改</translation>
</message>
<message>
<source>changed</source>
<translation>已更改</translation>
</message>
<message>
<source>changed again</source>
<translation>再次更改</translation>
</message>
<message>
<source>Changes</source>
<translation>更改数</translation>
</message>
<message>
<source>Check all</source>
<translation>全部选中</translation>
</message>
<message>
<source>Check update of Kestrune version</source>
<translation>检查 Kestrune 更新</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool</source>
<translation>使用 Microsoft DISM 工具清理 WinSxS 文件夹</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)</source>
<translation>使用 Microsoft DISM 工具清理 WinSxS 文件夹  （当前大小：%1 GB）</translation>
</message>
<message>
<source>Close</source>
<translation>关闭</translation>
</message>
<message>
<source>Comments</source>
<translation>备注</translation>
</message>
<message>
<source>Configure auto started programs done!</source>
<translation>自启动程序配置完成！</translation>
</message>
<message>
<source>Content indexing off</source>
<translation>关闭内容索引</translation>
</message>
<message>
<source>Content indexing on</source>
<translation>开启内容索引</translation>
</message>
<message>
<source>CPU</source>
<translation>CPU</translation>
</message>
<message>
<source>Dark</source>
<translation>深色</translation>
</message>
<message>
<source>Date of the last execution</source>
<translation>上次执行日期</translation>
</message>
<message>
<source>Description</source>
<translation>描述</translation>
</message>
<message>
<source>Development applet</source>
<translation>开发小程序</translation>
</message>
<message>
<source>Disable advanced indexing options</source>
<translation>禁用高级索引选项</translation>
</message>
<message>
<source>Disable automatic boot disk optimization</source>
<translation>禁用启动磁盘自动优化</translation>
</message>
<message>
<source>Disable checked programs</source>
<translation>禁用选中的程序</translation>
</message>
<message>
<source>DISABLE checked services</source>
<translation>禁用选中的服务</translation>
</message>
<message>
<source>Disable checked services</source>
<translation>禁用选中的服务</translation>
</message>
<message>
<source>Disable checked services finished</source>
<translation>已完成禁用选中的服务</translation>
</message>
<message>
<source>DISABLE checked tasks</source>
<translation>禁用选中的任务</translation>
</message>
<message>
<source>Disable clearing of virtual memory swap file on every shutdown</source>
<translation>禁用每次关机时清除虚拟内存页面文件</translation>
</message>
<message>
<source>Disable cloud backup and restore functionalities</source>
<translation>禁用云备份和还原功能</translation>
</message>
<message>
<source>Disable CPU power throttling
(power-saving feature, optimization not recommended for laptop)</source>
<translation>禁用 CPU 电源限制
（节能功能，不建议在笔记本电脑上优化）</translation>
</message>
<message>
<source>Disable distribution optimization of Windows updates</source>
<translation>禁用 Windows 更新的传递优化</translation>
</message>
<message>
<source>Disable dynamic tick of system timers
(power-saving feature, optimization not recommended for laptop)</source>
<translation>禁用系统计时器的动态时钟周期
（节能功能，不建议在笔记本电脑上优化）</translation>
</message>
<message>
<source>Disable enhance pointer precision
(to achieve precise mouse control and muscle memory)</source>
<translation>禁用提高指针精确度
（实现精确的鼠标控制和肌肉记忆）</translation>
</message>
<message>
<source>Disable fast start-up  (Windows function designed for HDD and not SSD)</source>
<translation>禁用快速启动  （为 HDD 而非 SSD 设计的 Windows 功能）</translation>
</message>
<message>
<source>Disable files history (even in explorer)</source>
<translation>禁用文件历史记录（包括在资源管理器中）</translation>
</message>
<message>
<source>Disable game recording and broadcasting</source>
<translation>禁用游戏录制和直播</translation>
</message>
<message>
<source>Disable Gamebar</source>
<translation>禁用 Game Bar</translation>
</message>
<message>
<source>Disable hibernation mode</source>
<translation>禁用休眠模式</translation>
</message>
<message>
<source>Disable hibernation mode  (gain %1 GB of storage space)</source>
<translation>禁用休眠模式  （节省 %1 GB 存储空间）</translation>
</message>
<message>
<source>Disable HPET  (High Precision Event Timer)
(use invariant TSC instead which may be faster for gaming)
(important: do not disable HPET in BIOS settings)</source>
<translation>禁用 HPET  （High Precision Event Timer）
（使用不变 TSC，对游戏来说可能更快）
（重要：请勿在 BIOS 设置中禁用 HPET）</translation>
</message>
<message>
<source>Disable last access time stamps  (NTFS drive only)</source>
<translation>禁用上次访问时间戳  （仅限 NTFS 驱动器）</translation>
</message>
<message>
<source>Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)</source>
<translation>禁用 LockApp.exe  （lockapp.exe 可在锁屏上显示更多信息）</translation>
</message>
<message>
<source>Disable Multiplane Overlay (MPO)
(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,
especially for video playback apps)</source>
<translation>禁用 Multiplane Overlay（MPO）
（可能解决某些屏幕闪烁/卡顿问题，但会失去部分全屏优化，
对视频播放应用尤其如此）</translation>
</message>
<message>
<source>Disable Nagle’s Algorithm
(may improve the real-time responsiveness of your network connection, but may increase traffic)</source>
<translation>禁用 Nagle 算法
（可能提高网络连接的实时响应能力，但可能增加流量）</translation>
</message>
<message>
<source>Disable periodic registry backup</source>
<translation>禁用注册表定期备份</translation>
</message>
<message>
<source>Disable Prefetcher  (prevents preloading of applications)</source>
<translation>禁用 Prefetcher  （阻止预加载应用程序）</translation>
</message>
<message>
<source>Disable programs</source>
<translation>禁用程序</translation>
</message>
<message>
<source>Disable scheduled tasks</source>
<translation>禁用计划任务</translation>
</message>
<message>
<source>Disable scheduled tasks completed successfully</source>
<translation>计划任务禁用成功完成</translation>
</message>
<message>
<source>Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)</source>
<translation>禁用 SearchHost.exe  （搜索文件的进程。禁用后高级搜索可能无法正常工作）</translation>
</message>
<message>
<source>Disable services</source>
<translation>禁用服务</translation>
</message>
<message>
<source>Disable SvcHost splitting  (reduce the number of svchost.exe process)</source>
<translation>禁用 SvcHost 拆分  （减少 svchost.exe 进程数）</translation>
</message>
<message>
<source>Disable telemetry (data collection for Microsoft)
(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)</source>
<translation>禁用遥测（为 Microsoft 收集数据）
（其他遥测在“服务”、“计划任务”或“优化器”页面中禁用）</translation>
</message>
<message>
<source>Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)
(power-saving feature, optimization not recommended for laptop)</source>
<translation>禁用 ULPS  （Ultra Low Power State，仅适用于 AMD 显卡）
（节能功能，不建议在笔记本电脑上优化）</translation>
</message>
<message>
<source>Disable Windows write-cache buffer flushing</source>
<translation>禁用 Windows 写入缓存缓冲区刷新</translation>
</message>
<message>
<source>Disabled</source>
<translation>禁用</translation>
</message>
<message>
<source>disabled</source>
<translation>已禁用</translation>
</message>
<message>
<source>disabled:</source>
<translation>已禁用：</translation>
</message>
<message>
<source>disabled:</source>
<comment>tasks</comment>
<translation>已禁用：</translation>
</message>
<message>
<source>DISK</source>
<translation>磁盘</translation>
</message>
<message>
<source>Display name</source>
<translation>显示名称</translation>
</message>
<message>
<source>display threads and handles count</source>
<translation>显示线程数和句柄数</translation>
</message>
<message>
<source>Do you want to restore start mode option of all services?<byte value="xd"/>
<byte value="xd"/>
If you click No (recommended),<byte value="xd"/>
then restore only the services you have disabled</source>
<translation>是否还原所有服务的启动类型？<byte value="xd"/>
<byte value="xd"/>
如果单击“否”（推荐），<byte value="xd"/>
则仅还原你禁用的服务</translation>
</message>
<message>
<source>Do you want to start this app with Admin rights?</source>
<translation>是否以管理员身份重新启动此应用？</translation>
</message>
<message>
<source>done</source>
<translation>完成</translation>
</message>
<message>
<source>Enable Auto HDR  (forces HDR mode on SDR content)</source>
<translation>启用自动 HDR  （对 SDR 内容强制使用 HDR 模式）</translation>
</message>
<message>
<source>Enable checked programs</source>
<translation>启用选中的程序</translation>
</message>
<message>
<source>ENABLE checked services</source>
<translation>启用选中的服务</translation>
</message>
<message>
<source>Enable checked services finished</source>
<translation>已完成启用选中的服务</translation>
</message>
<message>
<source>Enable game mode  (enabled by default)</source>
<translation>启用游戏模式  （默认启用）</translation>
</message>
<message>
<source>Enable programs</source>
<translation>启用程序</translation>
</message>
<message>
<source>Enable services</source>
<translation>启用服务</translation>
</message>
<message>
<source>Enable the context menu like Windows 10  (all entries in the context menu are displayed)</source>
<translation>启用 Windows 10 样式的上下文菜单  （显示所有菜单项）</translation>
</message>
<message>
<source>enabled</source>
<translation>已启用</translation>
</message>
<message>
<source>enabled:</source>
<translation>已启用：</translation>
</message>
<message>
<source>English</source>
<translation>English</translation>
</message>
<message>
<source>error</source>
<translation>错误</translation>
</message>
<message>
<source>Features</source>
<translation>功能</translation>
</message>
<message>
<source>Features applied successfully. Restart your PC!</source>
<translation>功能应用成功。请重新启动电脑！</translation>
</message>
<message>
<source>Features: %1 improvements can be applied</source>
<translation>功能：可应用 %1 项改进</translation>
</message>
<message>
<source>Features: applied successfully. Restart your PC!</source>
<translation>功能：应用成功。请重新启动电脑！</translation>
</message>
<message>
<source>Features: applies Gaming optimizations</source>
<translation>功能：应用游戏优化</translation>
</message>
<message>
<source>Features: applies SSD optimizations</source>
<translation>功能：应用 SSD 优化</translation>
</message>
<message>
<source>Features: applies Windows optimizations</source>
<translation>功能：应用 Windows 优化</translation>
</message>
<message>
<source>Features: Battery detected! Some optimizations will not be applied to maintain battery life</source>
<translation>功能：检测到电池！为保持电池续航，某些优化将不会应用</translation>
</message>
<message>
<source>Features: reset Gaming optimizations</source>
<translation>功能：重置游戏优化</translation>
</message>
<message>
<source>Features: reset SSD optimizations</source>
<translation>功能：重置 SSD 优化</translation>
</message>
<message>
<source>Features: reset Windows optimizations</source>
<translation>功能：重置 Windows 优化</translation>
</message>
<message>
<source>File %1</source>
<translation>文件 %1</translation>
</message>
<message>
<source>Files sharing</source>
<translation>文件共享</translation>
</message>
<message>
<source>finished</source>
<translation>完成</translation>
</message>
<message>
<source>Folder for the files of the way back</source>
<translation>撤回文件的文件夹</translation>
</message>
<message>
<source>Français</source>
<translation>Français</translation>
</message>
<message>
<source>free memory</source>
<translation>可用内存</translation>
</message>
<message>
<source>free on</source>
<translation>可用空间</translation>
</message>
<message>
<source>GAMING</source>
<translation>游戏</translation>
</message>
<message>
<source>Get system info:</source>
<translation>获取系统信息：</translation>
</message>
<message>
<source>Get WinSxS folder size in features page</source>
<translation>在“功能”页面中获取 WinSxS 文件夹大小</translation>
</message>
<message>
<source>GPU</source>
<translation>GPU</translation>
</message>
<message>
<source>Grayed out services are considered necessary or critical</source>
<translation>灰显的服务被视为必需或关键服务</translation>
</message>
<message>
<source>Grayed out services refer to those disabled outside this tab</source>
<translation>灰显的服务是在此选项卡之外禁用的</translation>
</message>
<message>
<source>handles</source>
<translation>句柄</translation>
</message>
<message>
<source>Hibernation</source>
<translation>休眠</translation>
</message>
<message>
<source>If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this</source>
<translation>如果没有通过蓝牙连接的耳机或音频设备，可以取消选中此项</translation>
</message>
<message>
<source>If you don't have any printers, you can uncheck this</source>
<translation>如果没有打印机，可以取消选中此项</translation>
</message>
<message>
<source>Increase maximum amount of physical memory that can be locked for I/O operations</source>
<translation>增加可为 I/O 操作锁定的最大物理内存量</translation>
</message>
<message>
<source>Install</source>
<translation>安装</translation>
</message>
<message>
<source>Install packages</source>
<translation>安装程序包</translation>
</message>
<message>
<source>installed</source>
<translation>已安装</translation>
</message>
<message>
<source>Intelligent personal assistant</source>
<translation>智能个人助手</translation>
</message>
<message>
<source>Interface language:</source>
<translation>界面语言：</translation>
</message>
<message>
<source>Interface type:</source>
<translation>接口类型：</translation>
</message>
<message>
<source>Internal system features that can slow down your PC unnecessarily.
Check them to optimize or uncheck them to restore defaults.</source>
<translation>可能会不必要地降低电脑速度的系统内部功能。
选中以进行优化，取消选中以恢复默认值。</translation>
</message>
<message>
<source>interval in seconds:</source>
<translation>间隔（秒）：</translation>
</message>
<message>
<source>it didn't come back</source>
<translation>未能恢复</translation>
</message>
<message>
<source>Keep features</source>
<translation>保留功能</translation>
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
<translation>浅色</translation>
</message>
<message>
<source>List of currently started services.
Services are programs that run in the background for various reasons and purposes. Some of them are essential, while others may be superfluous and consume CPU, memory and disk resources unnecessarily.</source>
<translation>当前已启动服务的列表。
服务是出于各种原因和目的在后台运行的程序。有些必不可少，有些则可能是多余的，会不必要地消耗 CPU、内存和磁盘资源。</translation>
</message>
<message>
<source>List of enabled scheduled tasks.
Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily.</source>
<translation>已启用的计划任务列表。
计划任务是出于各种原因在特定时间（或事件）在后台运行的程序。其中一些可能是不必要的，会无谓地消耗 CPU、内存和磁盘资源。</translation>
</message>
<message>
<source>List of programs started automatically each time Windows starts.
Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you don't use on every startup.</source>
<translation>每次 Windows 启动时自动启动的程序列表。
与服务和计划任务一样，自动启动的程序可能会降低系统速度。请取消选中不是每次启动都使用的程序。</translation>
</message>
<message>
<source>List of Windows packages can be uninstalled without problems.
You can reinstall them directly by clicking on &quot;View uninstalled packages&quot; below the list.</source>
<translation>可以放心卸载的 Windows 程序包列表。
单击列表下方的“查看已卸载的程序包”可以直接重新安装。</translation>
</message>
<message>
<source>Load system info:</source>
<translation>加载系统信息：</translation>
</message>
<message>
<source>loading disk info...</source>
<translation>正在加载磁盘信息...</translation>
</message>
<message>
<source>loading screen info...</source>
<translation>正在加载屏幕信息...</translation>
</message>
<message>
<source>Looking around</source>
<translation>浏览</translation>
</message>
<message>
<source>Mail &amp; Calendar</source>
<translation>邮件和日历</translation>
</message>
<message>
<source>Manage features  (included in the page &quot;Features&quot;)</source>
<translation>管理功能  （包含在“功能”页面中）</translation>
</message>
<message>
<source>Manage programs and packages  (included in the page &quot;Programs&quot;)</source>
<translation>管理程序和程序包  （包含在“程序”页面中）</translation>
</message>
<message>
<source>Manual</source>
<translation>手动</translation>
</message>
<message>
<source>manual</source>
<translation>手动</translation>
</message>
<message>
<source>Manual start</source>
<translation>手动启动</translation>
</message>
<message>
<source>Media extensions for Edge and Windows Media Player</source>
<translation>Edge 和 Windows Media Player 的媒体扩展</translation>
</message>
<message>
<source>MEM</source>
<translation>内存</translation>
</message>
<message>
<source>Microsoft Codecs extensions</source>
<translation>Microsoft 编解码器扩展</translation>
</message>
<message>
<source>Microsoft codecs for video encoding/decoding. If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box</source>
<translation>用于视频编码/解码的 Microsoft 编解码器。如果不使用 Windows 内部功能来流式传输、编码或播放视频，请取消选中此框</translation>
</message>
<message>
<source>Microsoft video editor</source>
<translation>Microsoft 视频编辑器</translation>
</message>
<message>
<source>Mobile device synchronization</source>
<translation>移动设备同步</translation>
</message>
<message>
<source>Monitor and display some system information in the title bar</source>
<translation>监视系统信息并显示在标题栏中</translation>
</message>
<message>
<source>MotherBoard</source>
<translation>主板</translation>
</message>
<message>
<source>Name</source>
<translation>名称</translation>
</message>
<message>
<source>Name:</source>
<translation>名称：</translation>
</message>
<message>
<source>Need reboot!</source>
<translation>需要重新启动！</translation>
</message>
<message>
<source>NFC</source>
<translation>NFC</translation>
</message>
<message>
<source>No</source>
<translation>否</translation>
</message>
<message>
<source>No changes have been noted on this PC so far.</source>
<translation>此电脑上尚未记录任何更改。</translation>
</message>
<message>
<source>no description</source>
<translation>无描述</translation>
</message>
<message>
<source>No optimizations found!</source>
<translation>未找到可优化项目！</translation>
</message>
<message>
<source>not possible</source>
<translation>无法撤回</translation>
</message>
<message>
<source>Now</source>
<translation>现在</translation>
</message>
<message>
<source>off</source>
<translation>关</translation>
</message>
<message>
<source>Old Xbox App, no longer supported!</source>
<translation>旧版 Xbox 应用，已不再受支持！</translation>
</message>
<message>
<source>on</source>
<translation>开</translation>
</message>
<message>
<source>on drive</source>
<translation>位于驱动器</translation>
</message>
<message>
<source>Optimization finished</source>
<translation>优化完成</translation>
</message>
<message>
<source>Optimize</source>
<translation>优化</translation>
</message>
<message>
<source>Optimizer</source>
<translation>优化器</translation>
</message>
<message>
<source>Options</source>
<translation>选项</translation>
</message>
<message>
<source>Other protocol dedicated to local network (eg: some video players use it to connect to network hard drives)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>局域网专用的另一种协议（例如：某些视频播放器用它连接网络硬盘）<byte value="xd"/>
（默认未使用但已启用！）</translation>
</message>
<message>
<source>Otherwise some scheduled tasks will not be detected!</source>
<translation>否则某些计划任务将无法检测到！</translation>
</message>
<message>
<source>Owner and rights of %1</source>
<translation>%1 的所有者和权限</translation>
</message>
<message>
<source>Package %1</source>
<translation>程序包 %1</translation>
</message>
<message>
<source>package: </source>
<translation>程序包： </translation>
</message>
<message>
<source>Package: can be installed: </source>
<translation>程序包：可以安装： </translation>
</message>
<message>
<source>Package: can be uninstalled: </source>
<translation>程序包：可以卸载： </translation>
</message>
<message>
<source>Packages</source>
<translation>程序包</translation>
</message>
<message>
<source>packages finished</source>
<translation>程序包处理结束</translation>
</message>
<message>
<source>Packages installed:</source>
<translation>已安装的程序包：</translation>
</message>
<message>
<source>Packages uninstalled:</source>
<translation>已卸载的程序包：</translation>
</message>
<message>
<source>Packages:</source>
<translation>程序包：</translation>
</message>
<message>
<source>Path</source>
<translation>路径</translation>
</message>
<message>
<source>Phone link</source>
<translation>手机连接</translation>
</message>
<message>
<source>Place of the file %1</source>
<translation>文件 %1 的位置</translation>
</message>
<message>
<source>Printer</source>
<translation>打印机</translation>
</message>
<message>
<source>Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</source>
<translation>游戏优先  （GPU Priority, SFIO Priority, Scheduling category, Affinity）</translation>
</message>
<message>
<source>Process: can be disable: %1 from Riva Tuner Statistic Server app!<byte value="xd"/>
This process only allows screen video capture.Does not affect the monitoring display in any way</source>
<translation>进程：可以禁用：Riva Tuner Statistic Server 应用的 %1！<byte value="xd"/>
此进程仅用于屏幕视频捕获，完全不影响监视信息的显示</translation>
</message>
<message>
<source>Process: disable EncoderServer done</source>
<translation>进程：已禁用 EncoderServer</translation>
</message>
<message>
<source>processes</source>
<translation>进程</translation>
</message>
<message>
<source>Program started at logon: %1</source>
<translation>登录时启动的程序：%1</translation>
</message>
<message>
<source>Programs</source>
<translation>程序</translation>
</message>
<message>
<source>Programs started automatically</source>
<translation>自动启动的程序</translation>
</message>
<message>
<source>Proxy and VPN</source>
<translation>代理和 VPN</translation>
</message>
<message>
<source>Proxy or VPN functionality to improve the security of your network traffic<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>用于提高网络通信安全性的代理或 VPN 功能<byte value="xd"/>
（默认未使用但已启用！）</translation>
</message>
<message>
<source>Quick setup of some bluetooth headsets<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>快速设置某些蓝牙耳机<byte value="xd"/>
（默认未使用但已启用！）</translation>
</message>
<message>
<source>Reading what has become of it…</source>
<translation>正在读取当前状态…</translation>
</message>
<message>
<source>Reduces certain delays
(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)</source>
<translation>缩短某些延迟
（菜单显示、等待结束应用/服务、自动结束任务、无响应应用）</translation>
</message>
<message>
<source>Refresh</source>
<translation>刷新</translation>
</message>
<message>
<source>Registry key %1</source>
<translation>注册表项 %1</translation>
</message>
<message>
<source>Registry value %1</source>
<translation>注册表值 %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1</source>
<translation>移除 %1 的索引属性</translation>
</message>
<message>
<source>Remove indexing attribute of %1 finished</source>
<translation>移除 %1 的索引属性完成</translation>
</message>
<message>
<source>Remove indexing attribute of Windows partition %1</source>
<translation>移除 Windows 分区 %1 的索引属性</translation>
</message>
<message>
<source>Remove the indexed attribute from all files in the Windows partition
(this operation may take some time)</source>
<translation>从 Windows 分区的所有文件中移除索引属性
（此操作可能需要一些时间）</translation>
</message>
<message>
<source>Restoration finished</source>
<translation>还原完成</translation>
</message>
<message>
<source>Restoration finished: Restart your PC!</source>
<translation>还原完成：请重新启动电脑！</translation>
</message>
<message>
<source>Restore</source>
<translation>还原</translation>
</message>
<message>
<source>RESTORE disabled scheduled tasks</source>
<translation>还原已禁用的计划任务</translation>
</message>
<message>
<source>RESTORE disabled services</source>
<translation>还原已禁用的服务</translation>
</message>
<message>
<source>Restore scheduled tasks completed successfully</source>
<translation>计划任务还原成功完成</translation>
</message>
<message>
<source>Restore services finished</source>
<translation>服务还原完成</translation>
</message>
<message>
<source>Restoring scheduled tasks</source>
<translation>正在还原计划任务</translation>
</message>
<message>
<source>running</source>
<translation>正在运行</translation>
</message>
<message>
<source>S&amp;earch:</source>
<translation>搜索(&amp;E)：</translation>
</message>
<message>
<source>Sa&amp;ve as files…</source>
<translation>另存为文件(&amp;V)…</translation>
</message>
<message>
<source>Scheduled task %1</source>
<translation>计划任务 %1</translation>
</message>
<message>
<source>Scheduled tasks</source>
<translation>计划任务</translation>
</message>
<message>
<source>Screenshot tool</source>
<translation>截图工具</translation>
</message>
<message>
<source>Service %1: delayed start</source>
<translation>服务 %1：延迟启动</translation>
</message>
<message>
<source>Service %1: run state</source>
<translation>服务 %1：运行状态</translation>
</message>
<message>
<source>Service %1: start mode</source>
<translation>服务 %1：启动类型</translation>
</message>
<message>
<source>Service: can be disable: </source>
<translation>服务：可以禁用： </translation>
</message>
<message>
<source>Service: can be enable: </source>
<translation>服务：可以启用： </translation>
</message>
<message>
<source>Service: can be set to manual:</source>
<translation>服务：可以设置为手动：</translation>
</message>
<message>
<source>Service: disable %1</source>
<translation>服务：禁用 %1</translation>
</message>
<message>
<source>Service: disable and stop %1</source>
<translation>服务：禁用并停止 %1</translation>
</message>
<message>
<source>Service: enable %1</source>
<translation>服务：启用 %1</translation>
</message>
<message>
<source>Service: enable %1 done</source>
<translation>服务：已启用 %1</translation>
</message>
<message>
<source>Service: enable and start %1</source>
<translation>服务：启用并启动 %1</translation>
</message>
<message>
<source>Service: enable and start %1 done</source>
<translation>服务：已启用并启动 %1</translation>
</message>
<message>
<source>Service: enable and start %1, already running!</source>
<translation>服务：启用并启动 %1，已在运行！</translation>
</message>
<message>
<source>Service: set to manual:</source>
<translation>服务：设置为手动：</translation>
</message>
<message>
<source>Services</source>
<translation>服务</translation>
</message>
<message>
<source>Services  (Experienced users)</source>
<translation>服务  （有经验的用户）</translation>
</message>
<message>
<source>Services:</source>
<translation>服务：</translation>
</message>
<message>
<source>Sessions</source>
<translation>会话</translation>
</message>
<message>
<source>Set the maximum number of GPU pre-rendered frames to 1
(if you have a good CPU, this reduces latency)</source>
<translation>将 GPU 预渲染的最大帧数设置为 1
（如果 CPU 性能较好，可降低延迟）</translation>
</message>
<message>
<source>something else has changed it since</source>
<translation>此后被其他程序更改</translation>
</message>
<message>
<source>SSD</source>
<translation>SSD</translation>
</message>
<message>
<source>Start mode</source>
<translation>启动类型</translation>
</message>
<message>
<source>Start of services</source>
<translation>服务启动方式</translation>
</message>
<message>
<source>Start service:</source>
<translation>启动服务：</translation>
</message>
<message>
<source>Start with adminstrator rights</source>
<translation>以管理员权限启动</translation>
</message>
<message>
<source>started:</source>
<translation>已启动：</translation>
</message>
<message>
<source>State</source>
<translation>状态</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size finished!</source>
<translation>状态：已获取 WinSxS 文件夹大小!</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size...</source>
<translation>状态：正在获取 WinSxS 文件夹大小...</translation>
</message>
<message>
<source>Stop service:</source>
<translation>停止服务：</translation>
</message>
<message>
<source>stopped</source>
<translation>已停止</translation>
</message>
<message>
<source>stopped:</source>
<translation>已停止：</translation>
</message>
<message>
<source>System</source>
<translation>系统</translation>
</message>
<message>
<source>System
Information</source>
<translation>系统
信息</translation>
</message>
<message>
<source>System Information</source>
<translation>系统信息</translation>
</message>
<message>
<source>Take back</source>
<translation>撤回</translation>
</message>
<message>
<source>Taking back…</source>
<translation>正在撤回…</translation>
</message>
<message>
<source>Task:</source>
<translation>任务：</translation>
</message>
<message>
<source>Task: can be disable: </source>
<translation>任务：可以禁用： </translation>
</message>
<message>
<source>Task: can be enable: </source>
<translation>任务：可以启用： </translation>
</message>
<message>
<source>Task: disable and stop %1</source>
<translation>任务：禁用并停止 %1</translation>
</message>
<message>
<source>Task: Enable and start %1 done</source>
<translation>任务：已启用并启动 %1</translation>
</message>
<message>
<source>Tasks</source>
<translation>任务</translation>
</message>
<message>
<source>Tasks:</source>
<translation>任务：</translation>
</message>
<message>
<source>the file is at neither place</source>
<translation>文件不在两个位置中的任何一个</translation>
</message>
<message>
<source>The files can't bring back:</source>
<translation>文件无法恢复的内容：</translation>
</message>
<message>
<source>The way back needs Admin rights: only what was changed with them is noted.</source>
<translation>撤回更改需要管理员权限：只有以该权限进行的更改才会被记录。</translation>
</message>
<message>
<source>Theme:</source>
<translation>主题：</translation>
</message>
<message>
<source>there</source>
<translation>存在</translation>
</message>
<message>
<source>threads</source>
<translation>线程</translation>
</message>
<message>
<source>Tweaks</source>
<translation>优化项</translation>
</message>
<message>
<source>Uncheck all</source>
<translation>全部取消选中</translation>
</message>
<message>
<source>under way</source>
<translation>进行中</translation>
</message>
<message>
<source>Uninstall</source>
<translation>卸载</translation>
</message>
<message>
<source>Uninstall packages</source>
<translation>卸载程序包</translation>
</message>
<message>
<source>uninstalled:</source>
<translation>已卸载：</translation>
</message>
<message>
<source>unknown</source>
<translation>未知</translation>
</message>
<message>
<source>UPnP network services</source>
<translation>UPnP 网络服务</translation>
</message>
<message>
<source>View auto started programs</source>
<translation>查看自启动程序</translation>
</message>
<message>
<source>View disabled services</source>
<translation>查看已禁用的服务</translation>
</message>
<message>
<source>View installed packages</source>
<translation>查看已安装的程序包</translation>
</message>
<message>
<source>View programs disabled</source>
<translation>查看已禁用的程序</translation>
</message>
<message>
<source>View started services</source>
<translation>查看已启动的服务</translation>
</message>
<message>
<source>View uninstalled packages</source>
<translation>查看已卸载的程序包</translation>
</message>
<message>
<source>Way back</source>
<translation>撤回更改</translation>
</message>
<message>
<source>Way back…</source>
<translation>撤回更改…</translation>
</message>
<message>
<source>What</source>
<translation>操作</translation>
</message>
<message>
<source>What was changed on this PC isn't noted, so there is no way back by notes.</source>
<translation>此电脑上的更改未被记录，因此无法据此撤回。</translation>
</message>
<message>
<source>When</source>
<translation>时间</translation>
</message>
<message>
<source>Widget app</source>
<translation>小组件应用</translation>
</message>
<message>
<source>Win32PrioritySeparation:   Processor time allocated to applications.</source>
<translation>Win32PrioritySeparation：   分配给应用程序的处理器时间。</translation>
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
<translation>Windows 应用：安装 %1 时出错： </translation>
</message>
<message>
<source>Windows application: ERROR uninstall %1: </source>
<translation>Windows 应用：卸载 %1 时出错： </translation>
</message>
<message>
<source>Windows application: install %1 done</source>
<translation>Windows 应用：安装 %1 完成</translation>
</message>
<message>
<source>Windows application: uninstall %1 done</source>
<translation>Windows 应用：卸载 %1 完成</translation>
</message>
<message>
<source>Windows applications</source>
<translation>Windows 应用</translation>
</message>
<message>
<source>Windows packages installed</source>
<translation>已安装的 Windows 程序包</translation>
</message>
<message>
<source>Windows sharing functionality on a local network (SMB protocol) (eg: connect hard drives, printers on a local network)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>局域网中的 Windows 共享功能（SMB 协议）（例如：连接局域网中的硬盘、打印机）<byte value="xd"/>
（默认未使用但已启用！）</translation>
</message>
<message>
<source>With all &amp;later changes</source>
<translation>包括之后的所有更改(&amp;L)</translation>
</message>
<message>
<source>Would you like to apply option for set indexing attributes of all files in Windows partition?</source>
<translation>是否关闭 Windows 分区中所有文件的内容索引？这可能需要很长时间。</translation>
</message>
<message>
<source>Would you like to apply option to set indexing attributes of all files in Windows partition?</source>
<translation>是否立即将此索引设置应用于 Windows 分区中的所有文件？这可能需要很长时间。</translation>
</message>
<message>
<source>Written: %1</source>
<translation>已写入：%1</translation>
</message>
<message>
<source>Xbox App</source>
<translation>Xbox 应用</translation>
</message>
<message>
<source>Xbox game bar</source>
<translation>Xbox Game Bar</translation>
</message>
<message>
<source>XBOX Game Bar that appears at the top of the screen, above a game. If you don't use it, uncheck this box</source>
<translation>显示在屏幕顶部、游戏上方的 Xbox Game Bar。如果不使用，请取消选中此框</translation>
</message>
<message>
<source>Yes</source>
<translation>是</translation>
</message>
<message>
<source>You must launch this app with Admin rights!</source>
<translation>必须以管理员身份运行此应用！</translation>
</message>
<message>
<source>You should launch this app with Admin rights!</source>
<translation>建议以管理员身份运行此应用！</translation>
</message>
<message>
<source>No known effect on today's Windows: write caching is set for each drive elsewhere.</source>
<translation>在当前的 Windows 上没有已知效果：写入缓存在别处按驱动器设置。</translation>
</message>
<message>
<source>No known effect: Windows doesn't read this value.</source>
<translation>没有已知效果：Windows 不读取此值。</translation>
</message>
<message>
<source>Saves small writes: Windows no longer records when a file was last read. Needs a restart.</source>
<translation>减少零碎写入：Windows 不再记录文件上次读取的时间。需要重新启动。</translation>
</message>
<message>
<source>Windows no longer preloads programs: they start more slowly at first, and an SSD gains nothing. Needs a restart.</source>
<translation>Windows 不再预加载程序：首次启动变慢，对 SSD 没有好处。需要重新启动。</translation>
</message>
<message>
<source>Windows' default: nothing changes. Taking it back clears the page file at each shutdown, which takes minutes.</source>
<translation>Windows 的默认设置：没有变化。撤销后，每次关机都会清除页面文件，需要数分钟。</translation>
</message>
<message>
<source>Each start is a full one: it takes a little longer, and drivers start afresh.</source>
<translation>每次都是完整启动：耗时稍长，驱动程序重新加载。</translation>
</message>
<message>
<source>Frees the space of hiberfil.sys. The PC can't hibernate any more, and fast startup goes too.</source>
<translation>释放 hiberfil.sys 占用的空间。电脑无法再休眠，快速启动也随之关闭。</translation>
</message>
<message>
<source>Takes all files out of the content index: search gets slower and finds less.</source>
<translation>将所有文件移出内容索引：搜索变慢，结果变少。</translation>
</message>
<message>
<source>No known effect since Windows XP.</source>
<translation>自 Windows XP 起没有已知效果。</translation>
</message>
<message>
<source>Small effect: only for games that register with Windows' multimedia scheduler.</source>
<translation>效果有限：仅对在 Windows 多媒体调度程序中注册的游戏有效。</translation>
</message>
<message>
<source>No known effect: Windows reads this setting elsewhere.</source>
<translation>没有已知效果：Windows 从别处读取此设置。</translation>
</message>
<message>
<source>Windows' default: game mode is on already. Taking it back switches it off.</source>
<translation>Windows 的默认设置：游戏模式已开启。撤销会将其关闭。</translation>
</message>
<message>
<source>Windows no longer records or broadcasts games. Settings shows this as managed by your organization.</source>
<translation>Windows 不再录制或广播游戏。“设置”会显示由组织管理。</translation>
</message>
<message>
<source>Windows 11: the default already, and taking it back forces the slower platform timer. Windows 10: no known effect.</source>
<translation>Windows 11：已是默认设置，撤销会强制使用较慢的平台计时器。Windows 10：没有已知效果。</translation>
</message>
<message>
<source>Partly effective: the Game Bar's tips and the Xbox button are off, but Win+G still opens it.</source>
<translation>部分有效：Game Bar 提示和 Xbox 按钮被禁用，但 Win+G 仍可打开它。</translation>
</message>
<message>
<source>Windows 11: the system timer never pauses, which costs power; needs a restart. Windows 10: nothing changes.</source>
<translation>Windows 11：系统计时器从不暂停，会增加耗电；需要重新启动。Windows 10：没有变化。</translation>
</message>
<message>
<source>Shows games without HDR in HDR. Resets other graphics settings such as variable refresh rate.</source>
<translation>以 HDR 显示不支持 HDR 的游戏。会重置可变刷新率等其他图形设置。</translation>
</message>
<message>
<source>The pointer moves evenly with the mouse. Takes effect at the next sign-in.</source>
<translation>指针随鼠标匀速移动。下次登录后生效。</translation>
</message>
<message>
<source>Partly effective: packets are acknowledged at once, not on connections with a fixed address. Needs a restart.</source>
<translation>部分有效：立即确认数据包，固定地址的连接除外。需要重新启动。</translation>
</message>
<message>
<source>38 is what Windows does by default; other choices change it. Taking it back deletes the value.</source>
<translation>38 是 Windows 的默认行为；其他选项会改变它。撤销会删除该值。</translation>
</message>
<message>
<source>No known effect: neither Direct3D nor drivers read this value today.</source>
<translation>没有已知效果：如今 Direct3D 和驱动程序都不读取此值。</translation>
</message>
<message>
<source>May fix flickering and stutter; some videos may run worse. Said to have no effect since Windows 11 24H2. Needs a restart.</source>
<translation>可能解决闪烁和卡顿；部分视频可能变差。据称自 Windows 11 24H2 起无效。需要重新启动。</translation>
</message>
<message>
<source>Of use with several AMD graphics cards only; its effect is uncertain. Needs a restart.</source>
<translation>仅对多块 AMD 显卡有用；效果不确定。需要重新启动。</translation>
</message>
<message>
<source>Fewer svchost.exe processes, but services are less isolated from each other. Needs a restart.</source>
<translation>svchost.exe 进程减少，但服务之间的隔离减弱。需要重新启动。</translation>
</message>
<message>
<source>Windows' default since version 1803: nothing changes. Taking it back switches the backup on.</source>
<translation>自 1803 版起为默认设置：没有变化。撤销会开启备份。</translation>
</message>
<message>
<source>Hides the button for advanced options only; indexing goes on.</source>
<translation>仅隐藏高级选项按钮；索引仍会继续。</translation>
</message>
<message>
<source>File History keeps no older versions of files any more. Recent files are still listed.</source>
<translation>文件历史记录不再保留旧版本。最近使用的文件仍会列出。</translation>
</message>
<message>
<source>A right-click shows all entries, once Explorer has been restarted. Taking it back leaves the old menu.</source>
<translation>重启资源管理器后，右键显示所有条目。撤销后仍保留旧菜单。</translation>
</message>
<message>
<source>Updates are no longer exchanged with other PCs.</source>
<translation>不再与其他电脑交换更新。</translation>
</message>
<message>
<source>Less data goes to Microsoft. Clipboard history (Win+V), location and error reports stop working too.</source>
<translation>发送给 Microsoft 的数据减少。剪贴板历史记录（Win+V）、定位和错误报告也将停用。</translation>
</message>
<message>
<source>Menus open faster. At sign-out programs may be closed with unsaved work. Takes effect at the next sign-in.</source>
<translation>菜单打开更快。注销时，未保存工作的程序可能被关闭。下次登录后生效。</translation>
</message>
<message>
<source>Windows 11: removes the whole lock screen; some editions ignore it. Windows 10: nothing changes.</source>
<translation>Windows 11：移除整个锁屏界面；某些版本会忽略。Windows 10：没有变化。</translation>
</message>
<message>
<source>Search in Start and on the taskbar stops working. An update may bring it back while this box stays checked.</source>
<translation>“开始”菜单和任务栏中的搜索将无法使用。更新可能会恢复它，而此框仍保持选中。</translation>
</message>
<message>
<source>Partly effective: two tasks stay off, but the service comes back at the next sign-in.</source>
<translation>部分有效：两个任务保持禁用，但服务会在下次登录时恢复。</translation>
</message>
<message>
<source>none changed</source>
<translation>未更改</translation>
</message>
<message>
<source>an empty key</source>
<translation>空项</translation>
</message>
<message>
<source>yes</source>
<translation>是</translation>
</message>
<message>
<source>no</source>
<translation>否</translation>
</message>
<message>
<source>%1 values</source>
<translation>%1 个值</translation>
</message>
<message>
<source>%1 changed</source>
<translation>%1 个已更改</translation>
</message>
<message>
<source>%1 as before</source>
<translation>%1 个与之前相同</translation>
</message>
<message>
<source>%1 otherwise</source>
<translation>%1 个不同</translation>
</message>
<message>
<source>%1 stay changed</source>
<translation>%1 个保持更改</translation>
</message>
<message>
<source>start mode</source>
<translation>启动类型</translation>
</message>
<message>
<source>delayed start</source>
<translation>延迟启动</translation>
</message>
<message>
<source>state</source>
<translation>状态</translation>
</message>
<message>
<source>the key itself</source>
<translation>项本身</translation>
</message>
<message>
<source>the file</source>
<translation>文件</translation>
</message>
<message>
<source>its attributes</source>
<translation>其属性</translation>
</message>
<message>
<source>its owner and permissions</source>
<translation>其所有者和权限</translation>
</message>
<message>
<source>in the boot configuration</source>
<translation>在引导配置中</translation>
</message>
<message>
<source>Records of what was done</source>
<translation>已执行操作的记录</translation>
</message>
<message>
<source>Log and backups beside the program</source>
<translation>程序旁的日志和备份</translation>
</message>
<message>
<source>Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically.</source>
<translation>还原会启动优化禁用的每个服务，并将其设为自动：原来按需启动或延迟启动的服务现在会自动启动。</translation>
</message>
<message>
<source>Optimize does not record services that it sets to manual, so Restore doesn't know of them.</source>
<translation>优化不会记录设为手动的服务，因此还原不知道它们。</translation>
</message>
<message>
<source>Restore enables only the tasks that Optimize has recorded.</source>
<translation>还原只启用优化记录过的任务。</translation>
</message>
<message>
<source>Restore re-registers the app from its files, as Windows itself does for a new user.</source>
<translation>还原会用其文件重新注册应用，就像 Windows 为新用户所做的那样。</translation>
</message>
<message>
<source>The app comes back as newly installed, without what it had stored.</source>
<translation>应用会像新安装一样恢复，但没有其保存的内容。</translation>
</message>
<message>
<source>Restore re-registers an app from its files, which could not be found.</source>
<translation>还原要用其文件重新注册应用，但找不到这些文件。</translation>
</message>
<message>
<source>The saved command is cut at its first "=", so the program starts without the rest of its arguments.</source>
<translation>保存的命令在第一个“=”处被截断，因此程序启动时缺少其余参数。</translation>
</message>
<message>
<source>Restore brings back only a command whose program is in quotation marks and exists on the disk.</source>
<translation>还原只恢复程序带引号且存在于磁盘上的命令。</translation>
</message>
<message>
<source>Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it.</source>
<translation>还原不知道你原来的设置：它会写入固定的值（多为 Windows 的默认值）或将其删除。</translation>
</message>
<message>
<source>Restore doesn't reset this option, or not all of its values.</source>
<translation>还原不会重置此选项，或不会重置其所有值。</translation>
</message>
<message>
<source>The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway.</source>
<translation>此选项原本就符合优化的要求，或不属于优化的内容；还原仍会重置它。</translation>
</message>
<message>
<source>Restore doesn't touch this file.</source>
<translation>还原不会触及此文件。</translation>
</message>
<message>
<source>Restore doesn't touch this value.</source>
<translation>还原不会触及此值。</translation>
</message>
<message>
<source>Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it stops there: what is changed by then stays changed.</source>
<translation>更改分析找到的所有内容，需要一些时间。如果中途关闭窗口，操作会就此停止：已更改的内容保持更改。</translation>
</message>
<message>
<source>Acts on all checked packages at once, without asking. The list stays as it is until the page is shown again.</source>
<translation>立即处理所有选中的程序包，不再询问。在再次显示该页面之前，列表保持不变。</translation>
</message>
<message>
<source>Nothing changes either.</source>
<translation>同样没有变化。</translation>
</message>
<message>
<source>Last access times are recorded again, but Windows no longer decides about them by itself.</source>
<translation>会重新记录上次访问时间，但 Windows 不再自行决定。</translation>
</message>
<message>
<source>The default is back.</source>
<translation>恢复默认值。</translation>
</message>
<message>
<source>The defaults are back.</source>
<translation>恢复各默认值。</translation>
</message>
<message>
<source>The page file is cleared at each shutdown, which isn't the default and takes minutes.</source>
<translation>每次关机都会清除页面文件，这不是默认设置，且需要数分钟。</translation>
</message>
<message>
<source>Hibernation is on, even if it was off before, and takes its space again.</source>
<translation>休眠会开启（即使之前是关闭的），并重新占用空间。</translation>
</message>
<message>
<source>The attribute is cleared, even where Windows or you had set it.</source>
<translation>该属性会被清除，即使是 Windows 或你自己设置的。</translation>
</message>
<message>
<source>Some priorities stay higher than the default.</source>
<translation>部分优先级仍高于默认值。</translation>
</message>
<message>
<source>Game mode is off, and the default is on.</source>
<translation>游戏模式会关闭，而默认是开启。</translation>
</message>
<message>
<source>Recording is allowed; Settings still shows it as managed.</source>
<translation>允许录制；“设置”仍显示为受管理。</translation>
</message>
<message>
<source>On Windows 11 the platform timer is forced on, which may slow down games; the default is no entry at all.</source>
<translation>在 Windows 11 上会强制使用平台计时器，可能降低游戏速度；默认没有此项。</translation>
</message>
<message>
<source>The same effect as the default.</source>
<translation>与默认值效果相同。</translation>
</message>
<message>
<source>Auto HDR is off.</source>
<translation>自动 HDR 会关闭。</translation>
</message>
<message>
<source>The values are deleted, which is the default.</source>
<translation>这些值会被删除，即默认状态。</translation>
</message>
<message>
<source>The value is deleted. It is there by default, and what Windows does without it is uncertain.</source>
<translation>该值会被删除。默认存在此值，缺少它时 Windows 的行为不确定。</translation>
</message>
<message>
<source>ULPS is switched on, even for adapters that never had it.</source>
<translation>会开启 ULPS，即使显卡从未使用过它。</translation>
</message>
<message>
<source>The same effect as the default on a PC with more than 3.5 GB of memory.</source>
<translation>在内存超过 3.5 GB 的电脑上与默认值效果相同。</translation>
</message>
<message>
<source>The backup is on, which isn't the default and does no harm.</source>
<translation>备份会开启，这不是默认设置，但没有害处。</translation>
</message>
<message>
<source>The button is back.</source>
<translation>按钮会恢复。</translation>
</message>
<message>
<source>File History is allowed again.</source>
<translation>重新允许文件历史记录。</translation>
</message>
<message>
<source>The old menu stays: key and empty value are left.</source>
<translation>旧菜单仍保留：项和空值还在。</translation>
</message>
<message>
<source>Some values are less private than before: diagnostic data in full, suggestions on, synchronization on.</source>
<translation>部分值的隐私性低于之前：完整诊断数据、建议和同步都会开启。</translation>
</message>
<message>
<source>The lock screen is back.</source>
<translation>锁屏界面会恢复。</translation>
</message>
<message>
<source>The program is back; its owner and rights stay changed.</source>
<translation>程序会恢复；其所有者和权限保持更改。</translation>
</message>
<message>
<source>as now</source>
<translation>与现在相同</translation>
</message>
<message>
<source>written</source>
<translation>已写入</translation>
</message>
<message>
<source>kept</source>
<translation>保留</translation>
</message>
<message>
<source>as before</source>
<translation>与之前相同</translation>
</message>
</context>
</TS>
