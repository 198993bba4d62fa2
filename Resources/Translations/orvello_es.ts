<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Countdown</name>
    <message>
        <source>Countdown</source>
        <translation>Cuenta atrás</translation>
    </message>
</context>
<context>
    <name>DeletedScripts</name>
    <message>
        <source>Recently deleted</source>
        <translation>Eliminados recientemente</translation>
    </message>
    <message>
        <source>Deleted scripts are kept for 30 days.</source>
        <translation>Los guiones eliminados se conservan 30 días.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Restaurar «%1»</translation>
    </message>
</context>
<context>
    <name>EditorPage</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Speaker notes</source>
        <translation>Notas del orador</translation>
    </message>
    <message>
        <source>Script text</source>
        <translation>Texto del guion</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your Mac</source>
        <translation>Se muestra en el prompter · guardado automático local, nada sale de tu Mac</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your computer</source>
        <translation>Se muestra en el prompter · guardado automático local, nada sale de tu ordenador</translation>
    </message>
    <message>
        <source>Start Here</source>
        <extracomment>The prompter begins with the line that the cursor is on.</extracomment>
        <translation>Empezar aquí</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>ImportMenu</name>
    <message>
        <source>Import speaker notes from a deck</source>
        <translation>Importar las notas de una presentación</translation>
    </message>
</context>
<context>
    <name>LibraryAlert</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>LibraryView</name>
    <message>
        <source>Dismiss</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Orvello::AppDelegate</name>
    <message>
        <source>%1 counts only at the launch: quit the Orvello that runs first</source>
        <translation>%1 solo vale al iniciar: cierra primero el Orvello que está abierto</translation>
    </message>
</context>
<context>
    <name>Orvello::Appcast</name>
    <message>
        <source>It declares a document type.</source>
        <translation>Declara un tipo de documento.</translation>
    </message>
    <message>
        <source>It is no RSS feed.</source>
        <translation>No es un canal RSS.</translation>
    </message>
</context>
<context>
    <name>Orvello::AppcastUpdater</name>
    <message>
        <source>There is no valid update feed.</source>
        <translation>No hay un canal de actualizaciones válido.</translation>
    </message>
    <message>
        <source>The update feed is not secure.</source>
        <translation>El canal de actualizaciones no es seguro.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>No se puede leer el canal de actualizaciones: %1</translation>
    </message>
    <message>
        <source>The update feed makes no sense: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>El canal de actualizaciones no se entiende: %1</translation>
    </message>
    <message>
        <source>The download page cannot be opened.</source>
        <translation>No se puede abrir la página de descarga.</translation>
    </message>
    <message>
        <source>Orvello is up to date.</source>
        <translation>Orvello está al día.</translation>
    </message>
</context>
<context>
    <name>Orvello::AppleScriptPresenters</name>
    <message>
        <source>permission denied — allow Orvello to control %1 in System Settings → Privacy &amp; Security → Automation</source>
        <extracomment>Follows &quot;Couldn&apos;t read the presentation:&quot;. %1: a presentation program.</extracomment>
        <translation>permiso denegado: permite que Orvello controle %1 en Ajustes del Sistema → Privacidad y seguridad → Automatización</translation>
    </message>
    <message>
        <source>presenter notes</source>
        <translation>notas del presentador</translation>
    </message>
    <message>
        <source>speaker notes</source>
        <translation>notas del orador</translation>
    </message>
</context>
<context>
    <name>Orvello::BusInstance</name>
    <message>
        <source>Orvello is running already, but does not answer.</source>
        <translation>Orvello ya está abierto, pero no responde.</translation>
    </message>
    <message>
        <source>Orvello is running already, but cannot be asked for anything: the two do not share a session bus.</source>
        <translation>Orvello ya está abierto, pero no se le puede pedir nada: los dos no comparten un bus de sesión.</translation>
    </message>
