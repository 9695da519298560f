<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Start an empty dictionary</source>
        <translation>Ein leeres Wörterbuch beginnen</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a dictionary file</source>
        <translation>Eine Wörterbuchdatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the dictionary</source>
        <translation>Das Wörterbuch speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Save the dictionary under another name</source>
        <translation>Das Wörterbuch unter anderem Namen speichern</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Go back to the dictionary as it was saved</source>
        <translation>Zum gespeicherten Stand des Wörterbuchs zurückkehren</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Leave the workbench</source>
        <translation>Quillon Workbench verlassen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Type into the filter of the variable table</source>
        <translation>In den Filter der Variablentabelle schreiben</translation>
    </message>
    <message>
        <source>&amp;Add Entity</source>
        <translation>Entität &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add an entity below the current one</source>
        <translation>Unter der aktuellen Entität eine weitere hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Duplicate Entity</source>
        <translation>Entität &amp;duplizieren</translation>
    </message>
    <message>
        <source>Add a copy of the entity with everything below it</source>
        <translation>Eine Kopie der Entität mit allem darunter hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;name Entity</source>
        <translation>Entität &amp;umbenennen</translation>
    </message>
    <message>
        <source>Edit the entity&apos;s name</source>
        <translation>Den Namen der Entität bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Remove Entity</source>
        <translation>Entität &amp;entfernen</translation>
    </message>
    <message>
        <source>Remove the entity with everything below it</source>
        <translation>Die Entität mit allem darunter entfernen</translation>
    </message>
    <message>
        <source>Move Entity &amp;Up</source>
        <translation>Entität nach &amp;oben</translation>
    </message>
    <message>
        <source>Move the entity before the one above it</source>
        <translation>Die Entität vor die vorige stellen</translation>
    </message>
    <message>
        <source>Move Entity Do&amp;wn</source>
        <translation>Entität nach u&amp;nten</translation>
    </message>
    <message>
        <source>Move the entity after the one below it</source>
        <translation>Die Entität hinter die nächste stellen</translation>
    </message>
    <message>
        <source>&amp;Add Variable</source>
        <translation>Variable &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add a variable to the entity</source>
        <translation>Der Entität eine Variable hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Duplicate Variables</source>
        <translation>Variablen &amp;duplizieren</translation>
    </message>
    <message>
        <source>Add copies of the selected variables</source>
        <translation>Kopien der ausgewählten Variablen hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove Variables</source>
        <translation>Variablen &amp;entfernen</translation>
    </message>
    <message>
        <source>Remove the selected variables</source>
        <translation>Die ausgewählten Variablen entfernen</translation>
    </message>
    <message>
        <source>Move Variables &amp;Up</source>
        <translation>Variablen nach &amp;oben</translation>
    </message>
    <message>
        <source>Move the selected variables up in the entity&apos;s order</source>
        <translation>Die ausgewählten Variablen in der Reihenfolge der Entität nach oben verschieben</translation>
    </message>
    <message>
        <source>Move Variables Do&amp;wn</source>
        <translation>Variablen nach &amp;unten</translation>
    </message>
    <message>
        <source>Move the selected variables down in the entity&apos;s order</source>
        <translation>Die ausgewählten Variablen in der Reihenfolge der Entität nach unten verschieben</translation>
    </message>
    <message>
        <source>Use as Reference &amp;Code</source>
        <translation>Als Referenz&amp;code verwenden</translation>
    </message>
    <message>
        <source>Make the variable the entity&apos;s reference code, or stop it</source>
        <translation>Die Variable zum Referenzcode der Entität machen oder das aufheben</translation>
    </message>
    <message>
        <source>Use as Reference &amp;Label</source>
        <translation>Als Referenz&amp;label verwenden</translation>
    </message>
    <message>
        <source>Make the variable the entity&apos;s reference label, or stop it</source>
        <translation>Die Variable zum Referenzlabel der Entität machen oder das aufheben</translation>
    </message>
    <message>
        <source>Make the variable the entity&apos;s weight, or stop it</source>
        <translation>Die Variable zum Gewicht der Entität machen oder das aufheben</translation>
    </message>
    <message>
        <source>Report Duplicated &amp;Names</source>
        <translation>Doppelte &amp;Namen melden</translation>
    </message>
    <message>
        <source>List the variables of the entity that share a name</source>
        <translation>Die Variablen der Entität auflisten, die denselben Namen haben</translation>
    </message>
    <message>
        <source>Add Value &amp;Label</source>
        <translation>Werte&amp;label hinzufügen</translation>
    </message>
    <message>
        <source>Add a value label to the variable</source>
        <translation>Der Variable ein Wertelabel hinzufügen</translation>
    </message>
    <message>
        <source>Remove Value Labels</source>
        <translation>Wertelabels entfernen</translation>
    </message>
    <message>
        <source>Remove the selected value labels</source>
        <translation>Die ausgewählten Wertelabels entfernen</translation>
    </message>
    <message>
        <source>Move Value Labels Up</source>
        <translation>Wertelabels nach oben</translation>
    </message>
    <message>
        <source>Move the selected value labels up</source>
        <translation>Die ausgewählten Wertelabels nach oben verschieben</translation>
    </message>
    <message>
        <source>Move Value Labels Down</source>
        <translation>Wertelabels nach unten</translation>
    </message>
    <message>
        <source>Move the selected value labels down</source>
        <translation>Die ausgewählten Wertelabels nach unten verschieben</translation>
    </message>
    <message>
        <source>Add &amp;Range</source>
        <translation>&amp;Bereich hinzufügen</translation>
    </message>
    <message>
        <source>Add a range of valid values to the variable</source>
        <translation>Der Variable einen Bereich gültiger Werte hinzufügen</translation>
    </message>
    <message>
        <source>Remove Ranges</source>
        <translation>Bereiche entfernen</translation>
    </message>
    <message>
        <source>Remove the selected ranges</source>
        <translation>Die ausgewählten Bereiche entfernen</translation>
    </message>
    <message>
        <source>Move Ranges Up</source>
        <translation>Bereiche nach oben</translation>
    </message>
    <message>
        <source>Move the selected ranges up</source>
        <translation>Die ausgewählten Bereiche nach oben verschieben</translation>
    </message>
    <message>
        <source>Move Ranges Down</source>
        <translation>Bereiche nach unten</translation>
    </message>
    <message>
        <source>Move the selected ranges down</source>
        <translation>Die ausgewählten Bereiche nach unten verschieben</translation>
    </message>
    <message>
        <source>Open &amp;Dataset…</source>
        <translation>&amp;Datendatei öffnen…</translation>
    </message>
    <message>
        <source>List the fields of a data file</source>
        <translation>Die Felder einer Datendatei auflisten</translation>
    </message>
    <message>
        <source>Open &amp;CSV File…</source>
        <translation>&amp;CSV-Datei öffnen…</translation>
    </message>
    <message>
        <source>List the fields of a CSV file</source>
        <translation>Die Felder einer CSV-Datei auflisten</translation>
    </message>
    <message>
        <source>Open &amp;Lookups…</source>
        <translation>&amp;Nachschlagetabellen öffnen…</translation>
    </message>
    <message>
        <source>List the lookup tables of a CSV file</source>
        <translation>Die Nachschlagetabellen einer CSV-Datei auflisten</translation>
    </message>
    <message>
        <source>Add Selected Fields to &amp;Entity</source>
        <translation>Ausgewählte Felder zur &amp;Entität hinzufügen</translation>
    </message>
    <message>
        <source>Make a variable of each selected field, as dragging them onto the table does</source>
        <translation>Aus jedem ausgewählten Feld eine Variable machen, wie beim Ziehen auf die Tabelle</translation>
    </message>
    <message>
        <source>&amp;Check Now</source>
        <translation>Jetzt &amp;prüfen</translation>
    </message>
    <message>
        <source>Look for what is wrong in the dictionary</source>
        <translation>Nach Fehlern im Wörterbuch suchen</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>&amp;Nächstes Problem</translation>
    </message>
    <message>
        <source>Go to the place of the next problem</source>
        <translation>Zur Stelle des nächsten Problems gehen</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>&amp;Voriges Problem</translation>
    </message>
    <message>
        <source>Go to the place of the problem before</source>
        <translation>Zur Stelle des vorigen Problems gehen</translation>
    </message>
    <message>
        <source>Build &amp;Expression…</source>
        <translation>Ausdruck &amp;erstellen…</translation>
    </message>
    <message>
        <source>Put an expression together from entities, variables and categories</source>
        <translation>Einen Ausdruck aus Entitäten, Variablen und Kategorien zusammensetzen</translation>
    </message>
    <message>
        <source>Select &amp;Areas…</source>
        <translation>&amp;Gebiete auswählen…</translation>
    </message>
    <message>
        <source>Select area units of a file</source>
        <translation>Gebietseinheiten aus einer Datei auswählen</translation>
    </message>
    <message>
        <source>&amp;About Quillon Workbench</source>
        <translation>&amp;Über Quillon Workbench</translation>
    </message>
    <message>
        <source>Show version and licences</source>
        <translation>Version und Lizenzen anzeigen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>E&amp;ntity</source>
        <translation>&amp;Entität</translation>
    </message>
    <message>
        <source>&amp;Variable</source>
        <translation>&amp;Variable</translation>
    </message>
    <message>
        <source>Va&amp;lues</source>
        <translation>&amp;Werte</translation>
    </message>
    <message>
        <source>&amp;Sources</source>
        <translation>&amp;Quellen</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>Vie&amp;w</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Main Tool Bar</source>
        <translation>Hauptsymbolleiste</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected rows, for a spreadsheet or another table</source>
        <translation>Die ausgewählten Zeilen für eine Tabellenkalkulation oder eine andere Tabelle kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Paste rows of a spreadsheet or of another table</source>
        <translation>Zeilen einer Tabellenkalkulation oder einer anderen Tabelle einfügen</translation>
    </message>
    <message>
        <source>Use as Wei&amp;ght</source>
        <translation>Als &amp;Gewicht verwenden</translation>
    </message>
    <message>
        <source>New &amp;Run Configuration…</source>
        <translation>Neue &amp;Laufkonfiguration…</translation>
    </message>
    <message>
        <source>Say which entities and variables take part in a run</source>
        <translation>Angeben, welche Entitäten und Variablen an einem Lauf teilnehmen</translation>
    </message>
    <message>
        <source>&amp;Open Run Configuration…</source>
        <translation>Laufkonfiguration ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Change a run configuration that was saved</source>
        <translation>Eine gespeicherte Laufkonfiguration ändern</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen…</translation>
    </message>
    <message>
        <source>Find names, labels and codes in the whole dictionary</source>
        <translation>Namen, Labels und Codes im ganzen Wörterbuch suchen</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Nächste Fundstelle</translation>
    </message>
    <message>
        <source>Go to the next place that was found</source>
        <translation>Zur nächsten Fundstelle gehen</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>&amp;Vorige Fundstelle</translation>
    </message>
    <message>
        <source>Go to the place that was found before</source>
        <translation>Zur vorigen Fundstelle gehen</translation>
    </message>
    <message>
        <source>Fi&amp;lter Variables</source>
        <translation>Variablen &amp;filtern</translation>
    </message>
    <message>
        <source>&amp;Edit Variables Together…</source>
        <translation>Variablen gemeinsam &amp;bearbeiten…</translation>
    </message>
    <message>
        <source>Edit properties of all selected variables at once</source>
        <translation>Eigenschaften aller ausgewählten Variablen auf einmal bearbeiten</translation>
    </message>
    <message>
        <source>Copy Values &amp;To…</source>
        <translation>Werte ko&amp;pieren nach…</translation>
    </message>
    <message>
        <source>Copy value labels, ranges and missing codes to other variables</source>
        <translation>Wertelabels, Bereiche und Codes für fehlende Werte auf andere Variablen kopieren</translation>
    </message>
    <message>
        <source>Identical Label &amp;Sets…</source>
        <translation>Gleiche Label&amp;sätze…</translation>
    </message>
    <message>
        <source>Edit value labels that several variables share</source>
        <translation>Wertelabels bearbeiten, die mehrere Variablen gemeinsam haben</translation>
    </message>
    <message>
        <source>Re&amp;cover Unsaved Changes…</source>
        <translation>Ungespeicherte Änderungen &amp;wiederherstellen…</translation>
    </message>
    <message>
        <source>Look for changes that were not saved before the workbench ended</source>
        <translation>Nach Änderungen suchen, die vor dem Ende des Programms nicht gespeichert wurden</translation>
    </message>
    <message>
        <source>&amp;Next Pane</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>Go on with the keyboard in the next part of the window</source>
        <translation>Mit der Tastatur im nächsten Teil des Fensters weitermachen</translation>
    </message>
    <message>
        <source>&amp;Previous Pane</source>
        <translation>&amp;Voriger Bereich</translation>
    </message>
    <message>
        <source>Go back with the keyboard to the part of the window before</source>
        <translation>Mit der Tastatur in den Teil des Fensters davor zurückgehen</translation>
    </message>
    <message>
        <source>Move Entity &amp;To…</source>
        <translation>Entität &amp;verschieben nach…</translation>
    </message>
    <message>
        <source>Move the entity with everything below it to another place in the tree</source>
        <translation>Die Entität mit allem darunter an eine andere Stelle des Baums verschieben</translation>
    </message>
    <message>
        <source>Move Variables &amp;To…</source>
        <translation>Variablen &amp;verschieben nach…</translation>
    </message>
    <message>
        <source>Move the selected variables to another entity</source>
        <translation>Die ausgewählten Variablen in eine andere Entität verschieben</translation>
    </message>
