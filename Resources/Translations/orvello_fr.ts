<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Countdown</name>
    <message>
        <source>Countdown</source>
        <translation>Compte à rebours</translation>
    </message>
</context>
<context>
    <name>DeletedScripts</name>
    <message>
        <source>Recently deleted</source>
        <translation>Supprimés récemment</translation>
    </message>
    <message>
        <source>Deleted scripts are kept for 30 days.</source>
        <translation>Les scripts supprimés sont conservés 30 jours.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Restaurer « %1 »</translation>
    </message>
</context>
<context>
    <name>EditorPage</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Speaker notes</source>
        <translation>Notes de l’orateur</translation>
    </message>
    <message>
        <source>Script text</source>
        <translation>Texte du script</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your Mac</source>
        <translation>Affiché dans le prompteur · enregistré automatiquement en local, rien ne quitte votre Mac</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your computer</source>
        <translation>Affiché dans le prompteur · enregistré automatiquement en local, rien ne quitte votre ordinateur</translation>
    </message>
    <message>
        <source>Start Here</source>
        <extracomment>The prompter begins with the line that the cursor is on.</extracomment>
        <translation>Commencer ici</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>ImportMenu</name>
    <message>
        <source>Import speaker notes from a deck</source>
        <translation>Importer les notes d’une présentation</translation>
    </message>
</context>
<context>
    <name>LibraryAlert</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>LibraryView</name>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
    </message>
</context>
<context>
    <name>Orvello::AppDelegate</name>
    <message>
        <source>%1 counts only at the launch: quit the Orvello that runs first</source>
        <translation>%1 ne compte qu’au lancement : quittez d’abord l’instance d’Orvello ouverte</translation>
    </message>
</context>
<context>
    <name>Orvello::Appcast</name>
    <message>
        <source>It declares a document type.</source>
        <translation>Il déclare un type de document.</translation>
    </message>
    <message>
        <source>It is no RSS feed.</source>
        <translation>Ce n’est pas un flux RSS.</translation>
    </message>
</context>
<context>
    <name>Orvello::AppcastUpdater</name>
    <message>
        <source>There is no valid update feed.</source>
        <translation>Il n’y a pas de flux de mises à jour valide.</translation>
    </message>
    <message>
        <source>The update feed is not secure.</source>
        <translation>Le flux de mises à jour n’est pas sûr.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>Le flux de mises à jour ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>The update feed makes no sense: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>Le flux de mises à jour est incompréhensible : %1</translation>
    </message>
    <message>
        <source>The download page cannot be opened.</source>
        <translation>La page de téléchargement ne peut pas être ouverte.</translation>
    </message>
    <message>
        <source>Orvello is up to date.</source>
        <translation>Orvello est à jour.</translation>
    </message>
</context>
<context>
    <name>Orvello::AppleScriptPresenters</name>
    <message>
        <source>permission denied — allow Orvello to control %1 in System Settings → Privacy &amp; Security → Automation</source>
        <extracomment>Follows &quot;Couldn&apos;t read the presentation:&quot;. %1: a presentation program.</extracomment>
        <translation>accès refusé : autorisez Orvello à contrôler %1 dans Réglages Système → Confidentialité et sécurité → Automatisation</translation>
    </message>
    <message>
        <source>presenter notes</source>
        <translation>notes de présentateur</translation>
    </message>
    <message>
        <source>speaker notes</source>
        <translation>notes de l’orateur</translation>
    </message>
</context>
<context>
    <name>Orvello::BusInstance</name>
    <message>
        <source>Orvello is running already, but does not answer.</source>
        <translation>Orvello est déjà ouvert, mais ne répond pas.</translation>
    </message>
    <message>
        <source>Orvello is running already, but cannot be asked for anything: the two do not share a session bus.</source>
        <translation>Orvello est déjà ouvert, mais ne peut rien recevoir : les deux ne partagent pas de bus de session.</translation>
    </message>
