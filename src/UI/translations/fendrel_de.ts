<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutPane</name>
    <message>
        <source>Fendrel %1</source>
        <translation>Fendrel %1</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder neuer.</translation>
    </message>
    <message>
        <source>Companion extension %1</source>
        <translation>Begleit-Erweiterung %1</translation>
    </message>
    <message>
        <source>The one that comes with this Fendrel. Permissions shows the browsers that have it.</source>
        <translation>Sie gehört zu diesem Fendrel. „Berechtigungen“ zeigt die Browser, die sie haben.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>Deine Daten bleiben hier</translation>
    </message>
    <message>
        <source>What Fendrel learns about your work never leaves this computer.</source>
        <translation>Was Fendrel über deine Arbeit lernt, verlässt diesen Computer nie.</translation>
    </message>
    <message>
        <source>When something is wrong</source>
        <translation>Wenn etwas nicht stimmt</translation>
    </message>
    <message>
        <source>Diagnostic bundle</source>
        <translation>Diagnosepaket</translation>
    </message>
    <message>
        <source>It couldn&apos;t be written: %1</source>
        <translation>Es konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Geschrieben nach %1</translation>
    </message>
    <message>
        <source>Make a Bundle…</source>
        <translation>Paket erstellen …</translation>
    </message>
    <message>
        <source>Where files are</source>
        <translation>Wo Dateien liegen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>What it is built on</source>
        <translation>Worauf es aufbaut</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>License</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>License of %1</source>
        <translation>Lizenz von %1</translation>
    </message>
    <message>
        <source>A file for whoever helps you. It has versions, settings and the log, but no titles, sites, applications, modes, words, addresses or keys.</source>
        <translation>Eine Datei für alle, die dir helfen. Sie enthält Versionen, Einstellungen und das Protokoll, aber keine Titel, Seiten, Programme, Modi, Wörter, Adressen oder Schlüssel.</translation>
    </message>
</context>
<context>
    <name>AccountRow</name>
    <message>
        <source>Remove…</source>
        <translation>Entfernen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Change Key…</source>
        <translation>Schlüssel ändern …</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>Verbinden …</translation>
    </message>
    <message>
        <source>Key of %1</source>
        <translation>Schlüssel von %1</translation>
    </message>
    <message>
        <source>Paste the key here</source>
        <translation>Schlüssel hier einsetzen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einsetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Get a Key…</source>
        <translation>Schlüssel holen …</translation>
    </message>
    <message>
        <source>Opens a page of %1 in your browser</source>
        <translation>Öffnet eine Seite von %1 in deinem Browser</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Asks %1 whether it takes the key</source>
        <translation>Fragt %1, ob der Schlüssel angenommen wird</translation>
    </message>
</context>
<context>
    <name>AccountTest</name>
    <message>
        <source>There is no key for it</source>
        <translation>Dafür gibt es keinen Schlüssel</translation>
    </message>
    <message>
        <source>Your desktop has no keyring</source>
        <translation>Deine Arbeitsfläche hat keinen Schlüsselbund</translation>
    </message>
    <message>
        <source>Your keyring is locked</source>
        <translation>Dein Schlüsselbund ist gesperrt</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t work</source>
        <translation>Dein Schlüsselbund funktioniert nicht</translation>
    </message>
    <message>
        <source>There is no network connection</source>
        <translation>Es gibt keine Netzwerkverbindung</translation>
    </message>
</context>
<context>
    <name>AccountsPane</name>
    <message>
        <source>Some widgets show what a service knows about you, and need a key for it. Keys are kept in your keyring and nowhere else.</source>
        <translation>Manche Widgets zeigen, was ein Dienst über dich weiß, und brauchen dafür einen Schlüssel. Schlüssel liegen in deinem Schlüsselbund und nirgends sonst.</translation>
    </message>
</context>
<context>
    <name>AddMode</name>
    <message>
        <source>Empty Mode</source>
        <translation>Leerer Modus</translation>
    </message>
    <message>
        <source>New mode from</source>
        <translation>Neuer Modus aus</translation>
    </message>
</context>
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
    <name>AnswerRow</name>
    <message>
        <source>No mode</source>
        <translation>Kein Modus</translation>
    </message>
    <message>
        <source>Return changes the mode, Delete forgets the answer.</source>
        <translation>Return ändert den Modus, Delete vergisst die Antwort.</translation>
    </message>
    <message>
        <source>Mode of %1</source>
        <translation>Modus von %1</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <translation>%1 vergessen</translation>
    </message>
</context>
<context>
    <name>AnswersPage</name>
    <message>
        <source>From anyone</source>
        <translation>Von allen</translation>
    </message>
    <message>
        <source>From Fendrel</source>
        <translation>Von Fendrel</translation>
    </message>
    <message>
        <source>From you</source>
        <translation>Von dir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Learned Answers</source>
        <translation>Gelernte Antworten</translation>
    </message>
    <message>
        <source>Search answers</source>
        <translation>Antworten suchen</translation>
    </message>
    <message>
        <source>Show only the mode</source>
        <translation>Nur diesen Modus zeigen</translation>
    </message>
    <message>
        <source>All modes</source>
        <translation>Alle Modi</translation>
    </message>
    <message>
        <source>Show only answers</source>
        <translation>Nur diese Antworten zeigen</translation>
    </message>
    <message>
        <source>Mode of %1</source>
        <translation>Modus von %1</translation>
    </message>
    <message>
        <source>Nothing is learned yet. What you tell Fendrel in the dock, and what the language model answers, is listed here.</source>
        <translation>Noch ist nichts gelernt. Was du Fendrel im Dock sagst und was das Sprachmodell antwortet, steht dann hier.</translation>
    </message>
    <message>
        <source>No answer fits.</source>
        <translation>Keine Antwort passt.</translation>
    </message>
    <message numerus="yes">
        <source>%n answer(s)</source>
        <translation>
            <numerusform>%n Antwort</numerusform>
            <numerusform>%n Antworten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Forget All…</source>
        <translation>Alle vergessen …</translation>
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
    <name>AppearancePane</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Look to change</source>
        <translation>Aussehen bearbeiten für</translation>
    </message>
    <message>
        <source>The dock shows it while this page is open.</source>
        <translation>Das Dock zeigt es, solange diese Seite offen ist.</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>It is your own now. Another one takes its place.</source>
        <translation>Es ist jetzt dein eigenes. Ein anderes ersetzt es.</translation>
    </message>
    <message>
        <source>Choose one, and change below what you like.</source>
        <translation>Wähle eines und ändere unten, was du magst.</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigenes</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Icons do not grow while this is off in the dock&apos;s settings.</source>
        <translation>Symbole wachsen nicht, solange dies in den Einstellungen des Docks aus ist.</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>Cream</source>
        <translation>Creme</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Blassblau</translation>
    </message>
    <message>
        <source>Pale pink</source>
        <translation>Blassrosa</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Nothing shines through until a compositor runs on this desktop.</source>
        <translation>Nichts scheint durch, bis auf diesem Desktop ein Compositor läuft.</translation>
    </message>
    <message>
        <source>Text may be hard to read over some backgrounds.</source>
        <translation>Text kann über manchen Hintergründen schwer lesbar sein.</translation>
    </message>
    <message>
        <source>This desktop&apos;s compositor does not offer it.</source>
        <translation>Der Compositor dieses Desktops bietet das nicht.</translation>
    </message>
    <message>
        <source>This needs a compositor, and none runs on this desktop.</source>
        <translation>Das braucht einen Compositor, und auf diesem Desktop läuft keiner.</translation>
    </message>
</context>
<context>
    <name>Archive</name>
    <message>
        <source>This backup is damaged, and can&apos;t be read.</source>
        <translation>Diese Sicherung ist beschädigt und kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This file is not a Fendrel backup.</source>
        <translation>Diese Datei ist keine Fendrel-Sicherung.</translation>
    </message>
    <message>
        <source>This backup was made by a newer Fendrel. Update this one, then import it again.</source>
        <translation>Diese Sicherung stammt von einem neueren Fendrel. Aktualisiere dieses und importiere sie dann noch einmal.</translation>
    </message>
</context>
<context>
    <name>BrowsersPage</name>
    <message>
        <source>Your browser is connected</source>
        <translation>Dein Browser ist verbunden</translation>
    </message>
    <message>
        <source>Connect your browser</source>
        <translation>Verbinde deinen Browser</translation>
    </message>
    <message>
        <source>A small extension tells Fendrel which site is in front. It talks to Fendrel alone, and nothing of it leaves this computer. You can do this later as well.</source>
        <translation>Eine kleine Erweiterung sagt Fendrel, welche Website im Vordergrund ist. Sie spricht nur mit Fendrel, und nichts davon verlässt diesen Computer. Du kannst das auch später tun.</translation>
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
    <name>CalendarRow</name>
    <message>
        <source>Found by itself</source>
        <translation>Selbst gefunden</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Auswählen …</translation>
    </message>
</context>
<context>
    <name>CapabilityRow</name>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
</context>
<context>
    <name>Card</name>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <extracomment>Weather of now, the day&apos;s highest and lowest temperature.</extracomment>
        <translation>%1, %2 bis %3</translation>
    </message>
    <message>
        <source>Nothing sold yet</source>
        <translation>Noch nichts verkauft</translation>
    </message>
    <message numerus="yes">
        <source>%n sale(s)</source>
        <translation>
            <numerusform>%n Verkauf</numerusform>
            <numerusform>%n Verkäufe</numerusform>
        </translation>
    </message>
    <message>
        <source>at least, with %1</source>
        <translation>mindestens, mit %1</translation>
    </message>
    <message>
        <source>Rates by Exchange Rate API</source>
        <translation>Kurse von Exchange Rate API</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>%1 bereit</translation>
    </message>
    <message>
        <source>Building</source>
        <translation>Im Bau</translation>
    </message>
    <message>
        <source>%1 building</source>
        <translation>%1 wird gebaut</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Gescheitert</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 gescheitert</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>%1 canceled</source>
        <translation>%1 abgebrochen</translation>
    </message>
    <message>
        <source>Queued</source>
        <translation>In der Schlange</translation>
    </message>
    <message>
        <source>%1 queued</source>
        <translation>%1 wartet</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Dringend</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>No reviews waiting</source>
        <translation>Keine Reviews offen</translation>
    </message>
    <message numerus="yes">
        <source>review(s) waiting</source>
        <translation>
            <numerusform>Review offen</numerusform>
            <numerusform>Reviews offen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of your own</source>
        <translation>
            <numerusform>%n eigener</numerusform>
            <numerusform>%n eigene</numerusform>
        </translation>
    </message>
    <message>
        <source>No deploys yet</source>
        <translation>Noch keine Deploys</translation>
    </message>
    <message>
        <source>Nothing assigned</source>
        <translation>Nichts zugewiesen</translation>
    </message>
    <message numerus="yes">
        <source>%n assigned</source>
        <translation>
            <numerusform>%n zugewiesen</numerusform>
            <numerusform>%n zugewiesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n Ereignis</numerusform>
            <numerusform>%n Ereignisse</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n user(s)</source>
        <translation>
            <numerusform>%n Person</numerusform>
            <numerusform>%n Personen</numerusform>
        </translation>
    </message>
    <message>
        <source>No errors today</source>
        <translation>Heute keine Fehler</translation>
    </message>
    <message numerus="yes">
        <source>error(s) in 24 hours</source>
        <translation>
            <numerusform>Fehler in 24 Stunden</numerusform>
            <numerusform>Fehler in 24 Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A share in percent.</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 T</translation>
    </message>
    <message>
        <source>Refund</source>
        <translation>Erstattung</translation>
    </message>
    <message>
        <source>Checks passing</source>
        <translation>Prüfungen bestanden</translation>
    </message>
    <message>
        <source>Checks running</source>
        <translation>Prüfungen laufen</translation>
    </message>
    <message>
        <source>Checks failing</source>
        <translation>Prüfungen schlagen fehl</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>Schwerwiegend</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message numerus="yes">
        <source>review(s)</source>
        <translation>
            <numerusform>Review</numerusform>
            <numerusform>Reviews</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n overdue</source>
        <translation>
            <numerusform>%n überfällig</numerusform>
            <numerusform>%n überfällig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>error(s)</source>
        <translation>
            <numerusform>Fehler</numerusform>
            <numerusform>Fehler</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 ago</source>
        <translation>vor %1</translation>
    </message>
    <message>
        <source>Unlock your keyring</source>
        <translation>Schlüsselbund entsperren</translation>
    </message>
    <message>
        <source>The key for this card is in there.</source>
        <translation>Darin liegt der Schlüssel für diese Karte.</translation>
    </message>
    <message>
        <source>No keyring found</source>
        <translation>Kein Schlüsselbund gefunden</translation>
    </message>
    <message>
        <source>Keys are kept there and nowhere else.</source>
        <translation>Schlüssel liegen dort und nirgends sonst.</translation>
    </message>
    <message>
        <source>The keyring doesn&apos;t answer</source>
        <translation>Der Schlüsselbund antwortet nicht</translation>
    </message>
    <message>
        <source>Connect %1</source>
        <translation>%1 verbinden</translation>
    </message>
    <message>
        <source>Connect a payment provider</source>
        <translation>Zahlungsdienst verbinden</translation>
    </message>
    <message>
        <source>Weather data by Open-Meteo.com</source>
        <translation>Wetterdaten von Open-Meteo.com</translation>
    </message>
    <message>
        <source>Pick symbols</source>
        <translation>Symbole wählen</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>in progress</source>
        <translation>in Arbeit</translation>
    </message>
    <message>
        <source>assigned</source>
        <translation>zugewiesen</translation>
    </message>
    <message>
        <source>Due today</source>
        <translation>Heute fällig</translation>
    </message>
    <message>
        <source>tomorrow, all day</source>
        <translation>morgen, ganztägig</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>morgen</translation>
    </message>
    <message>
        <source>all day</source>
        <translation>ganztägig</translation>
    </message>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>now, %1 min left</source>
        <extracomment>An event that is under way.</extracomment>
        <translation>jetzt, noch %1 Min.</translation>
    </message>
    <message>
        <source>now, until %1</source>
        <translation>jetzt, bis %1</translation>
    </message>
    <message>
        <source>in %1 min</source>
        <translation>in %1 Min.</translation>
    </message>
    <message>
        <source>tomorrow at %1</source>
        <translation>morgen um %1</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>um %1</translation>
    </message>
    <message>
        <source>Nothing more today</source>
        <translation>Heute nichts mehr</translation>
    </message>
    <message>
        <source>All done for today</source>
        <translation>Für heute alles erledigt</translation>
    </message>
    <message>
        <source>due today</source>
        <translation>heute fällig</translation>
    </message>
    <message>
        <source>due</source>
        <translation>fällig</translation>
    </message>
    <message>
        <source>Fendrel may not read it</source>
        <translation>Fendrel darf nicht lesen</translation>
    </message>
    <message>
        <source>Show your calendar?</source>
        <translation>Kalender zeigen?</translation>
    </message>
    <message>
        <source>No calendar found</source>
        <translation>Kein Kalender gefunden</translation>
    </message>
    <message>
        <source>Show your reminders?</source>
        <translation>Erinnerungen zeigen?</translation>
    </message>
    <message>
        <source>No reminders found</source>
        <translation>Keine Erinnerungen gefunden</translation>
    </message>
    <message>
        <source>Other models</source>
        <translation>Andere Modelle</translation>
    </message>
    <message>
        <source>%1 an hour</source>
        <translation>%1 pro Stunde</translation>
    </message>
    <message>
        <source>No Claude Code logs found</source>
        <translation>Keine Logs von Claude Code</translation>
    </message>
    <message>
        <source>Looked in %1</source>
        <translation>Gesucht in %1</translation>
    </message>
    <message>
        <source>Nothing used yet today</source>
        <translation>Heute noch nichts verbraucht</translation>
    </message>
    <message>
        <source>tokens today</source>
        <translation>Token heute</translation>
    </message>
    <message numerus="yes">
        <source>%n reply(ies)</source>
        <translation>
            <numerusform>%n Antwort</numerusform>
            <numerusform>%n Antworten</numerusform>
        </translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>Press to allow</source>
        <translation>Hier erlauben</translation>
    </message>
    <message>
        <source>Press to change</source>
        <translation>Hier ändern</translation>
    </message>
    <message>
        <source>Press to pick</source>
        <translation>Hier auswählen</translation>
    </message>
    <message>
        <source>%1K</source>
        <translation>%1k</translation>
    </message>
    <message>
        <source>%1 tokens until %2</source>
        <extracomment>Tokens used since the start of a window of time, and when a new one begins: &quot;340K tokens until 7:00 PM&quot;</extracomment>
        <translation>%1 Token bis %2</translation>
    </message>
    <message>
        <source>%1/h</source>
        <extracomment>Tokens an hour, in few characters: &quot;170K/h&quot;</extracomment>
        <translation>%1/h</translation>
    </message>
    <message>
        <source>→ %1</source>
        <extracomment>When a window of time ends, in few characters: &quot;→ 18:00&quot;</extracomment>
        <translation>→ %1</translation>
    </message>
    <message>
        <source>tokens</source>
        <translation>Token</translation>
    </message>
