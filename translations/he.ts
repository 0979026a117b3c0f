<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no step such as +1 or -1, and PJLink can only step it</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list models</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print present values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>change settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>undo the last run of set or apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restores what the last run of &apos;set&apos; or &apos;apply&apos; replaced, on all its projectors, or what RUN replaced: a name that &apos;acctl undo --list&apos; prints, or a file. An undo can itself be undone by its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>models</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>apply: also the undo file of another projector; save: replace any file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accepted, but %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answers again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>address:port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>host:port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>topic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>n</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no time from %2 seconds to a day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no topic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no share such as 2/5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no numeric address with a port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no host with a port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is no setting that may be commanded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number from 1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no numeric address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the commands of</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not offered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As its family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no address.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent e&amp;vents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>muted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frozen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Discovery</name>
    <message>
        <source>Problem: fan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Error status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (any code)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2, %3 ms</source>
        <extracomment>A command, what is wrong with it (&quot;Delay&quot;), and for how many milliseconds.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpWindows</name>
    <message>
        <source>In a projector&apos;s dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All &amp;fields of the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dialog &amp;type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(the same time twice: none)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetActions</name>
    <message>
        <source>P&amp;resets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Should be</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A preset cannot be called so: leave out slashes, and a dot in front.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is no MAC number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileFile</name>
    <message>
        <source>serial port %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stands here twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>known already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands here twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port cannot be had</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is no port.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number from %2 to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no time up to an hour.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>n</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>address:port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no IPv4 loopback address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no IPv4 loopback address with a port.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no file of saved settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands here twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TransferActions</name>
    <message>
        <source>Find on the &amp;Network…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns that mean nothing here: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WorkActions</name>
    <message>
        <source>%1, %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WorkDialog</name>
    <message>
        <source>Projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, of these %n still under way</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n failed</source>
        <comment>projectors</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>working…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
</TS>