</context>
<context>
    <name>Orvello::Commands</name>
    <message>
        <source>Start Scrolling</source>
        <translation>Lancer le défilement</translation>
    </message>
    <message>
        <source>Pause Scrolling</source>
        <translation>Suspendre le défilement</translation>
    </message>
    <message>
        <source>Start / pause scrolling</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>Lancer / suspendre le défilement</translation>
    </message>
    <message>
        <source>Start / pause</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>Lancer / suspendre</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Plus vite</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Moins vite</translation>
    </message>
    <message>
        <source>Back to Top</source>
        <extracomment>In a menu: scrolls back to the beginning of the script.</extracomment>
        <translation>Revenir au début</translation>
    </message>
    <message>
        <source>Back to top</source>
        <extracomment>What a key does: it scrolls back to the beginning of the script.</extracomment>
        <translation>Revenir au début</translation>
    </message>
    <message>
        <source>Show Prompter</source>
        <translation>Afficher le prompteur</translation>
    </message>
    <message>
        <source>Hide Prompter</source>
        <translation>Masquer le prompteur</translation>
    </message>
    <message>
        <source>Show / hide prompter</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>Afficher / masquer le prompteur</translation>
    </message>
    <message>
        <source>Show / hide</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>Afficher / masquer</translation>
    </message>
    <message>
        <source>Voice-Follow Scrolling</source>
        <extracomment>A mode: the text scrolls while the user speaks.</extracomment>
        <translation>Suivi de la voix</translation>
    </message>
    <message>
        <source>Slide Tracking</source>
        <extracomment>A mode: the notes follow the slides of a running slideshow.</extracomment>
        <translation>Suivi des diapositives</translation>
    </message>
    <message>
        <source>Stealth Mode</source>
        <extracomment>A mode: the prompter is hidden from screen sharing and recordings.</extracomment>
        <translation>Mode furtif</translation>
    </message>
    <message>
        <source>Scripts…</source>
        <translation>Scripts…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Welcome Tour…</source>
        <translation>Visite de bienvenue…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher les mises à jour…</translation>
    </message>
    <message>
        <source>Contact Support…</source>
        <translation>Contacter l’assistance…</translation>
    </message>
    <message>
        <source>Reveal Log Files</source>
        <translation>Afficher les journaux</translation>
    </message>
    <message>
        <source>Quit Orvello</source>
        <translation>Quitter Orvello</translation>
    </message>
    <message>
        <source>%1  (%2)</source>
        <extracomment>A line of a menu with two blanks in it. %1: its text; %2: its key, such as &quot;⌥⌘P&quot;.</extracomment>
        <translation>%1  (%2)</translation>
    </message>
    <message>
        <source>Start or pause scrolling</source>
        <translation>Lancer ou suspendre le défilement</translation>
    </message>
    <message>
        <source>Scroll faster</source>
        <translation>Défiler plus vite</translation>
    </message>
    <message>
        <source>Scroll more slowly</source>
        <translation>Défiler moins vite</translation>
    </message>
    <message>
        <source>Go back to the top of the script</source>
        <translation>Revenir au début du script</translation>
    </message>
    <message>
        <source>Show or hide the prompter</source>
        <translation>Afficher ou masquer le prompteur</translation>
    </message>
    <message>
        <source>Put Under the Camera</source>
        <extracomment>In a menu: moves the prompter to the top of the screen that the pointer is on.</extracomment>
        <translation>Placer sous la caméra</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckController</name>
    <message>
        <source>(No speaker notes on this slide)</source>
        <translation>(Aucune note de l’orateur sur cette diapositive)</translation>
    </message>
    <message>
        <source>(Another presentation is on screen)</source>
        <translation>(Une autre présentation est à l’écran)</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckFileBar</name>
    <message>
        <source>Up to date with “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>À jour avec « %1 ».</translation>
    </message>
    <message>
        <source>“%1” is not there any more. The notes stay as they were.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>« %1 » n’est plus là. Les notes restent telles quelles.</translation>
    </message>
    <message>
        <source>“%1” has changed: the notes of slides %2 are no longer in it. An update keeps this version among the deleted scripts.</source>
        <extracomment>%1: the name of a file; %2: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>« %1 » a changé : les notes des diapositives %2 n’y sont plus. La mise à jour garde cette version parmi les scripts supprimés.</translation>
    </message>
    <message>
        <source>“%1” has changed, but cannot be read: %2</source>
        <extracomment>%1: the name of a file; %2: why, as a sentence.</extracomment>
        <translation>« %1 » a changé, mais ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>Update from File…</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>Mettre à jour depuis un fichier…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Choose the presentation that these notes are from.</source>
        <translation>Choisissez la présentation dont viennent ces notes.</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImportError</name>
    <message>
        <source>%1 isn&apos;t running. Open your presentation in %1 first.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>%1 n’est pas ouvert. Ouvrez d’abord votre présentation dans %1.</translation>
    </message>
    <message>
        <source>No presentation is open in %1.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Aucune présentation n’est ouverte dans %1.</translation>
    </message>
    <message>
        <source>That %1 presentation has no %2 on any slide.</source>
        <extracomment>%1: a presentation program; %2: what it calls the notes, such as &quot;speaker notes&quot;.</extracomment>
        <translation>Cette présentation %1 n’a de %2 sur aucune diapositive.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the %1 presentation: %2</source>
        <extracomment>%1: a presentation program; %2: why, a sentence or a part of one.</extracomment>
        <translation>La présentation %1 n’a pas pu être lue : %2</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImports</name>
    <message>
        <source>PowerPoint file (.pptx)…</source>
        <translation>Fichier PowerPoint (.pptx)…</translation>
    </message>
    <message>
        <source>Open %1 presentation</source>
        <extracomment>An item of a menu. %1: a presentation program, such as Keynote.</extracomment>
        <translation>Présentation ouverte dans %1</translation>
    </message>
    <message>
        <source>Choose a PowerPoint presentation — Orvello imports its speaker notes.</source>
        <translation>Choisissez une présentation PowerPoint : Orvello importe ses notes de l’orateur.</translation>
    </message>
    <message>
        <source>Import failed</source>
        <translation>Échec de l’importation</translation>
    </message>
    <message>
        <source>No speaker notes</source>
        <translation>Aucune note de l’orateur</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in PowerPoint&apos;s notes pane and re-import.</source>
        <translation>La présentation a été importée, mais aucune diapositive n’a de notes. Ajoutez-en dans le volet des notes de PowerPoint et importez de nouveau.</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in your presentation program&apos;s notes pane and re-import.</source>
        <translation>La présentation a été importée, mais aucune diapositive n’a de notes. Ajoutez-en dans le volet des notes de votre logiciel de présentation et importez de nouveau.</translation>
    </message>
    <message>
        <source>Imported the saved copy</source>
        <translation>Copie enregistrée importée</translation>
    </message>
    <message>
        <source>PowerPoint has unsaved changes, so the notes came from the last saved copy. Save the presentation and import again to include them.</source>
        <translation>PowerPoint contient des modifications non enregistrées ; les notes viennent donc de la dernière copie enregistrée. Enregistrez la présentation et importez de nouveau pour les inclure.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>Not all notes were imported</source>
        <translation>Toutes les notes n’ont pas été importées</translation>
    </message>
    <message>
        <source>The file holds more than Orvello reads: the notes of slides %1 could not be read.</source>
        <extracomment>%1: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>Le fichier contient plus que ce qu’Orvello lit : les notes des diapositives %1 n’ont pas pu être lues.</translation>
    </message>
    <message>
        <source>Presentation file (.pptx, .odp)…</source>
        <translation>Fichier de présentation (.pptx, .odp)…</translation>
    </message>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Lecture de ce qui est ouvert dans %1…</translation>
    </message>
    <message>
        <source>Choose a presentation — Orvello imports its speaker notes.</source>
        <translation>Choisissez une présentation : Orvello importe ses notes.</translation>
    </message>
    <message>
        <source>Not a presentation</source>
        <translation>Pas une présentation</translation>
    </message>
    <message>
        <source>Orvello imports speaker notes from presentations (.pptx, .odp). It cannot read %1.</source>
        <extracomment>%1: the names of files.</extracomment>
        <translation>Orvello importe les commentaires des présentations (.pptx, .odp). Il ne peut pas lire %1.</translation>
    </message>
    <message>
        <source>The notes of “%1” are among your scripts already. Update them, or add them once more?</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Les notes de « %1 » sont déjà parmi vos scripts. Faut-il les mettre à jour ou les ajouter encore une fois ?</translation>
    </message>
</context>
<context>
    <name>Orvello::DeletedScriptsModel</name>
    <message>
        <source>Deleted %1</source>
        <extracomment>%1: a date.</extracomment>
        <translation>Supprimé : %1</translation>
    </message>
</context>
<context>
    <name>Orvello::Facts</name>
    <message>
        <source>Keynote or PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>Keynote ou PowerPoint</translation>
    </message>
    <message>
        <source>Keynote or Microsoft PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>Keynote ou Microsoft PowerPoint</translation>
    </message>
</context>
<context>
    <name>Orvello::FeedLoader</name>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Le serveur n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The server redirects to an insecure address.</source>
        <translation>Le serveur redirige vers une adresse non sûre.</translation>
    </message>
    <message>
        <source>The document is too large.</source>
        <translation>Le document est trop grand.</translation>
    </message>
    <message>
        <source>The server answers with status %1.</source>
        <translation>Le serveur répond avec l’état %1.</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressAdviceDialog</name>
    <message>
        <source>Let Orvello follow your Impress presentations?</source>
        <translation>Autoriser Orvello à suivre vos présentations Impress ?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>While an Impress slideshow runs, and while you import an open presentation, Orvello has LibreOffice listen on a connection that gives control of all of LibreOffice, and uses it to read slide numbers, titles and notes. Only programs of your user account could reach it, Orvello takes its name away as soon as it is connected, and the connection ends with the slideshow or the import.</source>
        <translation>Pendant qu’un diaporama Impress est en cours, et pendant que vous importez une présentation ouverte, Orvello met LibreOffice à l’écoute sur une connexion qui donne le contrôle de tout LibreOffice, et s’en sert pour lire les numéros de diapositive, les titres et les notes. Seuls les programmes de votre compte pourraient l’atteindre, Orvello lui retire son nom dès qu’il est connecté, et la connexion prend fin avec le diaporama ou l’importation.</translation>
    </message>
    <message>
        <source>Orvello may now follow Impress. Start the slideshow or the import again.

The settings have a button that takes this back.</source>
        <translation>Orvello peut maintenant suivre Impress. Relancez le diaporama ou l’importation.

Les réglages ont un bouton qui annule cette autorisation.</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressPresenter</name>
    <message>
        <source>notes</source>
        <extracomment>What Impress calls a speaker&apos;s notes.</extracomment>
        <translation>notes</translation>
    </message>
    <message>
        <source>To follow Impress, Orvello needs the package python3-uno. Install it and try again.</source>
        <translation>Pour suivre Impress, Orvello a besoin du paquet python3-uno. Installez-le et réessayez.</translation>
    </message>
    <message>
        <source>LibreOffice isn&apos;t running.</source>
        <translation>LibreOffice n’est pas en cours d’exécution.</translation>
    </message>
    <message>
        <source>LibreOffice did not answer.</source>
        <translation>LibreOffice n’a pas répondu.</translation>
    </message>
    <message>
        <source>permission denied — Orvello asks LibreOffice only once you allow it</source>
        <extracomment>Follows &quot;Couldn&apos;t read the Impress presentation:&quot;.</extracomment>
        <translation>accès refusé — Orvello n’interroge LibreOffice qu’avec votre autorisation</translation>
    </message>
    <message>
        <source>This LibreOffice runs in a sandbox (%1) that Orvello cannot reach. Import the presentation&apos;s file instead, and step through the slides by hand.</source>
        <extracomment>%1: a kind of package, such as Flatpak or Snap.</extracomment>
        <translation>Ce LibreOffice s’exécute dans un bac à sable (%1) qu’Orvello ne peut pas atteindre. Importez plutôt le fichier de la présentation et faites défiler les diapositives à la main.</translation>
    </message>
