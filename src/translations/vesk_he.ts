<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>AccessBanner</name>
    <message>
        <source>Vesk needs Accessibility access to read selected text</source>
        <translation>‏Vesk זקוק לגישה דרך הנגישות כדי לקרוא טקסט מסומן</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>פתיחת ההגדרות</translation>
    </message>
</context>
<context>
    <name>AccessStatus</name>
    <message>
        <source>Accessibility access allowed</source>
        <translation>הגישה דרך הנגישות מותרת</translation>
    </message>
    <message>
        <source>Needs Accessibility access</source>
        <translation>נדרשת גישה דרך הנגישות</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>פתיחת ההגדרות</translation>
    </message>
</context>
<context>
    <name>CardMenu</name>
    <message>
        <source>Prompt</source>
        <translation>הנחיה</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>פתק</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>פתיחה</translation>
    </message>
    <message>
        <source>Mark as Not Done</source>
        <translation>סימון כלא בוצע</translation>
    </message>
    <message>
        <source>Mark as Done</source>
        <translation>סימון כבוצע</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>ביטול הצמדה</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>הצמדה</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Paste into the App You Came From (⌘↩)</source>
        <translation>הדבקה ביישום הקודם (⌘↩)</translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>מחיקה (⌘⌫)</translation>
    </message>
</context>
<context>
    <name>ChecklistRow</name>
    <message>
        <source>Mark “%1” as not done</source>
        <translation>סימון &quot;%1&quot; כלא בוצע</translation>
    </message>
    <message>
        <source>Mark “%1” as done</source>
        <translation>סימון &quot;%1&quot; כבוצע</translation>
    </message>
</context>
<context>
    <name>Client</name>
    <message>
        <source>There is no session bus. Run this command in your desktop session.</source>
        <translation>אין אפיק הפעלה. יש להריץ את הפקודה הזו בתוך ההפעלה של שולחן העבודה.</translation>
    </message>
</context>
<context>
    <name>Composer</name>
    <message>
        <source>Write a follow-up prompt…</source>
        <translation>כתיבת הנחיית המשך…</translation>
    </message>
    <message>
        <source>Write a note…</source>
        <translation>כתיבת פתק…</translation>
    </message>
</context>
<context>
    <name>CopyButton</name>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>הועתק</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>Edit</source>
        <translation>עריכה</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>ביצוע מחדש</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>גזירה</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>הדבקה</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>בחירת הכול</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>מחיקה</translation>
    </message>
</context>
<context>
    <name>EmptyPrompts</name>
    <message>
        <source>No prompts yet</source>
        <translation>אין עדיין הנחיות</translation>
    </message>
    <message>
        <source>Select text anywhere and tap</source>
        <translation>מסמנים טקסט בכל מקום ומקישים</translation>
    </message>
    <message>
        <source>or write a follow-up prompt below.</source>
        <translation>או כותבים הנחיית המשך למטה.</translation>
    </message>
    <message>
        <source>Select text anywhere and press</source>
        <translation>מסמנים טקסט בכל מקום ולוחצים</translation>
    </message>
    <message>
        <source>Write a follow-up prompt below.</source>
        <translation>כותבים הנחיית המשך למטה.</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Nothing here yet</source>
        <translation>אין כאן עדיין כלום</translation>
    </message>
    <message>
        <source>Vesk catches whatever you select, from any app.</source>
        <translation>‏Vesk שומר כל מה שמסמנים, מכל יישום.</translation>
    </message>
</context>
<context>
    <name>FieldMenu</name>
    <message>
        <source>Edit</source>
        <translation>עריכה</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>גזירה</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>הדבקה</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>מחיקה</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>בחירת הכול</translation>
    </message>
</context>
<context>
    <name>GuideView</name>
    <message>
        <source>Quick Guide</source>
        <translation>מדריך מהיר</translation>
    </message>
    <message>
        <source>Welcome to Vesk</source>
        <translation>ברוכים הבאים אל Vesk</translation>
    </message>
    <message>
        <source>A quiet notes pad that catches whatever you select.</source>
        <translation>פנקס שקט ששומר כל מה שמסמנים.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>הבנתי</translation>
    </message>
</context>
<context>
    <name>NoteActions</name>
    <message>
        <source>Unpin</source>
        <translation>ביטול הצמדה</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>הצמדה</translation>
    </message>
    <message>
        <source>Paste into the App You Came From (⌘↩)</source>
        <translation>הדבקה ביישום הקודם (⌘↩)</translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>מחיקה (⌘⌫)</translation>
    </message>
</context>
<context>
    <name>NoteCard</name>
    <message>
        <source>New Note</source>
        <translation>פתק חדש</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>מוצמד</translation>
    </message>
    <message>
        <source>%L1 of %L2 done</source>
        <translation>%L1 מתוך %L2 בוצעו</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>מתוך %1</translation>
    </message>
    <message>
        <source>the app</source>
        <translation>היישום</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>פתיחת %1</translation>
    </message>
</context>
<context>
    <name>NoteEditor</name>
    <message>
        <source>Start typing…</source>
        <translation>אפשר להתחיל לכתוב…</translation>
    </message>
</context>
<context>
    <name>NoteForm</name>
    <message>
        <source>Title</source>
        <translation>כותרת</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>סיום</translation>
    </message>
    <message>
        <source>Done (⌘↩)</source>
        <translation>סיום (⌘↩)</translation>
    </message>
</context>
<context>
    <name>NoteList</name>
    <message>
        <source>Checklists</source>
        <translation>רשימות</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>פתקים</translation>
    </message>
</context>
<context>
    <name>NoteSummary</name>
    <message numerus="yes">
        <source>+ %Ln more</source>
        <translation>
            <numerusform>ועוד אחד</numerusform>
            <numerusform>ועוד %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PanelContent</name>
    <message>
        <source>No notes match “%1”</source>
        <translation>אין פתקים שמתאימים ל־&quot;%1&quot;</translation>
    </message>
    <message>
        <source>No checklists yet</source>
        <translation>אין עדיין רשימות</translation>
    </message>
    <message>
        <source>Type [ ] and a space in a note to start one.</source>
        <translation>כדי להתחיל רשימה מקלידים בפתק [ ] ורווח.</translation>
    </message>
    <message>
        <source>No prompts match “%1”</source>
        <translation>אין הנחיות שמתאימות ל־&quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>PanelMenuButton</name>
    <message>
        <source>Menu</source>
        <translation>תפריט</translation>
    </message>
    <message>
        <source>Quick Guide…</source>
        <translation>מדריך מהיר…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>חיפוש עדכונים…</translation>
    </message>
    <message>
        <source>Quick Note…</source>
        <translation>פתק מהיר…</translation>
    </message>
    <message>
        <source>Quick Checklist…</source>
        <translation>רשימה מהירה…</translation>
    </message>
    <message>
        <source>Clear Done Prompts</source>
        <translation>ניקוי ההנחיות שבוצעו</translation>
    </message>
    <message>
        <source>Accessibility Settings…</source>
        <translation>הגדרות נגישות…</translation>
    </message>
    <message>
        <source>Quit Vesk</source>
        <translation>יציאה מ־Vesk</translation>
    </message>
