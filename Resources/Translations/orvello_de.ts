<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Countdown</name>
    <message>
        <source>Countdown</source>
        <translation>Countdown</translation>
    </message>
</context>
<context>
    <name>DeletedScripts</name>
    <message>
        <source>Recently deleted</source>
        <translation>Zuletzt gelöscht</translation>
    </message>
    <message>
        <source>Deleted scripts are kept for 30 days.</source>
        <translation>Gelöschte Skripte werden 30 Tage aufbewahrt.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>„%1“ wiederherstellen</translation>
    </message>
</context>
<context>
    <name>EditorPage</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Speaker notes</source>
        <translation>Sprechernotizen</translation>
    </message>
    <message>
        <source>Script text</source>
        <translation>Skripttext</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your Mac</source>
        <translation>Wird im Prompter gezeigt · automatisch lokal gesichert, nichts verlässt Ihren Mac</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your computer</source>
        <translation>Wird im Prompter gezeigt · automatisch lokal gesichert, nichts verlässt Ihren Computer</translation>
    </message>
    <message>
        <source>Start Here</source>
        <extracomment>The prompter begins with the line that the cursor is on.</extracomment>
        <translation>Hier beginnen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>ImportMenu</name>
    <message>
        <source>Import speaker notes from a deck</source>
        <translation>Sprechernotizen aus einer Präsentation importieren</translation>
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
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>Orvello::AppDelegate</name>
    <message>
        <source>%1 counts only at the launch: quit the Orvello that runs first</source>
        <translation>%1 gilt nur beim Start: Beenden Sie zuerst das laufende Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::Appcast</name>
    <message>
        <source>It declares a document type.</source>
        <translation>Sie deklariert einen Dokumenttyp.</translation>
    </message>
    <message>
        <source>It is no RSS feed.</source>
        <translation>Das ist kein RSS-Feed.</translation>
    </message>
</context>
<context>
    <name>Orvello::AppcastUpdater</name>
    <message>
        <source>There is no valid update feed.</source>
        <translation>Es gibt keinen gültigen Update-Feed.</translation>
    </message>
    <message>
        <source>The update feed is not secure.</source>
        <translation>Der Update-Feed ist nicht sicher.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>Der Update-Feed lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>The update feed makes no sense: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>Der Update-Feed ist unverständlich: %1</translation>
    </message>
    <message>
        <source>The download page cannot be opened.</source>
        <translation>Die Download-Seite lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>Orvello is up to date.</source>
        <translation>Orvello ist auf dem neuesten Stand.</translation>
    </message>
</context>
<context>
    <name>Orvello::AppleScriptPresenters</name>
    <message>
        <source>permission denied — allow Orvello to control %1 in System Settings → Privacy &amp; Security → Automation</source>
        <extracomment>Follows &quot;Couldn&apos;t read the presentation:&quot;. %1: a presentation program.</extracomment>
        <translation>Zugriff verweigert – erlauben Sie Orvello die Steuerung von %1 unter Systemeinstellungen → Datenschutz &amp; Sicherheit → Automation</translation>
    </message>
    <message>
        <source>presenter notes</source>
        <translation>Moderationsnotizen</translation>
    </message>
    <message>
        <source>speaker notes</source>
        <translation>Sprechernotizen</translation>
    </message>
</context>
<context>
    <name>Orvello::BusInstance</name>
    <message>
        <source>Orvello is running already, but does not answer.</source>
        <translation>Orvello läuft bereits, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>Orvello is running already, but cannot be asked for anything: the two do not share a session bus.</source>
        <translation>Orvello läuft bereits, kann aber um nichts gebeten werden: Die beiden teilen keinen Sitzungsbus.</translation>
    </message>