</context>
<context>
    <name>ColorPicker</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Color code</source>
        <translation>Farbcode</translation>
    </message>
</context>
<context>
    <name>ColorWells</name>
    <message>
        <source>Another color</source>
        <translation>Andere Farbe</translation>
    </message>
</context>
<context>
    <name>Context</name>
    <message numerus="yes">
        <source>%n application(s)</source>
        <translation>
            <numerusform>%n Programm</numerusform>
            <numerusform>%n Programme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%n Dokument</numerusform>
            <numerusform>%n Dokumente</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ContextSettings</name>
    <message>
        <source>Bringing back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Nothing is remembered yet. It begins when you leave a mode after two minutes.</source>
        <translation>Noch ist nichts gemerkt. Es beginnt, wenn du einen Modus nach zwei Minuten verlässt.</translation>
    </message>
    <message>
        <source>Forget All…</source>
        <translation>Alles vergessen …</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>Forget what was open in %1</source>
        <translation>Vergessen, was in %1 offen war</translation>
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
    <name>DataSettings</name>
    <message>
        <source>Your data</source>
        <translation>Deine Daten</translation>
    </message>
    <message>
        <source>Show…</source>
        <translation>Zeigen …</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>File to import</source>
        <translation>Datei zum Importieren</translation>
    </message>
    <message>
        <source>Type where it is, or drop it here from the file manager.</source>
        <translation>Gib ein, wo sie liegt, oder ziehe sie aus dem Dateimanager hierher.</translation>
    </message>
    <message>
        <source>~/Documents/Fendrel Backup.json</source>
        <translation>~/Dokumente/Fendrel-Sicherung.json</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Undo Import</source>
        <translation>Import rückgängig machen</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
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
    <message>
        <source>Mist</source>
        <translation>Nebel</translation>
    </message>
    <message>
        <source>Blossom</source>
        <translation>Blüte</translation>
    </message>
    <message>
        <source>Dusk</source>
        <translation>Dämmerung</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Wald</translation>
    </message>
    <message>
        <source>Smoke</source>
        <translation>Rauch</translation>
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
    <message>
        <source>Dock Settings…</source>
        <translation>Dock-Einstellungen …</translation>
    </message>
</context>
<context>
    <name>DockPane</name>
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
        <source>Place and size</source>
        <translation>Ort und Größe</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Verhalten</translation>
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
    <name>DockWidget</name>
    <message>
        <source>Focus Timer</source>
        <translation>Fokus-Timer</translation>
    </message>
    <message>
        <source>Pomodoro: work, then a break. Click to start or pause. Also shows in the menu bar</source>
        <translation>Pomodoro: Arbeit, dann Pause. Klicken zum Starten oder Anhalten. Auch in der Menüleiste</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>The time, where the sun is in the sky, and other time zones</source>
        <translation>Die Zeit, der Stand der Sonne und andere Zeitzonen</translation>
    </message>
    <message>
        <source>Next Event</source>
        <translation>Nächster Termin</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Your next event, with a Join button for video calls</source>
        <translation>Dein nächster Termin, mit Knopf zum Beitreten bei Videoanrufen</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>Aktuelle Wiedergabe</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Music or Spotify with album art. Click to play or pause</source>
        <translation>Musik oder Spotify mit Albumcover. Klicken für Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>The last 10 things you copied. Click one to copy it again</source>
        <translation>Was du zuletzt kopiert hast, bis zu 10 Dinge. Klicken kopiert eines erneut</translation>
    </message>
    <message>
        <source>Quick Note</source>
        <translation>Kurznotiz</translation>
    </message>
    <message>
        <source>A sticky note that belongs to this mode</source>
        <translation>Ein Notizzettel, der zu diesem Modus gehört</translation>
    </message>
    <message>
        <source>GitHub</source>
        <translation>GitHub</translation>
    </message>
    <message>
        <source>Pull requests waiting for your review, and CI on yours</source>
        <translation>Pull Requests, die auf dein Review warten, und CI für deine</translation>
    </message>
    <message>
        <source>Word Count</source>
        <translation>Wortzahl</translation>
    </message>
    <message>
        <source>Words in the document you&apos;re typing in</source>
        <translation>Wörter im Dokument, in dem du schreibst</translation>
    </message>
    <message>
        <source>Revenue Today</source>
        <translation>Umsatz heute</translation>
    </message>
    <message>
        <source>Revenue</source>
        <translation>Umsatz</translation>
    </message>
    <message>
        <source>Today&apos;s sales from Stripe, Lemon Squeezy, Paddle or Dodo, hour by hour</source>
        <translation>Heutige Verkäufe bei Stripe, Lemon Squeezy, Paddle oder Dodo, Stunde für Stunde</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Battery, CPU and memory, with a live graph</source>
        <translation>Akku, CPU und Speicher, mit laufender Kurve</translation>
    </message>
    <message>
        <source>Countdown</source>
        <translation>Countdown</translation>
    </message>
    <message>
        <source>Days to a date you pick, and how much of the day, week and year is gone</source>
        <translation>Tage bis zu einem Datum deiner Wahl, und wie viel von Tag, Woche und Jahr vorbei ist</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Now and the next hours for your city, from Open-Meteo. No location access</source>
        <translation>Jetzt und die nächsten Stunden für deine Stadt, von Open-Meteo. Ohne Zugriff auf den Standort</translation>
    </message>
    <message>
        <source>Quick Toggles</source>
        <translation>Schnellschalter</translation>
    </message>
    <message>
        <source>Toggles</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Keep awake, dark mode, hide the desktop and mute, one click each</source>
        <translation>Wach halten, Dunkelmodus, Desktop ausblenden und stummschalten, je ein Klick</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Kurzbefehle</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Erinnerungen</translation>
    </message>
    <message>
        <source>What&apos;s due today. Tick it off or add one without opening Reminders</source>
        <translation>Was heute fällig ist. Hake ab oder füge hinzu, ohne die Erinnerungen zu öffnen</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Akkus</translation>
    </message>
    <message>
        <source>File Shelf</source>
        <translation>Dateiablage</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Park files here for later: drop them on the card, drag them out</source>
        <translation>Dateien für später parken: auf die Karte legen, wieder herausziehen</translation>
    </message>
    <message>
        <source>On Air</source>
        <translation>Auf Sendung</translation>
    </message>
    <message>
        <source>Lights up when any app uses your mic or camera. Mute the mic in one click</source>
        <translation>Leuchtet, wenn ein Programm Mikrofon oder Kamera benutzt. Mikrofon mit einem Klick stumm</translation>
    </message>
    <message>
        <source>Today&apos;s Focus</source>
        <translation>Fokus heute</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Time in each mode today, drifts you stopped, and what&apos;s left of your budgets</source>
        <translation>Heutige Zeit in jedem Modus, abgewehrte Ablenkungen und was von deinen Budgets übrig ist</translation>
    </message>
    <message>
        <source>Intention</source>
        <translation>Vorhaben</translation>
    </message>
    <message>
        <source>The one thing you mean to finish in this mode. Tick it off when it&apos;s done</source>
        <translation>Das eine, das du in diesem Modus schaffen willst. Hake es ab, wenn es fertig ist</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>KI-Nutzung</translation>
    </message>
    <message>
        <source>AI</source>
        <translation>KI</translation>
    </message>
    <message>
        <source>Deploys</source>
        <translation>Deploys</translation>
    </message>
    <message>
        <source>Your latest Vercel deploys: building, ready or failed</source>
        <translation>Deine letzten Deploys bei Vercel: im Bau, bereit oder fehlgeschlagen</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Linear issues assigned to you, the ones in progress first</source>
        <translation>Linear-Issues, die dir zugewiesen sind, die in Arbeit zuerst</translation>
    </message>
    <message>
        <source>Sentry</source>
        <translation>Sentry</translation>
    </message>
    <message>
        <source>Unresolved Sentry errors from the last 24 hours, the loudest first</source>
        <translation>Ungelöste Sentry-Fehler der letzten 24 Stunden, die häufigsten zuerst</translation>
    </message>
    <message>
        <source>Focus Garden</source>
        <translation>Fokusgarten</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Garten</translation>
    </message>
    <message>
        <source>A plant that grows from a seed to full bloom with your focus time today</source>
        <translation>Eine Pflanze, die mit deiner heutigen Fokuszeit vom Samen zur vollen Blüte wächst</translation>
    </message>
    <message>
        <source>Photo Frame</source>
        <translation>Bilderrahmen</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Pictures from a folder you pick, a new one every ten minutes</source>
        <translation>Bilder aus einem Ordner deiner Wahl, alle zehn Minuten ein neues</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Himmel</translation>
    </message>
    <message>
        <source>Sunrise, sunset, where the sun is, and the moon&apos;s phase for your city</source>
        <translation>Sonnenaufgang, Sonnenuntergang, Sonnenstand und Mondphase für deine Stadt</translation>
    </message>
    <message>
        <source>Decide</source>
        <translation>Entscheiden</translation>
    </message>
    <message>
        <source>Flip a coin, roll a die, yes or no, or pick from your own list</source>
        <translation>Wirf eine Münze, würfle, frage Ja oder Nein oder ziehe aus deiner eigenen Liste</translation>
    </message>
    <message>
        <source>Daily Line</source>
        <translation>Impuls des Tages</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Impuls</translation>
    </message>
    <message>
        <source>A word, a question or a quote for the day. Offline</source>
        <translation>Ein Wort, eine Frage oder ein Zitat für den Tag. Offline</translation>
    </message>
    <message>
        <source>Ticker</source>
        <translation>Ticker</translation>
    </message>
    <message>
        <source>Stocks, indexes and crypto you pick, with today&apos;s move</source>
        <translation>Aktien, Indizes und Krypto deiner Wahl, mit der heutigen Bewegung</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Time &amp; Calendar</source>
        <translation>Zeit &amp; Kalender</translation>
    </message>
    <message>
        <source>Everyday</source>
        <translation>Alltag</translation>
    </message>
    <message>
        <source>Fun</source>
        <translation>Spaß</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Building</source>
        <translation>Entwickeln</translation>
    </message>
    <message>
        <source>Business</source>
        <translation>Geschäft</translation>
    </message>
    <message>
        <source>Run your Apple Shortcuts from the dock. Pin up to four</source>
        <translation>Führt deine Apple-Kurzbefehle aus dem Dock aus. Bis zu vier lassen sich anheften</translation>
    </message>
    <message>
        <source>Your Mac, AirPods, mouse and keyboard at a glance</source>
        <translation>Dein Mac, AirPods, Maus und Tastatur auf einen Blick</translation>
    </message>
    <message>
        <source>Claude Code&apos;s tokens today and in your five-hour window, from its logs on this Mac</source>
        <translation>Tokens von Claude Code heute und in deinem Fünf-Stunden-Fenster, aus den Protokollen auf diesem Mac</translation>
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
    <name>DryRun</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>What would happen</source>
        <translation>Was geschehen würde</translation>
    </message>
    <message>
        <source>Where the applications that you used in the last day would go. Changes show at once.</source>
        <translation>Wohin die Programme kämen, die du in den letzten 24 Stunden benutzt hast. Änderungen zeigen sich sofort.</translation>
    </message>
    <message>
        <source>The applications that you use show here, with the mode that each would go to.</source>
        <translation>Hier erscheinen die Programme, die du benutzt, mit dem Modus, in den sie kämen.</translation>
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
    <name>EventCard</name>
    <message>
        <source>Join</source>
        <translation>Beitreten</translation>
    </message>
    <message>
        <source>Join %1</source>
        <translation>%1 beitreten</translation>
    </message>
