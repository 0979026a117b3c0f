<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Acctl</name>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps</source>
        <translation>
            <numerusform>&apos;%1&apos; is more than %n step</numerusform>
            <numerusform>&apos;%1&apos; is more than %n steps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is more than %n steps from %2</source>
        <translation>
            <numerusform>&apos;%1&apos; is more than %n step from %2</numerusform>
            <numerusform>&apos;%1&apos; is more than %n steps from %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n setting</numerusform>
            <numerusform>%n settings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors</source>
        <translation>
            <numerusform>%n projector</numerusform>
            <numerusform>%n projectors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different</source>
        <translation>
            <numerusform>%n different</numerusform>
            <numerusform>%n different</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already so</source>
        <translation>
            <numerusform>%n already so</numerusform>
            <numerusform>%n already so</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not yet so</source>
        <translation>
            <numerusform>%n not yet so</numerusform>
            <numerusform>%n not yet so</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n refused</numerusform>
            <numerusform>%n refused</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n busy</source>
        <translation>
            <numerusform>%n busy</numerusform>
            <numerusform>%n busy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unconfirmed</source>
        <translation>
            <numerusform>%n unconfirmed</numerusform>
            <numerusform>%n unconfirmed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n not done</numerusform>
            <numerusform>%n not done</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>not sent, it is more than %n steps away</source>
        <translation>
            <numerusform>not sent, it is more than %n step away</numerusform>
            <numerusform>not sent, it is more than %n steps away</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not compared</source>
        <translation>
            <numerusform>%n not compared</numerusform>
            <numerusform>%n not compared</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%n skipped</numerusform>
            <numerusform>%n skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>skipped, PJLink does not have them: %n of the file&apos;s settings</source>
        <translation>
            <numerusform>skipped, PJLink does not have it: %n of the file&apos;s settings</numerusform>
            <numerusform>skipped, PJLink does not have them: %n of the file&apos;s settings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings saved in %1</source>
        <translation>
            <numerusform>%n setting saved in %1</numerusform>
            <numerusform>%n settings saved in %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>stopped, %1 of %n steps accepted</source>
        <translation>
            <numerusform>stopped, %1 of %n step accepted</numerusform>
            <numerusform>stopped, %1 of %n steps accepted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; %2 of %n steps accepted</source>
        <translation>
            <numerusform>%1; %2 of %n step accepted</numerusform>
            <numerusform>%1; %2 of %n steps accepted</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AlertList</name>
    <message numerus="yes">
        <source>%1: %n settings are not as they should be</source>
        <translation>
            <numerusform>%1: %n setting is not as it should be</numerusform>
            <numerusform>%1: %n settings are not as they should be</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message numerus="yes">
        <source>Remove all %n entries of the log?</source>
        <translation>
            <numerusform>Remove the %n entry of the log?</numerusform>
            <numerusform>Remove all %n entries of the log?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ComparisonDialog</name>
    <message numerus="yes">
        <source>%n projectors differ.</source>
        <translation>
            <numerusform>%n projector differs.</numerusform>
            <numerusform>%n projectors differ.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors have all these settings already.</source>
        <translation>
            <numerusform>%n projector has all these settings already.</numerusform>
            <numerusform>%n projectors have all these settings already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors could not be read.</source>
        <translation>
            <numerusform>%n projector could not be read.</numerusform>
            <numerusform>%n projectors could not be read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors do not report all of these settings now.</source>
        <translation>
            <numerusform>%n projector does not report all of these settings now.</numerusform>
            <numerusform>%n projectors do not report all of these settings now.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n projectors were skipped.</source>
        <translation>
            <numerusform>%n projector was skipped.</numerusform>
            <numerusform>%n projectors were skipped.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message numerus="yes">
        <source>%n projectors selected</source>
        <translation>
            <numerusform>%n projector selected</numerusform>
            <numerusform>%n projectors selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DifferenceTree</name>
    <message numerus="yes">
        <source>%n settings</source>
        <translation>
            <numerusform>%n setting</numerusform>
            <numerusform>%n settings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings do not apply to this model</source>
        <translation>
            <numerusform>%n setting does not apply to this model</numerusform>
            <numerusform>%n settings do not apply to this model</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings cannot be read now</source>
        <translation>
            <numerusform>%n setting cannot be read now</numerusform>
            <numerusform>%n settings cannot be read now</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FleetSummary</name>
    <message numerus="yes">
        <source>%n on</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n on</numerusform>
            <numerusform>%n on</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n off</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n off</numerusform>
            <numerusform>%n off</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with problems</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n with problems</numerusform>
            <numerusform>%n with problems</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n not reachable</numerusform>
            <numerusform>%n not reachable</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with alerts</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n with alerts</numerusform>
            <numerusform>%n with alerts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not watched</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n not watched</numerusform>
            <numerusform>%n not watched</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>Open %n dialogs?</source>
        <translation>
            <numerusform>Open %n dialog?</numerusform>
            <numerusform>Open %n dialogs?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PresetActions</name>
    <message numerus="yes">
        <source>Put back the settings of %n projectors?</source>
        <translation>
            <numerusform>Put back the settings of %n projector?</numerusform>
            <numerusform>Put back the settings of %n projectors?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PresetDialog</name>
    <message numerus="yes">
        <source>%n settings are checked.</source>
        <translation>
            <numerusform>%n setting is checked.</numerusform>
            <numerusform>%n settings are checked.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProfileActions</name>
    <message numerus="yes">
        <source>Remove %n projectors from %1?</source>
        <translation>
            <numerusform>Remove %n projector from %1?</numerusform>
            <numerusform>Remove %n projectors from %1?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</source>
        <translation>
            <numerusform>Tags for %n projector, separated by commas;
