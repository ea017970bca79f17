<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AxisHeads</name>
    <message>
        <source>X axis</source>
        <translation>X-Achse</translation>
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
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: none</source>
        <translation>%1: keine</translation>
    </message>
    <message>
        <source>All or none of the variables</source>
        <translation>Alle oder keine der Variablen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>AxisMenu</name>
    <message>
        <source>All %L1 listed</source>
        <translation>Alle %L1 gezeigten</translation>
    </message>
    <message>
        <source>Only the latest five</source>
        <translation>Nur die letzten fünf</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>BuilderStyle</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Add Criteria</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Clear Criteria</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
</context>
<context>
    <name>Comfort</name>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>Moving about</source>
        <translation>Sich bewegen</translation>
    </message>
    <message>
        <source>Plot, by finger and mouse</source>
        <translation>Diagramm, mit Finger und Maus</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Lists and tables</source>
        <translation>Listen und Tabellen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows the plots of a data log. Without FILE it opens a bundled sample.</source>
        <translation>Zeigt die Diagramme eines Datenprotokolls. Ohne FILE wird ein mitgeliefertes Beispiel geöffnet.</translation>
    </message>
    <message>
        <source>The log to open.</source>
        <translation>Das zu öffnende Protokoll.</translation>
    </message>
    <message>
        <source>Says all this.</source>
        <translation>Sagt all dies.</translation>
    </message>
    <message>
        <source>Says the version.</source>
        <translation>Sagt die Version.</translation>
    </message>
    <message>
        <source>Data set to show, counted from 1.</source>
        <translation>Zu zeigender Datensatz, ab 1 gezählt.</translation>
    </message>
    <message>
        <source>Horizontal variable.</source>
        <translation>Waagrechte Variable.</translation>
    </message>
    <message>
        <source>Variable of the left axis; may be given several times.</source>
        <translation>Variable der linken Achse; darf mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Variable of the right axis; may be given several times.</source>
        <translation>Variable der rechten Achse; darf mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Keeps only values such as &quot;Tair&gt;=25.5&quot;; may be given several times. Operators: &gt; &gt;= &lt; &lt;= = !=</source>
        <translation>Behält nur Werte wie &quot;Tair&gt;=25.5&quot;; darf mehrmals angegeben werden. Operatoren: &gt; &gt;= &lt; &lt;= = !=</translation>
    </message>
    <message>
        <source>Rows to show: all, head:N (the first N) or tail:N (the last N).</source>
        <translation>Zu zeigende Zeilen: all (alle), head:N (die ersten N) oder tail:N (die letzten N).</translation>
    </message>
    <message>
        <source>Shows every K-th of these rows.</source>
        <translation>Zeigt jede K-te dieser Zeilen.</translation>
    </message>
    <message>
        <source>Draws curves as lines, symbols or both.</source>
        <translation>Zeichnet Kurven als Linien (lines), Symbole (symbols) oder beides (both).</translation>
    </message>
    <message>
        <source>Applies a saved definition (%1); options given beside it win over it.</source>
        <translation>Wendet eine gespeicherte Definition an (%1); daneben angegebene Optionen gehen vor.</translation>
    </message>
    <message>
        <source>Writes what is shown into FILE: everything as .json, variables and criteria as .xml.</source>
        <translation>Schreibt das Gezeigte in FILE: alles als .json, Variablen und Kriterien als .xml.</translation>
    </message>
    <message>
        <source>Draws the plot, or with .csv writes its data, into FILE (%1) and exits.</source>
        <translation>Zeichnet das Diagramm in FILE (%1), oder schreibt mit .csv dessen Daten, und endet.</translation>
    </message>
    <message>
        <source>Size of the exported plot in pixels, 1280x800 unless told.</source>
        <translation>Größe des ausgegebenen Diagramms in Pixeln, sonst 1280x800.</translation>
    </message>
    <message>
        <source>one file can be opened at a time, not %1</source>
        <translation>es lässt sich nur eine Datei auf einmal öffnen, nicht %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>der Name der Datei ist leer</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>es gibt keine Option &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;; did you mean %2?</source>
        <translation>es gibt keine Option &quot;%1&quot;; war %2 gemeint?</translation>
    </message>
    <message>
        <source>--data-set needs a number from 1 on, not &quot;%1&quot;</source>
        <translation>--data-set braucht eine Zahl ab 1, nicht &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--x needs the name of a variable</source>
        <translation>--x braucht den Namen einer Variablen</translation>
    </message>
    <message>
        <source>--left needs the name of a variable</source>
        <translation>--left braucht den Namen einer Variablen</translation>
    </message>
    <message>
        <source>--right needs the name of a variable</source>
        <translation>--right braucht den Namen einer Variablen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no criterion; write one such as &quot;Tair&gt;=25.5&quot;, with one of &gt; &gt;= &lt; &lt;= = != and a number</source>
        <translation>&quot;%1&quot; ist kein Kriterium; ein solches ist &quot;Tair&gt;=25.5&quot;, mit einem von &gt; &gt;= &lt; &lt;= = != und einer Zahl</translation>
    </message>
    <message>
        <source>--range takes all, head:N or tail:N with N from 1 on, not &quot;%1&quot;</source>
        <translation>--range nimmt all, head:N oder tail:N mit N ab 1, nicht &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--every needs a number from 1 on, not &quot;%1&quot;</source>
        <translation>--every braucht eine Zahl ab 1, nicht &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--style takes lines, symbols or both, not &quot;%1&quot;</source>
        <translation>--style nimmt lines, symbols oder both, nicht &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--definition needs a file name that ends in %1, not &quot;%2&quot;</source>
        <translation>--definition braucht einen Dateinamen, der auf %1 endet, nicht &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--save-definition needs a file name that ends in %1, not &quot;%2&quot;</source>
        <translation>--save-definition braucht einen Dateinamen, der auf %1 endet, nicht &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--export needs a file name that ends in %1, not &quot;%2&quot;</source>
        <translation>--export braucht einen Dateinamen, der auf %1 endet, nicht &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--size needs a size such as 1280x800, each side from %1 to %2, not &quot;%3&quot;</source>
        <translation>--size braucht eine Größe wie 1280x800, jede Seite von %1 bis %2, nicht &quot;%3&quot;</translation>
    </message>