</context>
<context>
    <name>Feed</name>
    <message>
        <source>Pick your city</source>
        <translation>Wähle deine Stadt</translation>
    </message>
    <message>
        <source>Can&apos;t reach Open-Meteo</source>
        <translation>Open-Meteo ist nicht erreichbar</translation>
    </message>
    <message>
        <source>GitHub didn&apos;t accept the token</source>
        <translation>GitHub hat das Token nicht angenommen</translation>
    </message>
    <message>
        <source>GitHub sent no data</source>
        <translation>GitHub hat keine Daten geschickt</translation>
    </message>
    <message>
        <source>No Sentry organization</source>
        <translation>Keine Organisation bei Sentry</translation>
    </message>
    <message>
        <source>Bad Sentry address</source>
        <translation>Ungültige Adresse von Sentry</translation>
    </message>
    <message>
        <source>Linear sent no data</source>
        <translation>Linear hat keine Daten geschickt</translation>
    </message>
    <message>
        <source>Couldn&apos;t load %1</source>
        <translation>%1 konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Bad date</source>
        <translation>Ungültiges Datum</translation>
    </message>
    <message>
        <source>%1 sent something unexpected</source>
        <translation>%1 hat etwas Unerwartetes geschickt</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach %1</source>
        <translation>%1 ist nicht erreichbar</translation>
    </message>
    <message>
        <source>%1 didn&apos;t accept the key</source>
        <translation>%1 hat den Schlüssel nicht angenommen</translation>
    </message>
    <message>
        <source>%1 answered %2</source>
        <translation>%1 hat mit %2 geantwortet</translation>
    </message>
    <message>
        <source>Untitled event</source>
        <translation>Termin ohne Titel</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
</context>
<context>
    <name>FirstRunView</name>
    <message>
        <source>Start</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
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
        <source>Focus session, %1 left, until %2</source>
        <translation>Fokussitzung, noch %1, bis %2</translation>
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
    <name>GeneralPane</name>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Switching modes during focus never waits.</source>
        <translation>Im Fokus wechselst du den Modus ohne Wartezeit.</translation>
    </message>
    <message>
        <source>Switching modes during focus waits as long as the mode says.</source>
        <translation>Im Fokus dauert ein Wechsel so lange, wie der Modus es vorgibt.</translation>
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
        <source>Switching</source>
        <translation>Wechseln</translation>
    </message>
    <message>
        <source>Sound and start</source>
        <translation>Ton und Start</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Crash reports</source>
        <translation>Absturzberichte</translation>
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
    <name>InputField</name>
    <message>
        <source>Clear</source>
        <translation>Klar</translation>
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
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
</context>
<context>
    <name>KeyboardSettings</name>
    <message>
        <source>Hot keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>⌃ is Control, ⌥ is Alt, ⇧ is Shift and ⌘ is the Super key.</source>
        <translation>⌃ ist Control, ⌥ ist Alt, ⇧ ist Shift und ⌘ ist die Super-Taste.</translation>
    </message>
</context>
<context>
    <name>ListCard</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Add a reminder</source>
        <translation>Erinnerung hinzufügen</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Modes…</source>
        <translation>Modi …</translation>
    </message>
    <message>
        <source>Quit Fendrel</source>
        <translation>Fendrel beenden</translation>
    </message>
    <message>
        <source>Switching to %1 in %2 s</source>
        <translation>Wechsel zu %1 in %2 s</translation>
    </message>
    <message>
        <source>Shorten the Wait</source>
        <translation>Warten verkürzen</translation>
    </message>
    <message>
        <source>Stay in %1</source>
        <translation>Bei %1 bleiben</translation>
    </message>
    <message>
        <source>Focus for %1 Minutes</source>
        <translation>%1 Minuten Fokus</translation>
    </message>
    <message>
        <source>Until %1</source>
        <translation>Bis %1</translation>
    </message>
    <message>
        <source>Focus Until</source>
        <translation>Fokus bis</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>Fokus beginnen</translation>
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
        <source>Until I End It</source>
        <translation>Bis ich ihn beende</translation>
    </message>
    <message>
        <source>Focus Longer</source>
        <translation>Fokus verlängern</translation>
    </message>
    <message>
        <source>Held Messages (%1)…</source>
        <translation>Zurückgehaltene Nachrichten (%1) …</translation>
    </message>
    <message>
        <source>Held Messages (%1)</source>
        <translation>Zurückgehaltene Nachrichten (%1)</translation>
    </message>
    <message>
        <source>%1 (%2)…</source>
        <translation>%1 (%2) …</translation>
    </message>
</context>
<context>
    <name>MessageSettings</name>
    <message>
        <source>Messages of other modes are held.</source>
        <translation>Nachrichten anderer Modi werden zurückgehalten.</translation>
    </message>
    <message>
        <source>Found by itself</source>
        <translation>Wird von selbst gefunden</translation>
    </message>
    <message>
        <source>Connected. It judges what the modes&apos; lists don&apos;t name.</source>
        <translation>Verbunden. Es beurteilt, was die Listen der Modi nicht nennen.</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Language model</source>
        <translation>Sprachmodell</translation>
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
    <name>ModeAppearance</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the dock and the menus call this mode.</source>
        <translation>Wie das Dock und die Menüs diesen Modus nennen.</translation>
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
        <translation>Kennzeichnet den Modus, wo immer er erscheint.</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Ändern …</translation>
    </message>
</context>
<context>
    <name>ModeApps</name>
    <message>
        <source>Applications</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Let go to add it to this mode.</source>
        <translation>Loslassen, um es diesem Modus hinzuzufügen.</translation>
    </message>
    <message>
        <source>They are in the dock while you are in this mode. Drag more of them here, or search.</source>
        <translation>Sie sind im Dock, während du in diesem Modus bist. Ziehe weitere hierher oder suche.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen …</translation>
    </message>
</context>
<context>
    <name>ModeCard</name>
    <message>
        <source>Web sites only, so far</source>
        <translation>Bisher nur Websites</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Hast du schon</translation>
    </message>
</context>
<context>
    <name>ModeList</name>
    <message>
        <source>Current mode</source>
        <translation>Aktueller Modus</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Wait before entering</source>
        <translation>Warten vor dem Wechsel</translation>
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
        <source>Duplicate this mode</source>
        <translation>Diesen Modus duplizieren</translation>
    </message>
    <message>
        <source>Makes another one with the same applications, web sites and widgets.</source>
        <translation>Erstellt einen weiteren mit denselben Programmen, Websites und Widgets.</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Delete this mode</source>
        <translation>Diesen Modus löschen</translation>
    </message>
    <message>
        <source>You can undo this for a moment.</source>
        <translation>Du kannst das kurz danach rückgängig machen.</translation>
    </message>
    <message>
        <source>There has to be one, and this is the last.</source>
        <translation>Einen muss es geben, und dies ist der letzte.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
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
        <translation>
            <numerusform>%n zurückgehaltene Nachricht</numerusform>
            <numerusform>%n zurückgehaltene Nachrichten</numerusform>
        </translation>
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
    <name>ModeSites</name>
    <message>
        <source>Web sites</source>
        <translation>Websites</translation>
    </message>
    <message>
        <source>Type or paste addresses. What is below a site, such as docs.example.org, belongs to it.</source>
        <translation>Gib Adressen ein oder füge sie ein. Was unter einer Website liegt, etwa docs.example.org, gehört dazu.</translation>
    </message>
    <message>
        <source>Address of a web site</source>
        <translation>Adresse einer Website</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>ModeWidgets</name>
    <message>
        <source>Widgets</source>
        <translation>Widgets</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Search widgets</source>
        <translation>Widgets suchen</translation>
    </message>
    <message>
        <source>No widget is found</source>
        <translation>Kein Widget gefunden</translation>
    </message>
    <message>
        <source>Small cards in the dock while you are in this mode.</source>
        <translation>Kleine Karten im Dock, während du in diesem Modus bist.</translation>
    </message>
</context>
<context>
    <name>ModelServer</name>
    <message>
        <source>“%1” is no address of a model server. An address looks like localhost:8080.</source>
        <translation>„%1“ ist keine Adresse eines Modellservers. Eine Adresse sieht aus wie localhost:8080.</translation>
    </message>
    <message>
        <source>Only a model server on this machine is asked, and “%1” is elsewhere.</source>
        <translation>Gefragt wird nur ein Modellserver auf diesem Computer, und „%1“ ist anderswo.</translation>
    </message>
    <message>
        <source>A language model server on this machine is being looked for.</source>
        <translation>Auf diesem Computer wird ein Sprachmodell-Server gesucht.</translation>
    </message>
    <message>
        <source>No language model server answers on this machine.</source>
        <translation>Auf diesem Computer antwortet kein Sprachmodell-Server.</translation>
    </message>
    <message>
        <source>No model server answers at %1.</source>
        <translation>Unter %1 antwortet kein Modellserver.</translation>
    </message>
    <message>
        <source>The model server at %1 is still loading its model.</source>
        <translation>Der Modellserver unter %1 lädt sein Modell noch.</translation>
    </message>
    <message>
        <source>What answers at %1 is no model server.</source>
        <translation>Was unter %1 antwortet, ist kein Modellserver.</translation>
    </message>
    <message>
        <source>The model server at %1 has no model to ask.</source>
        <translation>Der Modellserver unter %1 hat kein Modell, das man fragen könnte.</translation>
    </message>
    <message>
        <source>The model server at %1 doesn&apos;t have the model “%2”.</source>
        <translation>Der Modellserver unter %1 hat das Modell „%2“ nicht.</translation>
    </message>
    <message>
        <source>Only a model on this machine is asked, and “%1” runs elsewhere.</source>
        <translation>Gefragt wird nur ein Modell auf diesem Computer, und „%1“ läuft anderswo.</translation>
    </message>
    <message>
        <source>There is no language model on this computer.</source>
        <translation>Auf diesem Computer gibt es kein Sprachmodell.</translation>
    </message>
</context>
<context>
    <name>ModesPage</name>
    <message>
        <source>What do you want to get done?</source>
        <translation>Was möchtest du schaffen?</translation>
    </message>
    <message>
        <source>These are the modes that Fendrel has ready. Yours stay as they are; what you pick here is added.</source>
        <translation>Diese Modi bringt Fendrel mit. Deine bleiben, wie sie sind; was du hier auswählst, kommt dazu.</translation>
    </message>
    <message>
        <source>Pick the modes to start with. Fendrel keeps you in one of them at a time, and asks before you drift into another. Applications can be added and removed later, in the dock.</source>
        <translation>Wähle die Modi, mit denen du beginnst. Fendrel hält dich immer in einem davon und fragt, bevor du in einen anderen abschweifst. Programme kannst du später im Dock hinzufügen und entfernen.</translation>
    </message>
</context>
<context>
    <name>ModesPane</name>
    <message numerus="yes">
        <source>%n application(s)</source>
        <translation>
            <numerusform>%n Programm</numerusform>
            <numerusform>%n Programme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n web site(s)</source>
        <translation>
            <numerusform>%n Website</numerusform>
            <numerusform>%n Websites</numerusform>
        </translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>%1 bearbeiten</translation>
    </message>
    <message>
        <source>Edit Modes…</source>
        <translation>Modi bearbeiten …</translation>
    </message>
</context>
<context>
    <name>ModesView</name>
    <message>
        <source>Add Mode</source>
        <translation>Modus hinzufügen</translation>
    </message>
</context>
<context>
    <name>MomentText</name>
    <message>
        <source>Yesterday, %1</source>
        <translation>Gestern, %1</translation>
    </message>
</context>
<context>
    <name>NoticeCard</name>
    <message>
        <source>Fendrel undo</source>
        <translation>Fendrel: Rückgängig</translation>
    </message>
    <message>
        <source>Fendrel notice</source>
        <translation>Fendrel: Hinweis</translation>
    </message>
</context>
<context>
    <name>Notifications</name>
    <message>
        <source>Fendrel can&apos;t reach the session bus, so it doesn&apos;t see notifications (%1).</source>
        <translation>Fendrel erreicht den Sitzungsbus nicht und sieht deshalb keine Mitteilungen (%1).</translation>
    </message>
    <message>
        <source>The session bus doesn&apos;t let Fendrel see notifications (%1).</source>
        <translation>Der Sitzungsbus lässt Fendrel keine Mitteilungen sehen (%1).</translation>
    </message>
    <message>
        <source>The connection to the session bus was lost. Start Fendrel again to see notifications.</source>
        <translation>Die Verbindung zum Sitzungsbus ist abgerissen. Starte Fendrel neu, um Mitteilungen zu sehen.</translation>
    </message>
    <message>
        <source>Notifications can&apos;t be kept (%1).</source>
        <translation>Mitteilungen können nicht aufbewahrt werden (%1).</translation>
    </message>
    <message>
        <source>This system doesn&apos;t tell which notifications were shown.</source>
        <translation>Dieses System verrät nicht, welche Mitteilungen gezeigt wurden.</translation>
    </message>
</context>
<context>
    <name>PermissionsPane</name>
    <message>
        <source>What Fendrel makes use of on this computer. It works without any one of these, only with less.</source>
        <translation>Was Fendrel auf diesem Computer nutzt. Es läuft auch, wenn etwas davon fehlt, kann dann nur weniger.</translation>
    </message>
</context>
<context>
    <name>ProblemsPage</name>
    <message>
        <source>A few things to know</source>
        <translation>Gut zu wissen</translation>
    </message>
    <message>
        <source>Everything is ready</source>
        <translation>Alles ist bereit</translation>
    </message>
    <message>
        <source>Fendrel works without these. What is missing now can come later; the settings show it under Permissions.</source>
        <translation>Fendrel läuft auch ohne diese. Was jetzt fehlt, kann später dazukommen; die Einstellungen zeigen es unter „Berechtigungen“.</translation>
    </message>
    <message>
        <source>This computer has all that Fendrel makes use of. The settings show it under Permissions.</source>
        <translation>Dieser Computer hat alles, was Fendrel nutzt. Die Einstellungen zeigen es unter „Berechtigungen“.</translation>
    </message>
    <message>
        <source>Nothing is left to do here.</source>
        <translation>Hier ist nichts mehr zu tun.</translation>
    </message>
