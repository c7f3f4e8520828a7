<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DecorativePictures</name>
    <message>
        <source>Unlock the Door to Future Possibilities</source>
        <translation>Öffnen Sie die Tür zu künftigen Möglichkeiten</translation>
    </message>
</context>
<context>
    <name>ErrorReport</name>
    <message>
        <source>Run-time error &apos;%1&apos;:

%2</source>
        <translation>Laufzeitfehler &apos;%1&apos;:

%2</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>Bad record number</source>
        <translation>Falsche Datensatznummer</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Dateiname oder -nummer falsch</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>Datei existiert bereits</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Einlesen hinter Dateiende</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad/Datei</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>Invalid picture</source>
        <translation>Ungültiges Bild</translation>
    </message>
    <message>
        <source>Cancel was selected.</source>
        <translation>Abbrechen wurde gewählt.</translation>
    </message>
    <message>
        <source>Application-defined or object-defined error</source>
        <translation>Anwendungs- oder objektdefinierter Fehler</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Nicht genügend Speicher</translation>
    </message>
    <message>
        <source>Device unavailable</source>
        <translation>Gerät nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>FitPicture</name>
    <message>
        <source>Error while loading the picture. A default picture is selected instead.
Please save all your work, exit Cartomar, and then run it again</source>
        <translation>Fehler beim Laden des Bildes. Stattdessen wird ein Standardbild verwendet.
Bitte speichern Sie Ihre Arbeit, beenden Sie Cartomar und starten Sie es erneut</translation>
    </message>
    <message>
        <source>Error. Please contact Ondine Software Inc.</source>
        <translation>Fehler. Bitte wenden Sie sich an Ondine Software Inc.</translation>
    </message>
</context>
<context>
    <name>HelpPanel</name>
    <message>
        <source>1. The Present</source>
        <translation>1. Die Gegenwart</translation>
    </message>
    <message>
        <source>The Star</source>
        <translation>Der Stern</translation>
    </message>
    <message>
        <source>Location Title</source>
        <translation>Positionstitel</translation>
    </message>
    <message>
        <source>Spread Location</source>
        <translation>Position der Auslage</translation>
    </message>
    <message>
        <source>Card Image</source>
        <translation>Kartenbild</translation>
    </message>
    <message>
        <source>Card Title</source>
        <translation>Kartentitel</translation>
    </message>
    <message>
        <source>The Fool</source>
        <translation>Der Narr</translation>
    </message>
    <message>
        <source>The Magician</source>
        <translation>Der Magier</translation>
    </message>
    <message>
        <source>The High Priestess</source>
        <translation>Die Hohepriesterin</translation>
    </message>
    <message>
        <source>The Empress</source>
        <translation>Die Herrscherin</translation>
    </message>
    <message>
        <source>The Emperor</source>
        <translation>Der Herrscher</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Cards List</source>
        <translation>Kartenliste</translation>
    </message>
</context>
<context>
    <name>HelpPanelForm</name>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>JournalChart</name>
    <message>
        <source>Nothing to show</source>
        <translation>Nichts anzuzeigen</translation>
    </message>
</context>
<context>
    <name>MDIMainForm</name>
    <message>
        <source>Cartomar - Unlock the Door to Future Possibilities</source>
        <translation>Cartomar - Öffnen Sie die Tür zu künftigen Möglichkeiten</translation>
    </message>
    <message>
        <source>Are you sure you want to EXIT Cartomar?</source>
        <translation>Möchten Sie Cartomar wirklich BEENDEN?</translation>
    </message>
    <message>
        <source>Cartomar</source>
        <translation>Cartomar</translation>
    </message>
</context>
<context>
    <name>MediaPlayer</name>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>Cartomar</source>
        <translation>Cartomar</translation>
    </message>
