<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>nincs --%1 kapcsoló</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>a --%1 kapcsoló nem vár értéket</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>a --%1 kapcsolóhoz meg kell adni: %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1: itt nem használható: %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: „%2” nem lehetséges</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>hiányzik a parancs; a parancsok listája: --help</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>nincs „%1” parancs; a parancsok listája: --help</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1: ez a --format itt nem használható</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>használat: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>a fájlnév üres</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>„%1” nem szerepel a lehetőségek között: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>„%1” nem olyan lépés, mint a +1 vagy a -1, és a PJLink csak léptetni tudja</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>„%1” több mint %n lépés</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>„%1” (kiindulás: %2) nem szerepel a lehetőségek között: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>„%1” (kiindulás: %2) több mint %n lépés</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>projektorok listázása</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Kiírja a megadott vagy az összes projektor nevét, modelljét, lapkészletét, sorozatkódját, kapcsolatát és címkéit.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>modellek listázása</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Kiírja a profilfájlban szereplő modelleket, és mindegyikhez a projektorok és a beállítások számát.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>beállítások és értékeik listázása</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Kiírja a modell beállításait: kulcs, lap, felirat és lehetséges értékek. A projektort nem kérdezi le.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>egy beállítás ismertetése</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Kiírja, mi az adott beállítás: a lapot és a feliratot, a lehetséges értékeket a kódjukkal, a modelleket, amelyekben megvan, és hogy módosítható, alaphelyzetbe állítható, illetve menthető és visszaállítható-e.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>aktuális értékek kiírása</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Beolvassa és kiírja a projektorok beállításait; kulcs nélkül az összeset.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>beállítások módosítása</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>A megadott sorrendben módosítja a beállításokat, mindegyiket visszaolvassa, és kiírja az előtte és utána érvényes értéket. Előbb minden kulcsot és értéket ellenőriz minden projektorra; ha egy érték akár csak egynél is hibás, egyiknek sem küld semmit. Ha egy projektorban nincs meg egy kulcs, azt jelzi, de a többit ez nem akadályozza.
A KEY=VALUE értéket állít be; a KEY+=N és a KEY-=N az aktuális értékhez képest léptet. A KEY VALUE alakban a +3 és a -3 lépés, a =-3 pedig negatív szám. Az „acctl undo” visszaállítja a korábbi állapotot, kivéve a tápellátást és a műveletek eredményét.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>beállítások visszaállítása a projektor alapértékére</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>tápellátás, bemenet, hibák és üzemórák kiírása</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Kiírja a megadott vagy az összes projektor állapotlapját.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>beállítások mentése fájlba</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Menti az összes visszaállítható beállítást: egy projektorét a FILE fájlba („-” a szabványos kimenet), vagy akárhány projektorét egy mappába, mindegyiket külön fájlba. Ha egy fájl nem beállításfájl, --force nélkül nem írja felül.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>összehasonlítás mentett beállításokkal</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>mentett beállítások visszaállítása</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>értékek és minden változás kiírása</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Kiírja az értékeket, majd minden változást, amíg meg nem szakítják, amíg valaki olvassa a kimenetét, vagy amíg minden projektor el nem éri az --until értékét. Az elnémult projektorral újra meg újra próbálkozik.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>projektorok keresése a hálózaton</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Bemutatkozásra kéri a hálózat összes vagy a megadott címek PJLink-projektorait. Az ADDRESSES lehet például 192.0.2.7, 192.0.2.0/24 vagy 192.0.2.10-40. Semmit sem tárol, hacsak az --add meg nem ad egy profilfájlt.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>projektorok átvétele táblázatból</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Vesszővel tagolt értékek sorait („-” a szabványos bemenet) adja a --profiles vagy az ACCTL_PROFILES szerinti profilfájlhoz, a már meglévőket pedig módosítja.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>projektorok kiírása táblázatként</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Kiírja a megadott vagy az összes projektort vesszővel tagolt értékekként, jelszavak nélkül.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>egy parancs ismertetése</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>hiányzik ezek egyike: = != &lt; &lt;= &gt; &gt;=</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>hiányzik az érték</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>egyik modellben sincs ilyen beállítás</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>csak szám lehet kisebb vagy nagyobb</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>egyik modellben sincs ilyen beállítás; az összes kulcs listája: acctl settings</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>egyik modellben sincs ilyen beállítás; erre gondolt: %1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 – %2, kijelzett értéke %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>%1 forrás: ennek nincs forrásonként külön értéke</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>nincs ilyen forrás: %1; lehetséges: %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>a megadott érték (%1) nem lehetséges; lehetséges: %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>„%1” nem a megadott érték (%2) szövege, az ugyanis „%3”; módosítsa mindkettőt, vagy törölje a szöveget</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>A projektoroknak a Speciális vezérlés ablakában látható beállításait olvassa, módosítja, menti és állítja vissza. A projektorokat egy profilfájl sorolja fel.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>A P projektorokat választ ki: név, minta (például &apos;Lecture*&apos;), @TAG vagy model=PATTERN. Több megadása vesszővel elválasztva lehetséges, a !P pedig kihagy projektorokat. A KEY egy beállítás kulcsa, minta (például &apos;picture.*&apos;) vagy rövid név (például brightness, input vagy power), amely minden modellnél ugyanaz. A VALUE az ablakban látható szám, egy elem szövege az ablak bármelyik nyelvén, vagy az elem kódja.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Kész. Akkor is, ha egy készenlétben lévő projektor nem tudott mindent jelenteni, vagy ha egy elfogadott módosítás még nem lépett életbe.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Valamit elutasított a projektor, hiányzik belőle egy megadott beállítás, vagy egy fájl, illetve a kimenet nem olvasható vagy nem írható.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Hibás használat: egyik projektornak sem lett elküldve semmi.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Egy projektor nem válaszolt, nem jelentette a bemeneteit, vagy az acctl egy másik futtatása használta.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Megszakítva; a jelentésben olvasható, mi történt meg.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Használat: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Kapcsolók</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Parancsok</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Minden parancs kapcsolói; egy parancs sajátjai példákkal: „acctl help COMMAND”</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Példák</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Kilépési kódok</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>szám</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>választás</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>állapot</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>művelet</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>rövid név: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>lap</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>felirat</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>fajta</translation>
    </message>
    <message>
        <source>values</source>
        <translation>értékek</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>amelyeket a projektor jelent</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>parancsok</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>tárolás</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>bemeneti forrásonként</translation>
    </message>
    <message>
        <source>models</source>
        <translation>modellek</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n beállítás</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>itt nincsenek profilok: %1; adjon meg fájlt a --profiles kapcsolóval</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>a projektorok beolvasása a FILE fájlból</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>csak az ilyen állapotú projektorok, például &apos;power=on lamp-hours&gt;1500&apos;</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>a projektor címe ADDRESS; a P csak a modelljét adja meg</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>a keresett projektorok portja; alapértelmezés: 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>PJLink-jelszó; a gép többi felhasználója itt láthatja</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>a jelszó a FILE fájl első sora</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>kimenet: text, json, jsonl (értékenként vagy projektoronként egy sor), tsv vagy value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>ugyanaz, mint --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>csak nevek vagy kulcsok, soronként egy</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>csak a get, set, reset vagy watch paranccsal használható beállítások</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>csak a GLOB mintára illő kulcsok; ismételhető</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>KEY=VALUE sorok átvétele a FILE fájlból („-” a szabványos bemenet)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>minden projektor mentése külön fájlba a DIR mappában</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>a megtaláltak hozzáadása a FILE profilfájlhoz</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>csak kiírja, mi módosulna, de nem módosít</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>várakozás az állapot elérésére legfeljebb TIME ideig, például 90s vagy 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>befejezés, ha már minden projektor értéke ez</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>kilépési kód: 1, ha van eltérés; 2, ha valami nem hasonlítható össze</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>kihagyja a FILE hibás részeit, ahelyett hogy semmit sem küldene</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: más projektor visszavonási fájlja is; save: bármely fájl felülírása</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>a visszavonható futtatások listázása</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>a visszavonási fájlok mappája</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>az N napnál régebbi visszavonási fájlok törlése; alapértelmezés: 30, 0: mind megmarad</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>az egyszerre kezelt projektorok száma, 1–1024; alapértelmezés: olvasáshoz 512, módosításhoz 64</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>várakozás egy válaszra; alapértelmezés: 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>a nem válaszoló projektor további N próbája; alapértelmezés: 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>az első hiba után nem kezd újabb projektorba</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>két olvasás közti idő; alapértelmezés: 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>a szövegek nyelve, például de vagy zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>ez a szöveg; parancs után annak súgója</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>a verzió</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>nem írható: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>„%1” nem lehetséges</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>hiányzik: „=”</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>nincs ilyen beállítás: %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>nem olvasható: %1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>az első sora üres</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>%1 jelszava: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (szimulált)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>%1 hozzáadva, %2 új címen, %3 ismert</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>jelszó szükséges</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>adja meg a profilfájlt a --profiles kapcsolóval</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>nem használt oszlopok: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>%1 hozzáadva, %2 ismert, %3 hibás</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: „%2” nem KEY=VALUE alakú</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: nincs benne KEY=VALUE sor</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>itt csak egy projektor adható meg, nem %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>visszavonva</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>a visszavonás nem jegyezhető fel itt: %1: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>az acctl egy másik futtatása dolgozik rajta</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>nem kezdődött el, mert egy másik projektornál hiba történt</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>az acctl maga szimulálta, semmi sem módosult tartósan</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>megszakítva; ami megtörtént, fentebb olvasható</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>készenlétben van, kimarad: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>bemelegszik, kimarad: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>lehűl, kimarad: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>kihagyva, ez a projektor nem kínálja: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n projektor</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n módosítva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n eltérő</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n változatlan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n még nem lépett életbe</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>elfogadva, még nem lépett életbe</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n elutasítva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n foglaltság miatt elmaradt</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>a projektor foglalt vagy készenlétben van</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n nincs megerősítve</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>nincs megerősítve, lehet, hogy módosult</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n elmaradt</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>kihagyva, ebben a modellben nincs meg</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>kihagyva, ez a projektor nem kínálja</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>kihagyva, nem állítható vissza</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>kihagyva, ez a modell nem fogadja el</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>itt megállt: %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>nem lett elküldve, több mint %n lépésre van</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>elutasítva, értéke %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>most nem olvasható</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n nem lett összehasonlítva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n kihagyva</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nincs teendő</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>kihagyva, a PJLink nem ismeri: a fájl %n beállítása</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; több nem lett elküldve</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; semmi sem lett elküldve</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: egy másik projektor (%2) módosítását vonja vissza; a --force hatására erre alkalmazza: %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: a fájlban nincs ilyen beállítás</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: nincs „%2” nevű projektor</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: a következő fájl is ugyanezé a projektoré (%2): %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: a mappában nincsenek beállításfájlok</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: nincs hozzá fájl itt: %2</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: nem beállításfájl; a --force felülírja</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: nincs ilyen fájl vagy mappa</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>adja meg, mely projektorokra kell alkalmazni a fájlt</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>egy fájl csak egy projektorhoz használható, itt viszont %1 van; mappa az -o kapcsolóval adható meg</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>a mappa nem hozható létre: %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; korábbi futtatás visszavonásához adja meg annak nevét</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>nincs visszavonható futtatás</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>nincs „%1” futtatás; a lista: --list</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: már nincs a profilfájlban</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>most nem olvasható, kimarad</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>semmi sem olvasható, és semmi sem lett kiírva</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n beállítás mentve ide: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>nincs „%1” nevű projektor; az összes listája: acctl list</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>elutasítva, a projektor készenlétben van</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>elutasítva, a projektor bemelegszik</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>elutasítva, a projektor lehűl</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>elutasítva, a projektor foglalt</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>ez nem vonható vissza: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>megállt, elfogadott lépések: %1 / %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; elfogadott lépések: %2 / %n</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>elfogadva, még nem lépett életbe, értéke %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, lehet, hogy módosult, értéke %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, lehet, hogy módosult</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>elutasítva</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>nem érte el időben, értéke %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>nem érte el időben az értéket</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: ez nem egy visszavonási fájl sora</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: nincs mit visszavonni</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>nem írható: %1: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>hibás kapcsolati adatok</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>ismeretlen gépnév</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nem érhető el</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>megszakadt a kapcsolat</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>a válaszok nem értelmezhetők</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>a protokoll másik verziója</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>a jelszó hiányzik vagy hibás</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>nincs válasz</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>nincs válasz (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>ebben a modellben nincs ilyen beállítás</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>kihagyva, a PJLink nem ismeri</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>most nem olvasható</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>ez a projektor nem kínálja</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>nem lett beolvasva, a projektor nem jelentette a bemeneteit</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>a PJLink nem ismeri</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>ez nem olvasható</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>ez nem állítható be</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>ez nem állítható vissza</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>ez nem állítható alapértékre</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, a projektor készenlétben van</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, a projektor bemelegszik</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, a projektor lehűl</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>újra válaszol</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: „%1” nem KEY=VALUE alakú</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Kiírja az eltéréseket egy fájlhoz („-” a szabványos bemenet), a gazdaalkalmazás egy előbeállításához, vagy egy mappában az egyes projektorok saját fájljához képest.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Beolvassa a projektorokat, elküldi azt, ami eltér a fájltól („-” a szabványos bemenet), a gazdaalkalmazás egy előbeállításától, vagy egy mappában az egyes projektorok saját fájljától, majd visszaolvassa. A lecserélt értékeket előbb megőrzi, hogy az „acctl undo” visszaállíthassa őket. A megszakított futtatás bármikor megismételhető.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>a korábbi érték nem volt beolvasható, ezért nem állítható vissza</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>a korábbi érték nem volt beolvasható</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>ez nem vonható vissza</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Visszaállítja a beállításokat a projektor saját alapértékére, és kiírja az új értéket. Az „acctl undo” visszaállítja a korábbi állapotot. Az óraszámlálókat csak pontos kulcs megadásakor nullázza, mert ez nem vonható vissza.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>az utolsó beállításokat módosító futtatás visszavonása</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>a futtatás e projektorok egyikét sem módosította</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Visszaállítja, amit a „set”, „reset” vagy „apply” egy futtatása lecserélt. A RUN az „acctl undo --list” által kiírt név, egy fájl vagy „last”; nélküle az utolsó futtatást vonja vissza. P vagy --where megadásakor csak ezeket a projektorokat állítja vissza, és a futtatás többi része később vonható vissza. A visszavonás is visszavonható a neve alapján.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>megszakítva</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>elfogadva, de nincs megerősítve: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>„%1” elején / vagy ~/ kell, hogy álljon</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>várakozás egy másik programra, amely ezt módosítja: %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>Ny&amp;ugtázás</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>Összes nyu&amp;gtázása</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Kezdete</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Riasztás</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Riasztások</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 nem válaszol</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: a lámpa üzemideje %2 / %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n beállítás eltér az elvárttól</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>nyugtázva</translation>
    </message>
    <message>
        <source>open</source>
        <translation>nyitott</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Ez a súgó.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>A projektorok a &lt;fájl&gt; fájlból származnak.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fájl</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Több rész közül egynek a figyelése: 2/5 az öt rész közül a második.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>rész</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Csak az olyan projektorok figyelése, amelyeken rajta van a &lt;címke&gt;, vagy ha több van megadva, azok egyike.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>címke</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Minden projektor lekérdezése ennyi másodpercenként: &lt;másodperc&gt;, legalább 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>másodperc</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Naponta egyszer minden projektor összehasonlítása a &lt;mappa&gt; mappában lévő pillanatképével.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>mappa</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>A projektorok állapotértesítéseinek fogadása a &lt;cím&gt; címen.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>cím</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Metrikák kiszolgálása a &lt;cím:port&gt; címen; „none”: sehol.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>cím:port</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Metrikák írása 15 másodpercenként a &lt;fájl&gt; fájlba, szövegfájlokat gyűjtő program számára.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Üzenetek küldése a &lt;gép:port&gt; címen lévő MQTT-közvetítőnek.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>gép:port</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Az MQTT verziója, 3 (3.1.1) vagy 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>verzió</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>A &lt;fájl&gt; első sora a közvetítőnél használt felhasználónév.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>A &lt;fájl&gt; első sora a közvetítőnél használt jelszó.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Titkosítás, a rendszer által elfogadott hitelesítésszolgáltatók elfogadásával.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Titkosítás, a &lt;fájl&gt; hitelesítésszolgáltatóinak elfogadásával.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>Ennek az ügyfélnek a tanúsítványa.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>A tanúsítvány kulcsa.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>Minden téma első szintje.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>téma</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>A felderítési témák első szintje; „none”: nincs felderítés.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Az olyan híd részének átvétele, amely ennyi ideje nem jelentkezett: &lt;másodperc&gt;.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Paranccsal módosítható beállítások: kulcsok vagy minták vesszővel elválasztva; „power” a tápellátás. Nélküle egyik sem módosítható.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>kulcsok</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Az egy projektor által percenként fogadott parancsok száma.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>A felderítési üzenetek nevei és a program üzenetei ezen a nyelven jelennek meg: &lt;név&gt;, például de vagy zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>név</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>„%1” nem %2 másodperc és egy nap közötti idő</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>„%1” nem téma</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>„%1” nem olyan rész, mint a 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>„%1” nem numerikus cím porttal</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>nem olvasható: %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>üres: %1</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>a --%1 kapcsolóhoz --broker is szükséges</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>„%1” nem gépnév porttal</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>„%1” nem 3 és nem 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>a --cert-file és a --key-file csak együtt használható</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: „%1” nem paranccsal módosítható beállítás</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>„%1” nem 1 és %2 közötti szám</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Projektorokat figyel, és adatokat küld róluk metrikatárolónak és üzenetközvetítőnek.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>váratlan argumentum: „%1”</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>hiányzik: --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>„%1” nem numerikus cím</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>„%1” nem mappa</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>nincsenek szövegek ezen a nyelven: „%1”</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>egyik projektoron sincs rajta a(z) „%1” címke</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>Váratlan „=” itt: „%1”.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>A --%1 kapcsolóhoz érték szükséges.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Valódi vagy szimulált projektorok beállításablakait nyitja meg.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Ez a súgó.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>A projektorok beolvasása a &lt;fájl&gt; fájlból.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fájl</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>Indításkor a &lt;név&gt; nevű projektor ablakának megnyitása.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>név</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>--open esetén: az &lt;n&gt;. lap kiválasztása, 0-tól számolva.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>A projektorok táblázatának kiírása.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>--open esetén: az ablak képének mentése (PNG), majd kilépés.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Az összes projektorfajta minden lapjának képét a &lt;mappa&gt; mappába menti, majd kilép.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>mappa</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>A szövegek nyelve &lt;név&gt;, például de vagy zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: nincsenek szövegek ezen a nyelven: „%1”.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Váratlan argumentum: „%1”.</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>A --list, a --tour és az --open közül csak egy adható meg.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>A --%1 kapcsolóhoz --open is szükséges.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: „%1” nem szám.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Csak a &amp;változások</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Csak a &amp;hibák</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>&amp;Napló mentése másként…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>Napló &amp;törlése…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Parancsnapló</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>A csak olvasó parancsok elrejtése</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>A végrehajtott parancsok elrejtése</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Másolás</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Napló szűrése</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Napló mentése</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Táblázatok (*.tsv);;Minden fájl (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Napló törlése</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>Törli a napló összes (%n) bejegyzését?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Projektor, beállítás, parancs vagy eredmény</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Minden projektor</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Projektor, amelynek a parancsai láthatók</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projektor</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Parancs</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Eredmény</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>félbehagyva</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>nincs válasz</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>foglalt</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>nem kínálja</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>elutasítva</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>még nem lépett életbe</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>rendben</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Beállítás</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Folyamat</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Ismételt beolvasás</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Alkalmazás</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Beállítások beolvasása…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Leállítás</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Nincs eltérés.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n projektor eltér.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n projektoron már mindegyik beállítás ilyen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n projektor nem volt beolvasható.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n projektor most nem közli mindegyik beállítást.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n projektor kimaradt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>Elérés mód&amp;ja</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Kapc&amp;solat</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>C&amp;ím</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Port</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Je&amp;lszó</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>P&amp;ortszám</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Eszköz</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>Átviteli se&amp;besség</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>A család szerint</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Szimulált</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Hálózat</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Soros port</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>Ez nem cím: %1.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>K&amp;apcsolat tesztelése</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>A teszt eredménye</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Nincs mihez kapcsolódni.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>A soros vonal próbája a projektor ablakának megnyitásakor történik.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Lekérdezés…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Egy projektor válaszol: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>hiányzik egy záró idézőjel</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>a záró idézőjel után folytatódik a szöveg</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>több mint %1 cella</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>%1 cella van, de a fejlécben %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>több mint %1 sor</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>nincs fejléc</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>több mint %1 bájt</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>szimulált</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Részletek</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Állapot:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Tápellátás:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Forrás:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Probléma:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Kép és hang:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Lámpa:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Szűrő:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Beállítások:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>Válasz:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>A lámpa névleges üzemidejéből eltelt rész</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>&amp;Legutóbbi események</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Legutóbbi események</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Nincs projektor kijelölve</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>%n projektor kijelölve</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>üres kép</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>némítva</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>kimerevítve</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>látható</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nincs</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>még semmi</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Beállítás</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jelenleg</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Eltérések</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Előtte: más források és módok</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n beállítás</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n beállítás nem vonatkozik erre a modellre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n beállítás most nem olvasható</numerusform>
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
        <translation>Probléma: ventilátor</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Probléma: lámpa</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Probléma: hőmérséklet</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Probléma: fedél</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Probléma: szűrő</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Probléma: egyéb</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Elérhető</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Tápellátás</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Lehűlés</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Nincs hiba</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Fedél</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilátor</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lámpa</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Hőmérséklet</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Légáramlás</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Lámpa üzemideje</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Túl alacsony hőmérséklet</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Szűrő</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Szűrő üzemideje</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Egyéb (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Elutasítás</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Olvasási hibák</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Késleltetés</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Kiesés</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>&amp;Hiba előidézése</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Megszüntetés</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>Összes m&amp;egszüntetése</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Érvényes hibák</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>&amp;Tápellátás</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>Hiba&amp;állapot</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>Paran&amp;cs</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>Hi&amp;ba</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;Késleltetés</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>É&amp;rvényes</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Nincs projektor kijelölve</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Szimuláció: %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Szimulált hibák: %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Minden parancs</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Válasszon, vagy írja be egy név vagy kód részletét</translation>
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
        <translation>%1 (bármely kód)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n bekapcsolva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n kikapcsolva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n problémás</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nem érhető el</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n riasztással</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>legrégebbi válasz: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nem figyelt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>elutasítva</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>a projektor foglalt vagy készenlétben van</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>a projektorban nincs meg</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>a modell nem engedi ezt az értéket</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>nem állítható be</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>a modellben nincs meg</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>a modellben nincs ilyen beállítás</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>nincs hozzá pillanatkép</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>nincs megerősítve, lehet, hogy módosult</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>nem lehetett mindent elküldeni</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>nincs válasz</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nem érhető el</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nincs kapcsolat</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>hibás kapcsolati adatok</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>ismeretlen gépnév</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>megszakadt a kapcsolat</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>a válaszok nem értelmezhetők</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>a protokoll másik verziója</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>a jelszó hiányzik vagy hibás</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>a projektor most egyik beállítását sem jelenti</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Csoportok</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Mind</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problémák</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Kikapcsolva</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Nem érhető el</translation>
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
        <translation>A projektor ablakában</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Következő lap</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Előző lap</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Beállítás keresése</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Gyorsbillentyűk</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Speciális vezérlés %1&lt;/h3&gt;&lt;p&gt;Projektorok élő beállításai: minden érték a projektorból származik, és minden módosítás azonnal a projektorhoz kerül.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>vezérlőkarakter a szövegben</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>fél helyettesítő pár a szövegben</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>%1 bájtnál hosszabb szöveg</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>több mint %1 bájt</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>több mint %1 szint mély</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>több mint %1 érték</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Ezek mind szimulált projektorok, a program kipróbálásához.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Speciális vezérlés: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Speciális vezérlés</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Beállítások megnyitása</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>Megnyit %n ablakot?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Riasztások</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Szimuláció</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Parancsnapló</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fájl</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Kilépés</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>S&amp;zerkesztés</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Programbeállítások…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Projektor</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>Beállítások &amp;megnyitása</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Megnyitás</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Frissítés</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Nézet</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Keresés</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Szimuláció</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Parancsnapló</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Riasztások</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Súgó</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Gyorsbillentyűk</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Névjegy</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Eszközök</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Mentve ide: %1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Család</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modell</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>A modell összes me&amp;zője</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>Ablak &amp;típusa</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>Modell&amp;kód</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nincs</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Speciális vezérlés</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Speciális vezérlés</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Projektorbeállítások</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Projektorok beállításainak olvasása és módosítása</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>projektor;vetítő;kivetítő;fényerő;trapéz;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Lista, amely több száz projektor állapotát mutatja, és egyszerre sokat módosít közülük; minden projektorhoz külön ablak tartozik, benne beállításcsoportonként egy lappal. Minden érték közvetlenül a projektorból származik, és minden módosítás azonnal a projektorhoz kerül. Napló mutatja az összes parancsot és azok eredményét.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>A projektorok szimulálhatók, kézzel előidézett hibákkal.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>%1 ablaka nem hozható létre</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>a mappa nem írható: %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Programbeállítások</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>A rendszer szerint</translation>
    </message>
    <message>
        <source> s</source>
        <translation> mp</translation>
    </message>
    <message>
        <source>never</source>
        <translation>soha</translation>
    </message>
    <message>
        <source> min</source>
        <translation> perc</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Ventilátor, lámpa, hőmérséklet, fedél, szűrő</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>Az &amp;elvárttól eltérő beállítások</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Értesítés az &amp;asztalon</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Csend kezdete</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Csend vége</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Nyelv (újraindítás után)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>&amp;Projektorok lekérdezésének gyakorisága</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Riasztások</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>&amp;Lámpa üzemideje a névlegeshez képest</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>Nem válaszol ennyi &amp;ideje</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Csendes órák</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Az asztali környezet szerint</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Világos</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sötét</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>S&amp;zínek</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(azonos időpontok: nincs)</translation>
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
        <translation>E&amp;lőbeállítások</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Alkalmazás a kijelöltekre</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Még nincs előbeállítás</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Mentés előbeállításként…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>&amp;Ilyennek kell lennie</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nincs elvárás</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>Össze&amp;hasonlítás az elvárttal</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>&amp;Elvárt beállítások visszaállítása</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Mentés előbeállításként</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Mentve előbeállításként: %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Előbeállítások</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Előbeállítás: %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Ilyennek kell lennie</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Egyik kijelölt projektorhoz sem tartozik elvárt előbeállítás.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Visszaállítás</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Visszaállítja %n projektor elvárt beállításait?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Beállítások beolvasása: %1…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Előbeállítás</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Elvárt beállítások</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Elvárt</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>Előbeállítások &amp;kezelése…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Összes: %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Mentés előbeállításként</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Beállítás</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Az előbeállítás tartalma</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>Az előbeállítás &amp;neve</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Mind</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Minden beállítás bejelölése</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Ez az &amp;oldal</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Csak a kijelölt oldal beállításainak bejelölése</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Egyik sem</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Minden bejelölés törlése</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Menté&amp;s</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Az előbeállításnak nem lehet ez a neve: hagyja el a perjeleket és a kezdő pontot.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n beállítás van bejelölve.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Ez az előbeállítás le lesz cserélve: %1.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Előbeállítás átnevezése</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Előbeállítás eltávolítása</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>a mappa nem hozható létre: %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Előbeállítások</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Beállítás</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Az előbeállítás tartalma</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Átnevezés</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>E&amp;ltávolítás</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Még nincs előbeállítás</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Ilyennek kell lennie: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Az előbeállításnak nem lehet ez a neve: hagyja el a perjeleket és a kezdő pontot.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Már van ilyen előbeállítás: %1.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>Eltávolítja ezt az előbeállítást: %1?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hozzáadás…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Szerkesztés…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Kettőzés…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Eltávolítás…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>&amp;Címkék…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Kettőzés</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Projektor eltávolítása</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Projektorok eltávolítása</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>Eltávolítja: „%1” (innen: %2)?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>Eltávolít %n projektort innen: %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Címkék</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>%n projektor címkéi, vesszővel elválasztva;
elöl álló mínusz eltávolítja a címkét:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>„%1” nem MAC-cím</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>„%1” nem kapcsolatfajta</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>„%1” egy másik projektor neve, amelynek azonosítója %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>„%1” nem óraszám</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>„%1” egy másik projektor neve</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>a fejlécben nincs „name” oszlop</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>Egy másik program módosította: %1. Töltse be újra (F5), majd ismételje meg a műveletet.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Név</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Projektor hozzáadása</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Projektor szerkesztése</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Projektor kettőzése</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Még kitöltendő: %1</translation>
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
        <translation>soros port: %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>%1 család van benne; legfeljebb %2 lehet</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>több mint %1 családon át vezet</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>önmagából származtatja ezt: „%1”</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>nincs „%1” család</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>hiányzik: „%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>„%1” már szerepel itt: projectors[%3], mint %2</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>a fájlnak objektumot kell tartalmaznia</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>hiányzik: „projectors”</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>nincs benne projektor</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>kétszer szerepel itt</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>a profilok nem olvashatók: %1: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>nem szabályos fájl</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>sem nem tartomány neve, sem nem 0 és %1 közötti szám</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>ezzel a névvel kell megadni: „%1”</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>csak [minimum, maximum] vagy null lehet</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>a minimuma nagyobb a maximumánál</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>ismeretlen kulcs; az ismertek: %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>csak objektum lehet</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>csak tömb lehet</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>%1 eleme van; legfeljebb %2 lehet</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>csak nem üres szöveg lehet</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>hosszabb, mint %1 bájt</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>csak egész szám lehet</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>értéke %1; %2 és %3 között kell lennie</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>csak szám, szöveg vagy „value” és „name” mezőt tartalmazó objektum lehet</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>csak / jellel kezdődő útvonal lehet</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>sem nem gépnév, sem nem IP-cím</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>vagy „network”, vagy „serial” szükséges benne</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>csak simulated, network, serial vagy pjlink lehet</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>ilyen kapcsolat kell hozzá: %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>nincs „%1” beállítás</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;Profilok megnyitása…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>Új&amp;ratöltés</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>Profilok &amp;mentése másként…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Profilok megnyitása</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profilok (*.json);;Minden fájl (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Újratöltés</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Profilok mentése másként</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Írásvédett fájl</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>Nem módosítható: %1. Előbb mentse a profilokat másik fájlba.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Profilok mentése másként…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>Az eddigi módosítások már nem vonhatók vissza.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Visszavonás</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Új&amp;ra</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>Ez nem sikerült; semmi sem módosult.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>egy másik program éppen módosítja: %1; próbálja újra</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>itt nincsenek profilok: %1; adjon meg fájlt a --profiles kapcsolóval</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kód</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Kapcsolat</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%1 projektorfajta %n képe mentve ide: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: nincs „%1” nevű projektor; az összeset a --list sorolja fel.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: nincs %1. lap; „%2” lapjai 0-tól %3-ig számozottak.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>nincs képernyő; nélküle a --list, a --tour vagy a --screenshot használható.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Tápellátás</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Forrás</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lámpa</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Probléma</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Hely</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Utolsó válasz</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Cím</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · nyitva</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Név, modell, hely, cím, lap vagy beállítás keresése</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Projektorok keresése</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektorok</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nincs találat</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n találat</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Meghajtó</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Mappa</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Használat: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[kapcsolók]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Kapcsolók:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>A verzió.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Ismeretlen kapcsoló: „%1”.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Ismeretlen kapcsolók: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Hiányzó érték ez után: „%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Váratlan érték ez után: „%1”.</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>„%1” sem nem IP-cím, sem nem címtartomány</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>több mint %1 cím</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Keresés</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Projektorok keresése</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>a számítógép hálózatai</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Például 192.0.2.0/24 vagy 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Cím</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Megjegyzés</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Megtalált projektorok</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Címek</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Jelszó</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>&amp;Bejelöltek hozzáadása</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>már szerepel</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>jelszót kér</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n találat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n találat, lekérdezett címek: %1 / %2…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>Beállítások menté&amp;se…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>Össze&amp;hasonlítás fájllal…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>Beállítások &amp;alkalmazása…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Beállítások mentése</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Beállítások mentése mappába</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Beállítások (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Beállítások beolvasása…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Beállítások megnyitása</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Beállítások mentve ide: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>%n projektor beállításai mentve ide: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n beállítás nem volt beolvasható.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Beállítások alkalmazása</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Beállítások összehasonlítása</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>A korábbi értékek itt találhatók: %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>nem olvasható: %1: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>szabványos bemenet</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 kétszer szerepel itt</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: a port nem használható</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>nincs „%1” nevű projektor</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: a projektorok innen olvashatók be: %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 már létezik, és nem ez a program írta</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>„%1” nem port.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>„%1” nem %2 és %3 közötti szám.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>„%1” nem legfeljebb egyórás idő.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Ez a súgó.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>A &lt;fájl&gt; projektorainak kiszolgálása.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fájl</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Csak a &lt;név&gt; nevű projektor kiszolgálása; többször is megadható.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>név</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Figyelés a &lt;cím&gt; címen 127.0.0.1 helyett; --fleet esetén az első projektor címe 127.64.0.1 helyett.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>cím</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>Az első projektor portja &lt;n&gt;, a többié az utána következők; 0 esetén, vagy ha nincs megadva, tetszőleges szabad portok. --fleet esetén &lt;n&gt; minden projektor portja a saját protokollhoz, a következő pedig a PJLinkhez.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>A PJLink ezt a jelszót kéri: &lt;szöveg&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>szöveg</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Minden projektor kiszolgálása pszeudoterminálon is.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Kezdés hibával: %1. A projektorok egy részénél: &apos;silent 5%&apos;. Többször is megadható.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>hiba</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Minden véletlenszerű dolog ettől függ: &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Hibák fogadása a visszacsatolási cím &lt;n&gt; portján, soronként egy: a projektor sorszáma 1-től, vagy *, majd a hiba.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>A kiszolgált projektorok profiljainak írása a &lt;fájl&gt; fájlba a gazdaprogram számára.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>&lt;n&gt; projektor kiszolgálása a profilok mintájára, mindegyik saját visszacsatolási címen.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Flottánál: mit használjon a --write-profiles; pjlink, network vagy mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>mód</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Flottánál: ennyi másodperc alatt kapcsol be egy projektor.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>másodperc</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Flottánál: ennyi másodperc alatt kerül készenlétbe egy projektor.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Flottánál: ennyi állapotváltozás történik magától másodpercenként.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Flottánál: a PJLink állapotértesítéseinek küldése erre a címre.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>cím:port</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Flottánál: a végén annak kiírása a &lt;fájl&gt; fájlba, hányszor lett lekérdezve az egyes projektorok.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>A súgó és a hibaüzenetek nyelve &lt;név&gt;, például de vagy zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Szimulált projektorokat szolgál ki TCP-n, PJLinken és pszeudoterminálokon. Soronként egy címet ír ki, majd ezt: „ready”.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Váratlan argumentum: „%1”.</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>A --%1 kapcsolóhoz --fleet is szükséges.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>„%1” nem cím.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: hosszabb, mint %1 bájt.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: „%1” nem szerepel ezek között: %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>A --fleet nem használ soros vonalat.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>„%1” nem IPv4-es visszacsatolási cím.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>„%1” után nem marad elég cím.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>„%1” után nem marad port a PJLinknek.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>„%1” nem IPv4-es visszacsatolási cím porttal.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>„%1” nem pjlink, network vagy mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>itt hiányzik egy egész szám</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>csak %1 és %2 közötti egész szám lehet, de az értéke %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>csak egysoros szöveg lehet</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>csak objektum lehet</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>csak tömb lehet</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>több mint %1 eleme van</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>ez nem mentett beállítások fájlja</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>csak ez a verzió ismert: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>„%1” kétszer szerepel itt</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>nagyobb 4 MiB-nál</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>objektumot kell tartalmaznia</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>%1. sor: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Nincs figyelve</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Lekérdezés…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Ismeretlen gép</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Nincs válasz</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Hibás jelszó</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Nem értelmezhető</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Figyelmeztetés</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Lehűlés</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Bemelegedés</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilátor</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lámpa</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Hőmérséklet</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Fedél</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Szűrő</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Egyéb</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (figyelmeztetés)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 óra</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Az elvárt szerint</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n eltér</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 mp-e</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 perce</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 órája</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>ismeretlen</translation>
    </message>
    <message>
        <source>off</source>
        <translation>ki</translation>
    </message>
    <message>
        <source>on</source>
        <translation>be</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Tápellátás</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Forrás</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Üres kép</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Némítás</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Kimerevítés</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Eltérő beállítások</translation>
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
        <translation>Keresés a háló&amp;zaton…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>Táblázat &amp;importálása…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>Táblázat &amp;exportálása…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Projektorok keresése</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Megtalált projektorok hozzáadása</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Táblázat importálása</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Táblázatok (*.csv *.tsv *.txt);;Minden fájl (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>%1. sor: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Táblázat exportálása</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Táblázatok (*.csv);;Minden fájl (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n projektor hozzáadva</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n már ismert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n sor nem lett átvéve</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Nem használt oszlopok: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>&amp;Bekapcsolás</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>&amp;Kikapcsolás</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>&amp;Tápellátás</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>B&amp;emenet</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>&amp;Üres kép</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Üres kép bekapcsolása</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Bekapcsolja az üres képet %n projektoron?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Kép megjelenítése</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Megjeleníti a képet %n projektoron?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>&amp;Némítás</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Hang némítása</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Elnémítja %n projektor hangját?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Némítás megszüntetése</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Megszünteti %n projektor némítását?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>Kime&amp;revítés</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Kép kimerevítése</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Kimerevíti %n projektor képét?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Kimerevítés megszüntetése</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Megszünteti %n projektor képének kimerevítését?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Bekapcsolás</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Kikapcsolás</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>Bekapcsol %n projektort?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>Kikapcsol %n projektort?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Bemenet: %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Kiválasztja ezt a bemenetet %n projektoron: %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Nincsenek ismert bemenetek</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>nem írható: %1: %2</translation>
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
        <translation>Eredmény</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektorok</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Folyamat</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Sikertelenek újra</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>Összes &amp;visszavonása</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Leállítás</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>A &amp;többi elvégzése</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>a modellben nincs meg</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>kész: %1 / %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Visszavonás: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>folyamatban…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>kész</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>elfogadva, még folyamatban</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>elutasítva</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>nincs válasz</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>leállítva</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>kész, %n beállítás nem volt beolvasható</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n még folyamatban</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n sikertelen</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>nem tudni, be volt-e kapcsolva</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n leállítva</numerusform>
        </translation>
    </message>
</context>
</TS>
