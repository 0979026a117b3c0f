<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>--%1 옵션이 없습니다</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1에는 값을 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1에는 %2이(가) 필요합니다</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1에는 %2을(를) 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: ‘%2’은(는) 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>명령이 없습니다. --help로 목록을 볼 수 있습니다</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>‘%1’ 명령이 없습니다. --help로 목록을 볼 수 있습니다</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>%1에는 이 --format을 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>사용법: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>파일 이름이 비어 있습니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>‘%1’은(는) 다음 중 하나가 아닙니다: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>‘%1’은(는) +1이나 -1 같은 증감값이 아닙니다. PJLink에서는 증감만 할 수 있습니다</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>‘%1’은(는) %n단계를 넘습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>%2에서 ‘%1’만큼 바꾼 값은 다음 중 하나가 아닙니다: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>‘%1’은(는) %2에서 %n단계 넘게 떨어져 있습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>프로젝터 목록 표시</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>지정한 프로젝터 또는 모든 프로젝터의 이름, 모델, 페이지 세트, 시리즈 코드, 연결, 태그를 표시합니다.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>모델 목록 표시</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>프로필 파일의 모델을 각각의 프로젝터 수, 설정 수와 함께 표시합니다.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>설정과 값의 목록 표시</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>모델에 있는 설정의 키, 탭, 항목 이름, 가능한 값을 표시합니다. 프로젝터에는 질의하지 않습니다.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>설정 설명 표시</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>설정의 내용을 표시합니다. 탭과 항목 이름, 가능한 값과 코드, 그 설정이 있는 모델, 변경과 초기화 및 저장과 복원이 가능한지를 알 수 있습니다.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>현재 값 표시</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>프로젝터에서 설정을 읽어 표시합니다. 키를 지정하지 않으면 모든 설정을 표시합니다.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>설정 변경</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>지정한 순서대로 설정을 변경하고, 하나씩 다시 읽어 변경 전후의 값을 표시합니다. 먼저 모든 프로젝터에 대해 모든 키와 값을 확인하며, 한 대라도 값이 잘못되었으면 어느 프로젝터에도 전송하지 않습니다. 프로젝터에 없는 키는 보고만 하고 나머지는 계속 변경합니다.
KEY=VALUE는 값을 설정하고, KEY+=N과 KEY-=N은 현재 값에서 증감합니다. KEY VALUE 형식에서 +3과 -3은 증감이고 =-3은 0보다 작은 값입니다. ‘acctl undo’로 이전 상태를 복원할 수 있습니다. 단, 전원 상태와 동작의 결과는 복원되지 않습니다.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>설정을 프로젝터 표준값으로 초기화</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>전원, 입력, 오류, 사용 시간 표시</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>지정한 프로젝터 또는 모든 프로젝터의 상태 페이지를 표시합니다.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>설정을 파일로 저장</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>복원할 수 있는 모든 설정을 저장합니다. 한 대의 설정은 FILE(‘-’는 표준 출력)에, 여러 대의 설정은 폴더에 프로젝터마다 한 파일로 저장합니다. 설정 파일이 아닌 파일은 --force가 없으면 바꾸지 않습니다.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>저장한 설정과 비교</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>저장한 설정 복원</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>값과 모든 변경 사항 표시</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>값을 표시한 뒤 모든 변경 사항을 계속 표시합니다. 중단하거나, 출력을 읽는 프로그램이 없어지거나, 모든 프로젝터가 --until의 값이 되면 끝납니다. 응답이 끊긴 프로젝터에는 계속 다시 시도합니다.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>네트워크에서 프로젝터 찾기</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>네트워크의 모든 PJLink 프로젝터 또는 지정한 주소에 기기 정보를 질의합니다. ADDRESSES는 192.0.2.7, 192.0.2.0/24, 192.0.2.10-40과 같이 지정합니다. --add로 프로필 파일을 지정하지 않으면 아무것도 저장하지 않습니다.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>표에서 프로젝터 가져오기</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>쉼표로 구분된 값(‘-’는 표준 입력)의 각 행을 --profiles 또는 ACCTL_PROFILES로 지정한 프로필 파일에 추가합니다. 이미 있는 프로젝터는 변경합니다.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>프로젝터를 표로 출력</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>지정한 프로젝터 또는 모든 프로젝터를 암호를 제외하고 쉼표로 구분된 값으로 출력합니다.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>명령 설명 표시</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>= != &lt; &lt;= &gt; &gt;= 중 하나가 필요합니다</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>값이 없습니다</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>이 설정이 있는 모델이 없습니다</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>크기 비교는 숫자만 할 수 있습니다</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>이 설정이 있는 모델이 없습니다. acctl settings로 모든 키를 볼 수 있습니다</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>이 설정이 있는 모델이 없습니다. %1을(를) 찾으셨습니까?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1~%2(표시는 %3)</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>소스 %1: 이 설정은 소스별로 유지되지 않습니다</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>소스 %1이(가) 없습니다. 가능한 소스: %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>값 %1은(는) 지정할 수 없습니다. 가능한 값: %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>텍스트 ‘%1’이(가) 값 %2의 텍스트인 ‘%3’과(와) 다릅니다. 둘 다 변경하거나 텍스트를 지우십시오</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>‘고급 제어’ 대화 상자에 표시되는 프로젝터 설정을 읽고, 변경하고, 저장하고, 복원합니다. 대상은 프로필 파일에 있는 프로젝터입니다.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P는 프로젝터를 선택합니다. 이름, &apos;Lecture*&apos;와 같은 패턴, @TAG 또는 model=PATTERN을 지정합니다. 여럿은 쉼표로 구분하고, !P로 제외합니다. KEY는 설정의 키, &apos;picture.*&apos;와 같은 패턴 또는 모든 모델에 공통인 brightness, input, power 같은 짧은 이름입니다. VALUE는 대화 상자에 표시되는 숫자, 항목의 텍스트(대화 상자의 어느 언어든 가능) 또는 그 코드입니다.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>완료. 대기 중인 프로젝터가 일부 정보를 알리지 못했거나, 승인된 변경이 아직 적용되지 않은 경우도 포함합니다.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>거부된 변경이 있거나, 지정한 설정이 프로젝터에 없거나, 파일 또는 출력을 읽거나 쓸 수 없었습니다.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>잘못된 사용. 어느 프로젝터에도 전송하지 않았습니다.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>프로젝터가 응답하지 않거나, 입력 정보를 알리지 않거나, 다른 acctl이 사용 중이었습니다.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>중단됨. 수행한 작업은 출력에 나와 있습니다.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>사용법: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>모든 명령의 옵션(명령별 옵션과 예는 ‘acctl help COMMAND’로 표시)</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>예</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>종료 코드</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>숫자</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>선택</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>상태</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>동작</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>짧은 이름: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>탭</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>항목 이름</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>종류</translation>
    </message>
    <message>
        <source>values</source>
        <translation>값</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>프로젝터가 알려 준 값</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>유지</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>입력 소스별</translation>
    </message>
    <message>
        <source>models</source>
        <translation>모델</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>설정 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>%1에 프로필이 없습니다. --profiles로 파일을 지정하십시오</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>FILE에서 프로젝터 읽기</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>이 상태인 프로젝터만(예: &apos;power=on lamp-hours&gt;1500&apos;)</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>ADDRESS에 있는 프로젝터 사용. P는 모델만 지정</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>찾을 프로젝터의 포트. 기본값은 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>PJLink 암호. 이 컴퓨터의 다른 사용자도 볼 수 있음</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>FILE의 첫 줄을 암호로 사용</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>출력 형식: text, json, jsonl(값 또는 프로젝터마다 한 줄), tsv, value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>--format json과 같음</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>이름 또는 키만 한 줄에 하나씩 표시</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>get, set, reset, watch에서 사용할 수 있는 설정만</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>GLOB과 일치하는 키만. 여러 번 지정 가능</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>FILE(‘-’는 표준 입력)에서 KEY=VALUE 줄 읽기</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>각 프로젝터를 DIR에 별도의 파일로 저장</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>찾은 프로젝터를 프로필 파일 FILE에 추가</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>변경될 내용만 표시하고 변경하지 않음</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>그 상태가 될 때까지 최대 TIME(예: 90s, 5m) 동안 기다림</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>모든 프로젝터가 이 값이 되면 끝냄</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>다른 것이 있으면 1, 비교하지 못한 것이 있으면 2로 종료</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>FILE에 잘못이 있어도 전송을 중단하지 않고 그 부분만 건너뜀</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: 다른 프로젝터의 실행 취소 파일도 사용. save: 어떤 파일이든 바꿈</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>취소할 수 있는 실행 목록 표시</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>실행 취소 파일의 폴더</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>N일이 지난 실행 취소 파일 삭제. 기본값은 30, 0은 모두 보관</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>동시에 처리할 프로젝터 수, 1~1024. 기본값은 읽기 512, 변경 64</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>응답 한 번을 기다리는 시간. 기본값은 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>응답하지 않는 프로젝터에 N번 더 시도. 기본값은 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>첫 오류가 난 뒤에는 다른 프로젝터를 시작하지 않음</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>읽기 사이의 간격. 기본값은 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>텍스트의 언어(예: de, zh-TW)</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>이 도움말. 명령과 함께 쓰면 그 명령의 도움말</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>쓸 수 없음: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>‘%1’은(는) 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>‘=’이 없습니다</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>%1 설정이 없습니다</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1을(를) 읽을 수 없음: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>첫 줄이 비어 있습니다</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>%1의 암호: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1(시뮬레이션)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>추가 %1, 주소 변경 %2, 이미 있음 %3</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>암호가 필요합니다</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>--profiles로 프로필 파일을 지정하십시오</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>사용되지 않은 열: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>추가 %1, 이미 있음 %2, 잘못됨 %3</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: ‘%2’은(는) KEY=VALUE 형식이 아닙니다</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: KEY=VALUE가 없습니다</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>프로젝터를 한 대만 지정할 수 있습니다(지정: %1)</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>실행을 취소했음을 %1에 기록할 수 없음: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>다른 acctl이 작업 중입니다</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>다른 프로젝터가 실패하여 시작하지 않았습니다</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>acctl이 직접 시뮬레이션했으며, 변경 내용은 남지 않습니다</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>중단되었습니다. 수행한 작업은 위와 같습니다</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>대기 상태여서 제외: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>예열 중이어서 제외: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>냉각 중이어서 제외: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>프로젝터가 지원하지 않아 건너뜀: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>프로젝터 %n대</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>변경 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>다름 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>이미 같음 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>적용 대기 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>승인되었지만 아직 적용되지 않음</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>거부 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>사용 중 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>프로젝터가 사용 중이거나 대기 상태입니다</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>확인 안 됨 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>확인되지 않음, 변경되었을 수 있음</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>실행 안 됨 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>건너뜀, 이 모델에 없음</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>건너뜀, 이 프로젝터가 지원하지 않음</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>건너뜀, 복원할 수 없음</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>건너뜀, 이 모델에서 사용할 수 없음</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>%1에서 중지됨</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>%n단계 넘게 떨어져 있어 전송하지 않음</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>거부됨, 현재 값: %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>지금은 읽을 수 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>비교 안 됨 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>건너뜀 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>할 일이 없음</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>PJLink에 없어 건너뜀: 파일의 설정 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1. 이후는 전송하지 않았습니다</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1. 아무것도 전송하지 않았습니다</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: %2의 변경을 취소하는 파일입니다. --force를 지정하면 %3에 적용합니다</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: 파일에 이 설정이 없습니다</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: 프로젝터 ‘%2’이(가) 없습니다</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: %2도 %3의 파일입니다</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: 폴더에 설정 파일이 없습니다</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: %2에 이 프로젝터의 파일이 없습니다</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: 설정 파일이 아닙니다. --force를 지정하면 바꿉니다</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: 이 파일 또는 폴더가 없습니다</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>파일을 적용할 프로젝터를 지정하십시오</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>파일 하나에는 프로젝터 한 대만 저장할 수 있습니다(지정: %1). -o로 폴더를 지정하십시오</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>폴더 %1을(를) 만들 수 없습니다</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1. 이전 실행을 취소하려면 그 이름을 지정하십시오</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>취소할 실행이 없습니다</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>‘%1’ 실행이 없습니다. --list로 목록을 볼 수 있습니다</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: 프로필 파일에 더 이상 없습니다</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>지금은 읽을 수 없어 제외합니다</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>읽을 수 있는 것이 없어 아무것도 쓰지 않았습니다</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>설정 %n개를 %1에 저장했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>프로젝터 ‘%1’이(가) 없습니다. acctl list로 목록을 볼 수 있습니다</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>거부됨, 프로젝터가 대기 상태임</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>거부됨, 프로젝터가 예열 중임</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>거부됨, 프로젝터가 냉각 중임</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>거부됨, 프로젝터가 사용 중임</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>되돌릴 수 없음: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>중지됨, %n단계 중 %1단계 승인됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1, %n단계 중 %2단계 승인됨</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>승인되었지만 아직 적용되지 않음, 현재 값: %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, 변경되었을 수 있음, 현재 값: %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, 변경되었을 수 있음</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>거부됨</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>제시간에 적용되지 않음, 현재 값: %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>제시간에 적용되지 않음</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: 실행 취소 파일의 줄이 아닙니다</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: 취소할 것이 없습니다</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1에 쓸 수 없음: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>연결 설정이 잘못됨</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>알 수 없는 호스트 이름</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>연결할 수 없음</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>연결이 끊김</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>응답을 해석할 수 없음</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>프로토콜 버전이 다름</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>암호가 없거나 틀림</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>응답 없음(%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>이 모델에는 이 설정이 없음</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>건너뜀, PJLink에 없음</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>지금은 읽을 수 없음</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>이 프로젝터가 지원하지 않음</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>읽지 않음, 프로젝터가 입력 정보를 알리지 않음</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>PJLink에 없음</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>이 설정은 읽을 수 없음</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>이 설정은 변경할 수 없음</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>이 설정은 복원할 수 없음</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>이 설정은 초기화할 수 없음</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, 프로젝터가 대기 상태임</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, 프로젝터가 예열 중임</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, 프로젝터가 냉각 중임</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>다시 응답함</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: ‘%1’은(는) KEY=VALUE 형식이 아닙니다</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>파일(‘-’는 표준 입력), 호스트 응용 프로그램의 프리셋 또는 폴더에 있는 각 프로젝터의 파일과 다른 설정을 표시합니다.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>프로젝터를 읽고, 파일(‘-’는 표준 입력), 호스트 응용 프로그램의 프리셋 또는 폴더에 있는 각 프로젝터의 파일과 다른 설정을 전송한 뒤 다시 읽습니다. 바뀌기 전의 값을 먼저 보관하므로 ‘acctl undo’로 복원할 수 있습니다. 중단된 실행은 언제든지 다시 할 수 있습니다.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>이전 값을 읽을 수 없었으므로 복원할 수 없음</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>이전 값을 읽을 수 없었음</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>되돌릴 수 없음</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>설정을 프로젝터 자체의 표준값으로 초기화하고 그 결과를 표시합니다. ‘acctl undo’로 이전 값을 복원할 수 있습니다. 사용 시간은 되돌릴 수 없으므로 키를 정확히 지정한 경우에만 초기화합니다.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>설정을 바꾼 마지막 실행 취소</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>이 실행은 이 프로젝터들을 변경하지 않았습니다</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>‘set’, ‘reset’ 또는 ‘apply’ 실행이 바꾼 값을 복원합니다. RUN은 ‘acctl undo --list’가 표시하는 이름, 파일 또는 ‘last’이며, 생략하면 마지막 실행을 취소합니다. P 또는 --where를 지정하면 해당 프로젝터만 복원하고 나머지는 나중에 취소할 수 있습니다. 실행 취소도 이름을 지정하여 다시 취소할 수 있습니다.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>승인되었지만 확인되지 않음: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>‘%1’은(는) / 또는 ~/로 시작해야 합니다</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>다른 프로그램이 %1을(를) 변경하고 있어 기다리는 중입니다</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>확인함으로 표시(&amp;A)</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>모두 확인함으로 표시(&amp;L)</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>발생 시각</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>경보</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>경보</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1이(가) 응답하지 않습니다</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: 램프 사용 시간이 %3 중 %2입니다</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: 기준과 다른 설정이 %n개 있습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>확인함</translation>
    </message>
    <message>
        <source>open</source>
        <translation>미확인</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>&lt;파일&gt;에서 프로젝터를 읽습니다.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>나눈 담당분 중 하나만 감시합니다. 2/5는 다섯 중 두 번째입니다.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>담당분</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>&lt;태그&gt;(여럿이면 그중 하나)가 있는 프로젝터만 감시합니다.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>태그</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>&lt;초&gt;마다 각 프로젝터를 확인합니다. 최솟값은 5입니다.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>하루에 한 번 각 프로젝터를 &lt;폴더&gt;의 스냅숏과 비교합니다.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>&lt;주소&gt;에서 프로젝터의 상태 알림을 기다립니다.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>&lt;주소:포트&gt;에서 메트릭을 제공합니다. ‘none’이면 제공하지 않습니다.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>주소:포트</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>텍스트 파일 수집기를 위해 15초마다 메트릭을 &lt;파일&gt;에 씁니다.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>&lt;호스트:포트&gt;의 MQTT 브로커에 메시지를 보냅니다.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>호스트:포트</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>MQTT 버전. 3(3.1.1) 또는 5입니다.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>&lt;파일&gt;의 첫 줄을 브로커의 사용자 이름으로 사용합니다.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>&lt;파일&gt;의 첫 줄을 브로커의 암호로 사용합니다.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>암호화하고, 시스템이 신뢰하는 인증 기관을 신뢰합니다.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>암호화하고, &lt;파일&gt;의 인증 기관을 신뢰합니다.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>이 클라이언트의 인증서.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>인증서의 키.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>모든 토픽의 최상위 단계.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>토픽</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>검색 토픽의 최상위 단계. ‘none’이면 검색을 사용하지 않습니다.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>&lt;초&gt; 동안 소식이 없는 브리지의 담당분을 넘겨받습니다.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>명령으로 변경할 수 있는 설정. 키 또는 패턴을 쉼표로 구분합니다. ‘power’는 전원입니다. 지정하지 않으면 아무것도 허용하지 않습니다.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>키</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>각 프로젝터가 1분에 받는 명령 수.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>검색 메시지의 이름과 이 프로그램의 메시지를 &lt;이름&gt; 언어(예: de, zh-TW)로 표시합니다.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>‘%1’은(는) %2초에서 하루 사이의 시간이 아닙니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>‘%1’은(는) 토픽이 아닙니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>‘%1’은(는) 2/5와 같은 담당분 표기가 아닙니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>‘%1’은(는) 포트가 있는 숫자 주소가 아닙니다</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1을(를) 읽을 수 없음: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1이(가) 비어 있습니다</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1에는 --broker가 필요합니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>‘%1’은(는) 포트가 있는 호스트가 아닙니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>‘%1’은(는) 3도 5도 아닙니다</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file과 --key-file은 함께 지정해야 합니다</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: ‘%1’은(는) 명령으로 변경할 수 있는 설정이 아닙니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>‘%1’은(는) 1에서 %2 사이의 숫자가 아닙니다</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>프로젝터를 감시하고 그 상태를 메트릭 저장소와 메시지 브로커에 알립니다.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>예상하지 못한 인수 ‘%1’</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>--profiles가 없습니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>‘%1’은(는) 숫자 주소가 아닙니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>‘%1’은(는) 폴더가 아닙니다</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>‘%1’의 텍스트가 없습니다</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>태그 ‘%1’이(가) 있는 프로젝터가 없습니다</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>‘%1’에 예상하지 못한 ‘=’이 있습니다.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1에는 값이 필요합니다.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>실제 또는 시뮬레이션 프로젝터의 설정 대화 상자를 엽니다.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>&lt;파일&gt;에서 프로젝터를 읽습니다.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>시작할 때 프로젝터 &lt;이름&gt;의 대화 상자를 엽니다.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>--open과 함께: 탭 &lt;n&gt;을 선택합니다(0부터 셈).</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>프로젝터 표를 출력합니다.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>--open과 함께: 대화 상자의 그림(PNG)을 저장하고 끝냅니다.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>모든 종류의 프로젝터의 모든 탭 그림을 &lt;폴더&gt;에 저장하고 끝냅니다.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>텍스트를 &lt;이름&gt; 언어(예: de, zh-TW)로 표시합니다.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: ‘%1’의 텍스트가 없습니다.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>예상하지 못한 인수 ‘%1’.</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>--list, --tour, --open 중 하나만 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1에는 --open이 필요합니다.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: ‘%1’은(는) 숫자가 아닙니다.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>변경만(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>오류만(&amp;E)</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>로그를 다른 이름으로 저장(&amp;L)…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>로그 지우기(&amp;R)…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>명령 로그</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>읽기만 하는 명령 숨기기</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>정상적으로 실행된 명령 숨기기</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>로그 필터링</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>로그 저장</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>표(*.tsv);;모든 파일(*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>로그 지우기</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>로그 항목 %n개를 모두 지우시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>프로젝터, 설정, 명령 또는 결과</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>모든 프로젝터</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>명령을 표시할 프로젝터</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>프로젝터</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>사용 중</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>지원 안 함</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>거부됨</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>적용 대기</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>진행 상황</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>다시 읽기(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>적용(&amp;A)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>설정을 읽는 중…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>다른 설정이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>프로젝터 %n대의 설정이 다릅니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>프로젝터 %n대는 이미 모든 설정이 일치합니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>프로젝터 %n대를 읽을 수 없었습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>프로젝터 %n대는 지금 일부 설정을 읽을 수 없습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>프로젝터 %n대를 건너뛰었습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>연결 방법(&amp;R)</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>연결(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>주소(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>포트(&amp;P)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>암호(&amp;W)</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>포트 번호(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>장치(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>전송 속도(&amp;B)</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>제품군과 같음</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>시뮬레이션</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>직렬 포트</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1은(는) 주소가 아닙니다.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>연결 테스트(&amp;S)</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>테스트 결과</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>연결할 대상이 없습니다.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>직렬 연결은 대화 상자를 열 때 시도합니다.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>질의하는 중…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>프로젝터가 응답함: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>따옴표가 닫히지 않았습니다</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>닫는 따옴표 뒤에 텍스트가 이어집니다</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>셀이 %1개를 넘습니다</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>셀이 %1개인데 머리글은 %2개입니다</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>행이 %1개를 넘습니다</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>머리글 행이 없습니다</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>%1바이트를 넘습니다</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>시뮬레이션</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>상세 정보</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>전원:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>소스:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>문제:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>영상과 소리:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>램프:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>필터:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>설정:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>마지막 응답:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>램프 정격 시간 대비 비율</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>최근 이벤트(&amp;N)</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>최근 이벤트</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>선택한 프로젝터 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>프로젝터 %n대 선택됨</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>빈 화면</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>화면 정지</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>표시 중</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>아직 없음</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>현재</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>다른 설정</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>사전 작업: 다른 소스와 모드</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>설정 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>이 모델에 해당하지 않는 설정 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>지금 읽을 수 없는 설정 %n개</numerusform>
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
        <translation>문제: 팬</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>문제: 램프</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>문제: 온도</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>문제: 덮개</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>문제: 필터</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>문제: 기타</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>연결 가능</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>전원</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>대기</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>냉각 중</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>오류 없음</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>덮개</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>팬</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>램프</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>공기 흐름</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>램프 사용 시간</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>저온</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>필터 사용 시간</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>기타(99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>거부</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>읽기 실패</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>지연</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>연결 끊김</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>장애 설정(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>제거(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>모두 제거(&amp;M)</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>적용 중인 장애</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>전원(&amp;W)</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>오류 상태(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>명령(&amp;C)</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>장애(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>지연(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>적용 중(&amp;I)</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>선택한 프로젝터 없음</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>%1 시뮬레이션</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>%1의 시뮬레이션 장애</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>모든 명령</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>선택하거나 이름 또는 코드의 일부 입력</translation>
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
        <translation>%1 (모든 코드)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>켜짐 %n대</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>꺼짐 %n대</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>문제 있음 %n대</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>연결 불가 %n대</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>경보 있음 %n대</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>가장 오래된 응답 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>확인하지 않음 %n대</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>거부됨</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>프로젝터가 사용 중이거나 대기 상태임</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>프로젝터에 없음</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>이 모델에서 사용할 수 없는 값임</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>변경할 수 없음</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>모델에 없음</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>모델에 이 설정이 없음</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>스냅숏이 없음</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>확인되지 않음, 변경되었을 수 있음</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>일부를 전송하지 못함</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>연결할 수 없음</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>연결 설정이 잘못됨</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>알 수 없는 호스트 이름</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>연결이 끊김</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>응답을 해석할 수 없음</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>프로토콜 버전이 다름</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>암호가 없거나 틀림</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>프로젝터가 지금은 어떤 설정도 알려 주지 않음</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>연결 불가</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1(%2)</translation>
    </message>
</context>
<context>
    <name>HelpWindows</name>
    <message>
        <source>In a projector&apos;s dialog</source>
        <translation>프로젝터 대화 상자</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>다음 탭</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>이전 탭</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>설정 찾기</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>키보드 단축키</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;고급 제어 %1&lt;/h3&gt;&lt;p&gt;프로젝터 설정을 실시간으로 다룹니다. 모든 값은 프로젝터에서 읽어 오고, 모든 변경은 바로 전송됩니다.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>텍스트에 제어 문자가 있습니다</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>텍스트에 서로게이트 쌍의 한쪽만 있습니다</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>텍스트가 %1바이트를 넘습니다</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>%1바이트를 넘습니다</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>중첩이 %1단계를 넘습니다</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>값이 %1개를 넘습니다</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>이 프로젝터는 모두 프로그램을 시험해 보기 위한 시뮬레이션입니다.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>고급 제어: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>고급 제어</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>설정 열기</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>대화 상자 %n개를 여시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>경보</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>시뮬레이션</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>명령 로그</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>끝내기(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>기본 설정(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>프로젝터(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>설정 열기(&amp;O)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>새로 고침(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>찾기(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>시뮬레이션(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>명령 로그(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>경보(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>키보드 단축키(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>정보(&amp;A)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>도구</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>%1에 저장했습니다.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>제품군(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>모델(&amp;M)</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>모델의 모든 항목(&amp;L)</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>대화 상자 유형(&amp;T)</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>모델 코드(&amp;E)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>고급 제어</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>고급 제어</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>프로젝터 설정</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>프로젝터 설정을 읽고 변경합니다</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>프로젝터;빔프로젝터;빔;밝기;키스톤;램프;projector;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>수백 대의 프로젝터 상태를 목록으로 보여 주고 여러 대를 한꺼번에 변경합니다. 프로젝터마다 설정을 그룹별 탭으로 나눈 대화 상자가 있습니다. 모든 값은 프로젝터에서 실시간으로 읽어 오고, 모든 변경은 바로 전송됩니다. 로그에는 각 명령과 그 결과가 표시됩니다.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>프로젝터를 시뮬레이션할 수 있으며, 장애도 직접 설정할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>%1의 대화 상자를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>폴더 %1에 쓸 수 없습니다</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>기본 설정</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>시스템 설정에 따름</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 초</translation>
    </message>
    <message>
        <source>never</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 분</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>팬, 램프, 온도, 덮개, 필터(&amp;F)</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>기준과 다른 설정(&amp;B)</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>데스크톱에 알림(&amp;D)</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>알림 중지 시작</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>알림 중지 끝</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>언어(다시 시작한 뒤 적용)(&amp;L)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>각 프로젝터의 확인 간격(&amp;E)</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>경보</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>램프 사용 시간(정격 시간 대비)(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>응답이 없는 시간(&amp;S)</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>알림 중지 시간대</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>데스크톱 설정에 따름</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>밝게</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>어둡게</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>색상(&amp;C)</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(두 시각이 같으면 사용 안 함)</translation>
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
        <translation>프리셋(&amp;R)</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>선택한 프로젝터에 적용</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>프리셋이 아직 없음</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>프리셋으로 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>기준 프리셋(&amp;B)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>기준 프리셋과 비교(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>기준 프리셋으로 되돌리기(&amp;P)</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>프리셋으로 저장</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>프리셋 %1(으)로 저장함</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>프리셋 %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>기준 프리셋</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>선택한 프로젝터 중 기준 프리셋이 지정된 것이 없습니다.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>되돌리기</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대의 설정을 기준 프리셋으로 되돌리시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>%1의 설정을 읽는 중…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>기준 프리셋</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>기준</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>프리셋 관리(&amp;M)…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>%1 전체</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>프리셋으로 저장</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>프리셋의 설정</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>프리셋 이름(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>모두(&amp;A)</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>모든 설정 선택</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>이 페이지(&amp;P)</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>선택한 페이지의 설정만 선택</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>없음(&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>모든 설정 선택 해제</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>프리셋에 사용할 수 없는 이름입니다. 슬래시와 맨 앞의 마침표를 빼십시오.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>설정 %n개를 선택했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>프리셋 %1을(를) 바꿉니다.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>프리셋 이름 바꾸기</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>프리셋 제거</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>폴더 %1을(를) 만들 수 없습니다</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>프리셋의 설정</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>이름 바꾸기(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>제거(&amp;R)</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>프리셋이 아직 없음</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>이 프리셋을 기준으로 하는 프로젝터: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>프리셋에 사용할 수 없는 이름입니다. 슬래시와 맨 앞의 마침표를 빼십시오.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>프리셋 %1이(가) 이미 있습니다.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>프리셋 %1을(를) 제거하시겠습니까?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>추가(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>편집(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>복제(&amp;D)…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>제거(&amp;V)…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>태그(&amp;G)…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>복제</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>프로젝터 제거</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>프로젝터 제거</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>‘%1’을(를) %2에서 제거하시겠습니까?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>프로젝터 %n대를 %1에서 제거하시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>태그</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>프로젝터 %n대의 태그(쉼표로 구분).
앞에 빼기 기호를 붙이면 그 태그를 제거합니다:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>‘%1’은(는) MAC 주소가 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>‘%1’은(는) 연결 방법이 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>‘%1’은(는) 식별자가 %2인 다른 프로젝터의 이름입니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>‘%1’은(는) 시간 수가 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>‘%1’은(는) 다른 프로젝터의 이름입니다</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>머리글 행에 ‘name’ 열이 없습니다</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>%1이(가) 다른 프로그램에 의해 변경되었습니다. 다시 불러온(F5) 뒤 다시 시도하십시오.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>이름(&amp;N)</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>프로젝터 추가</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>프로젝터 편집</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>프로젝터 복제</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>입력이 필요한 항목: %1</translation>
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
        <translation>직렬 포트 %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>제품군이 %1개입니다. 최대 %2개까지 가능합니다</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>제품군을 %1개 넘게 거칩니다</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>‘%1’이(가) 자기 자신을 참조하게 됩니다</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>제품군 ‘%1’이(가) 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>‘%1’이(가) 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>‘%1’은(는) projectors[%3]의 %2에도 있습니다</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>파일의 내용은 객체여야 합니다</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>‘projectors’가 없습니다</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>프로젝터가 없습니다</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>중복되어 있습니다</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>프로필 %1을(를) 읽을 수 없음: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>범위 이름도 0~%1의 숫자도 아닙니다</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>이름 ‘%1’(으)로 지정해야 합니다</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>[최솟값, 최댓값] 또는 null이어야 합니다</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>최솟값이 최댓값보다 큽니다</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>알 수 없는 키입니다. 사용할 수 있는 키: %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>객체여야 합니다</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>배열이어야 합니다</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>항목이 %1개입니다. 최대 %2개까지 가능합니다</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>비어 있지 않은 텍스트여야 합니다</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>%1바이트를 넘습니다</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>정수여야 합니다</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>%1입니다. %2~%3이어야 합니다</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>숫자, 텍스트 또는 ‘value’와 ‘name’이 있는 객체여야 합니다</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>/로 시작하는 경로여야 합니다</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>호스트 이름도 IP 주소도 아닙니다</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>‘network’와 ‘serial’ 중 하나만 있어야 합니다</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>simulated, network, serial, pjlink 중 하나여야 합니다</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>%1 연결이 필요합니다</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>‘%1’ 설정이 없습니다</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>프로필 열기(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>다시 불러오기(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>프로필을 다른 이름으로 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>프로필 열기</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>프로필(*.json);;모든 파일(*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>다시 불러오기</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>프로필을 다른 이름으로 저장</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>읽기 전용 파일</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>%1을(를) 변경할 수 없습니다. 먼저 프로필을 다른 파일에 저장하십시오.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>프로필을 다른 이름으로 저장…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>지금까지의 변경은 더 이상 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>이 작업을 수행할 수 없습니다. 아무것도 변경되지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>다른 프로그램이 %1을(를) 변경하고 있습니다. 다시 시도하십시오</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>%1에 프로필이 없습니다. --profiles로 파일을 지정하십시오</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>코드</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>프로젝터 %1종의 그림 %n개를 %2에 저장했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: 프로젝터 ‘%1’이(가) 없습니다. --list로 목록을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: 탭 %1이(가) 없습니다. ‘%2’의 탭은 0~%3입니다.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>디스플레이가 없습니다. 디스플레이 없이 사용하려면 --list, --tour, --screenshot을 지정하십시오.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>전원</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>소스</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>램프</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>장소</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>마지막 응답</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · 열림</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>이름, 모델, 장소, 주소, 탭 또는 설정 찾기</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>프로젝터 찾기</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>프로젝터</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>찾지 못함</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n대 찾음</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>드라이브</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>폴더</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>사용법: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[옵션]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>옵션:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>버전 정보를 표시합니다.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>알 수 없는 옵션 ‘%1’.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>알 수 없는 옵션: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>‘%1’ 다음에 값이 없습니다.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>‘%1’ 다음에 예상하지 못한 값이 있습니다.</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>‘%1’은(는) IP 주소도 주소 범위도 아닙니다</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>주소가 %1개를 넘습니다</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>찾기(&amp;S)</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>프로젝터 찾기</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>이 컴퓨터의 네트워크</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>예: 192.0.2.0/24 또는 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>비고</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>찾은 프로젝터</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>주소(&amp;A)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>암호(&amp;W)</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>선택한 항목 추가(&amp;C)</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>이미 있음</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>암호 필요</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n대 찾음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n대 찾음, 주소 %2개 중 %1개 질의함…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>설정 저장(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>파일과 비교(&amp;C)…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>설정 적용(&amp;P)…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>설정 저장</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>폴더에 설정 저장</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>설정(*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>설정을 읽는 중…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>설정 열기</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>설정을 %1에 저장했습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>프로젝터 %n대의 설정을 %1에 저장했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>설정 %n개를 읽을 수 없었습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>설정 적용</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>설정 비교</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>이전 값은 %1에 보관되어 있습니다.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1을(를) 읽을 수 없음: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>표준 입력</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1이(가) 중복되어 있습니다</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: 포트를 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>프로젝터 ‘%1’이(가) 없습니다</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: 프로젝터를 %1에서 읽습니다</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1은(는) 이미 있으며 이 프로그램이 쓴 파일이 아닙니다</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>‘%1’은(는) 포트가 아닙니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>‘%1’은(는) %2에서 %3 사이의 숫자가 아닙니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>‘%1’은(는) 한 시간 이내의 시간이 아닙니다.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>&lt;파일&gt;의 프로젝터를 제공합니다.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>프로젝터 &lt;이름&gt;만 제공합니다. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>127.0.0.1 대신 &lt;주소&gt;에서 기다립니다. --fleet과 함께 쓰면 127.64.0.1을 대신하는 첫 번째 프로젝터의 주소가 됩니다.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>첫 번째 프로젝터는 포트 &lt;n&gt;을, 나머지는 그다음 포트를 차례로 사용합니다. 0이거나 생략하면 비어 있는 포트를 사용합니다. --fleet과 함께 쓰면 &lt;n&gt;은 모든 프로젝터의 자체 프로토콜 포트이고, 그다음 포트는 PJLink에 사용합니다.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink에서 &lt;텍스트&gt;를 암호로 요구합니다.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>각 프로젝터를 의사 터미널로도 제공합니다.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>장애가 있는 상태로 시작합니다: %1. 일부 프로젝터에만 적용하려면 &apos;silent 5%&apos;처럼 비율을 지정합니다. 여러 번 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>장애</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>무작위로 정해지는 모든 것을 &lt;n&gt;에 따라 정합니다.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>루프백 주소의 포트 &lt;n&gt;에서 장애 지정을 기다립니다. 한 줄에 하나씩, 1부터 시작하는 프로젝터 번호 또는 *와 장애를 지정합니다.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>제공하는 프로젝터에 호스트가 연결할 수 있는 프로필을 &lt;파일&gt;에 씁니다.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>프로필의 프로젝터를 본떠 &lt;n&gt;대의 프로젝터를 만들고, 각각 별도의 루프백 주소에서 제공합니다.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>--fleet용: --write-profiles가 사용할 연결 방법. pjlink, network, mixed 중 하나입니다.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>방법</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>--fleet용: 프로젝터가 켜질 때까지 걸리는 초.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>--fleet용: 프로젝터가 대기 상태가 될 때까지 걸리는 초.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>--fleet용: 1초에 저절로 일어나는 상태 변화의 수.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>--fleet용: 이 주소로 PJLink 상태 알림을 보냅니다.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>주소:포트</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>--fleet용: 끝날 때 각 프로젝터가 질의를 받은 횟수를 &lt;파일&gt;에 씁니다.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>도움말과 오류를 &lt;이름&gt; 언어(예: de, zh-TW)로 표시합니다.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>시뮬레이션 프로젝터를 TCP, PJLink, 의사 터미널로 제공합니다. 주소를 한 줄에 하나씩 출력한 다음 ‘ready’를 출력합니다.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>예상하지 못한 인수 ‘%1’.</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1에는 --fleet이 필요합니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>‘%1’은(는) 주소가 아닙니다.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: %1바이트를 넘습니다.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: ‘%1’은(는) 다음 중 하나가 아닙니다: %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>--fleet에서는 직렬 연결을 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>‘%1’은(는) IPv4 루프백 주소가 아닙니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>‘%1’부터는 남은 주소가 부족합니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>‘%1’을(를) 사용하면 PJLink용 포트가 남지 않습니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>‘%1’은(는) 포트가 있는 IPv4 루프백 주소가 아닙니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>‘%1’은(는) pjlink, network, mixed 중 하나가 아닙니다.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>여기에 정수가 없습니다</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>%1~%2의 정수여야 하는데 %3입니다</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>한 줄의 텍스트여야 합니다</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>객체여야 합니다</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>배열이어야 합니다</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>항목이 %1개를 넘습니다</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>저장된 설정 파일이 아닙니다</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>버전 %1만 지원합니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>‘%1’이(가) 중복되어 있습니다</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>4 MiB보다 큽니다</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>내용은 객체여야 합니다</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>%1번째 줄: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>감시 안 함</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>질의하는 중…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>알 수 없는 호스트</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>암호 틀림</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>해석 불가</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>대기</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>냉각 중</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>예열 중</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>팬</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>램프</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>덮개</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1(경고)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1시간</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>기준과 같음</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>다름 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1초 전</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>on</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>전원</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>소스</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>빈 화면</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>화면 정지</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>기준과 다른 설정</translation>
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
        <translation>네트워크에서 찾기(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>표 가져오기(&amp;I)…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>표 내보내기(&amp;X)…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>프로젝터 찾기</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>찾은 프로젝터 추가</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>표 가져오기</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>표(*.csv *.tsv *.txt);;모든 파일(*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>%1번째 줄: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>표 내보내기</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>표(*.csv);;모든 파일(*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>추가한 프로젝터 %n대</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>이미 있음 %n대</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>가져오지 못한 행 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>사용되지 않은 열: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>켜기(&amp;N)</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>끄기(&amp;F)</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>전원(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>입력(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>빈 화면(&amp;B)</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>빈 화면으로 전환</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대를 빈 화면으로 전환하시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>영상 표시</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대의 영상을 표시하시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>음소거(&amp;M)</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>음소거</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대를 음소거하시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>음소거 해제</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대의 음소거를 해제하시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>화면 정지(&amp;Z)</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>화면 정지</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대의 화면을 정지하시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>화면 정지 해제</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대의 화면 정지를 해제하시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>켜기</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>끄기</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대를 켜시겠습니까?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대를 끄시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>입력 %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>프로젝터 %n대의 입력을 %1(으)로 바꾸시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>알려진 입력 없음</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1에 쓸 수 없음: %2</translation>
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
        <translation>프로젝터</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>프로젝터</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행 상황</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>실패한 항목 다시 시도(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>모두 실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>나머지 실행(&amp;R)</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>모델에 없음</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n대 중 %1대 완료</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>실행 취소: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>진행 중…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>승인됨, 진행 중</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>거부됨</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>완료, 설정 %n개를 읽을 수 없었음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n대 진행 중</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n대 실패</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>켜져 있었는지 알 수 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n대 중지됨</numerusform>
        </translation>
    </message>
</context>
</TS>
