<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>velor::ColorPalette</name>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Eigene ...</translation>
    </message>
</context>
<context>
    <name>velor::CoolBar</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
</context>
<context>
    <name>velor::FormattingBar</name>
    <message>
        <source>Block Format</source>
        <translation>Absatzformat</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Formatting</source>
        <translation>Formatierung</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
</context>
<context>
    <name>velor::ManualWindow</name>
    <message>
        <source>Velor Web Creator Manual</source>
        <translation>Handbuch zu Velor Web Creator</translation>
    </message>
    <message>
        <source>Words to find in the manual</source>
        <translation>Im Handbuch zu suchende Wörter</translation>
    </message>
    <message>
        <source>Find in the manual</source>
        <translation>Im Handbuch suchen</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Back to the place before (Alt+Left)</source>
        <translation>Zurück zur vorigen Stelle (Alt+Links)</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Forward again (Alt+Right)</source>
        <translation>Wieder vorwärts (Alt+Rechts)</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>The first page</source>
        <translation>Die erste Seite</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>Fundstellen</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
</context>
<context>
    <name>velor::MfrmProgram</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Project pages</source>
        <translation>Projektseiten</translation>
    </message>
    <message>
        <source>Find Command</source>
        <translation>Befehl suchen</translation>
    </message>
    <message>
        <source>Words of the command</source>
        <translation>Wörter des Befehls</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Recent Files</source>
        <translation>Zuletzt geöffnete Dateien</translation>
    </message>
    <message>
        <source>Words of the file&apos;s path</source>
        <translation>Wörter des Dateipfads</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>velor::PageArea</name>
    <message>
        <source>New Document (Ctrl+N)  or  Open (Ctrl+O)</source>
        <translation>Neues Dokument (Strg+N)  oder  Öffnen (Strg+O)</translation>
    </message>
</context>
<context>
    <name>velor::PageChooser</name>
    <message>
        <source>Project pages</source>
        <translation>Projektseiten</translation>
    </message>
</context>
<context>
    <name>velor::PageTabs</name>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
</context>
<context>
    <name>velor::RecentFiles</name>
    <message>
        <source>No file was opened yet</source>
        <translation>Noch keine Datei wurde geöffnet</translation>
    </message>
</context>
<context>
    <name>velor::WebBrowser</name>
    <message>
        <source>The preview downloads nothing: %1</source>
        <translation>Die Vorschau lädt nichts herunter: %1</translation>
    </message>
    <message>
        <source>Outside of the site and not opened: %1</source>
        <translation>Außerhalb der Website und nicht geöffnet: %1</translation>
    </message>
    <message>
        <source>The page&apos;s process has ended. Refresh shows the page again.</source>
        <translation>Der Prozess der Seite wurde beendet. „Aktualisieren“ zeigt die Seite wieder an.</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 wird geöffnet</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>%1 could not be opened</source>
        <translation>%1 konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Outside of the site and not shown: %1</source>
        <translation>Außerhalb der Website und nicht angezeigt: %1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> und %1 weitere</translation>
    </message>
    <message>
        <source>No mail program is set up here to write to %1</source>
        <translation>Es ist kein E-Mail-Programm eingerichtet, um an %1 zu schreiben</translation>
    </message>
    <message>
        <source>No program is set up here to open %1</source>
        <translation>Es ist kein Programm eingerichtet, um %1 zu öffnen</translation>
    </message>
</context>
<context>
    <name>velor::Words</name>
    <message>
        <source>The browser engine&apos;s sandbox is off: preview only pages that you trust.</source>
        <translation>Die Sandbox der Browser-Engine ist ausgeschaltet: Zeigen Sie nur Seiten in der Vorschau an, denen Sie vertrauen.</translation>
    </message>
    <message>
        <source>the setting %1 in %2 is &quot;%3&quot;; &quot;%4&quot; counts until it is mended</source>
        <translation>die Einstellung %1 in %2 ist „%3“; bis zur Korrektur gilt „%4“</translation>
    </message>
    <message>
        <source>%1

Run-time error %2 in %3.</source>
        <translation>%1

Laufzeitfehler %2 in %3.</translation>
    </message>
    <message>
        <source>

The program has to end.</source>
        <translation>

