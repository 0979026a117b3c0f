<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>沒有選項 --%1</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 不接受值</translation>
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
        <translation>%1：不能使用「%2」</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>缺少命令；可用 --help 列出命令</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>沒有命令「%1」；可用 --help 列出命令</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 沒有這種 --format</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>檔名是空的</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>「%1」不在下列各項之中：%2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>「%1」不是 +1 或 -1 這樣的增減量，而 PJLink 只能逐級調整</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>「%1」超過 %n 級</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>從 %2 算起的「%1」不在下列各項之中：%3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>「%1」距離 %2 超過 %n 級</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>列出投影機</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>顯示指定的或所有投影機的名稱、機型、頁面組合、系列代碼、連線與標籤。</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>列出機型</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>顯示描述檔中的機型，以及各機型的投影機數與設定數。</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>列出設定與可用的值</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>顯示該機型所有的設定：鍵、分頁、標題與可用的值。不會詢問投影機。</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>說明一項設定</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>說明一項設定：所在分頁與標題、可用的值及其代碼、具有此設定的機型，以及能否設定、重設、儲存與還原。</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>顯示目前的值</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>從投影機讀取設定並顯示；未指定鍵時讀取所有設定。</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>變更設定</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>依指定的順序變更設定，逐項讀回，並顯示變更前後的值。會先針對所有投影機檢查全部的鍵與值；只要其中一台的值有誤，就不會傳送任何內容。投影機沒有的鍵會加以回報，其餘則照常進行。
