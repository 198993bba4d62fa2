<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Countdown</name>
    <message>
        <source>Countdown</source>
        <translation>カウントダウン</translation>
    </message>
</context>
<context>
    <name>DeletedScripts</name>
    <message>
        <source>Recently deleted</source>
        <translation>最近削除した項目</translation>
    </message>
    <message>
        <source>Deleted scripts are kept for 30 days.</source>
        <translation>削除した原稿は30日間保存されます。</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>「%1」を復元</translation>
    </message>
</context>
<context>
    <name>EditorPage</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Speaker notes</source>
        <translation>発表者ノート</translation>
    </message>
    <message>
        <source>Script text</source>
        <translation>原稿の本文</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your Mac</source>
        <translation>プロンプターに表示中 · このMacに自動保存され、外部には送られません</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your computer</source>
        <translation>プロンプターに表示中 · このコンピューターに自動保存され、外部には送られません</translation>
    </message>
    <message>
        <source>Start Here</source>
        <extracomment>The prompter begins with the line that the cursor is on.</extracomment>
        <translation>ここから開始</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ペースト</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
</context>
<context>
    <name>ImportMenu</name>
    <message>
        <source>Import speaker notes from a deck</source>
        <translation>プレゼンテーションの発表者ノートを読み込む</translation>
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
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>Orvello::AppDelegate</name>
    <message>
        <source>%1 counts only at the launch: quit the Orvello that runs first</source>
        <translation>%1は起動時にだけ有効です。先に起動中のOrvelloを終了してください</translation>
    </message>
</context>
<context>
    <name>Orvello::Appcast</name>
    <message>
        <source>It declares a document type.</source>
        <translation>文書型を宣言しています。</translation>
    </message>
    <message>
        <source>It is no RSS feed.</source>
        <translation>RSSフィードではありません。</translation>
    </message>
</context>
<context>
    <name>Orvello::AppcastUpdater</name>
    <message>
        <source>There is no valid update feed.</source>
        <translation>有効なアップデートフィードがありません。</translation>
    </message>
    <message>
        <source>The update feed is not secure.</source>
        <translation>アップデートフィードが安全ではありません。</translation>
    </message>
    <message>
        <source>The update feed cannot be read: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>アップデートフィードを読み込めません：%1</translation>
    </message>
    <message>
        <source>The update feed makes no sense: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>アップデートフィードを理解できません：%1</translation>
    </message>
    <message>
        <source>The download page cannot be opened.</source>
        <translation>ダウンロードページを開けません。</translation>
    </message>
    <message>
        <source>Orvello is up to date.</source>
        <translation>Orvelloは最新です。</translation>
    </message>
</context>
<context>
    <name>Orvello::AppleScriptPresenters</name>
    <message>
        <source>permission denied — allow Orvello to control %1 in System Settings → Privacy &amp; Security → Automation</source>
        <extracomment>Follows &quot;Couldn&apos;t read the presentation:&quot;. %1: a presentation program.</extracomment>
        <translation>アクセスが拒否されました。「システム設定」→「プライバシーとセキュリティ」→「オートメーション」でOrvelloに%1の制御を許可してください</translation>
    </message>
    <message>
        <source>presenter notes</source>
        <translation>発表者ノート</translation>
    </message>
    <message>
        <source>speaker notes</source>
        <translation>発表者ノート</translation>
    </message>
</context>
<context>
    <name>Orvello::BusInstance</name>
    <message>
        <source>Orvello is running already, but does not answer.</source>
        <translation>Orvelloはすでに起動していますが、応答しません。</translation>
    </message>
    <message>
        <source>Orvello is running already, but cannot be asked for anything: the two do not share a session bus.</source>
        <translation>Orvelloはすでに起動していますが、依頼を渡せません。両者がセッションバスを共有していません。</translation>
    </message>