Das Programm muss beendet werden.</translation>
    </message>
    <message>
        <source>The Database Path of Vitrine not found. Please provide the Path</source>
        <translation>Der Datenbankpfad von Vitrine wurde nicht gefunden. Geben Sie bitte den Pfad an</translation>
    </message>
    <message>
        <source>The Database Path of Vitrine not Found. Please provide the path</source>
        <translation>Der Datenbankpfad von Vitrine wurde nicht gefunden. Geben Sie bitte den Pfad an</translation>
    </message>
    <message>
        <source>The Path of Image Folder is not found.Please provide the path</source>
        <translation>Der Pfad des Bilderordners wurde nicht gefunden. Geben Sie bitte den Pfad an</translation>
    </message>
    <message>
        <source>Database(*.mdb;)|*.mdb</source>
        <translation>Datenbank(*.mdb;)|*.mdb</translation>
    </message>
    <message>
        <source>Path not Found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>HTML Files *.htm,*.html|*.htm;*.html</source>
        <translation>HTML-Dateien *.htm,*.html|*.htm;*.html</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>%1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>There is no page to save</source>
        <translation>Es gibt keine Seite zum Speichern</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>The source was applied to the page. Saved %1</source>
        <translation>Der Quelltext wurde auf die Seite angewendet. %1 gespeichert</translation>
    </message>
    <message>
        <source>There is no page to put something into</source>
        <translation>Es gibt keine Seite, in die etwas eingefügt werden kann</translation>
    </message>
    <message>
        <source>There is no text to search</source>
        <translation>Es gibt keinen Text zum Durchsuchen</translation>
    </message>
    <message>
        <source>%1 could not be opened: too many pages are open</source>
        <translation>%1 konnte nicht geöffnet werden: Es sind zu viele Seiten geöffnet</translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation>Bilddatei</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages that are opened from now on</source>
        <translation>Seiten, die ab jetzt geöffnet werden</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Details anzeigen</translation>
    </message>
    <message>
        <source>&amp;Snap to grid</source>
        <translation>Am &amp;Raster ausrichten</translation>
    </message>
    <message>
        <source>&amp;Forget the inspected element with its page</source>
        <translation>&amp;Untersuchtes Element mit seiner Seite vergessen</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelltext</translation>
    </message>
    <message>
        <source>&amp;Wrap long lines</source>
        <translation>&amp;Lange Zeilen umbrechen</translation>
    </message>
    <message>
        <source>Pictures from outside the site</source>
        <translation>Bilder von außerhalb der Website</translation>
    </message>
    <message>
        <source>&amp;Copy them into the site</source>
        <translation>In die Website &amp;kopieren</translation>
    </message>
    <message>
        <source>Keep place, &amp;time and camera in copies</source>
        <translation>&amp;Ort, Zeit und Kamera in Kopien behalten</translation>
    </message>
    <message>
        <source>Write pasted photos as We&amp;bP</source>
        <translation>&amp;Eingefügte Fotos als WebP schreiben</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>From the next start on</source>
        <translation>Ab dem nächsten Start</translation>
    </message>
    <message>
        <source>&amp;Keep template signs whole</source>
        <translation>&amp;Vorlagenzeichen unversehrt lassen</translation>
    </message>
    <message>
        <source>&amp;Published behaviour only (no menu Tools)</source>
        <translation>&amp;Nur veröffentlichtes Verhalten (ohne Menü „Extras“)</translation>
    </message>
    <message>
        <source>PublishedOnly=False in %1 brings the menu back.</source>
        <translation>PublishedOnly=False in %1 bringt das Menü zurück.</translation>
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
        <source>Style:</source>
        <translation>Stil:</translation>
    </message>
    <message>
        <source>Picture file:</source>
        <translation>Bilddatei:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>That file cannot be shown as a picture.</source>
        <translation>Diese Datei kann nicht als Bild angezeigt werden.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>Projektverwaltung</translation>
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
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Textmarke</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über das Programm</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Rahmen:</translation>
    </message>
    <message>
        <source>Chosen item:</source>
        <translation>Gewählter Eintrag:</translation>
    </message>
    <message>
        <source>Text of the chosen item:</source>
        <translation>Text des gewählten Eintrags:</translation>
    </message>
    <message>
        <source>File (&amp;F)</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>page create</source>
        <translation>seite erstellen anlegen</translation>
    </message>
    <message>
        <source>New Document(&amp;N)</source>
        <translation>&amp;Neues Dokument</translation>
    </message>
    <message>
        <source>file load</source>
        <translation>datei laden</translation>
    </message>
    <message>
        <source>Open... (&amp;O)</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>write keep</source>
        <translation>schreiben sichern</translation>
    </message>
    <message>
        <source>Save (&amp;S)</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>copy rename</source>
        <translation>kopie kopieren umbenennen</translation>
    </message>
    <message>
        <source>Save As... (&amp;A)</source>
        <translation>Speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>quit close end</source>
        <translation>schließen verlassen ende</translation>
    </message>
    <message>
        <source>Exit (&amp;X)</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Edit (&amp;E)</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>take back</source>
        <translation>zurücknehmen undo</translation>
    </message>
    <message>
        <source>Undo (&amp;U)</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>again repeat</source>
        <translation>erneut nochmals wiederherstellen</translation>
    </message>
    <message>
        <source>Redo (&amp;R)</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>Aus&amp;schneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>remove clear erase</source>
        <translation>entfernen leeren tilgen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>everything mark</source>
        <translation>alles markieren</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>View (&amp;V)</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Menu Style (&amp;M)</source>
        <translation>&amp;Menüstil</translation>
    </message>
    <message>
        <source>Menu Option... (&amp;O)</source>
        <translation>Menü&amp;optionen ...</translation>
    </message>
    <message>
        <source>Customize... (&amp;C)</source>
        <translation>&amp;Anpassen ...</translation>
    </message>
    <message>
        <source>Sky Blue</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Clear XP Style</source>
        <translation>Klarer XP-Stil</translation>
    </message>
    <message>
        <source>site web pages catalogue</source>
        <translation>website webseiten katalog projekt</translation>
    </message>
    <message>
        <source>Show Detail (&amp;D)</source>
        <translation>&amp;Details anzeigen</translation>
    </message>
    <message>
        <source>Insert (&amp;I)</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>picture photo graphic</source>
        <translation>bild foto grafik</translation>
    </message>
    <message>
        <source>link address url</source>
        <translation>link verknüpfung verweis adresse url</translation>
    </message>
    <message>
        <source>Hyperlink</source>
        <translation>Hyperlink</translation>
    </message>
    <message>
        <source>Table (&amp;A)</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>grid rows columns cells</source>
        <translation>raster gitter zeilen spalten zellen</translation>
    </message>
    <message>
        <source>Insert Table</source>
        <translation>Tabelle einfügen</translation>
    </message>
    <message>
        <source>Window (&amp;W)</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Cascade (&amp;C)</source>
        <translation>Ü&amp;berlappend</translation>
    </message>
    <message>
        <source>above stacked tile</source>
        <translation>übereinander untereinander gestapelt kacheln</translation>
    </message>
    <message>
        <source>Horizontal (&amp;H)</source>
        <translation>&amp;Horizontal</translation>
    </message>
    <message>
        <source>beside side tile</source>
        <translation>nebeneinander kacheln seite</translation>
    </message>
    <message>
        <source>Vertical (&amp;V)</source>
        <translation>&amp;Vertikal</translation>
    </message>
    <message>
        <source>Tools (&amp;T)</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>Find Command... (&amp;F)</source>
        <translation>&amp;Befehl suchen ...</translation>
    </message>
    <message>
        <source>Recent Files (&amp;R)</source>
        <translation>&amp;Zuletzt geöffnete Dateien</translation>
    </message>
    <message>
        <source>search words text look</source>
        <translation>wörter text finden</translation>
    </message>
    <message>
        <source>Find... (&amp;N)</source>
        <translation>&amp;Suchen ...</translation>
    </message>
    <message>
        <source>exchange change words text</source>
        <translation>austauschen ändern wörter text</translation>
    </message>
    <message>
        <source>Replace... (&amp;P)</source>
        <translation>&amp;Ersetzen ...</translation>
    </message>
    <message>
        <source>search again</source>
        <translation>suchen erneut nächste vorwärts</translation>
    </message>
    <message>
        <source>Find Next (&amp;G)</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>search again back</source>
        <translation>suchen erneut vorige zurück</translation>
    </message>
    <message>
        <source>Find Previous (&amp;U)</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>hyperlink address url</source>
        <translation>hyperlink verknüpfung adresse url</translation>
    </message>
    <message>
        <source>Link... (&amp;L)</source>
        <translation>&amp;Link ...</translation>
    </message>
    <message>
        <source>open go preview</source>
        <translation>folgen gehen vorschau</translation>
    </message>
    <message>
        <source>Follow Link (&amp;K)</source>
        <translation>Lin&amp;k öffnen</translation>
    </message>
    <message>
        <source>anchor bookmark id name</source>
        <translation>anker ziel lesezeichen id name sprungmarke</translation>
    </message>
    <message>
        <source>Insert Target... (&amp;T)</source>
        <translation>Text&amp;marke einfügen ...</translation>
    </message>
    <message>
        <source>film movie mp4</source>
        <translation>film movie mp4</translation>
    </message>
    <message>
        <source>Insert Video... (&amp;V)</source>
        <translation>&amp;Video einfügen ...</translation>
    </message>
    <message>
        <source>plain unformatted only</source>
        <translation>nur unformatiert rein</translation>
    </message>
    <message>
        <source>Paste as Text (&amp;X)</source>
        <translation>Als Te&amp;xt einfügen</translation>
    </message>
    <message>
        <source>tabs columns spreadsheet</source>
        <translation>tabulator spalten tabellenkalkulation</translation>
    </message>
    <message>
        <source>Paste as Table (&amp;B)</source>
        <translation>&amp;Als Tabelle einfügen</translation>
    </message>
    <message>
        <source>notes plain md</source>
        <translation>notizen nur text md</translation>
    </message>
    <message>
        <source>Paste as Markdown (&amp;M)</source>
        <translation>Als Mark&amp;down einfügen</translation>
    </message>
    <message>
        <source>data base64 images</source>
        <translation>daten base64 bilder data</translation>
    </message>
    <message>
        <source>Take Embedded Pictures Out into Files (&amp;E)</source>
        <translation>Eingebettete B&amp;ilder in Dateien auslagern</translation>
    </message>
    <message>
        <source>line</source>
        <translation>reihe</translation>
    </message>
    <message>
        <source>Insert Row &amp;Above</source>
        <translation>Zeile &amp;darüber einfügen</translation>
    </message>
    <message>
        <source>Insert Row &amp;Below</source>
        <translation>Zeile dar&amp;unter einfügen</translation>
    </message>
    <message>
        <source>Insert Column &amp;Left</source>
        <translation>Spalte &amp;links einfügen</translation>
    </message>
    <message>
        <source>Colume</source>
        <translation>Kolumne</translation>
    </message>
    <message>
        <source>Insert Column &amp;Right</source>
        <translation>Spalte &amp;rechts einfügen</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>entfernen</translation>
    </message>
    <message>
        <source>&amp;Delete Row</source>
        <translation>&amp;Zeile löschen</translation>
    </message>
    <message>
        <source>Delete &amp;Column</source>
        <translation>&amp;Spalte löschen</translation>
    </message>
    <message>
        <source>Delete &amp;Table</source>
        <translation>&amp;Tabelle löschen</translation>
    </message>
    <message>
        <source>join</source>
        <translation>zusammenführen zusammenfügen vereinigen</translation>
    </message>
    <message>
        <source>&amp;Merge Cells</source>
        <translation>Zellen &amp;verbinden</translation>
    </message>
    <message>
        <source>divide</source>
        <translation>aufteilen trennen</translation>
    </message>
    <message>
        <source>&amp;Split Cell</source>
        <translation>Zelle t&amp;eilen</translation>
    </message>
    <message>
        <source>mark</source>
        <translation>markieren</translation>
    </message>
    <message>
        <source>Select C&amp;ell</source>
        <translation>Zelle &amp;auswählen</translation>
    </message>
    <message>
        <source>Select R&amp;ow</source>
        <translation>Zeile aus&amp;wählen</translation>
    </message>
    <message>
        <source>Select Col&amp;umn</source>
        <translation>Spalte auswä&amp;hlen</translation>
    </message>
    <message>
        <source>Select Table</source>
        <translation>Tabelle auswählen</translation>
    </message>
    <message>
        <source>Move Row Up</source>
        <translation>Zeile nach oben verschieben</translation>
    </message>
    <message>
        <source>Move Row Do&amp;wn</source>
        <translation>Zeile &amp;nach unten verschieben</translation>
    </message>
    <message>
        <source>Move Column Left</source>
        <translation>Spalte nach links verschieben</translation>
    </message>
    <message>
        <source>Move Column Right</source>
        <translation>Spalte nach rechts verschieben</translation>
    </message>
    <message>
        <source>distribute</source>
        <translation>verteilen</translation>
    </message>
    <message>
        <source>Equal Column W&amp;idths</source>
        <translation>&amp;Gleiche Spaltenbreiten</translation>
    </message>
    <message>
        <source>html long break</source>
        <translation>html lang umbruch</translation>
    </message>
    <message>
        <source>Wrap Source Lines (&amp;W)</source>
        <translation>Quelltextzeilen &amp;umbrechen</translation>
    </message>
    <message>
        <source>letter folder map windows</source>
        <translation>buchstabe ordner zuordnen windows</translation>
    </message>
    <message>
        <source>Drives... (&amp;D)</source>
        <translation>Lau&amp;fwerke ...</translation>
    </message>
    <message>
        <source>options preferences colours</source>
        <translation>optionen voreinstellungen konfigurieren farben</translation>
    </message>
    <message>
        <source>Settings... (&amp;S)</source>
        <translation>Ei&amp;nstellungen ...</translation>
    </message>
    <message>
        <source>Help (&amp;H)</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>version program</source>
        <translation>version programm info</translation>
    </message>
    <message>
        <source>manual guide</source>
        <translation>handbuch anleitung</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>Eigenschaften ...</translation>
    </message>
    <message>
        <source>Page Properties</source>
        <translation>Seiteneigenschaften</translation>
    </message>
    <message>
        <source>picture alternative</source>
        <translation>bild alternativtext</translation>
    </message>
    <message>
        <source>Image Properties</source>
        <translation>Bildeigenschaften</translation>
    </message>
    <message>
        <source>caption border</source>
        <translation>beschriftung rahmen rand</translation>
    </message>
    <message>
        <source>Table Properties</source>
        <translation>Tabelleneigenschaften</translation>
    </message>
    <message>
        <source>cell width colour</source>
        <translation>zelle breite farbe</translation>
    </message>
    <message>
        <source>Table Cell Properties</source>
        <translation>Eigenschaften der Tabellenzelle</translation>
    </message>
    <message>
        <source>link</source>
        <translation>link verknüpfung verweis</translation>
    </message>
    <message>
        <source>Hyperlink Properties</source>
        <translation>Hyperlink-Eigenschaften</translation>
    </message>
    <message>
        <source>Fonts Properties</source>
        <translation>Schrifteigenschaften</translation>
    </message>
    <message>
        <source>Absolute Position</source>
        <translation>Absolute Position</translation>
    </message>
    <message>
        <source>Show Detail</source>
        <translation>Details anzeigen</translation>
    </message>
    <message>
        <source>Snap to Grid</source>
        <translation>Am Raster ausrichten</translation>
    </message>
    <message>
        <source>Insert Custom HTML</source>
        <translation>Eigenes HTML einfügen</translation>
    </message>
    <message>
        <source>Table...</source>
        <translation>Tabelle ...</translation>
    </message>
    <message>
        <source>Insert Colume</source>
        <translation>Spalte einfügen</translation>
    </message>
    <message>
        <source>Insert Row</source>
        <translation>Zeile einfügen</translation>
    </message>
    <message>
        <source>Merge Cells</source>
        <translation>Zellen verbinden</translation>
    </message>
    <message>
        <source>Split Cell</source>
        <translation>Zelle teilen</translation>
    </message>
    <message>
        <source>Absolute object...</source>
        <translation>Absolutes Objekt ...</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>Ganz nach vorn</translation>
    </message>
    <message>
        <source>Bring Foreward</source>
        <translation>Weiter nach vorn</translation>
    </message>
    <message>
        <source>Bring above text</source>
        <translation>Vor den Text bringen</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>Ganz nach hinten</translation>
    </message>
    <message>
        <source>Send Backward</source>
        <translation>Weiter nach hinten</translation>
    </message>
    <message>
        <source>Send below text</source>
        <translation>Hinter den Text stellen</translation>
    </message>
    <message>
        <source>Get Element TagName</source>
        <translation>Tagnamen des Elements ermitteln</translation>
    </message>
    <message>
        <source>Delete Record</source>
        <translation>Datensatz löschen</translation>
    </message>
    <message>
        <source>The manual is not installed</source>
        <translation>Das Handbuch ist nicht installiert</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>Charset and line ends</source>
        <translation>Zeichensatz und Zeilenenden</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be opened: %2</source>
        <translation>Der Katalog %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>it is empty; put a copy of the catalogue in its place</source>
        <translation>die Datei ist leer; legen Sie eine Kopie des Katalogs an ihre Stelle</translation>
    </message>
    <message>
        <source>it is no database; a catalogue is a Jet 4 file of the catalogue program, or an SQLite file</source>
        <translation>die Datei ist keine Datenbank; ein Katalog ist eine Jet-4-Datei des Katalogprogramms oder eine SQLite-Datei</translation>
    </message>
    <message>
        <source>rows of %1 can be neither added nor deleted in %2</source>
        <translation>Zeilen von %1 können in %2 weder hinzugefügt noch gelöscht werden</translation>
    </message>
    <message>
        <source>the connection is open already</source>
        <translation>die Verbindung ist bereits geöffnet</translation>
    </message>
    <message>
        <source>The catalogue %1 is not whole: %2. What is left of it is shown, and nothing can be changed in it; put a whole copy in its place</source>
        <translation>Der Katalog %1 ist nicht vollständig: %2. Was davon übrig ist, wird angezeigt, und nichts darin kann geändert werden; ersetzen Sie ihn durch eine vollständige Kopie</translation>
    </message>
    <message>
        <source>the connection is not open</source>
        <translation>die Verbindung ist nicht geöffnet</translation>
    </message>
    <message>
        <source>the recordset is open already</source>
        <translation>die Datensatzgruppe ist bereits geöffnet</translation>
    </message>
    <message>
        <source>the recordset is not open</source>
        <translation>die Datensatzgruppe ist nicht geöffnet</translation>
    </message>
    <message>
        <source>past the last row</source>
        <translation>hinter der letzten Zeile</translation>
    </message>
    <message>
        <source>no such column</source>
        <translation>keine solche Spalte</translation>
    </message>
    <message>
        <source>the catalogue %1: %2</source>
        <translation>der Katalog %1: %2</translation>
    </message>
    <message>
        <source>the catalogue %1 is locked by %2; close it there, or wait until it has written, and try again</source>
        <translation>der Katalog %1 ist von %2 gesperrt; schließen Sie ihn dort oder warten Sie, bis er geschrieben ist, und versuchen Sie es erneut</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>ein anderes Programm</translation>
    </message>
    <message>
        <source>not one statement: %1</source>
        <translation>nicht genau eine Anweisung: %1</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be opened: its list of tables is damaged</source>
        <translation>Der Katalog %1 kann nicht geöffnet werden: Seine Tabellenliste ist beschädigt</translation>
    </message>
    <message>
        <source>the definition of the table %1 is damaged</source>
        <translation>die Definition der Tabelle %1 ist beschädigt</translation>
    </message>
    <message>
        <source>its last page is incomplete</source>
        <translation>die letzte Seite ist unvollständig</translation>
    </message>
    <message>
        <source>another program has changed the tables of %1; open it again</source>
        <translation>ein anderes Programm hat die Tabellen von %1 geändert; öffnen Sie den Katalog erneut</translation>
    </message>
    <message>
        <source>the catalogue %1 is open in another program and cannot be changed until that is closed: %2</source>
        <translation>der Katalog %1 ist in einem anderen Programm geöffnet und kann erst geändert werden, wenn er dort geschlossen ist: %2</translation>
    </message>
    <message>
        <source>the catalogue %1 cannot be changed: %2</source>
        <translation>der Katalog %1 kann nicht geändert werden: %2</translation>
    </message>
    <message>
        <source>another program has changed %1 meanwhile</source>
        <translation>ein anderes Programm hat %1 inzwischen geändert</translation>
    </message>
    <message>
        <source>it is in the ACE format (.accdb, Access 2007 or later), which cannot be opened; save it in the format of Access 2002-2003 (.mdb) with the program that made it</source>
        <translation>die Datei ist im ACE-Format (.accdb, Access 2007 oder neuer), das nicht geöffnet werden kann; speichern Sie sie mit dem Programm, das sie erstellt hat, im Format von Access 2002-2003 (.mdb)</translation>
    </message>
    <message>
        <source>it is no database</source>
        <translation>die Datei ist keine Datenbank</translation>
    </message>
    <message>
        <source>it is in the Jet 3 format (Access 95 or 97), which cannot be opened; convert it to the format of Access 2000 or 2002-2003 (Jet 4)</source>
        <translation>die Datei ist im Jet-3-Format (Access 95 oder 97), das nicht geöffnet werden kann; wandeln Sie sie in das Format von Access 2000 oder 2002-2003 (Jet 4) um</translation>
    </message>
    <message>
        <source>it is in version %1 of the Jet format, and only Jet 4 can be opened; convert it to the format of Access 2000 or 2002-2003</source>
        <translation>die Datei ist in Version %1 des Jet-Formats, und nur Jet 4 kann geöffnet werden; wandeln Sie sie in das Format von Access 2000 oder 2002-2003 um</translation>
    </message>
    <message>
        <source>it is protected by a password; remove the password with the program that set it</source>
        <translation>die Datei ist durch ein Passwort geschützt; entfernen Sie das Passwort mit dem Programm, das es gesetzt hat</translation>
    </message>
    <message>
        <source>it is open in another program: %1</source>
        <translation>die Datei ist in einem anderen Programm geöffnet: %1</translation>
    </message>
    <message>
        <source>a change of %1 was interrupted and has to be undone first, but %2</source>
        <translation>eine Änderung von %1 wurde unterbrochen und muss erst rückgängig gemacht werden, aber %2</translation>
    </message>
    <message>
        <source>another program is just writing %1</source>
        <translation>ein anderes Programm schreibt gerade %1</translation>
    </message>
    <message>
        <source>The journal beside %1 is damaged. The file is left as it is; the journal is kept as %2.</source>
        <translation>Das Journal neben %1 ist beschädigt. Die Datei bleibt, wie sie ist; das Journal wird als %2 aufbewahrt.</translation>
    </message>
    <message>
        <source>A change of %1 was interrupted, and another program has written the file since. It is left as it is; what it held before is kept in %2.</source>
        <translation>Eine Änderung von %1 wurde unterbrochen, und ein anderes Programm hat die Datei seitdem geschrieben. Sie bleibt, wie sie ist; ihr früherer Inhalt wird in %2 aufbewahrt.</translation>
    </message>
    <message>
        <source>A change of %1 was interrupted; the file has been put back as it was before.</source>
        <translation>Eine Änderung von %1 wurde unterbrochen; die Datei wurde in den vorigen Zustand zurückversetzt.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>another program (its lock file %1 cannot be read)</source>
        <translation>ein anderes Programm (seine Sperrdatei %1 kann nicht gelesen werden)</translation>
    </message>
    <message>
        <source>the value that would be replaced is damaged</source>
        <translation>der Wert, der ersetzt würde, ist beschädigt</translation>
    </message>
    <message>
        <source>the column %1 of the table %2 shares its place with another</source>
        <translation>die Spalte %1 der Tabelle %2 teilt sich ihren Platz mit einer anderen</translation>
    </message>
    <message>
        <source>the map of the pages with room of the table %1 is damaged</source>
        <translation>das Verzeichnis der Seiten der Tabelle %1, die noch Platz haben, ist beschädigt</translation>
    </message>
    <message>
        <source>the map of the free pages is damaged</source>
        <translation>das Verzeichnis der freien Seiten ist beschädigt</translation>
    </message>
    <message>
        <source>page %1 of the table %2 is marked as free</source>
        <translation>Seite %1 der Tabelle %2 ist als frei gekennzeichnet</translation>
    </message>
    <message>
        <source>rows of the table %1 that have moved are lost or doubled</source>
        <translation>verschobene Zeilen der Tabelle %1 sind verloren oder doppelt</translation>
    </message>
    <message>
        <source>the map of the pages of the table %1 is damaged</source>
        <translation>das Verzeichnis der Seiten der Tabelle %1 ist beschädigt</translation>
    </message>
    <message>
        <source>page %1 is no data page of the table %2, as it should be</source>
        <translation>Seite %1 ist keine Datenseite der Tabelle %2, wie sie es sein sollte</translation>
    </message>
    <message>
        <source>page %1 of the table %2 is damaged</source>
        <translation>Seite %1 der Tabelle %2 ist beschädigt</translation>
    </message>
    <message>
        <source>row %1 on page %2 of the table %3 is damaged</source>
        <translation>Zeile %1 auf Seite %2 der Tabelle %3 ist beschädigt</translation>
    </message>
    <message>
        <source>the table %1 should have %2 rows, but %3 are there</source>
        <translation>die Tabelle %1 sollte %2 Zeilen haben, aber es sind %3 da</translation>
    </message>
    <message>
        <source>the column %1 of the table %2 cannot be set: %3</source>
        <translation>die Spalte %1 der Tabelle %2 kann nicht gesetzt werden: %3</translation>
    </message>
    <message>
        <source>only text can be changed</source>
        <translation>nur Text kann geändert werden</translation>
    </message>
    <message>
        <source>it is of fixed length</source>
        <translation>die Spalte hat eine feste Länge</translation>
    </message>
    <message>
        <source>it is in an index</source>
        <translation>die Spalte ist in einem Index</translation>
    </message>
    <message>
        <source>the text has %1 characters, and %2 are the most</source>
        <translation>der Text hat %1 Zeichen, und höchstens %2 sind möglich</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>der Text enthält ein Zeichen, das nicht gespeichert werden kann</translation>
    </message>
    <message>
        <source>the text takes %1 bytes, and %2 are the most that are changed here</source>
        <translation>der Text belegt %1 Bytes, und hier werden höchstens %2 geändert</translation>
    </message>
    <message>
        <source>the row of the table %1 is no longer there</source>
        <translation>die Zeile der Tabelle %1 ist nicht mehr da</translation>
    </message>
    <message>
        <source>the row of the table %1 is damaged</source>
        <translation>die Zeile der Tabelle %1 ist beschädigt</translation>
    </message>
    <message>
        <source>a row of the table %1 would become too long</source>
        <translation>eine Zeile der Tabelle %1 würde zu lang</translation>
    </message>
    <message>
        <source>a map of the database&apos;s pages is damaged</source>
        <translation>ein Verzeichnis der Datenbankseiten ist beschädigt</translation>
    </message>
    <message>
        <source>it is marked as read-only</source>
        <translation>die Datei ist als schreibgeschützt gekennzeichnet</translation>
    </message>
    <message>
        <source>it cannot be written (%1)</source>
        <translation>die Datei kann nicht geschrieben werden (%1)</translation>
    </message>
    <message>
        <source>its folder cannot be written, where its safety copy would be kept (%1)</source>
        <translation>der Ordner, in dem die Sicherungskopie aufbewahrt würde, kann nicht beschrieben werden (%1)</translation>
    </message>
    <message>
        <source>another program removed %1</source>
        <translation>ein anderes Programm hat %1 entfernt</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Olive green</source>
        <translation>Olivgrün</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Dunkelgrün</translation>
    </message>
    <message>
        <source>Dark teal</source>
        <translation>Dunkles Blaugrün</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Dunkelblau</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>Indigoblau</translation>
    </message>
    <message>
        <source>Grey 80%</source>
        <translation>Grau 80 %</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Dunkelrot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Dunkelgelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Blue grey</source>
        <translation>Blaugrau</translation>
    </message>
    <message>
        <source>Grey 50%</source>
        <translation>Grau 50 %</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>Hellorange</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Limettengrün</translation>
    </message>
    <message>
        <source>Sea green</source>
        <translation>Meeresgrün</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>Aquamarin</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Grey 40%</source>
        <translation>Grau 40 %</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Pink</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Bright green</source>
        <translation>Leuchtend grün</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Pflaume</translation>
    </message>
    <message>
        <source>Grey 25%</source>
        <translation>Grau 25 %</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>Gelbbraun</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>Hellgelb</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Hellgrün</translation>
    </message>
    <message>
        <source>Light turquoise</source>
        <translation>Helltürkis</translation>
    </message>
    <message>
        <source>Pale blue</source>
        <translation>Blassblau</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavendel</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Drives of Other Computers</source>
        <translation>Laufwerke anderer Rechner</translation>
    </message>
    <message>
        <source>Catalogues and pages from other computers name drives. Each drive listed here stands for a folder of this computer. A drive that is removed stays in use until the program ends.</source>
        <translation>Kataloge und Seiten von anderen Rechnern nennen Laufwerke. Jedes hier aufgeführte Laufwerk steht für einen Ordner dieses Rechners. Ein entferntes Laufwerk bleibt in Gebrauch, bis das Programm beendet wird.</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Laufwerke</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Drive to add</source>
        <translation>Hinzuzufügendes Laufwerk</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Hinzufügen ...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>%1 (home)</source>
        <translation>%1 (persönlicher Ordner)</translation>
    </message>
    <message>
        <source>Show hidden folders</source>
        <translation>Versteckte Ordner anzeigen</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Type or paste a path</source>
        <translation>Pfad eingeben oder einfügen</translation>
    </message>
    <message>
        <source>Selected folder</source>
        <translation>Ausgewählter Ordner</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>E-mail :</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>Links ausrichten</translation>
    </message>
    <message>
        <source>Align Center</source>
        <translation>Zentriert ausrichten</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>Rechts ausrichten</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummerierung</translation>
    </message>
    <message>
        <source>Bullet</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>Outdent</source>
        <translation>Einzug verkleinern</translation>
    </message>
    <message>
        <source>Indent</source>
        <translation>Einzug vergrößern</translation>
    </message>
    <message>
        <source>No picture stands in this page&apos;s text</source>
        <translation>In den Text dieser Seite ist kein Bild eingebettet</translation>
    </message>
    <message>
        <source>One picture of this page is a file now</source>
        <translation>Ein Bild dieser Seite ist jetzt eine Datei</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of this page are files now</source>
        <translation>
            <numerusform>%n Bild dieser Seite ist jetzt eine Datei</numerusform>
            <numerusform>%n Bilder dieser Seite sind jetzt Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Up and Down bring earlier words</source>
        <translation>Pfeil auf und Pfeil ab bringen frühere Eingaben</translation>
    </message>
    <message>
        <source>Not a regular expression</source>
        <translation>Kein regulärer Ausdruck</translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>%n ersetzt</numerusform>
            <numerusform>%n ersetzt</numerusform>
        </translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n gefunden</numerusform>
            <numerusform>%n gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Voriges</translation>
    </message>
    <message>
        <source>Find Previous (Shift+F3)</source>
        <translation>Rückwärts suchen (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächstes</translation>
    </message>
    <message>
        <source>Find Next (F3)</source>
        <translation>Weitersuchen (F3)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close (Escape)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace this one and find the next</source>
        <translation>Diese Fundstelle ersetzen und weitersuchen</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Replace every one as one step of Undo</source>
        <translation>Alle ersetzen; „Rückgängig“ nimmt es in einem Schritt zurück</translation>
    </message>
    <message>
        <source>Match Case</source>
        <translation>Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Whole Words</source>
        <translation>Ganze Wörter</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>More options for finding</source>
        <translation>Weitere Optionen für die Suche</translation>
    </message>
    <message>
        <source>Ignore &amp;Accents</source>
        <translation>&amp;Akzente ignorieren</translation>
    </message>
    <message>
        <source>Regular &amp;Expression</source>
        <translation>&amp;Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>In the &amp;Selection Only</source>
        <translation>&amp;Nur in der Auswahl</translation>
    </message>
    <message>
        <source>Too many Pages are opened. Please close one or two File(s), and then try to open it.</source>
        <translation>Es sind zu viele Seiten geöffnet. Schließen Sie bitte eine oder zwei Dateien und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>%1 is open already</source>
        <translation>%1 ist bereits geöffnet</translation>
    </message>
    <message>
        <source>Changed file</source>
        <translation>Geänderte Datei</translation>
    </message>
    <message>
        <source>Keep Mine</source>
        <translation>Meine behalten</translation>
    </message>
    <message>
        <source>Go on with the page as it is here; saving it keeps the other version</source>
        <translation>Mit der Seite, wie sie hier ist, fortfahren; beim Speichern wird die andere Version aufbewahrt</translation>
    </message>
    <message>
        <source>Take Theirs</source>
        <translation>Andere übernehmen</translation>
    </message>
    <message>
        <source>Load the file again; Undo brings the page back as it is here</source>
        <translation>Datei neu laden; „Rückgängig“ holt die Seite zurück, wie sie hier ist</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Show both side by side as source, with the differences marked</source>
        <translation>Beide nebeneinander als Quelltext zeigen, mit markierten Unterschieden</translation>
    </message>
    <message>
        <source>%1 was changed by another program and is loaded again; Undo brings back what was here</source>
        <translation>%1 wurde von einem anderen Programm geändert und neu geladen; „Rückgängig“ holt zurück, was hier war</translation>
    </message>
    <message>
        <source>%1 was changed by another program, and has unsaved changes here.</source>
        <translation>%1 wurde von einem anderen Programm geändert und hat hier ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>%1 is no longer there: it was removed, renamed, or its disk has gone. The page stays open, and saving it writes the file anew</source>
        <translation>%1 ist nicht mehr da: Die Datei wurde gelöscht oder umbenannt, oder ihr Datenträger fehlt. Die Seite bleibt geöffnet; beim Speichern wird die Datei neu geschrieben</translation>
    </message>
    <message>
        <source>%1 is read-only now: Save As keeps your changes</source>
        <translation>%1 ist jetzt schreibgeschützt: „Speichern unter“ bewahrt Ihre Änderungen</translation>
    </message>
    <message>
        <source>%1 can be written now</source>
        <translation>%1 kann jetzt geschrieben werden</translation>
    </message>
    <message>
        <source>it is %1 now. The page stays as it is here</source>
        <translation>die Datei ist jetzt %1. Die Seite bleibt hier, wie sie ist</translation>
    </message>
    <message>
        <source>%1 is loaded again; Undo brings back what was here</source>
        <translation>%1 wurde neu geladen; „Rückgängig“ holt zurück, was hier war</translation>
    </message>
    <message>
        <source>Saving %1 keeps the other version among the replaced ones</source>
        <translation>Das Speichern von %1 bewahrt die andere Version bei den ersetzten auf</translation>
    </message>
    <message>
        <source>%1 was changed by another program and cannot be read: %2</source>
        <translation>%1 wurde von einem anderen Programm geändert und kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Please close the Code Editor first.</source>
        <translation>Schließen Sie bitte zuerst den Code-Editor.</translation>
    </message>
    <message>
        <source>Closing...</source>
        <translation>Wird geschlossen ...</translation>
    </message>
    <message>
        <source>You have made changes to this document. Do you want to save it?</source>
        <translation>Sie haben Änderungen an diesem Dokument vorgenommen. Möchten Sie es speichern?</translation>
    </message>
    <message>
        <source>Closing doucment...</source>
        <translation>Dokument wird geschlossen ...</translation>
    </message>
    <message>
        <source>%1 is %2. The file stays as it is</source>
        <translation>%1 ist %2. Die Datei bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>the page was closed while it was loaded</source>
        <translation>die Seite wurde während des Ladens geschlossen</translation>
    </message>
    <message>
        <source> (Read-Only)</source>
        <translation> (schreibgeschützt)</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Unbenannt %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>%1 konnte nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>%1 was written anew. What it held is kept as %2</source>
        <translation>%1 wurde neu geschrieben. Der frühere Inhalt wird als %2 aufbewahrt</translation>
    </message>
    <message>
        <source>%1 held another version. It was replaced and is kept as %2</source>
        <translation>%1 enthielt eine andere Version. Sie wurde ersetzt und als %2 aufbewahrt</translation>
    </message>
    <message>
        <source>%1 was no longer there. It was written anew</source>
        <translation>%1 war nicht mehr da. Die Datei wurde neu geschrieben</translation>
    </message>
    <message>
        <source>one link</source>
        <translation>einen Link</translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n Link</numerusform>
            <numerusform>%n Links</numerusform>
        </translation>
    </message>
    <message>
        <source>one picture</source>
        <translation>ein Bild</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>From the new folder %1 of this page would lead nowhere.</source>
        <translation>Der neue Ordner ließe %1 dieser Seite ins Leere führen.</translation>
    </message>
    <message>
        <source>Adapted, they lead to the files where these are now. Taken along, the pictures are copied beside the page, and the links are adapted.</source>
        <translation>Angepasst führen sie zu den Dateien an ihrem jetzigen Ort. Beim Mitnehmen werden die Bilder neben die Seite kopiert und die Links angepasst.</translation>
    </message>
    <message>
        <source>Adapt</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Belassen</translation>
    </message>
    <message>
        <source>Take Pictures Along</source>
        <translation>Bilder mitnehmen</translation>
    </message>
    <message>
        <source>Saved %1. One link in it leads to its file by its way from the page now</source>
        <translation>%1 gespeichert. Ein Link darin nennt seine Datei jetzt mit dem Pfad relativ zur Seite</translation>
    </message>
    <message numerus="yes">
        <source>Saved %1. %n links in it lead to files by their way from the page now</source>
        <translation>
            <numerusform>%1 gespeichert. %n Link darin nennt seine Datei jetzt mit dem Pfad relativ zur Seite</numerusform>
            <numerusform>%1 gespeichert. %n Links darin nennen ihre Dateien jetzt mit dem Pfad relativ zur Seite</numerusform>
        </translation>
    </message>
    <message>
        <source>HTML File *.htm|*.htm</source>
        <translation>HTML-Datei *.htm|*.htm</translation>
    </message>
    <message>
        <source>File saving error: %1</source>
        <translation>Fehler beim Speichern der Datei: %1</translation>
    </message>
    <message>
        <source>%1 is read-only. Do you want to save your changes under another name?</source>
        <translation>%1 ist schreibgeschützt. Möchten Sie Ihre Änderungen unter einem anderen Namen speichern?</translation>
    </message>
    <message>
        <source>The source of %1 cannot be kept as it was written, since %2.</source>
        <translation>Der Quelltext von %1 kann nicht so erhalten bleiben, wie er geschrieben war, denn %2.</translation>
    </message>
    <message>
        <source>Saved anew, the whole file is written as the page is shown now. What it holds is kept among the replaced versions.
%1</source>
        <translation>Beim Neuspeichern wird die ganze Datei so geschrieben, wie die Seite jetzt angezeigt wird. Ihr bisheriger Inhalt wird bei den ersetzten Versionen aufbewahrt.
%1</translation>
    </message>
    <message>
        <source>Save Anew</source>
        <translation>Neu speichern</translation>
    </message>
    <message>
        <source>Save Under Another Name</source>
        <translation>Unter anderem Namen speichern</translation>
    </message>
    <message>
        <source>The changes of %1 could not be kept for a recovery: %2</source>
        <translation>Die Änderungen von %1 konnten nicht für eine Wiederherstellung aufbewahrt werden: %2</translation>
    </message>
    <message>
        <source>The page&apos;s HTML could not be read: %1</source>
        <translation>Das HTML der Seite konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The picture could not be put into the site: %1</source>
        <translation>Das Bild konnte nicht in die Website übernommen werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures are in the site now.</source>
        <translation>
            <numerusform>%n Bild ist jetzt in der Website.</numerusform>
            <numerusform>%n Bilder sind jetzt in der Website.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures lie outside the site.</source>
        <translation>
            <numerusform>%n Bild liegt außerhalb der Website.</numerusform>
            <numerusform>%n Bilder liegen außerhalb der Website.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were put in.</source>
        <translation>
            <numerusform>%n Bild wurde eingefügt.</numerusform>
            <numerusform>%n Bilder wurden eingefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was copied into the site: %2.</source>
        <translation>%1 wurde in die Website kopiert: %2.</translation>
    </message>
    <message>
        <source>%1 lies outside the site.</source>
        <translation>%1 liegt außerhalb der Website.</translation>
    </message>
    <message>
        <source>%1 was put in.</source>
        <translation>%1 wurde eingefügt.</translation>
    </message>
    <message>
        <source>A picture could not be put into the site: %1</source>
        <translation>Ein Bild konnte nicht in die Website übernommen werden: %1</translation>
    </message>
    <message>
        <source>Link to : </source>
        <translation>Link zu: </translation>
    </message>
    <message>
        <source>The unsaved changes of %1 cannot be kept for the next start. They are lost if the program ends now.

End the program all the same?</source>
        <translation>Die ungespeicherten Änderungen von %1 können nicht für den nächsten Start aufbewahrt werden. Sie gehen verloren, wenn das Programm jetzt beendet wird.

Programm trotzdem beenden?</translation>
    </message>
    <message>
        <source>Picture put in</source>
        <translation>Bild eingefügt</translation>
    </message>
    <message>
        <source>Copy it into the site, now and from now on</source>
        <translation>In die Website kopieren, jetzt und künftig</translation>
    </message>
    <message>
        <source>Link Where It Lies</source>
        <translation>Am Ablageort verlinken</translation>
    </message>
    <message>
        <source>Name the file where it lies, now and from now on</source>
        <translation>Datei an ihrem Ablageort nennen, jetzt und künftig</translation>
    </message>
    <message>
        <source>Take it out of the page again</source>
        <translation>Wieder aus der Seite herausnehmen</translation>
    </message>
    <message>
        <source>Put this bar away</source>
        <translation>Diese Leiste ausblenden</translation>
    </message>
    <message>
        <source>Picture larger than shown</source>
        <translation>Bild größer als angezeigt</translation>
    </message>
    <message>
        <source>Fit File to Size</source>
        <translation>Datei an Größe anpassen</translation>
    </message>
    <message>
        <source>Make the file as large as the picture is shown; the original is kept</source>
        <translation>Datei so groß machen, wie das Bild angezeigt wird; das Original wird aufbewahrt</translation>
    </message>
    <message>
        <source>Fit for Dense Screens</source>
        <translation>Für dichte Bildschirme anpassen</translation>
    </message>
    <message>
        <source>Make the file twice as large as the picture is shown</source>
        <translation>Datei doppelt so groß machen, wie das Bild angezeigt wird</translation>
    </message>
    <message>
        <source>Turn Left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Turn the file&apos;s picture left</source>
        <translation>Bild der Datei nach links drehen</translation>
    </message>
    <message>
        <source>Turn Right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Turn the file&apos;s picture right</source>
        <translation>Bild der Datei nach rechts drehen</translation>
    </message>
    <message>
        <source>Put the file back as it was</source>
        <translation>Datei in den vorigen Zustand zurückversetzen</translation>
    </message>
    <message>
        <source>%1 has %2 × %3 pixels and is shown at %4 × %5.</source>
        <translation>%1 hat %2 × %3 Pixel und wird mit %4 × %5 angezeigt.</translation>
    </message>
    <message>
        <source>The file stays as it is: %1</source>
        <translation>Die Datei bleibt, wie sie ist: %1</translation>
    </message>
    <message>
        <source>%1 is changed. It is kept as it was as %2.</source>
        <translation>%1 wurde geändert. Die vorige Fassung wird als %2 aufbewahrt.</translation>
    </message>
    <message>
        <source>%1 is as it was.</source>
        <translation>%1 ist wieder wie zuvor.</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Go to Line Number</source>
        <translation>Gehe zu Zeilennummer</translation>
    </message>
    <message>
        <source>Mark All Found</source>
        <translation>Alle Treffer markieren</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Forms</source>
        <translation>Formulare</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Skripte</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>Advance</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Aus&amp;schneiden</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>%1: %2 in the source</source>
        <translation>%1: %2 im Quelltext</translation>
    </message>
    <message>
        <source>Source Tools</source>
        <translation>Quelltextwerkzeuge</translation>
    </message>
    <message>
        <source>Apply to Document</source>
        <translation>Auf Dokument anwenden</translation>
    </message>
    <message>
        <source>Write the source back into the page (Ctrl+Return)</source>
        <translation>Quelltext in die Seite zurückschreiben (Strg+Eingabetaste)</translation>
    </message>
    <message>
        <source>Element Groups</source>
        <translation>Elementgruppen</translation>
    </message>
    <message>
        <source>HTML source</source>
        <translation>HTML-Quelltext</translation>
    </message>
    <message>
        <source>&amp;Wrap Lines</source>
        <translation>&amp;Zeilen umbrechen</translation>
    </message>
    <message>
        <source>How the lines of the source end</source>
        <translation>Wie die Zeilen des Quelltextes enden</translation>
    </message>
    <message>
        <source>%1: here and on the disk</source>
        <translation>%1: hier und auf dem Datenträger</translation>
    </message>
    <message>
        <source>Here, not saved</source>
        <translation>Hier, nicht gespeichert</translation>
    </message>
    <message>
        <source>On the disk</source>
        <translation>Auf dem Datenträger</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>Zurück zur vorigen Seite</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Forward again</source>
        <translation>Wieder vorwärts</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Load the page again</source>
        <translation>Seite neu laden</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>Laden anhalten</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>The page&apos;s source is shown again. The source that was typed and not applied comes back with Undo (Ctrl+Z)</source>
        <translation>Der Quelltext der Seite wird wieder angezeigt. Der eingegebene, nicht angewendete Quelltext kommt mit „Rückgängig“ (Strg+Z) zurück</translation>
    </message>
    <message>
        <source>Line %1, Column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Error Number: %1</source>
        <translation>Fehlernummer: %1</translation>
    </message>
    <message>
        <source>%1, HTML source</source>
        <translation>%1, HTML-Quelltext</translation>
    </message>
    <message>
        <source>Do you want to apply the changes on this Document?</source>
        <translation>Möchten Sie die Änderungen auf dieses Dokument anwenden?</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Design Mode</source>
        <translation>Entwurfsmodus</translation>
    </message>
    <message>
        <source>View HTML</source>
        <translation>HTML anzeigen</translation>
    </message>
    <message>
        <source>Edit HTML</source>
        <translation>HTML bearbeiten</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
    <message>
        <source>Save As keeps your changes</source>
        <translation>„Speichern unter“ bewahrt Ihre Änderungen</translation>
    </message>
    <message>
        <source>This file is read-only: Save As keeps your changes</source>
        <translation>Diese Datei ist schreibgeschützt: „Speichern unter“ bewahrt Ihre Änderungen</translation>
    </message>
    <message>
        <source>The page does not answer. Press Escape to stop it and go on with its text as last seen.</source>
        <translation>Die Seite antwortet nicht. Drücken Sie Esc, um sie anzuhalten und mit ihrem zuletzt gesehenen Text fortzufahren.</translation>
    </message>
    <message>
        <source>The page takes long to show. Press Escape to stop loading it.</source>
        <translation>Das Anzeigen der Seite dauert lange. Drücken Sie Esc, um das Laden anzuhalten.</translation>
    </message>
    <message>
        <source>The page could not be displayed. Its text is kept: save the page and open it again.</source>
        <translation>Die Seite konnte nicht angezeigt werden. Ihr Text ist erhalten: Speichern Sie die Seite und öffnen Sie sie erneut.</translation>
    </message>
    <message>
        <source>The page&apos;s display has been restored.</source>
        <translation>Die Anzeige der Seite wurde wiederhergestellt.</translation>
    </message>
    <message>
        <source>The page is a frameset, which has no text to edit here: use Edit HTML to change it.</source>
        <translation>Die Seite ist ein Frameset und hat keinen Text, der hier zu bearbeiten wäre: Ändern Sie sie mit „HTML bearbeiten“.</translation>
    </message>
    <message>
        <source>The page&apos;s display keeps stopping. Its text is kept: save the page and open it again.</source>
        <translation>Die Anzeige der Seite bricht immer wieder ab. Ihr Text ist erhalten: Speichern Sie die Seite und öffnen Sie sie erneut.</translation>
    </message>
    <message>
        <source>The page&apos;s display stopped and is being restored.</source>
        <translation>Die Anzeige der Seite ist abgebrochen und wird wiederhergestellt.</translation>
    </message>
    <message>
        <source>The page takes long to show. Press Escape to stop it; the page is as before then.</source>
        <translation>Das Anzeigen der Seite dauert lange. Drücken Sie Esc, um es anzuhalten; die Seite ist dann wie zuvor.</translation>
    </message>
    <message>
        <source>The page takes long to save. Press Escape to have it written anew as a whole.</source>
        <translation>Das Speichern der Seite dauert lange. Drücken Sie Esc, damit sie als Ganzes neu geschrieben wird.</translation>
    </message>
    <message>
        <source>The page&apos;s source could not be kept as it was written: the whole page is written anew</source>
        <translation>Der Quelltext der Seite konnte nicht so erhalten bleiben, wie er geschrieben war: Die ganze Seite wird neu geschrieben</translation>
    </message>
    <message>
        <source>, since %1.</source>
        <translation>, denn %1.</translation>
    </message>
    <message>
        <source>That is too large to be put into a page.</source>
        <translation>Das ist zu groß, um in eine Seite eingefügt zu werden.</translation>
    </message>
    <message>
        <source>One picture stays on the web.</source>
        <translation>Ein Bild bleibt im Web.</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures stay on the web.</source>
        <translation>
            <numerusform>%n Bild bleibt im Web.</numerusform>
            <numerusform>%n Bilder bleiben im Web.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pasting, %1 %. Escape stops it.</source>
        <translation>Einfügen, %1 %. Esc bricht es ab.</translation>
    </message>
    <message>
        <source>The paste was stopped. Nothing has changed.</source>
        <translation>Das Einfügen wurde abgebrochen. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (Prozess %2)</translation>
    </message>
    <message>
        <source>Video Files (*.mp4, *.webm, *.ogv)|*.mp4;*.m4v;*.webm;*.ogv;*.mov|All Files *.*|*.*</source>
        <translation>Videodateien (*.mp4, *.webm, *.ogv)|*.mp4;*.m4v;*.webm;*.ogv;*.mov|Alle Dateien *.*|*.*</translation>
    </message>
    <message>
        <source>Image Files (*.jpg, *.png, *.gif, *.webp, *.svg)|*.jpg;*.jpeg;*.png;*.gif;*.webp;*.svg|All Files *.*|*.*</source>
        <translation>Bilddateien (*.jpg, *.png, *.gif, *.webp, *.svg)|*.jpg;*.jpeg;*.png;*.gif;*.webp;*.svg|Alle Dateien *.*|*.*</translation>
    </message>
    <message>
        <source>Browse for a picture of low resolution (Alt+W)</source>
        <translation>Nach einem Bild geringer Auflösung suchen (Alt+W)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
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
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Texttop</source>
        <translation>Textoberkante (texttop)</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Absmiddle</source>
        <translation>Absolute Mitte (absmiddle)</translation>
    </message>
    <message>
        <source>Baseline</source>
        <translation>Grundlinie (baseline)</translation>
    </message>
    <message>
        <source>Botton</source>
        <translation>Unten (bottom)</translation>
    </message>
    <message>
        <source>Absbottom</source>
        <translation>Absolut unten (absbottom)</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Alignment:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>Border thickness:</source>
        <translation>Rahmenstärke:</translation>
    </message>
    <message>
        <source>Horizontal Spacing:</source>
        <translation>Horizontaler Abstand:</translation>
    </message>
    <message>
        <source>Vertical Spacing:</source>
        <translation>Vertikaler Abstand:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Use &amp;Specific Size</source>
        <translation>Bestimmte &amp;Größe verwenden</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Element Information...</source>
        <translation>Elementinformationen ...</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Textmarke</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Image Source:</source>
        <translation>Bildquelle:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen ...</translation>
    </message>
    <message>
        <source>Alternative</source>
        <translation>Alternative</translation>
    </message>
    <message>
        <source>Low Resolution:</source>
        <translation>Geringe Auflösung:</translation>
    </message>
    <message>
        <source>Alternative Text:</source>
        <translation>Alternativtext:</translation>
    </message>
    <message>
        <source>Browse from your computer and Link to a file</source>
        <translation>Auf diesem Rechner suchen und auf eine Datei verweisen</translation>
    </message>
    <message>
        <source>&amp;E-mail...</source>
        <translation>&amp;E-Mail ...</translation>
    </message>
    <message>
        <source>Link to a E-mail Address</source>
        <translation>Link zu einer E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Anchor Element Href:</source>
        <translation>Linkadresse (href):</translation>
    </message>
    <message>
        <source>Target Frame:</source>
        <translation>Zielframe:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>Special Links:</source>
        <translation>Besondere Links:</translation>
    </message>
    <message>
        <source>Link to a Bookmark (Target):</source>
        <translation>Link zu einer Textmarke (Ziel):</translation>
    </message>
    <message>
        <source>Bookmark Name: </source>
        <translation>Name der Textmarke: </translation>
    </message>
    <message>
        <source>Other bookmarks in this page:</source>
        <translation>Andere Textmarken auf dieser Seite:</translation>
    </message>
    <message>
        <source>Video Source:</source>
        <translation>Videoquelle:</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>D&amp;urchsuchen ...</translation>
    </message>
    <message>
        <source>Browse for a poster</source>
        <translation>Nach einem Poster suchen</translation>
    </message>
    <message>
        <source>&amp;Poster:</source>
        <translation>&amp;Poster:</translation>
    </message>
    <message>
        <source>&amp;Show controls in Browser</source>
        <translation>&amp;Steuerelemente im Browser anzeigen</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>&amp;Loop:</source>
        <translation>Wieder&amp;holungen:</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Endlos</translation>
    </message>
    <message>
        <source>Loop &amp;delay:</source>
        <translation>&amp;Verzögerung:</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>On file open</source>
        <translation>Beim Öffnen der Datei</translation>
    </message>
    <message>
        <source>On mouse over</source>
        <translation>Bei Mausberührung</translation>
    </message>
    <message>
        <source>Start on &amp;Mouse Over</source>
        <translation>Bei &amp;Mausberührung starten</translation>
    </message>
    <message>
        <source>%1 cannot be loaded as a picture: %2</source>
        <translation>%1 kann nicht als Bild geladen werden: %2</translation>
    </message>
    <message>
        <source>The table is too large: with %1 columns a page takes %2 rows at most.</source>
        <translation>Die Tabelle ist zu groß: Bei %1 Spalten nimmt eine Seite höchstens %2 Zeilen auf.</translation>
    </message>
    <message>
        <source>Table Editor</source>
        <translation>Tabelleneditor</translation>
    </message>
    <message>
        <source># Of Columns:</source>
        <translation>Anzahl Spalten:</translation>
    </message>
    <message>
        <source># Of Rows:</source>
        <translation>Anzahl Zeilen:</translation>
    </message>
    <message>
        <source>Align:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>Cell Spacing:</source>
        <translation>Zellenabstand:</translation>
    </message>
    <message>
        <source>Cell Padding:</source>
        <translation>Zelleninnenabstand:</translation>
    </message>
    <message>
        <source>Table Setup:</source>
        <translation>Tabelle einrichten:</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>All Image Files (*.jpg, *.gif, *.bmp, *.png, *.tif, *.wmf, *.tga)|*.jpg;*.jpeg;*.gif;*.bmp;*.png;*.tif;*.tiff;*.wmf;*.tga;*.ras;*.pcd;*.pcx;*.eps</source>
        <translation>Alle Bilddateien (*.jpg, *.gif, *.bmp, *.png, *.tif, *.wmf, *.tga)|*.jpg;*.jpeg;*.gif;*.bmp;*.png;*.tif;*.tiff;*.wmf;*.tga;*.ras;*.pcd;*.pcx;*.eps</translation>
    </message>
    <message>
        <source>All Files *.*|*.*</source>
        <translation>Alle Dateien *.*|*.*</translation>
    </message>
    <message>
        <source>%1 cannot be shown as a picture.</source>
        <translation>%1 kann nicht als Bild angezeigt werden.</translation>
    </message>
    <message>
        <source>Too large for a preview</source>
        <translation>Zu groß für eine Vorschau</translation>
    </message>
    <message>
        <source>Please enter the E-mail Address.</source>
        <translation>Geben Sie bitte die E-Mail-Adresse ein.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; cannot be written in the page&apos;s charset %2 inside a script, style sheet, comment, name or server code.</source>
        <translation>Das Zeichen „%1“ kann im Zeichensatz %2 der Seite nicht innerhalb von Skript, Stylesheet, Kommentar, Namen oder Servercode geschrieben werden.</translation>
    </message>
    <message>
        <source>no smaller change of its source gives the page as it is shown now</source>
        <translation>keine kleinere Änderung des Quelltextes ergibt die Seite, wie sie jetzt angezeigt wird</translation>
    </message>
    <message>
        <source>the check whether a smaller change is enough did not answer</source>
        <translation>die Prüfung, ob eine kleinere Änderung genügt, hat nicht geantwortet</translation>
    </message>
    <message>
        <source>bytes that are no text in %1 stand beside what was changed</source>
        <translation>neben der Änderung stehen Bytes, die in %1 kein Text sind</translation>
    </message>
    <message>
        <source>The page would have to be written anew, since %1, and that would lose &quot;%2&quot;, which has no place in the page as it is shown. Change the page&apos;s source instead.</source>
        <translation>Die Seite müsste neu geschrieben werden, denn %1. Dabei ginge „%2“ verloren, das in der Seite, wie sie angezeigt wird, keinen Platz hat. Ändern Sie stattdessen den Quelltext der Seite.</translation>
    </message>
    <message>
        <source>%1, which is none of the charsets that pages may have</source>
        <translation>%1, was keiner der Zeichensätze ist, die Seiten haben dürfen</translation>
    </message>
    <message>
        <source>a binary file, which is no text</source>
        <translation>eine Binärdatei, also kein Text</translation>
    </message>
    <message>
        <source>this kind of picture cannot be changed</source>
        <translation>diese Art von Bild kann nicht geändert werden</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the picture cannot be coded: %1</source>
        <translation>das Bild kann nicht kodiert werden: %1</translation>
    </message>
    <message>
        <source>It was a %1 file, which browsers do not show, and is %2 now.</source>
        <translation>Es war eine %1-Datei, die Browser nicht anzeigen, und ist jetzt %2.</translation>
    </message>
    <message>
        <source>It holds scripts, which browsers do not run in a picture.</source>
        <translation>Es enthält Skripte, die Browser in einem Bild nicht ausführen.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not map a drive; write lines like &quot;C: /home/me/windows&quot;</source>
        <translation>„%1“ ordnet kein Laufwerk zu; schreiben Sie Zeilen wie „C: /home/me/windows“</translation>
    </message>
    <message>
        <source>drive %1: has a folder already</source>
        <translation>Laufwerk %1: hat bereits einen Ordner</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Formatted</source>
        <translation>Formatiert</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Heading 1</source>
        <translation>Überschrift 1</translation>
    </message>
    <message>
        <source>Heading 2</source>
        <translation>Überschrift 2</translation>
    </message>
    <message>
        <source>Heading 3</source>
        <translation>Überschrift 3</translation>
    </message>
    <message>
        <source>Heading 4</source>
        <translation>Überschrift 4</translation>
    </message>
    <message>
        <source>Heading 5</source>
        <translation>Überschrift 5</translation>
    </message>
    <message>
        <source>Heading 6</source>
        <translation>Überschrift 6</translation>
    </message>
    <message>
        <source>Numbered List</source>
        <translation>Nummerierte Liste</translation>
    </message>
    <message>
        <source>Bulleted List</source>
        <translation>Aufzählungsliste</translation>
    </message>
    <message>
        <source>Directory List</source>
        <translation>Verzeichnisliste</translation>
    </message>
    <message>
        <source>Menu List</source>
        <translation>Menüliste</translation>
    </message>
    <message>
        <source>Definition Term</source>
        <translation>Definitionsbegriff</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definition</translation>
    </message>
    <message>
        <source>Paragraph</source>
        <translation>Absatz</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Ungültiger Prozeduraufruf oder ungültiges Argument</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Typen unverträglich</translation>
    </message>
    <message>
        <source>Out of string space</source>
        <translation>Nicht genügend Zeichenfolgenspeicher</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Geräte-E/A-Fehler</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Eingabe hinter Dateiende</translation>
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
        <source>Object variable or With block variable not set</source>
        <translation>Objektvariable oder With-Blockvariable nicht festgelegt</translation>
    </message>
    <message>
        <source>Cancel was selected</source>
        <translation>„Abbrechen“ wurde gewählt</translation>
    </message>
    <message>
        <source>Index out of bounds</source>
        <translation>Index außerhalb der Grenzen</translation>
    </message>
    <message>
        <source>Element not found</source>
        <translation>Element nicht gefunden</translation>
    </message>
    <message>
        <source>Incorrect control type passed to &apos;Attach&apos; parameter - must be a control with a hWnd property.</source>
        <translation>Falscher Steuerelementtyp im Parameter „Attach“ übergeben: Es muss ein Steuerelement mit der Eigenschaft hWnd sein.</translation>
    </message>
    <message>
        <source>Error %1 in %2: %3</source>
        <translation>Fehler %1 in %2: %3</translation>
    </message>
    <message>
        <source>Application-defined or object-defined error</source>
        <translation>Anwendungs- oder objektdefinierter Fehler</translation>
    </message>
    <message>
        <source>Web Site Project Manager</source>
        <translation>Website-Projektverwaltung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Select the Project and open it.</source>
        <translation>Wählen Sie das Projekt aus und öffnen Sie es.</translation>
    </message>
    <message>
        <source>ProjectId</source>
        <translation>Projekt-ID</translation>
    </message>
    <message>
        <source>ProjectName</source>
        <translation>Projektname</translation>
    </message>
    <message>
        <source>DateModified</source>
        <translation>Geändert am</translation>
    </message>
    <message>
        <source>PageId</source>
        <translation>Seiten-ID</translation>
    </message>
    <message>
        <source>PageName</source>
        <translation>Seitenname</translation>
    </message>
    <message>
        <source>Web Pages</source>
        <translation>Webseiten</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Tab 4</source>
        <translation>Registerkarte 4</translation>
    </message>
    <message>
        <source>This catalogue comes from another computer, where the site lies in %1. That computer no longer finds the site if %2 is written into the catalogue.

Yes: name the folder here that stands for drive %3:. No: write %2 all the same.</source>
        <translation>Dieser Katalog stammt von einem anderen Rechner, auf dem die Website in %1 liegt. Jener Rechner findet die Website nicht mehr, wenn %2 in den Katalog geschrieben wird.

Ja: den Ordner hier nennen, der für Laufwerk %3: steht. Nein: trotzdem %2 schreiben.</translation>
    </message>
    <message>
        <source>Web path not found please provide the path</source>
        <translation>Der Webpfad wurde nicht gefunden, geben Sie bitte den Pfad an</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>Dasselbe</translation>
    </message>
    <message>
        <source>A new one</source>
        <translation>Ein neues</translation>
    </message>
    <message>
        <source>All of the window</source>
        <translation>Das ganze Fenster</translation>
    </message>
    <message>
        <source>The frame above</source>
        <translation>Der übergeordnete Frame</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Von links nach rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>When it comes into sight</source>
        <translation>Wenn es in Sicht kommt</translation>
    </message>
    <message>
        <source>Pixels, or a number with % or another unit</source>
        <translation>Pixel oder eine Zahl mit % oder einer anderen Einheit</translation>
    </message>
    <message>
        <source>#RRGGBB, or a colour&apos;s name</source>
        <translation>#RRGGBB oder der Name einer Farbe</translation>
    </message>
    <message>
        <source>C&amp;lass:</source>
        <translation>&amp;Klasse:</translation>
    </message>
    <message>
        <source>Names of rules of the page&apos;s style sheets, parted by blanks</source>
        <translation>Namen von Regeln der Stylesheets der Seite, durch Leerzeichen getrennt</translation>
    </message>
    <message>
        <source>&amp;Id:</source>
        <translation>&amp;ID:</translation>
    </message>
    <message>
        <source>A name of its own, for links and style sheets</source>
        <translation>Ein eigener Name, für Links und Stylesheets</translation>
    </message>
    <message>
        <source>Such as en, de or zh-Hant</source>
        <translation>Etwa en, de oder zh-Hant</translation>
    </message>
    <message>
        <source>Direct&amp;ion:</source>
        <translation>Schreib&amp;richtung:</translation>
    </message>
    <message>
        <source>D&amp;escription:</source>
        <translation>B&amp;eschreibung:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Autor:</translation>
    </message>
    <message>
        <source>&amp;Viewport:</source>
        <translation>&amp;Viewport:</translation>
    </message>
    <message>
        <source>How phones show it: width=device-width, initial-scale=1</source>
        <translation>Wie Telefone sie anzeigen: width=device-width, initial-scale=1</translation>
    </message>
    <message>
        <source>Te&amp;xt colour:</source>
        <translation>Te&amp;xtfarbe:</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>&amp;Hintergrund:</translation>
    </message>
    <message>
        <source>Background &amp;picture:</source>
        <translation>Hintergrund&amp;bild:</translation>
    </message>
    <message>
        <source>Lin&amp;k colour:</source>
        <translation>&amp;Linkfarbe:</translation>
    </message>
    <message>
        <source>Visited link col&amp;our:</source>
        <translation>&amp;Farbe besuchter Links:</translation>
    </message>
    <message>
        <source>Active link colo&amp;ur:</source>
        <translation>Farbe a&amp;ktiver Links:</translation>
    </message>
    <message>
        <source>Rendering:</source>
        <translation>Darstellungsmodus:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>Read out, and shown where the picture is not</source>
        <translation>Wird vorgelesen und angezeigt, wo das Bild fehlt</translation>
    </message>
    <message>
        <source>It only ador&amp;ns</source>
        <translation>Nur &amp;schmückend</translation>
    </message>
    <message>
        <source>Nothing is read out for it</source>
        <translation>Dazu wird nichts vorgelesen</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>B&amp;reite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Border:</source>
        <translation>Rah&amp;men:</translation>
    </message>
    <message>
        <source>L&amp;oading:</source>
        <translation>&amp;Laden:</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Zeilen:</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>Spalten:</translation>
    </message>
    <message>
        <source>C&amp;aption:</source>
        <translation>&amp;Beschriftung:</translation>
    </message>
    <message>
        <source>&amp;Headings in the first row</source>
        <translation>Überschriften in der ersten &amp;Zeile</translation>
    </message>
    <message>
        <source>Headings in the &amp;first column</source>
        <translation>Überschriften in der ersten &amp;Spalte</translation>
    </message>
    <message>
        <source>Ali&amp;gn:</source>
        <translation>&amp;Ausrichtung:</translation>
    </message>
    <message>
        <source>Cell &amp;padding:</source>
        <translation>Zelleni&amp;nnenabstand:</translation>
    </message>
    <message>
        <source>Cell &amp;spacing:</source>
        <translation>Z&amp;ellenabstand:</translation>
    </message>
    <message>
        <source>Bac&amp;kground:</source>
        <translation>Hinter&amp;grund:</translation>
    </message>
    <message>
        <source>Rows that it takes:</source>
        <translation>Belegte Zeilen:</translation>
    </message>
    <message>
        <source>Columns that it takes:</source>
        <translation>Belegte Spalten:</translation>
    </message>
    <message>
        <source>&amp;Heading</source>
        <translation>Über&amp;schrift</translation>
    </message>
    <message>
        <source>H&amp;eight:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Vertically:</source>
        <translation>&amp;Vertikal:</translation>
    </message>
    <message>
        <source>&amp;No line breaks</source>
        <translation>Kein &amp;Zeilenumbruch</translation>
    </message>
    <message>
        <source>&amp;Window:</source>
        <translation>&amp;Fenster:</translation>
    </message>
    <message>
        <source>&amp;Relation:</source>
        <translation>&amp;Beziehung:</translation>
    </message>
    <message>
        <source>Such as nofollow or noopener</source>
        <translation>Etwa nofollow oder noopener</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>Schrift&amp;art:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>G&amp;röße:</translation>
    </message>
    <message>
        <source>Points, or a number with px</source>
        <translation>Punkt oder eine Zahl mit px</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>F&amp;ett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no length. Write a number, or one with a unit: 120, 50%, 8em.</source>
        <translation>„%1“ ist keine Länge. Schreiben Sie eine Zahl oder eine mit Einheit: 120, 50%, 8em.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour. Write #RRGGBB or a name: #C00000, navy.</source>
        <translation>„%1“ ist keine Farbe. Schreiben Sie #RRGGBB oder einen Namen: #C00000, navy.</translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation>An&amp;wenden</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>it is not a file.</source>
        <translation>es ist keine Datei.</translation>
    </message>
    <message>
        <source>it is another user&apos;s.</source>
        <translation>die Datei gehört einem anderen Benutzer.</translation>
    </message>
    <message>
        <source>it is too large.</source>
        <translation>die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>its beginning is damaged, or another version of the program wrote it.</source>
        <translation>der Anfang ist beschädigt, oder eine andere Version des Programms hat die Datei geschrieben.</translation>
    </message>
    <message>
        <source>A page that cannot be read</source>
        <translation>Eine Seite, die nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>geändert %1</translation>
    </message>
    <message>
        <source>kept at exit</source>
        <translation>beim Beenden aufbewahrt</translation>
    </message>
    <message>
        <source>never saved</source>
        <translation>nie gespeichert</translation>
    </message>
    <message>
        <source>the file is gone</source>
        <translation>die Datei ist nicht mehr da</translation>
    </message>
    <message>
        <source>the file on disk is newer</source>
        <translation>die Datei auf dem Datenträger ist neuer</translation>
    </message>
    <message>
        <source>HTML source not applied</source>
        <translation>HTML-Quelltext nicht angewendet</translation>
    </message>
    <message>
        <source>These pages were kept at exit with their unsaved changes (Alt+G leads to them):</source>
        <translation>Diese Seiten wurden beim Beenden mit ihren ungespeicherten Änderungen aufbewahrt (Alt+G führt zu ihnen):</translation>
    </message>
    <message>
        <source>These pages were not saved when the program ended (Alt+G leads to them):</source>
        <translation>Diese Seiten waren nicht gespeichert, als das Programm endete (Alt+G führt zu ihnen):</translation>
    </message>
    <message>
        <source>Recovered pages</source>
        <translation>Wiederherstellbare Seiten</translation>
    </message>
    <message>
        <source>Restore All</source>
        <translation>Alle wiederherstellen</translation>
    </message>
    <message>
        <source>Restore all pages</source>
        <translation>Alle Seiten wiederherstellen</translation>
    </message>
    <message>
        <source>Open all pages with their unsaved changes</source>
        <translation>Alle Seiten mit ihren ungespeicherten Änderungen öffnen</translation>
    </message>
    <message>
        <source>Discard All</source>
        <translation>Alle verwerfen</translation>
    </message>
    <message>
        <source>Discard all pages</source>
        <translation>Alle Seiten verwerfen</translation>
    </message>
    <message>
        <source>Give the unsaved changes of all pages up, after a question</source>
        <translation>Ungespeicherte Änderungen aller Seiten nach Rückfrage aufgeben</translation>
    </message>
    <message>
        <source>Recovery is off, unsaved changes cannot be kept: %1</source>
        <translation>Die Wiederherstellung ist aus, ungespeicherte Änderungen können nicht aufbewahrt werden: %1</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Open the page with its unsaved changes</source>
        <translation>Seite mit ihren ungespeicherten Änderungen öffnen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Look at the page in the preview</source>
        <translation>Seite in der Vorschau ansehen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Give the unsaved changes up</source>
        <translation>Ungespeicherte Änderungen aufgeben</translation>
    </message>
    <message>
        <source>The journal of %1 is damaged: its last changes are missing</source>
        <translation>Das Journal von %1 ist beschädigt: Die letzten Änderungen fehlen</translation>
    </message>
    <message>
        <source>%1 is restored already, and stays here until its changes can be kept for a recovery</source>
        <translation>%1 ist bereits wiederhergestellt und bleibt hier, bis die Änderungen für eine Wiederherstellung aufbewahrt werden können</translation>
    </message>
    <message>
        <source>%1 is open already. Close it, then restore what was kept</source>
        <translation>%1 ist bereits geöffnet. Schließen Sie die Seite und stellen Sie dann das Aufbewahrte wieder her</translation>
    </message>
    <message>
        <source>%1 stays here: %2 pages are open, which is the most. Close one, then restore it</source>
        <translation>%1 bleibt hier: Mit %2 geöffneten Seiten ist die Höchstzahl erreicht. Schließen Sie eine und stellen Sie diese dann wieder her</translation>
    </message>
    <message>
        <source>%1 more stay here: %2 pages are open, which is the most</source>
        <translation>%1 weitere bleiben hier: Mit %2 geöffneten Seiten ist die Höchstzahl erreicht</translation>
    </message>
    <message>
        <source>%1 could not be restored: %2</source>
        <translation>%1 konnte nicht wiederhergestellt werden: %2</translation>
    </message>
    <message>
        <source>Discard the unsaved changes of all pages listed here (%1)? They cannot be brought back.</source>
        <translation>Ungespeicherte Änderungen aller hier aufgeführten Seiten (%1) verwerfen? Sie können nicht zurückgeholt werden.</translation>
    </message>
    <message>
        <source>it</source>
        <translation>die Datei</translation>
    </message>
    <message>
        <source>print paper save</source>
        <translation>drucken papier speichern</translation>
    </message>
    <message>
        <source>Export as PDF... (&amp;O)</source>
        <translation>Als &amp;PDF exportieren ...</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Als PDF exportieren</translation>
    </message>
    <message>
        <source>Write no file (Escape)</source>
        <translation>Keine Datei schreiben (Esc)</translation>
    </message>
    <message>
        <source>PDF File</source>
        <translation>PDF-Datei</translation>
    </message>
    <message>
        <source>The name of a PDF file ends in .pdf. Nothing was written.</source>
        <translation>Der Name einer PDF-Datei endet auf .pdf. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>A PDF is being made already. Escape stops it</source>
        <translation>Es wird bereits ein PDF erstellt. Esc bricht es ab</translation>
    </message>
    <message>
        <source>Making a PDF of %1. Escape stops it</source>
        <translation>Aus %1 wird ein PDF erstellt. Esc bricht es ab</translation>
    </message>
    <message>
        <source>The PDF was stopped. No file was written</source>
        <translation>Das PDF wurde abgebrochen. Es wurde keine Datei geschrieben</translation>
    </message>
    <message>
        <source>The PDF could not be written.</source>
        <translation>Das PDF konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>%1 exportiert</translation>
    </message>
    <message>
        <source>The page could not be printed. No file was written.</source>
        <translation>Die Seite konnte nicht gedruckt werden. Es wurde keine Datei geschrieben.</translation>
    </message>
    <message>
        <source>There is no page to print</source>
        <translation>Es gibt keine Seite zum Drucken</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken ...</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Blätter</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>&amp;Direction:</source>
        <translation>&amp;Richtung:</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>R&amp;änder:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Maßstab:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Backgrounds</source>
        <translation>&amp;Hintergründe</translation>
    </message>
    <message>
        <source>&amp;Header and footer</source>
        <translation>&amp;Kopf- und Fußzeile</translation>
    </message>
    <message>
        <source>The pages are being made</source>
        <translation>Die Blätter werden erstellt</translation>
    </message>
    <message>
        <source>The page could not be printed.</source>
        <translation>Die Seite konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>One page</source>
        <translation>Ein Blatt</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n Blatt</numerusform>
            <numerusform>%n Blätter</numerusform>
        </translation>
    </message>
    <message>
        <source>Printing page %1. Escape stops it</source>
        <translation>Blatt %1 wird gedruckt. Esc bricht es ab</translation>
    </message>
    <message>
        <source>The printer did not take the page.</source>
        <translation>Der Drucker hat das Blatt nicht angenommen.</translation>
    </message>
    <message>
        <source>paper printer</source>
        <translation>papier drucker</translation>
    </message>
    <message>
        <source>Print... (&amp;I)</source>
        <translation>Dru&amp;cken ...</translation>
    </message>
    <message>
        <source>Waves under &amp;unknown words</source>
        <translation>Wellen unter unbekannten Wörtern</translation>
    </message>
    <message>
        <source>Language of pages that name &amp;none:</source>
        <translation>Sprache von Seiten ohne Angabe:</translation>
    </message>
    <message>
        <source>A tag such as en-GB or de; empty for the system&apos;s language</source>
        <translation>Ein Kürzel wie en-GB oder de; leer für die Sprache des Systems</translation>
    </message>
    <message>
        <source>spell dictionary words check language</source>
        <translation>Rechtschreibung Wörterbuch Wörter prüfen Sprache</translation>
    </message>
    <message>
        <source>Spelling... (&amp;Y)</source>
        <translation>Rechtschreibung... (&amp;Y)</translation>
    </message>
    <message>
        <source>spell suggestions word</source>
        <translation>Rechtschreibung Vorschläge Wort</translation>
    </message>
    <message>
        <source>Correct Word (&amp;J)</source>
        <translation>Wort korrigieren (&amp;J)</translation>
    </message>
    <message>
        <source>The word could not be added: %1</source>
        <translation>Das Wort konnte nicht aufgenommen werden: %1</translation>
    </message>
    <message>
        <source>No Suggestions</source>
        <translation>Keine Vorschläge</translation>
    </message>
    <message>
        <source>Add &quot;%1&quot; to My Words</source>
        <translation>„%1“ zu meinen Wörtern</translation>
    </message>
    <message>
        <source>Add &quot;%1&quot; to the Words of the Site</source>
        <translation>„%1“ zu den Wörtern der Website</translation>
    </message>
    <message>
        <source>Ignore &quot;%1&quot;</source>
        <translation>„%1“ übergehen</translation>
    </message>
    <message>
        <source>There is no unknown word at the caret</source>
        <translation>An der Einfügemarke ist kein unbekanntes Wort</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>Rechtschreibung</translation>
    </message>
    <message>
        <source>Change to</source>
        <translation>Ändern in</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Change this word and go on (Enter)</source>
        <translation>Dieses Wort ändern und weitergehen (Eingabe)</translation>
    </message>
    <message>
        <source>Change All</source>
        <translation>Alle ändern</translation>
    </message>
    <message>
        <source>Change this word everywhere in the page, as one step of Undo</source>
        <translation>Dieses Wort überall in der Seite ändern, als ein Schritt von Rückgängig</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Übergehen</translation>
    </message>
    <message>
        <source>Take this word for known until the program ends</source>
        <translation>Dieses Wort bis zum Ende des Programms als bekannt nehmen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Add this word to my words</source>
        <translation>Dieses Wort in meine Wörter aufnehmen</translation>
    </message>
    <message>
        <source>Add to Site</source>
        <translation>Zur Website</translation>
    </message>
    <message>
        <source>Add this word to the words of the site</source>
        <translation>Dieses Wort in die Wörter der Website aufnehmen</translation>
    </message>
    <message>
        <source>Leave this word and go on (F7)</source>
        <translation>Dieses Wort lassen und weitergehen (F7)</translation>
    </message>
    <message>
        <source>There is no unknown word in this page</source>
        <translation>In dieser Seite ist kein unbekanntes Wort</translation>
    </message>
    <message>
        <source>Unknown word: %1</source>
        <translation>Unbekanntes Wort: %1</translation>
    </message>
    <message>
        <source>The spelling of a language of this page is not checked: the package %1 is not installed.</source>
        <translation>Die Rechtschreibung einer Sprache dieser Seite wird nicht geprüft: Das Paket %1 ist nicht installiert.</translation>
    </message>
    <message>
        <source>path class id</source>
        <translation>pfad klasse id</translation>
    </message>
    <message>
        <source>Path of elements</source>
        <translation>Elementpfad</translation>
    </message>
    <message>
        <source>Outer elements</source>
        <translation>Äußere Elemente</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Markieren</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>&amp;Eigenschaften ...</translation>
    </message>
    <message>
        <source>&amp;Remove Tag, Keep Content</source>
        <translation>&amp;Tag entfernen, Inhalt behalten</translation>
    </message>
    <message>
        <source>&amp;Classes</source>
        <translation>&amp;Klassen</translation>
    </message>
    <message>
        <source>The style sheets have none for it</source>
        <translation>Die Stylesheets haben dafür keine</translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation>&amp;Weitere ...</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>Part of the class&apos;s name</source>
        <translation>Teil des Klassennamens</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Tag:</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Pfad:</translation>
    </message>
    <message>
        <source>Lan&amp;guage:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <translation>Sti&amp;l:</translation>
    </message>
    <message>
        <source>Declarations for this element alone: color: navy</source>
        <translation>Deklarationen nur für dieses Element: color: navy</translation>
    </message>
    <message>
        <source>Element Properties</source>
        <translation>Elementeigenschaften</translation>
    </message>
    <message>
        <source>markup source code</source>
        <translation>markup quelltext code</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML:</translation>
    </message>
    <message>
        <source>How it will look:</source>
        <translation>So wird es aussehen:</translation>
    </message>
    <message>
        <source>Zoom (&amp;Z)</source>
        <translation>&amp;Größe der Anzeige</translation>
    </message>
    <message>
        <source>larger bigger magnify</source>
        <translation>größer vergrößern zoom</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>smaller</source>
        <translation>kleiner zoom</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>100 normal reset</source>
        <translation>100 normal zoom</translation>
    </message>
    <message>
        <source>Own &amp;Size</source>
        <translation>&amp;Eigene Größe</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Auswählen: %1</translation>
    </message>
    <message>
        <source>There is no unknown word in the open pages</source>
        <translation>In den offenen Seiten ist kein unbekanntes Wort</translation>
    </message>
    <message>
        <source>site dictionary words check</source>
        <translation>Website Wörterbuch Wörter prüfen</translation>
    </message>
    <message>
        <source>Spelling of All Pages... (&amp;H)</source>
        <translation>Rechtschreibung aller Seiten... (&amp;H)</translation>
    </message>
    <message>
        <source>Unknown Words of All Open Pages</source>
        <translation>Unbekannte Wörter aller offenen Seiten</translation>
    </message>
    <message>
        <source>Unknown words</source>
        <translation>Unbekannte Wörter</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Wort</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Change &amp;to:</source>
        <translation>Ändern &amp;in:</translation>
    </message>
    <message>
        <source>Change &amp;Everywhere</source>
        <translation>Überall än&amp;dern</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Ü&amp;bergehen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>Zeile:</translation>
    </message>
    <message>
        <source>One word changed</source>
        <translation>Ein Wort geändert</translation>
    </message>
    <message numerus="yes">
        <source>%n words changed</source>
        <translation>
            <numerusform>%n Wort geändert</numerusform>
            <numerusform>%n Wörter geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>symbol sign special unicode letter</source>
        <translation>symbol sonderzeichen unicode buchstabe</translation>
    </message>
    <message>
        <source>Insert Character</source>
        <translation>Zeichen einfügen</translation>
    </message>
    <message>
        <source>&amp;Name or code:</source>
        <translation>&amp;Name oder Code:</translation>
    </message>
    <message>
        <source>em dash, 2014, or the character itself</source>
        <translation>em dash, 2014 oder das Zeichen selbst</translation>
    </message>
    <message>
        <source>&amp;Block:</source>
        <translation>&amp;Block:</translation>
    </message>
    <message>
        <source>Chosen before</source>
        <translation>Zuvor gewählt</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>No character is called that.</source>
        <translation>Kein Zeichen heißt so.</translation>
    </message>
    <message>
        <source>New from Template</source>
        <translation>Neu aus Vorlage</translation>
    </message>
    <message>
        <source>&amp;Template:</source>
        <translation>&amp;Vorlage:</translation>
    </message>
    <message>
        <source>HTML5 page</source>
        <translation>HTML5-Seite</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>T&amp;itel:</translation>
    </message>
    <message>
        <source>Fits the &amp;width of phones (viewport)</source>
        <translation>An die &amp;Breite von Telefonen angepasst (viewport)</translation>
    </message>
    <message>
        <source>Template of new pa&amp;ges:</source>
        <translation>Vorla&amp;ge neuer Seiten:</translation>
    </message>
    <message>
        <source>A page file; empty for the usual new page</source>
        <translation>Eine Seitendatei; leer für die übliche neue Seite</translation>
    </message>
    <message>
        <source>page create html5</source>
        <translation>seite erstellen html5 vorlage</translation>
    </message>
    <message>
        <source>keep page</source>
        <translation>seite behalten vorlage</translation>
    </message>
    <message>
        <source>There is a template %1 already. Replace it?</source>
        <translation>Es gibt schon eine Vorlage %1. Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>The template for new pages cannot be read: %1</source>
        <translation>Die Vorlage für neue Seiten kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Name of the template:</source>
        <translation>Name der Vorlage:</translation>
    </message>
    <message>
        <source>Save as Template</source>
        <translation>Als Vorlage speichern</translation>
    </message>
    <message>
        <source>The name of a template has no slash and does not begin with a dot</source>
        <translation>Der Name einer Vorlage hat keinen Schrägstrich und beginnt nicht mit einem Punkt</translation>
    </message>
    <message>
        <source>The template could not be saved: %1</source>
        <translation>Die Vorlage konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The page is the template %1 now</source>
        <translation>Die Seite ist jetzt die Vorlage %1</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Words of the command</source>
        <translation>Wörter des Befehls</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Taste:</translation>
    </message>
    <message>
        <source>Press a key; Delete takes it away</source>
        <translation>Taste drücken; Entf nimmt sie weg</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>&amp;Alle zurücksetzen</translation>
    </message>
    <message>
        <source>%1 has this key too</source>
        <translation>%1 hat diese Taste auch</translation>
    </message>
    <message>
        <source>goes before %1 in the page</source>
        <translation>geht in der Seite vor %1</translation>
    </message>
    <message>
        <source>in the page %1</source>
        <translation>in der Seite %1</translation>
    </message>
    <message>
        <source>keys keyboard hotkeys</source>
        <translation>Tasten Tastatur Kürzel Tastenkürzel</translation>
    </message>
    <message>
        <source>That is no key.</source>
        <translation>Das ist keine Taste.</translation>
    </message>
    <message>
        <source>%1 types, moves or deletes.</source>
        <translation>%1 schreibt, bewegt oder löscht.</translation>
    </message>
    <message>
        <source>%1 is a key of the window.</source>
        <translation>%1 ist eine Taste des Fensters.</translation>
    </message>
    <message>
        <source>%1 opens the menu %2.</source>
        <translation>%1 öffnet das Menü %2.</translation>
    </message>
    <message>
        <source>Place of what is selected</source>
        <translation>Stelle der Auswahl</translation>
    </message>
    <message>
        <source>Rows %1-%2, columns %3-%4</source>
        <translation>Zeilen %1-%2, Spalten %3-%4</translation>
    </message>
    <message>
        <source>Left %1, top %2, size %3 × %4</source>
        <translation>Links %1, oben %2, Größe %3 × %4</translation>
    </message>
    <message>
        <source>Words...</source>
        <translation>Wörter...</translation>
    </message>
    <message>
        <source>Words and characters</source>
        <translation>Wörter und Zeichen</translation>
    </message>
    <message>
        <source>There is no page whose words could be counted</source>
        <translation>Es gibt keine Seite, deren Wörter gezählt werden könnten</translation>
    </message>
    <message>
        <source>Words in the page: %1</source>
        <translation>Wörter in der Seite: %1</translation>
    </message>
    <message>
        <source>Characters in the page: %1</source>
        <translation>Zeichen in der Seite: %1</translation>
    </message>
    <message>
        <source>Words in the selection: %1</source>
        <translation>Wörter in der Auswahl: %1</translation>
    </message>
    <message>
        <source>Characters in the selection: %1</source>
        <translation>Zeichen in der Auswahl: %1</translation>
    </message>
    <message>
        <source>Pages in design view and previews have a width</source>
        <translation>Seiten in der Entwurfsansicht und Vorschauen haben eine Breite</translation>
    </message>
    <message>
        <source>phone tablet mobile responsive media small</source>
        <translation>telefon handy tablet mobil responsiv schmal</translation>
    </message>
    <message>
        <source>Page Widths</source>
        <translation>Seitenbreiten</translation>
    </message>
    <message>
        <source>Drag to change the page&apos;s width</source>
        <translation>Ziehen ändert die Breite der Seite</translation>
    </message>
    <message>
        <source>Widths at which the page changes: %1</source>
        <translation>Breiten, bei denen sich die Seite ändert: %1</translation>
    </message>
    <message numerus="yes">
        <source>Show at %n pixels</source>
        <translation>
            <numerusform>Mit %n Pixel Breite zeigen</numerusform>
            <numerusform>Mit %n Pixeln Breite zeigen</numerusform>
        </translation>
    </message>
    <message>
        <source>Add Viewport</source>
        <translation>Viewport einfügen</translation>
    </message>
    <message>
        <source>Tells phones to lay the page out at their own width. Undo takes it back</source>
        <translation>Telefone ordnen die Seite dann in ihrer eigenen Breite an. Rückgängig nimmt es zurück</translation>
    </message>
    <message>
        <source>Close, and show pages as wide as the window</source>
        <translation>Schließen und Seiten so breit wie das Fenster zeigen</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Ganz</translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation>So breit wie das Fenster</translation>
    </message>
    <message numerus="yes">
        <source>%n pixels wide</source>
        <translation>
            <numerusform>%n Pixel breit</numerusform>
            <numerusform>%n Pixel breit</numerusform>
        </translation>
    </message>
    <message>
        <source>Page width in pixels</source>
        <translation>Seitenbreite in Pixeln</translation>
    </message>
    <message>
        <source>As a Phone</source>
        <translation>Als Telefon</translation>
    </message>
    <message>
        <source>Show the preview as a phone does: touch, sharpness, name of the browser</source>
        <translation>Zeigt die Vorschau wie ein Telefon: Berührung, Schärfe, Name des Browsers</translation>
    </message>
    <message>
        <source>Phones show this page small: it has no viewport declaration</source>
        <translation>Telefone zeigen diese Seite verkleinert: Ihr fehlt die Viewport-Angabe</translation>
    </message>
    <message>
        <source>The page keeps its charset %1.</source>
        <translation>Die Seite behält ihren Zeichensatz %1.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiteres</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>The charset %1 lacks these characters of the page. They become references such as &amp;#8364;, which browsers show as before.</source>
        <translation>Dem Zeichensatz %1 fehlen diese Zeichen der Seite. Sie werden zu Verweisen wie &amp;#8364;, die Browser wie bisher anzeigen.</translation>
    </message>
    <message>
        <source>Convert the Page</source>
        <translation>Seite umwandeln</translation>
    </message>
    <message>
        <source>Some bytes of the page are no text in its charset %1 and would be lost. Mend them first: they show as question marks in black diamonds.</source>
        <translation>Einige Bytes der Seite sind in ihrem Zeichensatz %1 kein Text und gingen verloren. Beheben Sie das zuerst: Sie erscheinen als Fragezeichen in schwarzen Rauten.</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (Zeile %2)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times, first in line %2)</source>
        <translation>
            <numerusform>%1 (%n-mal, zuerst in Zeile %2)</numerusform>
            <numerusform>%1 (%n-mal, zuerst in Zeile %2)</numerusform>
        </translation>
    </message>
    <message>
        <source>The page would not be read as %1: its declaration is made by server code, or stands too far behind its start.</source>
        <translation>Die Seite würde nicht als %1 gelesen: Servercode erzeugt ihre Angabe, oder sie steht zu weit hinter dem Anfang.</translation>
    </message>
    <message>
        <source>Web Pages (*.htm, *.html)|*.htm;*.html;*.xhtml;*.shtml;*.php|All Files *.*|*.*</source>
        <translation>Webseiten (*.htm, *.html)|*.htm;*.html;*.xhtml;*.shtml;*.php|Alle Dateien *.*|*.*</translation>
    </message>
    <message>
        <source>Style Sheets (*.css)|*.css|All Files *.*|*.*</source>
        <translation>Stylesheets (*.css)|*.css|Alle Dateien *.*|*.*</translation>
    </message>
    <message>
        <source>Icons (*.ico, *.png, *.svg)|*.ico;*.png;*.svg;*.gif|All Files *.*|*.*</source>
        <translation>Symbole (*.ico, *.png, *.svg)|*.ico;*.png;*.svg;*.gif|Alle Dateien *.*|*.*</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Sample text 123</source>
        <translation>Mustertext 123</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen ...</translation>
    </message>
    <message>
        <source>Browse: %1</source>
        <translation>Durchsuchen: %1</translation>
    </message>
    <message>
        <source>Top of the text</source>
        <translation>Oberkante des Textes</translation>
    </message>
    <message>
        <source>By the standards</source>
        <translation>Nach den Standards</translation>
    </message>
    <message>
        <source>As old browsers did (quirks mode): the page has no doctype</source>
        <translation>Wie alte Browser (Quirks-Modus): Die Seite hat keinen Doctype</translation>
    </message>
    <message>
        <source>As old browsers did (quirks mode): its doctype is an old one</source>
        <translation>Wie alte Browser (Quirks-Modus): Ihr Doctype ist ein alter</translation>
    </message>
    <message>
        <source>Ico&amp;n:</source>
        <translation>S&amp;ymbol:</translation>
    </message>
    <message>
        <source>A small picture for the page&apos;s tab in browsers</source>
        <translation>Ein kleines Bild für das Register der Seite in Browsern</translation>
    </message>
    <message>
        <source>&amp;Charset:</source>
        <translation>&amp;Zeichensatz:</translation>
    </message>
    <message>
        <source>&amp;Style sheets:</source>
        <translation>&amp;Stylesheets:</translation>
    </message>
    <message>
        <source>One address a line, in the order in which they apply</source>
        <translation>Eine Adresse je Zeile, in der Reihenfolge ihrer Geltung</translation>
    </message>
    <message>
        <source>Lin&amp;k:</source>
        <translation>Verk&amp;nüpfung:</translation>
    </message>
    <message>
        <source>Room at the &amp;sides:</source>
        <translation>Abstand &amp;seitlich:</translation>
    </message>
    <message>
        <source>Room abo&amp;ve and below:</source>
        <translation>Abstand &amp;oben und unten:</translation>
    </message>
    <message>
        <source>B&amp;order colour:</source>
        <translation>Rahmen&amp;farbe:</translation>
    </message>
    <message>
        <source>S&amp;trikethrough</source>
        <translation>&amp;Durchgestrichen</translation>
    </message>
    <message>
        <source>Subscri&amp;pt</source>
        <translation>&amp;Tiefgestellt</translation>
    </message>
    <message>
        <source>Supe&amp;rscript</source>
        <translation>&amp;Hochgestellt</translation>
    </message>
    <message>
        <source>Co&amp;de</source>
        <translation>&amp;Code</translation>
    </message>
    <message>
        <source>Re&amp;move Link</source>
        <translation>&amp;Link entfernen</translation>
    </message>
    <message>
        <source>New from Template... (&amp;T)</source>
        <translation>Neu aus &amp;Vorlage ...</translation>
    </message>
    <message>
        <source>Save as Template... (&amp;M)</source>
        <translation>&amp;Als Vorlage speichern ...</translation>
    </message>
    <message>
        <source>Page Widths (&amp;X)</source>
        <translation>Seitenbreiten</translation>
    </message>
    <message>
        <source>Site (&amp;H)</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Insert More (&amp;V)</source>
        <translation>&amp;Mehr einfügen</translation>
    </message>
    <message>
        <source>Insert Character... (&amp;C)</source>
        <translation>&amp;Zeichen einfügen ...</translation>
    </message>
    <message>
        <source>Paste As (&amp;B)</source>
        <translation>Ein&amp;fügen als</translation>
    </message>
    <message>
        <source>Shortcuts... (&amp;D)</source>
        <translation>Tastenkürzel...</translation>
    </message>
    <message>
        <source>Templates (&amp;T)</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden.
Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>Crop and Turn %1</source>
        <translation>%1 zuschneiden und drehen</translation>
    </message>
    <message>
        <source>Part of the picture that stays</source>
        <translation>Teil des Bildes, der bleibt</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Oben:</translation>
    </message>
    <message>
        <source>&amp;Keep the ratio</source>
        <translation>&amp;Verhältnis beibehalten</translation>
    </message>
    <message>
        <source>cut trim rotate image photo</source>
        <translation>schneiden zuschneiden drehen bild foto cut trim rotate</translation>
    </message>
    <message>
        <source>Crop and Turn Picture... (&amp;C)</source>
        <translation>Bild &amp;zuschneiden und drehen …</translation>
    </message>
    <message>
        <source>Crop...</source>
        <translation>Zuschneiden …</translation>
    </message>
    <message>
        <source>Cut a part out of the file&apos;s picture</source>
        <translation>Einen Teil aus dem Bild der Datei ausschneiden</translation>
    </message>
    <message>
        <source>Select a picture of the site first: a JPEG, PNG or WebP file that does not move</source>
        <translation>Wählen Sie zuerst ein Bild der Website: eine JPEG-, PNG- oder WebP-Datei ohne Bewegung</translation>
    </message>
    <message>
        <source>Alternative Text</source>
        <translation>Alternativtext</translation>
    </message>
    <message>
        <source>What does it show?</source>
        <translation>Was ist darauf zu sehen?</translation>
    </message>
    <message>
        <source>Alternative text: what is read where the picture is not seen</source>
        <translation>Alternativtext: wird gelesen, wo das Bild nicht zu sehen ist</translation>
    </message>
    <message>
        <source>Decorative</source>
        <translation>Dekorativ</translation>
    </message>
    <message>
        <source>It says nothing: its alternative text is empty</source>
        <translation>Es sagt nichts aus: Sein Alternativtext ist leer</translation>
    </message>
    <message>
        <source>Design view changed the page where its source was changed too. Applying the source takes these changes back, until Undo</source>
        <translation>In der Entwurfsansicht wurde die Seite dort geändert, wo auch ihr Quelltext geändert wurde. Übernehmen des Quelltexts nimmt diese Änderungen zurück, bis Rückgängig</translation>
    </message>
    <message>
        <source>%1 stays as it is. What the saved page shows is kept as %2.</source>
        <translation>%1 bleibt, wie es ist. Was die gespeicherte Seite zeigt, ist als %2 aufgehoben.</translation>
    </message>
    <message>
        <source>title language description charset encoding background style sheet css</source>
        <translation>titel sprache beschreibung zeichensatz kodierung hintergrund stylesheet css</translation>
    </message>
    <message>
        <source>size colour color</source>
        <translation>größe farbe</translation>
    </message>
    <message>
        <source>numbered list</source>
        <translation>nummerierte liste</translation>
    </message>
    <message>
        <source>bullets list</source>
        <translation>aufzählung punkte liste</translation>
    </message>