</context>
<context>
    <name>ReminderField</name>
    <message>
        <source>Fendrel reminder</source>
        <translation>Fendrel: Erinnerung</translation>
    </message>
    <message>
        <source>New reminder</source>
        <translation>Neue Erinnerung</translation>
    </message>
    <message>
        <source>To be done today</source>
        <translation>Heute zu erledigen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>ResetButton</name>
    <message>
        <source>Reset to Defaults…</source>
        <translation>Auf Standard zurücksetzen …</translation>
    </message>
</context>
<context>
    <name>SearchResults</name>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>Nothing here is called “%1”. Perhaps in other words?</source>
        <translation>Hier heißt nichts „%1“. Vielleicht mit anderen Worten?</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, in %2</translation>
    </message>
</context>
<context>
    <name>SettingsCatalog</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Focus, messages, hot keys and what concerns all of Fendrel.</source>
        <translation>Fokus, Nachrichten, Tastenkürzel und was ganz Fendrel betrifft.</translation>
    </message>
    <message>
        <source>Strictness</source>
        <translation>Strenge</translation>
    </message>
    <message>
        <source>How firmly Fendrel holds you to your mode during focus.</source>
        <translation>Wie fest Fendrel dich im Fokus in deinem Modus hält.</translation>
    </message>
    <message>
        <source>gentle balanced strict drift wait block</source>
        <translation>sanft ausgewogen streng ablenkung warten sperren</translation>
    </message>
    <message>
        <source>Glow during focus</source>
        <translation>Leuchten im Fokus</translation>
    </message>
    <message>
        <source>The edges of the screen shine in the mode&apos;s color while a focus session runs.</source>
        <translation>Die Bildschirmränder leuchten in der Farbe des Modus, während eine Fokussitzung läuft.</translation>
    </message>
    <message>
        <source>light border shine</source>
        <translation>licht rand leuchten</translation>
    </message>
    <message>
        <source>Tidy up when switching</source>
        <translation>Beim Wechseln aufräumen</translation>
    </message>
    <message>
        <source>Hides the applications that don&apos;t belong to the new mode.</source>
        <translation>Blendet die Programme aus, die nicht zum neuen Modus gehören.</translation>
    </message>
    <message>
        <source>hide windows clean change mode</source>
        <translation>ausblenden fenster aufräumen wechseln modus</translation>
    </message>
    <message>
        <source>Always let through</source>
        <translation>Immer durchlassen</translation>
    </message>
    <message>
        <source>Messages with one of these words show at once. Commas between them.</source>
        <translation>Nachrichten mit einem dieser Wörter erscheinen sofort. Kommas dazwischen.</translation>
    </message>
    <message>
        <source>notifications urgent words important</source>
        <translation>benachrichtigungen dringend wörter wichtig</translation>
    </message>
    <message>
        <source>Never hold critical messages</source>
        <translation>Kritische Nachrichten nie zurückhalten</translation>
    </message>
    <message>
        <source>What the system itself calls critical, such as an empty battery, is left alone.</source>
        <translation>Was das System selbst kritisch nennt, etwa einen leeren Akku, bleibt unberührt.</translation>
    </message>
    <message>
        <source>notifications battery disk warning</source>
        <translation>benachrichtigungen akku batterie festplatte warnung</translation>
    </message>
    <message>
        <source>Quiet the desktop&apos;s banners</source>
        <translation>Banner des Desktops stummschalten</translation>
    </message>
    <message>
        <source>While messages are held, the desktop shows none at all, those of the current mode neither.</source>
        <translation>Solange Nachrichten zurückgehalten werden, zeigt der Desktop gar keine, auch nicht die des aktuellen Modus.</translation>
    </message>
    <message>
        <source>notifications do not disturb silence</source>
        <translation>benachrichtigungen nicht stören ruhe stumm</translation>
    </message>
    <message>
        <source>Pings from coding agents</source>
        <translation>Hinweise von Coding-Agenten</translation>
    </message>
    <message>
        <source>terminal assistant notifications</source>
        <translation>terminal assistent benachrichtigungen</translation>
    </message>
    <message>
        <source>Model server</source>
        <translation>Modellserver</translation>
    </message>
    <message>
        <source>Address of a language model on this computer. No other is ever asked.</source>
        <translation>Adresse eines Sprachmodells auf diesem Computer. Ein anderes wird nie gefragt.</translation>
    </message>
    <message>
        <source>ai language judge address port</source>
        <translation>ki sprache beurteilen adresse port</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>Modellname</translation>
    </message>
    <message>
        <source>Which of its models to ask.</source>
        <translation>Welches seiner Modelle gefragt wird.</translation>
    </message>
    <message>
        <source>ai language judge</source>
        <translation>ki sprache beurteilen</translation>
    </message>
    <message>
        <source>Start or stop focus</source>
        <translation>Fokus beginnen oder beenden</translation>
    </message>
    <message>
        <source>Works in every application.</source>
        <translation>Geht in jedem Programm.</translation>
    </message>
    <message>
        <source>keyboard shortcut hot key session</source>
        <translation>tastatur tastenkürzel tastenkombination sitzung</translation>
    </message>
    <message>
        <source>Go to the dock</source>
        <translation>Zum Dock gehen</translation>
    </message>
    <message>
        <source>Leads the keyboard to the dock and back.</source>
        <translation>Führt die Tastatur zum Dock und zurück.</translation>
    </message>
    <message>
        <source>keyboard shortcut hot key</source>
        <translation>tastatur tastenkürzel tastenkombination</translation>
    </message>
    <message>
        <source>Switch to a mode</source>
        <translation>Zu einem Modus wechseln</translation>
    </message>
    <message>
        <source>These keys with 1 to 9 switch to the modes in their order.</source>
        <translation>Diese Tasten mit 1 bis 9 wechseln zu den Modi in ihrer Reihenfolge.</translation>
    </message>
    <message>
        <source>keyboard shortcut hot key modifiers number</source>
        <translation>tastatur tastenkürzel tastenkombination sondertasten zahl</translation>
    </message>
    <message>
        <source>Open an application</source>
        <translation>Ein Programm öffnen</translation>
    </message>
    <message>
        <source>These keys with 1 to 9 open the dock&apos;s applications in their order.</source>
        <translation>Diese Tasten mit 1 bis 9 öffnen die Programme im Dock in ihrer Reihenfolge.</translation>
    </message>
    <message>
        <source>Play sounds</source>
        <translation>Töne abspielen</translation>
    </message>
    <message>
        <source>audio cue noise mute</source>
        <translation>audio ton klang geräusch stumm</translation>
    </message>
    <message>
        <source>Start at log-in</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>Fendrel is there as soon as you are.</source>
        <translation>Fendrel ist da, sobald du da bist.</translation>
    </message>
    <message>
        <source>login automatically launch autostart boot</source>
        <translation>anmeldung login automatisch starten autostart hochfahren</translation>
    </message>
    <message>
        <source>Offer to send crash reports</source>
        <translation>Senden von Absturzberichten anbieten</translation>
    </message>
    <message>
        <source>Asks after a crash, and opens your mail app with the report for you to read first.</source>
        <translation>Fragt nach einem Absturz und öffnet dein Mailprogramm mit dem Bericht, damit du ihn zuerst lesen kannst.</translation>
    </message>
    <message>
        <source>error problem mail privacy</source>
        <translation>fehler problem mail datenschutz</translation>
    </message>
    <message>
        <source>Learned answers</source>
        <translation>Gelernte Antworten</translation>
    </message>
    <message>
        <source>What Fendrel remembers of applications and sites, for you to correct.</source>
        <translation>Was Fendrel sich zu Programmen und Websites merkt, damit du es berichtigen kannst.</translation>
    </message>
    <message>
        <source>judgement verdict forget memory correction</source>
        <translation>beurteilung urteil vergessen gedächtnis korrektur</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>backup save file move computer</source>
        <translation>backup sicherung speichern datei umziehen computer</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Replaces yours by those of such a file. You are asked first.</source>
        <translation>Ersetzt deine durch die aus einer solchen Datei. Du wirst vorher gefragt.</translation>
    </message>
    <message>
        <source>backup restore load file</source>
        <translation>backup sicherung wiederherstellen laden datei einspielen</translation>
    </message>
    <message>
        <source>Dock</source>
        <translation>Dock</translation>
    </message>
    <message>
        <source>Where the dock is, and what it does.</source>
        <translation>Wo das Dock ist und was es tut.</translation>
    </message>
    <message>
        <source>panel bar taskbar</source>
        <translation>panel leiste taskleiste</translation>
    </message>
    <message>
        <source>Replace the system dock</source>
        <translation>System-Dock ersetzen</translation>
    </message>
    <message>
        <source>Hides the desktop&apos;s own dock while Fendrel runs.</source>
        <translation>Blendet das eigene Dock des Desktops aus, solange Fendrel läuft.</translation>
    </message>
    <message>
        <source>panel taskbar hide minimized trash</source>
        <translation>panel leiste taskleiste ausblenden verstecken minimiert papierkorb</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>The edge of the screen that the dock is at.</source>
        <translation>Der Bildschirmrand, an dem das Dock ist.</translation>
    </message>
    <message>
        <source>bottom left right side edge</source>
        <translation>unten links rechts seite rand</translation>
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
        <source>small medium large big icons</source>
        <translation>klein mittel groß symbole icons</translation>
    </message>
    <message>
        <source>Show on</source>
        <translation>Zeigen auf</translation>
    </message>
    <message>
        <source>The main display, the one you work on, or all of them.</source>
        <translation>Dem Hauptbildschirm, dem, an dem du arbeitest, oder allen.</translation>
    </message>
    <message>
        <source>monitor screen display main active all</source>
        <translation>monitor bildschirm anzeige haupt aktiv alle</translation>
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
        <source>autohide show pointer</source>
        <translation>automatisch ausblenden verstecken einblenden zeigen zeiger maus</translation>
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
        <source>magnification zoom larger</source>
        <translation>vergrößerung lupe zoom größer</translation>
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
        <source>minimize application</source>
        <translation>minimieren programm anwendung app</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>How the dock looks.</source>
        <translation>Wie das Dock aussieht.</translation>
    </message>
    <message>
        <source>color theme style</source>
        <translation>farbe design thema stil aussehen</translation>
    </message>
    <message>
        <source>Look of the dock</source>
        <translation>Aussehen des Docks</translation>
    </message>
    <message>
        <source>Its color, opacity, corners, shadow and spacing.</source>
        <translation>Farbe, Deckkraft, Ecken, Schatten und Abstände.</translation>
    </message>
    <message>
        <source>Look of the dock in dark mode</source>
        <translation>Aussehen des Docks bei Dunkel</translation>
    </message>
    <message>
        <source>A look of its own for when the desktop is dark.</source>
        <translation>Ein eigenes Aussehen, wenn der Desktop dunkel ist.</translation>
    </message>
    <message>
        <source>night black theme</source>
        <translation>nacht schwarz dunkel dunkelmodus design thema</translation>
    </message>
    <message>
        <source>Match light and dark mode</source>
        <translation>An Hell und Dunkel anpassen</translation>
    </message>
    <message>
        <source>The dock has a look of its own for each, and changes with the desktop.</source>
        <translation>Das Dock hat für beides ein eigenes Aussehen und wechselt mit dem Desktop.</translation>
    </message>
    <message>
        <source>night theme automatic</source>
        <translation>nacht design thema automatisch dunkelmodus</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Widgets</translation>
    </message>
    <message>
        <source>What the dock shows beside your applications.</source>
        <translation>Was das Dock neben deinen Programmen zeigt.</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
    <message>
        <source>Your modes, and the applications and web sites of each.</source>
        <translation>Deine Modi mit ihren Programmen und Websites.</translation>
    </message>
    <message>
        <source>applications apps sites name color symbol delay allowance template</source>
        <translation>programme anwendungen apps websites webseiten name farbe symbol wartezeit verzögerung budget vorlage</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>The services that widgets ask for you.</source>
        <translation>Die Dienste, die Widgets für dich abfragen.</translation>
    </message>
    <message>
        <source>key token password sign in keyring</source>
        <translation>schlüssel token passwort kennwort anmelden schlüsselbund</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Berechtigungen</translation>
    </message>
    <message>
        <source>What works on this system, and how to get what is missing.</source>
        <translation>Was auf diesem System funktioniert und wie du bekommst, was fehlt.</translation>
    </message>
    <message>
        <source>browser extension notifications titles keyring calendar model server hot keys</source>
        <translation>browser erweiterung benachrichtigungen titel schlüsselbund kalender sprachmodell modellserver tastenkürzel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>The version, the licenses, and where Fendrel keeps its files.</source>
        <translation>Die Version, die Lizenzen und wo Fendrel seine Dateien hat.</translation>
    </message>
    <message>
        <source>version license files diagnostics help privacy</source>
        <translation>version lizenz dateien diagnose hilfe datenschutz</translation>
    </message>
    <message>
        <source>Kept for when Fendrel hears of coding agents.</source>
        <translation>Wird aufgehoben, bis Fendrel von Coding-Agenten hört.</translation>
    </message>
    <message>
        <source>A short sound when focus starts or stops, when the mode changes, and when a message is let through.</source>
        <translation>Ein kurzer Ton, wenn der Fokus beginnt oder endet, wenn der Modus wechselt und wenn eine Nachricht durchgelassen wird.</translation>
    </message>
    <message>
        <source>Show the first steps again</source>
        <translation>Erste Schritte noch einmal zeigen</translation>
    </message>
    <message>
        <source>Adds modes and connects browsers. What you have stays as it is.</source>
        <translation>Fügt Modi hinzu und verbindet Browser. Was du hast, bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>welcome setup introduction</source>
        <translation>willkommen einrichtung einführung</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>vorlage</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Symbolgröße</translation>
    </message>
    <message>
        <source>On top of the size chosen for the dock.</source>
        <translation>Zusätzlich zur Größe, die für das Dock gewählt ist.</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>How large the icon under the pointer grows.</source>
        <translation>Wie groß das Symbol unter dem Zeiger wird.</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>The room between icons.</source>
        <translation>Der Platz zwischen den Symbolen.</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Ecken</translation>
    </message>
    <message>
        <source>How round they are.</source>
        <translation>Wie rund sie sind.</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Text on it becomes light or dark to suit.</source>
        <translation>Text darauf wird passend hell oder dunkel.</translation>
    </message>
    <message>
        <source>background</source>
        <translation>hintergrund</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>How little of what lies behind shines through.</source>
        <translation>Wie wenig von dem durchscheint, was dahinter liegt.</translation>
    </message>
    <message>
        <source>transparency</source>
        <translation>transparenz durchsichtig</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Unschärfe</translation>
    </message>
    <message>
        <source>Softens what shines through.</source>
        <translation>Macht weicher, was durchscheint.</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>How dark it is.</source>
        <translation>Wie dunkel er ist.</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>How strong the thin line around the dock is.</source>
        <translation>Wie kräftig die dünne Linie um das Dock ist.</translation>
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
        <source>Writes modes, settings and learned answers to a file, without keys of accounts.</source>
        <translation>Schreibt Modi, Einstellungen und gelernte Antworten in eine Datei, ohne die Schlüssel der Konten.</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>The weather widget shows its weather, in the temperature unit that your system uses.</source>
        <translation>Das Wetter-Widget zeigt ihr Wetter, in der Temperatureinheit deines Systems.</translation>
    </message>
    <message>
        <source>weather forecast temperature place town location</source>
        <translation>Wetter Vorhersage Temperatur Ort Stadt Standort</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>The ticker widget follows up to 20 of them, such as AAPL, ^GSPC or BTC-USD. Commas or spaces between them.</source>
        <translation>Das Ticker-Widget verfolgt bis zu 20 davon, etwa AAPL, ^GSPC oder BTC-USD. Dazwischen Kommas oder Leerzeichen.</translation>
    </message>
    <message>
        <source>ticker stocks shares index crypto finance quotes market</source>
        <translation>Ticker Aktien Börse Index Krypto Finanzen Kurse Markt</translation>
    </message>
    <message>
        <source>What was open in your modes</source>
        <translation>Was in deinen Modi offen war</translation>
    </message>
    <message>
        <source>Kept on this computer alone, and offered when you come back to a mode.</source>
        <translation>Bleibt auf diesem Computer und wird angeboten, wenn du in einen Modus zurückkommst.</translation>
    </message>
    <message>
        <source>restore context bring back remember forget applications pages documents</source>
        <translation>wiederherstellen Kontext zurückholen merken vergessen Programme Anwendungen Seiten Dokumente</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Whose events and reminders the widgets show.</source>
        <translation>Wessen Termine und Erinnerungen die Widgets zeigen.</translation>
    </message>
    <message>
        <source>calendar events reminders tasks folder ics iCalendar</source>
        <translation>Kalender Termine Erinnerungen Aufgaben Ordner ics iCalendar</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>ShortcutField</name>
    <message>
        <source>Escape leaves it as it was, Backspace turns it off.</source>
        <translation>Escape lässt es, wie es war, Backspace schaltet es aus.</translation>
    </message>
    <message>
        <source>Press to choose other keys.</source>
        <translation>Drücken, um andere Tasten zu wählen.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Hold Control, Alt or Super with it</source>
        <translation>Control, Alt oder Super dazu halten</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>Tasten drücken …</translation>
    </message>
    <message>
        <source>Turn off: %1</source>
        <translation>Ausschalten: %1</translation>
    </message>
    <message>
        <source>Another program may have these keys</source>
        <translation>Diese Tasten hat vielleicht ein anderes Programm</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Search settings</source>
        <translation>Einstellungen suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>SmallCard</name>
    <message>
        <source>Join</source>
        <translation>Beitreten</translation>
    </message>
    <message>
        <source>Join %1</source>
        <translation>%1 beitreten</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>You are set</source>
        <translation>Du kannst loslegen</translation>
    </message>
    <message>
        <source>This is all there is to it.</source>
        <translation>Mehr brauchst du nicht zu wissen.</translation>
    </message>
    <message>
        <source>The dock shows your mode</source>
        <translation>Das Dock zeigt deinen Modus</translation>
    </message>
    <message>
        <source>It has the applications of the mode that you are in. Click another mode to switch.</source>
        <translation>Es hat die Programme des Modus, in dem du bist. Zum Wechseln klickst du auf einen anderen Modus.</translation>
    </message>
    <message>
        <source>The gate asks before you drift</source>
        <translation>Die Schranke fragt, bevor du abschweifst</translation>
    </message>
    <message>
        <source>In a focus session, what belongs to another mode waits until you say that you mean it.</source>
        <translation>In einer Fokussitzung wartet, was zu einem anderen Modus gehört, bis du sagst, dass du es wirklich willst.</translation>
    </message>
    <message>
        <source>Focus starts when you say so</source>
        <translation>Der Fokus beginnt, wenn du es willst</translation>
    </message>
    <message>
        <source>Press the focus button in the dock. Until then nothing is stopped.</source>
        <translation>Drück den Fokusknopf im Dock. Bis dahin wird nichts aufgehalten.</translation>
    </message>
    <message>
        <source>Replace the system dock</source>
        <translation>System-Dock ersetzen</translation>
    </message>
    <message>
        <source>Start at log-in</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>Fendrel is there whenever you log in.</source>
        <translation>Fendrel ist da, sobald du dich anmeldest.</translation>
    </message>
