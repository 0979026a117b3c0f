<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>没有选项 --%1</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 不带值</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 需要 %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 不能使用 %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1：“%2”不可用</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>缺少命令；可用 --help 列出命令</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>没有命令“%1”；可用 --help 列出命令</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 没有这种 --format</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>文件名为空</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>“%1”不在以下各项中：%2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>“%1”不是 +1 或 -1 这样的步进，而 PJLink 只能逐步调节</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>“%1”超过 %n 步</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>从 %2 起的“%1”不在以下各项中：%3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>从 %2 起的“%1”超过 %n 步</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>列出投影机</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>显示指定的或全部投影机的名称、型号、页面组、系列代码、连接和标签。</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>列出型号</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>显示配置文件中的型号，以及每种型号的投影机数和设置数。</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>列出设置及其值</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>显示该型号具有的设置：键、选项卡、标题和可能的值。不会询问投影机。</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>说明一项设置</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>说明一项设置：所在选项卡和标题、可能的值及其代码、具有该设置的型号，以及能否设置、复位、保存和还原。</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>显示当前值</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>从投影机读取设置并显示；不指定键时读取全部设置。</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>更改设置</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>按给出的顺序更改设置，逐项读回，并显示更改前后的值。首先为所有投影机检查全部键和值；只要有一台的值有误，就不向任何投影机发送。某台投影机没有的键会报告出来，不影响其他投影机。
KEY=VALUE 设置一个值；KEY+=N 和 KEY-=N 从当前值步进。写作 KEY VALUE 时，+3 和 -3 是步进，=-3 是负数。“acctl undo”可还原先前的值，但电源状态和操作的结果除外。</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>将设置复位为投影机的标准值</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>显示电源、输入、错误和小时数</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>显示指定的或全部投影机的状态页。</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>将设置保存到文件</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>保存所有可以还原的设置：一台投影机的设置保存到 FILE（“-”表示标准输出），任意多台的设置保存到文件夹，每台一个文件。不是设置文件的文件，没有 --force 时不会被替换。</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>与保存的设置比较</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>还原保存的设置</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>显示值和每次变化</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>先显示值，再显示每次变化，直到被中断、不再有程序读取其输出，或所有投影机都达到 --until 的值为止。无应答的投影机会反复重试。</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>在网络中搜索投影机</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>询问网络中的每台 PJLink 投影机，或给出的地址，是何投影机。ADDRESSES 的写法如 192.0.2.7、192.0.2.0/24 或 192.0.2.10-40。除非 --add 指定了配置文件，否则不保存任何内容。</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>从表格导入投影机</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>将逗号分隔值的各行（“-”表示标准输入）添加到 --profiles 或 ACCTL_PROFILES 指定的配置文件，并更改其中已有的投影机。</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>以表格形式显示投影机</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>以逗号分隔值显示指定的或全部投影机，不含密码。</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>说明一个命令</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>缺少 = != &lt; &lt;= &gt; &gt;= 之一</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>缺少值</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>没有任何型号具有此设置</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>只有数字才能比较大小</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>没有任何型号具有此设置；acctl settings 可列出所有键</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>没有任何型号具有此设置；您是指 %1 吗？</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 至 %2，显示为 %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>信号源 %1：此设置不按信号源分别保存</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>信号源 %1 不存在；可用的有 %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>不能使用值 %1；可用的有 %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>文本“%1”不是值 %2 的文本（应为“%3”）；请同时更改两者，或删除文本</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>读取、更改、保存和还原“Advanced Control”对话框所显示的投影机设置。投影机取自配置文件。</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P 选择投影机：名称、“Lecture*”这样的模式、@TAG 或 model=PATTERN。多个之间用逗号分隔，!P 排除投影机。KEY 是设置的键、“picture.*”这样的模式，或 brightness、input、power 这样在所有型号上都相同的短名称。VALUE 是对话框显示的数字、某一项在对话框任一语言中的文本，或其代码。</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>完成。待机的投影机未能报告全部内容，或已接受的更改尚未生效时也是如此。</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>有设置被拒绝，投影机没有指定的设置，或者无法读写文件或输出。</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>用法错误：未向任何投影机发送内容。</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>有投影机无应答或未报告其输入，或者正被另一个 acctl 使用。</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>已中断；报告中说明已完成的部分。</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>所有命令的选项；“acctl help COMMAND”列出命令自己的选项及示例</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>退出代码</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>数字</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>选择</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>状态</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>操作</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>短名称：%1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>选项卡</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>标题</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>种类</translation>
    </message>
    <message>
        <source>values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>投影机报告的值</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>保存</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>按每个输入信号源分别</translation>
    </message>
    <message>
        <source>models</source>
        <translation>型号</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n 项设置</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>%1 处没有配置；请用 --profiles 指定文件</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>从 FILE 读取投影机</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>仅处于此状态的投影机，例如“power=on lamp-hours&gt;1500”</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>投影机位于 ADDRESS；P 只给出其型号</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>所搜索投影机的端口；默认为 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>PJLink 密码；此计算机的其他用户可在此处看到它</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>FILE 的第一行是密码</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>输出：text、json、jsonl（每个值或投影机一行）、tsv 或 value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>与 --format json 相同</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>只显示名称或键，每行一个</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>只显示 get、set、reset 或 watch 可以使用的设置</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>只使用与 GLOB 匹配的键；可重复使用</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>从 FILE 读取 KEY=VALUE 行（“-”表示标准输入）</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>将每台投影机保存到 DIR 中各自的文件</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>将找到的投影机添加到配置文件 FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>显示将会更改的内容，但不更改</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>等待达到该状态，最长 TIME，例如 90s 或 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>所有投影机都具有此值时结束</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>有差异时以 1 退出，有无法比较的内容时以 2 退出</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>跳过 FILE 中的错误，而不是什么都不发送</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply、undo：也可用另一台投影机的撤消文件；save：替换任何文件</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>列出可以撤消的运行</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>撤消文件所在的文件夹</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>删除早于 N 天的撤消文件；默认为 30，0 表示全部保留</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>同时处理的投影机数，1 至 1024；默认读取时为 512，更改时为 64</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>等待一次应答的时间；默认为 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>投影机无应答时再重试 N 次；默认为 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>出现第一个错误后不再开始处理其他投影机</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>两次读取之间的时间；默认为 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>文本的语言，例如 de 或 zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>此文本；与命令一起使用时显示该命令的帮助</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>“%1”不可用</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>缺少“=”</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>没有设置 %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>其第一行为空</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>%1 的密码： </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1（模拟）</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>添加 %1 台，移动 %2 台，已知 %3 台</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>需要密码</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>请用 --profiles 指定配置文件</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>未使用的列：%1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>添加 %1 台，已知 %2 台，错误 %3 行</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1：“%2”不是 KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1：没有 KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>此命令只用于一台投影机，而不是 %1 台</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>已撤消</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>无法在 %1 中记录已撤消：%2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>另一个 acctl 正在使用它</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>未开始，因为另一台投影机失败</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>由 acctl 自行模拟，未作任何持久更改</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>已中断；上面报告了已完成的部分</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>处于待机，已略过：%1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>正在预热，已略过：%1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>正在冷却，已略过：%1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>已跳过，此投影机不提供：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n 台投影机</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>已更改 %n 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>不同 %n 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>已一致 %n 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>尚未生效 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>已接受，但尚未生效</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>被拒绝 %n 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n 项忙</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>投影机忙或处于待机</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n 项未确认</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>未确认，可能已更改</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n 项未完成</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>已跳过，此型号没有该设置</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>已跳过，此投影机不提供该设置</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>已跳过，无法还原</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>已跳过，此型号不接受该值</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>停在 %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>未发送，相距超过 %n 步</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>被拒绝，当前为 %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>现在无法读取</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n 项未比较</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>已跳过 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>无需操作</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>已跳过，PJLink 不支持文件中的 %n 项设置</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1；未再发送其他内容</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1；未发送任何内容</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1：撤消的是 %2 的更改；用 --force 可应用于 %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1：文件中没有此设置</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1：没有投影机“%2”</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1：%2 也属于 %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1：文件夹中没有设置文件</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1：%2 中没有它的文件</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1：不是设置文件；用 --force 可替换它</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1：没有此文件或文件夹</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>请指定要应用该文件的投影机</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>一个文件只用于一台投影机，而不是 %1 台；请用 -o 指定文件夹</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1；请指定更早的运行以将其撤消</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>没有可以撤消的运行</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>没有运行“%1”；可用 --list 列出</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1：已不在配置文件中</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>现在无法读取，已略过</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>什么都无法读取，未写入任何内容</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>已将 %n 项设置保存到 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>没有投影机“%1”；acctl list 可列出全部</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>被拒绝，投影机处于待机</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>被拒绝，投影机正在预热</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>被拒绝，投影机正在冷却</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>被拒绝，投影机忙</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>无法撤消：%1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>已停止，%n 步中接受了 %1 步</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1；%n 步中接受了 %2 步</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>已接受，但尚未生效，当前为 %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1，可能已更改，当前为 %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1，可能已更改</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>未能及时生效，当前为 %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>未能及时生效</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2：不是撤消文件的行</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1：没有可以撤消的内容</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>连接参数错误</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>未知的主机名</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>无法访问</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>连接已断开</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>无法理解其应答</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>协议版本不同</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>密码缺失或错误</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>无应答（%1）</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>此型号没有该设置</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>已跳过，PJLink 不支持</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>现在无法读取</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>此投影机不提供该设置</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>未读取，投影机未报告其输入</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink 不支持该设置</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>无法读取该设置</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>无法设置该设置</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>无法还原该设置</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>无法复位该设置</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1，投影机处于待机</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1，投影机正在预热</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1，投影机正在冷却</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>恢复应答</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until：“%1”不是 KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>打印与某个文件（“-”为标准输入）、与主程序的某个预设，或与文件夹中每台投影机自己的文件之间的差异。</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>读取投影机，发送与文件（“-”为标准输入）、与主程序的某个预设，或与文件夹中每台投影机自己的文件不同的部分，并读回结果。被替换的值会先保存，以便“acctl undo”恢复。中断的运行可随时重复。</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>无法读取更改前的值，因此不能恢复</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>无法读取更改前的值</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>无法撤消</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>将设置复位为投影机自身的标准值，并显示复位后的值。“acctl undo”可还原先前的值。计时器只能用完整的键复位，因为此操作无法撤消。</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>撤消上一次更改设置的运行</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>该运行未更改其中任何投影机</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>还原“set”、“reset”或“apply”的一次运行所替换的值。RUN 是“acctl undo --list”列出的名称、一个文件或“last”；省略时撤消上一次运行。使用 P 或 --where 时，只还原这些投影机，该运行的其余部分可以稍后撤消。撤消本身也可以按其名称撤消。</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>已中断</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>已接受，但未确认：%1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>“%1”必须以 / 或 ~/ 开头</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>正在等待另一个程序完成对 %1 的更改</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>确认(&amp;A)</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>全部确认(&amp;L)</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>起始时间</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>警报</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>警报</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 无应答</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1：灯泡已用 %2，额定 %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>open</source>
        <translation>未确认</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1：有 %n 项设置与应有值不同</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>投影机取自&lt;文件&gt;。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>监视若干份额之一：2/5 是五份中的第二份。</translation>
    </message>
    <message>
        <source>share</source>
        <translation>份额</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>只监视带有&lt;标签&gt;或其中之一的投影机。</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>每隔&lt;秒&gt;访问每台投影机，至少 5 秒。</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>每天一次，将每台投影机与&lt;文件夹&gt;中的快照比较。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>在&lt;地址&gt;接收投影机的状态通知。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>在&lt;地址:端口&gt;提供指标；“none”表示不提供。</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>地址:端口</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>每 15 秒将指标写入&lt;文件&gt;，供文本文件收集器使用。</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>将消息发送到&lt;主机:端口&gt;的 MQTT 代理。</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>主机:端口</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>MQTT 的版本，3（3.1.1）或 5。</translation>
    </message>
    <message>
        <source>version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>&lt;文件&gt;的第一行是代理的用户名。</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>&lt;文件&gt;的第一行是代理的密码。</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>加密，并信任系统信任的证书颁发机构。</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>加密，并信任&lt;文件&gt;中的证书颁发机构。</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>此客户端的证书。</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>其密钥。</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>所有主题的第一级。</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>发现主题的第一级；“none”表示不发现。</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>桥接程序有&lt;秒&gt;未发出消息时，接管其份额。</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>允许通过命令更改的设置：键或模式，用逗号分隔；“power”是电源。没有此选项则一概不允许。</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>每台投影机每分钟接受的命令数。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>数目</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>发现消息中的名称和此程序的消息使用语言&lt;名称&gt;，例如 de 或 zh-TW。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>“%1”不是从 %2 秒到一天的时间</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>“%1”不是主题</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>“%1”不是 2/5 这样的份额</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>“%1”不是带端口的数字地址</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 为空</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 需要 --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>“%1”不是带端口的主机</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>“%1”既不是 3 也不是 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file 和 --key-file 必须同时使用</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands：“%1”不是可以通过命令更改的设置</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>“%1”不是从 1 到 %2 的数字</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>监视投影机，并向指标存储和消息代理报告其状态。</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>意外的参数“%1”</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>缺少 --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>“%1”不是数字地址</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>“%1”不是文件夹</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>“%1”中没有文本</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>没有投影机带有标签“%1”</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>“%1”中不应有“=”。</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>从 &lt;文件&gt; 读取投影机。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>启动时打开投影机 &lt;名称&gt; 的对话框。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>与 --open 一起使用：选择第 &lt;n&gt; 个选项卡，从 0 开始计数。</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>列出所有投影机。</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>与 --open 一起使用：将对话框保存为图片 (PNG) 后退出。</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>将各种投影机所有选项卡的图片保存到 &lt;文件夹&gt; 后退出。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>显示文字所用的语言 &lt;名称&gt;，例如 de 或 zh-TW。</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language：没有“%1”的文字。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>多余的参数“%1”。</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 需要一个值。</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>--list、--tour 和 --open 只能使用其中一个。</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 必须与 --open 一起使用。</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab：“%1”不是数字。</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>打开投影机（真实或模拟）的设置对话框。</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>仅显示更改(&amp;O)</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>日志另存为(&amp;L)…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>命令日志</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>不显示仅读取的命令</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>保存日志</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>表格 (*.tsv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>仅错误(&amp;E)</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>清空记录(&amp;R)…</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>不显示已执行成功的命令</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>筛选记录</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>清空记录</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>要删除全部 %n 条记录吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>投影机、设置、命令或结果</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>所有投影机</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>显示其命令</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>投影机</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>已放弃</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>忙</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>不提供</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>尚未生效</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>重新询问(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>正在读取设置…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>没有差异。</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n 台投影机有差异。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n 台投影机已具有全部这些设置。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n 台投影机无法读取。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n 台投影机现在无法报告全部这些设置。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>已跳过 %n 台投影机。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>连接方式(&amp;R)</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>连接(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>地址(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>端口(&amp;P)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>密码(&amp;W)</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>串口号(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>设备(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>波特率(&amp;B)</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>与系列相同</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>模拟</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>串口</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 不是有效地址。</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>测试连接(&amp;S)</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>测试结果</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>没有可连接的地址。</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>打开对话框时才会尝试串口。</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>正在询问…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>有投影机应答：%1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>引号没有闭合</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>闭合引号之后还有文本</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>超过 %1 个单元格</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>有 %1 个单元格，而表头有 %2 个</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>超过 %1 行</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>没有表头</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>超过 %1 字节</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>电源：</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>信号源：</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>故障：</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>图像和声音：</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>灯泡：</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>过滤网：</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>设置：</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>上次应答：</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>已用灯泡时间占额定时间的比例</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>最近事件(&amp;N)</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>最近事件</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>未选择投影机</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>空白画面</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>画面冻结</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>正常显示</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1，额定 %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>暂无</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>模拟</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>已选择 %n 台投影机</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>差异</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>首先是其他输入源和模式</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n 项设置</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n 项设置不适用于此型号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n 项设置现在无法读取</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Discovery</name>
    <message>
        <source>Problem: fan</source>
        <translation>问题：风扇</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>问题：灯泡</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>问题：温度</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>问题：机盖</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>问题：过滤网</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>问题：其他</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>可访问</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开机</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>正在冷却</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>无错误</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>机盖</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>风扇</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>灯泡</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>气流</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>灯泡时间</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>温度过低</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>过滤网</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>过滤网时间</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>其他 (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>拒绝</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>读取失败</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>断线</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>设置故障(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>全部移除(&amp;M)</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> 毫秒</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>生效的故障</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>错误状态(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>命令(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>延迟(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>生效(&amp;I)</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>未选择投影机</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>%1 的模拟</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>所有命令</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>请选择，或输入名称或代码的一部分</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>电源(&amp;W)</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>故障(&amp;U)</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>%1 的模拟故障</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2, %3 ms</source>
        <extracomment>A command, what is wrong with it (&quot;Delay&quot;), and for how many milliseconds.</extracomment>
        <translation>%1：%2，%3 毫秒</translation>
    </message>
    <message>
        <source>%1 (any code)</source>
        <translation>%1（任意代码）</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message>
        <source>oldest answer %1</source>
        <translation>最早的应答：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台开机</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台待机</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台有故障</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台无法连接</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台有警报</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台未监视</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>投影机正忙或处于待机状态</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>投影机没有此功能</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>此机型不允许该值</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>无法设置</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>此机型没有此功能</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>此机型没有该设置</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>没有对应的快照</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>未确认，可能已更改</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>未能全部发送</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>无法连接</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>连接参数错误</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>主机名未知</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>连接已断开</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>无法理解应答</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>协议版本不同</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>缺少密码或密码错误</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>投影机现在不报告任何设置</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>有故障</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>无法连接</translation>
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
        <translation>在投影机的对话框中</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab、Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>下一个选项卡</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab、Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>上一个选项卡</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>查找设置</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;高级控制 %1&lt;/h3&gt;&lt;p&gt;投影机的实时设置：每个值都从投影机读取，每项更改都立即发送。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>文本中含有控制字符</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>文本中含有不完整的代理对</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>文本超过 %1 字节</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>超过 %1 字节</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>超过 %1 个值</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>这些投影机都是模拟的，供试用本程序。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>投影机(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>打开设置(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>模拟(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>命令日志(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Advanced Control: %1</source>
        <translation>高级控制：%1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>高级控制</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>警报</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>模拟</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>命令记录</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>首选项(&amp;P)…</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>刷新(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>警报(&amp;A)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具栏</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>要打开 %n 个对话框吗？</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>已保存到 %1。</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>系列(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>型号(&amp;M)</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>显示机型的全部字段(&amp;L)</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>对话框类型(&amp;T)</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>型号代码(&amp;E)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>高级控制</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>高级控制</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>投影机设置</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>读取和更改投影机的设置</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>投影机;投影仪;亮度;梯形校正;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>列表显示数百台投影机的状态，并可同时更改多台；每台投影机都有一个对话框，每组设置一个选项卡。每个值都从投影机实时读取，每次更改都立即发送。日志显示每条命令及其结果。</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>可以模拟投影机，并手动设置故障。</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>无法创建 %1 的对话框</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>无法写入文件夹 %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>风扇、灯泡、温度、机盖、过滤网(&amp;F)</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>设置与应有值不同(&amp;B)</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>显示桌面通知(&amp;D)</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>免打扰开始时间</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>免打扰结束时间</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>语言（重启后生效）(&amp;L)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>询问每台投影机的间隔(&amp;E)</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>警报</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>灯泡时间达到额定时间的(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>无应答达到(&amp;S)</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>免打扰时段</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>与桌面相同</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>颜色(&amp;C)</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>（两个时间相同：不设）</translation>
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
        <translation>预设(&amp;R)</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>应用到所选投影机</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>尚无预设</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>保存为预设(&amp;S)…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>应与预设一致(&amp;B)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>不指定</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>与应有设置比较(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>恢复应有设置(&amp;P)</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>保存为预设</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>已保存为预设 %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>预设 %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>应与预设一致</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>所选投影机均未指定应一致的预设。</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>恢复应有设置</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>要恢复 %n 台投影机的应有设置吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>正在读取 %1 的设置…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>应有的设置</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>应为</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>管理预设(&amp;M)…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>%1 的全部</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>保存为预设</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>预设的设置</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>预设名称(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>选中所有设置</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>此页(&amp;P)</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>只选中所选页的设置</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>无(&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>取消选中所有设置</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>不能使用此预设名称：请去掉斜杠和开头的点。</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>已选中 %n 项设置。</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>预设 %1 将被替换。</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>重命名预设</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>移除预设</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>预设的设置</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>重命名(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>尚无预设</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>应与其一致的投影机：%1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>不能使用此预设名称：请去掉斜杠和开头的点。</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>预设 %1 已存在。</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>要移除预设 %1 吗？</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>编辑(&amp;E)…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制一份</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>移除投影机</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>要从 %2 中移除“%1”吗？</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>复制(&amp;D)…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>移除(&amp;M)…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>标签(&amp;G)…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>移除投影机</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>标签</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>要从 %1 移除 %n 台投影机吗？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>%n 台投影机的标签，用逗号分隔；
标签前加减号表示去掉：</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>“%1”不是 MAC 地址</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>“%1”不是连接方式</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>“%1”是另一台投影机的名称，其标识为 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>“%1”不是小时数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>“%1”是另一台投影机的名称</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>表头中没有“name”列</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1 已被其他程序更改。请重新加载 (F5) 后再试一次。</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>添加投影机</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>编辑投影机</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>还需填写：%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>复制投影机</translation>
    </message>
</context>
<context>
    <name>ProfileFile</name>
    <message>
        <source>serial port %1</source>
        <translation>串口 %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>有 %1 个系列，最多允许 %2 个</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>经过的系列超过 %1 个</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>使“%1”引用了自身</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>没有名为“%1”的系列</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>文件内容必须是一个对象</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>缺少“projectors”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>缺少“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>“%1”也是 projectors[%3] 的 %2</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>没有投影机</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>在此重复出现</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>无法读取配置文件 %1：%2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>未知的键，可用的键有 %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>必须是对象</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>必须是数组</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>有 %1 项，最多允许 %2 项</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>必须是非空文本</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>超过 %1 字节</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>必须是整数</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>值为 %1，必须在 %2 到 %3 之间</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>必须是数字、文本或含有“value”和“name”的对象</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>既不是范围名称，也不是 0 到 %1 之间的数字</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>必须使用名称“%1”</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>必须是 [最小值, 最大值] 或 null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>最小值大于最大值</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>必须是以 / 开头的路径</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>必须且只能含有“network”或“serial”之一</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>必须是 simulated、network、serial 或 pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>需要 %1 连接</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>没有名为“%1”的设置</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>既不是主机名，也不是 IP 地址</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>打开配置文件(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>重新加载(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>配置文件另存为(&amp;S)…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>打开配置文件</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>配置文件 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>配置文件另存为</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>只读文件</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>无法更改 %1。请先将配置另存为其他文件。</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>另存配置文件…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>此前的更改已无法撤销。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>操作未能完成，未作任何更改。</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>另一个程序正在更改 %1；请再试一次</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>在 %1 找不到配置文件，请用 --profiles 指定文件</translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open：没有名为“%1”的投影机，用 --list 可列出全部。</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab：没有选项卡 %1，“%2”的选项卡为 0 到 %3。</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>没有显示器，此时请使用 --list、--tour 或 --screenshot。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>已将 %1 种投影机的 %n 张图片保存到 %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>信号源</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>灯泡</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>上次应答</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · 已打开</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find projectors</source>
        <translation>查找投影机</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>投影机</translation>
    </message>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>查找名称、机型、位置、地址、标签页或设置</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>找到 %n 台</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>文件夹</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[选项]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>显示版本信息。</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>未知选项“%1”。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>未知选项：%1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>“%1”之后缺少值。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>“%1”之后有意外的值。</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>“%1”既不是 IP 地址，也不是地址范围</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>超过 %1 个地址</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>搜索(&amp;S)</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>查找投影机</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>本机所在的网络</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>例如 192.0.2.0/24 或 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>找到的投影机</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>地址(&amp;A)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>密码(&amp;W)</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>添加选中项(&amp;C)</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>已在列表中</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>需要密码</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>找到 %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>找到 %n 台，已询问 %1/%2 个地址…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>保存设置(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>与文件比较(&amp;C)…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>应用设置(&amp;P)…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>保存设置</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>设置 (*.json)</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>将设置保存到文件夹</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>正在读取设置…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开设置文件</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>设置已保存到 %1。</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>%n 台投影机的设置已保存到 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n 项设置无法读取。</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>应用设置</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>比较设置</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>之前的值保存在 %1 中。</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 在此重复出现</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control：无法使用该端口</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>没有投影机“%1”</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles：投影机是从 %1 读取的</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles：%1 已存在，且不是由本程序写入的</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>“%1”不是端口。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>“%1”不是从 %2 到 %3 的数字。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>“%1”不是一小时以内的时间。</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>提供&lt;文件&gt;中的投影机。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>只提供投影机&lt;名称&gt;；可以多次使用。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>在&lt;地址&gt;而不是 127.0.0.1 上监听；与 --fleet 一起使用时，是第一台投影机的地址，代替 127.64.0.1。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>第一台投影机使用端口&lt;数目&gt;，其他投影机使用其后的端口；0 或不指定时，使用任何空闲端口。与 --fleet 一起使用时，&lt;数目&gt;是每台投影机自有协议的端口，其下一个端口用于 PJLink。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>数目</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink 要求输入&lt;文本&gt;。</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>同时在伪终端上提供每台投影机。</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>以故障开始：%1。对一部分投影机：“silent 5%”。可以多次使用。</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>所有随机内容都取决于&lt;数目&gt;。</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>在环回地址的端口&lt;数目&gt;接收故障，每行一个：投影机的编号（从 1 开始）或 *，以及故障。</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>将主机访问所提供投影机的配置写入&lt;文件&gt;。</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>仿照配置中的投影机提供&lt;数目&gt;台投影机，每台各有一个环回地址。</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>投影机群：--write-profiles 使用的方式；pjlink、network 或 mixed。</translation>
    </message>
    <message>
        <source>way</source>
        <translation>方式</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>投影机群：投影机开启所需的秒数。</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>投影机群：投影机进入待机所需的秒数。</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>投影机群：每秒自行发生的状态变化数。</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>投影机群：将 PJLink 的状态通知发送到此地址。</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>地址:端口</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>投影机群：结束时将每台投影机被询问的次数写入&lt;文件&gt;。</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>帮助和错误使用语言&lt;名称&gt;，例如 de 或 zh-TW。</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>通过 TCP、PJLink 和伪终端提供模拟投影机。每行显示一个地址，然后显示“ready”。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 需要 --fleet。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>“%1”不是地址。</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password：超过 %1 字节。</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault：“%1”不在 %2 中。</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet 没有串行线路。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>“%1”不是 IPv4 环回地址。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>“%1”剩余的地址太少。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>“%1”没有给 PJLink 留下端口。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>“%1”不是带端口的 IPv4 环回地址。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>“%1”不是 pjlink、network 或 mixed。</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>此处缺少整数</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>必须是 %1 到 %2 的整数，现为 %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>必须是一行文本</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>必须是对象</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>这不是设置文件</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>仅支持版本 %1</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>必须是数组</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>超过 %1 项</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>“%1”在此重复出现</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>大于 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>内容必须是一个对象</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>第 %1 行：</translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>未监视</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>正在询问…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>主机未知</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>无法理解应答</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开机</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>正在冷却</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>正在预热</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>风扇</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>灯泡</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>机盖</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>过滤网</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1（警告）</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>一致</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 秒前</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>信号源</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>空白画面</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>画面冻结</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>不同的设置</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n 项不同</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransferActions</name>
    <message>
        <source>Find on the &amp;Network…</source>
        <translation>在网络上查找(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>导入表格(&amp;I)…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>导出表格(&amp;X)…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>查找投影机</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>添加找到的投影机</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>导入表格</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>表格 (*.csv *.tsv *.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>导出表格</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>表格 (*.csv);;所有文件 (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>已添加 %n 台投影机</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n 台已存在</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n 行未导入</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>未使用的列：%1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>开机(&amp;N)</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>关机(&amp;F)</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>电源(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>信号源(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>空白画面(&amp;B)</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>显示空白画面</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>要让 %n 台投影机显示空白画面吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>显示图像</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>要对 %n 台投影机显示画面吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>静音(&amp;M)</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>静音</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>要对 %n 台投影机静音吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>取消静音</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>要对 %n 台投影机取消静音吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>画面冻结(&amp;Z)</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>冻结画面</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>要对 %n 台投影机冻结画面吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>取消冻结</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>要对 %n 台投影机解除冻结吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>开机</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>关机</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>要打开 %n 台投影机吗？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>要关闭 %n 台投影机吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>信号源 %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>要将 %n 台投影机切换到信号源 %1 吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>没有已知的信号源</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>WorkActions</name>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1，%2：%3</translation>
    </message>
</context>
<context>
    <name>WorkDialog</name>
    <message>
        <source>Projector</source>
        <translation>投影机</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>投影机</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>重试失败项(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>全部撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>执行其余项(&amp;R)</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>此机型没有此功能</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>正在执行…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>已接受，仍在进行</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>已完成 %1/%n 台</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>完成，%n 项设置无法读取</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台仍在进行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台失败</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>不清楚之前是否开机</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台已停止</numerusform>
        </translation>
    </message>
</context>
</TS>