</context>
<context>
    <name>Orvello::Commands</name>
    <message>
        <source>Start Scrolling</source>
        <translation>Iniciar el avance</translation>
    </message>
    <message>
        <source>Pause Scrolling</source>
        <translation>Pausar el avance</translation>
    </message>
    <message>
        <source>Start / pause scrolling</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>Iniciar / pausar el avance</translation>
    </message>
    <message>
        <source>Start / pause</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>Iniciar / pausar</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Más rápido</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Más lento</translation>
    </message>
    <message>
        <source>Back to Top</source>
        <extracomment>In a menu: scrolls back to the beginning of the script.</extracomment>
        <translation>Volver al inicio</translation>
    </message>
    <message>
        <source>Back to top</source>
        <extracomment>What a key does: it scrolls back to the beginning of the script.</extracomment>
        <translation>Volver al inicio</translation>
    </message>
    <message>
        <source>Show Prompter</source>
        <translation>Mostrar el prompter</translation>
    </message>
    <message>
        <source>Hide Prompter</source>
        <translation>Ocultar el prompter</translation>
    </message>
    <message>
        <source>Show / hide prompter</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>Mostrar / ocultar el prompter</translation>
    </message>
    <message>
        <source>Show / hide</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>Mostrar / ocultar</translation>
    </message>
    <message>
        <source>Voice-Follow Scrolling</source>
        <extracomment>A mode: the text scrolls while the user speaks.</extracomment>
        <translation>Seguir la voz</translation>
    </message>
    <message>
        <source>Slide Tracking</source>
        <extracomment>A mode: the notes follow the slides of a running slideshow.</extracomment>
        <translation>Seguir las diapositivas</translation>
    </message>
    <message>
        <source>Stealth Mode</source>
        <extracomment>A mode: the prompter is hidden from screen sharing and recordings.</extracomment>
        <translation>Modo sigiloso</translation>
    </message>
    <message>
        <source>Scripts…</source>
        <translation>Guiones…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Welcome Tour…</source>
        <translation>Visita de bienvenida…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Contact Support…</source>
        <translation>Contactar con soporte…</translation>
    </message>
    <message>
        <source>Reveal Log Files</source>
        <translation>Mostrar los registros</translation>
    </message>
    <message>
        <source>Quit Orvello</source>
        <translation>Salir de Orvello</translation>
    </message>
    <message>
        <source>%1  (%2)</source>
        <extracomment>A line of a menu with two blanks in it. %1: its text; %2: its key, such as &quot;⌥⌘P&quot;.</extracomment>
        <translation>%1  (%2)</translation>
    </message>
    <message>
        <source>Start or pause scrolling</source>
        <translation>Iniciar o pausar el avance</translation>
    </message>
    <message>
        <source>Scroll faster</source>
        <translation>Avanzar más rápido</translation>
    </message>
    <message>
        <source>Scroll more slowly</source>
        <translation>Avanzar más despacio</translation>
    </message>
    <message>
        <source>Go back to the top of the script</source>
        <translation>Volver al inicio del guion</translation>
    </message>
    <message>
        <source>Show or hide the prompter</source>
        <translation>Mostrar u ocultar el prompter</translation>
    </message>
    <message>
        <source>Put Under the Camera</source>
        <extracomment>In a menu: moves the prompter to the top of the screen that the pointer is on.</extracomment>
        <translation>Poner bajo la cámara</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckController</name>
    <message>
        <source>(No speaker notes on this slide)</source>
        <translation>(Sin notas del orador en esta diapositiva)</translation>
    </message>
    <message>
        <source>(Another presentation is on screen)</source>
        <translation>(En pantalla hay otra presentación)</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckFileBar</name>
    <message>
        <source>Up to date with “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Al día con «%1».</translation>
    </message>
    <message>
        <source>“%1” is not there any more. The notes stay as they were.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>«%1» ya no está. Las notas quedan como estaban.</translation>
    </message>
    <message>
        <source>“%1” has changed: the notes of slides %2 are no longer in it. An update keeps this version among the deleted scripts.</source>
        <extracomment>%1: the name of a file; %2: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>«%1» ha cambiado: ya no contiene las notas de las diapositivas %2. Al actualizar, esta versión se conserva entre los guiones eliminados.</translation>
    </message>
    <message>
        <source>“%1” has changed, but cannot be read: %2</source>
        <extracomment>%1: the name of a file; %2: why, as a sentence.</extracomment>
        <translation>«%1» ha cambiado, pero no se puede leer: %2</translation>
    </message>
    <message>
        <source>Update from File…</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>Actualizar desde archivo…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Choose the presentation that these notes are from.</source>
        <translation>Elija la presentación de la que proceden estas notas.</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImportError</name>
    <message>
        <source>%1 isn&apos;t running. Open your presentation in %1 first.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>%1 no está abierto. Abre primero tu presentación en %1.</translation>
    </message>
    <message>
        <source>No presentation is open in %1.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>No hay ninguna presentación abierta en %1.</translation>
    </message>
    <message>
        <source>That %1 presentation has no %2 on any slide.</source>
        <extracomment>%1: a presentation program; %2: what it calls the notes, such as &quot;speaker notes&quot;.</extracomment>
        <translation>Esa presentación de %1 no tiene %2 en ninguna diapositiva.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the %1 presentation: %2</source>
        <extracomment>%1: a presentation program; %2: why, a sentence or a part of one.</extracomment>
        <translation>No se pudo leer la presentación de %1: %2</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImports</name>
    <message>
        <source>PowerPoint file (.pptx)…</source>
        <translation>Archivo de PowerPoint (.pptx)…</translation>
    </message>
    <message>
        <source>Open %1 presentation</source>
        <extracomment>An item of a menu. %1: a presentation program, such as Keynote.</extracomment>
        <translation>Presentación abierta en %1</translation>
    </message>
    <message>
        <source>Choose a PowerPoint presentation — Orvello imports its speaker notes.</source>
        <translation>Elige una presentación de PowerPoint: Orvello importa sus notas del orador.</translation>
    </message>
    <message>
        <source>Import failed</source>
        <translation>Error al importar</translation>
    </message>
    <message>
        <source>No speaker notes</source>
        <translation>Sin notas del orador</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in PowerPoint&apos;s notes pane and re-import.</source>
        <translation>La presentación se importó, pero ninguna diapositiva tiene notas. Añádelas en el panel de notas de PowerPoint y vuelve a importar.</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in your presentation program&apos;s notes pane and re-import.</source>
        <translation>La presentación se importó, pero ninguna diapositiva tiene notas. Añádelas en el panel de notas de tu programa de presentaciones y vuelve a importar.</translation>
    </message>
    <message>
        <source>Imported the saved copy</source>
        <translation>Se importó la copia guardada</translation>
    </message>
    <message>
        <source>PowerPoint has unsaved changes, so the notes came from the last saved copy. Save the presentation and import again to include them.</source>
        <translation>PowerPoint tiene cambios sin guardar, así que las notas vienen de la última copia guardada. Guarda la presentación y vuelve a importar para incluirlos.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>Not all notes were imported</source>
        <translation>No se importaron todas las notas</translation>
    </message>
    <message>
        <source>The file holds more than Orvello reads: the notes of slides %1 could not be read.</source>
        <extracomment>%1: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>El archivo contiene más de lo que Orvello lee: no se pudieron leer las notas de las diapositivas %1.</translation>
    </message>
    <message>
        <source>Presentation file (.pptx, .odp)…</source>
        <translation>Archivo de presentación (.pptx, .odp)…</translation>
    </message>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Leyendo lo que está abierto en %1…</translation>
    </message>
    <message>
        <source>Choose a presentation — Orvello imports its speaker notes.</source>
        <translation>Elija una presentación: Orvello importará sus notas del orador.</translation>
    </message>
    <message>
        <source>Not a presentation</source>
        <translation>No es una presentación</translation>
    </message>
    <message>
        <source>Orvello imports speaker notes from presentations (.pptx, .odp). It cannot read %1.</source>
        <extracomment>%1: the names of files.</extracomment>
        <translation>Orvello importa las notas del orador de presentaciones (.pptx, .odp). No puede leer %1.</translation>
    </message>
    <message>
        <source>The notes of “%1” are among your scripts already. Update them, or add them once more?</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Las notas de «%1» ya están entre sus guiones. ¿Quiere actualizarlas o añadirlas otra vez?</translation>
    </message>
</context>
<context>
    <name>Orvello::DeletedScriptsModel</name>
    <message>
        <source>Deleted %1</source>
        <extracomment>%1: a date.</extracomment>
        <translation>Eliminado: %1</translation>
    </message>
</context>
<context>
    <name>Orvello::Facts</name>
    <message>
        <source>Keynote or PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>Keynote o PowerPoint</translation>
    </message>
    <message>
        <source>Keynote or Microsoft PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>Keynote o Microsoft PowerPoint</translation>
    </message>
</context>
<context>
    <name>Orvello::FeedLoader</name>
    <message>
        <source>The server did not answer in time.</source>
        <translation>El servidor no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The server redirects to an insecure address.</source>
        <translation>El servidor redirige a una dirección no segura.</translation>
    </message>
    <message>
        <source>The document is too large.</source>
        <translation>El documento es demasiado grande.</translation>
    </message>
    <message>
        <source>The server answers with status %1.</source>
        <translation>El servidor responde con el estado %1.</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressAdviceDialog</name>
    <message>
        <source>Let Orvello follow your Impress presentations?</source>
        <translation>¿Permitir que Orvello siga tus presentaciones de Impress?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>While an Impress slideshow runs, and while you import an open presentation, Orvello has LibreOffice listen on a connection that gives control of all of LibreOffice, and uses it to read slide numbers, titles and notes. Only programs of your user account could reach it, Orvello takes its name away as soon as it is connected, and the connection ends with the slideshow or the import.</source>
        <translation>Mientras se ejecuta una presentación de Impress y mientras usted importa una presentación abierta, Orvello hace que LibreOffice escuche en una conexión que da control sobre todo LibreOffice y la usa para leer números de diapositiva, títulos y notas. Solo los programas de su cuenta de usuario podrían alcanzarla, Orvello le quita el nombre en cuanto está conectado, y la conexión termina con la presentación o la importación.</translation>
    </message>
    <message>
        <source>Orvello may now follow Impress. Start the slideshow or the import again.

The settings have a button that takes this back.</source>
        <translation>Orvello ya puede seguir a Impress. Inicie de nuevo la presentación o la importación.

