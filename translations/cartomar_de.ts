<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AllowedDecks</name>
    <message>
        <source>The maximum number of decks allowed cannot exceed %1.</source>
        <translation>Es sind höchstens %1 Decks erlaubt.</translation>
    </message>
</context>
<context>
    <name>CardScreen</name>
    <message>
        <source>Card Title:</source>
        <translation>Kartentitel:</translation>
    </message>
    <message>
        <source>Card Type:</source>
        <translation>Kartentyp:</translation>
    </message>
    <message>
        <source> Position </source>
        <translation> Lage </translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>&amp;Aufrecht</translation>
    </message>
    <message>
        <source>&amp;Reversed</source>
        <translation>&amp;Umgekehrt</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Keywords:</source>
        <translation>Stichwörter:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
</context>
<context>
    <name>CardStore</name>
    <message>
        <source>The number of cards in a deck cannot exceed %1.</source>
        <translation>Ein Deck kann höchstens %1 Karten enthalten.</translation>
    </message>
    <message>
        <source>Please enter a title for this card.</source>
        <translation>Bitte geben Sie einen Titel für diese Karte ein.</translation>
    </message>
    <message>
        <source>You already have a card with the same title. Please change the title.</source>
        <translation>Es gibt bereits eine Karte mit diesem Titel. Bitte ändern Sie den Titel.</translation>
    </message>
</context>
<context>
    <name>CardTypeNames</name>
    <message>
        <source>The names you chose for the types are not unique. Please change duplicate names.</source>
        <translation>Die Namen der Typen sind nicht eindeutig. Bitte ändern Sie doppelte Namen.</translation>
    </message>
</context>
<context>
    <name>ChartLayout</name>
    <message>
        <source>Nothing to show</source>
        <translation>Nichts anzuzeigen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 (%3 %4, %5 %6)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeckLoadQuestion</name>
    <message>
        <source>This deck is missing some pictures. Cannot continue loading.
Do you want to remove it?</source>
        <translation>In diesem Deck fehlen einige Bilder. Das Laden kann nicht fortgesetzt werden.
Möchten Sie es entfernen?</translation>
    </message>
</context>
<context>
    <name>DeckNotesPanel</name>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Deck Notes</source>
        <translation>Notizen zum Deck</translation>
    </message>
</context>
<context>
    <name>DeckPropertiesScreen</name>
    <message>
        <source>Deck Includes Reversed Cards</source>
        <translation>Deck enthält umgekehrte Karten</translation>
    </message>
    <message>
        <source>Display Card Titles</source>
        <translation>Kartentitel anzeigen</translation>
    </message>
    <message>
        <source>Type %1:</source>
        <translation>Typ %1:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Deck Properties</source>
        <translation>Deck-Eigenschaften</translation>
    </message>
</context>
<context>
    <name>DeckScreen</name>
    <message>
        <source>Deck Title:</source>
        <translation>Decktitel:</translation>
    </message>
    <message>
        <source>Designer:</source>
        <translation>Gestalter:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Web Page:</source>
        <translation>Webseite:</translation>
    </message>
    <message>
        <source>Modified On:</source>
        <translation>Geändert:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Cards:</source>
        <translation>Karten:</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansehen</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>No&amp;tes</source>
        <translation>No&amp;tizen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
</context>
<context>
    <name>DeckStore</name>
    <message>
        <source>Error number %1.  %2</source>
        <translation>Fehlernummer %1.  %2</translation>
    </message>
    <message>
        <source>Please select a name to save the deck as.</source>
        <translation>Bitte wählen Sie einen Namen für das Deck.</translation>
    </message>
    <message>
        <source>Deck already exists. Overwrite?</source>
        <translation>Das Deck existiert bereits. Überschreiben?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete deck &apos;%1&apos; ?
Be aware that this deck will be removed from all spreads that use it.</source>
        <translation>Möchten Sie das Deck &apos;%1&apos; wirklich löschen?
Beachten Sie, dass das Deck aus allen Auslagen entfernt wird, die es verwenden.</translation>
    </message>
    <message>
        <source>At least one spread uses solely this deck. Further, any readings or diaries that
use this deck will not be able to be opened. Proceed anyway?</source>
        <translation>Mindestens eine Auslage verwendet nur dieses Deck. Außerdem lassen sich Legungen
