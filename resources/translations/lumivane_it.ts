<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Numero:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Lumivane</source>
        <translation>Lumivane</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Utility window</source>
        <translation>Finestra indipendente</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>&amp;Luna</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>New moon</source>
        <translation>Luna nuova</translation>
    </message>
    <message>
        <source>First quarter</source>
        <translation>Primo quarto</translation>
    </message>
    <message>
        <source>Full moon</source>
        <translation>Luna piena</translation>
    </message>
    <message>
        <source>Last quarter</source>
        <translation>Ultimo quarto</translation>
    </message>
    <message>
        <source>&amp;Rise and Set</source>
        <translation>Sorgere e &amp;tramonto</translation>
    </message>
    <message>
        <source>&amp;Calculation</source>
        <translation>&amp;Calcolo</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Adesso</translation>
    </message>
    <message>
        <source>Back to the present</source>
        <translation>Torna al presente</translation>
    </message>
    <message>
        <source>Position within the lunation</source>
        <translation>Posizione nella lunazione</translation>
    </message>
    <message>
        <source>−1 lunation</source>
        <translation>−1 lunazione</translation>
    </message>
    <message>
        <source>Full moon of the previous lunation</source>
        <translation>Luna piena della lunazione precedente</translation>
    </message>
    <message>
        <source>−1 d</source>
        <translation>−1 g</translation>
    </message>
    <message>
        <source>Back one day</source>
        <translation>Indietro di un giorno</translation>
    </message>
    <message>
        <source>−1 h</source>
        <translation>−1 h</translation>
    </message>
    <message>
        <source>Back one hour</source>
        <translation>Indietro di un’ora</translation>
    </message>
    <message>
        <source>+1 h</source>
        <translation>+1 h</translation>
    </message>
    <message>
        <source>On one hour</source>
        <translation>Avanti di un’ora</translation>
    </message>
    <message>
        <source>+1 d</source>
        <translation>+1 g</translation>
    </message>
    <message>
        <source>On one day</source>
        <translation>Avanti di un giorno</translation>
    </message>
    <message>
        <source>+1 lunation</source>
        <translation>+1 lunazione</translation>
    </message>
    <message>
        <source>Full moon of the next lunation</source>
        <translation>Luna piena della lunazione successiva</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>I&amp;mpostazioni</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>&amp;Fuso orario:</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fuso orario</translation>
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
        <translation>Altro…</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>Lu&amp;ogo:</translation>
    </message>
    <message>
        <source>S&amp;et Latitude and Longitude</source>
        <translation>Im&amp;posta latitudine e longitudine</translation>
    </message>
    <message>
        <source>&amp;Latitude:</source>
        <translation>Latit&amp;udine:</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>Latitudine in gradi, positiva verso nord</translation>
    </message>
    <message>
        <source>L&amp;ongitude:</source>
        <translation>Lon&amp;gitudine:</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>Longitudine in gradi, positiva verso est</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>Lumino&amp;sità:</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>Luminosità delle immagini</translation>
    </message>
    <message>
        <source>&amp;Copy Information to Clipboard</source>
        <translation>&amp;Copia le informazioni negli appunti</translation>
    </message>
    <message>
        <source>&amp;Open at Login</source>
        <translation>&amp;Apri all’accesso</translation>
    </message>
    <message>
        <source>Check for &amp;Update...</source>
        <translation>Controlla a&amp;ggiornamenti…</translation>
    </message>
    <message>
        <source>Lumivane &amp;Home Page</source>
        <translation>Sito &amp;web di Lumivane</translation>
    </message>
    <message>
        <source>&amp;About Lumivane</source>
        <translation>&amp;Informazioni su Lumivane</translation>
    </message>
    <message>
        <source>&amp;Quit Lumivane</source>
        <translation>&amp;Esci da Lumivane</translation>
    </message>
    <message>
        <source>From &amp;System Settings</source>
        <translation>Dalle impostazioni di &amp;sistema</translation>
    </message>
    <message>
        <source>Find on the &amp;Web...</source>
        <translation>Cerca sul &amp;Web…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>new</source>
        <translation>Luna nuova</translation>
    </message>
    <message>
        <source>near new</source>
        <translation>Poco prima della luna nuova</translation>
    </message>
    <message>
        <source>past new</source>
        <translation>Poco dopo la luna nuova</translation>
    </message>
    <message>
        <source>a waning crescent</source>
        <translation>Falce calante</translation>
    </message>
    <message>
        <source>a waxing crescent</source>
        <translation>Falce crescente</translation>
    </message>
    <message>
        <source>past last quarter</source>
        <translation>Poco dopo l’ultimo quarto</translation>
    </message>
    <message>
        <source>near first quarter</source>
        <translation>Poco prima del primo quarto</translation>
    </message>
    <message>
        <source>at last quarter</source>
        <translation>Ultimo quarto</translation>
    </message>
    <message>
        <source>at first quarter</source>
        <translation>Primo quarto</translation>
    </message>
    <message>
        <source>near last quarter</source>
        <translation>Poco prima dell’ultimo quarto</translation>
    </message>
    <message>
        <source>past first quarter</source>
        <translation>Poco dopo il primo quarto</translation>
    </message>
    <message>
        <source>a waning gibbous</source>
        <translation>Gibbosa calante</translation>
    </message>
    <message>
        <source>a waxing gibbous</source>
        <translation>Gibbosa crescente</translation>
    </message>
    <message>
        <source>past full</source>
        <translation>Poco dopo la luna piena</translation>
    </message>
    <message>
        <source>near full</source>
        <translation>Poco prima della luna piena</translation>
    </message>
    <message>
        <source>full</source>
        <translation>Luna piena</translation>
    </message>
    <message>
        <source>a Wolf Moon</source>
        <translation>Luna del lupo</translation>
    </message>
    <message>
        <source>a Snow Moon</source>
        <translation>Luna della neve</translation>
    </message>
    <message>
        <source>a Worm Moon</source>
        <translation>Luna del verme</translation>
    </message>
    <message>
        <source>a Pink Moon</source>
        <translation>Luna rosa</translation>
    </message>
    <message>
        <source>a Flower Moon</source>
        <translation>Luna dei fiori</translation>
    </message>
    <message>
        <source>a Strawberry Moon</source>
        <translation>Luna delle fragole</translation>
    </message>
    <message>
        <source>a Buck Moon</source>
        <translation>Luna del cervo</translation>
    </message>
    <message>
        <source>a Sturgeon Moon</source>
        <translation>Luna dello storione</translation>
    </message>
    <message>
        <source>a Fruit or Barley Moon</source>
        <translation>Luna dei frutti o dell’orzo</translation>
    </message>
    <message>
        <source>a Harvest Moon</source>
        <translation>Luna del raccolto</translation>
    </message>
    <message>
        <source>a Hunter&apos;s Moon</source>
        <translation>Luna del cacciatore</translation>
    </message>
    <message>
        <source>a Beaver Moon</source>
        <translation>Luna del castoro</translation>
    </message>
    <message>
        <source>a Cold Moon</source>
        <translation>Luna fredda</translation>
    </message>
    <message>
        <source>Moon is ^1</source>
        <translation>^1</translation>
    </message>
    <message>
        <source>^1% illumination</source>
        <translation>Illuminata al ^1%</translation>
    </message>
    <message>
        <source>^dd ^hh ^mm since new moon</source>
        <translation>^d g ^h h ^m min dalla luna nuova</translation>
    </message>
    <message>
        <source>Lunation ^1</source>
        <translation>Lunazione ^1</translation>
    </message>
    <message>
        <source>Date out of range</source>
        <translation>Data fuori intervallo</translation>
    </message>
    <message>
        <source>^1, ^2 is next new moon (^dd ^hh ^mm)</source>
        <translation>Prossima luna nuova: ^1, ^2 (^d g ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next first quarter (^dd ^hh ^mm)</source>
        <translation>Prossimo primo quarto: ^1, ^2 (^d g ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next full moon (^dd ^hh ^mm)</source>
        <translation>Prossima luna piena: ^1, ^2 (^d g ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next last quarter (^dd ^hh ^mm)</source>
        <translation>Prossimo ultimo quarto: ^1, ^2 (^d g ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2</source>
        <translation>^1, ^2</translation>
    </message>
    <message>
        <source>Next full moon is ^1</source>
        <translation>Prossima luna piena: ^1</translation>
    </message>
    <message>
        <source>Open Lumivane Application...</source>
        <translation>Apri Lumivane…</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>Copia le informazioni negli appunti</translation>
    </message>
    <message>
        <source>Sun: ^1</source>
        <translation>Sole: ^1</translation>
    </message>
    <message>
        <source>Nautical Twilight: ^1</source>
        <translation>Crepuscolo nautico: ^1</translation>
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
        <translation>non sorge</translation>
    </message>
    <message>
        <source>no set</source>
        <translation>non tramonta</translation>
    </message>
    <message>
        <source>always visible</source>
        <translation>sempre visibile</translation>
    </message>
    <message>
        <source>always bright</source>
        <translation>sempre chiaro</translation>
    </message>
    <message>
        <source>always invisible</source>
        <translation>sempre invisibile</translation>
    </message>
    <message>
        <source>always dark</source>
        <translation>sempre buio</translation>
    </message>
    <message>
        <source>Unknown name or info: %d.</source>
        <translation>Nome o informazione sconosciuti: %d.</translation>
    </message>
    <message>
        <source>Unknown info: %d.</source>
        <translation>Informazione sconosciuta: %d.</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>Lumivane non è installato tra le applicazioni.</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>Si consiglia vivamente di installare Lumivane, in modo che compaia tra le applicazioni e si apra all’accesso da una posizione stabile. (Questo avviso viene mostrato una sola volta per la posizione attuale.) Prima di spostare Lumivane, chiuderlo.</translation>
    </message>
    <message>
        <source>&amp;Show Lumivane</source>
        <translation>&amp;Mostra Lumivane</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>Sembra che Lumivane sia stato spostato o rimosso mentre era in esecuzione!</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>I file di Lumivane non si trovano più dove erano all’avvio. Lumivane deve chiudersi ora; riavviarlo dalla posizione attuale.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>(DST is on for this session.)</source>
        <translation>(Ora legale attiva per questa sessione.)</translation>
    </message>
    <message>
        <source>(DST is off for this session.)</source>
        <translation>(Ora legale non attiva per questa sessione.)</translation>
    </message>
    <message>
        <source>Version [VERSION] ([BUILD])</source>
        <translation>Versione [VERSION] ([BUILD])</translation>
    </message>
    <message>
        <source>The Moon in your tray: its phase, its age, and when it rises and sets where you are.</source>
        <translation>La Luna nell’area di notifica: la fase, l’età e quando sorge e tramonta dove ti trovi.</translation>
    </message>
    <message>
        <source>Phases of the Moon</source>
        <translation>Fasi della Luna</translation>
    </message>
    <message>
        <source>Rising and setting</source>
        <translation>Sorgere e tramonto</translation>
    </message>
    <message>
        <source>Oliver Montenbruck and Thomas Pfleger,</source>
        <translation>Oliver Montenbruck e Thomas Pfleger,</translation>
    </message>
    <message>
        <source>Map of the Moon</source>
        <translation>Mappa della Luna</translation>
    </message>
    <message>
        <source>NASA and the USGS Astrogeology programme,</source>
        <translation>NASA e programma di astrogeologia dello USGS,</translation>
    </message>
    <message>
        <source>in the public domain</source>
        <translation>di pubblico dominio</translation>
    </message>
    <message>
        <source>Lumivane on the web</source>
        <translation>Lumivane sul Web</translation>
    </message>
    <message>
        <source>MIT licence, © The Lumivane developers</source>
        <translation>Licenza MIT, © Gli sviluppatori di Lumivane</translation>
    </message>
    <message>
        <source>Sun Rise/set %@</source>
        <translation>Sorgere/tramonto %@</translation>
    </message>
    <message>
        <source>Natical Rise/set %@</source>
        <translation>Inizio/fine %@</translation>
    </message>
    <message>
        <source>Moon Rise/set %@</source>
        <translation>Sorgere/tramonto %@</translation>
    </message>
    <message>
        <source>New %@</source>
        <translation>Luna nuova: %@</translation>
    </message>
    <message>
        <source>Q1 %@</source>
        <translation>Primo quarto: %@</translation>
    </message>
    <message>
        <source>Full %@</source>
        <translation>Luna piena: %@</translation>
    </message>
    <message>
        <source>Q3 %@</source>
        <translation>Ultimo quarto: %@</translation>
    </message>
    <message>
        <source>Longitude/Latitude %@/%@</source>
        <translation>Longitudine/latitudine: %@/%@</translation>
    </message>
    <message>
        <source>GMT </source>
        <translation>GMT </translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>Differenza rispetto a &amp;GMT:</translation>
    </message>
    <message>
        <source>For Example: -5, +1.5, 12, 0</source>
        <translation>Per esempio: -5, +1.5, 12, 0</translation>
    </message>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
    <message>
        <source>This copy of %1 does not know where to look for updates.</source>
        <translation>Questa copia di %1 non sa dove cercare gli aggiornamenti.</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because this system has no secure connections.</source>
        <translation>%1 non può cercare aggiornamenti perché questo sistema non dispone di connessioni sicure.</translation>
    </message>
    <message>
        <source>The update server can&apos;t be reached; please check the network connection.</source>
        <translation>Il server degli aggiornamenti non è raggiungibile; controllare la connessione di rete.</translation>
    </message>
    <message>
        <source>The update server could not prove its identity, so it was not asked for updates.</source>
        <translation>Il server degli aggiornamenti non ha potuto dimostrare la propria identità e quindi non è stato interrogato.</translation>
    </message>
    <message>
        <source>The update server refers to an insecure address, which was not asked for updates.</source>
        <translation>Il server degli aggiornamenti rimanda a un indirizzo non sicuro, che non è stato interrogato.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer; please try again later.</source>
        <translation>Il server degli aggiornamenti impiega troppo tempo a rispondere; riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer can&apos;t be understood; please try again later.</source>
        <translation>La risposta del server degli aggiornamenti non è comprensibile; riprovare più tardi.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>È disponibile una nuova versione di %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available (you have %3).</source>
        <translation>%1 %2 è ora disponibile (la versione in uso è la %3).</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Salta questa versione</translation>
    </message>
    <message>
        <source>&amp;Learn More...</source>
        <translation>&amp;Ulteriori informazioni…</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>La versione è aggiornata!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <translation>%1 %2 è attualmente la versione più recente disponibile.</translation>
    </message>
    <message>
        <source>No browser could be opened for the page %1.</source>
        <translation>Non è stato possibile aprire alcun browser per la pagina %1.</translation>
    </message>
    <message>
        <source>Update Error!</source>
        <translation>Errore di aggiornamento!</translation>
    </message>
    <message>
        <source>Release &amp;Notes:</source>
        <translation>&amp;Note sulla versione:</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Ricerca di aggiornamenti…</translation>
    </message>
    <message>
        <source>Browser not found.</source>
        <translation>Browser non trovato.</translation>
    </message>
    <message>
        <source>url: &lt;%1&gt;, browser: &lt;%2&gt;</source>
        <translation>URL: &lt;%1&gt;, browser: &lt;%2&gt;</translation>
    </message>
    <message>
        <source>This is not a number. Example: %1</source>
        <translation>Questo non è un numero. Esempio: %1</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 non è compreso tra %2 e %3.</translation>
    </message>
    <message>
        <source>Back to the tray icon</source>
        <translation>Torna all’icona nell’area di notifica</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because the program curl is not installed.</source>
        <translation>%1 non può cercare aggiornamenti perché il programma curl non è installato.</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>New Moon</source>
        <translation>Luna nuova</translation>
    </message>
    <message>
        <source>First Quarter</source>
        <translation>Primo quarto</translation>
    </message>
    <message>
        <source>Full Moon</source>
        <translation>Luna piena</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>Ultimo quarto</translation>
    </message>
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>tra %n minuto</numerusform>
            <numerusform>tra %n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>%n minuto fa</numerusform>
            <numerusform>%n minuti fa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>tra %n giorno</numerusform>
            <numerusform>tra %n giorni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n giorno fa</numerusform>
            <numerusform>%n giorni fa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>tra %n ora</numerusform>
            <numerusform>tra %n ore</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>%n ora fa</numerusform>
            <numerusform>%n ore fa</numerusform>
        </translation>
    </message>
    <message>
        <source>C&amp;ity or country:</source>
        <translation>&amp;Città o Paese:</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Città</translation>
    </message>
    <message>
        <source>Choose a &amp;City...</source>
        <translation>Scegli una &amp;città…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>The system has no list of cities.</source>
        <translation>Il sistema non ha un elenco di città.</translation>
    </message>
    <message>
        <source>No city found.</source>
        <translation>Nessuna città trovata.</translation>
    </message>
    <message>
        <source>&amp;Tell Me the Quarters</source>
        <translation>Avvisa delle &amp;fasi lunari</translation>
    </message>
</context>
</TS>
