<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AccessBanner</name>
    <message>
        <source>Vesk needs Accessibility access to read selected text</source>
        <translation>Vesk braucht Zugriff über die Barrierefreiheit, um markierten Text zu lesen</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
</context>
<context>
    <name>AccessStatus</name>
    <message>
        <source>Accessibility access allowed</source>
        <translation>Zugriff über die Barrierefreiheit erlaubt</translation>
    </message>
    <message>
        <source>Needs Accessibility access</source>
        <translation>Braucht Zugriff über die Barrierefreiheit</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
</context>
<context>
    <name>CardMenu</name>
    <message>
        <source>Prompt</source>
        <translation>Prompt</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Mark as Not Done</source>
        <translation>Als nicht erledigt markieren</translation>
    </message>
    <message>
        <source>Mark as Done</source>
        <translation>Als erledigt markieren</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste into the App You Came From (⌘↩)</source>
        <translation>In die vorherige Anwendung einfügen (⌘↩)</translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>Löschen (⌘⌫)</translation>
    </message>
</context>
<context>
    <name>ChecklistRow</name>
    <message>
        <source>Mark “%1” as not done</source>
        <translation>„%1“ als nicht erledigt markieren</translation>
    </message>
    <message>
        <source>Mark “%1” as done</source>
        <translation>„%1“ als erledigt markieren</translation>
    </message>
</context>
<context>
    <name>Client</name>
    <message>
        <source>There is no session bus. Run this command in your desktop session.</source>
        <translation>Es gibt keinen Sitzungsbus. Führen Sie diesen Befehl in der Sitzung Ihrer Arbeitsumgebung aus.</translation>
    </message>
</context>
<context>
    <name>Composer</name>
    <message>
        <source>Write a follow-up prompt…</source>
        <translation>Folge-Prompt schreiben …</translation>
    </message>
    <message>
        <source>Write a note…</source>
        <translation>Notiz schreiben …</translation>
    </message>
</context>
<context>
    <name>CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
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
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>EmptyPrompts</name>
    <message>
        <source>No prompts yet</source>
        <translation>Noch keine Prompts</translation>
    </message>
    <message>
        <source>Select text anywhere and tap</source>
        <translation>Text irgendwo markieren und tippen:</translation>
    </message>
    <message>
        <source>or write a follow-up prompt below.</source>
        <translation>oder unten einen Folge-Prompt schreiben.</translation>
    </message>
    <message>
        <source>Select text anywhere and press</source>
        <translation>Text irgendwo markieren und drücken:</translation>
    </message>
    <message>
        <source>Write a follow-up prompt below.</source>
        <translation>Unten einen Folge-Prompt schreiben.</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Nothing here yet</source>
        <translation>Noch nichts hier</translation>
    </message>
    <message>
        <source>Vesk catches whatever you select, from any app.</source>
        <translation>Vesk hält fest, was Sie markieren, in jeder Anwendung.</translation>
    </message>
</context>
<context>
    <name>FieldMenu</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
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
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>GuideView</name>
    <message>
        <source>Quick Guide</source>
        <translation>Kurzanleitung</translation>
    </message>
    <message>
        <source>Welcome to Vesk</source>
        <translation>Willkommen bei Vesk</translation>
    </message>
    <message>
        <source>A quiet notes pad that catches whatever you select.</source>
        <translation>Ein stiller Notizblock, der festhält, was Sie markieren.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
</context>
<context>
    <name>NoteActions</name>
    <message>
        <source>Unpin</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Paste into the App You Came From (⌘↩)</source>
        <translation>In die vorherige Anwendung einfügen (⌘↩)</translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>Löschen (⌘⌫)</translation>
    </message>
</context>
<context>
    <name>NoteCard</name>
    <message>
        <source>New Note</source>
        <translation>Neue Notiz</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>angeheftet</translation>
    </message>
    <message>
        <source>%L1 of %L2 done</source>
        <translation>%L1 von %L2 erledigt</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>aus %1</translation>
    </message>
    <message>
        <source>the app</source>
        <translation>die Anwendung</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>NoteEditor</name>
    <message>
        <source>Start typing…</source>
        <translation>Einfach schreiben …</translation>
    </message>
</context>
<context>
    <name>NoteForm</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Done (⌘↩)</source>
        <translation>Fertig (⌘↩)</translation>
    </message>
</context>
<context>
    <name>NoteList</name>
    <message>
        <source>Checklists</source>
        <translation>Checklisten</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
</context>
<context>
    <name>NoteSummary</name>
    <message numerus="yes">
        <source>+ %Ln more</source>
        <translation>
            <numerusform>+ %Ln weiterer</numerusform>
            <numerusform>+ %Ln weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PanelContent</name>
    <message>
        <source>No notes match “%1”</source>
        <translation>Keine Notiz enthält „%1“</translation>
    </message>
    <message>
        <source>No checklists yet</source>
        <translation>Noch keine Checklisten</translation>
    </message>
    <message>
        <source>Type [ ] and a space in a note to start one.</source>
        <translation>Mit [ ] und einem Leerzeichen beginnt in einer Notiz eine Liste.</translation>
    </message>
    <message>
        <source>No prompts match “%1”</source>
        <translation>Kein Prompt enthält „%1“</translation>
    </message>
</context>
<context>
    <name>PanelMenuButton</name>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Quick Guide…</source>
        <translation>Kurzanleitung …</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Quick Note…</source>
        <translation>Schnellnotiz …</translation>
    </message>
    <message>
        <source>Quick Checklist…</source>
        <translation>Schnellcheckliste …</translation>
    </message>
    <message>
        <source>Clear Done Prompts</source>
        <translation>Erledigte Prompts löschen</translation>
    </message>
    <message>
        <source>Accessibility Settings…</source>
        <translation>Barrierefreiheit …</translation>
    </message>
    <message>
        <source>Quit Vesk</source>
        <translation>Vesk beenden</translation>
    </message>