</context>
<context>
    <name>PasswordPrompts</name>
    <message>
        <source>Incorrect password. Access Denied.</source>
        <translation>Falsches Kennwort. Zugriff verweigert.</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>Cartomar Error. If this problem persists, please contact Ondine Software Inc.</source>
        <translation>Cartomar-Fehler. Wenn das Problem bestehen bleibt, wenden Sie sich bitte an Ondine Software Inc.</translation>
    </message>
    <message>
        <source>Cartomar is already running from the folder &apos;%1&apos;. Only one copy can work on the same designs at a time.</source>
        <translation>Cartomar läuft bereits aus dem Ordner &apos;%1&apos;. Nur eine Kopie kann gleichzeitig mit denselben Entwürfen arbeiten.</translation>
    </message>
    <message>
        <source>Unable to convert to new database format as existing backups exist.  Please reinstall in a new directory or contact %1.</source>
        <translation>Umwandlung ins neue Datenbankformat nicht möglich, da bereits Sicherungen vorhanden sind.  Installieren Sie neu in einem anderen Ordner oder schreiben Sie an %1.</translation>
    </message>
    <message>
        <source>You don&apos;t have any designs installed. Do you want install any now?</source>
        <translation>Sie haben keine Entwürfe installiert. Möchten Sie jetzt welche installieren?</translation>
    </message>
</context>
<context>
    <name>frmConvert</name>
    <message>
        <source>Cartomar Converter</source>
        <translation>Cartomar-Konverter</translation>
    </message>
    <message>
        <source>Cartomar detected an older database version.  Would you like to convert the old files to a new compatible version?  (Note that a *.bkp copies will be created of the old database files.)</source>
        <translation>Cartomar hat eine ältere Datenbankversion gefunden.  Möchten Sie die alten Dateien in eine neue, kompatible Version umwandeln?  (Von den alten Datenbankdateien werden *.bkp-Kopien angelegt.)</translation>
    </message>
    <message>
        <source>Con&amp;vert</source>
        <translation>&amp;Umwandeln</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmDesignExists</name>
    <message>
        <source>Design Already Exists. What do you want to do?</source>
        <translation>Der Entwurf existiert bereits. Was möchten Sie tun?</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Über&amp;springen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Overwrite &amp;All</source>
        <translation>&amp;Alle überschreiben</translation>
    </message>
    <message>
        <source>S&amp;kip All</source>
        <translation>A&amp;lle überspringen</translation>
    </message>
    <message>
        <source>Enter the new design name:</source>
        <translation>Neuer Name des Entwurfs:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Card &apos;%1&apos; exists.</source>
        <translation>Die Karte &apos;%1&apos; existiert bereits.</translation>
    </message>
    <message>
        <source>Deck &apos;%1&apos; exists.</source>
        <translation>Das Deck &apos;%1&apos; existiert bereits.</translation>
    </message>
    <message>
        <source>Spread &apos;%1&apos; exists.</source>
        <translation>Die Auslage &apos;%1&apos; existiert bereits.</translation>
    </message>
    <message>
        <source>You must enter a design name.</source>
        <translation>Sie müssen einen Namen für den Entwurf eingeben.</translation>
    </message>
    <message>
        <source>You already have a design with this name. Please enter a change the name or click &apos;Cancel&apos; to return to the previous page.</source>
        <translation>Es gibt bereits einen Entwurf mit diesem Namen. Ändern Sie den Namen oder klicken Sie auf &apos;Abbrechen&apos;, um zur vorigen Seite zurückzukehren.</translation>
    </message>
</context>
<context>
    <name>frmDiaryHelp</name>
    <message>
        <source>Quick Help</source>
        <translation>Kurzhilfe</translation>
    </message>
    <message>
        <source>The Tarot Spread is meant to aid you in your everyday life.  Examine the spread as a whole and use the additional tools included on the spread to help you understand the meaning behind each card.  By double clicking on a card, you get the description of the specific spread location and the interpretation and keywords of the card itself if it has been selected. Furthermore, you can enlarge the card&apos;s picture for a closer view. The card is selected from the cards list and its state is specified by the check box.</source>
        <translation>Die Tarot-Auslage soll Ihnen im Alltag helfen.  Betrachten Sie die Legung als Ganzes und nutzen Sie die zusätzlichen Werkzeuge, um die Bedeutung jeder Karte zu verstehen.  Ein Doppelklick auf eine Karte zeigt die Beschreibung dieser Position sowie Deutung und Stichwörter der Karte, sofern sie gewählt ist. Außerdem können Sie das Bild der Karte vergrößern. Die Karte wird in der Kartenliste gewählt, ihre Lage mit dem Kontrollkästchen.</translation>
    </message>
