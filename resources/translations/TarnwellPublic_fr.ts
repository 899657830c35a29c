<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 (%2 threads)</source>
        <translation>%1 (%2 threads)</translation>
    </message>
    <message>
        <source>%1 (sound only)</source>
        <translation>%1 (son seul)</translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation>%1 - Titre %2</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation>%1 Mo ne suffisent pas pour un fichier de cette durée.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation>%1 angles</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>%1 chapitres</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>%1 perdues</translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation>%1 fichiers sélectionnés</translation>
    </message>
    <message>
        <source>%1 has fewer tracks of sound than other files: what it lacks is silent.</source>
        <translation>%1 a moins de pistes son que d’autres fichiers : ce qui manque reste muet.</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 of %2 pictures came too late: the one before stands for them.</source>
        <translation>%1 images sur %2 sont arrivées trop tard : la précédente les remplace.</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation>%1 s sur %2 ont pu être lues, %3 erreurs</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, 1 fault</source>
        <translation>%1 s sur %2 ont pu être lues, 1 erreur</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation>%1 s sur %2 ont pu être lues.</translation>
    </message>
    <message>
        <source>%1 pictures a second</source>
        <translation>%1 images par seconde</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation>%1 s ont pu être lues, %2 erreurs</translation>
    </message>
    <message>
        <source>%1 s could be read, 1 fault</source>
        <translation>%1 s ont pu être lues, 1 erreur</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation>%1 secteurs du disque n’ont pas pu être lus et sont vides dans la copie.</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation>%1 secteurs du disque n’ont pas pu être lus et sont vides dans l’image.</translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation>%1 secteurs du film n’ont pas pu être lus.</translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation>%1 titres</translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation>encore %1</translation>
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
        <translation>%@ %@ est actuellement la dernière version disponible.</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@ est maintenant disponible – vous utilisez la version %@. Voulez-vous effectuer la mise à jour maintenant ?</translation>
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
        <translation>Un chapitre par fichier réuni</translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation>Un disque avec le seul titre choisi, sans menus, que les lecteurs lancent aussitôt.</translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation>Un fichier de type %1 ne peut pas contenir ce que demande ce préréglage : %2.</translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation>Un dossier n’a pas de secteurs à copier. Choisissez un autre mode.</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>Une nouvelle version de %@ est disponible</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un préréglage doit avoir un nom.</translation>
    </message>
    <message>
        <source>A recording is to begin at %1.</source>
        <translation>Un enregistrement doit commencer à %1.</translation>
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
        <translation>Animation APNG</translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation>Vidéo AVI (MPEG-4, MP3)</translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation>Vidéo AVI (Motion JPEG, PCM)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation>Environ %1.</translation>
    </message>
    <message>
        <source>About %@</source>
        <translation>À propos de %@</translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation>À propos de Kestrel</translation>
    </message>
    <message>
        <source>About Our Company Tarnwell Software, Inc.</source>
        <translation>À propos de notre société Tarnwell Software, Inc.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Ajouter %1</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>Ajouter un fichier de sous-titres…</translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation>Ajout des sous-titres…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation>Adresse d’une vidéo ou d’une page, par exemple https://…</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation>Tous les formats</translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation>Tous les formats…</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation>Tous les fichiers du disque dans un dossier, avec ses menus.</translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation>Toutes les tâches sont terminées.</translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation>Toutes les tâches ont pris fin.</translation>
    </message>
    <message>
        <source>All languages</source>
        <translation>Toutes les langues</translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation>Toutes les pistes audio des titres choisis, avec leurs chapitres.</translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation>Autoriser plusieurs depuis un serveur</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>Déjà dans la liste : %1</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Toujours</translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation>Toujours conservée</translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation>Toujours, deux fois plus d’images</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>Exemples d’adresse : http://proxy.example.com ou socks5://10.0.0.1.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>Autre dossier…</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>Journal de l’app</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivage</translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation>Voulez-vous vraiment réinitialiser les profils ?</translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation>Voulez-vous vraiment redémarrer l’application maintenant ?</translation>
    </message>
    <message>
        <source>Artist and album. %1 cannot hold them.</source>
        <translation>L’artiste et l’album. %1 ne peut pas les contenir.</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>Selon le format</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>Comme la source</translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation>Interrogation du site…</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Au plus</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation>Sauvegardez vos DVD selon 6 modes et convertissez un DVD entier vers plus de 180 formats pour le lire sur Mac et appareils mobiles, le stocker sur disque dur ou le regarder sur un téléviseur, etc. Un DVD entier en 5 minutes !</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Begin at a time…</source>
        <translation>Commencer à une heure…</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation>Commencer aussitôt</translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation>À côté de la source</translation>
    </message>
    <message>
        <source>Best quality</source>
        <translation>Qualité maximale</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation>Débit d’une piste</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>Compilé le : %@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation>Incrustés dans l’image</translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation>Audio CAF (ALAC)</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Caméra %1</translation>
    </message>
    <message>
        <source>Camera %1 in the picture</source>
        <translation>Caméra %1 dans l’image</translation>
    </message>
    <message>
        <source>Camera in the picture</source>
        <translation>Caméra dans l’image</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation>Annuler l’essai</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>Annulés : %1</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>Inutilisable</translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation>Changez les formats vidéo et audio, redimensionnez vos fichiers et modifiez des vidéos 4K, 5K et 8K : coupe, fusion, division, rotation, sous-titres, filigrane, etc. Découvrez le n° 1 du traitement rapide avec accélération matérielle.</translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation>Le changement de langue prend effet au redémarrage de l’application.</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Channels of the sound: %1. %2 become %3.</source>
        <translation>Canaux du son : %1. %2 deviennent %3.</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Chapitre %1</translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation>Des chapitres manquent dans le fichier obtenu.</translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation>Les chapitres, les langues et les couleurs des sous-titres, que les fichiers MPEG-2 ne peuvent pas contenir</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher les mises à jour…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>Recherche de mises à jour… </translation>
    </message>
    <message>
        <source>Checking the copy…</source>
        <translation>Vérification de la copie…</translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation>Vérification du fichier obtenu…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation>Choisir des films</translation>
    </message>
    <message>
        <source>Choose Films…</source>
        <translation>Choisir les films…</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Choose a Window</source>
        <translation>Choisir une fenêtre</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation>Choisissez ci-dessus ce qui est enregistré, puis cliquez sur « Enregistrer ».</translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation>Choisir une zone</translation>
    </message>
    <message>
        <source>Choose another one, or allow yourself to write to it: %1</source>
        <translation>Choisissez-en un autre ou autorisez l’écriture : %1</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Click the window that is to be recorded</source>
        <translation>Cliquez sur la fenêtre à enregistrer</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>Vers la droite</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation>Ordinateur et micro</translation>
    </message>
    <message>
        <source>Computer and microphone, a track each</source>
        <translation>Ordinateur et micro, une piste chacun</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
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
        <translation>Convertir et sauvegarder des DVD</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>Convertir et traiter des vidéos</translation>
    </message>
    <message>
        <source>Converting ten seconds: %1 %</source>
        <translation>Conversion de dix secondes : %1 %</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Conversion…</translation>
    </message>
    <message>
        <source>Converting… %1 %</source>
        <translation>Conversion… %1 %</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copié.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</source>
        <translation>Copyright © 2019-%@ Tarnwell Software, Inc. Tous droits réservés.</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Cœurs</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Coin</translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation>Compte à rebours de trois</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>Vers la gauche</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Pochette</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation>Couper et modifier</translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation>Couper et modifier…</translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation>Coupe exacte (réencode)</translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation>Rogner en bas</translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation>Rogner à gauche</translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation>Rogner à droite</translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation>Rogner en haut</translation>
    </message>
    <message>
        <source>Cut or Convert…</source>
        <translation>Couper ou convertir…</translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the key picture at or before %1 s.</source>
        <translation>Coupé sans encodage : commence à l’image clé à %1 s ou avant.</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Découpe</translation>
    </message>
    <message>
        <source>DTS</source>
        <translation>DTS</translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation>Vidéo DV</translation>
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
        <translation>Extraction de DVD</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation>Données de la caméra, comme le timecode.</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>Désentrelacement</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Details…</source>
        <translation>Détails…</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation>Lecteur de disques (VOB)</translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation>Dossier de disque avec menus</translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation>Image disque (ISO)</translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation>Images disque</translation>
    </message>
    <message>
        <source>Discard Recording</source>
        <translation>Abandonner l’enregistrement</translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation>Dolby Digital</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation>Ne pas éteindre</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation>Terminé avec des problèmes</translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation>Terminés avec des problèmes : %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Terminés : %1</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Téléchargement</translation>
    </message>
    <message>
        <source>Download Now</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation>Télécharger des vidéos</translation>
    </message>
    <message>
        <source>Download format</source>
        <translation>Format de téléchargement</translation>
    </message>
    <message>
        <source>Download resolution</source>
        <translation>Résolution de téléchargement</translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation>Téléchargez des vidéos et de la musique en ligne en très haute qualité depuis YouTube, Facebook et plus de 1 000 sites. Convertissez les fichiers téléchargés en MP4, MP3, etc.</translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation>Téléchargement</translation>
    </message>
    <message>
        <source>Downloads at the same time</source>
        <translation>Téléchargements simultanés</translation>
    </message>
    <message>
        <source>Downloads that are running keep the limit that they began with.</source>
        <translation>Les téléchargements en cours gardent la limite avec laquelle ils ont commencé.</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation>Tracez une zone, puis appuyez sur Entrée</translation>
    </message>
    <message>
        <source>Drawn into the film, for players that show none themselves.</source>
        <translation>Incrustés dans le film, pour les lecteurs qui n’en affichent pas.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>Déposez des vidéos ou des dossiers dans cette fenêtre, choisissez un format ci-dessous et cliquez sur « Convertir ». Les résultats vont dans le dossier de sortie ; vos propres fichiers restent inchangés.</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>Déposez ici des vidéos ou des dossiers</translation>
    </message>
    <message>
        <source>E-AC-3 Audio</source>
        <translation>Audio E-AC-3</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation>Encodage logiciel</translation>
    </message>
    <message>
        <source>Encoding once more, to meet the size</source>
        <translation>Nouvel encodage pour respecter la taille</translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation>Encodage, car les pistes n’ont pas pu être copiées</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>Terminer ici</translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation>Égaliser le volume</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation>Audio FLAC</translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation>Vidéo FLV (H.264, AAC)</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Fondu d’ouverture</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Fondu de fermeture</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Échecs : %1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation>Plus rapide, fichier plus gros</translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation>Le plus rapide, fichier le plus gros</translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation>Taille maximale du fichier</translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation>Les fichiers peuvent être coupés ou réunis, mais pas les deux à la fois.</translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation>Film de la télévision (24)</translation>
    </message>
    <message>
        <source>Films and files without a picture can be joined only into a file of sound.</source>
        <translation>Les films et les fichiers sans image ne peuvent être réunis qu’en un fichier son.</translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation>Films à cette adresse</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation>Détecter les bandes noires</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Rechercher le suivant</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Rechercher le précédent</translation>
    </message>
    <message>
        <source>Finishing…</source>
        <translation>Finalisation…</translation>
    </message>
    <message>
        <source>First pass</source>
        <translation>Première passe</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Suivre</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>Pour tous les fichiers</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>Par exemple : %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation>Le format et les options utilisés sont enregistrés sous ce nom :</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formats</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>Trouvé après reprise à l’autre extrémité du journal.</translation>
    </message>
    <message>
        <source>From chapter</source>
        <translation>À partir du chapitre</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation>Full HD (1920 × 1080)</translation>
    </message>
    <message>
        <source>Further cover pictures beside the first.</source>
        <translation>Les autres jaquettes que la première.</translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation>Autres images en plus de la première (autres angles ou aperçus).</translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation>Animation GIF</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Console de jeux</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Good quality</source>
        <translation>Bonne qualité</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>J’ai compris</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Graphismes</translation>
    </message>
    <message>
        <source>H.264 decoders</source>
        <translation>Décodeurs H.264</translation>
    </message>
    <message>
        <source>H.264 encoders</source>
        <translation>Encodeurs H.264</translation>
    </message>
    <message>
        <source>HD (1280 × 720)</source>
        <translation>HD (1280 × 720)</translation>
    </message>
    <message>
        <source>HEVC decoders</source>
        <translation>Décodeurs HEVC</translation>
    </message>
    <message>
        <source>HEVC encoders</source>
        <translation>Encodeurs HEVC</translation>
    </message>
    <message>
        <source>Hardware Information</source>
        <translation>Informations sur le matériel</translation>
    </message>
    <message>
        <source>Hardware acceleration:</source>
        <translation>Accélération matérielle :</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>High dynamic range</source>
        <translation>Plage dynamique étendue</translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation>La plage dynamique étendue devient standard.</translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation>Haute qualité (plus lent)</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>Résolution maximale</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation>Comment le disque est conservé</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</source>
        <translation>Dans une session Wayland, le bureau demande ce qui est enregistré : cela ne peut pas être indiqué à l’avance.</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrompu</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>Il s’affichera ici dès qu’il sera écrit : %1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation>Ses titres sont conservés tels quels ou deviennent MP4, MKV ou MP3, selon votre choix.</translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation>Des tâches sont en cours.</translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation>Des tâches sont encore en cours.</translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation>Réunir tous les fichiers en un seul</translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation>Réunir en un seul</translation>
    </message>
    <message>
        <source>Joining</source>
        <translation>Réunion</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Laisser continuer</translation>
    </message>
    <message>
        <source>Keep Waiting</source>
        <translation>Continuer d’attendre</translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation>Garder plutôt le reste</translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation>Conserver la date de la source</translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation>Conserver telles quelles les pistes adaptées</translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation>Conservés comme piste</translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation>Conservé jusqu’à la fermeture</translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation>Conservée si possible</translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation>Conservé : %1</translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation>Aide Kestrel</translation>
    </message>
    <message>
        <source>Kestrel Log</source>
        <translation>Journal de Kestrel</translation>
    </message>
    <message>
        <source>Kestrel Log — %1</source>
        <translation>Journal de Kestrel — %1</translation>
    </message>
    <message>
        <source>Kestrel does not know how long this file is, and cannot aim at a size.</source>
        <translation>Kestrel ne connaît pas la durée de ce fichier et ne peut pas viser une taille.</translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation>Kestrel ne connaît pas le type de fichier « %1 » de ce préréglage.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Language of %1</source>
        <translation>Langue de %1</translation>
    </message>
    <message>
        <source>Languages of sound</source>
        <translation>Langues du son</translation>
    </message>
    <message>
        <source>Languages of subtitles</source>
        <translation>Langues des sous-titres</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>En savoir plus</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Exclu</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Exclu : %1</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Lines with this text: %1</source>
        <translation>Lignes contenant ce texte : %1</translation>
    </message>
    <message>
        <source>Lines with this text: %1, looking for more… %2 % (Esc stops)</source>
        <translation>Lignes contenant ce texte : %1, recherche en cours… %2 % (Échap pour arrêter)</translation>
    </message>
    <message>
        <source>Log text</source>
        <translation>Texte du journal</translation>
    </message>
    <message>
        <source>Looking at the hardware</source>
        <translation>Examen du matériel</translation>
    </message>
    <message>
        <source>Looking for a newer download engine…</source>
        <translation>Recherche d’un moteur de téléchargement plus récent…</translation>
    </message>
    <message>
        <source>Lossless sound: %1. It becomes %2.</source>
        <translation>Son sans perte : %1. Il devient %2.</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation>Audio M4A (AAC)</translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation>Audio M4A, sans perte (ALAC)</translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation>Audio MKA (Opus)</translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation>Vidéo MKV (AV1, Opus)</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>Vidéo MKV (H.264, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation>Vidéo MKV (H.265, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation>Vidéo MKV (VP9, Opus)</translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation>Vidéo MKV, haute qualité (H.265, FLAC)</translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation>Vidéo MKV, sans perte (FFV1, FLAC)</translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation>Vidéo MOV (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation>Vidéo MOV (H.264, AAC)</translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation>Vidéo MOV (ProRes, PCM)</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>Audio MP3</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation>Vidéo MP4 (AV1, Opus)</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>Vidéo MP4 (H.264, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation>Vidéo MP4 (H.265, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation>Vidéo MP4 pour pages web (1080p)</translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation>MPEG</translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation>Vidéo MPEG (MPEG-2, MP2)</translation>
    </message>
    <message>
        <source>MPEG-4 movie (MP4)</source>
        <translation>Film MPEG-4 (MP4)</translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation>Vidéo MXF (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation>Vidéo MXF (MPEG-2, PCM)</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Fichiers multimédias</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Messages of the tools</source>
        <translation>Messages des outils</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micro</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>Dossier de musique</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>Mes préréglages</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Nom du préréglage :</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>No camera in the picture</source>
        <translation>Pas de caméra dans l’image</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>Aucune caméra n’a été trouvée.</translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation>Aucun format ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>Aucun journal indiqué</translation>
    </message>
    <message>
        <source>No more than %1 pieces can be kept.</source>
        <translation>On ne peut pas conserver plus de %1 parties.</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation>Aucune image de la copie n’a pu être décodée.</translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation>Aucune image de ce film n’a pu être décodée.</translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation>Aucun serveur ne répond à cette adresse. Vérifiez-la et réessayez.</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>Sans son</translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation>Sans limite de vitesse</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>Pas de sous-titres</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Pas encore choisi</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation>Sans rotation</translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation>Pas encore utilisé</translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation>Pas encore utilisé, conservé jusqu’à la fermeture</translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation>Rien n’a pu être décodé à %1 s.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Aucun résultat.</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation>Rien dans le fichier n’a pu être converti.</translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation>Rien n’a pu être lu du film.</translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation>Il ne reste rien de l’enregistrement.</translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation>Rien de ce fichier ne serait conservé.</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>Rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation>Audio OGG (Vorbis)</translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation>Vidéo OGV (Theora, Vorbis)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Old Phone (3GP)</source>
        <translation>Ancien téléphone (3GP)</translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation>Un titre dans un dossier de disque</translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation>Seules %1 s sur %2 sont arrivées.</translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation>Une seule piste de sous-titres peut être incrustée ; les autres sont exclues.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>Ouvrir un dossier…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Ouvrir une image…</translation>
    </message>
    <message>
        <source>Open the log with “App Log” in the Help menu of %1.</source>
        <translation>Ouvrez le journal avec « Journal de l’app » dans le menu Aide de %1.</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>Ouvrir le dossier de sortie</translation>
    </message>
    <message>
        <source>Open the output folder when done</source>
        <translation>Ouvrir le dossier de sortie à la fin</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation>Audio Opus</translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation>Son d’origine, dans un fichier MKA</translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation>Original, dans un fichier MOV</translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation>Original, dans un fichier TS</translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation>Original, dans un fichier MKV</translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation>Original, dans un fichier MP4</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Dossier de sortie :</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Format de sortie</translation>
    </message>
    <message>
        <source>PCM</source>
        <translation>PCM</translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation>Page d’options</translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation>Partie de l’écran…</translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation>Des parties du fichier obtenu manquent.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation>Collez ou déposez des adresses ici</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation>Téléphone (H.265)</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation>Image, tout le son, sous-titres avec leurs couleurs et chapitres des titres choisis, sans rien réencoder.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation>Images par seconde</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>Partie %1 sur %2</translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation>Parties conservées</translation>
    </message>
    <message>
        <source>Place of the camera's picture</source>
        <translation>Place de l’image de la caméra</translation>
    </message>
    <message>
        <source>Places and styles of the subtitles: %1. %2 cannot hold them.</source>
        <translation>Positions et styles des sous-titres : %1. %2 ne peut pas les contenir.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation>Lire la source</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>Vitesse de lecture</translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation>Lisible partout</translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation>Vérifiez qu’il reste de l’espace sur le disque et que l’écriture dans ce dossier est possible : %1</translation>
    </message>
    <message>
        <source>Please wait. Getting update information from the server...</source>
        <translation>Veuillez patienter. Récupération des informations de mise à jour auprès du serveur…</translation>
    </message>
    <message>
        <source>Please write to %1 and attach this file: %2</source>
        <translation>Veuillez écrire à %1 en joignant ce fichier : %2</translation>
    </message>
    <message>
        <source>Please write to this address: %1</source>
        <translation>Veuillez écrire à cette adresse : %1</translation>
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
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>Langue audio préférée</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Problem detected in last conversion.</source>
        <translation>Un problème a été détecté lors de la dernière conversion.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processeur</translation>
    </message>
    <message>
        <source>Processor cores</source>
        <translation>Cœurs du processeur</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adresse du proxy</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Port du proxy</translation>
    </message>
    <message>
        <source>Put a DVD in, or drop a disc image or folder here</source>
        <translation>Insérez un DVD ou déposez ici une image disque ou un dossier</translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation>Assemblage de l’image et du son…</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation>Qualité (plus bas = meilleur)</translation>
    </message>
    <message>
        <source>QuickTime movie (MOV)</source>
        <translation>Film QuickTime (MOV)</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>Quitter Kestrel</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation>Lecture du disque…</translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation>Lecture du disque… Un lecteur peut mettre une demi-minute.</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>La lecture du fichier ou l’écriture dans le dossier de sortie n’est pas autorisée. Vérifiez leurs autorisations.</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>Analyse du fichier…</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Analyse…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation>Enregistrer des vidéos</translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation>Enregistrez des vidéos de l’écran, d’une webcam ou d’un iPhone. Capturez diffusions en direct, jeux, bureau et tout le reste en MOV pour YouTube. L’écran et la webcam peuvent être enregistrés en même temps.</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Enregistreur</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Enregistrement %1</translation>
    </message>
    <message>
        <source>Recording begins at %1. Press Record to begin at once.</source>
        <translation>L’enregistrement commence à %1. Appuyez sur Enregistrer pour commencer tout de suite.</translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation>L’enregistrement commence dans %1 s. Cliquez sur « Enregistrer » pour commencer aussitôt.</translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation>Récupéré après une interruption.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Notes de version :</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove Piece</source>
        <translation>Retirer la partie</translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation>Retirer avec le fichier partiel</translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation>Retire de la liste ce qui est terminé. Les fichiers restent.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Report Bug</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation>Réinitialiser les profils</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation>Mode sûr : vérifier tout le résultat</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Save To…</source>
        <translation>Enregistrer dans…</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Enregistrer une copie…</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>Enregistrer comme préréglage…</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Enregistrement…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>Enregistrement… %1 % (Échap pour arrêter)</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation>Écran %1 (%2 × %3)</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>Enregistrement de l’écran indisponible</translation>
    </message>
    <message>
        <source>Screen or window (the desktop asks)</source>
        <translation>Écran ou fenêtre (le bureau demande)</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Défiler horizontalement</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Défiler verticalement</translation>
    </message>
    <message>
        <source>Search Settings</source>
        <translation>Rechercher un réglage</translation>
    </message>
    <message>
        <source>Search formats</source>
        <translation>Rechercher des formats</translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation>Rechercher : MKV, AV1, FLAC…</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>Recherche… %1 % (Échap pour arrêter)</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation>Seconde passe</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation>Sélectionnez un fichier dans la liste pour choisir parmi ses pistes.</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Envoyer un commentaire</translation>
    </message>
    <message>
        <source>Send Report</source>
        <translation>Envoyer le rapport</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Several formats</source>
        <translation>Plusieurs formats</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>Afficher le fichier</translation>
    </message>
    <message>
        <source>Show clicks</source>
        <translation>Afficher les clics</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Afficher les notifications</translation>
    </message>
    <message>
        <source>Show only lines with</source>
        <translation>Lignes contenant</translation>
    </message>
    <message>
        <source>Show the pointer</source>
        <translation>Afficher le pointeur</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>Éteindre l’ordinateur à la fin</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation>Taille maximale</translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation>Taille : environ %1</translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation>Plus lent, fichier plus petit</translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation>Le plus lent, fichier le plus petit</translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation>Petit (640 × 480)</translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation>Petits fichiers</translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation>Petite vidéo MP4 (720p)</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>Petit fichier</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>Dossier des captures</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation>Niveau sonore</translation>
    </message>
    <message>
        <source>Sound of %1: %2. The joined file has no track for it.</source>
        <translation>Son de %1 : %2. Le fichier réuni n’a pas de piste pour lui.</translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation>Son de l’ordinateur</translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation>Le son seul, inchangé (MKA)</translation>
    </message>
    <message>
        <source>Sound track %1 begins so late in the film that it is not found in time.</source>
        <translation>La piste audio %1 commence si tard dans le film qu’elle n’est pas trouvée à temps.</translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation>La piste audio %1, que ce film ne contient pas</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Son : %1</translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation>Son : %1. %2 ne contient qu’une seule piste audio.</translation>
    </message>
    <message>
        <source>Sound: %1. Its format is not known.</source>
        <translation>Son : %1. Son format n’est pas connu.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation>Source (faites glisser pour rogner)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation>Limite de vitesse par téléchargement</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>Commencer ici</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Stay at the end while the log grows</source>
        <translation>Rester à la fin pendant que le journal s’allonge</translation>
    </message>
    <message>
        <source>Steady quality</source>
        <translation>Qualité constante</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stéréo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>Arrêter après</translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation>Arrêter après %1 min</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>Arrêter et quitter</translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation>Arrêter et redémarrer</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Arrêt en cours…</translation>
    </message>
    <message>
        <source>Subtitle track %1, which this film does not have</source>
        <translation>La piste de sous-titres %1, que ce film n’a pas</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Sous-titres</translation>
    </message>
    <message>
        <source>Subtitles are missing in the finished file.</source>
        <translation>Des sous-titres manquent dans le fichier terminé.</translation>
    </message>
    <message>
        <source>Subtitles in the picture</source>
        <translation>Sous-titres dans l’image</translation>
    </message>
    <message>
        <source>Subtitles of %1: %2. Joining keeps none of later files.</source>
        <translation>Sous-titres de %1 : %2. La réunion ne garde pas ceux des fichiers suivants.</translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation>Sous-titres sous forme d’images : %1. %2 ne peut pas les contenir ; incrustez-les ou choisissez MKV.</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>Sous-titres : %1</translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation>Sous-titres : %1. %2 ne peut pas les contenir.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They are burnt into the first of the joined files only.</source>
        <translation>Sous-titres : %1. Ils ne sont incrustés que dans le premier des fichiers réunis.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation>Sous-titres : %1. Ils ne peuvent pas suivre les temps modifiés ; incrustez-les pour les conserver.</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Suggestions</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation>Vidéo TS (H.264, AC-3)</translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation>Téléviseur (1080p)</translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation>Téléviseur (4K, HDR)</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>Tablette</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>C’est le journal lui-même. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation>La zone à enregistrer est hors de l’écran.</translation>
    </message>
    <message>
        <source>The attached file %1 of %2. Joining keeps none of later files.</source>
        <translation>Le fichier joint %1 de %2. La réunion ne garde pas ceux des fichiers suivants.</translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation>Le fichier joint %1. %2 ne peut pas le contenir.</translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation>La diffusion n’a pas encore commencé. Réessayez une fois qu’elle aura commencé.</translation>
    </message>
    <message>
        <source>The camera could not be opened. Another program may be using it.</source>
        <translation>La caméra n’a pas pu être ouverte. Un autre programme l’utilise peut-être.</translation>
    </message>
    <message>
        <source>The camera went away: its picture ends there.</source>
        <translation>La caméra a disparu : son image s’arrête là.</translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation>Les chapitres. %1 ne peut pas les contenir.</translation>
    </message>
    <message>
        <source>The chosen camera is missing: %1 is recorded instead.</source>
        <translation>La caméra choisie est absente : %1 est enregistrée à la place.</translation>
    </message>
    <message>
        <source>The chosen microphone is missing: the usual one is recorded instead.</source>
        <translation>Le micro choisi est absent : le micro habituel est enregistré à la place.</translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation>Les titres choisis deviennent des fichiers du format indiqué à côté, aussi petits que vous le souhaitez.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation>L’ordinateur s’éteindra dans %1 secondes.</translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation>La conversion a été arrêtée avant la fin.</translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation>Le convertisseur ne peut pas produire ce format. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation>Le convertisseur n’a pas pu démarrer. Veuillez réinstaller l’application.</translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation>Le convertisseur n’a pas pu convertir ce fichier.</translation>
    </message>
    <message>
        <source>The converter did not answer any more.</source>
        <translation>Le convertisseur ne répond plus.</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>Le convertisseur est introuvable. Veuillez réinstaller l’application.</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation>Impossible de relire la copie.</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>Impossible d’enregistrer la copie : %1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation>La copie contient %1 titres au lieu de %2.</translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation>La copie a été interrompue. Elle reprendra au même endroit au prochain démarrage.</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>La copie a été enregistrée.</translation>
    </message>
    <message>
        <source>The cover picture of %1. Joining keeps none of later files.</source>
        <translation>La jaquette de %1. La réunion ne garde pas celles des fichiers suivants.</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation>L’image de pochette. %1 ne peut pas la contenir.</translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation>L’image de pochette. Elle est perdue quand des fichiers sont réunis ainsi.</translation>
    </message>
    <message>
        <source>The date of recording. %1 cannot hold it.</source>
        <translation>La date d’enregistrement. %1 ne peut pas la contenir.</translation>
    </message>
    <message>
        <source>The desktop did not let the screen be recorded.</source>
        <translation>Le bureau n’a pas autorisé l’enregistrement de l’écran.</translation>
    </message>
    <message>
        <source>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</source>
        <translation>Le bureau autorise l’enregistrement, mais aucune image n’arrive. PipeWire fonctionne-t-il ?</translation>
    </message>
    <message>
        <source>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</source>
        <translation>Le bureau partage l’image au début de l’enregistrement. Les raccourcis ne fonctionnent alors que dans les fenêtres de Kestrel.</translation>
    </message>
    <message>
        <source>The desktop's portal did not answer.</source>
        <translation>Le portail du bureau n’a pas répondu.</translation>
    </message>
    <message>
        <source>The desktop's portal does not let the screen be recorded: %1</source>
        <translation>Le portail du bureau n’autorise pas l’enregistrement de l’écran : %1</translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation>Impossible de lire le disque.</translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation>Le disque n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation>Le disque ne contient pas ce titre, ce chapitre ou cet angle.</translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation>L’image disque se termine avant la fin du film.</translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation>Le disque est endommagé : son contenu n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation>Cet utilisateur n’est pas autorisé à lire le disque.</translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation>Impossible de lancer les outils de disque. Veuillez réinstaller l’application.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>Impossible de lire ou d’écrire sur le disque.</translation>
    </message>
    <message>
        <source>The disk for temporary files is full. Free some space and convert again.</source>
        <translation>Le disque des fichiers temporaires est plein. Libérez de l’espace et recommencez la conversion.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation>Le disque est trop plein pour finaliser l’enregistrement : il reste un fichier Matroska.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays in %1 Matroska files.</source>
        <translation>Le disque est trop plein pour finaliser l’enregistrement : il reste en %1 fichiers Matroska.</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>Le disque du dossier de sortie ne peut pas contenir un fichier de cette taille.</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation>Impossible d’ouvrir l’écran %1.</translation>
    </message>
    <message>
        <source>The download engine could not be updated.</source>
        <translation>Le moteur de téléchargement n’a pas pu être mis à jour.</translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation>Le moteur de téléchargement ne fonctionne pas. Veuillez réinstaller l’application.</translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation>Le moteur de téléchargement est introuvable. Veuillez réinstaller l’application.</translation>
    </message>
    <message>
        <source>The download engine is now of version %1. Try again.</source>
        <translation>Le moteur de téléchargement est maintenant à la version %1. Réessayez.</translation>
    </message>
    <message>
        <source>The download failed. Try again later; the details tell what the engine said.</source>
        <translation>Le téléchargement a échoué. Réessayez plus tard ; les détails indiquent le message du moteur.</translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation>L’encodeur pour %1 n’est pas installé.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Impossible de lire le fichier.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Impossible d’écrire le fichier.</translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation>Le fichier ne contient ni vidéo ni son pouvant être converti.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>Le fichier est endommagé ou incomplet.</translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation>Le fichier n’est plus à son emplacement.</translation>
    </message>
    <message>
        <source>The file was deleted. What it held is still shown.</source>
        <translation>Le fichier a été supprimé. Son contenu reste affiché.</translation>
    </message>
    <message>
        <source>The film has come, but subtitles, cover or chapters could not be added to it.</source>
        <translation>Le film est arrivé, mais les sous-titres, la jaquette ou les chapitres n’ont pas pu être ajoutés.</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded. Watch it on its own site.</source>
        <translation>Le film est protégé contre la copie et n’est pas téléchargé. Regardez-le sur son propre site.</translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation>Le film n’est plus disponible. Cherchez-le à une autre adresse.</translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation>Le film n’est pas disponible sous la forme souhaitée. Choisissez une autre résolution ou un autre format.</translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</source>
        <translation>Le film est privé ou réservé aux membres et ne peut donc pas être téléchargé. Cherchez-le à une autre adresse.</translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation>Le film des titres choisis tel qu’il est sur le disque ; sans chapitres ni noms de langues.</translation>
    </message>
    <message>
        <source>The finer picture. %1 bit %2 becomes %3 bit %4.</source>
        <translation>L’image plus fine. %1 bits %2 devient %3 bits %4.</translation>
    </message>
    <message>
        <source>The finer sound: %1. %2 bit become %3 bit.</source>
        <translation>Le son plus fin : %1. %2 bits deviennent %3 bits.</translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation>Impossible de relire le fichier obtenu.</translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation>Le fichier obtenu fait %1 octets au lieu de %2.</translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation>Le fichier obtenu contient d’autres pistes que celles souhaitées : %1 au lieu de %2.</translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation>Le fichier obtenu dure %1 s au lieu de %2 s.</translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation>Le fichier obtenu est endommagé : %1 erreurs.</translation>
    </message>
    <message>
        <source>The finished file is damaged: 1 fault.</source>
        <translation>Le fichier obtenu est endommagé : 1 erreur.</translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation>Le fichier obtenu est plus gros que souhaité.</translation>
    </message>
    <message>
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>Les %1 premiers ont été copiés. Enregistrez une copie pour tout obtenir.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Impossible d’ouvrir le dossier.</translation>
    </message>
    <message>
        <source>The folder for temporary files cannot be written.</source>
        <translation>Impossible d’écrire dans le dossier des fichiers temporaires.</translation>
    </message>
    <message>
        <source>The folder is too large: only some of its files were added.</source>
        <translation>Le dossier est trop volumineux : seuls certains de ses fichiers ont été ajoutés.</translation>
    </message>
    <message>
        <source>The irregular times of the pictures. They come evenly, %1 a second.</source>
        <translation>Les temps irréguliers des images. Elles se suivent régulièrement, %1 par seconde.</translation>
    </message>
    <message>
        <source>The languages of the tracks. %1 cannot hold them.</source>
        <translation>Les langues des pistes. %1 ne peut pas les contenir.</translation>
    </message>
    <message>
        <source>The last %1 s have no picture.</source>
        <translation>Les %1 dernières secondes n’ont pas d’image.</translation>
    </message>
    <message>
        <source>The last %1 s have no sound: the sound server went away.</source>
        <translation>Les dernières %1 s sont sans son : le serveur de son a disparu.</translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>Impossible de lire le journal</translation>
    </message>
    <message>
        <source>The log was cut short meanwhile. Try again.</source>
        <translation>Le journal a été raccourci entre-temps. Réessayez.</translation>
    </message>
    <message>
        <source>The mastering data of the high dynamic range. %1 cannot hold them.</source>
        <translation>Les données de mastering de la plage dynamique étendue. %1 ne peut pas les contenir.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation>Impossible de lire les options de cette tâche. Ajoutez de nouveau l’adresse.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation>Impossible de lire les options de cette tâche. Ajoutez de nouveau le fichier.</translation>
    </message>
    <message>
        <source>The other angles of the film: %1</source>
        <translation>Les autres angles du film : %1</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>Impossible d’écrire la sortie.</translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>Le dossier de sortie n’existe pas. Veuillez vérifier le réglage.</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>Le dossier de sortie est en lecture seule. Choisissez-en un autre dans les réglages.</translation>
    </message>
    <message>
        <source>The picture has to be encoded (%1).</source>
        <translation>L’image doit être encodée (%1).</translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation>L’image est réduite à %1 × %2 pour respecter la taille.</translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation>L’image manque : le site n’a fourni que le son.</translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation>L’image du fichier obtenu n’est pas à l’endroit.</translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation>Les parties à conserver se trouvent après la fin du fichier.</translation>
    </message>
    <message>
        <source>The place of recording. %1 cannot hold it.</source>
        <translation>Le lieu d’enregistrement. %1 ne peut pas le contenir.</translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation>Le lecteur est introuvable. Veuillez réinstaller l’application.</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation>Le programme dvdauthor est introuvable. Veuillez l’installer.</translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation>Le proxy refuse la connexion. Vérifiez son adresse dans les réglages.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation>L’enregistrement n’a pas pu être finalisé : il reste un fichier Matroska.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays in %1 Matroska files.</source>
        <translation>L’enregistrement n’a pas pu être finalisé : il reste en %1 fichiers Matroska.</translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation>L’enregistrement a pris fin car le disque est presque plein.</translation>
    </message>
    <message>
        <source>The recording that was to begin at %1 was missed.</source>
        <translation>L’enregistrement qui devait commencer à %1 a été manqué.</translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation>L’enregistrement a été interrompu.</translation>
    </message>
    <message>
        <source>The same screen or window as last time</source>
        <translation>Le même écran ou la même fenêtre que la dernière fois</translation>
    </message>
    <message>
        <source>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</source>
        <translation>L’écran d’une session Wayland peut être enregistré si le bureau dispose d’un portail pour cela, qui manque ici. Installez xdg-desktop-portal pour votre bureau ou ouvrez une session X11 (Xorg).</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>L’enregistrement de l’écran n’est pris en charge qu’à partir de Mac OS Lion.</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation>Le serveur a coupé la connexion ou n’a pas pu répondre. Ce qui a été reçu est conservé ; réessayez plus tard.</translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation>Le serveur a coupé la connexion, prochain essai dans %1 s</translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation>Le serveur n’a envoyé qu’une partie du film.</translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation>Le serveur refuse de fournir le film. Réessayez plus tard, ou ouvrez la page dans un navigateur pour en connaître la raison.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in %1 minutes.</source>
        <translation>Le serveur n’accepte plus de demandes pour le moment. Réessayez dans %1 minutes.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation>Le serveur n’accepte plus de demandes pour le moment. Réessayez dans quelque temps.</translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</source>
        <translation>Le certificat du serveur n’est pas valide : il n’est peut-être pas celui qu’il prétend être. Rien n’a été téléchargé ; vérifiez l’adresse et la date de cet ordinateur.</translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation>Dossier des réglages</translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation>Le site ne montre pas ce film dans votre pays. Vous pouvez indiquer un proxy d’un autre pays dans les réglages.</translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation>Le site a changé et le moteur de téléchargement ne le reconnaît plus. Mettez le moteur à jour et réessayez.</translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</source>
        <translation>Le site ne montre ce film qu’aux personnes connectées, ce que Kestrel ne fait pas. Cherchez-le à une autre adresse.</translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</source>
        <translation>Le site veut d’abord connaître l’âge du spectateur, ce qu’il n’apprend que par une connexion. Cherchez le film à une autre adresse.</translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation>Impossible d’écrire la capture.</translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation>Le son n’a pas pu être enregistré. Le serveur audio est-il lancé ?</translation>
    </message>
    <message>
        <source>The sound has to be encoded (%1).</source>
        <translation>Le son doit être encodé (%1).</translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation>Le son manque depuis l’arrêt du serveur audio.</translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation>Le son manque : le site n’a fourni que l’image.</translation>
    </message>
    <message>
        <source>The sound server was away for a while: that part has no sound.</source>
        <translation>Le serveur son a été absent un moment : cette partie n’a pas de son.</translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation>Le son. %1 ne contient que des images.</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>Le plus puissant des logiciels de traitement vidéo : convertissez vidéos, fichiers audio et DVD ; modifiez, transcodez, compressez et ajustez vos vidéos ; téléchargez des contenus en ligne ; enregistrez l’écran et la webcam.</translation>
    </message>
    <message>
        <source>The subtitle file %1 cannot be read.</source>
        <translation>Le fichier de sous-titres %1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The subtitle file %1 is too large for a text.</source>
        <translation>Le fichier de sous-titres %1 est trop gros pour un texte.</translation>
    </message>
    <message>
        <source>The subtitles are missing: the site did not hand them out.</source>
        <translation>Les sous-titres manquent : le site ne les a pas fournis.</translation>
    </message>
    <message>
        <source>The subtitles that were to be drawn into the picture are not in this film.</source>
        <translation>Les sous-titres à incruster dans l’image ne sont pas dans ce film.</translation>
    </message>
    <message>
        <source>The title. %1 cannot hold it.</source>
        <translation>Le titre. %1 ne peut pas le contenir.</translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation>L’outil qui lit les fichiers multimédias est introuvable. Veuillez réinstaller l’application.</translation>
    </message>
    <message>
        <source>The transcoder did not answer as it should.</source>
        <translation>Le transcodeur n’a pas répondu comme prévu.</translation>
    </message>
    <message>
        <source>The transcoder is missing. Please install the application again.</source>
        <translation>Le transcodeur est introuvable. Veuillez réinstaller l’application.</translation>
    </message>
    <message>
        <source>The transparency of the picture. %1 cannot hold it.</source>
        <translation>La transparence de l’image. %1 ne peut pas la contenir.</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation>Le disque entier, secteur par secteur, dans un fichier qui se lit comme le disque.</translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation>Le film entier est conservé.</translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation>La fenêtre est trop petite pour être enregistrée.</translation>
    </message>
    <message>
        <source>The window was closed or minimised.</source>
        <translation>La fenêtre a été fermée ou réduite.</translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation>Il n’y a pas de bandes noires.</translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation>Il y a plusieurs films à cette adresse. Ajoutez-la de nouveau pour choisir parmi eux.</translation>
    </message>
    <message>
        <source>There are too many films at this address to look at them all. Add the address of one of them.</source>
        <translation>Il y a trop de films à cette adresse pour tous les examiner. Ajoutez l’adresse de l’un d’eux.</translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation>Il y a trop de préréglages. Supprimez-en d’abord quelques-uns.</translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation>Il n’y a pas de connexion réseau. Vérifiez-la et réessayez.</translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation>Il n’y a pas de disque. Insérez-le, ou choisissez une image ou un dossier, puis réessayez.</translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation>Il n’y a aucun écran dont l’image puisse être enregistrée.</translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation>Il n’y a pas de film à cette adresse. Cherchez la page qui le diffuse.</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>Aucun journal pour le moment</translation>
    </message>
    <message>
        <source>There is no newer download engine.</source>
        <translation>Il n’y a pas de moteur de téléchargement plus récent.</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation>Il n’y a pas d’image à cet endroit.</translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation>Il n’y a pas d’écran « %1 ». Disponibles : %2.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>Il n’y a plus d’espace sur le disque. Libérez de l’espace et relancez la conversion.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation>Il n’y a plus d’espace sur le disque. Libérez de l’espace et réessayez ; ce qui a été reçu est conservé.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation>Il ne contient aucun fichier vidéo ou audio.</translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation>Aucune fenêtre %1 n’est visible.</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>La mémoire est insuffisante pour convertir ce fichier.</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation>La mémoire est insuffisante pour lire ce disque.</translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation>L’espace est insuffisant : %1 sont nécessaires et %2 sont libres. Libérez de l’espace ou choisissez un autre dossier dans les réglages.</translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation>Il n’y a rien à convertir.</translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation>L’espace sur le disque est insuffisant pour enregistrer.</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>Ils deviennent MP4, MKV, WebM ou MP3, selon votre choix.</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation>Cette adresse n’appartient à aucun site connu de Kestrel. Vérifiez-la, ou cherchez la page qui diffuse le film.</translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation>Ce choix est conservé jusqu’à la fermeture de l’application.</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>Cet ordinateur n’a pas d’encodeur matériel pour la vidéo H.264.</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation>Ce disque est déjà en cours de copie dans ce dossier.</translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation>Ce disque est protégé contre la copie et ne peut pas être lu.</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>Ce fichier n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation>Ce fichier ne contient ni image ni son à convertir.</translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation>Ce fichier ne contient pas d’image à convertir.</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>Ce fichier ne contient pas de son à convertir.</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation>Ce fichier ne contient aucun préréglage de Kestrel.</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>Ce fichier est endommagé ou ne contient ni vidéo ni son.</translation>
    </message>
    <message>
        <source>This film has no sound. Choose a format with a picture for it.</source>
        <translation>Ce film n’a pas de son. Choisissez pour lui un format avec image.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>Impossible d’écrire dans ce dossier.</translation>
    </message>
    <message>
        <source>This is another disc, which is also called %1.</source>
        <translation>C’est un autre disque, qui s’appelle aussi %1.</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation>C’est un autre disque : %1 au lieu de %2.</translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation>Rien ne peut être téléchargé depuis cette adresse.</translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation>Ce n’est pas un préréglage.</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>Ce n’est pas un fichier texte</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation>Ce n’est pas un DVD vidéo : il ne contient pas de dossier VIDEO_TS.</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>Ce n’est pas un fichier vidéo ou audio.</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation>Ce préréglage n’a pas de nom.</translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation>Ce préréglage ne conserve ni image ni son.</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation>Ce préréglage a été créé par une version plus récente de Kestrel.</translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation>Ce titre n’a pas de son à conserver.</translation>
    </message>
    <message>
        <source>Time at which the recording begins</source>
        <translation>Heure à laquelle l’enregistrement commence</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>Chronologie</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation>Titre %1</translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation>Le titre %1 de la copie contient %2 chapitres au lieu de %3.</translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation>Le titre %1 de la copie contient d’autres pistes que le disque.</translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation>Le titre %1 de la copie dure %2 s au lieu de %3 s.</translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation>Titre %1, le film principal</translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation>Titres en fichiers MPEG-2</translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation>Titres du disque</translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation>Titres, inchangés (MKV)</translation>
    </message>
    <message>
        <source>To chapter</source>
        <translation>Jusqu’au chapitre</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>Trop de lignes contiennent ce texte : seules les %1 plus récentes sont affichées.</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation>Trop de demandes : le serveur sera de nouveau interrogé dans %1 s</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Piste %1</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>Transcodeur</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation>Essai</translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation>Essayer 10 secondes</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation>Convertie en standard</translation>
    </message>
    <message>
        <source>Unable to connect to update server.</source>
        <translation>Impossible de se connecter au serveur de mise à jour.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Unknown language</source>
        <translation>Langue inconnue</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Illimité</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Jusqu’à l’arrêt</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Update Download Engine</source>
        <translation>Mettre à jour le moteur de téléchargement</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>À l’envers</translation>
    </message>
    <message>
        <source>Use This Area</source>
        <translation>Utiliser cette zone</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Utiliser un proxy</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation>Utiliser le matériel graphique</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Habituel</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>Micro habituel</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>Version : %@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation>Très petite vidéo MP4 (480p)</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation>Convertisseur vidéo</translation>
    </message>
    <message>
        <source>Video folder</source>
        <translation>Dossier vidéo</translation>
    </message>
    <message>
        <source>Video or sound file</source>
        <translation>Fichier vidéo ou audio</translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation>Les vidéos et la musique du web sont enregistrées sous la forme que vous choisissez.</translation>
    </message>
    <message>
        <source>Visit our website:</source>
        <translation>Visitez notre site web :</translation>
    </message>
    <message>
        <source>Visit website</source>
        <translation>Visiter le site web</translation>
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
        <translation>Vidéo WMV</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>En attente d’une connexion réseau</translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation>En attente d’espace sur le disque : %1 nécessaires</translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation>En attente du réseau, prochain essai dans %1 s</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>En attente du serveur…</translation>
    </message>
    <message>
        <source>Waiting for your choice in the desktop's dialog…</source>
        <translation>En attente de votre choix dans le dialogue du bureau…</translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation>En attente : %1 téléchargements depuis ce serveur sont en cours</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation>Vidéo WebM (AV1, Opus)</translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation>Vidéo WebM (VP8, Vorbis)</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>Vidéo WebM (VP9, Opus)</translation>
    </message>
    <message>
        <source>What has been recorded will be deleted.</source>
        <translation>Ce qui a été enregistré sera supprimé.</translation>
    </message>
    <message>
        <source>What has come cannot be moved to that folder, so it stays where it is.</source>
        <translation>Ce qui a été reçu ne peut pas être déplacé dans ce dossier et reste donc où il est.</translation>
    </message>
    <message>
        <source>What the server sent is no film. Open the address in a browser to see what it is.</source>
        <translation>Ce que le serveur a envoyé n’est pas un film. Ouvrez l’adresse dans un navigateur pour voir ce que c’est.</translation>
    </message>
    <message>
        <source>What the site answered could not be understood. Update the download engine and try again.</source>
        <translation>La réponse du site n’a pas pu être comprise. Mettez le moteur de téléchargement à jour et réessayez.</translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation>Ce que produit ce préréglage ne peut pas être ajusté à une taille.</translation>
    </message>
    <message>
        <source>What to record</source>
        <translation>Source à enregistrer</translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation>Ce que vous arrêtez maintenant vous sera de nouveau proposé au prochain démarrage.</translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation>Si nécessaire</translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation>Image entière</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>Largeur de l’image</translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation>Ne sera pas accepté. Exemple : http://proxy.example.com ou socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Window by a click…</source>
        <translation>Fenêtre par un clic…</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation>Fenêtre : %1</translation>
    </message>
    <message>
        <source>Without encoding, what starts at %1 begins at %2.</source>
        <translation>Sans encodage, ce qui débute à %1 commence à %2.</translation>
    </message>
    <message>
        <source>Would you please send us the Log File to help us fix the issue?</source>
        <translation>Voulez-vous nous envoyer le fichier journal pour nous aider à résoudre le problème ?</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>Vous n’êtes pas autorisé à lire ce fichier.</translation>
    </message>
    <message>
        <source>You're up-to-date!</source>
        <translation>Votre version est à jour</translation>
    </message>
    <message>
        <source>Your mail program could not be opened.</source>
        <translation>Impossible d’ouvrir votre logiciel de messagerie.</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>Votre écran en vidéo</translation>
    </message>
    <message>
        <source>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</source>
        <translation>Vos réglages ne peuvent pas être enregistrés pour le moment. Kestrel réessaiera à sa fermeture.</translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation>Vos réglages n’ont pas pu être enregistrés lors de la dernière fermeture de Kestrel.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Réduire/Agrandir</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>environ %1 heures restantes</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>environ %1 minutes restantes</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>environ une minute restante</translation>
    </message>
    <message>
        <source>another commentary</source>
        <translation>autre commentaire</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>Fermer l’astuce</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation>commentaire</translation>
    </message>
    <message>
        <source>for children</source>
        <translation>pour enfants</translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation>pour malentendants</translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation>pour malvoyants</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>forcés</translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation>conservé tel quel</translation>
    </message>
    <message>
        <source>large</source>
        <translation>grands</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>moins d’une minute restante</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation>identique au titre %1</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>Afficher l’astuce</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation>{name}, {preset}, {folder} et {date} sont remplacés par leur valeur.</translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation>Impossible de lire « %1 ».</translation>
    </message>
</context>
</TS>
