<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he">
<context>
    <name>Acctl</name>
    <message>
        <source>there is no option --%1</source>
        <translation>לא קיימת האפשרות --%1</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 אינה מקבלת ערך</translation>
    </message>
    <message>
        <source>--%1 needs %2</source>
        <extracomment>An option and what must follow it: &quot;--profiles needs FILE&quot;.</extracomment>
        <translation>--%1 דורשת %2</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <extracomment>A command and an option: &quot;list takes no --wait&quot;.</extracomment>
        <translation>%1 אינה מקבלת %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not possible</source>
        <extracomment>An option and its value.</extracomment>
        <translation>%1: &quot;%2&quot; אינו אפשרי</translation>
    </message>
    <message>
        <source>a command is missing; --help lists them</source>
        <translation>חסרה פקודה; --help מציגה את הפקודות</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;; --help lists them</source>
        <translation>אין פקודה &quot;%1&quot;; --help מציגה את הפקודות</translation>
    </message>
    <message>
        <source>%1 has no such --format</source>
        <translation>ל־%1 אין --format כזה</translation>
    </message>
    <message>
        <source>use: %1</source>
        <translation>שימוש: %1</translation>
    </message>
    <message>
        <source>the name of the file is empty</source>
        <translation>שם הקובץ ריק</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>&quot;%1&quot; אינו אחד מאלה: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a step such as +1 or -1, and PJLink can only step it</source>
        <translation>&quot;%1&quot; אינו צעד כגון +1 או -1, וב־PJLink אפשר לשנות ערך זה רק בצעדים</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>&quot;%1&quot; הוא יותר מצעד אחד</numerusform>
            <numerusform>&quot;%1&quot; הוא יותר מ־%n צעדים</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;%1&apos; from %2 is not one of: %3</source>
        <extracomment>A step such as +3, the value that it starts from, and the values that are possible.</extracomment>
        <translation>&quot;%1&quot; מ־%2 אינו אחד מאלה: %3</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>&quot;%1&quot; רחוק יותר מצעד אחד מ־%2</numerusform>
            <numerusform>&quot;%1&quot; רחוק יותר מ־%n צעדים מ־%2</numerusform>
        </translation>
    </message>
    <message>
        <source>list projectors</source>
        <translation>הצגת רשימת המקרנים</translation>
    </message>
    <message>
        <source>Prints name, model, page set, series code, connection and tags of the projectors, or of all.</source>
        <translation>הפקודה מדפיסה שם, דגם, סדרת דפים, קוד סדרה, חיבור ותגיות של המקרנים שנבחרו או של כולם.</translation>
    </message>
    <message>
        <source>list models</source>
        <translation>הצגת רשימת הדגמים</translation>
    </message>
    <message>
        <source>Prints the models of the profile file, with the number of projectors and of settings of each.</source>
        <translation>הפקודה מדפיסה את הדגמים שבקובץ הפרופילים, עם מספר המקרנים ומספר ההגדרות של כל אחד.</translation>
    </message>
    <message>
        <source>list settings and their values</source>
        <translation>הצגת ההגדרות והערכים שלהן</translation>
    </message>
    <message>
        <source>Prints the settings that the model has: key, tab, caption and possible values. The projector is not asked.</source>
        <translation>הפקודה מדפיסה את ההגדרות שיש לדגם: מפתח, לשונית, כותרת וערכים אפשריים. המקרן אינו נשאל.</translation>
    </message>
    <message>
        <source>explain a setting</source>
        <translation>הסבר על הגדרה</translation>
    </message>
    <message>
        <source>Prints what a setting is: tab and caption, possible values with their codes, the models that have it, and whether it can be set, reset, and saved and restored.</source>
        <translation>הפקודה מדפיסה מהי ההגדרה: לשונית וכותרת, ערכים אפשריים והקודים שלהם, הדגמים שיש להם אותה, והאם אפשר לקבוע, לאפס, לשמור ולשחזר אותה.</translation>
    </message>
    <message>
        <source>print present values</source>
        <translation>הצגת הערכים הנוכחיים</translation>
    </message>
    <message>
        <source>Reads settings from the projectors and prints them; without a key, all of them.</source>
        <translation>הפקודה קוראת הגדרות מהמקרנים ומדפיסה אותן; ללא מפתח, את כולן.</translation>
    </message>
    <message>
        <source>change settings</source>
        <translation>שינוי הגדרות</translation>
    </message>
    <message>
        <source>Changes settings in the order given, reads each back, and prints the value before and after. All keys and values are checked for all projectors first; if a value is wrong for one, nothing is sent to any. A key that a projector does not have is reported, and does not stop the others.
KEY=VALUE sets a value; KEY+=N and KEY-=N step from the present value. In the form KEY VALUE, +3 and -3 are steps, and =-3 is a number below zero. &apos;acctl undo&apos; restores what was there before, except the power state and the results of actions.</source>
        <translation>הפקודה משנה הגדרות לפי הסדר שניתן, קוראת כל אחת בחזרה ומדפיסה את הערך לפני ואחרי. תחילה נבדקים כל המפתחות והערכים לכל המקרנים; אם ערך שגוי עבור אחד מהם, דבר אינו נשלח לאף מקרן. על מפתח שאין למקרן נמסרת הודעה, והוא אינו מונע את השאר.