</context>
<context>
    <name>Orvello::Commands</name>
    <message>
        <source>Start Scrolling</source>
        <translation>Lauf starten</translation>
    </message>
    <message>
        <source>Pause Scrolling</source>
        <translation>Lauf anhalten</translation>
    </message>
    <message>
        <source>Start / pause scrolling</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>Lauf starten / anhalten</translation>
    </message>
    <message>
        <source>Start / pause</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>Start / Pause</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Back to Top</source>
        <extracomment>In a menu: scrolls back to the beginning of the script.</extracomment>
        <translation>Zurück zum Anfang</translation>
    </message>
    <message>
        <source>Back to top</source>
        <extracomment>What a key does: it scrolls back to the beginning of the script.</extracomment>
        <translation>Zurück zum Anfang</translation>
    </message>
    <message>
        <source>Show Prompter</source>
        <translation>Prompter zeigen</translation>
    </message>
    <message>
        <source>Hide Prompter</source>
        <translation>Prompter verbergen</translation>
    </message>
    <message>
        <source>Show / hide prompter</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>Prompter zeigen / verbergen</translation>
    </message>
    <message>
        <source>Show / hide</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>Zeigen / verbergen</translation>
    </message>
    <message>
        <source>Voice-Follow Scrolling</source>
        <extracomment>A mode: the text scrolls while the user speaks.</extracomment>
        <translation>Der Stimme folgen</translation>
    </message>
    <message>
        <source>Slide Tracking</source>
        <extracomment>A mode: the notes follow the slides of a running slideshow.</extracomment>
        <translation>Den Folien folgen</translation>
    </message>
    <message>
        <source>Stealth Mode</source>
        <extracomment>A mode: the prompter is hidden from screen sharing and recordings.</extracomment>
        <translation>Stealth-Modus</translation>
    </message>
    <message>
        <source>Scripts…</source>
        <translation>Skripte …</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Welcome Tour…</source>
        <translation>Willkommenstour …</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Contact Support…</source>
        <translation>Support kontaktieren …</translation>
    </message>
    <message>
        <source>Reveal Log Files</source>
        <translation>Protokolldateien zeigen</translation>
    </message>
    <message>
        <source>Quit Orvello</source>
        <translation>Orvello beenden</translation>
    </message>
    <message>
        <source>%1  (%2)</source>
        <extracomment>A line of a menu with two blanks in it. %1: its text; %2: its key, such as &quot;⌥⌘P&quot;.</extracomment>
        <translation>%1  (%2)</translation>
    </message>
    <message>
        <source>Start or pause scrolling</source>
        <translation>Lauf starten oder anhalten</translation>
    </message>
    <message>
        <source>Scroll faster</source>
        <translation>Schneller laufen</translation>
    </message>
    <message>
        <source>Scroll more slowly</source>
        <translation>Langsamer laufen</translation>
    </message>
    <message>
        <source>Go back to the top of the script</source>
        <translation>Zurück zum Anfang des Skripts</translation>
    </message>
    <message>
        <source>Show or hide the prompter</source>
        <translation>Prompter zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Put Under the Camera</source>
        <extracomment>In a menu: moves the prompter to the top of the screen that the pointer is on.</extracomment>
        <translation>Unter die Kamera setzen</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckController</name>
    <message>
        <source>(No speaker notes on this slide)</source>
        <translation>(Keine Sprechernotizen auf dieser Folie)</translation>
    </message>
    <message>
        <source>(Another presentation is on screen)</source>
        <translation>(Auf dem Bildschirm ist eine andere Präsentation)</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckFileBar</name>
    <message>
        <source>Up to date with “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Auf dem Stand von „%1“.</translation>
    </message>
    <message>
        <source>“%1” is not there any more. The notes stay as they were.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>„%1“ ist nicht mehr da. Die Notizen bleiben, wie sie waren.</translation>
    </message>
    <message>
        <source>“%1” has changed: the notes of slides %2 are no longer in it. An update keeps this version among the deleted scripts.</source>
        <extracomment>%1: the name of a file; %2: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>„%1“ hat sich geändert: Die Notizen der Folien %2 sind nicht mehr darin. Beim Aktualisieren bleibt diese Fassung bei den gelöschten Skripten.</translation>
    </message>
    <message>
        <source>“%1” has changed, but cannot be read: %2</source>
        <extracomment>%1: the name of a file; %2: why, as a sentence.</extracomment>
        <translation>„%1“ hat sich geändert, lässt sich aber nicht lesen: %2</translation>
    </message>
    <message>
        <source>Update from File…</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>Aus Datei aktualisieren …</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Choose the presentation that these notes are from.</source>
        <translation>Wählen Sie die Präsentation, aus der diese Notizen stammen.</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImportError</name>
    <message>
        <source>%1 isn&apos;t running. Open your presentation in %1 first.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>%1 läuft nicht. Öffnen Sie Ihre Präsentation zuerst in %1.</translation>
    </message>
    <message>
        <source>No presentation is open in %1.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>In %1 ist keine Präsentation geöffnet.</translation>
    </message>
    <message>
        <source>That %1 presentation has no %2 on any slide.</source>
        <extracomment>%1: a presentation program; %2: what it calls the notes, such as &quot;speaker notes&quot;.</extracomment>
        <translation>Diese %1-Präsentation hat auf keiner Folie %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the %1 presentation: %2</source>
        <extracomment>%1: a presentation program; %2: why, a sentence or a part of one.</extracomment>
        <translation>Die %1-Präsentation konnte nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImports</name>
    <message>
        <source>PowerPoint file (.pptx)…</source>
        <translation>PowerPoint-Datei (.pptx) …</translation>
    </message>
    <message>
        <source>Open %1 presentation</source>
        <extracomment>An item of a menu. %1: a presentation program, such as Keynote.</extracomment>
        <translation>In %1 geöffnete Präsentation</translation>
    </message>
    <message>
        <source>Choose a PowerPoint presentation — Orvello imports its speaker notes.</source>
        <translation>Wählen Sie eine PowerPoint-Präsentation – Orvello importiert ihre Sprechernotizen.</translation>
    </message>
    <message>
        <source>Import failed</source>
        <translation>Import fehlgeschlagen</translation>
    </message>
    <message>
        <source>No speaker notes</source>
        <translation>Keine Sprechernotizen</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in PowerPoint&apos;s notes pane and re-import.</source>
        <translation>Die Präsentation wurde importiert, aber keine Folie hat Sprechernotizen. Fügen Sie im Notizenbereich von PowerPoint Notizen hinzu und importieren Sie erneut.</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in your presentation program&apos;s notes pane and re-import.</source>
        <translation>Die Präsentation wurde importiert, aber keine Folie hat Sprechernotizen. Fügen Sie im Notizenbereich Ihres Präsentationsprogramms Notizen hinzu und importieren Sie erneut.</translation>
    </message>
    <message>
        <source>Imported the saved copy</source>
        <translation>Gespeicherte Kopie importiert</translation>
    </message>
    <message>
        <source>PowerPoint has unsaved changes, so the notes came from the last saved copy. Save the presentation and import again to include them.</source>
        <translation>PowerPoint hat ungesicherte Änderungen, deshalb stammen die Notizen aus der zuletzt gespeicherten Kopie. Speichern Sie die Präsentation und importieren Sie erneut, um sie zu übernehmen.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>Not all notes were imported</source>
        <translation>Nicht alle Notizen wurden importiert</translation>
    </message>
    <message>
        <source>The file holds more than Orvello reads: the notes of slides %1 could not be read.</source>
        <extracomment>%1: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>Die Datei enthält mehr, als Orvello liest: Die Notizen der Folien %1 konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Presentation file (.pptx, .odp)…</source>
        <translation>Präsentationsdatei (.pptx, .odp) …</translation>
    </message>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Lese, was in %1 geöffnet ist …</translation>
    </message>
    <message>
        <source>Choose a presentation — Orvello imports its speaker notes.</source>
        <translation>Wählen Sie eine Präsentation – Orvello importiert ihre Notizen.</translation>
    </message>
    <message>
        <source>Not a presentation</source>
        <translation>Keine Präsentation</translation>
    </message>
    <message>
        <source>Orvello imports speaker notes from presentations (.pptx, .odp). It cannot read %1.</source>
        <extracomment>%1: the names of files.</extracomment>
        <translation>Orvello importiert Vortragsnotizen aus Präsentationen (.pptx, .odp). %1 kann es nicht lesen.</translation>
    </message>
    <message>
        <source>The notes of “%1” are among your scripts already. Update them, or add them once more?</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Die Notizen von „%1“ sind schon bei Ihren Skripten. Sollen sie aktualisiert oder noch einmal hinzugefügt werden?</translation>
    </message>
</context>
<context>
    <name>Orvello::DeletedScriptsModel</name>
    <message>
        <source>Deleted %1</source>
        <extracomment>%1: a date.</extracomment>
        <translation>Gelöscht: %1</translation>
    </message>
</context>
<context>
    <name>Orvello::Facts</name>
    <message>
        <source>Keynote or PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>Keynote oder PowerPoint</translation>
    </message>
    <message>
        <source>Keynote or Microsoft PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>Keynote oder Microsoft PowerPoint</translation>
    </message>
</context>
<context>
    <name>Orvello::FeedLoader</name>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Der Server hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The server redirects to an insecure address.</source>
        <translation>Der Server leitet auf eine unsichere Adresse um.</translation>
    </message>
    <message>
        <source>The document is too large.</source>
        <translation>Das Dokument ist zu groß.</translation>
    </message>
    <message>
        <source>The server answers with status %1.</source>
        <translation>Der Server antwortet mit Status %1.</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressAdviceDialog</name>
    <message>
        <source>Let Orvello follow your Impress presentations?</source>
        <translation>Darf Orvello Ihren Impress-Präsentationen folgen?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>While an Impress slideshow runs, and while you import an open presentation, Orvello has LibreOffice listen on a connection that gives control of all of LibreOffice, and uses it to read slide numbers, titles and notes. Only programs of your user account could reach it, Orvello takes its name away as soon as it is connected, and the connection ends with the slideshow or the import.</source>
        <translation>Während eine Impress-Präsentation läuft und während Sie eine geöffnete Präsentation importieren, lässt Orvello LibreOffice auf einer Verbindung lauschen, die Kontrolle über ganz LibreOffice gibt, und liest darüber Foliennummern, Titel und Notizen. Nur Programme Ihres Benutzerkontos könnten sie erreichen, Orvello nimmt ihr den Namen, sobald es verbunden ist, und die Verbindung endet mit der Präsentation oder dem Import.</translation>
    </message>
    <message>
        <source>Orvello may now follow Impress. Start the slideshow or the import again.

The settings have a button that takes this back.</source>
        <translation>Orvello darf Impress jetzt folgen. Starten Sie die Präsentation oder den Import noch einmal.

In den Einstellungen gibt es einen Knopf, der das zurücknimmt.</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressPresenter</name>
    <message>
        <source>notes</source>
        <extracomment>What Impress calls a speaker&apos;s notes.</extracomment>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>To follow Impress, Orvello needs the package python3-uno. Install it and try again.</source>
        <translation>Um Impress zu folgen, braucht Orvello das Paket python3-uno. Installieren Sie es und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>LibreOffice isn&apos;t running.</source>
        <translation>LibreOffice läuft nicht.</translation>
    </message>
    <message>
        <source>LibreOffice did not answer.</source>
        <translation>LibreOffice hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>permission denied — Orvello asks LibreOffice only once you allow it</source>
        <extracomment>Follows &quot;Couldn&apos;t read the Impress presentation:&quot;.</extracomment>
        <translation>Zugriff verweigert – Orvello fragt LibreOffice erst, wenn Sie es erlauben</translation>
    </message>
    <message>
        <source>This LibreOffice runs in a sandbox (%1) that Orvello cannot reach. Import the presentation&apos;s file instead, and step through the slides by hand.</source>
        <extracomment>%1: a kind of package, such as Flatpak or Snap.</extracomment>
        <translation>Dieses LibreOffice läuft in einer Sandbox (%1), die Orvello nicht erreichen kann. Importieren Sie stattdessen die Datei der Präsentation und blättern Sie von Hand durch die Folien.</translation>
    </message>
