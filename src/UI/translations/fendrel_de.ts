<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AlertCard</name>
    <message>
        <source>Open in %1</source>
        <translation>In %1 öffnen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>AppButton</name>
    <message>
        <source>Open with %1</source>
        <translation>Mit %1 öffnen</translation>
    </message>
    <message>
        <source>in front</source>
        <translation>im Vordergrund</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>ausgeblendet</translation>
    </message>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>%1 windows</source>
        <translation>%1 Fenster</translation>
    </message>
    <message>
        <source>%1 unread</source>
        <translation>%1 ungelesen</translation>
    </message>
    <message>
        <source>%1 % done</source>
        <translation>%1 % fertig</translation>
    </message>
    <message>
        <source>asks for you</source>
        <translation>möchte beachtet werden</translation>
    </message>
</context>
<context>
    <name>AppPicker</name>
    <message>
        <source>Search applications</source>
        <translation>Programme suchen</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Installierte Programme</translation>
    </message>
    <message>
        <source>No other application is found</source>
        <translation>Kein weiteres Programm gefunden</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>Applications</source>
        <translation>Programme</translation>
    </message>
</context>
<context>
    <name>BudgetMeter</name>
    <message>
        <source>Drift allowance</source>
        <translation>Ablenkungsbudget</translation>
    </message>
</context>
<context>
    <name>Countdown</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 Std. %2 Min.</translation>
    </message>
</context>
<context>
    <name>DockAppearance</name>
    <message>
        <source>Daylight</source>
        <translation>Tageslicht</translation>
    </message>
    <message>
        <source>Midnight</source>
        <translation>Mitternacht</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Graphit</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Klar</translation>
    </message>
</context>
<context>
    <name>DockMenu</name>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Fendrel menu</source>
        <translation>Fendrel-Menü</translation>
    </message>
</context>
<context>
    <name>DockMenus</name>
    <message>
        <source>%1 belongs to</source>
        <translation>%1 gehört zu</translation>
    </message>
    <message>
        <source>None of them</source>
        <translation>Keinem davon</translation>
    </message>
    <message>
        <source>Until I end it</source>
        <translation>Bis ich sie beende</translation>
    </message>
    <message>
        <source>25 minutes</source>
        <translation>25 Minuten</translation>
    </message>
    <message>
        <source>50 minutes</source>
        <translation>50 Minuten</translation>
    </message>
    <message>
        <source>90 minutes</source>
        <translation>90 Minuten</translation>
    </message>
    <message>
        <source>End focus session</source>
        <translation>Fokussitzung beenden</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Neu beginnen</translation>
    </message>
    <message>
        <source>Focus on %1</source>
        <translation>Fokus auf %1</translation>
    </message>
    <message>
        <source>Remove from %1</source>
        <translation>Aus %1 entfernen</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Show All Windows</source>
        <translation>Alle Fenster zeigen</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Zu %1 wechseln</translation>
    </message>
    <message>
        <source>Held Messages (%1)…</source>
        <translation>Zurückgehaltene Nachrichten (%1) …</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit Fendrel</source>
        <translation>Fendrel beenden</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Hide Others</source>
        <translation>Andere ausblenden</translation>
    </message>
    <message>
        <source>Force Quit</source>
        <translation>Sofort beenden</translation>
    </message>
    <message>
        <source>Add to</source>
        <translation>Hinzufügen zu</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>Verschieben nach</translation>
    </message>
    <message>
        <source>Edit Mode…</source>
        <translation>Modus bearbeiten …</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Empty Trash…</source>
        <translation>Papierkorb leeren …</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Replace %1</source>
        <translation>%1 ersetzen</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Hide Automatically</source>
        <translation>Automatisch ausblenden</translation>
    </message>
    <message>
        <source>Magnify Icons</source>
        <translation>Symbole vergrößern</translation>
    </message>
    <message>
        <source>Dock</source>
        <translation>Dock</translation>
    </message>
