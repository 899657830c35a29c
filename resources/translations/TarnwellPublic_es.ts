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
        <source>%1 (sound only)</source>
        <translation>%1 (solo sonido)</translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation>%1 - Título %2</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation>%1 MB es muy poco para un archivo de esta duración.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation>%1 ángulos</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>%1 capítulos</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>%1 perdidos</translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation>%1 archivos seleccionados</translation>
    </message>
    <message>
        <source>%1 has fewer tracks of sound than other files: what it lacks is silent.</source>
        <translation>%1 tiene menos pistas de sonido que otros archivos: lo que falta queda en silencio.</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 of %2 pictures came too late: the one before stands for them.</source>
        <translation>%1 de %2 imágenes llegaron tarde: en su lugar está la anterior.</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation>Se han podido leer %1 de %2 s, %3 errores</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, 1 fault</source>
        <translation>Se han podido leer %1 de %2 s, 1 error</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation>Se han podido leer %1 de %2 s.</translation>
    </message>
    <message>
        <source>%1 pictures a second</source>
        <translation>%1 imágenes por segundo</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation>Se han podido leer %1 s, %2 errores</translation>
    </message>
    <message>
        <source>%1 s could be read, 1 fault</source>
        <translation>Se han podido leer %1 s, 1 error</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation>No se han podido leer %1 sectores del disco; en la copia están vacíos.</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation>No se han podido leer %1 sectores del disco; en la imagen están vacíos.</translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation>No se han podido leer %1 sectores de la película.</translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation>%1 títulos</translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation>faltan %1</translation>
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
        <translation>%@ %@ es la última versión disponible actualmente.</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@ ya está disponible (versión actual: %@). ¿Desea actualizar ahora?</translation>
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
        <translation>Un capítulo por cada archivo unido</translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation>Un disco solo con el título elegido, sin menús, que los reproductores inician al momento.</translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation>Un archivo de tipo %1 no puede contener lo que pide este preajuste: %2.</translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation>Una carpeta no tiene sectores que copiar. Elija otro modo.</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>Hay una nueva versión de %@ disponible</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un preajuste necesita un nombre.</translation>
    </message>
    <message>
        <source>A recording is to begin at %1.</source>
        <translation>Una grabación va a empezar a las %1.</translation>
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
        <translation>Animación APNG</translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation>Vídeo AVI (MPEG-4, MP3)</translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation>Vídeo AVI (Motion JPEG, PCM)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation>Unos %1.</translation>
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
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Añadir %1</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Añadir archivos…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>Añadir archivo de subtítulos…</translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation>Añadiendo los subtítulos…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation>Dirección de un vídeo o una página, como https://…</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation>Todos los formatos</translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation>Todos los formatos…</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation>Todos los archivos del disco en una carpeta, con sus menús.</translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation>Todas las tareas se han completado.</translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation>Todas las tareas han terminado.</translation>
    </message>
    <message>
        <source>All languages</source>
        <translation>Todos los idiomas</translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation>Todas las pistas de sonido de los títulos elegidos, con sus capítulos.</translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation>Permitir muchas de un mismo servidor</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>Ya está en la lista: %1</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation>Conservar siempre</translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation>Siempre, el doble de imágenes</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>Una dirección es, por ejemplo, http://proxy.example.com o socks5://10.0.0.1.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>Otra carpeta…</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>Registro de la app</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivo histórico</translation>
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
        <source>Artist and album. %1 cannot hold them.</source>
        <translation>El artista y el álbum. %1 no puede contenerlos.</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Según el formato</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>Como el origen</translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation>Consultando el sitio…</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Como máximo</translation>
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
        <source>Begin</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Begin at a time…</source>
        <translation>Empezar a una hora…</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation>Empezar de inmediato</translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation>Junto al origen</translation>
    </message>
    <message>
        <source>Best quality</source>
        <translation>Calidad óptima</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation>Tasa de bits de una pista</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>Compilado el: %@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation>Incrustados en la imagen</translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation>Audio CAF (ALAC)</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Cámara %1</translation>
    </message>
    <message>
        <source>Camera %1 in the picture</source>
        <translation>Cámara %1 en la imagen</translation>
    </message>
    <message>
        <source>Camera in the picture</source>
        <translation>Cámara en la imagen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation>Cancelar la prueba</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>Cancelados: %1</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>No se puede usar</translation>
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
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Channels of the sound: %1. %2 become %3.</source>
        <translation>Canales del sonido: %1. De %2 a %3.</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Capítulo %1</translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation>Faltan capítulos en el archivo terminado.</translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation>Capítulos, idiomas y colores de los subtítulos, que los archivos MPEG-2 no admiten</translation>
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
        <source>Checking the copy…</source>
        <translation>Comprobando la copia…</translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation>Comprobando el archivo terminado…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation>Elegir películas</translation>
    </message>
    <message>
        <source>Choose Films…</source>
        <translation>Elegir películas…</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Choose a Window</source>
        <translation>Elegir una ventana</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation>Elija arriba qué se graba y pulse Grabar.</translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation>Elegir un área</translation>
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
        <source>Click the window that is to be recorded</source>
        <translation>Haga clic en la ventana que se va a grabar</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>A la derecha</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation>Ordenador y micrófono</translation>
    </message>
    <message>
        <source>Computer and microphone, a track each</source>
        <translation>Ordenador y micrófono, una pista cada uno</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
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
        <source>Converting ten seconds: %1 %</source>
        <translation>Convirtiendo diez segundos: %1 %</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Convirtiendo…</translation>
    </message>
    <message>
        <source>Converting… %1 %</source>
        <translation>Convirtiendo… %1 %</translation>
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
        <source>Corner</source>
        <translation>Esquina</translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation>Cuenta atrás desde tres</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>A la izquierda</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Portada</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation>Cortar y editar</translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation>Cortar y editar…</translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation>Corte exacto (vuelve a codificar)</translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation>Recortar por abajo</translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation>Recortar por la izquierda</translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation>Recortar por la derecha</translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation>Recortar por arriba</translation>
    </message>
    <message>
        <source>Cut or Convert…</source>
        <translation>Cortar o convertir…</translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the key picture at or before %1 s.</source>
        <translation>Cortado sin codificar: empieza en el fotograma clave en %1 s o antes.</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>DTS</source>
        <translation>DTS</translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation>Vídeo DV</translation>
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
        <translation>Extractor de DVD</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation>Datos de la cámara, como el código de tiempo.</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>Desentrelazado</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
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
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation>Reproductor de discos (VOB)</translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation>Carpeta de disco con menús</translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation>Imagen de disco (ISO)</translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation>Imágenes de disco</translation>
    </message>
    <message>
        <source>Discard Recording</source>
        <translation>Descartar grabación</translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation>Dolby Digital</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <translation>No grabar</translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation>No apagar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation>Completado con problemas</translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation>Completados con problemas: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Completados: %1</translation>
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
        <source>Downloads that are running keep the limit that they began with.</source>
        <translation>Las descargas en curso conservan el límite con el que empezaron.</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation>Dibuje un área y pulse Intro</translation>
    </message>
    <message>
        <source>Drawn into the film, for players that show none themselves.</source>
        <translation>Dibujados en la película, para reproductores que no los muestran.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
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
        <source>E-AC-3 Audio</source>
        <translation>Audio E-AC-3</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation>Codificando por software</translation>
    </message>
    <message>
        <source>Encoding once more, to meet the size</source>
        <translation>Codificando otra vez para cumplir el tamaño</translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation>Codificando, porque no se han podido copiar las pistas</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>Terminar aquí</translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation>Igualar el volumen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation>Audio FLAC</translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation>Vídeo FLV (H.264, AAC)</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Fundido de entrada</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Fundido de salida</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Con error</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Con error: %1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation>Más rápido, archivo más grande</translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation>El más rápido, el archivo más grande</translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation>Tamaño máximo del archivo</translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation>Los archivos se pueden cortar o unir, pero no ambas cosas a la vez.</translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation>Película de la televisión (24)</translation>
    </message>
    <message>
        <source>Films and files without a picture can be joined only into a file of sound.</source>
        <translation>Las películas y los archivos sin imagen solo se pueden unir en un archivo de sonido.</translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation>Películas en esta dirección</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation>Buscar franjas negras</translation>
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
        <source>Finishing…</source>
        <translation>Finalizando…</translation>
    </message>
    <message>
        <source>First pass</source>
        <translation>Primera pasada</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>Para todos los archivos</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>Por ejemplo: %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation>El formato y las opciones en uso se guardan con este nombre:</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formatos</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>Encontrado tras continuar por el otro extremo del registro.</translation>
    </message>
    <message>
        <source>From chapter</source>
        <translation>Desde el capítulo</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation>Full HD (1920 × 1080)</translation>
    </message>
    <message>
        <source>Further cover pictures beside the first.</source>
        <translation>Otras carátulas además de la primera.</translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation>Otras imágenes además de la primera (otros ángulos o vistas previas).</translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation>Animación GIF</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Consola de juegos</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Good quality</source>
        <translation>Buena calidad</translation>
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
        <source>HD (1280 × 720)</source>
        <translation>HD (1280 × 720)</translation>
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
        <source>High dynamic range</source>
        <translation>Alto rango dinámico</translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation>El alto rango dinámico se convierte en rango estándar.</translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation>Alta calidad (más lento)</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>Resolución máxima</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation>Cómo se conserva el disco</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</source>
        <translation>En una sesión de Wayland, el escritorio pregunta qué se graba: no se puede indicar de antemano.</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrumpido</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>Se mostrará aquí en cuanto se escriba: %1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation>Sus títulos se conservan tal como están o se convierten a MP4, MKV o MP3, según elija.</translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation>Hay tareas en curso.</translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation>Todavía hay tareas en curso.</translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation>Unir todos los archivos en uno</translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation>Unir en uno</translation>
    </message>
    <message>
        <source>Joining</source>
        <translation>Uniendo</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Keep Waiting</source>
        <translation>Seguir esperando</translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation>Conservar el resto</translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation>Conservar la fecha del origen</translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation>Conservar las pistas adecuadas tal como están</translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation>Conservados como pista</translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation>Se conserva hasta salir</translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation>Conservar si es posible</translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation>Se conserva: %1</translation>
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
        <source>Kestrel does not know how long this file is, and cannot aim at a size.</source>
        <translation>Kestrel no conoce la duración de este archivo y no puede ajustarse a un tamaño.</translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation>Kestrel no conoce el tipo de archivo “%1” de este preajuste.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Language of %1</source>
        <translation>Idioma de %1</translation>
    </message>
    <message>
        <source>Languages of sound</source>
        <translation>Idiomas del sonido</translation>
    </message>
    <message>
        <source>Languages of subtitles</source>
        <translation>Idiomas de los subtítulos</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Más información</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Excluido</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Excluido: %1</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
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
        <source>Looking for a newer download engine…</source>
        <translation>Buscando un motor de descarga más reciente…</translation>
    </message>
    <message>
        <source>Lossless sound: %1. It becomes %2.</source>
        <translation>Sonido sin pérdida: %1. Pasa a %2.</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation>Audio M4A (AAC)</translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation>Audio M4A, sin pérdida (ALAC)</translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation>Audio MKA (Opus)</translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation>Vídeo MKV (AV1, Opus)</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>Vídeo MKV (H.264, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation>Vídeo MKV (H.265, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation>Vídeo MKV (VP9, Opus)</translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation>Vídeo MKV, alta calidad (H.265, FLAC)</translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation>Vídeo MKV, sin pérdida (FFV1, FLAC)</translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation>Vídeo MOV (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation>Vídeo MOV (H.264, AAC)</translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation>Vídeo MOV (ProRes, PCM)</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>Audio MP3</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation>Vídeo MP4 (AV1, Opus)</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>Vídeo MP4 (H.264, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation>Vídeo MP4 (H.265, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation>Vídeo MP4 para páginas web (1080p)</translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation>MPEG</translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation>Vídeo MPEG (MPEG-2, MP2)</translation>
    </message>
    <message>
        <source>MPEG-4 movie (MP4)</source>
        <translation>Película MPEG-4 (MP4)</translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation>Vídeo MXF (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation>Vídeo MXF (MPEG-2, PCM)</translation>
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
        <source>Messages of the tools</source>
        <translation>Mensajes de las herramientas</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Reflejar</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>Carpeta de música</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>Mis preajustes</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Nombre del preajuste:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>No camera in the picture</source>
        <translation>Sin cámara en la imagen</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>No se ha encontrado ninguna cámara.</translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation>Ningún formato coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>No se ha indicado ningún registro</translation>
    </message>
    <message>
        <source>No more than %1 pieces can be kept.</source>
        <translation>No se pueden conservar más de %1 fragmentos.</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation>No se ha podido decodificar ninguna imagen de la copia.</translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation>No se ha podido decodificar ninguna imagen de esta película.</translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation>Ningún servidor responde en esta dirección. Compruébela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>Sin sonido</translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation>Sin límite de velocidad</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>Sin subtítulos</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Aún sin elegir</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation>Sin girar</translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation>Aún no se usa</translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation>Aún no se usa; se conserva hasta salir</translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation>No se ha podido decodificar nada en %1 s.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>No se ha encontrado nada.</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation>No se ha podido convertir nada del archivo.</translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation>No se ha podido leer nada de la película.</translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation>No queda nada de la grabación.</translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation>No se conservaría nada de este archivo.</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>No se ha grabado nada.</translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation>Audio OGG (Vorbis)</translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation>Vídeo OGV (Theora, Vorbis)</translation>
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
        <source>Old Phone (3GP)</source>
        <translation>Teléfono antiguo (3GP)</translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation>Un título como carpeta de disco</translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation>Solo han llegado %1 de %2 s.</translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation>Solo se puede incrustar una pista de subtítulos; las demás quedan fuera.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>Abrir carpeta…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Abrir imagen…</translation>
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
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation>Audio Opus</translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation>Sonido original, en un archivo MKA</translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation>Original, en un archivo MOV</translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation>Original, en un archivo TS</translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation>Original, en un archivo MKV</translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation>Original, en un archivo MP4</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
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
        <source>PCM</source>
        <translation>PCM</translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation>Página de opciones</translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation>Parte de la pantalla…</translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation>Faltan partes del archivo terminado.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation>Pegue o suelte direcciones aquí</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation>Teléfono (H.265)</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation>Imagen, todo el sonido, subtítulos con sus colores y capítulos de los títulos elegidos, sin volver a codificar nada.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation>Imágenes por segundo</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>Fragmento %1 de %2</translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation>Fragmentos que se conservan</translation>
    </message>
    <message>
        <source>Place of the camera's picture</source>
        <translation>Lugar de la imagen de la cámara</translation>
    </message>
    <message>
        <source>Places and styles of the subtitles: %1. %2 cannot hold them.</source>
        <translation>Posiciones y estilos de los subtítulos: %1. %2 no los admite.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation>Reproducir el origen</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>Velocidad de reproducción</translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation>Se reproduce en todas partes</translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation>Compruebe que haya espacio en el disco y que se pueda escribir en esta carpeta: %1</translation>
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
        <source>Position</source>
        <translation>Posición</translation>
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
        <source>Presets</source>
        <translation>Preajustes</translation>
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
        <source>Processor cores</source>
        <translation>Núcleos del procesador</translation>
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
        <source>Put a DVD in, or drop a disc image or folder here</source>
        <translation>Inserte un DVD o suelte aquí una imagen de disco o una carpeta</translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation>Uniendo imagen y sonido…</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation>Calidad (menor es mejor)</translation>
    </message>
    <message>
        <source>QuickTime movie (MOV)</source>
        <translation>Película QuickTime (MOV)</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>Salir de Kestrel</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation>Leyendo el disco…</translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation>Leyendo el disco… La unidad puede tardar medio minuto.</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>No se permite leer el archivo o escribir en la carpeta de salida. Compruebe sus permisos.</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>Leyendo el archivo…</translation>
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
        <source>Record</source>
        <translation>Grabar</translation>
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
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Grabación %1</translation>
    </message>
    <message>
        <source>Recording begins at %1. Press Record to begin at once.</source>
        <translation>La grabación empieza a las %1. Pulse Grabar para empezar ahora.</translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation>La grabación comienza en %1 s. Pulse Grabar para comenzar de inmediato.</translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation>Recuperado tras una interrupción.</translation>
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
        <source>Remove Piece</source>
        <translation>Quitar fragmento</translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation>Quitar con el archivo parcial</translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation>Quita de la lista lo que está completado. Los archivos se conservan.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Cambiar nombre…</translation>
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
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation>Modo seguro: comprobar todo el resultado</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Save To…</source>
        <translation>Guardar en…</translation>
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
        <source>Save as Preset</source>
        <translation>Guardar como preajuste</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>Guardar como preajuste…</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Guardando…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>Guardando… %1 % (Esc para detener)</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation>Pantalla %1 (%2 × %3)</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>Grabación de pantalla no disponible</translation>
    </message>
    <message>
        <source>Screen or window (the desktop asks)</source>
        <translation>Pantalla o ventana (pregunta el escritorio)</translation>
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
        <source>Search formats</source>
        <translation>Buscar formatos</translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation>Buscar: MKV, AV1, FLAC…</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>Buscando… %1 % (Esc para detener)</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation>Segunda pasada</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation>Seleccione un archivo de la lista para elegir entre sus pistas.</translation>
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
        <source>Several formats</source>
        <translation>Varios formatos</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>Mostrar archivo</translation>
    </message>
    <message>
        <source>Show clicks</source>
        <translation>Mostrar clics</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
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
        <source>Show the pointer</source>
        <translation>Mostrar el puntero</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>Apagar el equipo al terminar</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation>Tamaño máximo</translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation>Tamaño: unos %1</translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation>Más lento, archivo más pequeño</translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation>El más lento, el archivo más pequeño</translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation>Pequeño (640 × 480)</translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation>Archivos pequeños</translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation>Vídeo MP4 pequeño (720p)</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>Archivo pequeño</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>Carpeta de capturas</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation>Nivel de sonido</translation>
    </message>
    <message>
        <source>Sound of %1: %2. The joined file has no track for it.</source>
        <translation>Sonido de %1: %2. El archivo unido no tiene pista para él.</translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation>Sonido del ordenador</translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation>Solo el sonido, sin cambios (MKA)</translation>
    </message>
    <message>
        <source>Sound track %1 begins so late in the film that it is not found in time.</source>
        <translation>La pista de sonido %1 empieza tan tarde en la película que no se encuentra a tiempo.</translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation>Pista de sonido %1, que esta película no tiene</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Sonido: %1</translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation>Sonido: %1. %2 solo admite una pista de sonido.</translation>
    </message>
    <message>
        <source>Sound: %1. Its format is not known.</source>
        <translation>Sonido: %1. No se conoce su formato.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation>Origen (arrastre para recortar)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation>Límite de velocidad de cada descarga</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>Empezar aquí</translation>
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
        <source>Steady quality</source>
        <translation>Calidad constante</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Estéreo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>Detener tras</translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation>Detener tras %1 min</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>Detener y salir</translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation>Detener y reiniciar</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>Subtitle track %1, which this film does not have</source>
        <translation>La pista de subtítulos %1, que esta película no tiene</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Subtítulos</translation>
    </message>
    <message>
        <source>Subtitles are missing in the finished file.</source>
        <translation>Faltan subtítulos en el archivo terminado.</translation>
    </message>
    <message>
        <source>Subtitles in the picture</source>
        <translation>Subtítulos en la imagen</translation>
    </message>
    <message>
        <source>Subtitles of %1: %2. Joining keeps none of later files.</source>
        <translation>Subtítulos de %1: %2. Al unir no se conservan los de archivos posteriores.</translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation>Subtítulos en forma de imagen: %1. %2 no los admite; incrústelos o elija MKV.</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>Subtítulos: %1</translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation>Subtítulos: %1. %2 no los admite.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They are burnt into the first of the joined files only.</source>
        <translation>Subtítulos: %1. Solo se incrustan en el primero de los archivos unidos.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation>Subtítulos: %1. No pueden seguir los tiempos modificados; incrústelos para conservarlos.</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Sugerencias</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>Envolvente 5.1</translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation>Vídeo TS (H.264, AC-3)</translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation>Televisor (1080p)</translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation>Televisor (4K, HDR)</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>Tableta</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>Ese es el propio registro. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation>El área que se debe grabar está fuera de la pantalla.</translation>
    </message>
    <message>
        <source>The attached file %1 of %2. Joining keeps none of later files.</source>
        <translation>El archivo adjunto %1 de %2. Al unir no se conservan los de archivos posteriores.</translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation>El archivo adjunto %1. %2 no lo admite.</translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation>La emisión aún no ha comenzado. Inténtelo de nuevo cuando empiece.</translation>
    </message>
    <message>
        <source>The camera could not be opened. Another program may be using it.</source>
        <translation>No se pudo abrir la cámara. Es posible que otro programa la esté usando.</translation>
    </message>
    <message>
        <source>The camera went away: its picture ends there.</source>
        <translation>La cámara desapareció: su imagen termina ahí.</translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation>Los capítulos. %1 no los admite.</translation>
    </message>
    <message>
        <source>The chosen camera is missing: %1 is recorded instead.</source>
        <translation>Falta la cámara elegida: se graba %1 en su lugar.</translation>
    </message>
    <message>
        <source>The chosen microphone is missing: the usual one is recorded instead.</source>
        <translation>Falta el micrófono elegido: se graba el habitual en su lugar.</translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation>Los títulos elegidos se convierten en archivos del formato indicado al lado, tan pequeños como desee.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation>El equipo se apagará en %1 segundos.</translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation>La conversión se ha detenido antes del final.</translation>
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
        <source>The converter did not answer any more.</source>
        <translation>El conversor ha dejado de responder.</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>Falta el conversor. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation>No se ha podido volver a leer la copia.</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>No se ha podido guardar la copia: %1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation>La copia tiene %1 títulos en lugar de %2.</translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation>La copia se ha interrumpido. Continuará desde este punto cuando se inicie de nuevo.</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>Se ha guardado la copia.</translation>
    </message>
    <message>
        <source>The cover picture of %1. Joining keeps none of later files.</source>
        <translation>La carátula de %1. Al unir no se conservan las de archivos posteriores.</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation>La imagen de portada. %1 no la admite.</translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation>La imagen de portada. Se pierde al unir archivos de este modo.</translation>
    </message>
    <message>
        <source>The date of recording. %1 cannot hold it.</source>
        <translation>La fecha de grabación. %1 no puede contenerla.</translation>
    </message>
    <message>
        <source>The desktop did not let the screen be recorded.</source>
        <translation>El escritorio no permitió grabar la pantalla.</translation>
    </message>
    <message>
        <source>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</source>
        <translation>El escritorio permite grabar la pantalla, pero no llega ninguna imagen. ¿Está PipeWire en marcha?</translation>
    </message>
    <message>
        <source>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</source>
        <translation>El escritorio comparte la imagen cuando empieza la grabación. Los atajos funcionan entonces solo en las ventanas de Kestrel.</translation>
    </message>
    <message>
        <source>The desktop's portal did not answer.</source>
        <translation>El portal del escritorio no respondió.</translation>
    </message>
    <message>
        <source>The desktop's portal does not let the screen be recorded: %1</source>
        <translation>El portal del escritorio no permite grabar la pantalla: %1</translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation>No se ha podido leer el disco.</translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation>El disco no ha respondido a tiempo.</translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation>El disco no tiene ese título, capítulo o ángulo.</translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation>La imagen de disco termina antes que su película.</translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation>El disco está dañado: no se ha podido leer su contenido.</translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation>Este usuario no tiene permiso para leer el disco.</translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation>No se han podido iniciar las herramientas de disco. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>No se ha podido leer o escribir en el disco.</translation>
    </message>
    <message>
        <source>The disk for temporary files is full. Free some space and convert again.</source>
        <translation>El disco de los archivos temporales está lleno. Libere espacio y convierta de nuevo.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation>El disco está demasiado lleno para finalizar la grabación: se conserva como archivo Matroska.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays in %1 Matroska files.</source>
        <translation>El disco está demasiado lleno para finalizar la grabación: se conserva en %1 archivos Matroska.</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>El disco de la carpeta de salida no admite un archivo de este tamaño.</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation>No se ha podido abrir la pantalla %1.</translation>
    </message>
    <message>
        <source>The download engine could not be updated.</source>
        <translation>No se ha podido actualizar el motor de descarga.</translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation>El motor de descarga no funciona. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation>Falta el motor de descarga. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The download engine is now of version %1. Try again.</source>
        <translation>El motor de descarga tiene ahora la versión %1. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The download failed. Try again later; the details tell what the engine said.</source>
        <translation>La descarga ha fallado. Inténtelo de nuevo más tarde; los detalles muestran el mensaje del motor.</translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation>El codificador para %1 no está instalado.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>No se ha podido leer el archivo.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>No se ha podido escribir el archivo.</translation>
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
        <source>The film has come, but subtitles, cover or chapters could not be added to it.</source>
        <translation>La película ha llegado, pero no se pudieron añadir los subtítulos, la carátula o los capítulos.</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded. Watch it on its own site.</source>
        <translation>La película está protegida contra copia y no se descarga. Véala en su propio sitio.</translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation>La película ya no está disponible. Búsquela en otra dirección.</translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation>La película no está disponible en la forma deseada. Elija otra resolución u otro formato.</translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</source>
        <translation>La película es privada o solo para miembros, por lo que no se puede descargar. Búsquela en otra dirección.</translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation>La película de los títulos elegidos tal como está en el disco; sin capítulos ni nombres de idiomas.</translation>
    </message>
    <message>
        <source>The finer picture. %1 bit %2 becomes %3 bit %4.</source>
        <translation>La imagen más fina. %1 bits %2 pasa a %3 bits %4.</translation>
    </message>
    <message>
        <source>The finer sound: %1. %2 bit become %3 bit.</source>
        <translation>El sonido más fino: %1. De %2 bits a %3 bits.</translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation>No se ha podido volver a leer el archivo terminado.</translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation>El archivo terminado tiene %1 bytes en lugar de %2.</translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation>El archivo terminado contiene pistas distintas de las deseadas: %1 en lugar de %2.</translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation>El archivo terminado dura %1 s en lugar de %2 s.</translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation>El archivo terminado está dañado: %1 errores.</translation>
    </message>
    <message>
        <source>The finished file is damaged: 1 fault.</source>
        <translation>El archivo terminado está dañado: 1 error.</translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation>El archivo terminado es más grande de lo deseado.</translation>
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
        <source>The folder for temporary files cannot be written.</source>
        <translation>No se puede escribir en la carpeta de archivos temporales.</translation>
    </message>
    <message>
        <source>The folder is too large: only some of its files were added.</source>
        <translation>La carpeta es demasiado grande: solo se han añadido algunos de sus archivos.</translation>
    </message>
    <message>
        <source>The irregular times of the pictures. They come evenly, %1 a second.</source>
        <translation>Los tiempos irregulares de las imágenes. Aparecen de manera uniforme, %1 por segundo.</translation>
    </message>
    <message>
        <source>The languages of the tracks. %1 cannot hold them.</source>
        <translation>Los idiomas de las pistas. %1 no puede contenerlos.</translation>
    </message>
    <message>
        <source>The last %1 s have no picture.</source>
        <translation>Los últimos %1 s no tienen imagen.</translation>
    </message>
    <message>
        <source>The last %1 s have no sound: the sound server went away.</source>
        <translation>Los últimos %1 s no tienen sonido: el servidor de sonido desapareció.</translation>
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
        <source>The mastering data of the high dynamic range. %1 cannot hold them.</source>
        <translation>Los datos de masterización del alto rango dinámico. %1 no puede contenerlos.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation>No se han podido leer las opciones de esta tarea. Vuelva a añadir la dirección.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation>No se han podido leer las opciones de esta tarea. Vuelva a añadir el archivo.</translation>
    </message>
    <message>
        <source>The other angles of the film: %1</source>
        <translation>Los demás ángulos de la película: %1</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>No se ha podido escribir la salida.</translation>
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
        <source>The picture has to be encoded (%1).</source>
        <translation>Hay que codificar la imagen (%1).</translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation>La imagen se reduce a %1 × %2 para que quepa en el tamaño.</translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation>Falta la imagen: el sitio solo ha entregado el sonido.</translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation>La imagen del archivo terminado no está derecha.</translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation>Los fragmentos que se deben conservar están después del final del archivo.</translation>
    </message>
    <message>
        <source>The place of recording. %1 cannot hold it.</source>
        <translation>El lugar de grabación. %1 no puede contenerlo.</translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation>Falta el reproductor. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation>Falta el programa dvdauthor. Instálelo.</translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation>El proxy rechaza la conexión. Compruebe su dirección en los ajustes.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation>No se ha podido finalizar la grabación: se conserva como archivo Matroska.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays in %1 Matroska files.</source>
        <translation>No se ha podido finalizar la grabación: se conserva en %1 archivos Matroska.</translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation>La grabación ha terminado porque el disco está casi lleno.</translation>
    </message>
    <message>
        <source>The recording that was to begin at %1 was missed.</source>
        <translation>Se ha perdido la grabación que iba a empezar a las %1.</translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation>La grabación se ha interrumpido.</translation>
    </message>
    <message>
        <source>The same screen or window as last time</source>
        <translation>La misma pantalla o ventana que la última vez</translation>
    </message>
    <message>
        <source>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</source>
        <translation>La pantalla de una sesión de Wayland se puede grabar si el escritorio tiene un portal para ello, que aquí falta. Instale xdg-desktop-portal para su escritorio o inicie una sesión de X11 (Xorg).</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>La grabación de pantalla solo es compatible con Mac OS Lion y posteriores.</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation>El servidor ha cortado la conexión o no ha podido responder. Lo recibido se conserva; inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation>El servidor ha cortado la conexión, próximo intento en %1 s</translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation>El servidor solo ha enviado una parte de la película.</translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation>El servidor se niega a entregar la película. Inténtelo más tarde o abra la página en un navegador para ver el motivo.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in %1 minutes.</source>
        <translation>El servidor no acepta más solicitudes por ahora. Inténtelo de nuevo en %1 minutos.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation>El servidor no acepta más peticiones por ahora. Inténtelo de nuevo dentro de un rato.</translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</source>
        <translation>El certificado del servidor no es válido, así que puede no ser quien dice ser. No se descargó nada; compruebe la dirección y la fecha de este ordenador.</translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation>Carpeta de los ajustes</translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation>El sitio no muestra esta película en su país. En los ajustes puede indicar un proxy de otro país.</translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation>El sitio ha cambiado y el motor de descarga ya no lo reconoce. Actualice el motor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</source>
        <translation>El sitio muestra esta película solo a quienes han iniciado sesión, algo que Kestrel no hace. Búsquela en otra dirección.</translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</source>
        <translation>El sitio quiere saber primero la edad del espectador, que solo conoce si inicia sesión. Busque la película en otra dirección.</translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation>No se ha podido escribir la captura.</translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation>No se ha podido grabar el sonido. ¿Está en marcha el servidor de sonido?</translation>
    </message>
    <message>
        <source>The sound has to be encoded (%1).</source>
        <translation>Hay que codificar el sonido (%1).</translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation>Falta el sonido desde que se cerró el servidor de sonido.</translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation>Falta el sonido: el sitio solo ha entregado la imagen.</translation>
    </message>
    <message>
        <source>The sound server was away for a while: that part has no sound.</source>
        <translation>El servidor de sonido estuvo ausente un rato: esa parte no tiene sonido.</translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation>El sonido. %1 solo admite imágenes.</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>El software de procesamiento de vídeo más potente: convierta vídeos, audio y DVD; edite, transcodifique, comprima y ajuste archivos de vídeo; descargue contenido multimedia en línea; grabe la pantalla y la cámara web.</translation>
    </message>
    <message>
        <source>The subtitle file %1 cannot be read.</source>
        <translation>No se puede leer el archivo de subtítulos %1.</translation>
    </message>
    <message>
        <source>The subtitle file %1 is too large for a text.</source>
        <translation>El archivo de subtítulos %1 es demasiado grande para ser texto.</translation>
    </message>
    <message>
        <source>The subtitles are missing: the site did not hand them out.</source>
        <translation>Faltan los subtítulos: el sitio no los entregó.</translation>
    </message>
    <message>
        <source>The subtitles that were to be drawn into the picture are not in this film.</source>
        <translation>Los subtítulos que debían dibujarse en la imagen no están en esta película.</translation>
    </message>
    <message>
        <source>The title. %1 cannot hold it.</source>
        <translation>El título. %1 no puede contenerlo.</translation>
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
        <source>The transparency of the picture. %1 cannot hold it.</source>
        <translation>La transparencia de la imagen. %1 no puede contenerla.</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation>El disco completo, sector a sector, en un archivo que se reproduce como el disco.</translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation>Se conserva la película completa.</translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation>La ventana es demasiado pequeña para grabarla.</translation>
    </message>
    <message>
        <source>The window was closed or minimised.</source>
        <translation>La ventana se ha cerrado o minimizado.</translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation>No hay franjas negras.</translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation>Hay varias películas en esta dirección. Añádala de nuevo para elegir entre ellas.</translation>
    </message>
    <message>
        <source>There are too many films at this address to look at them all. Add the address of one of them.</source>
        <translation>Hay demasiadas películas en esta dirección para examinarlas todas. Añada la dirección de una de ellas.</translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation>Hay demasiados preajustes. Elimine algunos primero.</translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation>No hay conexión de red. Compruébela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation>No hay ningún disco. Insértelo, o elija una imagen o una carpeta, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation>No hay ninguna pantalla cuya imagen se pueda grabar.</translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation>No hay ninguna película en esta dirección. Busque la página que la reproduce.</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>Todavía no hay ningún registro</translation>
    </message>
    <message>
        <source>There is no newer download engine.</source>
        <translation>No hay ningún motor de descarga más reciente.</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation>No hay imagen en este punto.</translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation>No existe la pantalla “%1”. Disponibles: %2.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>No queda espacio en el disco. Libere espacio y vuelva a convertir.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation>No queda espacio en el disco. Libere espacio e inténtelo de nuevo; lo recibido se conserva.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Este archivo no existe.</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation>No contiene ningún archivo de vídeo ni de sonido.</translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation>No hay ninguna ventana %1 visible.</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>No hay memoria suficiente para convertir este archivo.</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation>No hay memoria suficiente para leer este disco.</translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation>No hay espacio suficiente: se necesitan %1 y hay %2 libres. Libere espacio o elija otra carpeta en los ajustes.</translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation>No hay nada que convertir.</translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation>Hay muy poco espacio en el disco para grabar.</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>Se convierten a MP4, MKV, WebM o MP3, según elija.</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation>Esta dirección no es de ningún sitio que Kestrel conozca. Compruébela o busque la página que reproduce la película.</translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation>Esta elección se conserva hasta salir de la aplicación.</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>Este equipo no tiene codificador de hardware para vídeo H.264.</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation>Este disco ya se está copiando en esta carpeta.</translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation>Este disco está protegido contra copia y no se puede leer.</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>No se ha podido leer este archivo.</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation>Este archivo no tiene imagen ni sonido que convertir.</translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation>Este archivo no tiene imagen que convertir.</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>Este archivo no tiene sonido que convertir.</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation>Este archivo no contiene preajustes de Kestrel.</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>Este archivo está dañado o no contiene vídeo ni sonido.</translation>
    </message>
    <message>
        <source>This film has no sound. Choose a format with a picture for it.</source>
        <translation>Esta película no tiene sonido. Elija para ella un formato con imagen.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>No se puede escribir en esta carpeta.</translation>
    </message>
    <message>
        <source>This is another disc, which is also called %1.</source>
        <translation>Este es otro disco que también se llama %1.</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation>Este es otro disco: %1 en lugar de %2.</translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation>Desde esta dirección no se puede descargar nada.</translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation>Esto no es un preajuste.</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>No es un archivo de texto</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation>No es un DVD de vídeo: no contiene VIDEO_TS.</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>No es un archivo de vídeo ni de sonido.</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation>Este preajuste no tiene nombre.</translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation>Este preajuste no conserva imagen ni sonido.</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation>Este preajuste se creó con una versión más reciente de Kestrel.</translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation>Este título no tiene sonido que conservar.</translation>
    </message>
    <message>
        <source>Time at which the recording begins</source>
        <translation>Hora a la que empieza la grabación</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>Línea de tiempo</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation>Título %1</translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation>El título %1 de la copia tiene %2 capítulos en lugar de %3.</translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation>El título %1 de la copia tiene pistas distintas de las del disco.</translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation>El título %1 de la copia dura %2 s en lugar de %3 s.</translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation>Título %1, la película principal</translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation>Títulos como archivos MPEG-2</translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation>Títulos del disco</translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation>Títulos, sin cambios (MKV)</translation>
    </message>
    <message>
        <source>To chapter</source>
        <translation>Hasta el capítulo</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>Demasiadas líneas con este texto: se muestran las %1 más recientes.</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation>Demasiadas peticiones: se consultará de nuevo al servidor en %1 s</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Pista %1</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>Transcodificador</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation>Probar 10 segundos</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation>Convertir en estándar</translation>
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
        <source>Unknown language</source>
        <translation>Idioma desconocido</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Sin límite</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Hasta que se detenga</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Update Download Engine</source>
        <translation>Actualizar el motor de descarga</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Invertida</translation>
    </message>
    <message>
        <source>Use This Area</source>
        <translation>Usar esta área</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usar un proxy</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation>Usar el hardware gráfico</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Habitual</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>Micrófono habitual</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>Versión: %@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation>Vídeo MP4 muy pequeño (480p)</translation>
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
        <source>Video or sound file</source>
        <translation>Archivo de vídeo o de sonido</translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation>Los vídeos y la música de la web se guardan en la forma que elija.</translation>
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
        <source>Volume</source>
        <translation>Volumen</translation>
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
        <translation>Vídeo WMV</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Esperando una conexión de red</translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation>Esperando espacio en el disco: se necesitan %1</translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation>Esperando la red, próximo intento en %1 s</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>Esperando al servidor…</translation>
    </message>
    <message>
        <source>Waiting for your choice in the desktop's dialog…</source>
        <translation>Esperando su elección en el diálogo del escritorio…</translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation>En espera: hay %1 descargas de este servidor en curso</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Marca de agua</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation>Vídeo WebM (AV1, Opus)</translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation>Vídeo WebM (VP8, Vorbis)</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>Vídeo WebM (VP9, Opus)</translation>
    </message>
    <message>
        <source>What has been recorded will be deleted.</source>
        <translation>Se eliminará lo grabado.</translation>
    </message>
    <message>
        <source>What has come cannot be moved to that folder, so it stays where it is.</source>
        <translation>Lo recibido no se puede mover a esa carpeta, así que se queda donde está.</translation>
    </message>
    <message>
        <source>What the server sent is no film. Open the address in a browser to see what it is.</source>
        <translation>Lo que ha enviado el servidor no es una película. Abra la dirección en un navegador para ver qué es.</translation>
    </message>
    <message>
        <source>What the site answered could not be understood. Update the download engine and try again.</source>
        <translation>No se ha podido entender la respuesta del sitio. Actualice el motor de descarga e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation>Lo que crea este preajuste no se puede ajustar a un tamaño.</translation>
    </message>
    <message>
        <source>What to record</source>
        <translation>Qué grabar</translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation>Lo que detenga ahora se le ofrecerá de nuevo en el próximo inicio.</translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation>Donde sea necesario</translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation>Imagen completa</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>Anchura de la imagen</translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation>No se aceptará. Ejemplo: http://proxy.example.com o socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Window by a click…</source>
        <translation>Ventana con un clic…</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation>Ventana: %1</translation>
    </message>
    <message>
        <source>Without encoding, what starts at %1 begins at %2.</source>
        <translation>Sin codificar, lo que empieza en %1 comienza en %2.</translation>
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
        <source>Your mail program could not be opened.</source>
        <translation>No se ha podido abrir su programa de correo.</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>Su pantalla, en vídeo</translation>
    </message>
    <message>
        <source>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</source>
        <translation>Sus ajustes no se pueden guardar en este momento. Kestrel lo intentará de nuevo al salir.</translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation>No se pudieron guardar sus ajustes la última vez que salió de Kestrel.</translation>
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
        <source>another commentary</source>
        <translation>otro comentario</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>Cerrar consejo</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation>comentario</translation>
    </message>
    <message>
        <source>for children</source>
        <translation>para niños</translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation>para personas con discapacidad auditiva</translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation>para personas con discapacidad visual</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>forzados</translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation>sin cambios</translation>
    </message>
    <message>
        <source>large</source>
        <translation>grandes</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>queda menos de un minuto</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation>igual que el título %1</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>Mostrar consejo</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation>{name}, {preset}, {folder} y {date} se sustituyen por sus valores.</translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation>No se ha podido reproducir “%1”.</translation>
    </message>
</context>
</TS>
