<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Número:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Lumivane</source>
        <translation>Lumivane</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Utility window</source>
        <translation>Ventana independiente</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>&amp;Luna</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Información</translation>
    </message>
    <message>
        <source>New moon</source>
        <translation>Luna nueva</translation>
    </message>
    <message>
        <source>First quarter</source>
        <translation>Cuarto creciente</translation>
    </message>
    <message>
        <source>Full moon</source>
        <translation>Luna llena</translation>
    </message>
    <message>
        <source>Last quarter</source>
        <translation>Cuarto menguante</translation>
    </message>
    <message>
        <source>&amp;Rise and Set</source>
        <translation>Salida y &amp;puesta</translation>
    </message>
    <message>
        <source>&amp;Calculation</source>
        <translation>&amp;Cálculo</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>A&amp;hora</translation>
    </message>
    <message>
        <source>Back to the present</source>
        <translation>Volver al presente</translation>
    </message>
    <message>
        <source>Position within the lunation</source>
        <translation>Posición dentro de la lunación</translation>
    </message>
    <message>
        <source>−1 lunation</source>
        <translation>−1 lunación</translation>
    </message>
    <message>
        <source>Full moon of the previous lunation</source>
        <translation>Luna llena de la lunación anterior</translation>
    </message>
    <message>
        <source>−1 d</source>
        <translation>−1 d</translation>
    </message>
    <message>
        <source>Back one day</source>
        <translation>Retroceder un día</translation>
    </message>
    <message>
        <source>−1 h</source>
        <translation>−1 h</translation>
    </message>
    <message>
        <source>Back one hour</source>
        <translation>Retroceder una hora</translation>
    </message>
    <message>
        <source>+1 h</source>
        <translation>+1 h</translation>
    </message>
    <message>
        <source>On one hour</source>
        <translation>Avanzar una hora</translation>
    </message>
    <message>
        <source>+1 d</source>
        <translation>+1 d</translation>
    </message>
    <message>
        <source>On one day</source>
        <translation>Avanzar un día</translation>
    </message>
    <message>
        <source>+1 lunation</source>
        <translation>+1 lunación</translation>
    </message>
    <message>
        <source>Full moon of the next lunation</source>
        <translation>Luna llena de la lunación siguiente</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Ajustes</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>&amp;Zona horaria:</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zona horaria</translation>
    </message>
    <message>
        <source>GMT</source>
        <translation>GMT</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Otra…</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>L&amp;ugar:</translation>
    </message>
    <message>
        <source>S&amp;et Latitude and Longitude</source>
        <translation>&amp;Definir latitud y longitud</translation>
    </message>
    <message>
        <source>&amp;Latitude:</source>
        <translation>La&amp;titud:</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>Latitud en grados, norte positivo</translation>
    </message>
    <message>
        <source>L&amp;ongitude:</source>
        <translation>Lon&amp;gitud:</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>Longitud en grados, este positivo</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Brillo:</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>Brillo de las imágenes</translation>
    </message>
    <message>
        <source>&amp;Copy Information to Clipboard</source>
        <translation>&amp;Copiar la información al portapapeles</translation>
    </message>
    <message>
        <source>&amp;Open at Login</source>
        <translation>&amp;Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Check for &amp;Update...</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Lumivane &amp;Home Page</source>
        <translation>&amp;Página web de Lumivane</translation>
    </message>
    <message>
        <source>&amp;About Lumivane</source>
        <translation>Acerca &amp;de Lumivane</translation>
    </message>
    <message>
        <source>&amp;Quit Lumivane</source>
        <translation>&amp;Salir de Lumivane</translation>
    </message>
    <message>
        <source>From &amp;System Settings</source>
        <translation>Según los ajustes del &amp;sistema</translation>
    </message>
    <message>
        <source>Find on the &amp;Web...</source>
        <translation>Buscar en la &amp;web…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>new</source>
        <translation>Luna nueva</translation>
    </message>
    <message>
        <source>near new</source>
        <translation>Poco antes de la luna nueva</translation>
    </message>
    <message>
        <source>past new</source>
        <translation>Poco después de la luna nueva</translation>
    </message>
    <message>
        <source>a waning crescent</source>
        <translation>Luna menguante</translation>
    </message>
    <message>
        <source>a waxing crescent</source>
        <translation>Luna creciente</translation>
    </message>
    <message>
        <source>past last quarter</source>
        <translation>Poco después del cuarto menguante</translation>
    </message>
    <message>
        <source>near first quarter</source>
        <translation>Poco antes del cuarto creciente</translation>
    </message>
    <message>
        <source>at last quarter</source>
        <translation>Cuarto menguante</translation>
    </message>
    <message>
        <source>at first quarter</source>
        <translation>Cuarto creciente</translation>
    </message>
    <message>
        <source>near last quarter</source>
        <translation>Poco antes del cuarto menguante</translation>
    </message>
    <message>
        <source>past first quarter</source>
        <translation>Poco después del cuarto creciente</translation>
    </message>
    <message>
        <source>a waning gibbous</source>
        <translation>Luna gibosa menguante</translation>
    </message>
    <message>
        <source>a waxing gibbous</source>
        <translation>Luna gibosa creciente</translation>
    </message>
    <message>
        <source>past full</source>
        <translation>Poco después de la luna llena</translation>
    </message>
    <message>
        <source>near full</source>
        <translation>Poco antes de la luna llena</translation>
    </message>
    <message>
        <source>full</source>
        <translation>Luna llena</translation>
    </message>
    <message>
        <source>a Wolf Moon</source>
        <translation>Luna del lobo</translation>
    </message>
    <message>
        <source>a Snow Moon</source>
        <translation>Luna de nieve</translation>
    </message>
    <message>
        <source>a Worm Moon</source>
        <translation>Luna del gusano</translation>
    </message>
    <message>
        <source>a Pink Moon</source>
        <translation>Luna rosa</translation>
    </message>
    <message>
        <source>a Flower Moon</source>
        <translation>Luna de las flores</translation>
    </message>
    <message>
        <source>a Strawberry Moon</source>
        <translation>Luna de fresa</translation>
    </message>
    <message>
        <source>a Buck Moon</source>
        <translation>Luna del ciervo</translation>
    </message>
    <message>
        <source>a Sturgeon Moon</source>
        <translation>Luna del esturión</translation>
    </message>
    <message>
        <source>a Fruit or Barley Moon</source>
        <translation>Luna de la fruta o de la cebada</translation>
    </message>
    <message>
        <source>a Harvest Moon</source>
        <translation>Luna de la cosecha</translation>
    </message>
    <message>
        <source>a Hunter&apos;s Moon</source>
        <translation>Luna del cazador</translation>
    </message>
    <message>
        <source>a Beaver Moon</source>
        <translation>Luna del castor</translation>
    </message>
    <message>
        <source>a Cold Moon</source>
        <translation>Luna fría</translation>
    </message>
    <message>
        <source>Moon is ^1</source>
        <translation>^1</translation>
    </message>
    <message>
        <source>^1% illumination</source>
        <translation>Iluminada al ^1&#xa0;%</translation>
    </message>
    <message>
        <source>^dd ^hh ^mm since new moon</source>
        <translation>^d d ^h h ^m min desde la luna nueva</translation>
    </message>
    <message>
        <source>Lunation ^1</source>
        <translation>Lunación ^1</translation>
    </message>
    <message>
        <source>Date out of range</source>
        <translation>Fecha fuera del intervalo</translation>
    </message>
    <message>
        <source>^1, ^2 is next new moon (^dd ^hh ^mm)</source>
        <translation>Próxima luna nueva: ^1, ^2 (^d d ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next first quarter (^dd ^hh ^mm)</source>
        <translation>Próximo cuarto creciente: ^1, ^2 (^d d ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next full moon (^dd ^hh ^mm)</source>
        <translation>Próxima luna llena: ^1, ^2 (^d d ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next last quarter (^dd ^hh ^mm)</source>
        <translation>Próximo cuarto menguante: ^1, ^2 (^d d ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2</source>
        <translation>^1, ^2</translation>
    </message>
    <message>
        <source>Next full moon is ^1</source>
        <translation>Próxima luna llena: ^1</translation>
    </message>
    <message>
        <source>Open Lumivane Application...</source>
        <translation>Abrir Lumivane…</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>Copiar la información al portapapeles</translation>
    </message>
    <message>
        <source>Sun: ^1</source>
        <translation>Sol: ^1</translation>
    </message>
    <message>
        <source>Nautical Twilight: ^1</source>
        <translation>Crepúsculo náutico: ^1</translation>
    </message>
    <message>
        <source>Moon: ^1</source>
        <translation>Luna: ^1</translation>
    </message>
    <message>
        <source>^2/^3</source>
        <translation>^2/^3</translation>
    </message>
    <message>
        <source>no rise</source>
        <translation>no sale</translation>
    </message>
    <message>
        <source>no set</source>
        <translation>no se pone</translation>
    </message>
    <message>
        <source>always visible</source>
        <translation>siempre visible</translation>
    </message>
    <message>
        <source>always bright</source>
        <translation>siempre claro</translation>
    </message>
    <message>
        <source>always invisible</source>
        <translation>siempre invisible</translation>
    </message>
    <message>
        <source>always dark</source>
        <translation>siempre oscuro</translation>
    </message>
    <message>
        <source>Unknown name or info: %d.</source>
        <translation>Nombre o información desconocidos: %d.</translation>
    </message>
    <message>
        <source>Unknown info: %d.</source>
        <translation>Información desconocida: %d.</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>Lumivane no está instalado entre sus aplicaciones.</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>Le recomendamos encarecidamente que instale Lumivane, para que figure entre sus aplicaciones y se abra al iniciar sesión desde una ubicación fija. (Esta advertencia solo se mostrará una vez para la ubicación actual.) Si lo mueve, salga antes de Lumivane.</translation>
    </message>
    <message>
        <source>&amp;Show Lumivane</source>
        <translation>&amp;Mostrar Lumivane</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>¡Parece que Lumivane se ha movido o eliminado mientras estaba en ejecución!</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>Los archivos de Lumivane ya no están donde estaban al iniciarlo. Lumivane debe cerrarse ahora; vuelva a abrirlo desde su ubicación actual.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>(DST is on for this session.)</source>
        <translation>(Horario de verano activo en esta sesión.)</translation>
    </message>
    <message>
        <source>(DST is off for this session.)</source>
        <translation>(Horario de verano inactivo en esta sesión.)</translation>
    </message>
    <message>
        <source>Version [VERSION] ([BUILD])</source>
        <translation>Versión [VERSION] ([BUILD])</translation>
    </message>
    <message>
        <source>The Moon in your tray: its phase, its age, and when it rises and sets where you are.</source>
        <translation>La Luna en su bandeja: su fase, su edad y a qué hora sale y se pone donde usted está.</translation>
    </message>
    <message>
        <source>Phases of the Moon</source>
        <translation>Fases de la Luna</translation>
    </message>
    <message>
        <source>Rising and setting</source>
        <translation>Salida y puesta</translation>
    </message>
    <message>
        <source>Oliver Montenbruck and Thomas Pfleger,</source>
        <translation>Oliver Montenbruck y Thomas Pfleger,</translation>
    </message>
    <message>
        <source>Map of the Moon</source>
        <translation>Mapa de la Luna</translation>
    </message>
    <message>
        <source>NASA and the USGS Astrogeology programme,</source>
        <translation>NASA y el programa de astrogeología del USGS,</translation>
    </message>
    <message>
        <source>in the public domain</source>
        <translation>de dominio público</translation>
    </message>
    <message>
        <source>Lumivane on the web</source>
        <translation>Lumivane en la web</translation>
    </message>
    <message>
        <source>MIT licence, © The Lumivane developers</source>
        <translation>Licencia MIT, © Los desarrolladores de Lumivane</translation>
    </message>
    <message>
        <source>Sun Rise/set %@</source>
        <translation>Salida/puesta %@</translation>
    </message>
    <message>
        <source>Natical Rise/set %@</source>
        <translation>Inicio/fin %@</translation>
    </message>
    <message>
        <source>Moon Rise/set %@</source>
        <translation>Salida/puesta %@</translation>
    </message>
    <message>
        <source>New %@</source>
        <translation>Luna nueva: %@</translation>
    </message>
    <message>
        <source>Q1 %@</source>
        <translation>Cuarto creciente: %@</translation>
    </message>
    <message>
        <source>Full %@</source>
        <translation>Luna llena: %@</translation>
    </message>
    <message>
        <source>Q3 %@</source>
        <translation>Cuarto menguante: %@</translation>
    </message>
    <message>
        <source>Longitude/Latitude %@/%@</source>
        <translation>Longitud/latitud: %@/%@</translation>
    </message>
    <message>
        <source>GMT </source>
        <translation>GMT </translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>Diferencia respecto a &amp;GMT:</translation>
    </message>
    <message>
        <source>For Example: -5, +1.5, 12, 0</source>
        <translation>Por ejemplo: -5, +1.5, 12, 0</translation>
    </message>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
    <message>
        <source>This copy of %1 does not know where to look for updates.</source>
        <translation>Esta copia de %1 no sabe dónde buscar actualizaciones.</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because this system has no secure connections.</source>
        <translation>%1 no puede buscar actualizaciones porque este sistema no dispone de conexiones seguras.</translation>
    </message>
    <message>
        <source>The update server can&apos;t be reached; please check the network connection.</source>
        <translation>No se puede acceder al servidor de actualizaciones; compruebe la conexión de red.</translation>
    </message>
    <message>
        <source>The update server could not prove its identity, so it was not asked for updates.</source>
        <translation>El servidor de actualizaciones no ha podido demostrar su identidad, por lo que no se le ha consultado.</translation>
    </message>
    <message>
        <source>The update server refers to an insecure address, which was not asked for updates.</source>
        <translation>El servidor de actualizaciones remite a una dirección no segura, a la que no se ha consultado.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer; please try again later.</source>
        <translation>El servidor de actualizaciones tarda demasiado en responder; vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer can&apos;t be understood; please try again later.</source>
        <translation>No se entiende la respuesta del servidor de actualizaciones; vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>¡Hay una nueva versión de %1 disponible!</translation>
    </message>
    <message>
        <source>%1 %2 is now available (you have %3).</source>
        <translation>%1 %2 ya está disponible (usted tiene la %3).</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Recordármelo más tarde</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Omitir esta versión</translation>
    </message>
    <message>
        <source>&amp;Learn More...</source>
        <translation>&amp;Más información…</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>¡Está al día!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <translation>%1 %2 es actualmente la versión más reciente disponible.</translation>
    </message>
    <message>
        <source>No browser could be opened for the page %1.</source>
        <translation>No se pudo abrir ningún navegador para la página %1.</translation>
    </message>
    <message>
        <source>Update Error!</source>
        <translation>¡Error de actualización!</translation>
    </message>
    <message>
        <source>Release &amp;Notes:</source>
        <translation>&amp;Notas de la versión:</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Browser not found.</source>
        <translation>No se ha encontrado el navegador.</translation>
    </message>
    <message>
        <source>url: &lt;%1&gt;, browser: &lt;%2&gt;</source>
        <translation>URL: &lt;%1&gt;, navegador: &lt;%2&gt;</translation>
    </message>
    <message>
        <source>This is not a number. Example: %1</source>
        <translation>Esto no es un número. Ejemplo: %1</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 no está entre %2 y %3.</translation>
    </message>
    <message>
        <source>Back to the tray icon</source>
        <translation>Volver al icono de la bandeja</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because the program curl is not installed.</source>
        <translation>%1 no puede buscar actualizaciones porque el programa curl no está instalado.</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>New Moon</source>
        <translation>Luna nueva</translation>
    </message>
    <message>
        <source>First Quarter</source>
        <translation>Cuarto creciente</translation>
    </message>
    <message>
        <source>Full Moon</source>
        <translation>Luna llena</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>Cuarto menguante</translation>
    </message>
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>dentro de %n minuto</numerusform>
            <numerusform>dentro de %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>hace %n minuto</numerusform>
            <numerusform>hace %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>dentro de %n día</numerusform>
            <numerusform>dentro de %n días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>hace %n día</numerusform>
            <numerusform>hace %n días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>dentro de %n hora</numerusform>
            <numerusform>dentro de %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>hace %n hora</numerusform>
            <numerusform>hace %n horas</numerusform>
        </translation>
    </message>
    <message>
        <source>C&amp;ity or country:</source>
        <translation>C&amp;iudad o país:</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Ciudades</translation>
    </message>
    <message>
        <source>Choose a &amp;City...</source>
        <translation>Elegir una &amp;ciudad…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>The system has no list of cities.</source>
        <translation>El sistema no tiene ninguna lista de ciudades.</translation>
    </message>
    <message>
        <source>No city found.</source>
        <translation>No se ha encontrado ninguna ciudad.</translation>
    </message>
    <message>
        <source>&amp;Tell Me the Quarters</source>
        <translation>Avisar de las &amp;fases lunares</translation>
    </message>
</context>
</TS>
