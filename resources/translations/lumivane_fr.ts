<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Nombre&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>&amp;Annuler</translation>
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
        <translation>Fenêtre indépendante</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>&amp;Lune</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Informations</translation>
    </message>
    <message>
        <source>New moon</source>
        <translation>Nouvelle lune</translation>
    </message>
    <message>
        <source>First quarter</source>
        <translation>Premier quartier</translation>
    </message>
    <message>
        <source>Full moon</source>
        <translation>Pleine lune</translation>
    </message>
    <message>
        <source>Last quarter</source>
        <translation>Dernier quartier</translation>
    </message>
    <message>
        <source>&amp;Rise and Set</source>
        <translation>Lever et &amp;coucher</translation>
    </message>
    <message>
        <source>&amp;Calculation</source>
        <translation>C&amp;alcul</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Maintenant</translation>
    </message>
    <message>
        <source>Back to the present</source>
        <translation>Revenir à l’instant présent</translation>
    </message>
    <message>
        <source>Position within the lunation</source>
        <translation>Position dans la lunaison</translation>
    </message>
    <message>
        <source>−1 lunation</source>
        <translation>−1 lunaison</translation>
    </message>
    <message>
        <source>Full moon of the previous lunation</source>
        <translation>Pleine lune de la lunaison précédente</translation>
    </message>
    <message>
        <source>−1 d</source>
        <translation>−1 j</translation>
    </message>
    <message>
        <source>Back one day</source>
        <translation>Reculer d’un jour</translation>
    </message>
    <message>
        <source>−1 h</source>
        <translation>−1 h</translation>
    </message>
    <message>
        <source>Back one hour</source>
        <translation>Reculer d’une heure</translation>
    </message>
    <message>
        <source>+1 h</source>
        <translation>+1 h</translation>
    </message>
    <message>
        <source>On one hour</source>
        <translation>Avancer d’une heure</translation>
    </message>
    <message>
        <source>+1 d</source>
        <translation>+1 j</translation>
    </message>
    <message>
        <source>On one day</source>
        <translation>Avancer d’un jour</translation>
    </message>
    <message>
        <source>+1 lunation</source>
        <translation>+1 lunaison</translation>
    </message>
    <message>
        <source>Full moon of the next lunation</source>
        <translation>Pleine lune de la lunaison suivante</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Réglages</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>&amp;Fuseau horaire&#xa0;:</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>GMT</source>
        <translation>GMT</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Autre…</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>Li&amp;eu&#xa0;:</translation>
    </message>
    <message>
        <source>S&amp;et Latitude and Longitude</source>
        <translation>&amp;Définir latitude et longitude</translation>
    </message>
    <message>
        <source>&amp;Latitude:</source>
        <translation>La&amp;titude&#xa0;:</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>Latitude en degrés, positive vers le nord</translation>
    </message>
    <message>
        <source>L&amp;ongitude:</source>
        <translation>Lon&amp;gitude&#xa0;:</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>Longitude en degrés, positive vers l’est</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>Lumino&amp;sité&#xa0;:</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>Luminosité des images</translation>
    </message>
    <message>
        <source>&amp;Copy Information to Clipboard</source>
        <translation>&amp;Copier les informations dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Open at Login</source>
        <translation>Lancer à l’&amp;ouverture de session</translation>
    </message>
    <message>
        <source>Check for &amp;Update...</source>
        <translation>&amp;Rechercher une mise à jour…</translation>
    </message>
    <message>
        <source>Lumivane &amp;Home Page</source>
        <translation>&amp;Site web de Lumivane</translation>
    </message>
    <message>
        <source>&amp;About Lumivane</source>
        <translation>À &amp;propos de Lumivane</translation>
    </message>
    <message>
        <source>&amp;Quit Lumivane</source>
        <translation>&amp;Quitter Lumivane</translation>
    </message>
    <message>
        <source>From &amp;System Settings</source>
        <translation>D’après les réglages du &amp;système</translation>
    </message>
    <message>
        <source>Find on the &amp;Web...</source>
        <translation>Chercher sur le &amp;Web…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>new</source>
        <translation>Nouvelle lune</translation>
    </message>
    <message>
        <source>near new</source>
        <translation>Peu avant la nouvelle lune</translation>
    </message>
    <message>
        <source>past new</source>
        <translation>Peu après la nouvelle lune</translation>
    </message>
    <message>
        <source>a waning crescent</source>
        <translation>Dernier croissant</translation>
    </message>
    <message>
        <source>a waxing crescent</source>
        <translation>Premier croissant</translation>
    </message>
    <message>
        <source>past last quarter</source>
        <translation>Peu après le dernier quartier</translation>
    </message>
    <message>
        <source>near first quarter</source>
        <translation>Peu avant le premier quartier</translation>
    </message>
    <message>
        <source>at last quarter</source>
        <translation>Dernier quartier</translation>
    </message>
    <message>
        <source>at first quarter</source>
        <translation>Premier quartier</translation>
    </message>
    <message>
        <source>near last quarter</source>
        <translation>Peu avant le dernier quartier</translation>
    </message>
    <message>
        <source>past first quarter</source>
        <translation>Peu après le premier quartier</translation>
    </message>
    <message>
        <source>a waning gibbous</source>
        <translation>Lune gibbeuse décroissante</translation>
    </message>
    <message>
        <source>a waxing gibbous</source>
        <translation>Lune gibbeuse croissante</translation>
    </message>
    <message>
        <source>past full</source>
        <translation>Peu après la pleine lune</translation>
    </message>
    <message>
        <source>near full</source>
        <translation>Peu avant la pleine lune</translation>
    </message>
    <message>
        <source>full</source>
        <translation>Pleine lune</translation>
    </message>
    <message>
        <source>a Wolf Moon</source>
        <translation>Lune du loup</translation>
    </message>
    <message>
        <source>a Snow Moon</source>
        <translation>Lune de neige</translation>
    </message>
    <message>
        <source>a Worm Moon</source>
        <translation>Lune du ver</translation>
    </message>
    <message>
        <source>a Pink Moon</source>
        <translation>Lune rose</translation>
    </message>
    <message>
        <source>a Flower Moon</source>
        <translation>Lune des fleurs</translation>
    </message>
    <message>
        <source>a Strawberry Moon</source>
        <translation>Lune des fraises</translation>
    </message>
    <message>
        <source>a Buck Moon</source>
        <translation>Lune du cerf</translation>
    </message>
    <message>
        <source>a Sturgeon Moon</source>
        <translation>Lune de l’esturgeon</translation>
    </message>
    <message>
        <source>a Fruit or Barley Moon</source>
        <translation>Lune des fruits ou de l’orge</translation>
    </message>
    <message>
        <source>a Harvest Moon</source>
        <translation>Lune des moissons</translation>
    </message>
    <message>
        <source>a Hunter&apos;s Moon</source>
        <translation>Lune du chasseur</translation>
    </message>
    <message>
        <source>a Beaver Moon</source>
        <translation>Lune du castor</translation>
    </message>
    <message>
        <source>a Cold Moon</source>
        <translation>Lune froide</translation>
    </message>
    <message>
        <source>Moon is ^1</source>
        <translation>^1</translation>
    </message>
    <message>
        <source>^1% illumination</source>
        <translation>Éclairée à ^1&#xa0;%</translation>
    </message>
    <message>
        <source>^dd ^hh ^mm since new moon</source>
        <translation>^d j ^h h ^m min depuis la nouvelle lune</translation>
    </message>
    <message>
        <source>Lunation ^1</source>
        <translation>Lunaison ^1</translation>
    </message>
    <message>
        <source>Date out of range</source>
        <translation>Date hors limites</translation>
    </message>
    <message>
        <source>^1, ^2 is next new moon (^dd ^hh ^mm)</source>
        <translation>Prochaine nouvelle lune&#xa0;: ^1 ^2 (^d j ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next first quarter (^dd ^hh ^mm)</source>
        <translation>Prochain premier quartier&#xa0;: ^1 ^2 (^d j ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next full moon (^dd ^hh ^mm)</source>
        <translation>Prochaine pleine lune&#xa0;: ^1 ^2 (^d j ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next last quarter (^dd ^hh ^mm)</source>
        <translation>Prochain dernier quartier&#xa0;: ^1 ^2 (^d j ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2</source>
        <translation>^1 ^2</translation>
    </message>
    <message>
        <source>Next full moon is ^1</source>
        <translation>Prochaine pleine lune&#xa0;: ^1</translation>
    </message>
    <message>
        <source>Open Lumivane Application...</source>
        <translation>Ouvrir Lumivane…</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>Copier les informations dans le presse-papiers</translation>
    </message>
    <message>
        <source>Sun: ^1</source>
        <translation>Soleil&#xa0;: ^1</translation>
    </message>
    <message>
        <source>Nautical Twilight: ^1</source>
        <translation>Crépuscule nautique&#xa0;: ^1</translation>
    </message>
    <message>
        <source>Moon: ^1</source>
        <translation>Lune&#xa0;: ^1</translation>
    </message>
    <message>
        <source>^2/^3</source>
        <translation>^2/^3</translation>
    </message>
    <message>
        <source>no rise</source>
        <translation>pas de lever</translation>
    </message>
    <message>
        <source>no set</source>
        <translation>pas de coucher</translation>
    </message>
    <message>
        <source>always visible</source>
        <translation>toujours visible</translation>
    </message>
    <message>
        <source>always bright</source>
        <translation>toujours clair</translation>
    </message>
    <message>
        <source>always invisible</source>
        <translation>toujours invisible</translation>
    </message>
    <message>
        <source>always dark</source>
        <translation>toujours sombre</translation>
    </message>
    <message>
        <source>Unknown name or info: %d.</source>
        <translation>Nom ou information inconnus&#xa0;: %d.</translation>
    </message>
    <message>
        <source>Unknown info: %d.</source>
        <translation>Information inconnue&#xa0;: %d.</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>Lumivane n’est pas installé parmi vos applications.</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>Nous vous recommandons vivement d’installer Lumivane, afin qu’il figure parmi vos applications et se lance à l’ouverture de session depuis un emplacement fixe. (Cet avertissement ne s’affiche qu’une seule fois pour l’emplacement actuel.) Si vous déplacez Lumivane, quittez-le d’abord.</translation>
    </message>
    <message>
        <source>&amp;Show Lumivane</source>
        <translation>&amp;Afficher Lumivane</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>Il semble que Lumivane ait été déplacé ou supprimé pendant son exécution&#xa0;!</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>Les fichiers de Lumivane ne se trouvent plus là où ils étaient à son lancement. Lumivane doit quitter maintenant&#xa0;; relancez-le depuis son emplacement actuel.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>(DST is on for this session.)</source>
        <translation>(Heure d’été active pour cette session.)</translation>
    </message>
    <message>
        <source>(DST is off for this session.)</source>
        <translation>(Heure d’été inactive pour cette session.)</translation>
    </message>
    <message>
        <source>Version [VERSION] ([BUILD])</source>
        <translation>Version [VERSION] ([BUILD])</translation>
    </message>
    <message>
        <source>The Moon in your tray: its phase, its age, and when it rises and sets where you are.</source>
        <translation>La Lune dans votre zone de notification&#xa0;: sa phase, son âge, et l’heure à laquelle elle se lève et se couche là où vous êtes.</translation>
    </message>
    <message>
        <source>Phases of the Moon</source>
        <translation>Phases de la Lune</translation>
    </message>
    <message>
        <source>Rising and setting</source>
        <translation>Lever et coucher</translation>
    </message>
    <message>
        <source>Oliver Montenbruck and Thomas Pfleger,</source>
        <translation>Oliver Montenbruck et Thomas Pfleger,</translation>
    </message>
    <message>
        <source>Map of the Moon</source>
        <translation>Carte de la Lune</translation>
    </message>
    <message>
        <source>NASA and the USGS Astrogeology programme,</source>
        <translation>NASA et programme d’astrogéologie de l’USGS,</translation>
    </message>
    <message>
        <source>in the public domain</source>
        <translation>dans le domaine public</translation>
    </message>
    <message>
        <source>Lumivane on the web</source>
        <translation>Lumivane sur le Web</translation>
    </message>
    <message>
        <source>MIT licence, © The Lumivane developers</source>
        <translation>Licence MIT, © Les développeurs de Lumivane</translation>
    </message>
    <message>
        <source>Sun Rise/set %@</source>
        <translation>Lever/coucher %@</translation>
    </message>
    <message>
        <source>Natical Rise/set %@</source>
        <translation>Début/fin %@</translation>
    </message>
    <message>
        <source>Moon Rise/set %@</source>
        <translation>Lever/coucher %@</translation>
    </message>
    <message>
        <source>New %@</source>
        <translation>Nouvelle lune&#xa0;: %@</translation>
    </message>
    <message>
        <source>Q1 %@</source>
        <translation>Premier quartier&#xa0;: %@</translation>
    </message>
    <message>
        <source>Full %@</source>
        <translation>Pleine lune&#xa0;: %@</translation>
    </message>
    <message>
        <source>Q3 %@</source>
        <translation>Dernier quartier&#xa0;: %@</translation>
    </message>
    <message>
        <source>Longitude/Latitude %@/%@</source>
        <translation>Longitude/latitude&#xa0;: %@/%@</translation>
    </message>
    <message>
        <source>GMT </source>
        <translation>GMT </translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>Décalage par rapport à &amp;GMT&#xa0;:</translation>
    </message>
    <message>
        <source>For Example: -5, +1.5, 12, 0</source>
        <translation>Par exemple&#xa0;: -5, +1.5, 12, 0</translation>
    </message>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
    <message>
        <source>This copy of %1 does not know where to look for updates.</source>
        <translation>Cette copie de %1 ne sait pas où chercher les mises à jour.</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because this system has no secure connections.</source>
        <translation>%1 ne peut pas rechercher de mises à jour, car ce système ne dispose pas de connexions sécurisées.</translation>
    </message>
    <message>
        <source>The update server can&apos;t be reached; please check the network connection.</source>
        <translation>Le serveur de mise à jour est injoignable&#xa0;; veuillez vérifier la connexion réseau.</translation>
    </message>
    <message>
        <source>The update server could not prove its identity, so it was not asked for updates.</source>
        <translation>Le serveur de mise à jour n’a pas pu prouver son identité et n’a donc pas été interrogé.</translation>
    </message>
    <message>
        <source>The update server refers to an insecure address, which was not asked for updates.</source>
        <translation>Le serveur de mise à jour renvoie vers une adresse non sécurisée, qui n’a pas été interrogée.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer; please try again later.</source>
        <translation>Le serveur de mise à jour met trop de temps à répondre&#xa0;; veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer can&apos;t be understood; please try again later.</source>
        <translation>La réponse du serveur de mise à jour est incompréhensible&#xa0;; veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Une nouvelle version de %1 est disponible&#xa0;!</translation>
    </message>
    <message>
        <source>%1 %2 is now available (you have %3).</source>
        <translation>%1 %2 est maintenant disponible (vous avez la version %3).</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>Me le &amp;rappeler plus tard</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Ignorer cette version</translation>
    </message>
    <message>
        <source>&amp;Learn More...</source>
        <translation>En savoir &amp;plus…</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Vous êtes à jour&#xa0;!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <translation>%1 %2 est actuellement la version la plus récente.</translation>
    </message>
    <message>
        <source>No browser could be opened for the page %1.</source>
        <translation>Aucun navigateur n’a pu être ouvert pour la page %1.</translation>
    </message>
    <message>
        <source>Update Error!</source>
        <translation>Erreur de mise à jour&#xa0;!</translation>
    </message>
    <message>
        <source>Release &amp;Notes:</source>
        <translation>&amp;Notes de version&#xa0;:</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Browser not found.</source>
        <translation>Navigateur introuvable.</translation>
    </message>
    <message>
        <source>url: &lt;%1&gt;, browser: &lt;%2&gt;</source>
        <translation>URL&#xa0;: &lt;%1&gt;, navigateur&#xa0;: &lt;%2&gt;</translation>
    </message>
    <message>
        <source>This is not a number. Example: %1</source>
        <translation>Ce n’est pas un nombre. Exemple&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 n’est pas compris entre %2 et %3.</translation>
    </message>
    <message>
        <source>Back to the tray icon</source>
        <translation>Revenir à l’icône de la zone de notification</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because the program curl is not installed.</source>
        <translation>%1 ne peut pas rechercher de mises à jour, car le programme curl n’est pas installé.</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1&#xa0;: %2, %3</translation>
    </message>
    <message>
        <source>New Moon</source>
        <translation>Nouvelle lune</translation>
    </message>
    <message>
        <source>First Quarter</source>
        <translation>Premier quartier</translation>
    </message>
    <message>
        <source>Full Moon</source>
        <translation>Pleine lune</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>Dernier quartier</translation>
    </message>
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>dans %n minute</numerusform>
            <numerusform>dans %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>il y a %n minute</numerusform>
            <numerusform>il y a %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>dans %n jour</numerusform>
            <numerusform>dans %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>il y a %n jour</numerusform>
            <numerusform>il y a %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>dans %n heure</numerusform>
            <numerusform>dans %n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>il y a %n heure</numerusform>
            <numerusform>il y a %n heures</numerusform>
        </translation>
    </message>
    <message>
        <source>C&amp;ity or country:</source>
        <translation>&amp;Ville ou pays&#xa0;:</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Villes</translation>
    </message>
    <message>
        <source>Choose a &amp;City...</source>
        <translation>Choisir une &amp;ville…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>The system has no list of cities.</source>
        <translation>Le système n’a pas de liste de villes.</translation>
    </message>
    <message>
        <source>No city found.</source>
        <translation>Aucune ville trouvée.</translation>
    </message>
    <message>
        <source>&amp;Tell Me the Quarters</source>
        <translation>Annoncer les phases de la &amp;Lune</translation>
    </message>
</context>
</TS>