</context>
<context>
    <name>Orvello::LaunchOptions</name>
    <message>
        <source>unknown option %1; did you mean %2?</source>
        <translation>Unbekannte Option %1; meinten Sie %2?</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>Unbekannte Option %1</translation>
    </message>
    <message>
        <source>%1 is neither an option nor a preference with a value</source>
        <translation>%1 ist weder eine Option noch eine Einstellung mit Wert</translation>
    </message>
    <message>
        <source>%1 is no address that Orvello opens</source>
        <translation>%1 ist keine Adresse, die Orvello öffnet</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>Es gibt keine Datei „%1“</translation>
    </message>
    <message>
        <source>Try &quot;orvello --help&quot;.</source>
        <translation>Siehe „orvello --help“.</translation>
    </message>
    <message>
        <source>%1 is not a deck (.pptx or .odp)</source>
        <translation>%1 ist keine Präsentation (.pptx oder .odp)</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryNotices</name>
    <message>
        <source>Another Orvello is using your scripts, so nothing that you change here is saved. Quit this one and go on in the other.</source>
        <translation>Ein anderes Orvello verwendet Ihre Skripte, deshalb wird nichts gespeichert, was Sie hier ändern. Beenden Sie dieses und machen Sie im anderen weiter.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because the disk is full. Orvello keeps trying.</source>
        <translation>Ihre Skripte können nicht gespeichert werden, weil der Datenträger voll ist. Orvello versucht es weiter.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because their folder is write-protected. Orvello keeps trying.</source>
        <translation>Ihre Skripte können nicht gespeichert werden, weil ihr Ordner schreibgeschützt ist. Orvello versucht es weiter.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved (%1). Orvello keeps trying.</source>
        <extracomment>%1: what the system says about it.</extracomment>
        <translation>Ihre Skripte können nicht gespeichert werden (%1). Orvello versucht es weiter.</translation>
    </message>
    <message>
        <source>Your scripts file was lost or empty. There is a copy from %1.</source>
        <extracomment>%1: a date and a time.</extracomment>
        <translation>Die Datei mit Ihren Skripten fehlte oder war leer. Es gibt eine Kopie vom %1.</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. There is a copy from %1; what was in the file is kept as “%2”.</source>
        <extracomment>%1: a date and a time; %2: the name of a file.</extracomment>
        <translation>Die Datei mit Ihren Skripten war beschädigt. Es gibt eine Kopie vom %1; der Inhalt der Datei ist als „%2“ aufgehoben.</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. What was in it is kept as “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Die Datei mit Ihren Skripten war beschädigt. Ihr Inhalt ist als „%1“ aufgehoben.</translation>
    </message>
    <message numerus="yes">
        <source>Bring back %n scripts</source>
        <extracomment>A button.</extracomment>
        <translation>
            <numerusform>%n Skript zurückholen</numerusform>
            <numerusform>%n Skripte zurückholen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryStore</name>
    <message>
        <source>My Script</source>
        <extracomment>The title of the only script of a user of the first versions.</extracomment>
        <translation>Mein Skript</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>The title of a new script.</extracomment>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The title of a copied script. %1: the title of the original.</extracomment>
        <translation>%1 – Kopie</translation>
    </message>
    <message>
        <source>%1 (before the update)</source>
        <extracomment>The title of a former version of a script. %1: the title of the script.</extracomment>
        <translation>%1 (vor der Aktualisierung)</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryViewModel</name>
    <message>
        <source>Export this script</source>
        <extracomment>Above the panel in which the user says where the script is to be written.</extracomment>
        <translation>Dieses Skript exportieren</translation>
    </message>
    <message numerus="yes">
        <source>Export %n scripts</source>
        <translation>
            <numerusform>%n Skript exportieren</numerusform>
            <numerusform>%n Skripte exportieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Scripts</source>
        <extracomment>The name of a file with several scripts.</extracomment>
        <translation>Skripte</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Export fehlgeschlagen</translation>
    </message>
    <message>
        <source>“%1” could not be written (%2).</source>
        <extracomment>%1: the name of a file; %2: what the system says about it.</extracomment>
        <translation>„%1“ konnte nicht geschrieben werden (%2).</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryWindow</name>
    <message>
        <source>Scripts</source>
        <translation>Skripte</translation>
    </message>
</context>
<context>
    <name>Orvello::LinuxWakefulness</name>
    <message>
        <source>The prompter is being read</source>
        <extracomment>Why the display is kept on, for a desktop that shows it: at most about 60 characters.</extracomment>
        <translation>Der Text im Prompter wird gerade gelesen</translation>
    </message>
</context>
<context>
    <name>Orvello::LiveDeckImport</name>
    <message>
        <source>%1 deck</source>
        <extracomment>The title of a deck without a name. %1: a presentation program, such as Keynote.</extracomment>
        <translation>%1-Präsentation</translation>
    </message>
</context>
<context>
    <name>Orvello::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einsetzen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>Orvello::OnboardingWindowController</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Willkommen bei Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::OtherDeckNotice</name>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Lese, was in %1 geöffnet ist …</translation>
    </message>
    <message>
        <source>These notes are from another presentation than the one on screen.</source>
        <extracomment>On the card. %1: the name of a presentation.</extracomment>
        <translation>Diese Notizen gehören zu einer anderen Präsentation als der auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>“%1” is on screen. These notes are from another presentation.</source>
        <translation>Auf dem Bildschirm ist „%1“. Diese Notizen gehören zu einer anderen Präsentation.</translation>
    </message>
    <message>
        <source>Switch to its notes</source>
        <extracomment>A button on the card: shows the notes of the presentation that is on screen.</extracomment>
        <translation>Zu ihren Notizen wechseln</translation>
    </message>
    <message>
        <source>Import its notes</source>
        <translation>Ihre Notizen importieren</translation>
    </message>
</context>
<context>
    <name>Orvello::PptxImporter</name>
    <message>
        <source>The file could not be opened as a PowerPoint package.</source>
        <translation>Die Datei ließ sich nicht als PowerPoint-Paket öffnen.</translation>
    </message>
    <message>
        <source>No slides were found — is this a .pptx presentation?</source>
        <translation>Keine Folien gefunden – ist das eine .pptx-Präsentation?</translation>
    </message>
    <message>
        <source>The presentation is protected by a password. Save a copy without one in your presentation program, and import that.</source>
        <translation>Die Präsentation ist mit einem Kennwort geschützt. Speichern Sie in Ihrem Präsentationsprogramm eine Kopie ohne Kennwort und importieren Sie diese.</translation>
    </message>
