<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Countdown</name>
    <message>
        <source>Countdown</source>
        <translation>Contagem regressiva</translation>
    </message>
</context>
<context>
    <name>DeletedScripts</name>
    <message>
        <source>Recently deleted</source>
        <translation>Apagados recentemente</translation>
    </message>
    <message>
        <source>Deleted scripts are kept for 30 days.</source>
        <translation>Os roteiros apagados são guardados por 30 dias.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Restaurar “%1”</translation>
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
        <translation>Anotações do orador</translation>
    </message>
    <message>
        <source>Script text</source>
        <translation>Texto do roteiro</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your Mac</source>
        <translation>Mostrado no prompter · salvo automaticamente aqui, nada sai do seu Mac</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your computer</source>
        <translation>Mostrado no prompter · salvo automaticamente aqui, nada sai do seu computador</translation>
    </message>
    <message>
        <source>Start Here</source>
        <extracomment>The prompter begins with the line that the cursor is on.</extracomment>
        <translation>Começar aqui</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>ImportMenu</name>
    <message>
        <source>Import speaker notes from a deck</source>
        <translation>Importar as anotações de uma apresentação</translation>
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
        <translation>Dispensar</translation>
    </message>
</context>
<context>
    <name>Orvello::AppDelegate</name>
    <message>
        <source>%1 counts only at the launch: quit the Orvello that runs first</source>
        <translation>%1 só vale ao iniciar: encerre primeiro o Orvello que está aberto</translation>
    </message>
</context>
<context>
    <name>Orvello::Appcast</name>
    <message>
        <source>It declares a document type.</source>
        <translation>Ele declara um tipo de documento.</translation>
    </message>
    <message>
        <source>It is no RSS feed.</source>
        <translation>Não é um feed RSS.</translation>
    </message>
</context>
<context>
    <name>Orvello::AppcastUpdater</name>
    <message>
        <source>There is no valid update feed.</source>
        <translation>Não há um feed de atualizações válido.</translation>
    </message>
    <message>
        <source>The update feed is not secure.</source>
        <translation>O feed de atualizações não é seguro.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>O feed de atualizações não pode ser lido: %1</translation>
    </message>
    <message>
        <source>The update feed makes no sense: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>O feed de atualizações não faz sentido: %1</translation>
    </message>
    <message>
        <source>The download page cannot be opened.</source>
        <translation>A página de download não pode ser aberta.</translation>
    </message>
    <message>
        <source>Orvello is up to date.</source>
        <translation>O Orvello está atualizado.</translation>
    </message>
</context>
<context>
    <name>Orvello::AppleScriptPresenters</name>
    <message>
        <source>permission denied — allow Orvello to control %1 in System Settings → Privacy &amp; Security → Automation</source>
        <extracomment>Follows &quot;Couldn&apos;t read the presentation:&quot;. %1: a presentation program.</extracomment>
        <translation>permissão negada: permita que o Orvello controle o %1 em Ajustes do Sistema → Privacidade e Segurança → Automação</translation>
    </message>
    <message>
        <source>presenter notes</source>
        <translation>anotações do apresentador</translation>
    </message>
    <message>
        <source>speaker notes</source>
        <translation>anotações do orador</translation>
    </message>
</context>
<context>
    <name>Orvello::BusInstance</name>
    <message>
        <source>Orvello is running already, but does not answer.</source>
        <translation>O Orvello já está aberto, mas não responde.</translation>
    </message>
    <message>
        <source>Orvello is running already, but cannot be asked for anything: the two do not share a session bus.</source>
        <translation>O Orvello já está aberto, mas nada pode ser pedido a ele: os dois não compartilham um barramento de sessão.</translation>
    </message>
