<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<!-- One context for all: see cmake/translations.cmake. -->
<context>
<name>texts</name>
<message>
<source>  20   (variable and long quantum, foreground boost X1)</source>
<translation>  20   (可変で長いクォンタム、フォアグラウンド ブースト X1)</translation>
</message>
<message>
<source>  21   (variable and long quantum, foreground boost X2)</source>
<translation>  21   (可変で長いクォンタム、フォアグラウンド ブースト X2)</translation>
</message>
<message>
<source>  22   (variable and long quantum, foreground boost X3)</source>
<translation>  22   (可変で長いクォンタム、フォアグラウンド ブースト X3)</translation>
</message>
<message>
<source>  24   (fixed and long quantum, foreground boost X1) (not recommended)</source>
<translation>  24   (固定で長いクォンタム、フォアグラウンド ブースト X1) (非推奨)</translation>
</message>
<message>
<source>  36   (variable and short quantum, foreground boost X1)</source>
<translation>  36   (可変で短いクォンタム、フォアグラウンド ブースト X1)</translation>
</message>
<message>
<source>  37   (variable and short quantum, foreground boost X2)</source>
<translation>  37   (可変で短いクォンタム、フォアグラウンド ブースト X2)</translation>
</message>
<message>
<source>  38   (variable and short quantum, foreground boost X3) (recommended)</source>
<translation>  38   (可変で短いクォンタム、フォアグラウンド ブースト X3) (推奨)</translation>
</message>
<message>
<source>  40   (fixed and short quantum, foreground boost X1) (not recommended)</source>
<translation>  40   (固定で短いクォンタム、フォアグラウンド ブースト X1) (非推奨)</translation>
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;エディション:   %winEdition&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;ビルド:   %winBuild&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;バージョン:   %winVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;SSD にインストール:   %winOnSsd&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;マザーボード:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%mbManufacturer&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;モデル:   %mbModel&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;BIOS バージョン:   %mbBiosVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;BIOS の日付:   %mbBiosDate&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;プロセッサ:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%cpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;基本周波数:   %cpuFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;コア / スレッド:   %cpuCore  / %cpuThread&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;L2 キャッシュ:   %cpuL2Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;L3 キャッシュ:   %cpuL3Size&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;ソケット:   %cpuSocket&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HyperThreading:   %cpuHt&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;仮想化:   %cpuV&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;メモリ:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;容量:   %memTotal&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;空き:   %memFree&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;周波数:   %memFreq MHz&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;フォーム ファクター:   %memFormFactor&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;仮想メモリ:   %memVSize&lt;/p&gt;&lt;/td&gt;&lt;/tr&gt;
&lt;tr&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;グラフィックス カードと画面:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;%gpuName&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;ドライバー:   %gpuDriverVersion&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;ドライバーの日付:   %gpuDriverDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;画面:   画面情報を読み込んでいます...&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;解像度:   %gpuDesktopSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;最大解像度:   %gpuDesktopMaxSize&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;リフレッシュ レート:   %gpuRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;最大レート:   %screenMaxRefreshRate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;HDR:   %screenHdr&lt;/p&gt;&lt;/td&gt;
&lt;td width=&quot;50%&quot; style=&quot;vertical-align:top&quot;&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;span style=&quot;font-weight:700; color:#000000;&quot;&gt;ディスク:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;ディスク情報を読み込んでいます...&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;バージョン:&lt;/span&gt;   ベータ %version&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;日付:&lt;/span&gt;    %buildDate&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;作成者:&lt;/span&gt;   Ondrevale&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;連絡先:&lt;/span&gt;   &lt;a href=&quot;mailto:contact@kestrune.example&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;contact@kestrune.example&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;Web サイト:&lt;/span&gt;   &lt;a href=&quot;https://kestrune.example/&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;https://kestrune.example/&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;&lt;span style=&quot;font-size:9pt; font-weight:700;&quot;&gt;プログラミング言語とフレームワーク:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;C++ と Qt 6、GNU LGPL バージョン 3 ライセンス&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;Windows 10 および Windows 11 用に開発&lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;目的:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;このアプリは、不要でパフォーマンスを低下させる可能性のある機能、プログラム、サービス、スケジュール タスクを無効にするのを支援し、Windows を損なうことなく全体のパフォーマンスを向上させることを目的としています。また、画面からは設定できないシステムの内部機能を構成したり、ハード ディスク上で Windows が占める領域を減らしたりすることもできます。(不要な Windows アプリのアンインストール、WinSxS フォルダーのクリーンアップなど)&lt;br /&gt;すべて数回のクリックで行え、元の値に戻すこともできます。 &lt;/p&gt;
&lt;p style=&quot;margin-top:16px; margin-bottom:8px;&quot;&gt;&lt;span style=&quot;font-weight:700; text-decoration: underline; color:#000000;&quot;&gt;重要な情報:&lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:2px;&quot;&gt;このアプリのすべてのオプションは元に戻すことができます。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:8px;&quot;&gt;サービスのセクションでは注意してください。内容や依存関係などを十分に理解していない場合は、サービスを無効にしないでください。アシスタント ボタンを使用してください!!!&lt;/p&gt;
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
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- 固定クォンタム: プロセッサ時間はアプリ間で均等に分けられます。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;可変クォンタムでは、必要に応じてアプリがプロセッサをより長く保持できます。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- 短いクォンタム: プロセッサ時間がタスクからタスクへ素早く切り替わります。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;長いクォンタムでは、アプリにより多くのプロセッサ時間が割り当てられます。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;- フォアグラウンド ブースト X 倍: フォアグラウンドのアプリのために、&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;クォンタムが X 倍になります。&lt;/p&gt;
&lt;p style=&quot;-qt-paragraph-type:empty; margin-top:0px; margin-bottom:0px; font-size:4pt;&quot;&gt;&lt;br /&gt;&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;ゲームだけを考えると、選択した値に応じて、FPS (22, 21)、&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;FPS と応答性 (38, 37)、入力機器の遅延 (36, 24, 40) が改善されます。&lt;/p&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;&lt;a href=&quot;https://learn.microsoft.com/windows/win32/procthread/priority-boosts&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;詳細情報&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Advanced optimizations via motherboard BIOS settings &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;マザーボードの BIOS 設定による高度な最適化 &lt;a href=&quot;https://kestrune.example/optimization.html&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;詳細情報&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft acknowledges performance impact with Memory Integrity and VMP enabled &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;Microsoft は、メモリ整合性と VMP が有効な場合のパフォーマンスへの影響を認めています &lt;a href=&quot;https://learn.microsoft.com/windows/security/hardware-security/enable-virtualization-based-protection-of-code-integrity&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;詳細情報&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;The WinSxS folder is an essential system component that serves as a repository for storing multiple versions of system files, allowing Windows to maintain good compatibility &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;read more here&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
<translation>&lt;html&gt;&lt;head&gt;&lt;style type=&quot;text/css&quot;&gt;p { white-space: pre-wrap; }&lt;/style&gt;&lt;/head&gt;&lt;body&gt;
&lt;p style=&quot;margin-top:0px; margin-bottom:0px;&quot;&gt;WinSxS フォルダーは、複数のバージョンのシステム ファイルを保管する重要なシステム コンポーネントで、Windows の高い互換性を支えています &lt;a href=&quot;https://learn.microsoft.com/windows-hardware/manufacture/desktop/manage-the-component-store&quot;&gt;&lt;span style=&quot;text-decoration: underline; color:#000000;&quot;&gt;詳細情報&lt;/span&gt;&lt;/a&gt;&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
</message>
<message>
<source>%1 bytes</source>
<translation>%1 バイト</translation>
</message>
<message>
<source>%1 of %2 are as they were.</source>
<translation>%2 件中 %1 件が元どおりです。</translation>
</message>
<message>
<source>&amp;Sessions:</source>
<translation>セッション(&amp;S):</translation>
</message>
<message>
<source>Clear the search</source>
<translation>検索を消去</translation>
</message>
<message>
<source>Preview…</source>
<translation>プレビュー…</translation>
</message>
<message>
<source>Preview of Optimize</source>
<translation>最適化のプレビュー</translation>
</message>
<message>
<source>After Optimize</source>
<translation>最適化後</translation>
</message>
<message>
<source>After Restore</source>
<translation>復元後</translation>
</message>
<message>
<source>Comes back</source>
<translation>元に戻るか</translation>
</message>
<message>
<source>Progress</source>
<translation>進行状況</translation>
</message>
<message>
<source>exactly</source>
<translation>完全に戻る</translation>
</message>
<message>
<source>as a fixed value</source>
<translation>決まった値に戻る</translation>
</message>
<message>
<source>It is in the Store: %1</source>
<translation>Store にあります: %1</translation>
</message>
<message>
<source>not at all</source>
<translation>戻らない</translation>
</message>
<message>
<source>by Restore only</source>
<translation>復元でのみ変更</translation>
</message>
<message>
<source>%1 come back exactly</source>
<translation>%1 件は完全に戻る</translation>
</message>
<message>
<source>%1 as a fixed value</source>
<translation>%1 件は決まった値に戻る</translation>
</message>
<message>
<source>%1 not at all</source>
<translation>%1 件は戻らない</translation>
</message>
<message>
<source>%1 are changed by Restore only</source>
<translation>%1 件は復元でのみ変更</translation>
</message>
<message>
<source>Programs started at logon</source>
<translation>サインイン時に起動するプログラム</translation>
</message>
<message>
<source>System options</source>
<translation>システム オプション</translation>
</message>
<message>
<source>Files</source>
<translation>ファイル</translation>
</message>
<message>
<source>Other registry values</source>
<translation>その他のレジストリ値</translation>
</message>
<message>
<source>Kestrune's own records</source>
<translation>Kestrune 自身の記録</translation>
</message>
<message>
<source>Copying this PC…</source>
<translation>この PC をコピーしています…</translation>
</message>
<message>
<source>Trying it on a copy…</source>
<translation>コピーで試しています…</translation>
</message>
<message>
<source>Trying it on the copy…</source>
<translation>そのコピーで試しています…</translation>
</message>
<message>
<source>There is no preview: %1</source>
<translation>プレビューできません: %1</translation>
</message>
<message>
<source>What the next Optimize would change, and what the Restore button would bring back:</source>
<translation>次の最適化で変わる項目と、復元ボタンで元に戻る項目:</translation>
</message>
<message>
<source>“Way back…” brings back more than Restore: what was noted before each change.</source>
<translation>「元に戻す…」は、各変更の前に記録した内容を戻すので、復元より多くのものが戻ります。</translation>
</message>
<message>
<source>This PC was looked at without Admin rights: what needs them is missing here.</source>
<translation>管理者権限なしで調べたため、権限が必要なものはここに含まれていません。</translation>
</message>
<message>
<source>With Admin rights a preview needs a copy of this app that nobody else can change, such as the installer makes in the folder for programs. Without Admin rights it works from any folder.</source>
<translation>管理者権限でのプレビューには、インストーラーがプログラムのフォルダーに置くような、他の誰も変更できないこのアプリのコピーが必要です。管理者権限なしなら、どのフォルダーからでも使えます。</translation>
</message>
<message>
<source>A preview needs the folder “rehearse” of this app, which isn't there.</source>
<translation>プレビューにはこのアプリの「rehearse」フォルダーが必要ですが、見つかりません。</translation>
</message>
<message>
<source>Windows was updated from build %1 to %2 since. No longer in force: %3.</source>
<translation>その後 Windows はビルド %1 から %2 に更新されました。無効になった変更: %3。</translation>
</message>
<message>
<source>automatic (delayed)</source>
<translation>自動 (遅延開始)</translation>
</message>
<message>
<source>not installed</source>
<translation>未インストール</translation>
</message>
<message>
<source>starts</source>
<translation>起動する</translation>
</message>
<message>
<source>doesn't start</source>
<translation>起動しない</translation>
</message>
<message>
<source>your setting</source>
<translation>現在の設定</translation>
</message>
<message>
<source>applied</source>
<translation>適用済み</translation>
</message>
<message>
<source>applied in part</source>
<translation>一部適用</translation>
</message>
<message>
<source>a fixed value</source>
<translation>決まった値</translation>
</message>
<message>
<source>not there</source>
<translation>なし</translation>
</message>
<message>
<source>but not as before</source>
<translation>ただし元どおりではない</translation>
</message>
<message>
<source>Before the journal, not exact</source>
<translation>記録を始める前 (正確ではない)</translation>
</message>
<message>
<source>%1 (by the system)</source>
<translation>%1 (システムによる)</translation>
</message>
<message>
<source>%1 (by another account)</source>
<translation>%1 (別のアカウントによる)</translation>
</message>
<message>
<source>Page: %1</source>
<translation>ページ: %1</translation>
</message>
<message>
<source>&amp;Take back</source>
<translation>元に戻す(&amp;T)</translation>
</message>
<message>
<source>Clean-up of the WinSxS folder</source>
<translation>WinSxS フォルダーのクリーンアップ</translation>
</message>
<message>
<source>Windows keeps no copy of what this removes</source>
<translation>これで削除されたもののコピーは Windows に残りません</translation>
</message>
<message>
<source>its files are gone from this PC; get it from the Store</source>
<translation>この PC にファイルがもうありません。Store から入手してください</translation>
</message>
<message>
<source>Not everything was done.</source>
<translation>一部の処理は実行されませんでした。</translation>
</message>
<message>
<source>a later session has changed it, too</source>
<translation>後のセッションでも変更されています</translation>
</message>
<message>
<source>A newer version of Kestrune is available!<byte value="xd"/>
Would you like to visit the website for download?<byte value="xd"/>
<byte value="xd"/>
Current version: %1<byte value="xd"/>
Online version: %2</source>
<translation>新しいバージョンの Kestrune が利用できます!<byte value="xd"/>
Web サイトを開いてダウンロードしますか?<byte value="xd"/>
<byte value="xd"/>
現在のバージョン: %1<byte value="xd"/>
オンラインのバージョン: %2</translation>
</message>
<message>
<source>About</source>
<translation>製品情報</translation>
</message>
<message>
<source>absent</source>
<translation>なし</translation>
</message>
<message>
<source>Add indexing attribute of %1 finished</source>
<translation>%1 のインデックス属性の追加完了</translation>
</message>
<message>
<source>Add indexing attribute of Windows partition %1</source>
<translation>Windows パーティション %1 のインデックス属性を追加</translation>
</message>
<message>
<source>Apply a profile</source>
<translation>プロファイルの適用</translation>
</message>
<message>
<source>Analyze</source>
<translation>分析</translation>
</message>
<message>
<source>Analyze and optimize Windows to improve overall performance by disabling unnecessary features and configuring some that are inaccessible through an interface.
Optimizations come from the Services, Scheduled Tasks, Programs, and Features pages.</source>
<translation>Windows を分析し、不要な機能を無効にしたり、画面からは設定できない機能を構成したりして、全体のパフォーマンスを最適化します。
最適化の項目は、サービス、スケジュール タスク、プログラム、機能の各ページのものです。</translation>
</message>
<message>
<source>Application to play PC games if you have a Gamepass account (paid)</source>
<translation>Game Pass (有料) に加入している場合に PC ゲームをプレイするためのアプリ</translation>
</message>
<message>
<source>Apply</source>
<translation>適用</translation>
</message>
<message>
<source>Apply features</source>
<translation>機能の適用</translation>
</message>
<message>
<source>Apply features finished successfully.</source>
<translation>機能の適用が正常に完了しました。</translation>
</message>
<message>
<source>Are you sure to disable all checked services?</source>
<translation>選択したサービスをすべて無効にしますか?</translation>
</message>
<message>
<source>Are you sure to disable all checked tasks?</source>
<translation>選択したタスクをすべて無効にしますか?</translation>
</message>
<message>
<source>Are you sure you want to restore the original values?<byte value="xd"/>
All features, applications, services and tasks will be restored.</source>
<translation>元の値に復元しますか?<byte value="xd"/>
すべての機能、アプリ、サービス、タスクが復元されます。</translation>
</message>
<message>
<source>Are you sure you want to restore the startup of all scheduled tasks?</source>
<translation>すべてのスケジュール タスクの起動を復元しますか?</translation>
</message>
<message>
<source>as it was</source>
<translation>元どおり</translation>
</message>
<message>
<source>ASSISTANT - disable a list of non vital services</source>
<translation>アシスタント - 不要なサービスを無効にする</translation>
</message>
<message>
<source>ASSISTANT - disable a list of scheduled tasks</source>
<translation>アシスタント - スケジュール タスクをまとめて無効にする</translation>
</message>
<message>
<source>Assistant - no services to deactivate</source>
<translation>アシスタント - 無効にするサービスはありません</translation>
</message>
<message>
<source>Assistant - no tasks to deactivate</source>
<translation>アシスタント - 無効にするタスクはありません</translation>
</message>
<message>
<source>at boot</source>
<translation>ブート時</translation>
</message>
<message>
<source>Attributes of %1</source>
<translation>%1 の属性</translation>
</message>
<message>
<source>Auto</source>
<translation>自動</translation>
</message>
<message>
<source>Auto started programs disabled:</source>
<translation>無効なスタートアップ プログラム:</translation>
</message>
<message>
<source>automatic</source>
<translation>自動</translation>
</message>
<message>
<source>Automatic start</source>
<translation>自動で開始</translation>
</message>
<message>
<source>Automatically started programs</source>
<translation>自動的に開始されるプログラム</translation>
</message>
<message>
<source>Autorun</source>
<translation>スタートアップ</translation>
</message>
<message>
<source>Autorun program: disable %1 done</source>
<translation>スタートアップ プログラム: %1 の無効化完了</translation>
</message>
<message>
<source>Autorun program: enable %1 done</source>
<translation>スタートアップ プログラム: %1 の有効化完了</translation>
</message>
<message>
<source>Autorun:</source>
<translation>スタートアップ:</translation>
</message>
<message>
<source>Autorun: can be disabled: </source>
<translation>スタートアップ: 無効にできます: </translation>
</message>
<message>
<source>Backup file exists</source>
<translation>バックアップ ファイルがあります</translation>
</message>
<message>
<source>Before</source>
<translation>変更前</translation>
</message>
<message>
<source>Bluetooth audio</source>
<translation>Bluetooth オーディオ</translation>
</message>
<message>
<source>Boot option %1</source>
<translation>ブート オプション %1</translation>
</message>
<message>
<source>broken off</source>
<translation>中断</translation>
</message>
<message>
<source>Broken off: way back…</source>
<translation>中断しました: 元に戻す…</translation>
</message>
<message>
<source>by the system</source>
<translation>システム</translation>
</message>
<message>
<source>Cancel</source>
<translation>キャンセル</translation>
</message>
<message>
<source>Cannot restore if you have not yet optimized!</source>
<translation>まだ最適化していないため、復元できません!</translation>
</message>
<message>
<source>Another instance of the program is changing this PC. Try again when it has finished.</source>
<translation>プログラムの別のインスタンスがこの PC を変更しています。終了してからもう一度お試しください。</translation>
</message>
<message>
<source>Capacity:</source>
<translation>容量:</translation>
</message>
<message>
<source>Change</source>
<translation>変更内容</translation>
</message>
<message>
<source>changed</source>
<translation>変更済み</translation>
</message>
<message>
<source>changed again</source>
<translation>再度変更済み</translation>
</message>
<message>
<source>Changes</source>
<translation>変更</translation>
</message>
<message>
<source>Check all</source>
<translation>すべて選択</translation>
</message>
<message>
<source>Check update of Kestrune version</source>
<translation>Kestrune の更新を確認する</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool</source>
<translation>Microsoft DISM ツールで WinSxS フォルダーをクリーンアップする</translation>
</message>
<message>
<source>Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)</source>
<translation>Microsoft DISM ツールで WinSxS フォルダーをクリーンアップする  (現在のサイズ: %1 GB)</translation>
</message>
<message>
<source>Close</source>
<translation>閉じる</translation>
</message>
<message>
<source>Comments</source>
<translation>コメント</translation>
</message>
<message>
<source>Configure auto started programs done!</source>
<translation>スタートアップ プログラムの構成が完了しました!</translation>
</message>
<message>
<source>Content indexing off</source>
<translation>コンテンツのインデックス オフ</translation>
</message>
<message>
<source>Content indexing on</source>
<translation>コンテンツのインデックス オン</translation>
</message>
<message>
<source>CPU</source>
<translation>CPU</translation>
</message>
<message>
<source>Dark</source>
<translation>ダーク</translation>
</message>
<message>
<source>Date of the last execution</source>
<translation>前回の実行日</translation>
</message>
<message>
<source>Description</source>
<translation>説明</translation>
</message>
<message>
<source>Development applet</source>
<translation>開発用アプレット</translation>
</message>
<message>
<source>Disable advanced indexing options</source>
<translation>インデックスの詳細オプションを無効にする</translation>
</message>
<message>
<source>Disable automatic boot disk optimization</source>
<translation>起動ディスクの自動最適化を無効にする</translation>
</message>
<message>
<source>Disable checked programs</source>
<translation>選択したプログラムを無効にする</translation>
</message>
<message>
<source>DISABLE checked services</source>
<translation>選択したサービスを無効にする</translation>
</message>
<message>
<source>Disable checked services</source>
<translation>選択したサービスを無効にする</translation>
</message>
<message>
<source>Disable checked services finished</source>
<translation>選択したサービスを無効にしました</translation>
</message>
<message>
<source>DISABLE checked tasks</source>
<translation>選択したタスクを無効にする</translation>
</message>
<message>
<source>Disable clearing of virtual memory swap file on every shutdown</source>
<translation>シャットダウン時のページ ファイルの消去を無効にする</translation>
</message>
<message>
<source>Disable cloud backup and restore functionalities</source>
<translation>クラウドのバックアップと復元を無効にする</translation>
</message>
<message>
<source>Disable CPU power throttling
(power-saving feature, optimization not recommended for laptop)</source>
<translation>CPU の電力調整を無効にする
(省電力機能のため、ノート PC では推奨されません)</translation>
</message>
<message>
<source>Disable distribution optimization of Windows updates</source>
<translation>Windows 更新プログラムの配信の最適化を無効にする</translation>
</message>
<message>
<source>Disable dynamic tick of system timers
(power-saving feature, optimization not recommended for laptop)</source>
<translation>システム タイマーの動的ティックを無効にする
(省電力機能のため、ノート PC では推奨されません)</translation>
</message>
<message>
<source>Disable enhance pointer precision
(to achieve precise mouse control and muscle memory)</source>
<translation>ポインターの精度を高める機能を無効にする
(マウスを正確に操作し、感覚で覚えられるようにする)</translation>
</message>
<message>
<source>Disable fast start-up  (Windows function designed for HDD and not SSD)</source>
<translation>高速スタートアップを無効にする  (SSD ではなく HDD 向けの Windows の機能)</translation>
</message>
<message>
<source>Disable files history (even in explorer)</source>
<translation>ファイル履歴を無効にする (エクスプローラーでも)</translation>
</message>
<message>
<source>Disable game recording and broadcasting</source>
<translation>ゲームの録画と配信を無効にする</translation>
</message>
<message>
<source>Disable Gamebar</source>
<translation>Game Bar を無効にする</translation>
</message>
<message>
<source>Disable hibernation mode</source>
<translation>休止状態を無効にする</translation>
</message>
<message>
<source>Disable hibernation mode  (gain %1 GB of storage space)</source>
<translation>休止状態を無効にする  (%1 GB の記憶域を節約)</translation>
</message>
<message>
<source>Disable HPET  (High Precision Event Timer)
(use invariant TSC instead which may be faster for gaming)
(important: do not disable HPET in BIOS settings)</source>
<translation>HPET を無効にする  (High Precision Event Timer)
(ゲームではより高速な場合がある不変 TSC を使用)
(重要: BIOS の設定で HPET を無効にしないでください)</translation>
</message>
<message>
<source>Disable last access time stamps  (NTFS drive only)</source>
<translation>最終アクセス日時の記録を無効にする  (NTFS ドライブのみ)</translation>
</message>
<message>
<source>Disable LockApp.exe  (lockapp.exe allows additional information on the lock screen)</source>
<translation>LockApp.exe を無効にする  (ロック画面の追加情報を表示するもの)</translation>
</message>
<message>
<source>Disable Multiplane Overlay (MPO)
(may fix some screen flickering / stuttering issues BUT loose some fullscreen optimizations,
especially for video playback apps)</source>
<translation>Multiplane Overlay (MPO) を無効にする
(画面のちらつきやカクつきが直ることがありますが、全画面表示の最適化の一部が失われます。
特に動画再生アプリで影響があります)</translation>
</message>
<message>
<source>Disable Nagle’s Algorithm
(may improve the real-time responsiveness of your network connection, but may increase traffic)</source>
<translation>Nagle アルゴリズムを無効にする
(ネットワーク接続の応答性が向上することがありますが、通信量が増えることがあります)</translation>
</message>
<message>
<source>Disable periodic registry backup</source>
<translation>レジストリの定期的なバックアップを無効にする</translation>
</message>
<message>
<source>Disable Prefetcher  (prevents preloading of applications)</source>
<translation>Prefetcher を無効にする  (アプリの事前読み込みを行わない)</translation>
</message>
<message>
<source>Disable programs</source>
<translation>プログラムを無効にする</translation>
</message>
<message>
<source>Disable scheduled tasks</source>
<translation>スケジュール タスクを無効にする</translation>
</message>
<message>
<source>Disable scheduled tasks completed successfully</source>
<translation>スケジュール タスクの無効化が正常に完了しました</translation>
</message>
<message>
<source>Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)</source>
<translation>SearchHost.exe を無効にする  (ファイル検索。高度な検索が動作しないことがあります)</translation>
</message>
<message>
<source>Disable services</source>
<translation>サービスを無効にする</translation>
</message>
<message>
<source>Disable SvcHost splitting  (reduce the number of svchost.exe process)</source>
<translation>SvcHost の分割を無効にする  (svchost.exe プロセスの数を減らす)</translation>
</message>
<message>
<source>Disable telemetry (data collection for Microsoft)
(Other telemetry is disabled in the Services and Scheduled Tasks, or the Optimizer page)</source>
<translation>テレメトリを無効にする (Microsoft によるデータ収集)
(その他のテレメトリは、サービス、スケジュール タスク、最適化の各ページで無効にします)</translation>
</message>
<message>
<source>Disable ULPS  (Ultra Low Power State, only for AMD graphics cards)
(power-saving feature, optimization not recommended for laptop)</source>
<translation>ULPS を無効にする  (Ultra Low Power State、AMD グラフィックス カードのみ)
(省電力機能のため、ノート PC では推奨されません)</translation>
</message>
<message>
<source>Disable Windows write-cache buffer flushing</source>
<translation>Windows の書き込みキャッシュ バッファーのフラッシュを無効にする</translation>
</message>
<message>
<source>Disabled</source>
<translation>無効</translation>
</message>
<message>
<source>disabled</source>
<translation>無効</translation>
</message>
<message>
<source>disabled:</source>
<translation>無効:</translation>
</message>
<message>
<source>disabled:</source>
<comment>tasks</comment>
<translation>無効:</translation>
</message>
<message>
<source>DISK</source>
<translation>ディスク</translation>
</message>
<message>
<source>Display name</source>
<translation>表示名</translation>
</message>
<message>
<source>display threads and handles count</source>
<translation>スレッド数とハンドル数を表示</translation>
</message>
<message>
<source>Do you want to restore start mode option of all services?<byte value="xd"/>
<byte value="xd"/>
If you click No (recommended),<byte value="xd"/>
then restore only the services you have disabled</source>
<translation>すべてのサービスのスタートアップの種類を復元しますか?<byte value="xd"/>
<byte value="xd"/>
[いいえ] (推奨) をクリックすると、<byte value="xd"/>
無効にしたサービスだけが復元されます</translation>
</message>
<message>
<source>Do you want to start this app with Admin rights?</source>
<translation>このアプリを管理者として起動し直しますか?</translation>
</message>
<message>
<source>done</source>
<translation>完了</translation>
</message>
<message>
<source>Enable Auto HDR  (forces HDR mode on SDR content)</source>
<translation>自動 HDR を有効にする  (SDR コンテンツを HDR モードにする)</translation>
</message>
<message>
<source>Enable checked programs</source>
<translation>選択したプログラムを有効にする</translation>
</message>
<message>
<source>ENABLE checked services</source>
<translation>選択したサービスを有効にする</translation>
</message>
<message>
<source>Enable checked services finished</source>
<translation>選択したサービスを有効にしました</translation>
</message>
<message>
<source>Enable game mode  (enabled by default)</source>
<translation>ゲーム モードを有効にする  (既定で有効)</translation>
</message>
<message>
<source>Enable programs</source>
<translation>プログラムを有効にする</translation>
</message>
<message>
<source>Enable services</source>
<translation>サービスを有効にする</translation>
</message>
<message>
<source>Enable the context menu like Windows 10  (all entries in the context menu are displayed)</source>
<translation>Windows 10 のコンテキスト メニューを有効にする  (すべての項目を表示)</translation>
</message>
<message>
<source>enabled</source>
<translation>有効</translation>
</message>
<message>
<source>enabled:</source>
<translation>有効:</translation>
</message>
<message>
<source>English</source>
<translation>English</translation>
</message>
<message>
<source>error</source>
<translation>エラー</translation>
</message>
<message>
<source>Features</source>
<translation>機能</translation>
</message>
<message>
<source>Features applied successfully. Restart your PC!</source>
<translation>機能が正常に適用されました。PC を再起動してください!</translation>
</message>
<message>
<source>Features: %1 improvements can be applied</source>
<translation>機能: %1 件の改善を適用できます</translation>
</message>
<message>
<source>Features: applied successfully. Restart your PC!</source>
<translation>機能: 正常に適用されました。PC を再起動してください!</translation>
</message>
<message>
<source>Features: applies Gaming optimizations</source>
<translation>機能: ゲームの最適化を適用</translation>
</message>
<message>
<source>Features: applies SSD optimizations</source>
<translation>機能: SSD の最適化を適用</translation>
</message>
<message>
<source>Features: applies Windows optimizations</source>
<translation>機能: Windows の最適化を適用</translation>
</message>
<message>
<source>Features: Battery detected! Some optimizations will not be applied to maintain battery life</source>
<translation>機能: バッテリーが検出されました! バッテリー駆動時間を維持するため、一部の最適化は適用されません</translation>
</message>
<message>
<source>Features: reset Gaming optimizations</source>
<translation>機能: ゲームの最適化をリセット</translation>
</message>
<message>
<source>Features: reset SSD optimizations</source>
<translation>機能: SSD の最適化をリセット</translation>
</message>
<message>
<source>Features: reset Windows optimizations</source>
<translation>機能: Windows の最適化をリセット</translation>
</message>
<message>
<source>File %1</source>
<translation>ファイル %1</translation>
</message>
<message>
<source>Files sharing</source>
<translation>ファイル共有</translation>
</message>
<message>
<source>finished</source>
<translation>完了</translation>
</message>
<message>
<source>Folder for the files of the way back</source>
<translation>元に戻すためのファイルの保存先</translation>
</message>
<message>
<source>Français</source>
<translation>Français</translation>
</message>
<message>
<source>free memory</source>
<translation>空きメモリ</translation>
</message>
<message>
<source>free on</source>
<translation>空き容量</translation>
</message>
<message>
<source>GAMING</source>
<translation>ゲーム</translation>
</message>
<message>
<source>Get system info:</source>
<translation>システム情報を取得:</translation>
</message>
<message>
<source>Get WinSxS folder size in features page</source>
<translation>機能ページで WinSxS フォルダーのサイズを取得する</translation>
</message>
<message>
<source>GPU</source>
<translation>GPU</translation>
</message>
<message>
<source>Grayed out services are considered necessary or critical</source>
<translation>灰色のサービスは、必要または重要とみなされています</translation>
</message>
<message>
<source>Grayed out services refer to those disabled outside this tab</source>
<translation>灰色のサービスは、このタブ以外で無効にされたものです</translation>
</message>
<message>
<source>handles</source>
<translation>ハンドル</translation>
</message>
<message>
<source>Hibernation</source>
<translation>休止状態</translation>
</message>
<message>
<source>If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this</source>
<translation>Bluetooth 接続のヘッドセットやオーディオ機器がない場合は、チェックを外すことができます</translation>
</message>
<message>
<source>If you don't have any printers, you can uncheck this</source>
<translation>プリンターがない場合は、チェックを外すことができます</translation>
</message>
<message>
<source>Increase maximum amount of physical memory that can be locked for I/O operations</source>
<translation>I/O 操作のためにロックできる物理メモリの上限を増やす</translation>
</message>
<message>
<source>Install</source>
<translation>インストール</translation>
</message>
<message>
<source>Install packages</source>
<translation>パッケージをインストール</translation>
</message>
<message>
<source>installed</source>
<translation>インストール済み</translation>
</message>
<message>
<source>Intelligent personal assistant</source>
<translation>インテリジェント パーソナル アシスタント</translation>
</message>
<message>
<source>Interface language:</source>
<translation>表示言語:</translation>
</message>
<message>
<source>Interface type:</source>
<translation>インターフェイスの種類:</translation>
</message>
<message>
<source>Internal system features that can slow down your PC unnecessarily.
Check them to optimize or uncheck them to restore defaults.</source>
<translation>PC の動作を不必要に遅くすることがあるシステムの内部機能です。
最適化するにはチェックを入れ、既定値に戻すにはチェックを外してください。</translation>
</message>
<message>
<source>interval in seconds:</source>
<translation>間隔 (秒):</translation>
</message>
<message>
<source>it didn't come back</source>
<translation>元に戻りませんでした</translation>
</message>
<message>
<source>Keep features</source>
<translation>残す機能</translation>
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
<translation>ライト</translation>
</message>
<message>
<source>List of currently started services.
Services are programs that run in the background for various reasons and purposes. Some of them are essential, while others may be superfluous and consume CPU, memory and disk resources unnecessarily.</source>
<translation>現在開始されているサービスの一覧です。
サービスは、さまざまな目的でバックグラウンドで実行されるプログラムです。不可欠なものもあれば、CPU、メモリ、ディスクを無駄に消費する不要なものもあります。</translation>
</message>
<message>
<source>List of enabled scheduled tasks.
Scheduled tasks are programs that run in the background at a specific time (or event) for various reasons. Some of them may be unnecessary and consume CPU, memory, and disk resources unnecessarily.</source>
<translation>有効なスケジュール タスクの一覧です。
スケジュール タスクは、さまざまな目的で特定の時刻 (またはイベント) にバックグラウンドで実行されるプログラムです。CPU、メモリ、ディスクを無駄に消費する不要なものもあります。</translation>
</message>
<message>
<source>List of programs started automatically each time Windows starts.
Like services and scheduled tasks, automatically started programs can slow down your system. Uncheck those you don't use on every startup.</source>
<translation>Windows の起動時に毎回自動的に開始されるプログラムの一覧です。
サービスやスケジュール タスクと同様に、システムの動作を遅くすることがあります。毎回使用しないものは、チェックを外してください。</translation>
</message>
<message>
<source>List of Windows packages can be uninstalled without problems.
You can reinstall them directly by clicking on &quot;View uninstalled packages&quot; below the list.</source>
<translation>問題なくアンインストールできる Windows パッケージの一覧です。
一覧の下の [アンインストール済みを表示] をクリックすると、直接インストールし直すことができます。</translation>
</message>
<message>
<source>Load system info:</source>
<translation>システム情報を読み込み:</translation>
</message>
<message>
<source>loading disk info...</source>
<translation>ディスク情報を読み込んでいます...</translation>
</message>
<message>
<source>loading screen info...</source>
<translation>画面情報を読み込んでいます...</translation>
</message>
<message>
<source>Looking around</source>
<translation>閲覧</translation>
</message>
<message>
<source>Mail &amp; Calendar</source>
<translation>メールとカレンダー</translation>
</message>
<message>
<source>Manage features  (included in the page &quot;Features&quot;)</source>
<translation>機能を管理する  ([機能] ページに含まれます)</translation>
</message>
<message>
<source>Manage programs and packages  (included in the page &quot;Programs&quot;)</source>
<translation>プログラムとパッケージを管理する  ([プログラム] ページに含まれます)</translation>
</message>
<message>
<source>Manual</source>
<translation>手動</translation>
</message>
<message>
<source>manual</source>
<translation>手動</translation>
</message>
<message>
<source>Manual start</source>
<translation>手動で開始</translation>
</message>
<message>
<source>Media extensions for Edge and Windows Media Player</source>
<translation>Edge と Windows Media Player 用のメディア拡張機能</translation>
</message>
<message>
<source>MEM</source>
<translation>メモリ</translation>
</message>
<message>
<source>Microsoft Codecs extensions</source>
<translation>Microsoft コーデック</translation>
</message>
<message>
<source>Microsoft codecs for video encoding/decoding. If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box</source>
<translation>ビデオのエンコードとデコード用の Microsoft コーデック。Windows の内部機能でビデオのストリーミング、エンコード、再生を行わない場合は、チェックを外してください</translation>
</message>
<message>
<source>Microsoft video editor</source>
<translation>Microsoft ビデオ エディター</translation>
</message>
<message>
<source>Mobile device synchronization</source>
<translation>モバイル デバイスの同期</translation>
</message>
<message>
<source>Monitor and display some system information in the title bar</source>
<translation>システム情報を監視し、タイトル バーに表示する</translation>
</message>
<message>
<source>MotherBoard</source>
<translation>マザーボード</translation>
</message>
<message>
<source>Name</source>
<translation>名前</translation>
</message>
<message>
<source>Name:</source>
<translation>名前:</translation>
</message>
<message>
<source>Need reboot!</source>
<translation>再起動が必要です!</translation>
</message>
<message>
<source>NFC</source>
<translation>NFC</translation>
</message>
<message>
<source>No</source>
<translation>いいえ</translation>
</message>
<message>
<source>No changes have been noted on this PC so far.</source>
<translation>この PC にはまだ変更の記録がありません。</translation>
</message>
<message>
<source>no description</source>
<translation>説明なし</translation>
</message>
<message>
<source>No optimizations found!</source>
<translation>最適化の項目は見つかりませんでした!</translation>
</message>
<message>
<source>not possible</source>
<translation>不可</translation>
</message>
<message>
<source>Now</source>
<translation>現在</translation>
</message>
<message>
<source>off</source>
<translation>オフ</translation>
</message>
<message>
<source>Old Xbox App, no longer supported!</source>
<translation>以前の Xbox アプリ、サポートは終了しました!</translation>
</message>
<message>
<source>on</source>
<translation>オン</translation>
</message>
<message>
<source>on drive</source>
<translation>ドライブ</translation>
</message>
<message>
<source>Optimization finished</source>
<translation>最適化が完了しました</translation>
</message>
<message>
<source>Optimize</source>
<translation>最適化する</translation>
</message>
<message>
<source>Optimizer</source>
<translation>最適化</translation>
</message>
<message>
<source>Options</source>
<translation>設定</translation>
</message>
<message>
<source>Other protocol dedicated to local network (eg: some video players use it to connect to network hard drives)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>ローカル ネットワーク用の別のプロトコル (例: 一部のビデオ プレーヤーがネットワーク ドライブへの接続に使用)<byte value="xd"/>
(既定では使用されていませんが、有効になっています!)</translation>
</message>
<message>
<source>Otherwise some scheduled tasks will not be detected!</source>
<translation>そうしないと、一部のスケジュール タスクが検出されません!</translation>
</message>
<message>
<source>Owner and rights of %1</source>
<translation>%1 の所有者と権限</translation>
</message>
<message>
<source>Package %1</source>
<translation>パッケージ %1</translation>
</message>
<message>
<source>package: </source>
<translation>パッケージ: </translation>
</message>
<message>
<source>Package: can be installed: </source>
<translation>パッケージ: インストールできます: </translation>
</message>
<message>
<source>Package: can be uninstalled: </source>
<translation>パッケージ: アンインストールできます: </translation>
</message>
<message>
<source>Packages</source>
<translation>パッケージ</translation>
</message>
<message>
<source>packages finished</source>
<translation>パッケージの処理が終了しました</translation>
</message>
<message>
<source>Packages installed:</source>
<translation>インストール済みパッケージ:</translation>
</message>
<message>
<source>Packages uninstalled:</source>
<translation>アンインストール済みパッケージ:</translation>
</message>
<message>
<source>Packages:</source>
<translation>パッケージ:</translation>
</message>
<message>
<source>Path</source>
<translation>パス</translation>
</message>
<message>
<source>Phone link</source>
<translation>スマートフォン連携</translation>
</message>
<message>
<source>Place of the file %1</source>
<translation>ファイル %1 の場所</translation>
</message>
<message>
<source>Printer</source>
<translation>プリンター</translation>
</message>
<message>
<source>Prioritize games  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</source>
<translation>ゲームを優先する  (GPU Priority, SFIO Priority, Scheduling category, Affinity)</translation>
</message>
<message>
<source>Process: can be disable: %1 from Riva Tuner Statistic Server app!<byte value="xd"/>
This process only allows screen video capture.Does not affect the monitoring display in any way</source>
<translation>プロセス: 無効にできます: Riva Tuner Statistic Server アプリの %1!<byte value="xd"/>
このプロセスは画面の動画キャプチャにのみ使用されます。監視の表示にはまったく影響しません</translation>
</message>
<message>
<source>Process: disable EncoderServer done</source>
<translation>プロセス: EncoderServer の無効化完了</translation>
</message>
<message>
<source>processes</source>
<translation>プロセス</translation>
</message>
<message>
<source>Program started at logon: %1</source>
<translation>サインイン時のプログラム: %1</translation>
</message>
<message>
<source>Programs</source>
<translation>プログラム</translation>
</message>
<message>
<source>Programs started automatically</source>
<translation>自動的に開始されるプログラム</translation>
</message>
<message>
<source>Proxy and VPN</source>
<translation>プロキシと VPN</translation>
</message>
<message>
<source>Proxy or VPN functionality to improve the security of your network traffic<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>ネットワーク通信の安全性を高めるプロキシまたは VPN の機能<byte value="xd"/>
(既定では使用されていませんが、有効になっています!)</translation>
</message>
<message>
<source>Quick setup of some bluetooth headsets<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>一部の Bluetooth ヘッドセットの簡単セットアップ<byte value="xd"/>
(既定では使用されていませんが、有効になっています!)</translation>
</message>
<message>
<source>Reading what has become of it…</source>
<translation>現在の状態を読み取っています…</translation>
</message>
<message>
<source>Reduces certain delays
(menu show delay, wait to kill app/service timeout, auto end tasks, hung app timeout)</source>
<translation>一部の待ち時間を短縮する
(メニューの表示、アプリやサービスの終了、応答しないアプリ)</translation>
</message>
<message>
<source>Refresh</source>
<translation>最新の情報に更新</translation>
</message>
<message>
<source>Registry key %1</source>
<translation>レジストリ キー %1</translation>
</message>
<message>
<source>Registry value %1</source>
<translation>レジストリ値 %1</translation>
</message>
<message>
<source>Remove indexing attribute of %1</source>
<translation>%1 のインデックス属性を削除</translation>
</message>
<message>
<source>Remove indexing attribute of %1 finished</source>
<translation>%1 のインデックス属性の削除完了</translation>
</message>
<message>
<source>Remove indexing attribute of Windows partition %1</source>
<translation>Windows パーティション %1 のインデックス属性を削除</translation>
</message>
<message>
<source>Remove the indexed attribute from all files in the Windows partition
(this operation may take some time)</source>
<translation>Windows パーティションのすべてのファイルからインデックス属性を削除する
(この操作には時間がかかる場合があります)</translation>
</message>
<message>
<source>Restoration finished</source>
<translation>復元が完了しました</translation>
</message>
<message>
<source>Restoration finished: Restart your PC!</source>
<translation>復元が完了しました: PC を再起動してください!</translation>
</message>
<message>
<source>Restore</source>
<translation>復元</translation>
</message>
<message>
<source>RESTORE disabled scheduled tasks</source>
<translation>無効にしたスケジュール タスクを復元する</translation>
</message>
<message>
<source>RESTORE disabled services</source>
<translation>無効にしたサービスを復元する</translation>
</message>
<message>
<source>Restore scheduled tasks completed successfully</source>
<translation>スケジュール タスクの復元が正常に完了しました</translation>
</message>
<message>
<source>Restore services finished</source>
<translation>サービスの復元が完了しました</translation>
</message>
<message>
<source>Restoring scheduled tasks</source>
<translation>スケジュール タスクの復元</translation>
</message>
<message>
<source>running</source>
<translation>実行中</translation>
</message>
<message>
<source>S&amp;earch:</source>
<translation>検索(&amp;E):</translation>
</message>
<message>
<source>Sa&amp;ve as files…</source>
<translation>ファイルとして保存(&amp;V)…</translation>
</message>
<message>
<source>Scheduled task %1</source>
<translation>スケジュール タスク %1</translation>
</message>
<message>
<source>Scheduled tasks</source>
<translation>スケジュール タスク</translation>
</message>
<message>
<source>Screenshot tool</source>
<translation>スクリーンショット ツール</translation>
</message>
<message>
<source>Service %1: delayed start</source>
<translation>サービス %1: 遅延開始</translation>
</message>
<message>
<source>Service %1: run state</source>
<translation>サービス %1: 実行状態</translation>
</message>
<message>
<source>Service %1: start mode</source>
<translation>サービス %1: 開始の種類</translation>
</message>
<message>
<source>Service: can be disable: </source>
<translation>サービス: 無効にできます: </translation>
</message>
<message>
<source>Service: can be enable: </source>
<translation>サービス: 有効にできます: </translation>
</message>
<message>
<source>Service: can be set to manual:</source>
<translation>サービス: 手動に設定できます:</translation>
</message>
<message>
<source>Service: disable %1</source>
<translation>サービス: %1 を無効化</translation>
</message>
<message>
<source>Service: disable and stop %1</source>
<translation>サービス: %1 を無効化して停止</translation>
</message>
<message>
<source>Service: enable %1</source>
<translation>サービス: %1 を有効化</translation>
</message>
<message>
<source>Service: enable %1 done</source>
<translation>サービス: %1 の有効化完了</translation>
</message>
<message>
<source>Service: enable and start %1</source>
<translation>サービス: %1 を有効化して開始</translation>
</message>
<message>
<source>Service: enable and start %1 done</source>
<translation>サービス: %1 の有効化と開始完了</translation>
</message>
<message>
<source>Service: enable and start %1, already running!</source>
<translation>サービス: %1 を有効化して開始、既に実行中です!</translation>
</message>
<message>
<source>Service: set to manual:</source>
<translation>サービス: 手動に設定:</translation>
</message>
<message>
<source>Services</source>
<translation>サービス</translation>
</message>
<message>
<source>Services  (Experienced users)</source>
<translation>サービス  (上級ユーザー向け)</translation>
</message>
<message>
<source>Services:</source>
<translation>サービス:</translation>
</message>
<message>
<source>Sessions</source>
<translation>セッション</translation>
</message>
<message>
<source>Set the maximum number of GPU pre-rendered frames to 1
(if you have a good CPU, this reduces latency)</source>
<translation>GPU がプリレンダリングする最大フレーム数を 1 に設定する
(高性能な CPU では遅延が減ります)</translation>
</message>
<message>
<source>something else has changed it since</source>
<translation>その後ほかの要因で変更されています</translation>
</message>
<message>
<source>SSD</source>
<translation>SSD</translation>
</message>
<message>
<source>Start mode</source>
<translation>開始の種類</translation>
</message>
<message>
<source>Start of services</source>
<translation>サービスの開始方法</translation>
</message>
<message>
<source>Start service:</source>
<translation>サービスの開始:</translation>
</message>
<message>
<source>Start with adminstrator rights</source>
<translation>管理者権限で起動する</translation>
</message>
<message>
<source>started:</source>
<translation>開始:</translation>
</message>
<message>
<source>State</source>
<translation>状態</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size finished!</source>
<translation>状態: WinSxS フォルダーのサイズを取得しました!</translation>
</message>
<message>
<source>Status: Getting WinSxS folder size...</source>
<translation>状態: WinSxS フォルダーのサイズを取得しています...</translation>
</message>
<message>
<source>Stop service:</source>
<translation>サービスの停止:</translation>
</message>
<message>
<source>stopped</source>
<translation>停止</translation>
</message>
<message>
<source>stopped:</source>
<translation>停止:</translation>
</message>
<message>
<source>System</source>
<translation>システム</translation>
</message>
<message>
<source>System
Information</source>
<translation>システム
情報</translation>
</message>
<message>
<source>System Information</source>
<translation>システム情報</translation>
</message>
<message>
<source>Take back</source>
<translation>変更を元に戻す</translation>
</message>
<message>
<source>Taking back…</source>
<translation>元に戻しています…</translation>
</message>
<message>
<source>Task:</source>
<translation>タスク:</translation>
</message>
<message>
<source>Task: can be disable: </source>
<translation>タスク: 無効にできます: </translation>
</message>
<message>
<source>Task: can be enable: </source>
<translation>タスク: 有効にできます: </translation>
</message>
<message>
<source>Task: disable and stop %1</source>
<translation>タスク: %1 を無効化して停止</translation>
</message>
<message>
<source>Task: Enable and start %1 done</source>
<translation>タスク: %1 の有効化と開始完了</translation>
</message>
<message>
<source>Tasks</source>
<translation>タスク</translation>
</message>
<message>
<source>Tasks:</source>
<translation>タスク:</translation>
</message>
<message>
<source>the file is at neither place</source>
<translation>ファイルはどちらの場所にもありません</translation>
</message>
<message>
<source>The files can't bring back:</source>
<translation>ファイルでは元に戻せないもの:</translation>
</message>
<message>
<source>The way back needs Admin rights: only what was changed with them is noted.</source>
<translation>元に戻すには管理者権限が必要です。記録されるのは、その権限で行われた変更だけです。</translation>
</message>
<message>
<source>Theme:</source>
<translation>テーマ:</translation>
</message>
<message>
<source>there</source>
<translation>あり</translation>
</message>
<message>
<source>threads</source>
<translation>スレッド</translation>
</message>
<message>
<source>Tweaks</source>
<translation>調整</translation>
</message>
<message>
<source>Uncheck all</source>
<translation>すべての選択を解除</translation>
</message>
<message>
<source>under way</source>
<translation>進行中</translation>
</message>
<message>
<source>Uninstall</source>
<translation>アンインストール</translation>
</message>
<message>
<source>Uninstall packages</source>
<translation>パッケージをアンインストール</translation>
</message>
<message>
<source>uninstalled:</source>
<translation>アンインストール済み:</translation>
</message>
<message>
<source>unknown</source>
<translation>不明</translation>
</message>
<message>
<source>UPnP network services</source>
<translation>UPnP ネットワーク サービス</translation>
</message>
<message>
<source>View auto started programs</source>
<translation>スタートアップ プログラムを表示</translation>
</message>
<message>
<source>View disabled services</source>
<translation>無効なサービスを表示</translation>
</message>
<message>
<source>View installed packages</source>
<translation>インストール済みを表示</translation>
</message>
<message>
<source>View programs disabled</source>
<translation>無効なプログラムを表示</translation>
</message>
<message>
<source>View started services</source>
<translation>開始済みのサービスを表示</translation>
</message>
<message>
<source>View uninstalled packages</source>
<translation>アンインストール済みを表示</translation>
</message>
<message>
<source>Way back</source>
<translation>元に戻す</translation>
</message>
<message>
<source>Way back…</source>
<translation>元に戻す…</translation>
</message>
<message>
<source>What</source>
<translation>内容</translation>
</message>
<message>
<source>What was changed on this PC isn't noted, so there is no way back by notes.</source>
<translation>この PC での変更は記録されていないため、記録から元に戻すことはできません。</translation>
</message>
<message>
<source>When</source>
<translation>日時</translation>
</message>
<message>
<source>Widget app</source>
<translation>ウィジェット アプリ</translation>
</message>
<message>
<source>Win32PrioritySeparation:   Processor time allocated to applications.</source>
<translation>Win32PrioritySeparation:   アプリに割り当てられるプロセッサ時間。</translation>
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
<translation>Windows アプリ: %1 のインストール エラー: </translation>
</message>
<message>
<source>Windows application: ERROR uninstall %1: </source>
<translation>Windows アプリ: %1 のアンインストール エラー: </translation>
</message>
<message>
<source>Windows application: install %1 done</source>
<translation>Windows アプリ: %1 のインストール完了</translation>
</message>
<message>
<source>Windows application: uninstall %1 done</source>
<translation>Windows アプリ: %1 のアンインストール完了</translation>
</message>
<message>
<source>Windows applications</source>
<translation>Windows アプリ</translation>
</message>
<message>
<source>Windows packages installed</source>
<translation>インストール済みの Windows パッケージ</translation>
</message>
<message>
<source>Windows sharing functionality on a local network (SMB protocol) (eg: connect hard drives, printers on a local network)<byte value="xd"/>
(by default it is not used but activated!)</source>
<translation>ローカル ネットワークでの Windows の共有機能 (SMB プロトコル) (例: ローカル ネットワーク上のハード ドライブやプリンターへの接続)<byte value="xd"/>
(既定では使用されていませんが、有効になっています!)</translation>
</message>
<message>
<source>With all &amp;later changes</source>
<translation>以後のすべての変更を含む(&amp;L)</translation>
</message>
<message>
<source>Would you like to apply option for set indexing attributes of all files in Windows partition?</source>
<translation>Windows パーティションのすべてのファイルで内容のインデックス作成を無効にしますか? 時間がかかることがあります。</translation>
</message>
<message>
<source>Would you like to apply option to set indexing attributes of all files in Windows partition?</source>
<translation>このインデックスの設定を Windows パーティションのすべてのファイルに適用しますか? 時間がかかることがあります。</translation>
</message>
<message>
<source>Written: %1</source>
<translation>書き込みました: %1</translation>
</message>
<message>
<source>Xbox App</source>
<translation>Xbox アプリ</translation>
</message>
<message>
<source>Xbox game bar</source>
<translation>Xbox Game Bar</translation>
</message>
<message>
<source>XBOX Game Bar that appears at the top of the screen, above a game. If you don't use it, uncheck this box</source>
<translation>ゲームの上、画面の上部に表示される Xbox Game Bar です。使用しない場合は、チェックを外してください</translation>
</message>
<message>
<source>Yes</source>
<translation>はい</translation>
</message>
<message>
<source>You must launch this app with Admin rights!</source>
<translation>このアプリは管理者として実行する必要があります!</translation>
</message>
<message>
<source>You should launch this app with Admin rights!</source>
<translation>このアプリは管理者として実行することをお勧めします!</translation>
</message>
<message>
<source>No known effect on today's Windows: write caching is set for each drive elsewhere.</source>
<translation>現在の Windows では効果が知られていません。書き込みキャッシュはドライブごとに別の場所で設定されます。</translation>
</message>
<message>
<source>No known effect: Windows doesn't read this value.</source>
<translation>効果は知られていません。Windows はこの値を読み取りません。</translation>
</message>
<message>
<source>Saves small writes: Windows no longer records when a file was last read. Needs a restart.</source>
<translation>小さな書き込みを減らします。Windows はファイルを最後に読み取った日時を記録しなくなります。再起動が必要です。</translation>
</message>
<message>
<source>Windows no longer preloads programs: they start more slowly at first, and an SSD gains nothing. Needs a restart.</source>
<translation>Windows はプログラムを事前に読み込まなくなります。最初の起動が遅くなり、SSD では利点がありません。再起動が必要です。</translation>
</message>
<message>
<source>Windows' default: nothing changes. Taking it back clears the page file at each shutdown, which takes minutes.</source>
<translation>Windows の既定値なので何も変わりません。元に戻すと、シャットダウンのたびにページ ファイルが消去され、数分かかります。</translation>
</message>
<message>
<source>Each start is a full one: it takes a little longer, and drivers start afresh.</source>
<translation>毎回完全に起動します。少し時間がかかり、ドライバーは最初から読み込まれます。</translation>
</message>
<message>
<source>Frees the space of hiberfil.sys. The PC can't hibernate any more, and fast startup goes too.</source>
<translation>hiberfil.sys の領域を解放します。休止状態と高速スタートアップは使えなくなります。</translation>
</message>
<message>
<source>Takes all files out of the content index: search gets slower and finds less.</source>
<translation>すべてのファイルを内容のインデックスから外します。検索は遅くなり、見つかるものが減ります。</translation>
</message>
<message>
<source>No known effect since Windows XP.</source>
<translation>Windows XP 以降、効果は知られていません。</translation>
</message>
<message>
<source>Small effect: only for games that register with Windows' multimedia scheduler.</source>
<translation>効果はわずかです。Windows のマルチメディア スケジューラーに登録するゲームだけに効きます。</translation>
</message>
<message>
<source>No known effect: Windows reads this setting elsewhere.</source>
<translation>効果は知られていません。Windows はこの設定を別の場所から読み取ります。</translation>
</message>
<message>
<source>Windows' default: game mode is on already. Taking it back switches it off.</source>
<translation>Windows の既定値で、ゲーム モードはすでに有効です。元に戻すと無効になります。</translation>
</message>
<message>
<source>Windows no longer records or broadcasts games. Settings shows this as managed by your organization.</source>
<translation>Windows はゲームを録画も配信もしなくなります。設定では組織が管理していると表示されます。</translation>
</message>
<message>
<source>Windows 11: the default already, and taking it back forces the slower platform timer. Windows 10: no known effect.</source>
<translation>Windows 11: すでに既定で、元に戻すと遅いプラットフォーム タイマーが強制されます。Windows 10: 効果は知られていません。</translation>
</message>
<message>
<source>Partly effective: the Game Bar's tips and the Xbox button are off, but Win+G still opens it.</source>
<translation>一部だけ有効です。Game Bar のヒントと Xbox ボタンは無効になりますが、Win+G では開きます。</translation>
</message>
<message>
<source>Windows 11: the system timer never pauses, which costs power; needs a restart. Windows 10: nothing changes.</source>
<translation>Windows 11: システム タイマーが止まらなくなり、電力を消費します。再起動が必要です。Windows 10: 何も変わりません。</translation>
</message>
<message>
<source>Shows games without HDR in HDR. Resets other graphics settings such as variable refresh rate.</source>
<translation>HDR 非対応のゲームを HDR で表示します。可変リフレッシュ レートなど他のグラフィックス設定は初期化されます。</translation>
</message>
<message>
<source>The pointer moves evenly with the mouse. Takes effect at the next sign-in.</source>
<translation>ポインターがマウスに一定の割合で追従します。次回のサインインから有効です。</translation>
</message>
<message>
<source>Partly effective: packets are acknowledged at once, not on connections with a fixed address. Needs a restart.</source>
<translation>一部だけ有効です。固定アドレスの接続を除き、パケットに直ちに応答します。再起動が必要です。</translation>
</message>
<message>
<source>38 is what Windows does by default; other choices change it. Taking it back deletes the value.</source>
<translation>38 は Windows の既定の動作です。他の値では変わります。元に戻すと値が削除されます。</translation>
</message>
<message>
<source>No known effect: neither Direct3D nor drivers read this value today.</source>
<translation>効果は知られていません。Direct3D もドライバーも現在この値を読み取りません。</translation>
</message>
<message>
<source>May fix flickering and stutter; some videos may run worse. Said to have no effect since Windows 11 24H2. Needs a restart.</source>
<translation>ちらつきやカクつきが直ることがありますが、一部の動画は悪化します。Windows 11 24H2 以降は効果がないとされています。再起動が必要です。</translation>
</message>
<message>
<source>Of use with several AMD graphics cards only; its effect is uncertain. Needs a restart.</source>
<translation>複数の AMD グラフィックス カードがある場合だけ役立ちます。効果は不確かです。再起動が必要です。</translation>
</message>
<message>
<source>Fewer svchost.exe processes, but services are less isolated from each other. Needs a restart.</source>
<translation>svchost.exe プロセスは減りますが、サービス同士の分離が弱まります。再起動が必要です。</translation>
</message>
<message>
<source>Windows' default since version 1803: nothing changes. Taking it back switches the backup on.</source>
<translation>バージョン 1803 以降の既定値なので何も変わりません。元に戻すとバックアップが有効になります。</translation>
</message>
<message>
<source>Hides the button for advanced options only; indexing goes on.</source>
<translation>詳細オプションのボタンを隠すだけで、インデックス作成は続きます。</translation>
</message>
<message>
<source>File History keeps no older versions of files any more. Recent files are still listed.</source>
<translation>ファイル履歴は古いバージョンを保存しなくなります。最近使ったファイルは引き続き表示されます。</translation>
</message>
<message>
<source>A right-click shows all entries, once Explorer has been restarted. Taking it back leaves the old menu.</source>
<translation>エクスプローラーの再起動後、右クリックですべての項目が表示されます。元に戻しても古いメニューのままです。</translation>
</message>
<message>
<source>Updates are no longer exchanged with other PCs.</source>
<translation>更新プログラムを他の PC とやり取りしなくなります。</translation>
</message>
<message>
<source>Less data goes to Microsoft. Clipboard history (Win+V), location and error reports stop working too.</source>
<translation>Microsoft に送られるデータが減ります。クリップボードの履歴 (Win+V)、位置情報、エラー報告も使えなくなります。</translation>
</message>
<message>
<source>Menus open faster. At sign-out programs may be closed with unsaved work. Takes effect at the next sign-in.</source>
<translation>メニューが速く開きます。サインアウト時に、保存していない作業があってもプログラムが閉じられることがあります。次回のサインインから有効です。</translation>
</message>
<message>
<source>Windows 11: removes the whole lock screen; some editions ignore it. Windows 10: nothing changes.</source>
<translation>Windows 11: ロック画面全体がなくなりますが、無視するエディションもあります。Windows 10: 何も変わりません。</translation>
</message>
<message>
<source>Search in Start and on the taskbar stops working. An update may bring it back while this box stays checked.</source>
<translation>スタートとタスク バーの検索が使えなくなります。このチェックが付いたままでも、更新プログラムで元に戻ることがあります。</translation>
</message>
<message>
<source>Partly effective: two tasks stay off, but the service comes back at the next sign-in.</source>
<translation>一部だけ有効です。2 つのタスクは無効のままですが、サービスは次回のサインインで戻ります。</translation>
</message>
<message>
<source>none changed</source>
<translation>変更なし</translation>
</message>
<message>
<source>an empty key</source>
<translation>空のキー</translation>
</message>
<message>
<source>yes</source>
<translation>はい</translation>
</message>
<message>
<source>no</source>
<translation>いいえ</translation>
</message>
<message>
<source>%1 values</source>
<translation>%1 個の値</translation>
</message>
<message>
<source>%1 changed</source>
<translation>%1 個を変更</translation>
</message>
<message>
<source>%1 as before</source>
<translation>%1 個は元どおり</translation>
</message>
<message>
<source>%1 otherwise</source>
<translation>%1 個は別の値</translation>
</message>
<message>
<source>%1 stay changed</source>
<translation>%1 個は変更のまま</translation>
</message>
<message>
<source>start mode</source>
<translation>開始の種類</translation>
</message>
<message>
<source>delayed start</source>
<translation>遅延開始</translation>
</message>
<message>
<source>state</source>
<translation>状態</translation>
</message>
<message>
<source>the key itself</source>
<translation>キーそのもの</translation>
</message>
<message>
<source>the file</source>
<translation>ファイル</translation>
</message>
<message>
<source>its attributes</source>
<translation>その属性</translation>
</message>
<message>
<source>its owner and permissions</source>
<translation>その所有者と権限</translation>
</message>
<message>
<source>in the boot configuration</source>
<translation>ブート構成</translation>
</message>
<message>
<source>Records of what was done</source>
<translation>実行内容の記録</translation>
</message>
<message>
<source>Log and backups beside the program</source>
<translation>プログラムのログとバックアップ</translation>
</message>
<message>
<source>Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on demand or with a delay now starts automatically.</source>
<translation>復元では、最適化で無効にしたサービスをすべて開始し、自動に設定します。必要なときや遅れて開始していたサービスも、自動で開始するようになります。</translation>
</message>
<message>
<source>Optimize does not record services that it sets to manual, so Restore doesn't know of them.</source>
<translation>最適化は手動に設定したサービスを記録しないため、復元の対象になりません。</translation>
</message>
<message>
<source>Restore enables only the tasks that Optimize has recorded.</source>
<translation>復元で有効になるのは、最適化が記録したタスクだけです。</translation>
</message>
<message>
<source>Restore re-registers the app from its files, as Windows itself does for a new user.</source>
<translation>復元では、Windows が新しいユーザーに対して行うのと同じように、ファイルからアプリを登録し直します。</translation>
</message>
<message>
<source>The app comes back as newly installed, without what it had stored.</source>
<translation>アプリは新しくインストールした状態で戻り、保存されていた内容は戻りません。</translation>
</message>
<message>
<source>Restore re-registers an app from its files, which could not be found.</source>
<translation>復元ではファイルからアプリを登録し直しますが、そのファイルが見つかりませんでした。</translation>
</message>
<message>
<source>The saved command is cut at its first "=", so the program starts without the rest of its arguments.</source>
<translation>保存されたコマンドは最初の「=」で切れるため、プログラムは残りの引数なしで起動します。</translation>
</message>
<message>
<source>Restore brings back only a command whose program is in quotation marks and exists on the disk.</source>
<translation>復元で戻るのは、プログラムが引用符で囲まれ、ディスク上に存在するコマンドだけです。</translation>
</message>
<message>
<source>Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it.</source>
<translation>復元では以前の設定は分かりません。決まった値 (多くは Windows の既定値) を書き込むか、値を削除します。</translation>
</message>
<message>
<source>Restore doesn't reset this option, or not all of its values.</source>
<translation>復元では、このオプションまたはその値の一部が元に戻りません。</translation>
</message>
<message>
<source>The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway.</source>
<translation>このオプションはすでに最適化後の状態か、最適化の対象外ですが、復元ではリセットされます。</translation>
</message>
<message>
<source>Restore doesn't touch this file.</source>
<translation>復元では、このファイルは変わりません。</translation>
</message>
<message>
<source>Restore doesn't touch this value.</source>
<translation>復元では、この値は変わりません。</translation>
</message>
<message>
<source>Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it stops there: what is changed by then stays changed.</source>
<translation>分析で見つかったものをすべて変更します。しばらく時間がかかります。途中でウィンドウを閉じるとそこで止まり、それまでの変更はそのまま残ります。</translation>
</message>
<message>
<source>Acts on all checked packages at once, without asking. The list stays as it is until the page is shown again.</source>
<translation>チェックの付いたすべてのパッケージをすぐに処理し、確認はしません。一覧は、ページをもう一度表示するまで変わりません。</translation>
</message>
<message>
<source>Nothing changes either.</source>
<translation>元に戻しても何も変わりません。</translation>
</message>
<message>
<source>Last access times are recorded again, but Windows no longer decides about them by itself.</source>
<translation>最終アクセス日時が再び記録されますが、Windows が自動で判断することはなくなります。</translation>
</message>
<message>
<source>The default is back.</source>
<translation>既定値に戻ります。</translation>
</message>
<message>
<source>The defaults are back.</source>
<translation>すべて既定値に戻ります。</translation>
</message>
<message>
<source>The page file is cleared at each shutdown, which isn't the default and takes minutes.</source>
<translation>シャットダウンのたびにページ ファイルが消去されます。これは既定の動作ではなく、数分かかります。</translation>
</message>
<message>
<source>Hibernation is on, even if it was off before, and takes its space again.</source>
<translation>以前オフだった場合でも休止状態が有効になり、再び領域を使います。</translation>
</message>
<message>
<source>The attribute is cleared, even where Windows or you had set it.</source>
<translation>Windows やユーザーが設定していた場合も含めて、属性が消去されます。</translation>
</message>
<message>
<source>Some priorities stay higher than the default.</source>
<translation>一部の優先度は既定値より高いままです。</translation>
</message>
<message>
<source>Game mode is off, and the default is on.</source>
<translation>ゲーム モードは無効になりますが、既定では有効です。</translation>
</message>
<message>
<source>Recording is allowed; Settings still shows it as managed.</source>
<translation>録画は許可されますが、設定では引き続き管理対象と表示されます。</translation>
</message>
<message>
<source>On Windows 11 the platform timer is forced on, which may slow down games; the default is no entry at all.</source>
<translation>Windows 11 ではプラットフォーム タイマーが強制され、ゲームが遅くなることがあります。既定では設定がありません。</translation>
</message>
<message>
<source>The same effect as the default.</source>
<translation>既定値と同じ動作です。</translation>
</message>
<message>
<source>Auto HDR is off.</source>
<translation>自動 HDR はオフになります。</translation>
</message>
<message>
<source>The values are deleted, which is the default.</source>
<translation>値は削除され、既定の状態になります。</translation>
</message>
<message>
<source>The value is deleted. It is there by default, and what Windows does without it is uncertain.</source>
<translation>値は削除されます。既定では存在する値で、ない場合の Windows の動作は不確かです。</translation>
</message>
<message>
<source>ULPS is switched on, even for adapters that never had it.</source>
<translation>ULPS を使ったことのないカードでも ULPS が有効になります。</translation>
</message>
<message>
<source>The same effect as the default on a PC with more than 3.5 GB of memory.</source>
<translation>メモリが 3.5 GB を超える PC では既定値と同じ動作です。</translation>
</message>
<message>
<source>The backup is on, which isn't the default and does no harm.</source>
<translation>バックアップが有効になります。既定ではありませんが、害はありません。</translation>
</message>
<message>
<source>The button is back.</source>
<translation>ボタンが再び表示されます。</translation>
</message>
<message>
<source>File History is allowed again.</source>
<translation>ファイル履歴が再び許可されます。</translation>
</message>
<message>
<source>The old menu stays: key and empty value are left.</source>
<translation>古いメニューのままです。キーと空の値が残ります。</translation>
</message>
<message>
<source>Some values are less private than before: diagnostic data in full, suggestions on, synchronization on.</source>
<translation>一部の値は以前よりプライバシーが下がります。診断データは完全、候補と同期はオンになります。</translation>
</message>
<message>
<source>The lock screen is back.</source>
<translation>ロック画面が再び表示されます。</translation>
</message>
<message>
<source>The program is back; its owner and rights stay changed.</source>
<translation>プログラムは戻りますが、所有者と権限は変更されたままです。</translation>
</message>
<message>
<source>as now</source>
<translation>現在のまま</translation>
</message>
<message>
<source>written</source>
<translation>書き込み済み</translation>
</message>
<message>
<source>kept</source>
<translation>保持</translation>
</message>
<message>
<source>as before</source>
<translation>元どおり</translation>
</message>
</context>
</TS>