En los ajustes hay un botón que lo revoca.</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressPresenter</name>
    <message>
        <source>notes</source>
        <extracomment>What Impress calls a speaker&apos;s notes.</extracomment>
        <translation>notas</translation>
    </message>
    <message>
        <source>To follow Impress, Orvello needs the package python3-uno. Install it and try again.</source>
        <translation>Para seguir a Impress, Orvello necesita el paquete python3-uno. Instálalo y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>LibreOffice isn&apos;t running.</source>
        <translation>LibreOffice no está en ejecución.</translation>
    </message>
    <message>
        <source>LibreOffice did not answer.</source>
        <translation>LibreOffice no respondió.</translation>
    </message>
    <message>
        <source>permission denied — Orvello asks LibreOffice only once you allow it</source>
        <extracomment>Follows &quot;Couldn&apos;t read the Impress presentation:&quot;.</extracomment>
        <translation>permiso denegado: Orvello solo consulta a LibreOffice cuando usted lo permite</translation>
    </message>
    <message>
        <source>This LibreOffice runs in a sandbox (%1) that Orvello cannot reach. Import the presentation&apos;s file instead, and step through the slides by hand.</source>
        <extracomment>%1: a kind of package, such as Flatpak or Snap.</extracomment>
        <translation>Este LibreOffice se ejecuta en un entorno aislado (%1) al que Orvello no puede llegar. Importe en su lugar el archivo de la presentación y avance por las diapositivas a mano.</translation>
    </message>
</context>
<context>
    <name>Orvello::LaunchOptions</name>
    <message>
        <source>unknown option %1; did you mean %2?</source>
        <translation>opción desconocida %1; ¿querías decir %2?</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opción desconocida %1</translation>
    </message>
    <message>
        <source>%1 is neither an option nor a preference with a value</source>
        <translation>%1 no es una opción ni un ajuste con su valor</translation>
    </message>
    <message>
        <source>%1 is no address that Orvello opens</source>
        <translation>%1 no es una dirección que Orvello abra</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>no existe el archivo «%1»</translation>
    </message>
    <message>
        <source>Try &quot;orvello --help&quot;.</source>
        <translation>Prueba «orvello --help».</translation>
    </message>
    <message>
        <source>%1 is not a deck (.pptx or .odp)</source>
        <translation>%1 no es una presentación (.pptx u .odp)</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryNotices</name>
    <message>
        <source>Another Orvello is using your scripts, so nothing that you change here is saved. Quit this one and go on in the other.</source>
        <translation>Otro Orvello está usando tus guiones, así que nada de lo que cambies aquí se guarda. Cierra este y continúa en el otro.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because the disk is full. Orvello keeps trying.</source>
        <translation>Tus guiones no se pueden guardar porque el disco está lleno. Orvello lo sigue intentando.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because their folder is write-protected. Orvello keeps trying.</source>
        <translation>Tus guiones no se pueden guardar porque su carpeta está protegida contra escritura. Orvello lo sigue intentando.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved (%1). Orvello keeps trying.</source>
        <extracomment>%1: what the system says about it.</extracomment>
        <translation>Tus guiones no se pueden guardar (%1). Orvello lo sigue intentando.</translation>
    </message>
    <message>
        <source>Your scripts file was lost or empty. There is a copy from %1.</source>
        <extracomment>%1: a date and a time.</extracomment>
        <translation>El archivo de tus guiones faltaba o estaba vacío. Hay una copia del %1.</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. There is a copy from %1; what was in the file is kept as “%2”.</source>
        <extracomment>%1: a date and a time; %2: the name of a file.</extracomment>
        <translation>El archivo de tus guiones estaba dañado. Hay una copia del %1; lo que contenía se conserva como «%2».</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. What was in it is kept as “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>El archivo de tus guiones estaba dañado. Lo que contenía se conserva como «%1».</translation>
    </message>
    <message numerus="yes">
        <source>Bring back %n scripts</source>
        <extracomment>A button.</extracomment>
        <translation>
            <numerusform>Recuperar %n guion</numerusform>
            <numerusform>Recuperar %n guiones</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryStore</name>
    <message>
        <source>My Script</source>
        <extracomment>The title of the only script of a user of the first versions.</extracomment>
        <translation>Mi guion</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>The title of a new script.</extracomment>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The title of a copied script. %1: the title of the original.</extracomment>
        <translation>%1 (copia)</translation>
    </message>
    <message>
        <source>%1 (before the update)</source>
        <extracomment>The title of a former version of a script. %1: the title of the script.</extracomment>
        <translation>%1 (antes de la actualización)</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryViewModel</name>
    <message>
        <source>Export this script</source>
        <extracomment>Above the panel in which the user says where the script is to be written.</extracomment>
        <translation>Exportar este guion</translation>
    </message>
    <message numerus="yes">
        <source>Export %n scripts</source>
        <translation>
            <numerusform>Exportar %n guion</numerusform>
            <numerusform>Exportar %n guiones</numerusform>
        </translation>
    </message>
    <message>
        <source>Scripts</source>
        <extracomment>The name of a file with several scripts.</extracomment>
        <translation>Guiones</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Error al exportar</translation>
    </message>
    <message>
        <source>“%1” could not be written (%2).</source>
        <extracomment>%1: the name of a file; %2: what the system says about it.</extracomment>
        <translation>No se pudo escribir «%1» (%2).</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryWindow</name>
    <message>
        <source>Scripts</source>
        <translation>Guiones</translation>
    </message>
</context>
<context>
    <name>Orvello::LinuxWakefulness</name>
    <message>
        <source>The prompter is being read</source>
        <extracomment>Why the display is kept on, for a desktop that shows it: at most about 60 characters.</extracomment>
        <translation>Se está leyendo el prompter</translation>
    </message>
</context>
<context>
    <name>Orvello::LiveDeckImport</name>
    <message>
        <source>%1 deck</source>
        <extracomment>The title of a deck without a name. %1: a presentation program, such as Keynote.</extracomment>
        <translation>Presentación de %1</translation>
    </message>
</context>
<context>
    <name>Orvello::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>Orvello::OnboardingWindowController</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Te damos la bienvenida a Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::OtherDeckNotice</name>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Leyendo lo que está abierto en %1…</translation>
    </message>
    <message>
        <source>These notes are from another presentation than the one on screen.</source>
        <extracomment>On the card. %1: the name of a presentation.</extracomment>
        <translation>Estas notas son de otra presentación, no de la que está en pantalla.</translation>
    </message>
    <message>
        <source>“%1” is on screen. These notes are from another presentation.</source>
        <translation>En pantalla está «%1». Estas notas son de otra presentación.</translation>
    </message>
    <message>
        <source>Switch to its notes</source>
        <extracomment>A button on the card: shows the notes of the presentation that is on screen.</extracomment>
        <translation>Cambiar a sus notas</translation>
    </message>
    <message>
        <source>Import its notes</source>
        <translation>Importar sus notas</translation>
    </message>
</context>
<context>
    <name>Orvello::PptxImporter</name>
    <message>
        <source>The file could not be opened as a PowerPoint package.</source>
        <translation>El archivo no se pudo abrir como paquete de PowerPoint.</translation>
    </message>
    <message>
        <source>No slides were found — is this a .pptx presentation?</source>
        <translation>No se encontraron diapositivas. ¿Es una presentación .pptx?</translation>
    </message>
    <message>
        <source>The presentation is protected by a password. Save a copy without one in your presentation program, and import that.</source>
        <translation>La presentación está protegida con una contraseña. Guarde una copia sin contraseña en su programa de presentaciones e impórtela.</translation>
    </message>
