<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>Video umwandeln &amp; bearbeiten</translation>
    </message>
    <message>
        <source>Default</source>
        <translation></translation>
    </message>
</context>
</TS>