</context>
<context>
    <name>Orvello::PrompterStatus</name>
    <message>
        <source>get ready</source>
        <extracomment>On the card, at most about 20 characters: the countdown runs.</extracomment>
        <translation>gleich geht’s los</translation>
    </message>
    <message>
        <source>hover pause</source>
        <extracomment>On the card, at most about 20 characters: the pointer over the card holds the text.</extracomment>
        <translation>Zeiger hält an</translation>
    </message>
    <message>
        <source>paused</source>
        <extracomment>On the card, at most about 20 characters: the text stands still.</extracomment>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>listening…</source>
        <extracomment>On the card, at most about 20 characters: the text waits for the user to speak.</extracomment>
        <translation>hört zu …</translation>
    </message>
    <message>
        <source>scrolling</source>
        <extracomment>On the card, at most about 20 characters: the text moves.</extracomment>
        <translation>läuft</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingClock</name>
    <message>
        <source>%1 left</source>
        <extracomment>On the card, at most about 15 characters. %1: minutes and seconds, as in &quot;3:12&quot;.</extracomment>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>%1 · %2 left</source>
        <extracomment>On the card, at most about 25 characters. %1: how long the reader has been reading; %2: how long the rest takes, both as in &quot;3:12&quot;.</extracomment>
        <translation>%1 · noch %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingPace</name>
    <message>
        <source>The prompter has no text to scroll.</source>
        <translation>Der Prompter hat keinen Text zum Rollen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n characters a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · in diesem Text etwa %n Zeichen pro Minute</numerusform>
            <numerusform>%1 pt/s · in diesem Text etwa %n Zeichen pro Minute</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n words a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · in diesem Text etwa %n Wort pro Minute</numerusform>
            <numerusform>%1 pt/s · in diesem Text etwa %n Wörter pro Minute</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: faster than speech</source>
        <extracomment>%1: as in &quot;25 pt/s · about 250 words a minute in this script&quot;.</extracomment>
        <translation>%1: schneller, als man spricht</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptEditor</name>
    <message numerus="yes">
        <source>%n words</source>
        <translation>
            <numerusform>%n Wort</numerusform>
            <numerusform>%n Wörter</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported deck (%1) — notes are read-only here; edit them in the presentation and re-import.</source>
        <extracomment>%1: where the deck is from: a program or a file.</extracomment>
        <translation>Importierte Präsentation (%1) – Notizen sind hier schreibgeschützt; bearbeiten Sie sie in der Präsentation und importieren Sie erneut.</translation>
    </message>
    <message>
        <source>%1 · about %2</source>
        <extracomment>%1: how many words, as in &quot;52 words&quot;; %2: minutes and seconds, as in &quot;0:22&quot;.</extracomment>
        <translation>%1 · etwa %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptListModel</name>
    <message>
        <source>Untitled</source>
        <extracomment>Stands for a script without a title.</extracomment>
        <translation>Ohne Titel</translation>
    </message>
    <message numerus="yes">
        <source>%n slides</source>
        <translation>
            <numerusform>%n Folie</numerusform>
            <numerusform>%n Folien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::SensitivityTest</name>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>Sprechen Sie fünf Sekunden lang ganz normal.</translation>
    </message>
    <message>
        <source>Waiting for the microphone…</source>
        <translation>Warten auf das Mikrofon …</translation>
    </message>
    <message>
        <source>A sensitivity of %1% suits your voice here.</source>
        <extracomment>%1: a whole number.</extracomment>
        <translation>Für Ihre Stimme passt hier eine Empfindlichkeit von %1 %.</translation>
    </message>
    <message>
        <source>No voice stood out from the room. Come closer to the microphone, or choose another one.</source>
        <translation>Keine Stimme hob sich vom Raum ab. Gehen Sie näher ans Mikrofon, oder wählen Sie ein anderes.</translation>
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
        <translation>Schriftgröße – %1</translation>
    </message>
    <message>
        <source>Scroll speed — %1 pt/s</source>
        <extracomment>%1: points per second.</extracomment>
        <translation>Lauftempo – %1 pt/s</translation>
    </message>
    <message>
        <source>Background opacity — %1</source>
        <extracomment>%1: a percentage.</extracomment>
        <translation>Deckkraft des Hintergrunds – %1</translation>
    </message>
    <message>
        <source>Sensitivity — %1</source>
        <extracomment>Of the microphone&apos;s detector of speech. %1: a percentage.</extracomment>
        <translation>Empfindlichkeit – %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation>3 Sekunden</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 Sekunden</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 Sekunden</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
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
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Your settings could not be read, so they are as new. The old file is kept: %1</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Ihre Einstellungen konnten nicht gelesen werden und sind deshalb wie neu. Die alte Datei ist aufgehoben: %1</translation>
    </message>
</context>
<context>
    <name>Orvello::SettingsWindow</name>
    <message>
        <source>Orvello Settings</source>
        <translation>Orvello – Einstellungen</translation>
    </message>
</context>
<context>
    <name>Orvello::ShortcutList</name>
    <message>
        <source>Speed up / down</source>
        <extracomment>What two keys do, one each. The second text is for a narrow list: at most about 20 characters.</extracomment>
        <translation>Schneller / langsamer</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>%1 (another program has it)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1 (hat ein anderes Programm)</translation>
    </message>
    <message>
        <source>%1 (not on this keyboard)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1 (fehlt auf dieser Tastatur)</translation>
    </message>
</context>
<context>
    <name>Orvello::SlideStatus</name>
    <message>
        <source>Live</source>
        <extracomment>On the card, at most about 12 characters: the notes follow the running slideshow.</extracomment>
        <translation>Live</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>On the card, at most about 12 characters: the presentation program may not be asked.</extracomment>
        <translation>Kein Zugriff</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>On the card, at most about 12 characters: the user turns the notes by hand.</extracomment>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>On the card: which slide of how many.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Other deck</source>
        <extracomment>On the card, at most about 12 characters: the slideshow shows another presentation.</extracomment>
        <translation>Andere Datei</translation>
    </message>
</context>
<context>
    <name>Orvello::StatusMenu</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
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
Falls etwas schiefging, hängen Sie bitte das Protokoll an: Orvello-Menü → Hilfe → Protokolldateien zeigen.</translation>
    </message>
</context>
<context>
    <name>Orvello::UpdateDialogs</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatisch nach Updates suchen?</translation>
    </message>
    <message>
        <source>Once a day, Orvello would look at the vendor&apos;s web site for a newer version. Nothing about you is sent. You can change this in the settings at any time.</source>
        <translation>Orvello würde einmal am Tag auf der Website des Anbieters nach einer neueren Version sehen. Nichts über Sie wird gesendet. Sie können das jederzeit in den Einstellungen ändern.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Automatisch suchen</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Nicht suchen</translation>
    </message>
    <message>
        <source>Orvello %1 is available.</source>
        <extracomment>%1: the version, such as 2.1.</extracomment>
        <translation>Orvello %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>You have %1. The new version is on its download page, which Install opens in your browser.</source>
        <extracomment>%1: the version. Install is the button&apos;s name.</extracomment>
        <translation>Sie haben %1. Die neue Version liegt auf ihrer Download-Seite, die „Installieren“ in Ihrem Browser öffnet.</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Installieren …</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation>Sie haben %1.</translation>
    </message>