</context>
<context>
    <name>Orvello::Commands</name>
    <message>
        <source>Start Scrolling</source>
        <translation>Iniciar rolagem</translation>
    </message>
    <message>
        <source>Pause Scrolling</source>
        <translation>Pausar rolagem</translation>
    </message>
    <message>
        <source>Start / pause scrolling</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>Iniciar / pausar rolagem</translation>
    </message>
    <message>
        <source>Start / pause</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>Iniciar / pausar</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Mais rápido</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Mais devagar</translation>
    </message>
    <message>
        <source>Back to Top</source>
        <extracomment>In a menu: scrolls back to the beginning of the script.</extracomment>
        <translation>Voltar ao início</translation>
    </message>
    <message>
        <source>Back to top</source>
        <extracomment>What a key does: it scrolls back to the beginning of the script.</extracomment>
        <translation>Voltar ao início</translation>
    </message>
    <message>
        <source>Show Prompter</source>
        <translation>Mostrar prompter</translation>
    </message>
    <message>
        <source>Hide Prompter</source>
        <translation>Ocultar prompter</translation>
    </message>
    <message>
        <source>Show / hide prompter</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>Mostrar / ocultar prompter</translation>
    </message>
    <message>
        <source>Show / hide</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>Mostrar / ocultar</translation>
    </message>
    <message>
        <source>Voice-Follow Scrolling</source>
        <extracomment>A mode: the text scrolls while the user speaks.</extracomment>
        <translation>Seguir a voz</translation>
    </message>
    <message>
        <source>Slide Tracking</source>
        <extracomment>A mode: the notes follow the slides of a running slideshow.</extracomment>
        <translation>Acompanhar os slides</translation>
    </message>
    <message>
        <source>Stealth Mode</source>
        <extracomment>A mode: the prompter is hidden from screen sharing and recordings.</extracomment>
        <translation>Modo furtivo</translation>
    </message>
    <message>
        <source>Scripts…</source>
        <translation>Roteiros…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Welcome Tour…</source>
        <translation>Tour de boas-vindas…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar atualizações…</translation>
    </message>
    <message>
        <source>Contact Support…</source>
        <translation>Falar com o suporte…</translation>
    </message>
    <message>
        <source>Reveal Log Files</source>
        <translation>Mostrar os registros</translation>
    </message>
    <message>
        <source>Quit Orvello</source>
        <translation>Encerrar o Orvello</translation>
    </message>
    <message>
        <source>%1  (%2)</source>
        <extracomment>A line of a menu with two blanks in it. %1: its text; %2: its key, such as &quot;⌥⌘P&quot;.</extracomment>
        <translation>%1  (%2)</translation>
    </message>
    <message>
        <source>Start or pause scrolling</source>
        <translation>Iniciar ou pausar a rolagem</translation>
    </message>
    <message>
        <source>Scroll faster</source>
        <translation>Rolar mais rápido</translation>
    </message>
    <message>
        <source>Scroll more slowly</source>
        <translation>Rolar mais devagar</translation>
    </message>
    <message>
        <source>Go back to the top of the script</source>
        <translation>Voltar ao início do roteiro</translation>
    </message>
    <message>
        <source>Show or hide the prompter</source>
        <translation>Mostrar ou ocultar o prompter</translation>
    </message>
    <message>
        <source>Put Under the Camera</source>
        <extracomment>In a menu: moves the prompter to the top of the screen that the pointer is on.</extracomment>
        <translation>Colocar sob a câmera</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckController</name>
    <message>
        <source>(No speaker notes on this slide)</source>
        <translation>(Sem anotações do orador neste slide)</translation>
    </message>
    <message>
        <source>(Another presentation is on screen)</source>
        <translation>(Há outra apresentação na tela)</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckFileBar</name>
    <message>
        <source>Up to date with “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Em dia com “%1”.</translation>
    </message>
    <message>
        <source>“%1” is not there any more. The notes stay as they were.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>“%1” não está mais lá. As anotações ficam como estavam.</translation>
    </message>
    <message>
        <source>“%1” has changed: the notes of slides %2 are no longer in it. An update keeps this version among the deleted scripts.</source>
        <extracomment>%1: the name of a file; %2: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>“%1” mudou: as anotações dos slides %2 não estão mais nele. Ao atualizar, esta versão fica entre os roteiros apagados.</translation>
    </message>
    <message>
        <source>“%1” has changed, but cannot be read: %2</source>
        <extracomment>%1: the name of a file; %2: why, as a sentence.</extracomment>
        <translation>“%1” mudou, mas não pode ser lido: %2</translation>
    </message>
    <message>
        <source>Update from File…</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>Atualizar de um arquivo…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Choose the presentation that these notes are from.</source>
        <translation>Escolha a apresentação de onde vêm estas anotações.</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImportError</name>
    <message>
        <source>%1 isn&apos;t running. Open your presentation in %1 first.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>O %1 não está aberto. Abra primeiro sua apresentação no %1.</translation>
    </message>
    <message>
        <source>No presentation is open in %1.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Nenhuma apresentação está aberta no %1.</translation>
    </message>
    <message>
        <source>That %1 presentation has no %2 on any slide.</source>
        <extracomment>%1: a presentation program; %2: what it calls the notes, such as &quot;speaker notes&quot;.</extracomment>
        <translation>Essa apresentação do %1 não tem %2 em nenhum slide.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the %1 presentation: %2</source>
        <extracomment>%1: a presentation program; %2: why, a sentence or a part of one.</extracomment>
        <translation>Não foi possível ler a apresentação do %1: %2</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImports</name>
    <message>
        <source>PowerPoint file (.pptx)…</source>
        <translation>Arquivo do PowerPoint (.pptx)…</translation>
    </message>
    <message>
        <source>Open %1 presentation</source>
        <extracomment>An item of a menu. %1: a presentation program, such as Keynote.</extracomment>
        <translation>Apresentação aberta no %1</translation>
    </message>
    <message>
        <source>Choose a PowerPoint presentation — Orvello imports its speaker notes.</source>
        <translation>Escolha uma apresentação do PowerPoint: o Orvello importa as anotações do orador.</translation>
    </message>
    <message>
        <source>Import failed</source>
        <translation>Falha na importação</translation>
    </message>
    <message>
        <source>No speaker notes</source>
        <translation>Sem anotações do orador</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in PowerPoint&apos;s notes pane and re-import.</source>
        <translation>A apresentação foi importada, mas nenhum slide tem anotações. Adicione-as no painel de anotações do PowerPoint e importe de novo.</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in your presentation program&apos;s notes pane and re-import.</source>
        <translation>A apresentação foi importada, mas nenhum slide tem anotações. Adicione-as no painel de anotações do seu programa de apresentações e importe de novo.</translation>
    </message>
    <message>
        <source>Imported the saved copy</source>
        <translation>Cópia salva importada</translation>
    </message>
    <message>
        <source>PowerPoint has unsaved changes, so the notes came from the last saved copy. Save the presentation and import again to include them.</source>
        <translation>O PowerPoint tem alterações não salvas, por isso as anotações vieram da última cópia salva. Salve a apresentação e importe de novo para incluí-las.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erro desconhecido</translation>
    </message>
    <message>
        <source>Not all notes were imported</source>
        <translation>Nem todas as anotações foram importadas</translation>
    </message>
    <message>
        <source>The file holds more than Orvello reads: the notes of slides %1 could not be read.</source>
        <extracomment>%1: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>O arquivo contém mais do que o Orvello lê: as anotações dos slides %1 não puderam ser lidas.</translation>
    </message>
    <message>
        <source>Presentation file (.pptx, .odp)…</source>
        <translation>Arquivo de apresentação (.pptx, .odp)…</translation>
    </message>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Lendo o que está aberto no %1…</translation>
    </message>
    <message>
        <source>Choose a presentation — Orvello imports its speaker notes.</source>
        <translation>Escolha uma apresentação — o Orvello importa as anotações do apresentador.</translation>
    </message>
    <message>
        <source>Not a presentation</source>
        <translation>Não é uma apresentação</translation>
    </message>
    <message>
        <source>Orvello imports speaker notes from presentations (.pptx, .odp). It cannot read %1.</source>
        <extracomment>%1: the names of files.</extracomment>
        <translation>O Orvello importa as anotações do apresentador de apresentações (.pptx, .odp). Não consegue ler %1.</translation>
    </message>
    <message>
        <source>The notes of “%1” are among your scripts already. Update them, or add them once more?</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>As anotações de “%1” já estão entre os seus roteiros. Atualizá-las ou adicioná-las mais uma vez?</translation>
    </message>
</context>
<context>
    <name>Orvello::DeletedScriptsModel</name>
    <message>
        <source>Deleted %1</source>
        <extracomment>%1: a date.</extracomment>
        <translation>Apagado: %1</translation>
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
        <translation>O servidor não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The server redirects to an insecure address.</source>
        <translation>O servidor redireciona para um endereço inseguro.</translation>
    </message>
    <message>
        <source>The document is too large.</source>
        <translation>O documento é grande demais.</translation>
    </message>
    <message>
        <source>The server answers with status %1.</source>
        <translation>O servidor responde com o estado %1.</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressAdviceDialog</name>
    <message>
        <source>Let Orvello follow your Impress presentations?</source>
        <translation>Permitir que o Orvello acompanhe suas apresentações do Impress?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>While an Impress slideshow runs, and while you import an open presentation, Orvello has LibreOffice listen on a connection that gives control of all of LibreOffice, and uses it to read slide numbers, titles and notes. Only programs of your user account could reach it, Orvello takes its name away as soon as it is connected, and the connection ends with the slideshow or the import.</source>
        <translation>Enquanto uma apresentação de slides do Impress está em andamento e enquanto você importa uma apresentação aberta, o Orvello faz o LibreOffice escutar em uma conexão que dá controle de todo o LibreOffice e a usa para ler números de slides, títulos e anotações. Só programas da sua conta de usuário poderiam alcançá-la, o Orvello remove o nome dela assim que se conecta, e a conexão termina com a apresentação ou a importação.</translation>
    </message>
    <message>
        <source>Orvello may now follow Impress. Start the slideshow or the import again.

The settings have a button that takes this back.</source>
        <translation>O Orvello agora pode seguir o Impress. Inicie a apresentação ou a importação novamente.

