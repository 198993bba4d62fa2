<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Countdown</name>
    <message>
        <source>Countdown</source>
        <translation>倒计时</translation>
    </message>
</context>
<context>
    <name>DeletedScripts</name>
    <message>
        <source>Recently deleted</source>
        <translation>最近删除</translation>
    </message>
    <message>
        <source>Deleted scripts are kept for 30 days.</source>
        <translation>删除的讲稿会保留 30 天。</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>恢复“%1”</translation>
    </message>
</context>
<context>
    <name>EditorPage</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Speaker notes</source>
        <translation>演讲者备注</translation>
    </message>
    <message>
        <source>Script text</source>
        <translation>讲稿正文</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your Mac</source>
        <translation>显示在提词器中 · 自动保存在本机，任何内容都不会离开你的 Mac</translation>
    </message>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your computer</source>
        <translation>显示在提词器中 · 自动保存在本机，任何内容都不会离开你的电脑</translation>
    </message>
    <message>
        <source>Start Here</source>
        <extracomment>The prompter begins with the line that the cursor is on.</extracomment>
        <translation>从这里开始</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>拷贝</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>ImportMenu</name>
    <message>
        <source>Import speaker notes from a deck</source>
        <translation>从演示文稿导入演讲者备注</translation>
    </message>
</context>
<context>
    <name>LibraryAlert</name>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
</context>
<context>
    <name>LibraryView</name>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Orvello::AppDelegate</name>
    <message>
        <source>%1 counts only at the launch: quit the Orvello that runs first</source>
        <translation>%1 只在启动时有效：请先退出正在运行的 Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::Appcast</name>
    <message>
        <source>It declares a document type.</source>
        <translation>它声明了文档类型。</translation>
    </message>
    <message>
        <source>It is no RSS feed.</source>
        <translation>它不是 RSS 源。</translation>
    </message>
</context>
<context>
    <name>Orvello::AppcastUpdater</name>
    <message>
        <source>There is no valid update feed.</source>
        <translation>没有有效的更新源。</translation>
    </message>
    <message>
        <source>The update feed is not secure.</source>
        <translation>更新源不安全。</translation>
    </message>
    <message>
        <source>The update feed cannot be read: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>无法读取更新源：%1</translation>
    </message>
    <message>
        <source>The update feed makes no sense: %1</source>
        <extracomment>%1: why, as a sentence.</extracomment>
        <translation>无法理解更新源：%1</translation>
    </message>
    <message>
        <source>The download page cannot be opened.</source>
        <translation>无法打开下载页面。</translation>
    </message>
    <message>
        <source>Orvello is up to date.</source>
        <translation>Orvello 已是最新版本。</translation>
    </message>
</context>
<context>
    <name>Orvello::AppleScriptPresenters</name>
    <message>
        <source>permission denied — allow Orvello to control %1 in System Settings → Privacy &amp; Security → Automation</source>
        <extracomment>Follows &quot;Couldn&apos;t read the presentation:&quot;. %1: a presentation program.</extracomment>
        <translation>权限被拒绝——请在“系统设置”→“隐私与安全性”→“自动化”中允许 Orvello 控制 %1</translation>
    </message>
    <message>
        <source>presenter notes</source>
        <translation>演讲者备注</translation>
    </message>
    <message>
        <source>speaker notes</source>
        <translation>演讲者备注</translation>
    </message>
</context>
<context>
    <name>Orvello::BusInstance</name>
    <message>
        <source>Orvello is running already, but does not answer.</source>
        <translation>Orvello 已在运行，但没有响应。</translation>
    </message>
    <message>
        <source>Orvello is running already, but cannot be asked for anything: the two do not share a session bus.</source>
        <translation>Orvello 已在运行，但无法向它发出请求：两者不共用会话总线。</translation>
    </message>
