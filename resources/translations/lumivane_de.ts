<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Zahl:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Lumivane</source>
        <translation>Lumivane</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Utility window</source>
        <translation>Eigenes Fenster</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>&amp;Mond</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Informationen</translation>
    </message>
    <message>
        <source>New moon</source>
        <translation>Neumond</translation>
    </message>
    <message>
        <source>First quarter</source>
        <translation>Erstes Viertel</translation>
    </message>
    <message>
        <source>Full moon</source>
        <translation>Vollmond</translation>
    </message>
    <message>
        <source>Last quarter</source>
        <translation>Letztes Viertel</translation>
    </message>
    <message>
        <source>&amp;Rise and Set</source>
        <translation>Auf- und &amp;Untergang</translation>
    </message>
    <message>
        <source>&amp;Calculation</source>
        <translation>&amp;Berechnung</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Jetzt</translation>
    </message>
    <message>
        <source>Back to the present</source>
        <translation>Zurück zur Gegenwart</translation>
    </message>
    <message>
        <source>Position within the lunation</source>
        <translation>Zeitpunkt innerhalb der Lunation</translation>
    </message>
    <message>
        <source>−1 lunation</source>
        <translation>−1 Lunation</translation>
    </message>
    <message>
        <source>Full moon of the previous lunation</source>
        <translation>Vollmond der vorigen Lunation</translation>
    </message>
    <message>
        <source>−1 d</source>
        <translation>−1 Tag</translation>
    </message>
    <message>
        <source>Back one day</source>
        <translation>Einen Tag zurück</translation>
    </message>
    <message>
        <source>−1 h</source>
        <translation>−1 h</translation>
    </message>
    <message>
        <source>Back one hour</source>
        <translation>Eine Stunde zurück</translation>
    </message>
    <message>
        <source>+1 h</source>
        <translation>+1 h</translation>
    </message>
    <message>
        <source>On one hour</source>
        <translation>Eine Stunde vor</translation>
    </message>
    <message>
        <source>+1 d</source>
        <translation>+1 Tag</translation>
    </message>
    <message>
        <source>On one day</source>
        <translation>Einen Tag vor</translation>
    </message>
    <message>
        <source>+1 lunation</source>
        <translation>+1 Lunation</translation>
    </message>
    <message>
        <source>Full moon of the next lunation</source>
        <translation>Vollmond der nächsten Lunation</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>&amp;Zeitzone:</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>GMT</source>
        <translation>GMT</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Andere …</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>&amp;Ort:</translation>
    </message>
    <message>
        <source>S&amp;et Latitude and Longitude</source>
        <translation>Breite und Länge &amp;festlegen</translation>
    </message>
    <message>
        <source>&amp;Latitude:</source>
        <translation>B&amp;reite:</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>Breite in Grad, Norden positiv</translation>
    </message>
    <message>
        <source>L&amp;ongitude:</source>
        <translation>&amp;Länge:</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>Länge in Grad, Osten positiv</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Helligkeit:</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>Helligkeit der Bilder</translation>
    </message>
    <message>
        <source>&amp;Copy Information to Clipboard</source>
        <translation>Informationen in die Zwischenablage &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Open at Login</source>
        <translation>Bei der &amp;Anmeldung starten</translation>
    </message>
    <message>
        <source>Check for &amp;Update...</source>
        <translation>Nach Akt&amp;ualisierung suchen …</translation>
    </message>
    <message>
        <source>Lumivane &amp;Home Page</source>
        <translation>&amp;Webseite von Lumivane</translation>
    </message>
    <message>
        <source>&amp;About Lumivane</source>
        <translation>Ü&amp;ber Lumivane</translation>
    </message>
    <message>
        <source>&amp;Quit Lumivane</source>
        <translation>Lumivane b&amp;eenden</translation>
    </message>
    <message>
        <source>From &amp;System Settings</source>
        <translation>Aus den &amp;Systemeinstellungen</translation>
    </message>
    <message>
        <source>Find on the &amp;Web...</source>
        <translation>Im &amp;Web suchen …</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>new</source>
        <translation>Neumond</translation>
    </message>
    <message>
        <source>near new</source>
        <translation>Kurz vor Neumond</translation>
    </message>
    <message>
        <source>past new</source>
        <translation>Kurz nach Neumond</translation>
    </message>
    <message>
        <source>a waning crescent</source>
        <translation>Abnehmende Mondsichel</translation>
    </message>
    <message>
        <source>a waxing crescent</source>
        <translation>Zunehmende Mondsichel</translation>
    </message>
    <message>
        <source>past last quarter</source>
        <translation>Kurz nach dem letzten Viertel</translation>
    </message>
    <message>
        <source>near first quarter</source>
        <translation>Kurz vor dem ersten Viertel</translation>
    </message>
    <message>
        <source>at last quarter</source>
        <translation>Letztes Viertel</translation>
    </message>
    <message>
        <source>at first quarter</source>
        <translation>Erstes Viertel</translation>
    </message>
    <message>
        <source>near last quarter</source>
        <translation>Kurz vor dem letzten Viertel</translation>
    </message>
    <message>
        <source>past first quarter</source>
        <translation>Kurz nach dem ersten Viertel</translation>
    </message>
    <message>
        <source>a waning gibbous</source>
        <translation>Abnehmender Dreiviertelmond</translation>
    </message>
    <message>
        <source>a waxing gibbous</source>
        <translation>Zunehmender Dreiviertelmond</translation>
    </message>
    <message>
        <source>past full</source>
        <translation>Kurz nach Vollmond</translation>
    </message>
    <message>
        <source>near full</source>
        <translation>Kurz vor Vollmond</translation>
    </message>
    <message>
        <source>full</source>
        <translation>Vollmond</translation>
    </message>
    <message>
        <source>a Wolf Moon</source>
        <translation>Wolfsmond</translation>
    </message>
    <message>
        <source>a Snow Moon</source>
        <translation>Schneemond</translation>
    </message>
    <message>
        <source>a Worm Moon</source>
        <translation>Wurmmond</translation>
    </message>
    <message>
        <source>a Pink Moon</source>
        <translation>Rosa Mond</translation>
    </message>
    <message>
        <source>a Flower Moon</source>
        <translation>Blumenmond</translation>
    </message>
    <message>
        <source>a Strawberry Moon</source>
        <translation>Erdbeermond</translation>
    </message>
    <message>
        <source>a Buck Moon</source>
        <translation>Hirschmond</translation>
    </message>
    <message>
        <source>a Sturgeon Moon</source>
        <translation>Störmond</translation>
    </message>
    <message>
        <source>a Fruit or Barley Moon</source>
        <translation>Frucht- oder Gerstenmond</translation>
    </message>
    <message>
        <source>a Harvest Moon</source>
        <translation>Erntemond</translation>
    </message>
    <message>
        <source>a Hunter&apos;s Moon</source>
        <translation>Jägermond</translation>
    </message>
    <message>
        <source>a Beaver Moon</source>
        <translation>Bibermond</translation>
    </message>
    <message>
        <source>a Cold Moon</source>
        <translation>Kalter Mond</translation>
    </message>
    <message>
        <source>Moon is ^1</source>
        <translation>^1</translation>
    </message>
    <message>
        <source>^1% illumination</source>
        <translation>Zu ^1&#xa0;% beleuchtet</translation>
    </message>
    <message>
        <source>^dd ^hh ^mm since new moon</source>
        <translation>^d T ^h h ^m min seit Neumond</translation>
    </message>
    <message>
        <source>Lunation ^1</source>
        <translation>Lunation ^1</translation>
    </message>
    <message>
        <source>Date out of range</source>
        <translation>Datum außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>^1, ^2 is next new moon (^dd ^hh ^mm)</source>
        <translation>Nächster Neumond: ^1, ^2 (^d T ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next first quarter (^dd ^hh ^mm)</source>
        <translation>Nächstes erstes Viertel: ^1, ^2 (^d T ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next full moon (^dd ^hh ^mm)</source>
        <translation>Nächster Vollmond: ^1, ^2 (^d T ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next last quarter (^dd ^hh ^mm)</source>
        <translation>Nächstes letztes Viertel: ^1, ^2 (^d T ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2</source>
        <translation>^1, ^2</translation>
    </message>
    <message>
        <source>Next full moon is ^1</source>
        <translation>Nächster Vollmond: ^1</translation>
    </message>
    <message>
        <source>Open Lumivane Application...</source>
        <translation>Lumivane öffnen …</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>Informationen in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Sun: ^1</source>
        <translation>Sonne: ^1</translation>
    </message>
    <message>
        <source>Nautical Twilight: ^1</source>
        <translation>Nautische Dämmerung: ^1</translation>
    </message>
    <message>
        <source>Moon: ^1</source>
        <translation>Mond: ^1</translation>
    </message>
    <message>
        <source>^2/^3</source>
        <translation>^2/^3</translation>
    </message>
    <message>
        <source>no rise</source>
        <translation>kein Aufgang</translation>
    </message>
    <message>
        <source>no set</source>
        <translation>kein Untergang</translation>
    </message>
    <message>
        <source>always visible</source>
        <translation>ganztägig sichtbar</translation>
    </message>
    <message>
        <source>always bright</source>
        <translation>ganztägig hell</translation>
    </message>
    <message>
        <source>always invisible</source>
        <translation>ganztägig unsichtbar</translation>
    </message>
    <message>
        <source>always dark</source>
        <translation>ganztägig dunkel</translation>
    </message>
    <message>
        <source>Unknown name or info: %d.</source>
        <translation>Unbekannter Name oder unbekannte Information: %d.</translation>
    </message>
    <message>
        <source>Unknown info: %d.</source>
        <translation>Unbekannte Information: %d.</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>Lumivane ist nicht unter Ihren Anwendungen installiert.</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>Wir empfehlen Ihnen dringend, Lumivane zu installieren, damit es unter Ihren Anwendungen zu finden ist und bei der Anmeldung von einem festen Ort startet. (Diese Warnung erscheint für den aktuellen Ort nur einmal.) Beenden Sie Lumivane, bevor Sie es verschieben.</translation>
    </message>
    <message>
        <source>&amp;Show Lumivane</source>
        <translation>Lumivane an&amp;zeigen</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>Lumivane wurde anscheinend verschoben oder entfernt, während es lief!</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>Die Dateien von Lumivane liegen nicht mehr dort, wo sie beim Start lagen. Lumivane muss jetzt beendet werden; bitte starten Sie es an seinem jetzigen Ort neu.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>(DST is on for this session.)</source>
        <translation>(In dieser Sitzung gilt Sommerzeit.)</translation>
    </message>
    <message>
        <source>(DST is off for this session.)</source>
        <translation>(In dieser Sitzung gilt keine Sommerzeit.)</translation>
    </message>
    <message>
        <source>Version [VERSION] ([BUILD])</source>
        <translation>Version [VERSION] ([BUILD])</translation>
    </message>
    <message>
        <source>The Moon in your tray: its phase, its age, and when it rises and sets where you are.</source>
        <translation>Der Mond im Systembereich: seine Phase, sein Alter und wann er bei Ihnen auf- und untergeht.</translation>
    </message>
    <message>
        <source>Phases of the Moon</source>
        <translation>Mondphasen</translation>
    </message>
    <message>
        <source>Rising and setting</source>
        <translation>Auf- und Untergang</translation>
    </message>
    <message>
        <source>Oliver Montenbruck and Thomas Pfleger,</source>
        <translation>Oliver Montenbruck und Thomas Pfleger,</translation>
    </message>
    <message>
        <source>Map of the Moon</source>
        <translation>Mondkarte</translation>
    </message>
    <message>
        <source>NASA and the USGS Astrogeology programme,</source>
        <translation>NASA und das Astrogeologie-Programm des USGS,</translation>
    </message>
    <message>
        <source>in the public domain</source>
        <translation>gemeinfrei</translation>
    </message>
    <message>
        <source>Lumivane on the web</source>
        <translation>Lumivane im Web</translation>
    </message>
    <message>
        <source>MIT licence, © The Lumivane developers</source>
        <translation>MIT-Lizenz, © Die Entwickler von Lumivane</translation>
    </message>
    <message>
        <source>Sun Rise/set %@</source>
        <translation>Auf-/Untergang %@</translation>
    </message>
    <message>
        <source>Natical Rise/set %@</source>
        <translation>Beginn/Ende %@</translation>
    </message>
    <message>
        <source>Moon Rise/set %@</source>
        <translation>Auf-/Untergang %@</translation>
    </message>
    <message>
        <source>New %@</source>
        <translation>Neumond: %@</translation>
    </message>
    <message>
        <source>Q1 %@</source>
        <translation>Erstes Viertel: %@</translation>
    </message>
    <message>
        <source>Full %@</source>
        <translation>Vollmond: %@</translation>
    </message>
    <message>
        <source>Q3 %@</source>
        <translation>Letztes Viertel: %@</translation>
    </message>
    <message>
        <source>Longitude/Latitude %@/%@</source>
        <translation>Länge/Breite: %@/%@</translation>
    </message>
    <message>
        <source>GMT </source>
        <translation>GMT </translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>Zeitverschiebung zu &amp;GMT:</translation>
    </message>
    <message>
        <source>For Example: -5, +1.5, 12, 0</source>
        <translation>Zum Beispiel: -5, +1.5, 12, 0</translation>
    </message>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
    <message>
        <source>This copy of %1 does not know where to look for updates.</source>
        <translation>Diese Kopie von %1 weiß nicht, wo sie nach Aktualisierungen suchen soll.</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because this system has no secure connections.</source>
        <translation>%1 kann nicht nach Aktualisierungen suchen, weil dieses System keine sicheren Verbindungen bietet.</translation>
    </message>
    <message>
        <source>The update server can&apos;t be reached; please check the network connection.</source>
        <translation>Der Aktualisierungsserver ist nicht erreichbar; bitte prüfen Sie die Netzwerkverbindung.</translation>
    </message>
    <message>
        <source>The update server could not prove its identity, so it was not asked for updates.</source>
        <translation>Der Aktualisierungsserver konnte seine Identität nicht nachweisen und wurde deshalb nicht abgefragt.</translation>
    </message>
    <message>
        <source>The update server refers to an insecure address, which was not asked for updates.</source>
        <translation>Der Aktualisierungsserver verweist auf eine unsichere Adresse, die deshalb nicht abgefragt wurde.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer; please try again later.</source>
        <translation>Der Aktualisierungsserver antwortet nicht rechtzeitig; bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer can&apos;t be understood; please try again later.</source>
        <translation>Die Antwort des Aktualisierungsservers ist unverständlich; bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Eine neue Version von %1 ist verfügbar!</translation>
    </message>
    <message>
        <source>%1 %2 is now available (you have %3).</source>
        <translation>%1 %2 ist jetzt verfügbar (Sie haben %3).</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Später erinnern</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>Diese &amp;Version überspringen</translation>
    </message>
    <message>
        <source>&amp;Learn More...</source>
        <translation>&amp;Mehr erfahren …</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Sie sind auf dem neuesten Stand!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <translation>%1 %2 ist derzeit die neueste verfügbare Version.</translation>
    </message>
    <message>
        <source>No browser could be opened for the page %1.</source>
        <translation>Für die Seite %1 konnte kein Browser geöffnet werden.</translation>
    </message>
    <message>
        <source>Update Error!</source>
        <translation>Fehler bei der Aktualisierung!</translation>
    </message>
    <message>
        <source>Release &amp;Notes:</source>
        <translation>Versions&amp;hinweise:</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Suche nach Aktualisierungen …</translation>
    </message>
    <message>
        <source>Browser not found.</source>
        <translation>Kein Browser gefunden.</translation>
    </message>
    <message>
        <source>url: &lt;%1&gt;, browser: &lt;%2&gt;</source>
        <translation>URL: &lt;%1&gt;, Browser: &lt;%2&gt;</translation>
    </message>
    <message>
        <source>This is not a number. Example: %1</source>
        <translation>Das ist keine Zahl. Beispiel: %1</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 liegt nicht zwischen %2 und %3.</translation>
    </message>
    <message>
        <source>Back to the tray icon</source>
        <translation>Zurück zum Symbol im Systembereich</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because the program curl is not installed.</source>
        <translation>%1 kann nicht nach Aktualisierungen suchen, weil das Programm curl nicht installiert ist.</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>New Moon</source>
        <translation>Neumond</translation>
    </message>
    <message>
        <source>First Quarter</source>
        <translation>Erstes Viertel</translation>
    </message>
    <message>
        <source>Full Moon</source>
        <translation>Vollmond</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>Letztes Viertel</translation>
    </message>
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>in %n Minute</numerusform>
            <numerusform>in %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>vor %n Minute</numerusform>
            <numerusform>vor %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>in %n Tag</numerusform>
            <numerusform>in %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>vor %n Tag</numerusform>
            <numerusform>vor %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>in %n Stunde</numerusform>
            <numerusform>in %n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>vor %n Stunde</numerusform>
            <numerusform>vor %n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>C&amp;ity or country:</source>
        <translation>&amp;Stadt oder Land:</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Städte</translation>
    </message>
    <message>
        <source>Choose a &amp;City...</source>
        <translation>S&amp;tadt wählen …</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>The system has no list of cities.</source>
        <translation>Das System hat keine Liste von Städten.</translation>
    </message>
    <message>
        <source>No city found.</source>
        <translation>Keine Stadt gefunden.</translation>
    </message>
    <message>
        <source>&amp;Tell Me the Quarters</source>
        <translation>Mondphasen &amp;melden</translation>
    </message>
</context>
</TS>