</context>
<context>
    <name>CrowdNote</name>
    <message>
        <source>Right axis: %1 curves.</source>
        <translation>Rechte Achse: %1 Kurven.</translation>
    </message>
    <message>
        <source>Left axis: %1 curves.</source>
        <translation>Linke Achse: %1 Kurven.</translation>
    </message>
    <message>
        <source>%1 No more at once: %L2 were left out.</source>
        <translation>%1 Mehr auf einmal geht nicht: %L2 wurden weggelassen.</translation>
    </message>
    <message>
        <source>%1 Only %2 have a colour, the rest is grey.</source>
        <translation>%1 Nur %2 haben eine Farbe, der Rest ist grau.</translation>
    </message>
    <message>
        <source>%1 Up to %2 have colours of their own.</source>
        <translation>%1 Bis zu %2 haben eigene Farben.</translation>
    </message>
    <message>
        <source>Latest five</source>
        <translation>Letzte fünf</translation>
    </message>
    <message>
        <source>Leaves the five curves that came last on the axis</source>
        <translation>Lässt die fünf zuletzt gewählten Kurven auf der Achse</translation>
    </message>
    <message>
        <source>Right: latest 5</source>
        <translation>Rechts: letzte 5</translation>
    </message>
    <message>
        <source>Left: latest 5</source>
        <translation>Links: letzte 5</translation>
    </message>
</context>
<context>
    <name>CurveChip</name>
    <message>
        <source>%1, shown</source>
        <translation>%1, sichtbar</translation>
    </message>
    <message>
        <source>%1, hidden</source>
        <translation>%1, verborgen</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>%1 verbergen</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 zeigen</translation>
    </message>
</context>
<context>
    <name>CurveReadings</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>CurveStyle</name>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
</context>
<context>
    <name>CurveTable</name>
    <message>
        <source>Cursor</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>B − A</source>
        <translation>B − A</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>B − A: %1</source>
        <translation>B − A: %1</translation>
    </message>
</context>
<context>
    <name>DataExport</name>
    <message>
        <source>there is no variable on the X axis</source>
        <translation>auf der X-Achse ist keine Variable</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>es wurde abgebrochen</translation>
    </message>
    <message>
        <source>other data was opened meanwhile</source>
        <translation>inzwischen wurden andere Daten geöffnet</translation>
    </message>
</context>
<context>
    <name>DataSets</name>
    <message>
        <source>%L1 rows</source>
        <translation>%L1 Zeilen</translation>
    </message>
    <message>
        <source>no data</source>
        <translation>keine Daten</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
</context>
<context>
    <name>DefinitionFile</name>
    <message>
        <source>the name of a definition ends in %1</source>
        <translation>der Name einer Definition endet auf %1</translation>
    </message>
    <message>
        <source>it can&apos;t be opened</source>
        <translation>sie lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>it is too large for a definition</source>
        <translation>sie ist zu groß für eine Definition</translation>
    </message>
    <message>
        <source>it names no variables and no criteria</source>
        <translation>sie nennt weder Variablen noch Kriterien</translation>
    </message>
    <message>
        <source>it would be too large to be read again</source>
        <translation>sie wäre zu groß, um wieder gelesen zu werden</translation>
    </message>
    <message>
        <source>XML does not keep %1. A definition that ends in .json keeps everything.</source>
        <translation>XML behält dies nicht: %1. Eine Definition, die auf .json endet, behält alles.</translation>
    </message>
</context>
<context>
    <name>DefinitionFormat</name>
    <message>
        <source>.json or .xml</source>
        <translation>.json oder .xml</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>Left axis</source>
        <translation>Linke Achse</translation>
    </message>
    <message>
        <source>Right axis</source>
        <translation>Rechte Achse</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>All rows</source>
        <translation>Alle Zeilen</translation>
    </message>
    <message>
        <source>The first rows</source>
        <translation>Die ersten Zeilen</translation>
    </message>
    <message>
        <source>The last rows</source>
        <translation>Die letzten Zeilen</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Wie viele</translation>
    </message>
    <message>
        <source>Every k-th</source>
        <translation>Jede k-te</translation>
    </message>
</context>
<context>
    <name>DropLayer</name>
    <message>
        <source>Drop a log to open it, or a setup to apply it</source>
        <translation>Ein Protokoll zum Öffnen oder eine Einstellung zum Anwenden hier ablegen</translation>
    </message>
</context>
<context>
    <name>ErrorPane</name>
    <message>
        <source>Back to the log before</source>
        <translation>Zurück zum vorigen Protokoll</translation>
    </message>
    <message>
        <source>%1 (Esc)</source>
        <translation>%1 (Esc)</translation>
    </message>
    <message>
        <source>Reading was cancelled</source>
        <translation>Das Lesen wurde abgebrochen</translation>
    </message>
    <message>
        <source>This log could not be opened</source>
        <translation>Dieses Protokoll ließ sich nicht öffnen</translation>
    </message>
    <message>
        <source>Open another log…</source>
        <translation>Anderes Protokoll öffnen…</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>ExportRun</name>
    <message>
        <source>there is no data in it</source>
        <translation>sie enthält keine Daten</translation>
    </message>
</context>
<context>
    <name>FailureText</name>
    <message>
        <source>the script that turns spreadsheets into text is missing here, or made nothing of this one</source>
        <translation>das Skript, das Kalkulationstabellen in Text umwandelt, fehlt hier oder hat aus dieser nichts gemacht</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>it is a directory</source>
        <translation>das ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>reading it is not permitted</source>
        <translation>sie zu lesen ist nicht erlaubt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>can&apos;t be written: %1</source>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>FilterPane</name>
    <message>
        <source>New criterion</source>
        <translation>Neues Kriterium</translation>
    </message>
    <message>
        <source>Criteria</source>
        <translation>Kriterien</translation>
    </message>
    <message>
        <source>There are no criteria. Curves show only the values that meet all ticked criteria on their variable.</source>
        <translation>Es gibt keine Kriterien. Kurven zeigen nur Werte, die alle angehakten Kriterien ihrer Variablen erfüllen.</translation>
    </message>