Nas configurações há um botão que desfaz isso.</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressPresenter</name>
    <message>
        <source>notes</source>
        <extracomment>What Impress calls a speaker&apos;s notes.</extracomment>
        <translation>anotações</translation>
    </message>
    <message>
        <source>To follow Impress, Orvello needs the package python3-uno. Install it and try again.</source>
        <translation>Para acompanhar o Impress, o Orvello precisa do pacote python3-uno. Instale-o e tente de novo.</translation>
    </message>
    <message>
        <source>LibreOffice isn&apos;t running.</source>
        <translation>O LibreOffice não está em execução.</translation>
    </message>
    <message>
        <source>LibreOffice did not answer.</source>
        <translation>O LibreOffice não respondeu.</translation>
    </message>
    <message>
        <source>permission denied — Orvello asks LibreOffice only once you allow it</source>
        <extracomment>Follows &quot;Couldn&apos;t read the Impress presentation:&quot;.</extracomment>
        <translation>permissão negada — o Orvello só consulta o LibreOffice quando você permite</translation>
    </message>
    <message>
        <source>This LibreOffice runs in a sandbox (%1) that Orvello cannot reach. Import the presentation&apos;s file instead, and step through the slides by hand.</source>
        <extracomment>%1: a kind of package, such as Flatpak or Snap.</extracomment>
        <translation>Este LibreOffice é executado em um ambiente isolado (%1) que o Orvello não alcança. Importe o arquivo da apresentação e avance os slides manualmente.</translation>
    </message>
</context>
<context>
    <name>Orvello::LaunchOptions</name>
    <message>
        <source>unknown option %1; did you mean %2?</source>
        <translation>opção desconhecida %1; você quis dizer %2?</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opção desconhecida %1</translation>
    </message>
    <message>
        <source>%1 is neither an option nor a preference with a value</source>
        <translation>%1 não é uma opção nem um ajuste com valor</translation>
    </message>
    <message>
        <source>%1 is no address that Orvello opens</source>
        <translation>%1 não é um endereço que o Orvello abre</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>não existe o arquivo “%1”</translation>
    </message>
    <message>
        <source>Try &quot;orvello --help&quot;.</source>
        <translation>Experimente “orvello --help”.</translation>
    </message>
    <message>
        <source>%1 is not a deck (.pptx or .odp)</source>
        <translation>%1 não é uma apresentação (.pptx ou .odp)</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryNotices</name>
    <message>
        <source>Another Orvello is using your scripts, so nothing that you change here is saved. Quit this one and go on in the other.</source>
        <translation>Outro Orvello está usando seus roteiros, portanto nada do que você mudar aqui é salvo. Encerre este e continue no outro.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because the disk is full. Orvello keeps trying.</source>
        <translation>Seus roteiros não podem ser salvos porque o disco está cheio. O Orvello continua tentando.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because their folder is write-protected. Orvello keeps trying.</source>
        <translation>Seus roteiros não podem ser salvos porque a pasta deles está protegida contra gravação. O Orvello continua tentando.</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved (%1). Orvello keeps trying.</source>
        <extracomment>%1: what the system says about it.</extracomment>
        <translation>Seus roteiros não podem ser salvos (%1). O Orvello continua tentando.</translation>
    </message>
    <message>
        <source>Your scripts file was lost or empty. There is a copy from %1.</source>
        <extracomment>%1: a date and a time.</extracomment>
        <translation>O arquivo dos seus roteiros estava faltando ou vazio. Há uma cópia de %1.</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. There is a copy from %1; what was in the file is kept as “%2”.</source>
        <extracomment>%1: a date and a time; %2: the name of a file.</extracomment>
        <translation>O arquivo dos seus roteiros estava danificado. Há uma cópia de %1; o conteúdo dele foi guardado como “%2”.</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. What was in it is kept as “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>O arquivo dos seus roteiros estava danificado. O conteúdo dele foi guardado como “%1”.</translation>
    </message>
    <message numerus="yes">
        <source>Bring back %n scripts</source>
        <extracomment>A button.</extracomment>
        <translation>
            <numerusform>Recuperar %n roteiro</numerusform>
            <numerusform>Recuperar %n roteiros</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryStore</name>
    <message>
        <source>My Script</source>
        <extracomment>The title of the only script of a user of the first versions.</extracomment>
        <translation>Meu roteiro</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>The title of a new script.</extracomment>
        <translation>Sem título</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The title of a copied script. %1: the title of the original.</extracomment>
        <translation>%1 (cópia)</translation>
    </message>
    <message>
        <source>%1 (before the update)</source>
        <extracomment>The title of a former version of a script. %1: the title of the script.</extracomment>
        <translation>%1 (antes da atualização)</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryViewModel</name>
    <message>
        <source>Export this script</source>
        <extracomment>Above the panel in which the user says where the script is to be written.</extracomment>
        <translation>Exportar este roteiro</translation>
    </message>
    <message numerus="yes">
        <source>Export %n scripts</source>
        <translation>
            <numerusform>Exportar %n roteiro</numerusform>
            <numerusform>Exportar %n roteiros</numerusform>
        </translation>
    </message>
    <message>
        <source>Scripts</source>
        <extracomment>The name of a file with several scripts.</extracomment>
        <translation>Roteiros</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Falha na exportação</translation>
    </message>
    <message>
        <source>“%1” could not be written (%2).</source>
        <extracomment>%1: the name of a file; %2: what the system says about it.</extracomment>
        <translation>Não foi possível gravar “%1” (%2).</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryWindow</name>
    <message>
        <source>Scripts</source>
        <translation>Roteiros</translation>
    </message>
</context>
<context>
    <name>Orvello::LinuxWakefulness</name>
    <message>
        <source>The prompter is being read</source>
        <extracomment>Why the display is kept on, for a desktop that shows it: at most about 60 characters.</extracomment>
        <translation>O prompter está sendo lido</translation>
    </message>
</context>
<context>
    <name>Orvello::LiveDeckImport</name>
    <message>
        <source>%1 deck</source>
        <extracomment>The title of a deck without a name. %1: a presentation program, such as Keynote.</extracomment>
        <translation>Apresentação do %1</translation>
    </message>
</context>
<context>
    <name>Orvello::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>Orvello::OnboardingWindowController</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Boas-vindas ao Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::OtherDeckNotice</name>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>Lendo o que está aberto no %1…</translation>
    </message>
    <message>
        <source>These notes are from another presentation than the one on screen.</source>
        <extracomment>On the card. %1: the name of a presentation.</extracomment>
        <translation>Estas anotações são de outra apresentação, não da que está na tela.</translation>
    </message>
    <message>
        <source>“%1” is on screen. These notes are from another presentation.</source>
        <translation>“%1” está na tela. Estas anotações são de outra apresentação.</translation>
    </message>
    <message>
        <source>Switch to its notes</source>
        <extracomment>A button on the card: shows the notes of the presentation that is on screen.</extracomment>
        <translation>Mudar para as anotações dela</translation>
    </message>
    <message>
        <source>Import its notes</source>
        <translation>Importar as anotações dela</translation>
    </message>
</context>
<context>
    <name>Orvello::PptxImporter</name>
    <message>
        <source>The file could not be opened as a PowerPoint package.</source>
        <translation>O arquivo não pôde ser aberto como um pacote do PowerPoint.</translation>
    </message>
    <message>
        <source>No slides were found — is this a .pptx presentation?</source>
        <translation>Nenhum slide encontrado. É uma apresentação .pptx?</translation>
    </message>
    <message>
        <source>The presentation is protected by a password. Save a copy without one in your presentation program, and import that.</source>
        <translation>A apresentação está protegida por senha. Salve uma cópia sem senha no seu programa de apresentações e importe-a.</translation>
    </message>