und Tagebücher mit diesem Deck nicht mehr öffnen. Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>Any readings or diaries using this deck will not be able to be opened.
Proceed anyway?</source>
        <translation>Legungen und Tagebücher mit diesem Deck lassen sich nicht mehr öffnen.
Trotzdem fortfahren?</translation>
    </message>
</context>
<context>
    <name>DecorativePictures</name>
    <message>
        <source>Unlock the Door to Future Possibilities</source>
        <translation>Öffnen Sie die Tür zu künftigen Möglichkeiten</translation>
    </message>
</context>
<context>
    <name>DiaryCards</name>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Ungültiger Prozeduraufruf oder ungültiges Argument</translation>
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
    <name>FileChooser</name>
    <message>
        <source>Drive:</source>
        <translation>Laufwerk:</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Files:</source>
        <translation>Dateien:</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Aus&amp;wählen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>This device is currently unavailable!</source>
        <translation>Dieses Gerät ist zurzeit nicht verfügbar!</translation>
    </message>
    <message>
        <source>Error in application. If this problem persists, please contact Ondine Software.</source>
        <translation>Anwendungsfehler. Wenn das Problem bestehen bleibt, wenden Sie sich bitte an Ondine Software.</translation>
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
    <name>Journal</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no longer installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Aufrecht</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Journal Statistics</source>
        <translation>Journal-Statistik</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>Einträge: %1</translation>
    </message>
    <message>
        <source>Locked, not counted: %1</source>
        <translation>Gesperrt, nicht gezählt: %1</translation>
    </message>
    <message>
        <source>Not attributable to a present card: %1</source>
        <translation>Keiner vorhandenen Karte zuzuordnen: %1</translation>
    </message>
    <message>
        <source>Upright: %1    Reversed: %2</source>
        <translation>Aufrecht: %1    Umgekehrt: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Cards That Came Up Most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entries per Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
</context>
<context>
    <name>JournalCardsModel</name>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Aufrecht</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>Deck</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
</context>
<context>
    <name>JournalLocationsModel</name>
    <message>
        <source>Location</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Cards Most Often There</source>
        <translation>Häufigste Karten dort</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JournalResultsModel</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Auslage</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>Deck</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Legung</translation>
    </message>
    <message>
        <source>Diary</source>
        <translation>Tagebuch</translation>
    </message>
    <message>
        <source>Locked: open it and give its password to see it</source>
        <translation>Gesperrt: öffnen Sie sie und geben Sie ihr Kennwort ein, um sie zu sehen</translation>
    </message>
</context>
<context>
    <name>LocationAttributesForm</name>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Question %1:</source>
        <translation>Frage %1:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Location Attriubtes - Location number %1</source>
        <translation>Positionsattribute - Position Nummer %1</translation>
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
    <name>PackageInstallation</name>
    <message>
        <source>Unable to install: Damaged Cartomar Package.
%1</source>
        <translation>Installation nicht möglich: beschädigtes Cartomar-Paket.
