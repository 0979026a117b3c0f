<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>es gibt keine Option --%1</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 hat keinen Wert</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 braucht %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 kennt kein %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: „%2“ ist nicht möglich</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>ein Befehl fehlt; --help nennt alle</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>es gibt keinen Befehl „%1“; --help nennt alle</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 kennt dieses --format nicht</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>der Dateiname ist leer</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>„%1“ ist nicht möglich; möglich sind: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>„%1“ ist kein Schritt wie +1 oder -1, und PJLink kann nur schrittweise verstellen</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>„%1“ ist mehr als %n Schritt</numerusform>
            <numerusform>„%1“ ist mehr als %n Schritte</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>„%1“ ab %2 ist nicht möglich; möglich sind: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>„%1“ ist mehr als %n Schritt ab %2</numerusform>
            <numerusform>„%1“ ist mehr als %n Schritte ab %2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>Projektoren auflisten</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Gibt Name, Modell, Seitensatz, Seriencode, Verbindung und Schlagwörter der genannten oder aller Projektoren aus.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>Modelle auflisten</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Gibt die Modelle der Profildatei aus, jeweils mit der Anzahl der Projektoren und der Einstellungen.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>Einstellungen und ihre Werte auflisten</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Gibt die Einstellungen des Modells aus: Schlüssel, Registerkarte, Beschriftung und mögliche Werte. Der Projektor wird nicht gefragt.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>eine Einstellung erklären</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Erklärt eine Einstellung: Registerkarte und Beschriftung, mögliche Werte mit ihren Codes, die Modelle, die sie haben, und ob sie gesetzt, zurückgesetzt sowie gespeichert und wiederhergestellt werden kann.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>aktuelle Werte ausgeben</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Liest Einstellungen der Projektoren und gibt sie aus, ohne Schlüssel alle.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>Einstellungen ändern</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Ändert Einstellungen in der angegebenen Reihenfolge, liest jede zurück und gibt den Wert vorher und nachher aus. Zuerst werden alle Schlüssel und Werte für alle Projektoren geprüft; ist ein Wert für einen davon falsch, wird an keinen etwas gesendet. Ein Schlüssel, den ein Projektor nicht hat, wird gemeldet und hält die anderen nicht auf.