</context>
<context>
    <name>DockPane</name>
    <message>
        <source>Replace the system dock</source>
        <translation>Dock des Systems ersetzen</translation>
    </message>
    <message>
        <source>Hides %1 while Fendrel runs, and gives it back as it was.</source>
        <translation>Blendet %1 aus, solange Fendrel läuft, und gibt es zurück, wie es war.</translation>
    </message>
    <message>
        <source>No other dock or panel runs that Fendrel could hide. Minimized windows and the Trash are in the dock.</source>
        <translation>Es läuft kein anderes Dock oder Panel, das Fendrel ausblenden könnte. Minimierte Fenster und der Papierkorb sind im Dock.</translation>
    </message>
    <message>
        <source>No other dock or panel runs that Fendrel could hide. Minimized windows and the Trash come to the dock all the same.</source>
        <translation>Es läuft kein anderes Dock oder Panel, das Fendrel ausblenden könnte. Minimierte Fenster und der Papierkorb kommen trotzdem ins Dock.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>The edge of the screen that the dock is at.</source>
        <translation>Der Bildschirmrand, an dem das Dock liegt.</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>How large the icons are.</source>
        <translation>Wie groß die Symbole sind.</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Show on</source>
        <translation>Zeigen auf</translation>
    </message>
    <message>
        <source>The main display, the one you work on, or all of them.</source>
        <translation>Auf dem Hauptbildschirm, auf dem, an dem du arbeitest, oder auf allen.</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Haupt</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Hide automatically</source>
        <translation>Automatisch ausblenden</translation>
    </message>
    <message>
        <source>The dock comes when the pointer reaches its edge.</source>
        <translation>Das Dock kommt, wenn der Zeiger seinen Rand erreicht.</translation>
    </message>
    <message>
        <source>Magnify icons</source>
        <translation>Symbole vergrößern</translation>
    </message>
    <message>
        <source>The icon under the pointer grows.</source>
        <translation>Das Symbol unter dem Zeiger wächst.</translation>
    </message>
    <message>
        <source>Click to hide</source>
        <translation>Klick blendet aus</translation>
    </message>
    <message>
        <source>Clicking the application that is in front hides it.</source>
        <translation>Ein Klick auf das Programm im Vordergrund blendet es aus.</translation>
    </message>
    <message>
        <source>Glow during focus</source>
        <translation>Leuchten bei Fokus</translation>
    </message>
    <message>
        <source>The edges of the screen shine in the mode's color while a focus session runs.</source>
        <translation>Während einer Fokussitzung leuchten die Bildschirmränder in der Farbe des Modus.</translation>
    </message>
</context>
<context>
    <name>DockView</name>
    <message>
        <source>Fendrel dock</source>
        <translation>Fendrel-Dock</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>Docks</name>
    <message>
        <source>the Cinnamon panel</source>
        <translation>Cinnamon-Leiste</translation>
    </message>
    <message>
        <source>the GNOME dock</source>
        <translation>GNOME-Dock</translation>
    </message>
    <message>
        <source>the MATE panel</source>
        <translation>MATE-Panel</translation>
    </message>
    <message>
        <source>the Plasma panel</source>
        <translation>Plasma-Kontrollleiste</translation>
    </message>
    <message>
        <source>the Xfce panel</source>
        <translation>Xfce-Panel</translation>
    </message>
</context>
<context>
    <name>EntryChips</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>FirstRunView</name>
    <message>
        <source>What do you want to get done?</source>
        <translation>Was möchtest du schaffen?</translation>
    </message>
    <message>
        <source>Pick the modes to start with. Fendrel keeps you in one of them at a time, and asks before you drift into another. Applications can be added and removed later, in the dock.</source>
        <translation>Wähle die Modi für den Anfang. Fendrel hält dich immer in einem davon und fragt, bevor du in einen anderen abschweifst. Programme kannst du später im Dock hinzufügen und entfernen.</translation>
    </message>
    <message numerus="yes">
        <source>%n mode(s) chosen</source>
        <translation><numerusform>Ein Modus gewählt</numerusform><numerusform>%n Modi gewählt</numerusform></translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Los geht’s</translation>
    </message>
</context>
<context>
    <name>FocusButton</name>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>Im Fokus</translation>
    </message>
    <message>
        <source>Start a focus session</source>
        <translation>Fokussitzung beginnen</translation>
    </message>
    <message>
        <source>Focus session, until you end it</source>
        <translation>Fokussitzung, bis du sie beendest</translation>
    </message>
    <message>
        <source>Focus session, %1 left</source>
        <translation>Fokussitzung, noch %1</translation>
    </message>
