<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>&amp;Number:</source>
        <translation>数値(&amp;N):</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Lumivane</source>
        <translation>Lumivane</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Utility window</source>
        <translation>独立したウィンドウ</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>月(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>情報(&amp;I)</translation>
    </message>
    <message>
        <source>New moon</source>
        <translation>新月</translation>
    </message>
    <message>
        <source>First quarter</source>
        <translation>上弦の月</translation>
    </message>
    <message>
        <source>Full moon</source>
        <translation>満月</translation>
    </message>
    <message>
        <source>Last quarter</source>
        <translation>下弦の月</translation>
    </message>
    <message>
        <source>&amp;Rise and Set</source>
        <translation>出入りの時刻(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Calculation</source>
        <translation>計算(&amp;C)</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>現在(&amp;N)</translation>
    </message>
    <message>
        <source>Back to the present</source>
        <translation>現在の時刻に戻る</translation>
    </message>
    <message>
        <source>Position within the lunation</source>
        <translation>朔望月の中の位置</translation>
    </message>
    <message>
        <source>−1 lunation</source>
        <translation>−1朔望月</translation>
    </message>
    <message>
        <source>Full moon of the previous lunation</source>
        <translation>前の朔望月の満月へ</translation>
    </message>
    <message>
        <source>−1 d</source>
        <translation>−1日</translation>
    </message>
    <message>
        <source>Back one day</source>
        <translation>1日戻る</translation>
    </message>
    <message>
        <source>−1 h</source>
        <translation>−1時間</translation>
    </message>
    <message>
        <source>Back one hour</source>
        <translation>1時間戻る</translation>
    </message>
    <message>
        <source>+1 h</source>
        <translation>+1時間</translation>
    </message>
    <message>
        <source>On one hour</source>
        <translation>1時間進む</translation>
    </message>
    <message>
        <source>+1 d</source>
        <translation>+1日</translation>
    </message>
    <message>
        <source>On one day</source>
        <translation>1日進む</translation>
    </message>
    <message>
        <source>+1 lunation</source>
        <translation>+1朔望月</translation>
    </message>
    <message>
        <source>Full moon of the next lunation</source>
        <translation>次の朔望月の満月へ</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>タイムゾーン(&amp;T):</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>タイムゾーン</translation>
    </message>
    <message>
        <source>GMT</source>
        <translation>GMT</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>その他...</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>場所(&amp;P):</translation>
    </message>
    <message>
        <source>S&amp;et Latitude and Longitude</source>
        <translation>緯度と経度を設定(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Latitude:</source>
        <translation>緯度(&amp;L):</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>緯度 (度、北が正)</translation>
    </message>
    <message>
        <source>L&amp;ongitude:</source>
        <translation>経度(&amp;O):</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>経度 (度、東が正)</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>明るさ(&amp;B):</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>画像の明るさ</translation>
    </message>
    <message>
        <source>&amp;Copy Information to Clipboard</source>
        <translation>情報をクリップボードにコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open at Login</source>
        <translation>ログイン時に起動(&amp;O)</translation>
    </message>
    <message>
        <source>Check for &amp;Update...</source>
        <translation>アップデートを確認(&amp;U)...</translation>
    </message>
    <message>
        <source>Lumivane &amp;Home Page</source>
        <translation>Lumivane のホームページ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Lumivane</source>
        <translation>Lumivane について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit Lumivane</source>
        <translation>Lumivane を終了(&amp;Q)</translation>
    </message>
    <message>
        <source>From &amp;System Settings</source>
        <translation>システム設定から(&amp;S)</translation>
    </message>
    <message>
        <source>Find on the &amp;Web...</source>
        <translation>Web で調べる(&amp;W)...</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新月</translation>
    </message>
    <message>
        <source>near new</source>
        <translation>まもなく新月</translation>
    </message>
    <message>
        <source>past new</source>
        <translation>新月を過ぎた月</translation>
    </message>
    <message>
        <source>a waning crescent</source>
        <translation>欠けていく三日月</translation>
    </message>
    <message>
        <source>a waxing crescent</source>
        <translation>満ちていく三日月</translation>
    </message>
    <message>
        <source>past last quarter</source>
        <translation>下弦を過ぎた月</translation>
    </message>
    <message>
        <source>near first quarter</source>
        <translation>まもなく上弦の月</translation>
    </message>
    <message>
        <source>at last quarter</source>
        <translation>下弦の月</translation>
    </message>
    <message>
        <source>at first quarter</source>
        <translation>上弦の月</translation>
    </message>
    <message>
        <source>near last quarter</source>
        <translation>まもなく下弦の月</translation>
    </message>
    <message>
        <source>past first quarter</source>
        <translation>上弦を過ぎた月</translation>
    </message>
    <message>
        <source>a waning gibbous</source>
        <translation>欠けていく凸月</translation>
    </message>
    <message>
        <source>a waxing gibbous</source>
        <translation>満ちていく凸月</translation>
    </message>
    <message>
        <source>past full</source>
        <translation>満月を過ぎた月</translation>
    </message>
    <message>
        <source>near full</source>
        <translation>まもなく満月</translation>
    </message>
    <message>
        <source>full</source>
        <translation>満月</translation>
    </message>
    <message>
        <source>a Wolf Moon</source>
        <translation>ウルフムーン</translation>
    </message>
    <message>
        <source>a Snow Moon</source>
        <translation>スノームーン</translation>
    </message>
    <message>
        <source>a Worm Moon</source>
        <translation>ワームムーン</translation>
    </message>
    <message>
        <source>a Pink Moon</source>
        <translation>ピンクムーン</translation>
    </message>
    <message>
        <source>a Flower Moon</source>
        <translation>フラワームーン</translation>
    </message>
    <message>
        <source>a Strawberry Moon</source>
        <translation>ストロベリームーン</translation>
    </message>
    <message>
        <source>a Buck Moon</source>
        <translation>バックムーン</translation>
    </message>
    <message>
        <source>a Sturgeon Moon</source>
        <translation>スタージェンムーン</translation>
    </message>
    <message>
        <source>a Fruit or Barley Moon</source>
        <translation>フルーツムーン/バーレイムーン</translation>
    </message>
    <message>
        <source>a Harvest Moon</source>
        <translation>ハーベストムーン</translation>
    </message>
    <message>
        <source>a Hunter&apos;s Moon</source>
        <translation>ハンターズムーン</translation>
    </message>
    <message>
        <source>a Beaver Moon</source>
        <translation>ビーバームーン</translation>
    </message>
    <message>
        <source>a Cold Moon</source>
        <translation>コールドムーン</translation>
    </message>
    <message>
        <source>Moon is ^1</source>
        <translation>^1</translation>
    </message>
    <message>
        <source>^1% illumination</source>
        <translation>輝面比 ^1%</translation>
    </message>
    <message>
        <source>^dd ^hh ^mm since new moon</source>
        <translation>新月から^d日^h時間^m分</translation>
    </message>
    <message>
        <source>Lunation ^1</source>
        <translation>朔望月番号 ^1</translation>
    </message>
    <message>
        <source>Date out of range</source>
        <translation>日付が範囲外です</translation>
    </message>
    <message>
        <source>^1, ^2 is next new moon (^dd ^hh ^mm)</source>
        <translation>次の新月: ^1 ^2 (^d日^h時間^m分)</translation>
    </message>
    <message>
        <source>^1, ^2 is next first quarter (^dd ^hh ^mm)</source>
        <translation>次の上弦の月: ^1 ^2 (^d日^h時間^m分)</translation>
    </message>
    <message>
        <source>^1, ^2 is next full moon (^dd ^hh ^mm)</source>
        <translation>次の満月: ^1 ^2 (^d日^h時間^m分)</translation>
    </message>
    <message>
        <source>^1, ^2 is next last quarter (^dd ^hh ^mm)</source>
        <translation>次の下弦の月: ^1 ^2 (^d日^h時間^m分)</translation>
    </message>
    <message>
        <source>^1, ^2</source>
        <translation>^1 ^2</translation>
    </message>
    <message>
        <source>Next full moon is ^1</source>
        <translation>次の満月: ^1</translation>
    </message>
    <message>
        <source>Open Lumivane Application...</source>
        <translation>Lumivane を開く...</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>情報をクリップボードにコピー</translation>
    </message>
    <message>
        <source>Sun: ^1</source>
        <translation>太陽: ^1</translation>
    </message>
    <message>
        <source>Nautical Twilight: ^1</source>
        <translation>航海薄明: ^1</translation>
    </message>
    <message>
        <source>Moon: ^1</source>
        <translation>月: ^1</translation>
    </message>
    <message>
        <source>^2/^3</source>
        <translation>^2/^3</translation>
    </message>
    <message>
        <source>no rise</source>
        <translation>出なし</translation>
    </message>
    <message>
        <source>no set</source>
        <translation>入りなし</translation>
    </message>
    <message>
        <source>always visible</source>
        <translation>終日見える</translation>
    </message>
    <message>
        <source>always bright</source>
        <translation>終日明るい</translation>
    </message>
    <message>
        <source>always invisible</source>
        <translation>終日見えない</translation>
    </message>
    <message>
        <source>always dark</source>
        <translation>終日暗い</translation>
    </message>
    <message>
        <source>Unknown name or info: %d.</source>
        <translation>不明な名前または情報: %d</translation>
    </message>
    <message>
        <source>Unknown info: %d.</source>
        <translation>不明な情報: %d</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>Lumivane がアプリケーションとしてインストールされていません。</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>Lumivane をインストールすることを強くお勧めします。アプリケーションの一覧に表示され、ログイン時に決まった場所から起動するようになります。(この警告は、現在の場所については一度だけ表示されます。) 移動する場合は、先に Lumivane を終了してください。</translation>
    </message>
    <message>
        <source>&amp;Show Lumivane</source>
        <translation>Lumivane を表示(&amp;S)</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>Lumivane は実行中に移動または削除されたようです。</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>Lumivane のファイルが起動時の場所にありません。Lumivane を終了する必要があります。現在の場所からもう一度起動してください。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>(DST is on for this session.)</source>
        <translation>(このセッションでは夏時間です)</translation>
    </message>
    <message>
        <source>(DST is off for this session.)</source>
        <translation>(このセッションでは夏時間ではありません)</translation>
    </message>
    <message>
        <source>Version [VERSION] ([BUILD])</source>
        <translation>バージョン [VERSION] ([BUILD])</translation>
    </message>
    <message>
        <source>The Moon in your tray: its phase, its age, and when it rises and sets where you are.</source>
        <translation>トレイに浮かぶ月。月の満ち欠け、月齢、そしてあなたのいる場所での月の出と月の入りをお知らせします。</translation>
    </message>
    <message>
        <source>Phases of the Moon</source>
        <translation>月の満ち欠け</translation>
    </message>
    <message>
        <source>Rising and setting</source>
        <translation>出と入り</translation>
    </message>
    <message>
        <source>Oliver Montenbruck and Thomas Pfleger,</source>
        <translation>Oliver Montenbruck、Thomas Pfleger</translation>
    </message>
    <message>
        <source>Map of the Moon</source>
        <translation>月面図</translation>
    </message>
    <message>
        <source>NASA and the USGS Astrogeology programme,</source>
        <translation>NASA および USGS 宇宙地質学プログラム</translation>
    </message>
    <message>
        <source>in the public domain</source>
        <translation>パブリックドメイン</translation>
    </message>
    <message>
        <source>Lumivane on the web</source>
        <translation>Lumivane のウェブサイト</translation>
    </message>
    <message>
        <source>MIT licence, © The Lumivane developers</source>
        <translation>MIT ライセンス、© Lumivane 開発者一同</translation>
    </message>
    <message>
        <source>Sun Rise/set %@</source>
        <translation>出/入り %@</translation>
    </message>
    <message>
        <source>Natical Rise/set %@</source>
        <translation>始まり/終わり %@</translation>
    </message>
    <message>
        <source>Moon Rise/set %@</source>
        <translation>出/入り %@</translation>
    </message>
    <message>
        <source>New %@</source>
        <translation>新月: %@</translation>
    </message>
    <message>
        <source>Q1 %@</source>
        <translation>上弦の月: %@</translation>
    </message>
    <message>
        <source>Full %@</source>
        <translation>満月: %@</translation>
    </message>
    <message>
        <source>Q3 %@</source>
        <translation>下弦の月: %@</translation>
    </message>
    <message>
        <source>Longitude/Latitude %@/%@</source>
        <translation>経度/緯度: %@/%@</translation>
    </message>
    <message>
        <source>GMT </source>
        <translation>GMT </translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>GMT との時差(&amp;T):</translation>
    </message>
    <message>
        <source>For Example: -5, +1.5, 12, 0</source>
        <translation>例: -5, +1.5, 12, 0</translation>
    </message>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
    <message>
        <source>This copy of %1 does not know where to look for updates.</source>
        <translation>この %1 には、アップデートの確認先が設定されていません。</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because this system has no secure connections.</source>
        <translation>このシステムでは安全な接続が利用できないため、%1 はアップデートを確認できません。</translation>
    </message>
    <message>
        <source>The update server can&apos;t be reached; please check the network connection.</source>
        <translation>アップデートサーバーに接続できません。ネットワーク接続を確認してください。</translation>
    </message>
    <message>
        <source>The update server could not prove its identity, so it was not asked for updates.</source>
        <translation>アップデートサーバーの身元を確認できなかったため、アップデートを確認しませんでした。</translation>
    </message>
    <message>
        <source>The update server refers to an insecure address, which was not asked for updates.</source>
        <translation>アップデートサーバーが安全でないアドレスを参照しているため、アップデートを確認しませんでした。</translation>
    </message>
    <message>
        <source>The update server takes too long to answer; please try again later.</source>
        <translation>アップデートサーバーの応答に時間がかかりすぎています。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server&apos;s answer can&apos;t be understood; please try again later.</source>
        <translation>アップデートサーバーの応答を解釈できません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>%1 の新しいバージョンがあります。</translation>
    </message>
    <message>
        <source>%1 %2 is now available (you have %3).</source>
        <translation>%1 %2 が公開されています (お使いのバージョンは %3 です)。</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>後で知らせる(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>このバージョンをスキップ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Learn More...</source>
        <translation>詳しい情報(&amp;L)...</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>最新の状態です。</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <translation>%1 %2 は、現在入手できる最新のバージョンです。</translation>
    </message>
    <message>
        <source>No browser could be opened for the page %1.</source>
        <translation>ページ %1 を開くブラウザーを起動できませんでした。</translation>
    </message>
    <message>
        <source>Update Error!</source>
        <translation>アップデートエラー</translation>
    </message>
    <message>
        <source>Release &amp;Notes:</source>
        <translation>リリースノート(&amp;N):</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>アップデートを確認しています...</translation>
    </message>
    <message>
        <source>Browser not found.</source>
        <translation>ブラウザーが見つかりません。</translation>
    </message>
    <message>
        <source>url: &lt;%1&gt;, browser: &lt;%2&gt;</source>
        <translation>URL: &lt;%1&gt;、ブラウザー: &lt;%2&gt;</translation>
    </message>
    <message>
        <source>This is not a number. Example: %1</source>
        <translation>数値ではありません。例: %1</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 は %2 から %3 の範囲にありません。</translation>
    </message>
    <message>
        <source>Back to the tray icon</source>
        <translation>トレイのアイコンに戻す</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because the program curl is not installed.</source>
        <translation>プログラム curl がインストールされていないため、%1 はアップデートを確認できません。</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1：%2、%3</translation>
    </message>
    <message>
        <source>New Moon</source>
        <translation>新月</translation>
    </message>
    <message>
        <source>First Quarter</source>
        <translation>上弦の月</translation>
    </message>
    <message>
        <source>Full Moon</source>
        <translation>満月</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>下弦の月</translation>
    </message>
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>%n分後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>%n分前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>%n日後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n日前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>%n時間後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>%n時間前</numerusform>
        </translation>
    </message>
    <message>
        <source>C&amp;ity or country:</source>
        <translation>都市または国(&amp;T):</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>都市</translation>
    </message>
    <message>
        <source>Choose a &amp;City...</source>
        <translation>都市を選ぶ(&amp;C)...</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>The system has no list of cities.</source>
        <translation>システムに都市の一覧がありません。</translation>
    </message>
    <message>
        <source>No city found.</source>
        <translation>都市が見つかりません。</translation>
    </message>
    <message>
        <source>&amp;Tell Me the Quarters</source>
        <translation>月の満ち欠けを通知(&amp;T)</translation>
    </message>
</context>
</TS>