</context>
<context>
    <name>Orvello::PrompterStatus</name>
    <message>
        <source>get ready</source>
        <extracomment>On the card, at most about 20 characters: the countdown runs.</extracomment>
        <translation>prepárate</translation>
    </message>
    <message>
        <source>hover pause</source>
        <extracomment>On the card, at most about 20 characters: the pointer over the card holds the text.</extracomment>
        <translation>pausa por puntero</translation>
    </message>
    <message>
        <source>paused</source>
        <extracomment>On the card, at most about 20 characters: the text stands still.</extracomment>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>listening…</source>
        <extracomment>On the card, at most about 20 characters: the text waits for the user to speak.</extracomment>
        <translation>escuchando…</translation>
    </message>
    <message>
        <source>scrolling</source>
        <extracomment>On the card, at most about 20 characters: the text moves.</extracomment>
        <translation>avanzando</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingClock</name>
    <message>
        <source>%1 left</source>
        <extracomment>On the card, at most about 15 characters. %1: minutes and seconds, as in &quot;3:12&quot;.</extracomment>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>%1 · %2 left</source>
        <extracomment>On the card, at most about 25 characters. %1: how long the reader has been reading; %2: how long the rest takes, both as in &quot;3:12&quot;.</extracomment>
        <translation>%1 · quedan %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingPace</name>
    <message>
        <source>The prompter has no text to scroll.</source>
        <translation>El prompter no tiene texto que desplazar.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n characters a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · unos %n caracteres por minuto en este guion</numerusform>
            <numerusform>%1 pt/s · unos %n caracteres por minuto en este guion</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n words a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · una %n palabra por minuto en este guion</numerusform>
            <numerusform>%1 pt/s · unas %n palabras por minuto en este guion</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: faster than speech</source>
        <extracomment>%1: as in &quot;25 pt/s · about 250 words a minute in this script&quot;.</extracomment>
        <translation>%1: más rápido que el habla</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptEditor</name>
    <message numerus="yes">
        <source>%n words</source>
        <translation>
            <numerusform>%n palabra</numerusform>
            <numerusform>%n palabras</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported deck (%1) — notes are read-only here; edit them in the presentation and re-import.</source>
        <extracomment>%1: where the deck is from: a program or a file.</extracomment>
        <translation>Presentación importada (%1): aquí las notas son de solo lectura; edítalas en la presentación y vuelve a importar.</translation>
    </message>
    <message>
        <source>%1 · about %2</source>
        <extracomment>%1: how many words, as in &quot;52 words&quot;; %2: minutes and seconds, as in &quot;0:22&quot;.</extracomment>
        <translation>%1 · unos %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptListModel</name>
    <message>
        <source>Untitled</source>
        <extracomment>Stands for a script without a title.</extracomment>
        <translation>Sin título</translation>
    </message>
    <message numerus="yes">
        <source>%n slides</source>
        <translation>
            <numerusform>%n diapositiva</numerusform>
            <numerusform>%n diapositivas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::SensitivityTest</name>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>Habla con normalidad durante cinco segundos.</translation>
    </message>
    <message>
        <source>Waiting for the microphone…</source>
        <translation>Esperando al micrófono…</translation>
    </message>
    <message>
        <source>A sensitivity of %1% suits your voice here.</source>
        <extracomment>%1: a whole number.</extracomment>
        <translation>Para tu voz, aquí conviene una sensibilidad del %1 %.</translation>
    </message>
    <message>
        <source>No voice stood out from the room. Come closer to the microphone, or choose another one.</source>
        <translation>Ninguna voz destacó sobre el ruido de la sala. Acércate al micrófono o elige otro.</translation>
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
        <translation>Tamaño del texto — %1</translation>
    </message>
    <message>
        <source>Scroll speed — %1 pt/s</source>
        <extracomment>%1: points per second.</extracomment>
        <translation>Velocidad de avance — %1 pt/s</translation>
    </message>
    <message>
        <source>Background opacity — %1</source>
        <extracomment>%1: a percentage.</extracomment>
        <translation>Opacidad del fondo — %1</translation>
    </message>
    <message>
        <source>Sensitivity — %1</source>
        <extracomment>Of the microphone&apos;s detector of speech. %1: a percentage.</extracomment>
        <translation>Sensibilidad — %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation>3 segundos</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 segundos</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 segundos</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Your settings could not be read, so they are as new. The old file is kept: %1</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Tus ajustes no se pudieron leer, así que están como nuevos. El archivo anterior se conserva: %1</translation>
    </message>
</context>
<context>
    <name>Orvello::SettingsWindow</name>
    <message>
        <source>Orvello Settings</source>
        <translation>Ajustes de Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::ShortcutList</name>
    <message>
        <source>Speed up / down</source>
        <extracomment>What two keys do, one each. The second text is for a narrow list: at most about 20 characters.</extracomment>
        <translation>Acelerar / frenar</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>%1 (another program has it)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1 (la tiene otro programa)</translation>
    </message>
    <message>
        <source>%1 (not on this keyboard)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1 (no está en este teclado)</translation>
    </message>
</context>
<context>
    <name>Orvello::SlideStatus</name>
    <message>
        <source>Live</source>
        <extracomment>On the card, at most about 12 characters: the notes follow the running slideshow.</extracomment>
        <translation>En vivo</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>On the card, at most about 12 characters: the presentation program may not be asked.</extracomment>
        <translation>Sin acceso</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>On the card, at most about 12 characters: the user turns the notes by hand.</extracomment>
        <translation>Manual</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>On the card: which slide of how many.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Other deck</source>
        <extracomment>On the card, at most about 12 characters: the slideshow shows another presentation.</extracomment>
        <translation>Otro archivo</translation>
    </message>
</context>
<context>
    <name>Orvello::StatusMenu</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
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
Si algo salió mal, adjunta el registro: menú de Orvello → Ayuda → Mostrar los registros.</translation>
    </message>
</context>
<context>
    <name>Orvello::UpdateDialogs</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation>¿Buscar actualizaciones automáticamente?</translation>
    </message>
    <message>
        <source>Once a day, Orvello would look at the vendor&apos;s web site for a newer version. Nothing about you is sent. You can change this in the settings at any time.</source>
        <translation>Una vez al día, Orvello miraría en el sitio web del fabricante si hay una versión más reciente. No se envía nada sobre ti. Puedes cambiarlo en los ajustes en cualquier momento.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Buscar automáticamente</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>No buscar</translation>
    </message>
    <message>
        <source>Orvello %1 is available.</source>
        <extracomment>%1: the version, such as 2.1.</extracomment>
        <translation>Orvello %1 está disponible.</translation>
    </message>
    <message>
        <source>You have %1. The new version is on its download page, which Install opens in your browser.</source>
        <extracomment>%1: the version. Install is the button&apos;s name.</extracomment>
        <translation>Tienes la versión %1. La nueva está en su página de descarga, que el botón Instalar abre en tu navegador.</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Instalar…</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation>Tienes la versión %1.</translation>
    </message>