</context>
<context>
    <name>velor::frmAbout</name>
    <message>
        <source>Browser engine: Chromium %1</source>
        <translation>Browser-Engine: Chromium %1</translation>
    </message>
    <message>
        <source>Security fixes up to %1 (about %2)</source>
        <translation>Sicherheitskorrekturen bis %1 (etwa %2)</translation>
    </message>
    <message>
        <source>These fixes are older than 18 months: preview only pages that you trust. A newer release of your system brings a newer engine.</source>
        <translation>Diese Korrekturen sind älter als 18 Monate: Zeigen Sie nur Seiten in der Vorschau an, denen Sie vertrauen. Eine neuere Ausgabe Ihres Systems bringt eine neuere Engine mit.</translation>
    </message>
    <message>
        <source>About us...</source>
        <translation>Über uns ...</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
</context>
<context>
    <name>velor::frmDialog_Table</name>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>&amp;Headings in the first row</source>
        <translation>Überschriften in der ersten &amp;Zeile</translation>
    </message>
</context>
<context>
    <name>velor::frmInsertElement</name>
    <message>
        <source>A page cannot say this without a script</source>
        <translation>Das kann eine Seite ohne Skript nicht festlegen</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <source>A bookmark&apos;s name has no blanks.</source>
        <translation>Der Name einer Textmarke hat keine Leerzeichen.</translation>
    </message>
    <message>
        <source>The page has a bookmark of this name already.</source>
        <translation>Die Seite hat bereits eine Textmarke dieses Namens.</translation>
    </message>
    <message>
        <source>Only pages that begin with &lt;!DOCTYPE html&gt; can hold a video.</source>
        <translation>Nur Seiten, die mit &lt;!DOCTYPE html&gt; beginnen, können ein Video enthalten.</translation>
    </message>
</context>
<context>
    <name>velor::frmMain</name>
    <message>
        <source>There is no link at the caret</source>
        <translation>An der Einfügemarke ist kein Link</translation>
    </message>
    <message>
        <source>The link leads nowhere before the page is saved</source>
        <translation>Der Link führt ins Leere, bis die Seite gespeichert ist</translation>
    </message>
    <message>
        <source>%1 is for another program</source>
        <translation>Für %1 ist ein anderes Programm zuständig</translation>
    </message>
</context>
</TS>