</context>
<context>
    <name>Orvello::PrompterStatus</name>
    <message>
        <source>get ready</source>
        <extracomment>On the card, at most about 20 characters: the countdown runs.</extracomment>
        <translation>prepare-se</translation>
    </message>
    <message>
        <source>hover pause</source>
        <extracomment>On the card, at most about 20 characters: the pointer over the card holds the text.</extracomment>
        <translation>pausa do ponteiro</translation>
    </message>
    <message>
        <source>paused</source>
        <extracomment>On the card, at most about 20 characters: the text stands still.</extracomment>
        <translation>em pausa</translation>
    </message>
    <message>
        <source>listening…</source>
        <extracomment>On the card, at most about 20 characters: the text waits for the user to speak.</extracomment>
        <translation>ouvindo…</translation>
    </message>
    <message>
        <source>scrolling</source>
        <extracomment>On the card, at most about 20 characters: the text moves.</extracomment>
        <translation>rolando</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingClock</name>
    <message>
        <source>%1 left</source>
        <extracomment>On the card, at most about 15 characters. %1: minutes and seconds, as in &quot;3:12&quot;.</extracomment>
        <translation>faltam %1</translation>
    </message>
    <message>
        <source>%1 · %2 left</source>
        <extracomment>On the card, at most about 25 characters. %1: how long the reader has been reading; %2: how long the rest takes, both as in &quot;3:12&quot;.</extracomment>
        <translation>%1 · faltam %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingPace</name>
    <message>
        <source>The prompter has no text to scroll.</source>
        <translation>O prompter não tem texto para rolar.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n characters a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · cerca de %n caracteres por minuto neste roteiro</numerusform>
            <numerusform>%1 pt/s · cerca de %n caracteres por minuto neste roteiro</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n words a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · cerca de %n palavra por minuto neste roteiro</numerusform>
            <numerusform>%1 pt/s · cerca de %n palavras por minuto neste roteiro</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: faster than speech</source>
        <extracomment>%1: as in &quot;25 pt/s · about 250 words a minute in this script&quot;.</extracomment>
        <translation>%1: mais rápido que a fala</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptEditor</name>
    <message numerus="yes">
        <source>%n words</source>
        <translation>
            <numerusform>%n palavra</numerusform>
            <numerusform>%n palavras</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported deck (%1) — notes are read-only here; edit them in the presentation and re-import.</source>
        <extracomment>%1: where the deck is from: a program or a file.</extracomment>
        <translation>Apresentação importada (%1): aqui as anotações são só para leitura; edite-as na apresentação e importe de novo.</translation>
    </message>
    <message>
        <source>%1 · about %2</source>
        <extracomment>%1: how many words, as in &quot;52 words&quot;; %2: minutes and seconds, as in &quot;0:22&quot;.</extracomment>
        <translation>%1 · cerca de %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptListModel</name>
    <message>
        <source>Untitled</source>
        <extracomment>Stands for a script without a title.</extracomment>
        <translation>Sem título</translation>
    </message>
    <message numerus="yes">
        <source>%n slides</source>
        <translation>
            <numerusform>%n slide</numerusform>
            <numerusform>%n slides</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::SensitivityTest</name>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>Fale normalmente por cinco segundos.</translation>
    </message>
    <message>
        <source>Waiting for the microphone…</source>
        <translation>Aguardando o microfone…</translation>
    </message>
    <message>
        <source>A sensitivity of %1% suits your voice here.</source>
        <extracomment>%1: a whole number.</extracomment>
        <translation>Para a sua voz, uma sensibilidade de %1% é adequada aqui.</translation>
    </message>
    <message>
        <source>No voice stood out from the room. Come closer to the microphone, or choose another one.</source>
        <translation>Nenhuma voz se destacou do ambiente. Aproxime-se do microfone ou escolha outro.</translation>
    </message>
</context>
<context>
    <name>Orvello::SettingsForm</name>
    <message>
        <source>%1%</source>
        <extracomment>%1: a number. The sign stands where the language has it.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Font size — %1</source>
        <extracomment>%1: the size in points.</extracomment>
        <translation>Tamanho do texto — %1</translation>
    </message>
    <message>
        <source>Scroll speed — %1 pt/s</source>
        <extracomment>%1: points per second.</extracomment>
        <translation>Velocidade da rolagem — %1 pt/s</translation>
    </message>
    <message>
        <source>Background opacity — %1</source>
        <extracomment>%1: a percentage.</extracomment>
        <translation>Opacidade do fundo — %1</translation>
    </message>
    <message>
        <source>Sensitivity — %1</source>
        <extracomment>Of the microphone&apos;s detector of speech. %1: a percentage.</extracomment>
        <translation>Sensibilidade — %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativada</translation>
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
        <translation>Branco</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarelo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Laranja</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Your settings could not be read, so they are as new. The old file is kept: %1</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>Seus ajustes não puderam ser lidos, portanto estão como novos. O arquivo antigo foi guardado: %1</translation>
    </message>
</context>
<context>
    <name>Orvello::SettingsWindow</name>
    <message>
        <source>Orvello Settings</source>
        <translation>Ajustes do Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::ShortcutList</name>
    <message>
        <source>Speed up / down</source>
        <extracomment>What two keys do, one each. The second text is for a narrow list: at most about 20 characters.</extracomment>
        <translation>Acelerar / desacelerar</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>%1 (another program has it)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1 (outro programa a usa)</translation>
    </message>
    <message>
        <source>%1 (not on this keyboard)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1 (não há neste teclado)</translation>
    </message>
</context>
<context>
    <name>Orvello::SlideStatus</name>
    <message>
        <source>Live</source>
        <extracomment>On the card, at most about 12 characters: the notes follow the running slideshow.</extracomment>
        <translation>Ao vivo</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>On the card, at most about 12 characters: the presentation program may not be asked.</extracomment>
        <translation>Sem acesso</translation>
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
        <translation>Outro arquivo</translation>
    </message>
</context>
<context>
    <name>Orvello::StatusMenu</name>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
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
Se algo deu errado, anexe o registro: menu do Orvello → Ajuda → Mostrar os registros.</translation>
    </message>
</context>
<context>
    <name>Orvello::UpdateDialogs</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Buscar atualizações automaticamente?</translation>
    </message>
    <message>
        <source>Once a day, Orvello would look at the vendor&apos;s web site for a newer version. Nothing about you is sent. You can change this in the settings at any time.</source>
        <translation>Uma vez por dia, o Orvello procuraria no site do fornecedor uma versão mais nova. Nada sobre você é enviado. Você pode mudar isso nos ajustes a qualquer momento.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Buscar automaticamente</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Não buscar</translation>
    </message>
    <message>
        <source>Orvello %1 is available.</source>
        <extracomment>%1: the version, such as 2.1.</extracomment>
        <translation>O Orvello %1 está disponível.</translation>
    </message>
    <message>
        <source>You have %1. The new version is on its download page, which Install opens in your browser.</source>
        <extracomment>%1: the version. Install is the button&apos;s name.</extracomment>
        <translation>Você tem a versão %1. A nova está na página de download, que o botão Instalar abre no seu navegador.</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>Instalar…</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorar esta versão</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation>Você tem a versão %1.</translation>
    </message>
