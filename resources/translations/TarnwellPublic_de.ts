<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 (%2 threads)</source>
        <translation>%1 (%2 Threads)</translation>
    </message>
    <message>
        <source>%1 (sound only)</source>
        <translation>%1 (nur Ton)</translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation>%1 - Titel %2</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation>%1 MB sind zu wenig für eine Datei dieser Länge.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation>%1 Blickwinkel</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>%1 Kapitel</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>%1 ausgelassen</translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation>%1 Dateien ausgewählt</translation>
    </message>
    <message>
        <source>%1 has fewer tracks of sound than other files: what it lacks is silent.</source>
        <translation>%1 hat weniger Tonspuren als andere Dateien: Was fehlt, bleibt stumm.</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 of %2 pictures came too late: the one before stands for them.</source>
        <translation>%1 von %2 Bildern kamen zu spät: An ihrer Stelle steht das vorige.</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation>%1 von %2 s waren lesbar, %3 Fehler</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, 1 fault</source>
        <translation>%1 von %2 s waren lesbar, 1 Fehler</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation>%1 von %2 s waren lesbar.</translation>
    </message>
    <message>
        <source>%1 pictures a second</source>
        <translation>%1 Bilder pro Sekunde</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation>%1 s waren lesbar, %2 Fehler</translation>
    </message>
    <message>
        <source>%1 s could be read, 1 fault</source>
        <translation>%1 s waren lesbar, 1 Fehler</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation>%1 Sektoren der Disc waren nicht lesbar und sind in der Kopie leer.</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation>%1 Sektoren der Disc waren nicht lesbar und sind im Image leer.</translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation>%1 Sektoren des Films waren nicht lesbar.</translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation>%1 Titel</translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>%1 ×</source>
        <translation>%1 ×</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%@ %@ is currently the latest version available.</source>
        <translation>%@ %@ ist derzeit die neueste verfügbare Version.</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@ ist jetzt verfügbar – Sie verwenden %@. Möchten Sie jetzt aktualisieren?</translation>
    </message>
    <message>
        <source>128 kbit/s</source>
        <translation>128 kbit/s</translation>
    </message>
    <message>
        <source>160 kbit/s</source>
        <translation>160 kbit/s</translation>
    </message>
    <message>
        <source>192 kbit/s</source>
        <translation>192 kbit/s</translation>
    </message>
    <message>
        <source>23.976</source>
        <translation>23,976</translation>
    </message>
    <message>
        <source>24</source>
        <translation>24</translation>
    </message>
    <message>
        <source>25</source>
        <translation>25</translation>
    </message>
    <message>
        <source>256 kbit/s</source>
        <translation>256 kbit/s</translation>
    </message>
    <message>
        <source>2560 × 1440</source>
        <translation>2560 × 1440</translation>
    </message>
    <message>
        <source>29.97</source>
        <translation>29,97</translation>
    </message>
    <message>
        <source>30</source>
        <translation>30</translation>
    </message>
    <message>
        <source>320 kbit/s</source>
        <translation>320 kbit/s</translation>
    </message>
    <message>
        <source>448 kbit/s</source>
        <translation>448 kbit/s</translation>
    </message>
    <message>
        <source>4K (3840 × 2160)</source>
        <translation>4K (3840 × 2160)</translation>
    </message>
    <message>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <source>59.94</source>
        <translation>59,94</translation>
    </message>
    <message>
        <source>60</source>
        <translation>60</translation>
    </message>
    <message>
        <source>64 kbit/s</source>
        <translation>64 kbit/s</translation>
    </message>
    <message>
        <source>640 kbit/s</source>
        <translation>640 kbit/s</translation>
    </message>
    <message>
        <source>96 kbit/s</source>
        <translation>96 kbit/s</translation>
    </message>
    <message>
        <source>A chapter for each joined file</source>
        <translation>Ein Kapitel je verbundener Datei</translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation>Eine Disc nur mit dem gewählten Titel, ohne Menüs, die sofort abgespielt wird.</translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation>Eine Datei der Art %1 kann nicht enthalten, was diese Voreinstellung verlangt: %2.</translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation>Ein Ordner hat keine Sektoren zum Kopieren. Wählen Sie eine andere Art.</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>Eine neue Version von %@ ist verfügbar</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Voreinstellung braucht einen Namen.</translation>
    </message>
    <message>
        <source>A recording is to begin at %1.</source>
        <translation>Um %1 soll eine Aufnahme beginnen.</translation>
    </message>
    <message>
        <source>AC-3 Audio</source>
        <translation>AC-3-Audio</translation>
    </message>
    <message>
        <source>AIFF Audio</source>
        <translation>AIFF-Audio</translation>
    </message>
    <message>
        <source>APNG Animation</source>
        <translation>APNG-Animation</translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation>AVI-Video (MPEG-4, MP3)</translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation>AVI-Video (Motion JPEG, PCM)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation>Etwa %1.</translation>
    </message>
    <message>
        <source>About %@</source>
        <translation>Über %@</translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation>Über Kestrel</translation>
    </message>
    <message>
        <source>About Our Company Tarnwell Software, Inc.</source>
        <translation>Über unser Unternehmen Tarnwell Software, Inc.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Dateien hinzufügen …</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>Untertiteldatei hinzufügen …</translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation>Untertitel werden hinzugefügt …</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation>Adresse eines Videos oder einer Seite, etwa https://…</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation>Alle Formate</translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation>Alle Formate …</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation>Alle Dateien der Disc in einem Ordner, mit ihren Menüs.</translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation>Alle Aufträge sind fertig.</translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation>Alle Aufträge sind beendet.</translation>
    </message>
    <message>
        <source>All languages</source>
        <translation>Alle Sprachen</translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation>Alle Tonspuren der gewählten Titel mit ihren Kapiteln.</translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation>Viele von einem Server erlauben</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>Bereits in der Liste: %1</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation>Immer behalten</translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation>Immer, doppelt so viele Bilder</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>Eine Adresse ist zum Beispiel http://proxy.example.com oder socks5://10.0.0.1.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Blickwinkel</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>Anderer Ordner …</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>App-Protokoll</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation>Möchten Sie die Profile wirklich zurücksetzen?</translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation>Möchten Sie das Programm jetzt neu starten?</translation>
    </message>
    <message>
        <source>Artist and album. %1 cannot hold them.</source>
        <translation>Interpret und Album. %1 kann sie nicht aufnehmen.</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Wie im Format vorgesehen</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>Wie die Quelle</translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation>Die Website wird gefragt …</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Höchstens</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation>Sichern Sie DVDs in 6 Modi, und wandeln Sie ganze DVDs in über 180 Formate um: zum Abspielen auf Mac und Mobilgeräten, zum Speichern auf der Festplatte, zum Ansehen am Fernseher und mehr. Eine ganze DVD in 5 Minuten!</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Begin at a time…</source>
        <translation>Zu einer Uhrzeit beginnen …</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation>Sofort beginnen</translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation>Neben der Quelle</translation>
    </message>
    <message>
        <source>Best quality</source>
        <translation>Beste Qualität</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation>Bitrate einer Spur</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>Erstellt am: %@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation>In das Bild eingebrannt</translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation>CAF-Audio (ALAC)</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>Camera %1 in the picture</source>
        <translation>Kamera %1 im Bild</translation>
    </message>
    <message>
        <source>Camera in the picture</source>
        <translation>Kamera im Bild</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation>Probe abbrechen</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>Abgebrochen: %1</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>Nicht verwendbar</translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation>Ändern Sie Video- und Audioformate und die Größe von Videodateien, und bearbeiten Sie Videos in 4K, 5K und 8K: schneiden, zusammenfügen, teilen, drehen, mit Untertiteln oder Wasserzeichen versehen und mehr. Erleben Sie die schnellste hardwarebeschleunigte Verarbeitung.</translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation>Die neue Sprache gilt nach dem Neustart des Programms.</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Channels of the sound: %1. %2 become %3.</source>
        <translation>Kanäle des Tons: %1. Aus %2 werden %3.</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Kapitel %1</translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation>In der fertigen Datei fehlen Kapitel.</translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation>Kapitel, Sprachen und Farben der Untertitel, die MPEG-2-Dateien nicht enthalten können</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>Nach Updates wird gesucht … </translation>
    </message>
    <message>
        <source>Checking the copy…</source>
        <translation>Kopie wird geprüft …</translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation>Fertige Datei wird geprüft …</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation>Filme wählen</translation>
    </message>
    <message>
        <source>Choose Films…</source>
        <translation>Filme auswählen …</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Choose a Window</source>
        <translation>Fenster wählen</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation>Wählen Sie oben, was aufgenommen wird, und klicken Sie auf „Aufnehmen“.</translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation>Bereich wählen</translation>
    </message>
    <message>
        <source>Choose another one, or allow yourself to write to it: %1</source>
        <translation>Wählen Sie einen anderen oder geben Sie sich Schreibrechte: %1</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Click the window that is to be recorded</source>
        <translation>Klicken Sie auf das Fenster, das aufgenommen werden soll</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>Im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation>Computer und Mikrofon</translation>
    </message>
    <message>
        <source>Computer and microphone, a track each</source>
        <translation>Computer und Mikrofon, je eine Spur</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbindung wird hergestellt …</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Konvertieren</translation>
    </message>
    <message>
        <source>Convert &amp; Backup DVD</source>
        <translation>DVDs konvertieren und sichern</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>Videos konvertieren und bearbeiten</translation>
    </message>
    <message>
        <source>Converting ten seconds: %1 %</source>
        <translation>Zehn Sekunden werden konvertiert: %1 %</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Wird konvertiert …</translation>
    </message>
    <message>
        <source>Converting… %1 %</source>
        <translation>Wird umgewandelt … %1 %</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Kopiert.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</source>
        <translation>Copyright © 2019-%@ Tarnwell Software, Inc. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Kerne</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation>Ab drei herunterzählen</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>Gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Titelbild</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation>Schneiden und bearbeiten</translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation>Schneiden und bearbeiten …</translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation>Genau schneiden (codiert neu)</translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation>Unten abschneiden</translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation>Links abschneiden</translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation>Rechts abschneiden</translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation>Oben abschneiden</translation>
    </message>
    <message>
        <source>Cut or Convert…</source>
        <translation>Schneiden oder umwandeln …</translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the key picture at or before %1 s.</source>
        <translation>Ohne Umwandlung geschnitten: Es beginnt beim Schlüsselbild bei oder vor %1 s.</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>DTS</source>
        <translation>DTS</translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation>DV-Video</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>DVD (720 × 576)</source>
        <translation>DVD (720 × 576)</translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation>DVD-Ripper</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation>Daten der Kamera, zum Beispiel der Timecode.</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>Deinterlacing</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Details…</source>
        <translation>Details …</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation>DVD-Player (VOB)</translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation>Disc-Ordner mit Menüs</translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation>Disc-Image (ISO)</translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation>Disc-Images</translation>
    </message>
    <message>
        <source>Discard Recording</source>
        <translation>Aufnahme verwerfen</translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation>Dolby Digital</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <translation>Nicht aufnehmen</translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation>Nicht ausschalten</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation>Fertig mit Problemen</translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation>Fertig mit Problemen: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Fertig: %1</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Download Now</source>
        <translation>Jetzt laden</translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation>Videos laden</translation>
    </message>
    <message>
        <source>Download format</source>
        <translation>Download-Format</translation>
    </message>
    <message>
        <source>Download resolution</source>
        <translation>Download-Auflösung</translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation>Laden Sie Streaming-Videos und Musik in höchster Qualität von YouTube, Facebook und über 1000 weiteren Websites. Konvertieren Sie die geladenen Dateien in MP4, MP3 usw.</translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation>Downloader</translation>
    </message>
    <message>
        <source>Downloads at the same time</source>
        <translation>Gleichzeitige Downloads</translation>
    </message>
    <message>
        <source>Downloads that are running keep the limit that they began with.</source>
        <translation>Laufende Downloads behalten das Limit, mit dem sie begonnen haben.</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation>Bereich aufziehen und die Eingabetaste drücken</translation>
    </message>
    <message>
        <source>Drawn into the film, for players that show none themselves.</source>
        <translation>In den Film gezeichnet, für Abspieler, die selbst keine zeigen.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>Legen Sie Videos oder Ordner in diesem Fenster ab, wählen Sie unten ein Format und klicken Sie auf „Konvertieren“. Die Ergebnisse kommen in den Ausgabeordner; Ihre eigenen Dateien bleiben unverändert.</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>Videos oder Ordner hier ablegen</translation>
    </message>
    <message>
        <source>E-AC-3 Audio</source>
        <translation>E-AC-3-Audio</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Bearbeitung</translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation>Wird in Software codiert</translation>
    </message>
    <message>
        <source>Encoding once more, to meet the size</source>
        <translation>Wird noch einmal kodiert, um die Größe einzuhalten</translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation>Wird neu codiert, weil die Spuren nicht übernommen werden konnten</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>Hier enden</translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation>Lautstärke angleichen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation>FLAC-Audio</translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation>FLV-Video (H.264, AAC)</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation>Schneller, größere Datei</translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation>Am schnellsten, größte Datei</translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation>Dateigröße höchstens</translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation>Dateien können geschnitten oder verbunden werden, aber nicht beides zugleich.</translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation>Spielfilm aus dem Fernsehen (24)</translation>
    </message>
    <message>
        <source>Films and files without a picture can be joined only into a file of sound.</source>
        <translation>Filme und Dateien ohne Bild lassen sich nur zu einer Tondatei verbinden.</translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation>Filme unter dieser Adresse</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation>Schwarze Balken suchen</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Nächstes suchen</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Vorheriges suchen</translation>
    </message>
    <message>
        <source>Finishing…</source>
        <translation>Wird abgeschlossen …</translation>
    </message>
    <message>
        <source>First pass</source>
        <translation>Erster Durchgang</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Mitlaufen</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>Für alle Dateien</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>Zum Beispiel: %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation>Format und verwendete Optionen werden unter diesem Namen gesichert:</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formate</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>Am anderen Ende des Protokolls weitergesucht und gefunden.</translation>
    </message>
    <message>
        <source>From chapter</source>
        <translation>Ab Kapitel</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation>Full HD (1920 × 1080)</translation>
    </message>
    <message>
        <source>Further cover pictures beside the first.</source>
        <translation>Weitere Titelbilder neben dem ersten.</translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation>Weitere Bilder neben dem ersten (andere Blickwinkel oder Vorschauen).</translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation>GIF-Animation</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Spielkonsole</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Good quality</source>
        <translation>Gute Qualität</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>H.264 decoders</source>
        <translation>H.264-Decoder</translation>
    </message>
    <message>
        <source>H.264 encoders</source>
        <translation>H.264-Encoder</translation>
    </message>
    <message>
        <source>HD (1280 × 720)</source>
        <translation>HD (1280 × 720)</translation>
    </message>
    <message>
        <source>HEVC decoders</source>
        <translation>HEVC-Decoder</translation>
    </message>
    <message>
        <source>HEVC encoders</source>
        <translation>HEVC-Encoder</translation>
    </message>
    <message>
        <source>Hardware Information</source>
        <translation>Hardware-Informationen</translation>
    </message>
    <message>
        <source>Hardware acceleration:</source>
        <translation>Hardwarebeschleunigung:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>High dynamic range</source>
        <translation>Hoher Dynamikumfang</translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation>Hoher Dynamikumfang wird zu Standardumfang.</translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation>Hohe Qualität (langsamer)</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>Höchste Auflösung</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation>Wie die Disc behalten wird</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</source>
        <translation>In einer Wayland-Sitzung fragt der Desktop, was aufgenommen wird: Es kann nicht vorher benannt werden.</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>Es wird hier angezeigt, sobald es geschrieben wird: %1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation>Ihre Titel bleiben, wie sie sind, oder werden je nach Wahl MP4, MKV oder MP3.</translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation>Aufträge werden ausgeführt.</translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation>Es werden noch Aufträge ausgeführt.</translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation>Alle Dateien zu einer verbinden</translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation>Zu einer verbinden</translation>
    </message>
    <message>
        <source>Joining</source>
        <translation>Wird verbunden</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Weiterlaufen lassen</translation>
    </message>
    <message>
        <source>Keep Waiting</source>
        <translation>Weiter warten</translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation>Den Rest behalten</translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation>Datum der Quelle übernehmen</translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation>Passende Spuren unverändert übernehmen</translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation>Als Spur behalten</translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation>Gilt bis zum Beenden</translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation>Behalten, wo möglich</translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation>Behalten: %1</translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation>Kestrel-Hilfe</translation>
    </message>
    <message>
        <source>Kestrel Log</source>
        <translation>Kestrel-Protokoll</translation>
    </message>
    <message>
        <source>Kestrel Log — %1</source>
        <translation>Kestrel-Protokoll — %1</translation>
    </message>
    <message>
        <source>Kestrel does not know how long this file is, and cannot aim at a size.</source>
        <translation>Kestrel kennt die Länge dieser Datei nicht und kann keine Größe anstreben.</translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation>Kestrel kennt die Dateiart „%1“ dieser Voreinstellung nicht.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Language of %1</source>
        <translation>Sprache von %1</translation>
    </message>
    <message>
        <source>Languages of sound</source>
        <translation>Sprachen des Tons</translation>
    </message>
    <message>
        <source>Languages of subtitles</source>
        <translation>Sprachen der Untertitel</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Weitere Infos</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Weggelassen</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Weggelassen: %1</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Lines with this text: %1</source>
        <translation>Zeilen mit diesem Text: %1</translation>
    </message>
    <message>
        <source>Lines with this text: %1, looking for more… %2 % (Esc stops)</source>
        <translation>Zeilen mit diesem Text: %1, Suche läuft … %2 % (Esc stoppt)</translation>
    </message>
    <message>
        <source>Log text</source>
        <translation>Protokolltext</translation>
    </message>
    <message>
        <source>Looking at the hardware</source>
        <translation>Hardware wird untersucht</translation>
    </message>
    <message>
        <source>Looking for a newer download engine…</source>
        <translation>Nach einer neueren Download-Engine wird gesucht …</translation>
    </message>
    <message>
        <source>Lossless sound: %1. It becomes %2.</source>
        <translation>Verlustfreier Ton: %1. Er wird zu %2.</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation>M4A-Audio (AAC)</translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation>M4A-Audio, verlustfrei (ALAC)</translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation>MKA-Audio (Opus)</translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation>MKV-Video (AV1, Opus)</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>MKV-Video (H.264, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation>MKV-Video (H.265, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation>MKV-Video (VP9, Opus)</translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation>MKV-Video, hohe Qualität (H.265, FLAC)</translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation>MKV-Video, verlustfrei (FFV1, FLAC)</translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation>MOV-Video (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation>MOV-Video (H.264, AAC)</translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation>MOV-Video (ProRes, PCM)</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>MP3-Audio</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation>MP4-Video (AV1, Opus)</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>MP4-Video (H.264, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation>MP4-Video (H.265, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation>MP4-Video für Webseiten (1080p)</translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation>MPEG</translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation>MPEG-Video (MPEG-2, MP2)</translation>
    </message>
    <message>
        <source>MPEG-4 movie (MP4)</source>
        <translation>MPEG-4-Film (MP4)</translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation>MXF-Video (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation>MXF-Video (MPEG-2, PCM)</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Mediendateien</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Messages of the tools</source>
        <translation>Meldungen der Werkzeuge</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>Musikordner</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>Meine Voreinstellungen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Name der Voreinstellung:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>No camera in the picture</source>
        <translation>Keine Kamera im Bild</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>Es wurde keine Kamera gefunden.</translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation>Kein Format entspricht der Suche.</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>Kein Protokoll angegeben</translation>
    </message>
    <message>
        <source>No more than %1 pieces can be kept.</source>
        <translation>Mehr als %1 Abschnitte lassen sich nicht behalten.</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation>Kein Bild der Kopie konnte decodiert werden.</translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation>Kein Bild dieses Films konnte decodiert werden.</translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation>Unter dieser Adresse antwortet kein Server. Prüfen Sie sie, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>Kein Ton</translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation>Kein Tempolimit</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>Keine Untertitel</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Noch nicht gewählt</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation>Nicht gedreht</translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation>Noch nicht verwendet</translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation>Noch nicht verwendet, gilt bis zum Beenden</translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation>Bei %1 s konnte nichts decodiert werden.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation>Nichts aus der Datei konnte konvertiert werden.</translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation>Nichts vom Film war lesbar.</translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation>Von der Aufnahme ist nichts übrig.</translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation>Von dieser Datei würde nichts behalten.</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>Es wurde nichts aufgenommen.</translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation>OGG-Audio (Vorbis)</translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation>OGV-Video (Theora, Vorbis)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Old Phone (3GP)</source>
        <translation>Älteres Telefon (3GP)</translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation>Ein Titel als Disc-Ordner</translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation>Nur %1 von %2 s sind angekommen.</translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation>Nur eine Untertitelspur kann eingebrannt werden; eine weitere entfällt.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>Ordner öffnen …</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Image öffnen …</translation>
    </message>
    <message>
        <source>Open the log with “App Log” in the Help menu of %1.</source>
        <translation>Öffnen Sie das Protokoll mit „App-Protokoll“ im Menü „Hilfe“ von %1.</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>Ausgabeordner öffnen</translation>
    </message>
    <message>
        <source>Open the output folder when done</source>
        <translation>Nach Abschluss den Ausgabeordner öffnen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation>Opus-Audio</translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation>Originalton in einer MKA-Datei</translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation>Original in einer MOV-Datei</translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation>Original in einer TS-Datei</translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation>Original in einer MKV-Datei</translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation>Original in einer MP4-Datei</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Ausgabeordner:</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message>
        <source>PCM</source>
        <translation>PCM</translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation>Optionenseite</translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation>Teil des Bildschirms …</translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation>Teile der fertigen Datei fehlen.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einsetzen</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation>Adressen hier einsetzen oder ablegen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation>Telefon (H.265)</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation>Bild, alle Tonspuren, farbige Untertitel und Kapitel der gewählten Titel, nichts neu codiert.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation>Bilder pro Sekunde</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>Abschnitt %1 von %2</translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation>Abschnitte, die behalten werden</translation>
    </message>
    <message>
        <source>Place of the camera's picture</source>
        <translation>Platz des Kamerabilds</translation>
    </message>
    <message>
        <source>Places and styles of the subtitles: %1. %2 cannot hold them.</source>
        <translation>Plätze und Stile der Untertitel: %1. %2 kann sie nicht enthalten.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation>Quelle abspielen</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>Abspieltempo</translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation>Läuft überall</translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation>Bitte prüfen Sie, ob auf dem Datenträger Platz ist und in diesen Ordner geschrieben werden kann: %1</translation>
    </message>
    <message>
        <source>Please wait. Getting update information from the server...</source>
        <translation>Einen Moment bitte. Update-Informationen werden vom Server geladen …</translation>
    </message>
    <message>
        <source>Please write to %1 and attach this file: %2</source>
        <translation>Bitte schreiben Sie an %1 und fügen Sie diese Datei bei: %2</translation>
    </message>
    <message>
        <source>Please write to this address: %1</source>
        <translation>Bitte schreiben Sie an diese Adresse: %1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>Bevorzugte Tonsprache</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>Problem detected in last conversion.</source>
        <translation>Bei der letzten Konvertierung ist ein Problem aufgetreten.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Processor cores</source>
        <translation>Prozessorkerne</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy-Adresse</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxy-Port</translation>
    </message>
    <message>
        <source>Put a DVD in, or drop a disc image or folder here</source>
        <translation>DVD einlegen oder Disc-Image oder Ordner hier ablegen</translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation>Bild und Ton werden zusammengefügt …</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation>Qualität (niedriger ist besser)</translation>
    </message>
    <message>
        <source>QuickTime movie (MOV)</source>
        <translation>QuickTime-Film (MOV)</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>Kestrel beenden</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation>Disc wird gelesen …</translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation>Disc wird gelesen … Ein Laufwerk kann dafür eine halbe Minute brauchen.</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>Das Lesen der Datei oder das Schreiben in den Ausgabeordner ist nicht erlaubt. Prüfen Sie die Zugriffsrechte.</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>Datei wird gelesen …</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation>Videos aufnehmen</translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation>Nehmen Sie Videos von Bildschirm, Webcam und iPhone auf. Halten Sie Livestreams, Spiele, den Schreibtisch und alles andere als MOV für YouTube fest. Bildschirm und Webcam lassen sich auch gleichzeitig aufnehmen.</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Recorder</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Aufnahme %1</translation>
    </message>
    <message>
        <source>Recording begins at %1. Press Record to begin at once.</source>
        <translation>Die Aufnahme beginnt um %1. Mit „Aufnehmen“ beginnt sie sofort.</translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation>Die Aufnahme beginnt in %1 s. Klicken Sie auf „Aufnehmen“, um sofort zu beginnen.</translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation>Nach einer Unterbrechung wiederhergestellt.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Versionshinweise:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove Piece</source>
        <translation>Abschnitt entfernen</translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation>Mit Teildatei entfernen</translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation>Entfernt Fertiges aus der Liste. Die Dateien bleiben.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Report Bug</source>
        <translation>Fehler melden</translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation>Profile zurücksetzen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation>Sicherer Modus: das ganze Ergebnis prüfen</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Save To…</source>
        <translation>Sichern in …</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Kopie sichern</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Kopie sichern …</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Als Voreinstellung sichern</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>Als Voreinstellung sichern …</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gesichert: %1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Wird gesichert …</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>Wird gesichert … %1 % (Esc stoppt)</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation>Bildschirm %1 (%2 × %3)</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>Bildschirmaufnahme nicht verfügbar</translation>
    </message>
    <message>
        <source>Screen or window (the desktop asks)</source>
        <translation>Bildschirm oder Fenster (der Desktop fragt)</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Seitwärts scrollen</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Auf- und abwärts scrollen</translation>
    </message>
    <message>
        <source>Search Settings</source>
        <translation>Einstellungen durchsuchen</translation>
    </message>
    <message>
        <source>Search formats</source>
        <translation>Formate durchsuchen</translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation>Suchen: MKV, AV1, FLAC …</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>Suche läuft … %1 % (Esc stoppt)</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation>Zweiter Durchgang</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation>Wählen Sie eine Datei in der Liste aus, um deren Spuren zu wählen.</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Send Report</source>
        <translation>Bericht senden</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Several formats</source>
        <translation>Mehrere Formate</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>Datei zeigen</translation>
    </message>
    <message>
        <source>Show clicks</source>
        <translation>Klicks anzeigen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Mitteilungen zeigen</translation>
    </message>
    <message>
        <source>Show only lines with</source>
        <translation>Nur Zeilen zeigen mit</translation>
    </message>
    <message>
        <source>Show the pointer</source>
        <translation>Zeiger zeigen</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>Nach Abschluss den Computer ausschalten</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation>Größe höchstens</translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation>Größe: etwa %1</translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation>Langsamer, kleinere Datei</translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation>Am langsamsten, kleinste Datei</translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation>Klein (640 × 480)</translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation>Kleine Dateien</translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation>Kleines MP4-Video (720p)</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>Kleine Datei</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Standbild</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>Ordner für Standbilder</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation>Tonpegel</translation>
    </message>
    <message>
        <source>Sound of %1: %2. The joined file has no track for it.</source>
        <translation>Ton von %1: %2. Die verbundene Datei hat keine Spur dafür.</translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation>Ton des Computers</translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation>Nur der Ton, unverändert (MKA)</translation>
    </message>
    <message>
        <source>Sound track %1 begins so late in the film that it is not found in time.</source>
        <translation>Tonspur %1 beginnt so spät im Film, dass sie nicht rechtzeitig gefunden wird.</translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation>Tonspur %1, die dieser Film nicht hat</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Ton: %1</translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation>Ton: %1. %2 kann nur eine Tonspur enthalten.</translation>
    </message>
    <message>
        <source>Sound: %1. Its format is not known.</source>
        <translation>Ton: %1. Sein Format ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation>Quelle (zum Zuschneiden ziehen)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation>Tempolimit je Download</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>Hier beginnen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Stay at the end while the log grows</source>
        <translation>Am Ende bleiben, während das Protokoll wächst</translation>
    </message>
    <message>
        <source>Steady quality</source>
        <translation>Gleichbleibende Qualität</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>Stoppen nach</translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation>Nach %1 min stoppen</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>Stoppen und beenden</translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation>Stoppen und neu starten</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Gestoppt.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird gestoppt …</translation>
    </message>
    <message>
        <source>Subtitle track %1, which this film does not have</source>
        <translation>Untertitelspur %1, die dieser Film nicht hat</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Subtitles are missing in the finished file.</source>
        <translation>In der fertigen Datei fehlen Untertitel.</translation>
    </message>
    <message>
        <source>Subtitles in the picture</source>
        <translation>Untertitel im Bild</translation>
    </message>
    <message>
        <source>Subtitles of %1: %2. Joining keeps none of later files.</source>
        <translation>Untertitel von %1: %2. Beim Verbinden bleiben die späterer Dateien nicht erhalten.</translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation>Untertitel als Bilder: %1. %2 kann sie nicht enthalten; brennen Sie sie ein, oder wählen Sie MKV.</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>Untertitel: %1</translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation>Untertitel: %1. %2 kann sie nicht enthalten.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They are burnt into the first of the joined files only.</source>
        <translation>Untertitel: %1. Sie werden nur in die erste der verbundenen Dateien eingebrannt.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation>Untertitel: %1. Sie können den geänderten Zeiten nicht folgen; brennen Sie sie ein, um sie zu behalten.</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Vorschläge</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation>TS-Video (H.264, AC-3)</translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation>Fernseher (1080p)</translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation>Fernseher (4K, HDR)</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>Tablet</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>Das ist das Protokoll selbst. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation>Der aufzunehmende Bereich liegt außerhalb des Bildschirms.</translation>
    </message>
    <message>
        <source>The attached file %1 of %2. Joining keeps none of later files.</source>
        <translation>Die angehängte Datei %1 von %2. Beim Verbinden bleiben die späterer Dateien nicht erhalten.</translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation>Die angehängte Datei %1. %2 kann sie nicht enthalten.</translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation>Die Übertragung hat noch nicht begonnen. Versuchen Sie es danach erneut.</translation>
    </message>
    <message>
        <source>The camera could not be opened. Another program may be using it.</source>
        <translation>Die Kamera konnte nicht geöffnet werden. Vielleicht benutzt sie ein anderes Programm.</translation>
    </message>
    <message>
        <source>The camera went away: its picture ends there.</source>
        <translation>Die Kamera ist verschwunden: Ihr Bild endet dort.</translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation>Die Kapitel. %1 kann sie nicht enthalten.</translation>
    </message>
    <message>
        <source>The chosen camera is missing: %1 is recorded instead.</source>
        <translation>Die gewählte Kamera fehlt: Stattdessen wird %1 aufgenommen.</translation>
    </message>
    <message>
        <source>The chosen microphone is missing: the usual one is recorded instead.</source>
        <translation>Das gewählte Mikrofon fehlt: Stattdessen wird das übliche aufgenommen.</translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation>Die gewählten Titel werden Dateien des nebenstehenden Formats, so klein wie gewünscht.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation>Der Computer wird in %1 Sekunden ausgeschaltet.</translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation>Die Konvertierung wurde vor dem Ende gestoppt.</translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation>Der Konverter kann dieses Format nicht erzeugen. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation>Der Konverter konnte nicht gestartet werden. Bitte installieren Sie das Programm erneut.</translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation>Der Konverter konnte diese Datei nicht konvertieren.</translation>
    </message>
    <message>
        <source>The converter did not answer any more.</source>
        <translation>Der Konverter hat nicht mehr geantwortet.</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>Der Konverter fehlt. Bitte installieren Sie das Programm erneut.</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation>Die Kopie konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>Die Kopie konnte nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation>Die Kopie hat %1 Titel statt %2.</translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation>Das Kopieren wurde abgebrochen. Beim nächsten Start geht es an dieser Stelle weiter.</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>Die Kopie wurde gesichert.</translation>
    </message>
    <message>
        <source>The cover picture of %1. Joining keeps none of later files.</source>
        <translation>Das Titelbild von %1. Beim Verbinden bleiben die späterer Dateien nicht erhalten.</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation>Das Titelbild. %1 kann es nicht enthalten.</translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation>Das Titelbild. Es geht verloren, wenn Dateien so verbunden werden.</translation>
    </message>
    <message>
        <source>The date of recording. %1 cannot hold it.</source>
        <translation>Das Aufnahmedatum. %1 kann es nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The desktop did not let the screen be recorded.</source>
        <translation>Der Desktop hat die Aufnahme des Bildschirms nicht erlaubt.</translation>
    </message>
    <message>
        <source>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</source>
        <translation>Der Desktop erlaubt die Aufnahme, aber es kommt kein Bild an. Läuft PipeWire?</translation>
    </message>
    <message>
        <source>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</source>
        <translation>Der Desktop gibt das Bild frei, wenn die Aufnahme beginnt. Kurzbefehle wirken dann nur in Kestrels Fenstern.</translation>
    </message>
    <message>
        <source>The desktop's portal did not answer.</source>
        <translation>Das Portal des Desktops hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>The desktop's portal does not let the screen be recorded: %1</source>
        <translation>Das Portal des Desktops erlaubt die Aufnahme des Bildschirms nicht: %1</translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation>Die Disc konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation>Die Disc hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation>Die Disc hat keinen solchen Titel, kein solches Kapitel oder keinen solchen Blickwinkel.</translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation>Das Image der Disc endet vor dem Film.</translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation>Die Disc ist beschädigt: Ihr Inhalt konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation>Dieser Benutzer darf die Disc nicht lesen.</translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation>Die Werkzeuge für Discs konnten nicht gestartet werden. Bitte installieren Sie das Programm erneut.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>Der Datenträger konnte nicht gelesen oder beschrieben werden.</translation>
    </message>
    <message>
        <source>The disk for temporary files is full. Free some space and convert again.</source>
        <translation>Der Datenträger für temporäre Dateien ist voll. Schaffen Sie Platz und wandeln Sie noch einmal um.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation>Der Datenträger ist zu voll, um die Aufnahme abzuschließen: Sie bleibt eine Matroska-Datei.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays in %1 Matroska files.</source>
        <translation>Der Datenträger ist zu voll, um die Aufnahme abzuschließen: Sie bleibt in %1 Matroska-Dateien.</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>Der Datenträger des Ausgabeordners kann keine Datei dieser Größe aufnehmen.</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation>Der Bildschirm %1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The download engine could not be updated.</source>
        <translation>Die Download-Engine konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation>Die Download-Engine funktioniert nicht. Bitte installieren Sie das Programm erneut.</translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation>Die Download-Engine fehlt. Bitte installieren Sie das Programm erneut.</translation>
    </message>
    <message>
        <source>The download engine is now of version %1. Try again.</source>
        <translation>Die Download-Engine hat jetzt die Version %1. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The download failed. Try again later; the details tell what the engine said.</source>
        <translation>Der Download ist fehlgeschlagen. Versuchen Sie es später erneut; die Details zeigen, was die Engine gemeldet hat.</translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation>Der Encoder für %1 ist nicht installiert.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Die Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Die Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation>Die Datei enthält weder Video noch Ton, der sich konvertieren lässt.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>Die Datei ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation>Die Datei ist nicht mehr an ihrem Ort.</translation>
    </message>
    <message>
        <source>The file was deleted. What it held is still shown.</source>
        <translation>Die Datei wurde gelöscht. Ihr Inhalt wird weiterhin angezeigt.</translation>
    </message>
    <message>
        <source>The film has come, but subtitles, cover or chapters could not be added to it.</source>
        <translation>Der Film ist da, aber Untertitel, Cover oder Kapitel konnten nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded. Watch it on its own site.</source>
        <translation>Der Film ist kopiergeschützt und wird nicht geladen. Sehen Sie ihn auf seiner eigenen Seite an.</translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation>Der Film ist nicht mehr vorhanden. Suchen Sie ihn unter einer anderen Adresse.</translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation>Der Film ist nicht in der gewünschten Form vorhanden. Wählen Sie eine andere Auflösung oder ein anderes Format.</translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</source>
        <translation>Der Film ist privat oder nur für Mitglieder und kann deshalb nicht geladen werden. Suchen Sie ihn unter einer anderen Adresse.</translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation>Der Film der gewählten Titel, wie er auf der Disc steht; ohne Kapitel und Sprachbezeichnungen.</translation>
    </message>
    <message>
        <source>The finer picture. %1 bit %2 becomes %3 bit %4.</source>
        <translation>Das feinere Bild. Aus %1 Bit %2 wird %3 Bit %4.</translation>
    </message>
    <message>
        <source>The finer sound: %1. %2 bit become %3 bit.</source>
        <translation>Der feinere Ton: %1. Aus %2 Bit werden %3 Bit.</translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation>Die fertige Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation>Die fertige Datei hat %1 Byte statt %2.</translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation>Die fertige Datei enthält andere Spuren als gewünscht: %1 statt %2.</translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation>Die fertige Datei ist %1 s lang statt %2 s.</translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation>Die fertige Datei ist beschädigt: %1 Fehler.</translation>
    </message>
    <message>
        <source>The finished file is damaged: 1 fault.</source>
        <translation>Die fertige Datei ist beschädigt: 1 Fehler.</translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation>Die fertige Datei ist größer als gewünscht.</translation>
    </message>
    <message>
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>Die ersten %1 wurden kopiert. Sichern Sie eine Kopie, um alles zu erhalten.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Der Ordner konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The folder for temporary files cannot be written.</source>
        <translation>In den Ordner für temporäre Dateien kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The folder is too large: only some of its files were added.</source>
        <translation>Der Ordner ist zu groß: Nur ein Teil seiner Dateien wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>The irregular times of the pictures. They come evenly, %1 a second.</source>
        <translation>Die unregelmäßigen Zeiten der Bilder. Sie kommen gleichmäßig, %1 pro Sekunde.</translation>
    </message>
    <message>
        <source>The languages of the tracks. %1 cannot hold them.</source>
        <translation>Die Sprachen der Spuren. %1 kann sie nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The last %1 s have no picture.</source>
        <translation>Die letzten %1 s haben kein Bild.</translation>
    </message>
    <message>
        <source>The last %1 s have no sound: the sound server went away.</source>
        <translation>In den letzten %1 s fehlt der Ton: Der Tondienst war nicht mehr da.</translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>Das Protokoll kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The log was cut short meanwhile. Try again.</source>
        <translation>Das Protokoll wurde inzwischen gekürzt. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The mastering data of the high dynamic range. %1 cannot hold them.</source>
        <translation>Die Mastering-Daten des hohen Dynamikumfangs. %1 kann sie nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation>Die Optionen dieses Auftrags konnten nicht gelesen werden. Fügen Sie die Adresse erneut hinzu.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation>Die Optionen dieses Auftrags konnten nicht gelesen werden. Fügen Sie die Datei erneut hinzu.</translation>
    </message>
    <message>
        <source>The other angles of the film: %1</source>
        <translation>Die anderen Blickwinkel des Films: %1</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>Der Ausgabeordner ist nicht vorhanden. Bitte prüfen Sie die Einstellung.</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>Der Ausgabeordner ist schreibgeschützt. Wählen Sie in den Einstellungen einen anderen.</translation>
    </message>
    <message>
        <source>The picture has to be encoded (%1).</source>
        <translation>Das Bild muss codiert werden (%1).</translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation>Das Bild wird auf %1 × %2 verkleinert, damit es in die Größe passt.</translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation>Das Bild fehlt: Die Website hat nur den Ton ausgegeben.</translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation>Das Bild der fertigen Datei steht nicht aufrecht.</translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation>Die Abschnitte, die behalten werden sollen, liegen hinter dem Ende der Datei.</translation>
    </message>
    <message>
        <source>The place of recording. %1 cannot hold it.</source>
        <translation>Der Aufnahmeort. %1 kann ihn nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation>Der Player fehlt. Bitte installieren Sie das Programm erneut.</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation>Das Programm dvdauthor fehlt. Bitte installieren Sie es.</translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation>Der Proxy lehnt die Verbindung ab. Prüfen Sie seine Adresse in den Einstellungen.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation>Die Aufnahme konnte nicht abgeschlossen werden: Sie bleibt eine Matroska-Datei.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays in %1 Matroska files.</source>
        <translation>Die Aufnahme konnte nicht abgeschlossen werden: Sie bleibt in %1 Matroska-Dateien.</translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation>Die Aufnahme wurde beendet, weil der Datenträger fast voll ist.</translation>
    </message>
    <message>
        <source>The recording that was to begin at %1 was missed.</source>
        <translation>Die Aufnahme, die um %1 beginnen sollte, wurde verpasst.</translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation>Die Aufnahme wurde unterbrochen.</translation>
    </message>
    <message>
        <source>The same screen or window as last time</source>
        <translation>Derselbe Bildschirm oder dasselbe Fenster wie zuletzt</translation>
    </message>
    <message>
        <source>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</source>
        <translation>Der Bildschirm einer Wayland-Sitzung kann aufgenommen werden, wo der Desktop ein Portal dafür hat, das hier fehlt. Installieren Sie xdg-desktop-portal für Ihren Desktop oder melden Sie sich in einer X11-Sitzung (Xorg) an.</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>Die Bildschirmaufnahme wird erst ab Mac OS Lion unterstützt.</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation>Der Server hat abgebrochen oder konnte nicht antworten. Was angekommen ist, bleibt erhalten; versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation>Der Server hat abgebrochen, nächster Versuch in %1 s</translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation>Der Server hat nur einen Teil des Films gesendet.</translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation>Der Server gibt den Film nicht heraus. Versuchen Sie es später erneut, oder öffnen Sie die Seite in einem Browser, um den Grund zu sehen.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in %1 minutes.</source>
        <translation>Der Server nimmt vorerst keine Anfragen mehr an. Versuchen Sie es in %1 Minuten noch einmal.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation>Der Server nimmt im Moment keine weiteren Anfragen an. Versuchen Sie es nach einer Weile erneut.</translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</source>
        <translation>Das Zertifikat des Servers ist ungültig; vielleicht ist er nicht, wer er zu sein vorgibt. Es wurde nichts geladen; prüfen Sie die Adresse und das Datum dieses Computers.</translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation>Ordner aus den Einstellungen</translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation>Die Website zeigt diesen Film in Ihrem Land nicht. In den Einstellungen können Sie einen Proxy eines anderen Landes angeben.</translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation>Die Website hat sich geändert, und die Download-Engine kennt sie nicht mehr. Aktualisieren Sie die Engine, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</source>
        <translation>Die Seite zeigt diesen Film nur angemeldeten Besuchern; Kestrel meldet sich nicht an. Suchen Sie ihn unter einer anderen Adresse.</translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</source>
        <translation>Die Seite will zuerst das Alter des Zuschauers wissen, das sie nur durch eine Anmeldung erfährt. Suchen Sie den Film unter einer anderen Adresse.</translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation>Das Standbild konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation>Der Ton konnte nicht aufgenommen werden. Läuft der Tonserver?</translation>
    </message>
    <message>
        <source>The sound has to be encoded (%1).</source>
        <translation>Der Ton muss codiert werden (%1).</translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation>Der Ton fehlt, seit der Tonserver nicht mehr läuft.</translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation>Der Ton fehlt: Die Website hat nur das Bild ausgegeben.</translation>
    </message>
    <message>
        <source>The sound server was away for a while: that part has no sound.</source>
        <translation>Der Tondienst war eine Zeit lang weg: Dieser Teil hat keinen Ton.</translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation>Der Ton. %1 kann nur Bilder enthalten.</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>Die leistungsstärkste Videosoftware: Videos, Audiodateien und DVDs konvertieren, Videodateien bearbeiten, transcodieren, komprimieren und anpassen, Online-Medien laden, Bildschirm und Webcam aufnehmen.</translation>
    </message>
    <message>
        <source>The subtitle file %1 cannot be read.</source>
        <translation>Die Untertiteldatei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The subtitle file %1 is too large for a text.</source>
        <translation>Die Untertiteldatei %1 ist für einen Text zu groß.</translation>
    </message>
    <message>
        <source>The subtitles are missing: the site did not hand them out.</source>
        <translation>Die Untertitel fehlen: Die Seite hat sie nicht herausgegeben.</translation>
    </message>
    <message>
        <source>The subtitles that were to be drawn into the picture are not in this film.</source>
        <translation>Die Untertitel, die ins Bild gezeichnet werden sollten, sind nicht in diesem Film.</translation>
    </message>
    <message>
        <source>The title. %1 cannot hold it.</source>
        <translation>Der Titel. %1 kann ihn nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation>Das Werkzeug zum Lesen von Mediendateien fehlt. Bitte installieren Sie das Programm erneut.</translation>
    </message>
    <message>
        <source>The transcoder did not answer as it should.</source>
        <translation>Der Transcoder hat nicht wie erwartet geantwortet.</translation>
    </message>
    <message>
        <source>The transcoder is missing. Please install the application again.</source>
        <translation>Der Transcoder fehlt. Bitte installieren Sie das Programm neu.</translation>
    </message>
    <message>
        <source>The transparency of the picture. %1 cannot hold it.</source>
        <translation>Die Transparenz des Bildes. %1 kann sie nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation>Die ganze Disc, Sektor für Sektor, in einer Datei, die sich wie die Disc abspielen lässt.</translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation>Der ganze Film wird behalten.</translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation>Das Fenster ist zu klein für eine Aufnahme.</translation>
    </message>
    <message>
        <source>The window was closed or minimised.</source>
        <translation>Das Fenster wurde geschlossen oder minimiert.</translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation>Es gibt keine schwarzen Balken.</translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation>Unter dieser Adresse gibt es mehrere Filme. Fügen Sie sie erneut hinzu, um daraus zu wählen.</translation>
    </message>
    <message>
        <source>There are too many films at this address to look at them all. Add the address of one of them.</source>
        <translation>Unter dieser Adresse gibt es zu viele Filme, um alle anzusehen. Fügen Sie die Adresse eines einzelnen hinzu.</translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation>Es gibt zu viele Voreinstellungen. Löschen Sie zuerst einige.</translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation>Es besteht keine Netzwerkverbindung. Prüfen Sie sie, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation>Es ist keine Disc da. Legen Sie sie ein, oder wählen Sie ein Image oder einen Ordner, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation>Es gibt keinen Bildschirm, dessen Bild aufgenommen werden könnte.</translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation>Unter dieser Adresse gibt es keinen Film. Suchen Sie die Seite, die ihn abspielt.</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>Noch kein Protokoll vorhanden</translation>
    </message>
    <message>
        <source>There is no newer download engine.</source>
        <translation>Es gibt keine neuere Download-Engine.</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation>An dieser Stelle gibt es kein Bild.</translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation>Es gibt keinen Bildschirm „%1“. Vorhanden: %2.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>Auf der Festplatte ist kein Platz mehr. Schaffen Sie Platz und konvertieren Sie erneut.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation>Auf dem Datenträger ist kein Platz mehr. Schaffen Sie Platz, und versuchen Sie es erneut; was angekommen ist, bleibt erhalten.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation>Darin ist keine Video- oder Tondatei.</translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation>Es ist kein Fenster %1 zu sehen.</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>Der Speicher reicht nicht aus, um diese Datei zu konvertieren.</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation>Der Speicher reicht nicht aus, um diese Disc zu lesen.</translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation>Der Platz reicht nicht aus: %1 werden gebraucht, %2 sind frei. Schaffen Sie Platz, oder wählen Sie in den Einstellungen einen anderen Ordner.</translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation>Es gibt nichts zu konvertieren.</translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation>Auf dem Datenträger ist zu wenig Platz für eine Aufnahme.</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>Daraus wird je nach Wahl MP4, MKV, WebM oder MP3.</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation>Diese Adresse gehört zu keiner Website, die Kestrel kennt. Prüfen Sie sie, oder suchen Sie die Seite, die den Film abspielt.</translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation>Diese Auswahl gilt, bis Sie das Programm beenden.</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>Dieser Computer hat keinen Hardware-Encoder für H.264-Videos.</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation>Diese Disc wird bereits in diesen Ordner kopiert.</translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation>Diese Disc ist kopiergeschützt und kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>Diese Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation>Diese Datei enthält weder Bild noch Ton zum Konvertieren.</translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation>Diese Datei enthält kein Bild zum Konvertieren.</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>Diese Datei enthält keinen Ton zum Konvertieren.</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation>Diese Datei enthält keine Voreinstellungen von Kestrel.</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>Diese Datei ist beschädigt oder enthält weder Video noch Ton.</translation>
    </message>
    <message>
        <source>This film has no sound. Choose a format with a picture for it.</source>
        <translation>Dieser Film hat keinen Ton. Wählen Sie für ihn ein Format mit Bild.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>In diesen Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>This is another disc, which is also called %1.</source>
        <translation>Dies ist eine andere Disc, die auch %1 heißt.</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation>Dies ist eine andere Disc: %1 statt %2.</translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation>Von dieser Adresse kann nichts geladen werden.</translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation>Dies ist keine Voreinstellung.</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>Dies ist keine Textdatei</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation>Dies ist keine Video-DVD: Sie enthält kein VIDEO_TS.</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>Dies ist keine Video- oder Tondatei.</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation>Diese Voreinstellung hat keinen Namen.</translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation>Diese Voreinstellung behält weder Bild noch Ton.</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation>Diese Voreinstellung stammt aus einer neueren Version von Kestrel.</translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation>Dieser Titel enthält keinen Ton, der behalten werden könnte.</translation>
    </message>
    <message>
        <source>Time at which the recording begins</source>
        <translation>Uhrzeit, zu der die Aufnahme beginnt</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation>Titel %1</translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation>Titel %1 der Kopie hat %2 Kapitel statt %3.</translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation>Titel %1 der Kopie hat andere Spuren als die Disc.</translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation>Titel %1 der Kopie ist %2 s lang statt %3 s.</translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation>Titel %1, der Hauptfilm</translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation>Titel als MPEG-2-Dateien</translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation>Titel der Disc</translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation>Titel, unverändert (MKV)</translation>
    </message>
    <message>
        <source>To chapter</source>
        <translation>Bis Kapitel</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>Zu viele Zeilen mit diesem Text: Die neuesten %1 werden angezeigt.</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation>Zu viele Anfragen: Der Server wird in %1 s erneut gefragt</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Spur %1</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>Transcoder</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation>Probe</translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation>10 Sekunden testen</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation>In Standardumfang umgewandelt</translation>
    </message>
    <message>
        <source>Unable to connect to update server.</source>
        <translation>Keine Verbindung zum Update-Server möglich.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Widerrufen</translation>
    </message>
    <message>
        <source>Unknown language</source>
        <translation>Unbekannte Sprache</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Bis zum Stoppen</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>Update Download Engine</source>
        <translation>Download-Engine aktualisieren</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Auf den Kopf gestellt</translation>
    </message>
    <message>
        <source>Use This Area</source>
        <translation>Diesen Bereich verwenden</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Proxy verwenden</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation>Grafikhardware verwenden</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Üblich</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>Übliches Mikrofon</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>Version: %@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation>Sehr kleines MP4-Video (480p)</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation>Videokonverter</translation>
    </message>
    <message>
        <source>Video folder</source>
        <translation>Videoordner</translation>
    </message>
    <message>
        <source>Video or sound file</source>
        <translation>Video- oder Tondatei</translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation>Videos und Musik aus dem Web werden in der gewählten Form gesichert.</translation>
    </message>
    <message>
        <source>Visit our website:</source>
        <translation>Besuchen Sie unsere Website:</translation>
    </message>
    <message>
        <source>Visit website</source>
        <translation>Website besuchen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>WAV Audio</source>
        <translation>WAV-Audio</translation>
    </message>
    <message>
        <source>WMA Audio</source>
        <translation>WMA-Audio</translation>
    </message>
    <message>
        <source>WMV Video</source>
        <translation>WMV-Video</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Wartet auf eine Netzwerkverbindung</translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation>Wartet auf Platz auf dem Datenträger: %1 nötig</translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation>Wartet auf das Netzwerk, nächster Versuch in %1 s</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>Wartet auf den Server …</translation>
    </message>
    <message>
        <source>Waiting for your choice in the desktop's dialog…</source>
        <translation>Wartet auf Ihre Wahl im Dialog des Desktops …</translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation>Wartet: %1 Downloads von diesem Server laufen</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation>WebM-Video (AV1, Opus)</translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation>WebM-Video (VP8, Vorbis)</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>WebM-Video (VP9, Opus)</translation>
    </message>
    <message>
        <source>What has been recorded will be deleted.</source>
        <translation>Das Aufgenommene wird gelöscht.</translation>
    </message>
    <message>
        <source>What has come cannot be moved to that folder, so it stays where it is.</source>
        <translation>Was angekommen ist, lässt sich nicht in diesen Ordner bewegen und bleibt daher, wo es ist.</translation>
    </message>
    <message>
        <source>What the server sent is no film. Open the address in a browser to see what it is.</source>
        <translation>Was der Server gesendet hat, ist kein Film. Öffnen Sie die Adresse in einem Browser, um zu sehen, was es ist.</translation>
    </message>
    <message>
        <source>What the site answered could not be understood. Update the download engine and try again.</source>
        <translation>Die Antwort der Website war nicht zu verstehen. Aktualisieren Sie die Download-Engine, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation>Was diese Voreinstellung erzeugt, lässt sich nicht an eine Größe anpassen.</translation>
    </message>
    <message>
        <source>What to record</source>
        <translation>Was aufgenommen wird</translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation>Was Sie jetzt stoppen, wird Ihnen beim nächsten Start wieder angeboten.</translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation>Wo nötig</translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>Breite des Bildes</translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation>Wird nicht angenommen. Beispiel: http://proxy.example.com oder socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Window by a click…</source>
        <translation>Fenster durch Anklicken …</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation>Fenster: %1</translation>
    </message>
    <message>
        <source>Without encoding, what starts at %1 begins at %2.</source>
        <translation>Ohne Umwandlung beginnt, was bei %1 anfangen soll, bei %2.</translation>
    </message>
    <message>
        <source>Would you please send us the Log File to help us fix the issue?</source>
        <translation>Möchten Sie uns die Protokolldatei senden, damit wir das Problem beheben können?</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>Sie dürfen diese Datei nicht lesen.</translation>
    </message>
    <message>
        <source>You're up-to-date!</source>
        <translation>Sie sind auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Your mail program could not be opened.</source>
        <translation>Ihr E-Mail-Programm konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>Ihr Bildschirm als Video</translation>
    </message>
    <message>
        <source>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</source>
        <translation>Ihre Einstellungen können im Moment nicht gesichert werden. Kestrel versucht es beim Beenden erneut.</translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation>Ihre Einstellungen konnten beim letzten Beenden von Kestrel nicht gesichert werden.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>noch etwa %1 Stunden</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>noch etwa %1 Minuten</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>noch etwa eine Minute</translation>
    </message>
    <message>
        <source>another commentary</source>
        <translation>weiterer Kommentar</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>Tipp schließen</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>for children</source>
        <translation>für Kinder</translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation>für Hörgeschädigte</translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation>für Sehbehinderte</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>erzwungen</translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation>unverändert übernommen</translation>
    </message>
    <message>
        <source>large</source>
        <translation>groß</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>noch weniger als eine Minute</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation>wie Titel %1</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>Tipp anzeigen</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation>{name}, {preset}, {folder} und {date} werden eingesetzt.</translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation>„%1“ konnte nicht abgespielt werden.</translation>
    </message>
</context>
</TS>