</context>
<context>
    <name>AreaSelectionDialog</name>
    <message>
        <source>Select Areas</source>
        <translation>Gebiete auswählen</translation>
    </message>
    <message>
        <source>Areas that have no others below them are counted</source>
        <translation>Gezählt werden Gebiete, unter denen keine weiteren liegen</translation>
    </message>
    <message>
        <source>&amp;Open File…</source>
        <translation>Datei ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Filter areas by code or name</source>
        <translation>Gebiete nach Code oder Name filtern</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>Fi&amp;lter:</translation>
    </message>
    <message>
        <source>Show co&amp;des</source>
        <translation>Co&amp;des zeigen</translation>
    </message>
    <message>
        <source>Show the code of an area in place of its first text</source>
        <translation>Den Code eines Gebiets anstelle seines ersten Texts zeigen</translation>
    </message>
    <message>
        <source>Show &amp;names</source>
        <translation>&amp;Namen zeigen</translation>
    </message>
    <message>
        <source>Show the name of an area before its texts</source>
        <translation>Den Namen eines Gebiets vor seinen Texten zeigen</translation>
    </message>
    <message>
        <source>Open a CSV file with the columns “code”, “parent” and “name” to select areas of it.</source>
        <translation>Öffnen Sie eine CSV-Datei mit den Spalten „code“, „parent“ und „name“, um Gebiete daraus auszuwählen.</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Gebiete</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Alle auf&amp;klappen</translation>
    </message>
    <message>
        <source>Co&amp;llapse All</source>
        <translation>Alle &amp;zuklappen</translation>
    </message>
    <message>
        <source>Selec&amp;t None</source>
        <translation>Nichts aus&amp;wählen</translation>
    </message>
    <message>
        <source>Co&amp;py Codes</source>
        <translation>Codes ko&amp;pieren</translation>
    </message>
    <message>
        <source>Copy the codes of the selected areas; an area stands for all below it</source>
        <translation>Die Codes der ausgewählten Gebiete kopieren; ein Gebiet steht für alle darunter</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>Als CSV &amp;speichern…</translation>
    </message>
    <message>
        <source>Write the selected areas to a file; an area stands for all below it</source>
        <translation>Die ausgewählten Gebiete in eine Datei schreiben; ein Gebiet steht für alle darunter</translation>
    </message>
    <message>
        <source>Areas selected: %L1 of %L2</source>
        <translation>Ausgewählte Gebiete: %L1 von %L2</translation>
    </message>
    <message>
        <source>All areas</source>
        <translation>Alle Gebiete</translation>
    </message>
    <message>
        <source>“%1” cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Open Area Units</source>
        <translation>Gebietseinheiten öffnen</translation>
    </message>
    <message>
        <source>Save Selected Areas</source>
        <translation>Ausgewählte Gebiete speichern</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>No area matches the filter.</source>
        <translation>Kein Gebiet passt zum Filter.</translation>
    </message>
</context>
<context>
    <name>AreaUnitFile</name>
    <message>
        <source>No column is called &quot;code&quot;.</source>
        <translation>Keine Spalte heißt „code“.</translation>
    </message>
    <message>
        <source>The code is empty.</source>
        <translation>Der Code ist leer.</translation>
    </message>
    <message>
        <source>The code &quot;%1&quot; stands in line %2 too.</source>
        <translation>Der Code „%1“ steht auch in Zeile %2.</translation>
    </message>
    <message>
        <source>The parent &quot;%1&quot; of &quot;%2&quot; is not in the file.</source>
        <translation>Die übergeordnete Einheit „%1“ von „%2“ steht nicht in der Datei.</translation>
    </message>
    <message>
        <source>The unit lies below itself: %1.</source>
        <translation>Die Einheit liegt unter sich selbst: %1.</translation>
    </message>
</context>
<context>
    <name>CheckCommands</name>
    <message>
        <source>Looking for problems…</source>
        <translation>Nach Problemen wird gesucht…</translation>
    </message>
</context>
<context>
    <name>ClipboardCommands</name>
    <message>
        <source>Pasting…</source>
        <translation>Es wird eingefügt…</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Nothing was pasted.</source>
        <translation>Es wurde nichts eingefügt.</translation>
    </message>
    <message>
        <source>Pasted rows: %L1. Not everything could be taken over:</source>
        <translation>Eingefügte Zeilen: %L1. Nicht alles konnte übernommen werden:</translation>
    </message>
    <message>
        <source>There are %L1 more; the details list them all.</source>
        <translation>Es gibt %L1 weitere; die Details führen alle auf.</translation>
    </message>
</context>
<context>
    <name>ClipboardTable</name>
    <message>
        <source>Select a variable to paste into.</source>
        <translation>Wählen Sie eine Variable aus, in die eingefügt wird.</translation>
    </message>
    <message>
        <source>pasting a row</source>
        <translation>Einfügen einer Zeile</translation>
    </message>
    <message>
        <source>pasting %L1 rows</source>
        <translation>Einfügen von %L1 Zeilen</translation>
    </message>
    <message>
        <source>%1 into %2</source>
        <translation>%1 in %2</translation>
    </message>
</context>
<context>
    <name>Codebook</name>
    <message>
        <source>Codebook</source>
        <translation>Codebuch</translation>
    </message>
    <message>
        <source>Entities: %1. Variables: %2.</source>
        <translation>Entitäten: %1. Variablen: %2.</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Belongs to</source>
        <translation>Gehört zu</translation>
    </message>
    <message>
        <source>Record code</source>
        <translation>Datensatzcode</translation>
    </message>
    <message>
        <source>Record label</source>
        <translation>Datensatzlabel</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Auswählbar</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtuell</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>Decimal number</source>
        <translation>Dezimalzahl</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Ja oder nein</translation>
    </message>
    <message>
        <source>Lookup</source>
        <translation>Nachschlagetabelle</translation>
    </message>
    <message>
        <source>record code</source>
        <translation>Datensatzcode</translation>
    </message>
    <message>
        <source>record label</source>
        <translation>Datensatzlabel</translation>
    </message>
    <message>
        <source>weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>from a lookup table</source>
        <translation>aus einer Nachschlagetabelle</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Dezimalstellen</translation>
    </message>
    <message>
        <source>Valid range</source>
        <translation>Gültiger Bereich</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlend</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>Nicht zutreffend</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>%1 of record %2</source>
        <translation>%1 in Datensatz %2</translation>
    </message>
    <message>
        <source>Source field</source>
        <translation>Quellfeld</translation>
    </message>
    <message>
        <source>Codebook: %1</source>
        <translation>Codebuch: %1</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Zum Inhalt springen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>Variablen suchen</translation>
    </message>
    <message>
        <source>Variables found: %1</source>
        <translation>Gefundene Variablen: %1</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Variables: %1</source>
        <translation>Variablen: %1</translation>
    </message>
    <message>
        <source>The document cannot be written.</source>
        <translation>Das Dokument kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>This entity has no variables.</source>
        <translation>Diese Entität hat keine Variablen.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Draw the window into &lt;file&gt; and quit.</source>
        <translation>Das Fenster in &lt;file&gt; zeichnen und beenden.</translation>
    </message>
    <message>
        <source>Size of the window, for instance 1280x800.</source>
        <translation>Größe des Fensters, zum Beispiel 1280x800.</translation>
    </message>
    <message>
        <source>light, dark or system.</source>
        <translation>light (hell), dark (dunkel) oder system.</translation>
    </message>
    <message>
        <source>Language of the texts, for instance es.</source>
        <translation>Sprache der Texte, zum Beispiel es.</translation>
    </message>
    <message>
        <source>Open the dictionary &lt;file&gt;.</source>
        <translation>Das Wörterbuch &lt;file&gt; öffnen.</translation>
    </message>
    <message>
        <source>Select an entity, or one of its variables.</source>
        <translation>Eine Entität oder eine ihrer Variablen auswählen.</translation>
    </message>
    <message>
        <source>An editor for data dictionaries.</source>
        <translation>Ein Editor für Datenwörterbücher.</translation>
    </message>
    <message>
        <source>The dictionary to open.</source>
        <translation>Das Wörterbuch, das geöffnet werden soll.</translation>
    </message>
    <message>
        <source>One dictionary at a time, please.</source>
        <translation>Bitte nur ein Wörterbuch auf einmal.</translation>
    </message>
    <message>
        <source>The theme is light, dark or system.</source>
        <translation>Das Thema ist light, dark oder system.</translation>
    </message>
    <message>
        <source>Go through what the workbench can do, leave pictures in &lt;folder&gt; and quit.</source>
        <translation>Zeigen, was die Workbench kann, Bilder in &lt;folder&gt; ablegen und beenden.</translation>
    </message>
    <message>
        <source>The tour needs a dictionary to go through.</source>
        <translation>Der Rundgang braucht ein Wörterbuch, das er zeigt.</translation>
    </message>
    <message>
        <source>The size is written as in 1280x800. Neither number is above %1.</source>
        <translation>Die Größe wird wie in 1280x800 geschrieben. Keine der Zahlen ist größer als %1.</translation>
    </message>
</context>
<context>
    <name>CommonEdits</name>
    <message>
        <source>%1 and %L2 more</source>
        <translation>%1 und %L2 weitere</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <comment>a property, variables, why it was refused</comment>
        <translation>%1 von %2: %3</translation>
    </message>
</context>
<context>
    <name>CopyValuesDialog</name>
    <message>
        <source>Copy Values of %1</source>
        <translation>Werte von %1 kopieren</translation>
    </message>
    <message>
        <source>What will change</source>
        <translation>Was sich ändert</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Value &amp;labels</source>
        <translation>Werte&amp;labels</translation>
    </message>
    <message>
        <source>&amp;Ranges</source>
        <translation>&amp;Bereiche</translation>
    </message>
    <message>
        <source>&amp;Missing-value and not-applicable codes</source>
        <translation>&amp;Codes für fehlende Werte und für nicht zutreffend</translation>
    </message>
    <message>
        <source>Re&amp;place the labels and ranges that are there</source>
        <translation>Vorhandene Labels und Bereiche &amp;ersetzen</translation>
    </message>
    <message>
        <source>A&amp;dd what is not there yet</source>
        <translation>&amp;Fehlendes hinzufügen</translation>
    </message>
    <message>
        <source>Filter variables</source>
        <translation>Variablen filtern</translation>
    </message>
    <message>
        <source>Filter by name, label or entity</source>
        <translation>Nach Name, Label oder Entität filtern</translation>
    </message>
    <message>
        <source>No other variable matches the filter.</source>
        <translation>Keine andere Variable passt zum Filter.</translation>
    </message>
    <message>
        <source>Variables to copy to</source>
        <translation>Variablen, auf die kopiert wird</translation>
    </message>
    <message>
        <source>&amp;Tick Shown</source>
        <translation>Gezeigte &amp;ankreuzen</translation>
    </message>
    <message>
        <source>&amp;Untick Shown</source>
        <translation>Gezeig&amp;te abwählen</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entität</translation>
    </message>
    <message>
        <source>Tick the variables to copy to.</source>
        <translation>Kreuzen Sie die Variablen an, auf die kopiert wird.</translation>
    </message>
    <message>
        <source>copying values of %1 to %L2 variables</source>
        <translation>Kopieren der Werte von %1 auf %L2 Variablen</translation>
    </message>
    <message>
        <source>%1 has none.</source>
        <translation>%1 hat keine.</translation>
    </message>
    <message>
        <source>copying values of %1 to %2</source>
        <comment>two variables</comment>
        <translation>Kopieren der Werte von %1 auf %2</translation>
    </message>
</context>
<context>
    <name>CsvDialect</name>
    <message>
        <source>The file is damaged: it ends inside a character.</source>
        <translation>Die Datei ist beschädigt: Sie endet mitten in einem Zeichen.</translation>
    </message>
    <message>
        <source>The encoding &quot;%1&quot; is not known.</source>
        <translation>Die Kodierung „%1“ ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The character &quot;%1&quot; cannot separate cells.</source>
        <translation>Das Zeichen „%1“ kann keine Zellen trennen.</translation>
    </message>
</context>
<context>
    <name>CsvSource</name>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>The column has no name and is called %1.</source>
        <translation>Die Spalte hat keinen Namen und heißt %1.</translation>
    </message>
    <message>
        <source>Column %1 is called %2 too.</source>
        <translation>Auch Spalte %1 heißt %2.</translation>
    </message>
</context>
<context>
    <name>CsvTable</name>
    <message>
        <source>A zero byte: this is no text file, or of another encoding.</source>
        <translation>Ein Nullbyte: Dies ist keine Textdatei oder sie hat eine andere Kodierung.</translation>
    </message>
    <message>
        <source>The quotation marks that this row opens are never closed.</source>
        <translation>Die Anführungszeichen, die diese Zeile öffnet, werden nie geschlossen.</translation>
    </message>
    <message>
        <source>The file holds no rows.</source>
        <translation>Die Datei enthält keine Zeilen.</translation>
    </message>
    <message>
        <source>A quotation mark stands where none may stand.</source>
        <translation>Ein Anführungszeichen steht, wo keines stehen darf.</translation>
    </message>
    <message>
        <source>Number of cells: %1, in the first row: %2.</source>
        <translation>Anzahl der Zellen: %1, in der ersten Zeile: %2.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>The text is not valid in the encoding %1.</source>
        <translation>Der Text ist in der Kodierung %1 nicht gültig.</translation>
    </message>