</context>
<context>
    <name>Orvello::Commands</name>
    <message>
        <source>Start Scrolling</source>
        <translation>スクロールを開始</translation>
    </message>
    <message>
        <source>Pause Scrolling</source>
        <translation>スクロールを一時停止</translation>
    </message>
    <message>
        <source>Start / pause scrolling</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>スクロールの開始 / 一時停止</translation>
    </message>
    <message>
        <source>Start / pause</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>開始 / 一時停止</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>速く</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>遅く</translation>
    </message>
    <message>
        <source>Back to Top</source>
        <extracomment>In a menu: scrolls back to the beginning of the script.</extracomment>
        <translation>先頭に戻る</translation>
    </message>
    <message>
        <source>Back to top</source>
        <extracomment>What a key does: it scrolls back to the beginning of the script.</extracomment>
        <translation>先頭に戻る</translation>
    </message>
    <message>
        <source>Show Prompter</source>
        <translation>プロンプターを表示</translation>
    </message>
    <message>
        <source>Hide Prompter</source>
        <translation>プロンプターを隠す</translation>
    </message>
    <message>
        <source>Show / hide prompter</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>プロンプターの表示 / 非表示</translation>
    </message>
    <message>
        <source>Show / hide</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>表示 / 非表示</translation>
    </message>
    <message>
        <source>Voice-Follow Scrolling</source>
        <extracomment>A mode: the text scrolls while the user speaks.</extracomment>
        <translation>音声に追従</translation>
    </message>
    <message>
        <source>Slide Tracking</source>
        <extracomment>A mode: the notes follow the slides of a running slideshow.</extracomment>
        <translation>スライドに追従</translation>
    </message>
    <message>
        <source>Stealth Mode</source>
        <extracomment>A mode: the prompter is hidden from screen sharing and recordings.</extracomment>
        <translation>ステルスモード</translation>
    </message>
    <message>
        <source>Scripts…</source>
        <translation>原稿…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Welcome Tour…</source>
        <translation>はじめてのツアー…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Contact Support…</source>
        <translation>サポートに問い合わせる…</translation>
    </message>
    <message>
        <source>Reveal Log Files</source>
        <translation>ログファイルを表示</translation>
    </message>
    <message>
        <source>Quit Orvello</source>
        <translation>Orvelloを終了</translation>
    </message>
    <message>
        <source>%1  (%2)</source>
        <extracomment>A line of a menu with two blanks in it. %1: its text; %2: its key, such as &quot;⌥⌘P&quot;.</extracomment>
        <translation>%1  (%2)</translation>
    </message>
    <message>
        <source>Start or pause scrolling</source>
        <translation>スクロールを開始または一時停止</translation>
    </message>
    <message>
        <source>Scroll faster</source>
        <translation>スクロールを速くする</translation>
    </message>
    <message>
        <source>Scroll more slowly</source>
        <translation>スクロールを遅くする</translation>
    </message>
    <message>
        <source>Go back to the top of the script</source>
        <translation>原稿の先頭に戻る</translation>
    </message>
    <message>
        <source>Show or hide the prompter</source>
        <translation>プロンプターを表示または隠す</translation>
    </message>
    <message>
        <source>Put Under the Camera</source>
        <extracomment>In a menu: moves the prompter to the top of the screen that the pointer is on.</extracomment>
        <translation>カメラの下に置く</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckController</name>
    <message>
        <source>(No speaker notes on this slide)</source>
        <translation>（このスライドには発表者ノートがありません）</translation>
    </message>
    <message>
        <source>(Another presentation is on screen)</source>
        <translation>（画面には別のプレゼンテーションが表示されています）</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckFileBar</name>
    <message>
        <source>Up to date with “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>「%1」と同じ内容です。</translation>
    </message>
    <message>
        <source>“%1” is not there any more. The notes stay as they were.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>「%1」が見つかりません。ノートはそのまま残ります。</translation>
    </message>
    <message>
        <source>“%1” has changed: the notes of slides %2 are no longer in it. An update keeps this version among the deleted scripts.</source>
        <extracomment>%1: the name of a file; %2: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>「%1」が変更され、スライド%2のノートがなくなりました。更新しても、この版は削除した原稿の中に残ります。</translation>
    </message>
    <message>
        <source>“%1” has changed, but cannot be read: %2</source>
        <extracomment>%1: the name of a file; %2: why, as a sentence.</extracomment>
        <translation>「%1」が変更されましたが、読み込めません: %2</translation>
    </message>
    <message>
        <source>Update from File…</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>ファイルから更新…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Choose the presentation that these notes are from.</source>
        <translation>このノートの元のプレゼンテーションを選んでください。</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImportError</name>
    <message>
        <source>%1 isn&apos;t running. Open your presentation in %1 first.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>%1が起動していません。先に%1でプレゼンテーションを開いてください。</translation>
    </message>
    <message>
        <source>No presentation is open in %1.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>%1で開いているプレゼンテーションがありません。</translation>
    </message>
    <message>
        <source>That %1 presentation has no %2 on any slide.</source>
        <extracomment>%1: a presentation program; %2: what it calls the notes, such as &quot;speaker notes&quot;.</extracomment>
        <translation>その%1のプレゼンテーションには、%2のあるスライドがありません。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the %1 presentation: %2</source>
        <extracomment>%1: a presentation program; %2: why, a sentence or a part of one.</extracomment>
        <translation>%1のプレゼンテーションを読み込めませんでした：%2</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImports</name>
    <message>
        <source>PowerPoint file (.pptx)…</source>
        <translation>PowerPointファイル（.pptx）…</translation>
    </message>
    <message>
        <source>Open %1 presentation</source>
        <extracomment>An item of a menu. %1: a presentation program, such as Keynote.</extracomment>
        <translation>%1で開いているプレゼンテーション</translation>
    </message>
    <message>
        <source>Choose a PowerPoint presentation — Orvello imports its speaker notes.</source>
        <translation>PowerPointのプレゼンテーションを選んでください。Orvelloが発表者ノートを読み込みます。</translation>
    </message>
    <message>
        <source>Import failed</source>
        <translation>読み込みに失敗しました</translation>
    </message>
    <message>
        <source>No speaker notes</source>
        <translation>発表者ノートがありません</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in PowerPoint&apos;s notes pane and re-import.</source>
        <translation>読み込みましたが、ノートのあるスライドがありません。PowerPointのノート欄に書き加えて、もう一度読み込んでください。</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in your presentation program&apos;s notes pane and re-import.</source>
        <translation>読み込みましたが、ノートのあるスライドがありません。プレゼンテーションアプリのノート欄に書き加えて、もう一度読み込んでください。</translation>
    </message>
    <message>
        <source>Imported the saved copy</source>
        <translation>保存済みのコピーを読み込みました</translation>
    </message>
    <message>
        <source>PowerPoint has unsaved changes, so the notes came from the last saved copy. Save the presentation and import again to include them.</source>
        <translation>PowerPointに保存していない変更があるため、最後に保存したコピーのノートを読み込みました。変更を含めるには、保存してからもう一度読み込んでください。</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>Not all notes were imported</source>
        <translation>一部のノートを読み込めませんでした</translation>
    </message>
    <message>
        <source>The file holds more than Orvello reads: the notes of slides %1 could not be read.</source>
        <extracomment>%1: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>ファイルの内容が Orvello の上限を超えています。スライド %1 のノートは読み込めませんでした。</translation>
    </message>
    <message>
        <source>Presentation file (.pptx, .odp)…</source>
        <translation>プレゼンテーションファイル (.pptx、.odp)…</translation>
    </message>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>%1 で開いている内容を読み込んでいます…</translation>
    </message>
    <message>
        <source>Choose a presentation — Orvello imports its speaker notes.</source>
        <translation>プレゼンテーションを選んでください。Orvello が発表者ノートを読み込みます。</translation>
    </message>
    <message>
        <source>Not a presentation</source>
        <translation>プレゼンテーションではありません</translation>
    </message>
    <message>
        <source>Orvello imports speaker notes from presentations (.pptx, .odp). It cannot read %1.</source>
        <extracomment>%1: the names of files.</extracomment>
        <translation>Orvelloはプレゼンテーション（.pptx、.odp）から発表者ノートを読み込みます。%1は読み込めません。</translation>
    </message>
    <message>
        <source>The notes of “%1” are among your scripts already. Update them, or add them once more?</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>「%1」のノートはすでに原稿の中にあります。更新しますか、それとももう一度追加しますか?</translation>
    </message>
</context>
<context>
    <name>Orvello::DeletedScriptsModel</name>
    <message>
        <source>Deleted %1</source>
        <extracomment>%1: a date.</extracomment>
        <translation>削除：%1</translation>
    </message>
</context>
<context>
    <name>Orvello::Facts</name>
    <message>
        <source>Keynote or PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>KeynoteまたはPowerPoint</translation>
    </message>
    <message>
        <source>Keynote or Microsoft PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>KeynoteまたはMicrosoft PowerPoint</translation>
    </message>
</context>
<context>
    <name>Orvello::FeedLoader</name>
    <message>
        <source>The server did not answer in time.</source>
        <translation>サーバーが時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The server redirects to an insecure address.</source>
        <translation>サーバーが安全でないアドレスに転送しています。</translation>
    </message>
    <message>
        <source>The document is too large.</source>
        <translation>文書が大きすぎます。</translation>
    </message>
    <message>
        <source>The server answers with status %1.</source>
        <translation>サーバーがステータス%1を返しました。</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressAdviceDialog</name>
    <message>
        <source>Let Orvello follow your Impress presentations?</source>
        <translation>OrvelloがImpressのプレゼンテーションに追従することを許可しますか？</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>あとで</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>While an Impress slideshow runs, and while you import an open presentation, Orvello has LibreOffice listen on a connection that gives control of all of LibreOffice, and uses it to read slide numbers, titles and notes. Only programs of your user account could reach it, Orvello takes its name away as soon as it is connected, and the connection ends with the slideshow or the import.</source>
        <translation>Impress のスライドショーの実行中と、開いているプレゼンテーションの読み込み中、Orvello は LibreOffice 全体を操作できる接続を LibreOffice に待ち受けさせ、スライド番号、タイトル、ノートの読み取りに使います。この接続に届くのはあなたのユーザーアカウントのプログラムだけで、Orvello は接続するとすぐにその名前を取り除き、接続はスライドショーまたは読み込みとともに終了します。</translation>
    </message>
    <message>
        <source>Orvello may now follow Impress. Start the slideshow or the import again.

The settings have a button that takes this back.</source>
        <translation>Orvello が Impress に追従できるようになりました。スライドショーまたは読み込みをもう一度始めてください。

