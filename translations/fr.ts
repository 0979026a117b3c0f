<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>l’option --%1 n’existe pas</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 ne prend pas de valeur</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 demande %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 n’accepte pas %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» n’est pas possible</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>il manque une commande&#xa0;; --help les affiche</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>la commande «&#xa0;%1&#xa0;» n’existe pas&#xa0;; --help les affiche</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 ne connaît pas ce --format</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>usage&#xa0;: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>le nom du fichier est vide</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas possible&#xa0;; valeurs possibles&#xa0;: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un pas comme +1 ou -1, et PJLink ne peut modifier ce réglage que pas à pas</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» dépasse %n pas</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» dépasse %n pas</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>«&#xa0;%1&#xa0;» à partir de %2 n’est pas possible&#xa0;; valeurs possibles&#xa0;: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» dépasse %n pas à partir de %2</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» dépasse %n pas à partir de %2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>afficher les projecteurs</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Affiche le nom, le modèle, le jeu de pages, le code de série, la connexion et les étiquettes des projecteurs indiqués, ou de tous.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>afficher les modèles</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Affiche les modèles du fichier de profils, avec le nombre de projecteurs et de réglages de chacun.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>afficher les réglages et leurs valeurs</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Affiche les réglages du modèle&#xa0;: clé, onglet, libellé et valeurs possibles. Le projecteur n’est pas interrogé.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>expliquer un réglage</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Explique un réglage&#xa0;: onglet et libellé, valeurs possibles avec leurs codes, modèles qui le possèdent, et s’il peut être modifié, réinitialisé, enregistré et restauré.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>afficher les valeurs actuelles</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Lit des réglages des projecteurs et les affiche&#xa0;; sans clé, tous.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>modifier des réglages</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Modifie des réglages dans l’ordre indiqué, relit chacun et affiche la valeur avant et après. Toutes les clés et valeurs sont d’abord vérifiées pour tous les projecteurs&#xa0;; si une valeur est incorrecte pour l’un d’eux, rien n’est envoyé à aucun. Une clé qu’un projecteur ne possède pas est signalée et n’arrête pas les autres.
KEY=VALUE fixe une valeur&#xa0;; KEY+=N et KEY-=N la font varier de N. Sous la forme KEY VALUE, +3 et -3 sont des pas, et =-3 est un nombre négatif. «&#xa0;acctl undo&#xa0;» rétablit l’état précédent, sauf l’alimentation et le résultat des actions.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>rétablir les réglages standard du projecteur</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>afficher l’alimentation, l’entrée, les erreurs et les heures</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Affiche la page d’état des projecteurs indiqués, ou de tous.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>enregistrer des réglages dans des fichiers</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Enregistre tous les réglages qui peuvent être restaurés&#xa0;: ceux d’un projecteur dans FILE («&#xa0;-&#xa0;» est la sortie standard), ou ceux d’autant de projecteurs que voulu dans un dossier, un fichier chacun. Un fichier qui n’est pas un fichier de réglages n’est pas remplacé sans --force.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>comparer avec des réglages enregistrés</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>restaurer des réglages enregistrés</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>afficher des valeurs et chaque changement</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Affiche des valeurs, puis chaque changement, jusqu’à l’interruption, jusqu’à ce que plus personne ne lise la sortie, ou jusqu’à ce que tous les projecteurs aient la valeur de --until. Un projecteur qui ne répond plus est réessayé sans cesse.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>rechercher des projecteurs sur le réseau</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Demande à chaque projecteur PJLink du réseau, ou des adresses indiquées, de s’identifier. ADDRESSES s’écrit comme 192.0.2.7, 192.0.2.0/24 ou 192.0.2.10-40. Rien n’est enregistré, sauf si --add indique un fichier de profils.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>importer des projecteurs d’un tableau</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Ajoute les lignes de valeurs séparées par des virgules («&#xa0;-&#xa0;» est l’entrée standard) au fichier de profils qu’indique --profiles ou ACCTL_PROFILES, et modifie les projecteurs qu’il contient déjà.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>afficher les projecteurs sous forme de tableau</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Affiche les projecteurs indiqués, ou tous, en valeurs séparées par des virgules, sans les mots de passe.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>expliquer une commande</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>il manque l’un des signes = != &lt; &lt;= &gt; &gt;=</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>il manque une valeur</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>aucun modèle n’a ce réglage</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>seuls les nombres sont inférieurs ou supérieurs</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>aucun modèle n’a ce réglage&#xa0;; acctl settings affiche toutes les clés</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>aucun modèle n’a ce réglage&#xa0;; vouliez-vous dire %1&#xa0;?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 à %2, affiché %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>source %1&#xa0;: ce réglage n’est pas propre à chaque source</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>la source %1 n’existe pas&#xa0;; il y a %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>la valeur %1 n’est pas possible&#xa0;; valeurs possibles&#xa0;: %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>le texte «&#xa0;%1&#xa0;» n’est pas celui de la valeur %2, qui est «&#xa0;%3&#xa0;»&#xa0;; modifiez les deux, ou supprimez le texte</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Lit, modifie, enregistre et restaure les réglages des projecteurs qu’affiche la boîte de dialogue «&#xa0;Commande avancée&#xa0;». Les projecteurs sont ceux d’un fichier de profils.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P désigne des projecteurs&#xa0;: un nom, un motif comme «&#xa0;Lecture*&#xa0;», @TAG ou model=PATTERN. Plusieurs sont séparés par des virgules, et !P exclut des projecteurs. KEY est la clé d’un réglage, un motif comme «&#xa0;picture.*&#xa0;», ou un nom court comme brightness, input ou power, identique sur tous les modèles. VALUE est un nombre tel que la boîte de dialogue l’affiche, le texte d’un élément dans n’importe quelle langue de celle-ci, ou son code.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Terminé. Aussi si un projecteur en veille n’a pas pu tout indiquer, ou a accepté une modification qui n’a pas encore pris effet.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Quelque chose a été refusé, un projecteur n’a pas un réglage demandé, ou un fichier ou la sortie n’a pas pu être lu ou écrit.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Mauvais usage&#xa0;: rien n’a été envoyé à aucun projecteur.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Un projecteur n’a pas répondu ou n’a pas indiqué ses entrées, ou une autre exécution d’acctl l’utilisait.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Interrompu&#xa0;; le rapport indique ce qui a été fait.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Usage&#xa0;: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Options de toutes les commandes&#xa0;; «&#xa0;acctl help COMMAND&#xa0;» affiche celles d’une commande, avec des exemples</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemples</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Codes de sortie</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>nombre</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>choix</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>état</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>action</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>nom court&#xa0;: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>onglet</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>libellé</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>genre</translation>
    </message>
    <message>
        <source>values</source>
        <translation>valeurs</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>celles que le projecteur indique</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>commandes</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>conservé</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>pour chaque source d’entrée</translation>
    </message>
    <message>
        <source>models</source>
        <translation>modèles</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n réglage</numerusform>
            <numerusform>%n réglages</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>aucun profil à %1&#xa0;; indiquez un fichier avec --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>lire les projecteurs dans FILE</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>seulement les projecteurs dans cet état, par exemple «&#xa0;power=on lamp-hours&gt;1500&#xa0;»</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>le projecteur est à ADDRESS&#xa0;; P indique seulement son modèle</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>le port des projecteurs recherchés&#xa0;; 4352 par défaut</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>mot de passe PJLink&#xa0;; les autres utilisateurs de cette machine peuvent le voir ici</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>la première ligne de FILE est le mot de passe</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>sortie&#xa0;: text, json, jsonl (une ligne par valeur ou projecteur), tsv ou value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>identique à --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>seulement les noms ou les clés, un par ligne</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>seulement les réglages que get, set, reset ou watch peuvent utiliser</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>seulement les clés qui correspondent à GLOB&#xa0;; peut être répété</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>prendre des lignes KEY=VALUE dans FILE («&#xa0;-&#xa0;» est l’entrée standard)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>enregistrer chaque projecteur dans son propre fichier dans DIR</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>ajouter ce qui a été trouvé au fichier de profils FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>afficher ce qui changerait, sans rien modifier</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>attendre que l’état soit atteint, au plus TIME, par exemple 90s ou 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>terminer quand chaque projecteur a cette valeur</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>terminer avec 1 si quelque chose diffère, avec 2 si quelque chose n’a pas pu être comparé</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>ignorer ce qui est incorrect dans FILE au lieu de ne rien envoyer</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo&#xa0;: aussi le fichier d’annulation d’un autre projecteur&#xa0;; save&#xa0;: remplacer n’importe quel fichier</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>afficher les exécutions qui peuvent être annulées</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>le dossier des fichiers d’annulation</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>supprimer les fichiers d’annulation de plus de N jours&#xa0;; 30 par défaut, 0 les garde tous</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>projecteurs à la fois, de 1 à 1024&#xa0;; par défaut 512 pour lire et 64 pour modifier</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>délai d’une réponse&#xa0;; 2 par défaut</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>réessayer N fois un projecteur qui ne répond pas&#xa0;; 0 par défaut</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>ne commencer aucun autre projecteur après la première erreur</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>temps entre deux lectures&#xa0;; 1 par défaut</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>langue des textes, par exemple de ou zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>ce texte&#xa0;; avec une commande, l’aide de celle-ci</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>la version</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>impossible d’écrire&#xa0;: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas possible</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>il manque «&#xa0;=&#xa0;»</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>le réglage %1 n’existe pas</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>sa première ligne est vide</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Mot de passe de %1&#xa0;: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simulé)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>%1 ajoutés, %2 déplacés, %3 connus</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>demande un mot de passe</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>indiquez le fichier de profils avec --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>colonnes non utilisées&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>%1 ajoutés, %2 connus, %3 incorrects</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» n’est pas KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1&#xa0;: ne contient pas KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>un seul projecteur est possible ici, pas %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>annulé</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>impossible de noter dans %1 que c’est annulé&#xa0;: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>une autre exécution d’acctl l’utilise</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>pas commencé, car un autre projecteur a échoué</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>simulé par acctl lui-même, rien de durable n’a été modifié</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>interrompu&#xa0;; ce qui a été fait est indiqué ci-dessus</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>en veille, omis&#xa0;: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>en préchauffage, omis&#xa0;: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>en refroidissement, omis&#xa0;: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>ignoré, ce projecteur ne le propose pas&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n projecteur</numerusform>
            <numerusform>%n projecteurs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n modifié</numerusform>
            <numerusform>%n modifiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n différent</numerusform>
            <numerusform>%n différents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n inchangé</numerusform>
            <numerusform>%n inchangés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n pas encore en vigueur</numerusform>
            <numerusform>%n pas encore en vigueur</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>accepté, mais pas encore en vigueur</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n refusé</numerusform>
            <numerusform>%n refusés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n occupé</numerusform>
            <numerusform>%n occupés</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>le projecteur est occupé ou en veille</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n non confirmé</numerusform>
            <numerusform>%n non confirmés</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>non confirmé, a peut-être changé</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n non effectué</numerusform>
            <numerusform>%n non effectués</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>ignoré, ce modèle ne l’a pas</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>ignoré, ce projecteur ne le propose pas</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>ignoré, ne peut pas être restauré</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>ignoré, ce modèle n’accepte pas cette valeur</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>arrêté à %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>pas envoyé, à plus de %n pas</numerusform>
            <numerusform>pas envoyé, à plus de %n pas</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>refusé, la valeur est %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>la valeur ne peut pas être lue actuellement</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n non comparé</numerusform>
            <numerusform>%n non comparés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n ignoré</numerusform>
            <numerusform>%n ignorés</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>rien à faire</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>ignoré, PJLink ne le connaît pas&#xa0;: %n réglage du fichier</numerusform>
            <numerusform>ignorés, PJLink ne les connaît pas&#xa0;: %n réglages du fichier</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1&#xa0;; rien d’autre n’a été envoyé</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1&#xa0;; rien n’a été envoyé</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1&#xa0;: annule une modification de %2&#xa0;; --force l’applique à %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1&#xa0;: le fichier n’a pas ce réglage</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1&#xa0;: le projecteur «&#xa0;%2&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1&#xa0;: %2 est aussi de %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1&#xa0;: le dossier ne contient aucun fichier de réglages</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1&#xa0;: il n’y a pas de fichier correspondant dans %2</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1&#xa0;: n’est pas un fichier de réglages&#xa0;; --force le remplace</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1&#xa0;: ce fichier ou dossier n’existe pas</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>indiquez les projecteurs auxquels le fichier s’applique</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>un fichier est pour un projecteur, pas pour %1&#xa0;; -o indique un dossier</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1&#xa0;; indiquez une exécution antérieure pour l’annuler</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>il n’y a aucune exécution à annuler</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>l’exécution «&#xa0;%1&#xa0;» n’existe pas&#xa0;; --list les affiche</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1&#xa0;: n’est plus dans le fichier de profils</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>ne peut pas être lu actuellement et est omis</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>rien ne peut être lu, et rien n’a été écrit</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n réglage enregistré dans %1</numerusform>
            <numerusform>%n réglages enregistrés dans %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>le projecteur «&#xa0;%1&#xa0;» n’existe pas&#xa0;; acctl list les affiche tous</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>refusé, le projecteur est en veille</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>refusé, le projecteur est en préchauffage</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>refusé, le projecteur est en refroidissement</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>refusé, le projecteur est occupé</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>cela ne peut pas être annulé&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>arrêté, %1 pas accepté sur %n</numerusform>
            <numerusform>arrêté, %1 pas acceptés sur %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1&#xa0;; %2 pas accepté sur %n</numerusform>
            <numerusform>%1&#xa0;; %2 pas acceptés sur %n</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>accepté, mais pas encore en vigueur, la valeur est %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, a peut-être été modifié, la valeur est %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, a peut-être été modifié</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>pas atteint à temps, la valeur est %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>pas atteint à temps</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2&#xa0;: n’est pas une ligne d’un fichier d’annulation</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1&#xa0;: il n’y a rien à annuler</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>paramètres de connexion incorrects</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nom d’hôte inconnu</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>injoignable</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>connexion perdue</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>réponses incompréhensibles</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>autre version du protocole</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>mot de passe absent ou incorrect</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>aucune réponse</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>aucune réponse (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>ce modèle n’a pas ce réglage</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>ignoré, PJLink ne le connaît pas</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>ne peut pas être lu actuellement</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>ce projecteur ne le propose pas</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>pas lu, le projecteur n’a pas indiqué ses entrées</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink ne le connaît pas</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>ce réglage ne peut pas être lu</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>ce réglage ne peut pas être modifié</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>ce réglage ne peut pas être restauré</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>ce réglage ne peut pas être réinitialisé</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, le projecteur est en veille</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, le projecteur est en préchauffage</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, le projecteur est en refroidissement</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>répond de nouveau</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until&#xa0;: «&#xa0;%1&#xa0;» n’est pas KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Affiche ce qui diffère d’un fichier («&#xa0;-&#xa0;» est l’entrée standard), d’un préréglage de l’application, ou du fichier de chaque projecteur dans un dossier.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Lit les projecteurs, envoie ce qui diffère du fichier («&#xa0;-&#xa0;» est l’entrée standard), d’un préréglage de l’application, ou du fichier de chaque projecteur dans un dossier, et le relit. Ce qui est remplacé est d’abord conservé, pour que «&#xa0;acctl undo&#xa0;» puisse le restaurer. Une exécution interrompue peut être répétée à tout moment.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>la valeur précédente n’a pas pu être lue et ne peut pas être restaurée</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>la valeur précédente n’a pas pu être lue</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>cela ne peut pas être annulé</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Rétablit la valeur standard du projecteur pour des réglages et affiche leur nouvelle valeur. « acctl undo » rétablit l’état précédent. Les compteurs d’heures ne sont remis à zéro que par leur clé exacte, car cela ne peut pas être annulé.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>annuler la dernière exécution qui a modifié des réglages</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>l’exécution n’a modifié aucun de ces projecteurs</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Restaure ce qu’une exécution de « set », « reset » ou « apply » a remplacé. RUN est un nom qu’affiche « acctl undo --list », un fichier ou « last » ; sans RUN, la dernière exécution est annulée. Avec P ou --where, seuls ces projecteurs sont restaurés, et le reste de l’exécution peut être annulé plus tard. Une annulation peut elle-même être annulée par son nom.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>interrompu</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>accepté, mais non confirmé&#xa0;: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>«&#xa0;%1&#xa0;» doit commencer par / ou ~/</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>attente d’un autre programme qui modifie %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>Ac&amp;quitter</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>&amp;Tout acquitter</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Depuis</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alerte</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 ne répond pas</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1&#xa0;: la lampe a %2 sur %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1&#xa0;: %n réglage n’est pas comme il devrait être</numerusform>
            <numerusform>%1&#xa0;: %n réglages ne sont pas comme ils devraient être</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>acquittée</translation>
    </message>
    <message>
        <source>open</source>
        <translation>ouverte</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>Les projecteurs sont ceux de &lt;fichier&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Surveiller une part parmi plusieurs&#xa0;: 2/5 est la deuxième de cinq.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>part</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Surveiller seulement les projecteurs qui ont &lt;étiquette&gt;, ou l’une de plusieurs.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>étiquette</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Visiter chaque projecteur toutes les &lt;secondes&gt;, au moins 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Une fois par jour, comparer chaque projecteur avec son instantané dans &lt;dossier&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Écouter à &lt;adresse&gt; les notifications d’état des projecteurs.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>adresse</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Servir les métriques à &lt;adresse:port&gt;&#xa0;; «&#xa0;none&#xa0;» pour nulle part.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>adresse:port</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Écrire les métriques dans &lt;fichier&gt; toutes les 15 secondes, pour un collecteur de fichiers texte.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Envoyer les messages au courtier MQTT à &lt;hôte:port&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>hôte:port</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Version de MQTT, 3 (3.1.1) ou 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>version</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>La première ligne de &lt;fichier&gt; est l’utilisateur auprès du courtier.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>La première ligne de &lt;fichier&gt; est le mot de passe auprès du courtier.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Chiffrer, et faire confiance aux autorités auxquelles le système fait confiance.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Chiffrer, et faire confiance aux autorités de &lt;fichier&gt;.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>Le certificat de ce client.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Sa clé.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>Le premier niveau de tous les sujets.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>sujet</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>Le premier niveau des sujets de découverte&#xa0;; «&#xa0;none&#xa0;» pour aucune découverte.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Reprendre la part d’une passerelle qui n’a rien dit depuis &lt;secondes&gt;.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Réglages qui peuvent être commandés&#xa0;: clés ou motifs, séparés par des virgules&#xa0;; «&#xa0;power&#xa0;» est l’alimentation. Sans cette option, aucun.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>clés</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Commandes que chaque projecteur accepte par minute.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Les noms dans les messages de découverte et les messages de ce programme sont dans la langue &lt;nom&gt;, par exemple de ou zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une durée de %2 secondes à un jour</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un sujet</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une part comme 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse numérique avec un port</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 est vide</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 demande --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un hôte avec un port</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni 3 ni 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file et --key-file vont ensemble</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands&#xa0;: «&#xa0;%1&#xa0;» n’est pas un réglage qui peut être commandé</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre de 1 à %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Surveille des projecteurs et informe de leur état un entrepôt de métriques et un courtier de messages.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argument inattendu «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>il manque --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse numérique</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un dossier</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>il n’y a pas de textes en «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>aucun projecteur n’a l’étiquette «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>«&#xa0;=&#xa0;» inattendu dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 demande une valeur.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Ouvre les boîtes de dialogue de réglages de projecteurs, réels ou simulés.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>Lire les projecteurs dans &lt;fichier&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>Ouvrir au démarrage la boîte de dialogue du projecteur &lt;nom&gt;.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>Avec --open&#xa0;: choisir l’onglet &lt;n&gt;, compté à partir de 0.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>Afficher le tableau des projecteurs.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>Avec --open&#xa0;: enregistrer une image (PNG) de la boîte de dialogue et quitter.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Enregistrer des images de tous les onglets de tous les types de projecteurs dans &lt;dossier&gt; et quitter.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Afficher les textes dans la langue &lt;nom&gt;, par exemple de ou zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language&#xa0;: il n’y a pas de textes en «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argument inattendu «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>Une seule des options --list, --tour et --open est possible.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 demande --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab&#xa0;: «&#xa0;%1&#xa0;» n’est pas un nombre.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>&amp;Modifications seulement</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>&amp;Erreurs seulement</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>Enregistrer le &amp;journal sous…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>Effacer &amp;le journal…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Journal des commandes</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Masquer les commandes qui ne font que lire</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Masquer les commandes qui ont été exécutées</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Filtrer le journal</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Enregistrer le journal</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Tableaux (*.tsv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Effacer le journal</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>Supprimer %n entrée du journal&#xa0;?</numerusform>
            <numerusform>Supprimer les %n entrées du journal&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Projecteur, réglage, commande ou résultat</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Tous les projecteurs</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Afficher les commandes de</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>abandonné</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>aucune réponse</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>occupé</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>non proposé</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>pas encore en vigueur</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Interroger de nouveau</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Lecture des réglages…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Rien ne diffère.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n projecteur diffère.</numerusform>
            <numerusform>%n projecteurs diffèrent.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n projecteur a déjà tous ces réglages.</numerusform>
            <numerusform>%n projecteurs ont déjà tous ces réglages.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n projecteur n’a pas pu être lu.</numerusform>
            <numerusform>%n projecteurs n’ont pas pu être lus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n projecteur n’indique pas tous ces réglages actuellement.</numerusform>
            <numerusform>%n projecteurs n’indiquent pas tous ces réglages actuellement.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n projecteur a été ignoré.</numerusform>
            <numerusform>%n projecteurs ont été ignorés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>Accessi&amp;ble par</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Connex&amp;ion</translation>
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
        <translation>Mot &amp;de passe</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>N&amp;uméro de port</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>Périphéri&amp;que</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>&amp;Débit en bauds</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Comme sa famille</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulé</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Port série</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 n’est pas une adresse.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>&amp;Tester la connexion</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Résultat du test</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Il n’y a rien à quoi se connecter.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Une ligne série est essayée quand sa boîte de dialogue s’ouvre.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Interrogation…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Un projecteur répond&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>un guillemet n’est pas fermé</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>un texte continue après son guillemet fermant</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>plus de %1 cellules</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>%1 cellules, mais l’en-tête en a %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>plus de %1 lignes</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>il n’y a pas d’en-tête</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>plus de %1 octets</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>simulé</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Alimentation&#xa0;:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Source&#xa0;:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problème&#xa0;:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Image et son&#xa0;:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Lampe&#xa0;:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtre&#xa0;:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Réglages&#xa0;:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>A répondu&#xa0;:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Part de la durée de vie nominale de la lampe</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>Événe&amp;ments récents</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Événements récents</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Aucun projecteur sélectionné</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>%n projecteur sélectionné</numerusform>
            <numerusform>%n projecteurs sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>écran vide</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>son coupé</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>image arrêtée</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>affichée</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>rien pour l’instant</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Actuellement</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Différences</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>D’abord les autres sources et modes</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n réglage</numerusform>
            <numerusform>%n réglages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n réglage ne s’applique pas à ce modèle</numerusform>
            <numerusform>%n réglages ne s’appliquent pas à ce modèle</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n réglage ne peut pas être lu actuellement</numerusform>
            <numerusform>%n réglages ne peuvent pas être lus actuellement</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Discovery</name>
    <message>
        <source>Problem: fan</source>
        <translation>Problème&#xa0;: ventilateur</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Problème&#xa0;: lampe</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Problème&#xa0;: température</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Problème&#xa0;: capot</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Problème&#xa0;: filtre</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Problème&#xa0;: autre</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Joignable</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentation</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>Veille</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Allumé</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Refroidissement</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Aucune erreur</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Capot</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilateur</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Flux d’air</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Durée de la lampe</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Froid</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Durée du filtre</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Autre (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Refuser</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Échouer à la lecture</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Retarder</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Ne plus répondre</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>&amp;Créer la panne</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>To&amp;ut supprimer</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Pannes en vigueur</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>A&amp;limentation</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>État d’&amp;erreur</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>C&amp;ommande</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>Pa&amp;nne</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;Retard</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>En &amp;vigueur</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Aucun projecteur sélectionné</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Simulation de %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Pannes simulées de %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Toutes les commandes</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Choisissez, ou saisissez une partie d’un nom ou d’un code</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3 ms</source>
        <extracomment>A command, what is wrong with it (&quot;Delay&quot;), and for how many milliseconds.</extracomment>
        <translation>%1&#xa0;: %2, %3&#xa0;ms</translation>
    </message>
    <message>
        <source>%1 (any code)</source>
        <translation>%1 (tout code)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n allumé</numerusform>
            <numerusform>%n allumés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n éteint</numerusform>
            <numerusform>%n éteints</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n avec des problèmes</numerusform>
            <numerusform>%n avec des problèmes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n injoignable</numerusform>
            <numerusform>%n injoignables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n avec des alertes</numerusform>
            <numerusform>%n avec des alertes</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>réponse la plus ancienne %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n non surveillé</numerusform>
            <numerusform>%n non surveillés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>le projecteur est occupé ou en veille</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>le projecteur ne l’a pas</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>le modèle n’accepte pas cette valeur</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>ne peut pas être modifié</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>le modèle ne l’a pas</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>le modèle n’a pas ce réglage</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>il n’a pas d’instantané</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>non confirmé, a peut-être changé</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>tout n’a pas pu être envoyé</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>aucune réponse</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>injoignable</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connecté</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>paramètres de connexion incorrects</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nom d’hôte inconnu</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>connexion perdue</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>réponses incompréhensibles</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>autre version du protocole</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>mot de passe absent ou incorrect</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>le projecteur n’indique actuellement aucun de ses réglages</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Éteints</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Injoignables</translation>
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
        <translation>Dans la boîte de dialogue d’un projecteur</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page suivante</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Onglet suivant</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Maj+Tab, Ctrl+Page précédente</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Onglet précédent</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Rechercher un réglage</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Commande avancée %1&lt;/h3&gt;&lt;p&gt;Les réglages des projecteurs en direct&#xa0;: chaque valeur est lue sur le projecteur, chaque modification est envoyée aussitôt.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>caractère de contrôle dans un texte</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>moitié d’une paire de substitution dans un texte</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>texte de plus de %1 octets</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>plus de %1 octets</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>plus de %1 niveaux d’imbrication</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>plus de %1 valeurs</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Tous ces projecteurs sont simulés, pour essayer le programme.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Commande avancée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Commande avancée</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>Ouvrir %n boîte de dialogue&#xa0;?</numerusform>
            <numerusform>Ouvrir %n boîtes de dialogue&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Journal des commandes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Projecteur</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>&amp;Ouvrir les réglages</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Actua&amp;liser</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulation</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Journal des commandes</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Alertes</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Enregistré dans %1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Famille</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modèle</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>Tous &amp;les champs du modèle</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>T&amp;ype de boîte de dialogue</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>&amp;Code du modèle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Commande avancée</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Commande avancée</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Réglages de projecteurs</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Lire et modifier les réglages de projecteurs</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>projecteur;vidéoprojecteur;luminosité;trapèze;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Une liste montre l’état de centaines de projecteurs et permet d’en modifier plusieurs à la fois&#xa0;; chacun a une boîte de dialogue avec un onglet par groupe de réglages. Chaque valeur est lue en direct sur le projecteur, et chaque modification est envoyée aussitôt. Un journal montre chaque commande et son résultat.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>Les projecteurs peuvent être simulés, avec des pannes créées à la main.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>la boîte de dialogue de %1 ne peut pas être créée</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>impossible d’écrire dans le dossier %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Ventilateur, lampe, température, capot, filtre</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>Réglages qui ne sont pas comme ils devraient ê&amp;tre</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Notifier sur le &amp;bureau</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Silence à partir de</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Silence jusqu’à</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Langue (après un redémarrage)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>Interroger &amp;chaque projecteur toutes les</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>&amp;Heures de lampe, en part de la durée nominale</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>&amp;Sans réponse depuis</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Heures de silence</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>C&amp;ouleurs</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(deux fois la même heure&#xa0;: aucune)</translation>
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
        <translation>Préré&amp;glages</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Appliquer à la sélection</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Aucun préréglage pour l’instant</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>Enregistrer comme &amp;préréglage…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>Doit &amp;correspondre à</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>C&amp;omparer avec l’état voulu</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>&amp;Rétablir l’état voulu</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Enregistré comme préréglage %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Préréglage %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Doit correspondre à</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Aucun des projecteurs sélectionnés n’a de préréglage auquel il doit correspondre.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Rétablir</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Rétablir les réglages de %n projecteur&#xa0;?</numerusform>
            <numerusform>Rétablir les réglages de %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Lecture des réglages de %1…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>État voulu</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Doit correspondre à</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>Gérer &amp;les préréglages…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Tous ceux de %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Réglages du préréglage</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;Nom du préréglage</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tous</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Cocher tous les réglages</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Cette &amp;page</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Cocher les réglages de la page sélectionnée, et aucun autre</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Aucun</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Décocher tous les réglages</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Un préréglage ne peut pas s’appeler ainsi&#xa0;: pas de barre oblique, ni de point au début.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n réglage est coché.</numerusform>
            <numerusform>%n réglages sont cochés.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Le préréglage %1 sera remplacé.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Renommer un préréglage</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Supprimer un préréglage</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Réglages du préréglage</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Aucun préréglage pour l’instant</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Doivent y correspondre&#xa0;: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Un préréglage ne peut pas s’appeler ainsi&#xa0;: pas de barre oblique, ni de point au début.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Il existe déjà un préréglage %1.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>Supprimer le préréglage %1&#xa0;?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>A&amp;jouter…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Dupliquer…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>Éti&amp;queter…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Supprimer un projecteur</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Supprimer des projecteurs</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>Supprimer «&#xa0;%1&#xa0;» de %2&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>Supprimer %n projecteur de %1&#xa0;?</numerusform>
            <numerusform>Supprimer %n projecteurs de %1&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Étiqueter</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Étiquettes de %n projecteur, séparées par des virgules&#xa0;;