KEY=VALUE קובע ערך; KEY+=N ו־KEY-=N משנים בצעדים מהערך הנוכחי. בצורה KEY VALUE, +3 או -3 הם צעדים, והכתיב =-3 הוא מספר קטן מאפס. &apos;acctl undo&apos; משחזרת את מה שהיה קודם, מלבד מצב ההפעלה ותוצאות של פעולות.</translation>
    </message>
    <message>
        <source>reset settings to the projector&apos;s standard</source>
        <translation>איפוס הגדרות לברירת המחדל של המקרן</translation>
    </message>
    <message>
        <source>print power, input, errors and hours</source>
        <translation>הצגת הפעלה, קלט, שגיאות ושעות</translation>
    </message>
    <message>
        <source>Prints the status page of the projectors, or of all.</source>
        <translation>הפקודה מדפיסה את דף המצב של המקרנים שנבחרו או של כולם.</translation>
    </message>
    <message>
        <source>save settings in files</source>
        <translation>שמירת הגדרות בקבצים</translation>
    </message>
    <message>
        <source>Saves every setting that can be restored: those of one projector in FILE (&apos;-&apos; is standard output), or those of any number in a folder, a file each. A file that is not a file of settings is not replaced without --force.</source>
        <translation>הפקודה שומרת כל הגדרה שאפשר לשחזר: של מקרן אחד בקובץ FILE (הסימן &quot;-&quot; הוא הפלט התקני), או של כל מספר מקרנים בתיקייה, קובץ לכל אחד. קובץ שאינו קובץ הגדרות אינו מוחלף ללא --force.</translation>
    </message>
    <message>
        <source>compare with saved settings</source>
        <translation>השוואה להגדרות שמורות</translation>
    </message>
    <message>
        <source>restore saved settings</source>
        <translation>שחזור הגדרות שמורות</translation>
    </message>
    <message>
        <source>print values and every change</source>
        <translation>הצגת ערכים וכל שינוי</translation>
    </message>
    <message>
        <source>Prints values, and then every change until it is interrupted, until nobody reads its output any more, or until all projectors have the value of --until. A projector that falls silent is tried again and again.</source>
        <translation>הפקודה מדפיסה ערכים, ולאחר מכן כל שינוי, עד שהיא נקטעת, עד שאיש אינו קורא עוד את הפלט שלה, או עד שלכל המקרנים יש הערך של --until. מקרן שמשתתק מקבל ניסיונות חוזרים שוב ושוב.</translation>
    </message>
    <message>
        <source>search the network for projectors</source>
        <translation>חיפוש מקרנים ברשת</translation>
    </message>
    <message>
        <source>Asks every PJLink projector of the network, or the addresses given, who it is. ADDRESSES are like 192.0.2.7, 192.0.2.0/24 or 192.0.2.10-40. Nothing is stored unless --add names a profile file.</source>
        <translation>הפקודה שואלת כל מקרן PJLink ברשת, או את הכתובות שניתנו, מי הוא. ADDRESSES הן כגון 192.0.2.7, 192.0.2.0/24 או 192.0.2.10-40. דבר אינו נשמר אלא אם --add מציינת קובץ פרופילים.</translation>
    </message>
    <message>
        <source>take projectors from a table</source>
        <translation>ייבוא מקרנים מטבלה</translation>
    </message>
    <message>
        <source>Adds the rows of comma-separated values (&apos;-&apos; is standard input) to the profile file that --profiles or ACCTL_PROFILES names, and changes those that it has.</source>
        <translation>הפקודה מוסיפה את השורות של ערכים מופרדים בפסיקים (הסימן &quot;-&quot; הוא הקלט התקני) לקובץ הפרופילים ש־--profiles או ACCTL_PROFILES מציינים, ומשנה את מה שכבר נמצא בו.</translation>
    </message>
    <message>
        <source>print projectors as a table</source>
        <translation>הצגת המקרנים כטבלה</translation>
    </message>
    <message>
        <source>Prints the projectors, or all, as comma-separated values, without passwords.</source>
        <translation>הפקודה מדפיסה את המקרנים שנבחרו, או את כולם, כערכים מופרדים בפסיקים, ללא סיסמאות.</translation>
    </message>
    <message>
        <source>explain a command</source>
        <translation>הסבר על פקודה</translation>
    </message>
    <message>
        <source>one of = != &lt; &lt;= &gt; &gt;= is missing</source>
        <translation>חסר אחד מהסימנים = != &lt; &lt;= &gt; &gt;=</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>חסר ערך</translation>
    </message>
    <message>
        <source>no model has such a setting</source>
        <translation>לאף דגם אין הגדרה כזאת</translation>
    </message>
    <message>
        <source>only numbers are less or greater</source>
        <translation>רק מספרים יכולים להיות קטנים או גדולים יותר</translation>
    </message>
    <message>
        <source>no model has such a setting; acctl settings lists all keys</source>
        <translation>לאף דגם אין הגדרה כזאת; acctl settings מציגה את כל המפתחות</translation>
    </message>
    <message>
        <source>no model has such a setting; did you mean %1?</source>
        <translation>לאף דגם אין הגדרה כזאת; האם הכוונה ל־%1?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>A range of numbers.</extracomment>
        <translation>%1 עד %2</translation>
    </message>
    <message>
        <source>%1 to %2, shown as %3</source>
        <translation>%1 עד %2, מוצג כ־%3</translation>
    </message>
    <message>
        <source>source %1: this is not kept for each source</source>
        <translation>מקור %1: הגדרה זו אינה נשמרת לכל מקור בנפרד</translation>
    </message>
    <message>
        <source>source %1 does not exist; there are %2</source>
        <translation>מקור %1 אינו קיים; יש %2</translation>
    </message>
    <message>
        <source>value %1 is not possible; possible are %2</source>
        <translation>הערך %1 אינו אפשרי; הערכים האפשריים: %2</translation>
    </message>
    <message>
        <source>text &quot;%1&quot; is not that of value %2, which is &quot;%3&quot;; change both, or remove the text</source>
        <translation>הטקסט &quot;%1&quot; אינו הטקסט של הערך %2, שהוא &quot;%3&quot;; יש לשנות את שניהם או להסיר את הטקסט</translation>
    </message>
    <message>
        <source>Reads, changes, saves and restores the settings of projectors that the Advanced Control dialog shows. The projectors are those of a profile file.</source>
        <translation>קריאה, שינוי, שמירה ושחזור של הגדרות המקרנים שבחלון &quot;שליטה מתקדמת&quot;. המקרנים הם אלה שבקובץ הפרופילים.</translation>
    </message>
    <message>
        <source>P selects projectors: a name, a pattern such as &apos;Lecture*&apos;, @TAG, or model=PATTERN. Several are separated by commas, and !P leaves projectors out. KEY is the key of a setting, a pattern such as &apos;picture.*&apos;, or a short name such as brightness, input or power, which is the same on all models. VALUE is a number as the dialog shows it, the text of an entry in any language of the dialog, or its code.</source>
        <translation>P בוחר מקרנים: שם, תבנית כגון &apos;Lecture*&apos;, @TAG, או model=PATTERN. כמה בחירות מופרדות בפסיקים, ו־!P משמיט מקרנים. KEY הוא מפתח של הגדרה, תבנית כגון &apos;picture.*&apos;, או שם קצר כגון brightness, input או power, שזהה בכל הדגמים. VALUE הוא מספר כפי שהחלון מציג אותו, הטקסט של פריט ברשימה בכל אחת משפות החלון, או הקוד שלו.</translation>
    </message>
    <message>
        <source>Done. Also if a projector in standby could not report everything, or accepted a change that has not taken effect yet.</source>
        <translation>בוצע. גם אם מקרן במצב המתנה לא יכול היה לדווח על הכול, או קיבל שינוי שעדיין אינו בתוקף.</translation>
    </message>
    <message>
        <source>Something was refused, a projector lacks a setting that was named, or a file or the output could not be read or written.</source>
        <translation>דבר מה נדחה, למקרן חסרה הגדרה שצוינה, או שלא ניתן היה לקרוא או לכתוב קובץ או פלט.</translation>
    </message>
    <message>
        <source>Wrong use: nothing was sent to any projector.</source>
        <translation>שימוש שגוי: דבר לא נשלח לאף מקרן.</translation>
    </message>
    <message>
        <source>A projector did not answer or did not report its inputs, or another run of acctl used it.</source>
        <translation>מקרן לא ענה או לא דיווח על הקלטים שלו, או שהרצה אחרת של acctl השתמשה בו.</translation>
    </message>
    <message>
        <source>Interrupted; the report says what was done.</source>
        <translation>הופסק; הדוח מפרט מה בוצע.</translation>
    </message>
    <message>
        <source>Use: %1</source>
        <extracomment>Above the help of a command; %1 is how it is called.</extracomment>
        <translation>שימוש: %1</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>אפשרויות</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>פקודות</translation>
    </message>
    <message>
        <source>Options of all commands; &apos;acctl help COMMAND&apos; lists its own, with examples</source>
        <translation>אפשרויות לכל הפקודות; &apos;acctl help COMMAND&apos; מציגה את האפשרויות של הפקודה, עם דוגמאות</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>דוגמאות</translation>
    </message>
    <message>
        <source>Exit codes</source>
        <translation>קודי יציאה</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>A kind of setting: a value with a range.</extracomment>
        <translation>מספר</translation>
    </message>
    <message>
        <source>choice</source>
        <extracomment>A kind of setting: a list of entries.</extracomment>
        <translation>בחירה</translation>
    </message>
    <message>
        <source>state</source>
        <extracomment>A kind of setting: on or off, or a counter.</extracomment>
        <translation>מצב</translation>
    </message>
    <message>
        <source>action</source>
        <extracomment>A kind of setting: something that the projector does once.</extracomment>
        <translation>פעולה</translation>
    </message>
    <message>
        <source>short name: %1</source>
        <translation>שם קצר: %1</translation>
    </message>
    <message>
        <source>tab</source>
        <extracomment>Of the dialog, on which the setting is.</extracomment>
        <translation>לשונית</translation>
    </message>
    <message>
        <source>caption</source>
        <extracomment>Of the setting in the dialog.</extracomment>
        <translation>כותרת</translation>
    </message>
    <message>
        <source>kind</source>
        <extracomment>What kind of setting it is: number, choice, state or action.</extracomment>
        <translation>סוג</translation>
    </message>
    <message>
        <source>values</source>
        <translation>ערכים</translation>
    </message>
    <message>
        <source>those that the projector reports</source>
        <translation>אלה שהמקרן מדווח עליהם</translation>
    </message>
    <message>
        <source>commands</source>
        <translation>פקודות</translation>
    </message>
    <message>
        <source>kept</source>
        <extracomment>The setting has a value of its own &quot;for each input source&quot;.</extracomment>
        <translation>נשמר</translation>
    </message>
    <message>
        <source>for each input source</source>
        <translation>לכל מקור קלט בנפרד</translation>
    </message>
    <message>
        <source>models</source>
        <translation>דגמים</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>הגדרה אחת</numerusform>
            <numerusform>%n הגדרות</numerusform>
        </translation>
    </message>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>אין פרופילים ב־%1; יש לציין קובץ באמצעות --profiles</translation>
    </message>
    <message>
        <source>read the projectors from FILE</source>
        <translation>קריאת המקרנים מהקובץ FILE</translation>
    </message>
    <message>
        <source>only projectors in this state, such as &apos;power=on lamp-hours&gt;1500&apos;</source>
        <translation>רק מקרנים במצב הזה, כגון &apos;power=on lamp-hours&gt;1500&apos;</translation>
    </message>
    <message>
        <source>the projector is at ADDRESS; P gives only its model</source>
        <translation>המקרן נמצא בכתובת ADDRESS; P קובע רק את הדגם שלו</translation>
    </message>
    <message>
        <source>the port of the projectors that are searched; 4352 by default</source>
        <translation>הפתחה של המקרנים שמחפשים; ברירת המחדל 4352</translation>
    </message>
    <message>
        <source>PJLink password; other users of this machine can see it here</source>
        <translation>סיסמת PJLink; משתמשים אחרים במחשב הזה יכולים לראות אותה כאן</translation>
    </message>
    <message>
        <source>the first line of FILE is the password</source>
        <translation>השורה הראשונה של FILE היא הסיסמה</translation>
    </message>
    <message>
        <source>output: text, json, jsonl (a line for each value or projector), tsv or value</source>
        <translation>פלט: text, json, jsonl (שורה לכל ערך או מקרן), tsv או value</translation>
    </message>
    <message>
        <source>the same as --format json</source>
        <translation>כמו --format json</translation>
    </message>
    <message>
        <source>only names or keys, one a line</source>
        <translation>רק שמות או מפתחות, אחד בשורה</translation>
    </message>
    <message>
        <source>only settings that get, set, reset or watch can use</source>
        <translation>רק הגדרות ש־get, set, reset או watch יכולות להשתמש בהן</translation>
    </message>
    <message>
        <source>only keys that match GLOB; may be repeated</source>
        <translation>רק מפתחות המתאימים ל־GLOB; אפשר לציין יותר מפעם אחת</translation>
    </message>
    <message>
        <source>take KEY=VALUE lines from FILE (&apos;-&apos; is standard input)</source>
        <translation>קבלת שורות KEY=VALUE מהקובץ FILE (הסימן &quot;-&quot; הוא הקלט התקני)</translation>
    </message>
    <message>
        <source>save each projector in a file of its own in DIR</source>
        <translation>שמירת כל מקרן בקובץ משלו בתיקייה DIR</translation>
    </message>
    <message>
        <source>add what was found to the profile file FILE</source>
        <translation>הוספת מה שנמצא לקובץ הפרופילים FILE</translation>
    </message>
    <message>
        <source>print what would change, and change nothing</source>
        <translation>הדפסת מה שישתנה, בלי לשנות דבר</translation>
    </message>
    <message>
        <source>wait until the state is reached, up to TIME, such as 90s or 5m</source>
        <translation>המתנה עד להגעה למצב, לכל היותר TIME, כגון 90s או 5m</translation>
    </message>
    <message>
        <source>end when every projector has this value</source>
        <translation>סיום כשלכל המקרנים יש הערך הזה</translation>
    </message>
    <message>
        <source>exit with 1 if something differs, with 2 if something could not be compared</source>
        <translation>יציאה עם 1 אם יש הבדל, ועם 2 אם יש דבר שלא ניתן היה להשוות</translation>
    </message>
    <message>
        <source>skip what is wrong in FILE instead of sending nothing</source>
        <translation>דילוג על השגוי ב־FILE במקום לא לשלוח דבר</translation>
    </message>
    <message>
        <source>apply, undo: also the undo file of another projector; save: replace any file</source>
        <translation>apply, undo: גם קובץ ביטול של מקרן אחר; save: החלפת כל קובץ</translation>
    </message>
    <message>
        <source>list the runs that can be undone</source>
        <translation>הצגת ההרצות שאפשר לבטל</translation>
    </message>
    <message>
        <source>the folder for undo files</source>
        <translation>התיקייה לקובצי ביטול</translation>
    </message>
    <message>
        <source>remove undo files older than N days; 30 by default, 0 keeps all</source>
        <translation>הסרת קובצי ביטול ישנים מ־N ימים; ברירת המחדל 30, 0 שומר את כולם</translation>
    </message>
    <message>
        <source>projectors at once, 1 to 1024; by default 512 to read and 64 to change</source>
        <translation>מקרנים בו־זמנית, 1 עד 1024; ברירת המחדל 512 לקריאה ו־64 לשינוי</translation>
    </message>
    <message>
        <source>time for one answer; 2 by default</source>
        <translation>זמן לתשובה אחת; ברירת המחדל 2</translation>
    </message>
    <message>
        <source>try a projector that does not answer N more times; 0 by default</source>
        <translation>N ניסיונות נוספים למקרן שאינו עונה; ברירת המחדל 0</translation>
    </message>
    <message>
        <source>begin no other projector after the first error</source>
        <translation>לא להתחיל מקרנים נוספים לאחר השגיאה הראשונה</translation>
    </message>
    <message>
        <source>time between two readings; 1 by default</source>
        <translation>הזמן בין שתי קריאות; ברירת המחדל 1</translation>
    </message>
    <message>
        <source>language of texts, such as de or zh-TW</source>
        <translation>שפת הטקסטים, כגון de או zh-TW</translation>
    </message>
    <message>
        <source>this text; with a command, its own</source>
        <translation>הטקסט הזה; עם פקודה, הטקסט שלה</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>הגרסה</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>אי אפשר לכתוב: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not possible</source>
        <translation>&quot;%1&quot; אינו אפשרי</translation>
    </message>
    <message>
        <source>&apos;=&apos; is missing</source>
        <translation>חסר &quot;=&quot;</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>אין הגדרה %1</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>אי אפשר לקרוא את %1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Behind a bar: how many projectors are done, and how many there are.</extracomment>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>its first line is empty</source>
        <translation>השורה הראשונה שלו ריקה</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>הסיסמה של %1: </translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (הדמיה)</translation>
    </message>
    <message>
        <source>%1 added, %2 moved, %3 known</source>
        <extracomment>Numbers of projectors: new ones, those with a new address, and those that the file has already.</extracomment>
        <translation>%1 נוספו, %2 הועברו, %3 כבר מוכרים</translation>
    </message>
    <message>
        <source>needs a password</source>
        <translation>דורש סיסמה</translation>
    </message>
    <message>
        <source>name the profile file with --profiles</source>
        <translation>יש לציין את קובץ הפרופילים באמצעות --profiles</translation>
    </message>
    <message>
        <source>columns not used: %1</source>
        <translation>עמודות שלא נעשה בהן שימוש: %1</translation>
    </message>
    <message>
        <source>%1 added, %2 known, %3 wrong</source>
        <extracomment>Numbers of projectors in a table: new ones, those that the file has already, and wrong rows.</extracomment>
        <translation>%1 נוספו, %2 כבר מוכרים, %3 שגויים</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not KEY=VALUE</source>
        <translation>%1: &quot;%2&quot; אינו בצורה KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: has no KEY=VALUE</source>
        <translation>%1: אין בו KEY=VALUE</translation>
    </message>
    <message>
        <source>this takes one projector, not %1</source>
        <translation>כאן יש לציין מקרן אחד, לא %1</translation>
    </message>
    <message>
        <source>undone</source>
        <extracomment>Of a run of the program: somebody has undone it.</extracomment>
        <translation>בוטלה</translation>
    </message>
    <message>
        <source>cannot record in %1 that it is undone: %2</source>
        <translation>אי אפשר לרשום ב־%1 שההרצה בוטלה: %2</translation>
    </message>
    <message>
        <source>another run of acctl works on it</source>
        <translation>הרצה אחרת של acctl עובדת עליו</translation>
    </message>
    <message>
        <source>not begun, as another projector failed</source>
        <translation>לא התחיל, כי מקרן אחר נכשל</translation>
    </message>
    <message>
        <source>simulated by acctl itself, nothing lasting was changed</source>
        <translation>הדמיה של acctl עצמה, דבר לא השתנה לצמיתות</translation>
    </message>
    <message>
        <source>interrupted; what was done is reported above</source>
        <translation>הופסק; מה שבוצע מפורט למעלה</translation>
    </message>
    <message>
        <source>in standby, left out: %1</source>
        <translation>בהמתנה, הושמטו: %1</translation>
    </message>
    <message>
        <source>warming up, left out: %1</source>
        <translation>מתחמם, הושמטו: %1</translation>
    </message>
    <message>
        <source>cooling down, left out: %1</source>
        <translation>מתקרר, הושמטו: %1</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it: %1</source>
        <translation>דולגו, המקרן הזה אינו מציע אותן: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>מקרן אחד</numerusform>
            <numerusform>%n מקרנים</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>אחת עודכנה</numerusform>
            <numerusform>%n עודכנו</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>אחת שונה</numerusform>
            <numerusform>%n שונות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>אחת כבר בערך הנכון</numerusform>
            <numerusform>%n כבר בערך הנכון</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>אחת עדיין לא בתוקף</numerusform>
            <numerusform>%n עדיין לא בתוקף</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet</source>
        <translation>התקבל, עדיין לא בתוקף</translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>אחת נדחתה</numerusform>
            <numerusform>%n נדחו</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>אחת לא נענתה כי המקרן עסוק</numerusform>
            <numerusform>%n לא נענו כי המקרן עסוק</numerusform>
        </translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>המקרן עסוק או בהמתנה</translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>אחת לא אושרה</numerusform>
            <numerusform>%n לא אושרו</numerusform>
        </translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>לא אושר, ייתכן שהערך השתנה</translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>אחת לא בוצעה</numerusform>
            <numerusform>%n לא בוצעו</numerusform>
        </translation>
    </message>
    <message>
        <source>skipped, this model does not have it</source>
        <translation>דולגה, אין אותה בדגם הזה</translation>
    </message>
    <message>
        <source>skipped, this projector does not offer it</source>
        <translation>דולגה, המקרן הזה אינו מציע אותה</translation>
    </message>
    <message>
        <source>skipped, it cannot be restored</source>
        <translation>דולגה, אי אפשר לשחזר אותה</translation>
    </message>
    <message>
        <source>skipped, this model does not take it</source>
        <translation>דולגה, הדגם הזה אינו מקבל את הערך</translation>
    </message>
    <message>
        <source>stopped at %1</source>
        <translation>נעצרה ב־%1</translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>לא נשלחה, היא במרחק של יותר מצעד אחד</numerusform>
            <numerusform>לא נשלחה, היא במרחק של יותר מ־%n צעדים</numerusform>
        </translation>
    </message>
    <message>
        <source>refused, it is %1</source>
        <translation>נדחתה, הערך הוא %1</translation>
    </message>
    <message>
        <source>it cannot be read now</source>
        <translation>אי אפשר לקרוא אותה עכשיו</translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>אחת לא הושוותה</numerusform>
            <numerusform>%n לא הושוו</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>אחת דולגה</numerusform>
            <numerusform>%n דולגו</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>אין מה לעשות</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>דולגה הגדרה אחת מהקובץ, אין אותה ב־PJLink</numerusform>
            <numerusform>דולגו %n הגדרות מהקובץ, אין אותן ב־PJLink</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; no more was sent</source>
        <translation>%1; דבר נוסף לא נשלח</translation>
    </message>
    <message>
        <source>%1; nothing was sent</source>
        <translation>%1; דבר לא נשלח</translation>
    </message>
    <message>
        <source>%1: undoes a change of %2; --force applies it to %3</source>
        <translation>%1: מבטל שינוי של %2; --force תחיל אותו על %3</translation>
    </message>
    <message>
        <source>--only %1: the file has no such setting</source>
        <translation>--only %1: אין בקובץ הגדרה כזאת</translation>
    </message>
    <message>
        <source>%1: there is no projector &apos;%2&apos;</source>
        <translation>%1: אין מקרן &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1: %2 is also of %3</source>
        <extracomment>Two files, and the projector that both are of.</extracomment>
        <translation>%1: גם %2 הוא של %3</translation>
    </message>
    <message>
        <source>%1: the folder has no files of settings</source>
        <translation>%1: אין בתיקייה קובצי הגדרות</translation>
    </message>
    <message>
        <source>%1: there is no file of it in %2</source>
        <translation>%1: אין לו קובץ ב־%2</translation>
    </message>
    <message>
        <source>%1: is not a file of settings; --force replaces it</source>
        <translation>%1: אינו קובץ הגדרות; --force תחליף אותו</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: אין קובץ או תיקייה כאלה</translation>
    </message>
    <message>
        <source>name the projectors to which the file is applied</source>
        <translation>יש לציין את המקרנים שעליהם יוחל הקובץ</translation>
    </message>
    <message>
        <source>one file is for one projector, not %1; -o names a folder</source>
        <translation>קובץ אחד מיועד למקרן אחד, לא ל־%1; -o מציינת תיקייה</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>אי אפשר ליצור את התיקייה %1</translation>
    </message>
    <message>
        <source>%1; name an earlier run to undo that one</source>
        <translation>%1; כדי לבטל הרצה קודמת יש לציין את שמה</translation>
    </message>
    <message>
        <source>there is no run to undo</source>
        <translation>אין הרצה לבטל</translation>
    </message>
    <message>
        <source>there is no run &apos;%1&apos;; --list shows them</source>
        <translation>אין הרצה &quot;%1&quot;; --list מציגה את ההרצות</translation>
    </message>
    <message>
        <source>%1: is no longer in the profile file</source>
        <translation>%1: אינו נמצא עוד בקובץ הפרופילים</translation>
    </message>
    <message>
        <source>cannot be read now, and is left out</source>
        <translation>אי אפשר לקרוא עכשיו, והושמטה</translation>
    </message>
    <message>
        <source>nothing can be read, and nothing was written</source>
        <translation>אי אפשר לקרוא דבר, ודבר לא נכתב</translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>הגדרה אחת נשמרה ב־%1</numerusform>
            <numerusform>%n הגדרות נשמרו ב־%1</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;; acctl list shows all</source>
        <translation>אין מקרן &quot;%1&quot;; acctl list מציגה את כולם</translation>
    </message>
    <message>
        <source>refused, the projector is in standby</source>
        <translation>נדחתה, המקרן בהמתנה</translation>
    </message>
    <message>
        <source>refused, the projector is warming up</source>
        <translation>נדחתה, המקרן מתחמם</translation>
    </message>
    <message>
        <source>refused, the projector is cooling down</source>
        <translation>נדחתה, המקרן מתקרר</translation>
    </message>
    <message>
        <source>refused, the projector is busy</source>
        <translation>נדחתה, המקרן עסוק</translation>
    </message>
    <message>
        <source>this cannot be undone: %1</source>
        <translation>אי אפשר לבטל את זה: %1</translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>נעצרה, התקבלו %1 צעדים מתוך %n</numerusform>
            <numerusform>נעצרה, התקבלו %1 צעדים מתוך %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; התקבלו %2 צעדים מתוך %n</numerusform>
            <numerusform>%1; התקבלו %2 צעדים מתוך %n</numerusform>
        </translation>
    </message>
    <message>
        <source>accepted, but not so yet, it is %1</source>
        <translation>התקבלה, עדיין לא בתוקף, הערך הוא %1</translation>
    </message>
    <message>
        <source>%1, it may have been changed, it is %2</source>
        <translation>%1, ייתכן שהערך השתנה, הוא %2</translation>
    </message>
    <message>
        <source>%1, it may have been changed</source>
        <translation>%1, ייתכן שהערך השתנה</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>נדחתה</translation>
    </message>
    <message>
        <source>not so in time, it is %1</source>
        <translation>לא נכנסה לתוקף בזמן, הערך הוא %1</translation>
    </message>
    <message>
        <source>not so in time</source>
        <translation>לא נכנסה לתוקף בזמן</translation>
    </message>
    <message>
        <source>%1:%2: not a line of an undo file</source>
        <translation>%1:%2: אינה שורה של קובץ ביטול</translation>
    </message>
    <message>
        <source>%1: there is nothing to undo</source>
        <translation>%1: אין מה לבטל</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>אי אפשר לכתוב את %1: %2</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>פרטי חיבור שגויים</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>שם מארח לא מוכר</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>לא נגיש</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>החיבור נותק</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>התשובות אינן מובנות</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>גרסה אחרת של הפרוטוקול</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>הסיסמה חסרה או שגויה</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>אין תשובה</translation>
    </message>
    <message>
        <source>no answer (%1)</source>
        <translation>אין תשובה (%1)</translation>
    </message>
    <message>
        <source>this model has no such setting</source>
        <translation>לדגם הזה אין הגדרה כזאת</translation>
    </message>
    <message>
        <source>skipped, PJLink does not have it</source>
        <translation>דולגה, אין אותה ב־PJLink</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>אי אפשר לקרוא עכשיו</translation>
    </message>
    <message>
        <source>this projector does not offer it</source>
        <translation>המקרן הזה אינו מציע אותה</translation>
    </message>
    <message>
        <source>not read, the projector did not report its inputs</source>
        <translation>לא נקראה, המקרן לא דיווח על הקלטים שלו</translation>
    </message>
    <message>
        <source>PJLink does not have it</source>
        <translation>אין אותה ב־PJLink</translation>
    </message>
    <message>
        <source>this cannot be read</source>
        <translation>אי אפשר לקרוא אותה</translation>
    </message>
    <message>
        <source>this cannot be set</source>
        <translation>אי אפשר לקבוע אותה</translation>
    </message>
    <message>
        <source>this cannot be restored</source>
        <translation>אי אפשר לשחזר אותה</translation>
    </message>
    <message>
        <source>this cannot be reset</source>
        <translation>אי אפשר לאפס אותה</translation>
    </message>
    <message>
        <source>%1, the projector is in standby</source>
        <translation>%1, המקרן בהמתנה</translation>
    </message>
    <message>
        <source>%1, the projector is warming up</source>
        <translation>%1, המקרן מתחמם</translation>
    </message>
    <message>
        <source>%1, the projector is cooling down</source>
        <translation>%1, המקרן מתקרר</translation>
    </message>
    <message>
        <source>answers again</source>
        <translation>עונה שוב</translation>
    </message>
    <message>
        <source>--until: &apos;%1&apos; is not KEY=VALUE</source>
        <translation>--until: &quot;%1&quot; אינו בצורה KEY=VALUE</translation>
    </message>
    <message>
        <source>Prints what differs from a file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder.</source>
        <translation>הפקודה מדפיסה את מה ששונה מהקובץ (הסימן &quot;-&quot; הוא הקלט התקני), מערכה של התוכנה המארחת, או מהקובץ של כל מקרן בתיקייה.</translation>
    </message>
    <message>
        <source>Reads the projectors, sends what differs from the file (&apos;-&apos; is standard input), from a preset of the host application, or from each projector&apos;s own file in a folder, and reads it back. What is replaced is kept first, so that &apos;acctl undo&apos; can restore it. An interrupted run can be repeated at any time.</source>
        <translation>הפקודה קוראת את המקרנים, שולחת את מה ששונה מהקובץ (הסימן &quot;-&quot; הוא הקלט התקני), מערכה של התוכנה המארחת או מהקובץ של כל מקרן בתיקייה, וקוראת אותו בחזרה. מה שמוחלף נשמר תחילה, כדי ש־&apos;acctl undo&apos; תוכל לשחזר אותו. אפשר לחזור בכל עת על הרצה שנקטעה.</translation>
    </message>
    <message>
        <source>the value before could not be read, and cannot be restored</source>
        <translation>לא ניתן היה לקרוא את הערך הקודם, ואי אפשר לשחזר אותו</translation>
    </message>
    <message>
        <source>the value before could not be read</source>
        <translation>לא ניתן היה לקרוא את הערך הקודם</translation>
    </message>
    <message>
        <source>this cannot be undone</source>
        <translation>אי אפשר לבטל את זה</translation>
    </message>
    <message>
        <source>Resets settings to the projector&apos;s own standard and prints what they are then. &apos;acctl undo&apos; restores what was there before. Hour counters are reset only by their exact keys, because this cannot be undone.</source>
        <translation>הפקודה מאפסת הגדרות לברירת המחדל של המקרן עצמו ומדפיסה את ערכיהן לאחר מכן. &apos;acctl undo&apos; משחזרת את מה שהיה קודם. מוני שעות מתאפסים רק לפי המפתח המדויק שלהם, כי אי אפשר לבטל זאת.</translation>
    </message>
    <message>
        <source>undo the last run that changed settings</source>
        <translation>ביטול ההרצה האחרונה ששינתה הגדרות</translation>
    </message>
    <message>
        <source>the run has changed none of these projectors</source>
        <translation>ההרצה לא שינתה אף אחד מהמקרנים האלה</translation>
    </message>
    <message>
        <source>Restores what a run of &apos;set&apos;, &apos;reset&apos; or &apos;apply&apos; replaced. RUN is a name that &apos;acctl undo --list&apos; prints, a file, or &apos;last&apos;; without it, the last run is undone. With P or --where, only these projectors are restored, and the rest of the run can be undone later. An undo can itself be undone by its name.</source>
        <translation>הפקודה משחזרת את מה שהרצה של &apos;set&apos;, &apos;reset&apos; או &apos;apply&apos; החליפה. RUN הוא שם ש־&apos;acctl undo --list&apos; מדפיסה, קובץ או &apos;last&apos;; בלעדיו מבוטלת ההרצה האחרונה. עם P או --where משוחזרים רק המקרנים האלה, ואת שאר ההרצה אפשר לבטל מאוחר יותר. גם ביטול אפשר לבטל לפי שמו.</translation>
    </message>
    <message>
        <source>interrupted</source>
        <extracomment>By Ctrl+C or another signal.</extracomment>
        <translation>הופסק</translation>
    </message>
    <message>
        <source>accepted, but not confirmed: %1</source>
        <translation>התקבלה, אך לא אושרה: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must begin with / or ~/</source>
        <translation>&quot;%1&quot; חייב להתחיל ב־/ או ב־~/</translation>
    </message>
    <message>
        <source>waiting for another program that is changing %1</source>
        <translation>ממתין לתוכנית אחרת שמשנה את %1</translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message>
        <source>&amp;Acknowledge</source>
        <translation>&amp;אישור</translation>
    </message>
    <message>
        <source>Acknowledge A&amp;ll</source>
        <translation>א&amp;ישור הכול</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>מאז</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>התראה</translation>
    </message>
    <message>
        <source>State</source>
        <translation>מצב</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>התראות</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 אינו עונה</translation>
    </message>
    <message>
        <source>%1: the lamp has %2 of %3</source>
        <translation>%1: הנורה פעלה %2 מתוך %3</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: הגדרה אחת אינה כרצוי</numerusform>
            <numerusform>%1: %n הגדרות אינן כרצוי</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>acknowledged</source>
        <translation>אושרה</translation>
    </message>
    <message>
        <source>open</source>
        <translation>פתוחה</translation>
    </message>