設定のボタンで取り消せます。</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressPresenter</name>
    <message>
        <source>notes</source>
        <extracomment>What Impress calls a speaker&apos;s notes.</extracomment>
        <translation>ノート</translation>
    </message>
    <message>
        <source>To follow Impress, Orvello needs the package python3-uno. Install it and try again.</source>
        <translation>Impressに追従するには、python3-unoパッケージがOrvelloに必要です。インストールしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>LibreOffice isn&apos;t running.</source>
        <translation>LibreOffice が実行されていません。</translation>
    </message>
    <message>
        <source>LibreOffice did not answer.</source>
        <translation>LibreOffice が応答しませんでした。</translation>
    </message>
    <message>
        <source>permission denied — Orvello asks LibreOffice only once you allow it</source>
        <extracomment>Follows &quot;Couldn&apos;t read the Impress presentation:&quot;.</extracomment>
        <translation>許可されていません — Orvello は許可されるまで LibreOffice に問い合わせません</translation>
    </message>
    <message>
        <source>This LibreOffice runs in a sandbox (%1) that Orvello cannot reach. Import the presentation&apos;s file instead, and step through the slides by hand.</source>
        <extracomment>%1: a kind of package, such as Flatpak or Snap.</extracomment>
        <translation>この LibreOffice は Orvello から届かないサンドボックス (%1) で動いています。代わりにプレゼンテーションのファイルを読み込み、スライドは手動で送ってください。</translation>
    </message>
</context>
<context>
    <name>Orvello::LaunchOptions</name>
    <message>
        <source>unknown option %1; did you mean %2?</source>
        <translation>不明なオプション%1。%2のことですか？</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>不明なオプション%1</translation>
    </message>
    <message>
        <source>%1 is neither an option nor a preference with a value</source>
        <translation>%1は、オプションでも、値の付いた設定でもありません</translation>
    </message>
    <message>
        <source>%1 is no address that Orvello opens</source>
        <translation>%1はOrvelloが開けるアドレスではありません</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>ファイル「%1」がありません</translation>
    </message>
    <message>
        <source>Try &quot;orvello --help&quot;.</source>
        <translation>「orvello --help」をお試しください。</translation>
    </message>
    <message>
        <source>%1 is not a deck (.pptx or .odp)</source>
        <translation>%1 はプレゼンテーション (.pptx または .odp) ではありません</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryNotices</name>
    <message>
        <source>Another Orvello is using your scripts, so nothing that you change here is saved. Quit this one and go on in the other.</source>
        <translation>別のOrvelloが原稿を使用しているため、ここでの変更は保存されません。こちらを終了し、もう一方で続けてください。</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because the disk is full. Orvello keeps trying.</source>
        <translation>ディスクがいっぱいのため、原稿を保存できません。Orvelloは再試行を続けます。</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because their folder is write-protected. Orvello keeps trying.</source>
        <translation>フォルダが書き込み禁止のため、原稿を保存できません。Orvelloは再試行を続けます。</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved (%1). Orvello keeps trying.</source>
        <extracomment>%1: what the system says about it.</extracomment>
        <translation>原稿を保存できません（%1）。Orvelloは再試行を続けます。</translation>
    </message>
    <message>
        <source>Your scripts file was lost or empty. There is a copy from %1.</source>
        <extracomment>%1: a date and a time.</extracomment>
        <translation>原稿のファイルがないか、空でした。%1のコピーがあります。</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. There is a copy from %1; what was in the file is kept as “%2”.</source>
        <extracomment>%1: a date and a time; %2: the name of a file.</extracomment>
        <translation>原稿のファイルが壊れていました。%1のコピーがあります。ファイルの内容は「%2」として残してあります。</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. What was in it is kept as “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>原稿のファイルが壊れていました。内容は「%1」として残してあります。</translation>
    </message>
    <message numerus="yes">
        <source>Bring back %n scripts</source>
        <extracomment>A button.</extracomment>
        <translation>
            <numerusform>%n件の原稿を戻す</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryStore</name>
    <message>
        <source>My Script</source>
        <extracomment>The title of the only script of a user of the first versions.</extracomment>
        <translation>マイ原稿</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>The title of a new script.</extracomment>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The title of a copied script. %1: the title of the original.</extracomment>
        <translation>%1のコピー</translation>
    </message>
    <message>
        <source>%1 (before the update)</source>
        <extracomment>The title of a former version of a script. %1: the title of the script.</extracomment>
        <translation>%1（更新前）</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryViewModel</name>
    <message>
        <source>Export this script</source>
        <extracomment>Above the panel in which the user says where the script is to be written.</extracomment>
        <translation>この原稿を書き出す</translation>
    </message>
    <message numerus="yes">
        <source>Export %n scripts</source>
        <translation>
            <numerusform>%n件の原稿を書き出す</numerusform>
        </translation>
    </message>
    <message>
        <source>Scripts</source>
        <extracomment>The name of a file with several scripts.</extracomment>
        <translation>原稿</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>書き出しに失敗しました</translation>
    </message>
    <message>
        <source>“%1” could not be written (%2).</source>
        <extracomment>%1: the name of a file; %2: what the system says about it.</extracomment>
        <translation>“%1”に書き込めませんでした（%2）。</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryWindow</name>
    <message>
        <source>Scripts</source>
        <translation>原稿</translation>
    </message>
</context>
<context>
    <name>Orvello::LinuxWakefulness</name>
    <message>
        <source>The prompter is being read</source>
        <extracomment>Why the display is kept on, for a desktop that shows it: at most about 60 characters.</extracomment>
        <translation>プロンプターを読んでいます</translation>
    </message>
</context>
<context>
    <name>Orvello::LiveDeckImport</name>
    <message>
        <source>%1 deck</source>
        <extracomment>The title of a deck without a name. %1: a presentation program, such as Keynote.</extracomment>
        <translation>%1のプレゼンテーション</translation>
    </message>
</context>
<context>
    <name>Orvello::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>Orvello::OnboardingWindowController</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Orvelloへようこそ</translation>
    </message>
</context>
<context>
    <name>Orvello::OtherDeckNotice</name>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>%1 で開いている内容を読み込んでいます…</translation>
    </message>
    <message>
        <source>These notes are from another presentation than the one on screen.</source>
        <extracomment>On the card. %1: the name of a presentation.</extracomment>
        <translation>このノートは、画面のプレゼンテーションのものではありません。</translation>
    </message>
    <message>
        <source>“%1” is on screen. These notes are from another presentation.</source>
        <translation>画面には「%1」が表示されています。このノートは別のプレゼンテーションのものです。</translation>
    </message>
    <message>
        <source>Switch to its notes</source>
        <extracomment>A button on the card: shows the notes of the presentation that is on screen.</extracomment>
        <translation>そのノートに切り替える</translation>
    </message>
    <message>
        <source>Import its notes</source>
        <translation>そのノートを読み込む</translation>
    </message>
</context>
<context>
    <name>Orvello::PptxImporter</name>
    <message>
        <source>The file could not be opened as a PowerPoint package.</source>
        <translation>PowerPointのパッケージとして開けないファイルです。</translation>
    </message>
    <message>
        <source>No slides were found — is this a .pptx presentation?</source>
        <translation>スライドが見つかりません。.pptxのプレゼンテーションですか？</translation>
    </message>
    <message>
        <source>The presentation is protected by a password. Save a copy without one in your presentation program, and import that.</source>
        <translation>プレゼンテーションはパスワードで保護されています。プレゼンテーションソフトでパスワードなしのコピーを保存し、それを読み込んでください。</translation>
    </message>