</context>
<context>
    <name>Orvello::VoiceActivityEngine</name>
    <message>
        <source>another app is using the microphone</source>
        <extracomment>Stands in brackets in the middle of a sentence.</extracomment>
        <translation>ein anderes Programm benutzt das Mikrofon</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Stands in brackets in the middle of a sentence. %1: a meeting program.</extracomment>
        <translation>%1 ist geöffnet</translation>
    </message>
    <message>
        <source>The microphone may not be used.</source>
        <translation>Das Mikrofon darf nicht benutzt werden.</translation>
    </message>
    <message>
        <source>The sound system does not answer.</source>
        <translation>Das Tonsystem antwortet nicht.</translation>
    </message>
    <message>
        <source>No microphone is connected.</source>
        <translation>Es ist kein Mikrofon angeschlossen.</translation>
    </message>
    <message>
        <source>No microphone is connected. Connect one, then turn Voice-Follow off and on.</source>
        <translation>Es ist kein Mikrofon angeschlossen. Schließen Sie eines an, dann schalten Sie „Der Stimme folgen“ aus und ein.</translation>
    </message>
    <message>
        <source>The microphone “%1” is muted.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>Das Mikrofon „%1“ ist stummgeschaltet.</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone “%1”. Another program may keep it to itself.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>Vom Mikrofon „%1“ kommt nichts. Vielleicht behält es ein anderes Programm für sich.</translation>
    </message>
    <message>
        <source>The microphone could not be started.</source>
        <translation>Das Mikrofon ließ sich nicht starten.</translation>
    </message>
    <message>
        <source>The microphone could not be started. Turn Voice-Follow off and on to try again.</source>
        <translation>Das Mikrofon ließ sich nicht starten. Schalten Sie „Der Stimme folgen“ aus und ein, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>Echo cancellation is on.</source>
        <translation>Die Echounterdrückung ist an.</translation>
    </message>
    <message>
        <source>Echo cancellation is paused: %1.</source>
        <extracomment>%1: why, such as &quot;Zoom is open&quot;.</extracomment>
        <translation>Die Echounterdrückung ist pausiert: %1.</translation>
    </message>
    <message>
        <source>Echo cancellation is not available.</source>
        <translation>Die Echounterdrückung ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>The microphone that the desktop&apos;s settings choose.</extracomment>
        <translation>Wie im System</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>%1 (nicht angeschlossen)</translation>
    </message>
    <message>
        <source>Listening to “%1”.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>„%1“ wird gehört.</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeScript</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Willkommen bei Orvello</translation>
    </message>
    <message>
        <source>Welcome to Orvello. This is your private teleprompter.</source>
        <translation>Willkommen bei Orvello. Das ist Ihr privater Teleprompter.</translation>
    </message>
    <message>
        <source>Drag this panel anywhere — put it right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>Ziehen Sie dieses Feld, wohin Sie möchten – am besten direkt unter Ihre Kamera, dann wirkt Ihr Blick natürlich. Die Größe ändern Sie an jedem Rand.</translation>
    </message>
    <message>
        <source>Press %1P to start or pause scrolling. Use %1Up or Down to change the speed on the fly. Hover the mouse over this panel any time to pause instantly; move away and it resumes.</source>
        <extracomment>%1: the keys to hold, as in &quot;Option-Command-P&quot; or &quot;Alt+Super+P&quot;. Up and Down are the arrow keys.</extracomment>
        <translation>Drücken Sie %1P, um den Lauf zu starten oder anzuhalten. Mit %1Pfeil hoch oder Pfeil runter ändern Sie unterwegs das Tempo. Halten Sie den Mauszeiger über dieses Feld, um sofort anzuhalten; bewegen Sie ihn weg, und es geht weiter.</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu bar and the script scrolls while you speak, then waits when you pause.</source>
        <translation>Schalten Sie „Der Stimme folgen“ in der Menüleiste ein, und das Skript läuft, während Sie sprechen, und wartet, wenn Sie innehalten.</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu and the script scrolls while you speak, then waits when you pause. The menu opens from the tray, or with a right click on this panel.</source>
        <translation>Schalten Sie „Der Stimme folgen“ im Menü ein, und das Skript läuft, während Sie sprechen, und wartet, wenn Sie innehalten. Das Menü öffnet sich im Infobereich oder mit einem Rechtsklick auf dieses Feld.</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window is invisible to screen sharing, recordings, and screenshots. Your audience only sees your slides — never your notes.</source>
        <translation>Im Stealth-Modus ist dieses Fenster für Bildschirmfreigaben, Aufnahmen und Bildschirmfotos unsichtbar. Ihr Publikum sieht nur Ihre Folien – nie Ihre Notizen.</translation>
    </message>
    <message>
        <source>Sharing your screen? Leave Stealth Mode alone while you share — toggling it mid-share can make your meeting app show a gray box where the prompter sits. Close and open Orvello again to clear it.</source>
        <translation>Sie teilen Ihren Bildschirm? Lassen Sie den Stealth-Modus dabei in Ruhe – wird er währenddessen umgeschaltet, zeigt Ihr Besprechungsprogramm an der Stelle des Prompters womöglich einen grauen Kasten. Schließen und öffnen Sie Orvello dann neu.</translation>
    </message>
    <message>
        <source>Sharing your screen? This desktop cannot hide a window, so whoever sees your whole screen sees this panel too. Share only the window of your slides, and keep this panel beside it: your audience then sees your slides, not your notes.</source>
        <translation>Sie teilen Ihren Bildschirm? Dieser Desktop kann kein Fenster verbergen: Wer Ihren ganzen Bildschirm sieht, sieht auch dieses Feld. Teilen Sie nur das Fenster Ihrer Folien und lassen Sie dieses Feld daneben: Dann sieht Ihr Publikum Ihre Folien, nicht Ihre Notizen.</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window stays out of screen sharing, recordings, and screenshots as far as this system allows. Newer recorders may show it all the same: share only the window of your slides, and your audience never sees your notes.</source>
        <translation>Im Stealth-Modus bleibt dieses Fenster Bildschirmfreigaben, Aufnahmen und Bildschirmfotos fern, soweit dieses System das zulässt. Neuere Aufnahmeprogramme zeigen es womöglich trotzdem: Teilen Sie nur das Fenster Ihrer Folien, dann sieht Ihr Publikum nie Ihre Notizen.</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeTour</name>
    <message>
        <source>Zoom → Share Screen → &quot;your slides&apos; window&quot; (not &quot;Entire Screen&quot;)</source>
        <translation>Zoom → Bildschirm freigeben → „Fenster Ihrer Folien“ (nicht „Gesamter Bildschirm“)</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &quot;Advanced capture with window filtering&quot; (or &quot;Previous operating systems&quot;)</source>
        <translation>Zoom → Einstellungen → Bildschirm freigeben → Erweitert → Bildschirmaufnahmemodus → „Erweiterte Aufnahme mit Fensterfilterung“ (oder „Vorherige Betriebssysteme“)</translation>
    </message>
</context>
<context>
    <name>OtherDeck</name>
    <message>
        <source>Keep these notes</source>
        <translation>Diese Notizen behalten</translation>
    </message>