</context>
<context>
    <name>BridgeOptions</name>
    <message>
        <source>Display this help.</source>
        <translation>הצגת העזרה הזאת.</translation>
    </message>
    <message>
        <source>The projectors are those of &lt;file&gt;.</source>
        <translation>המקרנים הם אלה שבקובץ &lt;קובץ&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>קובץ</translation>
    </message>
    <message>
        <source>Watch one of several shares: 2/5 is the second of five.</source>
        <translation>ניטור של חלק אחד מכמה: 2/5 הוא השני מחמישה.</translation>
    </message>
    <message>
        <source>share</source>
        <translation>חלק</translation>
    </message>
    <message>
        <source>Watch only projectors with &lt;tag&gt;, or one of several.</source>
        <translation>ניטור רק של מקרנים עם &lt;תגית&gt;, או עם אחת מכמה.</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>תגית</translation>
    </message>
    <message>
        <source>Visit each projector every &lt;seconds&gt;, at least 5.</source>
        <translation>פנייה לכל מקרן אחת ל־&lt;שניות&gt; שניות, לפחות 5.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>שניות</translation>
    </message>
    <message>
        <source>Once a day, compare each projector with its snapshot in &lt;folder&gt;.</source>
        <translation>השוואת כל מקרן, פעם ביום, לתמונת המצב שלו בתיקייה &lt;תיקייה&gt;.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>תיקייה</translation>
    </message>
    <message>
        <source>Listen at &lt;address&gt; for the status notices of projectors.</source>
        <translation>האזנה בכתובת &lt;כתובת&gt; להודעות מצב של מקרנים.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>כתובת</translation>
    </message>
    <message>
        <source>Serve metrics at &lt;address:port&gt;; &apos;none&apos; for nowhere.</source>
        <translation>הגשת מדדים בכתובת &lt;כתובת:פתחה&gt;; &apos;none&apos; כדי לא להגיש.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>כתובת:פתחה</translation>
    </message>
    <message>
        <source>Write metrics to &lt;file&gt; every 15 seconds, for a collector of text files.</source>
        <translation>כתיבת מדדים לקובץ &lt;קובץ&gt; כל 15 שניות, עבור אוסף של קובצי טקסט.</translation>
    </message>
    <message>
        <source>Send messages to the MQTT broker at &lt;host:port&gt;.</source>
        <translation>שליחת הודעות למתווך ה־MQTT ב־&lt;מארח:פתחה&gt;.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>מארח:פתחה</translation>
    </message>
    <message>
        <source>Version of MQTT, 3 (3.1.1) or 5.</source>
        <translation>גרסת MQTT, 3 (3.1.1) או 5.</translation>
    </message>
    <message>
        <source>version</source>
        <translation>גרסה</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the user at the broker.</source>
        <translation>השורה הראשונה של &lt;קובץ&gt; היא המשתמש אצל המתווך.</translation>
    </message>
    <message>
        <source>The first line of &lt;file&gt; is the password at the broker.</source>
        <translation>השורה הראשונה של &lt;קובץ&gt; היא הסיסמה אצל המתווך.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities that the system trusts.</source>
        <translation>הצפנה, ואמון ברשויות שהמערכת נותנת בהן אמון.</translation>
    </message>
    <message>
        <source>Encrypt, and trust the authorities in &lt;file&gt;.</source>
        <translation>הצפנה, ואמון ברשויות שבקובץ &lt;קובץ&gt;.</translation>
    </message>
    <message>
        <source>The certificate of this client.</source>
        <translation>האישור של הלקוח הזה.</translation>
    </message>
    <message>
        <source>Its key.</source>
        <translation>המפתח שלו.</translation>
    </message>
    <message>
        <source>The first level of all topics.</source>
        <translation>הרמה הראשונה של כל הנושאים.</translation>
    </message>
    <message>
        <source>topic</source>
        <translation>נושא</translation>
    </message>
    <message>
        <source>The first level of discovery topics; &apos;none&apos; for no discovery.</source>
        <translation>הרמה הראשונה של נושאי הגילוי; &apos;none&apos; ללא גילוי.</translation>
    </message>
    <message>
        <source>Take the share of a bridge that has said nothing for &lt;seconds&gt;.</source>
        <translation>נטילת החלק של גשר שלא השמיע דבר במשך &lt;שניות&gt; שניות.</translation>
    </message>
    <message>
        <source>Settings that may be commanded: keys or patterns, separated by commas; &apos;power&apos; is the power. Without it nothing may be.</source>
        <translation>הגדרות שמותר לפקד עליהן: מפתחות או תבניות, מופרדים בפסיקים; &apos;power&apos; היא ההפעלה. ללא אפשרות זו אסור לפקד על דבר.</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>מפתחות</translation>
    </message>
    <message>
        <source>Commands that each projector takes in a minute.</source>
        <translation>מספר הפקודות שכל מקרן מקבל בדקה.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Names in discovery messages, and messages of this program, are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>השמות בהודעות הגילוי וההודעות של התוכנית הזאת הם בשפה &lt;שם&gt;, כגון de או zh-TW.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time from %2 seconds to a day</source>
        <translation>&quot;%1&quot; אינו זמן מ־%2 שניות ועד יממה</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a topic</source>
        <translation>&quot;%1&quot; אינו נושא</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a share such as 2/5</source>
        <translation>&quot;%1&quot; אינו חלק כגון 2/5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address with a port</source>
        <translation>&quot;%1&quot; אינו כתובת מספרית עם פתחה</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>אי אפשר לקרוא את %1: %2</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ריק</translation>
    </message>
    <message>
        <source>--%1 needs --broker</source>
        <translation>--%1 דורשת --broker</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a host with a port</source>
        <translation>&quot;%1&quot; אינו מארח עם פתחה</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither 3 nor 5</source>
        <translation>&quot;%1&quot; אינו 3 ואינו 5</translation>
    </message>
    <message>
        <source>--cert-file and --key-file need each other</source>
        <translation>--cert-file ו־--key-file דורשות זו את זו</translation>
    </message>
    <message>
        <source>--allow-commands: &apos;%1&apos; is not a setting that may be commanded</source>
        <translation>--allow-commands: &quot;%1&quot; אינה הגדרה שאפשר לפקד עליה</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from 1 to %2</source>
        <translation>&quot;%1&quot; אינו מספר מ־1 עד %2</translation>
    </message>
    <message>
        <source>Watches projectors, and tells a metrics store and a message broker of them.</source>
        <translation>ניטור מקרנים ודיווח עליהם למאגר מדדים ולמתווך הודעות.</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>ארגומנט לא צפוי &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--profiles is missing</source>
        <translation>חסרה --profiles</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a numeric address</source>
        <translation>&quot;%1&quot; אינו כתובת מספרית</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>&quot;%1&quot; אינו תיקייה</translation>
    </message>
    <message>
        <source>there are no texts in &apos;%1&apos;</source>
        <translation>אין טקסטים ב־&quot;%1&quot;</translation>
    </message>
    <message>
        <source>no projector has the tag &apos;%1&apos;</source>
        <translation>לאף מקרן אין התגית &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Unexpected &apos;=&apos; in &apos;%1&apos;.</source>
        <translation>&quot;=&quot; לא צפוי ב־&quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 דורשת ערך.</translation>
    </message>
    <message>
        <source>Opens the settings dialogs of projectors, real or simulated.</source>
        <translation>פתיחת חלונות ההגדרות של מקרנים, אמיתיים או בהדמיה.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>הצגת העזרה הזאת.</translation>
    </message>
    <message>
        <source>Read the projectors from &lt;file&gt;.</source>
        <translation>קריאת המקרנים מהקובץ &lt;קובץ&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>קובץ</translation>
    </message>
    <message>
        <source>Open the dialog of the projector &lt;name&gt; at start.</source>
        <translation>פתיחת החלון של המקרן &lt;שם&gt; בהתחלה.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>With --open: select tab &lt;n&gt;, counted from 0.</source>
        <translation>עם --open: בחירת הלשונית &lt;n&gt;, בספירה מ־0.</translation>
    </message>
    <message>
        <source>Print the table of projectors.</source>
        <translation>הדפסת טבלת המקרנים.</translation>
    </message>
    <message>
        <source>With --open: save a picture (PNG) of the dialog and exit.</source>
        <translation>עם --open: שמירת תמונה (PNG) של החלון ויציאה.</translation>
    </message>
    <message>
        <source>Save pictures of all tabs of all kinds of projectors in &lt;folder&gt; and exit.</source>
        <translation>שמירת תמונות של כל הלשוניות של כל סוגי המקרנים בתיקייה &lt;תיקייה&gt; ויציאה.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>תיקייה</translation>
    </message>
    <message>
        <source>Show texts in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>הצגת טקסטים בשפה &lt;שם&gt;, כגון de או zh-TW.</translation>
    </message>
    <message>
        <source>--language: there are no texts in &apos;%1&apos;.</source>
        <translation>--language: אין טקסטים ב־&quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>ארגומנט לא צפוי &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Only one of --list, --tour and --open can be given.</source>
        <translation>אפשר לציין רק אחת מבין --list, --tour ו־--open.</translation>
    </message>
    <message>
        <source>--%1 needs --open.</source>
        <translation>--%1 דורשת --open.</translation>
    </message>
    <message>
        <source>--tab: &apos;%1&apos; is not a number.</source>
        <translation>--tab: &quot;%1&quot; אינו מספר.</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>Changes &amp;Only</source>
        <translation>&amp;שינויים בלבד</translation>
    </message>
    <message>
        <source>&amp;Errors Only</source>
        <translation>ש&amp;גיאות בלבד</translation>
    </message>
    <message>
        <source>Save &amp;Log As…</source>
        <translation>שמירת ה&amp;יומן בשם…</translation>
    </message>
    <message>
        <source>Clea&amp;r Log…</source>
        <translation>&amp;ניקוי היומן…</translation>
    </message>
    <message>
        <source>Command log</source>
        <translation>יומן פקודות</translation>
    </message>
    <message>
        <source>Leave out the commands that only read</source>
        <translation>השמטת פקודות שרק קוראות</translation>
    </message>
    <message>
        <source>Leave out the commands that were carried out</source>
        <translation>השמטת פקודות שבוצעו</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>העת&amp;קה</translation>
    </message>
    <message>
        <source>Filter the log</source>
        <translation>סינון היומן</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>שמירת היומן</translation>
    </message>
    <message>
        <source>Tables (*.tsv);;All files (*)</source>
        <translation>טבלאות (*.tsv);;כל הקבצים (*)</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>ניקוי היומן</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>להסיר את הרשומה היחידה ביומן?</numerusform>
            <numerusform>להסיר את כל %n הרשומות מהיומן?</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>ניקוי</translation>
    </message>
    <message>
        <source>Projector, setting, command or result</source>
        <translation>מקרן, הגדרה, פקודה או תוצאה</translation>
    </message>
    <message>
        <source>All projectors</source>
        <translation>כל המקרנים</translation>
    </message>
    <message>
        <source>Projector whose commands are shown</source>
        <translation>הצגת הפקודות של</translation>
    </message>