</context>
<context>
    <name>Orvello::VoiceActivityEngine</name>
    <message>
        <source>another app is using the microphone</source>
        <extracomment>Stands in brackets in the middle of a sentence.</extracomment>
        <translation>otra aplicación está usando el micrófono</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Stands in brackets in the middle of a sentence. %1: a meeting program.</extracomment>
        <translation>%1 está abierto</translation>
    </message>
    <message>
        <source>The microphone may not be used.</source>
        <translation>No está permitido usar el micrófono.</translation>
    </message>
    <message>
        <source>The sound system does not answer.</source>
        <translation>El sistema de sonido no responde.</translation>
    </message>
    <message>
        <source>No microphone is connected.</source>
        <translation>No hay ningún micrófono conectado.</translation>
    </message>
    <message>
        <source>No microphone is connected. Connect one, then turn Voice-Follow off and on.</source>
        <translation>No hay ningún micrófono conectado. Conecta uno y después desactiva y activa el seguimiento de la voz.</translation>
    </message>
    <message>
        <source>The microphone “%1” is muted.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>El micrófono «%1» está silenciado.</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone “%1”. Another program may keep it to itself.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>Del micrófono «%1» no llega nada. Puede que otro programa lo tenga en exclusiva.</translation>
    </message>
    <message>
        <source>The microphone could not be started.</source>
        <translation>No se pudo iniciar el micrófono.</translation>
    </message>
    <message>
        <source>The microphone could not be started. Turn Voice-Follow off and on to try again.</source>
        <translation>No se pudo iniciar el micrófono. Desactiva y activa el seguimiento de la voz para volver a intentarlo.</translation>
    </message>
    <message>
        <source>Echo cancellation is on.</source>
        <translation>La cancelación de eco está activada.</translation>
    </message>
    <message>
        <source>Echo cancellation is paused: %1.</source>
        <extracomment>%1: why, such as &quot;Zoom is open&quot;.</extracomment>
        <translation>La cancelación de eco está en pausa: %1.</translation>
    </message>
    <message>
        <source>Echo cancellation is not available.</source>
        <translation>La cancelación de eco no está disponible.</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>The microphone that the desktop&apos;s settings choose.</extracomment>
        <translation>El del sistema</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>%1 (no conectado)</translation>
    </message>
    <message>
        <source>Listening to “%1”.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>Se escucha «%1».</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeScript</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Te damos la bienvenida a Orvello</translation>
    </message>
    <message>
        <source>Welcome to Orvello. This is your private teleprompter.</source>
        <translation>Te damos la bienvenida a Orvello, tu teleprompter privado.</translation>
    </message>
    <message>
        <source>Drag this panel anywhere — put it right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>Arrastra este panel a donde quieras: justo debajo de la cámara, tu mirada será natural. Cambia su tamaño desde cualquier borde.</translation>
    </message>
    <message>
        <source>Press %1P to start or pause scrolling. Use %1Up or Down to change the speed on the fly. Hover the mouse over this panel any time to pause instantly; move away and it resumes.</source>
        <extracomment>%1: the keys to hold, as in &quot;Option-Command-P&quot; or &quot;Alt+Super+P&quot;. Up and Down are the arrow keys.</extracomment>
        <translation>Pulsa %1P para iniciar o pausar el avance. Con %1Arriba o Abajo cambias la velocidad sobre la marcha. Pon el puntero sobre este panel para pausar al instante; apártalo y continúa.</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu bar and the script scrolls while you speak, then waits when you pause.</source>
        <translation>Activa el seguimiento de la voz en la barra de menús: el guion avanza mientras hablas y espera cuando te detienes.</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu and the script scrolls while you speak, then waits when you pause. The menu opens from the tray, or with a right click on this panel.</source>
        <translation>Activa el seguimiento de la voz en el menú: el guion avanza mientras hablas y espera cuando te detienes. El menú se abre desde la bandeja o con un clic derecho en este panel.</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window is invisible to screen sharing, recordings, and screenshots. Your audience only sees your slides — never your notes.</source>
        <translation>Con el modo sigiloso activado, esta ventana es invisible al compartir pantalla, en grabaciones y en capturas. Tu público solo ve tus diapositivas, nunca tus notas.</translation>
    </message>
    <message>
        <source>Sharing your screen? Leave Stealth Mode alone while you share — toggling it mid-share can make your meeting app show a gray box where the prompter sits. Close and open Orvello again to clear it.</source>
        <translation>¿Compartes la pantalla? No toques el modo sigiloso mientras tanto: cambiarlo puede hacer que la aplicación de reuniones muestre un recuadro gris donde está el prompter. Cierra y vuelve a abrir Orvello para quitarlo.</translation>
    </message>
    <message>
        <source>Sharing your screen? This desktop cannot hide a window, so whoever sees your whole screen sees this panel too. Share only the window of your slides, and keep this panel beside it: your audience then sees your slides, not your notes.</source>
        <translation>¿Compartes la pantalla? Este escritorio no puede ocultar una ventana: quien ve toda tu pantalla ve también este panel. Comparte solo la ventana de tus diapositivas y deja este panel al lado: así tu público ve tus diapositivas, no tus notas.</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window stays out of screen sharing, recordings, and screenshots as far as this system allows. Newer recorders may show it all the same: share only the window of your slides, and your audience never sees your notes.</source>
        <translation>Con el modo sigiloso activado, esta ventana queda fuera de la pantalla compartida, las grabaciones y las capturas hasta donde lo permite este sistema. Los programas de grabación más nuevos pueden mostrarla de todos modos: comparte solo la ventana de tus diapositivas y tu público nunca verá tus notas.</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeTour</name>
    <message>
        <source>Zoom → Share Screen → &quot;your slides&apos; window&quot; (not &quot;Entire Screen&quot;)</source>
        <translation>Zoom → Compartir pantalla → «la ventana de tus diapositivas» (no «la pantalla completa»)</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &quot;Advanced capture with window filtering&quot; (or &quot;Previous operating systems&quot;)</source>
        <translation>Zoom → Configuración → Compartir pantalla → Avanzado → Modo de captura de pantalla → «Captura avanzada con filtrado de ventanas» (o «Sistemas operativos anteriores»)</translation>
    </message>
</context>
<context>
    <name>OtherDeck</name>
    <message>
        <source>Keep these notes</source>
        <translation>Mantener estas notas</translation>
    </message>
