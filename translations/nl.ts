<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>er is geen optie --%1</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 heeft geen waarde</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 vereist %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 kent geen %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: ‘%2’ is niet mogelijk</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>er ontbreekt een opdracht; --help toont ze</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>er is geen opdracht ‘%1’; --help toont ze</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 kent deze --format niet</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>gebruik: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>de bestandsnaam is leeg</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>‘%1’ is niet mogelijk; mogelijk zijn: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>‘%1’ is geen stap zoals +1 of -1, en PJLink kan dit alleen stapsgewijs wijzigen</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>‘%1’ is meer dan %n stap</numerusform>
            <numerusform>‘%1’ is meer dan %n stappen</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>‘%1’ vanaf %2 is niet mogelijk; mogelijk zijn: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>‘%1’ is meer dan %n stap vanaf %2</numerusform>
            <numerusform>‘%1’ is meer dan %n stappen vanaf %2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>projectors tonen</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Toont naam, model, paginaset, seriecode, verbinding en labels van de genoemde projectors, of van alle.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>modellen tonen</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Toont de modellen van het profielbestand, met het aantal projectors en instellingen van elk.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>instellingen en hun waarden tonen</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Toont de instellingen van het model: sleutel, tabblad, bijschrift en mogelijke waarden. De projector wordt niet bevraagd.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>een instelling uitleggen</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Legt een instelling uit: tabblad en bijschrift, mogelijke waarden met hun codes, de modellen die haar hebben, en of ze gewijzigd, teruggezet, opgeslagen en hersteld kan worden.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>huidige waarden tonen</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Leest instellingen van de projectors en toont ze; zonder sleutel alle.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>instellingen wijzigen</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Wijzigt instellingen in de opgegeven volgorde, leest elke terug en toont de waarde ervoor en erna. Eerst worden alle sleutels en waarden voor alle projectors gecontroleerd; is een waarde voor één ervan fout, dan wordt naar geen enkele iets gestuurd. Een sleutel die een projector niet heeft, wordt gemeld en houdt de andere niet tegen.
