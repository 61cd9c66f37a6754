<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>Lumivane is not installed among your applications.</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>We highly recommend you install Lumivane, so that it is found among your applications and starts at login from a place that stays.  (This warning will only be shown once for the current location.)  Please quit Lumivane before moving it, if you do so.</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>It appears that Lumivane was moved or removed while it was running!</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>The files that belong to Lumivane are no longer where they were when it started.  Lumivane needs to quit now; please start it again from its present place.</translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>GMT &amp;Time Zone Offset:</translation>
    </message>
</context>
</TS>