</context>
<context>
    <name>Orvello::Commands</name>
    <message>
        <source>Start Scrolling</source>
        <translation>开始滚动</translation>
    </message>
    <message>
        <source>Pause Scrolling</source>
        <translation>暂停滚动</translation>
    </message>
    <message>
        <source>Start / pause scrolling</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>开始 / 暂停滚动</translation>
    </message>
    <message>
        <source>Start / pause</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>开始 / 暂停</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>加快</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>减慢</translation>
    </message>
    <message>
        <source>Back to Top</source>
        <extracomment>In a menu: scrolls back to the beginning of the script.</extracomment>
        <translation>回到开头</translation>
    </message>
    <message>
        <source>Back to top</source>
        <extracomment>What a key does: it scrolls back to the beginning of the script.</extracomment>
        <translation>回到开头</translation>
    </message>
    <message>
        <source>Show Prompter</source>
        <translation>显示提词器</translation>
    </message>
    <message>
        <source>Hide Prompter</source>
        <translation>隐藏提词器</translation>
    </message>
    <message>
        <source>Show / hide prompter</source>
        <extracomment>What a key does, in a list of keys.</extracomment>
        <translation>显示 / 隐藏提词器</translation>
    </message>
    <message>
        <source>Show / hide</source>
        <extracomment>What a key does, in a narrow list of keys: at most about 20 characters.</extracomment>
        <translation>显示 / 隐藏</translation>
    </message>
    <message>
        <source>Voice-Follow Scrolling</source>
        <extracomment>A mode: the text scrolls while the user speaks.</extracomment>
        <translation>语音跟随</translation>
    </message>
    <message>
        <source>Slide Tracking</source>
        <extracomment>A mode: the notes follow the slides of a running slideshow.</extracomment>
        <translation>幻灯片跟踪</translation>
    </message>
    <message>
        <source>Stealth Mode</source>
        <extracomment>A mode: the prompter is hidden from screen sharing and recordings.</extracomment>
        <translation>隐身模式</translation>
    </message>
    <message>
        <source>Scripts…</source>
        <translation>讲稿…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Welcome Tour…</source>
        <translation>欢迎导览…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Contact Support…</source>
        <translation>联系支持…</translation>
    </message>
    <message>
        <source>Reveal Log Files</source>
        <translation>显示日志文件</translation>
    </message>
    <message>
        <source>Quit Orvello</source>
        <translation>退出 Orvello</translation>
    </message>
    <message>
        <source>%1  (%2)</source>
        <extracomment>A line of a menu with two blanks in it. %1: its text; %2: its key, such as &quot;⌥⌘P&quot;.</extracomment>
        <translation>%1  (%2)</translation>
    </message>
    <message>
        <source>Start or pause scrolling</source>
        <translation>开始或暂停滚动</translation>
    </message>
    <message>
        <source>Scroll faster</source>
        <translation>加快滚动</translation>
    </message>
    <message>
        <source>Scroll more slowly</source>
        <translation>减慢滚动</translation>
    </message>
    <message>
        <source>Go back to the top of the script</source>
        <translation>回到讲稿开头</translation>
    </message>
    <message>
        <source>Show or hide the prompter</source>
        <translation>显示或隐藏提词器</translation>
    </message>
    <message>
        <source>Put Under the Camera</source>
        <extracomment>In a menu: moves the prompter to the top of the screen that the pointer is on.</extracomment>
        <translation>移到摄像头下方</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckController</name>
    <message>
        <source>(No speaker notes on this slide)</source>
        <translation>（这张幻灯片没有演讲者备注）</translation>
    </message>
    <message>
        <source>(Another presentation is on screen)</source>
        <translation>（屏幕上是另一份演示文稿）</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckFileBar</name>
    <message>
        <source>Up to date with “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>已与“%1”保持一致。</translation>
    </message>
    <message>
        <source>“%1” is not there any more. The notes stay as they were.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>“%1”已不在原处。备注保持不变。</translation>
    </message>
    <message>
        <source>“%1” has changed: the notes of slides %2 are no longer in it. An update keeps this version among the deleted scripts.</source>
        <extracomment>%1: the name of a file; %2: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>“%1”已更改：其中不再有幻灯片 %2 的备注。更新时，此版本会保留在已删除的讲稿中。</translation>
    </message>
    <message>
        <source>“%1” has changed, but cannot be read: %2</source>
        <extracomment>%1: the name of a file; %2: why, as a sentence.</extracomment>
        <translation>“%1”已更改，但无法读取：%2</translation>
    </message>
    <message>
        <source>Update from File…</source>
        <extracomment>A button: the notes are taken from their presentation&apos;s file once more.</extracomment>
        <translation>从文件更新…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Choose the presentation that these notes are from.</source>
        <translation>请选择这些备注所属的演示文稿。</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImportError</name>
    <message>
        <source>%1 isn&apos;t running. Open your presentation in %1 first.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>%1 没有运行。请先在 %1 中打开演示文稿。</translation>
    </message>
    <message>
        <source>No presentation is open in %1.</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>%1 中没有打开的演示文稿。</translation>
    </message>
    <message>
        <source>That %1 presentation has no %2 on any slide.</source>
        <extracomment>%1: a presentation program; %2: what it calls the notes, such as &quot;speaker notes&quot;.</extracomment>
        <translation>该 %1 演示文稿的所有幻灯片都没有%2。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the %1 presentation: %2</source>
        <extracomment>%1: a presentation program; %2: why, a sentence or a part of one.</extracomment>
        <translation>无法读取 %1 演示文稿：%2</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImports</name>
    <message>
        <source>PowerPoint file (.pptx)…</source>
        <translation>PowerPoint 文件 (.pptx)…</translation>
    </message>
    <message>
        <source>Open %1 presentation</source>
        <extracomment>An item of a menu. %1: a presentation program, such as Keynote.</extracomment>
        <translation>在 %1 中打开的演示文稿</translation>
    </message>
    <message>
        <source>Choose a PowerPoint presentation — Orvello imports its speaker notes.</source>
        <translation>选择一个 PowerPoint 演示文稿——Orvello 会导入其中的演讲者备注。</translation>
    </message>
    <message>
        <source>Import failed</source>
        <translation>导入失败</translation>
    </message>
    <message>
        <source>No speaker notes</source>
        <translation>没有演讲者备注</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in PowerPoint&apos;s notes pane and re-import.</source>
        <translation>演示文稿已导入，但没有一张幻灯片有备注。请在 PowerPoint 的备注窗格中添加备注，然后重新导入。</translation>
    </message>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in your presentation program&apos;s notes pane and re-import.</source>
        <translation>演示文稿已导入，但没有一张幻灯片有备注。请在演示程序的备注窗格中添加备注，然后重新导入。</translation>
    </message>
    <message>
        <source>Imported the saved copy</source>
        <translation>已导入保存的副本</translation>
    </message>
    <message>
        <source>PowerPoint has unsaved changes, so the notes came from the last saved copy. Save the presentation and import again to include them.</source>
        <translation>PowerPoint 中有未保存的更改，因此备注来自上次保存的副本。请保存演示文稿并重新导入，以包含这些更改。</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>Not all notes were imported</source>
        <translation>并非所有备注都已导入</translation>
    </message>
    <message>
        <source>The file holds more than Orvello reads: the notes of slides %1 could not be read.</source>
        <extracomment>%1: numbers of slides, as in &quot;3, 257–300&quot;.</extracomment>
        <translation>该文件超出了 Orvello 的读取上限：无法读取幻灯片 %1 的备注。</translation>
    </message>
    <message>
        <source>Presentation file (.pptx, .odp)…</source>
        <translation>演示文稿文件 (.pptx、.odp)…</translation>
    </message>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>正在读取 %1 中打开的内容…</translation>
    </message>
    <message>
        <source>Choose a presentation — Orvello imports its speaker notes.</source>
        <translation>选择一个演示文稿，Orvello 将导入其演讲者备注。</translation>
    </message>
    <message>
        <source>Not a presentation</source>
        <translation>不是演示文稿</translation>
    </message>
    <message>
        <source>Orvello imports speaker notes from presentations (.pptx, .odp). It cannot read %1.</source>
        <extracomment>%1: the names of files.</extracomment>
        <translation>Orvello 可从 演示文稿（.pptx、.odp）导入演讲者备注，无法读取 %1。</translation>
    </message>
    <message>
        <source>The notes of “%1” are among your scripts already. Update them, or add them once more?</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>“%1”的备注已经在您的讲稿中。要更新它们，还是再添加一次？</translation>
    </message>
</context>
<context>
    <name>Orvello::DeletedScriptsModel</name>
    <message>
        <source>Deleted %1</source>
        <extracomment>%1: a date.</extracomment>
        <translation>删除于 %1</translation>
    </message>
</context>
<context>
    <name>Orvello::Facts</name>
    <message>
        <source>Keynote or PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>Keynote 或 PowerPoint</translation>
    </message>
    <message>
        <source>Keynote or Microsoft PowerPoint</source>
        <extracomment>Stands where other texts say which presentation programs they mean.</extracomment>
        <translation>Keynote 或 Microsoft PowerPoint</translation>
    </message>
</context>
<context>
    <name>Orvello::FeedLoader</name>
    <message>
        <source>The server did not answer in time.</source>
        <translation>服务器没有及时响应。</translation>
    </message>
    <message>
        <source>The server redirects to an insecure address.</source>
        <translation>服务器重定向到了不安全的地址。</translation>
    </message>
    <message>
        <source>The document is too large.</source>
        <translation>文档太大。</translation>
    </message>
    <message>
        <source>The server answers with status %1.</source>
        <translation>服务器返回状态 %1。</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressAdviceDialog</name>
    <message>
        <source>Let Orvello follow your Impress presentations?</source>
        <translation>允许 Orvello 跟随你的 Impress 演示文稿吗？</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>暂不</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <source>While an Impress slideshow runs, and while you import an open presentation, Orvello has LibreOffice listen on a connection that gives control of all of LibreOffice, and uses it to read slide numbers, titles and notes. Only programs of your user account could reach it, Orvello takes its name away as soon as it is connected, and the connection ends with the slideshow or the import.</source>
        <translation>在 Impress 幻灯片放映期间以及您导入已打开的演示文稿时，Orvello 会让 LibreOffice 监听一个可控制整个 LibreOffice 的连接，并用它读取幻灯片编号、标题和备注。只有您的用户帐户下的程序才能访问该连接，Orvello 连接后会立即移除其名称，连接随放映或导入的结束而结束。</translation>
    </message>
    <message>
        <source>Orvello may now follow Impress. Start the slideshow or the import again.

