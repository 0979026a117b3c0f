<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>no existe la opción --%1</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 no lleva ningún valor</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 necesita %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 no admite %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: «%2» no es posible</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>falta una orden; --help las muestra</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>no existe la orden «%1»; --help las muestra</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 no tiene ese --format</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>uso: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>el nombre del archivo está vacío</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>«%1» no es posible; valores posibles: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>«%1» no es un paso como +1 o -1, y PJLink solo puede cambiar este ajuste paso a paso</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>«%1» son más de %n paso</numerusform>
            <numerusform>«%1» son más de %n pasos</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>«%1» a partir de %2 no es posible; valores posibles: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>«%1» son más de %n paso a partir de %2</numerusform>
            <numerusform>«%1» son más de %n pasos a partir de %2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>mostrar los proyectores</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Muestra el nombre, el modelo, el juego de páginas, el código de serie, la conexión y las etiquetas de los proyectores indicados, o de todos.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>mostrar los modelos</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Muestra los modelos del archivo de perfiles, con el número de proyectores y de ajustes de cada uno.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>mostrar los ajustes y sus valores</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Muestra los ajustes del modelo: clave, pestaña, rótulo y valores posibles. No se pregunta al proyector.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>explicar un ajuste</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Explica un ajuste: pestaña y rótulo, valores posibles con sus códigos, los modelos que lo tienen, y si se puede cambiar, restablecer, guardar y restaurar.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>mostrar los valores actuales</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Lee ajustes de los proyectores y los muestra; sin una clave, todos.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>cambiar ajustes</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Cambia ajustes en el orden indicado, vuelve a leer cada uno y muestra el valor anterior y el nuevo. Primero se comprueban todas las claves y valores para todos los proyectores; si un valor es incorrecto para uno de ellos, no se envía nada a ninguno. Si un proyector no tiene una clave, se avisa de ello sin detener los demás.