</context>
<context>
    <name>CommandLogModel</name>
    <message>
        <source>Time</source>
        <translation>זמן</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>מקרן</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>פקודה</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>ערך</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>תוצאה</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>מ״ש</translation>
    </message>
    <message>
        <source>abandoned</source>
        <translation>ננטשה</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>אין תשובה</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>עסוק</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>לא מוצעת</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>נדחתה</translation>
    </message>
    <message>
        <source>not yet so</source>
        <translation>עדיין לא בתוקף</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>בוצעה</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>הגדרה</translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message>
        <source>Progress</source>
        <translation>התקדמות</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;תשאול חוזר</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>ה&amp;חלה</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>בקריאת הגדרות…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגור</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>אין הבדלים.</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>מקרן אחד שונה.</numerusform>
            <numerusform>%n מקרנים שונים.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>במקרן אחד כבר קבועות כל ההגדרות האלה.</numerusform>
            <numerusform>ב־%n מקרנים כבר קבועות כל ההגדרות האלה.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>לא ניתן היה לקרוא מקרן אחד.</numerusform>
            <numerusform>לא ניתן היה לקרוא %n מקרנים.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>מקרן אחד אינו מדווח עכשיו על כל ההגדרות האלה.</numerusform>
            <numerusform>%n מקרנים אינם מדווחים עכשיו על כל ההגדרות האלה.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>בוצע דילוג על מקרן אחד.</numerusform>
            <numerusform>בוצע דילוג על %n מקרנים.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConnectionFields</name>
    <message>
        <source>&amp;Reached through</source>
        <translation>&amp;אופן החיבור</translation>
    </message>
    <message>
        <source>Connect&amp;ion</source>
        <translation>&amp;חיבור</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;כתובת</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;פתחה</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>ס&amp;יסמה</translation>
    </message>
    <message>
        <source>Port n&amp;umber</source>
        <translation>מספר פ&amp;תחה</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>התק&amp;ן</translation>
    </message>
    <message>
        <source>&amp;Baud</source>
        <translation>קצ&amp;ב (Baud)</translation>
    </message>
    <message>
        <source>As its family</source>
        <translation>כמו במשפחה</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>הדמיה</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>רשת</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>פתחה טורית</translation>
    </message>
    <message>
        <source>%1 is not an address.</source>
        <translation>%1 אינו כתובת.</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>&amp;Test Connection</source>
        <translation>בדיקת &amp;החיבור</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>תוצאת הבדיקה</translation>
    </message>
    <message>
        <source>There is nothing to connect to.</source>
        <translation>אין למה להתחבר.</translation>
    </message>
    <message>
        <source>A serial line is tried when its dialog opens.</source>
        <translation>קו טורי נבדק כשהחלון שלו נפתח.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>בתשאול…</translation>
    </message>
    <message>
        <source>A projector answers: %1</source>
        <translation>מקרן עונה: %1</translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>מירכאות לא נסגרו</translation>
    </message>
    <message>
        <source>a text goes on behind its closing quotation mark</source>
        <translation>טקסט נמשך אחרי המירכאות הסוגרות שלו</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>יותר מ־%1 תאים</translation>
    </message>
    <message>
        <source>%1 cells, but the header has %2</source>
        <translation>%1 תאים, אבל בשורת הכותרת יש %2</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>יותר מ־%1 שורות</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>אין שורת כותרת</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>יותר מ־%1 בתים</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>simulated</source>
        <translation>הדמיה</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>פרטים</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>מצב:</translation>
    </message>
    <message>
        <source>Power:</source>
        <translation>הפעלה:</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>מקור:</translation>
    </message>
    <message>
        <source>Problem:</source>
        <translation>בעיה:</translation>
    </message>
    <message>
        <source>Picture and sound:</source>
        <translation>תמונה וקול:</translation>
    </message>
    <message>
        <source>Lamp:</source>
        <translation>נורה:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>מסנן:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>הגדרות:</translation>
    </message>
    <message>
        <source>Answered:</source>
        <translation>ענה:</translation>
    </message>
    <message>
        <source>Share of the lamp&apos;s rated hours</source>
        <translation>החלק שנוצל משעות הנורה הנקובות</translation>
    </message>
    <message>
        <source>Rece&amp;nt events</source>
        <translation>אי&amp;רועים אחרונים</translation>
    </message>
    <message>
        <source>Recent events</source>
        <translation>אירועים אחרונים</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>לא נבחר מקרן</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>נבחר מקרן אחד</numerusform>
            <numerusform>נבחרו %n מקרנים</numerusform>
        </translation>
    </message>
    <message>
        <source>blank</source>
        <translation>מסך ריק</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>מושתק</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>מוקפא</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>מוצגת</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>אין</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>אין עדיין</translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message>
        <source>Setting</source>
        <translation>הגדרה</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>עכשיו</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>הבדלים</translation>
    </message>
    <message>
        <source>First the other sources and modes</source>
        <translation>תחילה המקורות והמצבים האחרים</translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>הגדרה אחת</numerusform>
            <numerusform>%n הגדרות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>הגדרה אחת אינה חלה על הדגם הזה</numerusform>
            <numerusform>%n הגדרות אינן חלות על הדגם הזה</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>אי אפשר לקרוא עכשיו הגדרה אחת</numerusform>
            <numerusform>אי אפשר לקרוא עכשיו %n הגדרות</numerusform>
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
        <translation>בעיה: מאוורר</translation>
    </message>
    <message>
        <source>Problem: lamp</source>
        <translation>בעיה: נורה</translation>
    </message>
    <message>
        <source>Problem: temperature</source>
        <translation>בעיה: טמפרטורה</translation>
    </message>
    <message>
        <source>Problem: cover</source>
        <translation>בעיה: מכסה</translation>
    </message>
    <message>
        <source>Problem: filter</source>
        <translation>בעיה: מסנן</translation>
    </message>
    <message>
        <source>Problem: other</source>
        <extracomment>Any other problem of a projector.</extracomment>
        <translation>בעיה: אחר</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>נגיש</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>הפעלה</translation>
    </message>