The settings have a button that takes this back.</source>
        <translation>Orvello 现在可以跟随 Impress。请重新开始放映或导入。

设置中有一个按钮可以收回此许可。</translation>
    </message>
</context>
<context>
    <name>Orvello::ImpressPresenter</name>
    <message>
        <source>notes</source>
        <extracomment>What Impress calls a speaker&apos;s notes.</extracomment>
        <translation>备注</translation>
    </message>
    <message>
        <source>To follow Impress, Orvello needs the package python3-uno. Install it and try again.</source>
        <translation>要跟随 Impress，Orvello 需要软件包 python3-uno。请安装后重试。</translation>
    </message>
    <message>
        <source>LibreOffice isn&apos;t running.</source>
        <translation>LibreOffice 未在运行。</translation>
    </message>
    <message>
        <source>LibreOffice did not answer.</source>
        <translation>LibreOffice 没有响应。</translation>
    </message>
    <message>
        <source>permission denied — Orvello asks LibreOffice only once you allow it</source>
        <extracomment>Follows &quot;Couldn&apos;t read the Impress presentation:&quot;.</extracomment>
        <translation>权限被拒绝 — 只有在您允许后，Orvello 才会询问 LibreOffice</translation>
    </message>
    <message>
        <source>This LibreOffice runs in a sandbox (%1) that Orvello cannot reach. Import the presentation&apos;s file instead, and step through the slides by hand.</source>
        <extracomment>%1: a kind of package, such as Flatpak or Snap.</extracomment>
        <translation>此 LibreOffice 在 Orvello 无法访问的沙盒 (%1) 中运行。请改为导入演示文稿文件，并手动切换幻灯片。</translation>
    </message>
</context>
<context>
    <name>Orvello::LaunchOptions</name>
    <message>
        <source>unknown option %1; did you mean %2?</source>
        <translation>未知选项 %1；你是想用 %2 吗？</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>未知选项 %1</translation>
    </message>
    <message>
        <source>%1 is neither an option nor a preference with a value</source>
        <translation>%1 既不是选项，也不是带值的偏好设置</translation>
    </message>
    <message>
        <source>%1 is no address that Orvello opens</source>
        <translation>%1 不是 Orvello 能打开的地址</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;</source>
        <translation>没有文件“%1”</translation>
    </message>
    <message>
        <source>Try &quot;orvello --help&quot;.</source>
        <translation>请试试“orvello --help”。</translation>
    </message>
    <message>
        <source>%1 is not a deck (.pptx or .odp)</source>
        <translation>%1 不是演示文稿（.pptx 或 .odp）</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryNotices</name>
    <message>
        <source>Another Orvello is using your scripts, so nothing that you change here is saved. Quit this one and go on in the other.</source>
        <translation>另一个 Orvello 正在使用你的讲稿，因此这里的更改不会保存。请退出这个，在另一个中继续。</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because the disk is full. Orvello keeps trying.</source>
        <translation>磁盘已满，无法保存你的讲稿。Orvello 会继续尝试。</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved because their folder is write-protected. Orvello keeps trying.</source>
        <translation>文件夹受写保护，无法保存你的讲稿。Orvello 会继续尝试。</translation>
    </message>
    <message>
        <source>Your scripts cannot be saved (%1). Orvello keeps trying.</source>
        <extracomment>%1: what the system says about it.</extracomment>
        <translation>无法保存你的讲稿（%1）。Orvello 会继续尝试。</translation>
    </message>
    <message>
        <source>Your scripts file was lost or empty. There is a copy from %1.</source>
        <extracomment>%1: a date and a time.</extracomment>
        <translation>讲稿文件丢失或为空。有一份 %1 的副本。</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. There is a copy from %1; what was in the file is kept as “%2”.</source>
        <extracomment>%1: a date and a time; %2: the name of a file.</extracomment>
        <translation>讲稿文件已损坏。有一份 %1 的副本；原文件内容保存为“%2”。</translation>
    </message>
    <message>
        <source>Your scripts file was damaged. What was in it is kept as “%1”.</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>讲稿文件已损坏。原内容保存为“%1”。</translation>
    </message>
    <message numerus="yes">
        <source>Bring back %n scripts</source>
        <extracomment>A button.</extracomment>
        <translation>
            <numerusform>找回 %n 篇讲稿</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryStore</name>
    <message>
        <source>My Script</source>
        <extracomment>The title of the only script of a user of the first versions.</extracomment>
        <translation>我的讲稿</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>The title of a new script.</extracomment>
        <translation>未命名</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The title of a copied script. %1: the title of the original.</extracomment>
        <translation>%1 副本</translation>
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
        <translation>导出此讲稿</translation>
    </message>
    <message numerus="yes">
        <source>Export %n scripts</source>
        <translation>
            <numerusform>导出 %n 篇讲稿</numerusform>
        </translation>
    </message>
    <message>
        <source>Scripts</source>
        <extracomment>The name of a file with several scripts.</extracomment>
        <translation>讲稿</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>导出失败</translation>
    </message>
    <message>
        <source>“%1” could not be written (%2).</source>
        <extracomment>%1: the name of a file; %2: what the system says about it.</extracomment>
        <translation>无法写入“%1”（%2）。</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryWindow</name>
    <message>
        <source>Scripts</source>
        <translation>讲稿</translation>
    </message>
</context>
<context>
    <name>Orvello::LinuxWakefulness</name>
    <message>
        <source>The prompter is being read</source>
        <extracomment>Why the display is kept on, for a desktop that shows it: at most about 60 characters.</extracomment>
        <translation>正在阅读提词器</translation>
    </message>
</context>
<context>
    <name>Orvello::LiveDeckImport</name>
    <message>
        <source>%1 deck</source>
        <extracomment>The title of a deck without a name. %1: a presentation program, such as Keynote.</extracomment>
        <translation>%1 演示文稿</translation>
    </message>
</context>
<context>
    <name>Orvello::MainMenu</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>拷贝</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>Orvello::OnboardingWindowController</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>欢迎使用 Orvello</translation>
    </message>
</context>
<context>
    <name>Orvello::OtherDeckNotice</name>
    <message>
        <source>Reading what is open in %1…</source>
        <extracomment>%1: a presentation program, such as Keynote.</extracomment>
        <translation>正在读取 %1 中打开的内容…</translation>
    </message>
    <message>
        <source>These notes are from another presentation than the one on screen.</source>
        <extracomment>On the card. %1: the name of a presentation.</extracomment>
        <translation>这些备注不属于屏幕上的演示文稿。</translation>
    </message>
    <message>
        <source>“%1” is on screen. These notes are from another presentation.</source>
        <translation>屏幕上是“%1”。这些备注属于另一份演示文稿。</translation>
    </message>
    <message>
        <source>Switch to its notes</source>
        <extracomment>A button on the card: shows the notes of the presentation that is on screen.</extracomment>
        <translation>切换到它的备注</translation>
    </message>
    <message>
        <source>Import its notes</source>
        <translation>导入它的备注</translation>
    </message>