</context>
<context>
    <name>Orvello::LaunchOptions</name>
    <message>
        <source>unknown option %1; did you mean %2?</source>
        <translation>option inconnue %1 ; vouliez-vous dire %2 ?</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>option inconnue %1</translation>
    </message>
    <message>
        <source>%1 is neither an option nor a preference with a value</source>
        <translation>%1 n’est ni une option ni un réglage suivi de sa valeur</translation>
    </message>
    <message>
        <source>%1 is no address that Orvello opens</source>
        <translation>%1 n’est pas une adresse qu’Orvello ouvre</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>il n’y a pas de fichier « %1 »</translation>
    </message>
    <message>
        <source>Try &quot;orvello --help&quot;.</source>
        <translation>Essayez « orvello --help ».</translation>
    </message>
    <message>
        <source>%1 is not a deck (.pptx or .odp)</source>
        <translation>%1 n’est pas une présentation (.pptx ou .odp)</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryNotices</name>
    <message>
        <source>Another Orvello is using your scripts, so nothing that you change here is saved. Quit this one and go on in the other.</source>
        <translation>Un autre Orvello utilise vos scripts : rien de ce que vous modifiez ici n’est enregistré. Quittez celui-ci et continuez dans l’autre.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because the disk is full. Orvello keeps trying.</source>
        <translation>Vos scripts ne peuvent pas être enregistrés, car le disque est plein. Orvello continue d’essayer.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because their folder is write-protected. Orvello keeps trying.</source>
        <translation>Vos scripts ne peuvent pas être enregistrés, car leur dossier est protégé en écriture. Orvello continue d’essayer.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved (%1). Orvello keeps trying.</source>
        <extracomment>%1: what the system says about it.</extracomment>
        <translation>Vos scripts ne peuvent pas être enregistrés (%1). Orvello continue d’essayer.</translation>
    </message>
    <message>
        <source>Your scripts file was lost or empty. There is a copy from %1.</source>
        <extracomment>%1: a date and a time.</extracomment>
        <translation>Le fichier de vos scripts manquait ou était vide. Il existe une copie du %1.</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. There is a copy from %1; what was in the file is kept as “%2”.</source>
        <extracomment>%1: a date and a time; %2: the name of a file.</extracomment>
        <translation>Le fichier de vos scripts était endommagé. Il existe une copie du %1 ; son contenu est conservé sous « %2 ».</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. What was in it is kept as “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Le fichier de vos scripts était endommagé. Son contenu est conservé sous « %1 ».</translation>
    </message>
    <message numerus="yes">
        <source>Bring back %n scripts</source>
        <extracomment>A button.</extracomment>
        <translation>
            <numerusform>Récupérer %n script</numerusform>
            <numerusform>Récupérer %n scripts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryStore</name>
    <message>
        <source>My Script</source>
        <extracomment>The title of the only script of a user of the first versions.</extracomment>
        <translation>Mon script</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>The title of a new script.</extracomment>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The title of a copied script. %1: the title of the original.</extracomment>
        <translation>%1 (copie)</translation>
    </message>
    <message>
        <source>%1 (before the update)</source>
        <extracomment>The title of a former version of a script. %1: the title of the script.</extracomment>
        <translation>%1 (avant la mise à jour)</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryViewModel</name>
    <message>
        <source>Export this script</source>
        <extracomment>Above the panel in which the user says where the script is to be written.</extracomment>
        <translation>Exporter ce script</translation>
    </message>
    <message numerus="yes">
        <source>Export %n scripts</source>
        <translation>
            <numerusform>Exporter %n script</numerusform>
            <numerusform>Exporter %n scripts</numerusform>
        </translation>
    </message>
    <message>
        <source>Scripts</source>
        <extracomment>The name of a file with several scripts.</extracomment>
        <translation>Scripts</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Échec de l’exportation</translation>
    </message>
    <message>
        <source>“%1” could not be written (%2).</source>
        <extracomment>%1: the name of a file; %2: what the system says about it.</extracomment>
        <translation>Impossible d’écrire « %1 » (%2).</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryWindow</name>
    <message>
        <source>Scripts</source>
        <translation>Scripts</translation>
    </message>
</context>
<context>
    <name>Orvello::LinuxWakefulness</name>
    <message>
        <source>The prompter is being read</source>
        <extracomment>Why the display is kept on, for a desktop that shows it: at most about 60 characters.</extracomment>
        <translation>Le prompteur est en cours de lecture</translation>
    </message>
</context>
<context>
    <name>Orvello::LiveDeckImport</name>
    <message>
        <source>%1 deck</source>
        <extracomment>The title of a deck without a name. %1: a presentation program, such as Keynote.</extracomment>
        <translation>Présentation %1</translation>
    </message>
</context>
<context>
    <name>Orvello::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>Orvello::OnboardingWindowController</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Bienvenue dans Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::OtherDeckNotice</name>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Lecture de ce qui est ouvert dans %1…</translation>
    </message>
    <message>
        <source>These notes are from another presentation than the one on screen.</source>
        <extracomment>On the card. %1: the name of a presentation.</extracomment>
        <translation>Ces notes sont celles d’une autre présentation que celle à l’écran.</translation>
    </message>
    <message>
        <source>“%1” is on screen. These notes are from another presentation.</source>
        <translation>« %1 » est à l’écran. Ces notes sont celles d’une autre présentation.</translation>
    </message>
    <message>
        <source>Switch to its notes</source>
        <extracomment>A button on the card: shows the notes of the presentation that is on screen.</extracomment>
        <translation>Passer à ses notes</translation>
    </message>
    <message>
        <source>Import its notes</source>
        <translation>Importer ses notes</translation>
    </message>
</context>
<context>
    <name>Orvello::PptxImporter</name>
    <message>
        <source>The file could not be opened as a PowerPoint package.</source>
        <translation>Le fichier n’a pas pu être ouvert en tant que présentation PowerPoint.</translation>
    </message>
    <message>
        <source>No slides were found — is this a .pptx presentation?</source>
        <translation>Aucune diapositive trouvée. Est-ce une présentation .pptx ?</translation>
    </message>
    <message>
        <source>The presentation is protected by a password. Save a copy without one in your presentation program, and import that.</source>
        <translation>La présentation est protégée par un mot de passe. Enregistrez-en une copie sans mot de passe dans votre logiciel de présentation et importez-la.</translation>
    </message>