</context>
<context>
    <name>DataFile</name>
    <message>
        <source>byte %1 of %2</source>
        <translation>Byte %1 von %2</translation>
    </message>
</context>
<context>
    <name>DescriptionPage</name>
    <message>
        <source>The Run</source>
        <translation>Der Lauf</translation>
    </message>
    <message>
        <source>What the run is called, who makes it, and where its data come from.</source>
        <translation>Wie der Lauf heißt, wer ihn macht und woher seine Daten kommen.</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>N&amp;ame</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>&amp;Label</translation>
    </message>
    <message>
        <source>&amp;Author</source>
        <translation>A&amp;utor</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projekt</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>Choose the Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>&amp;Source file</source>
        <translation>&amp;Quelldatei</translation>
    </message>
    <message>
        <source>Choose the Source File</source>
        <translation>Quelldatei wählen</translation>
    </message>
    <message>
        <source>Fil&amp;ter</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>Sele&amp;ction filter</source>
        <translation>Auswahlfilt&amp;er</translation>
    </message>
    <message>
        <source>F&amp;ile filter</source>
        <translation>&amp;Dateifilter</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Kennwor&amp;t</translation>
    </message>
    <message>
        <source>None. With one, only you will be able to read the file.</source>
        <translation>Keines. Mit einem können nur Sie die Datei lesen.</translation>
    </message>
    <message>
        <source>Create no &amp;ranges</source>
        <translation>&amp;Keine Bereiche anlegen</translation>
    </message>
    <message>
        <source>Put the codes for not applicable an&amp;d missing into the ranges</source>
        <translation>Codes für nicht zutreffend und fehlende Werte in die Bereiche aufne&amp;hmen</translation>
    </message>
    <message>
        <source>The file speaks of what the open dictionary does not have. It is not offered here and stays in the file as it is.</source>
        <translation>Die Datei nennt, was das geöffnete Wörterbuch nicht hat. Es wird hier nicht angeboten und bleibt in der Datei, wie es ist.</translation>
    </message>
    <message>
        <source>What the dictionary does not have</source>
        <translation>Was das Wörterbuch nicht hat</translation>
    </message>
