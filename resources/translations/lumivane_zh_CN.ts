<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>&amp;Number:</source>
        <translation>数值(&amp;N)：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Lumivane</source>
        <translation>Lumivane</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Utility window</source>
        <translation>独立窗口</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>月亮(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>信息(&amp;I)</translation>
    </message>
    <message>
        <source>New moon</source>
        <translation>新月</translation>
    </message>
    <message>
        <source>First quarter</source>
        <translation>上弦月</translation>
    </message>
    <message>
        <source>Full moon</source>
        <translation>满月</translation>
    </message>
    <message>
        <source>Last quarter</source>
        <translation>下弦月</translation>
    </message>
    <message>
        <source>&amp;Rise and Set</source>
        <translation>升落时间(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Calculation</source>
        <translation>计算(&amp;C)</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>现在(&amp;N)</translation>
    </message>
    <message>
        <source>Back to the present</source>
        <translation>回到现在</translation>
    </message>
    <message>
        <source>Position within the lunation</source>
        <translation>在朔望月中的位置</translation>
    </message>
    <message>
        <source>−1 lunation</source>
        <translation>−1 朔望月</translation>
    </message>
    <message>
        <source>Full moon of the previous lunation</source>
        <translation>上一个朔望月的满月</translation>
    </message>
    <message>
        <source>−1 d</source>
        <translation>−1 天</translation>
    </message>
    <message>
        <source>Back one day</source>
        <translation>后退一天</translation>
    </message>
    <message>
        <source>−1 h</source>
        <translation>−1 小时</translation>
    </message>
    <message>
        <source>Back one hour</source>
        <translation>后退一小时</translation>
    </message>
    <message>
        <source>+1 h</source>
        <translation>+1 小时</translation>
    </message>
    <message>
        <source>On one hour</source>
        <translation>前进一小时</translation>
    </message>
    <message>
        <source>+1 d</source>
        <translation>+1 天</translation>
    </message>
    <message>
        <source>On one day</source>
        <translation>前进一天</translation>
    </message>
    <message>
        <source>+1 lunation</source>
        <translation>+1 朔望月</translation>
    </message>
    <message>
        <source>Full moon of the next lunation</source>
        <translation>下一个朔望月的满月</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>设置(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>时区(&amp;T)：</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>时区</translation>
    </message>
    <message>
        <source>GMT</source>
        <translation>GMT</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>其他…</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>地点(&amp;P)：</translation>
    </message>
    <message>
        <source>S&amp;et Latitude and Longitude</source>
        <translation>设置纬度和经度(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Latitude:</source>
        <translation>纬度(&amp;L)：</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>纬度（度，北纬为正）</translation>
    </message>
    <message>
        <source>L&amp;ongitude:</source>
        <translation>经度(&amp;O)：</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>经度（度，东经为正）</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>亮度(&amp;B)：</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>图片的亮度</translation>
    </message>
    <message>
        <source>&amp;Copy Information to Clipboard</source>
        <translation>将信息复制到剪贴板(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open at Login</source>
        <translation>登录时启动(&amp;O)</translation>
    </message>
    <message>
        <source>Check for &amp;Update...</source>
        <translation>检查更新(&amp;U)…</translation>
    </message>
    <message>
        <source>Lumivane &amp;Home Page</source>
        <translation>Lumivane 主页(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Lumivane</source>
        <translation>关于 Lumivane(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit Lumivane</source>
        <translation>退出 Lumivane(&amp;Q)</translation>
    </message>
    <message>
        <source>From &amp;System Settings</source>
        <translation>来自系统设置(&amp;S)</translation>
    </message>
    <message>
        <source>Find on the &amp;Web...</source>
        <translation>在网上查找(&amp;W)…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新月</translation>
    </message>
    <message>
        <source>near new</source>
        <translation>临近新月</translation>
    </message>
    <message>
        <source>past new</source>
        <translation>新月刚过</translation>
    </message>
    <message>
        <source>a waning crescent</source>
        <translation>残月</translation>
    </message>
    <message>
        <source>a waxing crescent</source>
        <translation>蛾眉月</translation>
    </message>
    <message>
        <source>past last quarter</source>
        <translation>下弦月刚过</translation>
    </message>
    <message>
        <source>near first quarter</source>
        <translation>临近上弦月</translation>
    </message>
    <message>
        <source>at last quarter</source>
        <translation>下弦月</translation>
    </message>
    <message>
        <source>at first quarter</source>
        <translation>上弦月</translation>
    </message>
    <message>
        <source>near last quarter</source>
        <translation>临近下弦月</translation>
    </message>
    <message>
        <source>past first quarter</source>
        <translation>上弦月刚过</translation>
    </message>
    <message>
        <source>a waning gibbous</source>
        <translation>亏凸月</translation>
    </message>
    <message>
        <source>a waxing gibbous</source>
        <translation>盈凸月</translation>
    </message>
    <message>
        <source>past full</source>
        <translation>满月刚过</translation>
    </message>
    <message>
        <source>near full</source>
        <translation>临近满月</translation>
    </message>
    <message>
        <source>full</source>
        <translation>满月</translation>
    </message>
    <message>
        <source>a Wolf Moon</source>
        <translation>狼月</translation>
    </message>
    <message>
        <source>a Snow Moon</source>
        <translation>雪月</translation>
    </message>
    <message>
        <source>a Worm Moon</source>
        <translation>虫月</translation>
    </message>
    <message>
        <source>a Pink Moon</source>
        <translation>粉红月</translation>
    </message>
    <message>
        <source>a Flower Moon</source>
        <translation>花月</translation>
    </message>
    <message>
        <source>a Strawberry Moon</source>
        <translation>草莓月</translation>
    </message>
    <message>
        <source>a Buck Moon</source>
        <translation>雄鹿月</translation>
    </message>
    <message>
        <source>a Sturgeon Moon</source>
        <translation>鲟鱼月</translation>
    </message>
    <message>
        <source>a Fruit or Barley Moon</source>
        <translation>果月或大麦月</translation>
    </message>
    <message>
        <source>a Harvest Moon</source>
        <translation>收获月</translation>
    </message>
    <message>
        <source>a Hunter&apos;s Moon</source>
        <translation>猎人月</translation>
    </message>
    <message>
        <source>a Beaver Moon</source>
        <translation>海狸月</translation>
    </message>
    <message>
        <source>a Cold Moon</source>
        <translation>寒月</translation>
    </message>
    <message>
        <source>Moon is ^1</source>
        <translation>^1</translation>
    </message>
    <message>
        <source>^1% illumination</source>
        <translation>亮面比例 ^1%</translation>
    </message>
    <message>
        <source>^dd ^hh ^mm since new moon</source>
        <translation>新月后 ^d 天 ^h 小时 ^m 分钟</translation>
    </message>
    <message>
        <source>Lunation ^1</source>
        <translation>第 ^1 个朔望月</translation>
    </message>
    <message>
        <source>Date out of range</source>
        <translation>日期超出范围</translation>
    </message>
    <message>
        <source>^1, ^2 is next new moon (^dd ^hh ^mm)</source>
        <translation>下次新月：^1 ^2（^d 天 ^h 小时 ^m 分钟）</translation>
    </message>
    <message>
        <source>^1, ^2 is next first quarter (^dd ^hh ^mm)</source>
        <translation>下次上弦月：^1 ^2（^d 天 ^h 小时 ^m 分钟）</translation>
    </message>
    <message>
        <source>^1, ^2 is next full moon (^dd ^hh ^mm)</source>
        <translation>下次满月：^1 ^2（^d 天 ^h 小时 ^m 分钟）</translation>
    </message>
    <message>
        <source>^1, ^2 is next last quarter (^dd ^hh ^mm)</source>
        <translation>下次下弦月：^1 ^2（^d 天 ^h 小时 ^m 分钟）</translation>
    </message>
    <message>
        <source>^1, ^2</source>
        <translation>^1 ^2</translation>
    </message>
    <message>
        <source>Next full moon is ^1</source>
        <translation>下次满月：^1</translation>
    </message>
    <message>
        <source>Open Lumivane Application...</source>
        <translation>打开 Lumivane…</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>将信息复制到剪贴板</translation>
    </message>
    <message>
        <source>Sun: ^1</source>
        <translation>太阳：^1</translation>
    </message>
    <message>
        <source>Nautical Twilight: ^1</source>
        <translation>航海曙暮光：^1</translation>
    </message>
    <message>
        <source>Moon: ^1</source>
        <translation>月亮：^1</translation>
    </message>
    <message>
        <source>^2/^3</source>
        <translation>^2/^3</translation>
    </message>
    <message>
        <source>no rise</source>
        <translation>不升起</translation>
    </message>
    <message>
        <source>no set</source>
        <translation>不落下</translation>
    </message>
    <message>
        <source>always visible</source>
        <translation>整日可见</translation>
    </message>
    <message>
        <source>always bright</source>
        <translation>整日明亮</translation>
    </message>
    <message>
        <source>always invisible</source>
        <translation>整日不可见</translation>
    </message>
    <message>
        <source>always dark</source>
        <translation>整日黑暗</translation>
    </message>
    <message>
        <source>Unknown name or info: %d.</source>
        <translation>未知的名称或信息：%d。</translation>
    </message>
    <message>
        <source>Unknown info: %d.</source>
        <translation>未知的信息：%d。</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>Lumivane 尚未安装到您的应用程序中。</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>强烈建议您安装 Lumivane，使其出现在您的应用程序列表中，并在登录时从固定的位置启动。（对于当前的位置，此警告只会显示一次。）如要移动 Lumivane，请先将其退出。</translation>
    </message>
    <message>
        <source>&amp;Show Lumivane</source>
        <translation>显示 Lumivane(&amp;S)</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>Lumivane 似乎在运行时被移动或删除了！</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>Lumivane 的文件已不在启动时的位置。Lumivane 现在需要退出；请从其当前位置重新启动。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>(DST is on for this session.)</source>
        <translation>（本次会话使用夏令时。）</translation>
    </message>
    <message>
        <source>(DST is off for this session.)</source>
        <translation>（本次会话不使用夏令时。）</translation>
    </message>
    <message>
        <source>Version [VERSION] ([BUILD])</source>
        <translation>版本 [VERSION] ([BUILD])</translation>
    </message>
    <message>
        <source>The Moon in your tray: its phase, its age, and when it rises and sets where you are.</source>
        <translation>托盘中的月亮：月相、月龄，以及您所在地的月出和月落时间。</translation>
    </message>
    <message>
        <source>Phases of the Moon</source>
        <translation>月相</translation>
    </message>
    <message>
        <source>Rising and setting</source>
        <translation>升与落</translation>
    </message>
    <message>
        <source>Oliver Montenbruck and Thomas Pfleger,</source>
        <translation>Oliver Montenbruck 与 Thomas Pfleger，</translation>
    </message>
    <message>
        <source>Map of the Moon</source>
        <translation>月面图</translation>
    </message>
    <message>
        <source>NASA and the USGS Astrogeology programme,</source>
        <translation>NASA 与 USGS 天体地质项目，</translation>
    </message>
    <message>
        <source>in the public domain</source>
        <translation>属于公有领域</translation>
    </message>
    <message>
        <source>Lumivane on the web</source>
        <translation>Lumivane 网站</translation>
    </message>
    <message>
        <source>MIT licence, © The Lumivane developers</source>
        <translation>MIT 许可证，© Lumivane 开发者</translation>
    </message>
    <message>
        <source>Sun Rise/set %@</source>
        <translation>升/落 %@</translation>
    </message>
    <message>
        <source>Natical Rise/set %@</source>
        <translation>始/终 %@</translation>
    </message>
    <message>
        <source>Moon Rise/set %@</source>
        <translation>升/落 %@</translation>
    </message>
    <message>
        <source>New %@</source>
        <translation>新月：%@</translation>
    </message>
    <message>
        <source>Q1 %@</source>
        <translation>上弦月：%@</translation>
    </message>
    <message>
        <source>Full %@</source>
        <translation>满月：%@</translation>
    </message>
    <message>
        <source>Q3 %@</source>
        <translation>下弦月：%@</translation>
    </message>
    <message>
        <source>Longitude/Latitude %@/%@</source>
        <translation>经度/纬度：%@/%@</translation>
    </message>
    <message>
        <source>GMT </source>
        <translation>GMT </translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>与 GMT 的时差(&amp;T)：</translation>
    </message>
    <message>
        <source>For Example: -5, +1.5, 12, 0</source>
        <translation>例如：-5, +1.5, 12, 0</translation>
    </message>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
    <message>
        <source>This copy of %1 does not know where to look for updates.</source>
        <translation>此 %1 副本不知道到哪里查找更新。</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because this system has no secure connections.</source>
        <translation>由于此系统不支持安全连接，%1 无法查找更新。</translation>
    </message>
    <message>
        <source>The update server can&apos;t be reached; please check the network connection.</source>
        <translation>无法连接到更新服务器；请检查网络连接。</translation>
    </message>
    <message>
        <source>The update server could not prove its identity, so it was not asked for updates.</source>
        <translation>更新服务器无法证明其身份，因此未向其查询更新。</translation>
    </message>
    <message>
        <source>The update server refers to an insecure address, which was not asked for updates.</source>
        <translation>更新服务器指向一个不安全的地址，因此未向该地址查询更新。</translation>
    </message>
    <message>
        <source>The update server takes too long to answer; please try again later.</source>
        <translation>更新服务器响应时间过长；请稍后再试。</translation>
    </message>
    <message>
        <source>The update server&apos;s answer can&apos;t be understood; please try again later.</source>
        <translation>无法理解更新服务器的响应；请稍后再试。</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>%1 有新版本可用！</translation>
    </message>
    <message>
        <source>%1 %2 is now available (you have %3).</source>
        <translation>%1 %2 现已可用（您的版本是 %3）。</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>稍后提醒我(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>跳过此版本(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Learn More...</source>
        <translation>了解更多(&amp;L)…</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>已是最新版本！</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <translation>%1 %2 是目前可用的最新版本。</translation>
    </message>
    <message>
        <source>No browser could be opened for the page %1.</source>
        <translation>无法为页面 %1 打开浏览器。</translation>
    </message>
    <message>
        <source>Update Error!</source>
        <translation>更新出错！</translation>
    </message>
    <message>
        <source>Release &amp;Notes:</source>
        <translation>发行说明(&amp;N)：</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Browser not found.</source>
        <translation>找不到浏览器。</translation>
    </message>
    <message>
        <source>url: &lt;%1&gt;, browser: &lt;%2&gt;</source>
        <translation>URL：&lt;%1&gt;，浏览器：&lt;%2&gt;</translation>
    </message>
    <message>
        <source>This is not a number. Example: %1</source>
        <translation>这不是数字。例如：%1</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 不在 %2 到 %3 的范围内。</translation>
    </message>
    <message>
        <source>Back to the tray icon</source>
        <translation>回到托盘图标</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because the program curl is not installed.</source>
        <translation>由于未安装 curl 程序，%1 无法查找更新。</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1：%2，%3</translation>
    </message>
    <message>
        <source>New Moon</source>
        <translation>新月</translation>
    </message>
    <message>
        <source>First Quarter</source>
        <translation>上弦月</translation>
    </message>
    <message>
        <source>Full Moon</source>
        <translation>满月</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>下弦月</translation>
    </message>
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>%n分钟后</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>%n分钟前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>%n天后</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n天前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>%n小时后</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>%n小时前</numerusform>
        </translation>
    </message>
    <message>
        <source>C&amp;ity or country:</source>
        <translation>城市或国家/地区(&amp;T)：</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Choose a &amp;City...</source>
        <translation>选择城市(&amp;C)…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>The system has no list of cities.</source>
        <translation>系统中没有城市列表。</translation>
    </message>
    <message>
        <source>No city found.</source>
        <translation>未找到城市。</translation>
    </message>
    <message>
        <source>&amp;Tell Me the Quarters</source>
        <translation>新月、弦月和满月时提醒我(&amp;T)</translation>
    </message>
</context>
</TS>