</context>
<context>
    <name>GroupsPopup</name>
    <message>
        <source>Groups of columns</source>
        <translation>Spaltengruppen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Compact rows</source>
        <translation>Niedrige Zeilen</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>Keys and gestures</source>
        <translation>Tasten und Gesten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>IconButton</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>LimitsPopup</name>
    <message>
        <source>Limits of the axes</source>
        <translation>Grenzen der Achsen</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
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
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
</context>
<context>
    <name>LimitsRow</name>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Untere Grenze</translation>
    </message>
    <message>
        <source>%1, lower limit</source>
        <translation>%1, untere Grenze</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Obere Grenze</translation>
    </message>
    <message>
        <source>%1, upper limit</source>
        <translation>%1, obere Grenze</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>%1 follows the data</source>
        <translation>%1 folgt den Daten</translation>
    </message>
</context>
<context>
    <name>LogLoader</name>
    <message>
        <source>%1: what read it is gone</source>
        <translation>%1: was es las, gibt es nicht mehr</translation>
    </message>
    <message>
        <source>%1: reading was cancelled, nothing of it was kept</source>
        <translation>%1: das Lesen wurde abgebrochen, nichts davon wurde behalten</translation>
    </message>
</context>
<context>
    <name>LogParser</name>
    <message>
        <source>another file is being read</source>
        <translation>eine andere Datei wird gerade gelesen</translation>
    </message>
    <message>
        <source>LogFile Path must not be empty.</source>
        <translation>Es fehlt der Pfad eines Protokolls.</translation>
    </message>
    <message>
        <source>LogParser: Failed to open file at path %1 for reading.</source>
        <translation>Die Datei %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>LogParser: Reading of file at path %1 was stopped.</source>
        <translation>Das Lesen der Datei %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>LogParser: Failed to read file at path %1: %2.</source>
        <translation>Die Datei %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>line %1 is longer than %2 bytes</source>
        <translation>Zeile %1 ist länger als %2 Bytes</translation>
    </message>
    <message>
        <source>it has more than %1 lines</source>
        <translation>es sind mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>line %1 has more than %2 cells</source>
        <translation>Zeile %1 hat mehr als %2 Zellen</translation>
    </message>
    <message>
        <source>Log File must start with [Header] section.</source>
        <translation>Ein Protokoll muss mit dem Abschnitt [Header] beginnen.</translation>
    </message>
</context>
<context>
    <name>LogTableViewModel</name>
    <message>
        <source>Exclude</source>
        <translation>Ausschließen</translation>
    </message>
</context>
<context>
    <name>LogTroubles</name>
    <message>
        <source>Spreadsheet</source>
        <translation>Kalkulationstabelle</translation>
    </message>
    <message>
        <source>The text that it was converted to is gone, so it was not looked through for rows that were not taken.</source>
        <translation>Der Text, in den sie umgewandelt wurde, ist weg und wurde nicht nach Zeilen durchgesehen, die nicht übernommen wurden.</translation>
    </message>
    <message>
        <source>%1 (%L2)</source>
        <translation>%1 (%L2)</translation>
    </message>
    <message>
        <source>Line %L1</source>
        <translation>Zeile %L1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>and %L1 more</source>
        <translation>und %L1 weitere</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <source>There is no data set in %1.</source>
        <translation>%1 enthält keinen Datensatz.</translation>
    </message>
    <message>
        <source>There is no data in this data set.</source>
        <translation>In diesem Datensatz sind keine Daten.</translation>
    </message>
    <message>
        <source>Nothing to show: tick a variable for the X axis and one for the left or the right axis, with lines or symbols on.</source>
        <translation>Nichts zu zeigen: eine Variable für die X-Achse und eine für die linke oder rechte Achse wählen, mit Linien oder Symbolen.</translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
</context>
<context>
    <name>NameSuggestions</name>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Dismiss</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>NumberPad</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Vorzeichen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>OpenDialog</name>
    <message>
        <source>Open a log</source>
        <translation>Ein Protokoll öffnen</translation>
    </message>
    <message>
        <source>Logs (*.log *.datalog *.txt *.tsv *.csv *.xls *.xlsx)</source>
        <translation>Protokolle (*.log *.datalog *.txt *.tsv *.csv *.xls *.xlsx)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>%1 is gone. It is followed, and shown again when it is back.</source>
        <translation>%1 ist weg. Die Datei wird verfolgt und wieder gezeigt, wenn sie zurück ist.</translation>
    </message>
    <message>
        <source>%1. What was read before is shown until it can be read again.</source>
        <translation>%1. Bis die Datei wieder gelesen werden kann, wird das zuvor Gelesene gezeigt.</translation>
    </message>
    <message>
        <source>%1: there is no such file any more</source>
        <translation>%1: diese Datei gibt es nicht mehr</translation>
    </message>
    <message>
        <source>One log is shown at a time: only the first of %1 was opened.</source>
        <translation>Es wird ein Protokoll auf einmal gezeigt: nur das erste von %1 wurde geöffnet.</translation>
    </message>
    <message>
        <source>A setup needs a log to be applied to: open one first.</source>
        <translation>Eine Einstellung braucht ein Protokoll: bitte zuerst eines öffnen.</translation>
    </message>
    <message>
        <source>Not shown as before: %1</source>
        <translation>Nicht wie zuvor gezeigt: %1</translation>
    </message>
