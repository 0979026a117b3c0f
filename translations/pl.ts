<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>nie ma opcji --%1</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>opcja --%1 nie przyjmuje wartości</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>po --%1 trzeba podać %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>polecenie %1 nie przyjmuje %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: wartość „%2” jest niedozwolona</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>brak polecenia; listę wypisuje --help</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>nie ma polecenia „%1”; listę wypisuje --help</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>polecenie %1 nie ma takiego --format</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>użycie: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>nazwa pliku jest pusta</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>„%1” nie jest jedną z wartości: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>„%1” nie jest krokiem takim jak +1 lub -1, a przez PJLink można zmieniać tylko krokami</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>„%1” to więcej niż %n krok</numerusform>
            <numerusform>„%1” to więcej niż %n kroki</numerusform>
            <numerusform>„%1” to więcej niż %n kroków</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>„%1” od %2 nie daje żadnej z wartości: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>„%1” jest dalej niż %n krok od %2</numerusform>
            <numerusform>„%1” jest dalej niż %n kroki od %2</numerusform>
            <numerusform>„%1” jest dalej niż %n kroków od %2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>wypisuje listę projektorów</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Wypisuje nazwę, model, zestaw stron, kod serii, połączenie i tagi podanych lub wszystkich projektorów.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>wypisuje listę modeli</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Wypisuje modele z pliku profili, a przy każdym liczbę projektorów i ustawień.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>wypisuje ustawienia i ich wartości</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Wypisuje ustawienia modelu: klucz, kartę, nazwę i możliwe wartości. Projektor nie jest odpytywany.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>objaśnia ustawienie</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Objaśnia ustawienie: kartę i nazwę, możliwe wartości z kodami, modele, które je mają, oraz czy można je zmienić, zresetować, zapisać i przywrócić.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>wypisuje bieżące wartości</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Odczytuje ustawienia z projektorów i wypisuje je; bez klucza – wszystkie.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>zmienia ustawienia</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Zmienia ustawienia w podanej kolejności, odczytuje każde ponownie i wypisuje wartość przed zmianą i po niej. Najpierw sprawdzane są wszystkie klucze i wartości dla wszystkich projektorów; jeśli wartość jest zła choćby dla jednego, nic nie jest wysyłane do żadnego. Klucz, którego projektor nie ma, jest zgłaszany i nie wstrzymuje pozostałych.
