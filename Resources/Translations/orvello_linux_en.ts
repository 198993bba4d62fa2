<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- The Linux edition's English: what the source texts say of a Mac, said of this desktop. A text that is not here stays
     as it is in the source. Another language is a file beside this one. -->
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>EditorPage</name>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your Mac</source>
        <translation>Shown in the prompter · autosaved locally, nothing leaves your computer</translation>
    </message>
</context>
<context>
    <name>TourPrivacyPage</name>
    <message>
        <source>One rule, one safety net, and one Zoom setting keep your notes off the recording.</source>
        <translation>One rule keeps your notes off the recording: share a window, never the whole screen.</translation>
    </message>
    <message>
        <source>Stealth Mode is on by default</source>
        <translation>Linux cannot hide a window</translation>
    </message>
    <message>
        <source>Turn it on before you share and leave it alone. Toggling it mid-share can make your meeting app draw a gray box where the prompter sits — close and reopen Orvello to clear it.</source>
        <translation>No Linux desktop lets an app keep a window out of screen captures, so Stealth Mode has no effect here. The prompter says so on its card: whoever sees your whole screen sees it too.</translation>
    </message>
    <message>
        <source>Want zero risk? Share just the window</source>
        <translation>Zero risk: share just the window</translation>
    </message>
    <message>
        <source>Full-screen sharing works with Stealth Mode on. Sharing only the Keynote or PowerPoint window takes the risk to zero — a window share can never include the prompter.</source>
        <translation>In your meeting app, choose the window of your slides instead of the entire screen. A window share can never include the prompter. Recorders can capture a single window too.</translation>
    </message>
</context>
<context>
    <name>TourSetupPage</name>
    <message>
        <source>⌥⌘P</source>
        <translation>Alt+Super+P</translation>
    </message>
    <message>
        <source>⌥⌘↑ ↓</source>
        <translation>Alt+Super+↑ ↓</translation>
    </message>
    <message>
        <source>⌥⌘R</source>
        <translation>Alt+Super+R</translation>
    </message>
    <message>
        <source>⌥⌘H</source>
        <translation>Alt+Super+H</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Tray menu</translation>
    </message>
    <message>
        <source>… and Scripts, where you write or import what you say, Settings, and this tour.</source>
        <translation>… and Scripts, where you write or import what you say, Settings, and this tour. Without a tray, right-click the prompter.</translation>
    </message>
</context>
<context>
    <name>TourWelcomePage</name>
    <message>
        <source>Your private teleprompter. Your audience sees your slides — never your notes.</source>
        <translation>Your private teleprompter. Share your slides&apos; window, and your audience never sees your notes.</translation>
    </message>
    <message>
        <source>Invisible on screen shares</source>
        <translation>Not part of a window share</translation>
    </message>
    <message>
        <source>Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots — while you see it perfectly.</source>
        <translation>Share a window in Zoom, Meet or Teams, and only you see the prompter. In a share of the whole screen, a Linux desktop shows it to everyone.</translation>
    </message>
    <message>
        <source>Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — nothing is recorded or uploaded.</source>
        <translation>Scrolls while you speak, waits when you pause. Audio is analyzed on this computer only — nothing is recorded or uploaded.</translation>
    </message>
    <message>
        <source>Import a .pptx or an open Keynote or PowerPoint deck and the speaker notes flip with your slideshow.</source>
        <translation>Import a .pptx or the deck that is open in LibreOffice Impress, and the speaker notes flip with your slideshow.</translation>
    </message>
</context>
<context>
    <name>TourZoomCard</name>
    <message>
        <source>Using Zoom? Set this once</source>
        <translation>Using Zoom? Share a window</translation>
    </message>
    <message>
        <source>Zoom&apos;s default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes.</source>
        <translation>No setting of Zoom hides the prompter on Linux: a share of the entire screen shows your notes. A share of one window never does.</translation>
    </message>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &lt;b&gt;Advanced capture with window filtering&lt;/b&gt; (or Previous operating systems).</source>
        <translation>Zoom → Share Screen → &lt;b&gt;your slides&apos; window&lt;/b&gt; (not Entire Screen).</translation>
    </message>
