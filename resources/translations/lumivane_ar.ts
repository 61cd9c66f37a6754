<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>Number:</source>
        <translation>الرقم:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
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
        <source>Moon</source>
        <translation>القمر</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>معلومات</translation>
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
        <source>Rise and Set</source>
        <translation>الشروق والغروب</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>الحساب</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>التاريخ والوقت</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
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
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Time zone:</source>
        <translation>المنطقة الزمنية:</translation>
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
        <source>Place:</source>
        <translation>المكان:</translation>
    </message>
    <message>
        <source>Set Latitude and Longitude</source>
        <translation>تعيين خط العرض وخط الطول</translation>
    </message>
    <message>
        <source>Latitude:</source>
        <translation>العرض:</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>خط العرض بالدرجات، موجب شمالًا</translation>
    </message>
    <message>
        <source>Longitude:</source>
        <translation>الطول:</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>خط الطول بالدرجات، موجب شرقًا</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>السطوع:</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>سطوع الصور</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>نسخ المعلومات إلى الحافظة</translation>
    </message>
    <message>
        <source>Open at Login</source>
        <translation>الفتح عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Check for Update...</source>
        <translation>التحقق من وجود تحديث…</translation>
    </message>
    <message>
        <source>Lumivane Home Page</source>
        <translation>صفحة Lumivane على الويب</translation>
    </message>
    <message>
        <source>About Lumivane</source>
        <translation>حول Lumivane</translation>
    </message>
    <message>
        <source>Quit Lumivane</source>
        <translation>إنهاء Lumivane</translation>
    </message>
    <message>
        <source>From System Settings</source>
        <translation>من إعدادات النظام</translation>
    </message>
    <message>
        <source>Find on the Web...</source>
        <translation>البحث على الويب…</translation>
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
        <translation>لا يوجد Lumivane داخل مجلد «Applications» الخاص بك.</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>نوصي بشدة بتثبيت Lumivane في مجلد «Applications». (يظهر هذا التحذير مرة واحدة فقط لموقع التثبيت الحالي.) إذا أردت نقل Lumivane فأنهِه أولًا.</translation>
    </message>
    <message>
        <source>Show Lumivane</source>
        <translation>إظهار Lumivane</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>يبدو أن Lumivane قد نُقل أثناء تشغيله!</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>لا يدعم النظام نقل التطبيقات أو إعادة تسميتها أثناء تشغيلها. يجب إنهاء Lumivane الآن قبل أن يحدث ضرر.</translation>
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
        <translation>الفارق الزمني عن GMT:</translation>
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
        <source>Remind Me Later</source>
        <translation>ذكّرني لاحقًا</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>تخطي هذا الإصدار</translation>
    </message>
    <message>
        <source>Learn More...</source>
        <translation>معرفة المزيد…</translation>
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
        <source>Release Notes:</source>
        <translation>ملاحظات الإصدار:</translation>
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
        <source>%1 can&apos;t look for updates, because a part of it is missing; please install %1 again.</source>
        <translation>لا يستطيع %1 البحث عن تحديثات لأن جزءًا منه مفقود؛ يُرجى تثبيت %1 من جديد.</translation>
    </message>
</context>
</TS>