a minus in front takes a tag away:</numerusform>
            <numerusform>Tags for %n projectors, separated by commas;
a minus in front takes a tag away:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message numerus="yes">
        <source>%n pictures of %1 kinds of projectors saved in %2</source>
        <translation>
            <numerusform>%n picture of %1 kinds of projectors saved in %2</numerusform>
            <numerusform>%n pictures of %1 kinds of projectors saved in %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProjectorView</name>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n found</numerusform>
            <numerusform>%n found</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message numerus="yes">
        <source>%n found</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n found</numerusform>
            <numerusform>%n found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found, %1 of %2 addresses asked…</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n found, %1 of %2 addresses asked…</numerusform>
            <numerusform>%n found, %1 of %2 addresses asked…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message numerus="yes">
        <source>Settings of %n projectors saved in %1.</source>
        <translation>
            <numerusform>Settings of %n projector saved in %1.</numerusform>
            <numerusform>Settings of %n projectors saved in %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings could not be read.</source>
        <translation>
            <numerusform>%n setting could not be read.</numerusform>
            <numerusform>%n settings could not be read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message numerus="yes">
        <source>%n differ</source>
        <comment>settings</comment>
        <translation>
            <numerusform>%n differs</numerusform>
            <numerusform>%n differ</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TransferActions</name>
    <message numerus="yes">
        <source>%n projectors added</source>
        <translation>
            <numerusform>%n projector added</numerusform>
            <numerusform>%n projectors added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already known</source>
        <translation>
            <numerusform>%n already known</numerusform>
            <numerusform>%n already known</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows not taken</source>
        <translation>
            <numerusform>%n row not taken</numerusform>
            <numerusform>%n rows not taken</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UsualActions</name>
    <message numerus="yes">
        <source>Blank the picture of %n projectors?</source>
        <translation>
            <numerusform>Blank the picture of %n projector?</numerusform>
            <numerusform>Blank the picture of %n projectors?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show the picture of %n projectors?</source>
        <translation>
            <numerusform>Show the picture of %n projector?</numerusform>
            <numerusform>Show the picture of %n projectors?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Mute the sound of %n projectors?</source>
        <translation>
            <numerusform>Mute the sound of %n projector?</numerusform>
            <numerusform>Mute the sound of %n projectors?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unmute the sound of %n projectors?</source>
        <translation>
            <numerusform>Unmute the sound of %n projector?</numerusform>
            <numerusform>Unmute the sound of %n projectors?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Freeze the picture of %n projectors?</source>
        <translation>
            <numerusform>Freeze the picture of %n projector?</numerusform>
            <numerusform>Freeze the picture of %n projectors?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Release the picture of %n projectors?</source>
        <translation>
            <numerusform>Release the picture of %n projector?</numerusform>
            <numerusform>Release the picture of %n projectors?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch on %n projectors?</source>
        <translation>
            <numerusform>Switch on %n projector?</numerusform>
            <numerusform>Switch on %n projectors?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Switch off %n projectors?</source>
        <translation>
            <numerusform>Switch off %n projector?</numerusform>
            <numerusform>Switch off %n projectors?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Choose the input %1 on %n projectors?</source>
        <translation>
            <numerusform>Choose the input %1 on %n projector?</numerusform>
            <numerusform>Choose the input %1 on %n projectors?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WorkRun</name>
    <message numerus="yes">
        <source>%1 of %n done</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%1 of %n done</numerusform>
            <numerusform>%1 of %n done</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>done, %n settings could not be read</source>
        <translation>
            <numerusform>done, %n setting could not be read</numerusform>
            <numerusform>done, %n settings could not be read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n still under way</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n still under way</numerusform>
            <numerusform>%n still under way</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <comment>projectors</comment>
        <translation>
            <numerusform>%n stopped</numerusform>
            <numerusform>%n stopped</numerusform>
        </translation>
    </message>
</context>
</TS>
