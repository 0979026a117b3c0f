<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>нет параметра --%1</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 не принимает значения</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>после --%1 нужно указать %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>команда %1 не принимает %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: значение «%2» недопустимо</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>не указана команда; список команд: --help</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>нет команды «%1»; список команд: --help</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>у команды %1 нет такого --format</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>использование: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>имя файла пусто</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>«%1» не входит в число допустимых: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>«%1» — не шаг вида +1 или -1, а по PJLink возможны только шаги</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>«%1» — больше %n шага</numerusform>
            <numerusform>«%1» — больше %n шагов</numerusform>
            <numerusform>«%1» — больше %n шагов</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>«%1» от %2 не даёт допустимого значения; возможны: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>«%1» отстоит от %2 больше чем на %n шаг</numerusform>
            <numerusform>«%1» отстоит от %2 больше чем на %n шага</numerusform>
            <numerusform>«%1» отстоит от %2 больше чем на %n шагов</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>вывести список проекторов</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Выводит имя, модель, набор страниц, код серии, соединение и теги указанных или всех проекторов.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>вывести список моделей</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Выводит модели из файла профилей, для каждой — число проекторов и настроек.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>вывести настройки и их значения</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Выводит настройки модели: ключ, вкладку, название и возможные значения. Проектор не опрашивается.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>пояснить настройку</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Поясняет настройку: вкладка и название, возможные значения с кодами, модели, у которых она есть, и можно ли её задать, сбросить, сохранить и восстановить.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>вывести текущие значения</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Читает настройки проекторов и выводит их; если ключ не указан — все.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>изменить настройки</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Меняет настройки в указанном порядке, считывает каждую обратно и выводит значение до и после. Сначала все ключи и значения проверяются для всех проекторов; если хотя бы для одного значение неверно, ничего не отправляется ни одному. О ключе, которого у проектора нет, сообщается, остальные выполняются.