</context>
<context>
    <name>ProgressChip</name>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 מתוך %L2</translation>
    </message>
</context>
<context>
    <name>PromptCard</name>
    <message>
        <source>%1, done</source>
        <translation>%1, בוצע</translation>
    </message>
    <message>
        <source>Mark as not done</source>
        <translation>סימון כלא בוצע</translation>
    </message>
    <message>
        <source>Mark as done</source>
        <translation>סימון כבוצע</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>הצגת פחות</translation>
    </message>
    <message>
        <source>Show more</source>
        <translation>הצגת עוד</translation>
    </message>
    <message>
        <source>Paste into the App You Came From (⌘↩)</source>
        <translation>הדבקה ביישום הקודם (⌘↩)</translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>מחיקה (⌘⌫)</translation>
    </message>
</context>
<context>
    <name>PromptList</name>
    <message>
        <source>Prompts</source>
        <translation>הנחיות</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Vesk cannot start</source>
        <translation>לא ניתן להפעיל את Vesk</translation>
    </message>
    <message>
        <source>Could not open the notes store: %1</source>
        <translation>לא ניתן לפתוח את מאגר הפתקים: %1</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
</context>
<context>
    <name>QuickNoteView</name>
    <message>
        <source>Write a note…</source>
        <translation>כתיבת פתק…</translation>
    </message>
    <message>
        <source>Next item</source>
        <translation>הפריט הבא</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>שמירה</translation>
    </message>
    <message>
        <source>New line</source>
        <translation>שורה חדשה</translation>
    </message>
    <message>
        <source>Checkbox</source>
        <translation>תיבת סימון</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
</context>
<context>
    <name>RelativeTime</name>
    <message>
        <source>Just now</source>
        <translation>ממש עכשיו</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>חיפוש</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>ניקוי החיפוש</translation>
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
            <numerusform>פריט אחד</numerusform>
            <numerusform>%Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>מקופל</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>פרוס</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>הצגה</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>הסתרה</translation>
    </message>
</context>
<context>
    <name>SourceCapsule</name>
    <message>
        <source>from %1</source>
        <translation>מתוך %1</translation>
    </message>
</context>
<context>
    <name>TabBar</name>
    <message>
        <source>Tabs</source>
        <translation>לשוניות</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>פתקים</translation>
    </message>
    <message>
        <source>Checklists</source>
        <translation>רשימות</translation>
    </message>
    <message>
        <source>Prompts</source>
        <translation>הנחיות</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>See: vesk --help</source>
        <extracomment>After a sentence that says what is wrong with a command line.</extracomment>
        <translation>ראו: vesk --help</translation>
    </message>
</context>
<context>
    <name>vesk::AccessCommand</name>
    <message>
        <source>Usage: %1</source>
        <translation>שימוש: %1</translation>
    </message>
    <message>
        <source>allowed</source>
        <translation>מותר</translation>
    </message>
    <message>
        <source>not allowed</source>
        <translation>אסור</translation>
    </message>
    <message>
        <source>The setting could not be written to %1.</source>
        <translation>לא ניתן לכתוב את ההגדרה אל ⁦%1⁩.</translation>
    </message>
</context>
<context>
    <name>vesk::AccessWindow</name>
    <message>
        <source>Let Vesk read what you select?</source>
        <translation>לאפשר ל־Vesk לקרוא את מה שמסמנים?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>לא עכשיו</translation>
    </message>
    <message>
        <source>When you press one of Vesk’s keys, Vesk reads the text that is selected, or was copied a moment before, and where it is: the application, its window’s title and, in a browser, the page’s address. At other times it only notices when a key or button is pressed (not which one), when something is selected, and whether a password field has the keyboard. It needs this to tell a current selection from an old one and to leave passwords alone. It sends nothing anywhere.

You may have to restart applications that are already open before Vesk can read them.</source>
        <translation>כשמקישים על אחד ממקשי Vesk, הוא קורא את הטקסט שמסומן, או שהועתק רגע קודם, והיכן הוא נמצא: היישום, כותרת החלון שלו, ובדפדפן גם כתובת הדף. בזמנים אחרים הוא רק מבחין מתי מקש או לחצן נלחצים (ולא איזה מהם), מתי משהו מסומן, ואם המקלדת נמצאת בשדה סיסמה. הוא זקוק לכך כדי להבדיל בין מה שמסומן עכשיו למה שסומן קודם וכדי לא לגעת בסיסמאות. הוא לא שולח דבר לשום מקום.

ייתכן שצריך להפעיל מחדש יישומים שכבר פתוחים כדי ש־Vesk יוכל לקרוא אותם.</translation>
    </message>
</context>
<context>
    <name>vesk::AppUpdater</name>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Vesk is up to date</source>
        <translation>‏Vesk מעודכן</translation>
    </message>
    <message>
        <source>Version %1 is the newest that your system can install.</source>
        <translation>גרסה %1 היא החדשה ביותר שהמערכת יכולה להתקין.</translation>
    </message>
    <message>
        <source>There is a newer Vesk</source>
        <translation>יש Vesk חדש יותר</translation>
    </message>
    <message>
        <source>Your system can install version %1.</source>
        <translation>המערכת יכולה להתקין את גרסה %1.</translation>
    </message>
    <message>
        <source>Open Updates</source>
        <translation>פתיחת העדכונים</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>מאוחר יותר</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>לא ניתן היה לחפש עדכונים</translation>
    </message>
    <message>
        <source>Your system’s package service did not answer. Try again later.</source>
        <translation>שירות החבילות של המערכת לא השיב. כדאי לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>Your system can install version %1 with your package manager.</source>
        <translation>המערכת יכולה להתקין את גרסה %1 באמצעות מנהל החבילות.</translation>
    </message>
    <message>
        <source>Your system does not update this copy of Vesk</source>
        <translation>המערכת לא מעדכנת את העותק הזה של Vesk</translation>
    </message>
    <message>
        <source>It was not installed as a package. Look for a newer version where you got this one.</source>
        <translation>הוא לא הותקן כחבילה. כדאי לחפש גרסה חדשה יותר במקום שממנו הגיעה הגרסה הזו.</translation>
    </message>