</context>
<context>
    <name>Orvello::PrompterStatus</name>
    <message>
        <source>get ready</source>
        <extracomment>On the card, at most about 20 characters: the countdown runs.</extracomment>
        <translation>tenez-vous prêt</translation>
    </message>
    <message>
        <source>hover pause</source>
        <extracomment>On the card, at most about 20 characters: the pointer over the card holds the text.</extracomment>
        <translation>pause par survol</translation>
    </message>
    <message>
        <source>paused</source>
        <extracomment>On the card, at most about 20 characters: the text stands still.</extracomment>
        <translation>en pause</translation>
    </message>
    <message>
        <source>listening…</source>
        <extracomment>On the card, at most about 20 characters: the text waits for the user to speak.</extracomment>
        <translation>à l’écoute…</translation>
    </message>
    <message>
        <source>scrolling</source>
        <extracomment>On the card, at most about 20 characters: the text moves.</extracomment>
        <translation>défilement</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingClock</name>
    <message>
        <source>%1 left</source>
        <extracomment>On the card, at most about 15 characters. %1: minutes and seconds, as in &quot;3:12&quot;.</extracomment>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>%1 · %2 left</source>
        <extracomment>On the card, at most about 25 characters. %1: how long the reader has been reading; %2: how long the rest takes, both as in &quot;3:12&quot;.</extracomment>
        <translation>%1 · reste %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingPace</name>
    <message>
        <source>The prompter has no text to scroll.</source>
        <translation>Le prompteur n’a aucun texte à faire défiler.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n characters a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · environ %n caractères par minute dans ce script</numerusform>
            <numerusform>%1 pt/s · environ %n caractères par minute dans ce script</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n words a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · environ %n mot par minute dans ce script</numerusform>
            <numerusform>%1 pt/s · environ %n mots par minute dans ce script</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: faster than speech</source>
        <extracomment>%1: as in &quot;25 pt/s · about 250 words a minute in this script&quot;.</extracomment>
        <translation>%1 : plus vite que la parole</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptEditor</name>
    <message numerus="yes">
        <source>%n words</source>
        <translation>
            <numerusform>%n mot</numerusform>
            <numerusform>%n mots</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported deck (%1) — notes are read-only here; edit them in the presentation and re-import.</source>
        <extracomment>%1: where the deck is from: a program or a file.</extracomment>
        <translation>Présentation importée (%1) : les notes sont en lecture seule ici ; modifiez-les dans la présentation et importez de nouveau.</translation>
    </message>
    <message>
        <source>%1 · about %2</source>
        <extracomment>%1: how many words, as in &quot;52 words&quot;; %2: minutes and seconds, as in &quot;0:22&quot;.</extracomment>
        <translation>%1 · environ %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptListModel</name>
    <message>
        <source>Untitled</source>
        <extracomment>Stands for a script without a title.</extracomment>
        <translation>Sans titre</translation>
    </message>
    <message numerus="yes">
        <source>%n slides</source>
        <translation>
            <numerusform>%n diapositive</numerusform>
            <numerusform>%n diapositives</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::SensitivityTest</name>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>Parlez normalement pendant cinq secondes.</translation>
    </message>
    <message>
        <source>Waiting for the microphone…</source>
        <translation>En attente du microphone…</translation>
    </message>
    <message>
        <source>A sensitivity of %1% suits your voice here.</source>
        <extracomment>%1: a whole number.</extracomment>
        <translation>Pour votre voix, une sensibilité de %1 % convient ici.</translation>
    </message>
    <message>
        <source>No voice stood out from the room. Come closer to the microphone, or choose another one.</source>
        <translation>Aucune voix ne s’est détachée du bruit de la pièce. Rapprochez-vous du microphone ou choisissez-en un autre.</translation>
    </message>
</context>
<context>
    <name>Orvello::SettingsForm</name>
    <message>
        <source>%1%</source>
        <extracomment>%1: a number. The sign stands where the language has it.</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Font size — %1</source>
        <extracomment>%1: the size in points.</extracomment>
        <translation>Taille du texte — %1</translation>
    </message>
    <message>
        <source>Scroll speed — %1 pt/s</source>
        <extracomment>%1: points per second.</extracomment>
        <translation>Vitesse de défilement — %1 pt/s</translation>
    </message>
    <message>
        <source>Background opacity — %1</source>
        <extracomment>%1: a percentage.</extracomment>
        <translation>Opacité du fond — %1</translation>
    </message>
    <message>
        <source>Sensitivity — %1</source>
        <extracomment>Of the microphone&apos;s detector of speech. %1: a percentage.</extracomment>
        <translation>Sensibilité — %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation>3 secondes</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 secondes</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 secondes</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Your settings could not be read, so they are as new. The old file is kept: %1</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Vos réglages n’ont pas pu être lus ; ils sont donc comme neufs. L’ancien fichier est conservé : %1</translation>
    </message>
</context>
<context>
    <name>Orvello::SettingsWindow</name>
    <message>
        <source>Orvello Settings</source>
        <translation>Réglages d’Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::ShortcutList</name>
    <message>
        <source>Speed up / down</source>
        <extracomment>What two keys do, one each. The second text is for a narrow list: at most about 20 characters.</extracomment>
        <translation>Accélérer / ralentir</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>%1 (another program has it)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1 (prise par un autre programme)</translation>
    </message>
    <message>
        <source>%1 (not on this keyboard)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1 (absente de ce clavier)</translation>
    </message>
</context>
<context>
    <name>Orvello::SlideStatus</name>
    <message>
        <source>Live</source>
        <extracomment>On the card, at most about 12 characters: the notes follow the running slideshow.</extracomment>
        <translation>En direct</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>On the card, at most about 12 characters: the presentation program may not be asked.</extracomment>
        <translation>Sans accès</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>On the card, at most about 12 characters: the user turns the notes by hand.</extracomment>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>On the card: which slide of how many.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Other deck</source>
        <extracomment>On the card, at most about 12 characters: the slideshow shows another presentation.</extracomment>
        <translation>Autre exposé</translation>
    </message>
</context>
<context>
    <name>Orvello::StatusMenu</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Orvello %1</source>
        <extracomment>A line of the help menu. %1: the program&apos;s version, such as &quot;2.1 (57)&quot;.</extracomment>
        <translation>Orvello %1</translation>
    </message>
</context>
<context>
    <name>Orvello::Support</name>
    <message>
        <source>Orvello %1</source>
        <extracomment>The subject of a mail to the support. %1: the program&apos;s version.</extracomment>
        <translation>Orvello %1</translation>
    </message>
    <message>
        <source>Orvello %1, %2
If something went wrong, attach the log: Orvello menu → Help → Reveal Log Files.</source>
        <extracomment>The last lines of a mail to the support, below what the user writes. %1: the program&apos;s version, %2: the operating system with its version. The path names the menu&apos;s lines.</extracomment>
        <translation>Orvello %1, %2
En cas de problème, joignez le journal : menu Orvello → Aide → Afficher les journaux.</translation>
    </message>
</context>
<context>
    <name>Orvello::UpdateDialogs</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Rechercher les mises à jour automatiquement ?</translation>
    </message>
    <message>
        <source>Once a day, Orvello would look at the vendor&apos;s web site for a newer version. Nothing about you is sent. You can change this in the settings at any time.</source>
        <translation>Une fois par jour, Orvello consulterait le site web de l’éditeur pour savoir s’il existe une version plus récente. Rien n’est envoyé à votre sujet. Vous pouvez changer cela à tout moment dans les réglages.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Rechercher automatiquement</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Ne pas rechercher</translation>
    </message>
    <message>
        <source>Orvello %1 is available.</source>
        <extracomment>%1: the version, such as 2.1.</extracomment>
        <translation>Orvello %1 est disponible.</translation>
    </message>
    <message>
        <source>You have %1. The new version is on its download page, which Install opens in your browser.</source>
        <extracomment>%1: the version. Install is the button&apos;s name.</extracomment>
        <translation>Vous avez la version %1. La nouvelle se trouve sur sa page de téléchargement, que le bouton Installer ouvre dans votre navigateur.</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Installer…</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation>Vous avez la version %1.</translation>
    </message>