</context>
<context>
    <name>frmGetPassword</name>
    <message>
        <source>Password:</source>
        <translation>Kennwort:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Kennwort bestätigen</translation>
    </message>
</context>
<context>
    <name>frmHelpViewer</name>
    <message>
        <source>Cartomar Help</source>
        <translation>Cartomar-Hilfe</translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>frmMainScreen</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Make a New Reading</source>
        <translation>Eine neue Legung machen</translation>
    </message>
    <message>
        <source>Past</source>
        <translation>Frühere</translation>
    </message>
    <message>
        <source>Open a Saved Reading</source>
        <translation>Eine gespeicherte Legung öffnen</translation>
    </message>
    <message>
        <source>Decks</source>
        <translation>Decks</translation>
    </message>
    <message>
        <source>Create, Edit or View Decks</source>
        <translation>Decks erstellen, bearbeiten oder ansehen</translation>
    </message>
    <message>
        <source>Spreads</source>
        <translation>Auslagen</translation>
    </message>
    <message>
        <source>Create, Edit, View or Manage Spreads</source>
        <translation>Auslagen erstellen, bearbeiten, ansehen oder verwalten</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Install a Package</source>
        <translation>Ein Paket installieren</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Create a New Package</source>
        <translation>Ein neues Paket erstellen</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Search and Count Past Readings and Diaries</source>
        <translation>Frühere Legungen und Tagebücher durchsuchen und zählen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Display Help</source>
        <translation>Hilfe anzeigen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Exit Cartomar</source>
        <translation>Cartomar beenden</translation>
    </message>
    <message>
        <source>Cartomar</source>
        <translation>Cartomar</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Legungen</translation>
    </message>
    <message>
        <source>Diary</source>
        <translation>Tagebuch</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Pakete</translation>
    </message>
    <message>
        <source>File Menu</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Unable to locate help file. The file is longer in the &apos;%1&apos; directory. Recopy the help file or reinstall Cartomar.</source>
        <translation>Die Hilfedatei wurde nicht gefunden. Die Datei ist nicht mehr im Ordner &apos;%1&apos;. Kopieren Sie die Hilfedatei erneut oder installieren Sie Cartomar neu.</translation>
    </message>
</context>
<context>
    <name>frmQuickHelp</name>
    <message>
        <source>Quick Help</source>
        <translation>Kurzhilfe</translation>
    </message>
    <message>
        <source>The Tarot Spread is meant to aid you in your everyday life.  Examine the spread as a whole and use the additional tools included on the spread to help you understand the meaning behind each card.  By clicking on a card, you get the description of the specific spread location and the interpretation and keywords of the card itself if it has been opened. Furthermore, you can enlarge the card&apos;s picture for a closer view.</source>
        <translation>Die Tarot-Auslage soll Ihnen im Alltag helfen.  Betrachten Sie die Legung als Ganzes und nutzen Sie die zusätzlichen Werkzeuge, um die Bedeutung jeder Karte zu verstehen.  Ein Klick auf eine Karte zeigt die Beschreibung dieser Position sowie Deutung und Stichwörter der Karte, sofern sie aufgedeckt ist. Außerdem können Sie das Bild der Karte vergrößern.</translation>
    </message>
</context>
<context>
    <name>frmSetPassword</name>
    <message>
        <source>Enter Password:</source>
        <translation>Kennwort:</translation>
    </message>
    <message>
        <source>Confirm Password:</source>
        <translation>Bestätigen:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Set Password</source>
        <translation>Kennwort festlegen</translation>
    </message>
    <message>
        <source>The two passwords do not match.</source>
        <translation>Die beiden Kennwörter stimmen nicht überein.</translation>
    </message>
</context>
</TS>