</context>
<context>
    <name>Orvello::PptxImporter</name>
    <message>
        <source>The file could not be opened as a PowerPoint package.</source>
        <translation>无法将该文件作为 PowerPoint 文件包打开。</translation>
    </message>
    <message>
        <source>No slides were found — is this a .pptx presentation?</source>
        <translation>没有找到幻灯片——这是 .pptx 演示文稿吗？</translation>
    </message>
    <message>
        <source>The presentation is protected by a password. Save a copy without one in your presentation program, and import that.</source>
        <translation>该演示文稿受密码保护。请在演示程序中保存一份无密码的副本并导入该副本。</translation>
    </message>
</context>
<context>
    <name>Orvello::PrompterStatus</name>
    <message>
        <source>get ready</source>
        <extracomment>On the card, at most about 20 characters: the countdown runs.</extracomment>
        <translation>准备</translation>
    </message>
    <message>
        <source>hover pause</source>
        <extracomment>On the card, at most about 20 characters: the pointer over the card holds the text.</extracomment>
        <translation>悬停暂停</translation>
    </message>
    <message>
        <source>paused</source>
        <extracomment>On the card, at most about 20 characters: the text stands still.</extracomment>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>listening…</source>
        <extracomment>On the card, at most about 20 characters: the text waits for the user to speak.</extracomment>
        <translation>聆听中…</translation>
    </message>
    <message>
        <source>scrolling</source>
        <extracomment>On the card, at most about 20 characters: the text moves.</extracomment>
        <translation>滚动中</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingClock</name>
    <message>
        <source>%1 left</source>
        <extracomment>On the card, at most about 15 characters. %1: minutes and seconds, as in &quot;3:12&quot;.</extracomment>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>%1 · %2 left</source>
        <extracomment>On the card, at most about 25 characters. %1: how long the reader has been reading; %2: how long the rest takes, both as in &quot;3:12&quot;.</extracomment>
        <translation>%1 · 剩余 %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ReadingPace</name>
    <message>
        <source>The prompter has no text to scroll.</source>
        <translation>提词器没有可滚动的文本。</translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n characters a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · 此脚本约每分钟 %n 字</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 pt/s · about %n words a minute in this script</source>
        <extracomment>%1: points per second. About the script that the prompter shows.</extracomment>
        <translation>
            <numerusform>%1 pt/s · 此脚本约每分钟 %n 词</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: faster than speech</source>
        <extracomment>%1: as in &quot;25 pt/s · about 250 words a minute in this script&quot;.</extracomment>
        <translation>%1:比说话快</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptEditor</name>
    <message numerus="yes">
        <source>%n words</source>
        <translation>
            <numerusform>%n 个词</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported deck (%1) — notes are read-only here; edit them in the presentation and re-import.</source>
        <extracomment>%1: where the deck is from: a program or a file.</extracomment>
        <translation>已导入的演示文稿（%1）——备注在这里是只读的；请在演示文稿中编辑，然后重新导入。</translation>
    </message>
    <message>
        <source>%1 · about %2</source>
        <extracomment>%1: how many words, as in &quot;52 words&quot;; %2: minutes and seconds, as in &quot;0:22&quot;.</extracomment>
        <translation>%1 · 约 %2</translation>
    </message>
</context>
<context>
    <name>Orvello::ScriptListModel</name>
    <message>
        <source>Untitled</source>
        <extracomment>Stands for a script without a title.</extracomment>
        <translation>未命名</translation>
    </message>
    <message numerus="yes">
        <source>%n slides</source>
        <translation>
            <numerusform>%n 张幻灯片</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Orvello::SensitivityTest</name>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>请正常说话五秒钟。</translation>
    </message>
    <message>
        <source>Waiting for the microphone…</source>
        <translation>正在等待麦克风…</translation>
    </message>
    <message>
        <source>A sensitivity of %1% suits your voice here.</source>
        <extracomment>%1: a whole number.</extracomment>
        <translation>%1% 的灵敏度适合你在这里的声音。</translation>
    </message>
    <message>
        <source>No voice stood out from the room. Come closer to the microphone, or choose another one.</source>
        <translation>没有听到明显高于环境的声音。请靠近麦克风，或选择另一个。</translation>
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
        <translation>字号 — %1</translation>
    </message>
    <message>
        <source>Scroll speed — %1 pt/s</source>
        <extracomment>%1: points per second.</extracomment>
        <translation>滚动速度 — %1 pt/秒</translation>
    </message>
    <message>
        <source>Background opacity — %1</source>
        <extracomment>%1: a percentage.</extracomment>
        <translation>背景不透明度 — %1</translation>
    </message>
    <message>
        <source>Sensitivity — %1</source>
        <extracomment>Of the microphone&apos;s detector of speech. %1: a percentage.</extracomment>
        <translation>灵敏度 — %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation>3 秒</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 秒</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 秒</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>粉色</translation>
    </message>
    <message>
        <source>Your settings could not be read, so they are as new. The old file is kept: %1</source>
        <extracomment>%1: the name of a file.</extracomment>
        <translation>无法读取你的设置，因此已恢复为初始状态。旧文件已保留：%1</translation>
    </message>
</context>
<context>
    <name>Orvello::SettingsWindow</name>
    <message>
        <source>Orvello Settings</source>
        <translation>Orvello 设置</translation>
    </message>
</context>
<context>
    <name>Orvello::ShortcutList</name>
    <message>
        <source>Speed up / down</source>
        <extracomment>What two keys do, one each. The second text is for a narrow list: at most about 20 characters.</extracomment>
        <translation>加快 / 减慢</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>%1 (another program has it)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1（已被其他程序占用）</translation>
    </message>
    <message>
        <source>%1 (not on this keyboard)</source>
        <extracomment>%1: a key that does nothing, and why.</extracomment>
        <translation>%1（此键盘没有）</translation>
    </message>
</context>
<context>
    <name>Orvello::SlideStatus</name>
    <message>
        <source>Live</source>
        <extracomment>On the card, at most about 12 characters: the notes follow the running slideshow.</extracomment>
        <translation>同步中</translation>
    </message>
    <message>
        <source>No access</source>
        <extracomment>On the card, at most about 12 characters: the presentation program may not be asked.</extracomment>
        <translation>无权限</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>On the card, at most about 12 characters: the user turns the notes by hand.</extracomment>
        <translation>手动</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>On the card: which slide of how many.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Other deck</source>
        <extracomment>On the card, at most about 12 characters: the slideshow shows another presentation.</extracomment>
        <translation>其他演示</translation>
    </message>
</context>
<context>
    <name>Orvello::StatusMenu</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
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
        <translation>Orvello %1，%2
如果出了问题，请附上日志：Orvello 菜单 → 帮助 → 显示日志文件。</translation>
    </message>
</context>
<context>
    <name>Orvello::UpdateDialogs</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation>自动检查更新吗？</translation>
    </message>
    <message>
        <source>Once a day, Orvello would look at the vendor&apos;s web site for a newer version. Nothing about you is sent. You can change this in the settings at any time.</source>
        <translation>Orvello 会每天一次在供应商的网站上查看是否有新版本。不会发送任何关于你的信息。你可以随时在设置中更改。</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>自动检查</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>不检查</translation>
    </message>
    <message>
        <source>Orvello %1 is available.</source>
        <extracomment>%1: the version, such as 2.1.</extracomment>
        <translation>Orvello %1 可供更新。</translation>
    </message>
    <message>
        <source>You have %1. The new version is on its download page, which Install opens in your browser.</source>
        <extracomment>%1: the version. Install is the button&apos;s name.</extracomment>
        <translation>你的版本是 %1。新版本在下载页面上，点击“安装”会在浏览器中打开。</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>安装…</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>You have %1.</source>
        <translation>你的版本是 %1。</translation>
    </message>