un signe moins devant retire une étiquette&#xa0;:</numerusform>
            <numerusform>Étiquettes de %n projecteurs, séparées par des virgules&#xa0;;
un signe moins devant retire une étiquette&#xa0;:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse MAC</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un type de liaison</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>«&#xa0;%1&#xa0;» est le nom d’un autre projecteur, d’identité %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre d’heures</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>«&#xa0;%1&#xa0;» est le nom d’un autre projecteur</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>l’en-tête n’a pas de colonne «&#xa0;name&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1 a été modifié par un autre programme. Rechargez-le (F5), puis recommencez.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Ajouter un projecteur</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Modifier le projecteur</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Dupliquer le projecteur</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Reste à remplir&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ProfileFile</name>
    <message>
        <source>serial port %1</source>
        <translation>port série %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>a %1 familles&#xa0;; %2 au plus sont possibles</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>passe par plus de %1 familles</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>rend «&#xa0;%1&#xa0;» semblable à elle-même</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>la famille «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>il manque «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>«&#xa0;%1&#xa0;» est aussi %2 de projectors[%3]</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>le fichier doit contenir un objet</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>il manque «&#xa0;projectors&#xa0;»</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>il n’y a aucun projecteur</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>figure ici deux fois</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>impossible de lire les profils %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>n’est ni le nom d’une plage ni un nombre de 0 à %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>doit être donné par son nom «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>doit être [minimum, maximum] ou null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>a un minimum supérieur à son maximum</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>clé inconnue&#xa0;; clés connues&#xa0;: %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>doit être un objet</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>doit être un tableau</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>a %1 éléments&#xa0;; %2 au plus sont possibles</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>doit être un texte non vide</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>dépasse %1 octets</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>doit être un nombre entier</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>vaut %1&#xa0;; doit être compris entre %2 et %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>doit être un nombre, un texte ou un objet avec «&#xa0;value&#xa0;» et «&#xa0;name&#xa0;»</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>doit être un chemin qui commence par /</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>n’est ni le nom d’un hôte ni une adresse IP</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>doit avoir soit «&#xa0;network&#xa0;», soit «&#xa0;serial&#xa0;»</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>doit être simulated, network, serial ou pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>demande une connexion %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>le réglage «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;Ouvrir des profils…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>&amp;Enregistrer les profils sous…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Ouvrir des profils</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profils (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Enregistrer les profils sous</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Fichier en lecture seule</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>Impossible de modifier %1. Enregistrez d’abord les profils dans un autre fichier.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Enregistrer les profils sous…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>Les modifications faites jusqu’ici ne peuvent plus être annulées.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>R&amp;établir</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>Cela n’a pas été possible&#xa0;; rien n’a été modifié.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>un autre programme modifie %1&#xa0;; réessayez</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>aucun profil à %1&#xa0;; indiquez un fichier avec --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
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
        <translation>Connexion</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n image de %1 types de projecteurs enregistrée dans %2</numerusform>
            <numerusform>%n images de %1 types de projecteurs enregistrées dans %2</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open&#xa0;: le projecteur «&#xa0;%1&#xa0;» n’existe pas&#xa0;; --list les affiche tous.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab&#xa0;: l’onglet %1 n’existe pas&#xa0;; «&#xa0;%2&#xa0;» a les onglets 0 à %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>aucun écran&#xa0;; utilisez --list, --tour ou --screenshot sans écran.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Dernière réponse</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · ouvert</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Rechercher un nom, un modèle, un lieu, une adresse, un onglet ou un réglage</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Rechercher des projecteurs</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projecteurs</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n trouvé</numerusform>
            <numerusform>%n trouvés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Usage&#xa0;: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[options]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Option inconnue «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Options inconnues&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Valeur manquante après «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valeur inattendue après «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni une adresse IP ni une plage d’adresses</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>plus de %1 adresses</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Rechercher des projecteurs</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>les réseaux de cet ordinateur</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Par exemple 192.0.2.0/24, ou 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Projecteurs trouvés</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Adresses</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Mot de &amp;passe</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>A&amp;jouter ceux qui sont cochés</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>déjà connu</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>demande un mot de passe</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n trouvé</numerusform>
            <numerusform>%n trouvés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n trouvé, %1 adresses interrogées sur %2…</numerusform>
            <numerusform>%n trouvés, %1 adresses interrogées sur %2…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>Enregistrer les &amp;réglages…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>Co&amp;mparer avec un fichier…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>A&amp;ppliquer des réglages…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Enregistrer les réglages</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Enregistrer les réglages dans un dossier</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Réglages (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Lecture des réglages…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir des réglages</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Réglages enregistrés dans %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Réglages de %n projecteur enregistrés dans %1.</numerusform>
            <numerusform>Réglages de %n projecteurs enregistrés dans %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n réglage n’a pas pu être lu.</numerusform>
            <numerusform>%n réglages n’ont pas pu être lus.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Appliquer les réglages</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Comparer les réglages</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>Les valeurs précédentes sont conservées dans %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 figure ici deux fois</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control&#xa0;: le port n’est pas disponible</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>le projecteur «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles&#xa0;: les projecteurs sont lus dans %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles&#xa0;: %1 existe déjà et n’a pas été écrit par ce programme</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un port.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre de %2 à %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une durée d’une heure au plus.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>Servir les projecteurs de &lt;fichier&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Servir seulement le projecteur &lt;nom&gt;&#xa0;; peut être répété.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Écouter à &lt;adresse&gt; au lieu de 127.0.0.1&#xa0;; avec --fleet, l’adresse du premier projecteur au lieu de 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>adresse</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>Le premier projecteur est au port &lt;n&gt;, les autres aux suivants&#xa0;; 0, comme sans cette option, prend des ports libres. Avec --fleet, &lt;n&gt; est le port de chaque projecteur pour notre propre protocole, et le suivant celui de PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink demande &lt;texte&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Servir aussi chaque projecteur sur un pseudo-terminal.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Commencer par une panne&#xa0;: %1. Pour une part des projecteurs&#xa0;: «&#xa0;silent 5%&#xa0;». Peut être répété.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>panne</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Tout ce qui est laissé au hasard dépend de &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Écouter au port &lt;n&gt; de l’adresse de bouclage les pannes, une par ligne&#xa0;: numéro du projecteur à partir de 1, ou *, et la panne.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Écrire dans &lt;fichier&gt; des profils qui mènent un hôte aux projecteurs servis.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>Servir &lt;n&gt; projecteurs, faits sur le modèle de ceux des profils, chacun à sa propre adresse de bouclage.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Pour un parc&#xa0;: ce qu’utilise --write-profiles&#xa0;; pjlink, network ou mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>voie</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Pour un parc&#xa0;: secondes jusqu’à ce qu’un projecteur soit allumé.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Pour un parc&#xa0;: secondes jusqu’à ce qu’un projecteur soit en veille.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Pour un parc&#xa0;: nombre de changements d’état qui se produisent d’eux-mêmes par seconde.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Pour un parc&#xa0;: envoyer les notifications d’état de PJLink à cette adresse.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>adresse:port</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Pour un parc&#xa0;: écrire à la fin dans &lt;fichier&gt; combien de fois chaque projecteur a été interrogé.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>L’aide et les erreurs sont dans la langue &lt;nom&gt;, par exemple de ou zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Sert des projecteurs simulés par TCP, PJLink et pseudo-terminaux. Affiche une adresse par ligne, puis «&#xa0;ready&#xa0;».</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argument inattendu «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 demande --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password&#xa0;: dépasse %1 octets.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault&#xa0;: «&#xa0;%1&#xa0;» n’est aucun de %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet n’a pas de lignes série.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse de bouclage IPv4.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>«&#xa0;%1&#xa0;» laisse trop peu d’adresses.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>«&#xa0;%1&#xa0;» ne laisse pas de port pour PJLink.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse de bouclage IPv4 avec un port.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni pjlink, ni network, ni mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>il manque ici un nombre entier</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>doit être un nombre entier de %1 à %2, et vaut %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>doit être une ligne de texte</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>doit être un objet</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>doit être un tableau</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>a plus de %1 éléments</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>ce n’est pas un fichier de réglages enregistrés</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>seule la version %1 est connue</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>«&#xa0;%1&#xa0;» figure ici deux fois</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>dépasse 4 Mio</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>doit contenir un objet</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>ligne %1&#xa0;: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Non surveillé</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Interrogation…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Hôte inconnu</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Aucune réponse</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Mot de passe incorrect</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Incompréhensible</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Veille</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Allumé</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Refroidissement</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Préchauffage</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilateur</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Capot</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (avertissement)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Comme prévu</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n diffère</numerusform>
            <numerusform>%n diffèrent</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>il y a %1 s</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>il y a %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>il y a %1 h</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Écran vide</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Arrêt sur image</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Réglages différents</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>TransferActions</name>
    <message>
        <source>Find on the &amp;Network…</source>
        <translation>Rechercher sur le &amp;réseau…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>&amp;Importer un tableau…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>E&amp;xporter un tableau…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Rechercher des projecteurs</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Ajouter les projecteurs trouvés</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Importer un tableau</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Tableaux (*.csv *.tsv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Exporter un tableau</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tableaux (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n projecteur ajouté</numerusform>
            <numerusform>%n projecteurs ajoutés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n déjà connu</numerusform>
            <numerusform>%n déjà connus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n ligne non prise en compte</numerusform>
            <numerusform>%n lignes non prises en compte</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Colonnes non utilisées&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>Allu&amp;mer</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>Étei&amp;ndre</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>&amp;Alimentation</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>E&amp;ntrée</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>Écran &amp;vide</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Afficher un écran vide</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Afficher un écran vide sur %n projecteur&#xa0;?</numerusform>
            <numerusform>Afficher un écran vide sur %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Afficher l’image</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Afficher l’image de %n projecteur&#xa0;?</numerusform>
            <numerusform>Afficher l’image de %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>Mu&amp;et</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Couper le son</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Couper le son de %n projecteur&#xa0;?</numerusform>
            <numerusform>Couper le son de %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Rétablir le son</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Rétablir le son de %n projecteur&#xa0;?</numerusform>
            <numerusform>Rétablir le son de %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>Arrêt &amp;sur image</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Arrêter l’image</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Arrêter l’image de %n projecteur&#xa0;?</numerusform>
            <numerusform>Arrêter l’image de %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Libérer l’image</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Libérer l’image de %n projecteur&#xa0;?</numerusform>
            <numerusform>Libérer l’image de %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Allumer</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Éteindre</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>Allumer %n projecteur&#xa0;?</numerusform>
            <numerusform>Allumer %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>Éteindre %n projecteur&#xa0;?</numerusform>
            <numerusform>Éteindre %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Entrée %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Choisir l’entrée %1 sur %n projecteur&#xa0;?</numerusform>
            <numerusform>Choisir l’entrée %1 sur %n projecteurs&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Aucune entrée connue</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossible d’écrire %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>WorkActions</name>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>WorkDialog</name>
    <message>
        <source>Projector</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projecteurs</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Réessayer les échecs</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>&amp;Tout annuler</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>Faire le &amp;reste</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>le modèle ne l’a pas</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%1 sur %n terminé</numerusform>
            <numerusform>%1 sur %n terminés</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annulation&#xa0;: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>en cours…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>accepté, encore en cours</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>aucune réponse</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>terminé, %n réglage n’a pas pu être lu</numerusform>
            <numerusform>terminé, %n réglages n’ont pas pu être lus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n encore en cours</numerusform>
            <numerusform>%n encore en cours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n échec</numerusform>
            <numerusform>%n échecs</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>on ignore s’il était allumé</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n arrêté</numerusform>
            <numerusform>%n arrêtés</numerusform>
        </translation>
    </message>
</context>
</TS>