</context>
<context>
    <name>GateView</name>
    <message>
        <source>Stay focused, or switch?</source>
        <translation>Dranbleiben oder wechseln?</translation>
    </message>
    <message>
        <source>%1 belongs to %2</source>
        <translation>%1 gehört zu %2</translation>
    </message>
    <message>
        <source>%1 (%2) belongs to %3</source>
        <translation>%1 (%2) gehört zu %3</translation>
    </message>
    <message>
        <source>Why switch now?</source>
        <translation>Warum jetzt wechseln?</translation>
    </message>
    <message>
        <source>Stay in %1</source>
        <translation>Bei %1 bleiben</translation>
    </message>
    <message>
        <source>Switching in %1</source>
        <translation>Wechsel in %1</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Zu %1 wechseln</translation>
    </message>
    <message>
        <source>(%1 s wait)</source>
        <translation>(%1 s Wartezeit)</translation>
    </message>
    <message>
        <source>Each extra press cuts the wait</source>
        <translation>Jeder weitere Druck verkürzt das Warten</translation>
    </message>
    <message>
        <source>Allow once</source>
        <translation>Einmal erlauben</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Zu %1 hinzufügen</translation>
    </message>
</context>
<context>
    <name>HeldBadge</name>
    <message>
        <source>99+</source>
        <translation>99+</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Welcome to Fendrel</source>
        <translation>Willkommen bei Fendrel</translation>
    </message>
    <message>
        <source>Fendrel Settings</source>
        <translation>Fendrel-Einstellungen</translation>
    </message>
</context>
<context>
    <name>ListCard</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MessageSettings</name>
    <message>
        <source>Always let through</source>
        <translation>Immer durchlassen</translation>
    </message>
    <message>
        <source>Messages with one of these words show at once. Commas between them.</source>
        <translation>Nachrichten mit einem dieser Wörter erscheinen sofort. Dazwischen Kommas.</translation>
    </message>
    <message>
        <source>Quiet the desktop's banners</source>
        <translation>Banner der Arbeitsfläche unterdrücken</translation>
    </message>
    <message>
        <source>While messages are held, the desktop shows none at all, those of the current mode neither.</source>
        <translation>Solange Nachrichten zurückgehalten werden, zeigt die Arbeitsfläche gar keine, auch nicht die des aktuellen Modus.</translation>
    </message>
    <message>
        <source>Never hold critical messages</source>
        <translation>Kritische Nachrichten nie zurückhalten</translation>
    </message>
    <message>
        <source>What the system itself calls critical, such as an empty battery, is left alone.</source>
        <translation>Was das System selbst kritisch nennt, etwa ein leerer Akku, bleibt unberührt.</translation>
    </message>
    <message>
        <source>Messages of other modes are held.</source>
        <translation>Nachrichten anderer Modi werden zurückgehalten.</translation>
    </message>
    <message>
        <source>Model server</source>
        <translation>Modellserver</translation>
    </message>
    <message>
        <source>Address of a language model on this computer. No other is ever asked.</source>
        <translation>Adresse eines Sprachmodells auf diesem Rechner. Ein anderes wird nie gefragt.</translation>
    </message>
    <message>
        <source>Found by itself</source>
        <translation>Wird von selbst gefunden</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>Name des Modells</translation>
    </message>
    <message>
        <source>Which of its models to ask.</source>
        <translation>Welches seiner Modelle gefragt wird.</translation>
    </message>
    <message>
        <source>Connected. It judges what the modes' lists don't name.</source>
        <translation>Verbunden. Es beurteilt, was die Listen der Modi nicht nennen.</translation>
    </message>
</context>
<context>
    <name>MessagesModel</name>
    <message>
        <source>New message</source>
        <translation>Neue Nachricht</translation>
    </message>
</context>
<context>
    <name>MinimizedStrip</name>
    <message>
        <source>Minimized windows</source>
        <translation>Minimierte Fenster</translation>
    </message>
</context>
<context>
    <name>MinimizedTile</name>
    <message>
        <source>%1, minimized window of %2</source>
        <translation>%1, minimiertes Fenster von %2</translation>
    </message>
</context>
<context>
    <name>ModeCard</name>
    <message>
        <source>Web sites only, so far</source>
        <translation>Bisher nur Websites</translation>
    </message>