</context>
<context>
    <name>Orvello::PrompterStatus</name>
    <message>
        <source>get ready</source>
        <extracomment>On the card, at most about 20 characters: the countdown runs.</extracomment>
        <translation>まもなく開始</translation>
    </message>
    <message>
        <source>hover pause</source>
        <extracomment>On the card, at most about 20 characters: the pointer over the card holds the text.</extracomment>
        <translation>ポインターで停止中</translation>
    </message>
    <message>
        <source>paused</source>
        <extracomment>On the card, at most about 20 characters: the text stands still.</extracomment>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>listening…</source>
        <extracomment>On the card, at most about 20 characters: the text waits for the user to speak.</extracomment>
        <translation>聞いています…</translation>
    </message>
    <message>
        <source>scrolling</source>
        <extracomment>On the card, at most about 20 characters: the text moves.</extracomment>
        <translation>スクロール中</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingClock</name>
    <message>
        <source>%1 left</source>
        <extracomment>On the card, at most about 15 characters. %1: minutes and seconds, as in &quot;3:12&quot;.</extracomment>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>%1 · %2 left</source>
        <extracomment>On the card, at most about 25 characters. %1: how long the reader has been reading; %2: how long the rest takes, both as in &quot;3:12&quot;.</extracomment>
        <translation>%1 · 残り %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingPace</name>
    <message>
        <source>The prompter has no text to scroll.</source>
        <translation>プロンプターにスクロールする文章がありません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n characters a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · この台本では毎分約%n文字</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n words a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · この台本では毎分約%n語</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: faster than speech</source>
        <extracomment>%1: as in &quot;25 pt/s · about 250 words a minute in this script&quot;.</extracomment>
        <translation>%1: 話すより速い</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptEditor</name>
    <message numerus="yes">
        <source>%n words</source>
        <translation>
            <numerusform>%n語</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported deck (%1) — notes are read-only here; edit them in the presentation and re-import.</source>
        <extracomment>%1: where the deck is from: a program or a file.</extracomment>
        <translation>読み込んだプレゼンテーション（%1）です。ノートはここでは変更できません。プレゼンテーションで編集して、もう一度読み込んでください。</translation>
    </message>
    <message>
        <source>%1 · about %2</source>
        <extracomment>%1: how many words, as in &quot;52 words&quot;; %2: minutes and seconds, as in &quot;0:22&quot;.</extracomment>
        <translation>%1 · 約%2</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptListModel</name>
    <message>
        <source>Untitled</source>
        <extracomment>Stands for a script without a title.</extracomment>
        <translation>名称未設定</translation>
    </message>
    <message numerus="yes">
        <source>%n slides</source>
        <translation>
            <numerusform>%n枚のスライド</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::SensitivityTest</name>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>5秒間、ふだんどおりに話してください。</translation>
    </message>
    <message>
        <source>Waiting for the microphone…</source>
        <translation>マイクを待っています…</translation>
    </message>
    <message>
        <source>A sensitivity of %1% suits your voice here.</source>
        <extracomment>%1: a whole number.</extracomment>
        <translation>ここでのあなたの声には、感度 %1% が合っています。</translation>
    </message>
    <message>
        <source>No voice stood out from the room. Come closer to the microphone, or choose another one.</source>
        <translation>部屋の音より大きな声は聞こえませんでした。マイクに近づくか、別のマイクを選んでください。</translation>
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
        <translation>文字の大きさ — %1</translation>
    </message>
    <message>
        <source>Scroll speed — %1 pt/s</source>
        <extracomment>%1: points per second.</extracomment>
        <translation>スクロールの速さ — %1 pt/秒</translation>
    </message>
    <message>
        <source>Background opacity — %1</source>
        <extracomment>%1: a percentage.</extracomment>
        <translation>背景の不透明度 — %1</translation>
    </message>
    <message>
        <source>Sensitivity — %1</source>
        <extracomment>Of the microphone&apos;s detector of speech. %1: a percentage.</extracomment>
        <translation>感度 — %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation>3秒</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5秒</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10秒</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>ピンク</translation>
    </message>
    <message>
        <source>Your settings could not be read, so they are as new. The old file is kept: %1</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>設定を読み込めなかったため、初期状態に戻っています。元のファイルは残してあります：%1</translation>
    </message>
</context>
<context>
    <name>Orvello::SettingsWindow</name>
    <message>
        <source>Orvello Settings</source>
        <translation>Orvelloの設定</translation>
    </message>
</context>
<context>
    <name>Orvello::ShortcutList</name>
    <message>
        <source>Speed up / down</source>
        <extracomment>What two keys do, one each. The second text is for a narrow list: at most about 20 characters.</extracomment>
        <translation>速く / 遅く</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速さ</translation>
    </message>
    <message>
        <source>%1 (another program has it)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1（別のプログラムが使用中）</translation>
    </message>
    <message>
        <source>%1 (not on this keyboard)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1（このキーボードにはありません）</translation>
    </message>
</context>
<context>
    <name>Orvello::SlideStatus</name>
    <message>
        <source>Live</source>
        <extracomment>On the card, at most about 12 characters: the notes follow the running slideshow.</extracomment>
        <translation>連動中</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>On the card, at most about 12 characters: the presentation program may not be asked.</extracomment>
        <translation>許可なし</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>On the card, at most about 12 characters: the user turns the notes by hand.</extracomment>
        <translation>手動</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>On the card: which slide of how many.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Other deck</source>
        <extracomment>On the card, at most about 12 characters: the slideshow shows another presentation.</extracomment>
        <translation>別の資料</translation>
    </message>
</context>
<context>
    <name>Orvello::StatusMenu</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
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
        <translation>Orvello %1、%2
問題が起きた場合は、ログを添付してください：Orvelloのメニュー → ヘルプ → ログファイルを表示。</translation>
    </message>
</context>
<context>
    <name>Orvello::UpdateDialogs</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation>アップデートを自動的に確認しますか？</translation>
    </message>
    <message>
        <source>Once a day, Orvello would look at the vendor&apos;s web site for a newer version. Nothing about you is sent. You can change this in the settings at any time.</source>
        <translation>Orvelloは一日に一度、提供元のウェブサイトに新しいバージョンがあるかを調べます。あなたについての情報は何も送られません。これは設定でいつでも変更できます。</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>自動的に確認</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>確認しない</translation>
    </message>
    <message>
        <source>Orvello %1 is available.</source>
        <extracomment>%1: the version, such as 2.1.</extracomment>
        <translation>Orvello %1を利用できます。</translation>
    </message>
    <message>
        <source>You have %1. The new version is on its download page, which Install opens in your browser.</source>
        <extracomment>%1: the version. Install is the button&apos;s name.</extracomment>
        <translation>お使いのバージョンは%1です。新しいバージョンはダウンロードページにあり、「インストール」でブラウザーに表示されます。</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>インストール…</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>あとで</translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation>お使いのバージョンは%1です。</translation>
    </message>
