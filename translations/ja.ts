<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>オプション --%1 はありません</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 は値を取りません</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 には %2 が必要です</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 では %2 を使用できません</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: 「%2」は指定できません</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>コマンドが指定されていません。--help で一覧を表示できます</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>コマンド「%1」はありません。--help で一覧を表示できます</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1 ではこの --format は使用できません</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>ファイル名が空です</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>「%1」は次のいずれでもありません: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>「%1」は +1 や -1 のような増減ではありません。PJLink では増減しか指定できません</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>「%1」は %n 段階を超えています</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>%2 から「%1」増減した値は次のいずれでもありません: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>「%1」は %2 から %n 段階を超えて離れています</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>プロジェクターの一覧を表示</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>指定したプロジェクター、または全プロジェクターの名前、機種、ページセット、シリーズコード、接続、タグを表示します。</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>機種の一覧を表示</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>プロファイルに含まれる機種を、それぞれのプロジェクターの台数と設定の数とともに表示します。</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>設定と値の一覧を表示</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>機種が持つ設定について、キー、タブ、項目名、指定できる値を表示します。プロジェクターへの問い合わせは行いません。</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>設定の説明を表示</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>設定の内容を表示します。タブと項目名、指定できる値とそのコード、その設定を持つ機種、および変更、リセット、保存と復元ができるかどうかがわかります。</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>現在の値を表示</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>プロジェクターから設定を読み取って表示します。キーを指定しない場合は、すべての設定を表示します。</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>設定を変更</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>指定した順に設定を変更し、それぞれを読み直して、変更前と変更後の値を表示します。最初に全プロジェクターについてすべてのキーと値を確認し、1 台でも値に誤りがあれば、どのプロジェクターにも送信しません。プロジェクターにないキーは報告されますが、ほかの変更は続行されます。
KEY=VALUE は値を設定し、KEY+=N と KEY-=N は現在の値から増減します。KEY VALUE の形式では、+3 と -3 は増減、=-3 は負の値を表します。「acctl undo」で変更前の状態に戻せます。ただし、電源の状態と操作の結果は戻せません。</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>設定をプロジェクターの標準値にリセット</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>電源、入力、エラー、使用時間を表示</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>指定したプロジェクター、または全プロジェクターの状態ページを表示します。</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>設定をファイルに保存</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>復元できるすべての設定を保存します。1 台の設定は FILE (「-」は標準出力) に、複数台の設定はフォルダーにプロジェクターごとのファイルとして保存します。設定ファイルでないファイルは、--force がなければ置き換えません。</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>保存した設定と比較</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>保存した設定を復元</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>値とすべての変化を表示</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>値を表示し、その後はすべての変化を表示します。中断されるか、出力の読み手がなくなるか、全プロジェクターが --until の値になると終了します。応答しなくなったプロジェクターには、繰り返し接続を試みます。</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>ネットワーク上のプロジェクターを検索</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>ネットワーク上のすべての PJLink プロジェクター、または指定したアドレスに、機器情報を問い合わせます。ADDRESSES は 192.0.2.7、192.0.2.0/24、192.0.2.10-40 のように指定します。--add でプロファイルを指定しない限り、何も保存しません。</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>表からプロジェクターを取り込む</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>コンマ区切りの値 (「-」は標準入力) の各行を、--profiles または ACCTL_PROFILES で指定されたプロファイルに追加します。すでにあるプロジェクターは変更します。</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>プロジェクターを表として出力</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>指定したプロジェクター、または全プロジェクターを、パスワードを除いてコンマ区切りの値で出力します。</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>コマンドの説明を表示</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>= != &lt; &lt;= &gt; &gt;= のいずれかが必要です</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>値が指定されていません</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>この設定を持つ機種はありません</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>大小を比較できるのは数値だけです</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>この設定を持つ機種はありません。acctl settings で全キーの一覧を表示できます</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>この設定を持つ機種はありません。%1 のことですか?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 ～ %2 (表示は %3)</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>ソース %1: この設定はソースごとには保持されません</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>ソース %1 はありません。指定できるのは %2 です</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>値 %1 は指定できません。指定できるのは %2 です</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>テキスト「%1」は値 %2 のテキスト「%3」と一致しません。両方を変更するか、テキストを削除してください</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>「詳細コントロール」に表示されるプロジェクターの設定を、読み取り、変更、保存、復元します。対象は、プロファイルに登録されたプロジェクターです。</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P でプロジェクターを選択します。名前、&apos;Lecture*&apos; のようなパターン、@TAG、または model=PATTERN を指定します。複数の場合はコンマで区切り、!P で除外します。KEY は設定のキー、&apos;picture.*&apos; のようなパターン、または全機種に共通の brightness、input、power などの短縮名です。VALUE は、画面に表示される数値、項目のテキスト (表示できるどの言語でも可)、またはそのコードです。</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>完了しました。スタンバイ中のプロジェクターから一部を取得できなかった場合や、受け付けられた変更がまだ反映されていない場合も含みます。</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>拒否された変更があるか、指定した設定がプロジェクターにないか、ファイルまたは出力を読み書きできませんでした。</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>使い方の誤り。どのプロジェクターにも送信していません。</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>プロジェクターが応答しないか、入力の情報を返さないか、ほかの acctl が使用中でした。</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>中断しました。実行済みの内容は出力のとおりです。</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>全コマンドに共通のオプション (コマンドごとのオプションと例は「acctl help COMMAND」で表示)</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>例</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>終了コード</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>数値</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>選択肢</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>状態</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>操作</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>短縮名: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>タブ</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>項目名</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>種類</translation>
    </message>
    <message>
        <source>values</source>
        <translation>値</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>プロジェクターから取得した値</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>保持</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>入力ソースごと</translation>
    </message>
    <message>
        <source>models</source>
        <translation>機種</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>設定 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>%1 にプロファイルがありません。--profiles でファイルを指定してください</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>プロジェクターを FILE から読み込む</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>この状態のプロジェクターのみ (例: &apos;power=on lamp-hours&gt;1500&apos;)</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>ADDRESS にあるプロジェクターを使用。P は機種のみを指定</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>検索するプロジェクターのポート。既定値は 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>PJLink のパスワード。このコンピューターのほかのユーザーにも見えるので注意</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>FILE の 1 行目をパスワードとして使用</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>出力形式: text、json、jsonl (値またはプロジェクターごとに 1 行)、tsv、value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>--format json と同じ</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>名前またはキーだけを 1 行に 1 つ表示</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>get、set、reset、watch で使用できる設定のみ</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>GLOB に一致するキーのみ。複数回指定可</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>KEY=VALUE の行を FILE (「-」は標準入力) から読み込む</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>プロジェクターごとに DIR 内のファイルに保存</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>見つかったプロジェクターをプロファイル FILE に追加</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>変更される内容を表示するだけで、変更しない</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>その状態になるまで最長 TIME (90s や 5m など) 待つ</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>全プロジェクターがこの値になったら終了</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>違いがあれば 1、比較できないものがあれば 2 で終了</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>FILE に誤りがあっても送信を中止せず、その部分を飛ばす</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply、undo: 別のプロジェクターの復元用ファイルも使用。save: どのファイルでも置き換える</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>元に戻せる実行の一覧を表示</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>復元用ファイルのフォルダー</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>N 日より古い復元用ファイルを削除。既定値は 30、0 はすべて保持</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>同時に処理する台数 (1 ～ 1024)。既定値は読み取りが 512、変更が 64</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>1 回の応答の待ち時間。既定値は 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>応答しないプロジェクターにさらに N 回試みる。既定値は 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>最初のエラー以降は、ほかのプロジェクターの処理を始めない</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>読み取りの間隔。既定値は 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>テキストの言語 (de、zh-TW など)</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>このヘルプ。コマンドと併用すると、そのコマンドのヘルプ</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>書き込めません: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>「%1」は指定できません</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>「=」がありません</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>設定 %1 はありません</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>1 行目が空です</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>%1 のパスワード: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (シミュレーション)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>追加 %1、アドレス変更 %2、登録済み %3</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>パスワードが必要です</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>--profiles でプロファイルを指定してください</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>使われない列: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>追加 %1、登録済み %2、誤り %3</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: 「%2」は KEY=VALUE の形式ではありません</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: KEY=VALUE がありません</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>対象にできるプロジェクターは 1 台だけです (指定: %1)</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>復元済み</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>元に戻したことを %1 に記録できません: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>ほかの acctl が使用中です</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>ほかのプロジェクターでエラーが発生したため、処理を始めませんでした</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>acctl 自身によるシミュレーションのため、変更は残りません</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>中断しました。実行済みの内容は上記のとおりです</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>スタンバイ中のため除外: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>準備中のため除外: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>冷却中のため除外: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>プロジェクターが対応していないためスキップ: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>プロジェクター %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>変更 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>相違 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>変更不要 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>未反映 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>受け付けられましたが、まだ反映されていません</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>拒否 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>処理中 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>プロジェクターが処理中かスタンバイ中です</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>未確認 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>確認できません。変更された可能性があります</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>未実行 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>スキップ (この機種にはありません)</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>スキップ (このプロジェクターは対応していません)</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>スキップ (復元できません)</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>スキップ (この機種では受け付けられません)</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>%1 で停止しました</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>%n 段階を超えて離れているため、送信していません</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>拒否されました (現在の値: %1)</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>現在は読み取れません</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>未比較 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>スキップ %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>処理するものはありません</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>PJLink にないためスキップ: ファイルの設定のうち %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1。以降は送信していません</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1。何も送信していません</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: %2 の変更を元に戻すファイルです。--force を指定すると %3 に適用します</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: この設定はファイルにありません</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: プロジェクター「%2」はありません</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: %2 も %3 の設定ファイルです</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: フォルダーに設定ファイルがありません</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: %2 にこのプロジェクターのファイルがありません</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: 設定ファイルではありません。--force を指定すると置き換えます</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: このファイルまたはフォルダーはありません</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>ファイルを適用するプロジェクターを指定してください</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>1 つのファイルに保存できるのは 1 台分です (指定: %1)。-o でフォルダーを指定してください</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1。以前の実行を元に戻すには、その名前を指定してください</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>元に戻せる実行はありません</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>実行「%1」はありません。--list で一覧を表示できます</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: プロファイルに登録されていません</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>現在は読み取れないため、除外します</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>何も読み取れないため、書き込みませんでした</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>設定 %n 件を %1 に保存しました</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>プロジェクター「%1」はありません。acctl list で一覧を表示できます</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>拒否されました (プロジェクターはスタンバイ中)</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>拒否されました (プロジェクターは準備中)</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>拒否されました (プロジェクターは冷却中)</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>拒否されました (プロジェクターは処理中)</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>元に戻せません: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>停止しました (%n 段階のうち %1 段階を受け付け)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1 (%n 段階のうち %2 段階を受け付け)</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>受け付けられましたが、まだ反映されていません (現在の値: %1)</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1。変更された可能性があります (現在の値: %2)</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1。変更された可能性があります</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>拒否されました</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>時間内に反映されませんでした (現在の値: %1)</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>時間内に反映されませんでした</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: 復元用ファイルの行ではありません</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: 元に戻すものがありません</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>接続パラメーターに誤りがあります</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>ホスト名が不明です</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>到達できません</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>接続が切れました</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>応答を解釈できません</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>プロトコルのバージョンが異なります</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>パスワードがないか、間違っています</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>応答がありません</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>応答がありません (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>この機種にはこの設定がありません</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>PJLink にないためスキップ</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>現在は読み取れません</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>このプロジェクターは対応していません</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>プロジェクターが入力の情報を返さないため、読み取っていません</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink にはありません</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>この設定は読み取れません</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>この設定は変更できません</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>この設定は復元できません</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>この設定はリセットできません</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1 (プロジェクターはスタンバイ中)</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1 (プロジェクターは準備中)</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1 (プロジェクターは冷却中)</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>応答が再開しました</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: 「%1」は KEY=VALUE の形式ではありません</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>ファイル (「-」は標準入力)、ホストアプリケーションのプリセット、またはフォルダー内の各プロジェクターのファイルと異なる設定を表示します。</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>プロジェクターを読み取り、ファイル (「-」は標準入力)、ホストアプリケーションのプリセット、またはフォルダー内の各プロジェクターのファイルと異なる設定を送信して、読み直します。置き換えられる値は先に保存されるので、「acctl undo」で復元できます。中断した場合は、いつでも再実行できます。</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>変更前の値を読み取れなかったため、元に戻せません</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>変更前の値を読み取れませんでした</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>元に戻せません</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>設定をプロジェクター自身の標準値にリセットし、リセット後の値を表示します。「acctl undo」でリセット前の値に戻せます。使用時間のカウンターは元に戻せないため、キーを正確に指定した場合にのみリセットされます。</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>設定を変更した最後の実行を元に戻す</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>この実行ではこれらのプロジェクターは変更されていません</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>「set」、「reset」または「apply」の実行が置き換えた値を復元します。RUN は「acctl undo --list」で表示される名前、ファイル、または「last」です。省略すると最後の実行を元に戻します。P または --where を指定すると、そのプロジェクターだけを復元し、残りは後で元に戻せます。元に戻す操作自体も、名前を指定して元に戻せます。</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>中断しました</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>受け付けられましたが、確認できません: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>「%1」は / または ~/ で始めてください</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>別のプログラムによる %1 の変更が終わるのを待っています</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>確認済みにする(&amp;A)</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>すべて確認済みにする(&amp;L)</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>発生時刻</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>アラート</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>アラート</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 が応答しません</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: ランプ使用時間が %3 のうち %2 に達しました</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: 基準と異なる設定が %n 件あります</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>確認済み</translation>
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
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>プロジェクターを &lt;ファイル&gt; から読み込みます。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>複数に分けた担当のうち 1 つを監視します。2/5 は 5 つのうちの 2 番目です。</translation>
    </message>
    <message>
        <source>share</source>
        <translation>担当</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>&lt;タグ&gt; (複数の場合はそのいずれか) を持つプロジェクターだけを監視します。</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>各プロジェクターを &lt;秒数&gt; ごとに確認します。最小値は 5 です。</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒数</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>1 日 1 回、各プロジェクターを &lt;フォルダー&gt; 内のスナップショットと比較します。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>&lt;アドレス&gt; でプロジェクターからの状態通知を待ち受けます。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>&lt;アドレス:ポート&gt; でメトリクスを提供します。「none」の場合は提供しません。</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>アドレス:ポート</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>テキストファイルの収集プログラム用に、15 秒ごとにメトリクスを &lt;ファイル&gt; に書き込みます。</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>&lt;ホスト:ポート&gt; の MQTT ブローカーにメッセージを送信します。</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>ホスト:ポート</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>MQTT のバージョン。3 (3.1.1) または 5 です。</translation>
    </message>
    <message>
        <source>version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>&lt;ファイル&gt; の 1 行目をブローカーのユーザー名として使用します。</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>&lt;ファイル&gt; の 1 行目をブローカーのパスワードとして使用します。</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>暗号化し、システムが信頼する認証局を信頼します。</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>暗号化し、&lt;ファイル&gt; 内の認証局を信頼します。</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>このクライアントの証明書。</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>この証明書の鍵。</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>すべてのトピックの最上位階層。</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>トピック</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>検出用トピックの最上位階層。「none」の場合は検出を行いません。</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>&lt;秒数&gt; の間反応のないブリッジの担当を引き継ぎます。</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>コマンドでの変更を許可する設定。キーまたはパターンをコンマで区切って指定します。「power」は電源です。指定しない場合は何も許可しません。</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>各プロジェクターが 1 分間に受け付けるコマンドの数。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>検出メッセージ内の名前とこのプログラムのメッセージを、言語 &lt;名前&gt; (de、zh-TW など) で表示します。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>「%1」は %2 秒から 1 日までの時間ではありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>「%1」はトピックではありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>「%1」は 2/5 のような担当の指定ではありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>「%1」は数値アドレスとポートではありません</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 が空です</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 には --broker が必要です</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>「%1」はホストとポートではありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>「%1」は 3 でも 5 でもありません</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file と --key-file は両方とも指定する必要があります</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: 「%1」はコマンドで変更できる設定ではありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>「%1」は 1 から %2 までの数値ではありません</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>プロジェクターを監視し、その状態をメトリクスストアとメッセージブローカーに伝えます。</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>予期しない引数「%1」</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>--profiles が指定されていません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>「%1」は数値アドレスではありません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>「%1」はフォルダーではありません</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>「%1」のテキストはありません</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>タグ「%1」を持つプロジェクターはありません</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>「%1」に予期しない「=」があります。</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 には値が必要です。</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>実物またはシミュレーションのプロジェクターの設定ダイアログを開きます。</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>プロジェクターを &lt;ファイル&gt; から読み込みます。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>起動時にプロジェクター &lt;名前&gt; のダイアログを開きます。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>--open と併用: タブ &lt;n&gt; を選択します (0 から数えます)。</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>プロジェクターの表を出力します。</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>--open と併用: ダイアログの画像 (PNG) を保存して終了します。</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>プロジェクターの全種類の全タブの画像を &lt;フォルダー&gt; に保存して終了します。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>テキストを言語 &lt;名前&gt; (de、zh-TW など) で表示します。</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: 「%1」のテキストはありません。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>予期しない引数「%1」。</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>--list、--tour、--open のうち指定できるのは 1 つだけです。</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 には --open が必要です。</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: 「%1」は数値ではありません。</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>変更のみ(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>エラーのみ(&amp;E)</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>ログに名前を付けて保存(&amp;L)…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>ログを消去(&amp;R)…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>コマンドログ</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>読み取りだけのコマンドを表示しない</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>正常に実行されたコマンドを表示しない</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>ログを絞り込む</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>ログの保存</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>表 (*.tsv);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>ログの消去</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>ログの全 %n 件を削除しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>プロジェクター、設定、コマンド、結果</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>すべてのプロジェクター</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>コマンドを表示するプロジェクター</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>プロジェクター</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>非対応</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>未反映</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>OK</translation>
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
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>再読み取り(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>設定を読み取り中…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>相違はありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n 台のプロジェクターに相違があります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n 台のプロジェクターは、すでにすべての設定が一致しています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n 台のプロジェクターを読み取れませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n 台のプロジェクターは、現在一部の設定を読み取れません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n 台のプロジェクターをスキップしました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>接続方法(&amp;R)</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>接続(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>アドレス(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>ポート(&amp;P)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>パスワード(&amp;W)</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>ポート番号(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>デバイス(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>ボーレート(&amp;B)</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>ファミリーと同じ</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>シミュレーション</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>シリアルポート</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 はアドレスではありません。</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>接続をテスト(&amp;S)</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>テストの結果</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>接続先がありません。</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>シリアル接続は、ダイアログを開いたときに試みます。</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>問い合わせ中…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>プロジェクターが応答しました: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>引用符が閉じられていません</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>閉じ引用符の後にテキストが続いています</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>セルが %1 個を超えています</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>セルが %1 個ですが、見出しは %2 個です</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>行が %1 行を超えています</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>見出し行がありません</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>シミュレーション</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>電源:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>ソース:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>問題:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>映像と音声:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>ランプ:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>フィルター:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>設定:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>最終応答:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>ランプの定格時間に対する割合</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>最近のイベント(&amp;N)</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>最近のイベント</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>プロジェクターが選択されていません</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>プロジェクター %n 台を選択中</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>ブランク</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>静止</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>表示中</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>まだありません</translation>
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
        <translation>現在</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>相違</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>事前処理: ほかのソースとモード</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>設定 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>この機種に該当しない設定 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>現在読み取れない設定 %n 件</numerusform>
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
        <translation>問題: ファン</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>問題: ランプ</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>問題: 温度</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>問題: カバー</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>問題: フィルター</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>問題: その他</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>到達可能</translation>
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
        <translation>スタンバイ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>冷却中</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>エラーなし</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>カバー</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>ファン</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>ランプ</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>風量</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>ランプ使用時間</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>低温</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>フィルター使用時間</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>その他 (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>読み取り失敗</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>障害を設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>解除(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>すべて解除(&amp;M)</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>有効な障害</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>電源(&amp;W)</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>エラーの状態(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>コマンド(&amp;C)</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>障害(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>遅延(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>有効な障害(&amp;I)</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>プロジェクターが選択されていません</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>%1 のシミュレーション</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>%1 のシミュレーション障害</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>すべてのコマンド</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>選択するか、名前またはコードの一部を入力</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3 ms</source>
        <extracomment>A command, what is wrong with it (&quot;Delay&quot;), and for how many milliseconds.</extracomment>
        <translation>%1: %2、%3 ms</translation>
    </message>
    <message>
        <source>%1 (any code)</source>
        <translation>%1 (すべてのコード)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>オン %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>オフ %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>問題あり %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>到達不能 %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>アラートあり %n 台</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>最も古い応答 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>監視対象外 %n 台</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>拒否されました</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>プロジェクターが処理中かスタンバイ中です</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>プロジェクターにありません</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>この機種では使用できない値です</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>変更できません</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>この機種にはありません</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>この機種にはこの設定がありません</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>スナップショットがありません</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>確認できません。変更された可能性があります</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>一部を送信できませんでした</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>応答がありません</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>到達できません</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>接続されていません</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>接続パラメーターに誤りがあります</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>ホスト名が不明です</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>接続が切れました</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>応答を解釈できません</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>プロトコルのバージョンが異なります</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>パスワードがないか、間違っています</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>プロジェクターは現在、どの設定も報告していません</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>問題あり</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>到達不能</translation>
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
        <translation>プロジェクターのダイアログ</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab、Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>次のタブ</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab、Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>前のタブ</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このプログラムについて</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;詳細コントロール %1&lt;/h3&gt;&lt;p&gt;プロジェクターの設定をリアルタイムに扱います。すべての値はプロジェクターから読み取られ、変更はすぐに送信されます。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>テキストに制御文字が含まれています</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>テキストにサロゲートペアの片方しかありません</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>テキストが %1 バイトを超えています</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>入れ子が %1 段を超えています</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>値が %1 個を超えています</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>これらのプロジェクターはすべて、プログラムを試すためのシミュレーションです。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>詳細コントロール: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>詳細コントロール</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>%n 個のダイアログを開きますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>アラート</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>シミュレーション</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>コマンドログ</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>環境設定(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>プロジェクター(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>設定を開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>更新(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>シミュレーション(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>コマンドログ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>アラート(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>このプログラムについて(&amp;A)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>%1 に保存しました。</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>ファミリー(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>機種(&amp;M)</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>機種の全項目(&amp;L)</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>ダイアログの種類(&amp;T)</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>機種コード(&amp;E)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>詳細コントロール</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>詳細コントロール</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>プロジェクター設定</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>プロジェクターの設定を読み取り、変更します</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>プロジェクター;プロジェクタ;映写機;明るさ;台形補正;ランプ;projector;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>数百台のプロジェクターの状態を一覧で表示し、多数の台数をまとめて変更できます。プロジェクターごとに、設定をグループ別のタブにまとめたダイアログがあります。すべての値はプロジェクターからリアルタイムに読み取られ、変更はすぐに送信されます。ログには各コマンドとその結果が表示されます。</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>プロジェクターのシミュレーションもでき、障害を手動で設定できます。</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>%1 のダイアログを作成できません</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>フォルダー %1 に書き込めません</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>システムと同じ</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>never</source>
        <translation>通知しない</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>ファン、ランプ、温度、カバー、フィルター(&amp;F)</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>基準と異なる設定(&amp;B)</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>デスクトップに通知(&amp;D)</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>通知停止の開始</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>通知停止の終了</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>言語 (再起動後に反映)(&amp;L)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>各プロジェクターの確認間隔(&amp;E)</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>アラート</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>ランプ使用時間 (定格時間に対する割合)(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>応答がない時間(&amp;S)</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>通知停止の時間帯</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>デスクトップと同じ</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>配色(&amp;C)</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(同じ時刻にすると停止なし)</translation>
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
        <translation>プリセット(&amp;R)</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>選択したプロジェクターに適用</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>プリセットはまだありません</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>プリセットとして保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>基準プリセット(&amp;B)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>基準プリセットと比較(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>基準プリセットに戻す(&amp;P)</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>プリセット %1 として保存しました</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>プリセット %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>基準プリセット</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>選択したプロジェクターには、基準プリセットが指定されていません。</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>基準に戻す</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターの設定を基準プリセットに戻しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>%1 の設定を読み取り中…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>基準プリセット</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>基準</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>プリセットの管理(&amp;M)…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>%1 のすべて</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>プリセットの設定</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>プリセットの名前(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて(&amp;A)</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>すべての設定を選択</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>このページ(&amp;P)</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>選択したページの設定だけを選択</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>なし(&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>すべての設定の選択を解除</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>この名前はプリセットに使用できません。スラッシュと先頭のピリオドを除いてください。</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n 件の設定を選択しています。</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>プリセット %1 は置き換えられます。</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>プリセット名の変更</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>プリセットの削除</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>フォルダー %1 を作成できません</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>プリセットの設定</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>名前の変更(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>プリセットはまだありません</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>これを基準とするプロジェクター: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>この名前はプリセットに使用できません。スラッシュと先頭のピリオドを除いてください。</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>プリセット %1 は既に存在します。</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>プリセット %1 を削除しますか?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>編集(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>複製(&amp;D)…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>削除(&amp;V)…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>タグ(&amp;G)…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>プロジェクターの削除</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>プロジェクターの削除</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>「%1」を %2 から削除しますか?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>%n 台のプロジェクターを %1 から削除しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>タグ</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>%n 台のプロジェクターのタグ (コンマ区切り)。
先頭にマイナスを付けると、そのタグを外します:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>「%1」は MAC アドレスではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>「%1」は接続方法ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>「%1」は、識別情報が %2 の別のプロジェクターの名前です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>「%1」は時間数ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>「%1」は別のプロジェクターの名前です</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>見出し行に列「name」がありません</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1 は別のプログラムによって変更されました。再読み込み (F5) してから、もう一度実行してください。</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>プロジェクターの追加</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>プロジェクターの編集</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>プロジェクターの複製</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>未入力の項目: %1</translation>
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
        <translation>シリアルポート %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>ファミリーが %1 個ありますが、最大 %2 個です</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>%1 個を超えるファミリーをたどっています</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>「%1」が自分自身を参照することになります</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>ファミリー「%1」がありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>「%1」がありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>「%1」は projectors[%3] の %2 と重複しています</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>ファイルの内容はオブジェクトである必要があります</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>「projectors」がありません</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>プロジェクターがありません</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>重複しています</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>プロファイル %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>範囲の名前でも 0 ～ %1 の数値でもありません</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>名前「%1」で指定する必要があります</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>[最小値, 最大値] または null である必要があります</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>最小値が最大値を超えています</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>不明なキーです。使用できるキーは %1 です</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>オブジェクトである必要があります</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>配列である必要があります</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>要素が %1 個ありますが、最大 %2 個です</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>空でないテキストである必要があります</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>整数である必要があります</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>%1 ですが、%2 ～ %3 である必要があります</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>数値、テキスト、または「value」と「name」を持つオブジェクトである必要があります</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>/ で始まるパスである必要があります</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>ホスト名でも IP アドレスでもありません</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>「network」または「serial」のどちらか一方が必要です</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>simulated、network、serial、pjlink のいずれかである必要があります</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>%1 接続が必要です</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>設定「%1」はありません</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>プロファイルを開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>プロファイルに名前を付けて保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>プロファイルを開く</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>プロファイル (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>プロファイルに名前を付けて保存</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>読み取り専用ファイル</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>%1 は変更できません。先にプロファイルを別のファイルに保存してください。</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>プロファイルに名前を付けて保存…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>これまでの変更は元に戻せなくなりました。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>この操作は実行できませんでした。何も変更されていません。</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>別のプログラムが %1 を変更中です。もう一度実行してください</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>%1 にプロファイルがありません。--profiles でファイルを指定してください</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%1 種類のプロジェクターの画像 %n 枚を %2 に保存しました</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: プロジェクター「%1」はありません。--list で一覧を表示できます。</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: タブ %1 はありません。「%2」のタブは 0 ～ %3 です。</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>ディスプレイがありません。ディスプレイなしで使用するには、--list、--tour、--screenshot を指定してください。</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>ランプ</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>最終応答</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · 表示中</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>名前、機種、場所、アドレス、タブ、設定を検索</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>プロジェクターを検索</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>プロジェクター</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台見つかりました</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>フォルダー</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[オプション]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>オプション:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>バージョン情報を表示します。</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>不明なオプション「%1」です。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>不明なオプション: %1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>「%1」の後に値がありません。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>「%1」の後の値は不要です。</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>「%1」は IP アドレスでもアドレス範囲でもありません</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>アドレスが %1 個を超えています</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>検索(&amp;S)</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>プロジェクターの検索</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>このコンピューターのネットワーク</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>例: 192.0.2.0/24、192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>備考</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>見つかったプロジェクター</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>アドレス(&amp;A)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>パスワード(&amp;W)</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>選択項目を追加(&amp;C)</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>登録済み</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>パスワードが必要</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台見つかりました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台見つかりました (%2 件中 %1 件のアドレスに問い合わせ済み)…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>設定を保存(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>ファイルと比較(&amp;C)…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>設定を適用(&amp;P)…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>設定の保存</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>設定をフォルダーに保存</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>設定 (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>設定を読み取り中…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>設定を %1 に保存しました。</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>%n 台のプロジェクターの設定を %1 に保存しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n 件の設定を読み取れませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>設定の適用</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>設定の比較</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>変更前の値は %1 に保存されています。</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 が重複しています</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: ポートを確保できません</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>プロジェクター「%1」はありません</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: プロジェクターは %1 から読み取られます</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 はすでにあり、このプログラムが書き込んだものではありません</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>「%1」はポートではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>「%1」は %2 から %3 までの数値ではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>「%1」は 1 時間以内の時間ではありません。</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>&lt;ファイル&gt; のプロジェクターを提供します。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>プロジェクター &lt;名前&gt; だけを提供します。複数回指定できます。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>127.0.0.1 の代わりに &lt;アドレス&gt; で待ち受けます。--fleet と併用すると、127.64.0.1 に代わる 1 台目のプロジェクターのアドレスになります。</translation>
    </message>
    <message>
        <source>address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>1 台目のプロジェクターはポート &lt;n&gt;、2 台目以降はそれに続くポートを使用します。0 または省略時は、空いているポートを使用します。--fleet と併用すると、&lt;n&gt; は全プロジェクターの独自プロトコルのポートになり、その次のポートを PJLink に使用します。</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink で &lt;テキスト&gt; をパスワードとして要求します。</translation>
    </message>
    <message>
        <source>text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>各プロジェクターを擬似端末でも提供します。</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>障害のある状態で開始します: %1。一部のプロジェクターだけの場合は &apos;silent 5%&apos; のように割合で指定します。複数回指定できます。</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>障害</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>乱数に基づく動作を &lt;n&gt; で決定します。</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>ループバックアドレスのポート &lt;n&gt; で障害の指定を待ち受けます。1 行につき、1 から始まるプロジェクターの番号または * と、障害を指定します。</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>提供中のプロジェクターに接続するためのプロファイルを &lt;ファイル&gt; に書き込みます。</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>プロファイルのプロジェクターを基に &lt;n&gt; 台のプロジェクターを作成し、それぞれ別のループバックアドレスで提供します。</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>--fleet 用: --write-profiles で使用する接続方法。pjlink、network、mixed のいずれかです。</translation>
    </message>
    <message>
        <source>way</source>
        <translation>接続方法</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>--fleet 用: プロジェクターがオンになるまでの秒数。</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒数</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>--fleet 用: プロジェクターがスタンバイになるまでの秒数。</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>--fleet 用: 1 秒間に自動で起こる状態変化の数。</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>--fleet 用: PJLink の状態通知をこのアドレスに送信します。</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>アドレス:ポート</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>--fleet 用: 終了時に、各プロジェクターが問い合わせを受けた回数を &lt;ファイル&gt; に書き込みます。</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>ヘルプとエラーを言語 &lt;名前&gt; (de、zh-TW など) で表示します。</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>シミュレーションのプロジェクターを TCP、PJLink、擬似端末で提供します。アドレスを 1 行に 1 つ出力し、最後に「ready」と出力します。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>予期しない引数「%1」。</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 には --fleet が必要です。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>「%1」はアドレスではありません。</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: %1 バイトを超えています。</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: 「%1」は次のいずれでもありません: %2</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet ではシリアル接続を使用できません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>「%1」は IPv4 ループバックアドレスではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>「%1」以降のアドレスが足りません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>「%1」では PJLink 用のポートが残りません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>「%1」は IPv4 ループバックアドレスとポートではありません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>「%1」は pjlink、network、mixed のいずれでもありません。</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>ここに整数が必要です</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>%1 ～ %2 の整数である必要がありますが、%3 です</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>1 行のテキストである必要があります</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>オブジェクトである必要があります</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>配列である必要があります</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>要素が %1 個を超えています</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>保存された設定のファイルではありません</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>対応しているバージョンは %1 だけです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>「%1」が重複しています</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>4 MiB を超えています</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>内容はオブジェクトである必要があります</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>%1 行目: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>監視なし</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>問い合わせ中…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>ホスト不明</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>パスワードの誤り</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>解釈不能</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>スタンバイ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>冷却中</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>ファン</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>ランプ</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>カバー</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (警告)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>基準どおり</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>相違 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 秒前</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>ブランク</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>静止</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>基準と異なる設定</translation>
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
        <translation>ネットワークで検索(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>表をインポート(&amp;I)…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>表をエクスポート(&amp;X)…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>プロジェクターの検索</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>見つかったプロジェクターの追加</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>表のインポート</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>表 (*.csv *.tsv *.txt);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>表のエクスポート</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>表 (*.csv);;すべてのファイル (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>追加したプロジェクター %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>登録済み %n 台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>取り込めない行 %n 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>使われない列: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>電源を入れる(&amp;N)</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>電源を切る(&amp;F)</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>電源(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>入力(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>ブランク(&amp;B)</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>映像をブランクにする</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターの映像をブランクにしますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>映像を表示</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターの映像を表示しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>ミュート(&amp;M)</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>音声をミュート</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターの音声をミュートしますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>ミュートを解除</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターのミュートを解除しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>静止(&amp;Z)</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>映像を静止</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターの映像を静止しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>静止を解除</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターの静止を解除しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>電源を入れる</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>電源を切る</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターの電源を入れますか?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターの電源を切りますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>入力 %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>%n 台のプロジェクターの入力を %1 に切り替えますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>入力の情報がありません</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>WorkActions</name>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1、%2: %3</translation>
    </message>
</context>
<context>
    <name>WorkDialog</name>
    <message>
        <source>Projector</source>
        <translation>プロジェクター</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>プロジェクター</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>失敗した分を再試行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>すべて元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>残りを実行(&amp;R)</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>この機種にはありません</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台中 %1 台が完了</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>実行中…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>受け付け済み、反映待ち</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>完了、%n 件の設定は読み取れませんでした</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台は反映待ち</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台が失敗</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>電源が入っていたか不明</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n 台を中止</numerusform>
        </translation>
    </message>
</context>
</TS>
