<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>valitsinta --%1 ei ole</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>valitsimelle --%1 ei anneta arvoa</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>valitsin --%1 vaatii arvon %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>komennolla %1 ei ole valitsinta %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: ”%2” ei kelpaa</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>komento puuttuu; --help luettelee komennot</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>komentoa ”%1” ei ole; --help luettelee komennot</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>komennolla %1 ei ole tällaista --format-muotoa</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>käyttö: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>tiedostonimi on tyhjä</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>”%1” ei ole mikään näistä: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>”%1” ei ole askel kuten +1 tai -1, ja PJLinkillä voi vain askeltaa</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>”%1” on enemmän kuin %n askel</numerusform>
            <numerusform>”%1” on enemmän kuin %n askelta</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>”%1” arvosta %2 ei osu mihinkään näistä: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>”%1” on enemmän kuin %n askeleen päässä arvosta %2</numerusform>
            <numerusform>”%1” on enemmän kuin %n askeleen päässä arvosta %2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>luettele projektorit</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Tulostaa valittujen tai kaikkien projektorien nimen, mallin, sivujoukon, sarjakoodin, yhteyden ja tunnisteet.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>luettele mallit</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Tulostaa profiilitiedoston mallit sekä kunkin mallin projektorien ja asetusten määrän.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>luettele asetukset ja niiden mahdolliset arvot</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Tulostaa mallin asetukset: avaimen, välilehden, otsikon ja mahdolliset arvot. Projektorilta ei kysytä mitään.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>selitä asetus</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Kertoo, mikä asetus on: sen välilehden ja otsikon, mahdolliset arvot koodeineen, mallit, joissa se on, sekä voiko sen asettaa, nollata, tallentaa ja palauttaa.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>tulosta nykyiset arvot</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Lukee projektorien asetukset ja tulostaa ne; ilman avainta kaikki asetukset.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>muuta asetuksia</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Muuttaa asetukset annetussa järjestyksessä, lukee jokaisen takaisin ja tulostaa arvon ennen ja jälkeen. Kaikki avaimet ja arvot tarkistetaan ensin kaikille projektoreille; jos arvo on väärä yhdellekin, mitään ei lähetetä millekään. Avain, jota projektorilla ei ole, ilmoitetaan, eikä se estä muita.