</context>
<context>
    <name>Orvello::VoiceActivityEngine</name>
    <message>
        <source>another app is using the microphone</source>
        <extracomment>Stands in brackets in the middle of a sentence.</extracomment>
        <translation>ほかのアプリがマイクを使用中</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Stands in brackets in the middle of a sentence. %1: a meeting program.</extracomment>
        <translation>%1が起動中</translation>
    </message>
    <message>
        <source>The microphone may not be used.</source>
        <translation>マイクの使用が許可されていません。</translation>
    </message>
    <message>
        <source>The sound system does not answer.</source>
        <translation>サウンドシステムが応答しません。</translation>
    </message>
    <message>
        <source>No microphone is connected.</source>
        <translation>マイクが接続されていません。</translation>
    </message>
    <message>
        <source>No microphone is connected. Connect one, then turn Voice-Follow off and on.</source>
        <translation>マイクが接続されていません。接続してから、「音声に追従」をいったんオフにしてオンに戻してください。</translation>
    </message>
    <message>
        <source>The microphone “%1” is muted.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>マイク「%1」はミュートされています。</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone “%1”. Another program may keep it to itself.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>マイク「%1」から音が届きません。ほかのプログラムが独占している可能性があります。</translation>
    </message>
    <message>
        <source>The microphone could not be started.</source>
        <translation>マイクを開始できませんでした。</translation>
    </message>
    <message>
        <source>The microphone could not be started. Turn Voice-Follow off and on to try again.</source>
        <translation>マイクを開始できませんでした。「音声に追従」をいったんオフにしてオンに戻すと、もう一度試します。</translation>
    </message>
    <message>
        <source>Echo cancellation is on.</source>
        <translation>エコーキャンセルはオンです。</translation>
    </message>
    <message>
        <source>Echo cancellation is paused: %1.</source>
        <extracomment>%1: why, such as &quot;Zoom is open&quot;.</extracomment>
        <translation>エコーキャンセルは停止中：%1。</translation>
    </message>
    <message>
        <source>Echo cancellation is not available.</source>
        <translation>エコーキャンセルは利用できません。</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>The microphone that the desktop&apos;s settings choose.</extracomment>
        <translation>システムの設定どおり</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>%1（未接続）</translation>
    </message>
    <message>
        <source>Listening to “%1”.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>「%1」を聞いています。</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeScript</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Orvelloへようこそ</translation>
    </message>
    <message>
        <source>Welcome to Orvello. This is your private teleprompter.</source>
        <translation>Orvelloへようこそ。あなただけのテレプロンプターです。</translation>
    </message>
    <message>
        <source>Drag this panel anywhere — put it right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>このパネルは好きな場所に動かせます。カメラのすぐ下に置くと、視線が自然になります。大きさはどの端からでも変えられます。</translation>
    </message>
    <message>
        <source>Press %1P to start or pause scrolling. Use %1Up or Down to change the speed on the fly. Hover the mouse over this panel any time to pause instantly; move away and it resumes.</source>
        <extracomment>%1: the keys to hold, as in &quot;Option-Command-P&quot; or &quot;Alt+Super+P&quot;. Up and Down are the arrow keys.</extracomment>
        <translation>%1Pを押すと、スクロールが始まったり止まったりします。%1上矢印と%1下矢印で、途中でも速さを変えられます。ポインターをこのパネルに重ねるとすぐに止まり、離すとまた進みます。</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu bar and the script scrolls while you speak, then waits when you pause.</source>
        <translation>メニューバーで「音声に追従」をオンにすると、話している間は原稿が進み、止まると待ちます。</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu and the script scrolls while you speak, then waits when you pause. The menu opens from the tray, or with a right click on this panel.</source>
        <translation>メニューで「音声に追従」をオンにすると、話している間は原稿が進み、止まると待ちます。メニューはトレイから、またはこのパネルの右クリックで開きます。</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window is invisible to screen sharing, recordings, and screenshots. Your audience only sees your slides — never your notes.</source>
        <translation>ステルスモードがオンなら、このウインドウは画面共有、録画、スクリーンショットに映りません。聞き手に見えるのはスライドだけ。ノートは見えません。</translation>
    </message>
    <message>
        <source>Sharing your screen? Leave Stealth Mode alone while you share — toggling it mid-share can make your meeting app show a gray box where the prompter sits. Close and open Orvello again to clear it.</source>
        <translation>画面を共有しますか？共有中はステルスモードをそのままにしてください。途中で切り替えると、会議アプリがプロンプターの場所に灰色の四角を表示することがあります。その場合はOrvelloを閉じて開き直してください。</translation>
    </message>
    <message>
        <source>Sharing your screen? This desktop cannot hide a window, so whoever sees your whole screen sees this panel too. Share only the window of your slides, and keep this panel beside it: your audience then sees your slides, not your notes.</source>
        <translation>画面を共有しますか？このデスクトップはウインドウを隠せないため、画面全体を見る人にはこのパネルも見えます。スライドのウインドウだけを共有し、このパネルはその横に置いてください。聞き手に見えるのはスライドで、ノートではありません。</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window stays out of screen sharing, recordings, and screenshots as far as this system allows. Newer recorders may show it all the same: share only the window of your slides, and your audience never sees your notes.</source>
        <translation>ステルスモードがオンなら、このウインドウは、システムが許す範囲で画面共有、録画、スクリーンショットに映りません。新しい録画ソフトにはそれでも映ることがあります。スライドのウインドウだけを共有すれば、聞き手にノートは見えません。</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeTour</name>
    <message>
        <source>Zoom → Share Screen → &quot;your slides&apos; window&quot; (not &quot;Entire Screen&quot;)</source>
        <translation>Zoom → 画面の共有 →「スライドのウインドウ」（「画面全体」ではなく）</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &quot;Advanced capture with window filtering&quot; (or &quot;Previous operating systems&quot;)</source>
        <translation>Zoom → 設定 → 画面の共有 → 詳細 → 画面キャプチャモード →「ウインドウフィルタリングを使用した詳細キャプチャ」（または「以前のオペレーティングシステム」）</translation>
    </message>
</context>
<context>
    <name>OtherDeck</name>
    <message>
        <source>Keep these notes</source>
        <translation>このノートのままにする</translation>
    </message>
</context>
<context>
    <name>PrivacySettings</name>
    <message>
        <source>Privacy</source>
        <translation>プライバシー</translation>
    </message>
    <message>
        <source>Stealth Mode — hide from screen sharing, recordings &amp; screenshots</source>
        <translation>ステルスモード — 画面共有、録画、スクリーンショットから隠す</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window from screen sharing, recordings, or screenshots. There the prompter is visible, whether Stealth Mode is on or off.</source>
        <translation>このデスクトップは、画面共有、録画、スクリーンショットからウインドウを隠せません。ステルスモードのオン・オフにかかわらず、プロンプターは映ります。</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while staying fully visible to you.</source>
        <translation>共有の前からステルスモードがオンなら、プロンプターは画面共有、録画、スクリーンショット（Zoom、Meet、QuickTimeなど）に映りません。あなたにははっきり見えたままです。</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots — while staying fully visible to you.</source>
        <translation>共有の前からステルスモードがオンなら、プロンプターは画面共有、録画、スクリーンショットに映りません。あなたにははっきり見えたままです。</translation>
    </message>
    <message>
        <source>Stealth Mode takes effect on desktops that can keep a window out of screen sharing, recordings, and screenshots. With it on, the prompter&apos;s card says when this one cannot.</source>
        <translation>ステルスモードは、画面共有、録画、スクリーンショットからウインドウを外せるデスクトップで効きます。オンのとき、このデスクトップで効かなければ、プロンプターのカードにそう表示されます。</translation>
    </message>
    <message>
        <source>Leave Stealth Mode alone during a live share: toggling it mid-share can make the meeting app draw a gray box in its place (close and open Orvello again to clear it). For zero risk, share the presentation window instead of the whole screen.</source>
        <translation>共有中はステルスモードをそのままにしてください。切り替えると、会議アプリがその場所に灰色の四角を表示することがあります（Orvelloを閉じて開き直すと消えます）。リスクをなくすには、画面全体ではなくプレゼンテーションのウインドウを共有してください。</translation>
    </message>
    <message>
        <source>Share the presentation window instead of the whole screen, and keep the prompter beside it: some programs, recorders above all, capture the place of a window with everything that is in front of it.</source>
        <translation>画面全体ではなくプレゼンテーションのウインドウを共有し、プロンプターはその横に置いてください。一部のプログラム、特に録画ソフトは、ウインドウの位置をその前にあるものごと記録します。</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter stays out of screen sharing, recordings, and screenshots as far as this system allows — while staying fully visible to you. Newer recorders may show it all the same: try yours before you rely on it.</source>
        <translation>共有の前からステルスモードがオンなら、プロンプターは、システムが許す範囲で画面共有、録画、スクリーンショットに映りません。あなたにははっきり見えたままです。新しい録画ソフトにはそれでも映ることがあります。頼りにする前に、お使いのソフトで試してください。</translation>
    </message>
