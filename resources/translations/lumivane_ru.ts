<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Число:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>&amp;ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>О&amp;тмена</translation>
    </message>
    <message>
        <source>Lumivane</source>
        <translation>Lumivane</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Utility window</source>
        <translation>Отдельное окно</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>&amp;Луна</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Сведения</translation>
    </message>
    <message>
        <source>New moon</source>
        <translation>Новолуние</translation>
    </message>
    <message>
        <source>First quarter</source>
        <translation>Первая четверть</translation>
    </message>
    <message>
        <source>Full moon</source>
        <translation>Полнолуние</translation>
    </message>
    <message>
        <source>Last quarter</source>
        <translation>Последняя четверть</translation>
    </message>
    <message>
        <source>&amp;Rise and Set</source>
        <translation>&amp;Восход и заход</translation>
    </message>
    <message>
        <source>&amp;Calculation</source>
        <translation>&amp;Расчёт</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>Сей&amp;час</translation>
    </message>
    <message>
        <source>Back to the present</source>
        <translation>Вернуться к настоящему</translation>
    </message>
    <message>
        <source>Position within the lunation</source>
        <translation>Положение внутри лунации</translation>
    </message>
    <message>
        <source>−1 lunation</source>
        <translation>−1 лунация</translation>
    </message>
    <message>
        <source>Full moon of the previous lunation</source>
        <translation>Полнолуние предыдущей лунации</translation>
    </message>
    <message>
        <source>−1 d</source>
        <translation>−1 д</translation>
    </message>
    <message>
        <source>Back one day</source>
        <translation>На день назад</translation>
    </message>
    <message>
        <source>−1 h</source>
        <translation>−1 ч</translation>
    </message>
    <message>
        <source>Back one hour</source>
        <translation>На час назад</translation>
    </message>
    <message>
        <source>+1 h</source>
        <translation>+1 ч</translation>
    </message>
    <message>
        <source>On one hour</source>
        <translation>На час вперёд</translation>
    </message>
    <message>
        <source>+1 d</source>
        <translation>+1 д</translation>
    </message>
    <message>
        <source>On one day</source>
        <translation>На день вперёд</translation>
    </message>
    <message>
        <source>+1 lunation</source>
        <translation>+1 лунация</translation>
    </message>
    <message>
        <source>Full moon of the next lunation</source>
        <translation>Полнолуние следующей лунации</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Настройки</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>Часовой &amp;пояс:</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Часовой пояс</translation>
    </message>
    <message>
        <source>GMT</source>
        <translation>GMT</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Системный</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Другой…</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>&amp;Место:</translation>
    </message>
    <message>
        <source>S&amp;et Latitude and Longitude</source>
        <translation>&amp;Задать широту и долготу</translation>
    </message>
    <message>
        <source>&amp;Latitude:</source>
        <translation>&amp;Широта:</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>Широта в градусах, к северу положительная</translation>
    </message>
    <message>
        <source>L&amp;ongitude:</source>
        <translation>&amp;Долгота:</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>Долгота в градусах, к востоку положительная</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Яркость:</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>Яркость изображений</translation>
    </message>
    <message>
        <source>&amp;Copy Information to Clipboard</source>
        <translation>&amp;Копировать сведения в буфер обмена</translation>
    </message>
    <message>
        <source>&amp;Open at Login</source>
        <translation>Запускать при в&amp;ходе в систему</translation>
    </message>
    <message>
        <source>Check for &amp;Update...</source>
        <translation>Проверить наличие &amp;обновлений…</translation>
    </message>
    <message>
        <source>Lumivane &amp;Home Page</source>
        <translation>&amp;Веб-сайт Lumivane</translation>
    </message>
    <message>
        <source>&amp;About Lumivane</source>
        <translation>О &amp;программе Lumivane</translation>
    </message>
    <message>
        <source>&amp;Quit Lumivane</source>
        <translation>&amp;Завершить Lumivane</translation>
    </message>
    <message>
        <source>From &amp;System Settings</source>
        <translation>Из настроек &amp;системы</translation>
    </message>
    <message>
        <source>Find on the &amp;Web...</source>
        <translation>&amp;Найти в интернете…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>new</source>
        <translation>Новолуние</translation>
    </message>
    <message>
        <source>near new</source>
        <translation>Незадолго до новолуния</translation>
    </message>
    <message>
        <source>past new</source>
        <translation>Вскоре после новолуния</translation>
    </message>
    <message>
        <source>a waning crescent</source>
        <translation>Убывающий серп</translation>
    </message>
    <message>
        <source>a waxing crescent</source>
        <translation>Растущий серп</translation>
    </message>
    <message>
        <source>past last quarter</source>
        <translation>Вскоре после последней четверти</translation>
    </message>
    <message>
        <source>near first quarter</source>
        <translation>Незадолго до первой четверти</translation>
    </message>
    <message>
        <source>at last quarter</source>
        <translation>Последняя четверть</translation>
    </message>
    <message>
        <source>at first quarter</source>
        <translation>Первая четверть</translation>
    </message>
    <message>
        <source>near last quarter</source>
        <translation>Незадолго до последней четверти</translation>
    </message>
    <message>
        <source>past first quarter</source>
        <translation>Вскоре после первой четверти</translation>
    </message>
    <message>
        <source>a waning gibbous</source>
        <translation>Убывающая Луна</translation>
    </message>
    <message>
        <source>a waxing gibbous</source>
        <translation>Растущая Луна</translation>
    </message>
    <message>
        <source>past full</source>
        <translation>Вскоре после полнолуния</translation>
    </message>
    <message>
        <source>near full</source>
        <translation>Незадолго до полнолуния</translation>
    </message>
    <message>
        <source>full</source>
        <translation>Полнолуние</translation>
    </message>
    <message>
        <source>a Wolf Moon</source>
        <translation>Волчья луна</translation>
    </message>
    <message>
        <source>a Snow Moon</source>
        <translation>Снежная луна</translation>
    </message>
    <message>
        <source>a Worm Moon</source>
        <translation>Червячная луна</translation>
    </message>
    <message>
        <source>a Pink Moon</source>
        <translation>Розовая луна</translation>
    </message>
    <message>
        <source>a Flower Moon</source>
        <translation>Цветочная луна</translation>
    </message>
    <message>
        <source>a Strawberry Moon</source>
        <translation>Клубничная луна</translation>
    </message>
    <message>
        <source>a Buck Moon</source>
        <translation>Оленья луна</translation>
    </message>
    <message>
        <source>a Sturgeon Moon</source>
        <translation>Осетровая луна</translation>
    </message>
    <message>
        <source>a Fruit or Barley Moon</source>
        <translation>Плодовая или ячменная луна</translation>
    </message>
    <message>
        <source>a Harvest Moon</source>
        <translation>Урожайная луна</translation>
    </message>
    <message>
        <source>a Hunter&apos;s Moon</source>
        <translation>Охотничья луна</translation>
    </message>
    <message>
        <source>a Beaver Moon</source>
        <translation>Бобровая луна</translation>
    </message>
    <message>
        <source>a Cold Moon</source>
        <translation>Холодная луна</translation>
    </message>
    <message>
        <source>Moon is ^1</source>
        <translation>^1</translation>
    </message>
    <message>
        <source>^1% illumination</source>
        <translation>Освещено ^1&#xa0;%</translation>
    </message>
    <message>
        <source>^dd ^hh ^mm since new moon</source>
        <translation>^d д ^h ч ^m мин после новолуния</translation>
    </message>
    <message>
        <source>Lunation ^1</source>
        <translation>Лунация ^1</translation>
    </message>
    <message>
        <source>Date out of range</source>
        <translation>Дата вне диапазона</translation>
    </message>
    <message>
        <source>^1, ^2 is next new moon (^dd ^hh ^mm)</source>
        <translation>Следующее новолуние: ^1, ^2 (^d д ^h ч ^m мин)</translation>
    </message>
    <message>
        <source>^1, ^2 is next first quarter (^dd ^hh ^mm)</source>
        <translation>Следующая первая четверть: ^1, ^2 (^d д ^h ч ^m мин)</translation>
    </message>
    <message>
        <source>^1, ^2 is next full moon (^dd ^hh ^mm)</source>
        <translation>Следующее полнолуние: ^1, ^2 (^d д ^h ч ^m мин)</translation>
    </message>
    <message>
        <source>^1, ^2 is next last quarter (^dd ^hh ^mm)</source>
        <translation>Следующая последняя четверть: ^1, ^2 (^d д ^h ч ^m мин)</translation>
    </message>
    <message>
        <source>^1, ^2</source>
        <translation>^1, ^2</translation>
    </message>
    <message>
        <source>Next full moon is ^1</source>
        <translation>Следующее полнолуние: ^1</translation>
    </message>
    <message>
        <source>Open Lumivane Application...</source>
        <translation>Открыть Lumivane…</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>Копировать сведения в буфер обмена</translation>
    </message>
    <message>
        <source>Sun: ^1</source>
        <translation>Солнце: ^1</translation>
    </message>
    <message>
        <source>Nautical Twilight: ^1</source>
        <translation>Навигационные сумерки: ^1</translation>
    </message>
    <message>
        <source>Moon: ^1</source>
        <translation>Луна: ^1</translation>
    </message>
    <message>
        <source>^2/^3</source>
        <translation>^2/^3</translation>
    </message>
    <message>
        <source>no rise</source>
        <translation>не восходит</translation>
    </message>
    <message>
        <source>no set</source>
        <translation>не заходит</translation>
    </message>
    <message>
        <source>always visible</source>
        <translation>весь день над горизонтом</translation>
    </message>
    <message>
        <source>always bright</source>
        <translation>светло весь день</translation>
    </message>
    <message>
        <source>always invisible</source>
        <translation>весь день под горизонтом</translation>
    </message>
    <message>
        <source>always dark</source>
        <translation>темно весь день</translation>
    </message>
    <message>
        <source>Unknown name or info: %d.</source>
        <translation>Неизвестное название или сведение: %d.</translation>
    </message>
    <message>
        <source>Unknown info: %d.</source>
        <translation>Неизвестное сведение: %d.</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>Программа Lumivane не установлена среди ваших приложений.</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>Настоятельно рекомендуем установить Lumivane, чтобы программа была среди ваших приложений и запускалась при входе в систему из постоянного места. (Для текущего места это предупреждение показывается только один раз.) Перед перемещением завершите Lumivane.</translation>
    </message>
    <message>
        <source>&amp;Show Lumivane</source>
        <translation>Показ&amp;ать Lumivane</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>Похоже, программу Lumivane переместили или удалили во время её работы!</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>Файлов Lumivane больше нет там, где они были при запуске. Lumivane необходимо завершить сейчас; запустите программу снова из её нынешнего места.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>(DST is on for this session.)</source>
        <translation>(В этом сеансе действует летнее время.)</translation>
    </message>
    <message>
        <source>(DST is off for this session.)</source>
        <translation>(В этом сеансе летнее время не действует.)</translation>
    </message>
    <message>
        <source>Version [VERSION] ([BUILD])</source>
        <translation>Версия [VERSION] ([BUILD])</translation>
    </message>
    <message>
        <source>The Moon in your tray: its phase, its age, and when it rises and sets where you are.</source>
        <translation>Луна в области уведомлений: её фаза, возраст, а также когда она восходит и заходит там, где вы находитесь.</translation>
    </message>
    <message>
        <source>Phases of the Moon</source>
        <translation>Фазы Луны</translation>
    </message>
    <message>
        <source>Rising and setting</source>
        <translation>Восход и заход</translation>
    </message>
    <message>
        <source>Oliver Montenbruck and Thomas Pfleger,</source>
        <translation>Oliver Montenbruck и Thomas Pfleger,</translation>
    </message>
    <message>
        <source>Map of the Moon</source>
        <translation>Карта Луны</translation>
    </message>
    <message>
        <source>NASA and the USGS Astrogeology programme,</source>
        <translation>NASA и программа астрогеологии USGS,</translation>
    </message>
    <message>
        <source>in the public domain</source>
        <translation>общественное достояние</translation>
    </message>
    <message>
        <source>Lumivane on the web</source>
        <translation>Lumivane в интернете</translation>
    </message>
    <message>
        <source>MIT licence, © The Lumivane developers</source>
        <translation>Лицензия MIT, © Разработчики Lumivane</translation>
    </message>
    <message>
        <source>Sun Rise/set %@</source>
        <translation>Восход/заход — %@</translation>
    </message>
    <message>
        <source>Natical Rise/set %@</source>
        <translation>Начало/конец — %@</translation>
    </message>
    <message>
        <source>Moon Rise/set %@</source>
        <translation>Восход/заход — %@</translation>
    </message>
    <message>
        <source>New %@</source>
        <translation>Новолуние: %@</translation>
    </message>
    <message>
        <source>Q1 %@</source>
        <translation>Первая четверть: %@</translation>
    </message>
    <message>
        <source>Full %@</source>
        <translation>Полнолуние: %@</translation>
    </message>
    <message>
        <source>Q3 %@</source>
        <translation>Последняя четверть: %@</translation>
    </message>
    <message>
        <source>Longitude/Latitude %@/%@</source>
        <translation>Долгота/широта: %@/%@</translation>
    </message>
    <message>
        <source>GMT </source>
        <translation>GMT </translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>&amp;Смещение относительно GMT:</translation>
    </message>
    <message>
        <source>For Example: -5, +1.5, 12, 0</source>
        <translation>Например: -5, +1.5, 12, 0</translation>
    </message>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
    <message>
        <source>This copy of %1 does not know where to look for updates.</source>
        <translation>Эта копия %1 не знает, где искать обновления.</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because this system has no secure connections.</source>
        <translation>%1 не может проверить обновления, так как в этой системе нет защищённых соединений.</translation>
    </message>
    <message>
        <source>The update server can&apos;t be reached; please check the network connection.</source>
        <translation>Сервер обновлений недоступен; проверьте подключение к сети.</translation>
    </message>
    <message>
        <source>The update server could not prove its identity, so it was not asked for updates.</source>
        <translation>Сервер обновлений не смог подтвердить свою подлинность, поэтому запрос к нему не был отправлен.</translation>
    </message>
    <message>
        <source>The update server refers to an insecure address, which was not asked for updates.</source>
        <translation>Сервер обновлений ссылается на небезопасный адрес, поэтому запрос по нему не был отправлен.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer; please try again later.</source>
        <translation>Сервер обновлений слишком долго не отвечает; повторите попытку позже.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer can&apos;t be understood; please try again later.</source>
        <translation>Не удалось понять ответ сервера обновлений; повторите попытку позже.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Обновление программы</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Доступна новая версия %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available (you have %3).</source>
        <translation>Доступна версия %1 %2 (у вас установлена %3).</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Напомнить позже</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Пропустить эту версию</translation>
    </message>
    <message>
        <source>&amp;Learn More...</source>
        <translation>По&amp;дробнее…</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>У вас последняя версия!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <translation>%1 %2 — самая новая из доступных сейчас версий.</translation>
    </message>
    <message>
        <source>No browser could be opened for the page %1.</source>
        <translation>Не удалось открыть браузер для страницы %1.</translation>
    </message>
    <message>
        <source>Update Error!</source>
        <translation>Ошибка обновления!</translation>
    </message>
    <message>
        <source>Release &amp;Notes:</source>
        <translation>&amp;Что нового:</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Проверка обновлений…</translation>
    </message>
    <message>
        <source>Browser not found.</source>
        <translation>Браузер не найден.</translation>
    </message>
    <message>
        <source>url: &lt;%1&gt;, browser: &lt;%2&gt;</source>
        <translation>URL: &lt;%1&gt;, браузер: &lt;%2&gt;</translation>
    </message>
    <message>
        <source>This is not a number. Example: %1</source>
        <translation>Это не число. Пример: %1</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 не входит в диапазон от %2 до %3.</translation>
    </message>
    <message>
        <source>Back to the tray icon</source>
        <translation>Вернуть к значку в области уведомлений</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because the program curl is not installed.</source>
        <translation>%1 не может проверить обновления, так как программа curl не установлена.</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>New Moon</source>
        <translation>Новолуние</translation>
    </message>
    <message>
        <source>First Quarter</source>
        <translation>Первая четверть</translation>
    </message>
    <message>
        <source>Full Moon</source>
        <translation>Полнолуние</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>Последняя четверть</translation>
    </message>
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>через %n минуту</numerusform>
            <numerusform>через %n минуты</numerusform>
            <numerusform>через %n минут</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>%n минуту назад</numerusform>
            <numerusform>%n минуты назад</numerusform>
            <numerusform>%n минут назад</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>через %n день</numerusform>
            <numerusform>через %n дня</numerusform>
            <numerusform>через %n дней</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n день назад</numerusform>
            <numerusform>%n дня назад</numerusform>
            <numerusform>%n дней назад</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>через %n час</numerusform>
            <numerusform>через %n часа</numerusform>
            <numerusform>через %n часов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>%n час назад</numerusform>
            <numerusform>%n часа назад</numerusform>
            <numerusform>%n часов назад</numerusform>
        </translation>
    </message>
    <message>
        <source>C&amp;ity or country:</source>
        <translation>&amp;Город или страна:</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Города</translation>
    </message>
    <message>
        <source>Choose a &amp;City...</source>
        <translation>Выбрать &amp;город…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>The system has no list of cities.</source>
        <translation>В системе нет списка городов.</translation>
    </message>
    <message>
        <source>No city found.</source>
        <translation>Город не найден.</translation>
    </message>
    <message>
        <source>&amp;Tell Me the Quarters</source>
        <translation>&amp;Уведомлять о фазах Луны</translation>
    </message>
</context>
</TS>