</context>
<context>
    <name>ModePill</name>
    <message>
        <source>Switching to %1 in %2 s. Each extra press cuts the wait</source>
        <translation>Wechsel zu %1 in %2 s. Jeder weitere Druck verkürzt das Warten</translation>
    </message>
    <message numerus="yes">
        <source>%n held message(s)</source>
        <translation><numerusform>%n zurückgehaltene Nachricht</numerusform><numerusform>%n zurückgehaltene Nachrichten</numerusform></translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Zu %1 hinzufügen</translation>
    </message>
    <message>
        <source>%1, switching in %2 seconds</source>
        <translation>%1, Wechsel in %2 Sekunden</translation>
    </message>
    <message>
        <source>Each extra press cuts the wait</source>
        <translation>Jeder weitere Druck verkürzt das Warten</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>ModeSection</name>
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
</context>
<context>
    <name>ModesView</name>
    <message>
        <source>Mode to edit</source>
        <translation>Modus zum Bearbeiten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the dock and the menus call this mode.</source>
        <translation>So heißt der Modus im Dock und in den Menüs.</translation>
    </message>
    <message>
        <source>Name of the mode</source>
        <translation>Name des Modus</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Marks the mode wherever it shows.</source>
        <translation>Kennzeichnet den Modus überall, wo er erscheint.</translation>
    </message>
    <message>
        <source>Wait before entering</source>
        <translation>Wartezeit vor dem Wechsel</translation>
    </message>
    <message>
        <source>During focus, switching to this mode takes a moment to think.</source>
        <translation>Im Fokus lässt dir der Wechsel in diesen Modus einen Moment zum Nachdenken.</translation>
    </message>
    <message>
        <source>Drift allowance</source>
        <translation>Ablenkungsbudget</translation>
    </message>
    <message>
        <source>How long a day you may stray from this mode.</source>
        <translation>Wie lange du am Tag von diesem Modus abschweifen darfst.</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>None belong to this mode yet.</source>
        <translation>Noch gehört keines zu diesem Modus.</translation>
    </message>
    <message>
        <source>They belong to this mode, and are in the dock while you are in it.</source>
        <translation>Sie gehören zu diesem Modus und sind im Dock, solange du in ihm bist.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message>
        <source>Web sites</source>
        <translation>Websites</translation>
    </message>
    <message>
        <source>Type or paste addresses. What is below a site, such as docs.example.org, belongs to it.</source>
        <translation>Tippe Adressen oder füge sie ein. Was unter einer Website liegt, etwa docs.example.org, gehört dazu.</translation>
    </message>
    <message>
        <source>Address of a web site</source>
        <translation>Adresse einer Website</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Delete this mode</source>
        <translation>Diesen Modus löschen</translation>
    </message>
    <message>
        <source>Its list of applications and web sites goes with it.</source>
        <translation>Seine Liste der Programme und Websites geht mit verloren.</translation>
    </message>
    <message>
        <source>There has to be one, and this is the last.</source>
        <translation>Einen muss es geben, und das ist der letzte.</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen …</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Dock</source>
        <translation>Dock</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Strictness</source>
        <translation>Strenge</translation>
    </message>
    <message>
        <source>Switching modes during focus never waits.</source>
        <translation>Im Fokus wechselt der Modus ohne Warten.</translation>
    </message>
    <message>
        <source>Switching modes during focus waits as long as the mode says.</source>
        <translation>Im Fokus wartet ein Wechsel so lange, wie der Modus es vorgibt.</translation>
    </message>
    <message>
        <source>Modes with a wait take at least half a minute to enter during focus.</source>
        <translation>Im Fokus dauert der Wechsel in Modi mit Wartezeit mindestens eine halbe Minute.</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Sanft</translation>
    </message>
    <message>
        <source>Balanced</source>
        <translation>Ausgewogen</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>Streng</translation>
    </message>
    <message>
        <source>Tidy up when switching</source>
        <translation>Beim Wechseln aufräumen</translation>
    </message>
    <message>
        <source>Hides the applications that don't belong to the new mode.</source>
        <translation>Blendet Programme aus, die nicht zum neuen Modus gehören.</translation>
    </message>
    <message>
        <source>Offer to send crash reports</source>
        <translation>Absturzberichte anbieten</translation>
    </message>
    <message>
        <source>Asks after a crash, and opens your mail app with the report for you to read first.</source>
        <translation>Fragt nach einem Absturz und öffnet dein Mailprogramm mit dem Bericht, damit du ihn zuerst lesen kannst.</translation>
    </message>
    <message>
        <source>Match light and dark mode</source>
        <translation>Hell und Dunkel folgen</translation>
    </message>
    <message>
        <source>The dock has a look of its own for each, and changes with the desktop.</source>
        <translation>Das Dock hat für beides ein eigenes Aussehen und wechselt mit der Arbeitsfläche.</translation>
    </message>
    <message>
        <source>Fendrel %1</source>
        <translation>Fendrel %1</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder neuer.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>Deine Daten bleiben hier</translation>
    </message>
    <message>
        <source>What Fendrel learns about your work never leaves this computer.</source>
        <translation>Was Fendrel über deine Arbeit lernt, verlässt diesen Rechner nie.</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