KEY=VALUE fija un valor; KEY+=N y KEY-=N lo cambian en N. En la forma KEY VALUE, +3 y -3 son pasos, y =-3 es un número negativo. «acctl undo» restaura lo que había antes, salvo la alimentación y el resultado de las acciones.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>restablecer ajustes al valor estándar del proyector</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>mostrar alimentación, entrada, errores y horas</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Muestra la página de estado de los proyectores indicados, o de todos.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>guardar ajustes en archivos</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Guarda todos los ajustes que se pueden restaurar: los de un proyector en FILE («-» es la salida estándar), o los de cualquier número de ellos en una carpeta, un archivo para cada uno. Un archivo que no es de ajustes no se sustituye sin --force.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>comparar con ajustes guardados</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>restaurar ajustes guardados</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>mostrar valores y cada cambio</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Muestra valores y después cada cambio, hasta que se interrumpe, hasta que nadie lee ya la salida, o hasta que todos los proyectores tienen el valor de --until. Un proyector que deja de responder se vuelve a intentar una y otra vez.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>buscar proyectores en la red</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Pregunta quién es a cada proyector PJLink de la red, o de las direcciones indicadas. ADDRESSES se escribe como 192.0.2.7, 192.0.2.0/24 o 192.0.2.10-40. No se guarda nada, salvo que --add indique un archivo de perfiles.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>importar proyectores de una tabla</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Añade las filas de valores separados por comas («-» es la entrada estándar) al archivo de perfiles que indica --profiles o ACCTL_PROFILES, y cambia los proyectores que ya contiene.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>mostrar los proyectores como tabla</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Muestra los proyectores indicados, o todos, como valores separados por comas, sin contraseñas.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>explicar una orden</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>falta uno de los signos = != &lt; &lt;= &gt; &gt;=</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>falta un valor</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>ningún modelo tiene ese ajuste</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>solo los números son menores o mayores</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>ningún modelo tiene ese ajuste; acctl settings muestra todas las claves</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>ningún modelo tiene ese ajuste; ¿quiso decir %1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 a %2, se muestra como %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>fuente %1: este ajuste no es propio de cada fuente</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>la fuente %1 no existe; hay %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>el valor %1 no es posible; valores posibles: %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>el texto «%1» no es el del valor %2, que es «%3»; cambie ambos o elimine el texto</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Lee, cambia, guarda y restaura los ajustes de los proyectores que muestra el cuadro de diálogo «Control avanzado». Los proyectores son los de un archivo de perfiles.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P selecciona proyectores: un nombre, un patrón como «Lecture*», @TAG o model=PATTERN. Varios se separan con comas, y !P excluye proyectores. KEY es la clave de un ajuste, un patrón como «picture.*», o un nombre corto como brightness, input o power, igual en todos los modelos. VALUE es un número como lo muestra el cuadro de diálogo, el texto de una entrada en cualquiera de sus idiomas, o su código.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Hecho. También si un proyector en espera no pudo informar de todo, o aceptó un cambio que aún no ha surtido efecto.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Algo fue rechazado, a un proyector le falta un ajuste indicado, o un archivo o la salida no se pudo leer o escribir.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Uso incorrecto: no se envió nada a ningún proyector.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Un proyector no respondió o no informó de sus entradas, u otra ejecución de acctl lo estaba usando.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Interrumpido; el informe dice qué se hizo.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Opciones de todas las órdenes; «acctl help COMMAND» muestra las de una orden, con ejemplos</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Ejemplos</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Códigos de salida</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>número</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>elección</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>estado</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>acción</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>nombre corto: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>pestaña</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>rótulo</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>tipo</translation>
    </message>
    <message>
        <source>values</source>
        <translation>valores</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>los que informa el proyector</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>órdenes</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>se guarda</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>para cada fuente de entrada</translation>
    </message>
    <message>
        <source>models</source>
        <translation>modelos</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n ajuste</numerusform>
            <numerusform>%n ajustes</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>no hay perfiles en %1; indique un archivo con --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>leer los proyectores de FILE</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>solo los proyectores en este estado, por ejemplo «power=on lamp-hours&gt;1500»</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>el proyector está en ADDRESS; P indica solo su modelo</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>el puerto de los proyectores que se buscan; 4352 de forma predeterminada</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>contraseña de PJLink; otros usuarios de este equipo pueden verla aquí</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>la primera línea de FILE es la contraseña</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>salida: text, json, jsonl (una línea por valor o proyector), tsv o value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>lo mismo que --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>solo nombres o claves, uno por línea</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>solo los ajustes que pueden usar get, set, reset o watch</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>solo las claves que coinciden con GLOB; se puede repetir</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>tomar líneas KEY=VALUE de FILE («-» es la entrada estándar)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>guardar cada proyector en su propio archivo en DIR</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>añadir lo encontrado al archivo de perfiles FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>mostrar lo que cambiaría, sin cambiar nada</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>esperar hasta que se alcance el estado, como mucho TIME, por ejemplo 90s o 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>terminar cuando todos los proyectores tengan este valor</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>terminar con 1 si algo difiere, con 2 si algo no se pudo comparar</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>omitir lo incorrecto de FILE en lugar de no enviar nada</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: también el archivo para deshacer de otro proyector; save: sustituir cualquier archivo</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>mostrar las ejecuciones que se pueden deshacer</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>la carpeta de los archivos para deshacer</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>eliminar los archivos para deshacer de más de N días; 30 de forma predeterminada, 0 los conserva todos</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>proyectores a la vez, de 1 a 1024; de forma predeterminada, 512 para leer y 64 para cambiar</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>tiempo para una respuesta; 2 de forma predeterminada</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>volver a intentar N veces un proyector que no responde; 0 de forma predeterminada</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>no empezar con ningún otro proyector tras el primer error</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>tiempo entre dos lecturas; 1 de forma predeterminada</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>idioma de los textos, por ejemplo de o zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>este texto; con una orden, su propia ayuda</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>la versión</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>no se puede escribir: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>«%1» no es posible</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>falta «=»</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>no existe el ajuste %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>su primera línea está vacía</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Contraseña de %1: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simulado)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>%1 añadidos, %2 trasladados, %3 conocidos</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>necesita una contraseña</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>indique el archivo de perfiles con --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>columnas no utilizadas: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>%1 añadidos, %2 conocidos, %3 incorrectos</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: «%2» no es KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: no contiene KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>aquí solo es posible un proyector, no %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>deshecho</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>no se puede anotar en %1 que está deshecho: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>otra ejecución de acctl lo está usando</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>no empezado, porque falló otro proyector</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>simulado por el propio acctl, no se cambió nada de forma duradera</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>interrumpido; lo que se hizo está indicado arriba</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>en espera, omitido: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>calentando, omitido: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>enfriando, omitido: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>omitido, este proyector no lo ofrece: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n proyector</numerusform>
            <numerusform>%n proyectores</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n cambiado</numerusform>
            <numerusform>%n cambiados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n diferente</numerusform>
            <numerusform>%n diferentes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n sin cambios</numerusform>
            <numerusform>%n sin cambios</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n aún sin efecto</numerusform>
            <numerusform>%n aún sin efecto</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>aceptado, pero aún sin efecto</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n rechazado</numerusform>
            <numerusform>%n rechazados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n ocupado</numerusform>
            <numerusform>%n ocupados</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>el proyector está ocupado o en espera</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n sin confirmar</numerusform>
            <numerusform>%n sin confirmar</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>sin confirmar, puede haber cambiado</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n no hecho</numerusform>
            <numerusform>%n no hechos</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>omitido, este modelo no lo tiene</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>omitido, este proyector no lo ofrece</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>omitido, no se puede restaurar</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>omitido, este modelo no admite el valor</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>detenido en %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>no enviado, está a más de %n paso</numerusform>
            <numerusform>no enviado, está a más de %n pasos</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>rechazado, el valor es %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>el valor no se puede leer ahora</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n no comparado</numerusform>
            <numerusform>%n no comparados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n omitido</numerusform>
            <numerusform>%n omitidos</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nada que hacer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>omitido, PJLink no lo tiene: %n ajuste del archivo</numerusform>
            <numerusform>omitidos, PJLink no los tiene: %n ajustes del archivo</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; no se envió nada más</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; no se envió nada</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: deshace un cambio de %2; --force lo aplica a %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: el archivo no tiene ese ajuste</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: no existe el proyector «%2»</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: %2 también es de %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: la carpeta no contiene archivos de ajustes</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: no tiene ningún archivo en %2</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: no es un archivo de ajustes; --force lo sustituye</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: no existe ese archivo o carpeta</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>indique los proyectores a los que se aplica el archivo</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>un archivo es para un proyector, no para %1; -o indica una carpeta</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; indique una ejecución anterior para deshacerla</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>no hay ninguna ejecución que deshacer</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>no existe la ejecución «%1»; --list las muestra</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: ya no está en el archivo de perfiles</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>no se puede leer ahora y se omite</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>no se puede leer nada y no se escribió nada</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n ajuste guardado en %1</numerusform>
            <numerusform>%n ajustes guardados en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>no existe el proyector «%1»; acctl list los muestra todos</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>rechazado, el proyector está en espera</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>rechazado, el proyector se está calentando</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>rechazado, el proyector se está enfriando</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>rechazado, el proyector está ocupado</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>esto no se puede deshacer: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>detenido, aceptado %1 de %n paso</numerusform>
            <numerusform>detenido, aceptados %1 de %n pasos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; aceptado %2 de %n paso</numerusform>
            <numerusform>%1; aceptados %2 de %n pasos</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>aceptado, pero aún sin efecto, el valor es %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, puede haber cambiado, el valor es %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, puede haber cambiado</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>no alcanzado a tiempo, el valor es %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>no alcanzado a tiempo</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: no es una línea de un archivo para deshacer</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: no hay nada que deshacer</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>parámetros de conexión incorrectos</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nombre de equipo desconocido</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>no accesible</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>conexión perdida</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>no se entienden las respuestas</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>otra versión del protocolo</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>falta la contraseña o es incorrecta</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sin respuesta</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>sin respuesta (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>este modelo no tiene ese ajuste</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>omitido, PJLink no lo tiene</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>no se puede leer ahora</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>este proyector no lo ofrece</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>no leído, el proyector no informó de sus entradas</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink no lo tiene</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>esto no se puede leer</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>esto no se puede cambiar</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>esto no se puede restaurar</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>esto no se puede restablecer</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, el proyector está en espera</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, el proyector se está calentando</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, el proyector se está enfriando</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>vuelve a responder</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: «%1» no es KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Muestra lo que difiere de un archivo («-» es la entrada estándar), de un preajuste de la aplicación, o del archivo propio de cada proyector en una carpeta.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Lee los proyectores, envía lo que difiere del archivo («-» es la entrada estándar), de un preajuste de la aplicación, o del archivo propio de cada proyector en una carpeta, y lo vuelve a leer. Lo que se sustituye se guarda antes, para que «acctl undo» pueda restaurarlo. Una ejecución interrumpida se puede repetir en cualquier momento.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>el valor anterior no se pudo leer y no se puede restaurar</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>el valor anterior no se pudo leer</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>esto no se puede deshacer</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Restablece ajustes al valor estándar del propio proyector y muestra su nuevo valor. «acctl undo» restaura lo que había antes. Los contadores de horas solo se restablecen con su clave exacta, porque no se puede deshacer.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>deshacer la última ejecución que cambió ajustes</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>la ejecución no cambió ninguno de estos proyectores</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Restaura lo que sustituyó una ejecución de «set», «reset» o «apply». RUN es un nombre que muestra «acctl undo --list», un archivo o «last»; sin él se deshace la última ejecución. Con P o --where solo se restauran estos proyectores, y el resto de la ejecución se puede deshacer más tarde. Lo deshecho también se puede deshacer por su nombre.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>interrumpido</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>aceptado, pero sin confirmar: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>«%1» debe empezar por / o ~/</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>esperando a otro programa que está cambiando %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>&amp;Confirmar</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>Confir&amp;mar todas</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alerta</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 no responde</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: la lámpara lleva %2 de %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n ajuste no está como debería</numerusform>
            <numerusform>%1: %n ajustes no están como deberían</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>confirmada</translation>
    </message>
    <message>
        <source>open</source>
        <translation>abierta</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>Los proyectores son los de &lt;archivo&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Vigilar una de varias partes: 2/5 es la segunda de cinco.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>parte</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Vigilar solo los proyectores con &lt;etiqueta&gt;, o con una de varias.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>etiqueta</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Visitar cada proyector cada &lt;segundos&gt;, al menos 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Una vez al día, comparar cada proyector con su instantánea en &lt;carpeta&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Escuchar en &lt;dirección&gt; los avisos de estado de los proyectores.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>dirección</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Servir métricas en &lt;dirección:puerto&gt;; «none» para no servirlas.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>dirección:puerto</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Escribir métricas en &lt;archivo&gt; cada 15 segundos, para un recolector de archivos de texto.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Enviar mensajes al intermediario MQTT en &lt;equipo:puerto&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>equipo:puerto</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Versión de MQTT, 3 (3.1.1) o 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>versión</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>La primera línea de &lt;archivo&gt; es el usuario en el intermediario.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>La primera línea de &lt;archivo&gt; es la contraseña en el intermediario.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Cifrar, y confiar en las autoridades en las que confía el sistema.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Cifrar, y confiar en las autoridades de &lt;archivo&gt;.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>El certificado de este cliente.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Su clave.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>El primer nivel de todos los temas.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>tema</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>El primer nivel de los temas de descubrimiento; «none» para no descubrir.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Tomar la parte de un puente que no ha dicho nada durante &lt;segundos&gt;.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Ajustes que se pueden ordenar: claves o patrones, separados por comas; «power» es la alimentación. Sin esta opción, ninguno.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>claves</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Órdenes que cada proyector admite por minuto.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Los nombres de los mensajes de descubrimiento y los mensajes de este programa están en el idioma &lt;nombre&gt;, por ejemplo de o zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>«%1» no es un tiempo de %2 segundos a un día</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>«%1» no es un tema</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>«%1» no es una parte como 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>«%1» no es una dirección numérica con puerto</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vacío</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 necesita --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>«%1» no es un equipo con puerto</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>«%1» no es ni 3 ni 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file y --key-file se necesitan mutuamente</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: «%1» no es un ajuste que se pueda ordenar</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>«%1» no es un número de 1 a %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Vigila proyectores e informa de ellos a un almacén de métricas y a un intermediario de mensajes.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argumento inesperado «%1»</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>falta --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>«%1» no es una dirección numérica</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>«%1» no es una carpeta</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>no hay textos en «%1»</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>ningún proyector tiene la etiqueta «%1»</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>«=» inesperado en «%1».</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 necesita un valor.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Abre los cuadros de diálogo de ajustes de proyectores, reales o simulados.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>Leer los proyectores de &lt;archivo&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>Abrir al inicio el cuadro de diálogo del proyector &lt;nombre&gt;.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>Con --open: elegir la pestaña &lt;n&gt;, contada desde 0.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>Mostrar la tabla de proyectores.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>Con --open: guardar una imagen (PNG) del cuadro de diálogo y salir.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Guardar imágenes de todas las pestañas de todos los tipos de proyectores en &lt;carpeta&gt; y salir.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Mostrar los textos en el idioma &lt;nombre&gt;, por ejemplo de o zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: no hay textos en «%1».</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argumento inesperado «%1».</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>Solo se puede usar una de las opciones --list, --tour y --open.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 necesita --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: «%1» no es un número.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Solo ca&amp;mbios</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Solo &amp;errores</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>Guardar &amp;registro como…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>&amp;Vaciar registro…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Registro de órdenes</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Ocultar las órdenes que solo leen</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Ocultar las órdenes que se ejecutaron</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Filtrar el registro</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Guardar registro</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Tablas (*.tsv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Vaciar registro</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>¿Eliminar %n entrada del registro?</numerusform>
            <numerusform>¿Eliminar las %n entradas del registro?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Proyector, ajuste, orden o resultado</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Todos los proyectores</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Mostrar las órdenes de</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Proyector</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>abandonado</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sin respuesta</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>ocupado</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>no ofrecido</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>aún sin efecto</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Preguntar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Leyendo ajustes…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>No hay diferencias.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n proyector difiere.</numerusform>
            <numerusform>%n proyectores difieren.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n proyector ya tiene todos estos ajustes.</numerusform>
            <numerusform>%n proyectores ya tienen todos estos ajustes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n proyector no se pudo leer.</numerusform>
            <numerusform>%n proyectores no se pudieron leer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n proyector no informa ahora de todos estos ajustes.</numerusform>
            <numerusform>%n proyectores no informan ahora de todos estos ajustes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>Se omitió %n proyector.</numerusform>
            <numerusform>Se omitieron %n proyectores.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>Accesible me&amp;diante</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Cone&amp;xión</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>Di&amp;rección</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>P&amp;uerto</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Contr&amp;aseña</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>N&amp;úmero de puerto</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>D&amp;ispositivo</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>&amp;Baudios</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Como su familia</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulado</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Puerto serie</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 no es una dirección.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>&amp;Probar conexión</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Resultado de la prueba</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>No hay nada a lo que conectarse.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Una línea serie se prueba cuando se abre su cuadro de diálogo.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Preguntando…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Responde un proyector: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>unas comillas no están cerradas</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>un texto continúa tras sus comillas de cierre</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>más de %1 celdas</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>%1 celdas, pero el encabezado tiene %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>más de %1 filas</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>no hay encabezado</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>más de %1 bytes</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>simulado</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Alimentación:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Fuente:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problema:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Imagen y sonido:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Lámpara:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtro:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Ajustes:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>Respondió:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Parte de la vida nominal de la lámpara</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>Eve&amp;ntos recientes</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Eventos recientes</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Ningún proyector seleccionado</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>%n proyector seleccionado</numerusform>
            <numerusform>%n proyectores seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>pantalla vacía</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>en silencio</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>congelada</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>visible</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>nada todavía</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Diferencias</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Primero las otras fuentes y modos</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n ajuste</numerusform>
            <numerusform>%n ajustes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n ajuste no se aplica a este modelo</numerusform>
            <numerusform>%n ajustes no se aplican a este modelo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n ajuste no se puede leer ahora</numerusform>
            <numerusform>%n ajustes no se pueden leer ahora</numerusform>
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
        <translation>Problema: ventilador</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>Problema: lámpara</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Problema: temperatura</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Problema: cubierta</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Problema: filtro</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Problema: otro</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Accesible</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentación</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Encendido</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Enfriando</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Sin error</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Cubierta</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilador</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lámpara</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Flujo de aire</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Horas de lámpara</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Frío</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Horas de filtro</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Otro (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Rechazar</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Fallar al leer</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Retrasar</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Dejar de responder</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>E&amp;stablecer fallo</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>Quitar &amp;todos</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Fallos en vigor</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>A&amp;limentación</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>Estado &amp;de error</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>&amp;Orden</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>&amp;Fallo</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;Retraso</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>En vi&amp;gor</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Ningún proyector seleccionado</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Simulación de %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Fallos simulados de %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Todas las órdenes</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Elija, o escriba parte de un nombre o código</translation>
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
        <translation>%1 (cualquier código)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n encendido</numerusform>
            <numerusform>%n encendidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n apagado</numerusform>
            <numerusform>%n apagados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n con problemas</numerusform>
            <numerusform>%n con problemas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n no accesible</numerusform>
            <numerusform>%n no accesibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n con alertas</numerusform>
            <numerusform>%n con alertas</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>respuesta más antigua %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n no vigilado</numerusform>
            <numerusform>%n no vigilados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>el proyector está ocupado o en espera</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>el proyector no lo tiene</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>el modelo no admite este valor</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>no se puede cambiar</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>el modelo no lo tiene</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>el modelo no tiene ese ajuste</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>no tiene ninguna instantánea</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>sin confirmar, puede haber cambiado</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>no se pudo enviar todo</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sin respuesta</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>no accesible</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>no conectado</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>parámetros de conexión incorrectos</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nombre de equipo desconocido</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>conexión perdida</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>no se entienden las respuestas</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>otra versión del protocolo</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>falta la contraseña o es incorrecta</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>el proyector no informa ahora de ninguno de sus ajustes</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Apagados</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>No accesibles</translation>
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
        <translation>En el cuadro de diálogo de un proyector</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Av Pág</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Pestaña siguiente</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Mayús+Tab, Ctrl+Re Pág</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Pestaña anterior</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Control avanzado %1&lt;/h3&gt;&lt;p&gt;Los ajustes de los proyectores en directo: cada valor se lee del proyector y cada cambio se envía al momento.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>carácter de control en un texto</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>medio par sustituto en un texto</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>texto de más de %1 bytes</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>más de %1 bytes</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>más de %1 niveles de anidamiento</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>más de %1 valores</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Todos estos proyectores son simulados, para probar el programa.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Control avanzado: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Control avanzado</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir ajustes</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>¿Abrir %n cuadro de diálogo?</numerusform>
            <numerusform>¿Abrir %n cuadros de diálogo?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulación</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Registro de órdenes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Proyector</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>&amp;Abrir ajustes</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Act&amp;ualizar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulación</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Registro de órdenes</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Alertas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Atajos de teclado</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Acerca &amp;de</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Guardado en %1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Familia</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modelo</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>T&amp;odos los campos del modelo</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>&amp;Tipo de cuadro de diálogo</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>&amp;Código de modelo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Control avanzado</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Control avanzado</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Ajustes de proyectores</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Leer y cambiar los ajustes de proyectores</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>proyector;cañón;brillo;trapecio;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Una lista muestra cómo están cientos de proyectores y permite cambiar muchos a la vez; cada uno tiene un cuadro de diálogo con una pestaña por grupo de ajustes. Cada valor se lee en directo del proyector y cada cambio se envía al momento. Un registro muestra cada orden y su resultado.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>Los proyectores se pueden simular, con fallos establecidos a mano.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>no se puede crear el cuadro de diálogo de %1</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>no se puede escribir en la carpeta %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;Ventilador, lámpara, temperatura, cubierta, filtro</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>Ajustes que no están como &amp;deberían</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Notificar en el &amp;escritorio</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Silencio desde</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Silencio hasta</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Idioma (tras reiniciar)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>Pre&amp;guntar a cada proyector cada</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>&amp;Horas de lámpara, respecto a la vida nominal</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>&amp;Sin respuesta durante</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Horas de silencio</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Colores</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(dos veces la misma hora: ninguna)</translation>
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
        <translation>&amp;Preajustes</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Aplicar a la selección</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Aún no hay preajustes</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Guardar como preajuste…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>Debe &amp;coincidir con</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>Co&amp;mparar con el estado deseado</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>&amp;Restablecer el estado deseado</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Guardar como preajuste</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Guardado como preajuste %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Preajuste %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Debe coincidir con</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Ninguno de los proyectores seleccionados tiene un preajuste con el que deba coincidir.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Restablecer</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>¿Restablecer los ajustes de %n proyector?</numerusform>
            <numerusform>¿Restablecer los ajustes de %n proyectores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Leyendo los ajustes de %1…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Estado deseado</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Debe coincidir con</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>&amp;Administrar preajustes…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Todos los de %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Guardar como preajuste</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Ajustes del preajuste</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;Nombre del preajuste</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todos</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Marcar todos los ajustes</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Esta &amp;página</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Marcar los ajustes de la página seleccionada y ningún otro</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>N&amp;inguno</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Desmarcar todos los ajustes</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Un preajuste no se puede llamar así: sin barras, ni un punto al principio.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n ajuste está marcado.</numerusform>
            <numerusform>%n ajustes están marcados.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Se sustituirá el preajuste %1.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Cambiar nombre del preajuste</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Eliminar preajuste</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>Ajustes del preajuste</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Cambiar nombre</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Aún no hay preajustes</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Deben coincidir con él: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Un preajuste no se puede llamar así: sin barras, ni un punto al principio.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Ya existe un preajuste %1.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>¿Eliminar el preajuste %1?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>Dup&amp;licar…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>Eli&amp;minar…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>E&amp;tiquetar…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>Eliminar proyector</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Eliminar proyectores</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>¿Eliminar «%1» de %2?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>¿Eliminar %n proyector de %1?</numerusform>
            <numerusform>¿Eliminar %n proyectores de %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiquetar</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Etiquetas para %n proyector, separadas por comas;
un signo menos delante quita una etiqueta:</numerusform>
            <numerusform>Etiquetas para %n proyectores, separadas por comas;
un signo menos delante quita una etiqueta:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>«%1» no es una dirección MAC</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>«%1» no es un tipo de conexión</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>«%1» es el nombre de otro proyector, con la identidad %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>«%1» no es un número de horas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>«%1» es el nombre de otro proyector</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>el encabezado no tiene la columna «name»</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>Otro programa ha cambiado %1. Recárguelo (F5) y vuelva a hacer esto.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>Añadir proyector</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Editar proyector</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Duplicar proyector</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Falta rellenar: %1</translation>
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
        <translation>puerto serie %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>tiene %1 familias; como mucho son posibles %2</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>pasa por más de %1 familias</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>hace «%1» igual a sí misma</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>no existe la familia «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>falta «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>«%1» es también %2 de projectors[%3]</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>el archivo debe contener un objeto</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>falta «projectors»</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>no hay ningún proyector</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>aparece aquí dos veces</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>no se pueden leer los perfiles %1: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>no es ni el nombre de un intervalo ni un número de 0 a %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>debe indicarse con su nombre «%1»</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>debe ser [mínimo, máximo] o null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>tiene un mínimo mayor que su máximo</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>clave desconocida; se conocen %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>debe ser un objeto</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>debe ser una matriz</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>tiene %1 entradas; como mucho son posibles %2</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>debe ser un texto no vacío</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>supera los %1 bytes</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>debe ser un número entero</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>es %1; debe estar entre %2 y %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>debe ser un número, un texto o un objeto con «value» y «name»</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>debe ser una ruta que empiece por /</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>no es ni el nombre de un equipo ni una dirección IP</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>debe tener «network» o «serial»</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>debe ser simulated, network, serial o pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>necesita una conexión %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>no existe el ajuste «%1»</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;Abrir perfiles…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>Re&amp;cargar</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>&amp;Guardar perfiles como…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Abrir perfiles</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Perfiles (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Guardar perfiles como</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Archivo de solo lectura</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>%1 no se puede cambiar. Guarde antes los perfiles en otro archivo.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Guardar perfiles como…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>Los cambios hechos hasta ahora ya no se pueden deshacer.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Re&amp;hacer</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>No se pudo hacer; no se cambió nada.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>otro programa está cambiando %1; inténtelo de nuevo</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>no hay perfiles en %1; indique un archivo con --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n imagen de %1 tipos de proyectores guardada en %2</numerusform>
            <numerusform>%n imágenes de %1 tipos de proyectores guardadas en %2</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: no existe el proyector «%1»; --list los muestra todos.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: no existe la pestaña %1; «%2» tiene las pestañas 0 a %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>no hay pantalla; sin ella se pueden usar --list, --tour o --screenshot.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentación</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lámpara</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Última respuesta</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · abierto</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Buscar un nombre, modelo, lugar, dirección, pestaña o ajuste</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Buscar proyectores</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Proyectores</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se encontró nada</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n encontrado</numerusform>
            <numerusform>%n encontrados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Carpeta</translation>
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
        <translation>[opciones]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opción desconocida «%1».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opciones desconocidas: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta el valor después de «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valor inesperado después de «%1».</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>«%1» no es ni una dirección IP ni un intervalo de ellas</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>más de %1 direcciones</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Buscar proyectores</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>las redes de este equipo</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Por ejemplo 192.0.2.0/24, o 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Proyectores encontrados</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Direcciones</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Contra&amp;seña</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>&amp;Añadir los marcados</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>ya conocido</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>pide una contraseña</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n encontrado</numerusform>
            <numerusform>%n encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n encontrado, preguntadas %1 de %2 direcciones…</numerusform>
            <numerusform>%n encontrados, preguntadas %1 de %2 direcciones…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>Guar&amp;dar ajustes…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>&amp;Comparar con archivo…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>Ap&amp;licar ajustes…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Guardar ajustes</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Guardar ajustes en carpeta</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Ajustes (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Leyendo ajustes…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir ajustes</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Ajustes guardados en %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Ajustes de %n proyector guardados en %1.</numerusform>
            <numerusform>Ajustes de %n proyectores guardados en %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>No se pudo leer %n ajuste.</numerusform>
            <numerusform>No se pudieron leer %n ajustes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Aplicar ajustes</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>Comparar ajustes</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>Los valores anteriores se conservan en %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 aparece aquí dos veces</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: el puerto no está disponible</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>no existe el proyector «%1»</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: los proyectores se leen de %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 ya existe y este programa no lo ha escrito</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>«%1» no es un puerto.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>«%1» no es un número de %2 a %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>«%1» no es un tiempo de hasta una hora.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>Servir los proyectores de &lt;archivo&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Servir solo el proyector &lt;nombre&gt;; se puede repetir.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Escuchar en &lt;dirección&gt; en lugar de 127.0.0.1; con --fleet, la dirección del primer proyector en lugar de 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>dirección</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>El primer proyector está en el puerto &lt;n&gt;, y los demás en los siguientes; 0, como sin la opción, toma puertos libres. Con --fleet, &lt;n&gt; es el puerto de cada proyector para nuestro propio protocolo, y el siguiente el de PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink pide &lt;texto&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Servir además cada proyector en un pseudoterminal.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Empezar con un fallo: %1. Para una parte de los proyectores: «silent 5%». Se puede repetir.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>fallo</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Todo lo que se deja al azar depende de &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Escuchar en el puerto &lt;n&gt; de la dirección de bucle los fallos, uno por línea: número del proyector desde 1, o *, y el fallo.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Escribir en &lt;archivo&gt; perfiles que lleven un equipo a los proyectores servidos.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>Servir &lt;n&gt; proyectores, hechos a imagen de los de los perfiles, cada uno en su propia dirección de bucle.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Para un grupo: lo que usa --write-profiles; pjlink, network o mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>vía</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Para un grupo: segundos hasta que un proyector está encendido.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Para un grupo: segundos hasta que un proyector está en espera.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Para un grupo: cuántos cambios de estado ocurren por sí solos en un segundo.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Para un grupo: enviar los avisos de estado de PJLink a esta dirección.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>dirección:puerto</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Para un grupo: al final, escribir en &lt;archivo&gt; cuántas veces se preguntó a cada proyector.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>La ayuda y los errores están en el idioma &lt;nombre&gt;, por ejemplo de o zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Sirve proyectores simulados por TCP, PJLink y pseudoterminales. Muestra una dirección por línea, y después «ready».</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argumento inesperado «%1».</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 necesita --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>«%1» no es una dirección.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: supera los %1 bytes.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: «%1» no es ninguno de %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet no tiene líneas serie.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>«%1» no es una dirección IPv4 de bucle.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>«%1» deja muy pocas direcciones.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>«%1» no deja ningún puerto para PJLink.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>«%1» no es una dirección IPv4 de bucle con puerto.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>«%1» no es pjlink, network ni mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>aquí falta un número entero</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>debe ser un número entero de %1 a %2, y es %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>debe ser una línea de texto</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>debe ser un objeto</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>debe ser una matriz</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>tiene más de %1 entradas</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>esto no es un archivo de ajustes guardados</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>solo se conoce la versión %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>«%1» aparece aquí dos veces</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>supera los 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>debe contener un objeto</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>línea %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>No vigilado</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Preguntando…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Equipo desconocido</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>No se entiende</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Encendido</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Enfriando</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Calentando</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilador</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lámpara</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Cubierta</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (advertencia)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Como debe estar</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n difiere</numerusform>
            <numerusform>%n difieren</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>hace %1 s</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>hace %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>hace %1 h</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentación</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Pantalla vacía</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silencio</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Congelar</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Ajustes diferentes</translation>
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
        <translation>Buscar en la &amp;red…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>&amp;Importar tabla…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>E&amp;xportar tabla…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Buscar proyectores</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Añadir los proyectores encontrados</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Importar tabla</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Tablas (*.csv *.tsv *.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Exportar tabla</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tablas (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n proyector añadido</numerusform>
            <numerusform>%n proyectores añadidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n ya conocido</numerusform>
            <numerusform>%n ya conocidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n fila no aceptada</numerusform>
            <numerusform>%n filas no aceptadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Columnas no utilizadas: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>E&amp;ncender</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>Apa&amp;gar</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>Ali&amp;mentación</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Entrada</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>Pantalla &amp;vacía</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Mostrar pantalla vacía</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>¿Mostrar una pantalla vacía en %n proyector?</numerusform>
            <numerusform>¿Mostrar una pantalla vacía en %n proyectores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Mostrar la imagen</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>¿Mostrar la imagen de %n proyector?</numerusform>
            <numerusform>¿Mostrar la imagen de %n proyectores?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>&amp;Silencio</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Silenciar el sonido</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>¿Silenciar el sonido de %n proyector?</numerusform>
            <numerusform>¿Silenciar el sonido de %n proyectores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Activar el sonido</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>¿Activar el sonido de %n proyector?</numerusform>
            <numerusform>¿Activar el sonido de %n proyectores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>C&amp;ongelar</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Congelar la imagen</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>¿Congelar la imagen de %n proyector?</numerusform>
            <numerusform>¿Congelar la imagen de %n proyectores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Descongelar la imagen</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>¿Descongelar la imagen de %n proyector?</numerusform>
            <numerusform>¿Descongelar la imagen de %n proyectores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Encender</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Apagar</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>¿Encender %n proyector?</numerusform>
            <numerusform>¿Encender %n proyectores?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>¿Apagar %n proyector?</numerusform>
            <numerusform>¿Apagar %n proyectores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Entrada %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>¿Elegir la entrada %1 en %n proyector?</numerusform>
            <numerusform>¿Elegir la entrada %1 en %n proyectores?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>No se conocen entradas</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>no se puede escribir %1: %2</translation>
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
        <translation>Proyector</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Proyectores</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Reintentar los fallidos</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>&amp;Deshacer todo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>Hacer el &amp;resto</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>el modelo no lo tiene</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%1 de %n hecho</numerusform>
            <numerusform>%1 de %n hechos</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Deshacer: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>trabajando…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>aceptado, aún en curso</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sin respuesta</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>hecho, no se pudo leer %n ajuste</numerusform>
            <numerusform>hecho, no se pudieron leer %n ajustes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n aún en curso</numerusform>
            <numerusform>%n aún en curso</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n fallido</numerusform>
            <numerusform>%n fallidos</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>no se sabe si estaba encendido</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n detenido</numerusform>
            <numerusform>%n detenidos</numerusform>
        </translation>
    </message>
</context>
</TS>