</context>
<context>
    <name>ProgressChip</name>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 von %L2</translation>
    </message>
</context>
<context>
    <name>PromptCard</name>
    <message>
        <source>%1, done</source>
        <translation>%1, erledigt</translation>
    </message>
    <message>
        <source>Mark as not done</source>
        <translation>Als nicht erledigt markieren</translation>
    </message>
    <message>
        <source>Mark as done</source>
        <translation>Als erledigt markieren</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Weniger anzeigen</translation>
    </message>
    <message>
        <source>Show more</source>
        <translation>Mehr anzeigen</translation>
    </message>
    <message>
        <source>Paste into the App You Came From (⌘↩)</source>
        <translation>In die vorherige Anwendung einfügen (⌘↩)</translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>Löschen (⌘⌫)</translation>
    </message>
</context>
<context>
    <name>PromptList</name>
    <message>
        <source>Prompts</source>
        <translation>Prompts</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Vesk cannot start</source>
        <translation>Vesk kann nicht starten</translation>
    </message>
    <message>
        <source>Could not open the notes store: %1</source>
        <translation>Der Notizspeicher konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>QuickNoteView</name>
    <message>
        <source>Write a note…</source>
        <translation>Notiz schreiben …</translation>
    </message>
    <message>
        <source>Next item</source>
        <translation>Nächster Punkt</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>New line</source>
        <translation>Neue Zeile</translation>
    </message>
    <message>
        <source>Checkbox</source>
        <translation>Kästchen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>RelativeTime</name>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>SectionHeader</name>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items</source>
        <translation>
            <numerusform>%Ln Eintrag</numerusform>
            <numerusform>%Ln Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>eingeklappt</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>ausgeklappt</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>SourceCapsule</name>
    <message>
        <source>from %1</source>
        <translation>aus %1</translation>
    </message>
</context>
<context>
    <name>TabBar</name>
    <message>
        <source>Tabs</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Checklists</source>
        <translation>Checklisten</translation>
    </message>
    <message>
        <source>Prompts</source>
        <translation>Prompts</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>See: vesk --help</source>
        <extracomment>After a sentence that says what is wrong with a command line.</extracomment>
        <translation>Siehe: vesk --help</translation>
    </message>
</context>
<context>
    <name>vesk::AccessCommand</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>allowed</source>
        <translation>erlaubt</translation>
    </message>
    <message>
        <source>not allowed</source>
        <translation>nicht erlaubt</translation>
    </message>
    <message>
        <source>The setting could not be written to %1.</source>
        <translation>Die Einstellung konnte nicht in %1 geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>vesk::AccessWindow</name>
    <message>
        <source>Let Vesk read what you select?</source>
        <translation>Darf Vesk lesen, was Sie markieren?</translation>
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
        <source>When you press one of Vesk’s keys, Vesk reads the text that is selected, or was copied a moment before, and where it is: the application, its window’s title and, in a browser, the page’s address. At other times it only notices when a key or button is pressed (not which one), when something is selected, and whether a password field has the keyboard. It needs this to tell a current selection from an old one and to leave passwords alone. It sends nothing anywhere.

You may have to restart applications that are already open before Vesk can read them.</source>
        <translation>Wenn Sie eine von Vesks Tasten drücken, liest Vesk den Text, der markiert ist oder eben kopiert wurde, und wo er steht: die Anwendung, den Titel ihres Fensters und im Browser die Adresse der Seite. Sonst bemerkt Vesk nur, wann eine Taste oder ein Knopf gedrückt wird (nicht welche), wann etwas markiert wird und ob ein Passwortfeld die Tastatur hat. Vesk braucht das, um die jetzige Markierung von einer früheren zu unterscheiden und Passwörter nicht anzurühren. Vesk sendet nichts irgendwohin.

Vielleicht müssen Sie Anwendungen, die schon offen sind, neu starten, bevor Vesk sie lesen kann.</translation>
    </message>
</context>
<context>
    <name>vesk::AppUpdater</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Vesk is up to date</source>
        <translation>Vesk ist aktuell</translation>
    </message>
    <message>
        <source>Version %1 is the newest that your system can install.</source>
        <translation>Version %1 ist die neueste, die Ihr System installieren kann.</translation>
    </message>
    <message>
        <source>There is a newer Vesk</source>
        <translation>Es gibt ein neueres Vesk</translation>
    </message>
    <message>
        <source>Your system can install version %1.</source>
        <translation>Ihr System kann Version %1 installieren.</translation>
    </message>
    <message>
        <source>Open Updates</source>
        <translation>Updates öffnen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Die Suche nach Updates ging nicht</translation>
    </message>
    <message>
        <source>Your system’s package service did not answer. Try again later.</source>
        <translation>Der Paketdienst Ihres Systems hat nicht geantwortet. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Your system can install version %1 with your package manager.</source>
        <translation>Ihr System kann Version %1 mit der Paketverwaltung installieren.</translation>
    </message>
    <message>
        <source>Your system does not update this copy of Vesk</source>
        <translation>Ihr System aktualisiert diese Kopie von Vesk nicht</translation>
    </message>
    <message>
        <source>It was not installed as a package. Look for a newer version where you got this one.</source>
        <translation>Sie wurde nicht als Paket installiert. Suchen Sie dort, woher Sie diese Version haben, nach einer neueren.</translation>
    </message>
</context>
<context>
    <name>vesk::CanberraSounds</name>
    <message>
        <source>Saved to Vesk</source>
        <translation>In Vesk gespeichert</translation>
    </message>