%1</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; names the file &apos;%2&apos;, which the package does not hold.</source>
        <translation>Das Deck &apos;%1&apos; nennt die Datei &apos;%2&apos;, die das Paket nicht enthält.</translation>
    </message>
    <message>
        <source>The card &apos;%1&apos; names the file &apos;%2&apos;, which the package does not hold.</source>
        <translation>Die Karte &apos;%1&apos; nennt die Datei &apos;%2&apos;, die das Paket nicht enthält.</translation>
    </message>
    <message>
        <source>The spread &apos;%1&apos; names the file &apos;%2&apos;, which the package does not hold.</source>
        <translation>Die Auslage &apos;%1&apos; nennt die Datei &apos;%2&apos;, die das Paket nicht enthält.</translation>
    </message>
    <message>
        <source>The location &apos;%1&apos; names the file &apos;%2&apos;, which the package does not hold.</source>
        <translation>Die Position &apos;%1&apos; nennt die Datei &apos;%2&apos;, die das Paket nicht enthält.</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; claims %2 cards, which no deck can hold.</source>
        <translation>Das Deck &apos;%1&apos; gibt %2 Karten an, mehr als ein Deck fassen kann.</translation>
    </message>
    <message>
        <source>The deck &apos;%1&apos; would be installed without its cards.</source>
        <translation>Das Deck &apos;%1&apos; würde ohne seine Karten installiert.</translation>
    </message>
    <message>
        <source>The decks &apos;%1&apos; and &apos;%2&apos; would share their cards.</source>
        <translation>Die Decks &apos;%1&apos; und &apos;%2&apos; würden ihre Karten teilen.</translation>
    </message>
    <message>
        <source>A card of the package belongs to none of its decks.</source>
        <translation>Eine Karte des Pakets gehört zu keinem seiner Decks.</translation>
    </message>
    <message numerus="yes">
        <source>The deck &apos;%1&apos; claims %n cards, but the package holds %2 of them.</source>
        <translation>
            <numerusform>Das Deck &apos;%1&apos; gibt %n Karte an, das Paket enthält aber %2 davon.</numerusform>
            <numerusform>Das Deck &apos;%1&apos; gibt %n Karten an, das Paket enthält aber %2 davon.</numerusform>
        </translation>
    </message>
    <message>
        <source>The card &apos;%1&apos; has an unknown card type.</source>
        <translation>Die Karte &apos;%1&apos; hat einen unbekannten Kartentyp.</translation>
    </message>
    <message>
        <source>The spread &apos;%1&apos; claims %2 locations, which no spread can hold.</source>
        <translation>Die Auslage &apos;%1&apos; gibt %2 Positionen an, mehr als eine Auslage fassen kann.</translation>
    </message>
    <message>
        <source>The spread &apos;%1&apos; names %2 decks, which no spread can.</source>
        <translation>Die Auslage &apos;%1&apos; nennt %2 Decks, mehr als eine Auslage kann.</translation>
    </message>
    <message>
        <source>The spreads &apos;%1&apos; and &apos;%2&apos; would share their locations.</source>
        <translation>Die Auslagen &apos;%1&apos; und &apos;%2&apos; würden ihre Positionen teilen.</translation>
    </message>
    <message>
        <source>A location of the package belongs to none of its spreads.</source>
        <translation>Eine Position des Pakets gehört zu keiner seiner Auslagen.</translation>
    </message>
    <message>
        <source>The locations of the spread &apos;%1&apos; do not agree with its count of %2.</source>
        <translation>Die Positionen der Auslage &apos;%1&apos; stimmen nicht mit ihrer Anzahl %2 überein.</translation>
    </message>
    <message>
        <source>Bad record number</source>
        <translation>Falsche Datensatznummer</translation>
    </message>
</context>
<context>
    <name>PackageSummaryScreen</name>
    <message>
        <source>Decks:</source>
        <translation>Decks:</translation>
    </message>
    <message>
        <source>Spreads:</source>
        <translation>Auslagen:</translation>
    </message>
    <message>
        <source>Attachment:</source>
        <translation>Anhang:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>KEINER</translation>
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
    <name>PictureImport</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SpreadBackground</name>
    <message>
        <source>There is no file with the name you provided!</source>
        <translation>Es gibt keine Datei mit dem angegebenen Namen!</translation>
    </message>
    <message>
        <source>Unsupported file type. Only files of type BMP, JPG and GIF are currently supported.</source>
        <translation>Nicht unterstützter Dateityp. Derzeit werden nur BMP-, JPG- und GIF-Dateien unterstützt.</translation>
    </message>
    <message>
        <source>Unable to open the file you selected. Please make sure it is of a valid type.</source>
        <translation>Die gewählte Datei kann nicht geöffnet werden. Bitte prüfen Sie, ob ihr Typ gültig ist.</translation>
    </message>
</context>
<context>
    <name>SpreadCanvas</name>
    <message>
        <source>Attributes</source>
        <translation>Angaben</translation>
    </message>
    <message>
        <source>Hide &amp;Grid</source>
        <translation>&amp;Raster aus</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>&amp;Raster ein</translation>
    </message>
</context>
<context>
    <name>SpreadDetailsPage</name>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Designer:</source>
        <translation>Gestalter:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Web Page:</source>
        <translation>Webseite:</translation>
    </message>
    <message>
        <source>Question or Query</source>
        <translation>Frage oder Anliegen</translation>
    </message>
    <message>
        <source>Modified On:</source>
        <translation>Geändert:</translation>
    </message>