</context>
<context>
    <name>PrivacySettings</name>
    <message>
        <source>Privacy</source>
        <translation>Privatsphäre</translation>
    </message>
    <message>
        <source>Stealth Mode — hide from screen sharing, recordings &amp; screenshots</source>
        <translation>Stealth-Modus – bei Bildschirmfreigabe, Aufnahmen und Bildschirmfotos verbergen</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window from screen sharing, recordings, or screenshots. There the prompter is visible, whether Stealth Mode is on or off.</source>
        <translation>Dieser Desktop kann kein Fenster vor Bildschirmfreigaben, Aufnahmen oder Bildschirmfotos verbergen. Dort ist der Prompter sichtbar, ob der Stealth-Modus ein- oder ausgeschaltet ist.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while staying fully visible to you.</source>
        <translation>Ist der Stealth-Modus eingeschaltet, bevor das Teilen beginnt, ist der Prompter für Bildschirmfreigaben, Aufnahmen und Bildschirmfotos unsichtbar (Zoom, Meet, QuickTime und andere) – während Sie ihn weiter vollständig sehen.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots — while staying fully visible to you.</source>
        <translation>Ist der Stealth-Modus eingeschaltet, bevor das Teilen beginnt, ist der Prompter für Bildschirmfreigaben, Aufnahmen und Bildschirmfotos unsichtbar – während Sie ihn weiter vollständig sehen.</translation>
    </message>
    <message>
        <source>Stealth Mode takes effect on desktops that can keep a window out of screen sharing, recordings, and screenshots. With it on, the prompter&apos;s card says when this one cannot.</source>
        <translation>Der Stealth-Modus wirkt auf Desktops, die ein Fenster aus Bildschirmfreigaben, Aufnahmen und Bildschirmfotos heraushalten können. Ist er eingeschaltet, sagt die Karte des Prompters, wenn dieser es nicht kann.</translation>
    </message>
    <message>
        <source>Leave Stealth Mode alone during a live share: toggling it mid-share can make the meeting app draw a gray box in its place (close and open Orvello again to clear it). For zero risk, share the presentation window instead of the whole screen.</source>
        <translation>Lassen Sie den Stealth-Modus während des Teilens in Ruhe: Wird er umgeschaltet, zeichnet das Besprechungsprogramm an seiner Stelle womöglich einen grauen Kasten (schließen und öffnen Sie Orvello dann neu). Ganz ohne Risiko: Teilen Sie das Fenster der Präsentation statt des ganzen Bildschirms.</translation>
    </message>
    <message>
        <source>Share the presentation window instead of the whole screen, and keep the prompter beside it: some programs, recorders above all, capture the place of a window with everything that is in front of it.</source>
        <translation>Teilen Sie das Fenster der Präsentation statt des ganzen Bildschirms, und lassen Sie den Prompter daneben: Manche Programme, vor allem zum Aufnehmen, erfassen den Platz eines Fensters mit allem, was davor liegt.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter stays out of screen sharing, recordings, and screenshots as far as this system allows — while staying fully visible to you. Newer recorders may show it all the same: try yours before you rely on it.</source>
        <translation>Ist der Stealth-Modus eingeschaltet, bevor das Teilen beginnt, bleibt der Prompter Bildschirmfreigaben, Aufnahmen und Bildschirmfotos fern, soweit dieses System das zulässt – während Sie ihn weiter vollständig sehen. Neuere Aufnahmeprogramme zeigen ihn womöglich trotzdem: Probieren Sie Ihres aus, bevor Sie sich darauf verlassen.</translation>
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
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>The opacity has no effect at the moment: windows can be translucent only while the desktop runs a compositor.</source>
        <extracomment>A compositor is the part of a Linux desktop that makes windows translucent.</extracomment>
        <translation>Die Deckkraft wirkt im Moment nicht: Fenster können nur durchscheinen, solange auf dem Desktop ein Compositor läuft.</translation>
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
        <translation>DEBUG – IN AUFNAHMEN SICHTBAR</translation>
    </message>
    <message>
        <source>VISIBLE IN RECORDINGS</source>
        <translation>IN AUFNAHMEN SICHTBAR</translation>
    </message>
</context>
<context>
    <name>ReadingSettings</name>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Characters a minute</source>
        <translation>Zeichen pro Minute</translation>
    </message>
    <message>
        <source>Words a minute</source>
        <translation>Wörter pro Minute</translation>
    </message>
    <message>
        <source>Keep my pace with another text, size or width</source>
        <translation>Mein Tempo behalten, auch mit anderem Text, anderer Größe oder Breite</translation>
    </message>
    <message>
        <source>Time on the prompter</source>
        <translation>Zeit auf dem Prompter</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Verbleibend</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Vergangen</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
</context>
<context>
    <name>RecordingBadge</name>
    <message>
        <source>Show the badge in full</source>
        <extracomment>Read aloud: the button makes the words &quot;VISIBLE IN RECORDINGS&quot; on the card a small eye, or words again.</extracomment>
        <translation>Hinweis ausgeschrieben zeigen</translation>
    </message>
    <message>
        <source>Fold the badge to an eye</source>
        <translation>Hinweis zum Auge verkleinern</translation>
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
        <translation>Skripte</translation>
    </message>
    <message>
        <source>New script</source>
        <translation>Neues Skript</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search titles and texts</source>
        <translation>Titel und Texte durchsuchen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Export All…</source>
        <extracomment>All scripts of the list, into one file.</extracomment>
        <translation>Alle exportieren …</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <extracomment>Where the list of scripts is, when none has what is searched for.</extracomment>
        <translation>Nichts gefunden</translation>
    </message>
</context>
<context>
    <name>SessionSettings</name>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Countdown before start</source>
        <translation>Countdown vor dem Start</translation>
    </message>
    <message>
        <source>Press P to pause during a slideshow</source>
        <translation>Mit P während einer Präsentation anhalten</translation>
    </message>
    <message>
        <source>While a %1 slideshow is on-screen (where the cursor is hidden, so hover-to-pause can&apos;t work), a plain P pauses or resumes. It&apos;s active only during the slideshow, so it won&apos;t interfere with typing elsewhere. %2 always works too.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;; %2: keys, as in &quot;⌥⌘P&quot;.</extracomment>
        <translation>Solange eine Präsentation in %1 zu sehen ist (der Zeiger ist dann ausgeblendet und kann nicht anhalten), hält ein einfaches P an oder setzt fort. Es wirkt nur während der Präsentation und stört daher nicht beim Tippen. %2 geht immer.</translation>
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
        <translation>Den Stealth-Modus während einer Bildschirmfreigabe umzuschalten kann diesen Prompter grau überdecken – schließen und öffnen Sie Orvello dann neu.</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Stealth Mode has no effect on this desktop — whoever sees your screen sees this prompter, too.</source>
        <translation>Der Stealth-Modus wirkt auf diesem Desktop nicht – wer Ihren Bildschirm sieht, sieht auch diesen Prompter.</translation>
    </message>
</context>
<context>
    <name>ShortcutSettings</name>
    <message>
        <source>Keyboard shortcuts (global)</source>
        <translation>Tastenkürzel (überall)</translation>
    </message>
    <message>
        <source>Other keys</source>
        <translation>Andere Tasten</translation>
    </message>
    <message>
        <source>Change Shortcuts…</source>
        <translation>Tastenkürzel ändern …</translation>
    </message>
</context>
<context>
    <name>SlideChip</name>
    <message>
        <source>Slide %1</source>
        <extracomment>Read aloud. %1: which slide of how many, as in &quot;2 / 14&quot;.</extracomment>
        <translation>Folie %1</translation>
    </message>
    <message>
        <source>%2, %1</source>
        <extracomment>Read aloud. %2: the slide&apos;s title, which goes in last, as it may hold a &quot;%1&quot;; %1: who turns the slides, as in &quot;Live&quot;.</extracomment>
        <translation>%2, %1</translation>
    </message>
    <message>
        <source>Previous slide</source>
        <translation>Vorherige Folie</translation>
    </message>
    <message>
        <source>Next slide</source>
        <translation>Nächste Folie</translation>
    </message>
</context>
<context>
    <name>SlidesSettings</name>
    <message>
        <source>Slides</source>
        <translation>Folien</translation>
    </message>
    <message>
        <source>Slide Tracking — notes follow the live slideshow</source>
        <translation>Den Folien folgen – die Notizen wechseln mit der Präsentation</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. The first time, macOS asks to let Orvello control that app — that&apos;s the sync. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Ist eine Präsentation importiert (Skripte → Import-Knopf) und „Den Folien folgen“ eingeschaltet, zeigt der Prompter die Sprechernotizen der aktuellen Folie und wechselt von selbst, während Sie in %1 weiterblättern. Beim ersten Mal fragt macOS, ob Orvello dieses Programm steuern darf – das ist der Abgleich. Ausgeschaltet läuft die ganze Präsentation wie ein gewöhnliches Skript.</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: a presentation program.</extracomment>
        <translation>Ist eine Präsentation importiert (Skripte → Import-Knopf) und „Den Folien folgen“ eingeschaltet, zeigt der Prompter die Sprechernotizen der aktuellen Folie und wechselt von selbst, während Sie in %1 weiterblättern. Ausgeschaltet läuft die ganze Präsentation wie ein gewöhnliches Skript.</translation>
    </message>
    <message>
        <source>If sync shows &quot;No access&quot;: System Settings → Privacy &amp; Security → Automation → Orvello → allow %1, then toggle Slide Tracking off and on.</source>
        <extracomment>The words in quotation marks are those of the card. %1: presentation programs.</extracomment>
        <translation>Steht dort „Kein Zugriff“: Systemeinstellungen → Datenschutz &amp; Sicherheit → Automation → Orvello → %1 erlauben, dann „Den Folien folgen“ aus- und einschalten.</translation>
    </message>
    <message>
        <source>Orvello may not follow Impress</source>
        <translation>Orvello darf Impress nicht folgen</translation>
    </message>
    <message>
        <source>Orvello may follow Impress</source>
        <translation>Orvello darf Impress folgen</translation>
    </message>
    <message>
        <source>Orvello may follow Impress, but could not</source>
        <translation>Orvello darf Impress folgen, konnte es aber nicht</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