</context>
<context>
    <name>DictionaryCheck</name>
    <message>
        <source>No problems found.</source>
        <translation>Keine Probleme gefunden.</translation>
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
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>The entity %1 has this name too.</source>
        <translation>Auch die Entität %1 hat diesen Namen.</translation>
    </message>
    <message>
        <source>Rename one of them.</source>
        <translation>Benennen Sie eine von ihnen um.</translation>
    </message>
    <message>
        <source>The entity %1 has the alias &quot;%2&quot; too.</source>
        <translation>Auch die Entität %1 hat den Alias „%2“.</translation>
    </message>
    <message>
        <source>Change one of the aliases.</source>
        <translation>Ändern Sie einen der Aliasse.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; is the name of another entity.</source>
        <translation>Der Alias „%1“ ist der Name einer anderen Entität.</translation>
    </message>
    <message>
        <source>Change the alias.</source>
        <translation>Ändern Sie den Alias.</translation>
    </message>
    <message>
        <source>The name of the entity is also the name of a group of variables.</source>
        <translation>Der Name der Entität ist auch der Name einer Gruppe von Variablen.</translation>
    </message>
    <message>
        <source>Rename the entity or the group.</source>
        <translation>Benennen Sie die Entität oder die Gruppe um.</translation>
    </message>
    <message>
        <source>Some types are spelt as documents spell them (&quot;%1&quot;) and some as the program does (&quot;%2&quot;).</source>
        <translation>Einige Typen sind geschrieben wie in Dokumenten („%1“), andere wie im Programm („%2“).</translation>
    </message>
    <message>
        <source>Use one spelling: the layer compares types letter by letter.</source>
        <translation>Verwenden Sie eine Schreibweise: Typen werden Buchstabe für Buchstabe verglichen.</translation>
    </message>
    <message>
        <source>The groups &quot;%1&quot; and &quot;%2&quot; differ in letter case or blanks only.</source>
        <translation>Die Gruppen „%1“ und „%2“ unterscheiden sich nur durch Groß- und Kleinschreibung oder Leerzeichen.</translation>
    </message>
    <message>
        <source>Give them the same name.</source>
        <translation>Geben Sie ihnen denselben Namen.</translation>
    </message>
    <message>
        <source>Two entities have the same name</source>
        <translation>Zwei Entitäten haben denselben Namen</translation>
    </message>
    <message>
        <source>Two entities have the same alias</source>
        <translation>Zwei Entitäten haben denselben Alias</translation>
    </message>
    <message>
        <source>An entity&apos;s alias is the name of another entity</source>
        <translation>Der Alias einer Entität ist der Name einer anderen</translation>
    </message>
    <message>
        <source>An entity is called as a group of variables</source>
        <translation>Eine Entität heißt wie eine Gruppe von Variablen</translation>
    </message>
    <message>
        <source>Types are spelt in two ways</source>
        <translation>Typen sind auf zwei Arten geschrieben</translation>
    </message>
    <message>
        <source>Two groups differ in letter case or blanks only</source>
        <translation>Zwei Gruppen unterscheiden sich nur durch Groß- und Kleinschreibung oder Leerzeichen</translation>
    </message>
    <message>
        <source>Another variable is called &quot;%1&quot; too.</source>
        <translation>Auch eine andere Variable heißt „%1“.</translation>
    </message>
    <message>
        <source>The name is easily mistaken for &quot;%1&quot;.</source>
        <translation>Der Name wird leicht mit „%1“ verwechselt.</translation>
    </message>
    <message>
        <source>Choose names that differ more.</source>
        <translation>Wählen Sie Namen, die sich stärker unterscheiden.</translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; has the alias &quot;%2&quot; too.</source>
        <translation>Auch die Variable „%1“ hat den Alias „%2“.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; is the name of another variable.</source>
        <translation>Der Alias „%1“ ist der Name einer anderen Variable.</translation>
    </message>
    <message>
        <source>The variable is called as an entity is.</source>
        <translation>Die Variable heißt wie eine Entität.</translation>
    </message>
    <message>
        <source>Rename the variable.</source>
        <translation>Benennen Sie die Variable um.</translation>
    </message>
    <message>
        <source>The group &quot;%1&quot; is also the name or the alias of a variable.</source>
        <translation>Die Gruppe „%1“ ist auch der Name oder der Alias einer Variable.</translation>
    </message>
    <message>
        <source>Change the group.</source>
        <translation>Ändern Sie die Gruppe.</translation>
    </message>
    <message>
        <source>The variable &quot;%1&quot; has the tag %2 too.</source>
        <translation>Auch die Variable „%1“ hat die Nummer %2.</translation>
    </message>
    <message>
        <source>Give each variable a tag of its own.</source>
        <translation>Geben Sie jeder Variable eine eigene Nummer.</translation>
    </message>
    <message>
        <source>The positions %1 to %2 overlap those of &quot;%3&quot;, which end at %4.</source>
        <translation>Die Positionen %1 bis %2 überschneiden sich mit denen von „%3“, die bei %4 enden.</translation>
    </message>
    <message>
        <source>Correct the start or the length of one of them.</source>
        <translation>Berichtigen Sie den Anfang oder die Länge einer von ihnen.</translation>
    </message>
    <message>
        <source>Two variables of an entity have the same name</source>
        <translation>Zwei Variablen einer Entität haben denselben Namen</translation>
    </message>
    <message>
        <source>Two variables of an entity have names that look alike</source>
        <translation>Zwei Variablen einer Entität haben ähnlich aussehende Namen</translation>
    </message>
    <message>
        <source>Two variables of an entity have the same alias</source>
        <translation>Zwei Variablen einer Entität haben denselben Alias</translation>
    </message>
    <message>
        <source>A variable&apos;s alias is the name of another variable</source>
        <translation>Der Alias einer Variable ist der Name einer anderen</translation>
    </message>
    <message>
        <source>A variable is called as an entity</source>
        <translation>Eine Variable heißt wie eine Entität</translation>
    </message>
    <message>
        <source>A group is called as a variable</source>
        <translation>Eine Gruppe heißt wie eine Variable</translation>
    </message>
    <message>
        <source>Two variables of an entity have the same tag</source>
        <translation>Zwei Variablen einer Entität haben dieselbe Nummer</translation>
    </message>
    <message>
        <source>Two variables lie on the same positions of a record</source>
        <translation>Zwei Variablen liegen auf denselben Positionen eines Datensatzes</translation>
    </message>
    <message>
        <source>The entity has no name.</source>
        <translation>Die Entität hat keinen Namen.</translation>
    </message>
    <message>
        <source>Give it a name.</source>
        <translation>Geben Sie ihr einen Namen.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is not valid.</source>
        <translation>Der Name „%1“ ist nicht gültig.</translation>
    </message>
    <message>
        <source>Use letters, digits and underscores only, and no digit at the start.</source>
        <translation>Verwenden Sie nur Buchstaben, Ziffern und Unterstriche und am Anfang keine Ziffer.</translation>
    </message>
    <message>
        <source>The name has %1 characters.</source>
        <translation>Der Name hat %1 Zeichen.</translation>
    </message>
    <message>
        <source>Shorten it to %1.</source>
        <translation>Kürzen Sie ihn auf %1.</translation>
    </message>
    <message>
        <source>The name begins or ends with blanks.</source>
        <translation>Der Name beginnt oder endet mit Leerzeichen.</translation>
    </message>
    <message>
        <source>Remove them.</source>
        <translation>Entfernen Sie sie.</translation>
    </message>
    <message>
        <source>The entity has no label.</source>
        <translation>Die Entität hat kein Label.</translation>
    </message>
    <message>
        <source>Say what one record of it stands for.</source>
        <translation>Geben Sie an, wofür einer ihrer Datensätze steht.</translation>
    </message>
    <message>
        <source>The entity has neither variables nor entities below it.</source>
        <translation>Die Entität hat weder Variablen noch Entitäten unter sich.</translation>
    </message>
    <message>
        <source>Add its variables or remove it.</source>
        <translation>Fügen Sie ihre Variablen hinzu oder entfernen Sie sie.</translation>
    </message>
    <message>
        <source>The level is %1 and should be %2.</source>
        <translation>Die Ebene ist %1 und sollte %2 sein.</translation>
    </message>
    <message>
        <source>Set the level to the depth in the tree: trees are shown by it.</source>
        <translation>Setzen Sie die Ebene auf die Tiefe im Baum: Danach werden Bäume gezeigt.</translation>
    </message>
    <message>
        <source>Perhaps &quot;%1&quot; is meant.</source>
        <translation>Vielleicht ist „%1“ gemeint.</translation>
    </message>
    <message>
        <source>Name a variable of this entity, or none.</source>
        <translation>Geben Sie eine Variable dieser Entität an oder keine.</translation>
    </message>
    <message>
        <source>The reference code variable &quot;%1&quot; does not exist in this entity.</source>
        <translation>Die Variable „%1“ des Referenzcodes gibt es in dieser Entität nicht.</translation>
    </message>
    <message>
        <source>The reference label variable &quot;%1&quot; does not exist in this entity.</source>
        <translation>Die Variable „%1“ des Referenzlabels gibt es in dieser Entität nicht.</translation>
    </message>
    <message>
        <source>The weight variable &quot;%1&quot; does not exist in this entity.</source>
        <translation>Die Gewichtsvariable „%1“ gibt es in dieser Entität nicht.</translation>
    </message>
    <message>
        <source>The weight variable holds text.</source>
        <translation>Die Gewichtsvariable enthält Text.</translation>
    </message>
    <message>
        <source>Make it a number or choose another weight variable.</source>
        <translation>Machen Sie sie zu einer Zahl oder wählen Sie eine andere Gewichtsvariable.</translation>
    </message>
    <message>
        <source>The entity is selectable but has no reference code variable.</source>
        <translation>Die Entität ist auswählbar, hat aber keine Variable des Referenzcodes.</translation>
    </message>
    <message>
        <source>Choose a reference code variable or make the entity not selectable.</source>
        <translation>Wählen Sie eine Variable des Referenzcodes oder machen Sie die Entität nicht auswählbar.</translation>
    </message>
    <message>
        <source>The entity is selectable but the one above it is not.</source>
        <translation>Die Entität ist auswählbar, die darüber aber nicht.</translation>
    </message>
    <message>
        <source>Make the entity above selectable too, or this one not.</source>
        <translation>Machen Sie auch die Entität darüber auswählbar oder diese nicht.</translation>
    </message>
    <message>
        <source>An entity has no name</source>
        <translation>Eine Entität hat keinen Namen</translation>
    </message>
    <message>
        <source>An entity&apos;s name holds other characters than names may</source>
        <translation>Der Name einer Entität enthält unzulässige Zeichen</translation>
    </message>
    <message>
        <source>An entity&apos;s name is too long</source>
        <translation>Der Name einer Entität ist zu lang</translation>
    </message>
    <message>
        <source>An entity&apos;s name has blanks around it</source>
        <translation>Der Name einer Entität ist von Leerzeichen umgeben</translation>
    </message>
    <message>
        <source>An entity has no label</source>
        <translation>Eine Entität hat kein Label</translation>
    </message>
    <message>
        <source>An entity holds nothing</source>
        <translation>Eine Entität enthält nichts</translation>
    </message>
    <message>
        <source>An entity&apos;s level is not its depth</source>
        <translation>Die Ebene einer Entität ist nicht ihre Tiefe</translation>
    </message>
    <message>
        <source>A reference code variable does not exist</source>
        <translation>Die Variable eines Referenzcodes gibt es nicht</translation>
    </message>
    <message>
        <source>A reference label variable does not exist</source>
        <translation>Die Variable eines Referenzlabels gibt es nicht</translation>
    </message>
    <message>
        <source>A weight variable does not exist</source>
        <translation>Eine Gewichtsvariable gibt es nicht</translation>
    </message>
    <message>
        <source>A weight variable holds text</source>
        <translation>Eine Gewichtsvariable enthält Text</translation>
    </message>
    <message>
        <source>A selectable entity has no reference code</source>
        <translation>Eine auswählbare Entität hat keinen Referenzcode</translation>
    </message>
    <message>
        <source>A selectable entity lies below one that is not</source>
        <translation>Eine auswählbare Entität liegt unter einer, die es nicht ist</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>The range %1 is reversed: nothing lies in it.</source>
        <translation>Der Bereich %1 ist umgekehrt: Nichts liegt darin.</translation>
    </message>
    <message>
        <source>Exchange its bounds.</source>
        <translation>Vertauschen Sie seine Grenzen.</translation>
    </message>
    <message>
        <source>The ranges %1 and %2 overlap.</source>
        <translation>Die Bereiche %1 und %2 überschneiden sich.</translation>
    </message>
    <message>
        <source>Join them or correct a bound.</source>
        <translation>Verbinden Sie sie oder berichtigen Sie eine Grenze.</translation>
    </message>
    <message>
        <source>The variable holds text but has a range.</source>
        <translation>Die Variable enthält Text, hat aber einen Bereich.</translation>
    </message>
    <message>
        <source>Remove the range or change the type.</source>
        <translation>Entfernen Sie den Bereich oder ändern Sie den Typ.</translation>
    </message>
    <message>
        <source>The range %1 of a whole number has fractions.</source>
        <translation>Der Bereich %1 einer ganzen Zahl hat Nachkommastellen.</translation>
    </message>
    <message>
        <source>Round the bounds or make the variable a real number.</source>
        <translation>Runden Sie die Grenzen oder machen Sie die Variable zu einer reellen Zahl.</translation>
    </message>
    <message>
        <source>The missing code %1 is a valid value.</source>
        <translation>Der Code %1 für fehlende Werte ist ein gültiger Wert.</translation>
    </message>
    <message>
        <source>Choose a code outside the ranges.</source>
        <translation>Wählen Sie einen Code außerhalb der Bereiche.</translation>
    </message>
    <message>
        <source>The not-applicable code %1 is a valid value.</source>
        <translation>Der Code %1 für nicht zutreffend ist ein gültiger Wert.</translation>
    </message>
    <message>
        <source>The missing and the not-applicable code are 0, which is a valid value.</source>
        <translation>Die Codes für fehlende Werte und für nicht zutreffend sind 0, das ist ein gültiger Wert.</translation>
    </message>
    <message>
        <source>Choose codes outside the ranges.</source>
        <translation>Wählen Sie Codes außerhalb der Bereiche.</translation>
    </message>
    <message>
        <source>Missing and not applicable have the same code, %1.</source>
        <translation>Fehlend und nicht zutreffend haben denselben Code, %1.</translation>
    </message>
    <message>
        <source>Give them different codes.</source>
        <translation>Geben Sie ihnen verschiedene Codes.</translation>
    </message>
    <message>
        <source>The category %1 &quot;%2&quot; lies outside the ranges.</source>
        <translation>Die Kategorie %1 „%2“ liegt außerhalb der Bereiche.</translation>
    </message>
    <message>
        <source>Widen a range, or remove the category.</source>
        <translation>Erweitern Sie einen Bereich oder entfernen Sie die Kategorie.</translation>
    </message>
    <message>
        <source>The code %1 stands for &quot;%2&quot; and for &quot;%3&quot;.</source>
        <translation>Der Code %1 steht für „%2“ und für „%3“.</translation>
    </message>
    <message>
        <source>Keep one of the two.</source>
        <translation>Behalten Sie eines von beiden.</translation>
    </message>
    <message>
        <source>The code &quot;%1&quot; is no whole number.</source>
        <translation>Der Code „%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>The code &quot;%1&quot; is no number.</source>
        <translation>Der Code „%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>Correct the code: documents would keep a number in its place.</source>
        <translation>Berichtigen Sie den Code: Dokumente würden an seiner Stelle eine Zahl speichern.</translation>
    </message>
    <message>
        <source>The category &quot;%1&quot; has no code.</source>
        <translation>Die Kategorie „%1“ hat keinen Code.</translation>
    </message>
    <message>
        <source>Give it a code or remove it.</source>
        <translation>Geben Sie ihr einen Code oder entfernen Sie sie.</translation>
    </message>
    <message>
        <source>The code %1 has no label.</source>
        <translation>Der Code %1 hat kein Label.</translation>
    </message>
    <message>
        <source>Say what it stands for.</source>
        <translation>Geben Sie an, wofür er steht.</translation>
    </message>
    <message>
        <source>The codes %1 and %2 have the same label, &quot;%3&quot;.</source>
        <translation>Die Codes %1 und %2 haben dasselbe Label, „%3“.</translation>
    </message>
    <message>
        <source>Say how they differ.</source>
        <translation>Geben Sie an, worin sie sich unterscheiden.</translation>
    </message>
    <message>
        <source>The code %1 does not fit into the length of %2.</source>
        <translation>Der Code %1 passt nicht in die Länge von %2.</translation>
    </message>
    <message>
        <source>Shorten the code or widen the variable.</source>
        <translation>Kürzen Sie den Code oder verbreitern Sie die Variable.</translation>
    </message>
    <message>
        <source>The range %1 does not fit into the length of %2.</source>
        <translation>Der Bereich %1 passt nicht in die Länge von %2.</translation>
    </message>
    <message>
        <source>Correct the range or the length.</source>
        <translation>Berichtigen Sie den Bereich oder die Länge.</translation>
    </message>
    <message>
        <source>A range&apos;s minimum is above its maximum</source>
        <translation>Das Minimum eines Bereichs liegt über seinem Maximum</translation>
    </message>
    <message>
        <source>Two ranges overlap</source>
        <translation>Zwei Bereiche überschneiden sich</translation>
    </message>
    <message>
        <source>A text has a range</source>
        <translation>Ein Text hat einen Bereich</translation>
    </message>
    <message>
        <source>A whole number&apos;s range has fractions</source>
        <translation>Der Bereich einer ganzen Zahl hat Nachkommastellen</translation>
    </message>
    <message>
        <source>A range does not fit into the field</source>
        <translation>Ein Bereich passt nicht in das Feld</translation>
    </message>
    <message>
        <source>A missing code is a valid value</source>
        <translation>Ein Code für fehlende Werte ist ein gültiger Wert</translation>
    </message>
    <message>
        <source>A not-applicable code is a valid value</source>
        <translation>Ein Code für nicht zutreffend ist ein gültiger Wert</translation>
    </message>
    <message>
        <source>No missing codes are chosen and 0 is a valid value</source>
        <translation>Es sind keine Codes für fehlende Werte gewählt und 0 ist ein gültiger Wert</translation>
    </message>
    <message>
        <source>Missing and not applicable have the same code</source>
        <translation>Fehlend und nicht zutreffend haben denselben Code</translation>
    </message>
    <message>
        <source>A category lies outside the ranges</source>
        <translation>Eine Kategorie liegt außerhalb der Bereiche</translation>
    </message>
    <message>
        <source>Two categories have the same code</source>
        <translation>Zwei Kategorien haben denselben Code</translation>
    </message>
    <message>
        <source>A number&apos;s category has a code that is no such number</source>
        <translation>Die Kategorie einer Zahl hat einen Code, der keine solche Zahl ist</translation>
    </message>
    <message>
        <source>A category has no code</source>
        <translation>Eine Kategorie hat keinen Code</translation>
    </message>
    <message>
        <source>A code does not fit into the field</source>
        <translation>Ein Code passt nicht in das Feld</translation>
    </message>
    <message>
        <source>A code has no label</source>
        <translation>Ein Code hat kein Label</translation>
    </message>
    <message>
        <source>Two codes have the same label</source>
        <translation>Zwei Codes haben dasselbe Label</translation>
    </message>
    <message>
        <source>The variable has no name.</source>
        <translation>Die Variable hat keinen Namen.</translation>
    </message>
    <message>
        <source>Use letters, digits and underscores only.</source>
        <translation>Verwenden Sie nur Buchstaben, Ziffern und Unterstriche.</translation>
    </message>
    <message>
        <source>The name begins with a digit.</source>
        <translation>Der Name beginnt mit einer Ziffer.</translation>
    </message>
    <message>
        <source>Begin it with a letter: statistics packages refuse it otherwise.</source>
        <translation>Beginnen Sie ihn mit einem Buchstaben: Statistikpakete lehnen ihn sonst ab.</translation>
    </message>
    <message>
        <source>The variable has no label.</source>
        <translation>Die Variable hat kein Label.</translation>
    </message>
    <message>
        <source>Say what it measures.</source>
        <translation>Geben Sie an, was sie misst.</translation>
    </message>
    <message>
        <source>The variable has no type; documents call it &quot;integer&quot;.</source>
        <translation>Die Variable hat keinen Typ; Dokumente nennen ihn „integer“.</translation>
    </message>
    <message>
        <source>Choose its type.</source>
        <translation>Wählen Sie ihren Typ.</translation>
    </message>
    <message>
        <source>The type &quot;%1&quot; is not known.</source>
        <translation>Der Typ „%1“ ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Use &quot;integer&quot;, &quot;real&quot; or &quot;string&quot;.</source>
        <translation>Verwenden Sie „integer“, „real“ oder „string“.</translation>
    </message>
    <message>
        <source>Write it &quot;%1&quot;: types are compared letter by letter.</source>
        <translation>Schreiben Sie ihn „%1“: Typen werden Buchstabe für Buchstabe verglichen.</translation>
    </message>
    <message>
        <source>The text has no size; documents give it the size 1.</source>
        <translation>Der Text hat keine Größe; Dokumente geben ihm die Größe 1.</translation>
    </message>
    <message>
        <source>Set how many characters it may have.</source>
        <translation>Legen Sie fest, wie viele Zeichen er haben darf.</translation>
    </message>
    <message>
        <source>Decimals are set to %1, but the type has none.</source>
        <translation>Dezimalstellen sind auf %1 gesetzt, aber der Typ hat keine.</translation>
    </message>
    <message>
        <source>Make it a real number or set the decimals to 0.</source>
        <translation>Machen Sie sie zu einer reellen Zahl oder setzen Sie die Dezimalstellen auf 0.</translation>
    </message>
    <message>
        <source>The decimals (%1) do not fit into the length (%2).</source>
        <translation>Die Dezimalstellen (%1) passen nicht in die Länge (%2).</translation>
    </message>
    <message>
        <source>Correct the decimals or the length.</source>
        <translation>Berichtigen Sie die Dezimalstellen oder die Länge.</translation>
    </message>
    <message>
        <source>The tag %1 is not between 0 and %2.</source>
        <translation>Die Nummer %1 liegt nicht zwischen 0 und %2.</translation>
    </message>
    <message>
        <source>Choose another tag: it would be changed by the next edit.</source>
        <translation>Wählen Sie eine andere Nummer: Die nächste Bearbeitung würde sie ändern.</translation>
    </message>
    <message>
        <source>The variable is a lookup, but its entity is not selectable.</source>
        <translation>Die Variable ist eine Nachschlagetabelle, ihre Entität ist aber nicht auswählbar.</translation>
    </message>
    <message>
        <source>Make the entity selectable: lookups are taken by selectable entities only.</source>
        <translation>Machen Sie die Entität auswählbar: Nur auswählbare Entitäten nehmen Nachschlagetabellen an.</translation>
    </message>
    <message>
        <source>The record has a start position for it but no length.</source>
        <translation>Der Datensatz hat dafür eine Anfangsposition, aber keine Länge.</translation>
    </message>
    <message>
        <source>Set the length.</source>
        <translation>Legen Sie die Länge fest.</translation>
    </message>
    <message>
        <source>A variable has no name</source>
        <translation>Eine Variable hat keinen Namen</translation>
    </message>
    <message>
        <source>A variable&apos;s name holds other characters than names may</source>
        <translation>Der Name einer Variable enthält unzulässige Zeichen</translation>
    </message>
    <message>
        <source>A variable&apos;s name begins with a digit</source>
        <translation>Der Name einer Variable beginnt mit einer Ziffer</translation>
    </message>
    <message>
        <source>A variable&apos;s name has blanks around it</source>
        <translation>Der Name einer Variable ist von Leerzeichen umgeben</translation>
    </message>
    <message>
        <source>A variable has no label</source>
        <translation>Eine Variable hat kein Label</translation>
    </message>
    <message>
        <source>A variable has no type</source>
        <translation>Eine Variable hat keinen Typ</translation>
    </message>
    <message>
        <source>A type is not known</source>
        <translation>Ein Typ ist nicht bekannt</translation>
    </message>
    <message>
        <source>A text has no size</source>
        <translation>Ein Text hat keine Größe</translation>
    </message>
    <message>
        <source>A whole number or text has decimals</source>
        <translation>Eine ganze Zahl oder ein Text hat Nachkommastellen</translation>
    </message>
    <message>
        <source>The decimals do not fit into the field</source>
        <translation>Die Dezimalstellen passen nicht in das Feld</translation>
    </message>
    <message>
        <source>A tag is out of bounds</source>
        <translation>Eine Nummer liegt außerhalb der Grenzen</translation>
    </message>
    <message>
        <source>A lookup stands in an entity that is not selectable</source>
        <translation>Eine Nachschlagetabelle steht in einer nicht auswählbaren Entität</translation>
    </message>
    <message>
        <source>A field has a start but no length</source>
        <translation>Ein Feld hat einen Anfang, aber keine Länge</translation>
    </message>
    <message>
        <source>Errors: %L1, warnings: %L2, notes: %L3.</source>
        <translation>Fehler: %L1, Warnungen: %L2, Hinweise: %L3.</translation>
    </message>