</context>
<context>
    <name>OtherKeys</name>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>To the next control</source>
        <translation>Zum nächsten Bedienelement</translation>
    </message>
    <message>
        <source>Shift+Tab</source>
        <translation>Umschalt+Tab</translation>
    </message>
    <message>
        <source>To the control before</source>
        <translation>Zum vorigen Bedienelement</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Press a button, turn a switch, open a list</source>
        <translation>Knopf drücken, Schalter umlegen, Liste öffnen</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Pfeile</translation>
    </message>
    <message>
        <source>Another tab, another row</source>
        <translation>Anderer Reiter, andere Zeile</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close what has popped up, cancel reading, leave an error</source>
        <translation>Aufgeklapptes schließen, Lesen abbrechen, einen Fehler verlassen</translation>
    </message>
    <message>
        <source>Put the variable on the X, the left or the right axis</source>
        <translation>Variable auf die X-, linke oder rechte Achse legen</translation>
    </message>
    <message>
        <source>Tick a criterion, exclude a row</source>
        <translation>Kriterium anhaken, Zeile ausschließen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Remove a criterion, forget a recent log</source>
        <translation>Kriterium entfernen, zuletzt geöffnetes Protokoll vergessen</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Open a recent log, show a row that was not taken</source>
        <translation>Zuletzt geöffnetes Protokoll öffnen, nicht übernommene Zeile zeigen</translation>
    </message>
    <message>
        <source>Type the number of a new criterion</source>
        <translation>Zahl eines neuen Kriteriums eingeben</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Move the view; on a scale, that axis only</source>
        <translation>Ausschnitt bewegen; auf einer Skala nur diese Achse</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Zoom; with Ctrl along X, with Shift up and down</source>
        <translation>Zoomen; mit Strg entlang X, mit Umschalt senkrecht</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Zwei Finger</translation>
    </message>
    <message>
        <source>Zoom and move at once</source>
        <translation>Zugleich zoomen und bewegen</translation>
    </message>
    <message>
        <source>Shift+drag</source>
        <translation>Umschalt+Ziehen</translation>
    </message>
    <message>
        <source>Zoom into a rectangle</source>
        <translation>In ein Rechteck zoomen</translation>
    </message>
    <message>
        <source>Double tap</source>
        <translation>Doppelt tippen</translation>
    </message>
    <message>
        <source>Show everything; on a scale, that axis only</source>
        <translation>Alles zeigen; auf einer Skala nur diese Achse</translation>
    </message>
    <message>
        <source>Right click</source>
        <translation>Rechtsklick</translation>
    </message>
    <message>
        <source>One zoom step back</source>
        <translation>Einen Zoomschritt zurück</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation>Tippen</translation>
    </message>
    <message>
        <source>Put the cursor, or the marker chosen before</source>
        <translation>Zeiger oder zuvor gewählte Marke setzen</translation>
    </message>
    <message>
        <source>On a cell of a table: select it, and read what it cuts off</source>
        <translation>Auf eine Zelle der Tabelle: auswählen, und lesen, was sie abschneidet</translation>
    </message>
    <message>
        <source>On a table&apos;s header: show the whole column</source>
        <translation>Auf den Kopf einer Tabellenspalte: sie ganz zeigen</translation>
    </message>
    <message>
        <source>On a marker, to a side: move the marker</source>
        <translation>Auf einer Marke, zur Seite: die Marke verschieben</translation>
    </message>
</context>
<context>
    <name>PlotDescription</name>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>Left axis</source>
        <translation>Linke Achse</translation>
    </message>
    <message>
        <source>Right axis</source>
        <translation>Rechte Achse</translation>
    </message>
    <message>
        <source>X axis</source>
        <translation>X-Achse</translation>
    </message>
    <message>
        <source>%1 from %2 to %3: %4</source>
        <translation>%1 von %2 bis %3: %4</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
</context>
<context>
    <name>PlotExport</name>
    <message>
        <source>the plot can&apos;t be drawn into it</source>
        <translation>das Diagramm lässt sich nicht hineinzeichnen</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>es wurde abgebrochen</translation>
    </message>
</context>
<context>
    <name>PlotKeys</name>
    <message>
        <source>Move the view to the left</source>
        <translation>Ausschnitt nach links</translation>
    </message>
    <message>
        <source>Move the view to the right</source>
        <translation>Ausschnitt nach rechts</translation>
    </message>
    <message>
        <source>Move the view up</source>
        <translation>Ausschnitt nach oben</translation>
    </message>
    <message>
        <source>Move the view down</source>
        <translation>Ausschnitt nach unten</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Move the X axis only, or all again</source>
        <translation>Nur die X-Achse bewegen, oder wieder alle</translation>
    </message>
    <message>
        <source>Move the left axis only, or all again</source>
        <translation>Nur die linke Achse bewegen, oder wieder alle</translation>
    </message>
    <message>
        <source>Move the right axis only, or all again</source>
        <translation>Nur die rechte Achse bewegen, oder wieder alle</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>One zoom step back</source>
        <translation>Einen Zoomschritt zurück</translation>
    </message>
    <message>
        <source>Alt+←</source>
        <translation>Alt+←</translation>
    </message>
    <message>
        <source>Alt+→</source>
        <translation>Alt+→</translation>
    </message>
    <message>
        <source>One zoom step forward</source>
        <translation>Einen Zoomschritt vor</translation>
    </message>
    <message>
        <source>Zoom into a rectangle</source>
        <translation>In ein Rechteck zoomen</translation>
    </message>
    <message>
        <source>Cursor to the sample before</source>
        <translation>Zeiger zum vorigen Messwert</translation>
    </message>
    <message>
        <source>Cursor to the next sample</source>
        <translation>Zeiger zum nächsten Messwert</translation>
    </message>
    <message>
        <source>Ctrl+←</source>
        <translation>Strg+←</translation>
    </message>
    <message>
        <source>Cursor to the left</source>
        <translation>Zeiger nach links</translation>
    </message>
    <message>
        <source>Ctrl+→</source>
        <translation>Strg+→</translation>
    </message>
    <message>
        <source>Cursor to the right</source>
        <translation>Zeiger nach rechts</translation>
    </message>
    <message>
        <source>Marker A at the cursor</source>
        <translation>Marke A beim Zeiger</translation>
    </message>
    <message>
        <source>Marker B at the cursor</source>
        <translation>Marke B beim Zeiger</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Remove the markers</source>
        <translation>Marken entfernen</translation>
    </message>
    <message>
        <source>Show hidden curves again</source>
        <translation>Verborgene Kurven wieder zeigen</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Give up, remove the cursor</source>
        <translation>Abbrechen, Zeiger entfernen</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Strg+L</translation>
    </message>
    <message>
        <source>Limits of the axes</source>
        <translation>Grenzen der Achsen</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Strg+E</translation>
    </message>
    <message>
        <source>Save the plot or its data</source>
        <translation>Diagramm oder Daten speichern</translation>
    </message>
    <message>
        <source>Show the row at the cursor in the table</source>
        <translation>Zeile beim Zeiger in der Tabelle zeigen</translation>
    </message>
    <message>
        <source>Exclude the row at the cursor</source>
        <translation>Zeile beim Zeiger ausschließen</translation>
    </message>
</context>
<context>
    <name>PlotNavigator</name>
    <message>
        <source>Both limits are needed.</source>
        <translation>Beide Grenzen werden gebraucht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no clock time such as 13:05:00.</source>
        <translation>&quot;%1&quot; ist keine Uhrzeit wie 13:05:00.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number such as -2.5.</source>
        <translation>&quot;%1&quot; ist keine Zahl wie -2.5.</translation>
    </message>
    <message>
        <source>The lower limit must be less than the upper one.</source>
        <translation>Die untere Grenze muss kleiner als die obere sein.</translation>
    </message>
    <message>
        <source>The limits are too close to each other, or too large.</source>
        <translation>Die Grenzen liegen zu nah beieinander oder sind zu groß.</translation>
    </message>