</context>
<context>
    <name>StatusBadge</name>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Reading time</source>
        <translation>Lesezeit</translation>
    </message>
</context>
<context>
    <name>TourCloseButton</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>TourCopyButton</name>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>Pfad kopieren</translation>
    </message>
</context>
<context>
    <name>TourDots</name>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>Read aloud. %1: a page of the tour; %2: how many there are.</extracomment>
        <translation>Seite %1 von %2</translation>
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
        <translation>Tour überspringen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Open my prompter</source>
        <translation>Meinen Prompter öffnen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
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
        <translation>Eine Regel hält Ihre Notizen aus der Aufnahme heraus: Teilen Sie ein Fenster, nie den ganzen Bildschirm.</translation>
    </message>
    <message>
        <source>One rule and one safety net keep your notes off the recording.</source>
        <translation>Eine Regel und ein Sicherheitsnetz halten Ihre Notizen aus der Aufnahme heraus.</translation>
    </message>
    <message>
        <source>One rule, one safety net, and one Zoom setting keep your notes off the recording.</source>
        <translation>Eine Regel, ein Sicherheitsnetz und eine Zoom-Einstellung halten Ihre Notizen aus der Aufnahme heraus.</translation>
    </message>
    <message>
        <source>Stealth Mode is on by default</source>
        <translation>Der Stealth-Modus ist von Anfang an eingeschaltet</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window</source>
        <translation>Dieser Desktop kann kein Fenster verbergen</translation>
    </message>
    <message>
        <source>No app can keep its window out of screen captures here, so Stealth Mode has no effect. The prompter says so on its card: whoever sees your whole screen sees it too.</source>
        <translation>Hier kann kein Programm sein Fenster aus Bildschirmaufnahmen heraushalten, deshalb bewirkt der Stealth-Modus nichts. Der Prompter sagt das auf seiner Karte: Wer Ihren ganzen Bildschirm sieht, sieht auch ihn.</translation>
    </message>
    <message>
        <source>Turn it on before you share and leave it alone. Toggling it mid-share can make your meeting app draw a gray box where the prompter sits — close and reopen Orvello to clear it.</source>
        <translation>Schalten Sie ihn ein, bevor Sie teilen, und lassen Sie ihn dann in Ruhe. Wird er während des Teilens umgeschaltet, zeichnet Ihr Besprechungsprogramm an der Stelle des Prompters womöglich einen grauen Kasten – schließen und öffnen Sie Orvello dann neu.</translation>
    </message>
    <message>
        <source>Want zero risk? Share just the window</source>
        <translation>Ganz ohne Risiko? Teilen Sie nur das Fenster</translation>
    </message>
    <message>
        <source>Full-screen sharing works with Stealth Mode on. Sharing only the %1 window takes the risk to zero — a window share can never include the prompter.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Mit dem Stealth-Modus dürfen Sie den ganzen Bildschirm teilen. Teilen Sie nur das Fenster von %1, sinkt das Risiko auf null – ein geteiltes Fenster kann den Prompter nie enthalten.</translation>
    </message>
    <message>
        <source>Share just the window</source>
        <translation>Nur das Fenster teilen</translation>
    </message>
    <message>
        <source>In your meeting app, choose the window of your slides instead of the entire screen, and keep the prompter beside it: some recorders capture the window&apos;s place with everything in front of it.</source>
        <translation>Wählen Sie in der Meeting-App das Fenster Ihrer Folien statt des ganzen Bildschirms, und lassen Sie den Prompter daneben. Manche Programme, vor allem zum Aufnehmen, erfassen den Platz eines Fensters mit allem, was davor liegt.</translation>
    </message>
    <message>
        <source>One rule: share a window, never the whole screen.</source>
        <translation>Eine Regel: ein Fenster teilen, nie den ganzen Bildschirm.</translation>
    </message>
    <message>
        <source>A share of the full screen may show the prompter here. Sharing only the %1 window takes the risk to zero — a window share can never include it.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Wird der ganze Bildschirm geteilt, ist der Prompter hier womöglich zu sehen. Teilen Sie nur das Fenster von %1, sinkt das Risiko auf null – ein geteiltes Fenster kann ihn nie enthalten.</translation>
    </message>
</context>
<context>
    <name>TourSetupPage</name>
    <message>
        <source>You&apos;re set. Here&apos;s where things are.</source>
        <translation>Alles bereit. Hier finden Sie, was Sie brauchen.</translation>
    </message>
    <message>
        <source>Drag the prompter right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>Ziehen Sie den Prompter direkt unter Ihre Kamera, dann wirkt Ihr Blick natürlich. Die Größe ändern Sie an jedem Rand.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Pause during a slideshow</source>
        <translation>Während einer Präsentation anhalten</translation>
    </message>
    <message>
        <source>Hover</source>
        <extracomment>Instead of a key: the pointer rests on the prompter.</extracomment>
        <translation>Zeiger darüber</translation>
    </message>
    <message>
        <source>Pause instantly</source>
        <translation>Sofort anhalten</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>Tray menu</source>
        <translation>Menü im Infobereich</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour.</source>
        <translation>… und Skripte, wo Sie schreiben oder importieren, was Sie sagen, Einstellungen und diese Tour.</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour. Without a tray, right-click the prompter.</source>
        <translation>… und Skripte, wo Sie schreiben oder importieren, was Sie sagen, Einstellungen und diese Tour. Ohne Infobereich: Rechtsklick auf den Prompter.</translation>
    </message>
</context>
<context>
    <name>TourVoiceTest</name>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>Die Empfindlichkeit für meine Stimme finden</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>Mikrofonpegel</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prüfen</translation>
    </message>
