<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>&amp;Number:</source>
        <translation>الر&amp;قم:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>&amp;حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إ&amp;لغاء</translation>
    </message>
    <message>
        <source>Lumivane</source>
        <translation>Lumivane</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Utility window</source>
        <translation>نافذة مستقلة</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>&amp;القمر</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>معلوما&amp;ت</translation>
    </message>
    <message>
        <source>New moon</source>
        <translation>المحاق</translation>
    </message>
    <message>
        <source>First quarter</source>
        <translation>التربيع الأول</translation>
    </message>
    <message>
        <source>Full moon</source>
        <translation>البدر</translation>
    </message>
    <message>
        <source>Last quarter</source>
        <translation>التربيع الأخير</translation>
    </message>
    <message>
        <source>&amp;Rise and Set</source>
        <translation>الشر&amp;وق والغروب</translation>
    </message>
    <message>
        <source>&amp;Calculation</source>
        <translation>الحسا&amp;ب</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>التاريخ والوقت</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>الآ&amp;ن</translation>
    </message>
    <message>
        <source>Back to the present</source>
        <translation>العودة إلى الوقت الحاضر</translation>
    </message>
    <message>
        <source>Position within the lunation</source>
        <translation>الموضع ضمن الدورة القمرية</translation>
    </message>
    <message>
        <source>−1 lunation</source>
        <translation>‎−1 دورة</translation>
    </message>
    <message>
        <source>Full moon of the previous lunation</source>
        <translation>بدر الدورة القمرية السابقة</translation>
    </message>
    <message>
        <source>−1 d</source>
        <translation>‎−1 يوم</translation>
    </message>
    <message>
        <source>Back one day</source>
        <translation>الرجوع يومًا واحدًا</translation>
    </message>
    <message>
        <source>−1 h</source>
        <translation>‎−1 ساعة</translation>
    </message>
    <message>
        <source>Back one hour</source>
        <translation>الرجوع ساعة واحدة</translation>
    </message>
    <message>
        <source>+1 h</source>
        <translation>‎+1 ساعة</translation>
    </message>
    <message>
        <source>On one hour</source>
        <translation>التقدم ساعة واحدة</translation>
    </message>
    <message>
        <source>+1 d</source>
        <translation>‎+1 يوم</translation>
    </message>
    <message>
        <source>On one day</source>
        <translation>التقدم يومًا واحدًا</translation>
    </message>
    <message>
        <source>+1 lunation</source>
        <translation>‎+1 دورة</translation>
    </message>
    <message>
        <source>Full moon of the next lunation</source>
        <translation>بدر الدورة القمرية التالية</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>الإعدا&amp;دات</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>المنطقة الز&amp;منية:</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>المنطقة الزمنية</translation>
    </message>
    <message>
        <source>GMT</source>
        <translation>غرينتش (GMT)</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>أخرى…</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>المو&amp;قع:</translation>
    </message>
    <message>
        <source>S&amp;et Latitude and Longitude</source>
        <translation>تعيين &amp;خط العرض وخط الطول</translation>
    </message>
    <message>
        <source>&amp;Latitude:</source>
        <translation>العر&amp;ض:</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>خط العرض بالدرجات، موجب شمالًا</translation>
    </message>
    <message>
        <source>L&amp;ongitude:</source>
        <translation>الطو&amp;ل:</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>خط الطول بالدرجات، موجب شرقًا</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>السطو&amp;ع:</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>سطوع الصور</translation>
    </message>
    <message>
        <source>&amp;Copy Information to Clipboard</source>
        <translation>نسخ المعلوما&amp;ت إلى الحافظة</translation>
    </message>
    <message>
        <source>&amp;Open at Login</source>
        <translation>الفتح &amp;عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Check for &amp;Update...</source>
        <translation>التحقق &amp;من وجود تحديث…</translation>
    </message>
    <message>
        <source>Lumivane &amp;Home Page</source>
        <translation>&amp;صفحة Lumivane على الويب</translation>
    </message>
    <message>
        <source>&amp;About Lumivane</source>
        <translation>&amp;حول Lumivane</translation>
    </message>
    <message>
        <source>&amp;Quit Lumivane</source>
        <translation>إ&amp;نهاء Lumivane</translation>
    </message>
    <message>
        <source>From &amp;System Settings</source>
        <translation>&amp;من إعدادات النظام</translation>
    </message>
    <message>
        <source>Find on the &amp;Web...</source>
        <translation>البحث &amp;على الويب…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>new</source>
        <translation>محاق</translation>
    </message>
    <message>
        <source>near new</source>
        <translation>قُبيل المحاق</translation>
    </message>
    <message>
        <source>past new</source>
        <translation>بُعيد المحاق</translation>
    </message>
    <message>
        <source>a waning crescent</source>
        <translation>هلال متناقص</translation>
    </message>
    <message>
        <source>a waxing crescent</source>
        <translation>هلال متزايد</translation>
    </message>
    <message>
        <source>past last quarter</source>
        <translation>بُعيد التربيع الأخير</translation>
    </message>
    <message>
        <source>near first quarter</source>
        <translation>قُبيل التربيع الأول</translation>
    </message>
    <message>
        <source>at last quarter</source>
        <translation>التربيع الأخير</translation>
    </message>
    <message>
        <source>at first quarter</source>
        <translation>التربيع الأول</translation>
    </message>
    <message>
        <source>near last quarter</source>
        <translation>قُبيل التربيع الأخير</translation>
    </message>
    <message>
        <source>past first quarter</source>
        <translation>بُعيد التربيع الأول</translation>
    </message>
    <message>
        <source>a waning gibbous</source>
        <translation>أحدب متناقص</translation>
    </message>
    <message>
        <source>a waxing gibbous</source>
        <translation>أحدب متزايد</translation>
    </message>
    <message>
        <source>past full</source>
        <translation>بُعيد البدر</translation>
    </message>
    <message>
        <source>near full</source>
        <translation>قُبيل البدر</translation>
    </message>
    <message>
        <source>full</source>
        <translation>بدر</translation>
    </message>
    <message>
        <source>a Wolf Moon</source>
        <translation>قمر الذئب</translation>
    </message>
    <message>
        <source>a Snow Moon</source>
        <translation>قمر الثلج</translation>
    </message>
    <message>
        <source>a Worm Moon</source>
        <translation>قمر الدودة</translation>
    </message>
    <message>
        <source>a Pink Moon</source>
        <translation>القمر الوردي</translation>
    </message>
    <message>
        <source>a Flower Moon</source>
        <translation>قمر الزهور</translation>
    </message>
    <message>
        <source>a Strawberry Moon</source>
        <translation>قمر الفراولة</translation>
    </message>
    <message>
        <source>a Buck Moon</source>
        <translation>قمر الأيل</translation>
    </message>
    <message>
        <source>a Sturgeon Moon</source>
        <translation>قمر الحفش</translation>
    </message>
    <message>
        <source>a Fruit or Barley Moon</source>
        <translation>قمر الثمار أو الشعير</translation>
    </message>
    <message>
        <source>a Harvest Moon</source>
        <translation>قمر الحصاد</translation>
    </message>
    <message>
        <source>a Hunter&apos;s Moon</source>
        <translation>قمر الصياد</translation>
    </message>
    <message>
        <source>a Beaver Moon</source>
        <translation>قمر القندس</translation>
    </message>
    <message>
        <source>a Cold Moon</source>
        <translation>القمر البارد</translation>
    </message>
    <message>
        <source>Moon is ^1</source>
        <translation>^1</translation>
    </message>
    <message>
        <source>^1% illumination</source>
        <translation>الإضاءة: ⁦^1%⁩</translation>
    </message>
    <message>
        <source>^dd ^hh ^mm since new moon</source>
        <translation>^d ي ^h س ^m د منذ المحاق</translation>
    </message>
    <message>
        <source>Lunation ^1</source>
        <translation>الدورة القمرية ^1</translation>
    </message>
    <message>
        <source>Date out of range</source>
        <translation>التاريخ خارج النطاق</translation>
    </message>
    <message>
        <source>^1, ^2 is next new moon (^dd ^hh ^mm)</source>
        <translation>المحاق القادم: ^1، ^2 (^d ي ^h س ^m د)</translation>
    </message>
    <message>
        <source>^1, ^2 is next first quarter (^dd ^hh ^mm)</source>
        <translation>التربيع الأول القادم: ^1، ^2 (^d ي ^h س ^m د)</translation>
    </message>
    <message>
        <source>^1, ^2 is next full moon (^dd ^hh ^mm)</source>
        <translation>البدر القادم: ^1، ^2 (^d ي ^h س ^m د)</translation>
    </message>
    <message>
        <source>^1, ^2 is next last quarter (^dd ^hh ^mm)</source>
        <translation>التربيع الأخير القادم: ^1، ^2 (^d ي ^h س ^m د)</translation>
    </message>
    <message>
        <source>^1, ^2</source>
        <translation>^1، ^2</translation>
    </message>
    <message>
        <source>Next full moon is ^1</source>
        <translation>البدر القادم: ^1</translation>
    </message>
    <message>
        <source>Open Lumivane Application...</source>
        <translation>فتح Lumivane…</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>نسخ المعلومات إلى الحافظة</translation>
    </message>
    <message>
        <source>Sun: ^1</source>
        <translation>الشمس: ^1</translation>
    </message>
    <message>
        <source>Nautical Twilight: ^1</source>
        <translation>الشفق البحري: ^1</translation>
    </message>
    <message>
        <source>Moon: ^1</source>
        <translation>القمر: ^1</translation>
    </message>
    <message>
        <source>^2/^3</source>
        <translation>^2 / ^3</translation>
    </message>
    <message>
        <source>no rise</source>
        <translation>لا شروق</translation>
    </message>
    <message>
        <source>no set</source>
        <translation>لا غروب</translation>
    </message>
    <message>
        <source>always visible</source>
        <translation>فوق الأفق طوال اليوم</translation>
    </message>
    <message>
        <source>always bright</source>
        <translation>ضوء طوال اليوم</translation>
    </message>
    <message>
        <source>always invisible</source>
        <translation>تحت الأفق طوال اليوم</translation>
    </message>
    <message>
        <source>always dark</source>
        <translation>ظلام طوال اليوم</translation>
    </message>
    <message>
        <source>Unknown name or info: %d.</source>
        <translation>اسم أو معلومة غير معروفة: %d.</translation>
    </message>
    <message>
        <source>Unknown info: %d.</source>
        <translation>معلومة غير معروفة: %d.</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>Lumivane غير مثبَّت ضمن تطبيقاتك.</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>نوصي بشدة بتثبيت Lumivane ليظهر ضمن تطبيقاتك ويُفتح عند تسجيل الدخول من مكان ثابت. (يظهر هذا التحذير مرة واحدة فقط للمكان الحالي.) إذا أردت نقل Lumivane فأنهِه أولًا.</translation>
    </message>
    <message>
        <source>&amp;Show Lumivane</source>
        <translation>إ&amp;ظهار Lumivane</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>يبدو أن Lumivane قد نُقل أو حُذف أثناء تشغيله!</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>لم تعد ملفات Lumivane في المكان الذي كانت فيه عند بدء تشغيله. يجب إنهاء Lumivane الآن؛ يرجى تشغيله من جديد من مكانه الحالي.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>(DST is on for this session.)</source>
        <translation>(التوقيت الصيفي مفعّل في هذه الجلسة.)</translation>
    </message>
    <message>
        <source>(DST is off for this session.)</source>
        <translation>(التوقيت الصيفي غير مفعّل في هذه الجلسة.)</translation>
    </message>
    <message>
        <source>Version [VERSION] ([BUILD])</source>
        <translation>الإصدار [VERSION] ([BUILD])</translation>
    </message>
    <message>
        <source>The Moon in your tray: its phase, its age, and when it rises and sets where you are.</source>
        <translation>القمر في شريط النظام: طوره وعمره ومواعيد شروقه وغروبه في المكان الذي أنت فيه.</translation>
    </message>
    <message>
        <source>Phases of the Moon</source>
        <translation>أطوار القمر</translation>
    </message>
    <message>
        <source>Rising and setting</source>
        <translation>الشروق والغروب</translation>
    </message>
    <message>
        <source>Oliver Montenbruck and Thomas Pfleger,</source>
        <translation>‏Oliver Montenbruck وThomas Pfleger،</translation>
    </message>
    <message>
        <source>Map of the Moon</source>
        <translation>خريطة القمر</translation>
    </message>
    <message>
        <source>NASA and the USGS Astrogeology programme,</source>
        <translation>‏NASA وبرنامج الجيولوجيا الفلكية لدى USGS،</translation>
    </message>
    <message>
        <source>in the public domain</source>
        <translation>ضمن الملكية العامة</translation>
    </message>
    <message>
        <source>Lumivane on the web</source>
        <translation>‏Lumivane على الويب</translation>
    </message>
    <message>
        <source>MIT licence, © The Lumivane developers</source>
        <translation>رخصة MIT، © مطورو Lumivane</translation>
    </message>
    <message>
        <source>Sun Rise/set %@</source>
        <translation>الشروق/الغروب – %@</translation>
    </message>
    <message>
        <source>Natical Rise/set %@</source>
        <translation>البداية/النهاية – %@</translation>
    </message>
    <message>
        <source>Moon Rise/set %@</source>
        <translation>الشروق/الغروب – %@</translation>
    </message>
    <message>
        <source>New %@</source>
        <translation>المحاق: %@</translation>
    </message>
    <message>
        <source>Q1 %@</source>
        <translation>التربيع الأول: %@</translation>
    </message>
    <message>
        <source>Full %@</source>
        <translation>البدر: %@</translation>
    </message>
    <message>
        <source>Q3 %@</source>
        <translation>التربيع الأخير: %@</translation>
    </message>
    <message>
        <source>Longitude/Latitude %@/%@</source>
        <translation>خط الطول/خط العرض: ⁦%@⁩ / ⁦%@⁩</translation>
    </message>
    <message>
        <source>GMT </source>
        <translation>GMT </translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>الفا&amp;رق الزمني عن GMT:</translation>
    </message>
    <message>
        <source>For Example: -5, +1.5, 12, 0</source>
        <translation>مثلًا: ⁦-5, +1.5, 12, 0⁩</translation>
    </message>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>RTL</translation>
    </message>
    <message>
        <source>This copy of %1 does not know where to look for updates.</source>
        <translation>هذه النسخة من %1 لا تعرف أين تبحث عن التحديثات.</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because this system has no secure connections.</source>
        <translation>لا يستطيع %1 البحث عن تحديثات لأن هذا النظام لا يوفر اتصالات آمنة.</translation>
    </message>
    <message>
        <source>The update server can&apos;t be reached; please check the network connection.</source>
        <translation>يتعذر الوصول إلى خادم التحديثات؛ يُرجى التحقق من الاتصال بالشبكة.</translation>
    </message>
    <message>
        <source>The update server could not prove its identity, so it was not asked for updates.</source>
        <translation>لم يتمكن خادم التحديثات من إثبات هويته، لذلك لم يُطلب منه أي تحديث.</translation>
    </message>
    <message>
        <source>The update server refers to an insecure address, which was not asked for updates.</source>
        <translation>يحيل خادم التحديثات إلى عنوان غير آمن، لذلك لم يُطلب منه أي تحديث.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer; please try again later.</source>
        <translation>يستغرق خادم التحديثات وقتًا طويلًا للرد؛ يُرجى المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer can&apos;t be understood; please try again later.</source>
        <translation>تعذّر فهم رد خادم التحديثات؛ يُرجى المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>تحديث البرنامج</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>يتوفر إصدار جديد من %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available (you have %3).</source>
        <translation>يتوفر الآن ⁦%1 %2⁩ (لديك الإصدار ⁦%3⁩).</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;ذكّرني لاحقًا</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;تخطي هذا الإصدار</translation>
    </message>
    <message>
        <source>&amp;Learn More...</source>
        <translation>&amp;معرفة المزيد…</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>لديك أحدث إصدار!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <translation>⁦%1 %2⁩ هو أحدث إصدار متوفر حاليًا.</translation>
    </message>
    <message>
        <source>No browser could be opened for the page %1.</source>
        <translation>تعذّر فتح متصفح للصفحة ⁦%1⁩.</translation>
    </message>
    <message>
        <source>Update Error!</source>
        <translation>خطأ في التحديث!</translation>
    </message>
    <message>
        <source>Release &amp;Notes:</source>
        <translation>ملا&amp;حظات الإصدار:</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>جارٍ البحث عن تحديثات…</translation>
    </message>
    <message>
        <source>Browser not found.</source>
        <translation>لم يُعثر على المتصفح.</translation>
    </message>
    <message>
        <source>url: &lt;%1&gt;, browser: &lt;%2&gt;</source>
        <translation>‏URL: ⁦&lt;%1&gt;⁩، المتصفح: ⁦&lt;%2&gt;⁩</translation>
    </message>
    <message>
        <source>This is not a number. Example: %1</source>
        <translation>هذا ليس رقمًا. مثال: ⁦%1⁩</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>⁦%1⁩ ليس بين ⁦%2⁩ و⁦%3⁩.</translation>
    </message>
    <message>
        <source>Back to the tray icon</source>
        <translation>العودة إلى أيقونة شريط النظام</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because the program curl is not installed.</source>
        <translation>لا يستطيع %1 البحث عن تحديثات لأن برنامج curl غير مثبت.</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2، %3</translation>
    </message>
    <message>
        <source>New Moon</source>
        <translation>المحاق</translation>
    </message>
    <message>
        <source>First Quarter</source>
        <translation>التربيع الأول</translation>
    </message>
    <message>
        <source>Full Moon</source>
        <translation>البدر</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>التربيع الأخير</translation>
    </message>
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>خلال %n دقيقة</numerusform>
            <numerusform>خلال دقيقة واحدة</numerusform>
            <numerusform>خلال دقيقتين</numerusform>
            <numerusform>خلال %n دقائق</numerusform>
            <numerusform>خلال %n دقيقة</numerusform>
            <numerusform>خلال %n دقيقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>قبل %n دقيقة</numerusform>
            <numerusform>قبل دقيقة واحدة</numerusform>
            <numerusform>قبل دقيقتين</numerusform>
            <numerusform>قبل %n دقائق</numerusform>
            <numerusform>قبل %n دقيقة</numerusform>
            <numerusform>قبل %n دقيقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>خلال %n يوم</numerusform>
            <numerusform>خلال يوم واحد</numerusform>
            <numerusform>خلال يومين</numerusform>
            <numerusform>خلال %n أيام</numerusform>
            <numerusform>خلال %n يومًا</numerusform>
            <numerusform>خلال %n يوم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>قبل %n يوم</numerusform>
            <numerusform>قبل يوم واحد</numerusform>
            <numerusform>قبل يومين</numerusform>
            <numerusform>قبل %n أيام</numerusform>
            <numerusform>قبل %n يومًا</numerusform>
            <numerusform>قبل %n يوم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>خلال %n ساعة</numerusform>
            <numerusform>خلال ساعة واحدة</numerusform>
            <numerusform>خلال ساعتين</numerusform>
            <numerusform>خلال %n ساعات</numerusform>
            <numerusform>خلال %n ساعة</numerusform>
            <numerusform>خلال %n ساعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>قبل %n ساعة</numerusform>
            <numerusform>قبل ساعة واحدة</numerusform>
            <numerusform>قبل ساعتين</numerusform>
            <numerusform>قبل %n ساعات</numerusform>
            <numerusform>قبل %n ساعة</numerusform>
            <numerusform>قبل %n ساعة</numerusform>
        </translation>
    </message>
    <message>
        <source>C&amp;ity or country:</source>
        <translation>&amp;المدينة أو البلد:</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>المدن</translation>
    </message>
    <message>
        <source>Choose a &amp;City...</source>
        <translation>ا&amp;ختيار مدينة…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>The system has no list of cities.</source>
        <translation>لا توجد في النظام قائمة بالمدن.</translation>
    </message>
    <message>
        <source>No city found.</source>
        <translation>لم يُعثر على أي مدينة.</translation>
    </message>
    <message>
        <source>&amp;Tell Me the Quarters</source>
        <translation>الإشعار &amp;بأطوار القمر</translation>
    </message>
</context>
</TS>