</context>
<context>
    <name>DictionaryDifference</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entität</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Satzaufbau</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Value label</source>
        <translation>Wertelabel</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>%1 moved from position %2 to %3</source>
        <translation>%1 von Position %2 nach %3 verschoben</translation>
    </message>
    <message>
        <source>%1 moved to %2</source>
        <translation>%1 nach %2 verschoben</translation>
    </message>
    <message>
        <source>%1 renamed to %2</source>
        <translation>%1 in %2 umbenannt</translation>
    </message>
    <message>
        <source>%1: %2 changed from %3 to %4</source>
        <translation>%1: %2 von %3 in %4 geändert</translation>
    </message>
    <message>
        <source>No differences.</source>
        <translation>Keine Unterschiede.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>code variable</source>
        <translation>Codevariable</translation>
    </message>
    <message>
        <source>label variable</source>
        <translation>Labelvariable</translation>
    </message>
    <message>
        <source>weight variable</source>
        <translation>Gewichtsvariable</translation>
    </message>
    <message>
        <source>documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>level</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>virtual</source>
        <translation>„virtuell“</translation>
    </message>
    <message>
        <source>selectable</source>
        <translation>„auswählbar“</translation>
    </message>
    <message>
        <source>marked for deletion</source>
        <translation>Löschmarkierung</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>file name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>Dezimalstellen</translation>
    </message>
    <message>
        <source>field size</source>
        <translation>Feldgröße</translation>
    </message>
    <message>
        <source>position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>missing code</source>
        <translation>Code für fehlende Werte</translation>
    </message>
    <message>
        <source>not-applicable code</source>
        <translation>Code für nicht zutreffend</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>checked</source>
        <translation>Häkchen</translation>
    </message>
    <message>
        <source>local</source>
        <translation>„lokal“</translation>
    </message>
    <message>
        <source>record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>lookup</source>
        <translation>Nachschlagetabelle</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Code</translation>
    </message>
</context>
<context>
    <name>DictionaryFile</name>
    <message>
        <source>There is no root entity.</source>
        <translation>Es gibt keine Wurzelentität.</translation>
    </message>
    <message>
        <source>There are %1 root entities instead of one.</source>
        <translation>Es gibt %1 Wurzelentitäten statt einer.</translation>
    </message>
    <message>
        <source>This is a run configuration, not a dictionary.</source>
        <translation>Das ist eine Laufkonfiguration, kein Wörterbuch.</translation>
    </message>
</context>
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>Entities</source>
        <translation>Entitäten</translation>
    </message>
    <message>
        <source>Entity name already exists as a group name</source>
        <translation>Der Name der Entität ist schon der Name einer Gruppe</translation>
    </message>
    <message>
        <source>Entity name already exists</source>
        <translation>Der Name der Entität ist schon vergeben</translation>
    </message>
    <message>
        <source>Entity name already exists as an alias name</source>
        <translation>Der Name der Entität ist schon als Alias vergeben</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Ungültiger Text</translation>
    </message>
    <message>
        <source>Chain with length greater than 50</source>
        <translation>Text mit mehr als 50 Zeichen</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>DICTIONARY</source>
        <translation>WOERTERBUCH</translation>
    </message>
    <message>
        <source>New dictionary</source>
        <translation>Neues Wörterbuch</translation>
    </message>
    <message>
        <source>It was opened for reading only. Save it under another name.</source>
        <translation>Es wurde nur zum Lesen geöffnet. Speichern Sie es unter anderem Namen.</translation>
    </message>
    <message>
        <source>Opening “%1”…</source>
        <translation>„%1“ wird geöffnet…</translation>
    </message>
    <message>
        <source>Saving “%1”…</source>
        <translation>„%1“ wird gespeichert…</translation>
    </message>
    <message>
        <source>Recovering “%1”…</source>
        <translation>„%1“ wird wiederhergestellt…</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>There is no file yet to be saved to.</source>
        <translation>Es gibt noch keine Datei, in die gespeichert wird.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>%1 has been changed since it was opened.</source>
        <translation>%1 wurde seit dem Öffnen geändert.</translation>
    </message>
    <message>
        <source>%1 holds what cannot be kept:</source>
        <translation>%1 enthält, was nicht erhalten werden kann:</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>is there more than once; only the last is kept</source>
        <translation>steht mehr als einmal da; nur das letzte wird behalten</translation>
    </message>
    <message>
        <source>%1 has more digits than can be kept</source>
        <translation>%1 hat mehr Ziffern, als erhalten werden können</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>%1 is not written: it could not be read again, because more is nested in it than a file may have.</source>
        <translation>%1 wird nicht geschrieben: Es könnte nicht wieder gelesen werden, denn darin ist mehr ineinander verschachtelt, als in einer Datei sein darf.</translation>
    </message>
</context>
<context>
    <name>EditTogetherDialog</name>
    <message>
        <source>Edit Variables Together</source>
        <translation>Variablen gemeinsam bearbeiten</translation>
    </message>
    <message>
        <source>%L1 variables are selected. What is ticked is written to all of them; the rest stays as it is.</source>
        <translation>%L1 Variablen sind ausgewählt. Was angekreuzt ist, wird in alle geschrieben; der Rest bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>&amp;Write to All</source>
        <translation>In alle &amp;schreiben</translation>
    </message>
    <message>
        <source>Write %1</source>
        <translation>%1 schreiben</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>mehrere Werte</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>edit of %L1 variables</source>
        <translation>Bearbeiten von %L1 Variablen</translation>
    </message>
    <message>
        <source>Not everything could be written:</source>
        <translation>Nicht alles konnte geschrieben werden:</translation>
    </message>
    <message>
        <source>will be emptied</source>
        <translation>wird geleert</translation>
    </message>
</context>
<context>
    <name>EntitiesPage</name>
    <message>
        <source>Check the se&amp;quence of its records</source>
        <translation>Reihenfolge der Datensätze &amp;prüfen</translation>
    </message>
    <message>
        <source>Create S&amp;DC</source>
        <translation>S&amp;DC anlegen</translation>
    </message>
    <message>
        <source>Mar&amp;k for deletion</source>
        <translation>Zum &amp;Löschen vormerken</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entitäten</translation>
    </message>
    <message>
        <source>Tick the entities that take part. Space switches the tick of the current one.</source>
        <translation>Setzen Sie Häkchen bei den Entitäten, die teilnehmen. Die Leertaste schaltet das Häkchen der aktuellen um.</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entitäten</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Select N&amp;one</source>
        <translation>&amp;Keine auswählen</translation>
    </message>
    <message>
        <source>&amp;Record type</source>
        <translation>Satza&amp;rt</translation>
    </message>
    <message>
        <source>How %1 takes part</source>
        <translation>Wie %1 teilnimmt</translation>
    </message>
    <message>
        <source>%1 does not take part</source>
        <translation>%1 nimmt nicht teil</translation>
    </message>
</context>
<context>
    <name>EntityForm</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Entity name</source>
        <translation>Name der Entität</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Entity label</source>
        <translation>Label der Entität</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Entity alias</source>
        <translation>Alias der Entität</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Reference code variable</source>
        <translation>Variable des Referenzcodes</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Reference label variable</source>
        <translation>Variable des Referenzlabels</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Weight variable</source>
        <translation>Gewichtsvariable</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Auswählbar</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtuell</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Entity documentation</source>
        <translation>Dokumentation der Entität</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>EntityTreePanel</name>
    <message>
        <source>Entities</source>
        <translation>Entitäten</translation>
    </message>
    <message>
        <source>ENTITY</source>
        <translation>ENTITAET</translation>
    </message>
    <message>
        <source>adding %1</source>
        <translation>Hinzufügen von %1</translation>
    </message>
    <message>
        <source>duplicating %1</source>
        <translation>Duplizieren von %1</translation>
    </message>
    <message>
        <source>removing %1</source>
        <translation>Entfernen von %1</translation>
    </message>
    <message>
        <source>moving %1</source>
        <translation>Verschieben von %1</translation>
    </message>
</context>
<context>
    <name>ExpressionCheck</name>
    <message>
        <source>A value or a variable is missing at the end.</source>
        <translation>Am Ende fehlt ein Wert oder eine Variable.</translation>
    </message>
    <message>
        <source>This parenthesis is never closed.</source>
        <translation>Diese Klammer wird nie geschlossen.</translation>
    </message>
    <message>
        <source>A value or a variable is missing before “%1”.</source>
        <translation>Vor „%1“ fehlt ein Wert oder eine Variable.</translation>
    </message>
    <message>
        <source>An operator is missing before “%1”.</source>
        <translation>Vor „%1“ fehlt ein Operator.</translation>
    </message>
    <message>
        <source>This parenthesis was never opened.</source>
        <translation>Diese Klammer wurde nie geöffnet.</translation>
    </message>
    <message>
        <source>“%1” has no end.</source>
        <translation>„%1“ hat kein Ende.</translation>
    </message>
    <message>
        <source>“%1” means nothing here.</source>
        <translation>„%1“ bedeutet hier nichts.</translation>
    </message>
    <message>
        <source>There is no entity “%1”.</source>
        <translation>Es gibt keine Entität „%1“.</translation>
    </message>
    <message>
        <source>There is neither an entity nor a variable “%1”.</source>
        <translation>Es gibt weder eine Entität noch eine Variable „%1“.</translation>
    </message>
    <message>
        <source>A variable needs its entity: “%1”.</source>
        <translation>Eine Variable braucht ihre Entität: „%1“.</translation>
    </message>
    <message>
        <source>The name of a variable is missing after “%1”.</source>
        <translation>Nach „%1“ fehlt der Name einer Variable.</translation>
    </message>
    <message>
        <source>The entity “%1” has no variable “%2”.</source>
        <translation>Die Entität „%1“ hat keine Variable „%2“.</translation>
    </message>