</context>
<context>
    <name>Orvello::DeckImports</name>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in PowerPoint&apos;s notes pane and re-import.</source>
        <translation>The deck was imported, but no slide has speaker notes. Add notes in your presentation program&apos;s notes pane and re-import.</translation>
    </message>
</context>
<context>
    <name>Orvello::WelcomeTour</name>
    <message>
        <source>Zoom → Settings → Share Screen → Advanced → Screen capture mode → &quot;Advanced capture with window filtering&quot; (or &quot;Previous operating systems&quot;)</source>
        <translation>Zoom → Share Screen → &quot;your slides&apos; window&quot; (not &quot;Entire Screen&quot;)</translation>
    </message>
</context>
<context>
    <name>PrivacySettings</name>
    <message>
        <source>With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while staying fully visible to you.</source>
        <translation>Stealth Mode takes effect on desktops that can keep a window out of screen sharing, recordings, and screenshots. With it on, the prompter&apos;s card says when this one cannot.</translation>
    </message>
    <message>
        <source>Leave Stealth Mode alone during a live share: toggling it mid-share can make the meeting app draw a gray box in its place (close and open Orvello again to clear it). For zero risk, share the presentation window instead of the whole screen.</source>
        <translation>For zero risk, share the presentation window instead of the whole screen: a window share can never include the prompter.</translation>
    </message>
</context>
<context>
    <name>SessionSettings</name>
    <message>
        <source>While a Keynote or PowerPoint slideshow is on-screen (where the cursor is hidden, so hover-to-pause can&apos;t work), a plain P pauses or resumes. It&apos;s active only during the slideshow, so it won&apos;t interfere with typing elsewhere. ⌥⌘P always works too.</source>
        <translation>While a LibreOffice Impress slideshow is on-screen (where the cursor is hidden, so hover-to-pause can&apos;t work), a plain P pauses or resumes. It&apos;s active only during the slideshow, so it won&apos;t interfere with typing elsewhere. Alt+Super+P always works too.</translation>
    </message>
</context>
<context>
    <name>ShortcutSettings</name>
    <message>
        <source>⌥⌘P</source>
        <translation>Alt+Super+P</translation>
    </message>
    <message>
        <source>⌥⌘↑  /  ⌥⌘↓</source>
        <translation>Alt+Super+↑  /  Alt+Super+↓</translation>
    </message>
    <message>
        <source>⌥⌘R</source>
        <translation>Alt+Super+R</translation>
    </message>
    <message>
        <source>⌥⌘H</source>
        <translation>Alt+Super+H</translation>
    </message>
</context>
<context>
    <name>SlidesSettings</name>
    <message>
        <source>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in Keynote or PowerPoint. The first time, macOS asks to let Orvello control that app — that&apos;s the sync. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</source>
        <translation>With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide&apos;s speaker notes and flips automatically as you advance in LibreOffice Impress. Turn Slide Tracking off to scroll the whole deck as one normal script instead.</translation>
    </message>
    <message>
        <source>If sync shows &quot;No access&quot;: System Settings → Privacy &amp; Security → Automation → Orvello → allow Keynote or Microsoft PowerPoint, then toggle Slide Tracking off and on.</source>
        <translation>If sync shows &quot;No access&quot;: run &quot;impress-helper.py allow&quot; from Orvello&apos;s folder once, restart LibreOffice, then toggle Slide Tracking off and on.</translation>
    </message>
</context>
<context>
    <name>UpdateSettings</name>
    <message>
        <source>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your Mac beyond the app version. Updates are signed, and you always confirm before one installs.</source>
        <translation>The check asks the vendor&apos;s web site for the latest version and sends nothing about you or your computer beyond the app version. Orvello installs nothing by itself: if you want the new version, it opens the download page.</translation>
    </message>
</context>
<context>
    <name>VoiceSettings</name>
    <message>
        <source>Microphone access is denied. Enable it in System Settings → Privacy &amp; Security → Microphone, then toggle voice-follow again.</source>
        <translation>Microphone access is denied. Allow it in your desktop&apos;s privacy settings, then toggle voice-follow again.</translation>
    </message>
    <message>
        <source>Echo cancellation: on — audio playing from this Mac won&apos;t move the prompter.</source>
        <translation>Echo cancellation: on — audio playing from this computer won&apos;t move the prompter.</translation>
    </message>
</context>
</TS>