</context>
<context>
    <name>FaultPanel</name>
    <message>
        <source>Standby</source>
        <translation>המתנה</translation>
    </message>
    <message>
        <source>On</source>
        <translation>פועל</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>מתקרר</translation>
    </message>
    <message>
        <source>No error</source>
        <translation>אין שגיאה</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>מכסה</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>מאוורר</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>נורה</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>טמפרטורה</translation>
    </message>
    <message>
        <source>Air flow</source>
        <translation>זרימת אוויר</translation>
    </message>
    <message>
        <source>Lamp time</source>
        <translation>שעות נורה</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>קור</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>מסנן</translation>
    </message>
    <message>
        <source>Filter time</source>
        <translation>שעות מסנן</translation>
    </message>
    <message>
        <source>Other (99)</source>
        <translation>אחר (99)</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>דחייה</translation>
    </message>
    <message>
        <source>Fail reads</source>
        <translation>כשל בקריאה</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>השהיה</translation>
    </message>
    <message>
        <source>Drop out</source>
        <translation>ניתוק</translation>
    </message>
    <message>
        <source>&amp;Set Fault</source>
        <translation>ק&amp;ביעת תקלה</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>ה&amp;סרה</translation>
    </message>
    <message>
        <source>Re&amp;move All</source>
        <translation>הסרת ה&amp;כול</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> מ״ש</translation>
    </message>
    <message>
        <source>Faults in force</source>
        <translation>תקלות בתוקף</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>ה&amp;פעלה</translation>
    </message>
    <message>
        <source>Err&amp;or status</source>
        <translation>מ&amp;צב שגיאה</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>פקו&amp;דה</translation>
    </message>
    <message>
        <source>Fa&amp;ult</source>
        <translation>תק&amp;לה</translation>
    </message>
    <message>
        <source>&amp;Delay</source>
        <translation>&amp;השהיה</translation>
    </message>
    <message>
        <source>&amp;In force</source>
        <translation>בת&amp;וקף</translation>
    </message>
    <message>
        <source>No projector selected</source>
        <translation>לא נבחר מקרן</translation>
    </message>
    <message>
        <source>Simulation of %1</source>
        <translation>הדמיה של %1</translation>
    </message>
    <message>
        <source>Simulated faults of %1</source>
        <translation>תקלות בהדמיה של %1</translation>
    </message>
    <message>
        <source>All commands</source>
        <translation>כל הפקודות</translation>
    </message>
    <message>
        <source>Choose, or type a part of a name or code</source>
        <translation>יש לבחור או להקליד חלק משם או מקוד</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3 ms</source>
        <extracomment>A command, what is wrong with it (&quot;Delay&quot;), and for how many milliseconds.</extracomment>
        <translation>%1: %2, %3 מ״ש</translation>
    </message>
    <message>
        <source>%1 (any code)</source>
        <translation>%1 (כל קוד)</translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>אחד פועל</numerusform>
            <numerusform>%n פועלים</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>אחד כבוי</numerusform>
            <numerusform>%n כבויים</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>אחד עם בעיות</numerusform>
            <numerusform>%n עם בעיות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>אחד לא נגיש</numerusform>
            <numerusform>%n לא נגישים</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>אחד עם התראות</numerusform>
            <numerusform>%n עם התראות</numerusform>
        </translation>
    </message>
    <message>
        <source>oldest answer %1</source>
        <translation>התשובה הישנה ביותר %1</translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>אחד לא מנוטר</numerusform>
            <numerusform>%n לא מנוטרים</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetWork</name>
    <message>
        <source>refused</source>
        <translation>נדחה</translation>
    </message>
    <message>
        <source>the projector is busy or in standby</source>
        <translation>המקרן עסוק או בהמתנה</translation>
    </message>
    <message>
        <source>the projector does not have it</source>
        <translation>אין אותה במקרן</translation>
    </message>
    <message>
        <source>the model does not allow this value</source>
        <translation>הדגם אינו מאפשר את הערך הזה</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <translation>אי אפשר לקבוע אותה</translation>
    </message>
    <message>
        <source>the model does not have it</source>
        <translation>אין אותה בדגם</translation>
    </message>
    <message>
        <source>the model has no such setting</source>
        <translation>לדגם אין הגדרה כזאת</translation>
    </message>
    <message>
        <source>there is no snapshot for it</source>
        <translation>אין לו תמונת מצב</translation>
    </message>
    <message>
        <source>not confirmed, it may have changed</source>
        <translation>לא אושר, ייתכן שהערך השתנה</translation>
    </message>
    <message>
        <source>not all of it could be sent</source>
        <translation>לא ניתן היה לשלוח את הכול</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>אין תשובה</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>לא נגיש</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>לא מחובר</translation>
    </message>
    <message>
        <source>wrong connection parameters</source>
        <translation>פרטי חיבור שגויים</translation>
    </message>
    <message>
        <source>unknown host name</source>
        <translation>שם מארח לא מוכר</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>החיבור נותק</translation>
    </message>
    <message>
        <source>answers are not understood</source>
        <translation>התשובות אינן מובנות</translation>
    </message>
    <message>
        <source>another version of the protocol</source>
        <translation>גרסה אחרת של הפרוטוקול</translation>
    </message>
    <message>
        <source>password missing or wrong</source>
        <translation>הסיסמה חסרה או שגויה</translation>
    </message>
    <message>
        <source>the projector reports none of its settings now</source>
        <translation>המקרן אינו מדווח עכשיו על אף אחת מההגדרות שלו</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>קבוצות</translation>
    </message>
    <message>
        <source>All</source>
        <translation>הכול</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>בעיות</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>כבויים</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>לא נגישים</translation>
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
        <translation>בחלון של מקרן</translation>
    </message>
    <message>
        <source>Ctrl+Tab, Ctrl+Page Down</source>
        <translation>Ctrl+Tab, Ctrl+Page Down</translation>
    </message>
    <message>
        <source>Next tab</source>
        <translation>הלשונית הבאה</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab, Ctrl+Page Up</source>
        <translation>Ctrl+Shift+Tab, Ctrl+Page Up</translation>
    </message>
    <message>
        <source>Previous tab</source>
        <translation>הלשונית הקודמת</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>חיפוש הגדרה</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגור</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>קיצורי מקלדת</translation>
    </message>
    <message>
        <source>About</source>
        <translation>על אודות</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Advanced Control %1&lt;/h3&gt;&lt;p&gt;The live settings of projectors: every value is read from the projector, every change is sent at once.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;שליטה מתקדמת %1&lt;/h3&gt;&lt;p&gt;ההגדרות החיות של מקרנים: כל ערך נקרא מהמקרן, וכל שינוי נשלח מיד.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>JsonLines</name>
    <message>
        <source>control character in a text</source>
        <translation>תו בקרה בטקסט</translation>
    </message>
    <message>
        <source>half a surrogate pair in a text</source>
        <translation>חצי מזוג תווים חלופיים (surrogate) בטקסט</translation>
    </message>
    <message>
        <source>text of more than %1 bytes</source>
        <translation>טקסט של יותר מ־%1 בתים</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>יותר מ־%1 בתים</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>קינון עמוק יותר מ־%1</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>יותר מ־%1 ערכים</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>All these projectors are simulated, for trying the program.</source>
        <translation>כל המקרנים האלה הם הדמיה, להתנסות בתוכנה.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגור</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Advanced Control: %1</source>
        <translation>שליטה מתקדמת: %1</translation>
    </message>
    <message>
        <source>Advanced Control</source>
        <translation>שליטה מתקדמת</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>פתיחת הגדרות</translation>
    </message>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>לפתוח חלון אחד?</numerusform>
            <numerusform>לפתוח %n חלונות?</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>התראות</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>הדמיה</translation>
    </message>
    <message>
        <source>Command Log</source>
        <translation>יומן פקודות</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;קובץ</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>י&amp;ציאה</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;עריכה</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>הע&amp;דפות…</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;מקרן</translation>
    </message>
    <message>
        <source>&amp;Open Settings</source>
        <translation>פתיחת ה&amp;גדרות</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>פתיחה</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>רע&amp;נון</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;תצוגה</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;חיפוש</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;הדמיה</translation>
    </message>
    <message>
        <source>&amp;Command Log</source>
        <translation>יומן &amp;פקודות</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>התר&amp;אות</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ע&amp;זרה</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;קיצורי מקלדת</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;על אודות</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>כלים</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>Saved in %1.</source>
        <translation>נשמר ב־%1.</translation>
    </message>
