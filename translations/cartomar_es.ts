<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DecorativePictures</name>
    <message>
        <source>Unlock the Door to Future Possibilities</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorReport</name>
    <message>
        <source>Run-time error &apos;%1&apos;:

%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>Bad record number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel was selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application-defined or object-defined error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device unavailable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FitPicture</name>
    <message>
        <source>Error while loading the picture. A default picture is selected instead.
Please save all your work, exit Cartomar, and then run it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error. Please contact Ondine Software Inc.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpPanel</name>
    <message>
        <source>1. The Present</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Star</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spread Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Fool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Magician</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The High Priestess</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Empress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Emperor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cards List</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpPanelForm</name>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JournalChart</name>
    <message>
        <source>Nothing to show</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MDIMainForm</name>
    <message>
        <source>Cartomar - Unlock the Door to Future Possibilities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to EXIT Cartomar?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartomar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaPlayer</name>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>Cartomar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordPrompts</name>
    <message>
        <source>Incorrect password. Access Denied.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>Cartomar Error. If this problem persists, please contact Ondine Software Inc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartomar is already running from the folder &apos;%1&apos;. Only one copy can work on the same designs at a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to convert to new database format as existing backups exist.  Please reinstall in a new directory or contact %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You don&apos;t have any designs installed. Do you want install any now?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmConvert</name>
    <message>
        <source>Cartomar Converter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartomar detected an older database version.  Would you like to convert the old files to a new compatible version?  (Note that a *.bkp copies will be created of the old database files.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Con&amp;vert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmDesignExists</name>
    <message>
        <source>Design Already Exists. What do you want to do?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;kip All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the new design name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card &apos;%1&apos; exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deck &apos;%1&apos; exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spread &apos;%1&apos; exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must enter a design name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You already have a design with this name. Please enter a change the name or click &apos;Cancel&apos; to return to the previous page.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmDiaryHelp</name>
    <message>
        <source>Quick Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Tarot Spread is meant to aid you in your everyday life.  Examine the spread as a whole and use the additional tools included on the spread to help you understand the meaning behind each card.  By double clicking on a card, you get the description of the specific spread location and the interpretation and keywords of the card itself if it has been selected. Furthermore, you can enlarge the card&apos;s picture for a closer view. The card is selected from the cards list and its state is specified by the check box.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmGetPassword</name>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmHelpViewer</name>
    <message>
        <source>Cartomar Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMainScreen</name>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a New Reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Past</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a Saved Reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create, Edit or View Decks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spreads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create, Edit, View or Manage Spreads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install a Package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a New Package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search and Count Past Readings and Diaries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit Cartomar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cartomar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Readings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to locate help file. The file is longer in the &apos;%1&apos; directory. Recopy the help file or reinstall Cartomar.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmQuickHelp</name>
    <message>
        <source>Quick Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Tarot Spread is meant to aid you in your everyday life.  Examine the spread as a whole and use the additional tools included on the spread to help you understand the meaning behind each card.  By clicking on a card, you get the description of the specific spread location and the interpretation and keywords of the card itself if it has been opened. Furthermore, you can enlarge the card&apos;s picture for a closer view.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSetPassword</name>
    <message>
        <source>Enter Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two passwords do not match.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
