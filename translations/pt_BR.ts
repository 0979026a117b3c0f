<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>não há a opção --%1</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 não leva valor</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 precisa de %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 não aceita %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: “%2” não é possível</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>falta um comando; --help mostra todos</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>não há o comando “%1”; --help mostra todos</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 não tem esse --format</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>uso: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>o nome do arquivo está vazio</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>“%1” não é possível; valores possíveis: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>“%1” não é um passo como +1 ou -1, e o PJLink só pode alterar este ajuste passo a passo</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>“%1” é mais que %n passo</numerusform>
            <numerusform>“%1” é mais que %n passos</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>“%1” a partir de %2 não é possível; valores possíveis: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>“%1” é mais que %n passo a partir de %2</numerusform>
            <numerusform>“%1” é mais que %n passos a partir de %2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>listar projetores</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>Mostra nome, modelo, conjunto de páginas, código de série, conexão e etiquetas dos projetores indicados, ou de todos.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>listar modelos</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>Mostra os modelos do arquivo de perfis, com o número de projetores e de ajustes de cada um.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>listar ajustes e seus valores</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>Mostra os ajustes do modelo: chave, guia, legenda e valores possíveis. O projetor não é consultado.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>explicar um ajuste</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>Explica um ajuste: guia e legenda, valores possíveis com seus códigos, os modelos que o têm, e se pode ser alterado, redefinido, salvo e restaurado.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>mostrar valores atuais</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>Lê ajustes dos projetores e os mostra; sem uma chave, todos.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>alterar ajustes</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>Altera ajustes na ordem indicada, relê cada um e mostra o valor anterior e o novo. Antes, todas as chaves e valores são verificados para todos os projetores; se um valor estiver errado para um deles, nada é enviado a nenhum. Uma chave que um projetor não tem é informada e não impede as outras.