KEY=VALUE asettaa arvon; KEY+=N ja KEY-=N askeltavat nykyisestä arvosta. Muodossa KEY VALUE +3 ja -3 ovat askelia ja =-3 on nollaa pienempi luku. ”acctl undo” palauttaa aiemman tilan, paitsi virran tilaa ja toimintojen tuloksia.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>palauta asetukset projektorin oletusarvoihin</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>tulosta virran tila, tulo, virheet ja käyttötunnit</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Tulostaa valittujen tai kaikkien projektorien tilasivun.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>tallenna asetukset tiedostoihin</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Tallentaa kaikki asetukset, jotka voi palauttaa: yhden projektorin asetukset tiedostoon FILE (”-” on vakiotuloste) tai useiden kansioon, kunkin omaan tiedostoonsa. Tiedostoa, joka ei ole asetustiedosto, ei korvata ilman valitsinta --force.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>vertaa tallennettuihin asetuksiin</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>palauta tallennetut asetukset</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>tulosta arvot ja jokainen muutos</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Tulostaa arvot ja sen jälkeen jokaisen muutoksen, kunnes ajo keskeytetään, kukaan ei enää lue tulostetta tai kaikilla projektoreilla on valitsimen --until arvo. Vaienneeseen projektoriin yritetään yhteyttä yhä uudelleen.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>etsi projektoreita verkosta</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Kysyy jokaiselta verkon PJLink-projektorilta tai annetuista osoitteista, mikä se on. ADDRESSES on esimerkiksi 192.0.2.7, 192.0.2.0/24 tai 192.0.2.10-40. Mitään ei tallenneta, ellei --add anna profiilitiedostoa.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>tuo projektorit taulukosta</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Lisää pilkuin erotettujen arvojen rivit (”-” on vakiosyöte) profiilitiedostoon, jonka --profiles tai ACCTL_PROFILES antaa, ja muuttaa ne, jotka siinä jo ovat.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>tulosta projektorit taulukkona</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Tulostaa valitut tai kaikki projektorit pilkuin erotettuina arvoina ilman salasanoja.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>selitä komento</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>jokin merkeistä = != &lt; &lt;= &gt; &gt;= puuttuu</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>arvo puuttuu</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>missään mallissa ei ole tällaista asetusta</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>vain luvut voivat olla pienempiä tai suurempia</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>missään mallissa ei ole tällaista asetusta; acctl settings luettelee kaikki avaimet</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>missään mallissa ei ole tällaista asetusta; tarkoititko %1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1–%2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1–%2, näytetään muodossa %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>lähde %1: tätä ei säilytetä erikseen kullekin lähteelle</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>lähdettä %1 ei ole; lähteitä on %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>arvo %1 ei ole mahdollinen; mahdollisia ovat %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>teksti ”%1” ei ole arvon %2 teksti, joka on ”%3”; muuta molemmat tai poista teksti</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Lukee, muuttaa, tallentaa ja palauttaa projektorien asetuksia, jotka näkyvät Lisäasetukset-ikkunassa. Projektorit ovat profiilitiedostossa.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P valitsee projektorit: nimi, malline kuten &apos;Lecture*&apos;, @TAG tai model=PATTERN. Useat erotetaan pilkuin, ja !P jättää projektoreita pois. KEY on asetuksen avain, malline kuten &apos;picture.*&apos; tai lyhyt nimi kuten brightness, input tai power, joka on sama kaikissa malleissa. VALUE on luku sellaisena kuin ikkuna sen näyttää, luettelon vaihtoehdon teksti millä tahansa ikkunan kielellä tai sen koodi.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Valmis. Myös silloin, kun valmiustilassa oleva projektori ei voinut kertoa kaikkea tai hyväksyi muutoksen, joka ei ole vielä voimassa.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Jotain hylättiin, projektorilta puuttuu nimetty asetus, tai tiedostoa tai tulostetta ei voitu lukea tai kirjoittaa.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Väärä käyttö: mitään ei lähetetty millekään projektorille.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Projektori ei vastannut tai ei kertonut tulojaan, tai toinen acctl-ajo käytti sitä.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Keskeytetty; raportti kertoo, mitä ehdittiin tehdä.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Käyttö: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valitsimet</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Komennot</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Kaikkien komentojen valitsimet; ”acctl help COMMAND” luettelee komennon omat valitsimet ja esimerkkejä</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Esimerkkejä</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Paluuarvot</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>luku</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>valinta</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>tila</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>toiminto</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>lyhyt nimi: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>välilehti</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>otsikko</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>laji</translation>
    </message>
    <message>
        <source>values</source>
        <translation>arvot</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>ne, jotka projektori ilmoittaa</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>komennot</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>säilytetään</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>kullekin tulolähteelle</translation>
    </message>
    <message>
        <source>models</source>
        <translation>mallit</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n asetus</numerusform>
            <numerusform>%n asetusta</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>profiileja ei ole paikassa %1; anna tiedosto valitsimella --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>lue projektorit tiedostosta FILE</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>vain projektorit, joiden tila on tämä, kuten &apos;power=on lamp-hours&gt;1500&apos;</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>projektori on osoitteessa ADDRESS; P antaa vain sen mallin</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>etsittävien projektorien portti; oletus 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>PJLink-salasana; tämän koneen muut käyttäjät voivat nähdä sen tässä</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>salasana on tiedoston FILE ensimmäinen rivi</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>tuloste: text, json, jsonl (rivi kutakin arvoa tai projektoria kohti), tsv tai value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>sama kuin --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>vain nimet tai avaimet, yksi riviä kohti</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>vain asetukset, joita get, set, reset tai watch voi käyttää</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>vain avaimet, jotka vastaavat mallinetta GLOB; voi antaa useasti</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>ota KEY=VALUE-rivit tiedostosta FILE (”-” on vakiosyöte)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>tallenna kukin projektori omaan tiedostoonsa kansioon DIR</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>lisää löydetyt profiilitiedostoon FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>tulosta, mikä muuttuisi, mutta älä muuta mitään</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>odota, kunnes tila on saavutettu, enintään TIME, kuten 90s tai 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>lopeta, kun jokaisella projektorilla on tämä arvo</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>paluuarvo on 1, jos jokin poikkeaa, ja 2, jos jotain ei voitu verrata</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>ohita tiedoston FILE virheet sen sijaan, ettei mitään lähetetä</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: myös toisen projektorin kumoamistiedosto; save: korvaa mikä tahansa tiedosto</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>luettele ajot, jotka voi kumota</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>kumoamistiedostojen kansio</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>poista yli N päivää vanhat kumoamistiedostot; oletus 30, 0 säilyttää kaikki</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>projektoreita yhtä aikaa, 1–1024; oletus 512 luettaessa ja 64 muutettaessa</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>yhden vastauksen odotusaika; oletus 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>yritä vastaamatonta projektoria vielä N kertaa; oletus 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>älä aloita uusia projektoreita ensimmäisen virheen jälkeen</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>kahden luvun väli; oletus 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>tekstien kieli, kuten de tai zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>tämä teksti; komennon kanssa sen oma ohje</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>versio</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>ei voi kirjoittaa: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>”%1” ei kelpaa</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>”=” puuttuu</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>asetusta %1 ei ole</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>tiedostoa %1 ei voi lukea: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>sen ensimmäinen rivi on tyhjä</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Projektorin %1 salasana: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simuloitu)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>%1 lisätty, %2 siirretty, %3 tunnettiin jo</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>vaatii salasanan</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>anna profiilitiedosto valitsimella --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>käyttämättömät sarakkeet: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>%1 lisätty, %2 tunnettiin jo, %3 virheellistä</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: ”%2” ei ole muotoa KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: ei sisällä muotoa KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>tähän annetaan yksi projektori, nyt niitä on %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>kumottu</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>kumoamista ei voi merkitä tiedostoon %1: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>toinen acctl-ajo käsittelee sitä</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>ei aloitettu, koska toinen projektori epäonnistui</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>acctl simuloi itse, mitään pysyvää ei muutettu</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>keskeytetty; yllä kerrotaan, mitä ehdittiin tehdä</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>valmiustilassa, jätetty pois: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>lämpenee, jätetty pois: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>jäähtyy, jätetty pois: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>ohitettu, tämä projektori ei tarjoa: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n projektori</numerusform>
            <numerusform>%n projektoria</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n muutettu</numerusform>
            <numerusform>%n muutettu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n poikkeaa</numerusform>
            <numerusform>%n poikkeaa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n oli jo oikein</numerusform>
            <numerusform>%n oli jo oikein</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n ei vielä voimassa</numerusform>
            <numerusform>%n ei vielä voimassa</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>hyväksytty, ei vielä voimassa</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n hylätty</numerusform>
            <numerusform>%n hylätty</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n varattu</numerusform>
            <numerusform>%n varattu</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>projektori on varattu tai valmiustilassa</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n vahvistamatta</numerusform>
            <numerusform>%n vahvistamatta</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>ei vahvistettu, on voinut muuttua</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n tekemättä</numerusform>
            <numerusform>%n tekemättä</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>ohitettu, tässä mallissa ei ole sitä</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>ohitettu, tämä projektori ei tarjoa sitä</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>ohitettu, sitä ei voi palauttaa</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>ohitettu, arvo ei käy tälle mallille</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>pysähtyi arvoon %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>ei lähetetty, se on yli %n askeleen päässä</numerusform>
            <numerusform>ei lähetetty, se on yli %n askeleen päässä</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>hylätty, arvo on %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>sitä ei voi lukea nyt</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n vertaamatta</numerusform>
            <numerusform>%n vertaamatta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n ohitettu</numerusform>
            <numerusform>%n ohitettu</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>ei mitään tehtävää</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>ohitettu %n tiedostossa oleva asetus, jota PJLinkissä ei ole</numerusform>
            <numerusform>ohitettu %n tiedostossa olevaa asetusta, joita PJLinkissä ei ole</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; enempää ei lähetetty</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; mitään ei lähetetty</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: kumoaa projektorin %2 muutoksen; --force käyttää sitä projektoriin %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: tiedostossa ei ole tällaista asetusta</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: projektoria ”%2” ei ole</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: myös %2 koskee projektoria %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: kansiossa ei ole asetustiedostoja</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: sille ei ole tiedostoa kansiossa %2</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: ei ole asetustiedosto; --force korvaa sen</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: tällaista tiedostoa tai kansiota ei ole</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>anna projektorit, joihin tiedostoa käytetään</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>yksi tiedosto on vain yhdelle projektorille, nyt niitä on %1; anna kansio valitsimella -o</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>kansiota %1 ei voi luoda</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; voit kumota aiemman ajon antamalla sen nimen</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>kumottavaa ajoa ei ole</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>ajoa ”%1” ei ole; --list näyttää ajot</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: ei ole enää profiilitiedostossa</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>ei voi lukea nyt, jätetään pois</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>mitään ei voi lukea, eikä mitään kirjoitettu</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n asetus tallennettu: %1</numerusform>
            <numerusform>%n asetusta tallennettu: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>projektoria ”%1” ei ole; acctl list näyttää kaikki</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>hylätty, projektori on valmiustilassa</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>hylätty, projektori lämpenee</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>hylätty, projektori jäähtyy</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>hylätty, projektori on varattu</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>tätä ei voi kumota: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>pysähtyi, hyväksyttyjä askelia %1/%n</numerusform>
            <numerusform>pysähtyi, hyväksyttyjä askelia %1/%n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; hyväksyttyjä askelia %2/%n</numerusform>
            <numerusform>%1; hyväksyttyjä askelia %2/%n</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>hyväksytty, ei vielä voimassa, arvo on %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, on voinut muuttua, arvo on %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, on voinut muuttua</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>hylätty</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>ei toteutunut ajoissa, arvo on %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>ei toteutunut ajoissa</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: ei ole kumoamistiedoston rivi</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: ei ole mitään kumottavaa</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>tiedostoon %1 ei voi kirjoittaa: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>väärät yhteysasetukset</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>tuntematon isäntänimi</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>ei tavoitettavissa</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>yhteys katkesi</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>vastauksia ei ymmärretä</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>protokollan toinen versio</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>salasana puuttuu tai on väärä</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>ei vastausta</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>ei vastausta (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>tässä mallissa ei ole tällaista asetusta</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>ohitettu, ei PJLinkissä</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>ei voi lukea nyt</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>tämä projektori ei tarjoa sitä</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>ei luettu, projektori ei kertonut tulojaan</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>ei PJLinkissä</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>tätä ei voi lukea</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>tätä ei voi asettaa</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>tätä ei voi palauttaa</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>tätä ei voi nollata</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, projektori on valmiustilassa</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, projektori lämpenee</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, projektori jäähtyy</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>vastaa taas</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: ”%1” ei ole muotoa KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Tulostaa, mikä poikkeaa tiedostosta (”-” on vakiosyöte), isäntäohjelman esiasetuksesta tai kunkin projektorin omasta tiedostosta kansiossa.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Lukee projektorit, lähettää sen, mikä poikkeaa tiedostosta (”-” on vakiosyöte), isäntäohjelman esiasetuksesta tai kunkin projektorin omasta tiedostosta kansiossa, ja lukee sen takaisin. Korvattavat arvot tallennetaan ensin, jotta ”acctl undo” voi palauttaa ne. Keskeytyneen ajon voi toistaa milloin tahansa.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>aiempaa arvoa ei voitu lukea, eikä sitä voi palauttaa</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>aiempaa arvoa ei voitu lukea</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>tätä ei voi kumota</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Palauttaa asetukset projektorin omiin oletusarvoihin ja tulostaa ne sen jälkeen. ”acctl undo” palauttaa aiemman tilan. Tuntilaskurit nollataan vain täsmällisellä avaimella, koska nollausta ei voi kumota.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>kumoa viimeisin ajo, joka muutti asetuksia</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>ajo ei muuttanut yhtäkään näistä projektoreista</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Palauttaa arvot, jotka ”set”, ”reset” tai ”apply” korvasi ajossa. RUN on nimi, jonka ”acctl undo --list” tulostaa, tiedosto tai ”last”; ilman sitä kumotaan viimeisin ajo. Jos P tai --where annetaan, palautetaan vain nämä projektorit, ja ajon loppuosan voi kumota myöhemmin. Myös kumoamisen voi kumota sen nimellä.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>keskeytetty</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>hyväksytty, mutta ei vahvistettu: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>”%1” on aloitettava merkeillä / tai ~/</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>odotetaan toista ohjelmaa, joka muuttaa tiedostoa %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>K&amp;uittaa</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>Kuittaa k&amp;aikki</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Alkaen</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Hälytys</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Tila</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Hälytykset</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 ei vastaa</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: lampun käyttöaika %2/%3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n asetus poikkeaa tavoitteesta</numerusform>
            <numerusform>%1: %n asetusta poikkeaa tavoitteesta</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>kuitattu</translation>
    </message>
    <message>
        <source>open</source>
        <translation>avoin</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Näytä tämä ohje.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>Projektorit ovat tiedostossa &lt;tiedosto&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>tiedosto</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Valvo yhtä useista osuuksista: 2/5 on toinen viidestä.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>osuus</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Valvo vain projektoreita, joilla on &lt;tunniste&gt; tai jokin useista.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>tunniste</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Kysy jokaiselta projektorilta &lt;sekuntia&gt; sekunnin välein, vähintään 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekuntia</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Vertaa jokaista projektoria kerran päivässä sen tilannevedokseen kansiossa &lt;kansio&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>kansio</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Kuuntele projektorien tilailmoituksia osoitteessa &lt;osoite&gt;.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>osoite</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Tarjoa mittaustietoja osoitteessa &lt;osoite:portti&gt;; ”none”: ei missään.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>osoite:portti</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Kirjoita mittaustiedot 15 sekunnin välein tiedostoon &lt;tiedosto&gt; tekstitiedostojen kerääjää varten.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Lähetä viestit MQTT-välittäjälle &lt;isäntä:portti&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>isäntä:portti</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>MQTT:n versio, 3 (3.1.1) tai 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>versio</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>Välittäjän käyttäjä on tiedoston &lt;tiedosto&gt; ensimmäinen rivi.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>Välittäjän salasana on tiedoston &lt;tiedosto&gt; ensimmäinen rivi.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Salaa, ja luota järjestelmän luottamiin varmentajiin.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Salaa, ja luota tiedoston &lt;tiedosto&gt; varmentajiin.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>Tämän asiakkaan varmenne.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Varmenteen avain.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>Kaikkien aiheiden ensimmäinen taso.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>aihe</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>Tunnistusaiheiden ensimmäinen taso; ”none”: ei tunnistusta.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Ota haltuun sen sillan osuus, joka on ollut vaiti &lt;sekuntia&gt; sekuntia.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Asetukset, joita saa ohjata: avaimia tai mallineita pilkuin erotettuina; ”power” on virta. Ilman tätä ei saa ohjata mitään.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>avaimet</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Montako komentoa kukin projektori ottaa vastaan minuutissa.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Tunnistusviestien nimet ja tämän ohjelman ilmoitukset ovat kielellä &lt;nimi&gt;, kuten de tai zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nimi</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>”%1” ei ole aika %2 sekunnista vuorokauteen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>”%1” ei ole aihe</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>”%1” ei ole osuus kuten 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>”%1” ei ole numeerinen osoite ja portti</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>tiedostoa %1 ei voi lukea: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 on tyhjä</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 vaatii valitsimen --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>”%1” ei ole isäntä ja portti</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>”%1” ei ole 3 eikä 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file ja --key-file vaativat toisensa</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: ”%1” ei ole ohjattavissa oleva asetus</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>”%1” ei ole luku 1–%2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Valvoo projektoreita ja kertoo niistä mittaustietokannalle ja viestinvälittäjälle.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>odottamaton argumentti ”%1”</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>--profiles puuttuu</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>”%1” ei ole numeerinen osoite</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>”%1” ei ole kansio</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>kielelle ”%1” ei ole tekstejä</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>millään projektorilla ei ole tunnistetta ”%1”</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>Odottamaton ”=” kohdassa ”%1”.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 vaatii arvon.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Avaa todellisten tai simuloitujen projektorien asetusikkunat.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Näytä tämä ohje.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>Lue projektorit tiedostosta &lt;tiedosto&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>tiedosto</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>Avaa käynnistettäessä projektorin &lt;nimi&gt; ikkuna.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nimi</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>Valitsimen --open kanssa: valitse välilehti &lt;n&gt;, laskien nollasta.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>Tulosta projektorien taulukko.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>Valitsimen --open kanssa: tallenna kuva (PNG) ikkunasta ja lopeta.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Tallenna kuvat kaikenlaisten projektorien kaikista välilehdistä kansioon &lt;kansio&gt; ja lopeta.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>kansio</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Näytä tekstit kielellä &lt;nimi&gt;, kuten de tai zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: kielelle ”%1” ei ole tekstejä.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Odottamaton argumentti ”%1”.</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>Vain yhden valitsimista --list, --tour ja --open voi antaa.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 vaatii valitsimen --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: ”%1” ei ole luku.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Vain &amp;muutokset</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Vain &amp;virheet</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>Tallenna lo&amp;ki nimellä…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>&amp;Tyhjennä loki…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Komentoloki</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Jätä pois komennot, jotka vain lukevat</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Jätä pois komennot, jotka onnistuivat</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Kopi&amp;oi</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Suodata lokia</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Tallenna loki</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Taulukot (*.tsv);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Tyhjennä loki</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>Poistetaanko lokin %n merkintä?</numerusform>
            <numerusform>Poistetaanko lokin kaikki %n merkintää?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tyhjennä</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Projektori, asetus, komento tai tulos</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Kaikki projektorit</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Näytä komennot:</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projektori</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Komento</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Arvo</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Tulos</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>keskeytetty</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>ei vastausta</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>varattu</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>ei tarjolla</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>hylätty</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>ei vielä voimassa</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Asetus</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Edistyminen</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Kysy uudelleen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Ota käyttöön</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Luetaan asetuksia…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Keskeytä</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Eroja ei ole.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n projektori poikkeaa.</numerusform>
            <numerusform>%n projektoria poikkeaa.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n projektorissa on jo kaikki nämä asetukset.</numerusform>
            <numerusform>%n projektorissa on jo kaikki nämä asetukset.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n projektoria ei voitu lukea.</numerusform>
            <numerusform>%n projektoria ei voitu lukea.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n projektori ei ilmoita nyt kaikkia näitä asetuksia.</numerusform>
            <numerusform>%n projektoria ei ilmoita nyt kaikkia näitä asetuksia.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n projektori ohitettiin.</numerusform>
            <numerusform>%n projektoria ohitettiin.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>&amp;Yhteyden tyyppi</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Yh&amp;teys</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Osoite</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>Po&amp;rtti</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Salasana</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>Portin n&amp;umero</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Laite</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>&amp;Baudinopeus</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Kuten perheellä</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simuloitu</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Verkko</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Sarjaportti</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 ei ole osoite.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>T&amp;estaa yhteys</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Testin tulos</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Ei ole mitään, mihin yhdistää.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Sarjaliitäntää kokeillaan, kun sen ikkuna avataan.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Kysytään…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Projektori vastaa: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>lainausmerkkiä ei ole suljettu</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>teksti jatkuu sulkevan lainausmerkin jälkeen</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>enemmän kuin %1 solua</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>soluja on %1, mutta otsikkorivillä %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>enemmän kuin %1 riviä</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>otsikkoriviä ei ole</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>enemmän kuin %1 tavua</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>simuloitu</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Tiedot</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Tila:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Virta:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Lähde:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Ongelma:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Kuva ja ääni:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Lamppu:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Suodatin:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Asetukset:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>Vastannut:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Osuus lampun nimelliskäyttöajasta</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>Viimeaikaiset tapa&amp;htumat</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Viimeaikaiset tapahtumat</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Projektoria ei ole valittu</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>%n projektori valittu</numerusform>
            <numerusform>%n projektoria valittu</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>tyhjä kuva</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>mykistetty</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>pysäytetty</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>näkyvissä</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ei mitään</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>ei vielä mitään</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Asetus</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyt</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Erot</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Ensin muut lähteet ja tilat</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n asetus</numerusform>
            <numerusform>%n asetusta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n asetus ei koske tätä mallia</numerusform>
            <numerusform>%n asetusta ei koske tätä mallia</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n asetusta ei voi lukea nyt</numerusform>
            <numerusform>%n asetusta ei voi lukea nyt</numerusform>
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
        <translation>Ongelma: tuuletin</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Ongelma: lamppu</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Ongelma: lämpötila</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Ongelma: kansi</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Ongelma: suodatin</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Ongelma: muu</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Tavoitettavissa</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Virta</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>Valmiustila</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Päällä</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Jäähtyy</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Ei virhettä</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Kansi</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Tuuletin</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lamppu</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Lämpötila</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Ilmavirtaus</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Lampun käyttöaika</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Kylmyys</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Suodatin</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Suodattimen käyttöaika</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Muu (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Hylkää</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Luku epäonnistuu</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Viive</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Yhteys katkeaa</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>Lis&amp;ää vika</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Poi&amp;sta</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>T&amp;yhjennä</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Voimassa olevat viat</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>Vi&amp;rta</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>Virheti&amp;la</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>&amp;Komento</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>&amp;Vika</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>Viiv&amp;e</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>Vo&amp;imassa</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Projektoria ei ole valittu</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Projektorin %1 simulointi</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Projektorin %1 simuloidut viat</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Kaikki komennot</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Valitse tai kirjoita osa nimestä tai koodista</translation>
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
        <translation>%1 (mikä tahansa koodi)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n päällä</numerusform>
            <numerusform>%n päällä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n pois päältä</numerusform>
            <numerusform>%n pois päältä</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n projektorissa ongelmia</numerusform>
            <numerusform>%n projektorissa ongelmia</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n ei tavoitettavissa</numerusform>
            <numerusform>%n ei tavoitettavissa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n projektorissa hälytyksiä</numerusform>
            <numerusform>%n projektorissa hälytyksiä</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>vanhin vastaus %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n ilman valvontaa</numerusform>
            <numerusform>%n ilman valvontaa</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>hylätty</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>projektori on varattu tai valmiustilassa</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>projektorissa ei ole sitä</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>arvo ei käy tälle mallille</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>sitä ei voi asettaa</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>mallissa ei ole sitä</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>mallissa ei ole tällaista asetusta</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>sille ei ole tilannevedosta</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>ei vahvistettu, on voinut muuttua</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>kaikkea ei voitu lähettää</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>ei vastausta</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>ei tavoitettavissa</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>ei yhteyttä</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>väärät yhteysasetukset</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>tuntematon isäntänimi</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>yhteys katkesi</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>vastauksia ei ymmärretä</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>protokollan toinen versio</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>salasana puuttuu tai on väärä</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>projektori ei kerro nyt mitään asetuksistaan</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Ryhmät</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Kaikki</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Ongelmat</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Pois päältä</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Ei tavoitettavissa</translation>
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
        <translation>Projektorin ikkunassa</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Sarkain, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Seuraava välilehti</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Vaihto+Sarkain, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Edellinen välilehti</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Etsi asetus</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Pikanäppäimet</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tietoja</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Lisäasetukset %1&lt;/h3&gt;&lt;p&gt;Projektorien asetukset reaaliajassa: jokainen arvo luetaan projektorilta, ja jokainen muutos lähetetään heti.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>ohjausmerkki tekstissä</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>puolikas sijaismerkkipari tekstissä</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>yli %1 tavun teksti</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>enemmän kuin %1 tavua</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>yli %1 tasoa sisäkkäin</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>enemmän kuin %1 arvoa</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Kaikki nämä projektorit ovat simuloituja, ohjelman kokeilua varten.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Lisäasetukset: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Lisäasetukset</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Avaa asetukset</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>Avataanko %n ikkuna?</numerusform>
            <numerusform>Avataanko %n ikkunaa?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Hälytykset</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulointi</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Komentoloki</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Tiedosto</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Lo&amp;peta</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Muokkaa</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>Ohjelman &amp;asetukset…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Projektori</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>&amp;Avaa asetukset</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Avaa</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Pä&amp;ivitä</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Näytä</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Etsi</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulointi</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Komentoloki</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Hälytykset</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ohje</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Pikanäppäimet</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Tietoja</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Työkalut</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Tallennettu: %1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Perhe</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Malli</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>M&amp;allin kaikki kentät</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>&amp;Ikkunan tyyppi</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>Malli&amp;koodi</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ei mitään</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Lisäasetukset</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Lisäasetukset</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Projektorien asetukset</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Lue ja muuta projektorien asetuksia</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>projektori;videotykki;tykki;dataprojektori;kirkkaus;trapetsikorjaus;beamer;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Luettelo, joka näyttää satojen projektorien tilan ja muuttaa useita kerralla, sekä kullekin projektorille ikkuna, jossa jokaisella asetusryhmällä on oma välilehti. Jokainen arvo luetaan projektorilta reaaliajassa, ja jokainen muutos lähetetään heti. Loki näyttää jokaisen komennon ja sen tuloksen.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>Projektoreita voi simuloida ja antaa niille vikoja käsin.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>projektorin %1 ikkunaa ei voi luoda</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>kansioon %1 ei voi kirjoittaa</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Ohjelman asetukset</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Järjestelmän mukaan</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>never</source>
        <translation>ei koskaan</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Tuuletin, lamppu, lämpötila, kansi, suodatin</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>Tavoitteesta &amp;poikkeavat asetukset</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Ilmoita t&amp;yöpöydällä</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Hiljaista alkaen</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Hiljaista saakka</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Kieli (uudelleenkäynnistyksen jälkeen)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>Projektorien kysely&amp;väli</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Hälytykset</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>&amp;Lampun käyttöaika, osuus nimellisestä</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>Vastaamatta väh&amp;intään</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Hiljaiset tunnit</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Työpöydän mukaan</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Vaalea</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tumma</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>Vä&amp;rit</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(kahdesti sama aika: ei lainkaan)</translation>
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
        <translation>&amp;Esiasetukset</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Ota käyttöön valituissa</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Esiasetuksia ei vielä ole</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Tallenna esiasetukseksi…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>Ta&amp;voite</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Ei mitään</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>Ve&amp;rtaa tavoitteeseen</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>&amp;Palauta tavoitearvot</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Tallenna esiasetukseksi</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Tallennettu esiasetukseksi %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Esiasetukset</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Esiasetus %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Tavoite</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Millekään valituista projektoreista ei ole annettu tavoitteeksi esiasetusta.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Palauta</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Palautetaanko %n projektorin asetukset?</numerusform>
            <numerusform>Palautetaanko %n projektorin asetukset?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Luetaan projektorin %1 asetuksia…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Esiasetus</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Tavoitearvot</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Tavoite</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>&amp;Hallitse esiasetuksia…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Kaikki: %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Tallenna esiasetukseksi</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Asetus</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Arvo</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Esiasetuksen asetukset</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>Esiasetuksen &amp;nimi</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Kaikki</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Valitse kaikki asetukset</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Tämä &amp;sivu</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Valitse vain valitun sivun asetukset</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Ei mitään</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Poista kaikkien asetusten valinta</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Tallenna</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Esiasetuksen nimi ei kelpaa: siinä ei saa olla vinoviivoja eikä alussa pistettä.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n asetus valittu.</numerusform>
            <numerusform>%n asetusta valittu.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Esiasetus %1 korvataan.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Nimeä esiasetus uudelleen</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Poista esiasetus</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>kansiota %1 ei voi luoda</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Esiasetukset</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Asetus</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Arvo</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Esiasetuksen asetukset</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Nimeä uudelleen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Poista</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Esiasetuksia ei vielä ole</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Tavoitteena projektoreilla: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Esiasetuksen nimi ei kelpaa: siinä ei saa olla vinoviivoja eikä alussa pistettä.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Esiasetus %1 on jo olemassa.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>Poistetaanko esiasetus %1?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Poista</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>Li&amp;sää…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>M&amp;uokkaa…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>M&amp;onista…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Poista…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>Tu&amp;nnisteet…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lisää</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Muokkaa</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Monista</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Poista projektori</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Poista projektoreita</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>Poistetaanko ”%1” tiedostosta %2?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>Poistetaanko %n projektori tiedostosta %1?</numerusform>
            <numerusform>Poistetaanko %n projektoria tiedostosta %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tunnisteet</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Tunnisteet %n projektorille, pilkuin erotettuina;
miinus edessä poistaa tunnisteen:</numerusform>
            <numerusform>Tunnisteet %n projektorille, pilkuin erotettuina;
miinus edessä poistaa tunnisteen:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>”%1” ei ole MAC-osoite</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>”%1” ei ole yhteyslaji</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>”%1” on toisen projektorin nimi, jonka tunnus on %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>”%1” ei ole tuntimäärä</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>”%1” on toisen projektorin nimi</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>otsikkorivillä ei ole saraketta ”name”</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>Toinen ohjelma on muuttanut tiedostoa %1. Lataa se uudelleen (F5) ja yritä sitten uudestaan.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nimi</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Lisää projektori</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Muokkaa projektoria</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Monista projektori</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Täytettävä vielä: %1</translation>
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
        <translation>sarjaportti %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>sisältää %1 perhettä; enintään %2 on mahdollista</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>kulkee yli %1 perheen kautta</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>tekee perheestä ”%1” itsensä kaltaisen</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>perhettä ”%1” ei ole</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>”%1” puuttuu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>”%1” on jo kohdan projectors[%3] %2</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>tiedostossa on oltava objekti</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>”projectors” puuttuu</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>projektoria ei ole</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>esiintyy tässä kahdesti</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>profiileja %1 ei voi lukea: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>ei ole tavallinen tiedosto</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>ei ole alueen nimi eikä luku 0–%1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>on annettava nimellä ”%1”</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>on oltava [vähimmäisarvo, enimmäisarvo] tai null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>vähimmäisarvo on suurempi kuin enimmäisarvo</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>tuntematon avain; tunnetut ovat %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>on oltava objekti</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>on oltava taulukko</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>sisältää %1 kohtaa; enintään %2 on mahdollista</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>on oltava teksti, joka ei ole tyhjä</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>on pidempi kuin %1 tavua</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>on oltava kokonaisluku</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>on %1; sen on oltava %2–%3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>on oltava luku, teksti tai objekti, jossa on ”value” ja ”name”</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>on oltava polku, joka alkaa merkillä /</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>ei ole isäntänimi eikä IP-osoite</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>on oltava joko ”network” tai ”serial”</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>on oltava simulated, network, serial tai pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>vaatii %1-yhteyden</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>asetusta ”%1” ei ole</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;Avaa profiilit…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Lataa uudelleen</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>Tallenna profiilit &amp;nimellä…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Avaa profiilit</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profiilit (*.json);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Lataa uudelleen</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Tallenna profiilit nimellä</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Vain luettava tiedosto</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>Tiedostoa %1 ei voi muuttaa. Tallenna profiilit ensin toiseen tiedostoon.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Tallenna profiilit nimellä…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>Tähänastisia muutoksia ei voi enää kumota.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Kumoa</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Tee uu&amp;delleen</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>Tätä ei voitu tehdä; mitään ei muutettu.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>toinen ohjelma muuttaa tiedostoa %1; yritä uudelleen</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>profiileja ei ole paikassa %1; anna tiedosto valitsimella --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Malli</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tyyppi</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Koodi</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Yhteys</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n kuva tallennettu kansioon %2 (projektorilajeja %1)</numerusform>
            <numerusform>%n kuvaa tallennettu kansioon %2 (projektorilajeja %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: projektoria ”%1” ei ole; --list luettelee kaikki.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: välilehteä %1 ei ole; projektorilla ”%2” on välilehdet 0–%3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>näyttöä ei ole; käytä ilman sitä valitsinta --list, --tour tai --screenshot.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Tila</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Virta</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Lähde</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lamppu</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Ongelma</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Malli</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Paikka</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Viimeisin vastaus</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Osoite</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · avoinna</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Etsi nimeä, mallia, paikkaa, osoitetta, välilehteä tai asetusta</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Etsi projektoreita</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektorit</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Mitään ei löytynyt</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n löytyi</numerusform>
            <numerusform>%n löytyi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Asema</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Kansio</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Käyttö: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[valitsimet]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Valitsimet:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Näytä versiotiedot.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Tuntematon valitsin ”%1”.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Tuntemattomat valitsimet: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Valitsin ”%1” vaatii arvon.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Odottamaton arvo valitsimen ”%1” jälkeen.</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>”%1” ei ole IP-osoite eikä osoitealue</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>enemmän kuin %1 osoitetta</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Etsi</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Etsi projektoreita</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>tämän tietokoneen verkot</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Esimerkiksi 192.0.2.0/24 tai 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Malli</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Osoite</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Huomautus</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Löytyneet projektorit</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Osoitteet</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Salasana</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>&amp;Lisää valitut</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>tunnetaan jo</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>vaatii salasanan</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n löytyi</numerusform>
            <numerusform>%n löytyi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n löytyi, %1/%2 osoitetta kysytty…</numerusform>
            <numerusform>%n löytyi, %1/%2 osoitetta kysytty…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>Ta&amp;llenna asetukset…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>Vertaa tie&amp;dostoon…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>Ota asetukset &amp;käyttöön…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Tallenna asetukset</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Tallenna asetukset kansioon</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Asetukset (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Luetaan asetuksia…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Avaa asetukset</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Asetukset tallennettu: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>%n projektorin asetukset tallennettu: %1.</numerusform>
            <numerusform>%n projektorin asetukset tallennettu: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n asetusta ei voitu lukea.</numerusform>
            <numerusform>%n asetusta ei voitu lukea.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Ota asetukset käyttöön</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Vertaa asetuksia</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tiedosto</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>Aiemmat arvot ovat tallessa: %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>tiedostoa %1 ei voi lukea: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>vakiosyöte</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 esiintyy tässä kahdesti</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: porttia ei saada käyttöön</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>projektoria ”%1” ei ole</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: projektorit luetaan tiedostosta %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 on jo olemassa, eikä tämä ohjelma ole kirjoittanut sitä</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>”%1” ei ole portti.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>”%1” ei ole luku %2–%3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>”%1” ei ole enintään tunnin pituinen aika.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Näytä tämä ohje.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>Tarjoa tiedoston &lt;tiedosto&gt; projektorit.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>tiedosto</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Tarjoa vain projektori &lt;nimi&gt;; voi antaa useasti.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nimi</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Kuuntele osoitteessa &lt;osoite&gt; eikä osoitteessa 127.0.0.1; valitsimen --fleet kanssa ensimmäisen projektorin osoite eikä 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>osoite</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>Ensimmäinen projektori on portissa &lt;n&gt;, muut sitä seuraavissa; 0 ottaa mitkä tahansa vapaat portit, kuten ilman tätä valitsinta. Valitsimen --fleet kanssa &lt;n&gt; on jokaisen projektorin portti omalle protokollallemme ja seuraava portti PJLinkille.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink kysyy salasanaa &lt;teksti&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>teksti</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Tarjoa jokainen projektori myös pseudopäätteessä.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Aloita viasta: %1. Osalle projektoreista: &apos;silent 5%&apos;. Voi antaa useasti.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>vika</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Kaikki satunnainen riippuu luvusta &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Kuuntele vikoja silmukkaosoitteen portissa &lt;n&gt;, yksi rivillä: projektorin numero yhdestä alkaen tai * ja vika.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Kirjoita tiedostoon &lt;tiedosto&gt; profiilit, joilla isäntäohjelma löytää tarjotut projektorit.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>Tarjoa &lt;n&gt; profiilien mukaan tehtyä projektoria, jokainen omassa silmukkaosoitteessaan.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Valitsimen --fleet kanssa: mitä --write-profiles käyttää; pjlink, network tai mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>tapa</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Valitsimen --fleet kanssa: sekunteja, kunnes projektori on päällä.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekuntia</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Valitsimen --fleet kanssa: sekunteja, kunnes projektori on valmiustilassa.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Valitsimen --fleet kanssa: itsestään tapahtuvien tilamuutosten määrä sekunnissa.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Valitsimen --fleet kanssa: lähetä PJLinkin tilailmoitukset tähän osoitteeseen.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>osoite:portti</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Valitsimen --fleet kanssa: kirjoita lopuksi tiedostoon &lt;tiedosto&gt;, kuinka usein kultakin projektorilta kysyttiin.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Ohje ja virheet ovat kielellä &lt;nimi&gt;, kuten de tai zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Tarjoaa simuloituja projektoreita TCP:n, PJLinkin ja pseudopäätteiden kautta. Tulostaa osoitteen riviä kohti ja sitten ”ready”.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Odottamaton argumentti ”%1”.</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 vaatii valitsimen --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>”%1” ei ole osoite.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: on pidempi kuin %1 tavua.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: ”%1” ei ole mikään näistä: %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet ei käytä sarjaliitäntöjä.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>”%1” ei ole IPv4-silmukkaosoite.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>Osoitteesta ”%1” alkaen ei ole tarpeeksi osoitteita.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>Portin ”%1” jälkeen ei jää porttia PJLinkille.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>”%1” ei ole IPv4-silmukkaosoite ja portti.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>”%1” ei ole pjlink, network eikä mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>tästä puuttuu kokonaisluku</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>on oltava kokonaisluku %1–%2, mutta on %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>on oltava tekstirivi</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>on oltava objekti</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>on oltava taulukko</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>sisältää enemmän kuin %1 kohtaa</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>tämä ei ole tallennettujen asetusten tiedosto</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>vain versio %1 tunnetaan</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>”%1” esiintyy tässä kahdesti</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>on suurempi kuin 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>sisällön on oltava objekti</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>rivi %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Ei valvota</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Kysytään…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Tuntematon isäntä</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Ei vastausta</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Väärä salasana</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Ei ymmärretty</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Virhe</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varoitus</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Kunnossa</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Valmiustila</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Päällä</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Jäähtyy</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Lämpenee</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Tuuletin</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lamppu</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Lämpötila</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Kansi</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Suodatin</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Muu</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (varoitus)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 t</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Tavoitteen mukaiset</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n poikkeaa</numerusform>
            <numerusform>%n poikkeaa</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 s sitten</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min sitten</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 t sitten</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>tuntematon</translation>
    </message>
    <message>
        <source>off</source>
        <translation>pois</translation>
    </message>
    <message>
        <source>on</source>
        <translation>päällä</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Tila</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Virta</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Lähde</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Tyhjä kuva</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mykistys</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Kuvan pysäytys</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Poikkeavat asetukset</translation>
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
        <translation>Etsi &amp;verkosta…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>&amp;Tuo taulukko…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>Vie taulukk&amp;o…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Etsi projektoreita</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Lisää löytyneet projektorit</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Tuo taulukko</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Taulukot (*.csv *.tsv *.txt);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Rivi %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Vie taulukko</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Taulukot (*.csv);;Kaikki tiedostot (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n projektori lisätty</numerusform>
            <numerusform>%n projektoria lisätty</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n tunnettiin jo</numerusform>
            <numerusform>%n tunnettiin jo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n rivi jätettiin pois</numerusform>
            <numerusform>%n riviä jätettiin pois</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Käyttämättömät sarakkeet: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>&amp;Käynnistä</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>&amp;Sammuta</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>&amp;Virta</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Tulo</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>Ty&amp;hjä kuva</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Tyhjennä kuva</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Tyhjennetäänkö %n projektorin kuva?</numerusform>
            <numerusform>Tyhjennetäänkö %n projektorin kuva?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Näytä kuva</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Näytetäänkö %n projektorin kuva?</numerusform>
            <numerusform>Näytetäänkö %n projektorin kuva?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>&amp;Mykistys</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Mykistä ääni</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Mykistetäänkö %n projektorin ääni?</numerusform>
            <numerusform>Mykistetäänkö %n projektorin ääni?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Poista äänen mykistys</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Poistetaanko %n projektorin äänen mykistys?</numerusform>
            <numerusform>Poistetaanko %n projektorin äänen mykistys?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>Kuvan pysä&amp;ytys</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Pysäytä kuva</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Pysäytetäänkö %n projektorin kuva?</numerusform>
            <numerusform>Pysäytetäänkö %n projektorin kuva?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Vapauta kuva</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Vapautetaanko %n projektorin kuva?</numerusform>
            <numerusform>Vapautetaanko %n projektorin kuva?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Käynnistä</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Sammuta</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>Käynnistetäänkö %n projektori?</numerusform>
            <numerusform>Käynnistetäänkö %n projektoria?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>Sammutetaanko %n projektori?</numerusform>
            <numerusform>Sammutetaanko %n projektoria?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Tulo %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Valitaanko tulo %1 %n projektorille?</numerusform>
            <numerusform>Valitaanko tulo %1 %n projektorille?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Tuloja ei tunneta</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>tiedostoon %1 ei voi kirjoittaa: %2</translation>
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
        <translation>Projektori</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Tulos</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektorit</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Edistyminen</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Yritä epäonnistuneita uudelleen</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>&amp;Kumoa kaikki</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Keskeytä</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>Tee &amp;loput</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>mallissa ei ole sitä</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%1/%n valmis</numerusform>
            <numerusform>%1/%n valmis</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Kumoa: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>käsitellään…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>valmis</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>hyväksytty, vielä kesken</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>hylätty</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>ei vastausta</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>keskeytetty</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>valmis, %n asetusta ei voitu lukea</numerusform>
            <numerusform>valmis, %n asetusta ei voitu lukea</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n vielä kesken</numerusform>
            <numerusform>%n vielä kesken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n epäonnistui</numerusform>
            <numerusform>%n epäonnistui</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>ei tiedetä, oliko se päällä</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n keskeytetty</numerusform>
            <numerusform>%n keskeytetty</numerusform>
        </translation>
    </message>
</context>
</TS>