KEY=VALUE setzt einen Wert; KEY+=N und KEY-=N verändern den aktuellen Wert um N. In der Form KEY VALUE sind +3 und -3 Schritte, und =-3 ist eine Zahl unter null. „acctl undo“ stellt den vorherigen Zustand wieder her, außer Ein/Aus und den Folgen von Aktionen.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>Einstellungen auf den Standard des Projektors zurücksetzen</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>Ein/Aus, Eingang, Fehler und Stunden ausgeben</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Gibt die Statusseite der genannten oder aller Projektoren aus.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>Einstellungen in Dateien speichern</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Speichert alle Einstellungen, die wiederhergestellt werden können: die eines Projektors in FILE („-“ ist die Standardausgabe) oder die beliebig vieler in einem Ordner, je eine Datei. Eine Datei, die keine Einstellungsdatei ist, wird ohne --force nicht ersetzt.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>mit gespeicherten Einstellungen vergleichen</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>gespeicherte Einstellungen wiederherstellen</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>Werte und jede Änderung ausgeben</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Gibt Werte aus und danach jede Änderung, bis es unterbrochen wird, bis niemand mehr die Ausgabe liest oder bis alle Projektoren den Wert von --until haben. Bei einem Projektor, der verstummt, wird es immer wieder versucht.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>im Netzwerk nach Projektoren suchen</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Fragt alle PJLink-Projektoren des Netzwerks oder die angegebenen Adressen, wer sie sind. ADDRESSES haben die Form 192.0.2.7, 192.0.2.0/24 oder 192.0.2.10-40. Gespeichert wird nur, wenn --add eine Profildatei nennt.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>Projektoren aus einer Tabelle übernehmen</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Fügt die Zeilen kommagetrennter Werte („-“ ist die Standardeingabe) der Profildatei hinzu, die --profiles oder ACCTL_PROFILES nennt, und ändert die Projektoren, die sie schon enthält.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>Projektoren als Tabelle ausgeben</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Gibt die genannten oder alle Projektoren als kommagetrennte Werte aus, ohne Passwörter.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>einen Befehl erklären</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>eines von = != &lt; &lt;= &gt; &gt;= fehlt</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>ein Wert fehlt</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>kein Modell hat diese Einstellung</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>nur Zahlen sind kleiner oder größer</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>kein Modell hat diese Einstellung; acctl settings nennt alle Schlüssel</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>kein Modell hat diese Einstellung; ist %1 gemeint?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 bis %2, angezeigt als %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>Quelle %1: dieser Wert gilt nicht je Quelle</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>Quelle %1 gibt es nicht; es gibt %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>Wert %1 ist nicht möglich; möglich sind %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>der Text „%1“ gehört nicht zum Wert %2, der „%3“ heißt; bitte beide ändern oder den Text entfernen</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Liest, ändert und speichert die Einstellungen von Projektoren, die der Dialog „Erweiterte Steuerung“ zeigt, und stellt sie wieder her. Die Projektoren stehen in einer Profildatei.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P wählt Projektoren aus: ein Name, ein Muster wie „Lecture*“, @TAG oder model=PATTERN. Mehrere werden durch Kommas getrennt, und !P nimmt Projektoren aus. KEY ist der Schlüssel einer Einstellung, ein Muster wie „picture.*“ oder ein Kurzname wie brightness, input oder power, der bei allen Modellen gleich ist. VALUE ist eine Zahl, wie der Dialog sie zeigt, der Text eines Eintrags in einer Sprache des Dialogs oder sein Code.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Erledigt. Auch dann, wenn ein Projektor im Standby nicht alles melden konnte oder eine angenommene Änderung noch nicht wirkt.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Etwas wurde abgelehnt, einem Projektor fehlt eine genannte Einstellung, oder eine Datei oder die Ausgabe konnte nicht gelesen oder geschrieben werden.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Falscher Aufruf: Es wurde nichts an einen Projektor gesendet.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Ein Projektor hat nicht geantwortet oder seine Eingänge nicht gemeldet, oder ein anderer Lauf von acctl benutzt ihn.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Unterbrochen; der Bericht nennt, was getan wurde.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Optionen aller Befehle; „acctl help COMMAND“ nennt die eigenen eines Befehls, mit Beispielen</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Rückgabewerte</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>Kurzname: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>Registerkarte</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>Art</translation>
    </message>
    <message>
        <source>values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>die der Projektor meldet</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>Gültig</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>je Eingangsquelle</translation>
    </message>
    <message>
        <source>models</source>
        <translation>Modelle</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n Einstellung</numerusform>
            <numerusform>%n Einstellungen</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>keine Profile unter %1; bitte eine Datei mit --profiles nennen</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>die Projektoren aus FILE lesen</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>nur Projektoren in diesem Zustand, etwa „power=on lamp-hours&gt;1500“</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>der Projektor hat die Adresse ADDRESS; P nennt nur sein Modell</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>der Port der gesuchten Projektoren; Standard ist 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>PJLink-Passwort; andere Benutzer dieses Rechners können es hier sehen</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>die erste Zeile von FILE ist das Passwort</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>Ausgabe: text, json, jsonl (eine Zeile je Wert oder Projektor), tsv oder value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>dasselbe wie --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>nur Namen oder Schlüssel, einer je Zeile</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>nur Einstellungen, die get, set, reset oder watch benutzen können</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>nur Schlüssel, die zu GLOB passen; mehrfach möglich</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>Zeilen KEY=VALUE aus FILE nehmen („-“ ist die Standardeingabe)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>jeden Projektor in einer eigenen Datei in DIR speichern</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>was gefunden wurde, in die Profildatei FILE aufnehmen</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>ausgeben, was sich ändern würde, und nichts ändern</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>warten, bis der Zustand erreicht ist, höchstens TIME, etwa 90s oder 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>enden, wenn alle Projektoren diesen Wert haben</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>mit 1 enden, wenn etwas abweicht, mit 2, wenn etwas nicht verglichen werden konnte</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>Falsches in FILE überspringen, statt nichts zu senden</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: auch die Undo-Datei eines anderen Projektors; save: jede Datei ersetzen</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>die Läufe auflisten, die rückgängig gemacht werden können</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>der Ordner für Undo-Dateien</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>Undo-Dateien löschen, die älter als N Tage sind; Standard ist 30, 0 behält alle</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>Projektoren zugleich, 1 bis 1024; Standard ist 512 beim Lesen und 64 beim Ändern</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>Zeit für eine Antwort; Standard ist 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>es bei einem Projektor, der nicht antwortet, N-mal erneut versuchen; Standard ist 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>nach dem ersten Fehler mit keinem weiteren Projektor beginnen</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>Zeit zwischen zwei Abfragen; Standard ist 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>Sprache der Texte, etwa de oder zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>dieser Text; mit einem Befehl dessen eigene Hilfe</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>die Version</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>kann nicht schreiben: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>„%1“ ist nicht möglich</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>„=“ fehlt</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>es gibt keine Einstellung %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>kann %1 nicht lesen: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>die erste Zeile ist leer</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Passwort von %1: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simuliert)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>%1 hinzugefügt, %2 verschoben, %3 bekannt</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>braucht ein Passwort</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>bitte die Profildatei mit --profiles nennen</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>nicht verwendete Spalten: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>%1 hinzugefügt, %2 bekannt, %3 falsch</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: „%2“ ist nicht KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: enthält kein KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>hier ist ein Projektor möglich, nicht %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>rückgängig gemacht</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>kann in %1 nicht vermerken, dass es rückgängig gemacht ist: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>ein anderer Lauf von acctl arbeitet damit</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>nicht begonnen, weil ein anderer Projektor fehlschlug</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>von acctl selbst simuliert, nichts wurde dauerhaft geändert</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>unterbrochen; was getan wurde, steht oben</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>im Standby, ausgelassen: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>wärmt auf, ausgelassen: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>kühlt ab, ausgelassen: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>übersprungen, dieser Projektor bietet es nicht an: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n Projektor</numerusform>
            <numerusform>%n Projektoren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n geändert</numerusform>
            <numerusform>%n geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n abweichend</numerusform>
            <numerusform>%n abweichend</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n unverändert</numerusform>
            <numerusform>%n unverändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n noch nicht wirksam</numerusform>
            <numerusform>%n noch nicht wirksam</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>angenommen, aber noch nicht wirksam</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n abgelehnt</numerusform>
            <numerusform>%n abgelehnt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n beschäftigt</numerusform>
            <numerusform>%n beschäftigt</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>der Projektor ist beschäftigt oder im Standby</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n unbestätigt</numerusform>
            <numerusform>%n unbestätigt</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>nicht bestätigt, möglicherweise geändert</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n nicht ausgeführt</numerusform>
            <numerusform>%n nicht ausgeführt</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>übersprungen, dieses Modell hat es nicht</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>übersprungen, dieser Projektor bietet es nicht an</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>übersprungen, kann nicht wiederhergestellt werden</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>übersprungen, dieses Modell nimmt den Wert nicht an</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>bei %1 stehen geblieben</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>nicht gesendet, mehr als %n Schritt entfernt</numerusform>
            <numerusform>nicht gesendet, mehr als %n Schritte entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>abgelehnt, der Wert ist %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>der Wert kann gerade nicht gelesen werden</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n nicht verglichen</numerusform>
            <numerusform>%n nicht verglichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n übersprungen</numerusform>
            <numerusform>%n übersprungen</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nichts zu tun</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>übersprungen, weil PJLink sie nicht kennt: %n Einstellung der Datei</numerusform>
            <numerusform>übersprungen, weil PJLink sie nicht kennt: %n Einstellungen der Datei</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; weiter wurde nichts gesendet</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; nichts wurde gesendet</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: macht eine Änderung von %2 rückgängig; --force wendet sie auf %3 an</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: diese Einstellung enthält die Datei nicht</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: es gibt keinen Projektor „%2“</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: auch %2 gehört zu %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: der Ordner enthält keine Einstellungsdateien</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: in %2 gibt es keine Datei dafür</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: ist keine Einstellungsdatei; --force ersetzt sie</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: diese Datei oder diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>bitte die Projektoren nennen, auf die die Datei angewendet wird</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>eine Datei ist für einen Projektor, nicht für %1; -o nennt einen Ordner</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>kann den Ordner %1 nicht anlegen</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; ein früherer Lauf kann mit seinem Namen rückgängig gemacht werden</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>es gibt keinen Lauf, der rückgängig gemacht werden kann</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>es gibt keinen Lauf „%1“; --list nennt alle</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: steht nicht mehr in der Profildatei</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>kann gerade nicht gelesen werden und wird ausgelassen</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>nichts kann gelesen werden, und nichts wurde geschrieben</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n Einstellung in %1 gespeichert</numerusform>
            <numerusform>%n Einstellungen in %1 gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>es gibt keinen Projektor „%1“; acctl list nennt alle</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>abgelehnt, der Projektor ist im Standby</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>abgelehnt, der Projektor wärmt auf</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>abgelehnt, der Projektor kühlt ab</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>abgelehnt, der Projektor ist beschäftigt</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>das kann nicht rückgängig gemacht werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>angehalten, %1 von %n Schritt angenommen</numerusform>
            <numerusform>angehalten, %1 von %n Schritten angenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; %2 von %n Schritt angenommen</numerusform>
            <numerusform>%1; %2 von %n Schritten angenommen</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>angenommen, aber noch nicht wirksam, der Wert ist %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, möglicherweise geändert, der Wert ist %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, möglicherweise geändert</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>nicht rechtzeitig erreicht, der Wert ist %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>nicht rechtzeitig erreicht</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: keine Zeile einer Undo-Datei</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: enthält nichts, was rückgängig zu machen ist</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>kann %1 nicht schreiben: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>falsche Verbindungsparameter</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>unbekannter Rechnername</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nicht erreichbar</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>Verbindung abgebrochen</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>Antworten sind unverständlich</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>andere Version des Protokolls</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>Passwort fehlt oder ist falsch</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>keine Antwort (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>dieses Modell hat diese Einstellung nicht</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>übersprungen, PJLink kennt es nicht</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>kann gerade nicht gelesen werden</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>dieser Projektor bietet es nicht an</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>nicht gelesen, der Projektor hat seine Eingänge nicht gemeldet</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink kennt es nicht</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>das kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>das kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>das kann nicht wiederhergestellt werden</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>das kann nicht zurückgesetzt werden</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, der Projektor ist im Standby</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, der Projektor wärmt auf</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, der Projektor kühlt ab</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>antwortet wieder</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: „%1“ ist nicht KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Gibt aus, was von einer Datei („-“ ist die Standardeingabe), von einer Vorgabe der Anwendung oder von der eigenen Datei jedes Projektors in einem Ordner abweicht.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Liest die Projektoren, sendet, was von der Datei („-“ ist die Standardeingabe), von einer Vorgabe der Anwendung oder von der eigenen Datei jedes Projektors in einem Ordner abweicht, und liest es zurück. Was ersetzt wird, wird vorher gesichert, damit „acctl undo“ es wiederherstellen kann. Ein unterbrochener Lauf kann jederzeit wiederholt werden.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>der vorherige Wert konnte nicht gelesen werden und kann nicht wiederhergestellt werden</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>der vorherige Wert konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>das kann nicht rückgängig gemacht werden</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Setzt Einstellungen auf den eigenen Standard des Projektors zurück und gibt aus, was sie danach sind. „acctl undo“ stellt den vorherigen Zustand wieder her. Stundenzähler werden nur mit ihrem genauen Schlüssel zurückgesetzt, weil das nicht rückgängig gemacht werden kann.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>den letzten Lauf rückgängig machen, der Einstellungen geändert hat</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>der Lauf hat keinen dieser Projektoren geändert</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Stellt wieder her, was ein Lauf von „set“, „reset“ oder „apply“ ersetzt hat. RUN ist ein Name aus „acctl undo --list“, eine Datei oder „last“; ohne RUN wird der letzte Lauf rückgängig gemacht. Mit P oder --where werden nur diese Projektoren wiederhergestellt, und der Rest des Laufs kann später rückgängig gemacht werden. Auch ein solcher Lauf kann unter seinem Namen rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>unterbrochen</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>angenommen, aber nicht bestätigt: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>„%1“ muss mit / oder ~/ beginnen</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>wartet auf ein anderes Programm, das %1 ändert</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>Bestäti&amp;gen</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>A&amp;lle bestätigen</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Seit</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: die Lampe hat %2 von %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n Einstellung ist nicht, wie sie sein soll</numerusform>
            <numerusform>%1: %n Einstellungen sind nicht, wie sie sein sollen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>bestätigt</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>Die Projektoren stehen in &lt;Datei&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Nur einen von mehreren Anteilen beobachten: 2/5 ist der zweite von fünf.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Nur Projektoren mit &lt;Schlagwort&gt; beobachten, oder mit einem von mehreren.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>Schlagwort</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Jeden Projektor alle &lt;Sekunden&gt; besuchen, mindestens 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Einmal am Tag jeden Projektor mit seinem Schnappschuss in &lt;Ordner&gt; vergleichen.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Statusmeldungen von Projektoren unter &lt;Adresse&gt; entgegennehmen.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Messwerte unter &lt;Adresse:Port&gt; anbieten; „none“ für nirgends.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>Adresse:Port</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Messwerte alle 15 Sekunden in &lt;Datei&gt; schreiben, für einen Sammler von Textdateien.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Nachrichten an den MQTT-Broker &lt;Host:Port&gt; senden.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>Host:Port</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Version von MQTT, 3 (3.1.1) oder 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>Die erste Zeile von &lt;Datei&gt; ist der Benutzername beim Broker.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>Die erste Zeile von &lt;Datei&gt; ist das Passwort beim Broker.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Verschlüsseln und den Zertifizierungsstellen vertrauen, denen das System vertraut.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Verschlüsseln und den Zertifizierungsstellen in &lt;Datei&gt; vertrauen.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>Das Zertifikat dieses Clients.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Sein Schlüssel.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>Die erste Ebene aller Topics.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>Topic</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>Die erste Ebene der Discovery-Topics; „none“ für keine Discovery.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Den Anteil einer Bridge übernehmen, die &lt;Sekunden&gt; lang nichts gesagt hat.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Einstellungen, die per Befehl geändert werden dürfen: Schlüssel oder Muster, durch Kommas getrennt; „power“ ist Ein/Aus. Ohne diese Option keine.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Befehle, die jeder Projektor in einer Minute annimmt.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Namen in Discovery-Nachrichten und die Meldungen dieses Programms sind in der Sprache &lt;Name&gt;, etwa de oder zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>„%1“ ist keine Zeit von %2 Sekunden bis zu einem Tag</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>„%1“ ist kein Topic</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>„%1“ ist kein Anteil wie 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>„%1“ ist keine numerische Adresse mit Port</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>kann %1 nicht lesen: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 braucht --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>„%1“ ist kein Host mit Port</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>„%1“ ist weder 3 noch 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file und --key-file gehen nur zusammen</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: „%1“ ist keine Einstellung, die per Befehl geändert werden darf</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>„%1“ ist keine Zahl von 1 bis %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Beobachtet Projektoren und meldet ihren Zustand an einen Messwertspeicher und einen Nachrichtenbroker.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>--profiles fehlt</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>„%1“ ist keine numerische Adresse</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>„%1“ ist kein Ordner</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>es gibt keine Texte in „%1“</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>kein Projektor hat das Schlagwort „%1“</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>Unerwartetes „=“ in „%1“.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Öffnet die Einstellungsdialoge echter oder simulierter Projektoren.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>Die Projektoren aus &lt;Datei&gt; lesen.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>Beim Start den Dialog des Projektors &lt;Name&gt; öffnen.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>Mit --open: Registerkarte &lt;n&gt; wählen, ab 0 gezählt.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>Die Tabelle der Projektoren ausgeben.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>Mit --open: ein Bild (PNG) des Dialogs speichern und beenden.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Bilder aller Registerkarten aller Arten von Projektoren in &lt;Ordner&gt; speichern und beenden.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Texte in der Sprache &lt;Name&gt; anzeigen, etwa de oder zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: Es gibt keine Texte in „%1“.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>Nur eines von --list, --tour und --open ist möglich.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 braucht --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: „%1“ ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Nur &amp;Änderungen</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Nur &amp;Fehler</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>&amp;Protokoll speichern unter …</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>Protokoll &amp;leeren …</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Befehlsprotokoll</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Befehle auslassen, die nur lesen</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Befehle auslassen, die ausgeführt wurden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Protokoll filtern</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Tabellen (*.tsv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Protokoll leeren</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>%n Eintrag des Protokolls entfernen?</numerusform>
            <numerusform>Alle %n Einträge des Protokolls entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Projektor, Einstellung, Befehl oder Ergebnis</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Alle Projektoren</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Befehle zeigen von</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projektor</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>beschäftigt</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>nicht angeboten</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>noch nicht wirksam</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Erneut abfragen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Einstellungen werden gelesen …</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Nichts weicht ab.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n Projektor weicht ab.</numerusform>
            <numerusform>%n Projektoren weichen ab.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n Projektor hat alle diese Einstellungen schon.</numerusform>
            <numerusform>%n Projektoren haben alle diese Einstellungen schon.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n Projektor konnte nicht gelesen werden.</numerusform>
            <numerusform>%n Projektoren konnten nicht gelesen werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n Projektor meldet gerade nicht alle diese Einstellungen.</numerusform>
            <numerusform>%n Projektoren melden gerade nicht alle diese Einstellungen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n Projektor wurde übersprungen.</numerusform>
            <numerusform>%n Projektoren wurden übersprungen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>E&amp;rreichbar über</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Ver&amp;bindung</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Port</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;wort</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>&amp;Portnummer</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>Ba&amp;udrate</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Wie die Familie</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simuliert</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serielle Schnittstelle</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 ist keine Adresse.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Verbindung &amp;testen</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Ergebnis des Tests</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Es gibt nichts, womit verbunden werden kann.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Eine serielle Leitung wird erst erprobt, wenn ihr Dialog geöffnet wird.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Wird abgefragt …</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Ein Projektor antwortet: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>ein Anführungszeichen ist nicht geschlossen</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>nach dem schließenden Anführungszeichen geht ein Text weiter</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>mehr als %1 Zellen</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>%1 Zellen, aber die Kopfzeile hat %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>die Kopfzeile fehlt</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>mehr als %1 Byte</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>simuliert</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Ein/Aus:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Quelle:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problem:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Bild und Ton:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Lampe:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>Geantwortet:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Anteil an der Nennlebensdauer der Lampe</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>Let&amp;zte Ereignisse</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Letzte Ereignisse</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Kein Projektor ausgewählt</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>%n Projektor ausgewählt</numerusform>
            <numerusform>%n Projektoren ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>Leerbild</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>stumm</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>eingefroren</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>sichtbar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>noch nichts</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Zuerst die anderen Quellen und Betriebsarten</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n Einstellung</numerusform>
            <numerusform>%n Einstellungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n Einstellung gilt für dieses Modell nicht</numerusform>
            <numerusform>%n Einstellungen gelten für dieses Modell nicht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n Einstellung kann gerade nicht gelesen werden</numerusform>
            <numerusform>%n Einstellungen können gerade nicht gelesen werden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Discovery</name>
    <message>
        <source>Problem: fan</source>
        <translation>Problem: Lüfter</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Problem: Lampe</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Problem: Temperatur</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Problem: Abdeckung</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Problem: Filter</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Problem: Sonstiges</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Erreichbar</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Ein/Aus</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Kühlt ab</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Kein Fehler</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Abdeckung</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Lüfter</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Luftstrom</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Lampenstunden</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Kälte</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Filterstunden</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Sonstiges (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Ablehnen</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Lesen schlägt fehl</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögern</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Ausfallen</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>Fehler &amp;setzen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>E&amp;ntfernen</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>Alle entfe&amp;rnen</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Wirksame Fehler</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>E&amp;in/Aus</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>Fehlers&amp;tatus</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>B&amp;efehl</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>&amp;Fehler</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;Verzögerung</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>&amp;Wirksam</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Kein Projektor ausgewählt</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Simulation von %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Simulierte Fehler von %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Alle Befehle</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Auswählen oder einen Teil von Name oder Code eingeben</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3 ms</source>
        <extracomment>A command, what is wrong with it (&quot;Delay&quot;), and for how many milliseconds.</extracomment>
        <translation>%1: %2, %3 ms</translation>
    </message>
    <message>
        <source>%1 (any code)</source>
        <translation>%1 (beliebiger Code)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n ein</numerusform>
            <numerusform>%n ein</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n aus</numerusform>
            <numerusform>%n aus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n mit Problemen</numerusform>
            <numerusform>%n mit Problemen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nicht erreichbar</numerusform>
            <numerusform>%n nicht erreichbar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n mit Alarmen</numerusform>
            <numerusform>%n mit Alarmen</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>älteste Antwort %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nicht beobachtet</numerusform>
            <numerusform>%n nicht beobachtet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>der Projektor ist beschäftigt oder im Standby</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>der Projektor hat es nicht</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>das Modell lässt diesen Wert nicht zu</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>das Modell hat es nicht</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>das Modell hat diese Einstellung nicht</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>es gibt keinen Schnappschuss dafür</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>nicht bestätigt, möglicherweise geändert</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>nicht alles konnte gesendet werden</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nicht erreichbar</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>falsche Verbindungsparameter</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>unbekannter Rechnername</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>Verbindung abgebrochen</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>Antworten sind unverständlich</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>andere Version des Protokolls</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>Passwort fehlt oder ist falsch</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>der Projektor meldet gerade keine seiner Einstellungen</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Nicht erreichbar</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>HelpWindows</name>
    <message>
        <source>In a projector&apos;s dialog</source>
        <translation>Im Dialog eines Projektors</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Strg+Tab, Strg+Bild ab</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Nächste Registerkarte</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Strg+Umschalt+Tab, Strg+Bild auf</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Vorherige Registerkarte</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Strg+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Erweiterte Steuerung %1&lt;/h3&gt;&lt;p&gt;Die Einstellungen von Projektoren, live: Jeder Wert wird vom Projektor gelesen, jede Änderung sofort gesendet.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>Steuerzeichen in einem Text</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>halbes Surrogatpaar in einem Text</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>Text mit mehr als %1 Byte</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>mehr als %1 Byte</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>mehr als %1 Werte</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Alle diese Projektoren sind simuliert, um das Programm auszuprobieren.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Erweiterte Steuerung: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Erweiterte Steuerung</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>%n Dialog öffnen?</numerusform>
            <numerusform>%n Dialoge öffnen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Befehlsprotokoll</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen …</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Projektor</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>Einstellungen ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>S&amp;imulation</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Befehlsprotokoll</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Alarme</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>In %1 gespeichert.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Familie</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modell</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>Alle Fel&amp;der des Modells</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>Dialogt&amp;yp</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>Modell&amp;code</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Erweiterte Steuerung</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Erweiterte Steuerung</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Projektoreinstellungen</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Einstellungen von Projektoren lesen und ändern</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>projektor;beamer;helligkeit;trapez;trapezkorrektur;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Eine Liste zeigt, wie es Hunderten von Projektoren geht, und ändert viele davon zugleich; für jeden gibt es einen Dialog mit einer Registerkarte je Gruppe von Einstellungen. Jeder Wert wird live vom Projektor gelesen, jede Änderung sofort gesendet. Ein Protokoll zeigt jeden Befehl und sein Ergebnis.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>Projektoren können simuliert werden, mit Fehlern, die von Hand gesetzt werden.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>der Dialog von %1 kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>kann nicht in den Ordner %1 schreiben</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Lüfter, Lampe, Temperatur, Abdeckung, Filter</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>&amp;Einstellungen, die nicht so sind, wie sie sein sollen</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Auf dem &amp;Desktop benachrichtigen</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Ruhe ab</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Ruhe bis</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>Sp&amp;rache (nach einem Neustart)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>&amp;Jeden Projektor abfragen alle</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>Lampen&amp;stunden, Anteil an der Nennlebensdauer</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>&amp;Keine Antwort seit</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Ruhezeit</translation>
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
        <source>&amp;Colors</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(zweimal dieselbe Zeit: keine)</translation>
    </message>
    <message>
        <source>%</source>
        <extracomment>Behind a number; with a blank before the sign if the language has one.</extracomment>
        <translation>&#xa0;%</translation>
    </message>
</context>
<context>
    <name>PresetActions</name>
    <message>
        <source>P&amp;resets</source>
        <translation>&amp;Vorgaben</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Auf die Auswahl anwenden</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Noch keine Vorgaben</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>Als Vorgabe &amp;speichern …</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>Soll ents&amp;prechen</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>Mit dem Sollzustand ver&amp;gleichen</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>Sollzustand &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Als Vorgabe speichern</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Als Vorgabe %1 gespeichert</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Vorgabe %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Soll entsprechen</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Keiner der ausgewählten Projektoren hat eine Vorgabe, der er entsprechen soll.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Einstellungen von %n Projektor wiederherstellen?</numerusform>
            <numerusform>Einstellungen von %n Projektoren wiederherstellen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Einstellungen von %1 werden gelesen …</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Sollzustand</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Soll entsprechen</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>V&amp;orgaben verwalten …</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Alle mit %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Als Vorgabe speichern</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Einstellungen der Vorgabe</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;Name der Vorgabe</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Alle Einstellungen markieren</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Diese &amp;Seite</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Die Einstellungen der gewählten Seite markieren und keine anderen</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Keine Einstellung markieren</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>So kann eine Vorgabe nicht heißen: keine Schrägstriche und kein Punkt am Anfang.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n Einstellung ist markiert.</numerusform>
            <numerusform>%n Einstellungen sind markiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Die Vorgabe %1 wird ersetzt.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Vorgabe umbenennen</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Vorgabe entfernen</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>kann den Ordner %1 nicht anlegen</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Einstellungen der Vorgabe</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Noch keine Vorgaben</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Soll dieser Vorgabe entsprechen: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>So kann eine Vorgabe nicht heißen: keine Schrägstriche und kein Punkt am Anfang.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Es gibt schon eine Vorgabe %1.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>Vorgabe %1 entfernen?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten …</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Duplizieren …</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>En&amp;tfernen …</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>&amp;Schlagwörter …</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Projektor entfernen</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Projektoren entfernen</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>„%1“ aus %2 entfernen?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>%n Projektor aus %1 entfernen?</numerusform>
            <numerusform>%n Projektoren aus %1 entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Schlagwörter</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Schlagwörter für %n Projektor, durch Kommas getrennt;
ein Minus davor entfernt ein Schlagwort:</numerusform>
            <numerusform>Schlagwörter für %n Projektoren, durch Kommas getrennt;
ein Minus davor entfernt ein Schlagwort:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>„%1“ ist keine MAC-Adresse</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>„%1“ ist keine Verbindungsart</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>„%1“ heißt ein anderer Projektor, mit der Kennung %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>„%1“ ist keine Stundenzahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>„%1“ heißt ein anderer Projektor</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>die Kopfzeile hat keine Spalte „name“</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1 wurde von einem anderen Programm geändert. Bitte neu laden (F5) und dies noch einmal tun.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Projektor hinzufügen</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Projektor bearbeiten</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Projektor duplizieren</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Noch auszufüllen: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ProfileFile</name>
    <message>
        <source>serial port %1</source>
        <translation>serielle Schnittstelle %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>hat %1 Familien; höchstens %2 sind möglich</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>führt durch mehr als %1 Familien</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>„%1“ gleicht sich selbst an</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>es gibt keine Familie „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>„%1“ ist auch %2 von projectors[%3]</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>die Datei muss ein Objekt enthalten</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>„projectors“ fehlt</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>es gibt keinen Projektor</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>steht hier zweimal</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>kann die Profile %1 nicht lesen: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>ist weder der Name eines Bereichs noch eine Zahl von 0 bis %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>muss mit dem Namen „%1“ angegeben werden</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>muss [Minimum, Maximum] oder null sein</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>hat ein Minimum über dem Maximum</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>unbekannter Schlüssel; bekannt sind %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>muss ein Objekt sein</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>muss ein Array sein</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>hat %1 Einträge; höchstens %2 sind möglich</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>muss ein nicht leerer Text sein</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>ist länger als %1 Byte</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>muss eine ganze Zahl sein</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>ist %1; möglich ist %2 bis %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>muss eine Zahl, ein Text oder ein Objekt mit „value“ und „name“ sein</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>muss ein Pfad sein, der mit / beginnt</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>ist weder ein Rechnername noch eine IP-Adresse</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>muss entweder „network“ oder „serial“ haben</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>muss simulated, network, serial oder pjlink sein</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>braucht eine Verbindung %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>es gibt keine Einstellung „%1“</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>Profile ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>Profile &amp;speichern unter …</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Profile öffnen</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profile (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Profile speichern unter</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Schreibgeschützte Datei</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>%1 lässt sich nicht ändern. Speichern Sie die Profile zuerst in einer anderen Datei.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Profile speichern unter …</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>Die bisherigen Änderungen können nicht mehr rückgängig gemacht werden.</translation>
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
        <source>This could not be done; nothing was changed.</source>
        <translation>Das war nicht möglich; nichts wurde geändert.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>ein anderes Programm ändert gerade %1; bitte noch einmal versuchen</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>keine Profile unter %1; bitte eine Datei mit --profiles nennen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n Bild von %1 Arten von Projektoren in %2 gespeichert</numerusform>
            <numerusform>%n Bilder von %1 Arten von Projektoren in %2 gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: Es gibt keinen Projektor „%1“; --list nennt alle.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: Es gibt keine Registerkarte %1; „%2“ hat die Registerkarten 0 bis %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>keine Anzeige; ohne sie sind --list, --tour und --screenshot möglich.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Ein/Aus</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Letzte Antwort</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · offen</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Name, Modell, Ort, Adresse, Registerkarte oder Einstellung suchen</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Projektoren suchen</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektoren</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n gefunden</numerusform>
            <numerusform>%n gefunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option „%1“.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Nach „%1“ fehlt der Wert.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Unerwarteter Wert nach „%1“.</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>„%1“ ist weder eine IP-Adresse noch ein Bereich davon</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>mehr als %1 Adressen</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Projektoren suchen</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>die Netzwerke dieses Rechners</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Zum Beispiel 192.0.2.0/24 oder 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Gefundene Projektoren</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Adressen</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;wort</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>Markierte &amp;hinzufügen</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>schon bekannt</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>verlangt ein Passwort</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n gefunden</numerusform>
            <numerusform>%n gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n gefunden, %1 von %2 Adressen gefragt …</numerusform>
            <numerusform>%n gefunden, %1 von %2 Adressen gefragt …</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>Einstellungen s&amp;peichern …</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>Mit Datei ver&amp;gleichen …</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>Einstellungen &amp;anwenden …</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Einstellungen im Ordner speichern</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Einstellungen (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Einstellungen werden gelesen …</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Einstellungen in %1 gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Einstellungen von %n Projektor in %1 gespeichert.</numerusform>
            <numerusform>Einstellungen von %n Projektoren in %1 gespeichert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n Einstellung konnte nicht gelesen werden.</numerusform>
            <numerusform>%n Einstellungen konnten nicht gelesen werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Einstellungen anwenden</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Einstellungen vergleichen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>Die vorherigen Werte sind in %1 gesichert.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>kann %1 nicht lesen: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 steht hier zweimal</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: der Port ist nicht verfügbar</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>es gibt keinen Projektor „%1“</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: aus %1 werden die Projektoren gelesen</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 ist schon da, und dieses Programm hat es nicht geschrieben</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>„%1“ ist kein Port.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>„%1“ ist keine Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>„%1“ ist keine Zeit bis zu einer Stunde.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>Die Projektoren aus &lt;Datei&gt; anbieten.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Nur den Projektor &lt;Name&gt; anbieten; mehrfach möglich.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Unter &lt;Adresse&gt; statt 127.0.0.1 lauschen; mit --fleet die Adresse des ersten Projektors statt 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>Der erste Projektor ist am Port &lt;n&gt;, die anderen an den folgenden; 0 nimmt wie ohne diese Option irgendwelche freien. Mit --fleet ist &lt;n&gt; der Port jedes Projektors für unser eigenes Protokoll, und der nächste der für PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink verlangt &lt;Text&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Jeden Projektor auch an einem Pseudoterminal anbieten.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Mit einem Fehler beginnen: %1. Für einen Teil der Projektoren: „silent 5%“. Mehrfach möglich.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Alles, was dem Zufall überlassen ist, hängt von &lt;n&gt; ab.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Am Port &lt;n&gt; der Loopback-Adresse Fehler entgegennehmen, je eine Zeile: Nummer des Projektors ab 1 oder * und der Fehler.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Profile, die einen Host zu den angebotenen Projektoren führen, in &lt;Datei&gt; schreiben.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>&lt;n&gt; Projektoren nach dem Vorbild derer der Profile anbieten, jeden an einer eigenen Loopback-Adresse.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Für eine Flotte: was --write-profiles benutzt; pjlink, network oder mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Für eine Flotte: Sekunden, bis ein Projektor eingeschaltet ist.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Für eine Flotte: Sekunden, bis ein Projektor im Standby ist.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Für eine Flotte: so viele Zustandsänderungen geschehen in einer Sekunde von selbst.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Für eine Flotte: Statusmeldungen von PJLink an diese Adresse senden.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>Adresse:Port</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Für eine Flotte: am Ende in &lt;Datei&gt; schreiben, wie oft jeder Projektor gefragt wurde.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Hilfe und Fehler sind in der Sprache &lt;Name&gt;, etwa de oder zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Bietet simulierte Projektoren über TCP, PJLink und Pseudoterminals an. Gibt eine Adresse je Zeile aus, dann „ready“.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 braucht --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>„%1“ ist keine Adresse.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: ist länger als %1 Byte.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: „%1“ ist keiner von %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet hat keine seriellen Leitungen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>„%1“ ist keine IPv4-Loopback-Adresse.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>„%1“ lässt zu wenige Adressen übrig.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>„%1“ lässt keinen Port für PJLink übrig.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>„%1“ ist keine IPv4-Loopback-Adresse mit Port.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>„%1“ ist weder pjlink noch network noch mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>hier fehlt eine ganze Zahl</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>muss eine ganze Zahl von %1 bis %2 sein und ist %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>muss eine Textzeile sein</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>muss ein Objekt sein</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>muss ein Array sein</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>hat mehr als %1 Einträge</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>das ist keine Datei mit gespeicherten Einstellungen</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>nur Version %1 ist bekannt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>„%1“ steht hier zweimal</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>ist größer als 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>muss ein Objekt enthalten</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>Zeile %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Nicht beobachtet</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Wird abgefragt …</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Unbekannter Rechnername</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Unverständlich</translation>
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
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Kühlt ab</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Wärmt auf</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Lüfter</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Abdeckung</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (Warnung)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Wie vorgesehen</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n weicht ab</numerusform>
            <numerusform>%n weichen ab</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>vor %1 s</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>vor %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>vor %1 h</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Ein/Aus</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Leerbild</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Einfrieren</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Abweichende Einstellungen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>TransferActions</name>
    <message>
        <source>Find on the &amp;Network…</source>
        <translation>Im &amp;Netzwerk suchen …</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>Tabelle &amp;importieren …</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>Tabelle e&amp;xportieren …</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Projektoren suchen</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Gefundene Projektoren hinzufügen</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Tabelle importieren</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Tabellen (*.csv *.tsv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabellen (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n Projektor hinzugefügt</numerusform>
            <numerusform>%n Projektoren hinzugefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n schon bekannt</numerusform>
            <numerusform>%n schon bekannt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n Zeile nicht übernommen</numerusform>
            <numerusform>%n Zeilen nicht übernommen</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Nicht verwendete Spalten: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>Ei&amp;nschalten</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>Auss&amp;chalten</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>&amp;Ein/Aus</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>E&amp;ingang</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>&amp;Leerbild</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Leerbild zeigen</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Auf %n Projektor ein Leerbild zeigen?</numerusform>
            <numerusform>Auf %n Projektoren ein Leerbild zeigen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Bild zeigen</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Auf %n Projektor das Bild zeigen?</numerusform>
            <numerusform>Auf %n Projektoren das Bild zeigen?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>&amp;Stumm</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Ton stummschalten</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Ton von %n Projektor stummschalten?</numerusform>
            <numerusform>Ton von %n Projektoren stummschalten?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Ton einschalten</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Ton von %n Projektor einschalten?</numerusform>
            <numerusform>Ton von %n Projektoren einschalten?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>Ei&amp;nfrieren</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Bild einfrieren</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Bild von %n Projektor einfrieren?</numerusform>
            <numerusform>Bild von %n Projektoren einfrieren?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Bild freigeben</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Bild von %n Projektor freigeben?</numerusform>
            <numerusform>Bild von %n Projektoren freigeben?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Ausschalten</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>%n Projektor einschalten?</numerusform>
            <numerusform>%n Projektoren einschalten?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>%n Projektor ausschalten?</numerusform>
            <numerusform>%n Projektoren ausschalten?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Eingang %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Auf %n Projektor den Eingang %1 wählen?</numerusform>
            <numerusform>Auf %n Projektoren den Eingang %1 wählen?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Keine Eingänge bekannt</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>kann %1 nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>WorkActions</name>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
</context>
<context>
    <name>WorkDialog</name>
    <message>
        <source>Projector</source>
        <translation>Projektor</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektoren</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Fehlgeschlagene wiederholen</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>Alles &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>Rest &amp;erledigen</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>das Modell hat es nicht</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%1 von %n erledigt</numerusform>
            <numerusform>%1 von %n erledigt</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>arbeitet …</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>angenommen, noch unterwegs</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>erledigt, %n Einstellung konnte nicht gelesen werden</numerusform>
            <numerusform>erledigt, %n Einstellungen konnten nicht gelesen werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n noch unterwegs</numerusform>
            <numerusform>%n noch unterwegs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n fehlgeschlagen</numerusform>
            <numerusform>%n fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>nicht bekannt, ob er an war</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n angehalten</numerusform>
            <numerusform>%n angehalten</numerusform>
        </translation>
    </message>
</context>
</TS>