</context>
<context>
    <name>Orvello::VoiceActivityEngine</name>
    <message>
        <source>another app is using the microphone</source>
        <extracomment>Stands in brackets in the middle of a sentence.</extracomment>
        <translation>outro aplicativo está usando o microfone</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Stands in brackets in the middle of a sentence. %1: a meeting program.</extracomment>
        <translation>%1 está aberto</translation>
    </message>
    <message>
        <source>The microphone may not be used.</source>
        <translation>O uso do microfone não é permitido.</translation>
    </message>
    <message>
        <source>The sound system does not answer.</source>
        <translation>O sistema de som não responde.</translation>
    </message>
    <message>
        <source>No microphone is connected.</source>
        <translation>Nenhum microfone está conectado.</translation>
    </message>
    <message>
        <source>No microphone is connected. Connect one, then turn Voice-Follow off and on.</source>
        <translation>Nenhum microfone está conectado. Conecte um, depois desative e ative “Seguir a voz”.</translation>
    </message>
    <message>
        <source>The microphone “%1” is muted.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>O microfone “%1” está sem som.</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone “%1”. Another program may keep it to itself.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>Nada chega do microfone “%1”. Talvez outro programa o use com exclusividade.</translation>
    </message>
    <message>
        <source>The microphone could not be started.</source>
        <translation>Não foi possível iniciar o microfone.</translation>
    </message>
    <message>
        <source>The microphone could not be started. Turn Voice-Follow off and on to try again.</source>
        <translation>Não foi possível iniciar o microfone. Desative e ative “Seguir a voz” para tentar de novo.</translation>
    </message>
    <message>
        <source>Echo cancellation is on.</source>
        <translation>O cancelamento de eco está ativo.</translation>
    </message>
    <message>
        <source>Echo cancellation is paused: %1.</source>
        <extracomment>%1: why, such as &quot;Zoom is open&quot;.</extracomment>
        <translation>O cancelamento de eco está pausado: %1.</translation>
    </message>
    <message>
        <source>Echo cancellation is not available.</source>
        <translation>O cancelamento de eco não está disponível.</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>The microphone that the desktop&apos;s settings choose.</extracomment>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>%1 (não conectado)</translation>
    </message>
    <message>
        <source>Listening to “%1”.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>Ouvindo “%1”.</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeScript</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Boas-vindas ao Orvello</translation>
    </message>
    <message>
        <source>Welcome to Orvello. This is your private teleprompter.</source>
        <translation>Boas-vindas ao Orvello. Este é seu teleprompter particular.</translation>
    </message>
    <message>
        <source>Drag this panel anywhere — put it right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>Arraste este painel para onde quiser: logo abaixo da câmera, seu olhar fica natural. Mude o tamanho por qualquer borda.</translation>
    </message>
    <message>
        <source>Press %1P to start or pause scrolling. Use %1Up or Down to change the speed on the fly. Hover the mouse over this panel any time to pause instantly; move away and it resumes.</source>
        <extracomment>%1: the keys to hold, as in &quot;Option-Command-P&quot; or &quot;Alt+Super+P&quot;. Up and Down are the arrow keys.</extracomment>
        <translation>Pressione %1P para iniciar ou pausar a rolagem. Use %1Para cima ou Para baixo para mudar a velocidade na hora. Deixe o ponteiro sobre este painel para pausar imediatamente; afaste-o e ela continua.</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu bar and the script scrolls while you speak, then waits when you pause.</source>
        <translation>Ative “Seguir a voz” na barra de menus: o roteiro rola enquanto você fala e espera quando você para.</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu and the script scrolls while you speak, then waits when you pause. The menu opens from the tray, or with a right click on this panel.</source>
        <translation>Ative “Seguir a voz” no menu: o roteiro rola enquanto você fala e espera quando você para. O menu abre pela bandeja ou com um clique direito neste painel.</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window is invisible to screen sharing, recordings, and screenshots. Your audience only sees your slides — never your notes.</source>
        <translation>Com o modo furtivo ativado, esta janela fica invisível em compartilhamentos de tela, gravações e capturas. Seu público só vê seus slides, nunca suas anotações.</translation>
    </message>
    <message>
        <source>Sharing your screen? Leave Stealth Mode alone while you share — toggling it mid-share can make your meeting app show a gray box where the prompter sits. Close and open Orvello again to clear it.</source>
        <translation>Vai compartilhar a tela? Não mexa no modo furtivo enquanto isso: alterná-lo pode fazer o aplicativo de reuniões mostrar uma caixa cinza no lugar do prompter. Feche e abra o Orvello de novo para removê-la.</translation>
    </message>
    <message>
        <source>Sharing your screen? This desktop cannot hide a window, so whoever sees your whole screen sees this panel too. Share only the window of your slides, and keep this panel beside it: your audience then sees your slides, not your notes.</source>
        <translation>Vai compartilhar a tela? Este ambiente não consegue ocultar uma janela: quem vê sua tela inteira também vê este painel. Compartilhe só a janela dos seus slides e deixe este painel ao lado: assim seu público vê seus slides, não suas anotações.</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window stays out of screen sharing, recordings, and screenshots as far as this system allows. Newer recorders may show it all the same: share only the window of your slides, and your audience never sees your notes.</source>
        <translation>Com o modo furtivo ativado, esta janela fica fora de compartilhamentos de tela, gravações e capturas até onde este sistema permite. Gravadores mais novos podem mostrá-la mesmo assim: compartilhe só a janela dos seus slides e seu público nunca verá suas anotações.</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeTour</name>
    <message>
        <source>Zoom → Share Screen → &quot;your slides&apos; window&quot; (not &quot;Entire Screen&quot;)</source>
        <translation>Zoom → Compartilhar tela → “a janela dos seus slides” (não “a tela inteira”)</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &quot;Advanced capture with window filtering&quot; (or &quot;Previous operating systems&quot;)</source>
        <translation>Zoom → Configurações → Compartilhar tela → Avançado → Modo de captura de tela → “Captura avançada com filtragem de janelas” (ou “Sistemas operacionais anteriores”)</translation>
    </message>
</context>
<context>
    <name>OtherDeck</name>
    <message>
        <source>Keep these notes</source>
        <translation>Manter estas anotações</translation>
    </message>