</context>
<context>
    <name>Orvello::VoiceActivityEngine</name>
    <message>
        <source>another app is using the microphone</source>
        <extracomment>Stands in brackets in the middle of a sentence.</extracomment>
        <translation>une autre application utilise le microphone</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Stands in brackets in the middle of a sentence. %1: a meeting program.</extracomment>
        <translation>%1 est ouvert</translation>
    </message>
    <message>
        <source>The microphone may not be used.</source>
        <translation>L’utilisation du microphone n’est pas autorisée.</translation>
    </message>
    <message>
        <source>The sound system does not answer.</source>
        <translation>Le système audio ne répond pas.</translation>
    </message>
    <message>
        <source>No microphone is connected.</source>
        <translation>Aucun microphone n’est connecté.</translation>
    </message>
    <message>
        <source>No microphone is connected. Connect one, then turn Voice-Follow off and on.</source>
        <translation>Aucun microphone n’est connecté. Connectez-en un, puis désactivez et réactivez le suivi de la voix.</translation>
    </message>
    <message>
        <source>The microphone “%1” is muted.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>Le microphone « %1 » est coupé.</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone “%1”. Another program may keep it to itself.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>Rien ne vient du microphone « %1 ». Un autre programme se le réserve peut-être.</translation>
    </message>
    <message>
        <source>The microphone could not be started.</source>
        <translation>Le microphone n’a pas pu démarrer.</translation>
    </message>
    <message>
        <source>The microphone could not be started. Turn Voice-Follow off and on to try again.</source>
        <translation>Le microphone n’a pas pu démarrer. Désactivez et réactivez le suivi de la voix pour réessayer.</translation>
    </message>
    <message>
        <source>Echo cancellation is on.</source>
        <translation>L’annulation de l’écho est active.</translation>
    </message>
    <message>
        <source>Echo cancellation is paused: %1.</source>
        <extracomment>%1: why, such as &quot;Zoom is open&quot;.</extracomment>
        <translation>L’annulation de l’écho est suspendue : %1.</translation>
    </message>
    <message>
        <source>Echo cancellation is not available.</source>
        <translation>L’annulation de l’écho n’est pas disponible.</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>The microphone that the desktop&apos;s settings choose.</extracomment>
        <translation>Celui du système</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>%1 (non connecté)</translation>
    </message>
    <message>
        <source>Listening to “%1”.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>À l’écoute de « %1 ».</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeScript</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Bienvenue dans Orvello</translation>
    </message>
    <message>
        <source>Welcome to Orvello. This is your private teleprompter.</source>
        <translation>Bienvenue dans Orvello, votre téléprompteur privé.</translation>
    </message>
    <message>
        <source>Drag this panel anywhere — put it right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>Faites glisser ce panneau où vous voulez, de préférence juste sous votre caméra pour un regard naturel. Redimensionnez-le par n’importe quel bord.</translation>
    </message>
    <message>
        <source>Press %1P to start or pause scrolling. Use %1Up or Down to change the speed on the fly. Hover the mouse over this panel any time to pause instantly; move away and it resumes.</source>
        <extracomment>%1: the keys to hold, as in &quot;Option-Command-P&quot; or &quot;Alt+Super+P&quot;. Up and Down are the arrow keys.</extracomment>
        <translation>Appuyez sur %1P pour lancer ou suspendre le défilement. Avec %1Haut ou Bas, changez la vitesse en cours de route. Passez la souris sur ce panneau pour suspendre aussitôt ; éloignez-la, et il reprend.</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu bar and the script scrolls while you speak, then waits when you pause.</source>
        <translation>Activez le suivi de la voix dans la barre des menus : le script défile quand vous parlez et attend quand vous vous taisez.</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu and the script scrolls while you speak, then waits when you pause. The menu opens from the tray, or with a right click on this panel.</source>
        <translation>Activez le suivi de la voix dans le menu : le script défile quand vous parlez et attend quand vous vous taisez. Le menu s’ouvre depuis la zone de notification, ou par un clic droit sur ce panneau.</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window is invisible to screen sharing, recordings, and screenshots. Your audience only sees your slides — never your notes.</source>
        <translation>En mode furtif, cette fenêtre est invisible pour les partages d’écran, les enregistrements et les captures. Votre public ne voit que vos diapositives, jamais vos notes.</translation>
    </message>
    <message>
        <source>Sharing your screen? Leave Stealth Mode alone while you share — toggling it mid-share can make your meeting app show a gray box where the prompter sits. Close and open Orvello again to clear it.</source>
        <translation>Vous partagez votre écran ? Ne touchez pas au mode furtif pendant ce temps : le basculer en plein partage peut faire apparaître un cadre gris à la place du prompteur. Fermez puis rouvrez Orvello pour l’effacer.</translation>
    </message>
    <message>
        <source>Sharing your screen? This desktop cannot hide a window, so whoever sees your whole screen sees this panel too. Share only the window of your slides, and keep this panel beside it: your audience then sees your slides, not your notes.</source>
        <translation>Vous partagez votre écran ? Ce bureau ne peut pas cacher une fenêtre : qui voit votre écran entier voit aussi ce panneau. Ne partagez que la fenêtre de vos diapositives et laissez ce panneau à côté : votre public voit alors vos diapositives, pas vos notes.</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window stays out of screen sharing, recordings, and screenshots as far as this system allows. Newer recorders may show it all the same: share only the window of your slides, and your audience never sees your notes.</source>
        <translation>En mode furtif, cette fenêtre reste hors des partages d’écran, des enregistrements et des captures dans la mesure où ce système le permet. Les programmes d’enregistrement récents peuvent la montrer malgré tout : ne partagez que la fenêtre de vos diapositives, et votre public ne verra jamais vos notes.</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeTour</name>
    <message>
        <source>Zoom → Share Screen → &quot;your slides&apos; window&quot; (not &quot;Entire Screen&quot;)</source>
        <translation>Zoom → Partager l’écran → « la fenêtre de vos diapositives » (pas « l’écran entier »)</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &quot;Advanced capture with window filtering&quot; (or &quot;Previous operating systems&quot;)</source>
        <translation>Zoom → Paramètres → Partage d’écran → Avancé → Mode de capture d’écran → « Capture avancée avec filtrage des fenêtres » (ou « Systèmes d’exploitation précédents »)</translation>
    </message>
</context>
<context>
    <name>OtherDeck</name>
    <message>
        <source>Keep these notes</source>
        <translation>Garder ces notes</translation>
    </message>
</context>
<context>
    <name>PrivacySettings</name>
    <message>
        <source>Privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>Stealth Mode — hide from screen sharing, recordings &amp; screenshots</source>
        <translation>Mode furtif : cacher aux partages d’écran, enregistrements et captures</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window from screen sharing, recordings, or screenshots. There the prompter is visible, whether Stealth Mode is on or off.</source>
        <translation>Ce bureau ne peut pas cacher une fenêtre aux partages d’écran, aux enregistrements ni aux captures. Le prompteur y est visible, que le mode furtif soit activé ou non.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while staying fully visible to you.</source>
        <translation>Si le mode furtif est activé avant le début d’un partage, le prompteur est invisible pour les partages d’écran, les enregistrements et les captures (Zoom, Meet, QuickTime et d’autres), tout en restant bien visible pour vous.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots — while staying fully visible to you.</source>
        <translation>Si le mode furtif est activé avant le début d’un partage, le prompteur est invisible pour les partages d’écran, les enregistrements et les captures, tout en restant bien visible pour vous.</translation>
    </message>
    <message>
        <source>Stealth Mode takes effect on desktops that can keep a window out of screen sharing, recordings, and screenshots. With it on, the prompter&apos;s card says when this one cannot.</source>
        <translation>Le mode furtif agit sur les bureaux qui savent soustraire une fenêtre aux partages d’écran, aux enregistrements et aux captures. Quand il est activé, la carte du prompteur dit si celui-ci ne le peut pas.</translation>
    </message>
    <message>
        <source>Leave Stealth Mode alone during a live share: toggling it mid-share can make the meeting app draw a gray box in its place (close and open Orvello again to clear it). For zero risk, share the presentation window instead of the whole screen.</source>
        <translation>Ne touchez pas au mode furtif pendant un partage : le basculer peut faire apparaître un cadre gris à sa place (fermez puis rouvrez Orvello pour l’effacer). Pour un risque nul, partagez la fenêtre de la présentation au lieu de l’écran entier.</translation>
    </message>
    <message>
        <source>Share the presentation window instead of the whole screen, and keep the prompter beside it: some programs, recorders above all, capture the place of a window with everything that is in front of it.</source>
        <translation>Partagez la fenêtre de la présentation plutôt que tout l’écran, et gardez le prompteur à côté : certains programmes, surtout d’enregistrement, capturent l’emplacement d’une fenêtre avec tout ce qui se trouve devant.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter stays out of screen sharing, recordings, and screenshots as far as this system allows — while staying fully visible to you. Newer recorders may show it all the same: try yours before you rely on it.</source>
        <translation>Si le mode furtif est activé avant le début d’un partage, le prompteur reste hors des partages d’écran, des enregistrements et des captures dans la mesure où ce système le permet, tout en restant bien visible pour vous. Les programmes d’enregistrement récents peuvent le montrer malgré tout : essayez le vôtre avant de vous y fier.</translation>
    </message>