</context>
<context>
    <name>PrivacySettings</name>
    <message>
        <source>Privacy</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>Stealth Mode — hide from screen sharing, recordings &amp; screenshots</source>
        <translation>Modo sigiloso: ocultar al compartir pantalla, en grabaciones y en capturas</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window from screen sharing, recordings, or screenshots. There the prompter is visible, whether Stealth Mode is on or off.</source>
        <translation>Este escritorio no puede ocultar una ventana al compartir pantalla, en grabaciones ni en capturas. Ahí el prompter se ve, esté o no activado el modo sigiloso.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while staying fully visible to you.</source>
        <translation>Con el modo sigiloso activado antes de compartir, el prompter es invisible al compartir pantalla, en grabaciones y en capturas (Zoom, Meet, QuickTime y más), y tú lo sigues viendo por completo.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots — while staying fully visible to you.</source>
        <translation>Con el modo sigiloso activado antes de compartir, el prompter es invisible al compartir pantalla, en grabaciones y en capturas, y tú lo sigues viendo por completo.</translation>
    </message>
    <message>
        <source>Stealth Mode takes effect on desktops that can keep a window out of screen sharing, recordings, and screenshots. With it on, the prompter&apos;s card says when this one cannot.</source>
        <translation>El modo sigiloso actúa en escritorios que pueden dejar una ventana fuera de la pantalla compartida, las grabaciones y las capturas. Cuando está activado, la tarjeta del prompter dice si este no puede.</translation>
    </message>
    <message>
        <source>Leave Stealth Mode alone during a live share: toggling it mid-share can make the meeting app draw a gray box in its place (close and open Orvello again to clear it). For zero risk, share the presentation window instead of the whole screen.</source>
        <translation>No toques el modo sigiloso mientras compartes: cambiarlo puede hacer que la aplicación de reuniones dibuje un recuadro gris en su lugar (cierra y vuelve a abrir Orvello para quitarlo). Para un riesgo cero, comparte la ventana de la presentación en vez de la pantalla completa.</translation>
    </message>
    <message>
        <source>Share the presentation window instead of the whole screen, and keep the prompter beside it: some programs, recorders above all, capture the place of a window with everything that is in front of it.</source>
        <translation>Comparte la ventana de la presentación en lugar de toda la pantalla y deja el prompter al lado: algunos programas, sobre todo los de grabación, capturan el lugar de una ventana con todo lo que tenga delante.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter stays out of screen sharing, recordings, and screenshots as far as this system allows — while staying fully visible to you. Newer recorders may show it all the same: try yours before you rely on it.</source>
        <translation>Con el modo sigiloso activado antes de compartir, el prompter queda fuera de la pantalla compartida, las grabaciones y las capturas hasta donde lo permite este sistema, y tú lo sigues viendo por completo. Los programas de grabación más nuevos pueden mostrarlo de todos modos: prueba el tuyo antes de confiar en ello.</translation>
    </message>
</context>
<context>
    <name>PrompterSettings</name>
    <message>
        <source>Prompter</source>
        <translation>Prompter</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>The opacity has no effect at the moment: windows can be translucent only while the desktop runs a compositor.</source>
        <extracomment>A compositor is the part of a Linux desktop that makes windows translucent.</extracomment>
        <translation>La opacidad no tiene efecto por ahora: las ventanas solo pueden ser translúcidas mientras el escritorio ejecute un compositor.</translation>
    </message>
</context>
<context>
    <name>PrompterView</name>
    <message>
        <source>Prompter</source>
        <translation>Prompter</translation>
    </message>
    <message>
        <source>DEBUG — VISIBLE IN RECORDINGS</source>
        <extracomment>On the card, at most about 40 characters: others can see the prompter.</extracomment>
        <translation>DEPURACIÓN — VISIBLE EN GRABACIONES</translation>
    </message>
    <message>
        <source>VISIBLE IN RECORDINGS</source>
        <translation>VISIBLE EN GRABACIONES</translation>
    </message>
</context>
<context>
    <name>ReadingSettings</name>
    <message>
        <source>Reading</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Characters a minute</source>
        <translation>Caracteres por minuto</translation>
    </message>
    <message>
        <source>Words a minute</source>
        <translation>Palabras por minuto</translation>
    </message>
    <message>
        <source>Keep my pace with another text, size or width</source>
        <translation>Mantener mi ritmo con otro texto, tamaño o ancho</translation>
    </message>
    <message>
        <source>Time on the prompter</source>
        <translation>Tiempo en el prompter</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Transcurrido</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Ambos</translation>
    </message>
</context>
<context>
    <name>RecordingBadge</name>
    <message>
        <source>Show the badge in full</source>
        <extracomment>Read aloud: the button makes the words &quot;VISIBLE IN RECORDINGS&quot; on the card a small eye, or words again.</extracomment>
        <translation>Mostrar el aviso completo</translation>
    </message>
    <message>
        <source>Fold the badge to an eye</source>
        <translation>Reducir el aviso a un ojo</translation>
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
        <translation>Guiones</translation>
    </message>
    <message>
        <source>New script</source>
        <translation>Nuevo guion</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search titles and texts</source>
        <translation>Buscar en títulos y textos</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Export All…</source>
        <extracomment>All scripts of the list, into one file.</extracomment>
        <translation>Exportar todos…</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <extracomment>Where the list of scripts is, when none has what is searched for.</extracomment>
        <translation>Nada encontrado</translation>
    </message>
</context>
<context>
    <name>SessionSettings</name>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Countdown before start</source>
        <translation>Cuenta atrás antes de empezar</translation>
    </message>
    <message>
        <source>Press P to pause during a slideshow</source>
        <translation>Pulsar P para pausar durante una presentación</translation>
    </message>
    <message>
        <source>While a %1 slideshow is on-screen (where the cursor is hidden, so hover-to-pause can&apos;t work), a plain P pauses or resumes. It&apos;s active only during the slideshow, so it won&apos;t interfere with typing elsewhere. %2 always works too.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;; %2: keys, as in &quot;⌥⌘P&quot;.</extracomment>
        <translation>Mientras se ve una presentación de %1 (el puntero está oculto y no puede pausar), la tecla P sola pausa o reanuda. Solo actúa durante la presentación, así que no estorba al escribir en otro lugar. %2 funciona siempre.</translation>
    </message>
</context>
<context>
    <name>SettingsShortcut</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Read aloud. %1: what the keys do; %2: the keys.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ShareNotice</name>
    <message>
        <source>Toggling Stealth Mode during a screen share can gray out this prompter — close and open Orvello again to clear it.</source>
        <translation>Cambiar el modo sigiloso mientras compartes pantalla puede cubrir de gris este prompter: cierra y vuelve a abrir Orvello para quitarlo.</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Stealth Mode has no effect on this desktop — whoever sees your screen sees this prompter, too.</source>
        <translation>El modo sigiloso no tiene efecto en este escritorio: quien ve tu pantalla ve también este prompter.</translation>
    </message>
</context>
<context>
    <name>ShortcutSettings</name>
    <message>
        <source>Keyboard shortcuts (global)</source>
        <translation>Atajos de teclado (globales)</translation>
    </message>
    <message>
        <source>Other keys</source>
        <translation>Otras teclas</translation>
    </message>
    <message>
        <source>Change Shortcuts…</source>
        <translation>Cambiar los atajos…</translation>
    </message>
</context>
<context>
    <name>SlideChip</name>
    <message>
        <source>Slide %1</source>
        <extracomment>Read aloud. %1: which slide of how many, as in &quot;2 / 14&quot;.</extracomment>
        <translation>Diapositiva %1</translation>
    </message>
    <message>
        <source>%2, %1</source>
        <extracomment>Read aloud. %2: the slide&apos;s title, which goes in last, as it may hold a &quot;%1&quot;; %1: who turns the slides, as in &quot;Live&quot;.</extracomment>
        <translation>%2, %1</translation>
    </message>
    <message>
        <source>Previous slide</source>
        <translation>Diapositiva anterior</translation>
    </message>
    <message>
        <source>Next slide</source>
        <translation>Diapositiva siguiente</translation>
    </message>