</context>
<context>
    <name>Orvello::VoiceActivityEngine</name>
    <message>
        <source>another app is using the microphone</source>
        <extracomment>Stands in brackets in the middle of a sentence.</extracomment>
        <translation>另一个应用正在使用麦克风</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Stands in brackets in the middle of a sentence. %1: a meeting program.</extracomment>
        <translation>%1 正在运行</translation>
    </message>
    <message>
        <source>The microphone may not be used.</source>
        <translation>不允许使用麦克风。</translation>
    </message>
    <message>
        <source>The sound system does not answer.</source>
        <translation>声音系统没有响应。</translation>
    </message>
    <message>
        <source>No microphone is connected.</source>
        <translation>没有连接麦克风。</translation>
    </message>
    <message>
        <source>No microphone is connected. Connect one, then turn Voice-Follow off and on.</source>
        <translation>没有连接麦克风。请连接一个，然后关闭再打开语音跟随。</translation>
    </message>
    <message>
        <source>The microphone “%1” is muted.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>麦克风“%1”已静音。</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone “%1”. Another program may keep it to itself.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>麦克风“%1”没有声音传来。可能被另一个程序独占。</translation>
    </message>
    <message>
        <source>The microphone could not be started.</source>
        <translation>无法启动麦克风。</translation>
    </message>
    <message>
        <source>The microphone could not be started. Turn Voice-Follow off and on to try again.</source>
        <translation>无法启动麦克风。请关闭再打开语音跟随以重试。</translation>
    </message>
    <message>
        <source>Echo cancellation is on.</source>
        <translation>回声消除已开启。</translation>
    </message>
    <message>
        <source>Echo cancellation is paused: %1.</source>
        <extracomment>%1: why, such as &quot;Zoom is open&quot;.</extracomment>
        <translation>回声消除已暂停：%1。</translation>
    </message>
    <message>
        <source>Echo cancellation is not available.</source>
        <translation>回声消除不可用。</translation>
    </message>
    <message>
        <source>System default</source>
        <extracomment>The microphone that the desktop&apos;s settings choose.</extracomment>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>%1（未连接）</translation>
    </message>
    <message>
        <source>Listening to “%1”.</source>
        <extracomment>%1: the name of a microphone.</extracomment>
        <translation>正在聆听“%1”。</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeScript</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>欢迎使用 Orvello</translation>
    </message>
    <message>
        <source>Welcome to Orvello. This is your private teleprompter.</source>
        <translation>欢迎使用 Orvello。这是你的私人提词器。</translation>
    </message>
    <message>
        <source>Drag this panel anywhere — put it right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>你可以把这个面板拖到任何地方——放在摄像头正下方，目光会更自然。拖动任意边缘可以改变大小。</translation>
    </message>
    <message>
        <source>Press %1P to start or pause scrolling. Use %1Up or Down to change the speed on the fly. Hover the mouse over this panel any time to pause instantly; move away and it resumes.</source>
        <extracomment>%1: the keys to hold, as in &quot;Option-Command-P&quot; or &quot;Alt+Super+P&quot;. Up and Down are the arrow keys.</extracomment>
        <translation>按 %1P 开始或暂停滚动。用 %1上箭头或下箭头随时改变速度。把指针停在这个面板上可立即暂停；移开后继续。</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu bar and the script scrolls while you speak, then waits when you pause.</source>
        <translation>在菜单栏中打开“语音跟随”，讲稿会在你说话时滚动，在你停下时等待。</translation>
    </message>
    <message>
        <source>Turn on voice-follow in the menu and the script scrolls while you speak, then waits when you pause. The menu opens from the tray, or with a right click on this panel.</source>
        <translation>在菜单中打开“语音跟随”，讲稿会在你说话时滚动，在你停下时等待。菜单可从托盘打开，也可右键点击这个面板打开。</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window is invisible to screen sharing, recordings, and screenshots. Your audience only sees your slides — never your notes.</source>
        <translation>隐身模式开启时，屏幕共享、录屏和截图都看不到这个窗口。观众只看到幻灯片，绝不会看到你的备注。</translation>
    </message>
    <message>
        <source>Sharing your screen? Leave Stealth Mode alone while you share — toggling it mid-share can make your meeting app show a gray box where the prompter sits. Close and open Orvello again to clear it.</source>
        <translation>要共享屏幕吗？共享时不要动隐身模式——途中切换，会议应用可能会在提词器的位置显示一个灰色方块。关闭并重新打开 Orvello 即可消除。</translation>
    </message>
    <message>
        <source>Sharing your screen? This desktop cannot hide a window, so whoever sees your whole screen sees this panel too. Share only the window of your slides, and keep this panel beside it: your audience then sees your slides, not your notes.</source>
        <translation>要共享屏幕吗？这个桌面无法隐藏窗口，能看到你整个屏幕的人也会看到这个面板。请只共享幻灯片的窗口，并把这个面板放在它旁边：这样观众看到的是幻灯片，而不是你的备注。</translation>
    </message>
    <message>
        <source>With Stealth Mode on, this window stays out of screen sharing, recordings, and screenshots as far as this system allows. Newer recorders may show it all the same: share only the window of your slides, and your audience never sees your notes.</source>
        <translation>隐身模式开启时，这个窗口会在系统允许的范围内避开屏幕共享、录屏和截图。较新的录屏软件仍有可能显示它：请只共享幻灯片的窗口，观众就绝不会看到你的备注。</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeTour</name>
    <message>
        <source>Zoom → Share Screen → &quot;your slides&apos; window&quot; (not &quot;Entire Screen&quot;)</source>
        <translation>Zoom → 共享屏幕 →“幻灯片的窗口”（不是“整个屏幕”）</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &quot;Advanced capture with window filtering&quot; (or &quot;Previous operating systems&quot;)</source>
        <translation>Zoom → 设置 → 共享屏幕 → 高级 → 屏幕捕获模式 →“带窗口过滤的高级捕获”（或“以前的操作系统”）</translation>
    </message>
</context>
<context>
    <name>OtherDeck</name>
    <message>
        <source>Keep these notes</source>
        <translation>保留这些备注</translation>
    </message>