</context>
<context>
    <name>TrashTile</name>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Move to the Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Trash, empty</source>
        <translation>Papierkorb, leer</translation>
    </message>
    <message>
        <source>Remove from %1</source>
        <translation>Aus %1 entfernen</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>%1 · focused</source>
        <translation>%1 · im Fokus</translation>
    </message>
    <message>
        <source>%1 · %2 left</source>
        <translation>%1 · noch %2</translation>
    </message>
    <message>
        <source>%1 (switching in %2 s)</source>
        <translation>%1 (Wechsel in %2 s)</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>Fokus beginnen</translation>
    </message>
    <message>
        <source>Focus for %1 Minutes</source>
        <translation>%1 Minuten Fokus</translation>
    </message>
    <message>
        <source>End Focus</source>
        <translation>Fokus beenden</translation>
    </message>
    <message>
        <source>End Focus (%1 left)</source>
        <translation>Fokus beenden (noch %1)</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit Fendrel</source>
        <translation>Fendrel beenden</translation>
    </message>
</context>
<context>
    <name>UndoCard</name>
    <message>
        <source>Fendrel undo</source>
        <translation>Fendrel: Rückgängig</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>VerdictChip</name>
    <message>
        <source>Not right? Click to tell Fendrel</source>
        <translation>Stimmt nicht? Klicken und Fendrel sagen</translation>
    </message>
    <message>
        <source>Judging…</source>
        <translation>Wird beurteilt …</translation>
    </message>
    <message>
        <source>No mode</source>
        <translation>Kein Modus</translation>
    </message>
</context>
<context>
    <name>WindowCard</name>
    <message>
        <source>%1, minimized</source>
        <translation>%1, minimiert</translation>
    </message>
    <message>
        <source>%1, in front</source>
        <translation>%1, im Vordergrund</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>Minimiert</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 schließen</translation>
    </message>
</context>
<context>
    <name>WindowsPopover</name>
    <message>
        <source>Fendrel windows</source>
        <translation>Fendrel-Fenster</translation>
    </message>
</context>
<context>
    <name>fendrel::AppController</name>
    <message>
        <source>Fendrel couldn't read your modes</source>
        <translation>Fendrel konnte deine Modi nicht lesen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>%1 ersetzen?</translation>
    </message>
    <message>
        <source>Fendrel hides %1 and takes its place at the bottom of the screen.

Your Dock settings are saved. %2 comes back when you turn this off or quit Fendrel.</source>
        <translation>Fendrel blendet %1 aus und nimmt dessen Platz am unteren Bildschirmrand ein.

Deine Dock-Einstellungen werden gesichert. %2 kommt zurück, wenn du dies ausschaltest oder Fendrel beendest.</translation>
    </message>
    <message>
        <source>Replace Dock</source>
        <translation>Dock ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>fendrel::CardsPanel</name>
    <message>
        <source>Fendrel messages</source>
        <translation>Fendrel-Nachrichten</translation>
    </message>
</context>
<context>
    <name>fendrel::DockAppsModel</name>
    <message>
        <source>99+</source>
        <translation>99+</translation>
    </message>
</context>
<context>
    <name>fendrel::DockController</name>
    <message>
        <source>%1 of %2 used today</source>
        <translation>Heute %1 von %2 verbraucht</translation>
    </message>
</context>
<context>
    <name>fendrel::DockEdits</name>
    <message>
        <source>Added %1 to %2</source>
        <translation>%1 zu %2 hinzugefügt</translation>
    </message>
    <message>
        <source>Moved %1 to %2</source>
        <translation>%1 nach %2 verschoben</translation>
    </message>
    <message>
        <source>Removed %1 from %2</source>
        <translation>%1 aus %2 entfernt</translation>
    </message>
</context>
<context>
    <name>fendrel::DockPanel</name>
    <message>
        <source>Fendrel dock</source>
        <translation>Fendrel-Dock</translation>
    </message>