KEY=VALUE ustawia wartość; KEY+=N i KEY-=N przesuwają bieżącą wartość. W zapisie KEY VALUE wartości +3 i -3 są krokami, a =-3 jest liczbą ujemną. „acctl undo” przywraca poprzedni stan, z wyjątkiem zasilania i skutków działań.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>resetuje ustawienia do standardowych wartości projektora</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>wypisuje zasilanie, wejście, błędy i godziny</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Wypisuje stronę stanu podanych lub wszystkich projektorów.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>zapisuje ustawienia w plikach</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Zapisuje wszystkie ustawienia, które można przywrócić: z jednego projektora w FILE („-” to standardowe wyjście), a z dowolnej liczby projektorów w folderze, każdy w osobnym pliku. Plik, który nie jest plikiem ustawień, nie zostanie zastąpiony bez --force.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>porównuje z zapisanymi ustawieniami</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>przywraca zapisane ustawienia</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>wypisuje wartości i każdą zmianę</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Wypisuje wartości, a potem każdą zmianę. Kończy pracę po przerwaniu, gdy nikt już nie odczytuje wyjścia lub gdy wszystkie projektory mają wartość z --until. Projektor, który zamilknie, jest odpytywany wciąż od nowa.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>szuka projektorów w sieci</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Odpytuje wszystkie projektory PJLink w sieci albo pod podanymi adresami. ADDRESSES to na przykład 192.0.2.7, 192.0.2.0/24 lub 192.0.2.10-40. Nic nie jest zapisywane, jeśli --add nie wskazuje pliku profili.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>pobiera projektory z tabeli</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Dodaje wiersze wartości rozdzielanych przecinkami („-” to standardowe wejście) do pliku profili wskazanego przez --profiles lub ACCTL_PROFILES i zmienia te, które już w nim są.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>wypisuje projektory jako tabelę</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Wypisuje podane lub wszystkie projektory jako wartości rozdzielane przecinkami, bez haseł.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>objaśnia polecenie</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>brak jednego ze znaków = != &lt; &lt;= &gt; &gt;=</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>brak wartości</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>żaden model nie ma takiego ustawienia</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>tylko liczby mogą być mniejsze lub większe</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>żaden model nie ma takiego ustawienia; wszystkie klucze wypisuje acctl settings</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>żaden model nie ma takiego ustawienia; czy chodziło o %1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>od %1 do %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>od %1 do %2, wyświetlane jako %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>źródło %1: ta wartość nie jest przechowywana osobno dla źródeł</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>źródło %1 nie istnieje; liczba źródeł: %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>wartość %1 jest niedozwolona; możliwe są: %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>tekst „%1” nie odpowiada wartości %2, której tekst to „%3”; zmień oba albo usuń tekst</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Odczytuje, zmienia, zapisuje i przywraca ustawienia projektorów, które pokazuje okno „Sterowanie zaawansowane”. Projektory pochodzą z pliku profili.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P wybiera projektory: nazwa, wzorzec taki jak „Lecture*”, @TAG lub model=PATTERN. Kilka warunków rozdziela się przecinkami, a !P pomija projektory. KEY to klucz ustawienia, wzorzec taki jak „picture.*” lub krótka nazwa, na przykład brightness, input czy power, jednakowa we wszystkich modelach. VALUE to liczba taka, jaką pokazuje okno, tekst pozycji w dowolnym języku okna lub jej kod.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Wykonano. Także wtedy, gdy projektor w gotowości nie mógł zgłosić wszystkiego lub przyjął zmianę, która jeszcze nie działa.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Coś zostało odrzucone, projektor nie ma podanego ustawienia albo nie udało się odczytać lub zapisać pliku bądź wyjścia.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Błędne użycie: do żadnego projektora nic nie wysłano.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Projektor nie odpowiedział, nie zgłosił swoich wejść albo używało go inne wykonanie acctl.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Przerwano; raport podaje, co zostało wykonane.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Użycie: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Polecenia</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Opcje wszystkich poleceń; „acctl help COMMAND” wypisuje opcje polecenia wraz z przykładami</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Przykłady</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Kody zakończenia</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>liczba</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>wybór</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>stan</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>działanie</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>krótka nazwa: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>karta</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>nazwa</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>rodzaj</translation>
    </message>
    <message>
        <source>values</source>
        <translation>wartości</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>te, które zgłasza projektor</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>polecenia</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>przechowywane</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>dla każdego źródła wejściowego</translation>
    </message>
    <message>
        <source>models</source>
        <translation>modele</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n ustawienie</numerusform>
            <numerusform>%n ustawienia</numerusform>
            <numerusform>%n ustawień</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>brak profili w %1; wskaż plik opcją --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>pobiera projektory z FILE</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>tylko projektory w tym stanie, na przykład „power=on lamp-hours&gt;1500”</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>projektor jest pod adresem ADDRESS; P podaje tylko jego model</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>port szukanych projektorów; domyślnie 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>hasło PJLink; inni użytkownicy tego komputera mogą je tu zobaczyć</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>hasłem jest pierwszy wiersz FILE</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>wyjście: text, json, jsonl (wiersz na każdą wartość lub projektor), tsv lub value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>to samo co --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>tylko nazwy lub klucze, po jednym w wierszu</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>tylko ustawienia, których mogą użyć get, set, reset lub watch</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>tylko klucze pasujące do GLOB; można powtarzać</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>pobiera wiersze KEY=VALUE z FILE („-” to standardowe wejście)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>zapisuje każdy projektor w osobnym pliku w DIR</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>dodaje znalezione projektory do pliku profili FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>wypisuje, co by się zmieniło, i niczego nie zmienia</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>czeka na osiągnięcie stanu, najwyżej TIME, na przykład 90s lub 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>kończy, gdy wszystkie projektory mają tę wartość</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>kończy z kodem 1, jeśli są różnice, a z kodem 2, jeśli czegoś nie udało się porównać</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>pomija błędne pozycje w FILE, zamiast nie wysyłać niczego</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: także plik cofania innego projektora; save: zastępuje dowolny plik</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>wypisuje wykonania, które można cofnąć</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>folder plików cofania</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>usuwa pliki cofania starsze niż N dni; domyślnie 30, przy 0 zachowuje wszystkie</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>ile projektorów naraz, od 1 do 1024; domyślnie 512 przy odczycie i 64 przy zmianach</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>czas oczekiwania na odpowiedź; domyślnie 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>ponawia N razy próbę z projektorem, który nie odpowiada; domyślnie 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>po pierwszym błędzie nie zaczyna kolejnych projektorów</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>czas między dwoma odczytami; domyślnie 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>język tekstów, na przykład de lub zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>ta pomoc; po poleceniu – pomoc dotycząca polecenia</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>wersja</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>nie można zapisać: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>„%1” jest niedozwolone</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>brak znaku „=”</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>nie ma ustawienia %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>jego pierwszy wiersz jest pusty</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Hasło do %1: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (symulowany)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>dodano: %1, zmieniony adres: %2, już znane: %3</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>wymaga hasła</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>wskaż plik profili opcją --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>nieużyte kolumny: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>dodano: %1, już znane: %2, błędne: %3</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: „%2” nie ma postaci KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: nie ma żadnego KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>tu trzeba podać jeden projektor, podano: %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>cofnięte</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>nie można zapisać w %1, że wykonanie cofnięto: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>z projektorem pracuje inne wykonanie acctl</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>nie rozpoczęto, ponieważ na innym projektorze wystąpił błąd</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>zasymulowane przez samo acctl, nic trwałego nie zmieniono</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>przerwano; wykonane czynności podano powyżej</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>w gotowości, pominięto: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>rozgrzewanie, pominięto: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>chłodzenie, pominięto: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>pominięto, ten projektor tego nie oferuje: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n projektor</numerusform>
            <numerusform>%n projektory</numerusform>
            <numerusform>%n projektorów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>zmieniono: %n</numerusform>
            <numerusform>zmieniono: %n</numerusform>
            <numerusform>zmieniono: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>różni się: %n</numerusform>
            <numerusform>różni się: %n</numerusform>
            <numerusform>różni się: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>już ustawione: %n</numerusform>
            <numerusform>już ustawione: %n</numerusform>
            <numerusform>już ustawione: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>jeszcze nie działa: %n</numerusform>
            <numerusform>jeszcze nie działa: %n</numerusform>
            <numerusform>jeszcze nie działa: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>przyjęto, ale jeszcze nie działa</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>odrzucono: %n</numerusform>
            <numerusform>odrzucono: %n</numerusform>
            <numerusform>odrzucono: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>zajęte: %n</numerusform>
            <numerusform>zajęte: %n</numerusform>
            <numerusform>zajęte: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>projektor jest zajęty lub w gotowości</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>niepotwierdzone: %n</numerusform>
            <numerusform>niepotwierdzone: %n</numerusform>
            <numerusform>niepotwierdzone: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>niepotwierdzone, wartość mogła się zmienić</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>niewykonane: %n</numerusform>
            <numerusform>niewykonane: %n</numerusform>
            <numerusform>niewykonane: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>pominięto, ten model tego nie ma</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>pominięto, ten projektor tego nie oferuje</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>pominięto, tego nie da się przywrócić</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>pominięto, ten model tego nie przyjmuje</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>zatrzymano na %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>nie wysłano, różnica przekracza %n krok</numerusform>
            <numerusform>nie wysłano, różnica przekracza %n kroki</numerusform>
            <numerusform>nie wysłano, różnica przekracza %n kroków</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>odrzucono, obecnie %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>obecnie nie można odczytać</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>nie porównano: %n</numerusform>
            <numerusform>nie porównano: %n</numerusform>
            <numerusform>nie porównano: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>pominięto: %n</numerusform>
            <numerusform>pominięto: %n</numerusform>
            <numerusform>pominięto: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nie ma nic do zrobienia</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>pominięto %n ustawienie z pliku, którego PJLink nie ma</numerusform>
            <numerusform>pominięto %n ustawienia z pliku, których PJLink nie ma</numerusform>
            <numerusform>pominięto %n ustawień z pliku, których PJLink nie ma</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; nic więcej nie wysłano</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; nic nie wysłano</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: cofa zmianę na %2; aby zastosować do %3, dodaj --force</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: w pliku nie ma takiego ustawienia</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: nie ma projektora „%2”</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: plik %2 dotyczy tego samego projektora %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: w folderze nie ma plików ustawień</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: w %2 nie ma pliku tego projektora</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: to nie jest plik ustawień; --force pozwala go zastąpić</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: nie ma takiego pliku ani folderu</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>podaj projektory, do których ma być zastosowany plik</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>jeden plik jest dla jednego projektora, podano: %1; folder wskazuje -o</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>nie można utworzyć folderu %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; aby cofnąć wcześniejsze wykonanie, podaj je</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>nie ma wykonania, które można cofnąć</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>nie ma wykonania „%1”; listę wypisuje --list</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: nie ma go już w pliku profili</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>obecnie nie można odczytać, pominięto</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>niczego nie można odczytać i niczego nie zapisano</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n ustawienie zapisane w %1</numerusform>
            <numerusform>%n ustawienia zapisane w %1</numerusform>
            <numerusform>%n ustawień zapisanych w %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>nie ma projektora „%1”; wszystkie wypisuje acctl list</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>odrzucono, projektor jest w gotowości</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>odrzucono, projektor się rozgrzewa</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>odrzucono, projektor się chłodzi</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>odrzucono, projektor jest zajęty</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>tego nie da się cofnąć: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>zatrzymano, przyjęto %1 z %n kroku</numerusform>
            <numerusform>zatrzymano, przyjęto %1 z %n kroków</numerusform>
            <numerusform>zatrzymano, przyjęto %1 z %n kroków</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; przyjęto %2 z %n kroku</numerusform>
            <numerusform>%1; przyjęto %2 z %n kroków</numerusform>
            <numerusform>%1; przyjęto %2 z %n kroków</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>przyjęto, ale jeszcze nie działa, obecnie %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, wartość mogła się zmienić, obecnie %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, wartość mogła się zmienić</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odrzucono</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>nie osiągnięto na czas, obecnie %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>nie osiągnięto na czas</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: to nie jest wiersz pliku cofania</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: nie ma nic do cofnięcia</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>nie można zapisać %1: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>nieprawidłowe parametry połączenia</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nieznana nazwa hosta</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nieosiągalny</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>połączenie przerwane</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>niezrozumiałe odpowiedzi</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>inna wersja protokołu</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>brak hasła lub złe hasło</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>brak odpowiedzi</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>brak odpowiedzi (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>ten model nie ma takiego ustawienia</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>pominięto, PJLink tego nie ma</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>obecnie nie można odczytać</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>ten projektor tego nie oferuje</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>nie odczytano, projektor nie zgłosił swoich wejść</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink tego nie ma</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>tego nie da się odczytać</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>tego nie da się ustawić</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>tego nie da się przywrócić</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>tego nie da się zresetować</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, projektor jest w gotowości</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, projektor się rozgrzewa</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, projektor się chłodzi</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>znów odpowiada</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: „%1” nie ma postaci KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Wypisuje różnice względem pliku („-” to standardowe wejście), zestawu aplikacji graficznej albo własnego pliku każdego projektora w folderze.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Odczytuje projektory, wysyła to, co różni się od pliku („-” to standardowe wejście), od zestawu aplikacji graficznej albo od własnego pliku każdego projektora w folderze, i odczytuje ponownie. Zastępowane wartości są najpierw zachowywane, aby „acctl undo” mogło je przywrócić. Przerwane wykonanie można powtórzyć w dowolnej chwili.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>poprzedniej wartości nie udało się odczytać i nie będzie można jej przywrócić</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>poprzedniej wartości nie udało się odczytać</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>tego nie da się cofnąć</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Resetuje ustawienia do własnych standardowych wartości projektora i wypisuje nowe wartości. „acctl undo” przywraca poprzedni stan. Liczniki godzin są resetowane tylko po podaniu dokładnych kluczy, ponieważ nie da się tego cofnąć.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>cofa ostatnie wykonanie, które zmieniło ustawienia</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>to wykonanie nie zmieniło żadnego z tych projektorów</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Przywraca to, co zastąpiło wykonanie „set”, „reset” lub „apply”. RUN to nazwa wypisana przez „acctl undo --list”, plik lub „last”; bez RUN cofane jest ostatnie wykonanie. Z P lub --where przywracane są tylko te projektory, a resztę wykonania można cofnąć później. Samo cofnięcie też można cofnąć, podając jego nazwę.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>przerwano</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>przyjęto, ale nie potwierdzono: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>„%1” musi zaczynać się od / lub ~/</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>oczekiwanie na inny program, który zmienia %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>P&amp;otwierdź</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>Potwierdź ws&amp;zystkie</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Od kiedy</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alert</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alerty</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 nie odpowiada</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: lampa przepracowała %2 z %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n ustawienie odbiega od wzorca</numerusform>
            <numerusform>%1: %n ustawienia odbiegają od wzorca</numerusform>
            <numerusform>%1: %n ustawień odbiega od wzorca</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>potwierdzony</translation>
    </message>
    <message>
        <source>open</source>
        <translation>niepotwierdzony</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Wyświetla tę pomoc.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>Pobiera projektory z pliku &lt;plik&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>plik</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Nadzoruje jedną z kilku części: 2/5 to druga z pięciu.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>część</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Nadzoruje tylko projektory z tagiem &lt;tag&gt; lub jednym z kilku.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>tag</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Odpytuje każdy projektor co &lt;sekundy&gt; s, co najmniej 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekundy</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Raz dziennie porównuje każdy projektor z jego migawką w folderze &lt;folder&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Nasłuchuje powiadomień o stanie projektorów pod adresem &lt;adres&gt;.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>adres</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Udostępnia metryki pod adresem &lt;adres:port&gt;; „none” – nigdzie.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>adres:port</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Zapisuje metryki do pliku &lt;plik&gt; co 15 sekund, dla programu zbierającego pliki tekstowe.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Wysyła komunikaty do brokera MQTT pod adresem &lt;host:port&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>host:port</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Wersja MQTT: 3 (3.1.1) lub 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>wersja</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>Pierwszy wiersz pliku &lt;plik&gt; to nazwa użytkownika brokera.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>Pierwszy wiersz pliku &lt;plik&gt; to hasło do brokera.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Szyfruje i ufa urzędom certyfikacji, którym ufa system.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Szyfruje i ufa urzędom certyfikacji z pliku &lt;plik&gt;.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>Certyfikat tego klienta.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Klucz certyfikatu.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>Pierwszy poziom wszystkich tematów.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>temat</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>Pierwszy poziom tematów wykrywania; „none” – bez wykrywania.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Przejmuje część mostu, który milczy od &lt;sekundy&gt; s.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Ustawienia, które można zmieniać poleceniami: klucze lub wzorce rozdzielone przecinkami; „power” to zasilanie. Bez tej opcji nie można zmieniać niczego.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>klucze</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Liczba poleceń, które każdy projektor przyjmuje w ciągu minuty.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Język nazw w komunikatach wykrywania i komunikatów tego programu: &lt;nazwa&gt;, na przykład de lub zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nazwa</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>„%1” nie jest czasem od %2 sekund do doby</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>„%1” nie jest tematem</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>„%1” nie jest częścią taką jak 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>„%1” nie jest adresem liczbowym z portem</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>plik %1 jest pusty</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 wymaga --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>„%1” nie jest hostem z portem</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>„%1” to ani 3, ani 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file i --key-file wymagają się wzajemnie</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: „%1” nie jest ustawieniem, które można zmieniać poleceniami</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>„%1” nie jest liczbą od 1 do %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Nadzoruje projektory i przekazuje informacje o nich do magazynu metryk i brokera komunikatów.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>nieoczekiwany argument „%1”</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>brak --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>„%1” nie jest adresem liczbowym</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>„%1” nie jest folderem</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>brak tekstów w języku „%1”</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>żaden projektor nie ma tagu „%1”</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>Nieoczekiwany znak „=” w „%1”.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 wymaga wartości.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Otwiera okna ustawień projektorów, prawdziwych lub symulowanych.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Wyświetla tę pomoc.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>Pobiera projektory z pliku &lt;plik&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>plik</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>Otwiera po uruchomieniu okno projektora &lt;nazwa&gt;.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nazwa</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>Z --open: wybiera kartę &lt;n&gt;, licząc od 0.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>Wypisuje tabelę projektorów.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>Z --open: zapisuje obraz okna (PNG) i kończy pracę.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Zapisuje obrazy wszystkich kart wszystkich rodzajów projektorów w folderze &lt;folder&gt; i kończy pracę.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Pokazuje teksty w języku &lt;nazwa&gt;, na przykład de lub zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: brak tekstów w języku „%1”.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Nieoczekiwany argument „%1”.</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>Można podać tylko jedną z opcji --list, --tour i --open.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 wymaga --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: „%1” nie jest liczbą.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Tylko z&amp;miany</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Tylko &amp;błędy</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>Zapisz &amp;dziennik jako…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>Wy&amp;czyść dziennik…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Dziennik poleceń</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Pomija polecenia, które tylko odczytują</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Pomija polecenia, które zostały wykonane</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Filtruj dziennik</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Zapis dziennika</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Tabele (*.tsv);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Czyszczenie dziennika</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>Usunąć %n wpis z dziennika?</numerusform>
            <numerusform>Usunąć wszystkie %n wpisy z dziennika?</numerusform>
            <numerusform>Usunąć wszystkie %n wpisów z dziennika?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Projektor, ustawienie, polecenie lub wynik</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Wszystkie projektory</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Pokaż polecenia</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projektor</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>porzucone</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>brak odpowiedzi</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>zajęty</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>nieoferowane</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odrzucone</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>jeszcze nie działa</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ustawienie</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Odpytaj ponownie</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Zastosuj</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Odczytywanie ustawień…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Brak różnic.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n projektor się różni.</numerusform>
            <numerusform>%n projektory się różnią.</numerusform>
            <numerusform>%n projektorów się różni.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n projektor ma już wszystkie te ustawienia.</numerusform>
            <numerusform>%n projektory mają już wszystkie te ustawienia.</numerusform>
            <numerusform>%n projektorów ma już wszystkie te ustawienia.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>Nie udało się odczytać %n projektora.</numerusform>
            <numerusform>Nie udało się odczytać %n projektorów.</numerusform>
            <numerusform>Nie udało się odczytać %n projektorów.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n projektor nie podaje teraz wszystkich tych ustawień.</numerusform>
            <numerusform>%n projektory nie podają teraz wszystkich tych ustawień.</numerusform>
            <numerusform>%n projektorów nie podaje teraz wszystkich tych ustawień.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>Pominięto %n projektor.</numerusform>
            <numerusform>Pominięto %n projektory.</numerusform>
            <numerusform>Pominięto %n projektorów.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>Sposób połąc&amp;zenia</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Połą&amp;czenie</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adres</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Port</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Hasło</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>N&amp;umer portu</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>Urzą&amp;dzenie</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>Prędkość (&amp;bod)</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Jak w rodzinie</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Symulacja</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Port szeregowy</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 nie jest adresem.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>&amp;Sprawdź połączenie</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Wynik sprawdzenia</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Nie ma z czym się połączyć.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Łącze szeregowe jest sprawdzane przy otwarciu okna projektora.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Odpytywanie…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Odpowiada projektor: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>cudzysłów nie jest zamknięty</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>po zamykającym cudzysłowie jest dalszy tekst</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>więcej niż %1 komórek</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>komórek: %1, a w nagłówku: %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>więcej niż %1 wierszy</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>brak nagłówka</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>więcej niż %1 bajtów</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>symulowany</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Zasilanie:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Źródło:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problem:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Obraz i dźwięk:</translation>
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
        <translation>Ustawienia:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>Odpowiedź:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Wykorzystana część nominalnego czasu pracy lampy</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>Ostatnie zdarzen&amp;ia</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Ostatnie zdarzenia</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Nie wybrano projektora</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>Wybrano %n projektor</numerusform>
            <numerusform>Wybrano %n projektory</numerusform>
            <numerusform>Wybrano %n projektorów</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>pusty obraz</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>wyciszenie</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>zatrzymany obraz</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>wyświetlany</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>jeszcze nic</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Ustawienie</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Obecnie</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Różnice</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Najpierw inne źródła i tryby</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n ustawienie</numerusform>
            <numerusform>%n ustawienia</numerusform>
            <numerusform>%n ustawień</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n ustawienie nie dotyczy tego modelu</numerusform>
            <numerusform>%n ustawienia nie dotyczą tego modelu</numerusform>
            <numerusform>%n ustawień nie dotyczy tego modelu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n ustawienia nie można teraz odczytać</numerusform>
            <numerusform>%n ustawień nie można teraz odczytać</numerusform>
            <numerusform>%n ustawień nie można teraz odczytać</numerusform>
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
        <translation>Problem: wentylator</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Problem: lampa</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Problem: temperatura</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Problem: pokrywa</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Problem: filtr</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Problem: inny</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Dostępność</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Zasilanie</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>Gotowość</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Chłodzenie</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Bez błędów</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Pokrywa</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Wentylator</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampa</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Przepływ powietrza</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Czas pracy lampy</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Zbyt niska temperatura</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Czas pracy filtra</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Inne (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Odrzucaj</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Błędy odczytu</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Opóźniaj</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Przerywaj połączenie</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>&amp;Ustaw usterkę</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>U&amp;suń</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>Usuń wszyst&amp;kie</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Działające usterki</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>Z&amp;asilanie</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>Stan błę&amp;du</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>Po&amp;lecenie</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>Us&amp;terka</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>Opóź&amp;nienie</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>Działa&amp;jące</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Nie wybrano projektora</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Symulacja projektora %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Symulowane usterki projektora %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Wszystkie polecenia</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Wybierz lub wpisz część nazwy albo kodu</translation>
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
        <translation>%1 (dowolny kod)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n włączony</numerusform>
            <numerusform>%n włączone</numerusform>
            <numerusform>%n włączonych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n wyłączony</numerusform>
            <numerusform>%n wyłączone</numerusform>
            <numerusform>%n wyłączonych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n z problemami</numerusform>
            <numerusform>%n z problemami</numerusform>
            <numerusform>%n z problemami</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n nieosiągalny</numerusform>
            <numerusform>%n nieosiągalne</numerusform>
            <numerusform>%n nieosiągalnych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n z alertami</numerusform>
            <numerusform>%n z alertami</numerusform>
            <numerusform>%n z alertami</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>najstarsza odpowiedź: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n bez nadzoru</numerusform>
            <numerusform>%n bez nadzoru</numerusform>
            <numerusform>%n bez nadzoru</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>odrzucono</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>projektor jest zajęty lub w gotowości</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>projektor tego nie ma</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>model nie dopuszcza tej wartości</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>tego nie da się ustawić</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>model tego nie ma</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>model nie ma takiego ustawienia</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>nie ma dla niego migawki</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>niepotwierdzone, wartość mogła się zmienić</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>nie wszystko udało się wysłać</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>brak odpowiedzi</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nieosiągalny</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>brak połączenia</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>nieprawidłowe parametry połączenia</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nieznana nazwa hosta</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>połączenie przerwane</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>niezrozumiałe odpowiedzi</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>inna wersja protokołu</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>brak hasła lub złe hasło</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>projektor nie podaje teraz żadnego ze swoich ustawień</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Grupy</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemy</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Nieosiągalne</translation>
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
        <translation>W oknie projektora</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Następna karta</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Poprzednia karta</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Znajdź ustawienie</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Sterowanie zaawansowane %1&lt;/h3&gt;&lt;p&gt;Ustawienia projektorów na żywo: każda wartość jest odczytywana z projektora, a każda zmiana wysyłana od razu.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>znak sterujący w tekście</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>połowa pary zastępczej w tekście</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>tekst dłuższy niż %1 bajtów</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>więcej niż %1 bajtów</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>zagnieżdżenie głębsze niż %1</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>więcej niż %1 wartości</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Wszystkie te projektory są symulowane, do wypróbowania programu.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Sterowanie zaawansowane: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Sterowanie zaawansowane</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Otwieranie ustawień</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>Otworzyć %n okno?</numerusform>
            <numerusform>Otworzyć %n okna?</numerusform>
            <numerusform>Otworzyć %n okien?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alerty</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Symulacja</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Dziennik poleceń</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>Pre&amp;ferencje…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>P&amp;rojektor</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>&amp;Otwórz ustawienia</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Odśw&amp;ież</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Znajdź</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Symulacja</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Dziennik poleceń</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Alerty</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Skróty klawiszowe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;O programie</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Zapisano w %1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Rodzina</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Model</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>&amp;Wszystkie pola modelu</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>&amp;Typ okna</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>&amp;Kod modelu</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Sterowanie zaawansowane</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Sterowanie zaawansowane</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Ustawienia projektorów</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Odczyt i zmiana ustawień projektorów</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>projektor;rzutnik;jasność;trapez;keystone;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Lista pokazuje stan setek projektorów i pozwala zmieniać wiele z nich naraz, a każdy projektor ma okno z kartą dla każdej grupy ustawień. Każda wartość jest odczytywana na żywo z projektora, a każda zmiana wysyłana od razu. Dziennik pokazuje wszystkie polecenia i ich wyniki.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>Projektory można symulować, ręcznie zadając im usterki.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>nie można utworzyć okna projektora %1</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>nie można zapisywać w folderze %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Jak w systemie</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nigdy</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Wentylator, lampa, temperatura, pokrywa, filtr</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>&amp;Ustawienia odbiegające od wzorca</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Powiadomienia na &amp;pulpicie</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Nie przeszkadzaj od</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Nie przeszkadzaj do</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Język (po ponownym uruchomieniu)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>Odpytuj każdy projektor &amp;co</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alerty</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>Praca &amp;lampy, z czasu nominalnego</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>Brak odpowiedzi &amp;dłużej niż</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Czas bez powiadomień</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Jak na pulpicie</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Jasne</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Ciemne</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Kolory</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(dwie takie same godziny: brak)</translation>
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
        <translation>Ze&amp;stawy</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Zastosuj do wybranych</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Nie ma jeszcze zestawów</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Zapisz jako zestaw…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>&amp;Wybierz wzorzec</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>&amp;Porównaj z wzorcem</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>P&amp;rzywróć wzorzec</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Zapis zestawu</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Zapisano jako zestaw %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Zestawy</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Zestaw %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Wyznaczenie wzorca</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Żaden z wybranych projektorów nie ma wyznaczonego wzorca.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Przywracanie wzorca</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Przywrócić ustawienia wzorca na %n projektorze?</numerusform>
            <numerusform>Przywrócić ustawienia wzorca na %n projektorach?</numerusform>
            <numerusform>Przywrócić ustawienia wzorca na %n projektorach?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Odczytywanie ustawień %1…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Zestaw</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Wzorzec</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Wzorzec</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>Z&amp;arządzaj zestawami…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Wszystkie z %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Zapis zestawu</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ustawienie</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Ustawienia zestawu</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;Nazwa zestawu</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Wszystkie</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Zaznacz wszystkie ustawienia</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Ta &amp;strona</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Zaznacz tylko ustawienia wybranej strony</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Żadne</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Odznacz wszystkie ustawienia</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Niedozwolona nazwa zestawu: pomiń ukośniki i kropkę na początku.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>Zaznaczono %n ustawienie.</numerusform>
            <numerusform>Zaznaczono %n ustawienia.</numerusform>
            <numerusform>Zaznaczono %n ustawień.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Zestaw %1 zostanie zastąpiony.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Zmiana nazwy zestawu</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Usuwanie zestawu</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>nie można utworzyć folderu %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Zestawy</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ustawienie</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Ustawienia zestawu</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Zmień nazwę</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>U&amp;suń</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Nie ma jeszcze zestawów</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Wzorzec dla: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Niedozwolona nazwa zestawu: pomiń ukośniki i kropkę na początku.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Zestaw %1 już istnieje.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>Usunąć zestaw %1?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Dodaj…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Edytuj…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>Powie&amp;l…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Usuń…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>&amp;Tagi…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodanie</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytowanie</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Powielenie</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Usuwanie projektora</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Usuwanie projektorów</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>Usunąć „%1” z %2?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>Usunąć %n projektor z %1?</numerusform>
            <numerusform>Usunąć %n projektory z %1?</numerusform>
            <numerusform>Usunąć %n projektorów z %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tagowanie</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Tagi %n projektora rozdzielone przecinkami;
minus przed tagiem go usuwa:</numerusform>
            <numerusform>Tagi %n projektorów rozdzielone przecinkami;
minus przed tagiem go usuwa:</numerusform>
            <numerusform>Tagi %n projektorów rozdzielone przecinkami;
minus przed tagiem go usuwa:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>„%1” nie jest adresem MAC</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>„%1” nie jest rodzajem połączenia</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>„%1” to nazwa innego projektora, o identyfikatorze %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>„%1” nie jest liczbą godzin</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>„%1” to nazwa innego projektora</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>nagłówek nie ma kolumny „name”</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>Plik %1 został zmieniony przez inny program. Wczytaj go ponownie (F5) i powtórz czynność.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nazwa</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Dodawanie projektora</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Edycja projektora</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Powielanie projektora</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Do uzupełnienia: %1</translation>
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
        <translation>port szeregowy %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>liczba rodzin: %1; dozwolone najwyżej %2</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>prowadzi przez więcej niż %1 rodzin</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>czyni „%1” wzorem dla samego siebie</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>nie ma rodziny „%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>brak „%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>wartość „%1” pola %2 ma już projectors[%3]</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>plik musi zawierać obiekt</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>brak „projectors”</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>nie ma żadnego projektora</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>występuje dwa razy</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>nie można odczytać profili %1: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>to ani nazwa zakresu, ani liczba od 0 do %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>trzeba podać nazwę „%1”</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>musi mieć postać [minimum, maksimum] lub null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>minimum jest większe od maksimum</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>nieznany klucz; znane są: %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>musi być obiektem</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>musi być tablicą</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>liczba elementów: %1; dozwolone najwyżej %2</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>musi być niepustym tekstem</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>jest dłuższe niż %1 bajtów</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>musi być liczbą całkowitą</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>wynosi %1; dozwolone od %2 do %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>musi być liczbą, tekstem lub obiektem z „value” i „name”</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>musi być ścieżką zaczynającą się od /</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>to ani nazwa hosta, ani adres IP</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>musi mieć „network” albo „serial”</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>dozwolone: simulated, network, serial lub pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>wymaga połączenia %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>nie ma ustawienia „%1”</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;Otwórz profile…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Wczytaj ponownie</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>&amp;Zapisz profile jako…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Otwieranie profili</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profile (*.json);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ponowne wczytanie</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Zapis profili</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Plik tylko do odczytu</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>Nie można zmienić %1. Zapisz najpierw profile w innym pliku.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Zapisz profile jako…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>Dotychczasowych zmian nie da się już cofnąć.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>Nie udało się tego wykonać; niczego nie zmieniono.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>inny program zmienia %1; spróbuj ponownie</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>brak profili w %1; wskaż plik opcją --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
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
        <translation>Kod</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n obraz zapisany w %2, rodzaje projektorów: %1</numerusform>
            <numerusform>%n obrazy zapisane w %2, rodzaje projektorów: %1</numerusform>
            <numerusform>%n obrazów zapisanych w %2, rodzaje projektorów: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: nie ma projektora „%1”; wszystkie nazwy wypisuje --list.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: nie ma karty %1; „%2” ma karty od 0 do %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>brak ekranu; bez niego można użyć --list, --tour lub --screenshot.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Zasilanie</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Źródło</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampa</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Ostatnia odpowiedź</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · otwarty</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Nazwa, model, miejsce, adres, karta lub ustawienie</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Szukaj projektorów</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektory</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nic nie znaleziono</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>znaleziono %n</numerusform>
            <numerusform>znaleziono %n</numerusform>
            <numerusform>znaleziono %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Folder</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Użycie: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opcje]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opcje:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Wyświetla wersję.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Nieznana opcja „%1”.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Nieznane opcje: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Brak wartości po „%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Nieoczekiwana wartość po „%1”.</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>„%1” to ani adres IP, ani zakres adresów</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>więcej niż %1 adresów</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Szukaj</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Szukanie projektorów</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>sieci tego komputera</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Na przykład 192.0.2.0/24 lub 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
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
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Znalezione projektory</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Adresy</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Hasło</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>&amp;Dodaj zaznaczone</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>już znany</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>wymaga hasła</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>znaleziono %n</numerusform>
            <numerusform>znaleziono %n</numerusform>
            <numerusform>znaleziono %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>znaleziono %n, odpytano adresy: %1 z %2…</numerusform>
            <numerusform>znaleziono %n, odpytano adresy: %1 z %2…</numerusform>
            <numerusform>znaleziono %n, odpytano adresy: %1 z %2…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>&amp;Zapisz ustawienia…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>Porów&amp;naj z plikiem…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>Zastosu&amp;j ustawienia…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Zapis ustawień</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Zapis ustawień w folderze</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Ustawienia (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Odczytywanie ustawień…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Otwieranie ustawień</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Ustawienia zapisano w %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Ustawienia %n projektora zapisano w %1.</numerusform>
            <numerusform>Ustawienia %n projektorów zapisano w %1.</numerusform>
            <numerusform>Ustawienia %n projektorów zapisano w %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>Nie udało się odczytać %n ustawienia.</numerusform>
            <numerusform>Nie udało się odczytać %n ustawień.</numerusform>
            <numerusform>Nie udało się odczytać %n ustawień.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Stosowanie ustawień</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Porównanie ustawień</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>Poprzednie wartości zachowano w %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standardowe wejście</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 występuje dwa razy</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: nie można zająć portu</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>nie ma projektora „%1”</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: projektory są odczytywane z %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 już istnieje i nie został zapisany przez ten program</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>„%1” nie jest portem.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>„%1” nie jest liczbą od %2 do %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>„%1” nie jest czasem do jednej godziny.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Wyświetla tę pomoc.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>Symuluje projektory z pliku &lt;plik&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>plik</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Symuluje tylko projektor &lt;nazwa&gt;; można podać kilka razy.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nazwa</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Nasłuchuje pod adresem &lt;adres&gt; zamiast 127.0.0.1; z --fleet jest to adres pierwszego projektora zamiast 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>adres</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>Pierwszy projektor ma port &lt;n&gt;, pozostałe kolejne porty; przy 0, tak jak bez tej opcji, używane są dowolne wolne porty. Z --fleet &lt;n&gt; jest portem własnego protokołu każdego projektora, a następny – portem PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink wymaga hasła &lt;tekst&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Udostępnia każdy projektor także przez pseudoterminal.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Zaczyna od usterki: %1. Dla części projektorów: „silent 5%”. Można podać kilka razy.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>usterka</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Wszystko, co losowe, zależy od &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Nasłuchuje usterek na porcie &lt;n&gt; adresu pętli zwrotnej, po jednej w wierszu: numer projektora od 1 lub * i usterka.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Zapisuje w pliku &lt;plik&gt; profile, dzięki którym programy połączą się z symulowanymi projektorami.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>Symuluje &lt;n&gt; projektorów na wzór tych z profili, każdy pod własnym adresem pętli zwrotnej.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Dla --fleet: czego używa --write-profiles: pjlink, network lub mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>sposób</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Dla --fleet: po ilu sekundach projektor jest włączony.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekundy</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Dla --fleet: po ilu sekundach projektor jest w gotowości.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Dla --fleet: ile zmian stanu na sekundę zachodzi samoczynnie.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Dla --fleet: wysyła powiadomienia PJLink o stanie pod ten adres.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>adres:port</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Dla --fleet: na koniec zapisuje w pliku &lt;plik&gt;, ile razy odpytano każdy projektor.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Język pomocy i błędów: &lt;nazwa&gt;, na przykład de lub zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Udostępnia symulowane projektory przez TCP, PJLink i pseudoterminale. Wypisuje adresy, po jednym w wierszu, a potem „ready”.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Nieoczekiwany argument „%1”.</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 wymaga --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>„%1” nie jest adresem.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: tekst dłuższy niż %1 bajtów.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: „%1” nie jest jedną z wartości: %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet nie ma łączy szeregowych.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>„%1” nie jest adresem pętli zwrotnej IPv4.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>Po „%1” zostaje za mało adresów.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>Po „%1” nie zostaje port dla PJLink.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>„%1” nie jest adresem pętli zwrotnej IPv4 z portem.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>„%1” nie jest wartością pjlink, network ani mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>brak tu liczby całkowitej</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>musi być liczbą całkowitą od %1 do %2, a jest %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>musi być wierszem tekstu</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>musi być obiektem</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>musi być tablicą</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>ma więcej niż %1 elementów</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>to nie jest plik zapisanych ustawień</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>znana jest tylko wersja %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>„%1” występuje dwa razy</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>jest większy niż 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>musi zawierać obiekt</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>wiersz %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Bez nadzoru</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Odpytywanie…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Nieznany host</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Brak odpowiedzi</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Złe hasło</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Niezrozumiały</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Gotowość</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Chłodzenie</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Rozgrzewanie</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Wentylator</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampa</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Pokrywa</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Inne</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (ostrzeżenie)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 godz.</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Zgodne z wzorcem</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n się różni</numerusform>
            <numerusform>%n się różnią</numerusform>
            <numerusform>%n się różni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 s temu</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>off</source>
        <translation>wył.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>wł.</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Zasilanie</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Źródło</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Pusty obraz</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wyciszenie</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Zatrzymanie obrazu</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Różniące się ustawienia</translation>
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
        <translation>&amp;Znajdź w sieci…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>&amp;Importuj tabelę…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>&amp;Eksportuj tabelę…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Szukanie projektorów</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Dodawanie znalezionych projektorów</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Import tabeli</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Tabele (*.csv *.tsv *.txt);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Wiersz %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Eksport tabeli</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabele (*.csv);;Wszystkie pliki (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>Dodano %n projektor</numerusform>
            <numerusform>Dodano %n projektory</numerusform>
            <numerusform>Dodano %n projektorów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n już znany</numerusform>
            <numerusform>%n już znane</numerusform>
            <numerusform>%n już znanych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>nie przyjęto %n wiersza</numerusform>
            <numerusform>nie przyjęto %n wierszy</numerusform>
            <numerusform>nie przyjęto %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Nieużyte kolumny: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>&amp;Włącz</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>W&amp;yłącz</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>Z&amp;asilanie</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Wejście</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>&amp;Pusty obraz</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Włącz pusty obraz</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Włączyć pusty obraz na %n projektorze?</numerusform>
            <numerusform>Włączyć pusty obraz na %n projektorach?</numerusform>
            <numerusform>Włączyć pusty obraz na %n projektorach?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Pokaż obraz</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Pokazać obraz na %n projektorze?</numerusform>
            <numerusform>Pokazać obraz na %n projektorach?</numerusform>
            <numerusform>Pokazać obraz na %n projektorach?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>W&amp;yciszenie</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Wycisz dźwięk</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Wyciszyć dźwięk na %n projektorze?</numerusform>
            <numerusform>Wyciszyć dźwięk na %n projektorach?</numerusform>
            <numerusform>Wyciszyć dźwięk na %n projektorach?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Włącz dźwięk</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Włączyć dźwięk na %n projektorze?</numerusform>
            <numerusform>Włączyć dźwięk na %n projektorach?</numerusform>
            <numerusform>Włączyć dźwięk na %n projektorach?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>Zatrzy&amp;manie obrazu</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Zatrzymaj obraz</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Zatrzymać obraz na %n projektorze?</numerusform>
            <numerusform>Zatrzymać obraz na %n projektorach?</numerusform>
            <numerusform>Zatrzymać obraz na %n projektorach?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Wznów obraz</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Wznowić obraz na %n projektorze?</numerusform>
            <numerusform>Wznowić obraz na %n projektorach?</numerusform>
            <numerusform>Wznowić obraz na %n projektorach?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Włączanie</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Wyłączanie</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>Włączyć %n projektor?</numerusform>
            <numerusform>Włączyć %n projektory?</numerusform>
            <numerusform>Włączyć %n projektorów?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>Wyłączyć %n projektor?</numerusform>
            <numerusform>Wyłączyć %n projektory?</numerusform>
            <numerusform>Wyłączyć %n projektorów?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Wejście %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Wybrać wejście %1 na %n projektorze?</numerusform>
            <numerusform>Wybrać wejście %1 na %n projektorach?</numerusform>
            <numerusform>Wybrać wejście %1 na %n projektorach?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Nie są znane żadne wejścia</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>nie można zapisać %1: %2</translation>
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
        <translation>Wynik</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projektory</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Ponów nieudane</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>&amp;Cofnij wszystko</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>Wykonaj &amp;resztę</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>model tego nie ma</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>gotowe: %1 z %n</numerusform>
            <numerusform>gotowe: %1 z %n</numerusform>
            <numerusform>gotowe: %1 z %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Cofanie: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>w toku…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>gotowe</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>przyjęto, jeszcze w toku</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odrzucono</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>brak odpowiedzi</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>zatrzymano</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>gotowe, nie udało się odczytać %n ustawienia</numerusform>
            <numerusform>gotowe, nie udało się odczytać %n ustawień</numerusform>
            <numerusform>gotowe, nie udało się odczytać %n ustawień</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>jeszcze w toku: %n</numerusform>
            <numerusform>jeszcze w toku: %n</numerusform>
            <numerusform>jeszcze w toku: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>nieudane: %n</numerusform>
            <numerusform>nieudane: %n</numerusform>
            <numerusform>nieudane: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>nie wiadomo, czy był włączony</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>zatrzymane: %n</numerusform>
            <numerusform>zatrzymane: %n</numerusform>
            <numerusform>zatrzymane: %n</numerusform>
        </translation>
    </message>
</context>
</TS>