</context>
<context>
    <name>SpreadStore</name>
    <message>
        <source>Please select a name to save the spread as.</source>
        <translation>Bitte wählen Sie einen Namen für die Auslage.</translation>
    </message>
    <message>
        <source>Spread already exists. Overwrite?</source>
        <translation>Die Auslage existiert bereits. Überschreiben?</translation>
    </message>
    <message>
        <source>Unable to find this spread. Please &apos;close&apos; and select another spread.</source>
        <translation>Diese Auslage wurde nicht gefunden. Bitte &apos;Schließen&apos; Sie und wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the currently selected background picture?</source>
        <translation>Möchten Sie das gewählte Hintergrundbild wirklich entfernen?</translation>
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
    <name>frmAddCard</name>
    <message>
        <source>Add Card</source>
        <translation>Karte hinzufügen</translation>
    </message>
    <message>
        <source>Click Here to Edit the Image</source>
        <translation>Hier klicken, um das Bild zu bearbeiten</translation>
    </message>
    <message>
        <source>Edit &amp;Image</source>
        <translation>&amp;Bild ändern</translation>
    </message>
    <message>
        <source>Edit &amp;Sound</source>
        <translation>&amp;Klang ändern</translation>
    </message>
    <message>
        <source>&amp;Save-Close</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>Save-&amp;New</source>
        <translation>Speichern+&amp;Neu</translation>
    </message>
    <message>
        <source>Save changes to the card?</source>
        <translation>Änderungen an der Karte speichern?</translation>
    </message>
</context>
<context>
    <name>frmBrowseDeck</name>
    <message>
        <source>Decks:</source>
        <translation>Decks:</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Aus&amp;wählen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Browse Decks</source>
        <translation>Decks durchsuchen</translation>
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
    <name>frmCreatePackage</name>
    <message>
        <source>Create Package</source>
        <translation>Paket erstellen</translation>
    </message>
    <message>
        <source>Decks:</source>
        <translation>Decks:</translation>
    </message>
    <message>
        <source>Spreads:</source>
        <translation>Auslagen:</translation>
    </message>
    <message>
        <source>Automatically select the decks a spread works with</source>
        <translation>Decks der Auslagen mitwählen</translation>
    </message>
    <message>
        <source>Protect all designs with a password.</source>
        <translation>Alle Entwürfe mit einem Kennwort schützen.</translation>
    </message>
    <message>
        <source>Attachment:</source>
        <translation>Anhang:</translation>
    </message>
    <message>
        <source>&amp;Attach...</source>
        <translation>An&amp;hängen...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>E&amp;rstellen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Cartomar Package - %1</source>
        <translation>Cartomar-Paket - %1</translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*|HTML Files (*.htm)|*.htm|Document Files (*.doc)|*.doc|Text Files (*.txt)|*.txt</source>
        <translation>Alle Dateien (*.*)|*.*|HTML-Dateien (*.htm)|*.htm|Dokumente (*.doc)|*.doc|Textdateien (*.txt)|*.txt</translation>
    </message>
    <message>
        <source>Select Attachment</source>
        <translation>Anhang wählen</translation>
    </message>
    <message>
        <source>There is no file with the name you provided!</source>
        <translation>Es gibt keine Datei mit dem angegebenen Namen!</translation>
    </message>
    <message>
        <source>This device is currently unavailable!</source>
        <translation>Dieses Gerät ist zurzeit nicht verfügbar!</translation>
    </message>
    <message>
        <source>This folder and its subfolders are solely for the use of Cartomar. Please select a different folder.</source>
        <translation>Dieser Ordner und seine Unterordner sind allein Cartomar vorbehalten. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>You have selected nothing to pack. Please select at least one design.</source>
        <translation>Sie haben nichts zum Packen gewählt. Bitte wählen Sie mindestens einen Entwurf.</translation>
    </message>
    <message>
        <source>Invalid FileName!
A valid filename cannot contain \, /, :, *, ?, &lt;, &gt; or |.</source>
        <translation>Ungültiger Dateiname!
Ein gültiger Dateiname darf \, /, :, *, ?, &lt;, &gt; und | nicht enthalten.</translation>
    </message>
    <message>
        <source>Package already exists. Overwrite?</source>
        <translation>Das Paket existiert bereits. Überschreiben?</translation>
    </message>
    <message>
        <source>Unable to create package.  Error%1: %2</source>
        <translation>Das Paket kann nicht erstellt werden.  Fehler%1: %2</translation>
    </message>
    <message>
        <source>Some designs were intially protected. Their passwords cannot be replaced.
However, they will still be added to the package.</source>
        <translation>Einige Entwürfe waren bereits geschützt. Ihre Kennwörter können nicht ersetzt werden.