</context>
<context>
    <name>TourWelcomePage</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Willkommen bei Orvello</translation>
    </message>
    <message>
        <source>Your private teleprompter. Your audience sees your slides — never your notes.</source>
        <translation>Ihr privater Teleprompter. Ihr Publikum sieht Ihre Folien – nie Ihre Notizen.</translation>
    </message>
    <message>
        <source>Invisible on screen shares</source>
        <translation>Beim Bildschirmteilen unsichtbar</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots — while you see it perfectly.</source>
        <translation>Der Stealth-Modus verbirgt den Prompter vor Zoom, Meet, Teams, Aufnahmen und Bildschirmfotos – während Sie ihn bestens sehen.</translation>
    </message>
    <message>
        <source>Follows your voice</source>
        <translation>Folgt Ihrer Stimme</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — nothing is recorded or uploaded.</source>
        <translation>Läuft, während Sie sprechen, wartet, wenn Sie innehalten. Der Ton wird nur auf diesem Mac ausgewertet – nichts wird aufgenommen oder hochgeladen.</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this computer only — nothing is recorded or uploaded.</source>
        <translation>Läuft, während Sie sprechen, wartet, wenn Sie innehalten. Der Ton wird nur auf diesem Computer ausgewertet – nichts wird aufgenommen oder hochgeladen.</translation>
    </message>
    <message>
        <source>Follows your slides</source>
        <translation>Folgt Ihren Folien</translation>
    </message>
    <message>
        <source>Import a .pptx or an open %1 deck and the speaker notes flip with your slideshow.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Importieren Sie eine .pptx-Datei oder eine in %1 geöffnete Präsentation, und die Sprechernotizen wechseln mit Ihren Folien.</translation>
    </message>
    <message>
        <source>Share a window in Zoom, Meet or Teams, keep the prompter beside it, and only you see it. In a share of the whole screen, this desktop shows it to everyone.</source>
        <translation>Teilen Sie in Zoom, Meet oder Teams ein Fenster und lassen Sie den Prompter daneben, dann sehen nur Sie ihn. Wird der ganze Bildschirm geteilt, zeigt ihn dieser Desktop allen.</translation>
    </message>
    <message>
        <source>Your private teleprompter. Share your slides&apos; window alone, keep the prompter beside it, and your notes are yours.</source>
        <translation>Ihr privater Teleprompter. Teilen Sie nur das Fenster Ihrer Folien, lassen Sie den Prompter daneben, und Ihre Notizen gehören Ihnen.</translation>
    </message>
    <message>
        <source>Beside the window that you share</source>
        <translation>Neben dem geteilten Fenster</translation>
    </message>
    <message>
        <source>Hidden where the system allows</source>
        <translation>Verborgen, wo das System es zulässt</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter as far as this system allows. Newer recorders may show it all the same: try yours first.</source>
        <translation>Der Stealth-Modus verbirgt den Prompter, soweit dieses System das zulässt. Neuere Aufnahmeprogramme zeigen ihn womöglich trotzdem: Probieren Sie Ihres vorher aus.</translation>
    </message>
</context>
<context>
    <name>TourZoomCard</name>
    <message>
        <source>Using Zoom? Set this once</source>
        <translation>Sie benutzen Zoom? Einmal einstellen</translation>
    </message>
    <message>
        <source>Using Zoom? Share a window</source>
        <translation>Sie benutzen Zoom? Teilen Sie ein Fenster</translation>
    </message>
    <message>
        <source>No setting of Zoom hides the prompter here: a share of the entire screen shows your notes.</source>
        <translation>Keine Einstellung von Zoom verbirgt hier den Prompter: Wird der ganze Bildschirm geteilt, sind Ihre Notizen zu sehen.</translation>
    </message>
    <message>
        <source>Zoom&apos;s default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes.</source>
        <translation>Zooms Voreinstellung „Automatisch“ genügt meistens – aber sie wählt das Aufnahmeverfahren in jeder Sitzung neu, und eines davon kann Ihre Notizen zeigen.</translation>
    </message>
    <message>
        <source>Zoom → Share Screen → &lt;b&gt;your slides&apos; window&lt;/b&gt; (not Entire Screen).</source>
        <extracomment>The words between &lt;b&gt; and &lt;/b&gt; are shown in bold.</extracomment>
        <translation>Zoom → Bildschirm freigeben → &lt;b&gt;Fenster Ihrer Folien&lt;/b&gt; (nicht der gesamte Bildschirm).</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &lt;b&gt;Advanced capture with window filtering&lt;/b&gt; (or Previous operating systems).</source>
        <translation>Zoom → Einstellungen → Bildschirm freigeben → Erweitert → Bildschirmaufnahmemodus → &lt;b&gt;Erweiterte Aufnahme mit Fensterfilterung&lt;/b&gt; (oder Vorherige Betriebssysteme).</translation>
    </message>
</context>
<context>
    <name>UpdateQuestion</name>
    <message>
        <source>Update</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Add Once More</source>
        <extracomment>A button: the notes of a presentation are added as one more script.</extracomment>
        <translation>Noch einmal hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>UpdateSettings</name>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation>Automatisch nach Updates suchen (einmal am Tag)</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your computer beyond the app version. Orvello installs nothing by itself: if you want the new version, it opens the download page.</source>
        <translation>Die Suche fragt die Website des Anbieters nach der neuesten Version und sendet außer der Programmversion nichts über Sie oder Ihren Computer. Orvello installiert nichts von selbst: Wenn Sie die neue Version möchten, öffnet es die Download-Seite.</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your Mac beyond the app version. Updates are signed, and you always confirm before one installs.</source>
        <translation>Die Suche fragt die Website des Anbieters nach der neuesten Version und sendet außer der Programmversion nichts über Sie oder Ihren Mac. Updates sind signiert, und Sie bestätigen jede Installation.</translation>
    </message>
    <message>
        <source>Orvello %1 — not checked yet</source>
        <translation>Orvello %1 – noch nicht gesucht</translation>
    </message>
    <message>
        <source>Orvello %1 — last checked %2</source>
        <extracomment>%1: the version; %2: a date and a time.</extracomment>
        <translation>Orvello %1 – zuletzt gesucht %2</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>This Orvello was built without the address of an update feed, so it cannot look for updates. Whoever you got it from has newer versions.</source>
        <translation>Dieses Orvello wurde ohne Adresse für Updates gebaut und kann deshalb nicht nach ihnen suchen. Neuere Versionen gibt es dort, woher Sie es haben.</translation>
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
        <translation>Der Stimme folgen</translation>
    </message>
    <message>
        <source>Scroll while I speak, pause when I pause</source>
        <translation>Läuft, während ich spreche, hält an, wenn ich innehalte</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>Mikrofonpegel</translation>
    </message>
    <message>
        <source>Microphone access is denied. Allow it in your desktop&apos;s privacy settings, then toggle voice-follow again.</source>
        <translation>Der Zugriff auf das Mikrofon ist verweigert. Erlauben Sie ihn in den Datenschutzeinstellungen Ihres Desktops, dann schalten Sie „Der Stimme folgen“ aus und ein.</translation>
    </message>
    <message>
        <source>Microphone access is denied. Enable it in System Settings → Privacy &amp; Security → Microphone, then toggle voice-follow again.</source>
        <translation>Der Zugriff auf das Mikrofon ist verweigert. Erlauben Sie ihn unter Systemeinstellungen → Datenschutz &amp; Sicherheit → Mikrofon, dann schalten Sie „Der Stimme folgen“ aus und ein.</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this Mac won&apos;t move the prompter.</source>
        <translation>Echounterdrückung: ein – was dieser Mac abspielt, bewegt den Prompter nicht.</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this computer won&apos;t move the prompter.</source>
        <translation>Echounterdrückung: ein – was dieser Computer abspielt, bewegt den Prompter nicht.</translation>
    </message>
    <message>
        <source>Echo cancellation: paused (%1) so your voice keeps working in calls. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <extracomment>%1: why, such as &quot;another app is using the microphone&quot; or &quot;Zoom is open&quot;.</extracomment>
        <translation>Echounterdrückung: pausiert (%1), damit Ihre Stimme in Gesprächen weiter wirkt. Über Lautsprecher können laute Gegenstellen den Prompter anstoßen – mit Kopfhörern nicht.</translation>
    </message>
    <message>
        <source>Audio is analyzed on-device for loudness only. Nothing is recorded, recognized, or uploaded.</source>
        <translation>Der Ton wird nur auf dem Gerät und nur auf Lautstärke ausgewertet. Nichts wird aufgenommen, erkannt oder hochgeladen.</translation>
    </message>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>Die Empfindlichkeit für meine Stimme finden</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>Sprechen Sie fünf Sekunden lang ganz normal.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Echo cancellation: not available. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <translation>Echounterdrückung: nicht verfügbar. Über Lautsprecher können laute Gegenstellen den Prompter anstoßen – mit Kopfhörern nicht.</translation>
    </message>
</context>
</TS>