</context>
<context>
    <name>PrompterSettings</name>
    <message>
        <source>Prompter</source>
        <translation>プロンプター</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>文字の色</translation>
    </message>
    <message>
        <source>The opacity has no effect at the moment: windows can be translucent only while the desktop runs a compositor.</source>
        <extracomment>A compositor is the part of a Linux desktop that makes windows translucent.</extracomment>
        <translation>不透明度は現在効きません。ウインドウが半透明になるのは、デスクトップでコンポジターが動作している間だけです。</translation>
    </message>
</context>
<context>
    <name>PrompterView</name>
    <message>
        <source>Prompter</source>
        <translation>プロンプター</translation>
    </message>
    <message>
        <source>DEBUG — VISIBLE IN RECORDINGS</source>
        <extracomment>On the card, at most about 40 characters: others can see the prompter.</extracomment>
        <translation>デバッグ — 録画に映ります</translation>
    </message>
    <message>
        <source>VISIBLE IN RECORDINGS</source>
        <translation>録画に映ります</translation>
    </message>
</context>
<context>
    <name>ReadingSettings</name>
    <message>
        <source>Reading</source>
        <translation>読む速さ</translation>
    </message>
    <message>
        <source>Characters a minute</source>
        <translation>毎分の文字数</translation>
    </message>
    <message>
        <source>Words a minute</source>
        <translation>毎分の語数</translation>
    </message>
    <message>
        <source>Keep my pace with another text, size or width</source>
        <translation>文章・文字サイズ・幅が変わっても速さを保つ</translation>
    </message>
    <message>
        <source>Time on the prompter</source>
        <translation>プロンプターの時間表示</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>残り</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>経過</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>両方</translation>
    </message>
</context>
<context>
    <name>RecordingBadge</name>
    <message>
        <source>Show the badge in full</source>
        <extracomment>Read aloud: the button makes the words &quot;VISIBLE IN RECORDINGS&quot; on the card a small eye, or words again.</extracomment>
        <translation>表示を全文に戻す</translation>
    </message>
    <message>
        <source>Fold the badge to an eye</source>
        <translation>表示を目のアイコンにたたむ</translation>
    </message>
</context>
<context>
    <name>ScriptRow</name>
    <message>
        <source>%2, %1</source>
        <extracomment>Read aloud. %2: a script&apos;s title, which goes in last, as it may hold a &quot;%1&quot;; %1: how many slides, as in &quot;4 slides&quot;.</extracomment>
        <translation>%2、%1</translation>
    </message>
</context>
<context>
    <name>ScriptSidebar</name>
    <message>
        <source>Scripts</source>
        <translation>原稿</translation>
    </message>
    <message>
        <source>New script</source>
        <translation>新しい原稿</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search titles and texts</source>
        <translation>タイトルと本文を検索</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Export All…</source>
        <extracomment>All scripts of the list, into one file.</extracomment>
        <translation>すべて書き出す…</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <extracomment>Where the list of scripts is, when none has what is searched for.</extracomment>
        <translation>見つかりません</translation>
    </message>
</context>
<context>
    <name>SessionSettings</name>
    <message>
        <source>Session</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Countdown before start</source>
        <translation>開始前のカウントダウン</translation>
    </message>
    <message>
        <source>Press P to pause during a slideshow</source>
        <translation>スライドショー中はPで一時停止</translation>
    </message>
    <message>
        <source>While a %1 slideshow is on-screen (where the cursor is hidden, so hover-to-pause can&apos;t work), a plain P pauses or resumes. It&apos;s active only during the slideshow, so it won&apos;t interfere with typing elsewhere. %2 always works too.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;; %2: keys, as in &quot;⌥⌘P&quot;.</extracomment>
        <translation>%1のスライドショーが画面に出ている間は（ポインターが隠れていて重ねて止められないため）、Pキーだけで一時停止と再開ができます。スライドショー中だけ有効なので、ほかでの入力の邪魔になりません。%2はいつでも使えます。</translation>
    </message>
</context>
<context>
    <name>SettingsShortcut</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Read aloud. %1: what the keys do; %2: the keys.</extracomment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>ShareNotice</name>
    <message>
        <source>Toggling Stealth Mode during a screen share can gray out this prompter — close and open Orvello again to clear it.</source>
        <translation>画面共有中にステルスモードを切り替えると、プロンプターが灰色になることがあります。Orvelloを閉じて開き直すと直ります。</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Stealth Mode has no effect on this desktop — whoever sees your screen sees this prompter, too.</source>
        <translation>このデスクトップではステルスモードは効きません。画面を見ている人にはこのプロンプターも見えます。</translation>
    </message>
</context>
<context>
    <name>ShortcutSettings</name>
    <message>
        <source>Keyboard shortcuts (global)</source>
        <translation>キーボードショートカット（どこでも有効）</translation>
    </message>
    <message>
        <source>Other keys</source>
        <translation>ほかのキー</translation>
    </message>
    <message>
        <source>Change Shortcuts…</source>
        <translation>ショートカットを変更…</translation>
    </message>
</context>
<context>
    <name>SlideChip</name>
    <message>
        <source>Slide %1</source>
        <extracomment>Read aloud. %1: which slide of how many, as in &quot;2 / 14&quot;.</extracomment>
        <translation>スライド %1</translation>
    </message>
    <message>
        <source>%2, %1</source>
        <extracomment>Read aloud. %2: the slide&apos;s title, which goes in last, as it may hold a &quot;%1&quot;; %1: who turns the slides, as in &quot;Live&quot;.</extracomment>
        <translation>%2、%1</translation>
    </message>
    <message>
        <source>Previous slide</source>
        <translation>前のスライド</translation>
    </message>
    <message>
        <source>Next slide</source>
        <translation>次のスライド</translation>
    </message>