</context>
<context>
    <name>PrivacySettings</name>
    <message>
        <source>Privacy</source>
        <translation>隐私</translation>
    </message>
    <message>
        <source>Stealth Mode — hide from screen sharing, recordings &amp; screenshots</source>
        <translation>隐身模式——在屏幕共享、录屏和截图中隐藏</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window from screen sharing, recordings, or screenshots. There the prompter is visible, whether Stealth Mode is on or off.</source>
        <translation>这个桌面无法在屏幕共享、录屏或截图中隐藏窗口。无论隐身模式是开是关，提词器在那里都可见。</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while staying fully visible to you.</source>
        <translation>在共享开始前打开隐身模式，屏幕共享、录屏和截图（Zoom、Meet、QuickTime 等）就看不到提词器，而你仍能完整看到它。</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots — while staying fully visible to you.</source>
        <translation>在共享开始前打开隐身模式，屏幕共享、录屏和截图就看不到提词器，而你仍能完整看到它。</translation>
    </message>
    <message>
        <source>Stealth Mode takes effect on desktops that can keep a window out of screen sharing, recordings, and screenshots. With it on, the prompter&apos;s card says when this one cannot.</source>
        <translation>隐身模式在能让窗口避开屏幕共享、录屏和截图的桌面上生效。开启时，如果这个桌面做不到，提词器的卡片会说明。</translation>
    </message>
    <message>
        <source>Leave Stealth Mode alone during a live share: toggling it mid-share can make the meeting app draw a gray box in its place (close and open Orvello again to clear it). For zero risk, share the presentation window instead of the whole screen.</source>
        <translation>共享途中不要动隐身模式：切换可能会让会议应用在它的位置显示一个灰色方块（关闭并重新打开 Orvello 即可消除）。要做到零风险，请共享演示文稿的窗口，而不是整个屏幕。</translation>
    </message>
    <message>
        <source>Share the presentation window instead of the whole screen, and keep the prompter beside it: some programs, recorders above all, capture the place of a window with everything that is in front of it.</source>
        <translation>请共享演示文稿窗口而不是整个屏幕，并把提词器放在它旁边：有些程序，尤其是录屏软件，会把窗口所在位置连同其前面的一切一起捕获。</translation>
    </message>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter stays out of screen sharing, recordings, and screenshots as far as this system allows — while staying fully visible to you. Newer recorders may show it all the same: try yours before you rely on it.</source>
        <translation>在共享开始前打开隐身模式，提词器会在系统允许的范围内避开屏幕共享、录屏和截图，而你仍能完整看到它。较新的录屏软件仍有可能显示它：请先用你的软件试一试，再放心使用。</translation>
    </message>
</context>
<context>
    <name>PrompterSettings</name>
    <message>
        <source>Prompter</source>
        <translation>提词器</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>The opacity has no effect at the moment: windows can be translucent only while the desktop runs a compositor.</source>
        <extracomment>A compositor is the part of a Linux desktop that makes windows translucent.</extracomment>
        <translation>不透明度目前不起作用:只有当桌面运行合成器时,窗口才能半透明。</translation>
    </message>
</context>
<context>
    <name>PrompterView</name>
    <message>
        <source>Prompter</source>
        <translation>提词器</translation>
    </message>
    <message>
        <source>DEBUG — VISIBLE IN RECORDINGS</source>
        <extracomment>On the card, at most about 40 characters: others can see the prompter.</extracomment>
        <translation>调试 — 录屏可见</translation>
    </message>
    <message>
        <source>VISIBLE IN RECORDINGS</source>
        <translation>录屏可见</translation>
    </message>
</context>
<context>
    <name>ReadingSettings</name>
    <message>
        <source>Reading</source>
        <translation>朗读</translation>
    </message>
    <message>
        <source>Characters a minute</source>
        <translation>每分钟字数</translation>
    </message>
    <message>
        <source>Words a minute</source>
        <translation>每分钟词数</translation>
    </message>
    <message>
        <source>Keep my pace with another text, size or width</source>
        <translation>换文本、字号或宽度时保持我的语速</translation>
    </message>
    <message>
        <source>Time on the prompter</source>
        <translation>提词器上的时间</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>剩余</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>已用</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>两者</translation>
    </message>
</context>
<context>
    <name>RecordingBadge</name>
    <message>
        <source>Show the badge in full</source>
        <extracomment>Read aloud: the button makes the words &quot;VISIBLE IN RECORDINGS&quot; on the card a small eye, or words again.</extracomment>
        <translation>完整显示标记</translation>
    </message>
    <message>
        <source>Fold the badge to an eye</source>
        <translation>将标记收起为眼睛图标</translation>
    </message>
</context>
<context>
    <name>ScriptRow</name>
    <message>
        <source>%2, %1</source>
        <extracomment>Read aloud. %2: a script&apos;s title, which goes in last, as it may hold a &quot;%1&quot;; %1: how many slides, as in &quot;4 slides&quot;.</extracomment>
        <translation>%2，%1</translation>
    </message>
</context>
<context>
    <name>ScriptSidebar</name>
    <message>
        <source>Scripts</source>
        <translation>讲稿</translation>
    </message>
    <message>
        <source>New script</source>
        <translation>新建讲稿</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search titles and texts</source>
        <translation>搜索标题和正文</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制一份</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Export All…</source>
        <extracomment>All scripts of the list, into one file.</extracomment>
        <translation>全部导出…</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <extracomment>Where the list of scripts is, when none has what is searched for.</extracomment>
        <translation>没有找到</translation>
    </message>
</context>
<context>
    <name>SessionSettings</name>
    <message>
        <source>Session</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Countdown before start</source>
        <translation>开始前倒计时</translation>
    </message>
    <message>
        <source>Press P to pause during a slideshow</source>
        <translation>放映幻灯片时按 P 暂停</translation>
    </message>
    <message>
        <source>While a %1 slideshow is on-screen (where the cursor is hidden, so hover-to-pause can&apos;t work), a plain P pauses or resumes. It&apos;s active only during the slideshow, so it won&apos;t interfere with typing elsewhere. %2 always works too.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;; %2: keys, as in &quot;⌥⌘P&quot;.</extracomment>
        <translation>放映 %1 幻灯片时（指针被隐藏，无法悬停暂停），单独按 P 键即可暂停或继续。它只在放映期间有效，不会影响在其他地方打字。%2 随时可用。</translation>
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
        <translation>在屏幕共享途中切换隐身模式可能会让提词器变灰——关闭并重新打开 Orvello 即可消除。</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Stealth Mode has no effect on this desktop — whoever sees your screen sees this prompter, too.</source>
        <translation>隐身模式在此桌面上不起作用——能看到您屏幕的人也能看到此提词器。</translation>
    </message>
</context>
<context>
    <name>ShortcutSettings</name>
    <message>
        <source>Keyboard shortcuts (global)</source>
        <translation>键盘快捷键（全局）</translation>
    </message>
    <message>
        <source>Other keys</source>
        <translation>其他按键</translation>
    </message>
    <message>
        <source>Change Shortcuts…</source>
        <translation>更改快捷键…</translation>
    </message>
</context>
<context>
    <name>SlideChip</name>
    <message>
        <source>Slide %1</source>
        <extracomment>Read aloud. %1: which slide of how many, as in &quot;2 / 14&quot;.</extracomment>
        <translation>幻灯片 %1</translation>
    </message>
    <message>
        <source>%2, %1</source>
        <extracomment>Read aloud. %2: the slide&apos;s title, which goes in last, as it may hold a &quot;%1&quot;; %1: who turns the slides, as in &quot;Live&quot;.</extracomment>
        <translation>%2，%1</translation>
    </message>
    <message>
        <source>Previous slide</source>
        <translation>上一张幻灯片</translation>
    </message>
    <message>
        <source>Next slide</source>
        <translation>下一张幻灯片</translation>
    </message>