</context>
<context>
    <name>ExpressionDialog</name>
    <message>
        <source>Build Expression</source>
        <translation>Ausdruck erstellen</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>&amp;Ausdruck</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>Drag items here or type, for instance PERSON.AGE &gt;= 15 AND PERSON.SEX = 1</source>
        <translation>Ziehen Sie Einträge hierher oder schreiben Sie, zum Beispiel PERSON.AGE &gt;= 15 AND PERSON.SEX = 1</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entitäten</translation>
    </message>
    <message>
        <source>The dictionary has no entities.</source>
        <translation>Das Wörterbuch hat keine Entitäten.</translation>
    </message>
    <message>
        <source>Insert Entity</source>
        <translation>Entität einfügen</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variablen</translation>
    </message>
    <message>
        <source>The entity has no variables.</source>
        <translation>Die Entität hat keine Variablen.</translation>
    </message>
    <message>
        <source>Insert Variable</source>
        <translation>Variable einfügen</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Kategorien</translation>
    </message>
    <message>
        <source>The variable has no value labels.</source>
        <translation>Die Variable hat keine Wertelabels.</translation>
    </message>
    <message>
        <source>Insert Category</source>
        <translation>Kategorie einfügen</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>not equal</source>
        <translation>ungleich</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>kleiner als</translation>
    </message>
    <message>
        <source>less than or equal</source>
        <translation>kleiner oder gleich</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>größer als</translation>
    </message>
    <message>
        <source>greater than or equal</source>
        <translation>größer oder gleich</translation>
    </message>
    <message>
        <source>both conditions hold</source>
        <translation>beide Bedingungen treffen zu</translation>
    </message>
    <message>
        <source>one of the conditions holds</source>
        <translation>eine der Bedingungen trifft zu</translation>
    </message>
    <message>
        <source>the condition does not hold</source>
        <translation>die Bedingung trifft nicht zu</translation>
    </message>
    <message>
        <source>opening parenthesis</source>
        <translation>öffnende Klammer</translation>
    </message>
    <message>
        <source>closing parenthesis</source>
        <translation>schließende Klammer</translation>
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
        <source>C&amp;opy to Clipboard</source>
        <translation>In die Z&amp;wischenablage kopieren</translation>
    </message>
    <message>
        <source>&amp;Insert into Notes</source>
        <translation>In die Notizen e&amp;infügen</translation>
    </message>
    <message>
        <source>Insert the expression into “%1”</source>
        <translation>Den Ausdruck in „%1“ einfügen</translation>
    </message>
    <message>
        <source>The expression is empty.</source>
        <translation>Der Ausdruck ist leer.</translation>
    </message>
    <message>
        <source>The expression is complete.</source>
        <translation>Der Ausdruck ist vollständig.</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Die Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Otherwise they are lost.</source>
        <translation>Sonst gehen sie verloren.</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Wörterbuch öffnen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>dictionary</source>
        <translation>woerterbuch</translation>
    </message>
    <message>
        <source>Save Dictionary As</source>
        <translation>Wörterbuch speichern unter</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Go back to “%1” as it was saved?</source>
        <translation>Zum gespeicherten Stand von „%1“ zurückkehren?</translation>
    </message>
    <message>
        <source>All changes since then are lost, and so is what can be undone.</source>
        <translation>Alle Änderungen seitdem gehen verloren, auch was rückgängig gemacht werden kann.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>“%1” is open in another window.</source>
        <translation>„%1“ ist in einem anderen Fenster geöffnet.</translation>
    </message>
    <message>
        <source>Changes that are made in both windows have to be brought together by hand. Open it here to read it only?</source>
        <translation>Änderungen in beiden Fenstern müssen von Hand zusammengeführt werden. Hier nur zum Lesen öffnen?</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Nur zum Lesen öffnen</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Trotzdem öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Overwrite it nevertheless?</source>
        <translation>Trotzdem überschreiben?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Quillon Workbench</source>
        <translation>Quillon Workbench</translation>
    </message>
    <message>
        <source>“%1” cannot be saved.</source>
        <translation>„%1“ kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>Trotzdem speichern</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>Find</name>
    <message>
        <source>%1, code %2</source>
        <comment>a variable and one of its codes</comment>
        <translation>%1, Code %2</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Value label</source>
        <translation>Wertelabel</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <source>Find in the dictionary</source>
        <translation>Im Wörterbuch suchen</translation>
    </message>
    <message>
        <source>Find in the whole dictionary</source>
        <translation>Im ganzen Wörterbuch suchen</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß/klein beachten</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Ganze Wörter</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Was gefunden wurde</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Aliases</source>
        <translation>Aliasse</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Value labels</source>
        <translation>Wertelabels</translation>
    </message>
    <message>
        <source>Find in: %1</source>
        <translation>Suchen in: %1</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Type what to find: names, aliases, labels, groups, codes or value labels.</source>
        <translation>Schreiben Sie, was gesucht wird: Namen, Aliasse, Labels, Gruppen, Codes oder Wertelabels.</translation>
    </message>
    <message>
        <source>Found: %L1</source>
        <translation>Gefunden: %L1</translation>
    </message>
    <message>
        <source>There is more: only the first %L1 are listed.</source>
        <translation>Es gibt mehr: Nur die ersten %L1 sind aufgeführt.</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Suggestion</source>
        <translation>Vorschlag</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>%L1 changes</source>
        <translation>%L1 Änderungen</translation>
    </message>
    <message>
        <source>rename of %1</source>
        <translation>Umbenennen von %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a property and what has it</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>change of %1</source>
        <translation>Änderung von %1</translation>
    </message>
</context>
<context>
    <name>InputFile</name>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>It is a folder, not a file.</source>
        <translation>Es ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>It is a device or a pipe, not a file.</source>
        <translation>Es ist ein Gerät oder eine Pipe, keine Datei.</translation>
    </message>
</context>
<context>
    <name>LabelSetsDialog</name>
    <message>
        <source>Identical Label Sets</source>
        <translation>Gleiche Labelsätze</translation>
    </message>
    <message>
        <source>Change All</source>
        <translation>Alle ändern</translation>
    </message>
    <message>
        <source>No two variables have the same value labels.</source>
        <translation>Keine zwei Variablen haben dieselben Wertelabels.</translation>
    </message>
    <message>
        <source>Identical label sets</source>
        <translation>Gleiche Labelsätze</translation>
    </message>
    <message>
        <source>&amp;Sets that variables share</source>
        <translation>&amp;Sätze, die Variablen gemeinsam haben</translation>
    </message>
    <message>
        <source>No value labels.</source>
        <translation>Keine Wertelabels.</translation>
    </message>
    <message>
        <source>Labels of the set</source>
        <translation>Labels des Satzes</translation>
    </message>
    <message>
        <source>&amp;Labels of the set</source>
        <translation>&amp;Labels des Satzes</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Variables that have the set</source>
        <translation>Variablen, die den Satz haben</translation>
    </message>
    <message>
        <source>&amp;Change All</source>
        <translation>Alle ä&amp;ndern</translation>
    </message>
    <message>
        <source>&amp;Change in %L1 Variables</source>
        <translation>In %L1 Variablen ä&amp;ndern</translation>
    </message>
    <message>
        <source>value labels of %L1 variables</source>
        <translation>Wertelabels von %L1 Variablen</translation>
    </message>
    <message>
        <source>%L1 variables: %2</source>
        <comment>how many have these labels</comment>
        <translation>%L1 Variablen: %2</translation>
    </message>
    <message>
        <source>Change or reset the labels before you go to another set.</source>
        <translation>Ändern Sie die Labels oder setzen Sie sie zurück, bevor Sie zu einem anderen Satz gehen.</translation>
    </message>
    <message>
        <source>&amp;Variables that have the set</source>
        <translation>&amp;Variablen, die den Satz haben</translation>
    </message>
    <message>
        <source>Change the labels in all variables that have the set?</source>
        <translation>Die Labels in allen Variablen ändern, die den Satz haben?</translation>
    </message>
    <message>
        <source>Otherwise what you have edited is lost.</source>
        <translation>Sonst geht verloren, was Sie bearbeitet haben.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
</context>
<context>
    <name>LookupFile</name>
    <message>
        <source>No column is called &quot;id&quot;.</source>
        <translation>Keine Spalte heißt „id“.</translation>
    </message>
    <message>
        <source>The id is empty.</source>
        <translation>Die Kennung ist leer.</translation>
    </message>
    <message>
        <source>The id &quot;%1&quot; stands in line %2 too.</source>
        <translation>Die Kennung „%1“ steht auch in Zeile %2.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Entities</source>
        <translation>Entitäten</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entität</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Quellen</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Problems (%L1)</source>
        <translation>Probleme (%L1)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
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
        <source>About Quillon Workbench</source>
        <translation>Über Quillon Workbench</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quillon Workbench %1&lt;/h3&gt;&lt;p&gt;An editor for data dictionaries.&lt;/p&gt;&lt;p&gt;Icons: Bootstrap Icons, MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quillon Workbench %1&lt;/h3&gt;&lt;p&gt;Ein Editor für Datenwörterbücher.&lt;/p&gt;&lt;p&gt;Symbole: Bootstrap Icons, MIT-Lizenz.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1[*] – Quillon Workbench</source>
        <translation>%1[*] – Quillon Workbench</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept safe: %1</source>
        <translation>Ungespeicherte Änderungen können nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>%1[*] (read-only) – Quillon Workbench</source>
        <translation>%1[*] (schreibgeschützt) – Quillon Workbench</translation>
    </message>
</context>
<context>
    <name>MoveDialog</name>
    <message>
        <source>Move %1</source>
        <translation>%1 verschieben</translation>
    </message>
    <message>
        <source>Move %L1 Variables</source>
        <translation>%L1 Variablen verschieben</translation>
    </message>
    <message>
        <source>What will change</source>
        <translation>Was sich ändern wird</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>Put it &amp;below:</source>
        <translation>Einfügen &amp;unter:</translation>
    </message>
    <message>
        <source>Put &amp;into:</source>
        <translation>Einfügen &amp;in:</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entitäten</translation>
    </message>
    <message>
        <source>Choose an entity.</source>
        <translation>Wählen Sie eine Entität.</translation>
    </message>
    <message>
        <source>%1 will stand below %2, after what is there.</source>
        <translation>%1 wird unter %2 stehen, nach dem, was dort ist.</translation>
    </message>
    <message>
        <source>There are %L1 more changes.</source>
        <translation>Es gibt noch %L1 weitere Änderungen.</translation>
    </message>
    <message>
        <source>Variables that will stand at the end of %2: %L1</source>
        <comment>%1 is their number</comment>
        <translation>Variablen, die am Ende von %2 stehen werden: %L1</translation>
    </message>
    <message>
        <source>moving %1 to %2</source>
        <translation>Verschieben von %1 nach %2</translation>
    </message>
    <message>
        <source>moving %L1 variables to %2</source>
        <translation>Verschieben von %L1 Variablen nach %2</translation>
    </message>
</context>
<context>
    <name>Paste</name>
    <message>
        <source>%1 and %L2 more</source>
        <translation>%1 und %L2 weitere</translation>
    </message>
    <message>
        <source>There is no such column, so it was left out.</source>
        <translation>Diese Spalte gibt es nicht, sie wurde daher ausgelassen.</translation>
    </message>
    <message>
        <source>There are no such columns, so they were left out.</source>
        <translation>Diese Spalten gibt es nicht, sie wurden daher ausgelassen.</translation>
    </message>
    <message>
        <source>There is no text on the clipboard.</source>
        <translation>In der Zwischenablage ist kein Text.</translation>
    </message>
    <message>
        <source>This line and those below</source>
        <translation>Diese Zeile und die darunter</translation>
    </message>
    <message>
        <source>Pasting was stopped.</source>
        <translation>Das Einfügen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <source>Cells after the first %L1</source>
        <translation>Zellen nach den ersten %L1</translation>
    </message>
    <message>
        <source>There is no column for them.</source>
        <translation>Für sie gibt es keine Spalte.</translation>
    </message>
    <message>
        <source>Line %L1: %2. %3</source>
        <comment>what was refused, and why</comment>
        <translation>Zeile %L1: %2. %3</translation>
    </message>
</context>
<context>
    <name>ProblemsPanel</name>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Warnungen und Fehler</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Nur Fehler</translation>
    </message>
    <message>
        <source>Problems to show</source>
        <translation>Gezeigte Probleme</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Looking for problems…</source>
        <translation>Nach Problemen wird gesucht…</translation>
    </message>
    <message>
        <source>No problems of this severity.</source>
        <translation>Keine Probleme dieser Schwere.</translation>
    </message>
    <message>
        <source>&amp;Display:</source>
        <translation>&amp;Zeigen:</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RangeTarget</name>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>This is no whole number.</source>
        <translation>Dies ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>This is no number.</source>
        <translation>Dies ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>RangesPanel</name>
    <message>
        <source>Ranges</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>No ranges: every value is valid.</source>
        <translation>Keine Bereiche: Jeder Wert ist gültig.</translation>
    </message>
    <message>
        <source>adding a range to %1</source>
        <translation>Hinzufügen eines Bereichs zu %1</translation>
    </message>
    <message>
        <source>removing ranges of %1</source>
        <translation>Entfernen von Bereichen von %1</translation>
    </message>
    <message>
        <source>moving ranges of %1</source>
        <translation>Verschieben von Bereichen von %1</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Zuletzt &amp;geöffnet</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Noch keine Dateien</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Another window has recovered these changes.</source>
        <translation>Ein anderes Fenster hat diese Änderungen wiederhergestellt.</translation>
    </message>
    <message>
        <source>The changes are damaged.</source>
        <translation>Die Änderungen sind beschädigt.</translation>
    </message>
</context>
<context>
    <name>RecoveryCommands</name>
    <message>
        <source>Quillon Workbench</source>
        <translation>Quillon Workbench</translation>
    </message>
    <message>
        <source>The changes cannot be recovered.</source>
        <translation>Die Änderungen können nicht wiederhergestellt werden.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>It was never saved.</source>
        <translation>Sie wurde nie gespeichert.</translation>
    </message>
    <message>
        <source>It is as it was.</source>
        <translation>Sie ist unverändert.</translation>
    </message>
    <message>
        <source>It has been changed since.</source>
        <translation>Sie wurde seitdem geändert.</translation>
    </message>
    <message>
        <source>It is gone.</source>
        <translation>Sie ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The workbench ended before these changes were saved. Recover them to see them and to save them. The file stays as it is until then.</source>
        <translation>Das Programm endete, bevor diese Änderungen gespeichert waren. Stellen Sie sie wieder her, um sie zu sehen und zu speichern. Bis dahin bleibt die Datei, wie sie ist.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Wörterbuch</translation>
    </message>
    <message>
        <source>Changed on</source>
        <translation>Geändert am</translation>
    </message>
    <message>
        <source>The file</source>
        <translation>Die Datei</translation>
    </message>
    <message>
        <source>New dictionary</source>
        <translation>Neues Wörterbuch</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>Delete unsaved changes</source>
        <translation>Ungespeicherte Änderungen löschen</translation>
    </message>
    <message>
        <source>Delete the unsaved changes to “%1”?</source>
        <translation>Die ungespeicherten Änderungen an „%1“ löschen?</translation>
    </message>
    <message>
        <source>They cannot be had again.</source>
        <translation>Sie lassen sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>ReferenceList</name>
    <message>
        <source>Filter %1</source>
        <translation>%1 filtern</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Names and labels</source>
        <translation>Namen und Labels</translation>
    </message>
    <message>
        <source>What to show of %1</source>
        <translation>Was gezeigt wird: %1</translation>
    </message>
    <message>
        <source>Nothing matches the filter.</source>
        <translation>Nichts passt zum Filter.</translation>
    </message>