</context>
<context>
    <name>ModelFields</name>
    <message>
        <source>&amp;Family</source>
        <translation>&amp;משפחה</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;דגם</translation>
    </message>
    <message>
        <source>All fie&amp;lds of the model</source>
        <translation>כ&amp;ל שדות הדגם</translation>
    </message>
    <message>
        <source>Dialog t&amp;ype</source>
        <translation>&amp;סוג החלון</translation>
    </message>
    <message>
        <source>Model cod&amp;e</source>
        <translation>&amp;קוד הדגם</translation>
    </message>
    <message>
        <source>None</source>
        <translation>ללא</translation>
    </message>
</context>
<context>
    <name>Notify</name>
    <message>
        <source>Advanced Control</source>
        <translation>שליטה מתקדמת</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Advanced Control</source>
        <extracomment>The name of the program in the menu.</extracomment>
        <translation>שליטה מתקדמת</translation>
    </message>
    <message>
        <source>Projector Settings</source>
        <extracomment>What kind of program it is, in the menu.</extracomment>
        <translation>הגדרות מקרנים</translation>
    </message>
    <message>
        <source>Read and change the settings of projectors</source>
        <translation>קריאה ושינוי של הגדרות מקרנים</translation>
    </message>
    <message>
        <source>projector;beamer;brightness;keystone;</source>
        <extracomment>Words that people may search for, each with a semicolon behind it; as many as are useful.</extracomment>
        <translation>מקרן;מקרנים;ברקו;בהירות;תיקון טרפז;projector;</translation>
    </message>
    <message>
        <source>A list that shows how hundreds of projectors are and changes many of them at once, and for each of them a dialog with a tab per group of settings. Every value is read live from the projector, and every change is sent at once. A log shows each command and its result.</source>
        <translation>רשימה שמציגה את מצבם של מאות מקרנים ומשנה רבים מהם בבת אחת, ולכל אחד מהם חלון עם לשונית לכל קבוצת הגדרות. כל ערך נקרא בזמן אמת מהמקרן, וכל שינוי נשלח מיד. יומן מציג כל פקודה ואת תוצאתה.</translation>
    </message>
    <message>
        <source>Projectors can be simulated, with faults that are set by hand.</source>
        <translation>אפשר לדמות מקרנים, עם תקלות שנקבעות ידנית.</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>the dialog of %1 cannot be created</source>
        <translation>אי אפשר ליצור את החלון של %1</translation>
    </message>
    <message>
        <source>cannot write to the folder %1</source>
        <translation>אי אפשר לכתוב לתיקייה %1</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>העדפות</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>כמו במערכת</translation>
    </message>
    <message>
        <source> s</source>
        <translation> שנ׳</translation>
    </message>
    <message>
        <source>never</source>
        <translation>אף פעם</translation>
    </message>
    <message>
        <source> min</source>
        <translation> דק׳</translation>
    </message>
    <message>
        <source>&amp;Fan, lamp, temperature, cover, filter</source>
        <translation>&amp;מאוורר, נורה, טמפרטורה, מכסה, מסנן</translation>
    </message>
    <message>
        <source>Settings that are not as they should &amp;be</source>
        <translation>הגדרות ש&amp;אינן כרצוי</translation>
    </message>
    <message>
        <source>Notify on the &amp;desktop</source>
        <translation>הודעה ב&amp;שולחן העבודה</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>שקט מ־</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>שקט עד</translation>
    </message>
    <message>
        <source>&amp;Language (after a restart)</source>
        <translation>ש&amp;פה (לאחר הפעלה מחדש)</translation>
    </message>
    <message>
        <source>Ask each projector &amp;every</source>
        <translation>&amp;תשאול כל מקרן אחת ל־</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>התראות</translation>
    </message>
    <message>
        <source>Lamp &amp;hours, of the rated hours</source>
        <translation>שעות &amp;נורה, מתוך השעות הנקובות</translation>
    </message>
    <message>
        <source>&amp;Silent for</source>
        <translation>&amp;ללא מענה במשך</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>שעות שקט</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>כמו בשולחן העבודה</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>בהיר</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>כהה</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;צבעים</translation>
    </message>
    <message>
        <source>(equal times: no quiet hours)</source>
        <translation>(אותה שעה פעמיים: ללא)</translation>
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
        <translation>ער&amp;כות</translation>
    </message>
    <message>
        <source>Put on the selection</source>
        <translation>החלה על הנבחרים</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>אין עדיין ערכות</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;שמירה כערכה…</translation>
    </message>
    <message>
        <source>Should &amp;Be Like</source>
        <translation>&amp;ערכה רצויה</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>ללא</translation>
    </message>
    <message>
        <source>&amp;Compare with What It Should Be</source>
        <translation>השוואה ל&amp;רצוי</translation>
    </message>
    <message>
        <source>&amp;Put Back What It Should Be</source>
        <translation>ה&amp;חזרה לרצוי</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>שמירה כערכה</translation>
    </message>
    <message>
        <source>Saved as the preset %1</source>
        <translation>נשמר כערכה %1</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>ערכות</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>הערכה %1</translation>
    </message>
    <message>
        <source>Should Be Like</source>
        <translation>ערכה רצויה</translation>
    </message>
    <message>
        <source>None of the selected projectors has a preset that it should be like.</source>
        <translation>לאף אחד מהמקרנים הנבחרים אין ערכה רצויה.</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>החזרה לקדמותו</translation>
    </message>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>להחזיר את ההגדרות של מקרן אחד לקדמותן?</numerusform>
            <numerusform>להחזיר את ההגדרות של %n מקרנים לקדמותן?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the settings of %1…</source>
        <translation>בקריאת ההגדרות של %1…</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>ערכה</translation>
    </message>
    <message>
        <source>What It Should Be</source>
        <translation>הרצוי</translation>
    </message>
    <message>
        <source>Should be</source>
        <translation>רצוי</translation>
    </message>
    <message>
        <source>&amp;Manage Presets…</source>
        <translation>&amp;ניהול ערכות…</translation>
    </message>
    <message>
        <source>All of %1</source>
        <translation>כל אלה של %1</translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message>
        <source>Save as Preset</source>
        <translation>שמירה כערכה</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>הגדרה</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>ערך</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>ההגדרות שבערכה</translation>
    </message>
    <message>
        <source>&amp;Name of the preset</source>
        <translation>&amp;שם הערכה</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>ה&amp;כול</translation>
    </message>
    <message>
        <source>Check all settings</source>
        <translation>סימון כל ההגדרות</translation>
    </message>
    <message>
        <source>This &amp;Page</source>
        <translation>ה&amp;דף הזה</translation>
    </message>
    <message>
        <source>Check the settings of the selected page, and no others</source>
        <translation>סימון ההגדרות של הדף הנבחר בלבד</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;אף אחת</translation>
    </message>
    <message>
        <source>Uncheck all settings</source>
        <translation>ביטול הסימון של כל ההגדרות</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>ש&amp;מירה</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>שם הערכה אינו מתאים: אין להשתמש בלוכסנים או בנקודה בתחילת השם.</translation>
    </message>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>מסומנת הגדרה אחת.</numerusform>
            <numerusform>מסומנות %n הגדרות.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>הערכה %1 תוחלף.</translation>
    </message>
</context>
<context>
    <name>PresetEdits</name>
    <message>
        <source>Rename Preset</source>
        <translation>שינוי שם של ערכה</translation>
    </message>
    <message>
        <source>Remove Preset</source>
        <translation>הסרת ערכה</translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>אי אפשר ליצור את התיקייה %1</translation>
    </message>
</context>
<context>
    <name>PresetManager</name>
    <message>
        <source>Presets</source>
        <translation>ערכות</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>הגדרה</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>ערך</translation>
    </message>
    <message>
        <source>Settings of the preset</source>
        <translation>ההגדרות שבערכה</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;שינוי שם</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>ה&amp;סרה</translation>
    </message>
    <message>
        <source>No presets yet</source>
        <translation>אין עדיין ערכות</translation>
    </message>
    <message>
        <source>Should be like it: %1</source>
        <translation>זו הערכה הרצויה של: %1</translation>
    </message>
    <message>
        <source>This name is not allowed: no slashes, and no dot in front.</source>
        <translation>שם הערכה אינו מתאים: אין להשתמש בלוכסנים או בנקודה בתחילת השם.</translation>
    </message>
    <message>
        <source>There is already a preset %1.</source>
        <translation>כבר קיימת ערכה %1.</translation>
    </message>
    <message>
        <source>Remove the preset %1?</source>
        <translation>להסיר את הערכה %1?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message>
        <source>&amp;Add…</source>
        <translation>הו&amp;ספה…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>ע&amp;ריכה…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;שכפול…</translation>
    </message>
    <message>
        <source>Re&amp;move…</source>
        <translation>הסר&amp;ה…</translation>
    </message>
    <message>
        <source>Ta&amp;g…</source>
        <translation>&amp;תיוג…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>הוספה</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>עריכה</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>שכפול</translation>
    </message>
    <message>
        <source>Remove Projector</source>
        <translation>הסרת מקרן</translation>
    </message>
    <message>
        <source>Remove Projectors</source>
        <translation>הסרת מקרנים</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from %2?</source>
        <translation>להסיר את &quot;%1&quot; מ־%2?</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>להסיר מקרן אחד מ־%1?</numerusform>
            <numerusform>להסיר %n מקרנים מ־%1?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>תיוג</translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>תגיות למקרן אחד, מופרדות בפסיקים;
סימן מינוס לפני תגית מסיר אותה:</numerusform>
            <numerusform>תגיות ל־%n מקרנים, מופרדות בפסיקים;
סימן מינוס לפני תגית מסיר אותה:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileCsv</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address</source>
        <translation>&quot;%1&quot; אינו מספר MAC</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a kind of link</source>
        <translation>&quot;%1&quot; אינו סוג חיבור</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector, with the identity %2</source>
        <translation>&quot;%1&quot; הוא שם של מקרן אחר, שהמזהה שלו %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of hours</source>
        <translation>&quot;%1&quot; אינו מספר שעות</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the name of another projector</source>
        <translation>&quot;%1&quot; הוא שם של מקרן אחר</translation>
    </message>
    <message>
        <source>the header has no column &quot;name&quot;</source>
        <translation>בשורת הכותרת אין עמודה &quot;name&quot;</translation>
    </message>
</context>
<context>
    <name>ProfileDocument</name>
    <message>
        <source>%1 was changed by another program. Reload it (F5), then do this again.</source>
        <translation>תוכנית אחרת שינתה את %1. יש לטעון אותו מחדש (F5) ולנסות שוב.</translation>
    </message>