</context>
<context>
    <name>SlidesSettings</name>
    <message>
        <source>Slides</source>
        <translation>幻灯片</translation>
    </message>
    <message>
        <source>Slide Tracking — notes follow the live slideshow</source>
        <translation>幻灯片跟踪——备注跟随正在放映的幻灯片</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. The first time, macOS asks to let Orvello control that app — that&apos;s the sync. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>导入演示文稿（“讲稿”→ 导入按钮）并打开“幻灯片跟踪”后，提词器会显示当前幻灯片的演讲者备注，并在你于 %1 中翻页时自动切换。第一次使用时，macOS 会询问是否允许 Orvello 控制该应用——这就是同步。关闭“幻灯片跟踪”，则整个演示文稿会像普通讲稿一样滚动。</translation>
    </message>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in %1. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <extracomment>%1: a presentation program.</extracomment>
        <translation>导入演示文稿（“讲稿”→ 导入按钮）并打开“幻灯片跟踪”后，提词器会显示当前幻灯片的演讲者备注，并在你于 %1 中翻页时自动切换。关闭“幻灯片跟踪”，则整个演示文稿会像普通讲稿一样滚动。</translation>
    </message>
    <message>
        <source>If sync shows &quot;No access&quot;: System Settings → Privacy &amp; Security → Automation → Orvello → allow %1, then toggle Slide Tracking off and on.</source>
        <extracomment>The words in quotation marks are those of the card. %1: presentation programs.</extracomment>
        <translation>如果显示“无权限”：“系统设置”→“隐私与安全性”→“自动化”→ Orvello → 允许 %1，然后关闭再打开“幻灯片跟踪”。</translation>
    </message>
    <message>
        <source>Orvello may not follow Impress</source>
        <translation>Orvello 不可跟随 Impress</translation>
    </message>
    <message>
        <source>Orvello may follow Impress</source>
        <translation>Orvello 可以跟随 Impress</translation>
    </message>
    <message>
        <source>Orvello may follow Impress, but could not</source>
        <translation>Orvello 可以跟随 Impress，但未能做到</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>收回</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>允许</translation>
    </message>
</context>
<context>
    <name>StatusBadge</name>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Reading time</source>
        <translation>朗读时间</translation>
    </message>
</context>
<context>
    <name>TourCloseButton</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>TourCopyButton</name>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>复制路径</translation>
    </message>
</context>
<context>
    <name>TourDots</name>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>Read aloud. %1: a page of the tour; %2: how many there are.</extracomment>
        <translation>第 %1 页，共 %2 页</translation>
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
        <translation>跳过导览</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Open my prompter</source>
        <translation>打开我的提词器</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
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
        <translation>一条规则就能让备注不被录到：共享窗口，绝不共享整个屏幕。</translation>
    </message>
    <message>
        <source>One rule and one safety net keep your notes off the recording.</source>
        <translation>一条规则和一张安全网，让备注不被录到。</translation>
    </message>
    <message>
        <source>One rule, one safety net, and one Zoom setting keep your notes off the recording.</source>
        <translation>一条规则、一张安全网，再加一项 Zoom 设置，让备注不被录到。</translation>
    </message>
    <message>
        <source>Stealth Mode is on by default</source>
        <translation>隐身模式默认开启</translation>
    </message>
    <message>
        <source>This desktop cannot hide a window</source>
        <translation>这个桌面无法隐藏窗口</translation>
    </message>
    <message>
        <source>No app can keep its window out of screen captures here, so Stealth Mode has no effect. The prompter says so on its card: whoever sees your whole screen sees it too.</source>
        <translation>在这里，没有应用能让自己的窗口不被屏幕捕获，所以隐身模式不起作用。提词器会在卡片上说明：能看到你整个屏幕的人，也会看到它。</translation>
    </message>
    <message>
        <source>Turn it on before you share and leave it alone. Toggling it mid-share can make your meeting app draw a gray box where the prompter sits — close and reopen Orvello to clear it.</source>
        <translation>请在共享之前打开它，之后不要再动。共享途中切换，会议应用可能会在提词器的位置显示一个灰色方块——关闭并重新打开 Orvello 即可消除。</translation>
    </message>
    <message>
        <source>Want zero risk? Share just the window</source>
        <translation>想要零风险？只共享那个窗口</translation>
    </message>
    <message>
        <source>Full-screen sharing works with Stealth Mode on. Sharing only the %1 window takes the risk to zero — a window share can never include the prompter.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>隐身模式开启时可以共享整个屏幕。只共享 %1 的窗口则没有任何风险——窗口共享绝不会包含提词器。</translation>
    </message>
    <message>
        <source>Share just the window</source>
        <translation>只共享窗口</translation>
    </message>
    <message>
        <source>In your meeting app, choose the window of your slides instead of the entire screen, and keep the prompter beside it: some recorders capture the window&apos;s place with everything in front of it.</source>
        <translation>在会议应用中选择幻灯片窗口而不是整个屏幕，并把提词器放在它旁边。有些程序，尤其是录屏软件，会把窗口所在位置连同其前面的一切一起捕获。</translation>
    </message>
    <message>
        <source>One rule: share a window, never the whole screen.</source>
        <translation>一条规则:共享窗口,绝不共享整个屏幕。</translation>
    </message>
    <message>
        <source>A share of the full screen may show the prompter here. Sharing only the %1 window takes the risk to zero — a window share can never include it.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>共享整个屏幕时,这里可能会显示提词器。只共享 %1 的窗口可将风险降为零——窗口共享绝不会包含它。</translation>
    </message>
</context>
<context>
    <name>TourSetupPage</name>
    <message>
        <source>You&apos;re set. Here&apos;s where things are.</source>
        <translation>一切就绪。各项功能都在这里。</translation>
    </message>
    <message>
        <source>Drag the prompter right under your camera for natural eye contact. Resize it from any edge.</source>
        <translation>把提词器拖到摄像头正下方，目光会更自然。拖动任意边缘可以改变大小。</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Pause during a slideshow</source>
        <translation>放映幻灯片时暂停</translation>
    </message>
    <message>
        <source>Hover</source>
        <extracomment>Instead of a key: the pointer rests on the prompter.</extracomment>
        <translation>指针悬停</translation>
    </message>
    <message>
        <source>Pause instantly</source>
        <translation>立即暂停</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>菜单栏</translation>
    </message>
    <message>
        <source>Tray menu</source>
        <translation>托盘菜单</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour.</source>
        <translation>……还有“讲稿”（在那里撰写或导入要讲的内容）、设置和本导览。</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour. Without a tray, right-click the prompter.</source>
        <translation>……还有“讲稿”（在那里撰写或导入要讲的内容）、设置和本导览。没有托盘时，右键点击提词器。</translation>
    </message>
</context>
<context>
    <name>TourVoiceTest</name>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>为我的声音找到灵敏度</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>麦克风音量</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>采用</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