</context>
<context>
    <name>RunCommands</name>
    <message>
        <source>Open Run Configuration</source>
        <translation>Laufkonfiguration öffnen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>The run configuration was made for this dictionary, which is not there. It is shown with the dictionary that is open.</source>
        <translation>Die Laufkonfiguration wurde für dieses Wörterbuch erstellt, das nicht da ist. Sie wird mit dem geöffneten Wörterbuch gezeigt.</translation>
    </message>
    <message>
        <source>“%1” was made for another dictionary than the one that is open.</source>
        <translation>„%1“ wurde für ein anderes Wörterbuch als das geöffnete erstellt.</translation>
    </message>
    <message>
        <source>It was made for “%1”. Open that dictionary instead of “%2”?</source>
        <translation>Sie wurde für „%1“ erstellt. Dieses Wörterbuch anstelle von „%2“ öffnen?</translation>
    </message>
    <message>
        <source>&amp;Open It</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Keep the Open One</source>
        <translation>Geöffnetes &amp;behalten</translation>
    </message>
</context>
<context>
    <name>RunConfigurationFile</name>
    <message>
        <source>There is no run configuration.</source>
        <translation>Es gibt keine Laufkonfiguration.</translation>
    </message>
    <message>
        <source>This is a dictionary, not a run configuration.</source>
        <translation>Das ist ein Wörterbuch, keine Laufkonfiguration.</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>What is missing</source>
        <translation>Was fehlt</translation>
    </message>
</context>
<context>
    <name>RunWizard</name>
    <message>
        <source>New Run Configuration</source>
        <translation>Neue Laufkonfiguration</translation>
    </message>
    <message>
        <source>Run Configuration %1</source>
        <translation>Laufkonfiguration %1</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Leave without saving the run configuration?</source>
        <translation>Verlassen, ohne die Laufkonfiguration zu speichern?</translation>
    </message>
    <message>
        <source>What you chose here is lost.</source>
        <translation>Was Sie hier gewählt haben, geht verloren.</translation>
    </message>
</context>
<context>
    <name>RunWords</name>
    <message>
        <source>Give the run a name.</source>
        <translation>Geben Sie dem Lauf einen Namen.</translation>
    </message>
    <message>
        <source>Tick at least one entity that takes part.</source>
        <translation>Setzen Sie bei mindestens einer Entität ein Häkchen.</translation>
    </message>
    <message>
        <source>Tick at least one variable of %1, or go back and leave it out.</source>
        <translation>Setzen Sie bei mindestens einer Variable von %1 ein Häkchen oder gehen Sie zurück und lassen Sie sie aus.</translation>
    </message>
    <message>
        <source>one without a name</source>
        <translation>eine ohne Namen</translation>
    </message>
    <message>
        <source>Entities that the dictionary does not have: %1</source>
        <translation>Entitäten, die das Wörterbuch nicht hat: %1</translation>
    </message>
    <message>
        <source>Variables that %1 does not have: %2</source>
        <translation>Variablen, die %1 nicht hat: %2</translation>
    </message>
    <message>
        <source>The record type is %1.</source>
        <translation>Die Satzart ist %1.</translation>
    </message>
    <message>
        <source>The sequence of its records is not checked.</source>
        <translation>Die Reihenfolge der Datensätze wird nicht geprüft.</translation>
    </message>
    <message>
        <source>SDC is created.</source>
        <translation>SDC wird angelegt.</translation>
    </message>
    <message>
        <source>It is marked for deletion.</source>
        <translation>Sie ist zum Löschen vorgemerkt.</translation>
    </message>
    <message>
        <source>Label: %1</source>
        <translation>Label: %1</translation>
    </message>
    <message>
        <source>Author: %1</source>
        <translation>Autor: %1</translation>
    </message>
    <message>
        <source>Project: %1</source>
        <translation>Projekt: %1</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Ordner: %1</translation>
    </message>
    <message>
        <source>Source file: %1</source>
        <translation>Quelldatei: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>Selection filter: %1</source>
        <translation>Auswahlfilter: %1</translation>
    </message>
    <message>
        <source>File filter: %1</source>
        <translation>Dateifilter: %1</translation>
    </message>
    <message>
        <source>No ranges are created.</source>
        <translation>Es werden keine Bereiche angelegt.</translation>
    </message>
    <message>
        <source>The codes for not applicable and missing are in the ranges.</source>
        <translation>Die Codes für nicht zutreffend und fehlende Werte sind in den Bereichen.</translation>
    </message>
    <message>
        <source>The password stands in the file as it is. Only you will be able to read the file.</source>
        <translation>Das Kennwort steht unverändert in der Datei. Nur Sie können die Datei lesen.</translation>
    </message>
    <message>
        <source>The run is called %1.</source>
        <translation>Der Lauf heißt %1.</translation>
    </message>
    <message>
        <source>These entities take part:</source>
        <translation>Diese Entitäten nehmen teil:</translation>
    </message>
    <message>
        <source>Kept as it is in the file:</source>
        <translation>Bleibt in der Datei, wie es ist:</translation>
    </message>
    <message>
        <source>%1 with all variables.</source>
        <translation>%1 mit allen Variablen.</translation>
    </message>
    <message>
        <source>%1 with %2 of %3 variables.</source>
        <translation>%1 mit %2 von %3 Variablen.</translation>
    </message>
</context>
<context>
    <name>SourceCommands</name>
    <message>
        <source>Open Dataset</source>
        <translation>Datendatei öffnen</translation>
    </message>
    <message>
        <source>Open CSV File</source>
        <translation>CSV-Datei öffnen</translation>
    </message>
    <message>
        <source>Open Lookups</source>
        <translation>Nachschlagetabellen öffnen</translation>
    </message>
</context>
<context>
    <name>SourceFiles</name>
    <message>
        <source>Reading the file…</source>
        <translation>Die Datei wird gelesen…</translation>
    </message>
    <message>
        <source>Data files (*.%1)</source>
        <translation>Datendateien (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Quellen</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file was read, but not everything as it stands there.</source>
        <translation>Die Datei wurde gelesen, aber nicht alles so, wie es dort steht.</translation>
    </message>
</context>
<context>
    <name>SourceReader</name>
    <message>
        <source>This kind of file is not known. Known are: %1.</source>
        <translation>Diese Art von Datei ist nicht bekannt. Bekannt sind: %1.</translation>
    </message>
</context>
<context>
    <name>SourceTab</name>
    <message>
        <source>Open a file to list its fields here, then drag them onto the variables.</source>
        <translation>Öffnen Sie eine Datei, um ihre Felder hier aufzulisten, und ziehen Sie sie dann auf die Variablen.</translation>
    </message>
    <message>
        <source>Filter %1</source>
        <translation>%1 filtern</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Show what was read, but not as the file has it</source>
        <translation>Zeigen, was anders gelesen wurde, als es in der Datei steht</translation>
    </message>
    <message>
        <source>Notes (%L1)…</source>
        <translation>Hinweise (%L1)…</translation>
    </message>
    <message>
        <source>Nothing matches the filter.</source>
        <translation>Nichts passt zum Filter.</translation>
    </message>
</context>
<context>
    <name>SourcesPanel</name>
    <message>
        <source>Dataset fields</source>
        <translation>Felder der Datendatei</translation>
    </message>
    <message>
        <source>CSV fields</source>
        <translation>CSV-Felder</translation>
    </message>
    <message>
        <source>Lookups</source>
        <translation>Nachschlagetabellen</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Quellen</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>Datendatei</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>All records</source>
        <translation>Alle Datensätze</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Lookup</source>
        <translation>Nachschlagetabelle</translation>
    </message>
</context>
<context>
    <name>StatisticsFields</name>
    <message>
        <source>variable %1</source>
        <translation>Variable %1</translation>
    </message>
    <message>
        <source>These codes are empty or hold blanks and are left out of the categories: &quot;%1&quot;.</source>
        <translation>Diese Codes sind leer oder enthalten Leerzeichen und fehlen in den Kategorien: „%1“.</translation>
    </message>
</context>
<context>
    <name>StatisticsFile</name>
    <message>
        <source>The file is damaged: its end is missing.</source>
        <translation>Die Datei ist beschädigt: Ihr Ende fehlt.</translation>
    </message>
    <message>
        <source>row %1, %2</source>
        <translation>Zeile %1, %2</translation>
    </message>
    <message>
        <source>The file is damaged or of another kind: %1</source>
        <translation>Die Datei ist beschädigt oder von anderer Art: %1</translation>
    </message>
</context>
<context>
    <name>SummaryPage</name>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>This is what the run configuration says. Save it, or go back and change it.</source>
        <translation>Das sagt die Laufkonfiguration. Speichern Sie sie oder gehen Sie zurück und ändern Sie sie.</translation>
    </message>
    <message>
        <source>Save &amp;as</source>
        <translation>Speichern &amp;unter</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>Say where the run configuration is to be saved.</source>
        <translation>Geben Sie an, wo die Laufkonfiguration gespeichert werden soll.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>„%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>Its content will be lost.</source>
        <translation>Ihr Inhalt geht verloren.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Save Run Configuration</source>
        <translation>Laufkonfiguration speichern</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>TabText</name>
    <message>
        <source>The clipboard does not hold a table but characters that are no text.</source>
        <translation>Die Zwischenablage enthält keine Tabelle, sondern Zeichen, die kein Text sind.</translation>
    </message>
    <message>
        <source>The quotation mark that a cell of line %L1 begins with is never closed.</source>
        <translation>Das Anführungszeichen, mit dem eine Zelle der Zeile %L1 beginnt, wird nie geschlossen.</translation>
    </message>
</context>
<context>
    <name>TableSchema</name>
    <message>
        <source>schema</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>This is no valid JSON: %1.</source>
        <translation>Dies ist kein gültiges JSON: %1.</translation>
    </message>
    <message>
        <source>The file holds no JSON object.</source>
        <translation>Die Datei enthält kein JSON-Objekt.</translation>
    </message>
    <message>
        <source>A data package must list its resources.</source>
        <translation>Ein Datenpaket muss seine Ressourcen auflisten.</translation>
    </message>
    <message>
        <source>resource %1</source>
        <translation>Ressource %1</translation>
    </message>
    <message>
        <source>A resource must be an object with a name.</source>
        <translation>Eine Ressource muss ein Objekt mit einem Namen sein.</translation>
    </message>
    <message>
        <source>The resource has no schema and is left out.</source>
        <translation>Die Ressource hat kein Schema und wird ausgelassen.</translation>
    </message>
    <message>
        <source>The schema &quot;%1&quot; does not lie beside the package.</source>
        <translation>Das Schema „%1“ liegt nicht neben dem Paket.</translation>
    </message>
    <message>
        <source>A table schema must list its fields.</source>
        <translation>Ein Tabellenschema muss seine Felder auflisten.</translation>
    </message>
    <message>
        <source>%1, field %2</source>
        <translation>%1, Feld %2</translation>
    </message>
    <message>
        <source>A field must have a name.</source>
        <translation>Ein Feld muss einen Namen haben.</translation>
    </message>
    <message>
        <source>The code &quot;%1&quot; is empty or holds blanks and is left out of the categories.</source>
        <translation>Der Code „%1“ ist leer oder enthält Leerzeichen und fehlt in den Kategorien.</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>A dictionary is open.</source>
        <translation>Ein Wörterbuch ist geöffnet.</translation>
    </message>
    <message>
        <source>An entity is renamed.</source>
        <translation>Eine Entität wird umbenannt.</translation>
    </message>
    <message>
        <source>A variable is found by typing a part of its label.</source>
        <translation>Eine Variable wird durch einen Teil ihres Labels gefunden.</translation>
    </message>
    <message>
        <source>Its label is edited in place.</source>
        <translation>Ihr Label wird in der Tabelle bearbeitet.</translation>
    </message>
    <message>
        <source>It gets a value label and a range.</source>
        <translation>Sie bekommt ein Wertelabel und einen Bereich.</translation>
    </message>
    <message>
        <source>A data file lists its fields.</source>
        <translation>Eine Datendatei führt ihre Felder auf.</translation>
    </message>
    <message>
        <source>The fields become variables; clashes are resolved.</source>
        <translation>Die Felder werden zu Variablen; Namenskonflikte werden gelöst.</translation>
    </message>
    <message>
        <source>Every step can be undone and redone.</source>
        <translation>Jeder Schritt lässt sich rückgängig machen und wiederholen.</translation>
    </message>
    <message>
        <source>The dictionary is saved.</source>
        <translation>Das Wörterbuch wird gespeichert.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2.</source>
        <translation>%1 kann nicht nach %2 kopiert werden.</translation>
    </message>
    <message>
        <source>The tour ended early, at “%1”.</source>
        <translation>Der Rundgang endete vorzeitig bei „%1“.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) in %1</source>
        <translation>
            <numerusform>%n Bild in %1</numerusform>
            <numerusform>%n Bilder in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The picture cannot be written to %1.</source>
        <translation>Das Bild kann nicht nach %1 geschrieben werden.</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>The dictionary is checked.</source>
        <translation>Das Wörterbuch wird geprüft.</translation>
    </message>
    <message>
        <source>An expression is put together from what the dictionary holds.</source>
        <translation>Ein Ausdruck wird aus dem Inhalt des Wörterbuchs zusammengesetzt.</translation>
    </message>
    <message>
        <source>Area units are selected.</source>
        <translation>Gebietseinheiten werden ausgewählt.</translation>
    </message>
    <message>
        <source>A run configuration is made.</source>
        <translation>Eine Laufkonfiguration wird erstellt.</translation>
    </message>
    <message>
        <source>First run</source>
        <translation>Erster Lauf</translation>
    </message>
    <message>
        <source>The whole tree is searched.</source>
        <translation>Der ganze Baum wird durchsucht.</translation>
    </message>
    <message>
        <source>Several variables are edited together.</source>
        <translation>Mehrere Variablen werden gemeinsam bearbeitet.</translation>
    </message>
    <message>
        <source>Value labels and ranges are copied to many variables.</source>
        <translation>Wertelabels und Bereiche werden auf viele Variablen kopiert.</translation>
    </message>
    <message>
        <source>Identical sets of value labels are edited once.</source>
        <translation>Gleiche Sätze von Wertelabels werden einmal bearbeitet.</translation>
    </message>
    <message>
        <source>There is a file %1 already. Choose an empty folder.</source>
        <translation>Die Datei %1 gibt es schon. Wählen Sie einen leeren Ordner.</translation>
    </message>
    <message>
        <source>The columns of a text file are listed.</source>
        <translation>Die Spalten einer Textdatei werden aufgelistet.</translation>
    </message>
    <message>
        <source>Lookup tables have a place of their own.</source>
        <translation>Nachschlagetabellen haben ihren eigenen Platz.</translation>
    </message>
    <message>
        <source>No work is lost unasked.</source>
        <translation>Keine Arbeit geht ungefragt verloren.</translation>
    </message>
    <message>
        <source>What takes long says so and can be cancelled.</source>
        <translation>Was lange dauert, sagt es und lässt sich abbrechen.</translation>
    </message>
    <message>
        <source>After a crash the unsaved changes are offered.</source>
        <translation>Nach einem Absturz werden die nicht gespeicherten Änderungen angeboten.</translation>
    </message>
    <message>
        <source>The workbench says what it is.</source>
        <translation>Das Programm sagt, was es ist.</translation>
    </message>