</context>
<context>
    <name>ProfileEditor</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;שם</translation>
    </message>
    <message>
        <source>Add Projector</source>
        <translation>הוספת מקרן</translation>
    </message>
    <message>
        <source>Edit Projector</source>
        <translation>עריכת מקרן</translation>
    </message>
    <message>
        <source>Duplicate Projector</source>
        <translation>שכפול מקרן</translation>
    </message>
    <message>
        <source>Still to be filled in: %1</source>
        <translation>עוד יש למלא: %1</translation>
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
        <translation>פתחה טורית %1</translation>
    </message>
    <message>
        <source>has %1 families; at most %2 are possible</source>
        <translation>מכיל %1 משפחות; אפשר לכל היותר %2</translation>
    </message>
    <message>
        <source>leads through more than %1 families</source>
        <translation>עובר דרך יותר מ־%1 משפחות</translation>
    </message>
    <message>
        <source>makes &quot;%1&quot; like itself</source>
        <translation>מגדיר את &quot;%1&quot; כדומה לעצמה</translation>
    </message>
    <message>
        <source>there is no family &quot;%1&quot;</source>
        <translation>אין משפחה &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>חסר &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the %2 of projectors[%3] too</source>
        <translation>&quot;%1&quot; הוא גם ה־%2 של projectors[%3]</translation>
    </message>
    <message>
        <source>the file must hold an object</source>
        <translation>הקובץ חייב להכיל אובייקט</translation>
    </message>
    <message>
        <source>&quot;projectors&quot; is missing</source>
        <translation>חסר &quot;projectors&quot;</translation>
    </message>
    <message>
        <source>there is no projector</source>
        <translation>אין מקרן</translation>
    </message>
    <message>
        <source>is here twice</source>
        <translation>מופיע כאן פעמיים</translation>
    </message>
    <message>
        <source>cannot read profiles %1: %2</source>
        <translation>אי אפשר לקרוא את הפרופילים %1: %2</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>אינו קובץ רגיל</translation>
    </message>
    <message>
        <source>is neither the name of a range nor a number 0 to %1</source>
        <translation>אינו שם של טווח ואינו מספר מ־0 עד %1</translation>
    </message>
    <message>
        <source>must be given by its name &quot;%1&quot;</source>
        <translation>חייב להינתן בשמו &quot;%1&quot;</translation>
    </message>
    <message>
        <source>must be [minimum, maximum] or null</source>
        <translation>חייב להיות [מזערי, מרבי] או null</translation>
    </message>
    <message>
        <source>has a minimum above its maximum</source>
        <translation>הערך המזערי גדול מהערך המרבי</translation>
    </message>
    <message>
        <source>unknown key; known are %1</source>
        <translation>מפתח לא מוכר; המוכרים הם %1</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>חייב להיות אובייקט</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>חייב להיות מערך</translation>
    </message>
    <message>
        <source>has %1 entries; at most %2 are possible</source>
        <translation>מכיל %1 רשומות; אפשר לכל היותר %2</translation>
    </message>
    <message>
        <source>must be a text that is not empty</source>
        <translation>חייב להיות טקסט שאינו ריק</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>ארוך יותר מ־%1 בתים</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>חייב להיות מספר שלם</translation>
    </message>
    <message>
        <source>is %1; it must be %2 to %3</source>
        <translation>הוא %1; חייב להיות %2 עד %3</translation>
    </message>
    <message>
        <source>must be a number, a text or an object with &quot;value&quot; and &quot;name&quot;</source>
        <translation>חייב להיות מספר, טקסט או אובייקט עם &quot;value&quot; ו־&quot;name&quot;</translation>
    </message>
    <message>
        <source>must be a path that begins with /</source>
        <translation>חייב להיות נתיב שמתחיל ב־/</translation>
    </message>
    <message>
        <source>is neither the name of a host nor an IP address</source>
        <translation>אינו שם של מארח ואינו כתובת IP</translation>
    </message>
    <message>
        <source>must have either &quot;network&quot; or &quot;serial&quot;</source>
        <translation>חייב להכיל &quot;network&quot; או &quot;serial&quot;, לא את שניהם</translation>
    </message>
    <message>
        <source>must be simulated, network, serial or pjlink</source>
        <translation>חייב להיות simulated, network, serial או pjlink</translation>
    </message>
    <message>
        <source>needs a %1 connection</source>
        <translation>דורש חיבור %1</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>אין הגדרה &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>ProfileFileActions</name>
    <message>
        <source>&amp;Open Profiles…</source>
        <translation>&amp;פתיחת פרופילים…</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;טעינה מחדש</translation>
    </message>
    <message>
        <source>&amp;Save Profiles As…</source>
        <translation>ש&amp;מירת פרופילים בשם…</translation>
    </message>
    <message>
        <source>Open Profiles</source>
        <translation>פתיחת פרופילים</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>פרופילים (*.json);;כל הקבצים (*)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>טעינה מחדש</translation>
    </message>
    <message>
        <source>Save Profiles As</source>
        <translation>שמירת פרופילים בשם</translation>
    </message>
    <message>
        <source>Read-Only File</source>
        <translation>קובץ לקריאה בלבד</translation>
    </message>
    <message>
        <source>%1 cannot be changed. Save the profiles in another file first.</source>
        <translation>אי אפשר לשנות את %1. יש לשמור תחילה את הפרופילים בקובץ אחר.</translation>
    </message>
    <message>
        <source>Save Profiles As…</source>
        <translation>שמירת פרופילים בשם…</translation>
    </message>
</context>
<context>
    <name>ProfileHistory</name>
    <message>
        <source>The edits so far can no longer be undone.</source>
        <translation>אי אפשר עוד לבטל את השינויים שנעשו עד כה.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;ביטול</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>ביצוע &amp;מחדש</translation>
    </message>
    <message>
        <source>This could not be done; nothing was changed.</source>
        <translation>לא ניתן היה לבצע זאת; דבר לא השתנה.</translation>
    </message>
</context>
<context>
    <name>ProfileLock</name>
    <message>
        <source>another program is changing %1; try again</source>
        <translation>תוכנית אחרת משנה את %1; יש לנסות שוב</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>no profiles at %1; name a file with --profiles</source>
        <translation>אין פרופילים ב־%1; יש לציין קובץ באמצעות --profiles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>דגם</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>סוג</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>קוד</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>חיבור</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>תמונה אחת של %1 סוגי מקרנים נשמרה ב־%2</numerusform>
            <numerusform>%n תמונות של %1 סוגי מקרנים נשמרו ב־%2</numerusform>
        </translation>
    </message>
    <message>
        <source>--open: there is no projector &apos;%1&apos;; --list names all.</source>
        <translation>--open: אין מקרן &quot;%1&quot;; --list מציגה את כולם.</translation>
    </message>
    <message>
        <source>--tab: there is no tab %1; &apos;%2&apos; has tabs 0 to %3.</source>
        <translation>--tab: אין לשונית %1; ל־&quot;%2&quot; יש לשוניות 0 עד %3.</translation>
    </message>
    <message>
        <source>no display; use --list, --tour or --screenshot without one.</source>
        <translation>אין תצוגה; בלעדיה יש להשתמש ב־--list, --tour או --screenshot.</translation>
    </message>
</context>
<context>
    <name>ProjectorColumns</name>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>State</source>
        <translation>מצב</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>הפעלה</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>מקור</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>נורה</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>בעיה</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>דגם</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>מקום</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>Last answer</source>
        <translation>תשובה אחרונה</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>כתובת</translation>
    </message>
    <message>
        <source>%1 · open</source>
        <translation>%1 · פתוח</translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message>
        <source>Find a name, model, place, address, tab or setting</source>
        <translation>חיפוש שם, דגם, מקום, כתובת, לשונית או הגדרה</translation>
    </message>
    <message>
        <source>Find projectors</source>
        <translation>חיפוש מקרנים</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>מקרנים</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>לא נמצא דבר</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>נמצא אחד</numerusform>
            <numerusform>נמצאו %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <comment>All other platforms</comment>
        <translation>כונן</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>תיקייה</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>שימוש: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[אפשרויות]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>אפשרויות:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>הצגת פרטי הגרסה.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>האפשרות &quot;%1&quot; אינה מוכרת.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>אפשרויות לא מוכרות: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>חסר ערך אחרי &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>ערך לא צפוי אחרי &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>&quot;%1&quot; is neither an IP address nor a range of them</source>
        <translation>&quot;%1&quot; אינו כתובת IP ואינו טווח של כתובות</translation>
    </message>
    <message>
        <source>more than %1 addresses</source>
        <translation>יותר מ־%1 כתובות</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;חיפוש</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>חיפוש מקרנים</translation>
    </message>
    <message>
        <source>the networks of this computer</source>
        <translation>הרשתות של המחשב הזה</translation>
    </message>
    <message>
        <source>For example 192.0.2.0/24, or 192.0.2.10-40</source>
        <translation>לדוגמה 192.0.2.0/24, או 192.0.2.10-40</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>דגם</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>כתובת</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>הערה</translation>
    </message>
    <message>
        <source>Projectors found</source>
        <translation>המקרנים שנמצאו</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;כתובות</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;סיסמה</translation>
    </message>
    <message>
        <source>Add the &amp;Checked</source>
        <translation>הוספת ה&amp;מסומנים</translation>
    </message>
    <message>
        <source>known already</source>
        <translation>כבר מוכר</translation>
    </message>
    <message>
        <source>wants a password</source>
        <translation>דורש סיסמה</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>נמצא אחד</numerusform>
            <numerusform>נמצאו %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>נמצא אחד, תושאלו %1 מתוך %2 כתובות…</numerusform>
            <numerusform>נמצאו %n, תושאלו %1 מתוך %2 כתובות…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Save Se&amp;ttings…</source>
        <translation>שמ&amp;ירת הגדרות…</translation>
    </message>
    <message>
        <source>&amp;Compare with File…</source>
        <translation>הש&amp;וואה לקובץ…</translation>
    </message>
    <message>
        <source>A&amp;pply Settings…</source>
        <translation>הח&amp;לת הגדרות…</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>שמירת הגדרות</translation>
    </message>
    <message>
        <source>Save Settings in Folder</source>
        <translation>שמירת הגדרות בתיקייה</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>הגדרות (*.json)</translation>
    </message>
    <message>
        <source>Reading settings…</source>
        <translation>בקריאת הגדרות…</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>פתיחת הגדרות</translation>
    </message>
    <message>
        <source>Settings saved in %1.</source>
        <translation>ההגדרות נשמרו ב־%1.</translation>
    </message>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>ההגדרות של מקרן אחד נשמרו ב־%1.</numerusform>
            <numerusform>ההגדרות של %n מקרנים נשמרו ב־%1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>לא ניתן היה לקרוא הגדרה אחת.</numerusform>
            <numerusform>לא ניתן היה לקרוא %n הגדרות.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>החלת הגדרות</translation>
    </message>
    <message>
        <source>Compare Settings</source>
        <translation>השוואת הגדרות</translation>
    </message>
    <message>
        <source>File</source>
        <translation>קובץ</translation>
    </message>
    <message>
        <source>The values before are kept in %1.</source>
        <translation>הערכים הקודמים נשמרו ב־%1.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>cannot read %1: %2</source>
        <translation>אי אפשר לקרוא את %1: %2</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>הקלט התקני</translation>
    </message>
    <message>
        <source>%1 is here twice</source>
        <translation>%1 מופיע כאן פעמיים</translation>
    </message>
</context>
<context>
    <name>Simulator</name>
    <message>
        <source>--control: the port is not available</source>
        <translation>--control: הפתחה אינה זמינה</translation>
    </message>
    <message>
        <source>there is no projector &apos;%1&apos;</source>
        <translation>אין מקרן &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--write-profiles: the projectors are read from %1</source>
        <translation>--write-profiles: המקרנים נקראים מתוך %1</translation>
    </message>
    <message>
        <source>--write-profiles: %1 exists, and this program has not written it</source>
        <translation>--write-profiles: %1 כבר קיים, ותוכנית זו לא כתבה אותו</translation>
    </message>