</context>
<context>
    <name>SymbolCatalog</name>
    <message>
        <source>Pencil, write, edit, draft, author</source>
        <translation>Bleistift, stift, schreiben, bearbeiten, entwurf, autor</translation>
    </message>
    <message>
        <source>Feather, poem, story, novel, write</source>
        <translation>Feder, gedicht, geschichte, roman, schreiben</translation>
    </message>
    <message>
        <source>Document, page, paper, report, text</source>
        <translation>Dokument, seite, papier, bericht, text</translation>
    </message>
    <message>
        <source>Note, sticky, memo, jot</source>
        <translation>Notiz, notizzettel, haftnotiz, memo, notieren</translation>
    </message>
    <message>
        <source>Book, read, study, library</source>
        <translation>Buch, lesen, lernen, bibliothek</translation>
    </message>
    <message>
        <source>Newspaper, news, press, article</source>
        <translation>Zeitung, nachrichten, presse, artikel</translation>
    </message>
    <message>
        <source>Quote, quotation, citation</source>
        <translation>Zitat, anführungszeichen, zitieren</translation>
    </message>
    <message>
        <source>Letters, type, font, spelling</source>
        <translation>Buchstaben, schrift, schriftart, rechtschreibung</translation>
    </message>
    <message>
        <source>Languages, translate, foreign</source>
        <translation>Sprachen, übersetzen, fremdsprache</translation>
    </message>
    <message>
        <source>Hammer, build, make, craft, construction</source>
        <translation>Hammer, bauen, machen, handwerk, baustelle</translation>
    </message>
    <message>
        <source>Wrench, tools, repair, fix, maintenance</source>
        <translation>Schraubenschlüssel, werkzeug, reparieren, reparatur, wartung</translation>
    </message>
    <message>
        <source>Terminal, code, shell, command, programming</source>
        <translation>Terminal, code, shell, befehl, programmieren</translation>
    </message>
    <message>
        <source>Bug, debug, insect, test</source>
        <translation>Käfer, bug, fehler, fehlersuche, insekt, test</translation>
    </message>
    <message>
        <source>Pull request, git, branch, review, code</source>
        <translation>Pull-Request, git, branch, zweig, review, code</translation>
    </message>
    <message>
        <source>Box, cube, model, 3D, object</source>
        <translation>Kiste, würfel, modell, 3D, objekt</translation>
    </message>
    <message>
        <source>Package, parcel, shipping, delivery</source>
        <translation>Paket, päckchen, versand, lieferung</translation>
    </message>
    <message>
        <source>Puzzle, plugin, extension, problem</source>
        <translation>Puzzle, plugin, erweiterung, problem, rätsel</translation>
    </message>
    <message>
        <source>Computer, desktop, screen, monitor</source>
        <translation>Computer, rechner, desktop, bildschirm, monitor</translation>
    </message>
    <message>
        <source>Gear, settings, engine, machine</source>
        <translation>Zahnrad, einstellungen, motor, maschine</translation>
    </message>
    <message>
        <source>Switch, toggle, controls</source>
        <translation>Schalter, umschalten, regler, steuerung</translation>
    </message>
    <message>
        <source>Function, mathematics, formula, calculate</source>
        <translation>Funktion, mathematik, formel, rechnen</translation>
    </message>
    <message>
        <source>Calculator, numbers, accounting, mathematics</source>
        <translation>Taschenrechner, zahlen, buchhaltung, mathematik</translation>
    </message>
    <message>
        <source>Atom, physics, science</source>
        <translation>Atom, physik, wissenschaft</translation>
    </message>
    <message>
        <source>Flask, chemistry, laboratory, experiment, science</source>
        <translation>Kolben, chemie, labor, experiment, versuch, wissenschaft</translation>
    </message>
    <message>
        <source>Microscope, biology, research, laboratory</source>
        <translation>Mikroskop, biologie, forschung, labor</translation>
    </message>
    <message>
        <source>Graduation cap, study, school, university, learn</source>
        <translation>Doktorhut, studium, schule, universität, lernen</translation>
    </message>
    <message>
        <source>Light bulb, idea, think, brainstorm</source>
        <translation>Glühbirne, idee, denken, brainstorming</translation>
    </message>
    <message>
        <source>Crosshair, aim, focus</source>
        <translation>Fadenkreuz, zielen, fokus</translation>
    </message>
    <message>
        <source>Target, goal, focus, aim</source>
        <translation>Zielscheibe, ziel, fokus, zielen</translation>
    </message>
    <message>
        <source>Briefcase, work, job, office, business</source>
        <translation>Aktentasche, arbeit, job, beruf, büro, geschäft</translation>
    </message>
    <message>
        <source>Buildings, company, office, city</source>
        <translation>Gebäude, firma, unternehmen, büro, stadt</translation>
    </message>
    <message>
        <source>Megaphone, marketing, announce, campaign</source>
        <translation>Megafon, marketing, werbung, ankündigen, kampagne</translation>
    </message>
    <message>
        <source>Bar chart, numbers, statistics, report</source>
        <translation>Balkendiagramm, zahlen, statistik, bericht</translation>
    </message>
    <message>
        <source>Line chart, stocks, growth, analysis</source>
        <translation>Liniendiagramm, aktien, börse, wachstum, analyse</translation>
    </message>
    <message>
        <source>Money, dollar, sales, revenue, finance</source>
        <translation>Geld, dollar, euro, verkauf, umsatz, finanzen</translation>
    </message>
    <message>
        <source>Credit card, pay, bank, shopping</source>
        <translation>Kreditkarte, bezahlen, bank, einkaufen</translation>
    </message>
    <message>
        <source>Wallet, money, budget, expenses</source>
        <translation>Geldbörse, portemonnaie, geld, budget, ausgaben</translation>
    </message>
    <message>
        <source>Scales, law, justice, balance, legal</source>
        <translation>Waage, recht, gesetz, justiz, gleichgewicht</translation>
    </message>
    <message>
        <source>Shopping cart, shop, buy, store</source>
        <translation>Einkaufswagen, laden, kaufen, geschäft</translation>
    </message>
    <message>
        <source>Shopping bag, shop, buy, groceries</source>
        <translation>Einkaufstasche, einkaufen, kaufen, lebensmittel</translation>
    </message>
    <message>
        <source>Tag, label, price, sale</source>
        <translation>Etikett, schild, preis, verkauf, angebot</translation>
    </message>
    <message>
        <source>Conversation, social, chat, talk, friends</source>
        <translation>Gespräch, soziales, chat, reden, freunde</translation>
    </message>
    <message>
        <source>Speech bubble, chat, message, talk</source>
        <translation>Sprechblase, chat, nachricht, reden</translation>
    </message>
    <message>
        <source>Envelope, mail, e-mail, letter, inbox</source>
        <translation>Umschlag, mail, e-mail, brief, post, posteingang</translation>
    </message>
    <message>
        <source>Inbox, tray, mail, collect</source>
        <translation>Posteingang, ablage, mail, sammeln</translation>
    </message>
    <message>
        <source>Paper plane, send, mail, message</source>
        <translation>Papierflieger, senden, mail, nachricht</translation>
    </message>
    <message>
        <source>Phone, call, telephone</source>
        <translation>Telefon, anruf, anrufen, handy</translation>
    </message>
    <message>
        <source>Video camera, meeting, call, conference</source>
        <translation>Videokamera, besprechung, meeting, anruf, konferenz</translation>
    </message>
    <message>
        <source>Microphone, record, podcast, voice, sing</source>
        <translation>Mikrofon, aufnehmen, aufnahme, podcast, stimme, singen</translation>
    </message>
    <message>
        <source>Person, me, profile, personal</source>
        <translation>Person, ich, profil, persönlich, privat</translation>
    </message>
    <message>
        <source>People, team, family, friends, group</source>
        <translation>Leute, menschen, team, familie, freunde, gruppe</translation>
    </message>
    <message>
        <source>Baby, child, family, parent</source>
        <translation>Baby, kind, familie, eltern</translation>
    </message>
    <message>
        <source>Heart, love, health, favorite</source>
        <translation>Herz, liebe, gesundheit, favorit</translation>
    </message>
    <message>
        <source>Hand, stop, help, volunteer</source>
        <translation>Hand, stopp, halt, hilfe, ehrenamt</translation>
    </message>
    <message>
        <source>Calendar, date, plan, schedule</source>
        <translation>Kalender, datum, termin, plan, zeitplan</translation>
    </message>
    <message>
        <source>Clock, time, hours</source>
        <translation>Uhr, zeit, stunden</translation>
    </message>
    <message>
        <source>Timer, stopwatch, sprint, pomodoro</source>
        <translation>Timer, stoppuhr, sprint, pomodoro</translation>
    </message>
    <message>
        <source>Hourglass, wait, time, deadline</source>
        <translation>Sanduhr, warten, zeit, frist</translation>
    </message>
    <message>
        <source>Checklist, tasks, to do, chores</source>
        <translation>Checkliste, aufgaben, erledigen, haushalt</translation>
    </message>
    <message>
        <source>To-do list, issues, tasks, plan</source>
        <translation>To-do-Liste, aufgabenliste, tickets, aufgaben, plan</translation>
    </message>
    <message>
        <source>List, items, outline</source>
        <translation>Liste, einträge, gliederung</translation>
    </message>
    <message>
        <source>Check mark, done, finish</source>
        <translation>Häkchen, haken, erledigt, fertig</translation>
    </message>
    <message>
        <source>Flag, goal, milestone, country</source>
        <translation>Flagge, fahne, ziel, meilenstein, land</translation>
    </message>
    <message>
        <source>Pin, place, stay, important</source>
        <translation>Stecknadel, pin, ort, bleiben, wichtig</translation>
    </message>
    <message>
        <source>Star, favorite, special, rating</source>
        <translation>Stern, favorit, besonders, bewertung</translation>
    </message>
    <message>
        <source>Trophy, win, prize, competition</source>
        <translation>Pokal, gewinnen, sieg, preis, wettbewerb</translation>
    </message>
    <message>
        <source>Paintbrush, design, paint, draw, art</source>
        <translation>Pinsel, design, gestaltung, malen, zeichnen, kunst</translation>
    </message>
    <message>
        <source>Palette, color, art, paint</source>
        <translation>Palette, farbe, kunst, malen</translation>
    </message>
    <message>
        <source>Scissors, cut, craft, sewing, edit</source>
        <translation>Schere, schneiden, basteln, nähen, schnitt</translation>
    </message>
    <message>
        <source>Picture, photo, image, gallery</source>
        <translation>Bild, foto, galerie</translation>
    </message>
    <message>
        <source>Pictures, photos, album, gallery</source>
        <translation>Bilder, fotos, album, galerie</translation>
    </message>
    <message>
        <source>Camera, photography, photo, shoot</source>
        <translation>Kamera, fotografie, foto, fotografieren</translation>
    </message>
    <message>
        <source>Film, movie, cinema, edit</source>
        <translation>Film, kino, video, schnitt</translation>
    </message>
    <message>
        <source>Television, watch, series, stream</source>
        <translation>Fernseher, fernsehen, serie, streamen</translation>
    </message>
    <message>
        <source>Masks, theater, drama, acting</source>
        <translation>Masken, theater, drama, schauspiel</translation>
    </message>
    <message>
        <source>Headphones, listen, music, podcast, audio</source>
        <translation>Kopfhörer, hören, musik, podcast, audio</translation>
    </message>
    <message>
        <source>Piano, keyboard, music, practice</source>
        <translation>Klavier, keyboard, musik, üben</translation>
    </message>
    <message>
        <source>Guitar, music, band, practice</source>
        <translation>Gitarre, musik, band, üben</translation>
    </message>
    <message>
        <source>Radio, broadcast, live, on air</source>
        <translation>Radio, rundfunk, sendung, live</translation>
    </message>
    <message>
        <source>Game controller, play, games, fun</source>
        <translation>Gamecontroller, spielen, spiele, spaß</translation>
    </message>
    <message>
        <source>Dice, chance, board game, random</source>
        <translation>Würfel, glück, brettspiel, zufall</translation>
    </message>
    <message>
        <source>House, home, household, family</source>
        <translation>Haus, zuhause, haushalt, familie</translation>
    </message>
    <message>
        <source>Bed, sleep, rest, night</source>
        <translation>Bett, schlafen, ruhe, nacht</translation>
    </message>
    <message>
        <source>Cup, coffee, tea, break, pause</source>
        <translation>Tasse, kaffee, tee, pause</translation>
    </message>
    <message>
        <source>Fork and knife, eat, food, cook, lunch</source>
        <translation>Gabel und Messer, besteck, essen, kochen, mittagessen</translation>
    </message>
    <message>
        <source>Gift, present, birthday, holiday</source>
        <translation>Geschenk, geburtstag, feiertag, weihnachten</translation>
    </message>
    <message>
        <source>Dumbbell, sport, fitness, training, gym</source>
        <translation>Hantel, sport, fitness, training, fitnessstudio</translation>
    </message>
    <message>
        <source>Footprints, walk, run, steps, hike</source>
        <translation>Fußspuren, gehen, spazieren, laufen, schritte, wandern</translation>
    </message>
    <message>
        <source>Bicycle, bike, cycling, sport</source>
        <translation>Fahrrad, rad, radfahren, sport</translation>
    </message>
    <message>
        <source>Stethoscope, doctor, medicine, health</source>
        <translation>Stethoskop, arzt, ärztin, medizin, gesundheit</translation>
    </message>
    <message>
        <source>Leaf, nature, garden, plant</source>
        <translation>Blatt, natur, garten, pflanze</translation>
    </message>
    <message>
        <source>Tree, forest, nature, outdoors</source>
        <translation>Baum, wald, natur, draußen</translation>
    </message>
    <message>
        <source>Paw, pet, dog, cat, animal</source>
        <translation>Pfote, haustier, hund, katze, tier</translation>
    </message>
    <message>
        <source>Sun, day, summer, bright</source>
        <translation>Sonne, tag, sommer, hell</translation>
    </message>
    <message>
        <source>Sunrise, morning, evening</source>
        <translation>Sonnenaufgang, morgen, abend</translation>
    </message>
    <message>
        <source>Moon, night, sleep, evening</source>
        <translation>Mond, nacht, schlafen, abend</translation>
    </message>
    <message>
        <source>Cloud, weather, server, storage</source>
        <translation>Wolke, wetter, server, cloud, speicher</translation>
    </message>
    <message>
        <source>Sun and cloud, weather, forecast</source>
        <translation>Sonne und Wolke, wetter, vorhersage</translation>
    </message>
    <message>
        <source>Flame, fire, hot, urgent, streak</source>
        <translation>Flamme, feuer, heiß, dringend, serie</translation>
    </message>
    <message>
        <source>Lightning, energy, fast, power, electricity</source>
        <translation>Blitz, energie, schnell, kraft, strom</translation>
    </message>
    <message>
        <source>Sparkles, magic, new, AI, clean</source>
        <translation>Funkeln, glitzer, zauber, magie, neu, KI, sauber</translation>
    </message>
    <message>
        <source>Airplane, travel, fly, trip, vacation</source>
        <translation>Flugzeug, reisen, fliegen, ausflug, urlaub</translation>
    </message>
    <message>
        <source>Car, drive, commute, road</source>
        <translation>Auto, fahren, pendeln, straße</translation>
    </message>
    <message>
        <source>Map, travel, places, route</source>
        <translation>Karte, reisen, orte, route</translation>
    </message>
    <message>
        <source>Globe, world, web, internet, travel</source>
        <translation>Globus, welt, web, internet, reisen</translation>
    </message>
    <message>
        <source>Anchor, sea, boat, sailing</source>
        <translation>Anker, meer, boot, segeln</translation>
    </message>
    <message>
        <source>Rocket, launch, startup, space</source>
        <translation>Rakete, start, startup, weltraum</translation>
    </message>
    <message>
        <source>Key, secret, access, password</source>
        <translation>Schlüssel, geheimnis, zugang, passwort</translation>
    </message>
    <message>
        <source>Lock, private, secure, safe</source>
        <translation>Schloss, privat, sicher, geschützt</translation>
    </message>
    <message>
        <source>Eye, watch, look, review</source>
        <translation>Auge, beobachten, ansehen, prüfen</translation>
    </message>
    <message>
        <source>Archive, files, storage, records</source>
        <translation>Archiv, dateien, ablage, akten</translation>
    </message>
    <message>
        <source>Folder, files, project</source>
        <translation>Ordner, dateien, projekt</translation>
    </message>
    <message>
        <source>Layers, stack, levels</source>
        <translation>Ebenen, stapel, schichten</translation>
    </message>
    <message>
        <source>Stack, layers, shortcuts</source>
        <translation>Stapel, ebenen, kurzbefehle</translation>
    </message>
    <message>
        <source>Grid, dashboard, overview, apps</source>
        <translation>Raster, dashboard, übersicht, apps, programme</translation>
    </message>
    <message>
        <source>Clipboard, copy, paste, form</source>
        <translation>Klemmbrett, zwischenablage, kopieren, einfügen, formular</translation>
    </message>
    <message>
        <source>Battery, charge, energy</source>
        <translation>Akku, batterie, laden, energie</translation>
    </message>
    <message>
        <source>Gauge, speed, performance, monitor</source>
        <translation>Tacho, tempo, geschwindigkeit, leistung, überwachung</translation>
    </message>
    <message>
        <source>Triangle, shape, deploy</source>
        <translation>Dreieck, form, deployment</translation>
    </message>
    <message>
        <source>Bell, alarm, reminder, notification</source>
        <translation>Glocke, alarm, wecker, erinnerung, benachrichtigung</translation>
    </message>
    <message>
        <source>Magnifying glass, search, find, research</source>
        <translation>Lupe, suchen, finden, recherche</translation>
    </message>
    <message>
        <source>Question mark, help, ask, support</source>
        <translation>Fragezeichen, hilfe, fragen, support</translation>
    </message>
    <message>
        <source>Information, details, about</source>
        <translation>Information, info, details, über</translation>
    </message>
    <message>
        <source>Warning, danger, incident, emergency</source>
        <translation>Warnung, gefahr, störung, notfall</translation>
    </message>
    <message>
        <source>Musical note, music, song, compose</source>
        <translation>Musiknote, Musik, Lied, komponieren</translation>
    </message>