</context>
<context>
    <name>PrompterSettings</name>
    <message>
        <source>Prompter</source>
        <translation>Prompteur</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>The opacity has no effect at the moment: windows can be translucent only while the desktop runs a compositor.</source>
        <extracomment>A compositor is the part of a Linux desktop that makes windows translucent.</extracomment>
        <translation>L’opacité est sans effet pour le moment : les fenêtres ne peuvent être translucides que si un compositeur est actif sur le bureau.</translation>
    </message>
</context>
<context>
    <name>PrompterView</name>
    <message>
        <source>Prompter</source>
        <translation>Prompteur</translation>
    </message>
    <message>
        <source>DEBUG — VISIBLE IN RECORDINGS</source>
        <extracomment>On the card, at most about 40 characters: others can see the prompter.</extracomment>
        <translation>DÉBOGAGE — VISIBLE ENREGISTREMENTS</translation>
    </message>
    <message>
        <source>VISIBLE IN RECORDINGS</source>
        <translation>VISIBLE DANS LES ENREGISTREMENTS</translation>
    </message>
</context>
<context>
    <name>ReadingSettings</name>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Characters a minute</source>
        <translation>Caractères par minute</translation>
    </message>
    <message>
        <source>Words a minute</source>
        <translation>Mots par minute</translation>
    </message>
    <message>
        <source>Keep my pace with another text, size or width</source>
        <translation>Garder mon rythme avec un autre texte, une autre taille ou largeur</translation>
    </message>
    <message>
        <source>Time on the prompter</source>
        <translation>Temps sur le prompteur</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Restant</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Écoulé</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Les deux</translation>
    </message>
</context>
<context>
    <name>RecordingBadge</name>
    <message>
        <source>Show the badge in full</source>
        <extracomment>Read aloud: the button makes the words &quot;VISIBLE IN RECORDINGS&quot; on the card a small eye, or words again.</extracomment>
        <translation>Afficher l’indication en entier</translation>
    </message>
    <message>
        <source>Fold the badge to an eye</source>
        <translation>Réduire l’indication à un œil</translation>
    </message>
</context>
<context>
    <name>ScriptRow</name>
    <message>
        <source>%2, %1</source>
        <extracomment>Read aloud. %2: a script&apos;s title, which goes in last, as it may hold a &quot;%1&quot;; %1: how many slides, as in &quot;4 slides&quot;.</extracomment>
        <translation>%2, %1</translation>
    </message>
</context>
<context>
    <name>ScriptSidebar</name>
    <message>
        <source>Scripts</source>
        <translation>Scripts</translation>
    </message>
    <message>
        <source>New script</source>
        <translation>Nouveau script</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search titles and texts</source>
        <translation>Rechercher dans les titres et les textes</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Export All…</source>
        <extracomment>All scripts of the list, into one file.</extracomment>
        <translation>Tout exporter…</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <extracomment>Where the list of scripts is, when none has what is searched for.</extracomment>
        <translation>Aucun résultat</translation>
    </message>
</context>
<context>
    <name>SessionSettings</name>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Countdown before start</source>
        <translation>Compte à rebours avant le départ</translation>
    </message>
    <message>
        <source>Press P to pause during a slideshow</source>
        <translation>Appuyer sur P pour suspendre pendant un diaporama</translation>
    </message>
    <message>
        <source>While a %1 slideshow is on-screen (where the cursor is hidden, so hover-to-pause can&apos;t work), a plain P pauses or resumes. It&apos;s active only during the slideshow, so it won&apos;t interfere with typing elsewhere. %2 always works too.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;; %2: keys, as in &quot;⌥⌘P&quot;.</extracomment>
        <translation>Pendant un diaporama de %1 (le pointeur y est caché, le survol ne peut donc pas suspendre), la simple touche P suspend ou reprend. Elle n’agit que pendant le diaporama et ne gêne donc pas la saisie ailleurs. %2 fonctionne toujours.</translation>
    </message>
</context>
<context>
    <name>SettingsShortcut</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Read aloud. %1: what the keys do; %2: the keys.</extracomment>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>ShareNotice</name>
    <message>
        <source>Toggling Stealth Mode during a screen share can gray out this prompter — close and open Orvello again to clear it.</source>
        <translation>Basculer le mode furtif pendant un partage d’écran peut griser ce prompteur : fermez puis rouvrez Orvello pour l’effacer.</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Stealth Mode has no effect on this desktop — whoever sees your screen sees this prompter, too.</source>
        <translation>Le mode furtif est sans effet sur ce bureau — qui voit votre écran voit aussi ce prompteur.</translation>
    </message>
</context>
<context>
    <name>ShortcutSettings</name>
    <message>
        <source>Keyboard shortcuts (global)</source>
        <translation>Raccourcis clavier (globaux)</translation>
    </message>
    <message>
        <source>Other keys</source>
        <translation>Autres touches</translation>
    </message>
    <message>
        <source>Change Shortcuts…</source>
        <translation>Modifier les raccourcis…</translation>
    </message>
</context>
<context>
    <name>SlideChip</name>
    <message>
        <source>Slide %1</source>
        <extracomment>Read aloud. %1: which slide of how many, as in &quot;2 / 14&quot;.</extracomment>
        <translation>Diapositive %1</translation>
    </message>
    <message>
        <source>%2, %1</source>
        <extracomment>Read aloud. %2: the slide&apos;s title, which goes in last, as it may hold a &quot;%1&quot;; %1: who turns the slides, as in &quot;Live&quot;.</extracomment>
        <translation>%2, %1</translation>
    </message>
    <message>
        <source>Previous slide</source>
        <translation>Diapositive précédente</translation>
    </message>
    <message>
        <source>Next slide</source>
        <translation>Diapositive suivante</translation>
    </message>