KEY=VALUE 設定一個值；KEY+=N 與 KEY-=N 從目前的值逐級增減。寫成 KEY VALUE 時，+3 與 -3 是增減量，=-3 則是負數。「acctl undo」可還原先前的值，但電源狀態與動作的結果除外。</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>將設定重設為投影機的標準值</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>顯示電源、輸入、錯誤與時數</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>顯示指定的或所有投影機的狀態頁。</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>將設定儲存到檔案</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>儲存所有可還原的設定：將一台投影機的設定存入 FILE（「-」表示標準輸出），或將任意多台的設定存入資料夾，每台一個檔案。若檔案不是設定值檔案，沒有 --force 就不會取代。</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>與儲存的設定比較</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>還原儲存的設定</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>顯示值與每次的變更</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>先顯示值，再顯示每次的變更，直到被中斷、沒有人再讀取輸出，或所有投影機都達到 --until 的值為止。沒有回應的投影機會一再重試。</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>在網路上搜尋投影機</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>詢問網路上或指定位址的每台 PJLink 投影機是哪一台。ADDRESSES 的寫法如 192.0.2.7、192.0.2.0/24 或 192.0.2.10-40。除非以 --add 指定描述檔，否則不會儲存任何內容。</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>從表格匯入投影機</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>將逗號分隔值的各列（「-」表示標準輸入）加入 --profiles 或 ACCTL_PROFILES 指定的描述檔，並變更其中已有的投影機。</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>以表格顯示投影機</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>以逗號分隔值顯示指定的或所有投影機，不含密碼。</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>說明一個命令</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>缺少 = != &lt; &lt;= &gt; &gt;= 其中之一</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>缺少值</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>沒有任何機型具有此設定</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>只有數字可以比較大小</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>沒有任何機型具有此設定；可用 acctl settings 列出所有鍵</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>沒有任何機型具有此設定；您是指 %1 嗎？</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 至 %2，顯示為 %3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>來源 %1：此設定並未依來源分別儲存</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>來源 %1 不存在；可用的有 %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>不能使用值 %1；可用的有 %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>文字「%1」與值 %2 的文字「%3」不符；請同時變更兩者，或移除文字</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>讀取、變更、儲存及還原「進階控制」對話方塊所顯示的投影機設定。投影機取自描述檔。</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P 選擇投影機：名稱、「Lecture*」這樣的樣式、@TAG 或 model=PATTERN。多個項目以逗號分隔，!P 會排除投影機。KEY 是設定的鍵、「picture.*」這樣的樣式，或在所有機型上都相同的簡短名稱，例如 brightness、input 或 power。VALUE 是對話方塊顯示的數字、某個項目在對話方塊任一語言中的文字，或其代碼。</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>完成。待機中的投影機無法回報全部內容，或已接受的變更尚未生效時，也是如此。</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>有變更遭拒絕、投影機沒有指定的設定，或無法讀寫檔案或輸出。</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>用法錯誤：未傳送任何內容給任何投影機。</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>有投影機沒有回應、未回報其輸入，或正由另一個 acctl 使用。</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>已中斷；報告會說明已完成的部分。</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>所有命令共用的選項；「acctl help COMMAND」會列出該命令本身的選項與範例</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>範例</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>結束代碼</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>數字</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>選項</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>狀態</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>動作</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>簡短名稱：%1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>分頁</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>標題</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>種類</translation>
    </message>
    <message>
        <source>values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>由投影機回報</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>儲存方式</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>依輸入來源分別儲存</translation>
    </message>
    <message>
        <source>models</source>
        <translation>機型</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n 項設定</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>%1 沒有描述檔；請用 --profiles 指定檔案</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>從 FILE 讀取投影機</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>只處理處於此狀態的投影機，例如「power=on lamp-hours&gt;1500」</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>投影機位於 ADDRESS；P 只用來指定機型</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>所搜尋投影機的連接埠；預設為 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>PJLink 密碼；這台電腦的其他使用者在此看得到它</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>FILE 的第一行是密碼</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>輸出：text、json、jsonl（每個值或每台投影機一行）、tsv 或 value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>等同 --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>只顯示名稱或鍵，每行一個</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>只顯示 get、set、reset 或 watch 能使用的設定</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>只使用符合 GLOB 的鍵；可重複指定</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>從 FILE 讀取 KEY=VALUE 各行（「-」表示標準輸入）</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>將每台投影機分別儲存到 DIR 中各自的檔案</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>將找到的投影機加入描述檔 FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>只顯示將會變更的內容，不實際變更</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>等待達到該狀態，最久 TIME，例如 90s 或 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>所有投影機都達到此值時結束</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>有不同時以 1 結束，有無法比較的內容時以 2 結束</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>略過 FILE 中的錯誤，而不是什麼都不傳送</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply、undo：也接受另一台投影機的復原檔；save：取代任何檔案</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>列出可以復原的執行</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>存放復原檔的資料夾</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>移除超過 N 天的復原檔；預設為 30，0 表示全部保留</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>同時處理的投影機數，1 至 1024；預設讀取時為 512，變更時為 64</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>等待一次回應的時間；預設為 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>投影機沒有回應時再試 N 次；預設為 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>發生第一個錯誤後，不再開始處理其他投影機</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>兩次讀取之間的時間；預設為 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>文字的語言，例如 de 或 zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>顯示此說明；加上命令時顯示該命令的說明</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>無法寫入：%1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>不能使用「%1」</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>缺少「=」</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>沒有設定 %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>第一行是空的</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>%1 的密碼： </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1（模擬）</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>新增 %1 台，位址變更 %2 台，原已有 %3 台</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>需要密碼</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>請用 --profiles 指定描述檔</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>未使用的欄：%1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>新增 %1 台，原已有 %2 台，錯誤 %3 列</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1：「%2」不是 KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1：沒有 KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>這只能用於一台投影機，而不是 %1 台</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>已復原</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>無法在 %1 中記下已復原：%2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>另一個 acctl 正在使用它</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>因另一台投影機失敗而未開始</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>由 acctl 自行模擬，未做任何永久變更</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>已中斷；已完成的部分如上所述</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>待機中，已略過：%1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>正在熱機，已略過：%1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>正在冷卻，已略過：%1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>已略過，此投影機不提供：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n 台投影機</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n 項已變更</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n 項不同</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n 項原已相符</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n 項尚未生效</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>已接受，但尚未生效</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n 項遭拒絕</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n 項因忙碌未執行</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>投影機忙碌中或處於待機狀態</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n 項未確認</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>未確認，可能已變更</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n 項未完成</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>已略過，此機型沒有這項設定</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>已略過，此投影機不提供這項設定</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>已略過，無法還原</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>已略過，此機型不接受這個值</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>停在 %1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>未傳送，相差超過 %n 級</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>遭拒絕，目前為 %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>現在無法讀取這項設定</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n 項未比較</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n 項已略過</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>不需要做任何事</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>已略過，PJLink 沒有檔案中的 %n 項設定</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1；其餘未傳送</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1；未傳送任何內容</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1：這會復原 %2 的變更；用 --force 可將它套用到 %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1：檔案中沒有這項設定</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1：沒有投影機「%2」</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1：%2 也屬於 %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1：資料夾中沒有設定值檔案</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1：%2 中沒有它的檔案</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1：不是設定值檔案；用 --force 可取代它</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1：沒有這個檔案或資料夾</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>請指定要套用此檔案的投影機</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>一個檔案只能用於一台投影機，而不是 %1 台；請用 -o 指定資料夾</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>無法建立資料夾 %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1；請指定更早的執行來復原</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>沒有可以復原的執行</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>沒有名為「%1」的執行；可用 --list 列出</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1：已不在描述檔中</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>現在無法讀取，已略過</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>沒有可讀取的內容，未寫入任何內容</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n 項設定已儲存到 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>沒有投影機「%1」；可用 acctl list 列出全部</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>遭拒絕，投影機處於待機狀態</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>遭拒絕，投影機正在熱機</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>遭拒絕，投影機正在冷卻</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>遭拒絕，投影機忙碌中</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>這無法復原：%1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>已停止，%n 級中有 %1 級被接受</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1；%n 級中有 %2 級被接受</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>已接受，但尚未生效，目前為 %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1，可能已變更，目前為 %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1，可能已變更</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>遭拒絕</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>未及時生效，目前為 %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>未及時生效</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2：不是復原檔的內容</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1：沒有可以復原的內容</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>連線參數錯誤</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>不明的主機名稱</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>無法連線</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>連線已中斷</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>無法理解其回應</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>通訊協定版本不同</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>密碼未輸入或不正確</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>沒有回應（%1）</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>此機型沒有這項設定</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>已略過，PJLink 沒有這項設定</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>現在無法讀取</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>此投影機不提供這項設定</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>未讀取，投影機未回報其輸入</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink 沒有這項設定</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>這項設定無法讀取</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>這項設定無法設定</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>這項設定無法還原</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>這項設定無法重設</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1，投影機處於待機狀態</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1，投影機正在熱機</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1，投影機正在冷卻</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>已恢復回應</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until：「%1」不是 KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>顯示與檔案（「-」表示標準輸入）、主程式的預設集，或資料夾中各投影機自己的檔案有何不同。</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>讀取投影機，將與檔案（「-」表示標準輸入）、主程式的預設集，或資料夾中各投影機自己的檔案不同的設定傳送出去，再讀回。被取代的值會先保留下來，以便用「acctl undo」還原。中斷的作業隨時可以重新執行。</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>無法讀取先前的值，因此無法還原</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>無法讀取先前的值</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>這無法復原</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>將設定重設為投影機本身的標準值，並顯示重設後的值。「acctl undo」可還原先前的值。時數計數器必須以完整的鍵指定才會重設，因為此動作無法復原。</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>復原上一次變更設定的執行</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>該次執行未變更其中任何投影機</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>還原「set」、「reset」或「apply」的一次執行所取代的值。RUN 是「acctl undo --list」列出的名稱、檔案或「last」；省略時復原上一次執行。使用 P 或 --where 時，只還原這些投影機，該次執行的其餘部分可以稍後復原。復原本身也可以用其名稱再復原。</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>已中斷</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>已接受，但未確認：%1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>「%1」必須以 / 或 ~/ 開頭</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>正在等待另一個程式完成對 %1 的變更</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>確認(&amp;A)</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>全部確認(&amp;L)</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>警示</translation>
    </message>
    <message>
        <source>State</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>警示</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 沒有回應</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1：燈泡已用 %2，額定 %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1：%n 項設定與應有值不同</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>已確認</translation>
    </message>
    <message>
        <source>open</source>
        <translation>未確認</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>顯示此說明。</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>投影機取自 &lt;檔案&gt;。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>只監看投影機的其中一份：2/5 表示五份中的第二份。</translation>
    </message>
    <message>
        <source>share</source>
        <translation>份額</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>只監看具有 &lt;標籤&gt; 或其中任一標籤的投影機。</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>標籤</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>每隔 &lt;秒&gt; 查詢每台投影機，至少 5 秒。</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>每天一次，將每台投影機與 &lt;資料夾&gt; 中的快照比較。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>在 &lt;位址&gt; 接收投影機的狀態通知。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>在 &lt;位址:連接埠&gt; 提供指標；「none」表示不提供。</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>位址:連接埠</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>每 15 秒將指標寫入 &lt;檔案&gt;，供文字檔收集程式使用。</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>將訊息傳送到位於 &lt;主機:連接埠&gt; 的 MQTT broker。</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>主機:連接埠</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>MQTT 的版本，3 (3.1.1) 或 5。</translation>
    </message>
    <message>
        <source>version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>&lt;檔案&gt; 的第一行是 broker 的使用者名稱。</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>&lt;檔案&gt; 的第一行是 broker 的密碼。</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>加密，並信任系統所信任的憑證授權單位。</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>加密，並信任 &lt;檔案&gt; 中的憑證授權單位。</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>此用戶端的憑證。</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>憑證的金鑰。</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>所有主題的第一層。</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>主題</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>探索主題的第一層；「none」表示不探索。</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>其他 bridge 已有 &lt;秒&gt; 沒有訊息時，接管其份額。</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>允許以命令變更的設定：以逗號分隔的鍵或樣式；「power」是電源。沒有此選項則一概不允許。</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>鍵</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>每台投影機每分鐘接受的命令數。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>數目</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>探索訊息中的名稱與此程式的訊息使用 &lt;名稱&gt; 這個語言，例如 de 或 zh-TW。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>「%1」不是 %2 秒到一天之間的時間</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>「%1」不是主題</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>「%1」不是 2/5 這樣的份額</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>「%1」不是含連接埠的數字位址</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 是空的</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 需要 --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>「%1」不是含連接埠的主機</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>「%1」不是 3 也不是 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file 與 --key-file 必須同時使用</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands：「%1」不是可用命令變更的設定</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>「%1」不是 1 到 %2 之間的數字</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>監看投影機，並將其狀態提供給指標資料庫與訊息 broker。</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>多餘的引數「%1」</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>缺少 --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>「%1」不是數字位址</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>「%1」不是資料夾</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>沒有「%1」的文字</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>沒有投影機具有標籤「%1」</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>「%1」中不應有「=」。</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 需要值。</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>開啟投影機的設定對話方塊，包括真實與模擬的投影機。</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>顯示此說明。</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>從 &lt;檔案&gt; 讀取投影機。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>啟動時開啟投影機 &lt;名稱&gt; 的對話方塊。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>與 --open 搭配：選擇第 &lt;n&gt; 個分頁，從 0 算起。</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>顯示投影機的表格。</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>與 --open 搭配：將對話方塊儲存為圖片 (PNG) 後結束。</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>將各種投影機所有分頁的圖片儲存到 &lt;資料夾&gt; 後結束。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>以 &lt;名稱&gt; 這個語言顯示文字，例如 de 或 zh-TW。</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language：沒有「%1」的文字。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>多餘的引數「%1」。</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>--list、--tour 與 --open 只能使用其中一個。</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 需要 --open。</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab：「%1」不是數字。</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>只顯示變更(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>只顯示錯誤(&amp;E)</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>另存記錄(&amp;L)…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>清除記錄(&amp;R)…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>命令記錄</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>隱藏只做讀取的命令</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>隱藏已成功執行的命令</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>篩選記錄</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>儲存記錄</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>表格 (*.tsv);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>清除記錄</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>要移除全部 %n 筆記錄嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>投影機、設定、命令或結果</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>所有投影機</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>顯示下列投影機的命令</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>投影機</translation>
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
        <translation>結果</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>已放棄</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>忙碌中</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>不提供</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>遭拒絕</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>尚未生效</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>重新詢問(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>正在讀取設定…</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>沒有任何差異。</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n 台投影機的設定不同。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n 台投影機的設定原已全部相符。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n 台投影機無法讀取。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n 台投影機現在無法回報全部這些設定。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>已略過 %n 台投影機。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>連線方式(&amp;R)</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>連線(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>位址(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>連接埠(&amp;P)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>密碼(&amp;W)</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>序列埠號(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>裝置(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>鮑率(&amp;B)</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>與系列相同</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>模擬</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>網路</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>序列埠</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 不是位址。</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>測試連線(&amp;S)</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>測試結果</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>沒有可連線的對象。</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>開啟對話方塊時才會嘗試序列埠。</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>正在詢問…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>有投影機回應：%1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>引號沒有結尾</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>結尾引號之後還有文字</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>超過 %1 個儲存格</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>有 %1 個儲存格，但標題列有 %2 個</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>超過 %1 列</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>沒有標題列</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>超過 %1 個位元組</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>模擬</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>狀態：</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>電源：</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>來源：</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>問題：</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>影像與聲音：</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>燈泡：</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>濾網：</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>設定：</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>上次回應：</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>已用時數占燈泡額定時數的比例</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>最近的事件(&amp;N)</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>最近的事件</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>未選取投影機</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>已選取 %n 台投影機</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>空白畫面</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>畫面凍結</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>正常顯示</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1（額定 %2）</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>尚無事件</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>目前的值</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>差異</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>先還原：其他來源與模式</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n 項設定</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n 項設定不適用於此機型</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n 項設定現在無法讀取</numerusform>
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
        <translation>問題：風扇</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>問題：燈泡</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>問題：溫度</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>問題：機蓋</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>問題：濾網</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>問題：其他</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>可連線</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>待機</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開機</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>正在冷卻</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>沒有錯誤</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>機蓋</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>風扇</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>燈泡</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>溫度</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>氣流</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>燈泡時數</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>低溫</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>濾網</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>濾網時數</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>其他 (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>拒絕</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>讀取失敗</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>延遲</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>斷線</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>設定故障(&amp;S)</translation>
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
        <translation>生效中的故障</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>電源(&amp;W)</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>錯誤狀態(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>命令(&amp;C)</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>故障(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>延遲(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>生效中(&amp;I)</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>未選取投影機</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>%1 的模擬</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>%1 的模擬故障</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>所有命令</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>請選擇，或輸入名稱或代碼的一部分</translation>
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
        <translation>%1（任何代碼）</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台開機</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台待機</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台有問題</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台無法連線</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台有警示</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>最早的回應：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台未監看</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>遭拒絕</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>投影機忙碌中或處於待機狀態</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>投影機沒有這項設定</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>此機型不允許這個值</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>無法設定</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>此機型沒有這項設定</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>此機型沒有這項設定</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>沒有對應的快照</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>未確認，可能已變更</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>未能全部傳送</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>無法連線</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>連線參數錯誤</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>不明的主機名稱</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>連線已中斷</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>無法理解其回應</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>通訊協定版本不同</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>密碼未輸入或不正確</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>投影機目前未回報任何設定</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>群組</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>有問題</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>待機</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>無法連線</translation>
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
        <translation>在投影機的對話方塊中</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab、Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>下一個分頁</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab、Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>上一個分頁</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>尋找設定</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>鍵盤快速鍵</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;進階控制 %1&lt;/h3&gt;&lt;p&gt;投影機的即時設定：每個值都從投影機讀取，每次變更都會立即傳送。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>文字中含有控制字元</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>文字中的代理對不完整</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>文字超過 %1 個位元組</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>超過 %1 個位元組</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>巢狀超過 %1 層</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>超過 %1 個值</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>這些投影機都是模擬的，供試用本程式。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>進階控制：%1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>進階控制</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>開啟設定</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>要開啟 %n 個對話方塊嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>警示</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>模擬</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>命令記錄</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>偏好設定(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>投影機(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>開啟設定(&amp;O)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>重新整理(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>尋找(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>模擬(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>命令記錄(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>警示(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>鍵盤快速鍵(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>關於(&amp;A)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具列</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>已儲存到 %1。</translation>
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
        <translation>機型(&amp;M)</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>顯示機型的所有欄位(&amp;L)</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>對話方塊類型(&amp;T)</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>機型代碼(&amp;E)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>進階控制</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>進階控制</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>投影機設定</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>讀取與變更投影機的設定</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>projector;beamer;投影機;單槍;亮度;梯形校正;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>以清單顯示數百台投影機的狀態，並可同時變更其中多台；每台投影機都有一個對話方塊，每組設定一個分頁。每個值都即時從投影機讀取，每次變更都會立即傳送。記錄會顯示每個命令及其結果。</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>可以模擬投影機，並手動設定故障。</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>無法建立 %1 的對話方塊</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>無法寫入資料夾 %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>偏好設定</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>與系統相同</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>never</source>
        <translation>永不</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分鐘</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>風扇、燈泡、溫度、機蓋、濾網(&amp;F)</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>設定與應有值不同(&amp;B)</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>顯示桌面通知(&amp;D)</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>勿擾開始時間</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>勿擾結束時間</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>語言（重新啟動後生效）(&amp;L)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>詢問每台投影機的間隔(&amp;E)</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>警示</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>燈泡時數達額定時數的(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>沒有回應達(&amp;S)</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>勿擾時段</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>與桌面相同</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>色彩(&amp;C)</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>（兩個時間相同表示不使用）</translation>
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
        <translation>預設集(&amp;R)</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>套用到選取的投影機</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>尚無預設集</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>儲存為預設集(&amp;S)…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>應符合的預設集(&amp;B)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>無</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>與應有設定比較(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>還原為應有設定(&amp;P)</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>儲存為預設集</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>已儲存為預設集 %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>預設集</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>預設集 %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>應符合的預設集</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>選取的投影機都沒有指定應符合的預設集。</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>還原</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>要將 %n 台投影機還原為應有設定嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>正在讀取 %1 的設定…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>預設集</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>應有設定</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>應有值</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>管理預設集(&amp;M)…</translation>
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
        <translation>儲存為預設集</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>預設集的設定</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>預設集的名稱(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>勾選所有設定</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>此頁面(&amp;P)</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>只勾選所選頁面的設定</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>全不選(&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>取消勾選所有設定</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>儲存(&amp;S)</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>預設集不能使用這個名稱：請勿使用斜線，也不要以句點開頭。</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>已勾選 %n 項設定。</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>預設集 %1 將被取代。</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>重新命名預設集</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>移除預設集</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>無法建立資料夾 %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>預設集</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>預設集的設定</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>重新命名(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>尚無預設集</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>應符合此預設集的投影機：%1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>預設集不能使用這個名稱：請勿使用斜線，也不要以句點開頭。</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>預設集 %1 已存在。</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>要移除預設集 %1 嗎？</translation>
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
        <translation>新增(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>編輯(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>再製(&amp;D)…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>移除(&amp;M)…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>標籤(&amp;G)…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>再製</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>移除投影機</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>移除投影機</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>要從 %2 移除「%1」嗎？</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>要從 %1 移除 %n 台投影機嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>標籤</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>%n 台投影機的標籤，以逗號分隔；
在前面加上減號會移除該標籤：</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>「%1」不是 MAC 位址</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>「%1」不是連線方式</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>「%1」是另一台投影機的名稱，其識別碼為 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>「%1」不是時數</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>「%1」是另一台投影機的名稱</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>標題列沒有「name」欄</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1 已被其他程式變更。請重新載入 (F5)，然後再做一次。</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>名稱(&amp;N)</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>新增投影機</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>編輯投影機</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>再製投影機</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>尚未填寫：%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>ProfileFile</name>
    <message>
        <source>serial port %1</source>
        <translation>序列埠 %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>有 %1 個系列；最多只能有 %2 個</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>經過的系列超過 %1 個</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>讓「%1」參照到自己</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>沒有系列「%1」</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>缺少「%1」</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>「%1」同時也是 projectors[%3] 的 %2</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>檔案內容必須是一個物件</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>缺少「projectors」</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>沒有投影機</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>在此重複出現</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>無法讀取描述檔 %1：%2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>不是一般檔案</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>不是範圍名稱，也不是 0 到 %1 的數字</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>必須使用名稱「%1」</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>必須是 [最小值, 最大值] 或 null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>最小值大於最大值</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>不明的鍵；可用的鍵有 %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>必須是物件</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>必須是陣列</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>有 %1 個項目；最多只能有 %2 個</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>必須是非空白的文字</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>超過 %1 個位元組</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>必須是整數</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>值為 %1；必須是 %2 到 %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>必須是數字、文字，或含有「value」與「name」的物件</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>必須是以 / 開頭的路徑</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>不是主機名稱，也不是 IP 位址</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>必須含有「network」或「serial」其中之一</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>必須是 simulated、network、serial 或 pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>需要 %1 連線</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>沒有設定「%1」</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>開啟描述檔(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>重新載入(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>另存描述檔(&amp;S)…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>開啟描述檔</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>描述檔 (*.json);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新載入</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>另存描述檔</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>唯讀檔案</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>%1 無法變更。請先將描述檔另存為其他檔案。</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>另存描述檔…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>先前的變更已無法復原。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>無法完成此動作；未做任何變更。</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>另一個程式正在變更 %1；請再試一次</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>%1 沒有描述檔；請用 --profiles 指定檔案</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機型</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代碼</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%1 種投影機的 %n 張圖片已儲存到 %2</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open：沒有投影機「%1」；可用 --list 列出全部。</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab：沒有分頁 %1；「%2」的分頁為 0 到 %3。</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>沒有顯示器；此時請使用 --list、--tour 或 --screenshot。</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>State</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>來源</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>燈泡</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機型</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地點</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>上次回應</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · 已開啟</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>尋找名稱、機型、地點、位址、分頁或設定</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>尋找投影機</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>投影機</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>找不到任何項目</translation>
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
        <translation>磁碟機</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>資料夾</translation>
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
        <translation>[選項]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>選項：</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>顯示版本資訊。</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>未知選項「%1」。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>未知選項：%1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>「%1」之後缺少值。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>「%1」之後有非預期的值。</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>「%1」不是 IP 位址，也不是 IP 位址範圍</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>超過 %1 個位址</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>搜尋(&amp;S)</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>尋找投影機</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>這台電腦所在的網路</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>例如 192.0.2.0/24 或 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機型</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>備註</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>找到的投影機</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>位址(&amp;A)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>密碼(&amp;W)</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>新增勾選的項目(&amp;C)</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>已在清單中</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>需要密碼</translation>
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
            <numerusform>找到 %n 台，已詢問 %1/%2 個位址…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>儲存設定(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>與檔案比較(&amp;C)…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>套用設定(&amp;P)…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>儲存設定</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>將設定儲存到資料夾</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>設定 (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>正在讀取設定…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>開啟設定</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>設定已儲存到 %1。</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>%n 台投影機的設定已儲存到 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n 項設定無法讀取。</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>套用設定</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>比較設定</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>先前的值保留在 %1 中。</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準輸入</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 在此重複出現</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control：無法使用該連接埠</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>沒有投影機「%1」</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles：投影機是從 %1 讀取的</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles：%1 已存在，且不是由本程式寫入的</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>「%1」不是連接埠。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>「%1」不是 %2 到 %3 的數字。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>「%1」不是一小時以內的時間。</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>顯示此說明。</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>模擬 &lt;檔案&gt; 中的投影機。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>只模擬投影機 &lt;名稱&gt;；可指定多次。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>在 &lt;位址&gt; 而非 127.0.0.1 上接聽；與 --fleet 搭配時，則為第一台投影機的位址，而非 127.64.0.1。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>第一台投影機使用連接埠 &lt;數目&gt;，其他投影機依序使用後面的連接埠；0 或未指定時，使用任何可用的連接埠。與 --fleet 搭配時，&lt;數目&gt; 是每台投影機供自有通訊協定使用的連接埠，下一個則供 PJLink 使用。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>數目</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink 要求輸入 &lt;文字&gt;。</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>同時在虛擬終端機上提供每台投影機。</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>一開始就有故障：%1。只套用到部分投影機：「silent 5%」。可指定多次。</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>所有隨機內容都由 &lt;數目&gt; 決定。</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>在迴路位址的連接埠 &lt;數目&gt; 上接收故障，每行一個：投影機的編號（從 1 算起）或 *，以及故障。</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>將可連線到這些模擬投影機的描述檔寫入 &lt;檔案&gt;。</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>仿照描述檔中的投影機模擬 &lt;數目&gt; 台投影機，每台各有自己的迴路位址。</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>投影機群：--write-profiles 使用的連線方式；pjlink、network 或 mixed。</translation>
    </message>
    <message>
        <source>way</source>
        <translation>方式</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>投影機群：投影機開機所需的秒數。</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>投影機群：投影機進入待機所需的秒數。</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>投影機群：每秒自行發生的狀態變化數。</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>投影機群：將 PJLink 的狀態通知傳送到此位址。</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>位址:連接埠</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>投影機群：結束時，將每台投影機被詢問的次數寫入 &lt;檔案&gt;。</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>說明與錯誤訊息使用 &lt;名稱&gt; 這個語言，例如 de 或 zh-TW。</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>透過 TCP、PJLink 與虛擬終端機提供模擬的投影機。每行顯示一個位址，最後顯示「ready」。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>多餘的引數「%1」。</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 需要 --fleet。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>「%1」不是位址。</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password：超過 %1 個位元組。</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault：「%1」不在 %2 之中。</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet 不支援序列連線。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>「%1」不是 IPv4 迴路位址。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>「%1」之後的位址數量不足。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>「%1」之後沒有可供 PJLink 使用的連接埠。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>「%1」不是含連接埠的 IPv4 迴路位址。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>「%1」不是 pjlink、network 或 mixed。</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>此處缺少整數</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>必須是 %1 到 %2 的整數，目前為 %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>必須是一行文字</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>必須是物件</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>必須是陣列</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>超過 %1 個項目</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>這不是儲存設定的檔案</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>僅支援版本 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>「%1」在此重複出現</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>大於 4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>內容必須是一個物件</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>第 %1 行： </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>未監看</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>正在詢問…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>不明的主機</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>密碼錯誤</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>無法理解回應</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
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
        <translation>待機</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開機</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>正在冷卻</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>正在熱機</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>風扇</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>燈泡</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>溫度</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>機蓋</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>濾網</translation>
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
        <translation>%1 小時</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>與應有值相符</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n 項不同</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 秒前</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>off</source>
        <translation>關</translation>
    </message>
    <message>
        <source>on</source>
        <translation>開</translation>
    </message>
    <message>
        <source>State</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>來源</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>空白畫面</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>畫面凍結</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>不同的設定</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>TransferActions</name>
    <message>
        <source>Find on the &amp;Network…</source>
        <translation>在網路上尋找(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>匯入表格(&amp;I)…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>匯出表格(&amp;X)…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>尋找投影機</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>新增找到的投影機</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>匯入表格</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>表格 (*.csv *.tsv *.txt);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>匯出表格</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>表格 (*.csv);;所有檔案 (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>已新增 %n 台投影機</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n 台原已在清單中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n 列未匯入</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>未使用的欄：%1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>開機(&amp;N)</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>關機(&amp;F)</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>電源(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>輸入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>空白畫面(&amp;B)</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>將畫面設為空白</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>要將 %n 台投影機的畫面設為空白嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>恢復顯示畫面</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>要恢復顯示 %n 台投影機的畫面嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>靜音(&amp;M)</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>靜音</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>要將 %n 台投影機靜音嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>取消靜音</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>要取消 %n 台投影機的靜音嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>畫面凍結(&amp;Z)</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>凍結畫面</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>要凍結 %n 台投影機的畫面嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>解除畫面凍結</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>要解除 %n 台投影機的畫面凍結嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>開機</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>關機</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>要將 %n 台投影機開機嗎？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>要將 %n 台投影機關機嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>輸入 %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>要在 %n 台投影機上選擇輸入 %1 嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>沒有已知的輸入</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>無法寫入 %1：%2</translation>
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
        <translation>投影機</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>投影機</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>重試失敗的項目(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>全部復原(&amp;U)</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>執行其餘項目(&amp;R)</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>此機型沒有這項設定</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>已完成 %1/%n 台</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>復原：%1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>正在執行…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>已接受，仍在進行</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>遭拒絕</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>完成，%n 項設定無法讀取</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台仍在進行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台失敗</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>不清楚先前是否開機</translation>
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