</context>
<context>
    <name>PlotPane</name>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
</context>
<context>
    <name>PlotSaver</name>
    <message>
        <source>The name of the file has to end in %1.</source>
        <translation>Der Name der Datei muss auf %1 enden.</translation>
    </message>
    <message>
        <source>Saving was cancelled, the file is as it was before.</source>
        <translation>Das Speichern wurde abgebrochen, die Datei ist wie zuvor.</translation>
    </message>
</context>
<context>
    <name>PlotSetup</name>
    <message>
        <source>its excluded rows are of data set %1 and were left out</source>
        <translation>ihre ausgeschlossenen Zeilen gehören zu Datensatz %1 und wurden weggelassen</translation>
    </message>
    <message>
        <source>there is no data set %1; the log has %2</source>
        <translation>es gibt keinen Datensatz %1; das Protokoll hat %2</translation>
    </message>
    <message>
        <source>there is no variable &quot;%1&quot; in data set %2</source>
        <translation>es gibt keine Variable &quot;%1&quot; in Datensatz %2</translation>
    </message>
    <message>
        <source>%1; did you mean %2?</source>
        <translation>%1; war %2 gemeint?</translation>
    </message>
    <message>
        <source>%1; it has %2</source>
        <translation>%1; er hat %2</translation>
    </message>
</context>
<context>
    <name>PlotToolBar</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Moving all axes</source>
        <translation>Alle Achsen bewegen</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Moving the X axis only</source>
        <translation>Nur die X-Achse bewegen</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>Moving the left axis only</source>
        <translation>Nur die linke Achse bewegen</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>Moving the right axis only</source>
        <translation>Nur die rechte Achse bewegen</translation>
    </message>
    <message>
        <source>One step back</source>
        <translation>Einen Schritt zurück</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>Zoom into a rectangle</source>
        <translation>In ein Rechteck zoomen</translation>
    </message>
    <message>
        <source>Limits of the axes</source>
        <translation>Grenzen der Achsen</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Strg+L</translation>
    </message>
    <message>
        <source>Tap to put marker A</source>
        <translation>Tippen setzt Marke A</translation>
    </message>
    <message>
        <source>Tap to put marker B</source>
        <translation>Tippen setzt Marke B</translation>
    </message>
    <message>
        <source>Remove the markers</source>
        <translation>Marken entfernen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Save the plot or its data</source>
        <translation>Diagramm oder Daten speichern</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Strg+E</translation>
    </message>
    <message>
        <source>Show in the table, or exclude</source>
        <translation>In der Tabelle zeigen, oder ausschließen</translation>
    </message>
</context>
<context>
    <name>ReadingPane</name>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 von %2 MB</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RecentPopup</name>
    <message>
        <source>Opened lately</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Forget all of them</source>
        <translation>Alle vergessen</translation>
    </message>
    <message>
        <source>None yet.</source>
        <translation>Noch keine.</translation>
    </message>
    <message>
        <source>%1, missing</source>
        <translation>%1, fehlt</translation>
    </message>
    <message>
        <source>%1 — missing</source>
        <translation>%1 — fehlt</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <translation>%1 vergessen</translation>
    </message>
</context>
<context>
    <name>RefreshLine</name>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
</context>
<context>
    <name>RowPopup</name>
    <message>
        <source>Cursor</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>Marker A</source>
        <translation>Marke A</translation>
    </message>
    <message>
        <source>Marker B</source>
        <translation>Marke B</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Show in table</source>
        <translation>In Tabelle zeigen</translation>
    </message>
    <message>
        <source>Exclude</source>
        <translation>Ausschließen</translation>
    </message>
    <message>
        <source>Leaves this row out of the plot</source>
        <translation>Lässt diese Zeile im Diagramm weg</translation>
    </message>