</context>
<context>
    <name>SlidesSettings</name>
    <message>
        <source>Slides</source>
        <translation>Diapositives</translation>
    </message>
    <message>
        <source>Slide Tracking — notes follow the live slideshow</source>
        <translation>Suivi des diapositives : les notes suivent le diaporama</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. The first time, macOS asks to let Orvello control that app — that&apos;s the sync. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Avec une présentation importée (Scripts → bouton d’importation) et le suivi des diapositives activé, le prompteur montre les notes de la diapositive en cours et change de lui-même quand vous avancez dans %1. La première fois, macOS demande si Orvello peut contrôler cette application : c’est la synchronisation. Désactivez le suivi pour faire défiler toute la présentation comme un script ordinaire.</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: a presentation program.</extracomment>
        <translation>Avec une présentation importée (Scripts → bouton d’importation) et le suivi des diapositives activé, le prompteur montre les notes de la diapositive en cours et change de lui-même quand vous avancez dans %1. Désactivez le suivi pour faire défiler toute la présentation comme un script ordinaire.</translation>
    </message>
    <message>
        <source>If sync shows &quot;No access&quot;: System Settings → Privacy &amp; Security → Automation → Orvello → allow %1, then toggle Slide Tracking off and on.</source>
        <extracomment>The words in quotation marks are those of the card. %1: presentation programs.</extracomment>
        <translation>Si « Sans accès » s’affiche : Réglages Système → Confidentialité et sécurité → Automatisation → Orvello → autorisez %1, puis désactivez et réactivez le suivi des diapositives.</translation>
    </message>
    <message>
        <source>Orvello may not follow Impress</source>
        <translation>Orvello ne peut pas suivre Impress</translation>
    </message>
    <message>
        <source>Orvello may follow Impress</source>
        <translation>Orvello peut suivre Impress</translation>
    </message>
    <message>
        <source>Orvello may follow Impress, but could not</source>
        <translation>Orvello a le droit de suivre Impress, mais n’a pas pu</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
</context>
<context>
    <name>StatusBadge</name>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Reading time</source>
        <translation>Temps de lecture</translation>
    </message>
</context>
<context>
    <name>TourCloseButton</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>TourCopyButton</name>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>Copier le chemin</translation>
    </message>
</context>
<context>
    <name>TourDots</name>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>Read aloud. %1: a page of the tour; %2: how many there are.</extracomment>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>TourFeature</name>
    <message>
        <source>%1. %2</source>
        <extracomment>Read aloud, two sentences. %1: a title; %2: a text.</extracomment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>TourFooter</name>
    <message>
        <source>Skip tour</source>
        <translation>Passer la visite</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Open my prompter</source>
        <translation>Ouvrir mon prompteur</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>TourKeyRow</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Read aloud. %1: keys; %2: what they do.</extracomment>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>TourPrivacyPage</name>
    <message>
        <source>One rule keeps your notes off the recording: share a window, never the whole screen.</source>
        <translation>Une règle garde vos notes hors de l’enregistrement : partagez une fenêtre, jamais l’écran entier.</translation>
    </message>
    <message>
        <source>One rule and one safety net keep your notes off the recording.</source>
        <translation>Une règle et un filet de sécurité gardent vos notes hors de l’enregistrement.</translation>
    </message>
    <message>
        <source>One rule, one safety net, and one Zoom setting keep your notes off the recording.</source>
        <translation>Une règle, un filet de sécurité et un réglage de Zoom gardent vos notes hors de l’enregistrement.</translation>
    </message>
    <message>
        <source>Stealth Mode is on by default</source>
        <translation>Le mode furtif est activé d’origine</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window</source>
        <translation>Ce bureau ne peut pas cacher une fenêtre</translation>
    </message>
    <message>
        <source>No app can keep its window out of screen captures here, so Stealth Mode has no effect. The prompter says so on its card: whoever sees your whole screen sees it too.</source>
        <translation>Ici, aucune application ne peut soustraire sa fenêtre aux captures d’écran ; le mode furtif n’a donc pas d’effet. Le prompteur le dit sur sa carte : qui voit votre écran entier le voit aussi.</translation>
    </message>
    <message>
        <source>Turn it on before you share and leave it alone. Toggling it mid-share can make your meeting app draw a gray box where the prompter sits — close and reopen Orvello to clear it.</source>
        <translation>Activez-le avant de partager et n’y touchez plus. Le basculer en plein partage peut faire apparaître un cadre gris à la place du prompteur : fermez puis rouvrez Orvello pour l’effacer.</translation>
    </message>
    <message>
        <source>Want zero risk? Share just the window</source>
        <translation>Zéro risque ? Ne partagez que la fenêtre</translation>
    </message>
    <message>
        <source>Full-screen sharing works with Stealth Mode on. Sharing only the %1 window takes the risk to zero — a window share can never include the prompter.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Le partage de l’écran entier convient avec le mode furtif. Ne partager que la fenêtre de %1 annule le risque : une fenêtre partagée ne peut jamais contenir le prompteur.</translation>
    </message>
    <message>
        <source>Share just the window</source>
        <translation>Partagez seulement la fenêtre</translation>
    </message>
    <message>
        <source>In your meeting app, choose the window of your slides instead of the entire screen, and keep the prompter beside it: some recorders capture the window&apos;s place with everything in front of it.</source>
        <translation>Dans votre app de réunion, choisissez la fenêtre de vos diapositives plutôt que tout l’écran, et gardez le prompteur à côté. Certains programmes, surtout d’enregistrement, capturent l’emplacement d’une fenêtre avec tout ce qui se trouve devant.</translation>
    </message>
    <message>
        <source>One rule: share a window, never the whole screen.</source>
        <translation>Une règle : partagez une fenêtre, jamais tout l’écran.</translation>
    </message>
    <message>
        <source>A share of the full screen may show the prompter here. Sharing only the %1 window takes the risk to zero — a window share can never include it.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Un partage de tout l’écran peut montrer le prompteur ici. Ne partager que la fenêtre de %1 réduit le risque à zéro : un partage de fenêtre ne peut jamais l’inclure.</translation>
    </message>
</context>
<context>
    <name>TourSetupPage</name>
    <message>
        <source>You&apos;re set. Here&apos;s where things are.</source>
        <translation>Tout est prêt. Voici où se trouve chaque chose.</translation>
    </message>
    <message>
        <source>Drag the prompter right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>Faites glisser le prompteur juste sous votre caméra pour un regard naturel. Redimensionnez-le par n’importe quel bord.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Pause during a slideshow</source>
        <translation>Pause pendant un diaporama</translation>
    </message>
    <message>
        <source>Hover</source>
        <extracomment>Instead of a key: the pointer rests on the prompter.</extracomment>
        <translation>Survol</translation>
    </message>
    <message>
        <source>Pause instantly</source>
        <translation>Pause immédiate</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barre des menus</translation>
    </message>
    <message>
        <source>Tray menu</source>
        <translation>Menu de la zone de notification</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour.</source>
        <translation>… ainsi que Scripts, où vous écrivez ou importez ce que vous dites, les réglages et cette visite.</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour. Without a tray, right-click the prompter.</source>
        <translation>… ainsi que Scripts, où vous écrivez ou importez ce que vous dites, les réglages et cette visite. Sans zone de notification, faites un clic droit sur le prompteur.</translation>
    </message>
</context>
<context>
    <name>TourVoiceTest</name>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>Trouver la sensibilité pour ma voix</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>Niveau du micro</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Adopter</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Tester</translation>
    </message>