Sie werden trotzdem in das Paket aufgenommen.</translation>
    </message>
    <message>
        <source>The selected attachment could not be copied because either it is in use or it has been removed from disk.</source>
        <translation>Der gewählte Anhang konnte nicht kopiert werden, weil er benutzt wird oder nicht mehr auf dem Datenträger ist.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel creating this package?</source>
        <translation>Möchten Sie das Erstellen dieses Pakets wirklich abbrechen?</translation>
    </message>
</context>
<context>
    <name>frmCreatePackageSummary</name>
    <message>
        <source>Package Summary - %1</source>
        <translation>Paketübersicht - %1</translation>
    </message>
    <message>
        <source>Package Summary</source>
        <translation>Paketübersicht</translation>
    </message>
    <message>
        <source>The package was successfully created.</source>
        <translation>Das Paket wurde erfolgreich erstellt.</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
</context>
<context>
    <name>frmDeckCardProperties</name>
    <message>
        <source>Note: Don&apos;t forget to supply the reversed versions of the cards.
Unless you do so, you will not be able to use this deck.</source>
        <translation>Hinweis: Vergessen Sie nicht, die umgekehrten Bilder der Karten hinzuzufügen.
Sonst können Sie dieses Deck nicht verwenden.</translation>
    </message>
</context>
<context>
    <name>frmDeckChooser</name>
    <message>
        <source>Decks Available</source>
        <translation>Verfügbare Decks</translation>
    </message>
    <message>
        <source>&amp;Allow this spread to use all available decks</source>
        <translation>Alle verfügbaren Decks für diese Auslage &amp;zulassen</translation>
    </message>
    <message>
        <source>Available Decks:</source>
        <translation>Verfügbare Decks:</translation>
    </message>
    <message>
        <source>Spread works on the following Decks:</source>
        <translation>Die Auslage passt zu diesen Decks:</translation>
    </message>
    <message>
        <source>Add &amp;&gt;&gt;</source>
        <translation>Hinzu &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>&amp;&lt;&lt; Delete</source>
        <translation>&amp;&lt;&lt; Entfernen</translation>
    </message>
    <message>
        <source>&amp;Install all spreads in the package with selected decks</source>
        <translation>Alle Auslagen mit den gewählten Decks &amp;installieren</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Choose decks to work with spread: %1</source>
        <translation>Decks für die Auslage wählen: %1</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Save changes to the spread?</source>
        <translation>Änderungen an der Auslage speichern?</translation>
    </message>
    <message>
        <source>No decks have been selected.  Are you sure you want to continue?</source>
        <translation>Es wurden keine Decks gewählt.  Möchten Sie wirklich fortfahren?</translation>
    </message>
</context>
<context>
    <name>frmDeckInfo</name>
    <message>
        <source>Deck View</source>
        <translation>Deckansicht</translation>
    </message>
</context>
<context>
    <name>frmDecks</name>
    <message>
        <source>Decks:</source>
        <translation>Decks:</translation>
    </message>
    <message>
        <source> Brief Info </source>
        <translation> Kurzinfo </translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Modified On:</source>
        <translation>Geändert:</translation>
    </message>
    <message>
        <source>Designer:</source>
        <translation>Gestalter:</translation>
    </message>
    <message>
        <source>Cards:</source>
        <translation>Karten:</translation>
    </message>
    <message>
        <source>Cards List</source>
        <translation>Kartenliste</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansehen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Decks&apos; Menu</source>
        <translation>Decks</translation>
    </message>