</context>
<context>
    <name>SymbolPicker</name>
    <message>
        <source>Search symbols</source>
        <translation>Symbole suchen</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>No symbol is found</source>
        <translation>Kein Symbol gefunden</translation>
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
</context>
<context>
    <name>UndoBar</name>
    <message>
        <source>Deleted %1.</source>
        <translation>%1 gelöscht.</translation>
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
    <name>Weather</name>
    <message>
        <source>Clear</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Mostly clear</source>
        <translation>Überwiegend klar</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <translation>Teils bewölkt</translation>
    </message>
    <message>
        <source>Fog</source>
        <translation>Nebel</translation>
    </message>
    <message>
        <source>Drizzle</source>
        <translation>Nieselregen</translation>
    </message>
    <message>
        <source>Freezing rain</source>
        <translation>Gefrierender Regen</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>Heavy rain</source>
        <translation>Starker Regen</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>Heavy snow</source>
        <translation>Starker Schneefall</translation>
    </message>
    <message>
        <source>Showers</source>
        <translation>Schauer</translation>
    </message>
    <message>
        <source>Heavy showers</source>
        <translation>Starke Schauer</translation>
    </message>
    <message>
        <source>Snow showers</source>
        <translation>Schneeschauer</translation>
    </message>
    <message>
        <source>Thunderstorm</source>
        <translation>Gewitter</translation>
    </message>
    <message>
        <source>Storm with hail</source>
        <translation>Gewitter mit Hagel</translation>
    </message>
    <message>
        <source>Cloudy</source>
        <translation>Bewölkt</translation>
    </message>
</context>
<context>
    <name>WeatherRow</name>
    <message>
        <source>Looking for it…</source>
        <translation>Wird gesucht …</translation>
    </message>
    <message>
        <source>%1 is guessed from your time zone. Type another one to change that.</source>
        <translation>%1 ist aus deiner Zeitzone geraten. Gib eine andere ein, um das zu ändern.</translation>
    </message>
    <message>
        <source>Name of a city</source>
        <translation>Name einer Stadt</translation>
    </message>
    <message>
        <source>Weather data by Open-Meteo.com</source>
        <translation>Wetterdaten von Open-Meteo.com</translation>
    </message>
    <message>
        <source>Opens its page in your browser</source>
        <translation>Öffnet ihre Seite in deinem Browser</translation>
    </message>
</context>
<context>
    <name>WidgetMenu</name>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Remove from %1</source>
        <translation>Aus %1 entfernen</translation>
    </message>
    <message>
        <source>Widget Settings…</source>
        <translation>Widget-Einstellungen …</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Im Browser öffnen</translation>
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
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Move Right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>Add Widget</source>
        <translation>Widget hinzufügen</translation>
    </message>
    <message>
        <source>Join %1</source>
        <translation>%1 beitreten</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Add a Reminder…</source>
        <translation>Erinnerung hinzufügen …</translation>
    </message>
</context>
<context>
    <name>WidgetRow</name>
    <message>
        <source>In %1</source>
        <translation>In %1</translation>
    </message>
    <message>
        <source>Opens the accounts</source>
        <translation>Öffnet die Konten</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
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
        <source>Size of %1 in %2</source>
        <translation>Größe von %1 in %2</translation>
    </message>
</context>
<context>
    <name>WidgetStrip</name>
    <message>
        <source>Widgets</source>
        <translation>Widgets</translation>
    </message>
</context>
<context>
    <name>WidgetsPane</name>
    <message>
        <source>Each mode has its own widgets. The switches are those of %1, the mode you are in.</source>
        <translation>Jeder Modus hat seine eigenen Widgets. Die Schalter gelten für %1, den Modus, in dem du bist.</translation>
    </message>
    <message>
        <source>Search widgets</source>
        <translation>Widgets suchen</translation>
    </message>
    <message>
        <source>Search by name, use or mode</source>
        <translation>Nach Name, Zweck oder Modus suchen</translation>
    </message>
    <message>
        <source>No widget is called that. Perhaps in other words?</source>
        <translation>Kein Widget heißt so. Vielleicht mit anderen Worten?</translation>
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
    <name>fendrel::AboutController</name>
    <message>
        <source>Modes and answers</source>
        <translation>Modi und Antworten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Crash reports</source>
        <translation>Absturzberichte</translation>
    </message>
    <message>
        <source>Save the Diagnostic Bundle</source>
        <translation>Diagnosepaket sichern</translation>
    </message>
    <message>
        <source>It isn&apos;t on this computer, or its name can&apos;t be read.</source>
        <translation>Sie liegt nicht auf diesem Computer, oder ihr Name ist nicht lesbar.</translation>
    </message>