</context>
<context>
    <name>TourWelcomePage</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Bienvenue dans Orvello</translation>
    </message>
    <message>
        <source>Your private teleprompter. Your audience sees your slides — never your notes.</source>
        <translation>Votre téléprompteur privé. Votre public voit vos diapositives, jamais vos notes.</translation>
    </message>
    <message>
        <source>Invisible on screen shares</source>
        <translation>Invisible dans les partages d’écran</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots — while you see it perfectly.</source>
        <translation>Le mode furtif cache le prompteur à Zoom, Meet, Teams, aux enregistrements et aux captures, alors que vous le voyez parfaitement.</translation>
    </message>
    <message>
        <source>Follows your voice</source>
        <translation>Suit votre voix</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — nothing is recorded or uploaded.</source>
        <translation>Défile quand vous parlez, attend quand vous vous taisez. Le son n’est analysé que sur ce Mac : rien n’est enregistré ni envoyé.</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this computer only — nothing is recorded or uploaded.</source>
        <translation>Défile quand vous parlez, attend quand vous vous taisez. Le son n’est analysé que sur cet ordinateur : rien n’est enregistré ni envoyé.</translation>
    </message>
    <message>
        <source>Follows your slides</source>
        <translation>Suit vos diapositives</translation>
    </message>
    <message>
        <source>Import a .pptx or an open %1 deck and the speaker notes flip with your slideshow.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Importez un fichier .pptx ou une présentation ouverte dans %1, et les notes changent avec vos diapositives.</translation>
    </message>
    <message>
        <source>Share a window in Zoom, Meet or Teams, keep the prompter beside it, and only you see it. In a share of the whole screen, this desktop shows it to everyone.</source>
        <translation>Partagez une fenêtre dans Zoom, Meet ou Teams, gardez le prompteur à côté, et vous seul le voyez. Si tout l’écran est partagé, ce bureau le montre à tout le monde.</translation>
    </message>
    <message>
        <source>Your private teleprompter. Share your slides&apos; window alone, keep the prompter beside it, and your notes are yours.</source>
        <translation>Votre téléprompteur privé. Ne partagez que la fenêtre de vos diapositives, laissez le prompteur à côté, et vos notes restent à vous.</translation>
    </message>
    <message>
        <source>Beside the window that you share</source>
        <translation>À côté de la fenêtre partagée</translation>
    </message>
    <message>
        <source>Hidden where the system allows</source>
        <translation>Caché là où le système le permet</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter as far as this system allows. Newer recorders may show it all the same: try yours first.</source>
        <translation>Le mode furtif masque le prompteur autant que ce système le permet. Les enregistreurs récents peuvent le montrer malgré tout : essayez d’abord le vôtre.</translation>
    </message>
</context>
<context>
    <name>TourZoomCard</name>
    <message>
        <source>Using Zoom? Set this once</source>
        <translation>Vous utilisez Zoom ? À régler une fois</translation>
    </message>
    <message>
        <source>Using Zoom? Share a window</source>
        <translation>Vous utilisez Zoom ? Partagez une fenêtre</translation>
    </message>
    <message>
        <source>No setting of Zoom hides the prompter here: a share of the entire screen shows your notes.</source>
        <translation>Ici, aucun réglage de Zoom ne cache le prompteur : le partage de l’écran entier montre vos notes.</translation>
    </message>
    <message>
        <source>Zoom&apos;s default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes.</source>
        <translation>Le réglage d’origine de Zoom, Auto, convient en général, mais il choisit une méthode de capture à chaque session, et l’une d’elles peut montrer vos notes.</translation>
    </message>
    <message>
        <source>Zoom → Share Screen → &lt;b&gt;your slides&apos; window&lt;/b&gt; (not Entire Screen).</source>
        <extracomment>The words between &lt;b&gt; and &lt;/b&gt; are shown in bold.</extracomment>
        <translation>Zoom → Partager l’écran → &lt;b&gt;la fenêtre de vos diapositives&lt;/b&gt; (pas l’écran entier).</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &lt;b&gt;Advanced capture with window filtering&lt;/b&gt; (or Previous operating systems).</source>
        <translation>Zoom → Paramètres → Partage d’écran → Avancé → Mode de capture d’écran → &lt;b&gt;Capture avancée avec filtrage des fenêtres&lt;/b&gt; (ou Systèmes d’exploitation précédents).</translation>
    </message>
</context>
<context>
    <name>UpdateQuestion</name>
    <message>
        <source>Update</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Add Once More</source>
        <extracomment>A button: the notes of a presentation are added as one more script.</extracomment>
        <translation>Ajouter encore</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>UpdateSettings</name>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation>Rechercher les mises à jour automatiquement (une fois par jour)</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your computer beyond the app version. Orvello installs nothing by itself: if you want the new version, it opens the download page.</source>
        <translation>La recherche demande au site web de l’éditeur quelle est la dernière version et n’envoie rien sur vous ni sur votre ordinateur, hormis la version de l’application. Orvello n’installe rien de lui-même : si vous voulez la nouvelle version, il ouvre la page de téléchargement.</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your Mac beyond the app version. Updates are signed, and you always confirm before one installs.</source>
        <translation>La recherche demande au site web de l’éditeur quelle est la dernière version et n’envoie rien sur vous ni sur votre Mac, hormis la version de l’application. Les mises à jour sont signées, et vous confirmez toujours avant l’installation.</translation>
    </message>
    <message>
        <source>Orvello %1 — not checked yet</source>
        <translation>Orvello %1 — pas encore recherché</translation>
    </message>
    <message>
        <source>Orvello %1 — last checked %2</source>
        <extracomment>%1: the version; %2: a date and a time.</extracomment>
        <translation>Orvello %1 — dernière recherche %2</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>This Orvello was built without the address of an update feed, so it cannot look for updates. Whoever you got it from has newer versions.</source>
        <translation>Cet Orvello a été construit sans l’adresse d’un flux de mises à jour et ne peut donc pas en chercher. Les nouvelles versions sont là où vous l’avez obtenu.</translation>
    </message>
    <message>
        <source>Orvello %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Orvello %1</translation>
    </message>
</context>
<context>
    <name>VoiceSettings</name>
    <message>
        <source>Voice-follow</source>
        <translation>Suivi de la voix</translation>
    </message>
    <message>
        <source>Scroll while I speak, pause when I pause</source>
        <translation>Défiler quand je parle, attendre quand je me tais</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>Niveau du micro</translation>
    </message>
    <message>
        <source>Microphone access is denied. Allow it in your desktop&apos;s privacy settings, then toggle voice-follow again.</source>
        <translation>L’accès au microphone est refusé. Autorisez-le dans les réglages de confidentialité de votre bureau, puis désactivez et réactivez le suivi de la voix.</translation>
    </message>
    <message>
        <source>Microphone access is denied. Enable it in System Settings → Privacy &amp; Security → Microphone, then toggle voice-follow again.</source>
        <translation>L’accès au microphone est refusé. Autorisez-le dans Réglages Système → Confidentialité et sécurité → Microphone, puis désactivez et réactivez le suivi de la voix.</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this Mac won&apos;t move the prompter.</source>
        <translation>Annulation de l’écho : active. Le son que joue ce Mac ne fait pas avancer le prompteur.</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this computer won&apos;t move the prompter.</source>
        <translation>Annulation de l’écho : active. Le son que joue cet ordinateur ne fait pas avancer le prompteur.</translation>
    </message>
    <message>
        <source>Echo cancellation: paused (%1) so your voice keeps working in calls. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <extracomment>%1: why, such as &quot;another app is using the microphone&quot; or &quot;Zoom is open&quot;.</extracomment>
        <translation>Annulation de l’écho : suspendue (%1), pour que votre voix reste entendue pendant les appels. Sur haut-parleurs, un interlocuteur bruyant peut faire avancer le prompteur ; un casque l’évite.</translation>
    </message>
    <message>
        <source>Audio is analyzed on-device for loudness only. Nothing is recorded, recognized, or uploaded.</source>
        <translation>Le son est analysé sur l’appareil, pour son volume seulement. Rien n’est enregistré, reconnu ni envoyé.</translation>
    </message>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>Trouver la sensibilité pour ma voix</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Adopter</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Tester</translation>
    </message>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>Parlez normalement pendant cinq secondes.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>Echo cancellation: not available. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <translation>Annulation de l’écho : indisponible. Sur haut-parleurs, un interlocuteur bruyant peut faire avancer le prompteur ; un casque l’évite.</translation>
    </message>
</context>
</TS>