</context>
<context>
    <name>frmDesignDeck</name>
    <message>
        <source>Deck Design</source>
        <translation>Deckentwurf</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Dele&amp;te</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Import Pictures...</source>
        <translation>Bilder &amp;importieren...</translation>
    </message>
    <message>
        <source>Are you sure you want to delete card &apos;%1&apos; ?</source>
        <translation>Möchten Sie die Karte &apos;%1&apos; wirklich löschen?</translation>
    </message>
    <message>
        <source>Import Pictures</source>
        <translation>Bilder importieren</translation>
    </message>
    <message>
        <source>Save changes to the deck?</source>
        <translation>Änderungen am Deck speichern?</translation>
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
    <name>frmDesignSpread</name>
    <message>
        <source>Spread Design</source>
        <translation>Auslagenentwurf</translation>
    </message>
    <message>
        <source>Available Decks:</source>
        <translation>Verfügbare Decks:</translation>
    </message>
    <message>
        <source>Spread works on the following Decks:</source>
        <translation>Die Auslage passt zu diesen Decks:</translation>
    </message>
    <message>
        <source>&amp;Allow this spread to use all available decks</source>
        <translation>Alle verfügbaren Decks für diese Auslage &amp;zulassen</translation>
    </message>
    <message>
        <source>Add &amp;&gt;&gt;</source>
        <translation>Hinzu &amp;&gt;&gt;</translation>
    </message>
    <message>
        <source>&amp;&lt;&lt; Delete</source>
        <translation>&amp;&lt;&lt; Entfernen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Aus&amp;wählen...</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>Sp&amp;read</source>
        <translation>&amp;Auslage</translation>
    </message>
    <message>
        <source>Dec&amp;ks</source>
        <translation>Dec&amp;ks</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>&amp;Raster ein</translation>
    </message>
    <message>
        <source>S&amp;nap</source>
        <translation>&amp;Einrasten</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>No&amp;tes</source>
        <translation>No&amp;tizen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Spread Design - %1</source>
        <translation>Auslagenentwurf - %1</translation>
    </message>
    <message>
        <source>The number of locations in a spread cannot exceed %1.</source>
        <translation>Eine Auslage kann höchstens %1 Positionen haben.</translation>
    </message>
    <message>
        <source>There are no locations to be removed.</source>
        <translation>Es gibt keine Positionen zum Entfernen.</translation>
    </message>
    <message>
        <source>Are you sure you want to completely remove location number %1 ?</source>
        <translation>Möchten Sie die Position Nummer %1 wirklich ganz entfernen?</translation>
    </message>
    <message>
        <source>Don&apos;t S&amp;nap</source>
        <translation>Nicht &amp;einrasten</translation>
    </message>
    <message>
        <source>Are you sure you want to remove deck &apos;%1&apos; ?</source>
        <translation>Möchten Sie das Deck &apos;%1&apos; wirklich entfernen?</translation>
    </message>
    <message>
        <source>Save changes to the spread?</source>
        <translation>Änderungen an der Auslage speichern?</translation>
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
    <name>frmGetImageFile</name>
    <message>
        <source>Select Upright Image</source>
        <translation>Aufrechtes Bild wählen</translation>
    </message>
    <message>
        <source>Select Reversed Image</source>
        <translation>Umgekehrtes Bild wählen</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
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
    <name>frmGetSoundFile</name>
    <message>
        <source>Select Upright Sound</source>
        <translation>Aufrechten Klang wählen</translation>
    </message>
    <message>
        <source>Select Reversed Sound</source>
        <translation>Umgekehrten Klang wählen</translation>
    </message>
    <message>
        <source>Play Sound</source>
        <translation>Klang abspielen</translation>
    </message>
</context>
<context>
    <name>frmGetSpreadBackground</name>
    <message>
        <source>Set Spread Background</source>
        <translation>Hintergrund der Auslage</translation>
    </message>
    <message>
        <source>Picture file:</source>
        <translation>Bilddatei:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Aus&amp;wählen...</translation>
    </message>
    <message>
        <source>Stretch picture to fit</source>
        <translation>Bild auf Größe strecken</translation>
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
        <source>Bitmaps (*.bmp)|*.bmp|Joint Photographic Experts Group (*.jpg)|*.jpg|Graphics Interchange Format (*.gif)|*.gif|All Supported Types (*.bmp; *.jpg; *.gif)|*.bmp;*.jpg;*.gif</source>
        <translation>Bitmaps (*.bmp)|*.bmp|Joint Photographic Experts Group (*.jpg)|*.jpg|Graphics Interchange Format (*.gif)|*.gif|Alle unterstützten Typen (*.bmp; *.jpg; *.gif)|*.bmp;*.jpg;*.gif</translation>
    </message>
    <message>
        <source>Select Background Picture</source>
        <translation>Hintergrundbild wählen</translation>
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
    <name>frmImportPictures</name>
    <message>
        <source>Import Pictures</source>
        <translation>Bilder importieren</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Reversed Side</source>
        <translation>Umgekehrte Seite</translation>
    </message>
    <message>
        <source>T&amp;ype of the selected cards:</source>
        <translation>T&amp;yp der gewählten Karten:</translation>
    </message>
    <message>
        <source>&amp;Set Type</source>
        <translation>Typ &amp;setzen</translation>
    </message>
    <message>
        <source>&amp;None: the default picture</source>
        <translation>&amp;Keine: das Standardbild</translation>
    </message>
    <message>
        <source>The same picture &amp;turned</source>
        <translation>Dasselbe Bild &amp;gedreht</translation>
    </message>
    <message>
        <source>A &amp;file of its own, found by name</source>
        <translation>Eine eigene &amp;Datei, nach Namen gefunden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Not a picture, or cannot be read</source>
        <translation>Kein Bild oder nicht lesbar</translation>
    </message>
    <message>
        <source>turned</source>
        <translation>gedreht</translation>
    </message>
    <message>
        <source>none found</source>
        <translation>keine gefunden</translation>
    </message>
    <message>
        <source>Importing pictures...</source>
        <translation>Bilder werden importiert...</translation>
    </message>
    <message>
        <source>These pictures could not be read and were not added: %1</source>
        <translation>Diese Bilder konnten nicht gelesen werden und wurden nicht hinzugefügt: %1</translation>
    </message>
    <message>
        <source>%1