</context>
<context>
    <name>vesk::Client</name>
    <message>
        <source>Standard input is not plain text in UTF-8.</source>
        <translation>Die Standardeingabe ist kein reiner Text in UTF-8.</translation>
    </message>
    <message>
        <source>There is no text to add.</source>
        <translation>Es gibt keinen Text zum Hinzufügen.</translation>
    </message>
    <message>
        <source>Could not open the notes store: %1</source>
        <translation>Der Notizspeicher konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>The note could not be written to %1.</source>
        <translation>Die Notiz konnte nicht in %1 geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 could not be started: %2.</source>
        <translation>%1 konnte nicht gestartet werden: %2.</translation>
    </message>
    <message>
        <source>The text is too long: a note can have up to %1 MB.</source>
        <translation>Der Text ist zu lang: Eine Notiz kann bis zu %1 MB haben.</translation>
    </message>
    <message>
        <source>Could not write to standard output: %1.</source>
        <translation>In die Standardausgabe konnte nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>Vesk is not running, so none of these keys work now.</source>
        <translation>Vesk läuft nicht, daher wirkt im Moment keine dieser Tasten.</translation>
    </message>
    <message>
        <source>Could not read standard input.</source>
        <translation>Die Standardeingabe konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The note was not saved, because other commands kept writing to the notes.</source>
        <translation>Die Notiz wurde nicht gespeichert, weil andere Befehle fortwährend in die Notizen schrieben.</translation>
    </message>
