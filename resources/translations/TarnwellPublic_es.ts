<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 (%2 threads)</source>
        <translation>%1 (%2 hilos)</translation>
    </message>
    <message>
        <source>%1 converted</source>
        <translation>%1 convertido</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%@ %@ is currently the latest version available.</source>
        <translation>%@ %@ es la última versión disponible actualmente.</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@ ya está disponible (versión actual: %@). ¿Desea actualizar ahora?</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>Hay una nueva versión de %@ disponible</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>About %@</source>
        <translation>Acerca de %@</translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation>Acerca de Kestrel</translation>
    </message>
    <message>
        <source>About Our Company Tarnwell Software, Inc.</source>
        <translation>Acerca de nuestra empresa, Tarnwell Software, Inc.</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Añadir archivos…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>Una dirección es, por ejemplo, http://proxy.example.com o socks5://10.0.0.1.</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>Registro de la app</translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation>¿Seguro que desea restablecer los perfiles?</translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation>¿Seguro que desea reiniciar la aplicación ahora?</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation>Haga copias de seguridad de sus DVD en 6 modos y convierta un DVD completo a más de 180 formatos para reproducirlo en Mac y dispositivos móviles, guardarlo en el disco duro o verlo en la tele, entre otros. ¡Un DVD completo en 5 minutos!</translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>Compilado el: %@</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation>Cambie los formatos de vídeo y audio, modifique el tamaño de los archivos y edite vídeos 4K, 5K y 8K: cortar, unir, dividir, rotar, añadir subtítulos o marcas de agua, etc. Disfrute del procesamiento acelerado por hardware n.º 1 en rapidez.</translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation>El cambio de idioma se aplicará al reiniciar la aplicación.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>Buscando actualizaciones… </translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Choose another one, or allow yourself to write to it: %1</source>
        <translation>Elija otra o permita escribir en ella: %1</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close the tip</source>
        <translation>Cerrar el consejo</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Conversions are running.</source>
        <translation>Hay conversiones en curso.</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Convert &amp; Backup DVD</source>
        <translation>Convertir y copiar DVD</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>Convertir y procesar vídeos</translation>
    </message>
    <message>
        <source>Convert to:</source>
        <translation>Convertir a:</translation>
    </message>
    <message>
        <source>Converted: %1</source>
        <translation>Convertidos: %1</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copiado.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</source>
        <translation>Copyright © 2019-%@ Tarnwell Software, Inc. Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Núcleos</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation>Extractor de DVD</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Details…</source>
        <translation>Detalles…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>Download Now</source>
        <translation>Descargar ahora</translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation>Descargar vídeos</translation>
    </message>
    <message>
        <source>Download format</source>
        <translation>Formato de descarga</translation>
    </message>
    <message>
        <source>Download resolution</source>
        <translation>Resolución de descarga</translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation>Descargue vídeos y música en línea de altísima calidad de YouTube, Facebook y más de 1000 sitios. Convierta los archivos descargados a MP4, MP3, etc.</translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation>Descargas</translation>
    </message>
    <message>
        <source>Downloads at the same time</source>
        <translation>Descargas simultáneas</translation>
    </message>
    <message>
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>Suelte vídeos o carpetas en esta ventana, elija un formato abajo y pulse Convertir. Los resultados van a la carpeta de salida; sus archivos no se modifican.</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>Suelte aquí vídeos o carpetas</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Con error: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Files that are not finished would have to be converted again.</source>
        <translation>Los archivos sin terminar tendrían que volver a convertirse.</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Buscar anterior</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>Encontrado tras continuar por el otro extremo del registro.</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>H.264 decoders</source>
        <translation>Decodificadores H.264</translation>
    </message>
    <message>
        <source>H.264 encoders</source>
        <translation>Codificadores H.264</translation>
    </message>
    <message>
        <source>HEVC decoders</source>
        <translation>Decodificadores HEVC</translation>
    </message>
    <message>
        <source>HEVC encoders</source>
        <translation>Codificadores HEVC</translation>
    </message>
    <message>
        <source>Hardware Information</source>
        <translation>Información del hardware</translation>
    </message>
    <message>
        <source>Hardware acceleration:</source>
        <translation>Aceleración por hardware:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>Resolución máxima</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>Se mostrará aquí en cuanto se escriba: %1</translation>
    </message>
    <message>
        <source>It will convert titles to videos for every device.</source>
        <translation>Podrá convertir los títulos en vídeos para cualquier dispositivo.</translation>
    </message>
    <message>
        <source>It will copy a DVD to a disc image or a folder.</source>
        <translation>Podrá copiar un DVD a una imagen de disco o una carpeta.</translation>
    </message>
    <message>
        <source>It will fetch several at a time, in the resolution that you prefer.</source>
        <translation>Obtendrá varios a la vez, en la resolución que prefiera.</translation>
    </message>
    <message>
        <source>It will go through your proxy where you have one.</source>
        <translation>Usará su proxy si lo tiene.</translation>
    </message>
    <message>
        <source>It will keep the sound track in the language that you prefer.</source>
        <translation>Conservará la pista de audio en el idioma que prefiera.</translation>
    </message>
    <message>
        <source>It will record the sound of the computer and of a microphone.</source>
        <translation>Grabará el sonido del ordenador y de un micrófono.</translation>
    </message>
    <message>
        <source>It will record the whole screen, a window or a part of it.</source>
        <translation>Grabará la pantalla completa, una ventana o una parte.</translation>
    </message>
    <message>
        <source>It will save videos and music from addresses that you paste.</source>
        <translation>Guardará vídeos y música de las direcciones que pegue.</translation>
    </message>
    <message>
        <source>It will show mouse clicks where you want them seen.</source>
        <translation>Mostrará los clics del ratón donde quiera que se vean.</translation>
    </message>
    <message>
        <source>Keep Converting</source>
        <translation>Seguir convirtiendo</translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation>Ayuda de Kestrel</translation>
    </message>
    <message>
        <source>Kestrel Log</source>
        <translation>Registro de Kestrel</translation>
    </message>
    <message>
        <source>Kestrel Log — %1</source>
        <translation>Registro de Kestrel — %1</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Más información</translation>
    </message>
    <message>
        <source>Lines with this text: %1</source>
        <translation>Líneas con este texto: %1</translation>
    </message>
    <message>
        <source>Lines with this text: %1, looking for more… %2 % (Esc stops)</source>
        <translation>Líneas con este texto: %1; buscando más… %2 % (Esc para detener)</translation>
    </message>
    <message>
        <source>Log text</source>
        <translation>Texto del registro</translation>
    </message>
    <message>
        <source>Looking at the hardware</source>
        <translation>Examinando el hardware</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>Vídeo MKV (H.264, AAC)</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>Audio MP3</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>Vídeo MP4 (H.264, AAC)</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Archivos multimedia</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Messages of the converter</source>
        <translation>Mensajes del conversor</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>Carpeta de música</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>No se ha indicado ningún registro</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Aún sin elegir</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>No se ha encontrado nada.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open the log with “App Log” in the Help menu of %1.</source>
        <translation>Abra el registro con “Registro de la app” en el menú Ayuda de %1.</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>Abrir la carpeta de salida</translation>
    </message>
    <message>
        <source>Open the output folder when done</source>
        <translation>Abrir la carpeta de salida al terminar</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Carpeta de salida:</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato de salida</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Please wait. Getting update information from the server...</source>
        <translation>Espere un momento. Obteniendo del servidor la información de actualización…</translation>
    </message>
    <message>
        <source>Please write to %1 and attach this file: %2</source>
        <translation>Escriba a %1 y adjunte este archivo: %2</translation>
    </message>
    <message>
        <source>Please write to this address: %1</source>
        <translation>Escriba a esta dirección: %1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>Idioma de audio preferido</translation>
    </message>
    <message>
        <source>Problem detected in last conversion.</source>
        <translation>Se ha detectado un problema en la última conversión.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Procesador</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Dirección del proxy</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Puerto del proxy</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>Salir de Kestrel</translation>
    </message>
    <message>
        <source>Reading files…</source>
        <translation>Leyendo archivos…</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>No se permite leer el archivo o escribir en la carpeta de salida. Compruebe sus permisos.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Preparado</translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation>Grabar vídeos</translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation>Grabe vídeos de la pantalla, la cámara web o el iPhone. Capture retransmisiones en directo, juegos, el escritorio y cualquier otra cosa en MOV para YouTube. Admite la grabación simultánea de pantalla y cámara web.</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Grabadora</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Notas de la versión:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Report Bug</source>
        <translation>Informar de un error</translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation>Restablecer perfiles</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Guardar una copia</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Guardar una copia…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>Guardando… %1 % (Esc para detener)</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>Grabación de pantalla no disponible</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Desplazar en horizontal</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Desplazar en vertical</translation>
    </message>
    <message>
        <source>Search Settings</source>
        <translation>Buscar en los ajustes</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>Buscando… %1 % (Esc para detener)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Send Report</source>
        <translation>Enviar informe</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>Mostrar archivo</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Mostrar notificaciones</translation>
    </message>
    <message>
        <source>Show only lines with</source>
        <translation>Mostrar solo líneas con</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>Apagar el equipo al terminar</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>Carpeta de capturas</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Stay at the end while the log grows</source>
        <translation>Permanecer al final mientras crece el registro</translation>
    </message>
    <message>
        <source>Stop and Leave</source>
        <translation>Detener y salir</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Sugerencias</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>Ese es el propio registro. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation>El conversor no puede crear este formato. Elija otro.</translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation>No se ha podido iniciar el conversor. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation>El conversor no ha podido convertir este archivo.</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>Falta el conversor. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>No se ha podido guardar la copia: %1</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>Se ha guardado la copia.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>No se ha podido leer o escribir en el disco.</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>El disco de la carpeta de salida no admite un archivo de este tamaño.</translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation>El archivo no contiene vídeo ni sonido que se pueda convertir.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>El archivo está dañado o incompleto.</translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation>El archivo ya no está donde estaba.</translation>
    </message>
    <message>
        <source>The file was deleted. What it held is still shown.</source>
        <translation>El archivo se ha eliminado. Su contenido aún se muestra.</translation>
    </message>
    <message>
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>Se han copiado los primeros %1. Guarde una copia para tenerlo todo.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>No se ha podido abrir la carpeta.</translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>No se puede leer el registro</translation>
    </message>
    <message>
        <source>The log was cut short meanwhile. Try again.</source>
        <translation>El registro se ha acortado mientras tanto. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>La carpeta de salida no existe. Compruebe el ajuste.</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>La carpeta de salida es de solo lectura. Elija otra en los ajustes.</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>La grabación de pantalla solo es compatible con Mac OS Lion y posteriores.</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>El software de procesamiento de vídeo más potente: convierta vídeos, audio y DVD; edite, transcodifique, comprima y ajuste archivos de vídeo; descargue contenido multimedia en línea; grabe la pantalla y la cámara web.</translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation>Falta la herramienta que lee los archivos multimedia. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The transcoder did not answer as it should.</source>
        <translation>El transcodificador no respondió como debía.</translation>
    </message>
    <message>
        <source>The transcoder is missing. Please install the application again.</source>
        <translation>Falta el transcodificador. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>Todavía no hay ningún registro</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>No queda espacio en el disco. Libere espacio y vuelva a convertir.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Este archivo no existe.</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>No hay memoria suficiente para convertir este archivo.</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>Se convierten a MP4, MKV, WebM o MP3, según elija.</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>Este equipo no tiene codificador de hardware para vídeo H.264.</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>No se ha podido leer este archivo.</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>Este archivo no tiene sonido que convertir.</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>Este archivo está dañado o no contiene vídeo ni sonido.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>No se puede escribir en esta carpeta.</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>No es un archivo de texto</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>No es un archivo de vídeo ni de sonido.</translation>
    </message>
    <message>
        <source>This part is still being made and comes with an update.</source>
        <translation>Esta parte aún está en desarrollo y llegará con una actualización.</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>Demasiadas líneas con este texto: se muestran las %1 más recientes.</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>Transcodificador</translation>
    </message>
    <message>
        <source>Unable to connect to update server.</source>
        <translation>No se ha podido conectar con el servidor de actualizaciones.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Sin límite</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usar un proxy</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>Versión: %@</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation>Conversor de vídeo</translation>
    </message>
    <message>
        <source>Video folder</source>
        <translation>Carpeta de vídeo</translation>
    </message>
    <message>
        <source>Videos from the web, on your disk</source>
        <translation>Vídeos de la web, en su disco</translation>
    </message>
    <message>
        <source>Visit our website:</source>
        <translation>Visite nuestro sitio web:</translation>
    </message>
    <message>
        <source>Visit website</source>
        <translation>Visitar el sitio web</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>Vídeo WebM (VP9, Opus)</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Would you please send us the Log File to help us fix the issue?</source>
        <translation>¿Desea enviarnos el archivo de registro para ayudarnos a solucionar el problema?</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>No tiene permiso para leer este archivo.</translation>
    </message>
    <message>
        <source>You're up-to-date!</source>
        <translation>Tiene la versión más reciente</translation>
    </message>
    <message>
        <source>Your DVDs, as files</source>
        <translation>Sus DVD, en archivos</translation>
    </message>
    <message>
        <source>Your mail program could not be opened.</source>
        <translation>No se ha podido abrir su programa de correo.</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>Su pantalla, en vídeo</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>quedan unas %1 horas</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>quedan unos %1 minutos</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>queda alrededor de un minuto</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>Cerrar consejo</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>queda menos de un minuto</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>Mostrar consejo</translation>
    </message>
</context>
</TS>
