<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>přepínač --%1 neexistuje</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 nemá žádnou hodnotu</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 vyžaduje %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 nemá přepínač %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: hodnota „%2“ není možná</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>chybí příkaz; seznam vypíše --help</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>příkaz „%1“ neexistuje; seznam vypíše --help</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 takový --format nemá</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>použití: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>název souboru je prázdný</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>„%1“ není jedna z možností: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>„%1“ není krok jako +1 nebo -1 a PJLink umí tuto hodnotu měnit jen po krocích</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>„%1“ je více než %n krok</numerusform>
            <numerusform>„%1“ je více než %n kroky</numerusform>
            <numerusform>„%1“ je více než %n kroků</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>„%1“ od hodnoty %2 nevede k žádné z možností: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>„%1“ je více než %n krok od %2</numerusform>
            <numerusform>„%1“ je více než %n kroky od %2</numerusform>
            <numerusform>„%1“ je více než %n kroků od %2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>vypsat projektory</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Vypíše název, model, sadu stránek, kód řady, připojení a štítky zadaných nebo všech projektorů.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>vypsat modely</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Vypíše modely ze souboru profilů a u každého počet projektorů a nastavení.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>vypsat nastavení a jejich hodnoty</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Vypíše nastavení, která model má: klíč, kartu, popisek a možné hodnoty. Projektoru se na nic neptá.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>vysvětlit nastavení</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Vypíše, o jaké nastavení jde: kartu a popisek, možné hodnoty s kódy, modely, které je mají, a zda je lze změnit, vrátit na výchozí hodnotu a uložit a obnovit.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>vypsat aktuální hodnoty</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Načte z projektorů nastavení a vypíše je; bez klíče všechna.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>změnit nastavení</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Změní nastavení v zadaném pořadí, každé načte zpět a vypíše hodnotu před změnou a po ní. Všechny klíče a hodnoty se nejdříve ověří pro všechny projektory; je-li některá hodnota pro některý z nich chybná, neodešle se nikam nic. Klíč, který některý projektor nemá, se ohlásí a ostatním nebrání.