KEY=VALUE stelt een waarde in; KEY+=N en KEY-=N wijzigen de huidige waarde met N. In de vorm KEY VALUE zijn +3 en -3 stappen, en is =-3 een getal onder nul. ‘acctl undo’ herstelt wat er eerst was, behalve de voeding en de gevolgen van acties.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>instellingen terugzetten op de standaard van de projector</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>voeding, ingang, fouten en uren tonen</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Toont de statuspagina van de genoemde projectors, of van alle.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>instellingen in bestanden opslaan</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Slaat alle instellingen op die hersteld kunnen worden: die van één projector in FILE (‘-’ is de standaarduitvoer), of die van een willekeurig aantal in een map, elk in een eigen bestand. Een bestand dat geen instellingenbestand is, wordt niet vervangen zonder --force.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>vergelijken met opgeslagen instellingen</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>opgeslagen instellingen herstellen</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>waarden en elke wijziging tonen</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Toont waarden en daarna elke wijziging, tot het wordt afgebroken, tot niemand de uitvoer nog leest, of tot alle projectors de waarde van --until hebben. Een projector die niet meer antwoordt, wordt telkens opnieuw geprobeerd.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>het netwerk doorzoeken naar projectors</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Vraagt elke PJLink-projector van het netwerk, of van de opgegeven adressen, wie hij is. ADDRESSES zijn bijvoorbeeld 192.0.2.7, 192.0.2.0/24 of 192.0.2.10-40. Er wordt niets opgeslagen, tenzij --add een profielbestand noemt.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>projectors uit een tabel overnemen</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Voegt de rijen met door komma’s gescheiden waarden (‘-’ is de standaardinvoer) toe aan het profielbestand dat --profiles of ACCTL_PROFILES noemt, en wijzigt de projectors die het al bevat.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>projectors als tabel tonen</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Toont de genoemde projectors, of alle, als door komma’s gescheiden waarden, zonder wachtwoorden.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>een opdracht uitleggen</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>een van = != &lt; &lt;= &gt; &gt;= ontbreekt</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>er ontbreekt een waarde</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>geen model heeft deze instelling</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>alleen getallen zijn kleiner of groter</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>geen model heeft deze instelling; acctl settings toont alle sleutels</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>geen model heeft deze instelling; bedoelde u %1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 tot %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 tot %2, getoond als %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>bron %1: dit geldt niet per bron</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>bron %1 bestaat niet; er zijn %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>waarde %1 is niet mogelijk; mogelijk zijn %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>de tekst ‘%1’ is niet die van waarde %2, die ‘%3’ is; wijzig beide of verwijder de tekst</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Leest, wijzigt, bewaart en herstelt de instellingen van projectors die het dialoogvenster ‘Geavanceerde bediening’ toont. De projectors zijn die van een profielbestand.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P kiest projectors: een naam, een patroon zoals ‘Lecture*’, @TAG of model=PATTERN. Meerdere worden met komma’s gescheiden, en !P laat projectors weg. KEY is de sleutel van een instelling, een patroon zoals ‘picture.*’, of een korte naam zoals brightness, input of power, die voor alle modellen gelijk is. VALUE is een getal zoals het dialoogvenster het toont, de tekst van een keuze in een taal van het dialoogvenster, of de code ervan.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Klaar. Ook als een projector in stand-by niet alles kon melden, of een wijziging heeft geaccepteerd die nog niet van kracht is.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Er is iets geweigerd, een projector mist een genoemde instelling, of een bestand of de uitvoer kon niet gelezen of geschreven worden.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Verkeerd gebruik: er is niets naar een projector gestuurd.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Een projector antwoordde niet of meldde zijn ingangen niet, of een andere uitvoering van acctl gebruikte hem.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Afgebroken; het verslag zegt wat er gedaan is.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Gebruik: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Opdrachten</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Opties van alle opdrachten; ‘acctl help COMMAND’ toont de eigen opties van een opdracht, met voorbeelden</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Voorbeelden</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Afsluitcodes</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>getal</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>keuze</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>toestand</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>actie</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>korte naam: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>tabblad</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>bijschrift</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>soort</translation>
    </message>
    <message>
        <source>values</source>
        <translation>waarden</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>die de projector meldt</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>opdrachten</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>bewaard</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>per ingangsbron</translation>
    </message>
    <message>
        <source>models</source>
        <translation>modellen</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n instelling</numerusform>
            <numerusform>%n instellingen</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>geen profielen in %1; noem een bestand met --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>de projectors uit FILE lezen</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>alleen projectors in deze toestand, bijvoorbeeld ‘power=on lamp-hours&gt;1500’</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>de projector heeft adres ADDRESS; P noemt alleen zijn model</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>de poort van de gezochte projectors; standaard 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>PJLink-wachtwoord; andere gebruikers van deze computer kunnen het hier zien</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>de eerste regel van FILE is het wachtwoord</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>uitvoer: text, json, jsonl (een regel per waarde of projector), tsv of value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>hetzelfde als --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>alleen namen of sleutels, één per regel</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>alleen instellingen die get, set, reset of watch kunnen gebruiken</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>alleen sleutels die overeenkomen met GLOB; mag herhaald worden</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>regels KEY=VALUE uit FILE nemen (‘-’ is de standaardinvoer)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>elke projector in een eigen bestand in DIR opslaan</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>wat gevonden is toevoegen aan het profielbestand FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>tonen wat er zou wijzigen, en niets wijzigen</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>wachten tot de toestand bereikt is, hoogstens TIME, bijvoorbeeld 90s of 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>eindigen als alle projectors deze waarde hebben</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>eindigen met 1 als er iets afwijkt, met 2 als iets niet vergeleken kon worden</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>overslaan wat fout is in FILE in plaats van niets te sturen</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: ook het herstelbestand van een andere projector; save: elk bestand vervangen</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>de uitvoeringen tonen die ongedaan gemaakt kunnen worden</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>de map voor herstelbestanden</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>herstelbestanden ouder dan N dagen verwijderen; standaard 30, 0 bewaart alle</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>projectors tegelijk, 1 tot 1024; standaard 512 om te lezen en 64 om te wijzigen</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>tijd voor één antwoord; standaard 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>een projector die niet antwoordt nog N keer proberen; standaard 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>na de eerste fout aan geen andere projector beginnen</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>tijd tussen twee lezingen; standaard 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>taal van teksten, bijvoorbeeld de of zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>deze tekst; met een opdracht de tekst daarvan</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>de versie</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>kan niet schrijven: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>‘%1’ is niet mogelijk</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>‘=’ ontbreekt</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>er is geen instelling %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>kan %1 niet lezen: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>de eerste regel is leeg</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Wachtwoord van %1: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (gesimuleerd)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>%1 toegevoegd, %2 verplaatst, %3 bekend</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>vereist een wachtwoord</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>noem het profielbestand met --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>niet gebruikte kolommen: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>%1 toegevoegd, %2 bekend, %3 fout</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: ‘%2’ is geen KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: bevat geen KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>hier is één projector mogelijk, niet %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>ongedaan gemaakt</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>kan in %1 niet vastleggen dat het ongedaan gemaakt is: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>een andere uitvoering van acctl gebruikt het</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>niet begonnen, omdat een andere projector mislukte</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>door acctl zelf gesimuleerd, er is niets blijvend gewijzigd</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>afgebroken; wat gedaan is, staat hierboven</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>in stand-by, weggelaten: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>warmt op, weggelaten: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>koelt af, weggelaten: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>overgeslagen, deze projector biedt het niet: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n projector</numerusform>
            <numerusform>%n projectors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n gewijzigd</numerusform>
            <numerusform>%n gewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n afwijkend</numerusform>
            <numerusform>%n afwijkend</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n ongewijzigd</numerusform>
            <numerusform>%n ongewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n nog niet van kracht</numerusform>
            <numerusform>%n nog niet van kracht</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>geaccepteerd, maar nog niet van kracht</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n geweigerd</numerusform>
            <numerusform>%n geweigerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n bezet</numerusform>
            <numerusform>%n bezet</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>de projector is bezet of in stand-by</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n onbevestigd</numerusform>
            <numerusform>%n onbevestigd</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>niet bevestigd, mogelijk gewijzigd</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n niet gedaan</numerusform>
            <numerusform>%n niet gedaan</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>overgeslagen, dit model heeft het niet</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>overgeslagen, deze projector biedt het niet</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>overgeslagen, kan niet hersteld worden</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>overgeslagen, dit model accepteert de waarde niet</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>gestopt bij %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>niet gestuurd, meer dan %n stap verwijderd</numerusform>
            <numerusform>niet gestuurd, meer dan %n stappen verwijderd</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>geweigerd, de waarde is %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>de waarde kan nu niet gelezen worden</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n niet vergeleken</numerusform>
            <numerusform>%n niet vergeleken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n overgeslagen</numerusform>
            <numerusform>%n overgeslagen</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>niets te doen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>overgeslagen, PJLink kent ze niet: %n instelling van het bestand</numerusform>
            <numerusform>overgeslagen, PJLink kent ze niet: %n instellingen van het bestand</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; meer is er niet gestuurd</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; er is niets gestuurd</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: maakt een wijziging van %2 ongedaan; --force past het toe op %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: het bestand heeft deze instelling niet</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: er is geen projector ‘%2’</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: %2 is ook van %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: de map bevat geen instellingenbestanden</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: er is geen bestand van in %2</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: is geen instellingenbestand; --force vervangt het</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: dit bestand of deze map bestaat niet</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>noem de projectors waarop het bestand wordt toegepast</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>één bestand is voor één projector, niet voor %1; -o noemt een map</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>kan map %1 niet maken</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; noem een eerdere uitvoering om die ongedaan te maken</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>er is geen uitvoering om ongedaan te maken</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>er is geen uitvoering ‘%1’; --list toont ze</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: staat niet meer in het profielbestand</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>kan nu niet gelezen worden en wordt weggelaten</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>er kan niets gelezen worden, en er is niets geschreven</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n instelling opgeslagen in %1</numerusform>
            <numerusform>%n instellingen opgeslagen in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>er is geen projector ‘%1’; acctl list toont ze allemaal</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>geweigerd, de projector is in stand-by</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>geweigerd, de projector warmt op</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>geweigerd, de projector koelt af</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>geweigerd, de projector is bezet</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>dit kan niet ongedaan gemaakt worden: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>gestopt, %1 van %n stap geaccepteerd</numerusform>
            <numerusform>gestopt, %1 van %n stappen geaccepteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; %2 van %n stap geaccepteerd</numerusform>
            <numerusform>%1; %2 van %n stappen geaccepteerd</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>geaccepteerd, maar nog niet van kracht, de waarde is %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, mogelijk gewijzigd, de waarde is %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, mogelijk gewijzigd</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>geweigerd</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>niet op tijd bereikt, de waarde is %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>niet op tijd bereikt</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: geen regel van een herstelbestand</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: er is niets om ongedaan te maken</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>kan %1 niet schrijven: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>onjuiste verbindingsparameters</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>onbekende hostnaam</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>niet bereikbaar</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>verbinding verbroken</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>antwoorden worden niet begrepen</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>andere versie van het protocol</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>wachtwoord ontbreekt of is onjuist</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>geen antwoord</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>geen antwoord (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>dit model heeft deze instelling niet</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>overgeslagen, PJLink kent het niet</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>kan nu niet gelezen worden</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>deze projector biedt het niet</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>niet gelezen, de projector heeft zijn ingangen niet gemeld</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink kent het niet</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>dit kan niet gelezen worden</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>dit kan niet ingesteld worden</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>dit kan niet hersteld worden</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>dit kan niet teruggezet worden</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, de projector is in stand-by</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, de projector warmt op</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, de projector koelt af</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>antwoordt weer</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: ‘%1’ is geen KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Toont wat afwijkt van een bestand (‘-’ is de standaardinvoer), van een voorinstelling van de grafische toepassing of van het eigen bestand van elke projector in een map.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Leest de projectors, stuurt wat afwijkt van het bestand (‘-’ is de standaardinvoer), van een voorinstelling van de grafische toepassing of van het eigen bestand van elke projector in een map, en leest het terug. Wat vervangen wordt, wordt eerst bewaard, zodat ‘acctl undo’ het kan herstellen. Een afgebroken uitvoering kan altijd herhaald worden.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>de vorige waarde kon niet gelezen worden en kan niet hersteld worden</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>de vorige waarde kon niet gelezen worden</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>dit kan niet ongedaan gemaakt worden</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Zet instellingen terug op de eigen standaard van de projector en toont wat ze daarna zijn. ‘acctl undo’ herstelt wat er eerst was. Urentellers worden alleen met hun exacte sleutel op nul gezet, omdat dit niet ongedaan gemaakt kan worden.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>de laatste uitvoering die instellingen heeft gewijzigd ongedaan maken</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>de uitvoering heeft geen van deze projectors gewijzigd</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Herstelt wat een uitvoering van ‘set’, ‘reset’ of ‘apply’ heeft vervangen. RUN is een naam die ‘acctl undo --list’ toont, een bestand of ‘last’; zonder RUN wordt de laatste uitvoering ongedaan gemaakt. Met P of --where worden alleen deze projectors hersteld, en de rest van de uitvoering kan later ongedaan gemaakt worden. Ook dit kan met zijn naam weer ongedaan gemaakt worden.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>afgebroken</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>geaccepteerd, maar niet bevestigd: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>‘%1’ moet met / of ~/ beginnen</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>wacht op een ander programma dat %1 wijzigt</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>Bevestige&amp;n</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>&amp;Alle bevestigen</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Sinds</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Toestand</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwoordt niet</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: de lamp heeft %2 van %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n instelling is niet zoals ze moet zijn</numerusform>
            <numerusform>%1: %n instellingen zijn niet zoals ze moeten zijn</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>bevestigd</translation>
    </message>
    <message>
        <source>open</source>
        <translation>open</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Deze hulp tonen.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>De projectors zijn die van &lt;bestand&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>bestand</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Een van meerdere aandelen bewaken: 2/5 is het tweede van vijf.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>aandeel</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Alleen projectors met &lt;label&gt; bewaken, of met een van meerdere.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>label</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Elke projector om de &lt;seconden&gt; bezoeken, minstens 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>seconden</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Eén keer per dag elke projector vergelijken met zijn momentopname in &lt;map&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>map</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Op &lt;adres&gt; luisteren naar statusmeldingen van projectors.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>adres</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Meetwaarden aanbieden op &lt;adres:poort&gt;; ‘none’ voor nergens.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>adres:poort</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Meetwaarden elke 15 seconden in &lt;bestand&gt; schrijven, voor een verzamelaar van tekstbestanden.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Berichten sturen naar de MQTT-broker op &lt;host:poort&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>host:poort</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Versie van MQTT, 3 (3.1.1) of 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>versie</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>De eerste regel van &lt;bestand&gt; is de gebruiker bij de broker.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>De eerste regel van &lt;bestand&gt; is het wachtwoord bij de broker.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Versleutelen, en de autoriteiten vertrouwen die het systeem vertrouwt.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Versleutelen, en de autoriteiten in &lt;bestand&gt; vertrouwen.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>Het certificaat van deze client.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>De sleutel ervan.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>Het eerste niveau van alle topics.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>topic</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>Het eerste niveau van de topics voor ontdekking; ‘none’ voor geen ontdekking.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Het aandeel overnemen van een brug die &lt;seconden&gt; niets heeft gezegd.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Instellingen die met opdrachten gewijzigd mogen worden: sleutels of patronen, gescheiden door komma’s; ‘power’ is de voeding. Zonder deze optie geen enkele.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>sleutels</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Opdrachten die elke projector per minuut accepteert.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Namen in ontdekkingsberichten en meldingen van dit programma zijn in de taal &lt;naam&gt;, bijvoorbeeld de of zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>naam</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>‘%1’ is geen tijd van %2 seconden tot een dag</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>‘%1’ is geen topic</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>‘%1’ is geen aandeel zoals 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>‘%1’ is geen numeriek adres met poort</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>kan %1 niet lezen: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 is leeg</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 vereist --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>‘%1’ is geen host met poort</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>‘%1’ is noch 3 noch 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file en --key-file horen bij elkaar</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: ‘%1’ is geen instelling die met opdrachten gewijzigd mag worden</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>‘%1’ is geen getal van 1 tot %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Bewaakt projectors en meldt hun toestand aan een opslag voor meetwaarden en een berichtenbroker.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>onverwacht argument ‘%1’</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>--profiles ontbreekt</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>‘%1’ is geen numeriek adres</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>‘%1’ is geen map</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>er zijn geen teksten in ‘%1’</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>geen projector heeft het label ‘%1’</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>Onverwachte ‘=’ in ‘%1’.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 vereist een waarde.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Opent de instellingenvensters van projectors, echte of gesimuleerde.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Deze hulp tonen.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>De projectors uit &lt;bestand&gt; lezen.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>bestand</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>Bij het starten het dialoogvenster van projector &lt;naam&gt; openen.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>naam</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>Met --open: tabblad &lt;n&gt; kiezen, geteld vanaf 0.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>De tabel met projectors tonen.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>Met --open: een afbeelding (PNG) van het dialoogvenster opslaan en afsluiten.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Afbeeldingen van alle tabbladen van alle soorten projectors in &lt;map&gt; opslaan en afsluiten.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>map</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Teksten tonen in de taal &lt;naam&gt;, bijvoorbeeld de of zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: er zijn geen teksten in ‘%1’.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Onverwacht argument ‘%1’.</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>Slechts één van --list, --tour en --open is mogelijk.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 vereist --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: ‘%1’ is geen getal.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Alleen &amp;wijzigingen</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Alleen &amp;fouten</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>&amp;Logboek opslaan als…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>Logboek w&amp;issen…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Opdrachtenlogboek</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Opdrachten weglaten die alleen lezen</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Opdrachten weglaten die zijn uitgevoerd</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Het logboek filteren</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Logboek opslaan</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Tabellen (*.tsv);;Alle bestanden (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Logboek wissen</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>%n regel van het logboek verwijderen?</numerusform>
            <numerusform>Alle %n regels van het logboek verwijderen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Projector, instelling, opdracht of resultaat</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Alle projectors</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Opdrachten tonen van</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projector</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Opdracht</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>verlaten</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>geen antwoord</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>bezet</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>niet aangeboden</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>geweigerd</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>nog niet van kracht</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Instelling</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Opnieuw opvragen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Toepassen</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Instellingen worden gelezen…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Geen verschillen.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n projector wijkt af.</numerusform>
            <numerusform>%n projectors wijken af.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n projector heeft al deze instellingen al.</numerusform>
            <numerusform>%n projectors hebben al deze instellingen al.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n projector kon niet gelezen worden.</numerusform>
            <numerusform>%n projectors konden niet gelezen worden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n projector meldt nu niet al deze instellingen.</numerusform>
            <numerusform>%n projectors melden nu niet al deze instellingen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n projector is overgeslagen.</numerusform>
            <numerusform>%n projectors zijn overgeslagen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>Be&amp;reikbaar via</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Ver&amp;binding</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adres</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Poort</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Wachtwoord</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>Poortn&amp;ummer</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Apparaat</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>Bau&amp;drate</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Zoals de familie</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Gesimuleerd</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Seriële poort</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 is geen adres.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Verbinding &amp;testen</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Resultaat van de test</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Er is niets om verbinding mee te maken.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Een seriële lijn wordt geprobeerd als het dialoogvenster opent.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Wordt gevraagd…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Er antwoordt een projector: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>een aanhalingsteken is niet gesloten</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>een tekst gaat verder na het sluitende aanhalingsteken</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>meer dan %1 cellen</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>%1 cellen, maar de kop heeft er %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>meer dan %1 rijen</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>er is geen kop</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>meer dan %1 bytes</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>gesimuleerd</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Toestand:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Voeding:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Bron:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Probleem:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Beeld en geluid:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Lamp:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Instellingen:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>Antwoordde:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Deel van de nominale levensduur van de lamp</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>Recente &amp;gebeurtenissen</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Recente gebeurtenissen</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Geen projector geselecteerd</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>%n projector geselecteerd</numerusform>
            <numerusform>%n projectors geselecteerd</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>leeg beeld</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>gedempt</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>bevroren</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>zichtbaar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>geen</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>nog niets</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Instelling</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Verschillen</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Eerst de andere bronnen en modi</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n instelling</numerusform>
            <numerusform>%n instellingen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n instelling is niet van toepassing op dit model</numerusform>
            <numerusform>%n instellingen zijn niet van toepassing op dit model</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n instelling kan nu niet gelezen worden</numerusform>
            <numerusform>%n instellingen kunnen nu niet gelezen worden</numerusform>
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
        <translation>Probleem: ventilator</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Probleem: lamp</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Probleem: temperatuur</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Probleem: deksel</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Probleem: filter</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Probleem: overig</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Bereikbaar</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Voeding</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Koelt af</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Geen fout</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Deksel</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilator</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lamp</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Luchtstroom</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Lampuren</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Koude</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Filteruren</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Overig (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Weigeren</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Lezen laten mislukken</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Vertragen</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Uitvallen</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>Storing &amp;instellen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ve&amp;rwijderen</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>Alle verwij&amp;deren</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Actieve storingen</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>&amp;Voeding</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>&amp;Foutstatus</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>&amp;Opdracht</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>&amp;Storing</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>Ver&amp;traging</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>A&amp;ctief</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Geen projector geselecteerd</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Simulatie van %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Gesimuleerde storingen van %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Alle opdrachten</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Kies, of typ een deel van een naam of code</translation>
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
        <translation>%1 (elke code)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n aan</numerusform>
            <numerusform>%n aan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n uit</numerusform>
            <numerusform>%n uit</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n met problemen</numerusform>
            <numerusform>%n met problemen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n niet bereikbaar</numerusform>
            <numerusform>%n niet bereikbaar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n met meldingen</numerusform>
            <numerusform>%n met meldingen</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>oudste antwoord %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n niet bewaakt</numerusform>
            <numerusform>%n niet bewaakt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>geweigerd</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>de projector is bezet of in stand-by</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>de projector heeft het niet</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>het model staat deze waarde niet toe</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>kan niet ingesteld worden</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>het model heeft het niet</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>het model heeft deze instelling niet</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>er is geen momentopname van</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>niet bevestigd, mogelijk gewijzigd</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>niet alles kon gestuurd worden</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>geen antwoord</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>niet bereikbaar</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>niet verbonden</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>onjuiste verbindingsparameters</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>onbekende hostnaam</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>verbinding verbroken</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>antwoorden worden niet begrepen</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>andere versie van het protocol</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>wachtwoord ontbreekt of is onjuist</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>de projector meldt op dit moment geen enkele instelling</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Groepen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Niet bereikbaar</translation>
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
        <translation>In het dialoogvenster van een projector</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Volgend tabblad</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Vorig tabblad</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Instelling zoeken</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Sneltoetsen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Geavanceerde bediening %1&lt;/h3&gt;&lt;p&gt;De instellingen van projectors, live: elke waarde wordt van de projector gelezen, elke wijziging wordt meteen gestuurd.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>stuurteken in een tekst</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>half surrogaatpaar in een tekst</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>tekst van meer dan %1 bytes</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>meer dan %1 bytes</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>meer dan %1 niveaus genest</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>meer dan %1 waarden</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Al deze projectors zijn gesimuleerd, om het programma uit te proberen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Geavanceerde bediening: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Geavanceerde bediening</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Instellingen openen</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>%n dialoogvenster openen?</numerusform>
            <numerusform>%n dialoogvensters openen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulatie</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Opdrachtenlogboek</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>Voor&amp;keuren…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Projector</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>Instellingen &amp;openen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Ver&amp;nieuwen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Bee&amp;ld</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Zoeken</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulatie</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Opdrachtenlogboek</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Meldingen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hulp</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Sneltoetsen</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Over</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Hulpmiddelen</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Opgeslagen in %1.</translation>
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
        <translation>&amp;Model</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>Alle &amp;velden van het model</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>&amp;Soort dialoogvenster</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>Model&amp;code</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Geavanceerde bediening</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Geavanceerde bediening</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Projectorinstellingen</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Instellingen van projectors lezen en wijzigen</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>projector;beamer;helderheid;trapezium;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Een lijst toont hoe het met honderden projectors gaat en wijzigt er veel tegelijk; elke projector heeft een dialoogvenster met een tabblad per groep instellingen. Elke waarde wordt live van de projector gelezen, en elke wijziging wordt meteen gestuurd. Een logboek toont elke opdracht en het resultaat.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>Projectors kunnen gesimuleerd worden, met storingen die met de hand worden ingesteld.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>het dialoogvenster van %1 kan niet gemaakt worden</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>kan niet in map %1 schrijven</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Voorkeuren</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Zoals het systeem</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nooit</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Ventilator, lamp, temperatuur, deksel, filter</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>Instellingen die niet zijn zoals ze moeten &amp;zijn</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Melden op het &amp;bureaublad</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Stil vanaf</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Stil tot</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Taal (na opnieuw starten)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>Elke pro&amp;jector bevragen om de</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>&amp;Lampuren, van de nominale levensduur</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>&amp;Geen antwoord gedurende</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Stille uren</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Zoals het bureaublad</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Donker</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Kleuren</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(twee gelijke tijden: geen)</translation>
    </message>
    <message>
        <source>%</source>
        <extracomment>Behind a number; with a blank before the sign if the language has one.</extracomment>
        <translation>%</translation>
    </message>
</context>
<context>
    <name>PresetActions</name>
    <message>
        <source>P&amp;resets</source>
        <translation>Voor&amp;instellingen</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Toepassen op de selectie</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Nog geen voorinstellingen</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>Als voorinstelling op&amp;slaan…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>Moet over&amp;eenkomen met</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>&amp;Vergelijken met gewenste toestand</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>Gewenste toestand &amp;herstellen</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Als voorinstelling opslaan</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Opgeslagen als voorinstelling %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Voorinstellingen</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Voorinstelling %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Moet overeenkomen met</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Geen van de geselecteerde projectors heeft een voorinstelling waarmee hij moet overeenkomen.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Herstellen</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>De instellingen van %n projector herstellen?</numerusform>
            <numerusform>De instellingen van %n projectors herstellen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Instellingen van %1 worden gelezen…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Voorinstelling</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Gewenste toestand</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Gewenst</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>Voorinstellingen &amp;beheren…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Alle van %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Als voorinstelling opslaan</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Instelling</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Instellingen van de voorinstelling</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;Naam van de voorinstelling</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Alle instellingen aankruisen</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Deze &amp;pagina</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Alleen de instellingen van de gekozen pagina aankruisen</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Geen</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Geen enkele instelling aankruisen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Op&amp;slaan</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Deze naam is niet toegestaan: gebruik geen slashes en begin niet met een punt.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n instelling aangekruist.</numerusform>
            <numerusform>%n instellingen aangekruist.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>De voorinstelling %1 wordt vervangen.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Voorinstelling hernoemen</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Voorinstelling verwijderen</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>kan map %1 niet maken</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Voorinstellingen</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Instelling</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Instellingen van de voorinstelling</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Hernoemen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ve&amp;rwijderen</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Nog geen voorinstellingen</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Moet ermee overeenkomen: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Deze naam is niet toegestaan: gebruik geen slashes en begin niet met een punt.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Er is al een voorinstelling %1.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>De voorinstelling %1 verwijderen?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Toevoegen…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>Be&amp;werken…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Dupliceren…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Verwijderen…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>&amp;Labelen…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliceren</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Projector verwijderen</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Projectors verwijderen</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>‘%1’ uit %2 verwijderen?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>%n projector uit %1 verwijderen?</numerusform>
            <numerusform>%n projectors uit %1 verwijderen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Labelen</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Labels voor %n projector, gescheiden door komma’s;
een minteken ervoor neemt een label weg:</numerusform>
            <numerusform>Labels voor %n projectors, gescheiden door komma’s;
een minteken ervoor neemt een label weg:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>‘%1’ is geen MAC-adres</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>‘%1’ is geen soort verbinding</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>‘%1’ is de naam van een andere projector, met identiteit %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>‘%1’ is geen aantal uren</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>‘%1’ is de naam van een andere projector</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>de kop heeft geen kolom ‘name’</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1 is door een ander programma gewijzigd. Herlaad het (F5) en doe dit opnieuw.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Naam</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Projector toevoegen</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Projector bewerken</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Projector dupliceren</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Nog in te vullen: %1</translation>
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
        <translation>seriële poort %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>heeft %1 families; hoogstens %2 zijn mogelijk</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>leidt door meer dan %1 families</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>maakt ‘%1’ gelijk aan zichzelf</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>er is geen familie ‘%1’</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>‘%1’ ontbreekt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>‘%1’ is ook %2 van projectors[%3]</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>het bestand moet een object bevatten</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>‘projectors’ ontbreekt</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>er is geen projector</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>staat hier twee keer</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>kan profielen %1 niet lezen: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>geen gewoon bestand</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>is noch de naam van een bereik noch een getal van 0 tot %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>moet met de naam ‘%1’ opgegeven worden</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>moet [minimum, maximum] of null zijn</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>heeft een minimum boven het maximum</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>onbekende sleutel; bekend zijn %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>moet een object zijn</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>moet een array zijn</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>heeft %1 onderdelen; hoogstens %2 zijn mogelijk</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>moet een tekst zijn die niet leeg is</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>is langer dan %1 bytes</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>moet een geheel getal zijn</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>is %1; moet %2 tot %3 zijn</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>moet een getal, een tekst of een object met ‘value’ en ‘name’ zijn</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>moet een pad zijn dat begint met /</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>is noch een hostnaam noch een IP-adres</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>moet ‘network’ of ‘serial’ hebben</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>moet simulated, network, serial of pjlink zijn</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>vereist een verbinding %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>er is geen instelling ‘%1’</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>Profielen &amp;openen…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Herladen</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>&amp;Profielen opslaan als…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Profielen openen</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profielen (*.json);;Alle bestanden (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Herladen</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Profielen opslaan als</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Alleen-lezenbestand</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>%1 kan niet gewijzigd worden. Sla de profielen eerst in een ander bestand op.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Profielen opslaan als…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>De wijzigingen tot nu toe kunnen niet meer ongedaan gemaakt worden.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Op&amp;nieuw</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>Dit was niet mogelijk; er is niets gewijzigd.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>een ander programma wijzigt %1; probeer het opnieuw</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>geen profielen in %1; noem een bestand met --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbinding</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n afbeelding van %1 soorten projectors opgeslagen in %2</numerusform>
            <numerusform>%n afbeeldingen van %1 soorten projectors opgeslagen in %2</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: er is geen projector ‘%1’; --list noemt ze allemaal.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: er is geen tabblad %1; ‘%2’ heeft tabbladen 0 tot %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>geen beeldscherm; zonder beeldscherm zijn --list, --tour en --screenshot mogelijk.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Toestand</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Voeding</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Bron</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lamp</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Probleem</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Laatste antwoord</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · open</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Zoek een naam, model, plaats, adres, tabblad of instelling</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Projectors zoeken</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projectors</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Niets gevonden</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n gevonden</numerusform>
            <numerusform>%n gevonden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Station</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Map</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Gebruik: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opties]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opties:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>De versie tonen.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Onbekende optie ‘%1’.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Onbekende opties: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>De waarde na ‘%1’ ontbreekt.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Onverwachte waarde na ‘%1’.</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>‘%1’ is noch een IP-adres noch een bereik daarvan</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>meer dan %1 adressen</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Zoeken</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Projectors zoeken</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>de netwerken van deze computer</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Bijvoorbeeld 192.0.2.0/24, of 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Opmerking</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Gevonden projectors</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Adressen</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Wachtwoord</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>Aangevinkte &amp;toevoegen</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>al bekend</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>wil een wachtwoord</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n gevonden</numerusform>
            <numerusform>%n gevonden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n gevonden, %1 van %2 adressen gevraagd…</numerusform>
            <numerusform>%n gevonden, %1 van %2 adressen gevraagd…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>Instellingen op&amp;slaan…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>Vergelij&amp;ken met bestand…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>Instellingen toe&amp;passen…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Instellingen opslaan</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Instellingen in map opslaan</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Instellingen (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Instellingen worden gelezen…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Instellingen openen</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Instellingen opgeslagen in %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Instellingen van %n projector opgeslagen in %1.</numerusform>
            <numerusform>Instellingen van %n projectors opgeslagen in %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n instelling kon niet gelezen worden.</numerusform>
            <numerusform>%n instellingen konden niet gelezen worden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Instellingen toepassen</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Instellingen vergelijken</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>De vorige waarden zijn bewaard in %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>kan %1 niet lezen: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standaardinvoer</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 staat hier twee keer</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: de poort is niet beschikbaar</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>er is geen projector ‘%1’</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: de projectoren worden uit %1 gelezen</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 bestaat al en is niet door dit programma geschreven</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>‘%1’ is geen poort.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>‘%1’ is geen getal van %2 tot %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>‘%1’ is geen tijd van hoogstens een uur.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Deze hulp tonen.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>De projectors van &lt;bestand&gt; aanbieden.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>bestand</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Alleen projector &lt;naam&gt; aanbieden; mag herhaald worden.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>naam</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Luisteren op &lt;adres&gt; in plaats van 127.0.0.1; met --fleet het adres van de eerste projector in plaats van 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>adres</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>De eerste projector is op poort &lt;n&gt;, de andere op de volgende; 0, zoals zonder de optie, neemt vrije poorten. Met --fleet is &lt;n&gt; de poort van elke projector voor ons eigen protocol, en de volgende die voor PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink vraagt om &lt;tekst&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Elke projector ook op een pseudoterminal aanbieden.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Beginnen met een storing: %1. Voor een deel van de projectors: ‘silent 5%’. Mag herhaald worden.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>storing</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Alles wat aan het toeval wordt overgelaten, hangt af van &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Op poort &lt;n&gt; van het loopback-adres luisteren naar storingen, elk op een regel: nummer van de projector vanaf 1, of *, en de storing.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Profielen die een host naar de aangeboden projectors leiden in &lt;bestand&gt; schrijven.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>&lt;n&gt; projectors aanbieden, gemaakt naar die van de profielen, elk op een eigen loopback-adres.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Voor een vloot: wat --write-profiles gebruikt; pjlink, network of mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>weg</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Voor een vloot: seconden tot een projector aan is.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>seconden</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Voor een vloot: seconden tot een projector in stand-by is.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Voor een vloot: zoveel toestandswijzigingen gebeuren er vanzelf in een seconde.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Voor een vloot: de statusmeldingen van PJLink naar dit adres sturen.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>adres:poort</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Voor een vloot: op het eind in &lt;bestand&gt; schrijven hoe vaak elke projector is bevraagd.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Hulp en fouten zijn in de taal &lt;naam&gt;, bijvoorbeeld de of zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Biedt gesimuleerde projectors aan via TCP, PJLink en pseudoterminals. Toont een adres per regel, en dan ‘ready’.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Onverwacht argument ‘%1’.</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 vereist --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>‘%1’ is geen adres.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: is langer dan %1 bytes.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: ‘%1’ is geen van %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet heeft geen seriële lijnen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>‘%1’ is geen IPv4-loopback-adres.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>‘%1’ laat te weinig adressen over.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>‘%1’ laat geen poort over voor PJLink.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>‘%1’ is geen IPv4-loopback-adres met poort.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>‘%1’ is geen van pjlink, network en mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>hier ontbreekt een geheel getal</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>moet een geheel getal van %1 tot %2 zijn, en is %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>moet een regel tekst zijn</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>moet een object zijn</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>moet een array zijn</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>heeft meer dan %1 onderdelen</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>dit is geen bestand met opgeslagen instellingen</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>alleen versie %1 is bekend</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>‘%1’ staat hier twee keer</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>is groter dan 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>moet een object bevatten</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>regel %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Niet bewaakt</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Wordt gevraagd…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Onbekende host</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Geen antwoord</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Onjuist wachtwoord</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Niet begrepen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Koelt af</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Warmt op</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilator</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lamp</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Deksel</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Overig</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (waarschuwing)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 u</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Zoals het moet</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n wijkt af</numerusform>
            <numerusform>%n wijken af</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 s geleden</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min geleden</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 u geleden</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>off</source>
        <translation>uit</translation>
    </message>
    <message>
        <source>on</source>
        <translation>aan</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Toestand</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Voeding</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Bron</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Leeg beeld</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Beeld bevriezen</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Afwijkende instellingen</translation>
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
        <translation>&amp;Zoeken in het netwerk…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>Tabel &amp;importeren…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>Tabel e&amp;xporteren…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Projectors zoeken</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Gevonden projectors toevoegen</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Tabel importeren</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Tabellen (*.csv *.tsv *.txt);;Alle bestanden (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Regel %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Tabel exporteren</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabellen (*.csv);;Alle bestanden (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n projector toegevoegd</numerusform>
            <numerusform>%n projectors toegevoegd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n al bekend</numerusform>
            <numerusform>%n al bekend</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n rij niet overgenomen</numerusform>
            <numerusform>%n rijen niet overgenomen</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Niet gebruikte kolommen: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>I&amp;nschakelen</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>&amp;Uitschakelen</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>Voe&amp;ding</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>In&amp;gang</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>&amp;Leeg beeld</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Leeg beeld tonen</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Een leeg beeld tonen op %n projector?</numerusform>
            <numerusform>Een leeg beeld tonen op %n projectors?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Beeld tonen</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Het beeld van %n projector tonen?</numerusform>
            <numerusform>Het beeld van %n projectors tonen?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>De&amp;mpen</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Geluid dempen</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Het geluid van %n projector dempen?</numerusform>
            <numerusform>Het geluid van %n projectors dempen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Geluid inschakelen</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Het geluid van %n projector inschakelen?</numerusform>
            <numerusform>Het geluid van %n projectors inschakelen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>Beeld be&amp;vriezen</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Beeld bevriezen</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Het beeld van %n projector bevriezen?</numerusform>
            <numerusform>Het beeld van %n projectors bevriezen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Beeld vrijgeven</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Het beeld van %n projector vrijgeven?</numerusform>
            <numerusform>Het beeld van %n projectors vrijgeven?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Inschakelen</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Uitschakelen</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>%n projector inschakelen?</numerusform>
            <numerusform>%n projectors inschakelen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>%n projector uitschakelen?</numerusform>
            <numerusform>%n projectors uitschakelen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Ingang %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Ingang %1 kiezen op %n projector?</numerusform>
            <numerusform>Ingang %1 kiezen op %n projectors?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Geen ingangen bekend</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>kan %1 niet schrijven: %2</translation>
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
        <translation>Projector</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projectors</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>Mislukte &amp;opnieuw proberen</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>Alles ongedaan &amp;maken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>&amp;Rest uitvoeren</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>het model heeft het niet</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%1 van %n klaar</numerusform>
            <numerusform>%1 van %n klaar</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Ongedaan maken: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>bezig…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>klaar</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>geaccepteerd, nog bezig</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>geweigerd</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>geen antwoord</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestopt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>klaar, %n instelling kon niet gelezen worden</numerusform>
            <numerusform>klaar, %n instellingen konden niet gelezen worden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nog bezig</numerusform>
            <numerusform>%n nog bezig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n mislukt</numerusform>
            <numerusform>%n mislukt</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>niet bekend of hij aan stond</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n gestopt</numerusform>
            <numerusform>%n gestopt</numerusform>
        </translation>
    </message>
</context>
</TS>