</context>
<context>
    <name>SlidesSettings</name>
    <message>
        <source>Slides</source>
        <translation>Diapositivas</translation>
    </message>
    <message>
        <source>Slide Tracking — notes follow the live slideshow</source>
        <translation>Seguir las diapositivas: las notas siguen la presentación</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. The first time, macOS asks to let Orvello control that app — that&apos;s the sync. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Con una presentación importada (Guiones → botón de importar) y el seguimiento de diapositivas activado, el prompter muestra las notas de la diapositiva actual y cambia solo cuando avanzas en %1. La primera vez, macOS pregunta si Orvello puede controlar esa aplicación: esa es la sincronización. Desactívalo para recorrer toda la presentación como un guion normal.</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: a presentation program.</extracomment>
        <translation>Con una presentación importada (Guiones → botón de importar) y el seguimiento de diapositivas activado, el prompter muestra las notas de la diapositiva actual y cambia solo cuando avanzas en %1. Desactívalo para recorrer toda la presentación como un guion normal.</translation>
    </message>
    <message>
        <source>If sync shows &quot;No access&quot;: System Settings → Privacy &amp; Security → Automation → Orvello → allow %1, then toggle Slide Tracking off and on.</source>
        <extracomment>The words in quotation marks are those of the card. %1: presentation programs.</extracomment>
        <translation>Si aparece «Sin acceso»: Ajustes del Sistema → Privacidad y seguridad → Automatización → Orvello → permite %1, y después desactiva y activa el seguimiento de diapositivas.</translation>
    </message>
    <message>
        <source>Orvello may not follow Impress</source>
        <translation>Orvello no puede seguir a Impress</translation>
    </message>
    <message>
        <source>Orvello may follow Impress</source>
        <translation>Orvello puede seguir a Impress</translation>
    </message>
    <message>
        <source>Orvello may follow Impress, but could not</source>
        <translation>Orvello puede seguir a Impress, pero no lo consiguió</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Revocar</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
</context>
<context>
    <name>StatusBadge</name>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Reading time</source>
        <translation>Tiempo de lectura</translation>
    </message>
</context>
<context>
    <name>TourCloseButton</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>TourCopyButton</name>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>Copiar la ruta</translation>
    </message>
</context>
<context>
    <name>TourDots</name>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>Read aloud. %1: a page of the tour; %2: how many there are.</extracomment>
        <translation>Página %1 de %2</translation>
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
        <translation>Omitir la visita</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Open my prompter</source>
        <translation>Abrir mi prompter</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>TourKeyRow</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Read aloud. %1: keys; %2: what they do.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>TourPrivacyPage</name>
    <message>
        <source>One rule keeps your notes off the recording: share a window, never the whole screen.</source>
        <translation>Una regla mantiene tus notas fuera de la grabación: comparte una ventana, nunca la pantalla completa.</translation>
    </message>
    <message>
        <source>One rule and one safety net keep your notes off the recording.</source>
        <translation>Una regla y una red de seguridad mantienen tus notas fuera de la grabación.</translation>
    </message>
    <message>
        <source>One rule, one safety net, and one Zoom setting keep your notes off the recording.</source>
        <translation>Una regla, una red de seguridad y un ajuste de Zoom mantienen tus notas fuera de la grabación.</translation>
    </message>
    <message>
        <source>Stealth Mode is on by default</source>
        <translation>El modo sigiloso viene activado</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window</source>
        <translation>Este escritorio no puede ocultar una ventana</translation>
    </message>
    <message>
        <source>No app can keep its window out of screen captures here, so Stealth Mode has no effect. The prompter says so on its card: whoever sees your whole screen sees it too.</source>
        <translation>Aquí ninguna aplicación puede dejar su ventana fuera de las capturas de pantalla, así que el modo sigiloso no tiene efecto. El prompter lo dice en su tarjeta: quien ve toda tu pantalla lo ve también.</translation>
    </message>
    <message>
        <source>Turn it on before you share and leave it alone. Toggling it mid-share can make your meeting app draw a gray box where the prompter sits — close and reopen Orvello to clear it.</source>
        <translation>Actívalo antes de compartir y no lo toques más. Cambiarlo mientras compartes puede hacer que la aplicación de reuniones dibuje un recuadro gris donde está el prompter: cierra y vuelve a abrir Orvello para quitarlo.</translation>
    </message>
    <message>
        <source>Want zero risk? Share just the window</source>
        <translation>¿Riesgo cero? Comparte solo la ventana</translation>
    </message>
    <message>
        <source>Full-screen sharing works with Stealth Mode on. Sharing only the %1 window takes the risk to zero — a window share can never include the prompter.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Compartir la pantalla completa funciona con el modo sigiloso. Compartir solo la ventana de %1 reduce el riesgo a cero: una ventana compartida nunca puede incluir el prompter.</translation>
    </message>
    <message>
        <source>Share just the window</source>
        <translation>Comparte solo la ventana</translation>
    </message>
    <message>
        <source>In your meeting app, choose the window of your slides instead of the entire screen, and keep the prompter beside it: some recorders capture the window&apos;s place with everything in front of it.</source>
        <translation>En tu app de reuniones, elige la ventana de tus diapositivas en lugar de toda la pantalla y deja el prompter al lado. Algunos programas, sobre todo los de grabación, capturan el lugar de una ventana con todo lo que tenga delante.</translation>
    </message>
    <message>
        <source>One rule: share a window, never the whole screen.</source>
        <translation>Una regla: comparte una ventana, nunca toda la pantalla.</translation>
    </message>
    <message>
        <source>A share of the full screen may show the prompter here. Sharing only the %1 window takes the risk to zero — a window share can never include it.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Si compartes toda la pantalla, aquí puede verse el prompter. Compartir solo la ventana de %1 reduce el riesgo a cero: una ventana compartida nunca puede incluirlo.</translation>
    </message>
</context>
<context>
    <name>TourSetupPage</name>
    <message>
        <source>You&apos;re set. Here&apos;s where things are.</source>
        <translation>Todo listo. Aquí está cada cosa.</translation>
    </message>
    <message>
        <source>Drag the prompter right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>Arrastra el prompter justo debajo de la cámara para que tu mirada sea natural. Cambia su tamaño desde cualquier borde.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Pause during a slideshow</source>
        <translation>Pausa durante una presentación</translation>
    </message>
    <message>
        <source>Hover</source>
        <extracomment>Instead of a key: the pointer rests on the prompter.</extracomment>
        <translation>Puntero encima</translation>
    </message>
    <message>
        <source>Pause instantly</source>
        <translation>Pausa inmediata</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menús</translation>
    </message>
    <message>
        <source>Tray menu</source>
        <translation>Menú de la bandeja</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour.</source>
        <translation>… y Guiones, donde escribes o importas lo que dices, los ajustes y esta visita.</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour. Without a tray, right-click the prompter.</source>
        <translation>… y Guiones, donde escribes o importas lo que dices, los ajustes y esta visita. Sin bandeja, haz clic derecho en el prompter.</translation>
    </message>
</context>
<context>
    <name>TourVoiceTest</name>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>Buscar la sensibilidad para mi voz</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>Nivel del micrófono</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Probar</translation>
    </message>