</context>
<context>
    <name>SavePopup</name>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Pictures and data (*.png *.svg *.pdf *.csv)</source>
        <translation>Bilder und Daten (*.png *.svg *.pdf *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the plot or its data</source>
        <translation>Diagramm oder Daten speichern</translation>
    </message>
    <message>
        <source>Picture (PNG)</source>
        <translation>Bild (PNG)</translation>
    </message>
    <message>
        <source>Drawing (SVG)</source>
        <translation>Zeichnung (SVG)</translation>
    </message>
    <message>
        <source>Document (PDF)</source>
        <translation>Dokument (PDF)</translation>
    </message>
    <message>
        <source>Data of all ticked variables (CSV)</source>
        <translation>Daten aller gewählten Variablen (CSV)</translation>
    </message>
    <message>
        <source>What to save</source>
        <translation>Was gespeichert wird</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Größe in Pixeln</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Höhe in Pixeln</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Suchen…</translation>
    </message>
    <message>
        <source>This file exists already.</source>
        <translation>Diese Datei gibt es schon.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Speichern läuft</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The window closes once this is saved. Close it again to give up saving.</source>
        <translation>Das Fenster schließt sich, sobald dies gespeichert ist. Noch einmal schließen bricht das Speichern ab.</translation>
    </message>
</context>
<context>
    <name>SessionJson</name>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>%1 in it must be %2</source>
        <translation>%1 darin muss %2 sein</translation>
    </message>
    <message>
        <source>%1 in it must be a whole number from %2 on</source>
        <translation>%1 darin muss eine ganze Zahl ab %2 sein</translation>
    </message>
    <message>
        <source>it is no JSON: %1 at byte %2</source>
        <translation>sie ist kein JSON: %1 bei Byte %2</translation>
    </message>
    <message>
        <source>%1 in it must be ascending rows such as &quot;3-5, 9&quot;</source>
        <translation>%1 darin müssen aufsteigende Zeilen wie &quot;3-5, 9&quot; sein</translation>
    </message>
    <message>
        <source>it is no session of this viewer</source>
        <translation>sie ist keine Sitzung dieses Betrachters</translation>
    </message>
    <message>
        <source>it does not tell its version</source>
        <translation>sie nennt ihre Version nicht</translation>
    </message>
    <message>
        <source>it is of version %1, of which this viewer knows nothing; it reads version %2</source>
        <translation>sie hat die Version %1, die dieser Betrachter nicht kennt; er liest Version %2</translation>
    </message>
    <message>
        <source>%1 in it must be names</source>
        <translation>%1 darin müssen Namen sein</translation>
    </message>
    <message>
        <source>the color of %1 in it must be such as &quot;#D90C00&quot;</source>
        <translation>die Farbe von %1 darin muss wie &quot;#D90C00&quot; sein</translation>
    </message>
    <message>
        <source>it has more than %1 criteria</source>
        <translation>sie hat mehr als %1 Kriterien</translation>
    </message>
    <message>
        <source>%1 in it must be objects</source>
        <translation>%1 darin müssen Objekte sein</translation>
    </message>
    <message>
        <source>a criterion in it has no %1</source>
        <translation>ein Kriterium darin hat kein %1</translation>
    </message>
    <message>
        <source>there is no operator %1</source>
        <translation>es gibt keinen Operator %1</translation>
    </message>
    <message>
        <source>the value of a criterion in it must be a number of single precision</source>
        <translation>der Wert eines Kriteriums darin muss eine Zahl einfacher Genauigkeit sein</translation>
    </message>
    <message>
        <source>%1 in it must be &quot;all&quot;, &quot;head&quot; or &quot;tail&quot;</source>
        <translation>%1 darin muss &quot;all&quot;, &quot;head&quot; oder &quot;tail&quot; sein</translation>
    </message>
</context>
<context>
    <name>SessionRestorer</name>
    <message>
        <source>there is no data set %1; the log has %2</source>
        <translation>es gibt keinen Datensatz %1; das Protokoll hat %2</translation>
    </message>
    <message>
        <source>the log has no variable for its criteria on %1</source>
        <translation>das Protokoll hat keine Variable für ihre Kriterien zu %1</translation>
    </message>
    <message>
        <source>its excluded rows belong to another log and were left out</source>
        <translation>ihre ausgeschlossenen Zeilen gehören zu einem anderen Protokoll und wurden weggelassen</translation>
    </message>
    <message>
        <source>some of its excluded rows lie beyond the last row, which is %1</source>
        <translation>manche ihrer ausgeschlossenen Zeilen liegen hinter der letzten Zeile, die %1 ist</translation>
    </message>
    <message>
        <source>the bounds of %1 are no numbers</source>
        <translation>die Grenzen von %1 sind keine Zahlen</translation>
    </message>
    <message>
        <source>there is no variable %1 in data set %2</source>
        <translation>es gibt keine Variable %1 in Datensatz %2</translation>
    </message>
    <message>
        <source>there are no variables %1 in data set %2</source>
        <translation>es gibt keine Variablen %1 in Datensatz %2</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>Save the setup</source>
        <translation>Einstellung speichern</translation>
    </message>
    <message>
        <source>Apply a setup</source>
        <translation>Eine Einstellung anwenden</translation>
    </message>
    <message>
        <source>Everything (*.json)</source>
        <translation>Alles (*.json)</translation>
    </message>
    <message>
        <source>Variables and criteria (*.xml)</source>
        <translation>Variablen und Kriterien (*.xml)</translation>
    </message>
</context>
<context>
    <name>SetupFiles</name>
    <message>
        <source>there is such a file already; give its whole name to replace it</source>
        <translation>es gibt schon eine solche Datei; ihr ganzer Name ersetzt sie</translation>
    </message>
    <message>
        <source>%1 was saved</source>
        <translation>%1 wurde gespeichert</translation>
    </message>
    <message>
        <source>%1 was applied</source>
        <translation>%1 wurde angewendet</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Data set</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
</context>
<context>
    <name>TableKeys</name>
    <message>
        <source>Move the current cell; with Shift, select up to it</source>
        <translation>Aktuelle Zelle bewegen; mit Umschalt bis dahin auswählen</translation>
    </message>
    <message>
        <source>Page up, Page down</source>
        <translation>Bild auf, Bild ab</translation>
    </message>
    <message>
        <source>One page up or down</source>
        <translation>Eine Seite auf oder ab</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Pos1, Ende</translation>
    </message>
    <message>
        <source>To the first or the last column</source>
        <translation>Zur ersten oder letzten Spalte</translation>
    </message>
    <message>
        <source>Ctrl+Home, Ctrl+End</source>
        <translation>Strg+Pos1, Strg+Ende</translation>
    </message>
    <message>
        <source>To the first or the last row</source>
        <translation>Zur ersten oder letzten Zeile</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Strg+A</translation>
    </message>
    <message>
        <source>Select everything</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Strg+C</translation>
    </message>
    <message>
        <source>Copy the selected cells</source>
        <translation>Gewählte Zellen kopieren</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Strg+Umschalt+C</translation>
    </message>
    <message>
        <source>Copy them with the headers</source>
        <translation>Mit den Köpfen kopieren</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Exclude the selected rows, or take them in again</source>
        <translation>Gewählte Zeilen ausschließen oder wieder aufnehmen</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Show the row in the plot</source>
        <translation>Zeile im Diagramm zeigen</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Strg+F</translation>
    </message>
    <message>
        <source>Find text</source>
        <translation>Text suchen</translation>
    </message>
    <message>
        <source>F3, Shift+F3</source>
        <translation>F3, Umschalt+F3</translation>
    </message>
    <message>
        <source>The next match, the one before</source>
        <translation>Nächster Treffer, voriger Treffer</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Show the column in its whole width, or narrow again</source>
        <translation>Die Spalte in ganzer Breite zeigen, oder wieder schmal</translation>
    </message>
</context>
<context>
    <name>TablePane</name>
    <message>
        <source>There are no header constants in this data set.</source>
        <translation>In diesem Datensatz sind keine Konstanten im Kopf.</translation>
    </message>
    <message>
        <source>There is no data in this data set.</source>
        <translation>In diesem Datensatz sind keine Daten.</translation>
    </message>
    <message>
        <source>Nothing is plotted: tick a variable for the X axis and one for the left or the right axis.</source>
        <translation>Es ist nichts im Diagramm: eine Variable für die X-Achse und eine für die linke oder rechte Achse wählen.</translation>
    </message>
    <message>
        <source>All columns are hidden: choose some by &quot;Columns&quot;.</source>
        <translation>Alle Spalten sind verborgen: unter „Spalten“ welche wählen.</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Konstanten</translation>
    </message>
    <message>
        <source>Observations</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>Plotted</source>
        <translation>Im Diagramm</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>%L1 cells copied</source>
        <translation>%L1 Zellen kopiert</translation>
    </message>
    <message>
        <source>Too many cells to copy: save the data as CSV</source>
        <translation>Zu viele Zellen zum Kopieren: die Daten als CSV speichern</translation>
    </message>
    <message>
        <source>This row is not plotted</source>
        <translation>Diese Zeile ist nicht im Diagramm</translation>
    </message>
    <message>
        <source>The criteria and the chosen range leave no row to plot.</source>
        <translation>Die Kriterien und der gewählte Bereich lassen keine Zeile übrig.</translation>
    </message>
</context>
<context>
    <name>TableToolBar</name>
    <message>
        <source>%L1 × %L2 selected</source>
        <translation>%L1 × %L2 gewählt</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>%L1 …</source>
        <translation>%L1 …</translation>
    </message>
    <message>
        <source>%L1</source>
        <translation>%L1</translation>
    </message>
    <message>
        <source>%L1 of %2</source>
        <translation>%L1 von %2</translation>
    </message>
    <message>
        <source>Find text</source>
        <translation>Text suchen</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Strg+F</translation>
    </message>
    <message>
        <source>Tap to select up to there</source>
        <translation>Tippen wählt bis dorthin</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Copy the selected cells</source>
        <translation>Gewählte Zellen kopieren</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Strg+C</translation>
    </message>
    <message>
        <source>Copy the selected cells with their headers</source>
        <translation>Gewählte Zellen mit ihren Köpfen kopieren</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Strg+Umschalt+C</translation>
    </message>
    <message>
        <source>Exclude the selected rows, or take them in again</source>
        <translation>Gewählte Zeilen ausschließen oder wieder aufnehmen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Show the row in the plot</source>
        <translation>Zeile im Diagramm zeigen</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>The match before</source>
        <translation>Der vorige Treffer</translation>
    </message>
    <message>
        <source>Shift+Enter</source>
        <translation>Umschalt+Eingabe</translation>
    </message>
    <message>
        <source>The next match</source>
        <translation>Der nächste Treffer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Rows: %L1 of %L2</source>
        <translation>Zeilen: %L1 von %L2</translation>
    </message>
    <message>
        <source>Rows: %L1</source>
        <translation>Zeilen: %L1</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Open one of the recent logs</source>
        <translation>Eines der letzten Protokolle öffnen</translation>
    </message>
    <message>
        <source>%L1 things were not taken as they stand</source>
        <translation>%L1 Dinge wurden nicht übernommen, wie sie dastehen</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Verfolgen</translation>
    </message>
    <message>
        <source>The log has changed and is being read: a press stops that</source>
        <translation>Das Protokoll hat sich geändert und wird gelesen: Drücken beendet das</translation>
    </message>
    <message>
        <source>Reads the log again whenever it has changed</source>
        <translation>Liest das Protokoll neu, wann immer es sich geändert hat</translation>
    </message>
    <message>
        <source>Read the log again</source>
        <translation>Das Protokoll neu lesen</translation>
    </message>
    <message>
        <source>Apply setup…</source>
        <translation>Einstellung anwenden…</translation>
    </message>
    <message>
        <source>Save setup…</source>
        <translation>Einstellung speichern…</translation>
    </message>
    <message>
        <source>Keys and gestures</source>
        <translation>Tasten und Gesten</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>TroubleScan</name>
    <message>
        <source>Headers</source>
        <translation>Köpfe</translation>
    </message>
    <message>
        <source>Columns without a name</source>
        <translation>Spalten ohne Namen</translation>
    </message>
    <message>
        <source>Rows taken for remarks</source>
        <translation>Als Bemerkung gelesene Zeilen</translation>
    </message>
    <message>
        <source>Rows with too few cells</source>
        <translation>Zeilen mit zu wenigen Zellen</translation>
    </message>
    <message>
        <source>Rows with too many cells</source>
        <translation>Zeilen mit zu vielen Zellen</translation>
    </message>
    <message>
        <source>Rows that start with an empty cell</source>
        <translation>Zeilen, die mit einer leeren Zelle beginnen</translation>
    </message>
    <message>
        <source>the log ends here, before the data of its last data set</source>
        <translation>das Protokoll endet hier, vor den Daten seines letzten Datensatzes</translation>
    </message>
    <message>
        <source>[Header] stands among the rows of groups, names and units</source>
        <translation>[Header] steht zwischen den Zeilen der Gruppen, Namen und Einheiten</translation>
    </message>
    <message>
        <source>the first groups are empty, so the others stand too far left</source>
        <translation>die ersten Gruppen sind leer, daher stehen die anderen zu weit links</translation>
    </message>
    <message>
        <source>the first names are empty, so the others stand too far left</source>
        <translation>die ersten Namen sind leer, daher stehen die anderen zu weit links</translation>
    </message>
    <message>
        <source>%1 names for %2 groups: the last names are left out</source>
        <translation>%1 Namen für %2 Gruppen: die letzten Namen sind weggelassen</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>the first unit is not empty, so units stand one column too far right</source>
        <translation>die erste Einheit ist nicht leer, daher stehen Einheiten eine Spalte zu weit rechts</translation>
    </message>
    <message>
        <source>several units at the start are empty, so the others stand too far left</source>
        <translation>mehrere Einheiten am Anfang sind leer, daher stehen die anderen zu weit links</translation>
    </message>
    <message>
        <source>an empty line</source>
        <translation>eine leere Zeile</translation>
    </message>
    <message>
        <source>its cells stand too far left by %1</source>
        <translation>ihre Zellen stehen um %1 zu weit links</translation>
    </message>
    <message>
        <source>%1 cells for %2 columns</source>
        <translation>%1 Zellen für %2 Spalten</translation>
    </message>
</context>
<context>
    <name>TroublesPopup</name>
    <message>
        <source>Not taken as it stands</source>
        <translation>Nicht übernommen, wie es dasteht</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The rest of the log was read. Lines are counted in the text that the spreadsheet was converted to, from 1; as a rule they are the rows of the sheet. A tap shows the row in the table.</source>
        <translation>Der Rest des Protokolls wurde gelesen. Gezählt werden die Zeilen des Textes, in den die Kalkulationstabelle umgewandelt wurde, von 1 an; in der Regel sind es deren Zeilen. Ein Tippen zeigt die Zeile in der Tabelle.</translation>
    </message>
    <message>
        <source>The rest of the log was read. Lines are counted in the file, from 1. A tap shows the row in the table.</source>
        <translation>Der Rest des Protokolls wurde gelesen. Zeilen sind in der Datei gezählt, ab 1. Ein Tippen zeigt die Zeile in der Tabelle.</translation>
    </message>
    <message>
        <source>Shows the row in the table</source>
        <translation>Zeigt die Zeile in der Tabelle</translation>
    </message>
</context>
<context>
    <name>VariableRow</name>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>X</source>
        <comment>axis</comment>
        <translation>X</translation>
    </message>
    <message>
        <source>%1 on the X axis</source>
        <translation>%1 auf der X-Achse</translation>
    </message>
    <message>
        <source>L</source>
        <comment>left axis</comment>
        <translation>L</translation>
    </message>
    <message>
        <source>%1 on the left axis</source>
        <translation>%1 auf der linken Achse</translation>
    </message>
    <message>
        <source>R</source>
        <comment>right axis</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>%1 on the right axis</source>
        <translation>%1 auf der rechten Achse</translation>
    </message>
</context>
<context>
    <name>VariableTable</name>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
</context>
<context>
    <name>VariablesPage</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search variables by name, group or unit</source>
        <translation>Variablen nach Name, Gruppe oder Einheit suchen</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Die Suche leeren</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Gewählte</translation>
    </message>
    <message>
        <source>Lists only what is on an axis</source>
        <translation>Zeigt nur, was auf einer Achse ist</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>No variable has “%1” in its name, group or unit.</source>
        <translation>Keine Variable hat „%1“ in Name, Gruppe oder Einheit.</translation>
    </message>
    <message>
        <source>No variable is on an axis.</source>
        <translation>Keine Variable ist auf einer Achse.</translation>
    </message>
    <message>
        <source>There are no variables.</source>
        <translation>Es gibt keine Variablen.</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
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
        <source>DataLog %1</source>
        <translation>DataLog %1</translation>
    </message>
    <message>
        <source>Curves as on the instrument</source>
        <translation>Kurven wie auf dem Gerät</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Apply setup…</source>
        <translation>Einstellung anwenden…</translation>
    </message>
    <message>
        <source>Save setup…</source>
        <translation>Einstellung speichern…</translation>
    </message>
    <message>
        <source>Keys and gestures…</source>
        <translation>Tasten und Gesten…</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>the settings are lost</source>
        <translation>die Einstellungen gehen verloren</translation>
    </message>
</context>
<context>
    <name>Views</name>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Clear excluded (%L1)</source>
        <translation>Ausschlüsse aufheben (%L1)</translation>
    </message>
    <message>
        <source>Plots the excluded points again</source>
        <translation>Zeigt die ausgeschlossenen Punkte wieder</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>it is no ordinary file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>there is no room for it</source>
        <translation>dafür ist kein Platz</translation>
    </message>
</context>
<context>
    <name>WindowKeys</name>
    <message>
        <source>This sheet</source>
        <translation>Dieses Blatt</translation>
    </message>
    <message>
        <source>The menu</source>
        <translation>Das Menü</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Strg+O</translation>
    </message>
    <message>
        <source>Open a log</source>
        <translation>Ein Protokoll öffnen</translation>
    </message>
    <message>
        <source>Read the log again</source>
        <translation>Das Protokoll neu lesen</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Strg+S</translation>
    </message>
    <message>
        <source>Save the setup</source>
        <translation>Einstellung speichern</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Strg+Umschalt+O</translation>
    </message>
    <message>
        <source>Apply a setup</source>
        <translation>Eine Einstellung anwenden</translation>
    </message>
    <message>
        <source>Ctrl+1</source>
        <translation>Strg+1</translation>
    </message>
    <message>
        <source>The plot</source>
        <translation>Das Diagramm</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Strg+2</translation>
    </message>
    <message>
        <source>The table</source>
        <translation>Die Tabelle</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Strg+3</translation>
    </message>
    <message>
        <source>The filter</source>
        <translation>Der Filter</translation>
    </message>
    <message>
        <source>Show or hide the side panel</source>
        <translation>Seitenleiste zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Full screen, or a window again</source>
        <translation>Ganzer Bildschirm, oder wieder ein Fenster</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Strg+Q</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>XmlDefinition</name>
    <message>
        <source>it has more than %1 criteria</source>
        <translation>sie hat mehr als %1 Kriterien</translation>
    </message>
    <message>
        <source>there is no operator %1</source>
        <translation>es gibt keinen Operator %1</translation>
    </message>
    <message>
        <source>XML can&apos;t hold it: %1</source>
        <translation>XML kann es nicht fassen: %1</translation>
    </message>
    <message>
        <source>which variables were meant, where names are alike or hold characters that XML has no place for</source>
        <translation>welche Variablen gemeint waren, wo Namen gleich sind oder Zeichen haben, für die XML keinen Platz hat</translation>
    </message>
    <message>
        <source>the data set</source>
        <translation>den Datensatz</translation>
    </message>
    <message>
        <source>the range of rows</source>
        <translation>den Bereich der Zeilen</translation>
    </message>
    <message>
        <source>the excluded rows</source>
        <translation>die ausgeschlossenen Zeilen</translation>
    </message>
    <message>
        <source>lines and symbols</source>
        <translation>Linien und Symbole</translation>
    </message>
    <message>
        <source>the fixed scales</source>
        <translation>die festen Skalen</translation>
    </message>
    <message>
        <source>the operator of %1, which reads back as &gt;</source>
        <translation>den Operator von %1, der als &gt; zurückkommt</translation>
    </message>
    <message>
        <source>digits beyond the sixth of %1</source>
        <translation>Ziffern nach der sechsten von %1</translation>
    </message>
    <message>
        <source>that %1 is off</source>
        <translation>dass %1 aus ist</translation>
    </message>
    <message>
        <source>XML does not keep operators: these criteria read as %1, whatever they were; check them</source>
        <translation>XML behält keine Operatoren: diese Kriterien werden als %1 gelesen, was immer sie waren; bitte prüfen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>There is no display: the plot of %1 is in %2</source>
        <translation>Es gibt keine Anzeige: das Diagramm von %1 ist in %2</translation>
    </message>
    <message>
        <source>the bundled sample can&apos;t be put into a temporary directory</source>
        <translation>das mitgelieferte Beispiel lässt sich nicht in ein temporäres Verzeichnis legen</translation>
    </message>
</context>
</TS>