</context>
<context>
    <name>vesk::CanberraSounds</name>
    <message>
        <source>Saved to Vesk</source>
        <translation>נשמר ב־Vesk</translation>
    </message>
</context>
<context>
    <name>vesk::Client</name>
    <message>
        <source>Standard input is not plain text in UTF-8.</source>
        <translation>הקלט התקני אינו טקסט פשוט בקידוד UTF-8.</translation>
    </message>
    <message>
        <source>There is no text to add.</source>
        <translation>אין טקסט להוספה.</translation>
    </message>
    <message>
        <source>Could not open the notes store: %1</source>
        <translation>לא ניתן לפתוח את מאגר הפתקים: %1</translation>
    </message>
    <message>
        <source>The note could not be written to %1.</source>
        <translation>לא ניתן לכתוב את הפתק אל %1.</translation>
    </message>
    <message>
        <source>%1 could not be started: %2.</source>
        <translation>לא ניתן להפעיל את %1: %2.</translation>
    </message>
    <message>
        <source>The text is too long: a note can have up to %1 MB.</source>
        <translation>הטקסט ארוך מדי: הגודל המרבי של פתק הוא %1 MB.</translation>
    </message>
    <message>
        <source>Could not write to standard output: %1.</source>
        <translation>לא ניתן לכתוב אל הפלט התקני: %1.</translation>
    </message>
    <message>
        <source>Vesk is not running, so none of these keys work now.</source>
        <translation>‏Vesk אינו פועל, ולכן אף אחד מהצירופים האלה אינו פועל כעת.</translation>
    </message>
    <message>
        <source>Could not read standard input.</source>
        <translation>לא ניתן לקרוא את הקלט התקני.</translation>
    </message>
    <message>
        <source>The note was not saved, because other commands kept writing to the notes.</source>
        <translation>הפתק לא נשמר, כי פקודות אחרות כתבו ללא הפסקה אל הפתקים.</translation>
    </message>
</context>
<context>
    <name>vesk::Command</name>
    <message>
        <source>save the selected text; with nothing selected, write a quick note</source>
        <translation>שמירת הטקסט המסומן; כשאין סימון, כתיבת פתק מהיר</translation>
    </message>
    <message>
        <source>add the selected text to the note changed last</source>
        <translation>הוספת הטקסט המסומן לפתק ששונה אחרון</translation>
    </message>
    <message>
        <source>open or hide Vesk</source>
        <translation>פתיחה או הסתרה של Vesk</translation>
    </message>
    <message>
        <source>open Vesk to write a new note</source>
        <translation>פתיחת Vesk לכתיבת פתק חדש</translation>
    </message>
    <message>
        <source>New Note</source>
        <translation>פתק חדש</translation>
    </message>
    <message>
        <source>make a checklist of the selected lines, or write one</source>
        <translation>יצירת רשימה מהשורות המסומנות, או כתיבת רשימה</translation>
    </message>
    <message>
        <source>add the selected lines to the checklist changed last</source>
        <translation>הוספת השורות המסומנות לרשימה ששונתה אחרונה</translation>
    </message>
    <message>
        <source>save the selected text as a prompt</source>
        <translation>שמירת הטקסט המסומן כהנחיה</translation>
    </message>
    <message>
        <source>open the box for a quick note</source>
        <translation>פתיחת התיבה לפתק מהיר</translation>
    </message>
    <message>
        <source>Quick Note…</source>
        <translation>פתק מהיר…</translation>
    </message>
    <message>
        <source>open the box for a checklist</source>
        <translation>פתיחת התיבה לרשימה</translation>
    </message>
    <message>
        <source>Quick Checklist…</source>
        <translation>רשימה מהירה…</translation>
    </message>
    <message>
        <source>open Vesk</source>
        <translation>פתיחת Vesk</translation>
    </message>
    <message>
        <source>Open Vesk</source>
        <translation>פתיחת Vesk</translation>
    </message>
    <message>
        <source>quit Vesk</source>
        <translation>יציאה מ־Vesk</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