</context>
<context>
    <name>PrivacySettings</name>
    <message>
        <source>Privacy</source>
        <translation>Privacidade</translation>
    </message>
    <message>
        <source>Stealth Mode — hide from screen sharing, recordings &amp; screenshots</source>
        <translation>Modo furtivo: ocultar de compartilhamentos de tela, gravações e capturas</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window from screen sharing, recordings, or screenshots. There the prompter is visible, whether Stealth Mode is on or off.</source>
        <translation>Este ambiente não consegue ocultar uma janela de compartilhamentos de tela, gravações ou capturas. Neles o prompter fica visível, com o modo furtivo ativado ou não.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while staying fully visible to you.</source>
        <translation>Com o modo furtivo ativado antes do compartilhamento, o prompter fica invisível em compartilhamentos de tela, gravações e capturas (Zoom, Meet, QuickTime e outros), e continua totalmente visível para você.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots — while staying fully visible to you.</source>
        <translation>Com o modo furtivo ativado antes do compartilhamento, o prompter fica invisível em compartilhamentos de tela, gravações e capturas, e continua totalmente visível para você.</translation>
    </message>
    <message>
        <source>Stealth Mode takes effect on desktops that can keep a window out of screen sharing, recordings, and screenshots. With it on, the prompter&apos;s card says when this one cannot.</source>
        <translation>O modo furtivo funciona em ambientes que conseguem manter uma janela fora de compartilhamentos de tela, gravações e capturas. Quando ativado, o cartão do prompter diz se este não consegue.</translation>
    </message>
    <message>
        <source>Leave Stealth Mode alone during a live share: toggling it mid-share can make the meeting app draw a gray box in its place (close and open Orvello again to clear it). For zero risk, share the presentation window instead of the whole screen.</source>
        <translation>Não mexa no modo furtivo durante um compartilhamento: alterná-lo pode fazer o aplicativo de reuniões desenhar uma caixa cinza em seu lugar (feche e abra o Orvello de novo para removê-la). Para risco zero, compartilhe a janela da apresentação em vez da tela inteira.</translation>
    </message>
    <message>
        <source>Share the presentation window instead of the whole screen, and keep the prompter beside it: some programs, recorders above all, capture the place of a window with everything that is in front of it.</source>
        <translation>Compartilhe a janela da apresentação em vez da tela inteira e mantenha o prompter ao lado: alguns programas, sobretudo gravadores, capturam o lugar de uma janela com tudo o que está na frente dela.</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter stays out of screen sharing, recordings, and screenshots as far as this system allows — while staying fully visible to you. Newer recorders may show it all the same: try yours before you rely on it.</source>
        <translation>Com o modo furtivo ativado antes do compartilhamento, o prompter fica fora de compartilhamentos de tela, gravações e capturas até onde este sistema permite, e continua totalmente visível para você. Gravadores mais novos podem mostrá-lo mesmo assim: teste o seu antes de confiar nisso.</translation>
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
        <translation>Cor do texto</translation>
    </message>
    <message>
        <source>The opacity has no effect at the moment: windows can be translucent only while the desktop runs a compositor.</source>
        <extracomment>A compositor is the part of a Linux desktop that makes windows translucent.</extracomment>
        <translation>A opacidade não tem efeito no momento: as janelas só podem ser translúcidas enquanto o ambiente executa um compositor.</translation>
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
        <translation>DEPURAÇÃO — VISÍVEL EM GRAVAÇÕES</translation>
    </message>
    <message>
        <source>VISIBLE IN RECORDINGS</source>
        <translation>VISÍVEL EM GRAVAÇÕES</translation>
    </message>
</context>
<context>
    <name>ReadingSettings</name>
    <message>
        <source>Reading</source>
        <translation>Leitura</translation>
    </message>
    <message>
        <source>Characters a minute</source>
        <translation>Caracteres por minuto</translation>
    </message>
    <message>
        <source>Words a minute</source>
        <translation>Palavras por minuto</translation>
    </message>
    <message>
        <source>Keep my pace with another text, size or width</source>
        <translation>Manter meu ritmo com outro texto, tamanho ou largura</translation>
    </message>
    <message>
        <source>Time on the prompter</source>
        <translation>Tempo no prompter</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Decorrido</translation>
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
        <translation>Mostrar o aviso completo</translation>
    </message>
    <message>
        <source>Fold the badge to an eye</source>
        <translation>Reduzir o aviso a um olho</translation>
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
        <translation>Roteiros</translation>
    </message>
    <message>
        <source>New script</source>
        <translation>Novo roteiro</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Apagar</translation>
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
        <translation>Buscar em títulos e textos</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Mover para baixo</translation>
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
        <translation>Sessão</translation>
    </message>
    <message>
        <source>Countdown before start</source>
        <translation>Contagem regressiva antes do início</translation>
    </message>
    <message>
        <source>Press P to pause during a slideshow</source>
        <translation>Pressionar P para pausar durante uma apresentação</translation>
    </message>
    <message>
        <source>While a %1 slideshow is on-screen (where the cursor is hidden, so hover-to-pause can&apos;t work), a plain P pauses or resumes. It&apos;s active only during the slideshow, so it won&apos;t interfere with typing elsewhere. %2 always works too.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;; %2: keys, as in &quot;⌥⌘P&quot;.</extracomment>
        <translation>Enquanto uma apresentação do %1 está na tela (o ponteiro fica oculto e não pode pausar), a tecla P sozinha pausa ou retoma. Ela só age durante a apresentação e não atrapalha a digitação em outro lugar. %2 funciona sempre.</translation>
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
        <translation>Alternar o modo furtivo durante um compartilhamento de tela pode cobrir este prompter de cinza: feche e abra o Orvello de novo para remover.</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Dispensar</translation>
    </message>
    <message>
        <source>Stealth Mode has no effect on this desktop — whoever sees your screen sees this prompter, too.</source>
        <translation>O modo furtivo não tem efeito neste ambiente: quem vê sua tela também vê este prompter.</translation>
    </message>
</context>
<context>
    <name>ShortcutSettings</name>
    <message>
        <source>Keyboard shortcuts (global)</source>
        <translation>Atalhos de teclado (globais)</translation>
    </message>
    <message>
        <source>Other keys</source>
        <translation>Outras teclas</translation>
    </message>
    <message>
        <source>Change Shortcuts…</source>
        <translation>Mudar os atalhos…</translation>
    </message>
</context>
<context>
    <name>SlideChip</name>
    <message>
        <source>Slide %1</source>
        <extracomment>Read aloud. %1: which slide of how many, as in &quot;2 / 14&quot;.</extracomment>
        <translation>Slide %1</translation>
    </message>
    <message>
        <source>%2, %1</source>
        <extracomment>Read aloud. %2: the slide&apos;s title, which goes in last, as it may hold a &quot;%1&quot;; %1: who turns the slides, as in &quot;Live&quot;.</extracomment>
        <translation>%2, %1</translation>
    </message>
    <message>
        <source>Previous slide</source>
        <translation>Slide anterior</translation>
    </message>
    <message>
        <source>Next slide</source>
        <translation>Próximo slide</translation>
    </message>