These cards were not added: %2</source>
        <translation>%1
Diese Karten wurden nicht hinzugefügt: %2</translation>
    </message>
</context>
<context>
    <name>frmInstallPackage</name>
    <message>
        <source>Install Package</source>
        <translation>Paket installieren</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>In&amp;fo</source>
        <translation>In&amp;fo</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>This device is currently unavailable!</source>
        <translation>Dieses Gerät ist zurzeit nicht verfügbar!</translation>
    </message>
    <message>
        <source>Are you sure you want to delete package &apos;%1&apos; ?</source>
        <translation>Möchten Sie das Paket &apos;%1&apos; wirklich löschen?</translation>
    </message>
    <message>
        <source>Unable to open package</source>
        <translation>Das Paket kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Unable to install: Incompatible Cartomar Package.</source>
        <translation>Installation nicht möglich: inkompatibles Cartomar-Paket.</translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*|HTML Files (*.htm)|*.htm|Document Files (*.doc)|*.doc|Text Files (*.txt)|*.txt</source>
        <translation>Alle Dateien (*.*)|*.*|HTML-Dateien (*.htm)|*.htm|Dokumente (*.doc)|*.doc|Textdateien (*.txt)|*.txt</translation>
    </message>
    <message>
        <source>Save Attachment As</source>
        <translation>Anhang speichern unter</translation>
    </message>
</context>
<context>
    <name>frmJournal</name>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Either Way</source>
        <translation>Beliebig</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Aufrecht</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Readings and Diaries</source>
        <translation>Legungen und Tagebücher</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Legungen</translation>
    </message>
    <message>
        <source>Diaries</source>
        <translation>Tagebücher</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Bis:</translation>
    </message>
    <message>
        <source>&amp;Words:</source>
        <translation>&amp;Wörter:</translation>
    </message>
    <message>
        <source>C&amp;ard:</source>
        <translation>&amp;Karte:</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Lage:</translation>
    </message>
    <message>
        <source>&amp;Spread:</source>
        <translation>&amp;Auslage:</translation>
    </message>
    <message>
        <source>&amp;Deck:</source>
        <translation>&amp;Deck:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>&amp;Ergebnisse</translation>
    </message>
    <message>
        <source>&amp;Cards</source>
        <translation>Kar&amp;ten</translation>
    </message>
    <message>
        <source>&amp;Balance</source>
        <translation>Ver&amp;hältnis</translation>
    </message>
    <message>
        <source>&amp;Locations</source>
        <translation>&amp;Positionen</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>&amp;Monate</translation>
    </message>
    <message>
        <source>O&amp;pen</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Export CSV...</source>
        <translation>CSV e&amp;xportieren...</translation>
    </message>
    <message>
        <source>Save C&amp;hart...</source>
        <translation>Dia&amp;gramm speichern...</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>Dr&amp;ucken...</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>(Any Card)</source>
        <translation>(Beliebige Karte)</translation>
    </message>
    <message>
        <source>(Any Deck)</source>
        <translation>(Beliebiges Deck)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Any Spread)</source>
        <translation>(Beliebige Auslage)</translation>
    </message>
    <message>
        <source>%1; %2; %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln locked, not counted</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not attributable to a present card</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Export Results</source>
        <translation>Ergebnisse exportieren</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)|*.csv|All Files (*.*)|*.*</source>
        <translation>CSV-Dateien (*.csv)|*.csv|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Journal.csv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Chart</source>
        <translation>Diagramm speichern</translation>
    </message>
    <message>
        <source>PNG Pictures (*.png)|*.png</source>
        <translation>PNG-Bilder (*.png)|*.png</translation>
    </message>
    <message>
        <source>Chart.png</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to save the chart as &apos;%1&apos;.</source>
        <translation>Das Diagramm kann nicht als &apos;%1&apos; gespeichert werden.</translation>
    </message>
    <message>
        <source>Unable to print! %1 %2</source>
        <translation>Drucken nicht möglich! %1 %2</translation>
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
    <name>frmPackageInfo</name>
    <message>
        <source>Package Info</source>
        <translation>Paketinfo</translation>
    </message>
    <message>
        <source>Spreads:</source>
        <translation>Auslagen:</translation>
    </message>
    <message>
        <source>Decks:</source>
        <translation>Decks:</translation>
    </message>
    <message>
        <source>Attachment:</source>
        <translation>Anhang:</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>frmPackageSummary</name>
    <message>
        <source>Package Summary</source>
        <translation>Paketübersicht</translation>
    </message>
    <message>
        <source>The package was successfully installed.</source>
        <translation>Das Paket wurde erfolgreich installiert.</translation>
    </message>
    <message>
        <source>No elements of this package were installed.</source>
        <translation>Kein Teil dieses Pakets wurde installiert.</translation>
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
    <name>frmSaveDeck</name>
    <message>
        <source>Save As:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Saved Decks:</source>
        <translation>Gespeicherte Decks:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Save Deck</source>
        <translation>Deck speichern</translation>
    </message>