KEY=VALUE define um valor; KEY+=N e KEY-=N alteram o valor atual em N. Na forma KEY VALUE, +3 e -3 são passos, e =-3 é um número negativo. “acctl undo” restaura o que havia antes, exceto a alimentação e o resultado de ações.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>redefinir ajustes para o padrão do projetor</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>mostrar alimentação, entrada, erros e horas</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>Mostra a página de estado dos projetores indicados, ou de todos.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>salvar ajustes em arquivos</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>Salva todos os ajustes que podem ser restaurados: os de um projetor em FILE (“-” é a saída padrão), ou os de qualquer número deles em uma pasta, um arquivo para cada. Um arquivo que não é de ajustes não é substituído sem --force.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>comparar com ajustes salvos</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>restaurar ajustes salvos</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>mostrar valores e cada mudança</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>Mostra valores e depois cada mudança, até ser interrompido, até que ninguém mais leia a saída, ou até que todos os projetores tenham o valor de --until. Um projetor que para de responder é tentado repetidamente.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>procurar projetores na rede</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>Pergunta a cada projetor PJLink da rede, ou dos endereços indicados, quem ele é. ADDRESSES tem a forma 192.0.2.7, 192.0.2.0/24 ou 192.0.2.10-40. Nada é salvo, a menos que --add indique um arquivo de perfis.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>importar projetores de uma tabela</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>Adiciona as linhas de valores separados por vírgulas (“-” é a entrada padrão) ao arquivo de perfis indicado por --profiles ou ACCTL_PROFILES, e altera os projetores que ele já contém.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>mostrar projetores como tabela</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>Mostra os projetores indicados, ou todos, como valores separados por vírgulas, sem senhas.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>explicar um comando</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>falta um dos sinais = != &lt; &lt;= &gt; &gt;=</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>falta um valor</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>nenhum modelo tem esse ajuste</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>só números são menores ou maiores</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>nenhum modelo tem esse ajuste; acctl settings mostra todas as chaves</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>nenhum modelo tem esse ajuste; você quis dizer %1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 a %2, mostrado como %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>fonte %1: este ajuste não é próprio de cada fonte</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>a fonte %1 não existe; há %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>o valor %1 não é possível; valores possíveis: %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>o texto “%1” não é o do valor %2, que é “%3”; altere ambos ou remova o texto</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>Lê, altera, salva e restaura os ajustes de projetores que a caixa de diálogo “Controle avançado” mostra. Os projetores são os de um arquivo de perfis.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P seleciona projetores: um nome, um padrão como “Lecture*”, @TAG ou model=PATTERN. Vários são separados por vírgulas, e !P exclui projetores. KEY é a chave de um ajuste, um padrão como “picture.*”, ou um nome curto como brightness, input ou power, igual em todos os modelos. VALUE é um número como a caixa de diálogo o mostra, o texto de um item em qualquer idioma dela, ou seu código.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>Concluído. Também se um projetor em espera não pôde informar tudo, ou aceitou uma alteração que ainda não teve efeito.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>Algo foi recusado, um projetor não tem um ajuste indicado, ou um arquivo ou a saída não pôde ser lido ou gravado.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>Uso incorreto: nada foi enviado a nenhum projetor.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>Um projetor não respondeu ou não informou suas entradas, ou outra execução do acctl o estava usando.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>Interrompido; o relatório diz o que foi feito.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>Opções de todos os comandos; “acctl help COMMAND” mostra as de um comando, com exemplos</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemplos</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>Códigos de saída</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>número</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>escolha</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>estado</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>ação</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>nome curto: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>guia</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>legenda</translation>
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
        <translation>os que o projetor informa</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>comandos</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>guardado</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>para cada fonte de entrada</translation>
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
        <translation>não há perfis em %1; indique um arquivo com --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>ler os projetores de FILE</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>somente projetores neste estado, por exemplo “power=on lamp-hours&gt;1500”</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>o projetor está em ADDRESS; P indica apenas seu modelo</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>a porta dos projetores procurados; padrão 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>senha do PJLink; outros usuários desta máquina podem vê-la aqui</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>a primeira linha de FILE é a senha</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>saída: text, json, jsonl (uma linha por valor ou projetor), tsv ou value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>o mesmo que --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>somente nomes ou chaves, um por linha</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>somente ajustes que get, set, reset ou watch podem usar</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>somente chaves que correspondem a GLOB; pode ser repetido</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>obter linhas KEY=VALUE de FILE (“-” é a entrada padrão)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>salvar cada projetor em seu próprio arquivo em DIR</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>adicionar o que foi encontrado ao arquivo de perfis FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>mostrar o que mudaria, sem alterar nada</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>aguardar até que o estado seja atingido, no máximo TIME, por exemplo 90s ou 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>terminar quando todos os projetores tiverem este valor</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>terminar com 1 se algo diferir, com 2 se algo não pôde ser comparado</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>ignorar o que está errado em FILE em vez de não enviar nada</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: também o arquivo de desfazer de outro projetor; save: substituir qualquer arquivo</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>listar as execuções que podem ser desfeitas</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>a pasta dos arquivos de desfazer</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>remover arquivos de desfazer com mais de N dias; padrão 30, 0 mantém todos</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>projetores ao mesmo tempo, de 1 a 1024; padrão 512 para ler e 64 para alterar</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>tempo para uma resposta; padrão 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>tentar mais N vezes um projetor que não responde; padrão 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>não iniciar nenhum outro projetor após o primeiro erro</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>tempo entre duas leituras; padrão 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>idioma dos textos, por exemplo de ou zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>este texto; com um comando, a ajuda dele</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>a versão</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>não é possível gravar: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>“%1” não é possível</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>falta “=”</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>não há o ajuste %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>sua primeira linha está vazia</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Senha de %1: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simulado)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>%1 adicionados, %2 movidos, %3 conhecidos</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>precisa de uma senha</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>indique o arquivo de perfis com --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>colunas não usadas: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>%1 adicionados, %2 conhecidos, %3 errados</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: “%2” não é KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: não contém KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>aqui só é possível um projetor, não %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>desfeito</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>não é possível registrar em %1 que foi desfeito: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>outra execução do acctl está usando</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>não iniciado, pois outro projetor falhou</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>simulado pelo próprio acctl, nada foi alterado de forma duradoura</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>interrompido; o que foi feito está informado acima</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>em espera, omitido: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>aquecendo, omitido: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>resfriando, omitido: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>ignorado, este projetor não o oferece: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n projetor</numerusform>
            <numerusform>%n projetores</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n alterado</numerusform>
            <numerusform>%n alterados</numerusform>
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
            <numerusform>%n inalterado</numerusform>
            <numerusform>%n inalterados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n ainda sem efeito</numerusform>
            <numerusform>%n ainda sem efeito</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>aceito, mas ainda sem efeito</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n recusado</numerusform>
            <numerusform>%n recusados</numerusform>
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
        <translation>o projetor está ocupado ou em espera</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n não confirmado</numerusform>
            <numerusform>%n não confirmados</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>não confirmado, pode ter mudado</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n não feito</numerusform>
            <numerusform>%n não feitos</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>ignorado, este modelo não o tem</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>ignorado, este projetor não o oferece</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>ignorado, não pode ser restaurado</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>ignorado, este modelo não aceita o valor</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>parado em %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>não enviado, está a mais de %n passo</numerusform>
            <numerusform>não enviado, está a mais de %n passos</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>recusado, o valor é %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>o valor não pode ser lido agora</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n não comparado</numerusform>
            <numerusform>%n não comparados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n ignorado</numerusform>
            <numerusform>%n ignorados</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nada a fazer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>ignorado, o PJLink não o tem: %n ajuste do arquivo</numerusform>
            <numerusform>ignorados, o PJLink não os tem: %n ajustes do arquivo</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; nada mais foi enviado</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; nada foi enviado</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: desfaz uma alteração de %2; --force a aplica a %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: o arquivo não tem esse ajuste</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: não há o projetor “%2”</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: %2 também é de %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: a pasta não contém arquivos de ajustes</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: não há um arquivo dele em %2</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: não é um arquivo de ajustes; --force o substitui</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: não há esse arquivo ou pasta</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>indique os projetores aos quais o arquivo é aplicado</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>um arquivo é para um projetor, não para %1; -o indica uma pasta</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>não é possível criar a pasta %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; indique uma execução anterior para desfazê-la</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>não há execução a desfazer</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>não há a execução “%1”; --list mostra todas</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: não está mais no arquivo de perfis</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>não pode ser lido agora e é omitido</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>nada pode ser lido, e nada foi gravado</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n ajuste salvo em %1</numerusform>
            <numerusform>%n ajustes salvos em %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>não há o projetor “%1”; acctl list mostra todos</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>recusado, o projetor está em espera</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>recusado, o projetor está aquecendo</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>recusado, o projetor está resfriando</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>recusado, o projetor está ocupado</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>isto não pode ser desfeito: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>parado, %1 de %n passo aceito</numerusform>
            <numerusform>parado, %1 de %n passos aceitos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; %2 de %n passo aceito</numerusform>
            <numerusform>%1; %2 de %n passos aceitos</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>aceito, mas ainda sem efeito, o valor é %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, pode ter sido alterado, o valor é %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, pode ter sido alterado</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>recusado</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>não atingido a tempo, o valor é %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>não atingido a tempo</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: não é uma linha de um arquivo de desfazer</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: não há nada a desfazer</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>não é possível gravar %1: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>parâmetros de conexão incorretos</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nome de host desconhecido</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>inacessível</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>conexão perdida</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>as respostas não são compreendidas</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>outra versão do protocolo</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>senha ausente ou incorreta</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sem resposta</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>sem resposta (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>este modelo não tem esse ajuste</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>ignorado, o PJLink não o tem</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>não pode ser lido agora</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>este projetor não o oferece</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>não lido, o projetor não informou suas entradas</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>o PJLink não o tem</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>isto não pode ser lido</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>isto não pode ser alterado</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>isto não pode ser restaurado</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>isto não pode ser redefinido</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, o projetor está em espera</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, o projetor está aquecendo</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, o projetor está resfriando</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>responde novamente</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: “%1” não é KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>Mostra o que difere de um arquivo (“-” é a entrada padrão), de uma predefinição do aplicativo gráfico ou do arquivo de cada projetor em uma pasta.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>Lê os projetores, envia o que difere do arquivo (“-” é a entrada padrão), de uma predefinição do aplicativo gráfico ou do arquivo de cada projetor em uma pasta, e relê. O que é substituído é guardado antes, para que “acctl undo” possa restaurá-lo. Uma execução interrompida pode ser repetida a qualquer momento.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>não foi possível ler o valor anterior, que não poderá ser restaurado</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>não foi possível ler o valor anterior</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>isto não pode ser desfeito</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>Redefine ajustes para o padrão do próprio projetor e mostra os novos valores. “acctl undo” restaura o que havia antes. Contadores de horas só são zerados com sua chave exata, pois isso não pode ser desfeito.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>desfazer a última execução que alterou ajustes</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>a execução não alterou nenhum destes projetores</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>Restaura o que uma execução de “set”, “reset” ou “apply” substituiu. RUN é um nome que “acctl undo --list” mostra, um arquivo ou “last”; sem ele, a última execução é desfeita. Com P ou --where, só esses projetores são restaurados, e o resto da execução pode ser desfeito mais tarde. O próprio desfazer pode ser desfeito por seu nome.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>interrompido</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>aceito, mas não confirmado: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>“%1” deve começar com / ou ~/</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>aguardando outro programa que está alterando %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>Conf&amp;irmar</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>Co&amp;nfirmar todos</translation>
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
        <translation>%1 não responde</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: a lâmpada tem %2 de %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n ajuste não está como deveria</numerusform>
            <numerusform>%1: %n ajustes não estão como deveriam</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>confirmado</translation>
    </message>
    <message>
        <source>open</source>
        <translation>aberto</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>Mostrar esta ajuda.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>Os projetores são os de &lt;arquivo&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>arquivo</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>Monitorar uma de várias partes: 2/5 é a segunda de cinco.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>parte</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>Monitorar somente projetores com &lt;etiqueta&gt;, ou com uma de várias.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>etiqueta</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>Visitar cada projetor a cada &lt;segundos&gt;, no mínimo 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>Uma vez por dia, comparar cada projetor com seu instantâneo em &lt;pasta&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>pasta</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>Escutar em &lt;endereço&gt; os avisos de estado dos projetores.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>endereço</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>Servir métricas em &lt;endereço:porta&gt;; “none” para não servir.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>endereço:porta</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>Gravar métricas em &lt;arquivo&gt; a cada 15 segundos, para um coletor de arquivos de texto.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>Enviar mensagens ao broker MQTT em &lt;host:porta&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>host:porta</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>Versão do MQTT, 3 (3.1.1) ou 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>versão</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>A primeira linha de &lt;arquivo&gt; é o usuário no broker.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>A primeira linha de &lt;arquivo&gt; é a senha no broker.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>Criptografar, e confiar nas autoridades em que o sistema confia.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>Criptografar, e confiar nas autoridades de &lt;arquivo&gt;.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>O certificado deste cliente.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>Sua chave.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>O primeiro nível de todos os tópicos.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>tópico</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>O primeiro nível dos tópicos de descoberta; “none” para não haver descoberta.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>Assumir a parte de uma ponte que não disse nada por &lt;segundos&gt;.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>Ajustes que podem ser comandados: chaves ou padrões, separados por vírgulas; “power” é a alimentação. Sem esta opção, nenhum.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>chaves</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>Comandos que cada projetor aceita por minuto.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Os nomes nas mensagens de descoberta e as mensagens deste programa estão no idioma &lt;nome&gt;, por exemplo de ou zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>“%1” não é um tempo de %2 segundos a um dia</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>“%1” não é um tópico</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>“%1” não é uma parte como 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>“%1” não é um endereço numérico com porta</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vazio</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 precisa de --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>“%1” não é um host com porta</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>“%1” não é 3 nem 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file e --key-file precisam um do outro</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: “%1” não é um ajuste que pode ser comandado</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>“%1” não é um número de 1 a %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>Monitora projetores e informa seu estado a um repositório de métricas e a um broker de mensagens.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argumento inesperado “%1”</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>falta --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>“%1” não é um endereço numérico</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>“%1” não é uma pasta</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>não há textos em “%1”</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>nenhum projetor tem a etiqueta “%1”</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>“=” inesperado em “%1”.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 precisa de um valor.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>Abre as caixas de diálogo de ajustes de projetores, reais ou simulados.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Mostrar esta ajuda.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>Ler os projetores de &lt;arquivo&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>arquivo</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>Abrir ao iniciar a caixa de diálogo do projetor &lt;nome&gt;.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>Com --open: escolher a guia &lt;n&gt;, contada a partir de 0.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>Mostrar a tabela de projetores.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>Com --open: salvar uma imagem (PNG) da caixa de diálogo e sair.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>Salvar imagens de todas as guias de todos os tipos de projetores em &lt;pasta&gt; e sair.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>pasta</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>Mostrar os textos no idioma &lt;nome&gt;, por exemplo de ou zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: não há textos em “%1”.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argumento inesperado “%1”.</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>Só é possível uma das opções --list, --tour e --open.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 precisa de --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: “%1” não é um número.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>Somente al&amp;terações</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>Somente &amp;erros</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>Salvar re&amp;gistro como…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>&amp;Limpar registro…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>Registro de comandos</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>Ocultar os comandos que só leem</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>Ocultar os comandos que foram executados</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>Filtrar o registro</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Salvar registro</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>Tabelas (*.tsv);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Limpar registro</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>Remover %n entrada do registro?</numerusform>
            <numerusform>Remover todas as %n entradas do registro?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>Projetor, ajuste, comando ou resultado</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>Todos os projetores</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>Mostrar os comandos de</translation>
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
        <translation>Projetor</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
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
        <translation>sem resposta</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>ocupado</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>não oferecido</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>recusado</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>ainda sem efeito</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
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
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>Consultar &amp;novamente</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Lendo ajustes…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Nenhuma diferença.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n projetor difere.</numerusform>
            <numerusform>%n projetores diferem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n projetor já tem todos esses ajustes.</numerusform>
            <numerusform>%n projetores já têm todos esses ajustes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>Não foi possível ler %n projetor.</numerusform>
            <numerusform>Não foi possível ler %n projetores.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n projetor não informa agora todos esses ajustes.</numerusform>
            <numerusform>%n projetores não informam agora todos esses ajustes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n projetor foi ignorado.</numerusform>
            <numerusform>%n projetores foram ignorados.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>Acessível &amp;por</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>Cone&amp;xão</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Endereço</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>P&amp;orta</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Senha</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>N&amp;úmero da porta</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Dispositivo</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>Taxa &amp;em bauds</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>Como sua família</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulado</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Porta serial</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 não é um endereço.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Testa&amp;r conexão</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Resultado do teste</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>Não há nada a que se conectar.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>Uma linha serial é testada quando sua caixa de diálogo é aberta.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Consultando…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>Um projetor responde: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>aspas não fechadas</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>um texto continua após as aspas de fechamento</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>mais de %1 células</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>%1 células, mas o cabeçalho tem %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>mais de %1 linhas</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>não há cabeçalho</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>mais de %1 bytes</translation>
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
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>Alimentação:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Fonte:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>Problema:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>Imagem e som:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>Lâmpada:</translation>
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
        <translation>Respondeu:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>Parte da vida nominal da lâmpada</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>E&amp;ventos recentes</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>Eventos recentes</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Nenhum projetor selecionado</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>%n projetor selecionado</numerusform>
            <numerusform>%n projetores selecionados</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>tela vazia</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>mudo</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>congelada</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>visível</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>nada ainda</translation>
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
        <translation>Agora</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Diferenças</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>Primeiro as outras fontes e modos</translation>
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
            <numerusform>%n ajuste não se aplica a este modelo</numerusform>
            <numerusform>%n ajustes não se aplicam a este modelo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n ajuste não pode ser lido agora</numerusform>
            <numerusform>%n ajustes não podem ser lidos agora</numerusform>
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
        <translation>Problema: lâmpada</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>Problema: temperatura</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>Problema: tampa</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>Problema: filtro</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>Problema: outro</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Acessível</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentação</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Resfriando</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>Sem erro</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Tampa</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilador</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lâmpada</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>Fluxo de ar</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>Horas da lâmpada</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Frio</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>Horas do filtro</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>Outro (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Recusar</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>Falhar ao ler</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Atrasar</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>Parar de responder</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>&amp;Definir falha</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>Remover &amp;todas</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>Falhas em vigor</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>A&amp;limentação</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>Estad&amp;o de erro</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>&amp;Comando</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>&amp;Falha</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>Atra&amp;so</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>E&amp;m vigor</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>Nenhum projetor selecionado</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>Simulação de %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>Falhas simuladas de %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>Todos os comandos</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>Escolha ou digite parte de um nome ou código</translation>
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
        <translation>%1 (qualquer código)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n ligado</numerusform>
            <numerusform>%n ligados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n desligado</numerusform>
            <numerusform>%n desligados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n com problemas</numerusform>
            <numerusform>%n com problemas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n inacessível</numerusform>
            <numerusform>%n inacessíveis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n com alertas</numerusform>
            <numerusform>%n com alertas</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>resposta mais antiga %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n não monitorado</numerusform>
            <numerusform>%n não monitorados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>recusado</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>o projetor está ocupado ou em espera</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>o projetor não o tem</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>o modelo não permite este valor</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>não pode ser alterado</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>o modelo não o tem</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>o modelo não tem esse ajuste</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>não há instantâneo para ele</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>não confirmado, pode ter mudado</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>nem tudo pôde ser enviado</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sem resposta</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>inacessível</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>não conectado</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>parâmetros de conexão incorretos</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>nome de host desconhecido</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>conexão perdida</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>as respostas não são compreendidas</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>outra versão do protocolo</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>senha ausente ou incorreta</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>o projetor não informa nenhum ajuste no momento</translation>
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
        <translation>Desligados</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>Inacessíveis</translation>
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
        <translation>Na caixa de diálogo de um projetor</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>Próxima guia</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>Guia anterior</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Localizar ajuste</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Controle avançado %1&lt;/h3&gt;&lt;p&gt;Os ajustes de projetores ao vivo: cada valor é lido do projetor, cada alteração é enviada na hora.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>caractere de controle em um texto</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>metade de um par substituto em um texto</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>texto com mais de %1 bytes</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>mais de %1 bytes</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>mais de %1 níveis de aninhamento</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>mais de %1 valores</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>Todos estes projetores são simulados, para experimentar o programa.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>Controle avançado: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>Controle avançado</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir ajustes</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>Abrir %n caixa de diálogo?</numerusform>
            <numerusform>Abrir %n caixas de diálogo?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulação</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>Registro de comandos</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferências…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Projetor</translation>
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
        <translation>Atuali&amp;zar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Procurar</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulação</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>&amp;Registro de comandos</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Alertas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Atalhos de teclado</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>Salvo em %1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;Família</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modelo</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>Todos os campos do mode&amp;lo</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>&amp;Tipo de caixa de diálogo</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>&amp;Código do modelo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>Controle avançado</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>Controle avançado</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>Ajustes de projetores</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>Ler e alterar os ajustes de projetores</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>projetor;datashow;brilho;trapézio;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>Uma lista mostra como estão centenas de projetores e altera muitos deles ao mesmo tempo; cada um tem uma caixa de diálogo com uma guia por grupo de ajustes. Cada valor é lido ao vivo do projetor, e cada alteração é enviada na hora. Um registro mostra cada comando e seu resultado.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>Projetores podem ser simulados, com falhas definidas manualmente.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>não é possível criar a caixa de diálogo de %1</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>não é possível gravar na pasta %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Como o sistema</translation>
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
        <translation>&amp;Ventilador, lâmpada, temperatura, tampa, filtro</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>Ajustes que não estão como &amp;deveriam</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>Notificar na área de &amp;trabalho</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Silêncio a partir de</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Silêncio até</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>&amp;Idioma (após reiniciar)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>&amp;Consultar cada projetor a cada</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>&amp;Horas da lâmpada, em relação à vida nominal</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>&amp;Sem resposta por</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Horas de silêncio</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Igual à área de trabalho</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>Co&amp;res</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(dois horários iguais: nenhuma)</translation>
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
        <translation>P&amp;redefinições</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>Aplicar à seleção</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Ainda não há predefinições</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Salvar como predefinição…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>Deve &amp;corresponder a</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>Co&amp;mparar com o estado desejado</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>Res&amp;taurar o estado desejado</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Salvar como predefinição</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>Salvo como a predefinição %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>Predefinição %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>Deve corresponder a</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>Nenhum dos projetores selecionados tem uma predefinição à qual deva corresponder.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Restaurar</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Restaurar os ajustes de %n projetor?</numerusform>
            <numerusform>Restaurar os ajustes de %n projetores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>Lendo os ajustes de %1…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Predefinição</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>Estado desejado</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>Desejado</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>&amp;Gerenciar predefinições…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>Todos de %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>Salvar como predefinição</translation>
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
        <translation>Ajustes da predefinição</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;Nome da predefinição</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todos</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>Marcar todos os ajustes</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>Esta &amp;página</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>Marcar somente os ajustes da página selecionada</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>N&amp;enhum</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>Desmarcar todos os ajustes</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Nome inválido para uma predefinição: não use barras nem comece com um ponto.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n ajuste marcado.</numerusform>
            <numerusform>%n ajustes marcados.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>A predefinição %1 será substituída.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>Renomear predefinição</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>Remover predefinição</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>não é possível criar a pasta %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
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
        <translation>Ajustes da predefinição</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>R&amp;enomear</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>Ainda não há predefinições</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>Devem corresponder a ela: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>Nome inválido para uma predefinição: não use barras nem comece com um ponto.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>Já existe uma predefinição %1.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>Remover a predefinição %1?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Adicionar…</translation>
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
        <translation>Re&amp;mover…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>Eti&amp;quetar…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
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
        <translation>Remover projetor</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>Remover projetores</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>Remover “%1” de %2?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>Remover %n projetor de %1?</numerusform>
            <numerusform>Remover %n projetores de %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiquetar</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Etiquetas para %n projetor, separadas por vírgulas;
um sinal de menos na frente retira uma etiqueta:</numerusform>
            <numerusform>Etiquetas para %n projetores, separadas por vírgulas;
um sinal de menos na frente retira uma etiqueta:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>“%1” não é um endereço MAC</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>“%1” não é um tipo de conexão</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>“%1” é o nome de outro projetor, com a identidade %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>“%1” não é um número de horas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>“%1” é o nome de outro projetor</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>o cabeçalho não tem a coluna “name”</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1 foi alterado por outro programa. Recarregue-o (F5) e faça isto novamente.</translation>
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
        <translation>Adicionar projetor</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>Editar projetor</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>Duplicar projetor</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>Ainda falta preencher: %1</translation>
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
        <translation>porta serial %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>tem %1 famílias; são possíveis no máximo %2</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>passa por mais de %1 famílias</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>torna “%1” igual a si mesma</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>não há a família “%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>falta “%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>“%1” também é %2 de projectors[%3]</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>o arquivo deve conter um objeto</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>falta “projectors”</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>não há projetor</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>aparece aqui duas vezes</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>não é possível ler os perfis %1: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>não é o nome de um intervalo nem um número de 0 a %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>deve ser indicado pelo nome “%1”</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>deve ser [mínimo, máximo] ou null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>tem um mínimo maior que o máximo</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>chave desconhecida; são conhecidas %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>deve ser um objeto</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>deve ser uma matriz</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>tem %1 itens; são possíveis no máximo %2</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>deve ser um texto não vazio</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>tem mais de %1 bytes</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>deve ser um número inteiro</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>é %1; deve estar entre %2 e %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>deve ser um número, um texto ou um objeto com “value” e “name”</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>deve ser um caminho que começa com /</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>não é o nome de um host nem um endereço IP</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>deve ter “network” ou “serial”</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>deve ser simulated, network, serial ou pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>precisa de uma conexão %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>não há o ajuste “%1”</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;Abrir perfis…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recarregar</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>Sal&amp;var perfis como…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>Abrir perfis</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Perfis (*.json);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>Salvar perfis como</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>Arquivo somente leitura</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>Não é possível alterar %1. Salve antes os perfis em outro arquivo.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>Salvar perfis como…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>As alterações feitas até agora não podem mais ser desfeitas.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Re&amp;fazer</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>Não foi possível; nada foi alterado.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>outro programa está alterando %1; tente novamente</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>não há perfis em %1; indique um arquivo com --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
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
        <translation>Conexão</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n imagem de %1 tipos de projetores salva em %2</numerusform>
            <numerusform>%n imagens de %1 tipos de projetores salvas em %2</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: não há o projetor “%1”; --list mostra todos.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: não há a guia %1; “%2” tem as guias 0 a %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>sem tela; use --list, --tour ou --screenshot sem ela.</translation>
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
        <translation>Estado</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentação</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lâmpada</translation>
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
        <translation>Local</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>Última resposta</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · aberto</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>Procurar nome, modelo, local, endereço, guia ou ajuste</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>Procurar projetores</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projetores</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nada encontrado</translation>
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
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Pasta</translation>
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
        <translation>[opções]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opções:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Mostrar a versão.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opção desconhecida “%1”.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opções desconhecidas: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta o valor depois de “%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valor inesperado depois de “%1”.</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>“%1” não é um endereço IP nem um intervalo deles</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>mais de %1 endereços</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Procurar</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Procurar projetores</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>as redes deste computador</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>Por exemplo 192.0.2.0/24, ou 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observação</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>Projetores encontrados</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Endereços</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Senha</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>&amp;Adicionar os marcados</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>já conhecido</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>pede uma senha</translation>
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
            <numerusform>%n encontrado, %1 de %2 endereços consultados…</numerusform>
            <numerusform>%n encontrados, %1 de %2 endereços consultados…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>Salvar a&amp;justes…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>Co&amp;mparar com arquivo…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>Apl&amp;icar ajustes…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Salvar ajustes</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>Salvar ajustes em pasta</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Ajustes (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>Lendo ajustes…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir ajustes</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>Ajustes salvos em %1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Ajustes de %n projetor salvos em %1.</numerusform>
            <numerusform>Ajustes de %n projetores salvos em %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>Não foi possível ler %n ajuste.</numerusform>
            <numerusform>Não foi possível ler %n ajustes.</numerusform>
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
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>Os valores anteriores estão guardados em %1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada padrão</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 aparece aqui duas vezes</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: a porta não está disponível</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>não há o projetor “%1”</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: os projetores são lidos de %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 já existe e não foi gravado por este programa</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>“%1” não é uma porta.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>“%1” não é um número de %2 a %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>“%1” não é um tempo de até uma hora.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>Mostrar esta ajuda.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>Servir os projetores de &lt;arquivo&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>arquivo</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>Servir somente o projetor &lt;nome&gt;; pode ser repetido.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>Escutar em &lt;endereço&gt; em vez de 127.0.0.1; com --fleet, o endereço do primeiro projetor em vez de 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>endereço</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>O primeiro projetor está na porta &lt;n&gt;, os outros nas seguintes; 0, como sem a opção, usa quaisquer portas livres. Com --fleet, &lt;n&gt; é a porta de cada projetor para o nosso próprio protocolo, e a seguinte a do PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>O PJLink pede &lt;texto&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>Servir cada projetor também em um pseudoterminal.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>Começar com uma falha: %1. Para uma parte dos projetores: “silent 5%”. Pode ser repetido.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>falha</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>Tudo o que é deixado ao acaso depende de &lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>Escutar na porta &lt;n&gt; do endereço de loopback as falhas, uma por linha: número do projetor a partir de 1, ou *, e a falha.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>Gravar em &lt;arquivo&gt; perfis que levam um host aos projetores servidos.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>Servir &lt;n&gt; projetores, feitos à imagem dos perfis, cada um em seu próprio endereço de loopback.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>Para uma frota: o que --write-profiles usa; pjlink, network ou mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>via</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>Para uma frota: segundos até um projetor estar ligado.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>Para uma frota: segundos até um projetor estar em espera.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>Para uma frota: quantas mudanças de estado ocorrem por si sós em um segundo.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>Para uma frota: enviar os avisos de estado do PJLink a este endereço.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>endereço:porta</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>Para uma frota: ao final, gravar em &lt;arquivo&gt; quantas vezes cada projetor foi consultado.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>A ajuda e os erros estão no idioma &lt;nome&gt;, por exemplo de ou zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>Serve projetores simulados por TCP, PJLink e pseudoterminais. Mostra um endereço por linha e depois “ready”.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argumento inesperado “%1”.</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 precisa de --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>“%1” não é um endereço.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: tem mais de %1 bytes.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: “%1” não é nenhum de %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet não tem linhas seriais.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>“%1” não é um endereço IPv4 de loopback.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>“%1” deixa poucos endereços.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>“%1” não deixa nenhuma porta para o PJLink.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>“%1” não é um endereço IPv4 de loopback com porta.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>“%1” não é pjlink, network nem mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>falta aqui um número inteiro</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>deve ser um número inteiro de %1 a %2, e é %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>deve ser uma linha de texto</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>deve ser um objeto</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>deve ser uma matriz</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>tem mais de %1 itens</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>este não é um arquivo de ajustes salvos</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>só a versão %1 é conhecida</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>“%1” aparece aqui duas vezes</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>é maior que 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>deve conter um objeto</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>linha %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>Não monitorado</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Consultando…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>Host desconhecido</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sem resposta</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Senha incorreta</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Não compreendido</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>Resfriando</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Aquecendo</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilador</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lâmpada</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Tampa</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outro</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (aviso)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>Como deve estar</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n difere</numerusform>
            <numerusform>%n diferem</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>há %1 s</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>há %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>há %1 h</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desativado</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ativado</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentação</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Tela vazia</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mudo</translation>
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
        <translation>Procurar na &amp;rede…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>&amp;Importar tabela…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>E&amp;xportar tabela…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>Procurar projetores</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>Adicionar os projetores encontrados</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Importar tabela</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Tabelas (*.csv *.tsv *.txt);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Linha %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Exportar tabela</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabelas (*.csv);;Todos os arquivos (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n projetor adicionado</numerusform>
            <numerusform>%n projetores adicionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n já conhecido</numerusform>
            <numerusform>%n já conhecidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n linha não importada</numerusform>
            <numerusform>%n linhas não importadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>Colunas não usadas: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>&amp;Ligar</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>&amp;Desligar</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>Alime&amp;ntação</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Entrada</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>Tela &amp;vazia</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>Mostrar tela vazia</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Mostrar uma tela vazia em %n projetor?</numerusform>
            <numerusform>Mostrar uma tela vazia em %n projetores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>Mostrar a imagem</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Mostrar a imagem de %n projetor?</numerusform>
            <numerusform>Mostrar a imagem de %n projetores?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>M&amp;udo</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>Silenciar o som</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Silenciar o som de %n projetor?</numerusform>
            <numerusform>Silenciar o som de %n projetores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>Ativar o som</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Ativar o som de %n projetor?</numerusform>
            <numerusform>Ativar o som de %n projetores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>Con&amp;gelar</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>Congelar a imagem</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Congelar a imagem de %n projetor?</numerusform>
            <numerusform>Congelar a imagem de %n projetores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>Descongelar a imagem</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Descongelar a imagem de %n projetor?</numerusform>
            <numerusform>Descongelar a imagem de %n projetores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>Desligar</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>Ligar %n projetor?</numerusform>
            <numerusform>Ligar %n projetores?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>Desligar %n projetor?</numerusform>
            <numerusform>Desligar %n projetores?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>Entrada %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Escolher a entrada %1 em %n projetor?</numerusform>
            <numerusform>Escolher a entrada %1 em %n projetores?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>Nenhuma entrada conhecida</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>não é possível gravar %1: %2</translation>
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
        <translation>Projetor</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>Projetores</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;Repetir os que falharam</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>&amp;Desfazer tudo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>Fazer o &amp;restante</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>o modelo não o tem</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%1 de %n concluído</numerusform>
            <numerusform>%1 de %n concluídos</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Desfazer: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>trabalhando…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>concluído</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>aceito, ainda em andamento</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>recusado</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sem resposta</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>parado</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>concluído, não foi possível ler %n ajuste</numerusform>
            <numerusform>concluído, não foi possível ler %n ajustes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n ainda em andamento</numerusform>
            <numerusform>%n ainda em andamento</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n falhou</numerusform>
            <numerusform>%n falharam</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>não se sabe se estava ligado</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n parado</numerusform>
            <numerusform>%n parados</numerusform>
        </translation>
    </message>
</context>
</TS>
