<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 (%2 threads)</source>
        <translation>%1 (%2 thread)</translation>
    </message>
    <message>
        <source>%1 (sound only)</source>
        <translation>%1 (solo audio)</translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation>%1 - Titolo %2</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation>%1 MB sono troppo pochi per un file di questa durata.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation>%1 angolazioni</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>%1 capitoli</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>%1 persi</translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation>%1 file selezionati</translation>
    </message>
    <message>
        <source>%1 has fewer tracks of sound than other files: what it lacks is silent.</source>
        <translation>%1 ha meno tracce audio di altri file: ciò che manca resta muto.</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 of %2 pictures came too late: the one before stands for them.</source>
        <translation>%1 immagini su %2 sono arrivate tardi: al loro posto c’è la precedente.</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation>Letti %1 di %2 s, %3 errori</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, 1 fault</source>
        <translation>Letti %1 di %2 s, 1 errore</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation>Letti %1 di %2 s.</translation>
    </message>
    <message>
        <source>%1 pictures a second</source>
        <translation>%1 immagini al secondo</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation>Letti %1 s, %2 errori</translation>
    </message>
    <message>
        <source>%1 s could be read, 1 fault</source>
        <translation>Letti %1 s, 1 errore</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation>Non è stato possibile leggere %1 settori del disco; nella copia sono vuoti.</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation>Non è stato possibile leggere %1 settori del disco; nell’immagine sono vuoti.</translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation>Non è stato possibile leggere %1 settori del filmato.</translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation>%1 titoli</translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation>ancora %1</translation>
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
        <translation>%@ %@ è attualmente la versione più recente disponibile.</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@ è ora disponibile; la versione in uso è la %@. Aggiornare adesso?</translation>
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
        <translation>Un capitolo per ogni file unito</translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation>Un disco con il solo titolo scelto, senza menu, che i lettori avviano subito.</translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation>Un file di tipo %1 non può contenere ciò che questo preset richiede: %2.</translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation>Una cartella non ha settori da copiare. Scegli un altro modo.</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>È disponibile una nuova versione di %@</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un preset deve avere un nome.</translation>
    </message>
    <message>
        <source>A recording is to begin at %1.</source>
        <translation>Una registrazione deve iniziare alle %1.</translation>
    </message>
    <message>
        <source>AC-3 Audio</source>
        <translation>Audio AC-3</translation>
    </message>
    <message>
        <source>AIFF Audio</source>
        <translation>Audio AIFF</translation>
    </message>
    <message>
        <source>APNG Animation</source>
        <translation>Animazione APNG</translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation>Video AVI (MPEG-4, MP3)</translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation>Video AVI (Motion JPEG, PCM)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation>Circa %1.</translation>
    </message>
    <message>
        <source>About %@</source>
        <translation>Informazioni su %@</translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation>Informazioni su Kestrel</translation>
    </message>
    <message>
        <source>About Our Company Tarnwell Software, Inc.</source>
        <translation>Informazioni sulla nostra azienda Tarnwell Software, Inc.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Aggiungi %1</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Aggiungi file…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>Aggiungi file di sottotitoli…</translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation>Aggiunta dei sottotitoli…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation>Indirizzo di un video o di una pagina, per esempio https://…</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Obiettivo</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation>Tutti i formati</translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation>Tutti i formati…</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation>Tutti i file del disco in una cartella, con i suoi menu.</translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation>Tutte le operazioni sono completate.</translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation>Tutte le operazioni sono terminate.</translation>
    </message>
    <message>
        <source>All languages</source>
        <translation>Tutte le lingue</translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation>Tutte le tracce audio dei titoli scelti con i relativi capitoli.</translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation>Consenti molti da un solo server</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>Già nell’elenco: %1</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation>Mantieni sempre</translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation>Sempre, il doppio delle immagini</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>Un indirizzo è per esempio http://proxy.example.com o socks5://10.0.0.1.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolazione</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>Altra cartella…</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>Log dell’app</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivio</translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation>Ripristinare i profili?</translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation>Riavviare l’applicazione adesso?</translation>
    </message>
    <message>
        <source>Artist and album. %1 cannot hold them.</source>
        <translation>L’artista e l’album. %1 non può contenerli.</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Come da formato</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>Come la sorgente</translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation>Interrogazione del sito…</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Al massimo</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatica</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation>Esegui il backup dei DVD in 6 modalità e converti un intero DVD in oltre 180 formati per riprodurlo su Mac e dispositivi mobili, archiviarlo sul disco rigido, guardarlo in TV e altro. Un intero DVD in 5 minuti!</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Begin at a time…</source>
        <translation>Inizia a un’ora…</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation>Inizia subito</translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation>Accanto alla sorgente</translation>
    </message>
    <message>
        <source>Best quality</source>
        <translation>Qualità migliore</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation>Bitrate di una traccia</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>Compilato il: %@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation>Impressi nell’immagine</translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation>Audio CAF (ALAC)</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Videocamera %1</translation>
    </message>
    <message>
        <source>Camera %1 in the picture</source>
        <translation>Fotocamera %1 nell’immagine</translation>
    </message>
    <message>
        <source>Camera in the picture</source>
        <translation>Fotocamera nell’immagine</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation>Annulla la prova</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>Annullati: %1</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>Non utilizzabile</translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation>Cambia i formati video e audio, ridimensiona i file e modifica video 4K, 5K e 8K: taglia, unisci, dividi, ruota, aggiungi sottotitoli, filigrane e altro. Prova l’elaborazione con accelerazione hardware n. 1 per velocità.</translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation>La nuova lingua sarà attiva dopo il riavvio dell’applicazione.</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Channels of the sound: %1. %2 become %3.</source>
        <translation>Canali dell’audio: %1. Da %2 a %3.</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Capitolo %1</translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation>Nel file finito mancano dei capitoli.</translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation>Capitoli, lingue e colori dei sottotitoli, che i file MPEG-2 non possono contenere</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Verifica aggiornamenti…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>Verifica degli aggiornamenti… </translation>
    </message>
    <message>
        <source>Checking the copy…</source>
        <translation>Verifica della copia…</translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation>Verifica del file finito…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation>Scegli i filmati</translation>
    </message>
    <message>
        <source>Choose Films…</source>
        <translation>Scegli i filmati…</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Scegli una cartella</translation>
    </message>
    <message>
        <source>Choose a Window</source>
        <translation>Scegli una finestra</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation>Scegli in alto che cosa registrare, poi premi Registra.</translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation>Scegli un’area</translation>
    </message>
    <message>
        <source>Choose another one, or allow yourself to write to it: %1</source>
        <translation>Scegline un’altra o consenti la scrittura: %1</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Scegli…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Click the window that is to be recorded</source>
        <translation>Fai clic sulla finestra da registrare</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>In senso orario</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation>Computer e microfono</translation>
    </message>
    <message>
        <source>Computer and microphone, a track each</source>
        <translation>Computer e microfono, una traccia ciascuno</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connessione…</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Converti</translation>
    </message>
    <message>
        <source>Convert &amp; Backup DVD</source>
        <translation>Converti e copia DVD</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>Converti ed elabora video</translation>
    </message>
    <message>
        <source>Converting ten seconds: %1 %</source>
        <translation>Conversione di dieci secondi: %1%</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Conversione…</translation>
    </message>
    <message>
        <source>Converting… %1 %</source>
        <translation>Conversione… %1 %</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copiato.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</source>
        <translation>Copyright © 2019-%@ Tarnwell Software, Inc. Tutti i diritti riservati.</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Core</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation>Conto alla rovescia da tre</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>In senso antiorario</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Copertina</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation>Taglia e modifica</translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation>Taglia e modifica…</translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation>Taglio esatto (ricodifica)</translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation>Ritaglia in basso</translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation>Ritaglia a sinistra</translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation>Ritaglia a destra</translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation>Ritaglia in alto</translation>
    </message>
    <message>
        <source>Cut or Convert…</source>
        <translation>Taglia o converti…</translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the key picture at or before %1 s.</source>
        <translation>Tagliato senza codifica: inizia al fotogramma chiave a %1 s o prima.</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Taglio</translation>
    </message>
    <message>
        <source>DTS</source>
        <translation>DTS</translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation>Video DV</translation>
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
        <translation>Ripper DVD</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation>Dati della videocamera, come il timecode.</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>Deinterlacciamento</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Details…</source>
        <translation>Dettagli…</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation>Lettore di dischi (VOB)</translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation>Cartella del disco con menu</translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation>Immagine disco (ISO)</translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation>Immagini disco</translation>
    </message>
    <message>
        <source>Discard Recording</source>
        <translation>Scarta registrazione</translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation>Dolby Digital</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <translation>Non registrare</translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation>Non spegnere</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation>Completato con problemi</translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation>Completati con problemi: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Completati: %1</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Download Now</source>
        <translation>Scarica ora</translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation>Scarica video</translation>
    </message>
    <message>
        <source>Download format</source>
        <translation>Formato di download</translation>
    </message>
    <message>
        <source>Download resolution</source>
        <translation>Risoluzione di download</translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation>Scarica video e musica in streaming ad altissima qualità da YouTube, Facebook e oltre 1000 siti. Converti i file scaricati in MP4, MP3 e altro.</translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation>Downloader</translation>
    </message>
    <message>
        <source>Downloads at the same time</source>
        <translation>Download simultanei</translation>
    </message>
    <message>
        <source>Downloads that are running keep the limit that they began with.</source>
        <translation>I download in corso mantengono il limite con cui sono iniziati.</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation>Traccia un’area, poi premi Invio</translation>
    </message>
    <message>
        <source>Drawn into the film, for players that show none themselves.</source>
        <translation>Disegnati nel film, per i lettori che non li mostrano.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>Trascina video o cartelle in questa finestra, scegli un formato in basso e premi Converti. I risultati vanno nella cartella di destinazione; i tuoi file restano come sono.</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>Trascina qui video o cartelle</translation>
    </message>
    <message>
        <source>E-AC-3 Audio</source>
        <translation>Audio E-AC-3</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Modifiche</translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation>Codifica software</translation>
    </message>
    <message>
        <source>Encoding once more, to meet the size</source>
        <translation>Nuova codifica per rispettare la dimensione</translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation>Codifica, perché le tracce non possono essere copiate</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>Termina qui</translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation>Uniforma il volume</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation>Audio FLAC</translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation>Video FLV (H.264, AAC)</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Dissolvenza iniziale</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Dissolvenza finale</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Non riusciti: %1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation>Più veloce, file più grande</translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation>Il più veloce, file più grande di tutti</translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation>Dimensioni massime del file</translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation>I file si possono tagliare o unire, ma non entrambe le cose insieme.</translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation>Film dalla televisione (24)</translation>
    </message>
    <message>
        <source>Films and files without a picture can be joined only into a file of sound.</source>
        <translation>Filmati e file senza immagine si possono unire solo in un file audio.</translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation>Filmati a questo indirizzo</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtra</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation>Trova bande nere</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Cerca successivo</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Cerca precedente</translation>
    </message>
    <message>
        <source>Finishing…</source>
        <translation>Completamento…</translation>
    </message>
    <message>
        <source>First pass</source>
        <translation>Prima passata</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Segui</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>Per tutti i file</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>Per esempio: %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation>Il formato e le opzioni in uso vengono salvati con questo nome:</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formati</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>Trovato proseguendo dall’altra estremità del log.</translation>
    </message>
    <message>
        <source>From chapter</source>
        <translation>Dal capitolo</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation>Full HD (1920 × 1080)</translation>
    </message>
    <message>
        <source>Further cover pictures beside the first.</source>
        <translation>Altre copertine oltre alla prima.</translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation>Altre immagini oltre alla prima (altre angolazioni o anteprime).</translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation>Animazione GIF</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Console di gioco</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Good quality</source>
        <translation>Qualità buona</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafica</translation>
    </message>
    <message>
        <source>H.264 decoders</source>
        <translation>Decoder H.264</translation>
    </message>
    <message>
        <source>H.264 encoders</source>
        <translation>Encoder H.264</translation>
    </message>
    <message>
        <source>HD (1280 × 720)</source>
        <translation>HD (1280 × 720)</translation>
    </message>
    <message>
        <source>HEVC decoders</source>
        <translation>Decoder HEVC</translation>
    </message>
    <message>
        <source>HEVC encoders</source>
        <translation>Encoder HEVC</translation>
    </message>
    <message>
        <source>Hardware Information</source>
        <translation>Informazioni sull’hardware</translation>
    </message>
    <message>
        <source>Hardware acceleration:</source>
        <translation>Accelerazione hardware:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>High dynamic range</source>
        <translation>Gamma dinamica estesa</translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation>La gamma dinamica estesa diventa standard.</translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation>Alta qualità (più lento)</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>Risoluzione massima</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation>Come viene conservato il disco</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importa…</translation>
    </message>
    <message>
        <source>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</source>
        <translation>In una sessione Wayland il desktop chiede cosa registrare: non si può indicare prima.</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>Sarà mostrato qui non appena verrà scritto: %1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation>I suoi titoli restano come sono o diventano MP4, MKV o MP3, a tua scelta.</translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation>Ci sono operazioni in corso.</translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation>Ci sono ancora operazioni in corso.</translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation>Unisci tutti i file in uno</translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation>Unisci in uno</translation>
    </message>
    <message>
        <source>Joining</source>
        <translation>Unione</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Continua l’esecuzione</translation>
    </message>
    <message>
        <source>Keep Waiting</source>
        <translation>Continua ad attendere</translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation>Mantieni invece il resto</translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation>Mantieni la data della sorgente</translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation>Mantieni invariate le tracce adatte</translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation>Mantenuti come traccia</translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation>Mantenuto fino all’uscita</translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation>Mantieni se possibile</translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation>Mantenuto: %1</translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation>Aiuto Kestrel</translation>
    </message>
    <message>
        <source>Kestrel Log</source>
        <translation>Log di Kestrel</translation>
    </message>
    <message>
        <source>Kestrel Log — %1</source>
        <translation>Log di Kestrel — %1</translation>
    </message>
    <message>
        <source>Kestrel does not know how long this file is, and cannot aim at a size.</source>
        <translation>Kestrel non conosce la durata di questo file e non può puntare a una dimensione.</translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation>Kestrel non conosce il tipo di file “%1” di questo preset.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Language of %1</source>
        <translation>Lingua di %1</translation>
    </message>
    <message>
        <source>Languages of sound</source>
        <translation>Lingue dell’audio</translation>
    </message>
    <message>
        <source>Languages of subtitles</source>
        <translation>Lingue dei sottotitoli</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Scopri di più</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Escluso</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Escluso: %1</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Lines with this text: %1</source>
        <translation>Righe con questo testo: %1</translation>
    </message>
    <message>
        <source>Lines with this text: %1, looking for more… %2 % (Esc stops)</source>
        <translation>Righe con questo testo: %1, ricerca in corso… %2% (Esc per interrompere)</translation>
    </message>
    <message>
        <source>Log text</source>
        <translation>Testo del log</translation>
    </message>
    <message>
        <source>Looking at the hardware</source>
        <translation>Analisi dell’hardware</translation>
    </message>
    <message>
        <source>Looking for a newer download engine…</source>
        <translation>Ricerca di un motore di download più recente…</translation>
    </message>
    <message>
        <source>Lossless sound: %1. It becomes %2.</source>
        <translation>Audio senza perdita: %1. Diventa %2.</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation>Audio M4A (AAC)</translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation>Audio M4A, senza perdita (ALAC)</translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation>Audio MKA (Opus)</translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation>Video MKV (AV1, Opus)</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>Video MKV (H.264, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation>Video MKV (H.265, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation>Video MKV (VP9, Opus)</translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation>Video MKV, alta qualità (H.265, FLAC)</translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation>Video MKV, senza perdita (FFV1, FLAC)</translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation>Video MOV (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation>Video MOV (H.264, AAC)</translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation>Video MOV (ProRes, PCM)</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>Audio MP3</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation>Video MP4 (AV1, Opus)</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>Video MP4 (H.264, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation>Video MP4 (H.265, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation>Video MP4 per pagine web (1080p)</translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation>MPEG</translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation>Video MPEG (MPEG-2, MP2)</translation>
    </message>
    <message>
        <source>MPEG-4 movie (MP4)</source>
        <translation>Filmato MPEG-4 (MP4)</translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation>Video MXF (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation>Video MXF (MPEG-2, PCM)</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>File multimediali</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Messages of the tools</source>
        <translation>Messaggi degli strumenti</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfono</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Contrai</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Rifletti</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>Cartella della musica</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>I miei preset</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Nome del preset:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>No camera in the picture</source>
        <translation>Nessuna fotocamera nell’immagine</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>Nessuna videocamera trovata.</translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation>Nessun formato corrisponde alla ricerca.</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>Nessun log indicato</translation>
    </message>
    <message>
        <source>No more than %1 pieces can be kept.</source>
        <translation>Non si possono conservare più di %1 parti.</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation>Non è stato possibile decodificare alcuna immagine della copia.</translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation>Non è stato possibile decodificare alcuna immagine di questo filmato.</translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation>A questo indirizzo non risponde alcun server. Verificalo e riprova.</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>Senza audio</translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation>Nessun limite di velocità</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>Nessun sottotitolo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Non ancora scelta</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation>Non ruotata</translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation>Non ancora usata</translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation>Non ancora usata, mantenuta fino all’uscita</translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation>Non è stato possibile decodificare nulla a %1 s.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nessun risultato.</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation>Non è stato possibile convertire nulla del file.</translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation>Non è stato possibile leggere nulla del filmato.</translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation>Della registrazione non è rimasto nulla.</translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation>Di questo file non verrebbe mantenuto nulla.</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>Non è stato registrato nulla.</translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation>Audio OGG (Vorbis)</translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation>Video OGV (Theora, Vorbis)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivata</translation>
    </message>
    <message>
        <source>Old Phone (3GP)</source>
        <translation>Vecchio telefono (3GP)</translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation>Un titolo come cartella del disco</translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation>Sono arrivati solo %1 di %2 s.</translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation>Si può imprimere una sola traccia di sottotitoli; le altre vengono escluse.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>Apri cartella…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Apri immagine…</translation>
    </message>
    <message>
        <source>Open the log with “App Log” in the Help menu of %1.</source>
        <translation>Apri il log con “Log dell’app” nel menu Aiuto di %1.</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>Apri la cartella di destinazione</translation>
    </message>
    <message>
        <source>Open the output folder when done</source>
        <translation>Apri la cartella di destinazione al termine</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation>Audio Opus</translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation>Audio originale, in un file MKA</translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation>Originale, in un file MOV</translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation>Originale, in un file TS</translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation>Originale, in un file MKV</translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation>Originale, in un file MP4</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Cartella di destinazione:</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato di destinazione</translation>
    </message>
    <message>
        <source>PCM</source>
        <translation>PCM</translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation>Pagina delle opzioni</translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation>Parte dello schermo…</translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation>Mancano parti del file finito.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation>Incolla o trascina qui gli indirizzi</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefono</translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation>Telefono (H.265)</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation>Immagine, tutto l’audio, sottotitoli nei loro colori e capitoli dei titoli scelti, senza ricodificare nulla.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation>Immagini al secondo</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>Parte %1 di %2</translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation>Parti mantenute</translation>
    </message>
    <message>
        <source>Place of the camera's picture</source>
        <translation>Posizione dell’immagine della fotocamera</translation>
    </message>
    <message>
        <source>Places and styles of the subtitles: %1. %2 cannot hold them.</source>
        <translation>Posizioni e stili dei sottotitoli: %1. %2 non può contenerli.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation>Riproduci sorgente</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>Velocità di riproduzione</translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation>Riproducibile ovunque</translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation>Verifica che sul disco ci sia spazio e che si possa scrivere in questa cartella: %1</translation>
    </message>
    <message>
        <source>Please wait. Getting update information from the server...</source>
        <translation>Attendi. Recupero delle informazioni sugli aggiornamenti dal server…</translation>
    </message>
    <message>
        <source>Please write to %1 and attach this file: %2</source>
        <translation>Scrivi a %1 e allega questo file: %2</translation>
    </message>
    <message>
        <source>Please write to this address: %1</source>
        <translation>Scrivi a questo indirizzo: %1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>Lingua audio preferita</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>Problem detected in last conversion.</source>
        <translation>È stato rilevato un problema nell’ultima conversione.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processore</translation>
    </message>
    <message>
        <source>Processor cores</source>
        <translation>Core del processore</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Indirizzo del proxy</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Porta del proxy</translation>
    </message>
    <message>
        <source>Put a DVD in, or drop a disc image or folder here</source>
        <translation>Inserisci un DVD o trascina qui un’immagine disco o una cartella</translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation>Unione di immagine e audio…</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation>Qualità (più basso è meglio)</translation>
    </message>
    <message>
        <source>QuickTime movie (MOV)</source>
        <translation>Filmato QuickTime (MOV)</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>Esci da Kestrel</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation>Lettura del disco…</translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation>Lettura del disco… Un’unità può impiegare mezzo minuto.</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>Non è consentito leggere il file o scrivere nella cartella di destinazione. Verifica i permessi.</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>Lettura del file…</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lettura…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registra</translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation>Registra video</translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation>Registra video da schermo, webcam o iPhone. Cattura dirette, giochi, scrivania e qualsiasi altra cosa in MOV per YouTube. È possibile registrare schermo e webcam contemporaneamente.</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Registratore</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Registrazione</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Registrazione %1</translation>
    </message>
    <message>
        <source>Recording begins at %1. Press Record to begin at once.</source>
        <translation>La registrazione inizia alle %1. Premi Registra per iniziare subito.</translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation>La registrazione inizia tra %1 s. Premi Registra per iniziare subito.</translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation>Recuperato dopo un’interruzione.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Note di rilascio:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove Piece</source>
        <translation>Rimuovi parte</translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation>Rimuovi con il file parziale</translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation>Rimuove dall’elenco ciò che è completato. I file restano.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Rinomina…</translation>
    </message>
    <message>
        <source>Report Bug</source>
        <translation>Segnala un problema</translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation>Ripristina profili</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation>Modalità sicura: verifica l’intero risultato</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Save To…</source>
        <translation>Salva in…</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Salva una copia</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Salva una copia…</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Salva come preset</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>Salva come preset…</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Salvato: %1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Salvataggio…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>Salvataggio… %1% (Esc per interrompere)</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation>Schermo %1 (%2 × %3)</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>Registrazione schermo non disponibile</translation>
    </message>
    <message>
        <source>Screen or window (the desktop asks)</source>
        <translation>Schermo o finestra (chiede il desktop)</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Scorri in orizzontale</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Scorri in verticale</translation>
    </message>
    <message>
        <source>Search Settings</source>
        <translation>Cerca nelle impostazioni</translation>
    </message>
    <message>
        <source>Search formats</source>
        <translation>Cerca formati</translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation>Cerca: MKV, AV1, FLAC…</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>Ricerca… %1% (Esc per interrompere)</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation>Seconda passata</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation>Seleziona un file nell’elenco per scegliere fra le sue tracce.</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Invia feedback</translation>
    </message>
    <message>
        <source>Send Report</source>
        <translation>Invia resoconto</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Several formats</source>
        <translation>Più formati</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>Mostra file</translation>
    </message>
    <message>
        <source>Show clicks</source>
        <translation>Mostra i clic</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Mostra notifiche</translation>
    </message>
    <message>
        <source>Show only lines with</source>
        <translation>Mostra solo righe con</translation>
    </message>
    <message>
        <source>Show the pointer</source>
        <translation>Mostra il puntatore</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>Spegni il computer al termine</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation>Dimensioni massime</translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation>Dimensioni: circa %1</translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation>Più lento, file più piccolo</translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation>Il più lento, file più piccolo di tutti</translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation>Piccolo (640 × 480)</translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation>File piccoli</translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation>Video MP4 piccolo (720p)</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>File piccolo</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Istantanea</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>Cartella delle istantanee</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation>Livello audio</translation>
    </message>
    <message>
        <source>Sound of %1: %2. The joined file has no track for it.</source>
        <translation>Audio di %1: %2. Il file unito non ha una traccia per questo.</translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation>Audio del computer</translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation>Solo l’audio, invariato (MKA)</translation>
    </message>
    <message>
        <source>Sound track %1 begins so late in the film that it is not found in time.</source>
        <translation>La traccia audio %1 inizia così tardi nel filmato che non viene trovata in tempo.</translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation>La traccia audio %1, che questo filmato non contiene</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Audio: %1</translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation>Audio: %1. %2 può contenere una sola traccia audio.</translation>
    </message>
    <message>
        <source>Sound: %1. Its format is not known.</source>
        <translation>Audio: %1. Il suo formato non è noto.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Sorgente</translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation>Sorgente (trascina per ritagliare)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation>Limite di velocità di ogni download</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>Inizia qui</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Stay at the end while the log grows</source>
        <translation>Resta alla fine mentre il log cresce</translation>
    </message>
    <message>
        <source>Steady quality</source>
        <translation>Qualità costante</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>Interrompi dopo</translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation>Interrompi dopo %1 min</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>Interrompi ed esci</translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation>Interrompi e riavvia</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Interrotto.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Interruzione…</translation>
    </message>
    <message>
        <source>Subtitle track %1, which this film does not have</source>
        <translation>La traccia di sottotitoli %1, che questo filmato non ha</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Sottotitoli</translation>
    </message>
    <message>
        <source>Subtitles are missing in the finished file.</source>
        <translation>Nel file finito mancano dei sottotitoli.</translation>
    </message>
    <message>
        <source>Subtitles in the picture</source>
        <translation>Sottotitoli nell’immagine</translation>
    </message>
    <message>
        <source>Subtitles of %1: %2. Joining keeps none of later files.</source>
        <translation>Sottotitoli di %1: %2. L’unione non conserva quelli dei file successivi.</translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation>Sottotitoli come immagini: %1. %2 non può contenerli; imprimili o scegli MKV.</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>Sottotitoli: %1</translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation>Sottotitoli: %1. %2 non può contenerli.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They are burnt into the first of the joined files only.</source>
        <translation>Sottotitoli: %1. Vengono impressi solo nel primo dei file uniti.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation>Sottotitoli: %1. Non possono seguire i tempi modificati; imprimili per mantenerli.</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Suggerimenti</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation>Video TS (H.264, AC-3)</translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation>Televisore (1080p)</translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation>Televisore (4K, HDR)</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>Tablet</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>Questo è il log stesso. Scegli un altro nome.</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation>L’area da registrare è fuori dallo schermo.</translation>
    </message>
    <message>
        <source>The attached file %1 of %2. Joining keeps none of later files.</source>
        <translation>Il file allegato %1 di %2. L’unione non conserva quelli dei file successivi.</translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation>Il file allegato %1. %2 non può contenerlo.</translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation>La trasmissione non è ancora iniziata. Riprova quando sarà iniziata.</translation>
    </message>
    <message>
        <source>The camera could not be opened. Another program may be using it.</source>
        <translation>Impossibile aprire la fotocamera. Forse un altro programma la sta usando.</translation>
    </message>
    <message>
        <source>The camera went away: its picture ends there.</source>
        <translation>La fotocamera è stata scollegata: la sua immagine finisce lì.</translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation>I capitoli. %1 non può contenerli.</translation>
    </message>
    <message>
        <source>The chosen camera is missing: %1 is recorded instead.</source>
        <translation>La fotocamera scelta manca: al suo posto si registra %1.</translation>
    </message>
    <message>
        <source>The chosen microphone is missing: the usual one is recorded instead.</source>
        <translation>Il microfono scelto manca: al suo posto si registra quello abituale.</translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation>I titoli scelti diventano file del formato indicato a lato, piccoli quanto desideri.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation>Il computer verrà spento tra %1 secondi.</translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation>La conversione è stata interrotta prima della fine.</translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation>Il convertitore non può creare questo formato. Scegline un altro.</translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation>Impossibile avviare il convertitore. Installa di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation>Il convertitore non ha potuto convertire questo file.</translation>
    </message>
    <message>
        <source>The converter did not answer any more.</source>
        <translation>Il convertitore non risponde più.</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>Il convertitore non è presente. Installa di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation>Impossibile rileggere la copia.</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>Impossibile salvare la copia: %1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation>La copia contiene %1 titoli invece di %2.</translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation>La copia è stata interrotta. Riprenderà da questo punto quando verrà avviata di nuovo.</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>La copia è stata salvata.</translation>
    </message>
    <message>
        <source>The cover picture of %1. Joining keeps none of later files.</source>
        <translation>La copertina di %1. L’unione non conserva quelle dei file successivi.</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation>L’immagine di copertina. %1 non può contenerla.</translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation>L’immagine di copertina. Va persa quando i file vengono uniti in questo modo.</translation>
    </message>
    <message>
        <source>The date of recording. %1 cannot hold it.</source>
        <translation>La data di registrazione. %1 non può contenerla.</translation>
    </message>
    <message>
        <source>The desktop did not let the screen be recorded.</source>
        <translation>Il desktop non ha consentito di registrare lo schermo.</translation>
    </message>
    <message>
        <source>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</source>
        <translation>Il desktop consente la registrazione, ma non arriva alcuna immagine. PipeWire è in esecuzione?</translation>
    </message>
    <message>
        <source>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</source>
        <translation>Il desktop condivide l’immagine quando inizia la registrazione. Le scorciatoie funzionano solo nelle finestre di Kestrel.</translation>
    </message>
    <message>
        <source>The desktop's portal did not answer.</source>
        <translation>Il portale del desktop non ha risposto.</translation>
    </message>
    <message>
        <source>The desktop's portal does not let the screen be recorded: %1</source>
        <translation>Il portale del desktop non consente di registrare lo schermo: %1</translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation>Impossibile leggere il disco.</translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation>Il disco non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation>Il disco non contiene questo titolo, capitolo o angolazione.</translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation>L’immagine disco finisce prima del filmato.</translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation>Il disco è danneggiato: impossibile leggerne il contenuto.</translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation>Questo utente non ha il permesso di leggere il disco.</translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation>Impossibile avviare gli strumenti per i dischi. Installa di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>Impossibile leggere o scrivere sul disco.</translation>
    </message>
    <message>
        <source>The disk for temporary files is full. Free some space and convert again.</source>
        <translation>Il disco dei file temporanei è pieno. Libera spazio e converti di nuovo.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation>Il disco è troppo pieno per completare la registrazione: resta un file Matroska.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays in %1 Matroska files.</source>
        <translation>Il disco è troppo pieno per completare la registrazione: resta in %1 file Matroska.</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>Il disco della cartella di destinazione non può contenere un file di queste dimensioni.</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation>Impossibile aprire lo schermo %1.</translation>
    </message>
    <message>
        <source>The download engine could not be updated.</source>
        <translation>Impossibile aggiornare il motore di download.</translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation>Il motore di download non funziona. Installa di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation>Il motore di download non è presente. Installa di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>The download engine is now of version %1. Try again.</source>
        <translation>Il motore di download è ora alla versione %1. Riprova.</translation>
    </message>
    <message>
        <source>The download failed. Try again later; the details tell what the engine said.</source>
        <translation>Il download non è riuscito. Riprova più tardi; i dettagli riportano il messaggio del motore.</translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation>L’encoder per %1 non è installato.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Impossibile leggere il file.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Impossibile scrivere il file.</translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation>Il file non contiene video né audio che si possa convertire.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>Il file è danneggiato o incompleto.</translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation>Il file non è più nella sua posizione.</translation>
    </message>
    <message>
        <source>The file was deleted. What it held is still shown.</source>
        <translation>Il file è stato eliminato. Il suo contenuto è ancora mostrato.</translation>
    </message>
    <message>
        <source>The film has come, but subtitles, cover or chapters could not be added to it.</source>
        <translation>Il film è arrivato, ma non è stato possibile aggiungere sottotitoli, copertina o capitoli.</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded. Watch it on its own site.</source>
        <translation>Il filmato è protetto dalla copia e non viene scaricato. Guardalo sul suo sito.</translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation>Il filmato non è più disponibile. Cercalo a un altro indirizzo.</translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation>Il filmato non è disponibile nella forma voluta. Scegli un’altra risoluzione o un altro formato.</translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</source>
        <translation>Il filmato è privato o solo per membri, quindi non può essere scaricato. Cercalo a un altro indirizzo.</translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation>Il filmato dei titoli scelti così com’è sul disco; senza capitoli né nomi delle lingue.</translation>
    </message>
    <message>
        <source>The finer picture. %1 bit %2 becomes %3 bit %4.</source>
        <translation>L’immagine più fine. Da %1 bit %2 a %3 bit %4.</translation>
    </message>
    <message>
        <source>The finer sound: %1. %2 bit become %3 bit.</source>
        <translation>L’audio più fine: %1. Da %2 bit a %3 bit.</translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation>Impossibile rileggere il file finito.</translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation>Il file finito è di %1 byte invece di %2.</translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation>Il file finito contiene tracce diverse da quelle volute: %1 invece di %2.</translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation>Il file finito dura %1 s invece di %2 s.</translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation>Il file finito è danneggiato: %1 errori.</translation>
    </message>
    <message>
        <source>The finished file is damaged: 1 fault.</source>
        <translation>Il file finito è danneggiato: 1 errore.</translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation>Il file finito è più grande di quanto voluto.</translation>
    </message>
    <message>
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>Sono stati copiati i primi %1. Salva una copia per avere tutto.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Impossibile aprire la cartella.</translation>
    </message>
    <message>
        <source>The folder for temporary files cannot be written.</source>
        <translation>Impossibile scrivere nella cartella dei file temporanei.</translation>
    </message>
    <message>
        <source>The folder is too large: only some of its files were added.</source>
        <translation>La cartella è troppo grande: sono stati aggiunti solo alcuni dei suoi file.</translation>
    </message>
    <message>
        <source>The irregular times of the pictures. They come evenly, %1 a second.</source>
        <translation>I tempi irregolari delle immagini. Si susseguono in modo uniforme, %1 al secondo.</translation>
    </message>
    <message>
        <source>The languages of the tracks. %1 cannot hold them.</source>
        <translation>Le lingue delle tracce. %1 non può contenerle.</translation>
    </message>
    <message>
        <source>The last %1 s have no picture.</source>
        <translation>Gli ultimi %1 s non hanno immagine.</translation>
    </message>
    <message>
        <source>The last %1 s have no sound: the sound server went away.</source>
        <translation>Gli ultimi %1 s sono senza audio: il server audio non era più disponibile.</translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>Impossibile leggere il log</translation>
    </message>
    <message>
        <source>The log was cut short meanwhile. Try again.</source>
        <translation>Nel frattempo il log è stato accorciato. Riprova.</translation>
    </message>
    <message>
        <source>The mastering data of the high dynamic range. %1 cannot hold them.</source>
        <translation>I dati di mastering dell’alta gamma dinamica. %1 non può contenerli.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation>Impossibile leggere le opzioni di questa operazione. Aggiungi di nuovo l’indirizzo.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation>Impossibile leggere le opzioni di questa operazione. Aggiungi di nuovo il file.</translation>
    </message>
    <message>
        <source>The other angles of the film: %1</source>
        <translation>Le altre angolazioni del filmato: %1</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>Impossibile scrivere il risultato.</translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>La cartella di destinazione non esiste. Verifica l’impostazione.</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>La cartella di destinazione è di sola lettura. Scegline un’altra nelle impostazioni.</translation>
    </message>
    <message>
        <source>The picture has to be encoded (%1).</source>
        <translation>L’immagine deve essere codificata (%1).</translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation>L’immagine viene ridotta a %1 × %2 per rientrare nelle dimensioni.</translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation>Manca l’immagine: il sito ha fornito solo l’audio.</translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation>L’immagine del file finito non è diritta.</translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation>Le parti da mantenere si trovano oltre la fine del file.</translation>
    </message>
    <message>
        <source>The place of recording. %1 cannot hold it.</source>
        <translation>Il luogo di registrazione. %1 non può contenerlo.</translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation>Il lettore non è presente. Installa di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation>Il programma dvdauthor non è presente. Installalo.</translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation>Il proxy rifiuta la connessione. Verificane l’indirizzo nelle impostazioni.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation>Non è stato possibile completare la registrazione: resta un file Matroska.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays in %1 Matroska files.</source>
        <translation>Non è stato possibile completare la registrazione: resta in %1 file Matroska.</translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation>La registrazione è terminata perché il disco è quasi pieno.</translation>
    </message>
    <message>
        <source>The recording that was to begin at %1 was missed.</source>
        <translation>La registrazione che doveva iniziare alle %1 non è stata effettuata.</translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation>La registrazione è stata interrotta.</translation>
    </message>
    <message>
        <source>The same screen or window as last time</source>
        <translation>Lo stesso schermo o la stessa finestra dell’ultima volta</translation>
    </message>
    <message>
        <source>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</source>
        <translation>Lo schermo di una sessione Wayland si può registrare dove il desktop ha un portale apposito, che qui manca. Installa xdg-desktop-portal per il tuo desktop o accedi a una sessione X11 (Xorg).</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>La registrazione dello schermo è supportata solo da Mac OS Lion in poi.</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation>Il server ha interrotto la connessione o non ha potuto rispondere. Ciò che è arrivato viene mantenuto; riprova più tardi.</translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation>Il server ha interrotto la connessione, prossimo tentativo tra %1 s</translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation>Il server ha inviato solo una parte del filmato.</translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation>Il server rifiuta di fornire il filmato. Riprova più tardi o apri la pagina in un browser per scoprirne il motivo.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in %1 minutes.</source>
        <translation>Il server per ora non accetta altre richieste. Riprova tra %1 minuti.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation>Per ora il server non accetta altre richieste. Riprova tra un po’.</translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</source>
        <translation>Il certificato del server non è valido, quindi potrebbe non essere chi dice di essere. Non è stato scaricato nulla; controlla l’indirizzo e la data di questo computer.</translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation>Cartella delle impostazioni</translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation>Il sito non mostra questo filmato nel tuo paese. Nelle impostazioni puoi indicare un proxy di un altro paese.</translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation>Il sito è cambiato e il motore di download non lo riconosce più. Aggiorna il motore e riprova.</translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</source>
        <translation>Il sito mostra questo filmato solo a chi ha effettuato l’accesso, cosa che Kestrel non fa. Cercalo a un altro indirizzo.</translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</source>
        <translation>Il sito vuole prima conoscere l’età dello spettatore, che apprende solo da un accesso. Cerca il filmato a un altro indirizzo.</translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation>Impossibile scrivere l’istantanea.</translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation>Non è stato possibile registrare l’audio. Il server audio è in esecuzione?</translation>
    </message>
    <message>
        <source>The sound has to be encoded (%1).</source>
        <translation>L’audio deve essere codificato (%1).</translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation>L’audio manca da quando il server audio si è chiuso.</translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation>Manca l’audio: il sito ha fornito solo l’immagine.</translation>
    </message>
    <message>
        <source>The sound server was away for a while: that part has no sound.</source>
        <translation>Il server audio è mancato per un po’: quella parte è senza audio.</translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation>L’audio. %1 può contenere solo immagini.</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>Il software di elaborazione video più potente: converti video, audio e DVD; modifica, transcodifica, comprimi e regola i file video; scarica contenuti multimediali online; registra schermo e webcam.</translation>
    </message>
    <message>
        <source>The subtitle file %1 cannot be read.</source>
        <translation>Impossibile leggere il file di sottotitoli %1.</translation>
    </message>
    <message>
        <source>The subtitle file %1 is too large for a text.</source>
        <translation>Il file di sottotitoli %1 è troppo grande per essere un testo.</translation>
    </message>
    <message>
        <source>The subtitles are missing: the site did not hand them out.</source>
        <translation>I sottotitoli mancano: il sito non li ha forniti.</translation>
    </message>
    <message>
        <source>The subtitles that were to be drawn into the picture are not in this film.</source>
        <translation>I sottotitoli da disegnare nell’immagine non sono in questo filmato.</translation>
    </message>
    <message>
        <source>The title. %1 cannot hold it.</source>
        <translation>Il titolo. %1 non può contenerlo.</translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation>Lo strumento che legge i file multimediali non è presente. Installa di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>The transcoder did not answer as it should.</source>
        <translation>Il transcodificatore non ha risposto come previsto.</translation>
    </message>
    <message>
        <source>The transcoder is missing. Please install the application again.</source>
        <translation>Il transcodificatore manca. Installa di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>The transparency of the picture. %1 cannot hold it.</source>
        <translation>La trasparenza dell’immagine. %1 non può contenerla.</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation>L’intero disco, settore per settore, in un file che si riproduce come il disco.</translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation>Viene mantenuto l’intero filmato.</translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation>La finestra è troppo piccola per essere registrata.</translation>
    </message>
    <message>
        <source>The window was closed or minimised.</source>
        <translation>La finestra è stata chiusa o ridotta a icona.</translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation>Non ci sono bande nere.</translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation>A questo indirizzo ci sono più filmati. Aggiungilo di nuovo per scegliere tra questi.</translation>
    </message>
    <message>
        <source>There are too many films at this address to look at them all. Add the address of one of them.</source>
        <translation>A questo indirizzo ci sono troppi filmati per esaminarli tutti. Aggiungi l’indirizzo di uno di essi.</translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation>Ci sono troppi preset. Eliminane prima qualcuno.</translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation>Non c’è connessione di rete. Verificala e riprova.</translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation>Non c’è alcun disco. Inseriscilo, oppure scegli un’immagine o una cartella, e riprova.</translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation>Non c’è alcuno schermo la cui immagine si possa registrare.</translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation>A questo indirizzo non c’è alcun filmato. Cerca la pagina che lo riproduce.</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>Non c’è ancora alcun log</translation>
    </message>
    <message>
        <source>There is no newer download engine.</source>
        <translation>Non c’è un motore di download più recente.</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation>In questo punto non c’è alcuna immagine.</translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation>Lo schermo “%1” non esiste. Disponibili: %2.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>Lo spazio su disco è esaurito. Libera spazio e converti di nuovo.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation>Lo spazio su disco è esaurito. Libera spazio e riprova; ciò che è arrivato viene mantenuto.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Questo file non esiste.</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation>Non contiene alcun file video o audio.</translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation>Nessuna finestra %1 è visibile.</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>La memoria non è sufficiente per convertire questo file.</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation>La memoria non è sufficiente per leggere questo disco.</translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation>Lo spazio non è sufficiente: servono %1 e ne sono liberi %2. Libera spazio o scegli un’altra cartella nelle impostazioni.</translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation>Non c’è nulla da convertire.</translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation>Sul disco c’è troppo poco spazio per registrare.</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>Diventano MP4, MKV, WebM o MP3, a tua scelta.</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation>Questo indirizzo non appartiene ad alcun sito noto a Kestrel. Verificalo o cerca la pagina che riproduce il filmato.</translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation>Questa scelta vale fino all’uscita dall’applicazione.</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>Questo computer non ha un encoder hardware per i video H.264.</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation>Questo disco è già in fase di copia in questa cartella.</translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation>Questo disco è protetto dalla copia e non può essere letto.</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>Impossibile leggere questo file.</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation>Questo file non contiene né immagine né audio da convertire.</translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation>Questo file non contiene un’immagine da convertire.</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>Questo file non contiene audio da convertire.</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation>Questo file non contiene preset di Kestrel.</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>Questo file è danneggiato o non contiene né video né audio.</translation>
    </message>
    <message>
        <source>This film has no sound. Choose a format with a picture for it.</source>
        <translation>Questo filmato non ha audio. Scegli un formato con immagine.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>Impossibile scrivere in questa cartella.</translation>
    </message>
    <message>
        <source>This is another disc, which is also called %1.</source>
        <translation>Questo è un altro disco, che si chiama anch’esso %1.</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation>Questo è un altro disco: %1 invece di %2.</translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation>Da questo indirizzo non si può scaricare nulla.</translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation>Questo non è un preset.</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>Non è un file di testo</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation>Questo non è un DVD video: non contiene VIDEO_TS.</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>Non è un file video o audio.</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation>Questo preset non ha un nome.</translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation>Questo preset non mantiene né immagine né audio.</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation>Questo preset è stato creato da una versione più recente di Kestrel.</translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation>Questo titolo non ha audio da mantenere.</translation>
    </message>
    <message>
        <source>Time at which the recording begins</source>
        <translation>Ora di inizio della registrazione</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation>Titolo %1</translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation>Il titolo %1 della copia contiene %2 capitoli invece di %3.</translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation>Il titolo %1 della copia contiene tracce diverse da quelle del disco.</translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation>Il titolo %1 della copia dura %2 s invece di %3 s.</translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation>Titolo %1, il film principale</translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation>Titoli come file MPEG-2</translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation>Titoli del disco</translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation>Titoli, invariati (MKV)</translation>
    </message>
    <message>
        <source>To chapter</source>
        <translation>Al capitolo</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>Troppe righe con questo testo: sono mostrate le %1 più recenti.</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation>Troppe richieste: il server verrà interrogato di nuovo tra %1 s</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Traccia %1</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>Transcodificatore</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation>Prova 10 secondi</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Ruota</translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation>Converti in standard</translation>
    </message>
    <message>
        <source>Unable to connect to update server.</source>
        <translation>Impossibile connettersi al server degli aggiornamenti.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Unknown language</source>
        <translation>Lingua sconosciuta</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Illimitati</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Fino all’interruzione</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Senza titolo</translation>
    </message>
    <message>
        <source>Update Download Engine</source>
        <translation>Aggiorna il motore di download</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Capovolta</translation>
    </message>
    <message>
        <source>Use This Area</source>
        <translation>Usa quest’area</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usa un proxy</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation>Usa l’hardware grafico</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Consueto</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>Microfono abituale</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>Versione: %@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation>Video MP4 molto piccolo (480p)</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation>Convertitore video</translation>
    </message>
    <message>
        <source>Video folder</source>
        <translation>Cartella dei video</translation>
    </message>
    <message>
        <source>Video or sound file</source>
        <translation>File video o audio</translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation>I video e la musica del web vengono salvati nella forma che scegli.</translation>
    </message>
    <message>
        <source>Visit our website:</source>
        <translation>Visita il nostro sito web:</translation>
    </message>
    <message>
        <source>Visit website</source>
        <translation>Visita il sito web</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>WAV Audio</source>
        <translation>Audio WAV</translation>
    </message>
    <message>
        <source>WMA Audio</source>
        <translation>Audio WMA</translation>
    </message>
    <message>
        <source>WMV Video</source>
        <translation>Video WMV</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>In attesa di una connessione di rete</translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation>In attesa di spazio su disco: servono %1</translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation>In attesa della rete, prossimo tentativo tra %1 s</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>In attesa del server…</translation>
    </message>
    <message>
        <source>Waiting for your choice in the desktop's dialog…</source>
        <translation>In attesa della tua scelta nella finestra del desktop…</translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation>In attesa: sono in corso %1 download da questo server</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrana</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation>Video WebM (AV1, Opus)</translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation>Video WebM (VP8, Vorbis)</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>Video WebM (VP9, Opus)</translation>
    </message>
    <message>
        <source>What has been recorded will be deleted.</source>
        <translation>Ciò che è stato registrato verrà eliminato.</translation>
    </message>
    <message>
        <source>What has come cannot be moved to that folder, so it stays where it is.</source>
        <translation>Ciò che è arrivato non può essere spostato in quella cartella, quindi resta dov’è.</translation>
    </message>
    <message>
        <source>What the server sent is no film. Open the address in a browser to see what it is.</source>
        <translation>Ciò che il server ha inviato non è un filmato. Apri l’indirizzo in un browser per vedere di che cosa si tratta.</translation>
    </message>
    <message>
        <source>What the site answered could not be understood. Update the download engine and try again.</source>
        <translation>Impossibile comprendere la risposta del sito. Aggiorna il motore di download e riprova.</translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation>Ciò che questo preset crea non si può adattare a una dimensione.</translation>
    </message>
    <message>
        <source>What to record</source>
        <translation>Cosa registrare</translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation>Ciò che interrompi ora ti verrà riproposto al prossimo avvio.</translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation>Dove serve</translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation>Immagine intera</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>Larghezza dell’immagine</translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation>Non verrà accettato. Esempio: http://proxy.example.com o socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Window by a click…</source>
        <translation>Finestra con un clic…</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation>Finestra: %1</translation>
    </message>
    <message>
        <source>Without encoding, what starts at %1 begins at %2.</source>
        <translation>Senza codifica, ciò che parte a %1 inizia a %2.</translation>
    </message>
    <message>
        <source>Would you please send us the Log File to help us fix the issue?</source>
        <translation>Vuoi inviarci il file di log per aiutarci a risolvere il problema?</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>Non hai il permesso di leggere questo file.</translation>
    </message>
    <message>
        <source>You're up-to-date!</source>
        <translation>Hai la versione più recente</translation>
    </message>
    <message>
        <source>Your mail program could not be opened.</source>
        <translation>Impossibile aprire il programma di posta.</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>Il tuo schermo, in video</translation>
    </message>
    <message>
        <source>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</source>
        <translation>Al momento non è possibile salvare le impostazioni. Kestrel riproverà all’uscita.</translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation>Non è stato possibile salvare le impostazioni all’ultima uscita da Kestrel.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ridimensiona</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>circa %1 ore rimanenti</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>circa %1 minuti rimanenti</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>circa un minuto rimanente</translation>
    </message>
    <message>
        <source>another commentary</source>
        <translation>altro commento</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>Chiudi suggerimento</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation>commento</translation>
    </message>
    <message>
        <source>for children</source>
        <translation>per bambini</translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation>per non udenti</translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation>per non vedenti</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>forzati</translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation>invariato</translation>
    </message>
    <message>
        <source>large</source>
        <translation>grandi</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>meno di un minuto rimanente</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation>come il titolo %1</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>Mostra suggerimento</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation>{name}, {preset}, {folder} e {date} vengono sostituiti con i rispettivi valori.</translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation>Impossibile riprodurre “%1”.</translation>
    </message>
</context>
</TS>