</context>
<context>
    <name>fendrel::AccountsController</name>
    <message>
        <source>Pull requests that wait for you, and the checks of your own.</source>
        <translation>Pull-Requests, die auf dich warten, und die Prüfungen deiner eigenen.</translation>
    </message>
    <message>
        <source>Your sales of today.</source>
        <translation>Deine Verkäufe von heute.</translation>
    </message>
    <message>
        <source>Your latest deploys.</source>
        <translation>Deine letzten Deployments.</translation>
    </message>
    <message>
        <source>Issues that are assigned to you.</source>
        <translation>Aufgaben, die dir zugewiesen sind.</translation>
    </message>
    <message>
        <source>Unresolved errors of the last 24 hours.</source>
        <translation>Ungelöste Fehler der letzten 24 Stunden.</translation>
    </message>
    <message>
        <source>Asking the keyring…</source>
        <translation>Schlüsselbund wird gefragt …</translation>
    </message>
    <message>
        <source>No keyring</source>
        <translation>Kein Schlüsselbund</translation>
    </message>
    <message>
        <source>Keyring locked</source>
        <translation>Schlüsselbund gesperrt</translation>
    </message>
    <message>
        <source>Keyring failed</source>
        <translation>Schlüsselbund gestört</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Your desktop has no keyring</source>
        <translation>Dein Desktop hat keinen Schlüsselbund</translation>
    </message>
    <message>
        <source>Your keyring is locked</source>
        <translation>Dein Schlüsselbund ist gesperrt</translation>
    </message>
    <message>
        <source>Your keyring doesn&apos;t work</source>
        <translation>Dein Schlüsselbund funktioniert nicht</translation>
    </message>
    <message>
        <source>Keys are kept in the keyring and nowhere else. Install one, such as GNOME Keyring or KWallet, and log in again.</source>
        <translation>Schlüssel werden nur im Schlüsselbund aufbewahrt. Installiere einen, etwa GNOME Keyring oder KWallet, und melde dich neu an.</translation>
    </message>
    <message>
        <source>Unlock it, and Fendrel sees which accounts are connected.</source>
        <translation>Entsperre ihn, dann sieht Fendrel, welche Konten verbunden sind.</translation>
    </message>
    <message>
        <source>Fendrel asked for your keys and got no answer. Nothing is lost: try again, or log in again.</source>
        <translation>Fendrel hat nach deinen Schlüsseln gefragt und keine Antwort bekommen. Nichts ist verloren: Versuch es noch einmal oder melde dich neu an.</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Entsperren …</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Remove the key of %1?</source>
        <translation>Schlüssel von %1 entfernen?</translation>
    </message>
    <message>
        <source>Fendrel takes it out of your keyring. The key itself stays valid until you delete it at %1.</source>
        <translation>Fendrel nimmt ihn aus deinem Schlüsselbund. Der Schlüssel selbst bleibt gültig, bis du ihn bei %1 löschst.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Show Permissions</source>
        <translation>Berechtigungen zeigen</translation>
    </message>
    <message>
        <source>Connected, and %1 took the key</source>
        <translation>Verbunden, und %1 hat den Schlüssel angenommen</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>%1 wird gefragt …</translation>
    </message>
</context>
<context>
    <name>fendrel::AnswersController</name>
    <message>
        <source>No mode</source>
        <translation>Kein Modus</translation>
    </message>
    <message>
        <source>Forget all learned answers?</source>
        <translation>Alle gelernten Antworten vergessen?</translation>
    </message>
    <message>
        <source>Fendrel judges everything anew, and asks the language model again. What the modes&apos; lists name is not touched.</source>
        <translation>Fendrel beurteilt alles neu und fragt wieder das Sprachmodell. Was die Listen der Modi nennen, bleibt unberührt.</translation>
    </message>
    <message>
        <source>Forget All</source>
        <translation>Alle vergessen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>fendrel::AnswersModel</name>
    <message>
        <source>You said so</source>
        <translation>Von dir gesagt</translation>
    </message>
    <message>
        <source>From a list</source>
        <translation>Aus einer Liste</translation>
    </message>
    <message>
        <source>Fendrel is certain</source>
        <translation>Fendrel ist sicher</translation>
    </message>
    <message>
        <source>Fendrel finds it likely</source>
        <translation>Fendrel hält es für wahrscheinlich</translation>
    </message>
    <message>
        <source>Fendrel is unsure</source>
        <translation>Fendrel ist unsicher</translation>
    </message>
</context>
<context>
    <name>fendrel::AppController</name>
    <message>
        <source>Fendrel couldn&apos;t read your modes</source>
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
    <name>fendrel::Backup</name>
    <message>
        <source>Fendrel Backup %1</source>
        <translation>Fendrel-Sicherung %1</translation>
    </message>
    <message>
        <source>“%1” could not be written. Is there room, and may you write there?</source>
        <translation>„%1“ konnte nicht geschrieben werden. Ist dort Platz, und darfst du dort schreiben?</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>„%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>This file is too large to be a Fendrel backup.</source>
        <translation>Diese Datei ist zu groß für eine Fendrel-Sicherung.</translation>
    </message>
</context>
<context>
    <name>fendrel::CalendarChooser</name>
    <message>
        <source>Now from the desktop&apos;s calendar. A folder of iCalendar files takes its place.</source>
        <translation>Jetzt aus dem Kalender des Desktops. Ein Ordner mit iCalendar-Dateien tritt an dessen Stelle.</translation>
    </message>
    <message>
        <source>Now from %1.</source>
        <translation>Jetzt aus %1.</translation>
    </message>
    <message>
        <source>No calendar was found. Pick the folder in which a program keeps iCalendar files.</source>
        <translation>Es wurde kein Kalender gefunden. Wähle den Ordner, in dem ein Programm iCalendar-Dateien ablegt.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Es gibt keinen Ordner %1.</translation>
    </message>
    <message>
        <source>Folder of Calendars</source>
        <translation>Ordner der Kalender</translation>
    </message>
</context>
<context>
    <name>fendrel::Capabilities</name>
    <message>
        <source>No keyring runs here.</source>
        <translation>Hier läuft kein Schlüsselbund.</translation>
    </message>
    <message>
        <source>The keyring is locked.</source>
        <translation>Der Schlüsselbund ist gesperrt.</translation>
    </message>
    <message>
        <source>The keyring gives no answer.</source>
        <translation>Der Schlüsselbund antwortet nicht.</translation>
    </message>
    <message>
        <source>The companion extension isn&apos;t in it yet.</source>
        <translation>Die Begleiterweiterung ist noch nicht darin.</translation>
    </message>
    <message>
        <source>It isn&apos;t running now.</source>
        <translation>Läuft gerade nicht.</translation>
    </message>
    <message>
        <source>The pointer can&apos;t be held right now.</source>
        <translation>Der Zeiger lässt sich gerade nicht halten.</translation>
    </message>
    <message>
        <source>Fendrel may not read window titles yet.</source>
        <translation>Fendrel darf noch keine Fenstertitel lesen.</translation>
    </message>
    <message>
        <source>Taken by another program, or not on this keyboard: %1.</source>
        <translation>Von einem anderen Programm belegt oder nicht auf dieser Tastatur: %1.</translation>
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
    <name>fendrel::ContextsController</name>
    <message>
        <source>nothing to open again</source>
        <translation>nichts wieder zu öffnen</translation>
    </message>
    <message>
        <source>Forget what was open in all modes?</source>
        <translation>Vergessen, was in allen Modi offen war?</translation>
    </message>
    <message>
        <source>Nothing can be brought back then until you leave a mode again.</source>
        <translation>Dann kann nichts zurückgeholt werden, bis du wieder einen Modus verlässt.</translation>
    </message>
    <message>
        <source>Forget All</source>
        <translation>Alles vergessen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>fendrel::DataController</name>
    <message>
        <source>Saved as %1.</source>
        <translation>Gesichert als %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n mode(s)</source>
        <translation>
            <numerusform>%n Modus</numerusform>
            <numerusform>%n Modi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s)</source>
        <translation>
            <numerusform>%n Einstellung</numerusform>
            <numerusform>%n Einstellungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n learned answer(s)</source>
        <translation>
            <numerusform>%n gelernte Antwort</numerusform>
            <numerusform>%n gelernte Antworten</numerusform>
        </translation>
    </message>
    <message>
        <source>The file has %1, %2 and %3. They replace yours.</source>
        <translation>Die Datei enthält %1, %2 und %3. Sie ersetzen deine.</translation>
    </message>
    <message>
        <source>You can undo this until you quit Fendrel. Keys of accounts are not in the file, and yours stay.</source>
        <translation>Du kannst das rückgängig machen, bis du Fendrel beendest. Schlüssel von Konten sind nicht in der Datei, und deine bleiben.</translation>
    </message>
    <message numerus="yes">
        <source>%n entry(ies) can&apos;t be read and stay(s) out.</source>
        <translation>
            <numerusform>Ein Eintrag ist nicht lesbar und bleibt außen vor.</numerusform>
            <numerusform>%n Einträge sind nicht lesbar und bleiben außen vor.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import this backup?</source>
        <translation>Diese Sicherung importieren?</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Imported.</source>
        <translation>Importiert.</translation>
    </message>
    <message>
        <source>Everything is as it was before the import.</source>
        <translation>Alles ist wie vor dem Import.</translation>
    </message>
    <message>
        <source>Fendrel backups</source>
        <translation>Fendrel-Sicherungen</translation>
    </message>
    <message>
        <source>This file can&apos;t be used: it isn&apos;t on this computer, or its name can&apos;t be read.</source>
        <translation>Diese Datei ist nicht verwendbar: Sie liegt nicht auf diesem Computer, oder ihr Name ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Export Modes, Settings and Answers</source>
        <translation>Modi, Einstellungen und Antworten exportieren</translation>
    </message>
    <message>
        <source>Import a Backup</source>
        <translation>Sicherung importieren</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
</context>
<context>
    <name>fendrel::Dependencies</name>
    <message>
        <source>icons for programs that have none</source>
        <translation>Symbole für Programme, die keine haben</translation>
    </message>
    <message>
        <source>questions to a language model on this computer</source>
        <translation>Fragen an ein Sprachmodell auf diesem Computer</translation>
    </message>
    <message>
        <source>talks to the desktop</source>
        <translation>spricht mit dem Desktop</translation>
    </message>
    <message>
        <source>the folders of icon themes</source>
        <translation>die Ordner der Symbolthemen</translation>
    </message>
    <message>
        <source>the desktop&apos;s own settings</source>
        <translation>die Einstellungen des Desktops</translation>
    </message>
    <message>
        <source>the typeface</source>
        <translation>die Schrift</translation>
    </message>
    <message>
        <source>plays sounds</source>
        <translation>spielt Töne ab</translation>
    </message>
    <message>
        <source>the keyring</source>
        <translation>der Schlüsselbund</translation>
    </message>
    <message>
        <source>most of the symbols</source>
        <translation>die meisten Symbole</translation>
    </message>
    <message>
        <source>emoji in messages</source>
        <translation>Emojis in Nachrichten</translation>
    </message>
    <message>
        <source>windows, views, and nearly everything else</source>
        <translation>Fenster, Ansichten und fast alles andere</translation>
    </message>
    <message>
        <source>public domain</source>
        <translation>gemeinfrei</translation>
    </message>
    <message>
        <source>keeps your modes</source>
        <translation>bewahrt deine Modi auf</translation>
    </message>
    <message>
        <source>hears which notifications are shown</source>
        <translation>hört, welche Benachrichtigungen gezeigt werden</translation>
    </message>
    <message>
        <source>tell whether there is a display</source>
        <translation>erkennen, ob ein Bildschirm da ist</translation>
    </message>
    <message>
        <source>windows of other programs, and the displays</source>
        <translation>Fenster anderer Programme und die Bildschirme</translation>
    </message>
    <message>
        <source>opens addresses and mails</source>
        <translation>öffnet Adressen und Mails</translation>
    </message>
    <message>
        <source>which key a hot key is</source>
        <translation>welche Taste ein Tastenkürzel ist</translation>
    </message>
    <message>
        <source>amounts of money</source>
        <translation>Geldbeträge</translation>
    </message>
    <message>
        <source>tells folders from files</source>
        <translation>unterscheidet Ordner und Dateien</translation>
    </message>
    <message>
        <source>reads calendars</source>
        <translation>liest Kalender</translation>
    </message>
    <message>
        <source>reads the logs of your coding agent</source>
        <translation>liest die Protokolle deines Programmier-Agenten</translation>
    </message>
</context>
<context>
    <name>fendrel::DiagnosticBundle</name>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
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
    <name>fendrel::DryRunModel</name>
    <message>
        <source>Every mode</source>
        <translation>Jeder Modus</translation>
    </message>
    <message>
        <source>Belongs everywhere</source>
        <translation>Gehört überallhin</translation>
    </message>
    <message>
        <source>Undecided</source>
        <translation>Unentschieden</translation>
    </message>
    <message>
        <source>The model is asked when you use it</source>
        <translation>Das Modell wird gefragt, wenn du es benutzt</translation>
    </message>
    <message>
        <source>Is let be</source>
        <translation>Bleibt unbehelligt</translation>
    </message>
    <message>
        <source>Is on its list</source>
        <translation>Steht auf seiner Liste</translation>
    </message>
    <message>
        <source>Learned earlier</source>
        <translation>Früher gelernt</translation>
    </message>
    <message>
        <source>You said so</source>
        <translation>Von dir gesagt</translation>
    </message>
    <message>
        <source>No mode</source>
        <translation>Kein Modus</translation>
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
    <message>
        <source>Drift today: %1 of %2</source>
        <translation>Ablenkung heute: %1 von %2</translation>
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
        <source>The record of notifications can&apos;t be read.</source>
        <translation>Das Verzeichnis der Benachrichtigungen kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>fendrel::KeyboardController</name>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>This combination switches to mode %1.</source>
        <translation>Diese Kombination wechselt zu Modus %1.</translation>
    </message>
    <message>
        <source>This combination starts and stops focus.</source>
        <translation>Diese Kombination beginnt und beendet den Fokus.</translation>
    </message>
    <message>
        <source>This combination leads to the dock.</source>
        <translation>Diese Kombination führt zum Dock.</translation>
    </message>
    <message>
        <source>This combination opens application %1.</source>
        <translation>Diese Kombination öffnet Programm %1.</translation>
    </message>
    <message>
        <source>The modes have these keys, so the applications have none.</source>
        <translation>Die Modi haben diese Tasten, darum haben die Programme keine.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>It needs Control, Alt or Super, or nobody could type this key.</source>
        <translation>Control, Alt oder Super muss dabei sein, sonst könnte niemand diese Taste tippen.</translation>
    </message>
    <message>
        <source>Taken by another program, or not on this keyboard: %1.</source>
        <translation>Von einem anderen Programm belegt oder nicht auf dieser Tastatur: %1.</translation>
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
        <translation>
            <numerusform>%n Nachricht</numerusform>
            <numerusform>%n Nachrichten</numerusform>
        </translation>
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
        <source>also in %1</source>
        <translation>auch in %1</translation>
    </message>
    <message>
        <source>%1 is not an application.</source>
        <translation>%1 ist kein Programm.</translation>
    </message>
    <message numerus="yes">
        <source>%n of them are on the list already.</source>
        <translation>
            <numerusform>%n davon steht schon auf der Liste.</numerusform>
            <numerusform>%n davon stehen schon auf der Liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>These are not addresses of web sites: %1. One looks like example.org.</source>
        <translation>Das sind keine Adressen von Websites: %1. Eine sieht aus wie example.org.</translation>
    </message>