</context>
<context>
    <name>TourWelcomePage</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Te damos la bienvenida a Orvello</translation>
    </message>
    <message>
        <source>Your private teleprompter. Your audience sees your slides — never your notes.</source>
        <translation>Tu teleprompter privado. Tu público ve tus diapositivas, nunca tus notas.</translation>
    </message>
    <message>
        <source>Invisible on screen shares</source>
        <translation>Invisible al compartir pantalla</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots — while you see it perfectly.</source>
        <translation>El modo sigiloso oculta el prompter a Zoom, Meet, Teams, grabaciones y capturas, mientras tú lo ves perfectamente.</translation>
    </message>
    <message>
        <source>Follows your voice</source>
        <translation>Sigue tu voz</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — nothing is recorded or uploaded.</source>
        <translation>Avanza mientras hablas y espera cuando te detienes. El audio se analiza solo en este Mac: nada se graba ni se envía.</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this computer only — nothing is recorded or uploaded.</source>
        <translation>Avanza mientras hablas y espera cuando te detienes. El audio se analiza solo en este ordenador: nada se graba ni se envía.</translation>
    </message>
    <message>
        <source>Follows your slides</source>
        <translation>Sigue tus diapositivas</translation>
    </message>
    <message>
        <source>Import a .pptx or an open %1 deck and the speaker notes flip with your slideshow.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Importa un archivo .pptx o una presentación abierta en %1, y las notas cambian con tus diapositivas.</translation>
    </message>
    <message>
        <source>Share a window in Zoom, Meet or Teams, keep the prompter beside it, and only you see it. In a share of the whole screen, this desktop shows it to everyone.</source>
        <translation>Comparte una ventana en Zoom, Meet o Teams, deja el prompter al lado y solo tú lo verás. Si compartes toda la pantalla, este escritorio se lo muestra a todos.</translation>
    </message>
    <message>
        <source>Your private teleprompter. Share your slides&apos; window alone, keep the prompter beside it, and your notes are yours.</source>
        <translation>Tu teleprompter privado. Comparte solo la ventana de tus diapositivas, deja el prompter al lado, y tus notas son tuyas.</translation>
    </message>
    <message>
        <source>Beside the window that you share</source>
        <translation>Junto a la ventana que compartes</translation>
    </message>
    <message>
        <source>Hidden where the system allows</source>
        <translation>Oculto donde el sistema lo permite</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter as far as this system allows. Newer recorders may show it all the same: try yours first.</source>
        <translation>El modo sigiloso oculta el prompter hasta donde lo permite este sistema. Los programas de grabación más nuevos pueden mostrarlo igual: prueba antes el tuyo.</translation>
    </message>
</context>
<context>
    <name>TourZoomCard</name>
    <message>
        <source>Using Zoom? Set this once</source>
        <translation>¿Usas Zoom? Ajústalo una vez</translation>
    </message>
    <message>
        <source>Using Zoom? Share a window</source>
        <translation>¿Usas Zoom? Comparte una ventana</translation>
    </message>
    <message>
        <source>No setting of Zoom hides the prompter here: a share of the entire screen shows your notes.</source>
        <translation>Aquí ningún ajuste de Zoom oculta el prompter: al compartir la pantalla completa se ven tus notas.</translation>
    </message>
    <message>
        <source>Zoom&apos;s default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes.</source>
        <translation>El ajuste original de Zoom, Automático, suele servir, pero elige un método de captura en cada sesión, y uno de ellos puede mostrar tus notas.</translation>
    </message>
    <message>
        <source>Zoom → Share Screen → &lt;b&gt;your slides&apos; window&lt;/b&gt; (not Entire Screen).</source>
        <extracomment>The words between &lt;b&gt; and &lt;/b&gt; are shown in bold.</extracomment>
        <translation>Zoom → Compartir pantalla → &lt;b&gt;la ventana de tus diapositivas&lt;/b&gt; (no la pantalla completa).</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &lt;b&gt;Advanced capture with window filtering&lt;/b&gt; (or Previous operating systems).</source>
        <translation>Zoom → Configuración → Compartir pantalla → Avanzado → Modo de captura de pantalla → &lt;b&gt;Captura avanzada con filtrado de ventanas&lt;/b&gt; (o Sistemas operativos anteriores).</translation>
    </message>
</context>
<context>
    <name>UpdateQuestion</name>
    <message>
        <source>Update</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Add Once More</source>
        <extracomment>A button: the notes of a presentation are added as one more script.</extracomment>
        <translation>Añadir otra vez</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>UpdateSettings</name>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation>Buscar actualizaciones automáticamente (una vez al día)</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your computer beyond the app version. Orvello installs nothing by itself: if you want the new version, it opens the download page.</source>
        <translation>La búsqueda pregunta al sitio web del fabricante por la última versión y no envía nada sobre ti ni tu ordenador, salvo la versión de la aplicación. Orvello no instala nada por su cuenta: si quieres la versión nueva, abre la página de descarga.</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your Mac beyond the app version. Updates are signed, and you always confirm before one installs.</source>
        <translation>La búsqueda pregunta al sitio web del fabricante por la última versión y no envía nada sobre ti ni tu Mac, salvo la versión de la aplicación. Las actualizaciones van firmadas y siempre confirmas antes de instalar una.</translation>
    </message>
    <message>
        <source>Orvello %1 — not checked yet</source>
        <translation>Orvello %1 — aún sin buscar</translation>
    </message>
    <message>
        <source>Orvello %1 — last checked %2</source>
        <extracomment>%1: the version; %2: a date and a time.</extracomment>
        <translation>Orvello %1 — última búsqueda %2</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Buscar ahora</translation>
    </message>
    <message>
        <source>This Orvello was built without the address of an update feed, so it cannot look for updates. Whoever you got it from has newer versions.</source>
        <translation>Este Orvello se compiló sin la dirección de un canal de actualizaciones, así que no puede buscarlas. Las versiones nuevas están donde lo obtuviste.</translation>
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
        <translation>Seguir la voz</translation>
    </message>
    <message>
        <source>Scroll while I speak, pause when I pause</source>
        <translation>Avanzar mientras hablo, esperar cuando me detengo</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>Nivel del micrófono</translation>
    </message>
    <message>
        <source>Microphone access is denied. Allow it in your desktop&apos;s privacy settings, then toggle voice-follow again.</source>
        <translation>El acceso al micrófono está denegado. Permítelo en los ajustes de privacidad de tu escritorio y después desactiva y activa el seguimiento de la voz.</translation>
    </message>
    <message>
        <source>Microphone access is denied. Enable it in System Settings → Privacy &amp; Security → Microphone, then toggle voice-follow again.</source>
        <translation>El acceso al micrófono está denegado. Permítelo en Ajustes del Sistema → Privacidad y seguridad → Micrófono y después desactiva y activa el seguimiento de la voz.</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this Mac won&apos;t move the prompter.</source>
        <translation>Cancelación de eco: activada; lo que suena en este Mac no mueve el prompter.</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this computer won&apos;t move the prompter.</source>
        <translation>Cancelación de eco: activada; lo que suena en este ordenador no mueve el prompter.</translation>
    </message>
    <message>
        <source>Echo cancellation: paused (%1) so your voice keeps working in calls. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <extracomment>%1: why, such as &quot;another app is using the microphone&quot; or &quot;Zoom is open&quot;.</extracomment>
        <translation>Cancelación de eco: en pausa (%1) para que tu voz siga funcionando en las llamadas. Con altavoces, un interlocutor ruidoso puede mover el prompter; con auriculares no.</translation>
    </message>
    <message>
        <source>Audio is analyzed on-device for loudness only. Nothing is recorded, recognized, or uploaded.</source>
        <translation>El audio se analiza en el dispositivo y solo por su volumen. Nada se graba, se reconoce ni se envía.</translation>
    </message>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>Buscar la sensibilidad para mi voz</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>Habla con normalidad durante cinco segundos.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>Echo cancellation: not available. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <translation>Cancelación de eco: no disponible. Con altavoces, un interlocutor ruidoso puede mover el prompter; con auriculares no.</translation>
    </message>
</context>
</TS>