</context>
<context>
    <name>vesk::CommandHints</name>
    <message>
        <source>Save selected text, or write a quick note</source>
        <translation>שמירת טקסט מסומן, או כתיבת פתק מהיר</translation>
    </message>
    <message>
        <source>Add the selection to your last note</source>
        <translation>הוספת הבחירה לפתק האחרון</translation>
    </message>
    <message>
        <source>Open or hide Vesk</source>
        <translation>פתיחה או הסתרה של Vesk</translation>
    </message>
    <message>
        <source>Open Vesk and write a new note</source>
        <translation>פתיחת Vesk וכתיבת פתק חדש</translation>
    </message>
    <message>
        <source>Save selected text as a prompt</source>
        <translation>שמירת טקסט מסומן כהנחיה</translation>
    </message>
    <message>
        <source>Start a checklist while typing</source>
        <translation>התחלת רשימה תוך כדי כתיבה</translation>
    </message>
    <message>
        <source>%1 (keys taken by %2)</source>
        <translation>%1 (המקשים תפוסים על ידי %2)</translation>
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
        <translation>%1 או %2</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>תוכנית אחרת</translation>
    </message>
    <message>
        <source>Switched off in %1.</source>
        <translation>כבוי ב־⁦%1⁩.</translation>
    </message>
    <message>
        <source>New Note</source>
        <translation>פתק חדש</translation>
    </message>
    <message>
        <source>New Note (%1, taken)</source>
        <translation>פתק חדש (%1, תפוס)</translation>
    </message>
    <message>
        <source>New Note (%1)</source>
        <translation>פתק חדש (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%n Key(s) Taken by %1…</source>
        <translation>
            <numerusform>צירוף %n תפוס על ידי %1…</numerusform>
            <numerusform>%n צירופים תפוסים על ידי %1…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Key(s) Taken…</source>
        <translation>
            <numerusform>צירוף אחד תפוס…</numerusform>
            <numerusform>%n צירופים תפוסים…</numerusform>
        </translation>
    </message>
    <message>
        <source>Another program uses these keys. Free them there, or choose others in %1.</source>
        <translation>המקשים האלה תפוסים על ידי תוכנית אחרת. אפשר לשחרר אותם שם או לבחור אחרים ב־⁦%1⁩.</translation>
    </message>
    <message>
        <source>%1 uses these keys. Free them there, or choose others in %2.</source>
        <translation>המקשים האלה תפוסים על ידי %1. אפשר לשחרר אותם שם או לבחור אחרים ב־⁦%2⁩.</translation>
    </message>
</context>
<context>
    <name>vesk::CommandLine</name>
    <message>
        <source>print the notes, newest first</source>
        <translation>הדפסת הפתקים, החדש ביותר ראשון</translation>
    </message>
    <message>
        <source>start without showing the panel</source>
        <translation>הפעלה בלי להציג את הלוח</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>הדפסת הגרסה</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>אפשרויות:</translation>
    </message>
    <message>
        <source>save TEXT as a note; &quot;vesk add -&quot; reads standard input</source>
        <translation>שמירת TEXT כפתק; ‏&quot;vesk add -&quot; קורא את הקלט התקני</translation>
    </message>
    <message>
        <source>print the global keys and whether they work</source>
        <translation>הדפסת המקשים הגלובליים, והאם הם פועלים</translation>
    </message>
    <message>
        <source>allow or forbid Vesk to read selected text</source>
        <translation>מתן או שלילה של הרשאה ל־Vesk לקרוא טקסט מסומן</translation>
    </message>
    <message>
        <source>draw windows with the GPU (only when Vesk starts)</source>
        <translation>ציור חלונות בעזרת המעבד הגרפי (רק בהפעלת Vesk)</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>הדפסת עזרה זו</translation>
    </message>
    <message>
        <source>Unknown option: %1</source>
        <translation>אפשרות לא מוכרת: ⁦%1⁩</translation>
    </message>
    <message>
        <source>add: The text is missing. Give a text, or - to read standard input.</source>
        <translation>‏add: חסר הטקסט. יש לתת טקסט, או - כדי לקרוא את הקלט התקני.</translation>
    </message>
    <message>
        <source>add: Too many arguments. Put the text in quotes.</source>
        <translation>‏add: יותר מדי ארגומנטים. יש לשים את הטקסט במירכאות.</translation>
    </message>
    <message>
        <source>Unknown command: %1</source>
        <translation>פקודה לא מוכרת: ⁦%1⁩</translation>
    </message>
    <message>
        <source>%1: Only one option is allowed.</source>
        <translation>‏%1: מותרת רק אפשרות אחת.</translation>
    </message>
    <message>
        <source>%1: Unknown option %2</source>
        <translation>‏%1: אפשרות לא מוכרת ⁦%2⁩</translation>
    </message>
    <message>
        <source>Usage: vesk [command]

Saves what you select in any application. Without a command, starts Vesk, or shows its
panel if it is already running.</source>
        <translation>שימוש: vesk [command]

שומר כל מה שמסמנים, בכל יישום. בלי פקודה: מפעיל את Vesk, או מציג את הלוח שלו אם הוא
כבר פועל.</translation>
    </message>
    <message>
        <source>Commands for the running Vesk, which is started in the background if necessary:</source>
        <translation>פקודות ל־Vesk הפועל, שמופעל ברקע במקרה הצורך:</translation>
    </message>
    <message>
        <source>Commands that work without a running Vesk:</source>
        <translation>פקודות שפועלות גם כש־Vesk אינו פועל:</translation>
    </message>
    <message>
        <source>Exit status: 0 success, 1 failure (standard error says why), 2 wrong usage.</source>
        <translation>ערך חזרה: 0 הצלחה, 1 כישלון (פלט השגיאה אומר מדוע), 2 שימוש שגוי.</translation>
    </message>
</context>
<context>
    <name>vesk::DailyCopy</name>
    <message>
        <source>Vesk cannot keep a copy of your notes: the disk is too full.</source>
        <translation>‏Vesk לא יכול לשמור עותק של הפתקים: הכונן מלא מדי.</translation>
    </message>
    <message>
        <source>The notes file is damaged, so Vesk did not copy it. Quit Vesk and start it again for advice.</source>
        <translation>קובץ הפתקים פגום, ולכן Vesk לא העתיק אותו. יש לצאת מ־Vesk ולהפעיל אותו שוב כדי לקבל הסבר מה לעשות.</translation>
    </message>
    <message>
        <source>Vesk cannot keep a copy of your notes: it has no permission to write to their folder.</source>
        <translation>‏Vesk לא יכול לשמור עותק של הפתקים: אין לו הרשאת כתיבה בתיקייה שלהם.</translation>
    </message>
    <message>
        <source>Vesk cannot keep a copy of your notes: copying them failed.</source>
        <translation>‏Vesk לא יכול לשמור עותק של הפתקים: ההעתקה נכשלה.</translation>
    </message>
</context>
<context>
    <name>vesk::Database</name>
    <message>
        <source>Another file was put in the place of the notes file while Vesk was running. Vesk leaves it alone and keeps your notes in “%1” instead.</source>
        <translation>קובץ אחר הושם במקום קובץ הפתקים בזמן ש־Vesk פעל. Vesk לא נוגע בו, ושומר את הפתקים במקום זאת ב־“⁦%1⁩”.</translation>
    </message>
    <message>
        <source>The notes file was moved to “%1” while Vesk was running. Vesk has written all your notes to a new file in the old place, and the moved one no longer changes.</source>
        <translation>קובץ הפתקים הועבר אל “⁦%1⁩” בזמן ש־Vesk פעל. Vesk כתב את כל הפתקים לקובץ חדש במקום הישן, והקובץ שהועבר אינו משתנה עוד.</translation>
    </message>
    <message>
        <source>The notes file was deleted or moved away while Vesk was running. Vesk has written all your notes to a new file in its place.</source>
        <translation>קובץ הפתקים נמחק או הועבר למקום אחר בזמן ש־Vesk פעל. Vesk כתב את כל הפתקים לקובץ חדש במקומו.</translation>
    </message>
</context>
<context>
    <name>vesk::DesktopMenus</name>
    <message>
        <source>File</source>
        <translation>קובץ</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>עיצוב</translation>
    </message>
</context>
<context>
    <name>vesk::GuideTopics</name>
    <message>
        <source>Open Vesk anywhere</source>
        <translation>פתיחת Vesk בכל מקום</translation>
    </message>
    <message>
        <source>Press it in any app to open or hide Vesk. Escape also hides it, and so does clicking another app.</source>
        <translation>לחיצה בכל יישום פותחת את Vesk או מסתירה אותו. גם Escape מסתיר אותו, וכך גם לחיצה על יישום אחר.</translation>
    </message>
    <message>
        <source>Write a new note</source>
        <translation>כתיבת פתק חדש</translation>
    </message>
    <message>
        <source>Opens Vesk with the cursor in “Write a note…”. Return saves it, Shift-Return starts a new line.</source>
        <translation>פותח את Vesk כשהסמן ב&quot;כתיבת פתק…&quot;. Enter שומר, Shift‑Enter מתחיל שורה חדשה.</translation>
    </message>
    <message>
        <source>Save selected text</source>
        <translation>שמירת טקסט מסומן</translation>
    </message>
    <message>
        <source>Select text in a browser, ChatGPT, Claude, a terminal, anywhere, and press it. It becomes a note that remembers where it came from. With nothing selected, a quick note box opens.</source>
        <translation>מסמנים טקסט בדפדפן, ב־ChatGPT, ב־Claude, במסוף, בכל מקום, ולוחצים. הוא הופך לפתק שזוכר מאין הגיע. אם שום דבר לא מסומן, נפתחת תיבה לפתק מהיר.</translation>
    </message>
    <message>
        <source>Prompts for your AI chats</source>
        <translation>הנחיות לשיחות עם בינה מלאכותית</translation>
    </message>
    <message>
        <source>Select text and tap Shift twice to save it as a prompt, or write follow-up prompts in the Prompts tab. Copy or paste them into the chat and tick them off.</source>
        <translation>מסמנים טקסט ומקישים פעמיים על Shift כדי לשמור אותו כהנחיה, או כותבים הנחיות המשך בלשונית ההנחיות. מעתיקים או מדביקים אותן בשיחה ומסמנים שבוצעו.</translation>
    </message>
    <message>
        <source>Add to your last note</source>
        <translation>הוספה לפתק האחרון</translation>
    </message>
    <message>
        <source>Adds the selection to the bottom of the note you changed last. A note that ends in a checklist gets new checkboxes.</source>
        <translation>מוסיף את הבחירה לתחתית הפתק שהשתנה אחרון. פתק שמסתיים ברשימה מקבל תיבות סימון חדשות.</translation>
    </message>
    <message>
        <source>Make a checklist</source>
        <translation>יצירת רשימה</translation>
    </message>
    <message>
        <source>Each selected line becomes a checkbox. With nothing selected, a box opens on the first checkbox: Return adds the next item, ⌘↩ saves.</source>
        <translation>כל שורה מסומנת הופכת לתיבת סימון. אם שום דבר לא מסומן, נפתחת תיבה עם הסימון הראשון: Enter מוסיף את הפריט הבא, ⌘↩ שומר.</translation>
    </message>
    <message>
        <source>Add to your checklist</source>
        <translation>הוספה לרשימה</translation>
    </message>
    <message>
        <source>Each selected line becomes a new checkbox in the checklist you changed last, even if you edited other notes since.</source>
        <translation>כל שורה מסומנת הופכת לתיבת סימון חדשה ברשימה שהשתנתה אחרונה, גם אם מאז נערכו פתקים אחרים.</translation>
    </message>
    <message>
        <source>Checkboxes and lists</source>
        <translation>תיבות סימון ורשימות</translation>
    </message>
    <message>
        <source>Type [ ] and a space for a checkbox, - and a space for a bullet, # and a space for a heading. Tick boxes right on the card.</source>
        <translation>[ ] ורווח לתיבת סימון, - ורווח לתבליט, # ורווח לכותרת. אפשר לסמן תיבות ישירות בכרטיס.</translation>
    </message>
    <message>
        <source>Keyboard in the panel</source>
        <translation>המקלדת בלוח</translation>
    </message>
    <message>
        <source>Move between notes. Return opens one, ⌘↩ pastes it into the app you came from, ⌘⌫ deletes it, ⌘F searches.</source>
        <translation>מעבר בין פתקים. Enter פותח פתק, ⌘↩ מדביק אותו ביישום הקודם, ⌘⌫ מוחק אותו, ⌘F מחפש.</translation>
    </message>
    <message>
        <source>Write follow-up prompts in the Prompts tab. Copy or paste them into the chat and tick them off.</source>
        <translation>כותבים הנחיות המשך בלשונית ההנחיות. מעתיקים או מדביקים אותן בשיחה ומסמנים שבוצעו.</translation>
    </message>
    <message>
        <source>Select text and press %1 to save it as a prompt, or write follow-up prompts in the Prompts tab. Copy or paste them into the chat and tick them off.</source>
        <translation>מסמנים טקסט ולוחצים על %1 כדי לשמור אותו כהנחיה, או כותבים הנחיות המשך בלשונית ההנחיות. מעתיקים או מדביקים אותן בשיחה ומסמנים שבוצעו.</translation>
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
        <translation>Ctrl</translation>
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
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>רווח</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>↑</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>↓</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>PageUp</source>
        <translation>PageUp</translation>
    </message>
    <message>
        <source>PageDown</source>
        <translation>PageDown</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>←</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>→</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>תפריט</translation>
    </message>
</context>
<context>
    <name>vesk::KeySettings</name>
    <message>
        <source>Keys.conf, line %1: %2</source>
        <translation>‏Keys.conf, שורה %1: %2</translation>
    </message>
    <message>
        <source>Only save-prompt can be Shift tapped twice.</source>
        <translation>רק save-prompt יכול להיות הקשה כפולה על Shift.</translation>
    </message>
    <message>
        <source>The combination is empty.</source>
        <translation>הצירוף ריק.</translation>
    </message>
    <message>
        <source>“%1” is not a modifier. The modifiers are Super, Alt, Ctrl and Shift.</source>
        <translation>‏&quot;%1&quot; אינו מקש צירוף. מקשי הצירוף הם Super, Alt, Ctrl ו־Shift.</translation>
    </message>
    <message>
        <source>The key after the modifiers is missing.</source>
        <translation>חסר המקש שאחרי מקשי הצירוף.</translation>
    </message>
    <message>
        <source>Unknown key: “%1”.</source>
        <translation>מקש לא מוכר: &quot;⁦%1⁩&quot;.</translation>
    </message>
    <message>
        <source>The combination needs Super, Alt or Ctrl, or no application could use this key.</source>
        <translation>הצירוף צריך Super, Alt או Ctrl, אחרת אף יישום לא יוכל להשתמש במקש הזה.</translation>
    </message>
    <message>
        <source>“%1” does not have the form “command = combination”.</source>
        <translation>‏&quot;⁦%1⁩&quot; אינו בצורה &quot;⁦command = combination⁩&quot;.</translation>
    </message>
    <message>
        <source>Unknown command: “%1”.</source>
        <translation>פקודה לא מוכרת: &quot;⁦%1⁩&quot;.</translation>
    </message>
    <message>
        <source>%1 “%2” keeps %3.</source>
        <translation>‏%1 &quot;%2&quot; נשאר %3.</translation>
    </message>
    <message>
        <source>“%1” is already set in line %2, which applies.</source>
        <translation>‏&quot;%1&quot; כבר נקבע בשורה %2, והיא הקובעת.</translation>
    </message>
    <message>
        <source>%1 is already used for “%2”.</source>
        <translation>‏%1 כבר משמש עבור &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>vesk::KeysReport</name>
    <message>
        <source>works</source>
        <translation>פועל</translation>
    </message>
    <message>
        <source>off</source>
        <translation>כבוי</translation>
    </message>
    <message>
        <source>needs access</source>
        <translation>דורש גישה</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>לא ידוע</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 או %2</translation>
    </message>
    <message>
        <source>taken by another program</source>
        <translation>תפוס על ידי תוכנית אחרת</translation>
    </message>
    <message>
        <source>taken by %1</source>
        <translation>תפוס על ידי %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ללא</translation>
    </message>
    <message>
        <source>%1, not in %2</source>
        <translation>%1, לא ב־⁦%2⁩</translation>
    </message>
</context>
<context>
    <name>vesk::Main</name>
    <message>
        <source>Vesk cannot start: %1</source>
        <translation>לא ניתן להפעיל את Vesk: %1</translation>
    </message>
    <message>
        <source>Vesk cannot start</source>
        <translation>לא ניתן להפעיל את Vesk</translation>
    </message>
    <message>
        <source>Vesk could not open the notes store and is about to quit.</source>
        <translation>‏Vesk לא הצליח לפתוח את מאגר הפתקים ועומד להיסגר.</translation>
    </message>
    <message>
        <source>Vesk is already running but does not respond.</source>
        <translation>‏Vesk כבר פועל אך אינו משיב.</translation>
    </message>
    <message>
        <source>Vesk needs a session bus, and there is none.</source>
        <translation>‏Vesk זקוק לאפיק הפעלה, ואין כזה.</translation>
    </message>
    <message>
        <source>Vesk needs an X11 desktop, and this is a Wayland desktop without an X server. Log in to an X11 session, or use the commands that work without one: vesk add and vesk list.</source>
        <translation>‏Vesk זקוק לשולחן עבודה של X11, וזהו שולחן עבודה של Wayland בלי שרת X. אפשר להיכנס להפעלה של X11, או להשתמש בפקודות שפועלות בלעדיה: vesk add ו־vesk list.</translation>
    </message>
    <message>
        <source>Vesk needs an X11 desktop, and there is no X server at &quot;%1&quot;. The commands vesk add and vesk list work without one.</source>
        <translation>‏Vesk זקוק לשולחן עבודה של X11, ואין שרת X ב־&quot;⁦%1⁩&quot;. הפקודות vesk add ו־vesk list פועלות בלעדיו.</translation>
    </message>
</context>
<context>
    <name>vesk::MenuCommands</name>
    <message>
        <source>Checklist</source>
        <translation>רשימה</translation>
    </message>
    <message>
        <source>Bulleted List</source>
        <translation>רשימת תבליטים</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>כותרת</translation>
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
        <translation>מוצמדים</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>היום</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>קודם לכן</translation>
    </message>
</context>
<context>
    <name>vesk::NotesStore</name>
    <message>
        <source>Notes that Vesk kept when the notes file was replaced are in “%1”. To get them back, quit Vesk and put that file in the place of “%2”.</source>
        <translation>פתקים ש־Vesk שמר כשקובץ הפתקים הוחלף נמצאים ב־“⁦%1⁩”. כדי לקבל אותם בחזרה, יש לצאת מ־Vesk ולשים את הקובץ הזה במקום “⁦%2⁩”.</translation>
    </message>
</context>
<context>
    <name>vesk::Notice</name>
    <message>
        <source>Saved to Vesk</source>
        <translation>נשמר ב־Vesk</translation>
    </message>
    <message>
        <source>Not saved yet, Vesk keeps trying</source>
        <translation>עדיין לא נשמר, Vesk ממשיך לנסות</translation>
    </message>
    <message>
        <source>Copied. The window you came from has closed</source>
        <translation>הועתק. החלון הקודם נסגר</translation>
    </message>
    <message>
        <source>Copied. Paste it where you need it</source>
        <translation>הועתק. אפשר להדביק במקום הרצוי</translation>
    </message>
</context>
<context>
    <name>vesk::PanelModel</name>
    <message>
        <source>This text is too long for a note.</source>
        <translation>הטקסט הזה ארוך מדי לפתק.</translation>
    </message>
</context>
<context>
    <name>vesk::PromptListModel</name>
    <message>
        <source>Follow-up prompts</source>
        <translation>הנחיות המשך</translation>
    </message>
    <message>
        <source>Saved from selection</source>
        <translation>נשמרו מבחירה</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>בוצע</translation>
    </message>
</context>
<context>
    <name>vesk::QuickNoteModel</name>
    <message>
        <source>Quick Checklist</source>
        <translation>רשימה מהירה</translation>
    </message>
    <message>
        <source>Quick Note</source>
        <translation>פתק מהיר</translation>
    </message>
</context>
<context>
    <name>vesk::QuickNotePanel</name>
    <message>
        <source>Quick Note</source>
        <translation>פתק מהיר</translation>
    </message>
    <message>
        <source>This text is too long for a note.</source>
        <translation>הטקסט הזה ארוך מדי לפתק.</translation>
    </message>
</context>
<context>
    <name>vesk::Remote</name>
    <message>
        <source>%1 could not be started.</source>
        <translation>לא ניתן להפעיל את %1.</translation>
    </message>
    <message>
        <source>Could not create a temporary file in %1.</source>
        <translation>לא ניתן ליצור קובץ זמני ב־⁦%1⁩.</translation>
    </message>
    <message>
        <source>Vesk quit as soon as it was started.</source>
        <translation>‏Vesk נסגר מיד אחרי שהופעל.</translation>
    </message>
    <message>
        <source>Vesk was started but does not respond yet.</source>
        <translation>‏Vesk הופעל אך עדיין אינו משיב.</translation>
    </message>
    <message>
        <source>Vesk was told to quit but is still running.</source>
        <translation>‏Vesk התבקש לצאת אך עדיין פועל.</translation>
    </message>
    <message>
        <source>Vesk is running but does not respond.</source>
        <translation>‏Vesk פועל אך אינו משיב.</translation>
    </message>
    <message>
        <source>The running Vesk is another version, which does not have this command. Quit it and start it again.</source>
        <translation>‏Vesk הפועל הוא מגרסה אחרת, שאין בה הפקודה הזו. יש לצאת ממנו ולהפעיל אותו שוב.</translation>
    </message>
</context>
<context>
    <name>vesk::RemoteControl</name>
    <message>
        <source>There is no text to add.</source>
        <translation>אין טקסט להוספה.</translation>
    </message>
    <message>
        <source>The text is too long for a note.</source>
        <translation>הטקסט ארוך מדי לפתק.</translation>
    </message>
    <message>
        <source>The note was added but is not on the disk yet. Do not add it again. %1</source>
        <translation>הפתק נוסף אך עדיין לא נכתב לכונן. אין להוסיף אותו שוב. %1</translation>
    </message>
    <message>
        <source>This Vesk does not support that command.</source>
        <translation>‏Vesk הזה אינו תומך בפקודה הזו.</translation>
    </message>
</context>
<context>
    <name>vesk::SaveProblem</name>
    <message>
        <source>Not saved: the disk is full. Vesk keeps trying.</source>
        <translation>לא נשמר: הכונן מלא. Vesk ממשיך לנסות.</translation>
    </message>
    <message>
        <source>Not saved: your disk quota is used up. Vesk keeps trying.</source>
        <translation>לא נשמר: מכסת הכונן נוצלה. Vesk ממשיך לנסות.</translation>
    </message>
    <message>
        <source>Not saved: the notes file is read-only. Vesk keeps trying.</source>
        <translation>לא נשמר: קובץ הפתקים לקריאה בלבד. Vesk ממשיך לנסות.</translation>
    </message>
    <message>
        <source>Not saved: another program is using the notes file. Vesk keeps trying.</source>
        <translation>לא נשמר: תוכנה אחרת משתמשת בקובץ הפתקים. Vesk ממשיך לנסות.</translation>
    </message>
    <message>
        <source>Not saved: the notes file is damaged. Copy your latest notes elsewhere.</source>
        <translation>לא נשמר: קובץ הפתקים פגום. יש להעתיק את הפתקים האחרונים למקום אחר.</translation>
    </message>
    <message>
        <source>Not saved: the notes file cannot be written (%1). Vesk keeps trying.</source>
        <translation>לא נשמר: אי אפשר לכתוב את קובץ הפתקים (%1). Vesk ממשיך לנסות.</translation>
    </message>
    <message>
        <source>Not saved: Vesk has no permission to write the notes file. Vesk keeps trying.</source>
        <translation>לא נשמר: ל־Vesk אין הרשאה לכתוב את קובץ הפתקים. Vesk ממשיך לנסות.</translation>
    </message>
    <message>
        <source>Not saved: the notes file is gone, and a new one cannot be made (%1). Vesk keeps trying.</source>
        <translation>לא נשמר: קובץ הפתקים נעלם, ואי אפשר ליצור קובץ חדש (%1). Vesk ממשיך לנסות.</translation>
    </message>
    <message>
        <source>Not saved: the folder of the notes file cannot be reached. Vesk keeps trying.</source>
        <translation>לא נשמר: אי אפשר להגיע לתיקייה של קובץ הפתקים. Vesk ממשיך לנסות.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln notes or prompts cannot be saved (%1). All others are saved.</source>
        <translation>
            <numerusform>אי אפשר לשמור פתק או הנחיה (%1). כל השאר נשמרו.</numerusform>
            <numerusform>אי אפשר לשמור %Ln פתקים או הנחיות (%1). כל השאר נשמרו.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vesk::StoreAdvice</name>
    <message>
        <source>The copy of your notes, “%1”, cannot be read either.</source>
        <translation>גם את העותק של הפתקים, “⁦%1⁩”, אי אפשר לקרוא.</translation>
    </message>
    <message>
        <source>There is a copy of your notes, made on %1: “%2”.</source>
        <translation>יש עותק של הפתקים, שנוצר ב־%1: “⁦%2⁩”.</translation>
    </message>
    <message>
        <source>To start without notes instead, move the files “%1*” and what is left of the store to another folder.</source>
        <translation>כדי להתחיל במקום זאת ללא פתקים, יש להעביר את הקבצים “⁦%1*⁩” ואת מה שנותר מהמאגר לתיקייה אחרת.</translation>
    </message>
    <message>
        <source>To use the copy, run this command in a terminal and start Vesk again. What is left of the store is kept in the folder “damaged” beside it.</source>
        <translation>כדי להשתמש בעותק, יש להריץ את הפקודה הזו במסוף ולהפעיל את Vesk שוב. מה שנותר מהמאגר נשמר בתיקייה “⁦damaged⁩” לידו.</translation>
    </message>
</context>
<context>
    <name>vesk::StoreFile</name>
    <message>
        <source>The file “%1” is a link to a file that does not exist.</source>
        <translation>הקובץ “⁦%1⁩” הוא קישור לקובץ שאינו קיים.</translation>
    </message>
    <message>
        <source>The file “%1” is a folder.</source>
        <translation>הקובץ “⁦%1⁩” הוא תיקייה.</translation>
    </message>
    <message>
        <source>The file “%1” is not an ordinary file.</source>
        <translation>הקובץ “⁦%1⁩” אינו קובץ רגיל.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read (%2).</source>
        <translation>הקובץ “⁦%1⁩” אינו ניתן לקריאה (%2).</translation>
    </message>
    <message>
        <source>The file “%1” cannot be written (%2).</source>
        <translation>הקובץ “⁦%1⁩” אינו ניתן לכתיבה (%2).</translation>
    </message>
    <message>
        <source>The file “%1” is missing or empty, but its journal “%2” is not.</source>
        <translation>הקובץ “⁦%1⁩” חסר או ריק, אבל היומן שלו “⁦%2⁩” אינו ריק.</translation>
    </message>
    <message>
        <source>The file “%1” is missing, but there is a copy of it.</source>
        <translation>הקובץ “⁦%1⁩” חסר, אבל יש עותק שלו.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be created (%2).</source>
        <translation>הקובץ “⁦%1⁩” לא ניתן ליצירה (%2).</translation>
    </message>
    <message>
        <source>The file “%1” is not a database.</source>
        <translation>הקובץ “⁦%1⁩” אינו מסד נתונים.</translation>
    </message>
    <message>
        <source>The file “%1” is in use by another program.</source>
        <translation>הקובץ “⁦%1⁩” נמצא בשימוש של תוכנה אחרת.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be opened: the disk is full.</source>
        <translation>הקובץ “⁦%1⁩” לא ניתן לפתיחה: הכונן מלא.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be opened: your disk quota is used up.</source>
        <translation>הקובץ “⁦%1⁩” לא ניתן לפתיחה: מכסת הכונן נוצלה.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be opened (%2).</source>
        <translation>הקובץ “⁦%1⁩” לא ניתן לפתיחה (%2).</translation>
    </message>
    <message>
        <source>The file “%1” is damaged.</source>
        <translation>הקובץ “⁦%1⁩” פגום.</translation>
    </message>
    <message>
        <source>The file “%1” is empty, but there is an earlier copy of it.</source>
        <translation>הקובץ “⁦%1⁩” ריק, אבל יש עותק קודם שלו.</translation>
    </message>
    <message>
        <source>The file “%1” is the database of another program.</source>
        <translation>הקובץ “⁦%1⁩” הוא מסד הנתונים של תוכנה אחרת.</translation>
    </message>
    <message>
        <source>The file “%1” was written by a newer Vesk (store version %2; this Vesk supports version %3).</source>
        <translation>הקובץ “⁦%1⁩” נכתב על ידי גרסה חדשה יותר של Vesk (גרסת מאגר %2; גרסה זו של Vesk תומכת בגרסה %3).</translation>
    </message>
</context>
<context>
    <name>vesk::StoreLock</name>
    <message>
        <source>The file “%1” cannot be created (%2).</source>
        <translation>הקובץ “⁦%1⁩” לא ניתן ליצירה (%2).</translation>
    </message>
    <message>
        <source>The file “%1” cannot be locked (%2).</source>
        <translation>הקובץ “⁦%1⁩” לא ניתן לנעילה (%2).</translation>
    </message>
    <message>
        <source>The notes are open in another program, which has locked the file “%1”.</source>
        <translation>הפתקים פתוחים בתוכנה אחרת, שנעלה את הקובץ “⁦%1⁩”.</translation>
    </message>
    <message>
        <source>Another command, process %1 on %2, is writing to the notes.</source>
        <translation>פקודה אחרת, תהליך %1 על ⁦%2⁩, כותבת כעת אל הפתקים.</translation>
    </message>
    <message>
        <source>Vesk is running in another session (process %1 on %2), and only one Vesk can have the notes open. Quit it there first.</source>
        <translation>‏Vesk פועל בהפעלה אחרת (תהליך %1 על ⁦%2⁩), ורק Vesk אחד יכול להחזיק את הפתקים פתוחים. יש לצאת ממנו שם קודם.</translation>
    </message>
</context>
<context>
    <name>vesk::UnwrittenWindow</name>
    <message>
        <source>Some notes are not saved</source>
        <translation>חלק מהפתקים לא נשמרו</translation>
    </message>
    <message>
        <source>Vesk could not write them to the disk, which may be full. It keeps trying while this window is open, and once more when you quit. To be safe, copy them and paste them elsewhere before that.</source>
        <translation>‏Vesk לא הצליח לכתוב אותם לכונן, שאולי מלא. הוא ממשיך לנסות כל עוד החלון הזה פתוח, ופעם נוספת ביציאה. ליתר ביטחון, כדאי להעתיק אותם לפני כן ולהדביק במקום אחר.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>הועתק</translation>
    </message>
</context>
<context>
    <name>vesk::VeskApp</name>
    <message>
        <source>Vesk is quitting.</source>
        <translation>‏Vesk נסגר.</translation>
    </message>
</context>
<context>
    <name>vesk::VeskServices</name>
    <message>
        <source>Added to “%1”</source>
        <translation>נוסף אל &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Vesk needs Accessibility access</source>
        <translation>‏Vesk זקוק לגישה דרך הנגישות</translation>
    </message>
    <message>
        <source>Select text to add to your checklist</source>
        <translation>סמנו טקסט להוספה לרשימה</translation>
    </message>
    <message>
        <source>New Note</source>
        <translation>פתק חדש</translation>
    </message>
    <message>
        <source>Already in Vesk</source>
        <translation>כבר נמצא ב־Vesk</translation>
    </message>
    <message>
        <source>Checklist</source>
        <translation>רשימה</translation>
    </message>
    <message>
        <source>Saved to Prompts</source>
        <translation>נשמר בהנחיות</translation>
    </message>
    <message>
        <source>Already in Prompts</source>
        <translation>כבר נמצא בהנחיות</translation>
    </message>
    <message>
        <source>The selection is too long to keep</source>
        <translation>הבחירה ארוכה מכדי לשמור אותה</translation>
    </message>
    <message>
        <source>%1 did not answer, so Vesk could not read what is selected there.</source>
        <translation>היישום %1 לא הגיב, ולכן Vesk לא הצליח לקרוא מה מסומן בו.</translation>
    </message>
    <message>
        <source>%1 did not hand over the selected text.</source>
        <translation>היישום %1 לא מסר את הטקסט המסומן.</translation>
    </message>
    <message>
        <source>Vesk could not read what is selected in %1 without losing what is on the clipboard.</source>
        <translation>‏Vesk לא הצליח לקרוא מה מסומן ביישום %1 בלי לאבד את תוכן הלוח.</translation>
    </message>
</context>
<context>
    <name>vesk::X11Connection</name>
    <message>
        <source>The X server cannot be reached.</source>
        <translation>לא ניתן להגיע לשרת X.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which Vesk needs.</source>
        <translation>לשרת X חסרה ההרחבה %1, ש־Vesk זקוק לה.</translation>
    </message>
    <message>
        <source>The X server&apos;s extensions are too old for Vesk.</source>
        <translation>ההרחבות של שרת X ישנות מדי עבור Vesk.</translation>
    </message>
</context>
</TS>