</context>
<context>
    <name>fendrel::ModeSuggestions</name>
    <message>
        <source>A call</source>
        <translation>Ein Anruf</translation>
    </message>
    <message>
        <source>%1 has started.</source>
        <translation>%1 hat begonnen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 starts in %n min.</source>
        <translation>
            <numerusform>%1 beginnt in %n Min.</numerusform>
            <numerusform>%1 beginnt in %n Min.</numerusform>
        </translation>
    </message>
    <message>
        <source>You opened %1.</source>
        <translation>Du hast %1 geöffnet.</translation>
    </message>
</context>
<context>
    <name>fendrel::ModesController</name>
    <message>
        <source>New Mode</source>
        <translation>Neuer Modus</translation>
    </message>
    <message>
        <source>%1 Copy</source>
        <translation>%1 Kopie</translation>
    </message>
</context>
<context>
    <name>fendrel::NoticeController</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Switch to %1?</source>
        <translation>Zu %1 wechseln?</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Wechseln</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <translation>Zu %1 wechseln</translation>
    </message>
    <message>
        <source>Bring back what was open in %1?</source>
        <translation>Zurückholen, was in %1 offen war?</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Restore What Was Open</source>
        <translation>Zurückholen, was offen war</translation>
    </message>
    <message>
        <source>Couldn&apos;t find %1 any more.</source>
        <translation>%1 ist nicht mehr zu finden.</translation>
    </message>
    <message numerus="yes">
        <source>Couldn&apos;t find %n document(s) any more.</source>
        <translation>
            <numerusform>%n Dokument ist nicht mehr zu finden.</numerusform>
            <numerusform>%n Dokumente sind nicht mehr zu finden.</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>fendrel::PermissionsModel</name>
    <message>
        <source>Allow…</source>
        <translation>Erlauben …</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Entsperren …</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Adresse kopieren</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <source>Open Browser</source>
        <translation>Browser öffnen</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Works</source>
        <translation>Funktioniert</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Not here</source>
        <translation>Nicht hier</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message>
        <source>Tells which site is in front, and veils pages that belong to another mode.</source>
        <translation>Sagt, welche Website im Vordergrund ist, und verhüllt Seiten, die zu einem anderen Modus gehören.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Not running</source>
        <translation>Läuft nicht</translation>
    </message>
    <message>
        <source>Go to %1, turn on Developer mode, choose “Load unpacked”, and pick the folder “extension”.</source>
        <translation>Geh zu %1, schalte den Entwicklermodus ein, wähle „Entpackte Erweiterung laden“ und nimm den Ordner „extension“.</translation>
    </message>
    <message>
        <source>Go to %1, choose “Load Temporary Add-on”, and pick manifest.json in the folder “extension”. It stays until the browser ends.</source>
        <translation>Geh zu %1, wähle „Temporäres Add-on laden“ und nimm manifest.json im Ordner „extension“. Es bleibt, bis der Browser beendet wird.</translation>
    </message>
    <message>
        <source>Window titles</source>
        <translation>Fenstertitel</translation>
    </message>
    <message>
        <source>Tell which document or page is in front.</source>
        <translation>Sagen, welches Dokument oder welche Seite im Vordergrund ist.</translation>
    </message>
    <message>
        <source>Allow it in the system&apos;s settings.</source>
        <translation>Erlaube es in den Systemeinstellungen.</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Messages for other modes wait until you get there.</source>
        <translation>Nachrichten für andere Modi warten, bis du dorthin wechselst.</translation>
    </message>
    <message>
        <source>Log out and in again. If that doesn&apos;t help, the session bus has to allow monitoring.</source>
        <translation>Melde dich ab und wieder an. Wenn das nicht hilft, muss der Sitzungsbus das Mithören erlauben.</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>No browser that Fendrel can talk to was used here yet.</source>
        <translation>Hier wurde noch kein Browser benutzt, mit dem Fendrel sprechen kann.</translation>
    </message>
    <message>
        <source>Language model</source>
        <translation>Sprachmodell</translation>
    </message>
    <message>
        <source>Judges what the modes&apos; lists don&apos;t name, and which messages are urgent. It runs on this computer.</source>
        <translation>Beurteilt, was die Listen der Modi nicht nennen und welche Nachrichten dringend sind. Es läuft auf diesem Computer.</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Keins gefunden</translation>
    </message>
    <message>
        <source>Start a model server such as llama.cpp or Ollama. Everything else works without one.</source>
        <translation>Starte einen Modellserver wie llama.cpp oder Ollama. Alles andere funktioniert auch ohne.</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Schlüsselbund</translation>
    </message>
    <message>
        <source>Keeps the keys of your accounts.</source>
        <translation>Bewahrt die Schlüssel deiner Konten auf.</translation>
    </message>
    <message>
        <source>Install a keyring, such as GNOME Keyring or KWallet, and log in again.</source>
        <translation>Installiere einen Schlüsselbund, etwa GNOME Keyring oder KWallet, und melde dich neu an.</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Lead to modes, focus and the dock from anywhere.</source>
        <translation>Führen von überall zu Modi, Fokus und Dock.</translation>
    </message>
    <message>
        <source>Choose another combination, or change it in the other program.</source>
        <translation>Wähle eine andere Kombination oder ändere sie im anderen Programm.</translation>
    </message>
    <message>
        <source>Edges of the screen</source>
        <translation>Bildschirmränder</translation>
    </message>
    <message>
        <source>The pointer stays off the edge where a replaced dock waits.</source>
        <translation>Der Zeiger bleibt von dem Rand weg, an dem ein ersetztes Dock wartet.</translation>
    </message>
    <message>
        <source>This system can&apos;t hold the pointer.</source>
        <translation>Dieses System kann den Zeiger nicht halten.</translation>
    </message>
    <message>
        <source>Status icons</source>
        <translation>Statussymbole</translation>
    </message>
    <message>
        <source>Fendrel&apos;s icon beside the clock.</source>
        <translation>Fendrels Symbol neben der Uhr.</translation>
    </message>
    <message>
        <source>This desktop shows no status icons. The dock has the same menu.</source>
        <translation>Dieser Desktop zeigt keine Statussymbole. Das Dock hat dasselbe Menü.</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>The dock has round corners and a soft shadow.</source>
        <translation>Das Dock hat runde Ecken und einen weichen Schatten.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>For widgets that show what comes next.</source>
        <translation>Für Widgets, die zeigen, was als Nächstes kommt.</translation>
    </message>
    <message>
        <source>Start one such as Firefox or Chromium once.</source>
        <translation>Starte einmal einen wie Firefox oder Chromium.</translation>
    </message>
    <message>
        <source>Some don&apos;t work</source>
        <translation>Einige gehen nicht</translation>
    </message>
    <message>
        <source>Turn replacing the dock off and on again.</source>
        <translation>Schalte das Ersetzen des Docks aus und wieder ein.</translation>
    </message>
    <message>
        <source>Open Calendar</source>
        <translation>Kalender öffnen</translation>
    </message>
    <message>
        <source>Desktop Settings</source>
        <translation>Desktop-Einstellungen</translation>
    </message>
    <message>
        <source>Add a tray for them to the panel.</source>
        <translation>Füge der Leiste einen Bereich dafür hinzu.</translation>
    </message>
    <message>
        <source>The command installs what shows them.</source>
        <translation>Der Befehl installiert, was sie anzeigt.</translation>
    </message>
    <message>
        <source>Turn on compositing in the desktop&apos;s settings.</source>
        <translation>Schalte in den Einstellungen des Desktops den Compositor ein.</translation>
    </message>
    <message>
        <source>Turn on compositing in your window manager, or start a compositor such as picom.</source>
        <translation>Schalte in der Fensterverwaltung den Compositor ein, oder starte einen, etwa picom.</translation>
    </message>
    <message>
        <source>The extension is installed. Start %1.</source>
        <translation>Die Erweiterung ist installiert. Starte %1.</translation>
    </message>
    <message>
        <source>The extension is installed. Close %1 and start it again.</source>
        <translation>Die Erweiterung ist installiert. Beende %1 und starte es neu.</translation>
    </message>
    <message>
        <source>If that doesn&apos;t help, there is another way.</source>
        <translation>Hilft das nicht, gibt es noch einen anderen Weg.</translation>
    </message>
    <message>
        <source>It can also stay for good, with an administrator&apos;s password.</source>
        <translation>Sie kann auch dauerhaft bleiben, mit dem Passwort eines Administrators.</translation>
    </message>
    <message>
        <source>Copy the command and run it in a terminal.</source>
        <translation>Kopiere den Befehl und führe ihn in einem Terminal aus.</translation>
    </message>
    <message>
        <source>Install one such as Firefox or Chromium, and start it once.</source>
        <translation>Installiere einen, etwa Firefox oder Chromium, und starte ihn einmal.</translation>
    </message>
    <message>
        <source>From the calendar of your desktop.</source>
        <translation>Aus dem Kalender deines Desktops.</translation>
    </message>
    <message>
        <source>From iCalendar files in %1.</source>
        <translation>Aus iCalendar-Dateien in %1.</translation>
    </message>
    <message>
        <source>Fendrel may not read your calendars.</source>
        <translation>Fendrel darf deine Kalender nicht lesen.</translation>
    </message>
    <message>
        <source>There is no calendar that Fendrel can read: neither your desktop&apos;s nor a folder of iCalendar files.</source>
        <translation>Es gibt keinen Kalender, den Fendrel lesen kann: weder den deines Desktops noch einen Ordner mit iCalendar-Dateien.</translation>
    </message>
    <message>
        <source>The command installs a calendar program that shares its calendars.</source>
        <translation>Der Befehl installiert ein Kalenderprogramm, das seine Kalender teilt.</translation>
    </message>
</context>
<context>
    <name>fendrel::SettingsController</name>
    <message>
        <source>Reset the settings of “%1”?</source>
        <translation>Einstellungen von „%1“ zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>They go back to how they were when Fendrel was new. Starting at log-in, replacing the system dock, your modes and what Fendrel has learned stay as they are.</source>
        <translation>Sie werden wieder, wie sie am Anfang waren. Der Start beim Anmelden, das Ersetzen des System-Docks, deine Modi und was Fendrel gelernt hat, bleiben, wie sie sind.</translation>
    </message>
</context>
<context>
    <name>fendrel::TrashController</name>
    <message>
        <source>The Trash couldn&apos;t be emptied</source>
        <translation>Der Papierkorb konnte nicht geleert werden</translation>
    </message>
    <message>
        <source>Some of what is in it can&apos;t be deleted.</source>
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
        <source>What is in it is deleted for good. You can&apos;t undo this.</source>
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
        <source>“%1” couldn&apos;t be moved to the Trash</source>
        <translation>„%1“ konnte nicht in den Papierkorb bewegt werden</translation>
    </message>
    <message>
        <source>%1 items couldn&apos;t be moved to the Trash</source>
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
<context>
    <name>fendrel::WidgetActions</name>
    <message>
        <source>Opens the accounts in the settings</source>
        <translation>Öffnet die Konten in den Einstellungen</translation>
    </message>
    <message>
        <source>Opens the widgets in the settings</source>
        <translation>Öffnet die Widgets in den Einstellungen</translation>
    </message>
    <message>
        <source>Opens it in the browser</source>
        <translation>Öffnet es im Browser</translation>
    </message>
    <message>
        <source>Asks for what is new</source>
        <translation>Fragt nach Neuem</translation>
    </message>
    <message>
        <source>Is being asked for what is new</source>
        <translation>Wird gerade aktualisiert</translation>
    </message>
    <message>
        <source>Opens the permissions in the settings</source>
        <translation>Öffnet die Berechtigungen in den Einstellungen</translation>
    </message>
    <message>
        <source>Asks you for leave to read it</source>
        <translation>Bittet dich um die Erlaubnis zum Lesen</translation>
    </message>
    <message>
        <source>Adds a reminder</source>
        <translation>Fügt eine Erinnerung hinzu</translation>
    </message>
</context>
<context>
    <name>fendrel::WidgetSubjects</name>
    <message>
        <source>No city called “%1” was found.</source>
        <translation>Keine Stadt namens „%1“ gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %n are kept.</source>
        <translation>
            <numerusform>Nur der erste wird behalten.</numerusform>
            <numerusform>Nur die ersten %n werden behalten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fendrel::WidgetsController</name>
    <message>
        <source>Connected to %1</source>
        <translation>Verbunden mit %1</translation>
    </message>
    <message>
        <source>Needs an account of one of these: %1</source>
        <translation>Braucht ein Konto bei einem davon: %1</translation>
    </message>
    <message>
        <source>Needs an account of %1</source>
        <translation>Braucht ein Konto bei %1</translation>
    </message>
</context>
<context>
    <name>fendrel::WidgetsModel</name>
    <message>
        <source>The dock can&apos;t show this one yet.</source>
        <translation>Das Dock kann dieses noch nicht zeigen.</translation>
    </message>
</context>
</TS>