</context>
<context>
    <name>SlidesSettings</name>
    <message>
        <source>Slides</source>
        <translation>スライド</translation>
    </message>
    <message>
        <source>Slide Tracking — notes follow the live slideshow</source>
        <translation>スライドに追従 — ノートがスライドショーに合わせて変わります</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. The first time, macOS asks to let Orvello control that app — that&apos;s the sync. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>プレゼンテーションを読み込み（「原稿」→ 読み込みボタン）、「スライドに追従」をオンにすると、プロンプターは今のスライドの発表者ノートを表示し、%1でスライドを進めると自動的に切り替わります。初回はmacOSが、Orvelloによるそのアプリの制御を許可するか尋ねます。これが連動のしくみです。オフにすると、全体をひとつの原稿としてスクロールします。</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: a presentation program.</extracomment>
        <translation>プレゼンテーションを読み込み（「原稿」→ 読み込みボタン）、「スライドに追従」をオンにすると、プロンプターは今のスライドの発表者ノートを表示し、%1でスライドを進めると自動的に切り替わります。オフにすると、全体をひとつの原稿としてスクロールします。</translation>
    </message>
    <message>
        <source>If sync shows &quot;No access&quot;: System Settings → Privacy &amp; Security → Automation → Orvello → allow %1, then toggle Slide Tracking off and on.</source>
        <extracomment>The words in quotation marks are those of the card. %1: presentation programs.</extracomment>
        <translation>「許可なし」と表示されたら、「システム設定」→「プライバシーとセキュリティ」→「オートメーション」→ Orvello で%1を許可し、「スライドに追従」をいったんオフにしてオンに戻してください。</translation>
    </message>
    <message>
        <source>Orvello may not follow Impress</source>
        <translation>Orvello は Impress に追従できません</translation>
    </message>
    <message>
        <source>Orvello may follow Impress</source>
        <translation>Orvello は Impress に追従できます</translation>
    </message>
    <message>
        <source>Orvello may follow Impress, but could not</source>
        <translation>Orvello は Impress への追従を許可されていますが、できませんでした</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>許可</translation>
    </message>
</context>
<context>
    <name>StatusBadge</name>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Reading time</source>
        <translation>読み上げ時間</translation>
    </message>
</context>
<context>
    <name>TourCloseButton</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>TourCopyButton</name>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>パスをコピー</translation>
    </message>
</context>
<context>
    <name>TourDots</name>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>Read aloud. %1: a page of the tour; %2: how many there are.</extracomment>
        <translation>%1 / %2 ページ</translation>
    </message>
</context>
<context>
    <name>TourFeature</name>
    <message>
        <source>%1. %2</source>
        <extracomment>Read aloud, two sentences. %1: a title; %2: a text.</extracomment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>TourFooter</name>
    <message>
        <source>Skip tour</source>
        <translation>ツアーをスキップ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Open my prompter</source>
        <translation>プロンプターを開く</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
</context>
<context>
    <name>TourKeyRow</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Read aloud. %1: keys; %2: what they do.</extracomment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>TourPrivacyPage</name>
    <message>
        <source>One rule keeps your notes off the recording: share a window, never the whole screen.</source>
        <translation>ノートを録画に残さない決まりはひとつ。ウインドウを共有し、画面全体は決して共有しないことです。</translation>
    </message>
    <message>
        <source>One rule and one safety net keep your notes off the recording.</source>
        <translation>ひとつの決まりとひとつの安全策が、ノートを録画から守ります。</translation>
    </message>
    <message>
        <source>One rule, one safety net, and one Zoom setting keep your notes off the recording.</source>
        <translation>ひとつの決まりと、ひとつの安全策と、Zoomの設定ひとつが、ノートを録画から守ります。</translation>
    </message>
    <message>
        <source>Stealth Mode is on by default</source>
        <translation>ステルスモードは初めからオンです</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window</source>
        <translation>このデスクトップはウインドウを隠せません</translation>
    </message>
    <message>
        <source>No app can keep its window out of screen captures here, so Stealth Mode has no effect. The prompter says so on its card: whoever sees your whole screen sees it too.</source>
        <translation>ここではどのアプリも自分のウインドウを画面の取り込みから外せないため、ステルスモードは効きません。プロンプターのカードにもそう表示されます。画面全体を見る人にはプロンプターも見えます。</translation>
    </message>
    <message>
        <source>Turn it on before you share and leave it alone. Toggling it mid-share can make your meeting app draw a gray box where the prompter sits — close and reopen Orvello to clear it.</source>
        <translation>共有の前にオンにして、そのままにしてください。共有中に切り替えると、会議アプリがプロンプターの場所に灰色の四角を表示することがあります。その場合はOrvelloを閉じて開き直してください。</translation>
    </message>
    <message>
        <source>Want zero risk? Share just the window</source>
        <translation>リスクをなくすには、ウインドウだけを共有</translation>
    </message>
    <message>
        <source>Full-screen sharing works with Stealth Mode on. Sharing only the %1 window takes the risk to zero — a window share can never include the prompter.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>ステルスモードがオンなら画面全体の共有もできます。%1のウインドウだけを共有すれば、リスクはなくなります。ウインドウの共有にプロンプターが入ることはありません。</translation>
    </message>
    <message>
        <source>Share just the window</source>
        <translation>ウインドウだけを共有</translation>
    </message>
    <message>
        <source>In your meeting app, choose the window of your slides instead of the entire screen, and keep the prompter beside it: some recorders capture the window&apos;s place with everything in front of it.</source>
        <translation>ミーティングアプリでは画面全体ではなくスライドのウインドウを選び、プロンプターはその横に置いてください。一部のプログラム、特に録画ソフトは、ウインドウの位置をその前にあるものごと記録します。</translation>
    </message>
    <message>
        <source>One rule: share a window, never the whole screen.</source>
        <translation>ルールは一つ:画面全体ではなく、ウインドウを共有します。</translation>
    </message>
    <message>
        <source>A share of the full screen may show the prompter here. Sharing only the %1 window takes the risk to zero — a window share can never include it.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>画面全体を共有すると、ここではプロンプターが映ることがあります。%1のウインドウだけを共有すれば危険はゼロです。ウインドウの共有に映り込むことはありません。</translation>
    </message>
</context>
<context>
    <name>TourSetupPage</name>
    <message>
        <source>You&apos;re set. Here&apos;s where things are.</source>
        <translation>準備ができました。使い方はこちらです。</translation>
    </message>
    <message>
        <source>Drag the prompter right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>プロンプターをカメラのすぐ下に動かすと、視線が自然になります。大きさはどの端からでも変えられます。</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Pause during a slideshow</source>
        <translation>スライドショー中の一時停止</translation>
    </message>
    <message>
        <source>Hover</source>
        <extracomment>Instead of a key: the pointer rests on the prompter.</extracomment>
        <translation>ポインターを重ねる</translation>
    </message>
    <message>
        <source>Pause instantly</source>
        <translation>すぐに一時停止</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>メニューバー</translation>
    </message>
    <message>
        <source>Tray menu</source>
        <translation>トレイのメニュー</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour.</source>
        <translation>… ほかに、話す内容を書いたり読み込んだりする「原稿」、設定、このツアー。</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour. Without a tray, right-click the prompter.</source>
        <translation>… ほかに、話す内容を書いたり読み込んだりする「原稿」、設定、このツアー。トレイがないときは、プロンプターを右クリックします。</translation>
    </message>
</context>
<context>
    <name>TourVoiceTest</name>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>自分の声に合う感度を調べる</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>マイクのレベル</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>テスト</translation>
    </message>
