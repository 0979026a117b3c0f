<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>l’opzione --%1 non esiste</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 non accetta valori</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 richiede %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 non accetta %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: «%2» non è possibile</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>manca un comando; --help li elenca</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>il comando «%1» non esiste; --help li elenca</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 non ha questo --format</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>uso: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>il nome del file è vuoto</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>«%1» non è possibile; valori possibili: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>«%1» non è un passo come +1 o -1, e PJLink può cambiare questa impostazione solo a passi</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>«%1» supera %n passo</numerusform>
            <numerusform>«%1» supera %n passi</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>«%1» a partire da %2 non è possibile; valori possibili: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>«%1» supera %n passo a partire da %2</numerusform>
            <numerusform>«%1» supera %n passi a partire da %2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>elenca i proiettori</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Mostra nome, modello, insieme di pagine, codice di serie, connessione ed etichette dei proiettori indicati, o di tutti.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>elenca i modelli</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Mostra i modelli del file dei profili, con il numero di proiettori e di impostazioni di ciascuno.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>elenca le impostazioni e i loro valori</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Mostra le impostazioni del modello: chiave, scheda, didascalia e valori possibili. Il proiettore non viene interrogato.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>spiega un’impostazione</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Spiega un’impostazione: scheda e didascalia, valori possibili con i loro codici, modelli che la possiedono, e se può essere cambiata, reimpostata, salvata e ripristinata.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>mostra i valori attuali</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Legge impostazioni dai proiettori e le mostra; senza una chiave, tutte.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>cambia impostazioni</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Cambia impostazioni nell’ordine indicato, le rilegge e mostra il valore prima e dopo. Prima vengono controllate tutte le chiavi e tutti i valori per tutti i proiettori; se un valore è errato per uno di essi, non viene inviato nulla a nessuno. Una chiave che un proiettore non ha viene segnalata e non ferma gli altri.