</context>
<context>
    <name>SimulatorArguments</name>
    <message>
        <source>&apos;%1&apos; is not a port.</source>
        <translation>&quot;%1&quot; אינו פתחה.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number from %2 to %3.</source>
        <translation>&quot;%1&quot; אינו מספר מ־%2 עד %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a time up to an hour.</source>
        <translation>&quot;%1&quot; אינו זמן של עד שעה.</translation>
    </message>
    <message>
        <source>Display this help.</source>
        <translation>הצגת העזרה הזאת.</translation>
    </message>
    <message>
        <source>Serve the projectors of &lt;file&gt;.</source>
        <translation>הגשת המקרנים שבקובץ &lt;קובץ&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>קובץ</translation>
    </message>
    <message>
        <source>Serve only the projector &lt;name&gt;; may be given several times.</source>
        <translation>הגשת המקרן &lt;שם&gt; בלבד; אפשר לציין יותר מפעם אחת.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Listen on &lt;address&gt; instead of 127.0.0.1; with --fleet, the address of the first projector instead of 127.64.0.1.</source>
        <translation>האזנה בכתובת &lt;כתובת&gt; במקום 127.0.0.1; עם --fleet, הכתובת של המקרן הראשון במקום 127.64.0.1.</translation>
    </message>
    <message>
        <source>address</source>
        <translation>כתובת</translation>
    </message>
    <message>
        <source>The first projector is at port &lt;n&gt;, the others at those that follow; 0, as without it, takes any that are free. With --fleet, &lt;n&gt; is the port of every projector for our own protocol, and the next one for PJLink.</source>
        <translation>המקרן הראשון בפתחה &lt;n&gt;, והאחרים בבאות אחריה; 0, כמו ללא אפשרות זו, לוקח פתחות פנויות כלשהן. עם --fleet, &lt;n&gt; היא הפתחה של כל מקרן לפרוטוקול שלנו, והבאה אחריה ל־PJLink.</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>PJLink asks for &lt;text&gt;.</source>
        <translation>PJLink דורש את הסיסמה &lt;טקסט&gt;.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>טקסט</translation>
    </message>
    <message>
        <source>Serve each projector on a pseudo terminal too.</source>
        <translation>הגשת כל מקרן גם במסוף מדומה.</translation>
    </message>
    <message>
        <source>Begin with a fault: %1. Of a share of the projectors: &apos;silent 5%&apos;. May be given several times.</source>
        <translation>התחלה עם תקלה: %1. בחלק מהמקרנים: &apos;silent 5%&apos;. אפשר לציין יותר מפעם אחת.</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>תקלה</translation>
    </message>
    <message>
        <source>Everything that is left to chance depends on &lt;n&gt;.</source>
        <translation>כל מה שאקראי תלוי ב־&lt;n&gt;.</translation>
    </message>
    <message>
        <source>Listen at port &lt;n&gt; of the loopback address for faults, a line each: projector&apos;s number from 1, or *, and the fault.</source>
        <translation>האזנה לתקלות בפתחה &lt;n&gt; של כתובת הלולאה החוזרת, אחת בשורה: מספר המקרן, החל מ־1, או *, והתקלה.</translation>
    </message>
    <message>
        <source>Write profiles that lead a host to the served projectors to &lt;file&gt;.</source>
        <translation>כתיבת פרופילים שמובילים תוכנה מארחת אל המקרנים המוגשים לקובץ &lt;קובץ&gt;.</translation>
    </message>
    <message>
        <source>Serve &lt;n&gt; projectors, made after those of the profiles, each at a loopback address of its own.</source>
        <translation>הגשת &lt;n&gt; מקרנים שנוצרו לפי אלה שבפרופילים, כל אחד בכתובת לולאה חוזרת משלו.</translation>
    </message>
    <message>
        <source>Of a fleet: what --write-profiles uses; pjlink, network or mixed.</source>
        <translation>עם --fleet: מה ש־--write-profiles משתמשת בו; pjlink, network או mixed.</translation>
    </message>
    <message>
        <source>way</source>
        <translation>דרך</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is on.</source>
        <translation>עם --fleet: שניות עד שמקרן פועל.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>שניות</translation>
    </message>
    <message>
        <source>Of a fleet: seconds until a projector is in standby.</source>
        <translation>עם --fleet: שניות עד שמקרן בהמתנה.</translation>
    </message>
    <message>
        <source>Of a fleet: so many changes of state in a second happen by themselves.</source>
        <translation>עם --fleet: מספר שינויי המצב בשנייה שמתרחשים מעצמם.</translation>
    </message>
    <message>
        <source>Of a fleet: send PJLink&apos;s status notices to this address.</source>
        <translation>עם --fleet: שליחת הודעות המצב של PJLink לכתובת הזאת.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>כתובת:פתחה</translation>
    </message>
    <message>
        <source>Of a fleet: at the end, write how often each projector was asked to &lt;file&gt;.</source>
        <translation>עם --fleet: בסיום, כתיבת מספר הפעמים שכל מקרן נשאל לקובץ &lt;קובץ&gt;.</translation>
    </message>
    <message>
        <source>Help and errors are in the language &lt;name&gt;, such as de or zh-TW.</source>
        <translation>העזרה והשגיאות הן בשפה &lt;שם&gt;, כגון de או zh-TW.</translation>
    </message>
    <message>
        <source>Serves simulated projectors over TCP, PJLink and pseudo terminals. Prints an address a line, then &quot;ready&quot;.</source>
        <translation>הגשת מקרנים בהדמיה דרך TCP, PJLink ומסופים מדומים. מודפסת כתובת אחת בכל שורה, ולבסוף &quot;ready&quot;.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>ארגומנט לא צפוי &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--%1 needs --fleet.</source>
        <translation>--%1 דורשת --fleet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an address.</source>
        <translation>&quot;%1&quot; אינו כתובת.</translation>
    </message>
    <message>
        <source>--password: is longer than %1 bytes.</source>
        <translation>--password: ארוך יותר מ־%1 בתים.</translation>
    </message>
    <message>
        <source>--fault: &apos;%1&apos; is none of %2.</source>
        <translation>--fault: &quot;%1&quot; אינו אחד מאלה: %2.</translation>
    </message>
    <message>
        <source>--fleet has no serial lines.</source>
        <translation>ל־--fleet אין קווים טוריים.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address.</source>
        <translation>&quot;%1&quot; אינו כתובת לולאה חוזרת של IPv4.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves too few addresses.</source>
        <translation>אחרי &quot;%1&quot; לא נשארות די כתובות.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; leaves none for PJLink.</source>
        <translation>אחרי &quot;%1&quot; לא נשארת פתחה ל־PJLink.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an IPv4 loopback address with a port.</source>
        <translation>&quot;%1&quot; אינו כתובת לולאה חוזרת של IPv4 עם פתחה.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of pjlink, network and mixed.</source>
        <translation>&quot;%1&quot; אינו pjlink, network או mixed.</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>a whole number is missing here</source>
        <translation>חסר כאן מספר שלם</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, and is %3</source>
        <translation>חייב להיות מספר שלם מ־%1 עד %2, והוא %3</translation>
    </message>
    <message>
        <source>must be a line of text</source>
        <translation>חייב להיות שורת טקסט</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>חייב להיות אובייקט</translation>
    </message>
    <message>
        <source>must be an array</source>
        <translation>חייב להיות מערך</translation>
    </message>
    <message>
        <source>has more than %1 entries</source>
        <translation>מכיל יותר מ־%1 רשומות</translation>
    </message>
    <message>
        <source>this is not a file of saved settings</source>
        <translation>זה אינו קובץ של הגדרות שמורות</translation>
    </message>
    <message>
        <source>only version %1 is known</source>
        <translation>רק גרסה %1 מוכרת</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is here twice</source>
        <translation>&quot;%1&quot; מופיע כאן פעמיים</translation>
    </message>
    <message>
        <source>is larger than 4 MiB</source>
        <translation>גדול מ־4 MiB</translation>
    </message>
    <message>
        <source>must hold an object</source>
        <translation>חייב להכיל אובייקט</translation>
    </message>
    <message>
        <source>line %1: </source>
        <translation>שורה %1: </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>Not watched</source>
        <translation>לא מנוטר</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>בתשאול…</translation>
    </message>
    <message>
        <source>Unknown host</source>
        <translation>מארח לא מוכר</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>אין תשובה</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>סיסמה שגויה</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>לא מובן</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>שגיאה</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>אזהרה</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>תקין</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>המתנה</translation>
    </message>
    <message>
        <source>On</source>
        <translation>פועל</translation>
    </message>
    <message>
        <source>Cooling down</source>
        <translation>מתקרר</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>מתחמם</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>מאוורר</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>נורה</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>טמפרטורה</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>מכסה</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>מסנן</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>אחר</translation>
    </message>
    <message>
        <source>%1 (warning)</source>
        <translation>%1 (אזהרה)</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 שע׳</translation>
    </message>
    <message>
        <source>As it should be</source>
        <translation>כרצוי</translation>
    </message>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>אחת שונה</numerusform>
            <numerusform>%n שונות</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>לפני %1 שנ׳</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>לפני %1 דק׳</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>לפני %1 שע׳</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>לא ידוע</translation>
    </message>
    <message>
        <source>off</source>
        <translation>כבוי</translation>
    </message>
    <message>
        <source>on</source>
        <translation>פועל</translation>
    </message>
    <message>
        <source>State</source>
        <translation>מצב</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>הפעלה</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>מקור</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>מסך ריק</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>השתקה</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>הקפאה</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>הגדרות שונות מהרצוי</translation>
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
        <translation>&amp;חיפוש ברשת…</translation>
    </message>
    <message>
        <source>&amp;Import Table…</source>
        <translation>יי&amp;בוא טבלה…</translation>
    </message>
    <message>
        <source>E&amp;xport Table…</source>
        <translation>ייצו&amp;א טבלה…</translation>
    </message>
    <message>
        <source>Find Projectors</source>
        <translation>חיפוש מקרנים</translation>
    </message>
    <message>
        <source>Add Found Projectors</source>
        <translation>הוספת המקרנים שנמצאו</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>ייבוא טבלה</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>טבלאות (*.csv *.tsv *.txt);;כל הקבצים (*)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>שורה %1: %2</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>ייצוא טבלה</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>טבלאות (*.csv);;כל הקבצים (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>נוסף מקרן אחד</numerusform>
            <numerusform>נוספו %n מקרנים</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>אחד כבר מוכר</numerusform>
            <numerusform>%n כבר מוכרים</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>שורה אחת לא נקלטה</numerusform>
            <numerusform>%n שורות לא נקלטו</numerusform>
        </translation>
    </message>
    <message>
        <source>Columns not used: %1</source>
        <translation>עמודות שלא נעשה בהן שימוש: %1</translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message>
        <source>Switch O&amp;n</source>
        <translation>&amp;הדלקה</translation>
    </message>
    <message>
        <source>Switch O&amp;ff</source>
        <translation>&amp;כיבוי</translation>
    </message>
    <message>
        <source>Po&amp;wer</source>
        <translation>הפ&amp;עלה</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>קל&amp;ט</translation>
    </message>
    <message>
        <source>&amp;Blank</source>
        <translation>&amp;מסך ריק</translation>
    </message>
    <message>
        <source>Blank the Picture</source>
        <translation>הצגת מסך ריק</translation>
    </message>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>להציג מסך ריק במקרן אחד?</numerusform>
            <numerusform>להציג מסך ריק ב־%n מקרנים?</numerusform>
        </translation>
    </message>
    <message>
        <source>Show the Picture</source>
        <translation>הצגת התמונה</translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>להציג את התמונה במקרן אחד?</numerusform>
            <numerusform>להציג את התמונה ב־%n מקרנים?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Mute</source>
        <translation>השת&amp;קה</translation>
    </message>
    <message>
        <source>Mute the Sound</source>
        <translation>השתקת הקול</translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>להשתיק את הקול במקרן אחד?</numerusform>
            <numerusform>להשתיק את הקול ב־%n מקרנים?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unmute the Sound</source>
        <translation>ביטול השתקת הקול</translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>לבטל את השתקת הקול במקרן אחד?</numerusform>
            <numerusform>לבטל את השתקת הקול ב־%n מקרנים?</numerusform>
        </translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>הק&amp;פאה</translation>
    </message>
    <message>
        <source>Freeze the Picture</source>
        <translation>הקפאת התמונה</translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>להקפיא את התמונה במקרן אחד?</numerusform>
            <numerusform>להקפיא את התמונה ב־%n מקרנים?</numerusform>
        </translation>
    </message>
    <message>
        <source>Release the Picture</source>
        <translation>ביטול הקפאת התמונה</translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>לבטל את הקפאת התמונה במקרן אחד?</numerusform>
            <numerusform>לבטל את הקפאת התמונה ב־%n מקרנים?</numerusform>
        </translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>הדלקה</translation>
    </message>
    <message>
        <source>Switch Off</source>
        <translation>כיבוי</translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>להדליק מקרן אחד?</numerusform>
            <numerusform>להדליק %n מקרנים?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>לכבות מקרן אחד?</numerusform>
            <numerusform>לכבות %n מקרנים?</numerusform>
        </translation>
    </message>
    <message>
        <source>Input %1</source>
        <translation>קלט %1</translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>לבחור את הקלט %1 במקרן אחד?</numerusform>
            <numerusform>לבחור את הקלט %1 ב־%n מקרנים?</numerusform>
        </translation>
    </message>
    <message>
        <source>No inputs are known</source>
        <translation>אין קלטים מוכרים</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>cannot write %1: %2</source>
        <translation>אי אפשר לכתוב את %1: %2</translation>
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
        <translation>מקרן</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>תוצאה</translation>
    </message>
    <message>
        <source>Projectors</source>
        <translation>מקרנים</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>התקדמות</translation>
    </message>
    <message>
        <source>&amp;Retry the Failed</source>
        <translation>&amp;ניסיון חוזר לכושלים</translation>
    </message>
    <message>
        <source>&amp;Undo All</source>
        <translation>&amp;ביטול הכול</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגור</translation>
    </message>
    <message>
        <source>Do the &amp;Rest</source>
        <translation>&amp;השלמת השאר</translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message>
        <source>the model does not have it</source>
        <translation>אין אותה בדגם</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>הסתיימו %1 מתוך %n</numerusform>
            <numerusform>הסתיימו %1 מתוך %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>ביטול: %1</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>בעבודה…</translation>
    </message>
    <message>
        <source>done</source>
        <translation>בוצע</translation>
    </message>
    <message>
        <source>accepted, still under way</source>
        <translation>התקבל, עדיין בתהליך</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>נדחה</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>אין תשובה</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>נעצר</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>בוצע, לא ניתן היה לקרוא הגדרה אחת</numerusform>
            <numerusform>בוצע, לא ניתן היה לקרוא %n הגדרות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>אחד עדיין בתהליך</numerusform>
            <numerusform>%n עדיין בתהליך</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>אחד נכשל</numerusform>
            <numerusform>%n נכשלו</numerusform>
        </translation>
    </message>
    <message>
        <source>not known whether it was on</source>
        <translation>לא ידוע אם היה דלוק</translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>אחד נעצר</numerusform>
            <numerusform>%n נעצרו</numerusform>
        </translation>
    </message>
</context>
</TS>