</context>
<context>
    <name>frmSaveSpread</name>
    <message>
        <source>Save Spread</source>
        <translation>Auslage speichern</translation>
    </message>
    <message>
        <source>Save spread as:</source>
        <translation>Speichern als:</translation>
    </message>
    <message>
        <source>Saved spreads:</source>
        <translation>Gespeicherte Auslagen:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
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
<context>
    <name>frmSpreadComments</name>
    <message>
        <source>Spread Notes</source>
        <translation>Notizen zur Auslage</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>frmSpreadInfo</name>
    <message>
        <source>View Spread</source>
        <translation>Auslage ansehen</translation>
    </message>
    <message>
        <source>Spread works on the following Decks:</source>
        <translation>Die Auslage passt zu diesen Decks:</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>Sp&amp;read</source>
        <translation>&amp;Auslage</translation>
    </message>
    <message>
        <source>Dec&amp;ks</source>
        <translation>Dec&amp;ks</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>&amp;Raster ein</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Spread View</source>
        <translation>Auslagenansicht</translation>
    </message>
    <message>
        <source>Spread View - %1</source>
        <translation>Auslagenansicht - %1</translation>
    </message>
    <message>
        <source>                          [ ALL DECKS ] </source>
        <translation>                          [ ALLE DECKS ] </translation>
    </message>
    <message>
        <source>     [ MISSING DECK ] </source>
        <translation>     [ DECK FEHLT ] </translation>
    </message>
</context>
<context>
    <name>frmSpreads</name>
    <message>
        <source>Spreads&apos; Menu</source>
        <translation>Auslagen</translation>
    </message>
    <message>
        <source>Available Spreads:</source>
        <translation>Verfügbare Auslagen:</translation>
    </message>
    <message>
        <source> Brief Info </source>
        <translation> Kurzinfo </translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Designer:</source>
        <translation>Gestalter:</translation>
    </message>
    <message>
        <source>Modified On:</source>
        <translation>Geändert:</translation>
    </message>
    <message>
        <source>Decks:</source>
        <translation>Decks:</translation>
    </message>
    <message>
        <source>Cards:</source>
        <translation>Karten:</translation>
    </message>
    <message>
        <source>Query:</source>
        <translation>Frage:</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansehen</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Manage</source>
        <translation>&amp;Verwalten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>J</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Are you sure you want to delete spread &apos;%1&apos; ?</source>
        <translation>Möchten Sie die Auslage &apos;%1&apos; wirklich löschen?</translation>
    </message>
</context>
<context>
    <name>frmViewCard</name>
    <message>
        <source>View Card</source>
        <translation>Karte ansehen</translation>
    </message>
</context>
</TS>