KEY=VALUE imposta un valore; KEY+=N e KEY-=N cambiano di N il valore attuale. Nella forma KEY VALUE, +3 e -3 sono passi, e =-3 è un numero negativo. «acctl undo» ripristina ciò che c’era prima, tranne l’alimentazione e i risultati delle azioni.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>riporta impostazioni allo standard del proiettore</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>mostra alimentazione, ingresso, errori e ore</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Mostra la pagina di stato dei proiettori indicati, o di tutti.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>salva impostazioni in file</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Salva tutte le impostazioni che possono essere ripristinate: quelle di un proiettore in FILE («-» è l’output standard), o quelle di un numero qualsiasi di essi in una cartella, un file ciascuno. Un file che non è un file di impostazioni non viene sostituito senza --force.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>confronta con impostazioni salvate</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>ripristina impostazioni salvate</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>mostra valori e ogni cambiamento</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Mostra valori e poi ogni cambiamento, finché non viene interrotto, finché nessuno legge più l’output, o finché tutti i proiettori hanno il valore di --until. Un proiettore che smette di rispondere viene ritentato di continuo.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>cerca proiettori nella rete</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Chiede a ogni proiettore PJLink della rete, o degli indirizzi indicati, chi è. ADDRESSES si scrive come 192.0.2.7, 192.0.2.0/24 o 192.0.2.10-40. Nulla viene salvato, a meno che --add indichi un file di profili.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>importa proiettori da una tabella</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Aggiunge le righe di valori separati da virgole («-» è l’input standard) al file dei profili indicato da --profiles o ACCTL_PROFILES, e cambia i proiettori che già contiene.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>mostra i proiettori come tabella</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Mostra i proiettori indicati, o tutti, come valori separati da virgole, senza password.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>spiega un comando</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>manca uno dei segni = != &lt; &lt;= &gt; &gt;=</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>manca un valore</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>nessun modello ha questa impostazione</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>solo i numeri sono minori o maggiori</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>nessun modello ha questa impostazione; acctl settings elenca tutte le chiavi</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>nessun modello ha questa impostazione; si intendeva %1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>da %1 a %2, mostrato come %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>sorgente %1: questa impostazione non è propria di ciascuna sorgente</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>la sorgente %1 non esiste; ci sono %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>il valore %1 non è possibile; valori possibili: %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>il testo «%1» non è quello del valore %2, che è «%3»; cambiare entrambi o rimuovere il testo</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Legge, cambia, salva e ripristina le impostazioni dei proiettori mostrate dalla finestra di dialogo «Controllo avanzato». I proiettori sono quelli di un file di profili.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P seleziona i proiettori: un nome, un modello di nome come «Lecture*», @TAG o model=PATTERN. Più d’uno si separano con virgole, e !P esclude proiettori. KEY è la chiave di un’impostazione, un modello come «picture.*», o un nome breve come brightness, input o power, uguale per tutti i modelli. VALUE è un numero come lo mostra la finestra di dialogo, il testo di una voce in una qualsiasi delle sue lingue, o il suo codice.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Fatto. Anche se un proiettore in standby non ha potuto comunicare tutto, o ha accettato una modifica che non ha ancora avuto effetto.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Qualcosa è stato rifiutato, a un proiettore manca un’impostazione indicata, oppure un file o l’output non ha potuto essere letto o scritto.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Uso errato: non è stato inviato nulla a nessun proiettore.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Un proiettore non ha risposto o non ha comunicato i suoi ingressi, oppure lo usava un’altra esecuzione di acctl.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Interrotto; il resoconto dice che cosa è stato fatto.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandi</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Opzioni di tutti i comandi; «acctl help COMMAND» elenca quelle di un comando, con esempi</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Esempi</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Codici di uscita</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>numero</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>scelta</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>stato</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>azione</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>nome breve: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>scheda</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>didascalia</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>tipo</translation>
    </message>
    <message>
        <source>values</source>
        <translation>valori</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>quelli comunicati dal proiettore</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>comandi</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>conservato</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>per ciascuna sorgente di ingresso</translation>
    </message>
    <message>
        <source>models</source>
        <translation>modelli</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n impostazione</numerusform>
            <numerusform>%n impostazioni</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>nessun profilo in %1; indicare un file con --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>leggi i proiettori da FILE</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>solo i proiettori in questo stato, ad esempio «power=on lamp-hours&gt;1500»</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>il proiettore è a ADDRESS; P indica solo il suo modello</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>la porta dei proiettori cercati; predefinita 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>password di PJLink; gli altri utenti di questo computer possono vederla qui</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>la prima riga di FILE è la password</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>output: text, json, jsonl (una riga per valore o proiettore), tsv o value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>lo stesso di --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>solo nomi o chiavi, uno per riga</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>solo le impostazioni utilizzabili da get, set, reset o watch</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>solo le chiavi che corrispondono a GLOB; può essere ripetuto</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>prendi righe KEY=VALUE da FILE («-» è l’input standard)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>salva ogni proiettore in un proprio file in DIR</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>aggiungi ciò che è stato trovato al file dei profili FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>mostra ciò che cambierebbe, senza cambiare nulla</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>attendi che lo stato sia raggiunto, al massimo TIME, ad esempio 90s o 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>termina quando tutti i proiettori hanno questo valore</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>termina con 1 se qualcosa differisce, con 2 se qualcosa non ha potuto essere confrontato</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>ignora ciò che è errato in FILE invece di non inviare nulla</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: anche il file di annullamento di un altro proiettore; save: sostituisci qualsiasi file</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>elenca le esecuzioni che possono essere annullate</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>la cartella dei file di annullamento</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>elimina i file di annullamento più vecchi di N giorni; predefinito 30, 0 li conserva tutti</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>proiettori contemporanei, da 1 a 1024; predefinito 512 per leggere e 64 per cambiare</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>tempo per una risposta; predefinito 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>ritenta altre N volte un proiettore che non risponde; predefinito 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>non iniziare nessun altro proiettore dopo il primo errore</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>tempo tra due letture; predefinito 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>lingua dei testi, ad esempio de o zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>questo testo; con un comando, il suo</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>la versione</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>impossibile scrivere: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>«%1» non è possibile</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>manca «=»</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>l’impostazione %1 non esiste</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>la prima riga è vuota</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Password di %1: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simulato)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>%1 aggiunti, %2 spostati, %3 già noti</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>richiede una password</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>indicare il file dei profili con --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>colonne non usate: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>%1 aggiunti, %2 già noti, %3 errati</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: «%2» non è KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: non contiene KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>qui è possibile un solo proiettore, non %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>annullato</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>impossibile annotare in %1 che è annullato: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>lo usa un’altra esecuzione di acctl</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>non iniziato, perché un altro proiettore non è riuscito</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>simulato da acctl stesso, nulla è stato cambiato in modo duraturo</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>interrotto; ciò che è stato fatto è indicato sopra</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>in standby, tralasciato: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>in riscaldamento, tralasciato: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>in raffreddamento, tralasciato: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>ignorato, questo proiettore non lo offre: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n proiettore</numerusform>
            <numerusform>%n proiettori</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n cambiata</numerusform>
            <numerusform>%n cambiate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n diversa</numerusform>
            <numerusform>%n diverse</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n invariata</numerusform>
            <numerusform>%n invariate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n non ancora attiva</numerusform>
            <numerusform>%n non ancora attive</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>accettata, ma non ancora attiva</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n rifiutata</numerusform>
            <numerusform>%n rifiutate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n occupato</numerusform>
            <numerusform>%n occupati</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>il proiettore è occupato o in standby</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n non confermata</numerusform>
            <numerusform>%n non confermate</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>non confermata, potrebbe essere cambiata</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n non eseguita</numerusform>
            <numerusform>%n non eseguite</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>ignorata, questo modello non la ha</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>ignorata, questo proiettore non la offre</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>ignorata, non può essere ripristinata</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>ignorata, questo modello non accetta il valore</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>fermato a %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>non inviato, dista più di %n passo</numerusform>
            <numerusform>non inviato, dista più di %n passi</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>rifiutata, il valore è %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>il valore ora non può essere letto</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n non confrontata</numerusform>
            <numerusform>%n non confrontate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n ignorata</numerusform>
            <numerusform>%n ignorate</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nulla da fare</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>ignorata, PJLink non la conosce: %n impostazione del file</numerusform>
            <numerusform>ignorate, PJLink non le conosce: %n impostazioni del file</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; non è stato inviato altro</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; non è stato inviato nulla</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: annulla una modifica di %2; --force la applica a %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: il file non ha questa impostazione</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: il proiettore «%2» non esiste</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: anche %2 è di %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: la cartella non contiene file di impostazioni</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: non ha alcun file in %2</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: non è un file di impostazioni; --force lo sostituisce</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: questo file o questa cartella non esiste</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>indicare i proiettori a cui si applica il file</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>un file è per un proiettore, non per %1; -o indica una cartella</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>impossibile creare la cartella %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; indicare un’esecuzione precedente per annullare quella</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>non ci sono esecuzioni da annullare</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>l’esecuzione «%1» non esiste; --list le elenca</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: non è più nel file dei profili</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>ora non può essere letta e viene tralasciata</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>non si può leggere nulla, e non è stato scritto nulla</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n impostazione salvata in %1</numerusform>
            <numerusform>%n impostazioni salvate in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>il proiettore «%1» non esiste; acctl list li elenca tutti</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>rifiutata, il proiettore è in standby</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>rifiutata, il proiettore è in riscaldamento</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>rifiutata, il proiettore è in raffreddamento</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>rifiutata, il proiettore è occupato</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>questo non può essere annullato: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>fermato, accettato %1 passo su %n</numerusform>
            <numerusform>fermato, accettati %1 passi su %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; accettato %2 passo su %n</numerusform>
            <numerusform>%1; accettati %2 passi su %n</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>accettata, ma non ancora attiva, il valore è %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, potrebbe essere cambiata, il valore è %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, potrebbe essere cambiata</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rifiutata</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>non raggiunto in tempo, il valore è %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>non raggiunto in tempo</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: non è una riga di un file di annullamento</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: non c’è nulla da annullare</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>parametri di connessione errati</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nome host sconosciuto</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>non raggiungibile</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>connessione persa</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>risposte non comprensibili</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>altra versione del protocollo</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>password mancante o errata</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>nessuna risposta</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>nessuna risposta (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>questo modello non ha questa impostazione</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>ignorata, PJLink non la conosce</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>ora non può essere letta</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>questo proiettore non la offre</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>non letta, il proiettore non ha comunicato i suoi ingressi</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink non la conosce</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>questa non può essere letta</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>questa non può essere cambiata</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>questa non può essere ripristinata</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>questa non può essere reimpostata</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, il proiettore è in standby</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, il proiettore è in riscaldamento</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, il proiettore è in raffreddamento</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>risponde di nuovo</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: «%1» non è KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Mostra ciò che differisce da un file («-» è l’input standard), da una preimpostazione dell’applicazione grafica o dal file di ciascun proiettore in una cartella.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Legge i proiettori, invia ciò che differisce dal file («-» è l’input standard), da una preimpostazione dell’applicazione grafica o dal file di ciascun proiettore in una cartella, e lo rilegge. Ciò che viene sostituito è prima conservato, perché «acctl undo» possa ripristinarlo. Un’esecuzione interrotta può essere ripetuta in qualsiasi momento.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>non è stato possibile leggere il valore precedente, che quindi non può essere ripristinato</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>non è stato possibile leggere il valore precedente</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>questo non può essere annullato</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Riporta impostazioni allo standard del proiettore stesso e mostra il nuovo valore. “acctl undo” ripristina ciò che c’era prima. I contatori di ore si azzerano solo con la loro chiave esatta, perché ciò non può essere annullato.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>annulla l’ultima esecuzione che ha modificato impostazioni</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>l’esecuzione non ha modificato nessuno di questi proiettori</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Ripristina ciò che un’esecuzione di “set”, “reset” o “apply” ha sostituito. RUN è un nome mostrato da “acctl undo --list”, un file o “last”; senza RUN viene annullata l’ultima esecuzione. Con P o --where vengono ripristinati solo questi proiettori, e il resto dell’esecuzione può essere annullato in seguito. Anche un annullamento può essere annullato con il suo nome.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>interrotto</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>accettata, ma non confermata: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>«%1» deve iniziare con / o ~/</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>in attesa di un altro programma che sta cambiando %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>Confe&amp;rma</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>C&amp;onferma tutti</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Avvisi</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 non risponde</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: la lampada ha %2 di %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n impostazione non è come dovrebbe</numerusform>
            <numerusform>%1: %n impostazioni non sono come dovrebbero</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>confermato</translation>
    </message>
    <message>
        <source>open</source>
        <translation>aperto</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>I proiettori sono quelli di &lt;file&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>file</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Sorveglia una di più parti: 2/5 è la seconda di cinque.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>parte</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Sorveglia solo i proiettori con &lt;etichetta&gt;, o con una di più etichette.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>etichetta</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Visita ogni proiettore ogni &lt;secondi&gt;, almeno 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Una volta al giorno, confronta ogni proiettore con la sua istantanea in &lt;cartella&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>cartella</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Ascolta a &lt;indirizzo&gt; le notifiche di stato dei proiettori.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>indirizzo</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Offri le metriche a &lt;indirizzo:porta&gt;; «none» per nessun indirizzo.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>indirizzo:porta</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Scrivi le metriche in &lt;file&gt; ogni 15 secondi, per un raccoglitore di file di testo.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Invia messaggi al broker MQTT a &lt;host:porta&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>host:porta</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Versione di MQTT, 3 (3.1.1) o 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>versione</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>La prima riga di &lt;file&gt; è l’utente presso il broker.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>La prima riga di &lt;file&gt; è la password presso il broker.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Cifra, e considera attendibili le autorità che il sistema considera attendibili.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Cifra, e considera attendibili le autorità in &lt;file&gt;.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>Il certificato di questo client.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>La sua chiave.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>Il primo livello di tutti gli argomenti.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>argomento</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>Il primo livello degli argomenti di rilevamento; «none» per nessun rilevamento.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Prendi la parte di un ponte che non dà notizie da &lt;secondi&gt;.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Impostazioni che possono essere comandate: chiavi o modelli di chiavi, separati da virgole; «power» è l’alimentazione. Senza questa opzione, nessuna.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>chiavi</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Comandi che ogni proiettore accetta al minuto.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>I nomi nei messaggi di rilevamento e i messaggi di questo programma sono nella lingua &lt;nome&gt;, ad esempio de o zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>«%1» non è un tempo da %2 secondi a un giorno</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>«%1» non è un argomento</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>«%1» non è una parte come 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>«%1» non è un indirizzo numerico con porta</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 è vuoto</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 richiede --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>«%1» non è un host con porta</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>«%1» non è né 3 né 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file e --key-file vanno usati insieme</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: «%1» non è un’impostazione che può essere comandata</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>«%1» non è un numero da 1 a %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Sorveglia proiettori e ne comunica lo stato a un archivio di metriche e a un broker di messaggi.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argomento inatteso «%1»</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>manca --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>«%1» non è un indirizzo numerico</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>«%1» non è una cartella</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>non ci sono testi in «%1»</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>nessun proiettore ha l’etichetta «%1»</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>«=» inatteso in «%1».</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 richiede un valore.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Apre le finestre di dialogo delle impostazioni di proiettori, reali o simulati.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>Leggi i proiettori da &lt;file&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>file</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>All’avvio apri la finestra di dialogo del proiettore &lt;nome&gt;.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>Con --open: scegli la scheda &lt;n&gt;, contata da 0.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>Mostra la tabella dei proiettori.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>Con --open: salva un’immagine (PNG) della finestra di dialogo ed esci.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Salva immagini di tutte le schede di tutti i tipi di proiettori in &lt;cartella&gt; ed esci.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>cartella</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Mostra i testi nella lingua &lt;nome&gt;, ad esempio de o zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: non ci sono testi in «%1».</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argomento inatteso «%1».</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>È possibile solo una delle opzioni --list, --tour e --open.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 richiede --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: «%1» non è un numero.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Solo &amp;modifiche</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Solo &amp;errori</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>Salva re&amp;gistro con nome…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>S&amp;vuota registro…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Registro dei comandi</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Ometti i comandi che leggono soltanto</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Ometti i comandi che sono stati eseguiti</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Filtra il registro</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Salva registro</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Tabelle (*.tsv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Svuota registro</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>Rimuovere %n voce del registro?</numerusform>
            <numerusform>Rimuovere tutte le %n voci del registro?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Proiettore, impostazione, comando o risultato</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Tutti i proiettori</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Mostra i comandi di</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Proiettore</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>abbandonato</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>nessuna risposta</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>occupato</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>non offerto</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rifiutato</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>non ancora attivo</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Interroga di nuovo</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Applica</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Lettura delle impostazioni…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Nessuna differenza.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n proiettore differisce.</numerusform>
            <numerusform>%n proiettori differiscono.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n proiettore ha già tutte queste impostazioni.</numerusform>
            <numerusform>%n proiettori hanno già tutte queste impostazioni.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>Non è stato possibile leggere %n proiettore.</numerusform>
            <numerusform>Non è stato possibile leggere %n proiettori.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n proiettore ora non comunica tutte queste impostazioni.</numerusform>
            <numerusform>%n proiettori ora non comunicano tutte queste impostazioni.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n proiettore è stato saltato.</numerusform>
            <numerusform>%n proiettori sono stati saltati.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>&amp;Raggiungibile tramite</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Connes&amp;sione</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Indirizzo</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Porta</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;word</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>N&amp;umero di porta</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Dispositivo</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>&amp;Baud</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Come la famiglia</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulato</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Porta seriale</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 non è un indirizzo.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Pro&amp;va connessione</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Risultato della prova</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Non c’è nulla a cui connettersi.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Una linea seriale viene provata quando si apre la sua finestra di dialogo.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Interrogazione…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Risponde un proiettore: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>le virgolette non sono chiuse</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>un testo prosegue dopo le virgolette di chiusura</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>più di %1 celle</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>%1 celle, ma l’intestazione ne ha %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>più di %1 righe</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>manca l’intestazione</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>più di %1 byte</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>simulato</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Alimentazione:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Sorgente:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problema:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Immagine e suono:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Lampada:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtro:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Impostazioni:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>Ha risposto:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Parte della durata nominale della lampada</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>Eve&amp;nti recenti</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Eventi recenti</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Nessun proiettore selezionato</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>%n proiettore selezionato</numerusform>
            <numerusform>%n proiettori selezionati</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>schermo vuoto</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>muto</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>fermo immagine</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>visibile</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>ancora nulla</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Differenze</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Prima le altre sorgenti e modalità</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n impostazione</numerusform>
            <numerusform>%n impostazioni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n impostazione non riguarda questo modello</numerusform>
            <numerusform>%n impostazioni non riguardano questo modello</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n impostazione ora non può essere letta</numerusform>
            <numerusform>%n impostazioni ora non possono essere lette</numerusform>
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
        <translation>Problema: ventola</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Problema: lampada</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Problema: temperatura</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Problema: coperchio</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Problema: filtro</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Problema: altro</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Raggiungibile</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentazione</translation>
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
        <translation>Acceso</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Raffreddamento</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Nessun errore</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Coperchio</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventola</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampada</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Flusso d’aria</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Ore della lampada</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Freddo</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Ore del filtro</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Altro (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Rifiuta</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Letture non riuscite</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Ritarda</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Nessuna risposta</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>Impo&amp;sta guasto</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Rim&amp;uovi</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>Rimuovi &amp;tutti</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Guasti attivi</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>A&amp;limentazione</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>Stato di &amp;errore</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>&amp;Comando</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>&amp;Guasto</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>Ritar&amp;do</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>&amp;Attivi</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Nessun proiettore selezionato</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Simulazione di %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Guasti simulati di %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Tutti i comandi</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Scegliere o digitare parte di un nome o di un codice</translation>
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
        <translation>%1 (qualsiasi codice)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n acceso</numerusform>
            <numerusform>%n accesi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n spento</numerusform>
            <numerusform>%n spenti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n con problemi</numerusform>
            <numerusform>%n con problemi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n non raggiungibile</numerusform>
            <numerusform>%n non raggiungibili</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n con avvisi</numerusform>
            <numerusform>%n con avvisi</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>risposta più vecchia %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n non sorvegliato</numerusform>
            <numerusform>%n non sorvegliati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>rifiutata</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>il proiettore è occupato o in standby</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>il proiettore non la ha</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>il modello non consente questo valore</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>non può essere cambiata</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>il modello non la ha</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>il modello non ha questa impostazione</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>non ha alcuna istantanea</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>non confermata, potrebbe essere cambiata</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>non è stato possibile inviare tutto</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>nessuna risposta</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>non raggiungibile</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connesso</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>parametri di connessione errati</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nome host sconosciuto</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>connessione persa</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>risposte non comprensibili</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>altra versione del protocollo</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>password mancante o errata</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>il proiettore al momento non comunica nessuna impostazione</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemi</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Spenti</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Non raggiungibili</translation>
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
        <translation>Nella finestra di dialogo di un proiettore</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Pag giù</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Scheda successiva</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Maiusc+Tab, Ctrl+Pag su</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Scheda precedente</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Cerca un’impostazione</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Controllo avanzato %1&lt;/h3&gt;&lt;p&gt;Le impostazioni dei proiettori dal vivo: ogni valore è letto dal proiettore, ogni modifica è inviata subito.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>carattere di controllo in un testo</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>metà di una coppia surrogata in un testo</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>testo di più di %1 byte</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>più di %1 byte</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>più di %1 livelli di annidamento</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>più di %1 valori</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Tutti questi proiettori sono simulati, per provare il programma.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Controllo avanzato: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Controllo avanzato</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Apri impostazioni</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>Aprire %n finestra di dialogo?</numerusform>
            <numerusform>Aprire %n finestre di dialogo?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Avvisi</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulazione</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Registro dei comandi</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>Pre&amp;ferenze…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Proiettore</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>&amp;Apri impostazioni</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>A&amp;ggiorna</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Trova</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulazione</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Registro dei comandi</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Avvisi</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;iuto</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Salvato in %1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Famiglia</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modello</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>Tutti i c&amp;ampi del modello</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>&amp;Tipo di finestra di dialogo</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>&amp;Codice del modello</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Controllo avanzato</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Controllo avanzato</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Impostazioni di proiettori</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Leggi e cambia le impostazioni di proiettori</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>proiettore;videoproiettore;luminosità;trapezio;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Un elenco mostra come stanno centinaia di proiettori e permette di cambiarne molti insieme; ciascuno ha una finestra di dialogo con una scheda per gruppo di impostazioni. Ogni valore è letto dal vivo dal proiettore, e ogni modifica è inviata subito. Un registro mostra ogni comando e il suo risultato.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>I proiettori possono essere simulati, con guasti impostati a mano.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>impossibile creare la finestra di dialogo di %1</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>impossibile scrivere nella cartella %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Come il sistema</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>never</source>
        <translation>mai</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Ventola, lampada, temperatura, coperchio, filtro</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>Impostazioni che non sono come &amp;dovrebbero</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>&amp;Notifica sul desktop</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Silenzio da</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Silenzio fino a</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Lingua (dopo un riavvio)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>Inte&amp;rroga ogni proiettore ogni</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Avvisi</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>&amp;Ore lampada, rispetto alla durata nominale</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>&amp;Senza risposta da</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Ore di silenzio</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Come il desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Colori</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(due orari uguali: nessuna)</translation>
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
        <translation>Pr&amp;eimpostazioni</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Applica alla selezione</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Ancora nessuna preimpostazione</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Salva come preimpostazione…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>Deve &amp;corrispondere a</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>Co&amp;nfronta con lo stato voluto</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>&amp;Ripristina lo stato voluto</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Salva come preimpostazione</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Salvato come preimpostazione %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preimpostazioni</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Preimpostazione %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Deve corrispondere a</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Nessuno dei proiettori selezionati ha una preimpostazione a cui deve corrispondere.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Ripristina</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Ripristinare le impostazioni di %n proiettore?</numerusform>
            <numerusform>Ripristinare le impostazioni di %n proiettori?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Lettura delle impostazioni di %1…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preimpostazione</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Stato voluto</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Valore voluto</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>&amp;Gestisci preimpostazioni…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Tutti quelli di %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Salva come preimpostazione</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Impostazioni della preimpostazione</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;Nome della preimpostazione</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tutte</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Seleziona tutte le impostazioni</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Questa &amp;pagina</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Seleziona solo le impostazioni della pagina corrente</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>N&amp;essuna</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Deseleziona tutte le impostazioni</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Nome non valido per una preimpostazione: non usare barre né un punto iniziale.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n impostazione selezionata.</numerusform>
            <numerusform>%n impostazioni selezionate.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>La preimpostazione %1 sarà sostituita.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Rinomina preimpostazione</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Rimuovi preimpostazione</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>impossibile creare la cartella %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Preimpostazioni</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Impostazioni della preimpostazione</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>R&amp;inomina</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Ancora nessuna preimpostazione</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Vi devono corrispondere: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Nome non valido per una preimpostazione: non usare barre né un punto iniziale.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Esiste già una preimpostazione %1.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>Rimuovere la preimpostazione %1?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>A&amp;ggiungi…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Modifica…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Duplica…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Rimuovi…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>Etic&amp;hetta…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplica</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Rimuovi proiettore</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Rimuovi proiettori</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>Rimuovere «%1» da %2?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>Rimuovere %n proiettore da %1?</numerusform>
            <numerusform>Rimuovere %n proiettori da %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etichetta</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Etichette per %n proiettore, separate da virgole;
un segno meno davanti toglie un’etichetta:</numerusform>
            <numerusform>Etichette per %n proiettori, separate da virgole;
un segno meno davanti toglie un’etichetta:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>«%1» non è un indirizzo MAC</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>«%1» non è un tipo di collegamento</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>«%1» è il nome di un altro proiettore, con identità %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>«%1» non è un numero di ore</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>«%1» è il nome di un altro proiettore</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>l’intestazione non ha la colonna «name»</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1 è stato cambiato da un altro programma. Ricaricarlo (F5), poi ripetere l’operazione.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nome</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Aggiungi proiettore</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Modifica proiettore</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Duplica proiettore</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Ancora da compilare: %1</translation>
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
        <translation>porta seriale %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>ha %1 famiglie; sono possibili al massimo %2</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>passa per più di %1 famiglie</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>rende «%1» uguale a sé stessa</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>la famiglia «%1» non esiste</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>manca «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>«%1» è anche %2 di projectors[%3]</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>il file deve contenere un oggetto</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>manca «projectors»</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>non c’è alcun proiettore</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>compare qui due volte</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>impossibile leggere i profili %1: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>non è né il nome di un intervallo né un numero da 0 a %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>va indicato con il nome «%1»</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>deve essere [minimo, massimo] o null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>ha un minimo superiore al massimo</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>chiave sconosciuta; sono note %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>deve essere un oggetto</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>deve essere un array</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>ha %1 voci; sono possibili al massimo %2</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>deve essere un testo non vuoto</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>è più lungo di %1 byte</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>deve essere un numero intero</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>è %1; deve essere da %2 a %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>deve essere un numero, un testo o un oggetto con «value» e «name»</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>deve essere un percorso che inizia con /</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>non è né il nome di un host né un indirizzo IP</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>deve avere «network» oppure «serial»</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>deve essere simulated, network, serial o pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>richiede una connessione %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>l’impostazione «%1» non esiste</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;Apri profili…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Ricarica</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>&amp;Salva profili con nome…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Apri profili</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profili (*.json);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Salva profili con nome</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>File in sola lettura</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>%1 non può essere modificato. Salvare prima i profili in un altro file.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Salva profili con nome…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>Le modifiche fatte finora non possono più essere annullate.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;ulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ri&amp;peti</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>Non è stato possibile; nulla è stato cambiato.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>un altro programma sta cambiando %1; riprovare</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>nessun profilo in %1; indicare un file con --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n immagine di %1 tipi di proiettori salvata in %2</numerusform>
            <numerusform>%n immagini di %1 tipi di proiettori salvate in %2</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: il proiettore «%1» non esiste; --list li elenca tutti.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: la scheda %1 non esiste; «%2» ha le schede da 0 a %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>nessuno schermo; senza schermo usare --list, --tour o --screenshot.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentazione</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Sorgente</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampada</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Ultima risposta</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · aperta</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Cerca nome, modello, luogo, indirizzo, scheda o impostazione</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Cerca proiettori</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Proiettori</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nessun risultato</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n trovato</numerusform>
            <numerusform>%n trovati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Cartella</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opzioni]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opzioni:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Mostra le informazioni sulla versione.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opzione sconosciuta «%1».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opzioni sconosciute: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Manca il valore dopo «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valore inatteso dopo «%1».</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>«%1» non è né un indirizzo IP né un intervallo di indirizzi</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>più di %1 indirizzi</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Cerca</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Cerca proiettori</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>le reti di questo computer</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Ad esempio 192.0.2.0/24, o 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Proiettori trovati</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Indirizzi</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;word</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>&amp;Aggiungi i selezionati</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>già noto</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>vuole una password</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n trovato</numerusform>
            <numerusform>%n trovati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n trovato, interrogati %1 indirizzi su %2…</numerusform>
            <numerusform>%n trovati, interrogati %1 indirizzi su %2…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>&amp;Salva impostazioni…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>Co&amp;nfronta con file…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>Appli&amp;ca impostazioni…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Salva impostazioni</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Salva impostazioni in una cartella</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Impostazioni (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Lettura delle impostazioni…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Apri impostazioni</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Impostazioni salvate in %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Impostazioni di %n proiettore salvate in %1.</numerusform>
            <numerusform>Impostazioni di %n proiettori salvate in %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>Non è stato possibile leggere %n impostazione.</numerusform>
            <numerusform>Non è stato possibile leggere %n impostazioni.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Applica impostazioni</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Confronta impostazioni</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>I valori precedenti sono conservati in %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>input standard</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 compare qui due volte</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: la porta non è disponibile</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>il proiettore «%1» non esiste</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: i proiettori vengono letti da %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 esiste già e non è stato scritto da questo programma</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>«%1» non è una porta.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>«%1» non è un numero da %2 a %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>«%1» non è un tempo fino a un’ora.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>Servi i proiettori di &lt;file&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>file</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Servi solo il proiettore &lt;nome&gt;; può essere ripetuto.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Ascolta a &lt;indirizzo&gt; invece di 127.0.0.1; con --fleet, l’indirizzo del primo proiettore invece di 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>indirizzo</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>Il primo proiettore è alla porta &lt;n&gt;, gli altri alle successive; 0, come senza l’opzione, prende porte libere. Con --fleet, &lt;n&gt; è la porta di ogni proiettore per il nostro protocollo, e la successiva quella per PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink chiede &lt;testo&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>testo</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Servi ogni proiettore anche su uno pseudoterminale.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Inizia con un guasto: %1. Per una parte dei proiettori: «silent 5%». Può essere ripetuto.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>guasto</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Tutto ciò che è lasciato al caso dipende da &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Ascolta alla porta &lt;n&gt; dell’indirizzo di loopback i guasti, uno per riga: numero del proiettore da 1, o *, e il guasto.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Scrivi in &lt;file&gt; profili che portano un host ai proiettori serviti.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>Servi &lt;n&gt; proiettori, fatti come quelli dei profili, ciascuno a un proprio indirizzo di loopback.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Per una flotta: ciò che usa --write-profiles; pjlink, network o mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>via</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Per una flotta: secondi prima che un proiettore sia acceso.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Per una flotta: secondi prima che un proiettore sia in standby.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Per una flotta: quanti cambiamenti di stato avvengono da soli in un secondo.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Per una flotta: invia le notifiche di stato di PJLink a questo indirizzo.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>indirizzo:porta</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Per una flotta: alla fine scrivi in &lt;file&gt; quante volte ogni proiettore è stato interrogato.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Aiuto ed errori sono nella lingua &lt;nome&gt;, ad esempio de o zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Serve proiettori simulati via TCP, PJLink e pseudoterminali. Mostra un indirizzo per riga, poi «ready».</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argomento inatteso «%1».</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 richiede --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>«%1» non è un indirizzo.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: è più lunga di %1 byte.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: «%1» non è nessuno di %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet non ha linee seriali.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>«%1» non è un indirizzo IPv4 di loopback.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>«%1» lascia troppo pochi indirizzi.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>«%1» non lascia porte per PJLink.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>«%1» non è un indirizzo IPv4 di loopback con porta.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>«%1» non è né pjlink né network né mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>qui manca un numero intero</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>deve essere un numero intero da %1 a %2, ed è %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>deve essere una riga di testo</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>deve essere un oggetto</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>deve essere un array</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>ha più di %1 voci</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>questo non è un file di impostazioni salvate</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>è nota solo la versione %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>«%1» compare qui due volte</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>è più grande di 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>deve contenere un oggetto</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>riga %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Non sorvegliato</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Interrogazione…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Host sconosciuto</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Nessuna risposta</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Password errata</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Non compreso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avvertenza</translation>
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
        <translation>Acceso</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Raffreddamento</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Riscaldamento</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventola</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampada</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Coperchio</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (avvertenza)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Come dovrebbe</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n differisce</numerusform>
            <numerusform>%n differiscono</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 s fa</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min fa</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 h fa</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivato</translation>
    </message>
    <message>
        <source>on</source>
        <translation>attivato</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentazione</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Sorgente</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Schermo vuoto</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muto</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Fermo immagine</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Impostazioni diverse</translation>
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
        <translation>&amp;Cerca nella rete…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>&amp;Importa tabella…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>Esp&amp;orta tabella…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Cerca proiettori</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Aggiungi i proiettori trovati</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Importa tabella</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Tabelle (*.csv *.tsv *.txt);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Esporta tabella</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabelle (*.csv);;Tutti i file (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n proiettore aggiunto</numerusform>
            <numerusform>%n proiettori aggiunti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n già presente</numerusform>
            <numerusform>%n già presenti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n riga non importata</numerusform>
            <numerusform>%n righe non importate</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Colonne non usate: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>Acce&amp;ndi</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>S&amp;pegni</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>A&amp;limentazione</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Ingresso</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>Schermo &amp;vuoto</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Mostra schermo vuoto</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Mostrare uno schermo vuoto su %n proiettore?</numerusform>
            <numerusform>Mostrare uno schermo vuoto su %n proiettori?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Mostra l’immagine</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Mostrare l’immagine di %n proiettore?</numerusform>
            <numerusform>Mostrare l’immagine di %n proiettori?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>M&amp;uto</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Disattiva il suono</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Disattivare il suono di %n proiettore?</numerusform>
            <numerusform>Disattivare il suono di %n proiettori?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Riattiva il suono</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Riattivare il suono di %n proiettore?</numerusform>
            <numerusform>Riattivare il suono di %n proiettori?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>&amp;Fermo immagine</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Ferma l’immagine</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Fermare l’immagine di %n proiettore?</numerusform>
            <numerusform>Fermare l’immagine di %n proiettori?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Sblocca l’immagine</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Sbloccare l’immagine di %n proiettore?</numerusform>
            <numerusform>Sbloccare l’immagine di %n proiettori?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Accendi</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Spegni</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>Accendere %n proiettore?</numerusform>
            <numerusform>Accendere %n proiettori?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>Spegnere %n proiettore?</numerusform>
            <numerusform>Spegnere %n proiettori?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Ingresso %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Scegliere l’ingresso %1 su %n proiettore?</numerusform>
            <numerusform>Scegliere l’ingresso %1 su %n proiettori?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Nessun ingresso noto</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossibile scrivere %1: %2</translation>
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
        <translation>Proiettore</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Proiettori</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Riprova i non riusciti</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>&amp;Annulla tutto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>Esegui il &amp;resto</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>il modello non la ha</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%1 di %n completato</numerusform>
            <numerusform>%1 di %n completati</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annullamento: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>in corso…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>completato</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>accettato, ancora in corso</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rifiutato</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>nessuna risposta</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>fermato</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>completato, non è stato possibile leggere %n impostazione</numerusform>
            <numerusform>completato, non è stato possibile leggere %n impostazioni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n ancora in corso</numerusform>
            <numerusform>%n ancora in corso</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n non riuscito</numerusform>
            <numerusform>%n non riusciti</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>non si sa se era acceso</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n fermato</numerusform>
            <numerusform>%n fermati</numerusform>
        </translation>
    </message>
</context>
</TS>