</context>
<context>
    <name>TourWelcomePage</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>Orvelloへようこそ</translation>
    </message>
    <message>
        <source>Your private teleprompter. Your audience sees your slides — never your notes.</source>
        <translation>あなただけのテレプロンプター。聞き手に見えるのはスライドだけ。ノートは見えません。</translation>
    </message>
    <message>
        <source>Invisible on screen shares</source>
        <translation>画面共有に映りません</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots — while you see it perfectly.</source>
        <translation>ステルスモードは、Zoom、Meet、Teams、録画、スクリーンショットからプロンプターを隠します。あなたにははっきり見えたままです。</translation>
    </message>
    <message>
        <source>Follows your voice</source>
        <translation>声に合わせて進みます</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — nothing is recorded or uploaded.</source>
        <translation>話すと進み、止まると待ちます。音声はこのMacの中だけで調べられ、録音も送信もされません。</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this computer only — nothing is recorded or uploaded.</source>
        <translation>話すと進み、止まると待ちます。音声はこのコンピューターの中だけで調べられ、録音も送信もされません。</translation>
    </message>
    <message>
        <source>Follows your slides</source>
        <translation>スライドに合わせて進みます</translation>
    </message>
    <message>
        <source>Import a .pptx or an open %1 deck and the speaker notes flip with your slideshow.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>.pptxファイルか、%1で開いているプレゼンテーションを読み込むと、スライドに合わせてノートが切り替わります。</translation>
    </message>
    <message>
        <source>Share a window in Zoom, Meet or Teams, keep the prompter beside it, and only you see it. In a share of the whole screen, this desktop shows it to everyone.</source>
        <translation>Zoom、Meet、Teamsではウインドウを共有し、プロンプターをその横に置けば、見えるのはあなただけです。画面全体を共有すると、このデスクトップでは全員に表示されます。</translation>
    </message>
    <message>
        <source>Your private teleprompter. Share your slides&apos; window alone, keep the prompter beside it, and your notes are yours.</source>
        <translation>あなただけのテレプロンプター。スライドのウインドウだけを共有し、プロンプターを横に置けば、ノートはあなただけのもの。</translation>
    </message>
    <message>
        <source>Beside the window that you share</source>
        <translation>共有するウインドウの横に</translation>
    </message>
    <message>
        <source>Hidden where the system allows</source>
        <translation>システムが許す範囲で隠れます</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter as far as this system allows. Newer recorders may show it all the same: try yours first.</source>
        <translation>ステルスモードは、このシステムが許す範囲でプロンプターを隠します。新しい録画ソフトには映ることがあるので、先にお試しください。</translation>
    </message>
</context>
<context>
    <name>TourZoomCard</name>
    <message>
        <source>Using Zoom? Set this once</source>
        <translation>Zoomをお使いなら、一度だけ設定を</translation>
    </message>
    <message>
        <source>Using Zoom? Share a window</source>
        <translation>Zoomをお使いなら、ウインドウの共有を</translation>
    </message>
    <message>
        <source>No setting of Zoom hides the prompter here: a share of the entire screen shows your notes.</source>
        <translation>ここではZoomのどの設定もプロンプターを隠しません。画面全体の共有ではノートが見えます。</translation>
    </message>
    <message>
        <source>Zoom&apos;s default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes.</source>
        <translation>Zoomの既定の「自動」はたいてい大丈夫ですが、取り込みの方法を毎回選ぶため、その中のひとつではノートが見えることがあります。</translation>
    </message>
    <message>
        <source>Zoom → Share Screen → &lt;b&gt;your slides&apos; window&lt;/b&gt; (not Entire Screen).</source>
        <extracomment>The words between &lt;b&gt; and &lt;/b&gt; are shown in bold.</extracomment>
        <translation>Zoom → 画面の共有 → &lt;b&gt;スライドのウインドウ&lt;/b&gt;（画面全体ではなく）。</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &lt;b&gt;Advanced capture with window filtering&lt;/b&gt; (or Previous operating systems).</source>
        <translation>Zoom → 設定 → 画面の共有 → 詳細 → 画面キャプチャモード → &lt;b&gt;ウインドウフィルタリングを使用した詳細キャプチャ&lt;/b&gt;（または「以前のオペレーティングシステム」）。</translation>
    </message>
</context>
<context>
    <name>UpdateQuestion</name>
    <message>
        <source>Update</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Add Once More</source>
        <extracomment>A button: the notes of a presentation are added as one more script.</extracomment>
        <translation>もう一度追加</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>UpdateSettings</name>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation>アップデートを自動的に確認（一日に一度）</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your computer beyond the app version. Orvello installs nothing by itself: if you want the new version, it opens the download page.</source>
        <translation>確認では、提供元のウェブサイトに最新のバージョンを問い合わせるだけで、アプリのバージョン以外、あなたやコンピューターについては何も送りません。Orvelloが自分で何かをインストールすることはなく、新しいバージョンが必要なときはダウンロードページを開きます。</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your Mac beyond the app version. Updates are signed, and you always confirm before one installs.</source>
        <translation>確認では、提供元のウェブサイトに最新のバージョンを問い合わせるだけで、アプリのバージョン以外、あなたやMacについては何も送りません。アップデートは署名されていて、インストールの前に必ず確認があります。</translation>
    </message>
    <message>
        <source>Orvello %1 — not checked yet</source>
        <translation>Orvello %1 — 未確認</translation>
    </message>
    <message>
        <source>Orvello %1 — last checked %2</source>
        <extracomment>%1: the version; %2: a date and a time.</extracomment>
        <translation>Orvello %1 — 最終確認 %2</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>今すぐ確認</translation>
    </message>
    <message>
        <source>This Orvello was built without the address of an update feed, so it cannot look for updates. Whoever you got it from has newer versions.</source>
        <translation>このOrvelloはアップデート配信先のアドレスなしでビルドされているため、アップデートを確認できません。新しいバージョンは入手元にあります。</translation>
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
        <translation>音声に追従</translation>
    </message>
    <message>
        <source>Scroll while I speak, pause when I pause</source>
        <translation>話すとスクロールし、止まると待つ</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>マイクのレベル</translation>
    </message>
    <message>
        <source>Microphone access is denied. Allow it in your desktop&apos;s privacy settings, then toggle voice-follow again.</source>
        <translation>マイクへのアクセスが拒否されています。デスクトップのプライバシー設定で許可してから、「音声に追従」をいったんオフにしてオンに戻してください。</translation>
    </message>
    <message>
        <source>Microphone access is denied. Enable it in System Settings → Privacy &amp; Security → Microphone, then toggle voice-follow again.</source>
        <translation>マイクへのアクセスが拒否されています。「システム設定」→「プライバシーとセキュリティ」→「マイク」で許可してから、「音声に追従」をいったんオフにしてオンに戻してください。</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this Mac won&apos;t move the prompter.</source>
        <translation>エコーキャンセル：オン — このMacで再生される音ではプロンプターは動きません。</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this computer won&apos;t move the prompter.</source>
        <translation>エコーキャンセル：オン — このコンピューターで再生される音ではプロンプターは動きません。</translation>
    </message>
    <message>
        <source>Echo cancellation: paused (%1) so your voice keeps working in calls. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <extracomment>%1: why, such as &quot;another app is using the microphone&quot; or &quot;Zoom is open&quot;.</extracomment>
        <translation>エコーキャンセル：停止中（%1）。通話中もあなたの声で動かせるようにするためです。スピーカーでは相手の大きな声でプロンプターが動くことがありますが、ヘッドフォンなら動きません。</translation>
    </message>
    <message>
        <source>Audio is analyzed on-device for loudness only. Nothing is recorded, recognized, or uploaded.</source>
        <translation>音声は機器の中で音量だけを調べます。録音も認識も送信もされません。</translation>
    </message>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>自分の声に合う感度を調べる</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>テスト</translation>
    </message>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>5秒間、ふだんどおりに話してください。</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>Echo cancellation: not available. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <translation>エコーキャンセル：利用できません。スピーカーでは相手の大きな声でプロンプターが動くことがありますが、ヘッドフォンなら動きません。</translation>
    </message>
</context>
</TS>