</context>
<context>
    <name>vesk::Command</name>
    <message>
        <source>save the selected text; with nothing selected, write a quick note</source>
        <translation>den markierten Text speichern; ist nichts markiert, eine Schnellnotiz schreiben</translation>
    </message>
    <message>
        <source>add the selected text to the note changed last</source>
        <translation>den markierten Text an die zuletzt geänderte Notiz anhängen</translation>
    </message>
    <message>
        <source>open or hide Vesk</source>
        <translation>Vesk öffnen oder ausblenden</translation>
    </message>
    <message>
        <source>open Vesk to write a new note</source>
        <translation>Vesk öffnen und eine neue Notiz schreiben</translation>
    </message>
    <message>
        <source>New Note</source>
        <translation>Neue Notiz</translation>
    </message>
    <message>
        <source>make a checklist of the selected lines, or write one</source>
        <translation>aus den markierten Zeilen eine Checkliste machen, oder eine schreiben</translation>
    </message>
    <message>
        <source>add the selected lines to the checklist changed last</source>
        <translation>die markierten Zeilen an die zuletzt geänderte Checkliste anhängen</translation>
    </message>
    <message>
        <source>save the selected text as a prompt</source>
        <translation>den markierten Text als Prompt speichern</translation>
    </message>
    <message>
        <source>open the box for a quick note</source>
        <translation>das Feld für eine Schnellnotiz öffnen</translation>
    </message>
    <message>
        <source>Quick Note…</source>
        <translation>Schnellnotiz …</translation>
    </message>
    <message>
        <source>open the box for a checklist</source>
        <translation>das Feld für eine Checkliste öffnen</translation>
    </message>
    <message>
        <source>Quick Checklist…</source>
        <translation>Schnellcheckliste …</translation>
    </message>
    <message>
        <source>open Vesk</source>
        <translation>Vesk öffnen</translation>
    </message>
    <message>
        <source>Open Vesk</source>
        <translation>Vesk öffnen</translation>
    </message>
    <message>
        <source>quit Vesk</source>
        <translation>Vesk beenden</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>vesk::CommandHints</name>
    <message>
        <source>Save selected text, or write a quick note</source>
        <translation>Markierten Text speichern oder eine Schnellnotiz schreiben</translation>
    </message>
    <message>
        <source>Add the selection to your last note</source>
        <translation>Die Auswahl an die letzte Notiz anhängen</translation>
    </message>
    <message>
        <source>Open or hide Vesk</source>
        <translation>Vesk öffnen oder ausblenden</translation>
    </message>
    <message>
        <source>Open Vesk and write a new note</source>
        <translation>Vesk öffnen und eine neue Notiz schreiben</translation>
    </message>
    <message>
        <source>Save selected text as a prompt</source>
        <translation>Markierten Text als Prompt speichern</translation>
    </message>
    <message>
        <source>Start a checklist while typing</source>
        <translation>Beim Schreiben eine Checkliste beginnen</translation>
    </message>
    <message>
        <source>%1 (keys taken by %2)</source>
        <translation>%1 (Tasten belegt von %2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>keys: what they do</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>vesk::CommandKeys</name>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>einem anderen Programm</translation>
    </message>
    <message>
        <source>Switched off in %1.</source>
        <translation>Abgeschaltet in %1.</translation>
    </message>
    <message>
        <source>New Note</source>
        <translation>Neue Notiz</translation>
    </message>
    <message>
        <source>New Note (%1, taken)</source>
        <translation>Neue Notiz (%1, belegt)</translation>
    </message>
    <message>
        <source>New Note (%1)</source>
        <translation>Neue Notiz (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%n Key(s) Taken by %1…</source>
        <translation>
            <numerusform>%n Taste belegt von %1 …</numerusform>
            <numerusform>%n Tasten belegt von %1 …</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Key(s) Taken…</source>
        <translation>
            <numerusform>%n Taste belegt …</numerusform>
            <numerusform>%n Tasten belegt …</numerusform>
        </translation>
    </message>
    <message>
        <source>Another program uses these keys. Free them there, or choose others in %1.</source>
        <translation>Ein anderes Programm benutzt diese Tasten. Geben Sie sie dort frei oder wählen Sie andere in %1.</translation>
    </message>
    <message>
        <source>%1 uses these keys. Free them there, or choose others in %2.</source>
        <translation>Diese Tasten sind belegt von %1. Geben Sie sie dort frei oder wählen Sie andere in %2.</translation>
    </message>
</context>
<context>
    <name>vesk::CommandLine</name>
    <message>
        <source>print the notes, newest first</source>
        <translation>die Notizen ausgeben, die neueste zuerst</translation>
    </message>
    <message>
        <source>start without showing the panel</source>
        <translation>starten, ohne das Panel anzuzeigen</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>die Version ausgeben</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>save TEXT as a note; &quot;vesk add -&quot; reads standard input</source>
        <translation>TEXT als Notiz speichern; „vesk add -“ liest die Standardeingabe</translation>
    </message>
    <message>
        <source>print the global keys and whether they work</source>
        <translation>die globalen Tasten ausgeben, und ob sie wirken</translation>
    </message>
    <message>
        <source>allow or forbid Vesk to read selected text</source>
        <translation>Vesk erlauben oder verbieten, markierten Text zu lesen</translation>
    </message>
    <message>
        <source>draw windows with the GPU (only when Vesk starts)</source>
        <translation>Fenster mit der GPU zeichnen (nur beim Start von Vesk)</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>diese Hilfe ausgeben</translation>
    </message>
    <message>
        <source>Unknown option: %1</source>
        <translation>Unbekannte Option: %1</translation>
    </message>
    <message>
        <source>add: The text is missing. Give a text, or - to read standard input.</source>
        <translation>add: Der Text fehlt. Geben Sie einen Text an, oder - für die Standardeingabe.</translation>
    </message>
    <message>
        <source>add: Too many arguments. Put the text in quotes.</source>
        <translation>add: Zu viele Argumente. Setzen Sie den Text in Anführungszeichen.</translation>
    </message>
    <message>
        <source>Unknown command: %1</source>
        <translation>Unbekannter Befehl: %1</translation>
    </message>
    <message>
        <source>%1: Only one option is allowed.</source>
        <translation>%1: Nur eine Option ist erlaubt.</translation>
    </message>
    <message>
        <source>%1: Unknown option %2</source>
        <translation>%1: Unbekannte Option %2</translation>
    </message>
    <message>
        <source>Usage: vesk [command]

Saves what you select in any application. Without a command, starts Vesk, or shows its
panel if it is already running.</source>
        <translation>Aufruf: vesk [Befehl]

Speichert, was Sie in einer beliebigen Anwendung markieren. Ohne Befehl: startet Vesk oder
zeigt sein Panel, wenn es schon läuft.</translation>
    </message>
    <message>
        <source>Commands for the running Vesk, which is started in the background if necessary:</source>
        <translation>Befehle für das laufende Vesk, das bei Bedarf im Hintergrund gestartet wird:</translation>
    </message>
    <message>
        <source>Commands that work without a running Vesk:</source>
        <translation>Befehle, die ohne laufendes Vesk wirken:</translation>
    </message>
    <message>
        <source>Exit status: 0 success, 1 failure (standard error says why), 2 wrong usage.</source>
        <translation>Rückgabewert: 0 Erfolg, 1 Fehler (die Standardfehlerausgabe sagt warum), 2 falscher Aufruf.</translation>
    </message>
</context>
<context>
    <name>vesk::DailyCopy</name>
    <message>
        <source>Vesk cannot keep a copy of your notes: the disk is too full.</source>
        <translation>Vesk kann keine Kopie Ihrer Notizen anlegen: Der Datenträger ist zu voll.</translation>
    </message>
    <message>
        <source>The notes file is damaged, so Vesk did not copy it. Quit Vesk and start it again for advice.</source>
        <translation>Die Notizdatei ist beschädigt, deshalb hat Vesk sie nicht kopiert. Beenden Sie Vesk und starten Sie es neu, um Rat zu erhalten.</translation>
    </message>
    <message>
        <source>Vesk cannot keep a copy of your notes: it has no permission to write to their folder.</source>
        <translation>Vesk kann keine Kopie Ihrer Notizen anlegen: Es hat keine Berechtigung, in deren Ordner zu schreiben.</translation>
    </message>
    <message>
        <source>Vesk cannot keep a copy of your notes: copying them failed.</source>
        <translation>Vesk kann keine Kopie Ihrer Notizen anlegen: Das Kopieren ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>vesk::Database</name>
    <message>
        <source>Another file was put in the place of the notes file while Vesk was running. Vesk leaves it alone and keeps your notes in “%1” instead.</source>
        <translation>Während Vesk lief, wurde eine andere Datei an die Stelle der Notizdatei gesetzt. Vesk lässt sie unberührt und bewahrt Ihre Notizen stattdessen in „%1“ auf.</translation>
    </message>
    <message>
        <source>The notes file was moved to “%1” while Vesk was running. Vesk has written all your notes to a new file in the old place, and the moved one no longer changes.</source>
        <translation>Die Notizdatei wurde nach „%1“ verschoben, während Vesk lief. Vesk hat alle Ihre Notizen in eine neue Datei an der alten Stelle geschrieben, und die verschobene ändert sich nicht mehr.</translation>
    </message>
    <message>
        <source>The notes file was deleted or moved away while Vesk was running. Vesk has written all your notes to a new file in its place.</source>
        <translation>Die Notizdatei wurde gelöscht oder verschoben, während Vesk lief. Vesk hat alle Ihre Notizen in eine neue Datei an ihrer Stelle geschrieben.</translation>
    </message>
</context>
<context>
    <name>vesk::DesktopMenus</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
</context>
<context>
    <name>vesk::GuideTopics</name>
    <message>
        <source>Open Vesk anywhere</source>
        <translation>Vesk überall öffnen</translation>
    </message>
    <message>
        <source>Press it in any app to open or hide Vesk. Escape also hides it, and so does clicking another app.</source>
        <translation>In jeder Anwendung öffnet oder versteckt dies Vesk. Auch Escape oder ein Klick in eine andere Anwendung versteckt es.</translation>
    </message>
    <message>
        <source>Write a new note</source>
        <translation>Eine neue Notiz schreiben</translation>
    </message>
    <message>
        <source>Opens Vesk with the cursor in “Write a note…”. Return saves it, Shift-Return starts a new line.</source>
        <translation>Öffnet Vesk mit der Schreibmarke in „Notiz schreiben …“. Enter speichert, mit Umschalt beginnt es eine neue Zeile.</translation>
    </message>
    <message>
        <source>Save selected text</source>
        <translation>Markierten Text speichern</translation>
    </message>
    <message>
        <source>Select text in a browser, ChatGPT, Claude, a terminal, anywhere, and press it. It becomes a note that remembers where it came from. With nothing selected, a quick note box opens.</source>
        <translation>Markieren Sie Text im Browser, in ChatGPT, Claude, einem Terminal, überall, und drücken Sie dies. Es wird eine Notiz, die weiß, woher sie kommt. Ist nichts markiert, öffnet sich ein Feld für eine Schnellnotiz.</translation>
    </message>
    <message>
        <source>Prompts for your AI chats</source>
        <translation>Prompts für Ihre KI-Chats</translation>
    </message>
    <message>
        <source>Select text and tap Shift twice to save it as a prompt, or write follow-up prompts in the Prompts tab. Copy or paste them into the chat and tick them off.</source>
        <translation>Markieren Sie Text und tippen Sie zweimal auf Umschalt, um ihn als Prompt zu speichern, oder schreiben Sie Folge-Prompts im Bereich Prompts. Kopieren Sie sie in den Chat und haken Sie sie ab.</translation>
    </message>
    <message>
        <source>Add to your last note</source>
        <translation>An die letzte Notiz anhängen</translation>
    </message>
    <message>
        <source>Adds the selection to the bottom of the note you changed last. A note that ends in a checklist gets new checkboxes.</source>
        <translation>Hängt die Auswahl unten an die zuletzt geänderte Notiz an. Eine Notiz, die mit einer Checkliste endet, bekommt neue Kästchen.</translation>
    </message>
    <message>
        <source>Make a checklist</source>
        <translation>Eine Checkliste anlegen</translation>
    </message>
    <message>
        <source>Each selected line becomes a checkbox. With nothing selected, a box opens on the first checkbox: Return adds the next item, ⌘↩ saves.</source>
        <translation>Jede markierte Zeile wird ein Kästchen. Ist nichts markiert, öffnet sich ein Feld mit dem ersten Kästchen: Enter fügt den nächsten Punkt hinzu, ⌘↩ speichert.</translation>
    </message>
    <message>
        <source>Add to your checklist</source>
        <translation>An die Checkliste anhängen</translation>
    </message>
    <message>
        <source>Each selected line becomes a new checkbox in the checklist you changed last, even if you edited other notes since.</source>
        <translation>Jede markierte Zeile wird ein neues Kästchen in der zuletzt geänderten Checkliste, auch wenn Sie seitdem andere Notizen bearbeitet haben.</translation>
    </message>
    <message>
        <source>Checkboxes and lists</source>
        <translation>Kästchen und Listen</translation>
    </message>
    <message>
        <source>Type [ ] and a space for a checkbox, - and a space for a bullet, # and a space for a heading. Tick boxes right on the card.</source>
        <translation>[ ] und ein Leerzeichen ergeben ein Kästchen, - und ein Leerzeichen einen Aufzählungspunkt, # und ein Leerzeichen eine Überschrift. Kästchen lassen sich auf der Karte abhaken.</translation>
    </message>
    <message>
        <source>Keyboard in the panel</source>
        <translation>Tastatur im Panel</translation>
    </message>
    <message>
        <source>Move between notes. Return opens one, ⌘↩ pastes it into the app you came from, ⌘⌫ deletes it, ⌘F searches.</source>
        <translation>Zwischen Notizen bewegen. Enter öffnet eine, ⌘↩ fügt sie in die vorherige Anwendung ein, ⌘⌫ löscht sie, ⌘F sucht.</translation>
    </message>
    <message>
        <source>Write follow-up prompts in the Prompts tab. Copy or paste them into the chat and tick them off.</source>
        <translation>Schreiben Sie Folge-Prompts im Bereich Prompts. Kopieren Sie sie in den Chat und haken Sie sie ab.</translation>
    </message>
    <message>
        <source>Select text and press %1 to save it as a prompt, or write follow-up prompts in the Prompts tab. Copy or paste them into the chat and tick them off.</source>
        <translation>Markieren Sie Text und drücken Sie %1, um ihn als Prompt zu speichern, oder schreiben Sie Folge-Prompts im Bereich Prompts. Kopieren Sie sie in den Chat und haken Sie sie ab.</translation>
    </message>
</context>
<context>
    <name>vesk::KeyLabels</name>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rück</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>PageUp</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>PageDown</source>
        <translation>Bild ab</translation>
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
        <source>Insert</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>vesk::KeySettings</name>
    <message>
        <source>Keys.conf, line %1: %2</source>
        <translation>Keys.conf, Zeile %1: %2</translation>
    </message>
    <message>
        <source>Only save-prompt can be Shift tapped twice.</source>
        <translation>Nur save-prompt kann zweimal Shift sein.</translation>
    </message>
    <message>
        <source>The combination is empty.</source>
        <translation>Die Kombination ist leer.</translation>
    </message>
    <message>
        <source>“%1” is not a modifier. The modifiers are Super, Alt, Ctrl and Shift.</source>
        <translation>„%1“ ist keine Sondertaste. Die Sondertasten sind Super, Alt, Ctrl und Shift.</translation>
    </message>
    <message>
        <source>The key after the modifiers is missing.</source>
        <translation>Die Taste nach den Sondertasten fehlt.</translation>
    </message>
    <message>
        <source>Unknown key: “%1”.</source>
        <translation>Unbekannte Taste: „%1“.</translation>
    </message>
    <message>
        <source>The combination needs Super, Alt or Ctrl, or no application could use this key.</source>
        <translation>Die Kombination braucht Super, Alt oder Ctrl, sonst könnte keine Anwendung diese Taste benutzen.</translation>
    </message>
    <message>
        <source>“%1” does not have the form “command = combination”.</source>
        <translation>„%1“ hat nicht die Form „Befehl = Kombination“.</translation>
    </message>
    <message>
        <source>Unknown command: “%1”.</source>
        <translation>Unbekannter Befehl: „%1“.</translation>
    </message>
    <message>
        <source>%1 “%2” keeps %3.</source>
        <translation>%1 „%2“ behält %3.</translation>
    </message>
    <message>
        <source>“%1” is already set in line %2, which applies.</source>
        <translation>„%1“ ist schon in Zeile %2 festgelegt, und diese gilt.</translation>
    </message>
    <message>
        <source>%1 is already used for “%2”.</source>
        <translation>%1 wird schon für „%2“ benutzt.</translation>
    </message>
</context>
<context>
    <name>vesk::KeysReport</name>
    <message>
        <source>works</source>
        <translation>wirkt</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>needs access</source>
        <translation>braucht Zugriff</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>taken by another program</source>
        <translation>belegt von einem anderen Programm</translation>
    </message>
    <message>
        <source>taken by %1</source>
        <translation>belegt von %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1, not in %2</source>
        <translation>%1, nicht in %2</translation>
    </message>
</context>
<context>
    <name>vesk::Main</name>
    <message>
        <source>Vesk cannot start: %1</source>
        <translation>Vesk kann nicht starten: %1</translation>
    </message>
    <message>
        <source>Vesk cannot start</source>
        <translation>Vesk kann nicht starten</translation>
    </message>
    <message>
        <source>Vesk could not open the notes store and is about to quit.</source>
        <translation>Vesk konnte den Notizspeicher nicht öffnen und beendet sich gleich.</translation>
    </message>
    <message>
        <source>Vesk is already running but does not respond.</source>
        <translation>Vesk läuft bereits, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>Vesk needs a session bus, and there is none.</source>
        <translation>Vesk braucht einen Sitzungsbus, und es gibt keinen.</translation>
    </message>
    <message>
        <source>Vesk needs an X11 desktop, and this is a Wayland desktop without an X server. Log in to an X11 session, or use the commands that work without one: vesk add and vesk list.</source>
        <translation>Vesk braucht eine X11-Arbeitsumgebung, und dies ist eine mit Wayland ohne X-Server. Melden Sie sich in einer X11-Sitzung an, oder nutzen Sie die Befehle, die ohne sie auskommen: vesk add und vesk list.</translation>
    </message>
    <message>
        <source>Vesk needs an X11 desktop, and there is no X server at &quot;%1&quot;. The commands vesk add and vesk list work without one.</source>
        <translation>Vesk braucht eine X11-Arbeitsumgebung, und bei „%1“ ist kein X-Server. Die Befehle vesk add und vesk list kommen ohne ihn aus.</translation>
    </message>
</context>
<context>
    <name>vesk::MenuCommands</name>
    <message>
        <source>Checklist</source>
        <translation>Checkliste</translation>
    </message>
    <message>
        <source>Bulleted List</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Überschrift</translation>
    </message>
</context>
<context>
    <name>vesk::MessageWindow</name>
    <message>
        <source>Vesk: %1</source>
        <translation>Vesk: %1</translation>
    </message>
</context>
<context>
    <name>vesk::NoteListModel</name>
    <message>
        <source>Pinned</source>
        <translation>Angeheftet</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
</context>
<context>
    <name>vesk::NotesStore</name>
    <message>
        <source>Notes that Vesk kept when the notes file was replaced are in “%1”. To get them back, quit Vesk and put that file in the place of “%2”.</source>
        <translation>Notizen, die Vesk aufbewahrt hat, als die Notizdatei ersetzt wurde, sind in „%1“. Um sie zurückzubekommen, beenden Sie Vesk und setzen Sie diese Datei an die Stelle von „%2“.</translation>
    </message>
</context>
<context>
    <name>vesk::Notice</name>
    <message>
        <source>Saved to Vesk</source>
        <translation>In Vesk gespeichert</translation>
    </message>
    <message>
        <source>Not saved yet, Vesk keeps trying</source>
        <translation>Noch nicht gespeichert, Vesk versucht es weiter</translation>
    </message>
    <message>
        <source>Copied. The window you came from has closed</source>
        <translation>Kopiert. Das vorherige Fenster wurde geschlossen</translation>
    </message>
    <message>
        <source>Copied. Paste it where you need it</source>
        <translation>Kopiert. Fügen Sie es ein, wo Sie es brauchen</translation>
    </message>
</context>
<context>
    <name>vesk::PanelModel</name>
    <message>
        <source>This text is too long for a note.</source>
        <translation>Dieser Text ist zu lang für eine Notiz.</translation>
    </message>
</context>
<context>
    <name>vesk::PromptListModel</name>
    <message>
        <source>Follow-up prompts</source>
        <translation>Folge-Prompts</translation>
    </message>
    <message>
        <source>Saved from selection</source>
        <translation>Aus der Auswahl gespeichert</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
</context>
<context>
    <name>vesk::QuickNoteModel</name>
    <message>
        <source>Quick Checklist</source>
        <translation>Schnellcheckliste</translation>
    </message>
    <message>
        <source>Quick Note</source>
        <translation>Schnellnotiz</translation>
    </message>
</context>
<context>
    <name>vesk::QuickNotePanel</name>
    <message>
        <source>Quick Note</source>
        <translation>Schnellnotiz</translation>
    </message>
    <message>
        <source>This text is too long for a note.</source>
        <translation>Dieser Text ist zu lang für eine Notiz.</translation>
    </message>
</context>
<context>
    <name>vesk::Remote</name>
    <message>
        <source>%1 could not be started.</source>
        <translation>%1 konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Could not create a temporary file in %1.</source>
        <translation>In %1 konnte keine temporäre Datei angelegt werden.</translation>
    </message>
    <message>
        <source>Vesk quit as soon as it was started.</source>
        <translation>Vesk hat sich gleich nach dem Start beendet.</translation>
    </message>
    <message>
        <source>Vesk was started but does not respond yet.</source>
        <translation>Vesk wurde gestartet, antwortet aber noch nicht.</translation>
    </message>
    <message>
        <source>Vesk was told to quit but is still running.</source>
        <translation>Vesk sollte sich beenden, läuft aber noch.</translation>
    </message>
    <message>
        <source>Vesk is running but does not respond.</source>
        <translation>Vesk läuft, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>The running Vesk is another version, which does not have this command. Quit it and start it again.</source>
        <translation>Das laufende Vesk ist eine andere Version, die diesen Befehl nicht hat. Beenden Sie es und starten Sie es neu.</translation>
    </message>
</context>
<context>
    <name>vesk::RemoteControl</name>
    <message>
        <source>There is no text to add.</source>
        <translation>Es gibt keinen Text zum Hinzufügen.</translation>
    </message>
    <message>
        <source>The text is too long for a note.</source>
        <translation>Der Text ist zu lang für eine Notiz.</translation>
    </message>
    <message>
        <source>The note was added but is not on the disk yet. Do not add it again. %1</source>
        <translation>Die Notiz wurde hinzugefügt, ist aber noch nicht auf dem Datenträger. Fügen Sie sie nicht noch einmal hinzu. %1</translation>
    </message>
    <message>
        <source>This Vesk does not support that command.</source>
        <translation>Dieses Vesk unterstützt den Befehl nicht.</translation>
    </message>
</context>
<context>
    <name>vesk::SaveProblem</name>
    <message>
        <source>Not saved: the disk is full. Vesk keeps trying.</source>
        <translation>Nicht gespeichert: Der Datenträger ist voll. Vesk versucht es weiter.</translation>
    </message>
    <message>
        <source>Not saved: your disk quota is used up. Vesk keeps trying.</source>
        <translation>Nicht gespeichert: Ihr Kontingent auf dem Datenträger ist aufgebraucht. Vesk versucht es weiter.</translation>
    </message>
    <message>
        <source>Not saved: the notes file is read-only. Vesk keeps trying.</source>
        <translation>Nicht gespeichert: Die Notizdatei ist schreibgeschützt. Vesk versucht es weiter.</translation>
    </message>
    <message>
        <source>Not saved: another program is using the notes file. Vesk keeps trying.</source>
        <translation>Nicht gespeichert: Ein anderes Programm benutzt die Notizdatei. Vesk versucht es weiter.</translation>
    </message>
    <message>
        <source>Not saved: the notes file is damaged. Copy your latest notes elsewhere.</source>
        <translation>Nicht gespeichert: Die Notizdatei ist beschädigt. Kopieren Sie Ihre neuesten Notizen anderswohin.</translation>
    </message>
    <message>
        <source>Not saved: the notes file cannot be written (%1). Vesk keeps trying.</source>
        <translation>Nicht gespeichert: Die Notizdatei kann nicht geschrieben werden (%1). Vesk versucht es weiter.</translation>
    </message>
    <message>
        <source>Not saved: Vesk has no permission to write the notes file. Vesk keeps trying.</source>
        <translation>Nicht gespeichert: Vesk hat keine Berechtigung, die Notizdatei zu schreiben. Vesk versucht es weiter.</translation>
    </message>
    <message>
        <source>Not saved: the notes file is gone, and a new one cannot be made (%1). Vesk keeps trying.</source>
        <translation>Nicht gespeichert: Die Notizdatei ist verschwunden, und eine neue kann nicht angelegt werden (%1). Vesk versucht es weiter.</translation>
    </message>
    <message>
        <source>Not saved: the folder of the notes file cannot be reached. Vesk keeps trying.</source>
        <translation>Nicht gespeichert: Der Ordner der Notizdatei ist nicht erreichbar. Vesk versucht es weiter.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln notes or prompts cannot be saved (%1). All others are saved.</source>
        <translation>
            <numerusform>Eine Notiz oder ein Prompt kann nicht gespeichert werden (%1). Alle anderen sind gespeichert.</numerusform>
            <numerusform>%Ln Notizen oder Prompts können nicht gespeichert werden (%1). Alle anderen sind gespeichert.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vesk::StoreAdvice</name>
    <message>
        <source>The copy of your notes, “%1”, cannot be read either.</source>
        <translation>Auch die Kopie Ihrer Notizen, „%1“, kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>There is a copy of your notes, made on %1: “%2”.</source>
        <translation>Es gibt eine Kopie Ihrer Notizen vom %1: „%2“.</translation>
    </message>
    <message>
        <source>To start without notes instead, move the files “%1*” and what is left of the store to another folder.</source>
        <translation>Um stattdessen ohne Notizen zu beginnen, verschieben Sie die Dateien „%1*“ und was vom Speicher übrig ist in einen anderen Ordner.</translation>
    </message>
    <message>
        <source>To use the copy, run this command in a terminal and start Vesk again. What is left of the store is kept in the folder “damaged” beside it.</source>
        <translation>Um die Kopie zu benutzen, führen Sie diesen Befehl in einem Terminal aus und starten Sie Vesk neu. Was vom Speicher übrig ist, wird daneben im Ordner „damaged“ aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>vesk::StoreFile</name>
    <message>
        <source>The file “%1” is a link to a file that does not exist.</source>
        <translation>Die Datei „%1“ ist ein Verweis auf eine Datei, die es nicht gibt.</translation>
    </message>
    <message>
        <source>The file “%1” is a folder.</source>
        <translation>Die Datei „%1“ ist ein Ordner.</translation>
    </message>
    <message>
        <source>The file “%1” is not an ordinary file.</source>
        <translation>Die Datei „%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read (%2).</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden (%2).</translation>
    </message>
    <message>
        <source>The file “%1” cannot be written (%2).</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden (%2).</translation>
    </message>
    <message>
        <source>The file “%1” is missing or empty, but its journal “%2” is not.</source>
        <translation>Die Datei „%1“ fehlt oder ist leer, ihr Journal „%2“ aber nicht.</translation>
    </message>
    <message>
        <source>The file “%1” is missing, but there is a copy of it.</source>
        <translation>Die Datei „%1“ fehlt, aber es gibt eine Kopie davon.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be created (%2).</source>
        <translation>Die Datei „%1“ kann nicht angelegt werden (%2).</translation>
    </message>
    <message>
        <source>The file “%1” is not a database.</source>
        <translation>Die Datei „%1“ ist keine Datenbank.</translation>
    </message>
    <message>
        <source>The file “%1” is in use by another program.</source>
        <translation>Die Datei „%1“ wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be opened: the disk is full.</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden: Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be opened: your disk quota is used up.</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden: Ihr Kontingent auf dem Datenträger ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be opened (%2).</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden (%2).</translation>
    </message>
    <message>
        <source>The file “%1” is damaged.</source>
        <translation>Die Datei „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The file “%1” is empty, but there is an earlier copy of it.</source>
        <translation>Die Datei „%1“ ist leer, aber es gibt eine frühere Kopie davon.</translation>
    </message>
    <message>
        <source>The file “%1” is the database of another program.</source>
        <translation>Die Datei „%1“ ist die Datenbank eines anderen Programms.</translation>
    </message>
    <message>
        <source>The file “%1” was written by a newer Vesk (store version %2; this Vesk supports version %3).</source>
        <translation>Die Datei „%1“ wurde von einem neueren Vesk geschrieben (Speicherversion %2; dieses Vesk unterstützt Version %3).</translation>
    </message>
</context>
<context>
    <name>vesk::StoreLock</name>
    <message>
        <source>The file “%1” cannot be created (%2).</source>
        <translation>Die Datei „%1“ kann nicht angelegt werden (%2).</translation>
    </message>
    <message>
        <source>The file “%1” cannot be locked (%2).</source>
        <translation>Die Datei „%1“ kann nicht gesperrt werden (%2).</translation>
    </message>
    <message>
        <source>The notes are open in another program, which has locked the file “%1”.</source>
        <translation>Die Notizen sind in einem anderen Programm offen, das die Datei „%1“ gesperrt hat.</translation>
    </message>
    <message>
        <source>Another command, process %1 on %2, is writing to the notes.</source>
        <translation>Ein anderer Befehl, Prozess %1 auf %2, schreibt gerade in die Notizen.</translation>
    </message>
    <message>
        <source>Vesk is running in another session (process %1 on %2), and only one Vesk can have the notes open. Quit it there first.</source>
        <translation>Vesk läuft in einer anderen Sitzung (Prozess %1 auf %2), und nur ein Vesk kann die Notizen offen haben. Beenden Sie es dort zuerst.</translation>
    </message>
</context>
<context>
    <name>vesk::UnwrittenWindow</name>
    <message>
        <source>Some notes are not saved</source>
        <translation>Einige Notizen sind nicht gespeichert</translation>
    </message>
    <message>
        <source>Vesk could not write them to the disk, which may be full. It keeps trying while this window is open, and once more when you quit. To be safe, copy them and paste them elsewhere before that.</source>
        <translation>Vesk konnte sie nicht auf den Datenträger schreiben, der vielleicht voll ist. Es versucht es weiter, solange dieses Fenster offen ist, und noch einmal beim Beenden. Kopieren Sie sie vorher sicherheitshalber und fügen Sie sie anderswo ein.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
</context>
<context>
    <name>vesk::VeskApp</name>
    <message>
        <source>Vesk is quitting.</source>
        <translation>Vesk beendet sich.</translation>
    </message>
</context>
<context>
    <name>vesk::VeskServices</name>
    <message>
        <source>Added to “%1”</source>
        <translation>An „%1“ angehängt</translation>
    </message>
    <message>
        <source>Vesk needs Accessibility access</source>
        <translation>Vesk braucht Zugriff über die Barrierefreiheit</translation>
    </message>
    <message>
        <source>Select text to add to your checklist</source>
        <translation>Markieren Sie Text für Ihre Checkliste</translation>
    </message>
    <message>
        <source>New Note</source>
        <translation>Neue Notiz</translation>
    </message>
    <message>
        <source>Already in Vesk</source>
        <translation>Schon in Vesk</translation>
    </message>
    <message>
        <source>Checklist</source>
        <translation>Checkliste</translation>
    </message>
    <message>
        <source>Saved to Prompts</source>
        <translation>In Prompts gespeichert</translation>
    </message>
    <message>
        <source>Already in Prompts</source>
        <translation>Schon in Prompts</translation>
    </message>
    <message>
        <source>The selection is too long to keep</source>
        <translation>Die Auswahl ist zu lang zum Speichern</translation>
    </message>
    <message>
        <source>%1 did not answer, so Vesk could not read what is selected there.</source>
        <translation>%1 hat nicht geantwortet, deshalb konnte Vesk nicht lesen, was dort markiert ist.</translation>
    </message>
    <message>
        <source>%1 did not hand over the selected text.</source>
        <translation>%1 hat den markierten Text nicht herausgegeben.</translation>
    </message>
    <message>
        <source>Vesk could not read what is selected in %1 without losing what is on the clipboard.</source>
        <translation>Vesk konnte nicht lesen, was in %1 markiert ist, ohne den Inhalt der Zwischenablage zu verlieren.</translation>
    </message>
</context>
<context>
    <name>vesk::X11Connection</name>
    <message>
        <source>The X server cannot be reached.</source>
        <translation>Der X-Server ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which Vesk needs.</source>
        <translation>Dem X-Server fehlt die Erweiterung %1, die Vesk braucht.</translation>
    </message>
    <message>
        <source>The X server&apos;s extensions are too old for Vesk.</source>
        <translation>Die Erweiterungen des X-Servers sind zu alt für Vesk.</translation>
    </message>
</context>
</TS>