KEY=VALUE задаёт значение; KEY+=N и KEY-=N сдвигают текущее значение. В записи KEY VALUE значения +3 и -3 — это шаги, а =-3 — число меньше нуля. «acctl undo» восстанавливает прежнее состояние, кроме питания и результатов действий.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>сбросить настройки к стандартным значениям проектора</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>вывести питание, вход, ошибки и часы</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Выводит страницу состояния указанных или всех проекторов.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>сохранить настройки в файлы</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Сохраняет все настройки, которые можно восстановить: одного проектора — в FILE («-» — стандартный вывод), любого числа проекторов — в папку, каждого в свой файл. Файл, который не является файлом настроек, без --force не заменяется.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>сравнить с сохранёнными настройками</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>восстановить сохранённые настройки</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>выводить значения и каждое их изменение</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Выводит значения, а затем каждое изменение. Завершается, если прервать, если вывод больше никто не читает или когда у всех проекторов будет значение из --until. Замолчавший проектор опрашивается снова и снова.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>искать проекторы в сети</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Опрашивает все проекторы PJLink в сети или по указанным адресам. ADDRESSES — это, например, 192.0.2.7, 192.0.2.0/24 или 192.0.2.10-40. Ничего не сохраняется, если не указан файл профилей в --add.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>взять проекторы из таблицы</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Добавляет строки значений, разделённых запятыми («-» — стандартный ввод), в файл профилей из --profiles или ACCTL_PROFILES и изменяет уже имеющиеся в нём.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>вывести проекторы в виде таблицы</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Выводит указанные или все проекторы как значения, разделённые запятыми, без паролей.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>пояснить команду</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>нет одного из знаков = != &lt; &lt;= &gt; &gt;=</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>нет значения</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>такой настройки нет ни у одной модели</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>больше и меньше бывают только числа</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>такой настройки нет ни у одной модели; все ключи выводит acctl settings</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>такой настройки нет ни у одной модели; возможно, имелось в виду %1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>от %1 до %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>от %1 до %2, отображается как %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>источник %1: это значение не хранится для каждого источника</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>источника %1 нет; всего источников: %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>значение %1 недопустимо; возможны: %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>текст «%1» не соответствует значению %2, его текст — «%3»; измените оба или удалите текст</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Читает, изменяет, сохраняет и восстанавливает настройки проекторов, которые показывает диалог «Расширенное управление». Проекторы берутся из файла профилей.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P выбирает проекторы: имя, шаблон вида «Lecture*», @TAG или model=PATTERN. Несколько условий разделяются запятыми, !P исключает проекторы. KEY — ключ настройки, шаблон вида «picture.*» или короткое имя, например brightness, input или power, одинаковое для всех моделей. VALUE — число, как его показывает диалог, текст пункта на любом языке диалога или его код.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Выполнено. В том числе если проектор в режиме ожидания не смог сообщить всё или принял изменение, которое ещё не вступило в силу.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Что-то отклонено, у проектора нет указанной настройки или не удалось прочитать либо записать файл или вывод.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Неверный вызов: ни одному проектору ничего не отправлено.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Проектор не ответил или не сообщил свои входы, либо он занят другим запуском acctl.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Прервано; в отчёте указано, что выполнено.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Использование: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Команды</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Общие параметры всех команд; «acctl help COMMAND» выводит параметры команды и примеры</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Примеры</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Коды завершения</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>число</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>выбор</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>состояние</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>действие</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>короткое имя: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>вкладка</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>название</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>вид</translation>
    </message>
    <message>
        <source>values</source>
        <translation>значения</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>те, что сообщает проектор</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>команды</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>хранится</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>для каждого источника сигнала</translation>
    </message>
    <message>
        <source>models</source>
        <translation>модели</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n настройка</numerusform>
            <numerusform>%n настройки</numerusform>
            <numerusform>%n настроек</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>в %1 нет профилей; укажите файл в --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>взять проекторы из FILE</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>только проекторы в этом состоянии, например «power=on lamp-hours&gt;1500»</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>проектор находится по адресу ADDRESS; P задаёт только его модель</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>порт проекторов при поиске; по умолчанию 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>пароль PJLink; здесь он виден другим пользователям этого компьютера</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>пароль — первая строка FILE</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>вывод: text, json, jsonl (строка на каждое значение или проектор), tsv или value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>то же, что --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>только имена или ключи, по одному в строке</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>только настройки, доступные командам get, set, reset или watch</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>только ключи, подходящие под GLOB; можно указать несколько раз</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>взять строки KEY=VALUE из FILE («-» — стандартный ввод)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>сохранить каждый проектор в отдельный файл в DIR</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>добавить найденное в файл профилей FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>вывести, что изменилось бы, ничего не меняя</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>ждать этого состояния не дольше TIME, например 90s или 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>завершить, когда это значение будет у всех проекторов</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>завершить с кодом 1, если есть отличия, с кодом 2, если что-то не удалось сравнить</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>пропустить неверное в FILE, вместо того чтобы ничего не отправлять</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: и файл отмены другого проектора; save: заменять любой файл</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>вывести список запусков, которые можно отменить</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>папка для файлов отмены</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>удалить файлы отмены старше N дней; по умолчанию 30, при 0 хранятся все</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>сколько проекторов сразу, от 1 до 1024; по умолчанию 512 при чтении и 64 при изменении</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>время ожидания ответа; по умолчанию 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>повторить обращение к не ответившему проектору N раз; по умолчанию 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>после первой ошибки не начинать другие проекторы</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>время между двумя чтениями; по умолчанию 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>язык текстов, например de или zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>эта справка; после команды — справка по ней</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>версия</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>не удалось выполнить запись: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>«%1» недопустимо</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>нет знака «=»</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>нет настройки %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>не удалось прочитать %1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>первая строка пуста</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Пароль для %1: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (имитация)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>добавлено: %1, изменён адрес: %2, уже известно: %3</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>требуется пароль</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>укажите файл профилей в --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>неиспользованные столбцы: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>добавлено: %1, уже известно: %2, с ошибками: %3</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: «%2» — не KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: нет ни одной строки KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>здесь нужен один проектор, указано: %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>отменён</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>не удалось записать в %1, что запуск отменён: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>с проектором работает другой запуск acctl</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>не начато из-за ошибки на другом проекторе</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>имитировано самим acctl, ничего надолго не изменено</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>прервано; выше указано, что выполнено</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>в режиме ожидания, пропущено: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>прогрев, пропущено: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>охлаждение, пропущено: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>пропущено, этот проектор не предлагает: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n проектор</numerusform>
            <numerusform>%n проектора</numerusform>
            <numerusform>%n проекторов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>изменено: %n</numerusform>
            <numerusform>изменено: %n</numerusform>
            <numerusform>изменено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>отличается: %n</numerusform>
            <numerusform>отличается: %n</numerusform>
            <numerusform>отличается: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>уже задано: %n</numerusform>
            <numerusform>уже задано: %n</numerusform>
            <numerusform>уже задано: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>ещё не в силе: %n</numerusform>
            <numerusform>ещё не в силе: %n</numerusform>
            <numerusform>ещё не в силе: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>принято, но ещё не вступило в силу</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>отклонено: %n</numerusform>
            <numerusform>отклонено: %n</numerusform>
            <numerusform>отклонено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>занято: %n</numerusform>
            <numerusform>занято: %n</numerusform>
            <numerusform>занято: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>проектор занят или в режиме ожидания</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>не подтверждено: %n</numerusform>
            <numerusform>не подтверждено: %n</numerusform>
            <numerusform>не подтверждено: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>не подтверждено, значение могло измениться</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>не выполнено: %n</numerusform>
            <numerusform>не выполнено: %n</numerusform>
            <numerusform>не выполнено: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>пропущено, у этой модели этого нет</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>пропущено, этот проектор этого не предлагает</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>пропущено, восстановить нельзя</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>пропущено, эта модель такого не принимает</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>остановлено на %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>не отправлено, до значения больше %n шага</numerusform>
            <numerusform>не отправлено, до значения больше %n шагов</numerusform>
            <numerusform>не отправлено, до значения больше %n шагов</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>отклонено, сейчас %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>сейчас прочитать нельзя</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>не сравнено: %n</numerusform>
            <numerusform>не сравнено: %n</numerusform>
            <numerusform>не сравнено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>пропущено: %n</numerusform>
            <numerusform>пропущено: %n</numerusform>
            <numerusform>пропущено: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>делать нечего</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>пропущена %n настройка из файла, которой нет в PJLink</numerusform>
            <numerusform>пропущены %n настройки из файла, которых нет в PJLink</numerusform>
            <numerusform>пропущено %n настроек из файла, которых нет в PJLink</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; больше ничего не отправлено</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; ничего не отправлено</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: отменяет изменение на %2; чтобы применить к %3, добавьте --force</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: в файле нет такой настройки</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: нет проектора «%2»</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: файл %2 относится к тому же проектору %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: в папке нет файлов настроек</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: в %2 нет файла для этого проектора</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: не файл настроек; заменить можно с --force</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: нет такого файла или папки</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>укажите проекторы, к которым применить файл</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>один файл — для одного проектора, а указано: %1; папку задаёт -o</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>не удалось создать папку %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; чтобы отменить более ранний запуск, укажите его</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>нет запусков, которые можно отменить</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>нет запуска «%1»; список выводит --list</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: больше нет в файле профилей</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>сейчас прочитать нельзя, не сохраняется</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>ничего прочитать нельзя, ничего не записано</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n настройка сохранена в %1</numerusform>
            <numerusform>%n настройки сохранены в %1</numerusform>
            <numerusform>%n настроек сохранено в %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>нет проектора «%1»; все проекторы выводит acctl list</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>отклонено, проектор в режиме ожидания</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>отклонено, проектор прогревается</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>отклонено, проектор охлаждается</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>отклонено, проектор занят</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>это нельзя отменить: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>остановлено, принято %1 из %n шага</numerusform>
            <numerusform>остановлено, принято %1 из %n шагов</numerusform>
            <numerusform>остановлено, принято %1 из %n шагов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; принято %2 из %n шага</numerusform>
            <numerusform>%1; принято %2 из %n шагов</numerusform>
            <numerusform>%1; принято %2 из %n шагов</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>принято, но ещё не вступило в силу, сейчас %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, значение могло измениться, сейчас %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, значение могло измениться</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>отклонено</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>не достигнуто вовремя, сейчас %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>не достигнуто вовремя</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: не строка файла отмены</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: отменять нечего</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>не удалось записать %1: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>неверные параметры соединения</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>неизвестное имя узла</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>недоступен</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>соединение потеряно</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>ответы непонятны</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>другая версия протокола</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>пароль неверен или не указан</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>нет ответа</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>нет ответа (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>у этой модели нет такой настройки</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>пропущено, в PJLink этого нет</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>сейчас прочитать нельзя</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>этот проектор этого не предлагает</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>не прочитано, проектор не сообщил свои входы</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>в PJLink этого нет</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>это нельзя прочитать</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>это нельзя задать</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>это нельзя восстановить</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>это нельзя сбросить</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, проектор в режиме ожидания</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, проектор прогревается</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, проектор охлаждается</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>снова отвечает</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: «%1» — не KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Выводит отличия от файла («-» — стандартный ввод), от пресета графического приложения или от собственного файла каждого проектора в папке.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Читает проекторы, отправляет то, что отличается от файла («-» — стандартный ввод), от пресета графического приложения или от собственного файла каждого проектора в папке, и считывает обратно. Заменяемые значения предварительно сохраняются, чтобы их мог восстановить «acctl undo». Прерванный запуск можно повторить в любой момент.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>прежнее значение не удалось прочитать, восстановить его будет нельзя</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>прежнее значение не удалось прочитать</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>это нельзя отменить</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Сбрасывает настройки к собственным стандартным значениям проектора и выводит новые значения. «acctl undo» восстанавливает прежние значения. Счётчики часов сбрасываются только по точным ключам, потому что отменить это нельзя.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>отменить последний запуск, изменивший настройки</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>этот запуск не изменил ни один из этих проекторов</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Восстанавливает то, что заменил запуск «set», «reset» или «apply». RUN — имя из «acctl undo --list», файл или «last»; без него отменяется последний запуск. С P или --where восстанавливаются только эти проекторы, а остальное можно отменить позже. Саму отмену тоже можно отменить по её имени.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>прервано</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>принято, но не подтверждено: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>«%1» должно начинаться с / или ~/</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>ожидание другой программы, которая изменяет %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>По&amp;дтвердить</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>Подтвердить вс&amp;е</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Оповещение</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Оповещения</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 не отвечает</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: лампа отработала %2 из %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n настройка отличается от эталона</numerusform>
            <numerusform>%1: %n настройки отличаются от эталона</numerusform>
            <numerusform>%1: %n настроек отличаются от эталона</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>подтверждено</translation>
    </message>
    <message>
        <source>open</source>
        <translation>не подтверждено</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Показать эту справку.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>Взять проекторы из файла &lt;файл&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>файл</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Следить за одной из нескольких долей: 2/5 — вторая из пяти.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>доля</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Следить только за проекторами с тегом &lt;тег&gt; или одним из нескольких.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>тег</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Опрашивать каждый проектор раз в &lt;секунды&gt; с, не менее 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>секунды</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Раз в день сравнивать каждый проектор с его снимком в папке &lt;папка&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>папка</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Принимать уведомления о состоянии проекторов по адресу &lt;адрес&gt;.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>адрес</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Отдавать метрики по адресу &lt;адрес:порт&gt;; «none» — нигде.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>адрес:порт</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Записывать метрики в файл &lt;файл&gt; каждые 15 секунд — для сборщика, читающего текстовые файлы.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Отправлять сообщения брокеру MQTT на &lt;узел:порт&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>узел:порт</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Версия MQTT: 3 (3.1.1) или 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>версия</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>Первая строка файла &lt;файл&gt; — имя пользователя для брокера.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>Первая строка файла &lt;файл&gt; — пароль для брокера.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Шифровать и доверять тем центрам сертификации, которым доверяет система.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Шифровать и доверять центрам сертификации из файла &lt;файл&gt;.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>Сертификат этого клиента.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Ключ к сертификату.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>Первый уровень всех тем.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>тема</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>Первый уровень тем обнаружения; «none» — без обнаружения.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Взять на себя долю моста, который молчит уже &lt;секунды&gt; с.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Настройки, которые можно менять командами: ключи или шаблоны через запятую; «power» — питание. Без этого параметра менять ничего нельзя.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>ключи</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Сколько команд в минуту принимает каждый проектор.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Язык имён в сообщениях обнаружения и сообщений самой программы: &lt;название&gt;, например de или zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>название</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>«%1» — не время в пределах от %2 секунд до суток</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>«%1» — не тема</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>«%1» — не доля вида 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>«%1» — не числовой адрес с портом</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>не удалось прочитать %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>файл %1 пуст</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>для --%1 нужен --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>«%1» — не узел с портом</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>«%1» — ни 3, ни 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file и --key-file указываются только вместе</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: «%1» — не настройка, которую можно менять командами</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>«%1» — не число от 1 до %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Следит за проекторами и передаёт сведения о них в хранилище метрик и брокеру сообщений.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>лишний аргумент «%1»</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>не указан --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>«%1» — не числовой адрес</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>«%1» — не папка</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>нет текстов на языке «%1»</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>ни у одного проектора нет тега «%1»</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>Лишний знак «=» в «%1».</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>Для --%1 нужно значение.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Открывает диалоги настроек проекторов, настоящих или имитируемых.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Показать эту справку.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>Взять проекторы из файла &lt;файл&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>файл</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>При запуске открыть диалог проектора &lt;имя&gt;.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>имя</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>С --open: выбрать вкладку &lt;n&gt;, считая от 0.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>Вывести таблицу проекторов.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>С --open: сохранить снимок диалога (PNG) и завершить работу.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Сохранить снимки всех вкладок для проекторов всех видов в папку &lt;папка&gt; и завершить работу.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>папка</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Показывать тексты на языке &lt;имя&gt;, например de или zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: нет текстов на языке «%1».</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Лишний аргумент «%1».</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>Из --list, --tour и --open можно указать только один параметр.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>Для --%1 нужен --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: «%1» — не число.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Только и&amp;зменения</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Только о&amp;шибки</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>Сохранить &amp;журнал как…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>О&amp;чистить журнал…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Журнал команд</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Скрыть команды, которые только читают</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Скрыть выполненные команды</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Фильтр журнала</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Сохранение журнала</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Таблицы (*.tsv);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Очистка журнала</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>Удалить %n запись журнала?</numerusform>
            <numerusform>Удалить все %n записи журнала?</numerusform>
            <numerusform>Удалить все %n записей журнала?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Проектор, настройка, команда или результат</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Все проекторы</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Показать команды</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Проектор</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>мс</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>прервано</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>нет ответа</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>занят</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>не предлагается</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>отклонено</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>ещё не в силе</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>успешно</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Настройка</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Опросить снова</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Применить</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Чтение настроек…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Отличий нет.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>Отличается %n проектор.</numerusform>
            <numerusform>Отличаются %n проектора.</numerusform>
            <numerusform>Отличаются %n проекторов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>У %n проектора все эти настройки уже заданы.</numerusform>
            <numerusform>У %n проекторов все эти настройки уже заданы.</numerusform>
            <numerusform>У %n проекторов все эти настройки уже заданы.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>Не удалось прочитать %n проектор.</numerusform>
            <numerusform>Не удалось прочитать %n проектора.</numerusform>
            <numerusform>Не удалось прочитать %n проекторов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n проектор сейчас сообщает не все эти настройки.</numerusform>
            <numerusform>%n проектора сейчас сообщают не все эти настройки.</numerusform>
            <numerusform>%n проекторов сейчас сообщают не все эти настройки.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>Пропущен %n проектор.</numerusform>
            <numerusform>Пропущено %n проектора.</numerusform>
            <numerusform>Пропущено %n проекторов.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>С&amp;пособ связи</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Сое&amp;динение</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Адрес</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>П&amp;орт</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Паро&amp;ль</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>&amp;Номер порта</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Устройство</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>Скорость (&amp;бод)</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Как у семейства</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Имитация</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Последовательный порт</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 — не адрес.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>П&amp;роверить соединение</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Результат проверки</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Соединяться не с чем.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Последовательный порт проверяется при открытии его диалога.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Опрос…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Ответил проектор: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>кавычка не закрыта</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>после закрывающей кавычки текст продолжается</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>больше %1 ячеек</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>ячеек: %1, а в заголовке: %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>больше %1 строк</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>нет заголовка</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>больше %1 байт</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>имитация</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Питание:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Источник:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Неполадка:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Изображение и звук:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Лампа:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Фильтр:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Настройки:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>Ответ получен:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Доля номинального ресурса лампы</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>&amp;Недавние события</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Недавние события</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Проектор не выбран</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>Выбран %n проектор</numerusform>
            <numerusform>Выбрано %n проектора</numerusform>
            <numerusform>Выбрано %n проекторов</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>пустой экран</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>без звука</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>стоп-кадр</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>показывается</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>пока ничего</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Настройка</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Отличия</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Сначала другие источники и режимы</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n настройка</numerusform>
            <numerusform>%n настройки</numerusform>
            <numerusform>%n настроек</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n настройка не относится к этой модели</numerusform>
            <numerusform>%n настройки не относятся к этой модели</numerusform>
            <numerusform>%n настроек не относятся к этой модели</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n настройку сейчас прочитать нельзя</numerusform>
            <numerusform>%n настройки сейчас прочитать нельзя</numerusform>
            <numerusform>%n настроек сейчас прочитать нельзя</numerusform>
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
        <translation>Неполадка: вентилятор</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Неполадка: лампа</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Неполадка: температура</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Неполадка: крышка</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Неполадка: фильтр</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Неполадка: прочее</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Доступность</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Питание</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>Режим ожидания</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Охлаждение</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Нет ошибок</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Крышка</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Вентилятор</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Лампа</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Поток воздуха</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Время работы лампы</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Низкая температура</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Время работы фильтра</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Прочее (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Отклонять</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Ошибка чтения</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Задерживать</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Обрывать связь</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>&amp;Задать сбой</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Убрать</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>Убр&amp;ать все</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> мс</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Действующие сбои</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>Пи&amp;тание</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>Состояние &amp;ошибки</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>&amp;Команда</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>С&amp;бой</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>Задер&amp;жка</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>Де&amp;йствующие</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Проектор не выбран</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Имитация проектора %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Имитируемые сбои проектора %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Все команды</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Выберите или введите часть названия или кода</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3 ms</source>
        <extracomment>A command, what is wrong with it (&quot;Delay&quot;), and for how many milliseconds.</extracomment>
        <translation>%1: %2, %3 мс</translation>
    </message>
    <message>
        <source>%1 (any code)</source>
        <translation>%1 (любой код)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n включён</numerusform>
            <numerusform>%n включено</numerusform>
            <numerusform>%n включено</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n выключен</numerusform>
            <numerusform>%n выключено</numerusform>
            <numerusform>%n выключено</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n с неполадками</numerusform>
            <numerusform>%n с неполадками</numerusform>
            <numerusform>%n с неполадками</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n недоступен</numerusform>
            <numerusform>%n недоступно</numerusform>
            <numerusform>%n недоступно</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n с оповещениями</numerusform>
            <numerusform>%n с оповещениями</numerusform>
            <numerusform>%n с оповещениями</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>самый давний ответ: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n не отслеживается</numerusform>
            <numerusform>%n не отслеживаются</numerusform>
            <numerusform>%n не отслеживаются</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>отклонено</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>проектор занят или в режиме ожидания</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>у проектора этого нет</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>модель не допускает такого значения</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>это нельзя задать</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>у модели этого нет</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>у модели нет такой настройки</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>для него нет снимка</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>не подтверждено, значение могло измениться</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>удалось отправить не всё</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>нет ответа</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>недоступен</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>нет соединения</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>неверные параметры соединения</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>неизвестное имя узла</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>соединение потеряно</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>ответы непонятны</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>другая версия протокола</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>пароль неверен или не указан</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>сейчас проектор не сообщает ни одной настройки</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Группы</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Неполадки</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выключены</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Недоступны</translation>
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
        <translation>В диалоге проектора</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Следующая вкладка</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Предыдущая вкладка</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Найти настройку</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Комбинации клавиш</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Расширенное управление %1&lt;/h3&gt;&lt;p&gt;Живые настройки проекторов: каждое значение читается с проектора, каждое изменение отправляется сразу.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>управляющий символ в тексте</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>половина суррогатной пары в тексте</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>текст длиннее %1 байт</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>больше %1 байт</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>глубина вложенности больше %1</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>больше %1 значений</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Все эти проекторы имитируются, чтобы можно было опробовать программу.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Расширенное управление: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Расширенное управление</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Открытие настроек</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>Открыть %n диалог?</numerusform>
            <numerusform>Открыть %n диалога?</numerusform>
            <numerusform>Открыть %n диалогов?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Оповещения</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Имитация</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Журнал команд</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>П&amp;араметры…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>П&amp;роектор</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>&amp;Открыть настройки</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Об&amp;новить</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Найти</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Имитация</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Журнал команд</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Оповещения</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Комбинации клавиш</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;О программе</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Сохранено в %1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Семейство</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Модель</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>&amp;Все поля модели</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>&amp;Тип диалога</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>&amp;Код модели</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Расширенное управление</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Расширенное управление</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Настройки проекторов</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Чтение и изменение настроек проекторов</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>проектор;видеопроектор;мультимедиа;яркость;трапеция;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Список, который показывает состояние сотен проекторов и позволяет изменять многие из них сразу, а для каждого проектора — диалог со вкладкой на каждую группу настроек. Каждое значение читается с проектора, каждое изменение отправляется сразу. В журнале видны все команды и их результаты.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>Проекторы можно имитировать и вручную задавать им сбои.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>не удалось создать диалог проектора %1</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>не удалось записать в папку %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source> s</source>
        <translation> с</translation>
    </message>
    <message>
        <source>never</source>
        <translation>никогда</translation>
    </message>
    <message>
        <source> min</source>
        <translation> мин</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Вентилятор, лампа, температура, крышка, фильтр</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>&amp;Настройки, отличающиеся от эталона</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Уведомления на &amp;рабочем столе</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Не беспокоить с</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Не беспокоить до</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Язык (после перезапуска)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>О&amp;прашивать каждый проектор раз в</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Оповещения</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>Наработка &amp;лампы от номинального ресурса</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>Не отвечает &amp;дольше</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Время без уведомлений</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Как на рабочем столе</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Цветовая схема</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(если время одинаковое — выключено)</translation>
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
        <translation>П&amp;ресеты</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Применить к выбранным</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Пресетов пока нет</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Сохранить как пресет…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>&amp;Назначить эталон</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>С&amp;равнить с эталоном</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>&amp;Вернуть к эталону</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Сохранение пресета</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Сохранено как пресет %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Пресеты</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Пресет %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Назначение эталона</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Ни для одного из выбранных проекторов не назначен эталонный пресет.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Возврат к эталону</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Вернуть к эталону настройки %n проектора?</numerusform>
            <numerusform>Вернуть к эталону настройки %n проекторов?</numerusform>
            <numerusform>Вернуть к эталону настройки %n проекторов?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Чтение настроек %1…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Пресет</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Эталон</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Эталон</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>&amp;Управление пресетами…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Все с тегом %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Сохранение пресета</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Настройка</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Настройки пресета</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;Имя пресета</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Все</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Отметить все настройки</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Эта &amp;страница</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Отметить только настройки выбранной страницы</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Ничего</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Снять все отметки</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Со&amp;хранить</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Недопустимое имя пресета: уберите косые черты и точку в начале.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>Отмечена %n настройка.</numerusform>
            <numerusform>Отмечены %n настройки.</numerusform>
            <numerusform>Отмечено %n настроек.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Пресет %1 будет заменён.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Переименование пресета</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Удаление пресета</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>не удалось создать папку %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Пресеты</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Настройка</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Настройки пресета</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Переименовать</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Пресетов пока нет</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Эталон для: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Недопустимое имя пресета: уберите косые черты и точку в начале.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Пресет %1 уже есть.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>Удалить пресет %1?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Добавить…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Изменить…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>Ду&amp;блировать…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Удалить…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>&amp;Теги…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавление</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменение</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Дублирование</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Удаление проектора</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Удаление проекторов</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>Удалить «%1» из %2?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>Удалить %n проектор из %1?</numerusform>
            <numerusform>Удалить %n проектора из %1?</numerusform>
            <numerusform>Удалить %n проекторов из %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Изменение тегов</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Теги %n проектора через запятую;
минус перед тегом снимает его:</numerusform>
            <numerusform>Теги %n проекторов через запятую;
минус перед тегом снимает его:</numerusform>
            <numerusform>Теги %n проекторов через запятую;
минус перед тегом снимает его:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>«%1» — не MAC-адрес</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>«%1» — не вид связи</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>«%1» — имя другого проектора, с идентификатором %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>«%1» — не число часов</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>«%1» — имя другого проектора</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>в заголовке нет столбца «name»</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>Файл %1 изменён другой программой. Прочитайте его заново (F5) и повторите действие.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Имя</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Добавление проектора</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Изменение проектора</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Дублирование проектора</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Осталось заполнить: %1</translation>
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
        <translation>последовательный порт %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>семейств: %1; возможно не больше %2</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>ведёт больше чем через %1 семейств</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>делает «%1» образцом для самого себя</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>нет семейства «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>нет «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>значение «%1» поля %2 уже есть у projectors[%3]</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>в файле должен быть объект</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>нет «projectors»</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>нет ни одного проектора</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>указано дважды</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>не удалось прочитать профили %1: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>не обычный файл</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>не имя диапазона и не число от 0 до %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>нужно указать по имени «%1»</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>допустимо [минимум, максимум] или null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>минимум больше максимума</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>неизвестный ключ; известны: %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>должен быть объект</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>должен быть массив</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>элементов: %1; возможно не больше %2</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>должен быть непустой текст</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>длиннее %1 байт</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>должно быть целое число</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>равно %1; допустимо от %2 до %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>должно быть число, текст или объект с «value» и «name»</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>должен быть путь, начинающийся с /</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>не имя узла и не IP-адрес</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>нужно либо «network», либо «serial»</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>допустимо simulated, network, serial или pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>нужно соединение %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>нет настройки «%1»</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;Открыть профили…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>П&amp;рочитать заново</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>&amp;Сохранить профили как…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Открытие профилей</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Профили (*.json);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Повторное чтение файла</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Сохранение профилей</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Файл только для чтения</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>Изменить %1 нельзя. Сначала сохраните профили в другом файле.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Сохранить профили как…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>Сделанные до сих пор изменения больше нельзя отменить.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Вернуть</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>Не удалось выполнить; ничего не изменено.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>другая программа изменяет %1; повторите попытку</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>в %1 нет профилей; укажите файл в --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Соединение</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n снимок сохранён в %2, видов проекторов: %1</numerusform>
            <numerusform>%n снимка сохранено в %2, видов проекторов: %1</numerusform>
            <numerusform>%n снимков сохранено в %2, видов проекторов: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: нет проектора «%1»; все имена выводит --list.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: нет вкладки %1; у «%2» вкладки от 0 до %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>нет дисплея; без него доступны --list, --tour и --screenshot.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Питание</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Лампа</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Неполадка</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Место</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Последний ответ</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · открыт</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Имя, модель, место, адрес, вкладка или настройка</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Поиск проекторов</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Проекторы</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>найден %n</numerusform>
            <numerusform>найдено %n</numerusform>
            <numerusform>найдено %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Диск</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Папка</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Использование: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[параметры]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Показать сведения о версии.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Неизвестный параметр «%1».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Неизвестные параметры: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Отсутствует значение после «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Неожиданное значение после «%1».</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>«%1» — не IP-адрес и не диапазон адресов</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>больше %1 адресов</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Искать</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Поиск проекторов</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>сети этого компьютера</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Например, 192.0.2.0/24 или 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Найденные проекторы</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Адреса</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Пароль</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>&amp;Добавить отмеченные</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>уже известен</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>требует пароль</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>найден %n</numerusform>
            <numerusform>найдено %n</numerusform>
            <numerusform>найдено %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>найден %n, опрошено адресов: %1 из %2…</numerusform>
            <numerusform>найдено %n, опрошено адресов: %1 из %2…</numerusform>
            <numerusform>найдено %n, опрошено адресов: %1 из %2…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>Со&amp;хранить настройки…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>Ср&amp;авнить с файлом…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>При&amp;менить настройки…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Сохранение настроек</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Сохранение настроек в папку</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Настройки (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Чтение настроек…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Открытие настроек</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Настройки сохранены в %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Настройки %n проектора сохранены в %1.</numerusform>
            <numerusform>Настройки %n проекторов сохранены в %1.</numerusform>
            <numerusform>Настройки %n проекторов сохранены в %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>Не удалось прочитать %n настройку.</numerusform>
            <numerusform>Не удалось прочитать %n настройки.</numerusform>
            <numerusform>Не удалось прочитать %n настроек.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Применение настроек</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Сравнение настроек</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>Прежние значения сохранены в %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>не удалось прочитать %1: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>стандартный ввод</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 указано дважды</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: не удалось занять порт</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>нет проектора «%1»</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: проекторы читаются из %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 уже существует и записан не этой программой</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>«%1» — не порт.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>«%1» — не число от %2 до %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>«%1» — не время в пределах часа.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Показать эту справку.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>Имитировать проекторы из файла &lt;файл&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>файл</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Имитировать только проектор &lt;имя&gt;; можно указать несколько раз.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>имя</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Принимать соединения по адресу &lt;адрес&gt; вместо 127.0.0.1; с --fleet — адрес первого проектора вместо 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>адрес</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>Первый проектор — на порту &lt;n&gt;, остальные — на следующих; при 0, как и без этого параметра, берутся любые свободные. С --fleet &lt;n&gt; — порт каждого проектора для собственного протокола, а следующий — для PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink запрашивает пароль &lt;текст&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>текст</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Открывать для каждого проектора и псевдотерминал.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Начать со сбоя: %1. Для доли проекторов: «silent 5%». Можно указать несколько раз.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>сбой</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Всё случайное зависит от &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Принимать сбои на порту &lt;n&gt; петлевого адреса, по одному в строке: номер проектора, начиная с 1, или *, и сбой.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Записать в файл &lt;файл&gt; профили, по которым к имитируемым проекторам можно подключиться.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>Имитировать &lt;n&gt; проекторов по образцу проекторов из профилей, каждый на собственном петлевом адресе.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Для --fleet: что использует --write-profiles: pjlink, network или mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>способ</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Для --fleet: через сколько секунд проектор включается.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>секунды</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Для --fleet: через сколько секунд проектор переходит в режим ожидания.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Для --fleet: сколько изменений состояния в секунду происходит само собой.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Для --fleet: отправлять уведомления PJLink о состоянии по этому адресу.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>адрес:порт</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Для --fleet: в конце записать в файл &lt;файл&gt;, сколько раз опрашивался каждый проектор.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Язык справки и ошибок — &lt;имя&gt;, например de или zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Имитирует проекторы по TCP, PJLink и через псевдотерминалы. Выводит адреса, по одному в строке, затем «ready».</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Лишний аргумент «%1».</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>Для --%1 нужен --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>«%1» — не адрес.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: длиннее %1 байт.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: «%1» не входит в число допустимых: %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>У --fleet нет последовательных портов.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>«%1» — не петлевой адрес IPv4.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>После «%1» остаётся слишком мало адресов.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>После «%1» не остаётся порта для PJLink.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>«%1» — не петлевой адрес IPv4 с портом.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>«%1» — не pjlink, не network и не mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>здесь нужно целое число</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>должно быть целое число от %1 до %2, а указано %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>должна быть строка текста</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>должен быть объект</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>должен быть массив</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>больше %1 элементов</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>это не файл сохранённых настроек</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>известна только версия %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>«%1» указано дважды</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>больше 4 МиБ</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>должен содержать объект</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>строка %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Не отслеживается</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Опрос…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Неизвестный узел</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Нет ответа</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Неверный пароль</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Непонятный ответ</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Режим ожидания</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Охлаждение</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Прогрев</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Вентилятор</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Лампа</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Крышка</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Прочее</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (предупреждение)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 ч</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Как в эталоне</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n отличается</numerusform>
            <numerusform>%n отличаются</numerusform>
            <numerusform>%n отличаются</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 с назад</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выкл.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>вкл.</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Питание</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Пустой экран</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Стоп-кадр</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Отличающиеся настройки</translation>
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
        <translation>&amp;Найти в сети…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>&amp;Импорт таблицы…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>&amp;Экспорт таблицы…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Поиск проекторов</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Добавление найденных проекторов</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Импорт таблицы</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Таблицы (*.csv *.tsv *.txt);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Строка %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Экспорт таблицы</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Таблицы (*.csv);;Все файлы (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>Добавлен %n проектор</numerusform>
            <numerusform>Добавлено %n проектора</numerusform>
            <numerusform>Добавлено %n проекторов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n уже известен</numerusform>
            <numerusform>%n уже известны</numerusform>
            <numerusform>%n уже известны</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>не принята %n строка</numerusform>
            <numerusform>не приняты %n строки</numerusform>
            <numerusform>не принято %n строк</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Неиспользованные столбцы: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>Вк&amp;лючить</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>В&amp;ыключить</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>Питани&amp;е</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Вход</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>&amp;Пустой экран</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Включить пустой экран</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Включить пустой экран на %n проекторе?</numerusform>
            <numerusform>Включить пустой экран на %n проекторах?</numerusform>
            <numerusform>Включить пустой экран на %n проекторах?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Показать изображение</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Показать изображение на %n проекторе?</numerusform>
            <numerusform>Показать изображение на %n проекторах?</numerusform>
            <numerusform>Показать изображение на %n проекторах?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>Без &amp;звука</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Отключить звук</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Отключить звук на %n проекторе?</numerusform>
            <numerusform>Отключить звук на %n проекторах?</numerusform>
            <numerusform>Отключить звук на %n проекторах?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Включить звук</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Включить звук на %n проекторе?</numerusform>
            <numerusform>Включить звук на %n проекторах?</numerusform>
            <numerusform>Включить звук на %n проекторах?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>&amp;Стоп-кадр</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Включить стоп-кадр</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Включить стоп-кадр на %n проекторе?</numerusform>
            <numerusform>Включить стоп-кадр на %n проекторах?</numerusform>
            <numerusform>Включить стоп-кадр на %n проекторах?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Снять стоп-кадр</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Снять стоп-кадр на %n проекторе?</numerusform>
            <numerusform>Снять стоп-кадр на %n проекторах?</numerusform>
            <numerusform>Снять стоп-кадр на %n проекторах?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Включение</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Выключение</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>Включить %n проектор?</numerusform>
            <numerusform>Включить %n проектора?</numerusform>
            <numerusform>Включить %n проекторов?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>Выключить %n проектор?</numerusform>
            <numerusform>Выключить %n проектора?</numerusform>
            <numerusform>Выключить %n проекторов?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Вход %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Выбрать вход %1 на %n проекторе?</numerusform>
            <numerusform>Выбрать вход %1 на %n проекторах?</numerusform>
            <numerusform>Выбрать вход %1 на %n проекторах?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Входы неизвестны</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>не удалось записать %1: %2</translation>
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
        <translation>Проектор</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Проекторы</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Повторить неудавшиеся</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>&amp;Отменить всё</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>&amp;Выполнить остальные</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>у модели этого нет</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>готово: %1 из %n</numerusform>
            <numerusform>готово: %1 из %n</numerusform>
            <numerusform>готово: %1 из %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Отмена: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>выполняется…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>готово</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>принято, ещё выполняется</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>отклонено</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>нет ответа</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>остановлено</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>готово, не удалось прочитать %n настройку</numerusform>
            <numerusform>готово, не удалось прочитать %n настройки</numerusform>
            <numerusform>готово, не удалось прочитать %n настроек</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>ещё выполняется: %n</numerusform>
            <numerusform>ещё выполняется: %n</numerusform>
            <numerusform>ещё выполняется: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>с ошибкой: %n</numerusform>
            <numerusform>с ошибкой: %n</numerusform>
            <numerusform>с ошибкой: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>неизвестно, был ли он включён</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>остановлено: %n</numerusform>
            <numerusform>остановлено: %n</numerusform>
            <numerusform>остановлено: %n</numerusform>
        </translation>
    </message>
</context>
</TS>