KEY=VALUE nastaví hodnotu; KEY+=N a KEY-=N ji posunou o daný počet kroků. V zápisu KEY VALUE jsou +3 a -3 kroky a =-3 je záporné číslo. „acctl undo“ obnoví předchozí stav, kromě stavu napájení a výsledků akcí.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>vrátit nastavení na výchozí hodnoty projektoru</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>vypsat napájení, vstup, chyby a hodiny</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Vypíše stránku stavu zadaných nebo všech projektorů.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>uložit nastavení do souborů</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Uloží každé nastavení, které lze obnovit: jednoho projektoru do souboru FILE („-“ je standardní výstup), libovolného počtu projektorů do složky, každý do vlastního souboru. Soubor, který není souborem nastavení, se bez --force nepřepíše.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>porovnat s uloženým nastavením</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>obnovit uložené nastavení</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>vypisovat hodnoty a každou změnu</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Vypíše hodnoty a potom každou změnu, dokud není přerušen, dokud někdo čte jeho výstup nebo dokud všechny projektory nemají hodnotu z --until. Projektor, který se odmlčí, zkouší znovu a znovu.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>vyhledat projektory v síti</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Požádá všechny projektory PJLink v síti nebo na zadaných adresách, aby se představily. ADDRESSES jsou například 192.0.2.7, 192.0.2.0/24 nebo 192.0.2.10-40. Nic se neukládá, pokud --add neuvádí soubor profilů.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>převzít projektory z tabulky</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Přidá řádky hodnot oddělených čárkami („-“ je standardní vstup) do souboru profilů, který určuje --profiles nebo ACCTL_PROFILES, a změní ty, které už obsahuje.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>vypsat projektory jako tabulku</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Vypíše zadané nebo všechny projektory jako hodnoty oddělené čárkami, bez hesel.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>vysvětlit příkaz</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>chybí jeden z operátorů = != &lt; &lt;= &gt; &gt;=</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>chybí hodnota</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>takové nastavení nemá žádný model</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>menší nebo větší mohou být jen čísla</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>takové nastavení nemá žádný model; všechny klíče vypíše acctl settings</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>takové nastavení nemá žádný model; mysleli jste %1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 až %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 až %2, zobrazuje se jako %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>zdroj %1: toto nastavení nemá pro každý zdroj vlastní hodnotu</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>zdroj %1 neexistuje; k dispozici: %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>hodnota %1 není možná; možné jsou %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>text „%1“ nepatří k hodnotě %2, ta má „%3“; změňte obojí, nebo text odstraňte</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Čte, mění, ukládá a obnovuje nastavení projektorů, která zobrazuje dialog Pokročilé ovládání. Projektory se berou ze souboru profilů.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P vybírá projektory: název, vzor jako &apos;Lecture*&apos;, @TAG nebo model=PATTERN. Více položek se odděluje čárkami a !P projektory vynechá. KEY je klíč nastavení, vzor jako &apos;picture.*&apos; nebo krátký název jako brightness, input či power, který je u všech modelů stejný. VALUE je číslo, jak je zobrazuje dialog, text položky v kterémkoli jazyce dialogu nebo její kód.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Hotovo. Také pokud projektor v pohotovosti nemohl ohlásit vše nebo přijal změnu, která se zatím neprojevila.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Něco bylo odmítnuto, projektor nemá zadané nastavení nebo nebylo možné číst či zapisovat soubor nebo výstup.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Chybné použití: žádnému projektoru se nic neodeslalo.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Projektor neodpověděl nebo neohlásil své vstupy, nebo jej používal jiný běh acctl.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Přerušeno; zpráva uvádí, co bylo provedeno.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Použití: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Přepínače</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Příkazy</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Přepínače všech příkazů; vlastní přepínače příkazu s příklady vypíše „acctl help COMMAND“</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Příklady</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Návratové kódy</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>číslo</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>výběr</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>stav</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>akce</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>krátký název: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>karta</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>popisek</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>druh</translation>
    </message>
    <message>
        <source>values</source>
        <translation>hodnoty</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>ty, které ohlásí projektor</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>příkazy</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>platí</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>pro každý vstupní zdroj zvlášť</translation>
    </message>
    <message>
        <source>models</source>
        <translation>modely</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n nastavení</numerusform>
            <numerusform>%n nastavení</numerusform>
            <numerusform>%n nastavení</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>v %1 nejsou žádné profily; zadejte soubor pomocí --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>načíst projektory ze souboru FILE</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>jen projektory v tomto stavu, například &apos;power=on lamp-hours&gt;1500&apos;</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>projektor je na adrese ADDRESS; P určuje jen jeho model</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>port hledaných projektorů; výchozí 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>heslo PJLink; ostatní uživatelé tohoto počítače je zde mohou vidět</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>heslo je na prvním řádku souboru FILE</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>výstup: text, json, jsonl (řádek pro každou hodnotu nebo projektor), tsv nebo value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>totéž jako --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>jen názvy nebo klíče, jeden na řádek</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>jen nastavení, která lze použít s get, set, reset nebo watch</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>jen klíče odpovídající GLOB; lze opakovat</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>vzít řádky KEY=VALUE ze souboru FILE („-“ je standardní vstup)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>uložit každý projektor do vlastního souboru ve složce DIR</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>přidat nalezené do souboru profilů FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>vypsat, co by se změnilo, a nic neměnit</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>čekat na dosažení stavu nejdéle TIME, například 90s nebo 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>skončit, až budou mít tuto hodnotu všechny projektory</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>skončit s kódem 1, pokud se něco liší, s kódem 2, pokud něco nelze porovnat</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>přeskočit, co je v souboru FILE chybné, místo neodeslání ničeho</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: i soubor pro vrácení z jiného projektoru; save: přepsat jakýkoli soubor</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>vypsat běhy, které lze vrátit zpět</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>složka souborů pro vrácení</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>odstranit soubory pro vrácení starší než N dnů; výchozí 30, 0 ponechá vše</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>počet projektorů najednou, 1 až 1024; výchozí 512 pro čtení a 64 pro změny</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>doba čekání na jednu odpověď; výchozí 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>zkusit neodpovídající projektor ještě N-krát; výchozí 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>po první chybě už nezačínat s dalším projektorem</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>doba mezi dvěma čteními; výchozí 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>jazyk textů, například de nebo zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>tento text; s příkazem jeho vlastní</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>verze</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>nelze zapisovat: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>„%1“ není možné</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>chybí „=“</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>nastavení %1 neexistuje</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>nelze číst %1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>jeho první řádek je prázdný</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Heslo projektoru %1: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simulovaný)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>přidáno: %1, s novou adresou: %2, známo: %3</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>vyžaduje heslo</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>zadejte soubor profilů pomocí --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>nepoužité sloupce: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>přidáno: %1, známo: %2, chybných: %3</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: „%2“ není KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: neobsahuje žádné KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>lze zadat jen jeden projektor, ne %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>vráceno</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>do %1 nelze zaznamenat vrácení: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>pracuje s ním jiný běh acctl</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>nezahájeno, protože selhal jiný projektor</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>simuluje sám acctl, nic trvalého se nezměnilo</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>přerušeno; provedené změny jsou uvedeny výše</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>v pohotovosti, vynecháno: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>zahřívá se, vynecháno: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>ochlazuje se, vynecháno: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>přeskočeno, tento projektor to nenabízí: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n projektor</numerusform>
            <numerusform>%n projektory</numerusform>
            <numerusform>%n projektorů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n změněno</numerusform>
            <numerusform>%n změněna</numerusform>
            <numerusform>%n změněno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n odlišné</numerusform>
            <numerusform>%n odlišná</numerusform>
            <numerusform>%n odlišných</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n beze změny</numerusform>
            <numerusform>%n beze změny</numerusform>
            <numerusform>%n beze změny</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n se zatím neprojevilo</numerusform>
            <numerusform>%n se zatím neprojevila</numerusform>
            <numerusform>%n se zatím neprojevilo</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>přijato, zatím se neprojevilo</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n odmítnuto</numerusform>
            <numerusform>%n odmítnuta</numerusform>
            <numerusform>%n odmítnuto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>zaneprázdněno: %n</numerusform>
            <numerusform>zaneprázdněno: %n</numerusform>
            <numerusform>zaneprázdněno: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>projektor je zaneprázdněn nebo v pohotovosti</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n nepotvrzeno</numerusform>
            <numerusform>%n nepotvrzena</numerusform>
            <numerusform>%n nepotvrzeno</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>nepotvrzeno, mohlo se změnit</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n neprovedeno</numerusform>
            <numerusform>%n neprovedena</numerusform>
            <numerusform>%n neprovedeno</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>přeskočeno, tento model je nemá</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>přeskočeno, tento projektor je nenabízí</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>přeskočeno, nelze je obnovit</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>přeskočeno, tento model je nepřijímá</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>zastaveno na hodnotě %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>neodesláno, je dále než %n krok</numerusform>
            <numerusform>neodesláno, je dále než %n kroky</numerusform>
            <numerusform>neodesláno, je dále než %n kroků</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>odmítnuto, hodnota je %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>teď je nelze načíst</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n neporovnáno</numerusform>
            <numerusform>%n neporovnána</numerusform>
            <numerusform>%n neporovnáno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n přeskočeno</numerusform>
            <numerusform>%n přeskočena</numerusform>
            <numerusform>%n přeskočeno</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>není co dělat</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>přeskočeno, PJLink je nemá: %n nastavení ze souboru</numerusform>
            <numerusform>přeskočeno, PJLink je nemá: %n nastavení ze souboru</numerusform>
            <numerusform>přeskočeno, PJLink je nemá: %n nastavení ze souboru</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; nic dalšího se neodeslalo</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; nic se neodeslalo</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: vrací změnu projektoru %2; s --force se použije na %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: takové nastavení v souboru není</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: projektor „%2“ neexistuje</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: %2 je také v souboru %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: ve složce nejsou žádné soubory nastavení</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: ve složce %2 pro něj není soubor</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: není soubor nastavení; --force jej přepíše</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: takový soubor ani složka neexistuje</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>zadejte projektory, na které se má soubor použít</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>jeden soubor je pro jeden projektor, ne pro %1; složku zadáte pomocí -o</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>nelze vytvořit složku %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; chcete-li vrátit dřívější běh, zadejte jeho název</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>není žádný běh, který by šlo vrátit zpět</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>běh „%1“ neexistuje; seznam vypíše --list</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: v souboru profilů už není</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>teď nelze načíst, vynechává se</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>nic nelze načíst a nic nebylo zapsáno</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n nastavení uloženo do %1</numerusform>
            <numerusform>%n nastavení uložena do %1</numerusform>
            <numerusform>%n nastavení uloženo do %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>projektor „%1“ neexistuje; všechny vypíše acctl list</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>odmítnuto, projektor je v pohotovosti</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>odmítnuto, projektor se zahřívá</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>odmítnuto, projektor se ochlazuje</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>odmítnuto, projektor je zaneprázdněn</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>toto nelze vrátit zpět: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>zastaveno, přijato %1 z %n kroku</numerusform>
            <numerusform>zastaveno, přijato %1 z %n kroků</numerusform>
            <numerusform>zastaveno, přijato %1 z %n kroků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; přijato %2 z %n kroku</numerusform>
            <numerusform>%1; přijato %2 z %n kroků</numerusform>
            <numerusform>%1; přijato %2 z %n kroků</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>přijato, zatím se neprojevilo, hodnota je %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, mohlo se změnit, hodnota je %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, mohlo se změnit</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odmítnuto</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>nedosaženo včas, hodnota je %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>nedosaženo včas</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: není řádek souboru pro vrácení</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: není co vracet</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>nelze zapsat %1: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>nesprávné parametry připojení</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>neznámý název počítače</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nedostupný</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>spojení ztraceno</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>odpovědím nelze porozumět</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>jiná verze protokolu</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>heslo chybí nebo je nesprávné</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>bez odpovědi</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>bez odpovědi (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>tento model takové nastavení nemá</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>přeskočeno, PJLink je nemá</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>teď nelze načíst</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>tento projektor je nenabízí</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>nenačteno, projektor neohlásil své vstupy</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink je nemá</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>toto nelze číst</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>toto nelze nastavit</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>toto nelze obnovit</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>toto nelze vrátit na výchozí hodnotu</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, projektor je v pohotovosti</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, projektor se zahřívá</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, projektor se ochlazuje</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>opět odpovídá</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: „%1“ není KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Vypíše rozdíly oproti souboru („-“ je standardní vstup), oproti předvolbě hostitelské aplikace nebo oproti vlastnímu souboru každého projektoru ve složce.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Načte projektory, odešle vše, co se liší od souboru („-“ je standardní vstup), od předvolby hostitelské aplikace nebo od vlastního souboru každého projektoru ve složce, a načte to zpět. Nahrazené hodnoty se nejdříve uschovají, aby je „acctl undo“ mohlo obnovit. Přerušený běh lze kdykoli zopakovat.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>předchozí hodnotu se nepodařilo načíst, nelze ji obnovit</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>předchozí hodnotu se nepodařilo načíst</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>toto nelze vrátit zpět</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Vrátí nastavení na výchozí hodnoty projektoru a vypíše, jaké jsou potom. „acctl undo“ obnoví předchozí stav. Počitadla hodin se vynulují jen po zadání přesného klíče, protože to nelze vrátit zpět.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>vrátit zpět poslední běh, který změnil nastavení</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>tento běh nezměnil žádný z těchto projektorů</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Obnoví to, co nahradil běh „set“, „reset“ nebo „apply“. RUN je název, který vypíše „acctl undo --list“, soubor, nebo „last“; bez něj se vrátí zpět poslední běh. S P nebo --where se obnoví jen tyto projektory a zbytek běhu lze vrátit zpět později. I vrácení lze vrátit zpět zadáním jeho názvu.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>přerušeno</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>přijato, ale nepotvrzeno: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>„%1“ musí začínat / nebo ~/</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>čeká se na jiný program, který mění %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>P&amp;otvrdit</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>Potvrdit &amp;vše</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Výstraha</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Výstrahy</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 neodpovídá</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: lampa má %2 z %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n nastavení neodpovídá požadavkům</numerusform>
            <numerusform>%1: %n nastavení neodpovídají požadavkům</numerusform>
            <numerusform>%1: %n nastavení neodpovídá požadavkům</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>potvrzená</translation>
    </message>
    <message>
        <source>open</source>
        <translation>otevřená</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Zobrazí tuto nápovědu.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>Projektory se berou ze souboru &lt;soubor&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Sleduje jeden z více podílů: 2/5 je druhý z pěti.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>podíl</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Sleduje jen projektory se štítkem &lt;štítek&gt; nebo s jedním z více štítků.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>štítek</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Interval dotazů na každý projektor &lt;sekundy&gt; v sekundách, nejméně 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekundy</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Jednou denně porovná každý projektor s jeho snímkem nastavení ve složce &lt;složka&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>složka</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Na adrese &lt;adresa&gt; přijímá oznámení projektorů o stavu.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>adresa</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Poskytuje metriky na &lt;adresa:port&gt;; „none“ znamená nikde.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>adresa:port</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Každých 15 sekund zapisuje metriky do souboru &lt;soubor&gt; pro nástroj, který sbírá textové soubory.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Odesílá zprávy zprostředkovateli MQTT na &lt;počítač:port&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>počítač:port</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Verze MQTT, 3 (3.1.1) nebo 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>verze</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>První řádek souboru &lt;soubor&gt; je uživatelské jméno u zprostředkovatele.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>První řádek souboru &lt;soubor&gt; je heslo u zprostředkovatele.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Šifruje a důvěřuje certifikačním autoritám, kterým důvěřuje systém.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Šifruje a důvěřuje certifikačním autoritám ze souboru &lt;soubor&gt;.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>Certifikát tohoto klienta.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Jeho klíč.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>První úroveň všech témat.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>téma</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>První úroveň témat pro zjišťování; „none“ zjišťování vypne.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Převezme podíl mostu, který se neozval &lt;sekundy&gt; s.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Nastavení, která lze měnit příkazy: klíče nebo vzory oddělené čárkami; „power“ je napájení. Bez tohoto přepínače nelze měnit žádné.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>klíče</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Počet příkazů, které každý projektor přijme za minutu.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Názvy ve zprávách pro zjišťování a hlášení tohoto programu jsou v jazyce &lt;název&gt;, například de nebo zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>název</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>„%1“ není doba od %2 sekund do jednoho dne</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>„%1“ není téma</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>„%1“ není podíl jako 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>„%1“ není číselná adresa s portem</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>nelze číst %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 je prázdný</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 vyžaduje --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>„%1“ není počítač s portem</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>„%1“ není 3 ani 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file a --key-file je třeba zadat společně</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: „%1“ není nastavení, které lze měnit příkazem</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>„%1“ není číslo od 1 do %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Sleduje projektory a předává údaje o nich úložišti metrik a zprostředkovateli zpráv.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>neočekávaný argument „%1“</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>chybí --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>„%1“ není číselná adresa</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>„%1“ není složka</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>texty v jazyce „%1“ nejsou k dispozici</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>žádný projektor nemá štítek „%1“</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>Neočekávané „=“ v „%1“.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 vyžaduje hodnotu.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Otevírá dialogy nastavení projektorů, skutečných i simulovaných.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Zobrazí tuto nápovědu.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>Načte projektory ze souboru &lt;soubor&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>Po spuštění otevře dialog projektoru &lt;název&gt;.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>název</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>S --open: vybere kartu &lt;n&gt;, počítáno od 0.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>Vypíše tabulku projektorů.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>S --open: uloží obrázek dialogu (PNG) a skončí.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Uloží obrázky všech karet všech druhů projektorů do složky &lt;složka&gt; a skončí.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>složka</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Zobrazí texty v jazyce &lt;název&gt;, například de nebo zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: texty v jazyce „%1“ nejsou k dispozici.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Neočekávaný argument „%1“.</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>Lze zadat jen jeden z přepínačů --list, --tour a --open.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 vyžaduje --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: „%1“ není číslo.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Jen z&amp;měny</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Jen &amp;chyby</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>Uložit &amp;záznam jako…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>Vymaza&amp;t záznam…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Záznam příkazů</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Vynechat příkazy, které jen čtou</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Vynechat příkazy, které byly provedeny</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Filtrovat záznam</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Uložit záznam</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Tabulky (*.tsv);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Vymazat záznam</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>Odstranit ze záznamu %n položku?</numerusform>
            <numerusform>Odstranit ze záznamu všechny %n položky?</numerusform>
            <numerusform>Odstranit ze záznamu všech %n položek?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Projektor, nastavení, příkaz nebo výsledek</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Všechny projektory</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Zobrazit příkazy projektoru</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projektor</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Příkaz</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>upuštěno</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>bez odpovědi</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>zaneprázdněn</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>nenabízí se</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odmítnuto</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>zatím se neprojevilo</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>v pořádku</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Nastavení</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>Načíst &amp;znovu</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Po&amp;užít</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Načítání nastavení…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Nic se neliší.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n projektor se liší.</numerusform>
            <numerusform>%n projektory se liší.</numerusform>
            <numerusform>%n projektorů se liší.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n projektor už má všechna tato nastavení.</numerusform>
            <numerusform>%n projektory už mají všechna tato nastavení.</numerusform>
            <numerusform>%n projektorů už má všechna tato nastavení.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n projektor se nepodařilo načíst.</numerusform>
            <numerusform>%n projektory se nepodařilo načíst.</numerusform>
            <numerusform>%n projektorů se nepodařilo načíst.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n projektor teď nehlásí všechna tato nastavení.</numerusform>
            <numerusform>%n projektory teď nehlásí všechna tato nastavení.</numerusform>
            <numerusform>%n projektorů teď nehlásí všechna tato nastavení.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n projektor byl přeskočen.</numerusform>
            <numerusform>%n projektory byly přeskočeny.</numerusform>
            <numerusform>%n projektorů bylo přeskočeno.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>&amp;Spojení přes</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Př&amp;ipojení</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresa</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Port</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Heslo</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>Čís&amp;lo portu</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Zařízení</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>Přenosová r&amp;ychlost</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Podle rodiny</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulované</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Síť</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Sériový port</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 není adresa.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Vyzk&amp;oušet připojení</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Výsledek zkoušky</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Není se k čemu připojit.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Sériová linka se vyzkouší při otevření dialogu.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Dotazování…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Odpovídá projektor: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>uvozovka není uzavřena</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>text pokračuje za uzavírací uvozovkou</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>více než %1 buněk</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>buněk je %1, ale záhlaví jich má %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>více než %1 řádků</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>chybí záhlaví</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>více než %1 bajtů</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>simulovaný</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Napájení:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Zdroj:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problém:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Obraz a zvuk:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Lampa:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtr:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Nastavení:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>Odpověď:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Podíl na jmenovité životnosti lampy</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>Nedávné &amp;události</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Nedávné události</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Není vybrán žádný projektor</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>Vybrán %n projektor</numerusform>
            <numerusform>Vybrány %n projektory</numerusform>
            <numerusform>Vybráno %n projektorů</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>prázdný obraz</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>ztlumeno</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>zmrazeno</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>zobrazeno</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádný</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>zatím nic</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Rozdíly</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Předem: jiné zdroje a režimy</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n nastavení</numerusform>
            <numerusform>%n nastavení</numerusform>
            <numerusform>%n nastavení</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n nastavení se tohoto modelu netýká</numerusform>
            <numerusform>%n nastavení se tohoto modelu netýkají</numerusform>
            <numerusform>%n nastavení se tohoto modelu netýká</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n nastavení teď nelze načíst</numerusform>
            <numerusform>%n nastavení teď nelze načíst</numerusform>
            <numerusform>%n nastavení teď nelze načíst</numerusform>
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
        <translation>Problém: ventilátor</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Problém: lampa</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Problém: teplota</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Problém: kryt</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Problém: filtr</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Problém: jiný</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Dostupný</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Napájení</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>Pohotovost</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Ochlazování</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Bez chyby</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Kryt</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilátor</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampa</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Teplota</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Proudění vzduchu</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Doba provozu lampy</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Příliš nízká teplota</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Doba provozu filtru</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Jiná (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Odmítání</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Chyby čtení</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Prodleva</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Výpadek</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>Vyvolat poruc&amp;hu</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Zruš&amp;it</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>Zrušit vš&amp;echny</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Aktivní poruchy</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>Napá&amp;jení</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>Stav &amp;chyb</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>Pří&amp;kaz</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>Poruch&amp;a</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>Pro&amp;dleva</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>Ak&amp;tivní</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Není vybrán žádný projektor</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Simulace: %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Simulované poruchy: %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Všechny příkazy</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Vyberte nebo zadejte část názvu či kódu</translation>
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
        <translation>%1 (libovolný kód)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n zapnutý</numerusform>
            <numerusform>%n zapnuté</numerusform>
            <numerusform>%n zapnutých</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n vypnutý</numerusform>
            <numerusform>%n vypnuté</numerusform>
            <numerusform>%n vypnutých</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n s problémy</numerusform>
            <numerusform>%n s problémy</numerusform>
            <numerusform>%n s problémy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nedostupný</numerusform>
            <numerusform>%n nedostupné</numerusform>
            <numerusform>%n nedostupných</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n s výstrahami</numerusform>
            <numerusform>%n s výstrahami</numerusform>
            <numerusform>%n s výstrahami</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>nejstarší odpověď %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nesledovaný</numerusform>
            <numerusform>%n nesledované</numerusform>
            <numerusform>%n nesledovaných</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>odmítnuto</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>projektor je zaneprázdněn nebo v pohotovosti</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>projektor je nemá</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>model tuto hodnotu nepřipouští</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>nelze je nastavit</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>model je nemá</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>model takové nastavení nemá</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>není pro něj žádný snímek nastavení</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>nepotvrzeno, mohlo se změnit</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>nepodařilo se odeslat vše</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>bez odpovědi</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nedostupný</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nepřipojen</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>nesprávné parametry připojení</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>neznámý název počítače</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>spojení ztraceno</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>odpovědím nelze porozumět</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>jiná verze protokolu</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>heslo chybí nebo je nesprávné</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>projektor teď nehlásí žádné ze svých nastavení</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Skupiny</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Všechny</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problémy</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuté</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Nedostupné</translation>
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
        <translation>V dialogu projektoru</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Další karta</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Předchozí karta</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Najít nastavení</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Klávesové zkratky</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Pokročilé ovládání %1&lt;/h3&gt;&lt;p&gt;Aktuální nastavení projektorů: každá hodnota se čte z projektoru, každá změna se ihned odešle.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>řídicí znak v textu</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>polovina náhradního páru v textu</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>text delší než %1 bajtů</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>více než %1 bajtů</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>více než %1 úrovní vnoření</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>více než %1 hodnot</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Všechny tyto projektory jsou simulované, k vyzkoušení programu.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Pokročilé ovládání: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Pokročilé ovládání</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Otevřít nastavení</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>Otevřít %n dialog?</numerusform>
            <numerusform>Otevřít %n dialogy?</numerusform>
            <numerusform>Otevřít %n dialogů?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Výstrahy</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulace</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Záznam příkazů</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>U&amp;končit</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Úp&amp;ravy</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>N&amp;astavení programu…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Projektor</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>&amp;Otevřít nastavení</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Ak&amp;tualizovat</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Zobrazit</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Hledat</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulace</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>Zá&amp;znam příkazů</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Výstrahy</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Klávesové zkratky</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;O aplikaci</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Nástroje</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Uloženo do %1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Rodina</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Model</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>&amp;Všechna pole modelu</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>&amp;Typ dialogu</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>Kód mod&amp;elu</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádná</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Pokročilé ovládání</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Pokročilé ovládání</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Nastavení projektorů</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Čtení a změna nastavení projektorů</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>projektor;dataprojektor;jas;obraz;lichoběžník;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Seznam, který ukazuje stav stovek projektorů a umožňuje mnoho z nich změnit najednou, a pro každý projektor dialog s kartou pro každou skupinu nastavení. Každá hodnota se čte přímo z projektoru a každá změna se ihned odešle. Záznam ukazuje každý příkaz a jeho výsledek.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>Projektory lze simulovat, včetně ručně vyvolaných poruch.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>dialog projektoru %1 nelze vytvořit</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>do složky %1 nelze zapisovat</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Nastavení programu</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Podle systému</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nikdy</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Ventilátor, lampa, teplota, kryt, filtr</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>Nastavení, která &amp;neodpovídají požadavkům</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Oznamovat na &amp;ploše</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Klid od</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Klid do</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Jazyk (po restartu)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>Dotazovat se každého projektoru &amp;každých</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Výstrahy</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>&amp;Lampa, podíl na jmenovité životnosti</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>Neodpovídá &amp;déle než</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Doba klidu</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Podle pracovního prostředí</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Světlé</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tmavé</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Barvy</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(stejné časy: bez doby klidu)</translation>
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
        <translation>Př&amp;edvolby</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Použít na vybrané projektory</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Zatím žádné předvolby</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Uložit jako předvolbu…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>Má být &amp;jako</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Bez požadavku</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>&amp;Porovnat s požadovaným stavem</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>&amp;Obnovit požadovaný stav</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Uložit jako předvolbu</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Uloženo jako předvolba %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Předvolba %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Má být jako</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Žádný z vybraných projektorů nemá předvolbu, které by měl odpovídat.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Obnovit</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Obnovit požadované nastavení %n projektoru?</numerusform>
            <numerusform>Obnovit požadované nastavení %n projektorů?</numerusform>
            <numerusform>Obnovit požadované nastavení %n projektorů?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Načítání nastavení projektoru %1…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Předvolba</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Požadovaný stav</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Má být</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>&amp;Správa předvoleb…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Všechny s %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Uložit jako předvolbu</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Nastavení předvolby</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;Název předvolby</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Vše</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Zaškrtnout všechna nastavení</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Tato &amp;stránka</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Zaškrtnout pouze nastavení vybrané stránky</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>Žá&amp;dné</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Zrušit zaškrtnutí všech nastavení</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Uložit</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Takto předvolbu pojmenovat nelze: vynechte lomítka a tečku na začátku.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>Zaškrtnuto je %n nastavení.</numerusform>
            <numerusform>Zaškrtnuta jsou %n nastavení.</numerusform>
            <numerusform>Zaškrtnuto je %n nastavení.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Předvolba %1 bude nahrazena.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Přejmenovat předvolbu</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Odebrat předvolbu</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>nelze vytvořit složku %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Nastavení předvolby</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Přejmenovat</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Odebrat</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Zatím žádné předvolby</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Podle ní mají být: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Takto předvolbu pojmenovat nelze: vynechte lomítka a tečku na začátku.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Předvolba %1 už existuje.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>Odebrat předvolbu %1?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Přidat…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Upravit…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Duplikovat…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>Od&amp;ebrat…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>Ští&amp;tky…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplikovat</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Odebrat projektor</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Odebrat projektory</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>Odebrat „%1“ z %2?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>Odebrat %n projektor z %1?</numerusform>
            <numerusform>Odebrat %n projektory z %1?</numerusform>
            <numerusform>Odebrat %n projektorů z %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Štítky</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Štítky %n projektoru oddělené čárkami;
štítek s minusem na začátku se odebere:</numerusform>
            <numerusform>Štítky %n projektorů oddělené čárkami;
štítek s minusem na začátku se odebere:</numerusform>
            <numerusform>Štítky %n projektorů oddělené čárkami;
štítek s minusem na začátku se odebere:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>„%1“ není adresa MAC</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>„%1“ není druh spojení</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>„%1“ je název jiného projektoru, s identifikátorem %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>„%1“ není počet hodin</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>„%1“ je název jiného projektoru</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>v záhlaví chybí sloupec „name“</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1 změnil jiný program. Načtěte jej znovu (F5) a potom akci zopakujte.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Název</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Přidat projektor</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Upravit projektor</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Duplikovat projektor</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Zbývá vyplnit: %1</translation>
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
        <translation>sériový port %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>obsahuje %1 rodin; možných je nejvýše %2</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>vede přes více než %1 rodin</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>odvozuje „%1“ ze sebe samé</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>rodina „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>chybí „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>„%1“ už je uvedeno v projectors[%3] jako %2</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>soubor musí obsahovat objekt</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>chybí „projectors“</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>chybí projektory</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>je zde uvedeno dvakrát</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>nelze číst profily %1: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>není běžný soubor</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>není ani název rozsahu, ani číslo 0 až %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>musí být zadáno názvem „%1“</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>musí být [minimum, maximum] nebo null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>má minimum větší než maximum</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>neznámý klíč; známé jsou %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>musí být objekt</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>musí být pole</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>má %1 položek; možných je nejvýše %2</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>musí být neprázdný text</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>je delší než %1 bajtů</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>musí být celé číslo</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>má hodnotu %1; musí být %2 až %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>musí být číslo, text nebo objekt s „value“ a „name“</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>musí být cesta začínající znakem /</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>není ani název počítače, ani adresa IP</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>musí mít buď „network“, nebo „serial“</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>musí být simulated, network, serial nebo pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>vyžaduje připojení %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>nastavení „%1“ neexistuje</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;Otevřít profily…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Načíst znovu</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>&amp;Uložit profily jako…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Otevřít profily</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profily (*.json);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Načíst znovu</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Uložit profily jako</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Soubor jen pro čtení</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>%1 nelze změnit. Nejdříve uložte profily do jiného souboru.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Uložit profily jako…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>Dosavadní úpravy už nelze vrátit zpět.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Zn&amp;ovu</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>Toto nebylo možné provést; nic se nezměnilo.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>jiný program mění %1; zkuste to znovu</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>v %1 nejsou žádné profily; zadejte soubor pomocí --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kód</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Připojení</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n obrázek uložen do %2; druhů projektorů: %1</numerusform>
            <numerusform>%n obrázky uloženy do %2; druhů projektorů: %1</numerusform>
            <numerusform>%n obrázků uloženo do %2; druhů projektorů: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: projektor „%1“ neexistuje; všechny vypíše --list.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: karta %1 neexistuje; „%2“ má karty 0 až %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>není k dispozici žádná obrazovka; bez ní použijte --list, --tour nebo --screenshot.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Napájení</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Zdroj</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampa</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problém</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Umístění</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Poslední odpověď</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · otevřený</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Najít název, model, umístění, adresu, kartu nebo nastavení</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Najít projektory</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektory</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nic nenalezeno</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nalezen</numerusform>
            <numerusform>%n nalezeny</numerusform>
            <numerusform>%n nalezeno</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Jednotka</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Složka</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Použití: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[přepínače]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Přepínače:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Zobrazí informace o verzi.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Neznámý přepínač „%1“.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Neznámé přepínače: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Za „%1“ chybí hodnota.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Neočekávaná hodnota za „%1“.</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>„%1“ není ani adresa IP, ani rozsah adres</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>více než %1 adres</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Hledat</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Najít projektory</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>sítě tohoto počítače</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Například 192.0.2.0/24 nebo 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Poznámka</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Nalezené projektory</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Adresy</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>He&amp;slo</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>&amp;Přidat zaškrtnuté</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>už je v seznamu</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>vyžaduje heslo</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nalezen</numerusform>
            <numerusform>%n nalezeny</numerusform>
            <numerusform>%n nalezeno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nalezen, dotázáno %1 z %2 adres…</numerusform>
            <numerusform>%n nalezeny, dotázáno %1 z %2 adres…</numerusform>
            <numerusform>%n nalezeno, dotázáno %1 z %2 adres…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>Uložit na&amp;stavení…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>&amp;Porovnat se souborem…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>Po&amp;užít nastavení…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Uložit nastavení</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Uložit nastavení do složky</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Nastavení (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Načítání nastavení…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Otevřít nastavení</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Nastavení uloženo do %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Nastavení %n projektoru uloženo do %1.</numerusform>
            <numerusform>Nastavení %n projektorů uloženo do %1.</numerusform>
            <numerusform>Nastavení %n projektorů uloženo do %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n nastavení se nepodařilo načíst.</numerusform>
            <numerusform>%n nastavení se nepodařilo načíst.</numerusform>
            <numerusform>%n nastavení se nepodařilo načíst.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Použít nastavení</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Porovnat nastavení</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>Předchozí hodnoty jsou uschovány v %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>nelze číst %1: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standardní vstup</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 je zde uvedeno dvakrát</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: port nelze získat</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>projektor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: projektory se čtou z %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 už existuje a tento program jej nezapsal</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>„%1“ není port.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>„%1“ není číslo od %2 do %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>„%1“ není doba do jedné hodiny.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Zobrazí tuto nápovědu.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>Zpřístupní projektory ze souboru &lt;soubor&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Zpřístupní jen projektor &lt;název&gt;; lze zadat vícekrát.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>název</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Naslouchá na adrese &lt;adresa&gt; místo 127.0.0.1; s --fleet jde o adresu prvního projektoru místo 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>adresa</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>První projektor je na portu &lt;n&gt;, ostatní na následujících; 0, stejně jako bez tohoto přepínače, použije libovolné volné porty. S --fleet je &lt;n&gt; port každého projektoru pro vlastní protokol a následující port je pro PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink požaduje heslo &lt;text&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Zpřístupní každý projektor i na pseudoterminálu.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Začne s poruchou: %1. Pro část projektorů: &apos;silent 5%&apos;. Lze zadat vícekrát.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>porucha</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Vše náhodné závisí na &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Na portu &lt;n&gt; adresy zpětné smyčky přijímá poruchy, jednu na řádek: číslo projektoru od 1, nebo *, a porucha.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Zapíše do souboru &lt;soubor&gt; profily zpřístupněných projektorů pro hostitelskou aplikaci.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>Zpřístupní &lt;n&gt; projektorů vytvořených podle profilů, každý na vlastní adrese zpětné smyčky.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>U flotily: co použije --write-profiles; pjlink, network nebo mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>způsob</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>U flotily: počet sekund, než se projektor zapne.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekundy</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>U flotily: počet sekund, než projektor přejde do pohotovosti.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>U flotily: kolik změn stavu za sekundu nastane samovolně.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>U flotily: odesílá oznámení PJLink o stavu na tuto adresu.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>adresa:port</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>U flotily: na konci zapíše do souboru &lt;soubor&gt;, kolikrát byl každý projektor dotázán.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Nápověda a chyby jsou v jazyce &lt;název&gt;, například de nebo zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Zpřístupňuje simulované projektory přes TCP, PJLink a pseudoterminály. Vypíše adresy, každou na řádek, a potom „ready“.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Neočekávaný argument „%1“.</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 vyžaduje --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>„%1“ není adresa.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: je delší než %1 bajtů.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: „%1“ není žádná z možností %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet nemá sériové linky.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>„%1“ není adresa zpětné smyčky IPv4.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>Od adresy „%1“ nezbývá dost adres.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>Po portu „%1“ nezbývá žádný pro PJLink.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>„%1“ není adresa zpětné smyčky IPv4 s portem.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>„%1“ není pjlink, network ani mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>chybí zde celé číslo</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>musí být celé číslo od %1 do %2, ale je %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>musí být řádek textu</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>musí být objekt</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>musí být pole</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>má více než %1 položek</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>toto není soubor uloženého nastavení</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>známa je jen verze %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>„%1“ je zde uvedeno dvakrát</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>je větší než 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>musí obsahovat objekt</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>řádek %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Nesleduje se</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Dotazování…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Neznámý název</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Bez odpovědi</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Nesprávné heslo</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Nesrozumitelná odpověď</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varování</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Pohotovost</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Ochlazování</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Zahřívání</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilátor</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampa</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Teplota</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Kryt</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Jiný</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (varování)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Podle požadavků</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n se liší</numerusform>
            <numerusform>%n se liší</numerusform>
            <numerusform>%n se liší</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>před %1 s</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>před %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>před %1 h</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>neznámo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>vypnuto</translation>
    </message>
    <message>
        <source>on</source>
        <translation>zapnuto</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Napájení</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Zdroj</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Prázdný obraz</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Ztlumení</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Zmrazení obrazu</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Odlišná nastavení</translation>
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
        <translation>&amp;Najít v síti…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>&amp;Importovat tabulku…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>&amp;Exportovat tabulku…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Najít projektory</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Přidat nalezené projektory</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Importovat tabulku</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Tabulky (*.csv *.tsv *.txt);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Exportovat tabulku</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabulky (*.csv);;Všechny soubory (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n projektor přidán</numerusform>
            <numerusform>%n projektory přidány</numerusform>
            <numerusform>%n projektorů přidáno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n už známý</numerusform>
            <numerusform>%n už známé</numerusform>
            <numerusform>%n už známých</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n nepřevzatý řádek</numerusform>
            <numerusform>%n nepřevzaté řádky</numerusform>
            <numerusform>%n nepřevzatých řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Nepoužité sloupce: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>&amp;Zapnout</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>V&amp;ypnout</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>&amp;Napájení</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Vstup</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>Prázdný o&amp;braz</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Zobrazit prázdný obraz</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Zobrazit prázdný obraz na %n projektoru?</numerusform>
            <numerusform>Zobrazit prázdný obraz na %n projektorech?</numerusform>
            <numerusform>Zobrazit prázdný obraz na %n projektorech?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Zobrazit obraz</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Zobrazit obraz na %n projektoru?</numerusform>
            <numerusform>Zobrazit obraz na %n projektorech?</numerusform>
            <numerusform>Zobrazit obraz na %n projektorech?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>Zt&amp;lumení</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Ztlumit zvuk</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Ztlumit zvuk %n projektoru?</numerusform>
            <numerusform>Ztlumit zvuk %n projektorů?</numerusform>
            <numerusform>Ztlumit zvuk %n projektorů?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Zrušit ztlumení zvuku</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Zrušit ztlumení zvuku %n projektoru?</numerusform>
            <numerusform>Zrušit ztlumení zvuku %n projektorů?</numerusform>
            <numerusform>Zrušit ztlumení zvuku %n projektorů?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>Zm&amp;razení obrazu</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Zmrazit obraz</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Zmrazit obraz %n projektoru?</numerusform>
            <numerusform>Zmrazit obraz %n projektorů?</numerusform>
            <numerusform>Zmrazit obraz %n projektorů?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Zrušit zmrazení obrazu</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Zrušit zmrazení obrazu %n projektoru?</numerusform>
            <numerusform>Zrušit zmrazení obrazu %n projektorů?</numerusform>
            <numerusform>Zrušit zmrazení obrazu %n projektorů?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Zapnout</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Vypnout</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>Zapnout %n projektor?</numerusform>
            <numerusform>Zapnout %n projektory?</numerusform>
            <numerusform>Zapnout %n projektorů?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>Vypnout %n projektor?</numerusform>
            <numerusform>Vypnout %n projektory?</numerusform>
            <numerusform>Vypnout %n projektorů?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Vstup %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Vybrat vstup %1 na %n projektoru?</numerusform>
            <numerusform>Vybrat vstup %1 na %n projektorech?</numerusform>
            <numerusform>Vybrat vstup %1 na %n projektorech?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Nejsou známy žádné vstupy</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>nelze zapsat %1: %2</translation>
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
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektory</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Zopakovat neúspěšné</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>&amp;Vrátit vše zpět</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>Dokončit &amp;zbytek</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>model je nemá</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>hotovo %1 z %n</numerusform>
            <numerusform>hotovo %1 z %n</numerusform>
            <numerusform>hotovo %1 z %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Vrátit zpět: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>probíhá…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hotovo</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>přijato, ještě probíhá</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odmítnuto</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>bez odpovědi</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>zastaveno</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>hotovo, %n nastavení se nepodařilo načíst</numerusform>
            <numerusform>hotovo, %n nastavení se nepodařilo načíst</numerusform>
            <numerusform>hotovo, %n nastavení se nepodařilo načíst</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n ještě probíhá</numerusform>
            <numerusform>%n ještě probíhají</numerusform>
            <numerusform>%n ještě probíhá</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n selhal</numerusform>
            <numerusform>%n selhaly</numerusform>
            <numerusform>%n selhalo</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>není známo, zda byl zapnutý</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n zastaven</numerusform>
            <numerusform>%n zastaveny</numerusform>
            <numerusform>%n zastaveno</numerusform>
        </translation>
    </message>
</context>
</TS>
