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
        <source>%1 converted</source>
        <translation>%1 convertito</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
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
        <source>A new version of %@ is available!</source>
        <translation>È disponibile una nuova versione di %@</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
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
        <source>Add Files</source>
        <translation>Aggiungi file</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Aggiungi file…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>Un indirizzo è per esempio http://proxy.example.com o socks5://10.0.0.1.</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>Log dell’app</translation>
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
        <source>Build on: %@</source>
        <translation>Compilato il: %@</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <source>Check for Updates…</source>
        <translation>Verifica aggiornamenti…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>Verifica degli aggiornamenti… </translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Scegli una cartella</translation>
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
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Close the tip</source>
        <translation>Chiudi il suggerimento</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Conversions are running.</source>
        <translation>Ci sono conversioni in corso.</translation>
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
        <source>Convert to:</source>
        <translation>Converti in:</translation>
    </message>
    <message>
        <source>Converted: %1</source>
        <translation>Convertiti: %1</translation>
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
        <source>Cut</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation>Ripper DVD</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
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
        <source>Done</source>
        <translation>Completato</translation>
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
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>Trascina video o cartelle in questa finestra, scegli un formato in basso e premi Converti. I risultati vanno nella cartella di destinazione; i tuoi file restano come sono.</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>Trascina qui video o cartelle</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Non riusciti: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Files that are not finished would have to be converted again.</source>
        <translation>I file non completati dovrebbero essere convertiti di nuovo.</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Cerca</translation>
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
        <source>Follow</source>
        <translation>Segui</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>Trovato proseguendo dall’altra estremità del log.</translation>
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
        <source>Highest Resolution</source>
        <translation>Risoluzione massima</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>Sarà mostrato qui non appena verrà scritto: %1</translation>
    </message>
    <message>
        <source>It will convert titles to videos for every device.</source>
        <translation>Potrai convertire i titoli in video per ogni dispositivo.</translation>
    </message>
    <message>
        <source>It will copy a DVD to a disc image or a folder.</source>
        <translation>Potrai copiare un DVD in un’immagine disco o in una cartella.</translation>
    </message>
    <message>
        <source>It will fetch several at a time, in the resolution that you prefer.</source>
        <translation>Ne scaricherà più di uno alla volta, nella risoluzione che preferisci.</translation>
    </message>
    <message>
        <source>It will go through your proxy where you have one.</source>
        <translation>Userà il tuo proxy, se ne hai uno.</translation>
    </message>
    <message>
        <source>It will keep the sound track in the language that you prefer.</source>
        <translation>Manterrà la traccia audio nella lingua che preferisci.</translation>
    </message>
    <message>
        <source>It will record the sound of the computer and of a microphone.</source>
        <translation>Registrerà l’audio del computer e di un microfono.</translation>
    </message>
    <message>
        <source>It will record the whole screen, a window or a part of it.</source>
        <translation>Registrerà l’intero schermo, una finestra o una sua parte.</translation>
    </message>
    <message>
        <source>It will save videos and music from addresses that you paste.</source>
        <translation>Salverà video e musica dagli indirizzi che incolli.</translation>
    </message>
    <message>
        <source>It will show mouse clicks where you want them seen.</source>
        <translation>Mostrerà i clic del mouse dove vuoi che si vedano.</translation>
    </message>
    <message>
        <source>Keep Converting</source>
        <translation>Continua a convertire</translation>
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
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Scopri di più</translation>
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
        <source>MKV Video (H.264, AAC)</source>
        <translation>Video MKV (H.264, AAC)</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>Audio MP3</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>Video MP4 (H.264, AAC)</translation>
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
        <source>Messages of the converter</source>
        <translation>Messaggi del convertitore</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Contrai</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>Cartella della musica</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>Nessun log indicato</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Non ancora scelta</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nessun risultato.</translation>
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
        <source>Open</source>
        <translation>Apri</translation>
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
        <source>Output folder:</source>
        <translation>Cartella di destinazione:</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato di destinazione</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
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
        <source>Preferences…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>Lingua audio preferita</translation>
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
        <source>Quit Kestrel</source>
        <translation>Esci da Kestrel</translation>
    </message>
    <message>
        <source>Reading files…</source>
        <translation>Lettura dei file…</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>Non è consentito leggere il file o scrivere nella cartella di destinazione. Verifica i permessi.</translation>
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
        <source>Save a Copy</source>
        <translation>Salva una copia</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Salva una copia…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>Salvataggio… %1% (Esc per interrompere)</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>Registrazione schermo non disponibile</translation>
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
        <source>Searching… %1 % (Esc stops)</source>
        <translation>Ricerca… %1% (Esc per interrompere)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
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
        <source>Show File</source>
        <translation>Mostra file</translation>
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
        <source>Shut down the computer when done</source>
        <translation>Spegni il computer al termine</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>Cartella delle istantanee</translation>
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
        <source>Stop and Leave</source>
        <translation>Interrompi ed esci</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Interrotto.</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Suggerimenti</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>Questo è il log stesso. Scegli un altro nome.</translation>
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
        <source>The converter is missing. Please install the application again.</source>
        <translation>Il convertitore non è presente. Installa di nuovo l’applicazione.</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>Impossibile salvare la copia: %1</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>La copia è stata salvata.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>Impossibile leggere o scrivere sul disco.</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>Il disco della cartella di destinazione non può contenere un file di queste dimensioni.</translation>
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
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>Sono stati copiati i primi %1. Salva una copia per avere tutto.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Impossibile aprire la cartella.</translation>
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
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>La cartella di destinazione non esiste. Verifica l’impostazione.</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>La cartella di destinazione è di sola lettura. Scegline un’altra nelle impostazioni.</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>La registrazione dello schermo è supportata solo da Mac OS Lion in poi.</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>Il software di elaborazione video più potente: converti video, audio e DVD; modifica, transcodifica, comprimi e regola i file video; scarica contenuti multimediali online; registra schermo e webcam.</translation>
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
        <source>There is no log yet</source>
        <translation>Non c’è ancora alcun log</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>Lo spazio su disco è esaurito. Libera spazio e converti di nuovo.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Questo file non esiste.</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>La memoria non è sufficiente per convertire questo file.</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>Diventano MP4, MKV, WebM o MP3, a tua scelta.</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>Questo computer non ha un encoder hardware per i video H.264.</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>Impossibile leggere questo file.</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>Questo file non contiene audio da convertire.</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>Questo file è danneggiato o non contiene né video né audio.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>Impossibile scrivere in questa cartella.</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>Non è un file di testo</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>Non è un file video o audio.</translation>
    </message>
    <message>
        <source>This part is still being made and comes with an update.</source>
        <translation>Questa parte è ancora in lavorazione e arriverà con un aggiornamento.</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>Troppe righe con questo testo: sono mostrate le %1 più recenti.</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>Transcodificatore</translation>
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
        <source>Unlimited</source>
        <translation>Illimitati</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usa un proxy</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>Versione: %@</translation>
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
        <source>Videos from the web, on your disk</source>
        <translation>I video del web, sul tuo disco</translation>
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
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>Video WebM (VP9, Opus)</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Finestra</translation>
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
        <source>Your DVDs, as files</source>
        <translation>I tuoi DVD, come file</translation>
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
        <source>closetip</source>
        <translation>Chiudi suggerimento</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>meno di un minuto rimanente</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>Mostra suggerimento</translation>
    </message>
</context>
</TS>