</context>
<context>
    <name>TourWelcomePage</name>
    <message>
        <source>Welcome to Orvello</source>
        <translation>欢迎使用 Orvello</translation>
    </message>
    <message>
        <source>Your private teleprompter. Your audience sees your slides — never your notes.</source>
        <translation>你的私人提词器。观众看到的是幻灯片，绝不会看到你的备注。</translation>
    </message>
    <message>
        <source>Invisible on screen shares</source>
        <translation>屏幕共享时不可见</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots — while you see it perfectly.</source>
        <translation>隐身模式让 Zoom、Meet、Teams、录屏和截图都看不到提词器，而你看得一清二楚。</translation>
    </message>
    <message>
        <source>Follows your voice</source>
        <translation>跟随你的声音</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — nothing is recorded or uploaded.</source>
        <translation>你说话时滚动，停下时等待。声音只在这台 Mac 上分析，不会录制，也不会上传。</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this computer only — nothing is recorded or uploaded.</source>
        <translation>你说话时滚动，停下时等待。声音只在这台电脑上分析，不会录制，也不会上传。</translation>
    </message>
    <message>
        <source>Follows your slides</source>
        <translation>跟随你的幻灯片</translation>
    </message>
    <message>
        <source>Import a .pptx or an open %1 deck and the speaker notes flip with your slideshow.</source>
        <extracomment>%1: presentation programs, as in &quot;Keynote or PowerPoint&quot;.</extracomment>
        <translation>导入 .pptx 文件或在 %1 中打开的演示文稿，备注就会随幻灯片翻页。</translation>
    </message>
    <message>
        <source>Share a window in Zoom, Meet or Teams, keep the prompter beside it, and only you see it. In a share of the whole screen, this desktop shows it to everyone.</source>
        <translation>在 Zoom、Meet 或 Teams 中共享一个窗口，把提词器放在旁边，就只有你能看到它。共享整个屏幕时，此桌面会让所有人看到它。</translation>
    </message>
    <message>
        <source>Your private teleprompter. Share your slides&apos; window alone, keep the prompter beside it, and your notes are yours.</source>
        <translation>你的私人提词器。只共享幻灯片的窗口，把提词器放在旁边，备注就只属于你。</translation>
    </message>
    <message>
        <source>Beside the window that you share</source>
        <translation>在你共享的窗口旁边</translation>
    </message>
    <message>
        <source>Hidden where the system allows</source>
        <translation>在系统允许的范围内隐藏</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter as far as this system allows. Newer recorders may show it all the same: try yours first.</source>
        <translation>隐身模式会在此系统允许的范围内隐藏提词器。较新的录制软件仍可能显示它:请先试试您的软件。</translation>
    </message>
</context>
<context>
    <name>TourZoomCard</name>
    <message>
        <source>Using Zoom? Set this once</source>
        <translation>使用 Zoom？设置一次即可</translation>
    </message>
    <message>
        <source>Using Zoom? Share a window</source>
        <translation>使用 Zoom？请共享窗口</translation>
    </message>
    <message>
        <source>No setting of Zoom hides the prompter here: a share of the entire screen shows your notes.</source>
        <translation>在这里，Zoom 的任何设置都无法隐藏提词器：共享整个屏幕会显示你的备注。</translation>
    </message>
    <message>
        <source>Zoom&apos;s default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes.</source>
        <translation>Zoom 默认的“自动”通常没问题，但它每次都会选择一种捕获方式，其中一种可能会显示你的备注。</translation>
    </message>
    <message>
        <source>Zoom → Share Screen → &lt;b&gt;your slides&apos; window&lt;/b&gt; (not Entire Screen).</source>
        <extracomment>The words between &lt;b&gt; and &lt;/b&gt; are shown in bold.</extracomment>
        <translation>Zoom → 共享屏幕 → &lt;b&gt;幻灯片的窗口&lt;/b&gt;（不是整个屏幕）。</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &lt;b&gt;Advanced capture with window filtering&lt;/b&gt; (or Previous operating systems).</source>
        <translation>Zoom → 设置 → 共享屏幕 → 高级 → 屏幕捕获模式 → &lt;b&gt;带窗口过滤的高级捕获&lt;/b&gt;（或“以前的操作系统”）。</translation>
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
        <translation>再次添加</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>UpdateSettings</name>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation>自动检查更新（每天一次）</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your computer beyond the app version. Orvello installs nothing by itself: if you want the new version, it opens the download page.</source>
        <translation>检查时只向供应商的网站查询最新版本，除应用版本外，不发送任何关于你或你的电脑的信息。Orvello 不会自行安装任何东西：如果你想要新版本，它会打开下载页面。</translation>
    </message>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your Mac beyond the app version. Updates are signed, and you always confirm before one installs.</source>
        <translation>检查时只向供应商的网站查询最新版本，除应用版本外，不发送任何关于你或你的 Mac 的信息。更新都经过签名，安装前总会由你确认。</translation>
    </message>
    <message>
        <source>Orvello %1 — not checked yet</source>
        <translation>Orvello %1 — 尚未检查</translation>
    </message>
    <message>
        <source>Orvello %1 — last checked %2</source>
        <extracomment>%1: the version; %2: a date and a time.</extracomment>
        <translation>Orvello %1 — 上次检查 %2</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>This Orvello was built without the address of an update feed, so it cannot look for updates. Whoever you got it from has newer versions.</source>
        <translation>此 Orvello 构建时没有更新源地址，因此无法检查更新。新版本请到你获取它的地方查找。</translation>
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
        <translation>语音跟随</translation>
    </message>
    <message>
        <source>Scroll while I speak, pause when I pause</source>
        <translation>我说话时滚动，停下时暂停</translation>
    </message>
    <message>
        <source>Mic level</source>
        <translation>麦克风音量</translation>
    </message>
    <message>
        <source>Microphone access is denied. Allow it in your desktop&apos;s privacy settings, then toggle voice-follow again.</source>
        <translation>麦克风权限被拒绝。请在桌面的隐私设置中允许，然后关闭再打开语音跟随。</translation>
    </message>
    <message>
        <source>Microphone access is denied. Enable it in System Settings → Privacy &amp; Security → Microphone, then toggle voice-follow again.</source>
        <translation>麦克风权限被拒绝。请在“系统设置”→“隐私与安全性”→“麦克风”中启用，然后关闭再打开语音跟随。</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this Mac won&apos;t move the prompter.</source>
        <translation>回声消除：开启——这台 Mac 播放的声音不会推动提词器。</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this computer won&apos;t move the prompter.</source>
        <translation>回声消除：开启——这台电脑播放的声音不会推动提词器。</translation>
    </message>
    <message>
        <source>Echo cancellation: paused (%1) so your voice keeps working in calls. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <extracomment>%1: why, such as &quot;another app is using the microphone&quot; or &quot;Zoom is open&quot;.</extracomment>
        <translation>回声消除：已暂停（%1），以便通话时你的声音仍然有效。使用扬声器时，对方的大声可能会推动提词器——戴耳机可以避免。</translation>
    </message>
    <message>
        <source>Audio is analyzed on-device for loudness only. Nothing is recorded, recognized, or uploaded.</source>
        <translation>声音只在设备上按响度分析。不会录制、识别或上传。</translation>
    </message>
    <message>
        <source>Find the sensitivity for my voice</source>
        <translation>为我的声音找到灵敏度</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>采用</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>Speak normally for five seconds.</source>
        <translation>请正常说话五秒钟。</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>Echo cancellation: not available. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.</source>
        <translation>回声消除：不可用。使用扬声器时，对方的大声可能会推动提词器——戴耳机可以避免。</translation>
    </message>
</context>
</TS>