</context>
<context>
    <name>SlidesSettings</name>
    <message>
        <source>Slides</source>
        <translation>Slides</translation>
    </message>
    <message>
        <source>Slide Tracking — notes follow the live slideshow</source>
        <translation>Acompanhar os slides: as anotações seguem a apresentação</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. The first time, macOS asks to let Orvello control that app — that&apos;s the sync. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Com uma apresentação importada (Roteiros → botão de importar) e “Acompanhar os slides” ativado, o prompter mostra as anotações do slide atual e muda sozinho quando você avança no %1. Na primeira vez, o macOS pergunta se o Orvello pode controlar esse aplicativo: essa é a sincronização. Desative para rolar a apresentação inteira como um roteiro comum.</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: a presentation program.</extracomment>
        <translation>Com uma apresentação importada (Roteiros → botão de importar) e “Acompanhar os slides” ativado, o prompter mostra as anotações do slide atual e muda sozinho quando você avança no %1. Desative para rolar a apresentação inteira como um roteiro comum.</translation>
    </message>
    <message>
        <source>If sync shows &quot;No access&quot;: System Settings → Privacy &amp; Security → Automation → Orvello → allow %1, then toggle Slide Tracking off and on.</source>
        <extracomment>The words in quotation marks are those of the card. %1: presentation programs.</extracomment>
        <translation>Se aparecer “Sem acesso”: Ajustes do Sistema → Privacidade e Segurança → Automação → Orvello → permita o %1, depois desative e ative “Acompanhar os slides”.</translation>
    </message>
    <message>
        <source>Orvello may not follow Impress</source>
        <translation>O Orvello não pode seguir o Impress</translation>
    </message>
    <message>
        <source>Orvello may follow Impress</source>
        <translation>O Orvello pode seguir o Impress</translation>
    </message>
    <message>
        <source>Orvello may follow Impress, but could not</source>
        <translation>O Orvello tem permissão para seguir o Impress, mas não conseguiu</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Revogar</translation>
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
        <translation>Tempo de leitura</translation>
    </message>
</context>
<context>
    <name>TourCloseButton</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Copiar o caminho</translation>
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
        <translation>Pular o tour</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Open my prompter</source>
        <translation>Abrir meu prompter</translation>
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
        <translation>Uma regra mantém suas anotações fora da gravação: compartilhe uma janela, nunca a tela inteira.</translation>
    </message>
    <message>
        <source>One rule and one safety net keep your notes off the recording.</source>
        <translation>Uma regra e uma rede de segurança mantêm suas anotações fora da gravação.</translation>
    </message>
    <message>
        <source>One rule, one safety net, and one Zoom setting keep your notes off the recording.</source>
        <translation>Uma regra, uma rede de segurança e um ajuste do Zoom mantêm suas anotações fora da gravação.</translation>
    </message>
    <message>
        <source>Stealth Mode is on by default</source>
        <translation>O modo furtivo já vem ativado</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window</source>
        <translation>Este ambiente não consegue ocultar uma janela</translation>
    </message>
    <message>
        <source>No app can keep its window out of screen captures here, so Stealth Mode has no effect. The prompter says so on its card: whoever sees your whole screen sees it too.</source>
        <translation>Aqui nenhum aplicativo consegue manter sua janela fora das capturas de tela, portanto o modo furtivo não tem efeito. O prompter diz isso em seu cartão: quem vê sua tela inteira também o vê.</translation>
    </message>
    <message>
        <source>Turn it on before you share and leave it alone. Toggling it mid-share can make your meeting app draw a gray box where the prompter sits — close and reopen Orvello to clear it.</source>
        <translation>Ative-o antes de compartilhar e não mexa mais. Alterná-lo durante o compartilhamento pode fazer o aplicativo de reuniões desenhar uma caixa cinza no lugar do prompter: feche e abra o Orvello de novo para removê-la.</translation>
    </message>
    <message>
        <source>Want zero risk? Share just the window</source>
        <translation>Quer risco zero? Compartilhe só a janela</translation>
    </message>
    <message>
        <source>Full-screen sharing works with Stealth Mode on. Sharing only the %1 window takes the risk to zero — a window share can never include the prompter.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Compartilhar a tela inteira funciona com o modo furtivo. Compartilhar só a janela do %1 reduz o risco a zero: uma janela compartilhada nunca pode incluir o prompter.</translation>
    </message>
    <message>
        <source>Share just the window</source>
        <translation>Compartilhe só a janela</translation>
    </message>
    <message>
        <source>In your meeting app, choose the window of your slides instead of the entire screen, and keep the prompter beside it: some recorders capture the window&apos;s place with everything in front of it.</source>
        <translation>No app de reunião, escolha a janela dos seus slides em vez da tela inteira e mantenha o prompter ao lado. Alguns programas, sobretudo gravadores, capturam o lugar de uma janela com tudo o que está na frente dela.</translation>
    </message>
    <message>
        <source>One rule: share a window, never the whole screen.</source>
        <translation>Uma regra: compartilhe uma janela, nunca a tela inteira.</translation>
    </message>
    <message>
        <source>A share of the full screen may show the prompter here. Sharing only the %1 window takes the risk to zero — a window share can never include it.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Compartilhar a tela inteira pode mostrar o prompter aqui. Compartilhar só a janela de %1 reduz o risco a zero: uma janela compartilhada nunca pode incluí-lo.</translation>
    </message>
</context>
<context>
    <name>TourSetupPage</name>
    <message>
        <source>You&apos;re set. Here&apos;s where things are.</source>
        <translation>Tudo pronto. Veja onde fica cada coisa.</translation>
    </message>
    <message>
        <source>Drag the prompter right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>Arraste o prompter para logo abaixo da câmera e seu olhar ficará natural. Mude o tamanho por qualquer borda.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>Pause during a slideshow</source>
        <translation>Pausar durante uma apresentação</translation>
    </message>
    <message>
        <source>Hover</source>
        <extracomment>Instead of a key: the pointer rests on the prompter.</extracomment>
        <translation>Ponteiro em cima</translation>
    </message>
    <message>
        <source>Pause instantly</source>
        <translation>Pausa imediata</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menus</translation>
    </message>
    <message>
        <source>Tray menu</source>
        <translation>Menu da bandeja</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour.</source>
        <translation>… e Roteiros, onde você escreve ou importa o que diz, os ajustes e este tour.</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour. Without a tray, right-click the prompter.</source>
        <translation>… e Roteiros, onde você escreve ou importa o que diz, os ajustes e este tour. Sem bandeja, clique com o botão direito no prompter.</translation>
    </message>
</context>
<context>
    <name>TourVoiceTest</name>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>Encontrar a sensibilidade para a minha voz</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>Nível do microfone</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testar</translation>
    </message>