</context>
<context>
    <name>UtilForms</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>ValueCopies</name>
    <message>
        <source>Nothing will change.</source>
        <translation>Es ändert sich nichts.</translation>
    </message>
    <message>
        <source>One variable will change.</source>
        <translation>Eine Variable ändert sich.</translation>
    </message>
    <message>
        <source>%L1 variables will change.</source>
        <translation>%L1 Variablen ändern sich.</translation>
    </message>
    <message>
        <source>Variables whose value labels will be replaced: %L1.</source>
        <translation>Variablen, deren Wertelabels ersetzt werden: %L1.</translation>
    </message>
    <message>
        <source>Variables whose ranges will be replaced: %L1.</source>
        <translation>Variablen, deren Bereiche ersetzt werden: %L1.</translation>
    </message>
</context>
<context>
    <name>ValueLabelTarget</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
</context>
<context>
    <name>ValueLabelsPanel</name>
    <message>
        <source>Value labels</source>
        <translation>Wertelabels</translation>
    </message>
    <message>
        <source>No value labels.</source>
        <translation>Keine Wertelabels.</translation>
    </message>
    <message>
        <source>adding a value label to %1</source>
        <translation>Hinzufügen eines Wertelabels zu %1</translation>
    </message>
    <message>
        <source>removing value labels of %1</source>
        <translation>Entfernen von Wertelabels von %1</translation>
    </message>
    <message>
        <source>moving value labels of %1</source>
        <translation>Verschieben von Wertelabels von %1</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
</context>
<context>
    <name>VariableDiccionaryModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>The value already exists as the alias of a variable.</source>
        <translation>Der Wert ist schon der Alias einer Variable.</translation>
    </message>
    <message>
        <source>The value already exists as the name of a variable.</source>
        <translation>Der Wert ist schon der Name einer Variable.</translation>
    </message>
    <message>
        <source>The value already exists as a entity name.</source>
        <translation>Der Wert ist schon der Name einer Entität.</translation>
    </message>
    <message>
        <source>Invalid string</source>
        <translation>Ungültiger Text</translation>
    </message>
    <message>
        <source>The typed character string already exists</source>
        <translation>Der eingegebene Text ist schon vergeben</translation>
    </message>
    <message>
        <source>The typed character string already exists as the alias of a variable</source>
        <translation>Der eingegebene Text ist schon der Alias einer Variable</translation>
    </message>
    <message>
        <source>RefCode Variable</source>
        <translation>Variable des Referenzcodes</translation>
    </message>
    <message>
        <source>Variable identified as RefCode.
Keep it as RefCode?</source>
        <translation>Die Variable dient als Referenzcode.
Soll sie es bleiben?</translation>
    </message>
    <message>
        <source>Error creating</source>
        <translation>Fehler beim Anlegen von</translation>
    </message>
    <message>
        <source>Must be selectable entity.</source>
        <translation>Die Entität muss auswählbar sein.</translation>
    </message>
    <message>
        <source>Overwrite variable</source>
        <translation>Variable überschreiben</translation>
    </message>
    <message>
        <source>already exists.</source>
        <translation>ist schon vorhanden.</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Überschreiben?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Duplicated names</source>
        <translation>Doppelte Namen</translation>
    </message>
</context>
<context>
    <name>VariableForm</name>
    <message>
        <source>Select a variable to see its properties.</source>
        <translation>Wählen Sie eine Variable aus, um ihre Eigenschaften zu sehen.</translation>
    </message>
    <message>
        <source>N&amp;ame</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Al&amp;ias</source>
        <translation>Al&amp;ias</translation>
    </message>
    <message>
        <source>La&amp;bel</source>
        <translation>&amp;Label</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppe</translation>
    </message>
    <message>
        <source>T&amp;ype</source>
        <translation>T&amp;yp</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>G&amp;röße</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Dezimalstellen</translation>
    </message>
    <message>
        <source>&amp;Missing</source>
        <translation>&amp;Fehlend</translation>
    </message>
    <message>
        <source>Not appl.</source>
        <translation>N. zutr.</translation>
    </message>
    <message>
        <source>Source record</source>
        <translation>Quelldatensatz</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>N&amp;otes</source>
        <translation>N&amp;otizen</translation>
    </message>
</context>
<context>
    <name>VariableMoves</name>
    <message>
        <source>%1 will be called %2, since the name is taken there.</source>
        <translation>%1 wird %2 heißen, weil der Name dort vergeben ist.</translation>
    </message>
    <message>
        <source>%1 will lose its alias %2, which is taken there.</source>
        <translation>%1 verliert den Alias %2, der dort vergeben ist.</translation>
    </message>
    <message>
        <source>%1 will have no reference code and not be selectable.</source>
        <translation>%1 wird keinen Referenzcode mehr haben und nicht auswählbar sein.</translation>
    </message>
    <message>
        <source>%1 will have no reference label.</source>
        <translation>%1 wird kein Referenzlabel mehr haben.</translation>
    </message>
    <message>
        <source>%1 will have no weight.</source>
        <translation>%1 wird kein Gewicht mehr haben.</translation>
    </message>
</context>
<context>
    <name>VariableProperties</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Dezimalstellen</translation>
    </message>
    <message>
        <source>Missing-value code</source>
        <translation>Code für fehlende Werte</translation>
    </message>
    <message>
        <source>Not-applicable code</source>
        <translation>Code für nicht zutreffend</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Lookup</source>
        <translation>Nachschlagetabelle</translation>
    </message>
    <message>
        <source>Local</source>
        <translation>Lokal</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>start of %1</source>
        <translation>Anfang von %1</translation>
    </message>
    <message>
        <source>length of %1</source>
        <translation>Länge von %1</translation>
    </message>
</context>
<context>
    <name>VariableTablePanel</name>
    <message>
        <source>VARIABLE</source>
        <translation>VARIABLE</translation>
    </message>
    <message>
        <source>adding %1</source>
        <translation>Hinzufügen von %1</translation>
    </message>
    <message>
        <source>duplicating %1</source>
        <translation>Duplizieren von %1</translation>
    </message>
    <message>
        <source>duplicating %L1 variables</source>
        <translation>Duplizieren von %L1 Variablen</translation>
    </message>
    <message>
        <source>removing %1</source>
        <translation>Entfernen von %1</translation>
    </message>
    <message>
        <source>removing %L1 variables</source>
        <translation>Entfernen von %L1 Variablen</translation>
    </message>
    <message>
        <source>moving %1</source>
        <translation>Verschieben von %1</translation>
    </message>
    <message>
        <source>moving %L1 variables</source>
        <translation>Verschieben von %L1 Variablen</translation>
    </message>
    <message>
        <source>Filter variables</source>
        <translation>Variablen filtern</translation>
    </message>
    <message>
        <source>Filter variables by name, alias, label, group or tag</source>
        <translation>Variablen nach Name, Alias, Label, Gruppe oder Nummer filtern</translation>
    </message>
    <message>
        <source>No variables to show. Add one, or drag fields here from the sources below.</source>
        <translation>Keine Variablen. Fügen Sie eine hinzu oder ziehen Sie Felder aus den Quellen unten hierher.</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Number of variables</source>
        <translation>Anzahl der Variablen</translation>
    </message>
    <message>
        <source>import of a field</source>
        <translation>Import eines Felds</translation>
    </message>
    <message>
        <source>import of %L1 fields</source>
        <translation>Import von %L1 Feldern</translation>
    </message>
    <message>
        <source>No variable matches the filter.</source>
        <translation>Keine Variable passt zum Filter.</translation>
    </message>
    <message>
        <source>Variables: %L1</source>
        <translation>Variablen: %L1</translation>
    </message>
    <message>
        <source>Variables: %L1 of %L2</source>
        <translation>Variablen: %L1 von %L2</translation>
    </message>
</context>
<context>
    <name>VariableWriter</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>true</source>
        <translation>wahr</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>false</source>
        <translation>falsch</translation>
    </message>
    <message>
        <source>It was stored as &quot;%1&quot;.</source>
        <translation>Gespeichert wurde „%1“.</translation>
    </message>
    <message>
        <source>A variable needs a name.</source>
        <translation>Eine Variable braucht einen Namen.</translation>
    </message>
    <message>
        <source>This is no whole number.</source>
        <translation>Dies ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>This is neither yes nor no.</source>
        <translation>Dies ist weder ja noch nein.</translation>
    </message>
</context>
<context>
    <name>VariablesPage</name>
    <message>
        <source>Take all variables, those that are a&amp;dded later too</source>
        <translation>Alle Variablen nehmen, auch später &amp;hinzugefügte</translation>
    </message>
    <message>
        <source>Filter variables</source>
        <translation>Variablen filtern</translation>
    </message>
    <message>
        <source>Filter the variables</source>
        <translation>Die Variablen filtern</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Tick the variables that take part, entity by entity. Space switches the ticks of the selected rows.</source>
        <translation>Setzen Sie Häkchen bei den Variablen, die teilnehmen, Entität für Entität. Die Leertaste schaltet die Häkchen der ausgewählten Zeilen um.</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Aufteilen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>These variables are downloaded. Take away the ticks of those that are not wanted after all.</source>
        <translation>Diese Variablen werden heruntergeladen. Entfernen Sie die Häkchen bei denen, die doch nicht gewünscht sind.</translation>
    </message>
    <message>
        <source>Entities that take part</source>
        <translation>Teilnehmende Entitäten</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entitäten</translation>
    </message>
    <message>
        <source>&amp;Variables</source>
        <translation>&amp;Variablen</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>Fi&amp;lter</translation>
    </message>
    <message>
        <source>No variable matches the filter.</source>
        <translation>Keine Variable passt zum Filter.</translation>
    </message>
    <message>
        <source>Nothing of this entity is downloaded.</source>
        <translation>Von dieser Entität wird nichts heruntergeladen.</translation>
    </message>
    <message>
        <source>This entity has no variables to choose from.</source>
        <translation>Diese Entität hat keine Variablen zur Auswahl.</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 von %3)</translation>
    </message>
    <message>
        <source>Variables: %L1</source>
        <translation>Variablen: %L1</translation>
    </message>
    <message>
        <source>Variables: %L1 of %L2</source>
        <translation>Variablen: %L1 von %L2</translation>
    </message>
    <message>
        <source>Tick what tells the records apart when they are split. The ticks are those of the page before; reference codes, labels and weights are offered here too.</source>
        <translation>Setzen Sie Häkchen bei dem, was die Datensätze beim Aufteilen unterscheidet. Die Häkchen sind die der vorigen Seite; auch Referenzcodes, Labels und Gewichte werden hier angeboten.</translation>
    </message>
    <message>
        <source>&amp;Tick Shown</source>
        <translation>Gezeigte &amp;ankreuzen</translation>
    </message>
    <message>
        <source>&amp;Untick Shown</source>
        <translation>Gezeig&amp;te abwählen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Nummer</translation>
    </message>
</context>
<context>
    <name>dictionaryTreeModelDownload</name>
    <message>
        <source>Entity</source>
        <translation>Entität</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The picture cannot be written to %1.</source>
        <translation>Das Bild kann nicht nach %1 geschrieben werden.</translation>
    </message>
    <message>
        <source>There is no %1 in the dictionary.</source>
        <translation>Es gibt %1 im Wörterbuch nicht.</translation>
    </message>
    <message>
        <source>There is no display. Without one, --screenshot and --tour draw pictures.</source>
        <translation>Es gibt keinen Bildschirm. Ohne ihn zeichnen --screenshot und --tour Bilder.</translation>
    </message>
</context>
</TS>