</context>
<context>
    <name>fendrel::Feedback</name>
    <message>
        <source>Fendrel quit unexpectedly last time</source>
        <translation>Fendrel wurde zuletzt unerwartet beendet</translation>
    </message>
    <message>
        <source>Send the crash report to help fix it? Your mail app opens with it attached, so you can read it first. It has no documents or keystrokes, only what Fendrel was doing.</source>
        <translation>Den Absturzbericht senden, um bei der Behebung zu helfen? Dein Mailprogramm öffnet sich mit dem Bericht im Anhang, damit du ihn zuerst lesen kannst. Er enthält keine Dokumente oder Tastatureingaben, nur was Fendrel gerade tat.</translation>
    </message>
    <message>
        <source>Send Report…</source>
        <translation>Bericht senden …</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
</context>
<context>
    <name>fendrel::FocusController</name>
    <message>
        <source>%1 for today are used up</source>
        <translation>%1 für heute sind aufgebraucht</translation>
    </message>
    <message>
        <source>%1 of drift left today</source>
        <translation>Heute noch %1 Ablenkung übrig</translation>
    </message>
</context>
<context>
    <name>fendrel::GateController</name>
    <message>
        <source>%1 min for today are used up</source>
        <translation>%1 Min. für heute sind aufgebraucht</translation>
    </message>
</context>
<context>
    <name>fendrel::GatePanel</name>
    <message>
        <source>Stay focused, or switch?</source>
        <translation>Dranbleiben oder wechseln?</translation>
    </message>
</context>
<context>
    <name>fendrel::HeldMessages</name>
    <message>
        <source>The record of notifications can't be read.</source>
        <translation>Das Verzeichnis der Benachrichtigungen kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>fendrel::MessagesController</name>
    <message>
        <source>While you were in %1</source>
        <translation>Während du in %1 warst</translation>
    </message>
    <message>
        <source>Held for %1</source>
        <translation>Zurückgehalten für %1</translation>
    </message>
    <message numerus="yes">
        <source>%n message(s)</source>
        <translation><numerusform>%n Nachricht</numerusform><numerusform>%n Nachrichten</numerusform></translation>
    </message>
    <message>
        <source>Looks urgent</source>
        <translation>Sieht dringend aus</translation>
    </message>
    <message>
        <source>%1 wait</source>
        <translation>%1 warten</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>sofort</translation>
    </message>
</context>
<context>
    <name>fendrel::ModeEditor</name>
    <message>
        <source>Amber</source>
        <translation>Bernstein</translation>
    </message>
    <message>
        <source>Coral</source>
        <translation>Koralle</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Petrol</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Graphit</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>“%1” is not the address of a web site. One looks like example.org.</source>
        <translation>„%1“ ist keine Adresse einer Website. Eine sieht aus wie example.org.</translation>
    </message>
    <message>
        <source>%1 is on the list already.</source>
        <translation>%1 steht schon auf der Liste.</translation>
    </message>
    <message>
        <source>Delete the mode %1?</source>
        <translation>Den Modus %1 löschen?</translation>
    </message>
    <message>
        <source>Its list of applications and web sites is lost. You can't undo this.</source>
        <translation>Seine Liste der Programme und Websites geht verloren. Du kannst das nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete Mode</source>
        <translation>Modus löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>fendrel::TrashController</name>
    <message>
        <source>The Trash couldn't be emptied</source>
        <translation>Der Papierkorb konnte nicht geleert werden</translation>
    </message>
    <message>
        <source>Some of what is in it can't be deleted.</source>
        <translation>Einiges darin lässt sich nicht löschen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Empty the Trash?</source>
        <translation>Papierkorb leeren?</translation>
    </message>
    <message>
        <source>What is in it is deleted for good. You can't undo this.</source>
        <translation>Der Inhalt wird endgültig gelöscht. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>“%1” couldn't be moved to the Trash</source>
        <translation>„%1“ konnte nicht in den Papierkorb bewegt werden</translation>
    </message>
    <message>
        <source>%1 items couldn't be moved to the Trash</source>
        <translation>%1 Objekte konnten nicht in den Papierkorb bewegt werden</translation>
    </message>
</context>
<context>
    <name>fendrel::VerdictController</name>
    <message>
        <source>certain</source>
        <translation>sicher</translation>
    </message>
    <message>
        <source>likely</source>
        <translation>wahrscheinlich</translation>
    </message>
    <message>
        <source>unsure</source>
        <translation>unsicher</translation>
    </message>
</context>
</TS>