</context>
<context>
    <name>TourWelcomePage</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Boas-vindas ao Orvello</translation>
    </message>
    <message>
        <source>Your private teleprompter. Your audience sees your slides — never your notes.</source>
        <translation>Seu teleprompter particular. Seu público vê seus slides, nunca suas anotações.</translation>
    </message>
    <message>
        <source>Invisible on screen shares</source>
        <translation>Invisível ao compartilhar a tela</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots — while you see it perfectly.</source>
        <translation>O modo furtivo oculta o prompter do Zoom, Meet, Teams, de gravações e capturas, enquanto você o vê perfeitamente.</translation>
    </message>
    <message>
        <source>Follows your voice</source>
        <translation>Segue sua voz</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — nothing is recorded or uploaded.</source>
        <translation>Rola enquanto você fala e espera quando você para. O áudio é analisado só neste Mac: nada é gravado nem enviado.</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this computer only — nothing is recorded or uploaded.</source>
        <translation>Rola enquanto você fala e espera quando você para. O áudio é analisado só neste computador: nada é gravado nem enviado.</translation>
    </message>
    <message>
        <source>Follows your slides</source>
        <translation>Segue seus slides</translation>
    </message>
    <message>
        <source>Import a .pptx or an open %1 deck and the speaker notes flip with your slideshow.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>Importe um arquivo .pptx ou uma apresentação aberta no %1, e as anotações mudam com seus slides.</translation>
    </message>
    <message>
        <source>Share a window in Zoom, Meet or Teams, keep the prompter beside it, and only you see it. In a share of the whole screen, this desktop shows it to everyone.</source>
        <translation>Compartilhe uma janela no Zoom, Meet ou Teams, mantenha o prompter ao lado e só você o verá. Ao compartilhar a tela inteira, esta área de trabalho o mostra a todos.</translation>
    </message>
    <message>
        <source>Your private teleprompter. Share your slides&apos; window alone, keep the prompter beside it, and your notes are yours.</source>
        <translation>Seu teleprompter particular. Compartilhe só a janela dos seus slides, deixe o prompter ao lado, e suas anotações são só suas.</translation>
    </message>
    <message>
        <source>Beside the window that you share</source>
        <translation>Ao lado da janela compartilhada</translation>
    </message>
    <message>
        <source>Hidden where the system allows</source>
        <translation>Oculto onde o sistema permite</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter as far as this system allows. Newer recorders may show it all the same: try yours first.</source>
        <translation>O modo furtivo oculta o prompter até onde este sistema permite. Gravadores mais novos podem mostrá-lo mesmo assim: teste o seu antes.</translation>
    </message>
</context>
<context>
    <name>TourZoomCard</name>
    <message>
        <source>Using Zoom? Set this once</source>
        <translation>Usa o Zoom? Ajuste uma vez</translation>
    </message>
    <message>
        <source>Using Zoom? Share a window</source>
        <translation>Usa o Zoom? Compartilhe uma janela</translation>
    </message>
    <message>
        <source>No setting of Zoom hides the prompter here: a share of the entire screen shows your notes.</source>
        <translation>Aqui nenhum ajuste do Zoom oculta o prompter: compartilhar a tela inteira mostra suas anotações.</translation>
    </message>
    <message>
        <source>Zoom&apos;s default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes.</source>
        <translation>O padrão do Zoom, Automático, costuma funcionar, mas escolhe um método de captura a cada sessão, e um deles pode mostrar suas anotações.</translation>
    </message>
    <message>
        <source>Zoom → Share Screen → &lt;b&gt;your slides&apos; window&lt;/b&gt; (not Entire Screen).</source>
        <extracomment>The words between &lt;b&gt; and &lt;/b&gt; are shown in bold.</extracomment>
        <translation>Zoom → Compartilhar tela → &lt;b&gt;a janela dos seus slides&lt;/b&gt; (não a tela inteira).</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &lt;b&gt;Advanced capture with window filtering&lt;/b&gt; (or Previous operating systems).</source>
        <translation>Zoom → Configurações → Compartilhar tela → Avançado → Modo de captura de tela → &lt;b&gt;Captura avançada com filtragem de janelas&lt;/b&gt; (ou Sistemas operacionais anteriores).</translation>
    </message>
</context>
<context>
    <name>UpdateQuestion</name>
    <message>
        <source>Update</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Add Once More</source>
        <extracomment>A button: the notes of a presentation are added as one more script.</extracomment>
        <translation>Adicionar mais uma vez</translation>
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
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation>Buscar atualizações automaticamente (uma vez por dia)</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your computer beyond the app version. Orvello installs nothing by itself: if you want the new version, it opens the download page.</source>
        <translation>A busca pergunta ao site do fornecedor qual é a versão mais recente e não envia nada sobre você ou seu computador além da versão do aplicativo. O Orvello não instala nada por conta própria: se você quiser a nova versão, ele abre a página de download.</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your Mac beyond the app version. Updates are signed, and you always confirm before one installs.</source>
        <translation>A busca pergunta ao site do fornecedor qual é a versão mais recente e não envia nada sobre você ou seu Mac além da versão do aplicativo. As atualizações são assinadas, e você sempre confirma antes de instalar.</translation>
    </message>
    <message>
        <source>Orvello %1 — not checked yet</source>
        <translation>Orvello %1 — ainda sem busca</translation>
    </message>
    <message>
        <source>Orvello %1 — last checked %2</source>
        <extracomment>%1: the version; %2: a date and a time.</extracomment>
        <translation>Orvello %1 — última busca %2</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Buscar agora</translation>
    </message>
    <message>
        <source>This Orvello was built without the address of an update feed, so it cannot look for updates. Whoever you got it from has newer versions.</source>
        <translation>Este Orvello foi compilado sem o endereço de um canal de atualizações, portanto não pode procurá-las. Versões mais novas estão onde você o obteve.</translation>
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
        <translation>Seguir a voz</translation>
    </message>
    <message>
        <source>Scroll while I speak, pause when I pause</source>
        <translation>Rolar enquanto falo, pausar quando paro</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>Nível do microfone</translation>
    </message>
    <message>
        <source>Microphone access is denied. Allow it in your desktop&apos;s privacy settings, then toggle voice-follow again.</source>
        <translation>O acesso ao microfone foi negado. Permita-o nos ajustes de privacidade do seu ambiente, depois desative e ative “Seguir a voz”.</translation>
    </message>
    <message>
        <source>Microphone access is denied. Enable it in System Settings → Privacy &amp; Security → Microphone, then toggle voice-follow again.</source>
        <translation>O acesso ao microfone foi negado. Permita-o em Ajustes do Sistema → Privacidade e Segurança → Microfone, depois desative e ative “Seguir a voz”.</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this Mac won&apos;t move the prompter.</source>
        <translation>Cancelamento de eco: ativado; o som deste Mac não move o prompter.</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this computer won&apos;t move the prompter.</source>
        <translation>Cancelamento de eco: ativado; o som deste computador não move o prompter.</translation>
    </message>
    <message>
        <source>Echo cancellation: paused (%1) so your voice keeps working in calls. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <extracomment>%1: why, such as &quot;another app is using the microphone&quot; or &quot;Zoom is open&quot;.</extracomment>
        <translation>Cancelamento de eco: pausado (%1) para sua voz continuar funcionando em chamadas. Com alto-falantes, uma voz alta do outro lado pode mover o prompter; com fones, não.</translation>
    </message>
    <message>
        <source>Audio is analyzed on-device for loudness only. Nothing is recorded, recognized, or uploaded.</source>
        <translation>O áudio é analisado no aparelho, só pelo volume. Nada é gravado, reconhecido nem enviado.</translation>
    </message>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>Encontrar a sensibilidade para a minha voz</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testar</translation>
    </message>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>Fale normalmente por cinco segundos.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfone</translation>
    </message>
    <message>
        <source>Echo cancellation: not available. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <translation>Cancelamento de eco: não disponível. Com alto-falantes, uma voz alta do outro lado pode mover o prompter; com fones, não.</translation>
    </message>
</context>
</TS>
