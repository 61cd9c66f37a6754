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
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>in %n minute</numerusform>
            <numerusform>in %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>%n minute ago</numerusform>
            <numerusform>%n minutes ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>in %n day</numerusform>
            <numerusform>in %n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n day ago</numerusform>
            <numerusform>%n days ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>in %n hour</numerusform>
            <numerusform>in %n hours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>%n hour ago</numerusform>
            <numerusform>%n hours ago</numerusform>
        </translation>
    </message>
</context>
</TS>
