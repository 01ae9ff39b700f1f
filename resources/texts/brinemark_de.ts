<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Default</name>
    <message>
        <source>AboutMessage</source>
        <translation>Ein Protokoll Ihrer Aquarien: wer darin lebt, wie das Wasser getestet ist, was zu tun ist.</translation>
    </message>
    <message>
        <source>AboutTitle</source>
        <translation>Über Brinemark</translation>
    </message>
    <message>
        <source>AboutVersion</source>
        <extracomment>^0 is the version.</extracomment>
        <translation>Version ^0</translation>
    </message>
    <message>
        <source>AboveLimitToolTip</source>
        <extracomment>^0: the target or the limit</extracomment>
        <translation>Über der oberen Grenze ^0</translation>
    </message>
    <message>
        <source>AboveTargetToolTip</source>
        <extracomment>^0: the target or the limit</extracomment>
        <translation>Über dem Zielwert ^0</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>ActionButtonToolTip</source>
        <translation>Weitere Aktionen</translation>
    </message>
    <message>
        <source>AddToiCal</source>
        <translation>In den Kalender eintragen</translation>
    </message>
    <message>
        <source>Alkalinity</source>
        <translation>Alkalinität</translation>
    </message>
    <message>
        <source>AlkalinityHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Geben Sie keinen Puffer und kein Kalkwasser mehr zu. Über etwa 12 °dKH (4,3 mmol/l) beginnt Calcium als Kalk auszufallen, und Korallen verlieren Gewebe an ihren Spitzen, wenn Nitrat und Phosphat niedrig sind.</translation>
    </message>
    <message>
        <source>AlkalinityLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Riffbecken hält man gewöhnlich bei 7 bis 11 °dKH (2,5 bis 4 mmol/l). Ist Magnesium niedrig, heben Sie es zuerst, denn ohne Magnesium hält sich die Alkalinität nicht. Geben Sie Puffer nie zusammen mit Calcium zu: Beide fallen als Kalk aus.</translation>
    </message>
    <message>
        <source>AllFilesFilter</source>
        <extracomment>Kind of file in the open and save dialogs; the pattern in brackets stays as it is.</extracomment>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Ammonia</source>
        <translation>Ammoniak</translation>
    </message>
    <message>
        <source>AmmoniaFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated ammonia in fresh water, mg/l.</extracomment>
        <translation>0.1</translation>
    </message>
    <message>
        <source>AmmoniaHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Unter pH 7 ist fast alles davon Ammonium, das weit weniger schadet, und jede pH-Stufe macht daraus etwa zehnmal so viel Ammoniak. Würde das neue Wasser einen so niedrigen pH-Wert heben, wechseln Sie jeweils nur ein Zehntel.</translation>
    </message>
    <message>
        <source>AmmoniaHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Bei pH 8,2, wie in einem Riffbecken, ist davon etwa zehnmal so viel giftig wie bei pH 7. Verwenden Sie Salzwasser gleicher Salinität, das vorher angesetzt und belüftet wurde, und suchen Sie zwischen den Steinen nach toten Tieren.</translation>
    </message>
    <message>
        <source>AmmoniaLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Zu niedrig ist kein Mangel: Ein Becken mit Tieren soll kein Ammoniak zeigen. Geben Sie keines zu und setzen Sie den Zielwert auf 0. Zugegeben wird Ammoniak nur, um einen Filter einzufahren, solange noch keine Tiere im Becken sind.</translation>
    </message>
    <message>
        <source>AmmoniaSaltValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated ammonia in sea water, mg/l.</extracomment>
        <translation>0.1</translation>
    </message>
    <message>
        <source>AmmoniaTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Ammoniak verätzt die Kiemen, und je höher pH-Wert und Temperatur, desto mehr davon ist giftig. Heben Sie den pH-Wert niemals an, solange ein Test Ammoniak anzeigt.

Zu hoch: Ersetzen Sie jetzt ein Drittel bis die Hälfte des Wassers durch aufbereitetes Wasser gleicher Temperatur und möglichst ohne höheren pH-Wert. Füttern Sie ein bis zwei Tage nicht, entfernen Sie tote Tiere und faulende Pflanzen und belüften Sie kräftig.

Testen Sie dann täglich und wiederholen Sie den Wasserwechsel, bis der Wert im Rahmen liegt. Prüfen Sie bis dahin, ob der Filter läuft, spülen Sie sein Material nur in Aquarienwasser und setzen Sie keine Tiere ein.</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>Auswerten …</translation>
    </message>
    <message>
        <source>Aquarium</source>
        <extracomment>Search word stored with the file.</extracomment>
        <translation>Aquarium</translation>
    </message>
    <message>
        <source>AutoColumnTooltip</source>
        <translation>Nach dem Erledigen neu einplanen</translation>
    </message>
    <message>
        <source>BelowLimitToolTip</source>
        <extracomment>^0: the target or the limit</extracomment>
        <translation>Unter der unteren Grenze ^0</translation>
    </message>
    <message>
        <source>BelowTargetToolTip</source>
        <extracomment>^0: the target or the limit</extracomment>
        <translation>Unter dem Zielwert ^0</translation>
    </message>
    <message>
        <source>Calcium</source>
        <translation>Calcium</translation>
    </message>
    <message>
        <source>CalciumHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Prüfen Sie zuerst die Salinität, denn Calcium steigt mit ihr. Geben Sie keines mehr zu, und lassen Sie den Wert durch Korallen und gewöhnliche Wasserwechsel sinken. Über etwa 500 mg/l fällt es als Kalk aus und nimmt Alkalinität mit.</translation>
    </message>
    <message>
        <source>CalciumLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Riffbecken hält man gewöhnlich bei 400 bis 450 mg/l. Prüfen Sie zuerst Salinität, Magnesium und Alkalinität: Ist Magnesium niedrig, fällt Calcium als Kalk aus. Geben Sie ein gelöstes Calciumsalz zu, höchstens 20 mg/l Calcium am Tag und nie zusammen mit einem Karbonatpuffer.</translation>
    </message>
    <message>
        <source>CalendarChosenDay</source>
        <extracomment>^0 is the day with its weekday and month written out</extracomment>
        <translation>Gewählter Tag: ^0</translation>
    </message>
    <message>
        <source>CalendarDays</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>CalendarPopup</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>CalendarTime</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>CalendarToday</source>
        <translation>Heute wählen (T)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>CancelLabel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>CannotUndoMessage</source>
        <translation>Dies lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>CarbonDioxide</source>
        <extracomment>Name of the target and column title: keep it short.</extracomment>
        <translation>CO₂</translation>
    </message>
    <message>
        <source>CareMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to keep, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unbekannt, Leicht, Mittel, Schwierig, Nur für Erfahrene</translation>
    </message>
    <message>
        <source>ChangedOnDiskMessage</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>„^0“ ist nicht mehr die Datei, die Brinemark zuletzt gelesen oder geschrieben hat. Wenn Sie sie überschreiben, gehen die Änderungen des anderen Programms verloren; unter einem anderen Namen bleiben beide Fassungen erhalten.</translation>
    </message>
    <message>
        <source>ChangedOnDiskOverwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>ChangedOnDiskSaveAs</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>ChangedOnDiskTitle</source>
        <translation>Die Datei wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>ColumnActivity</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>ColumnAmount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>ColumnCategory</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>ColumnCount</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>ColumnDeviation</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>ColumnDue</source>
        <translation>Fällig</translation>
    </message>
    <message>
        <source>ColumnExpense</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>ColumnItem</source>
        <translation>Gegenstand</translation>
    </message>
    <message>
        <source>ColumnNext</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>ColumnNote</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>ColumnParameter</source>
        <translation>Messgröße</translation>
    </message>
    <message>
        <source>ColumnPreferred</source>
        <translation>Zielwert</translation>
    </message>
    <message>
        <source>ColumnRepeats</source>
        <translation>Wiederholt</translation>
    </message>
    <message>
        <source>ColumnWarning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>CommandLineDark</source>
        <translation>Mit --render dunkle Farben verwenden.</translation>
    </message>
    <message>
        <source>CommandLineDescription</source>
        <translation>Führt Buch über Ihre Aquarien: Tiere und Pflanzen, Wassertests, Wartung, Notizen, Inventar und Ausgaben.</translation>
    </message>
    <message>
        <source>CommandLineFile</source>
        <translation>Die zu öffnende Aquariendatei.</translation>
    </message>
    <message>
        <source>CommandLineFileName</source>
        <extracomment>Stands for a file in the command-line help.</extracomment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>CommandLineHelp</source>
        <translation>Diese Hilfe anzeigen und beenden.</translation>
    </message>
    <message>
        <source>CommandLineNoFile</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>Die Datei „^0“ gibt es nicht.</translation>
    </message>
    <message>
        <source>CommandLineNotATankFile</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>„^0“ ist keine Aquariendatei.</translation>
    </message>
    <message>
        <source>CommandLineNotPrinted</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>„^0“ konnte nicht gedruckt werden. Ist ein Drucker vorhanden?</translation>
    </message>
    <message>
        <source>CommandLineNotRendered</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>Das Bild „^0“ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>CommandLinePrint</source>
        <translation>Die Datei drucken und beenden.</translation>
    </message>
    <message>
        <source>CommandLinePrintNeedsFile</source>
        <translation>Geben Sie die Datei an, die gedruckt werden soll.</translation>
    </message>
    <message>
        <source>CommandLineRender</source>
        <translation>Das Hauptfenster in eine Bilddatei zeichnen und beenden.</translation>
    </message>
    <message>
        <source>CommandLineRenderNeedsPicture</source>
        <translation>Geben Sie die Bilddatei an, die geschrieben werden soll.</translation>
    </message>
    <message>
        <source>CommandLineTooManyFiles</source>
        <translation>Es kann nur eine Aquariendatei zugleich geöffnet sein.</translation>
    </message>
    <message>
        <source>CommandLineUnknownOption</source>
        <extracomment>^0 is the option.</extracomment>
        <translation>Unbekannte Option: ^0</translation>
    </message>
    <message>
        <source>CommandLineUnreadable</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>Die Datei „^0“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>CommandLineVersion</source>
        <translation>Die Version anzeigen und beenden.</translation>
    </message>
    <message>
        <source>CommonName</source>
        <translation>Trivialname</translation>
    </message>
    <message>
        <source>Condition Columns...</source>
        <translation>Spalten der Wassertests …</translation>
    </message>
    <message>
        <source>ConditionColumnsLabel</source>
        <extracomment>^0 is the tank&apos;s name</extracomment>
        <translation>Für ^0 diese Spalten zeigen:</translation>
    </message>
    <message>
        <source>ConditionColumnsTitle</source>
        <translation>Spalten der Wassertests</translation>
    </message>
    <message>
        <source>ConditionDataAmmonia</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Ammoniak: </translation>
    </message>
    <message>
        <source>ConditionDataDate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Datum: </translation>
    </message>
    <message>
        <source>ConditionDataGH</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>GH: </translation>
    </message>
    <message>
        <source>ConditionDataHeader</source>
        <translation>Wassertests</translation>
    </message>
    <message>
        <source>ConditionDataKH</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>KH: </translation>
    </message>
    <message>
        <source>ConditionDataNitrate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Nitrat: </translation>
    </message>
    <message>
        <source>ConditionDataNitrite</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Nitrit: </translation>
    </message>
    <message>
        <source>ConditionDataPh</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>pH: </translation>
    </message>
    <message>
        <source>ConditionDataSalt</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Salinität: </translation>
    </message>
    <message>
        <source>ConditionDataTemp</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Temperatur: </translation>
    </message>
    <message>
        <source>ConditionItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>den Wassertests</translation>
    </message>
    <message>
        <source>ConditionName</source>
        <translation>Wassertests</translation>
    </message>
    <message>
        <source>ConditionUndo</source>
        <translation>Änderung am Wassertest</translation>
    </message>
    <message>
        <source>CondtionDataAlkalinity</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Alkalinität: </translation>
    </message>
    <message>
        <source>CondtionDataCalcium</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Calcium: </translation>
    </message>
    <message>
        <source>CondtionDataCarbonDioxide</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Kohlendioxid: </translation>
    </message>
    <message>
        <source>CondtionDataCopper</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Kupfer: </translation>
    </message>
    <message>
        <source>CondtionDataIodine</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Jod: </translation>
    </message>
    <message>
        <source>CondtionDataIron</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Eisen: </translation>
    </message>
    <message>
        <source>CondtionDataMagnesium</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Magnesium: </translation>
    </message>
    <message>
        <source>CondtionDataOxygen</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Sauerstoff: </translation>
    </message>
    <message>
        <source>CondtionDataPhosphate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Phosphat: </translation>
    </message>
    <message>
        <source>ConvertBackup</source>
        <extracomment>Begins the name of a backup copy; a blank and the file&apos;s name follow. No slash, no colon.</extracomment>
        <translation>Sicherung von</translation>
    </message>
    <message>
        <source>ConvertContinue</source>
        <translation>Ohne Kopie fortfahren</translation>
    </message>
    <message>
        <source>ConvertDuplicate</source>
        <translation>Sicherungskopie anlegen</translation>
    </message>
    <message>
        <source>ConvertKindMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. The kinds of conversion.</extracomment>
        <translation>Temperatur, Messwerte, Länge, Fläche, Durchfluss, Volumen, Schadstoff</translation>
    </message>
    <message>
        <source>ConvertMessage</source>
        <translation>Sie wird beim nächsten Speichern in die heutige Form umgewandelt; bis dahin bleibt die Datei auf dem Datenträger unverändert. Danach kann die frühere Version sie nicht mehr öffnen. Möchten Sie vorher eine Sicherungskopie im selben Ordner anlegen?</translation>
    </message>
    <message>
        <source>ConvertTitle</source>
        <translation>Diese Datei stammt von einer früheren Version von Brinemark.</translation>
    </message>
    <message>
        <source>ConverterConversion</source>
        <translation>Umrechnung:</translation>
    </message>
    <message>
        <source>ConverterKind</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>ConverterResult</source>
        <translation>Ergebnis:</translation>
    </message>
    <message>
        <source>ConverterSection</source>
        <translation>Einheiten umrechnen</translation>
    </message>
    <message>
        <source>ConverterValue</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>Copper</source>
        <translation>Kupfer</translation>
    </message>
    <message>
        <source>CopperHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>Sofort, falls Sie nicht Fische mit Kupfer behandeln: Wechseln Sie ein Drittel bis die Hälfte des Wassers gegen aufbereitetes Wasser gleicher Temperatur, das selbst kein Kupfer enthält, filtern Sie über frische Aktivkohle, und setzen Sie jedes kupferhaltige Mittel ab. Würde das neue Wasser einen pH-Wert unter 7 heben, testen Sie zuvor Ammoniak; ist welches da, wechseln Sie jeweils nur ein Zehntel. Wenige Hundertstel mg/l töten Wirbellose und schaden in weichem Wasser auch Fischen. In einem Quarantänebecken wechseln Sie nur so viel, dass der Wert in den Bereich des Mittels zurückkehrt.</translation>
    </message>
    <message>
        <source>CopperHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>Sofort, falls Sie nicht Fische mit Kupfer behandeln: Wechseln Sie ein Drittel bis die Hälfte des Wassers gegen vorher angesetztes und belüftetes Salzwasser gleicher Salinität und Temperatur, das selbst kein Kupfer enthält; filtern Sie über frische Aktivkohle, und setzen Sie jedes kupferhaltige Mittel ab. Wenige Hundertstel mg/l töten Korallen und andere Wirbellose, und Gestein und Sand geben Kupfer später wieder ab. In einem Quarantänebecken wechseln Sie nur so viel, dass der Wert in den Bereich des Mittels zurückkehrt.</translation>
    </message>
    <message>
        <source>CopperLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Nur Fische, die in einem Quarantänebecken behandelt werden, brauchen Kupfer; unter dem Bereich des Mittels leben die Parasiten weiter. Geben Sie dort nach Anweisung des Herstellers in kleinen Mengen nach, testen Sie vor jeder Gabe, und entfernen Sie Kohle, Sand und Gestein, die es binden. In jedem anderen Becken geben Sie keines zu, denn Kupfer tötet Wirbellose, und setzen den Zielwert auf 0.</translation>
    </message>
    <message>
        <source>CoralBreedingMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to breed, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unbekannt, Leicht, Mittel, Schwierig, Noch nicht gelungen</translation>
    </message>
    <message>
        <source>CoralDataHeader</source>
        <translation>Korallen</translation>
    </message>
    <message>
        <source>CoralName</source>
        <translation>Korallen</translation>
    </message>
    <message>
        <source>CreatePreview</source>
        <translation>Vorschau wird erstellt …</translation>
    </message>
    <message>
        <source>CustomDays</source>
        <translation>Tage:</translation>
    </message>
    <message>
        <source>CustomWeeks</source>
        <translation>Wochen:</translation>
    </message>
    <message>
        <source>Customize condition columns</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Wählen, welche Spalten die Wassertests zeigen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>DateRangeMessage</source>
        <translation>Wählen Sie ein Anfangs- und ein Enddatum; der Anfang muss vor dem Ende liegen.</translation>
    </message>
    <message>
        <source>DateRangeTitle</source>
        <translation>Dieser Zeitraum ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>DeleteButtonToolTip</source>
        <translation>Ausgewählte Einträge löschen</translation>
    </message>
    <message>
        <source>DeleteCoralWarning</source>
        <extracomment>%@ is the coral&apos;s name.</extracomment>
        <translation>Koralle „%@“ löschen?</translation>
    </message>
    <message>
        <source>DeleteFishWarning</source>
        <extracomment>%@ is the fish&apos;s name.</extracomment>
        <translation>Fisch „%@“ löschen?</translation>
    </message>
    <message>
        <source>DeleteInvertWarning</source>
        <extracomment>%@ is the animal&apos;s name.</extracomment>
        <translation>Wirbelloses Tier „%@“ löschen?</translation>
    </message>
    <message>
        <source>DeletePlantWarning</source>
        <extracomment>%@ is the plant&apos;s name.</extracomment>
        <translation>Pflanze „%@“ löschen?</translation>
    </message>
    <message>
        <source>DeleteTankWarning</source>
        <extracomment>%@ is the tank&apos;s name.</extracomment>
        <translation>Aquarium „%@“ löschen?</translation>
    </message>
    <message>
        <source>DeleteTitle</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>DeviationCheckboxLabel</source>
        <translation>To&amp;leranz zulassen</translation>
    </message>
    <message>
        <source>DeviationCheckboxToolTip</source>
        <translation>Auch Werte nahe am Ziel gelten lassen</translation>
    </message>
    <message>
        <source>DeviationStepperToolTip</source>
        <translation>Toleranz erhöhen oder senken</translation>
    </message>
    <message>
        <source>DeviationToolTip</source>
        <translation>Wie weit ein Wert über oder unter dem Ziel liegen darf</translation>
    </message>
    <message>
        <source>DioxideHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>Sofort: Stellen Sie die Kohlendioxidzufuhr ab und belüften Sie kräftig, bis die Fische ruhig atmen. Über etwa 30 mg/l leiden viele Fische. Entweicht das Gas, steigt der pH-Wert, und aus Ammonium wird giftiges Ammoniak; testen Sie es deshalb danach. Prüfen Sie dann Ventil und Zeitschaltuhr, und beginnen Sie mit geringerer Zufuhr von Neuem.</translation>
    </message>
    <message>
        <source>DioxideHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>Sofort: Belüften Sie kräftig, lüften Sie den Raum und stellen Sie ab, was Kohlendioxid abgibt, etwa einen Kalkreaktor. Über etwa 30 mg/l leiden viele Fische. Prüfen Sie dann, ob Pumpen und Abschäumer laufen und Luft an die Oberfläche kommt.</translation>
    </message>
    <message>
        <source>DioxideLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Tiere brauchen kein Kohlendioxid; ohne Pflanzen schalten Sie die Warnung dieses Zielwerts aus. Für Pflanzen erhöhen Sie die Zufuhr alle paar Tage ein wenig, bleiben unter etwa 30 mg/l und achten darauf, dass die Fische ruhig atmen. Der pH-Wert sinkt, wenn der Wert steigt.</translation>
    </message>
    <message>
        <source>DioxideLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Hier ist nichts zu tun: Die Tiere des Salzwassers brauchen kein Kohlendioxid. Schalten Sie die Warnung dieses Zielwerts aus.</translation>
    </message>
    <message>
        <source>DisplayWarningCheckboxLabel</source>
        <extracomment>^0 is the parameter&apos;s name.</extracomment>
        <translation>&amp;Warnen, wenn „^0“ vom Ziel abweicht</translation>
    </message>
    <message>
        <source>DockMenuTitle</source>
        <translation>Überfällige Aufgaben</translation>
    </message>
    <message>
        <source>DoneColumnTooltip</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>DontSaveLabel</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>DontShowAgain</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>DropImageHint</source>
        <translation>Legen Sie hier ein Bild ab, oder wählen Sie eines aus.</translation>
    </message>
    <message>
        <source>DroppedPictureRefusedTitle</source>
        <translation>Das abgelegte Bild kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten …</translation>
    </message>
    <message>
        <source>EditItemTitle</source>
        <extracomment>^0 is the name of a fish, plant or other animal</extracomment>
        <translation>^0 bearbeiten</translation>
    </message>
    <message>
        <source>EditItemToolTip</source>
        <translation>Diesen Eintrag ändern</translation>
    </message>
    <message>
        <source>EditTankTitle</source>
        <translation>Aquarium bearbeiten</translation>
    </message>
    <message>
        <source>EditTankToolTip</source>
        <translation>Name, Größe, Art und Zielwerte ändern</translation>
    </message>
    <message>
        <source>EmptyCondition</source>
        <translation>Hierher gehört jeder Wassertest dieses Aquariums, einer je Zeile.</translation>
    </message>
    <message>
        <source>EmptyCoral</source>
        <translation>Hierher gehören die Korallen und Anemonen dieses Aquariums.</translation>
    </message>
    <message>
        <source>EmptyExpense</source>
        <translation>Hierher gehört, was Sie für dieses Aquarium ausgeben.</translation>
    </message>
    <message>
        <source>EmptyFish</source>
        <translation>Hierher gehören die Fische, die in diesem Aquarium leben.</translation>
    </message>
    <message>
        <source>EmptyInventory</source>
        <translation>Hierher gehören Technik, Futter und Vorräte dieses Aquariums.</translation>
    </message>
    <message>
        <source>EmptyInvert</source>
        <translation>Hierher gehören die Garnelen, Schnecken und anderen Wirbellosen dieses Aquariums.</translation>
    </message>
    <message>
        <source>EmptyNote</source>
        <translation>Hierher gehört alles Merkenswerte über dieses Aquarium.</translation>
    </message>
    <message>
        <source>EmptyOverdue</source>
        <translation>Nichts ist überfällig.</translation>
    </message>
    <message>
        <source>EmptyPlant</source>
        <translation>Hierher gehören die Pflanzen, die in diesem Aquarium wachsen.</translation>
    </message>
    <message>
        <source>EmptySchedule</source>
        <translation>Hierher gehören Wasserwechsel, Filterreinigung und andere Aufgaben mit ihrem Termin.</translation>
    </message>
    <message>
        <source>EmptyTanks</source>
        <translation>Es ist kein Aquarium ausgewählt. Wählen Sie links eines aus oder legen Sie das erste an.</translation>
    </message>
    <message>
        <source>EqualValueMessage</source>
        <extracomment>No per-cent sign: this text is used as a format. ^0 is the target.</extracomment>
        <translation>Der Zielwert für dieses Aquarium ist ^0.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>ExpenseAllItem</source>
        <extracomment>Every category.</extracomment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>ExpenseDataAmount</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Betrag: </translation>
    </message>
    <message>
        <source>ExpenseDataCategory</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Kategorie: </translation>
    </message>
    <message>
        <source>ExpenseDataDate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Datum: </translation>
    </message>
    <message>
        <source>ExpenseDataExpense</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Ausgabe: </translation>
    </message>
    <message>
        <source>ExpenseDataHeader</source>
        <translation>Ausgaben</translation>
    </message>
    <message>
        <source>ExpenseDefaultEquipmentItem</source>
        <extracomment>One of the expense categories of a new tank.</extracomment>
        <translation>Ausstattung</translation>
    </message>
    <message>
        <source>ExpenseEditItem</source>
        <translation>Kategorien bearbeiten …</translation>
    </message>
    <message>
        <source>ExpenseItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>den Ausgaben</translation>
    </message>
    <message>
        <source>ExpenseName</source>
        <translation>Ausgaben</translation>
    </message>
    <message>
        <source>ExpenseNoneItem</source>
        <extracomment>The category of an expense that has none.</extracomment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>ExpensePeriodMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>Gesamt, Ein Jahr, Ein Monat, Zeitraum</translation>
    </message>
    <message>
        <source>ExpenseUndo</source>
        <translation>Änderung an der Ausgabe</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>ExportFileFilter</source>
        <extracomment>Kind of file in the save dialog; the pattern in brackets stays as it is.</extracomment>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>ExportMessage</source>
        <translation>Wassertests als kommagetrennte Werte exportieren.</translation>
    </message>
    <message>
        <source>ExportName</source>
        <extracomment>%@ is the tank&apos;s name; the proposed name of the exported file.</extracomment>
        <translation>Wassertests %@</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>FileGoneMessage</source>
        <translation>Die Datei wurde verschoben, umbenannt oder gelöscht, oder ihr Datenträger ist nicht angeschlossen.</translation>
    </message>
    <message>
        <source>FileGoneTitle</source>
        <extracomment>^0 is the name of a file.</extracomment>
        <translation>„^0“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>FileName</source>
        <extracomment>The file name proposed for a new tank file.</extracomment>
        <translation>Meine Aquarien</translation>
    </message>
    <message>
        <source>Finding</source>
        <extracomment>%i is how many profiles match.</extracomment>
        <translation>Bisher %i gefunden …</translation>
    </message>
    <message>
        <source>FishBreedingMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to breed, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unbekannt, Leicht, Mittel, Schwierig, Noch nicht gelungen</translation>
    </message>
    <message>
        <source>FishDataBreeding</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Vermehrung: </translation>
    </message>
    <message>
        <source>FishDataCare</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Pflege: </translation>
    </message>
    <message>
        <source>FishDataCount</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Anzahl: </translation>
    </message>
    <message>
        <source>FishDataDiet</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Nahrung: </translation>
    </message>
    <message>
        <source>FishDataFamily</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Familie: </translation>
    </message>
    <message>
        <source>FishDataGh</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>GH: </translation>
    </message>
    <message>
        <source>FishDataHeader</source>
        <translation>Fische</translation>
    </message>
    <message>
        <source>FishDataKh</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>KH: </translation>
    </message>
    <message>
        <source>FishDataLifeSpan</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Lebensdauer: </translation>
    </message>
    <message>
        <source>FishDataName</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Name: </translation>
    </message>
    <message>
        <source>FishDataNote</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Notizen: </translation>
    </message>
    <message>
        <source>FishDataPh</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>pH: </translation>
    </message>
    <message>
        <source>FishDataReef</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Riffgeeignet: </translation>
    </message>
    <message>
        <source>FishDataSalt</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Salinität: </translation>
    </message>
    <message>
        <source>FishDataSciName</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Wissenschaftlicher Name: </translation>
    </message>
    <message>
        <source>FishDataSize</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Größe: </translation>
    </message>
    <message>
        <source>FishDataTankLevel</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Beckenzone: </translation>
    </message>
    <message>
        <source>FishDataTemp</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Temperatur: </translation>
    </message>
    <message>
        <source>FishDataTraits</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Verhalten: </translation>
    </message>
    <message>
        <source>FishName</source>
        <translation>Fische</translation>
    </message>
    <message>
        <source>FishSearchButton</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>FishSearchChoose</source>
        <translation>Profil übernehmen</translation>
    </message>
    <message>
        <source>FishSearchFieldName</source>
        <translation>Suchen nach</translation>
    </message>
    <message>
        <source>FishSearchProgressName</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>FishSearchResultsName</source>
        <translation>Gefundene Profile</translation>
    </message>
    <message>
        <source>FishSearchTitle</source>
        <translation>Profile suchen</translation>
    </message>
    <message>
        <source>FlowMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>US-Gallonen pro Stunde in Liter pro Stunde, Liter pro Stunde in US-Gallonen pro Stunde, Liter pro Stunde in Liter pro Sekunde</translation>
    </message>
    <message>
        <source>FolderName</source>
        <extracomment>Same in every language: the folder of this name in the user&apos;s application-data folder is deleted, with all it holds, whenever the program starts.</extracomment>
        <translation>Brinemark Temporary Items</translation>
    </message>
    <message>
        <source>Found</source>
        <extracomment>%i is how many profiles match; may be 0 or 1.</extracomment>
        <translation>%i gefunden</translation>
    </message>
    <message>
        <source>GH</source>
        <extracomment>General hardness; the column is 40 pixels wide.</extracomment>
        <translation>GH</translation>
    </message>
    <message>
        <source>GHSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Salzwasser hat eine Gesamthärte von mehr als 300 Grad, weit mehr, als diese Tests messen können. Testen Sie stattdessen Calcium und Magnesium, und schalten Sie die Warnung dieses Zielwerts aus.</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Diagramm …</translation>
    </message>
    <message>
        <source>GraphClose</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>GraphDraw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>GraphDrawing</source>
        <translation>Wird gezeichnet</translation>
    </message>
    <message>
        <source>GraphEndLabel</source>
        <translation>Ende:</translation>
    </message>
    <message>
        <source>GraphEndToolTip</source>
        <translation>Letzten Test wählen oder ein Datum eingeben</translation>
    </message>
    <message>
        <source>GraphExchangeAndDraw</source>
        <extracomment>Button of the message about dates whose start is after the end</extracomment>
        <translation>Vertauschen und zeichnen</translation>
    </message>
    <message>
        <source>GraphFitScale</source>
        <extracomment>check box below the legend of the graph</extracomment>
        <translation>Maßstab anpassen</translation>
    </message>
    <message>
        <source>GraphFitScaleToolTip</source>
        <translation>Den Maßstab an die gezeigten Linien anpassen</translation>
    </message>
    <message>
        <source>GraphFormSentence</source>
        <translation>Zeichnet die Wassertests zwischen zwei Tagen, mit einer Linie je Spalte, die im Protokoll zu sehen ist. Die Temperatur wird nicht gezeichnet.</translation>
    </message>
    <message>
        <source>GraphHint</source>
        <extracomment>%@ is the date of the first test in the graph.</extracomment>
        <translation>Die Tage zählen ab %@. Scrollen, + oder − zoomen, Ziehen verschiebt, ein Doppelklick zeigt das ganze Diagramm.</translation>
    </message>
    <message>
        <source>GraphLegend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>GraphLegendBand</source>
        <extracomment>^0 and ^1 are the limits of the parameter&apos;s target, numbers.</extracomment>
        <translation>Ziel: ^0 bis ^1</translation>
    </message>
    <message>
        <source>GraphLegendToolTip</source>
        <translation>Diese Linie ein- oder ausblenden.</translation>
    </message>
    <message>
        <source>GraphLegendValue</source>
        <extracomment>^0 is the parameter&apos;s target, a number.</extracomment>
        <translation>Ziel: ^0</translation>
    </message>
    <message>
        <source>GraphNoLines</source>
        <translation>Das Protokoll zeigt keine Spalte, die gezeichnet werden kann. Blenden Sie außer Datum und Temperatur weitere Spalten ein und zeichnen Sie dann erneut.</translation>
    </message>
    <message>
        <source>GraphNoTests</source>
        <translation>Zwischen diesen Tagen gibt es keine Wassertests.</translation>
    </message>
    <message>
        <source>GraphNotTested</source>
        <translation>In diesem Zeitraum nicht getestet</translation>
    </message>
    <message>
        <source>GraphNothingTested</source>
        <translation>Zwischen diesen Tagen wurde keine der Spalten im Protokoll getestet.</translation>
    </message>
    <message>
        <source>GraphPaperAxis</source>
        <extracomment>%@ is the date of the first test; stands below the axis of days of a graph that is printed or saved.</extracomment>
        <translation>Tag, gezählt ab %@ (Tag 1)</translation>
    </message>
    <message>
        <source>GraphPaperDates</source>
        <extracomment>^0 and ^1 are the first and the last date that is visible; stands below the title of a graph that is printed or saved.</extracomment>
        <translation>^0 bis ^1</translation>
    </message>
    <message>
        <source>GraphPaperTitle</source>
        <extracomment>%@ is the tank&apos;s name; stands above a graph that is printed or saved.</extracomment>
        <translation>Wassertests: %@</translation>
    </message>
    <message>
        <source>GraphPdfFilter</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>GraphPngFilter</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>GraphPointFilledIn</source>
        <extracomment>^0 is the parameter and ^1 the date of a water test; in the tool tip of a point of the graph that was interpolated.</extracomment>
        <translation>^0: am ^1 nicht getestet, aus anderen Tests ergänzt</translation>
    </message>
    <message>
        <source>GraphPointTested</source>
        <extracomment>^0 is the parameter, ^1 the value and ^2 the date of a water test; in the tool tip of a point of the graph.</extracomment>
        <translation>^0: ^1 am ^2</translation>
    </message>
    <message>
        <source>GraphPrint</source>
        <translation>Diagramm drucken …</translation>
    </message>
    <message>
        <source>GraphSave</source>
        <translation>Diagramm als Bild oder PDF speichern …</translation>
    </message>
    <message>
        <source>GraphSaveErrorTitle</source>
        <translation>Das Diagramm konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>GraphSaveMessage</source>
        <translation>Diagramm als Bild oder als PDF speichern.</translation>
    </message>
    <message>
        <source>GraphSaveName</source>
        <extracomment>%@ is the tank&apos;s name; the proposed name of the saved picture.</extracomment>
        <translation>Diagramm %@</translation>
    </message>
    <message>
        <source>GraphScale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>GraphScaleToolTip</source>
        <translation>Maßstab: nach oben ziehen, um kleine Werte zu vergrößern</translation>
    </message>
    <message>
        <source>GraphStartLabel</source>
        <translation>Anfang:</translation>
    </message>
    <message>
        <source>GraphStartToolTip</source>
        <translation>Ersten Test wählen oder ein Datum eingeben</translation>
    </message>
    <message>
        <source>GraphSwapToolTip</source>
        <translation>Anfang und Ende vertauschen</translation>
    </message>
    <message>
        <source>GraphTitle</source>
        <extracomment>%@ is the tank&apos;s name; the title of the graph&apos;s window.</extracomment>
        <translation>Diagramm: %@</translation>
    </message>
    <message>
        <source>GraphTitleNoTank</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>GraphViewDescription</source>
        <extracomment>what a screen reader says about the use of a graph</extracomment>
        <translation>Plus und Minus vergrößern und verkleinern, die Pfeiltasten verschieben den Ausschnitt, 0 zeigt alles.</translation>
    </message>
    <message>
        <source>GraphViewName</source>
        <extracomment>what a screen reader calls a graph</extracomment>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>GraphWhole</source>
        <translation>Ganzes Diagramm zeigen</translation>
    </message>
    <message>
        <source>GroupEntries</source>
        <translation>Einträge: </translation>
    </message>
    <message>
        <source>GroupSpecimens</source>
        <translation>Tiere und Pflanzen: </translation>
    </message>
    <message>
        <source>HardnessHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Calcium und Magnesium bilden zusammen die Gesamthärte (GH). Ersetzen Sie täglich ein Zehntel des Wassers durch eine Mischung mit Umkehrosmose- oder destilliertem Wasser, und suchen Sie nach Kalkstein, Muscheln oder Korallensand im Becken. Solches Wasser senkt auch die Karbonathärte (KH): Halten Sie sie über etwa 4 Grad, sonst kann der pH-Wert plötzlich fallen. Ein Enthärter im Haus ersetzt die Härte nur durch Natrium.</translation>
    </message>
    <message>
        <source>HardnessLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Calcium und Magnesium bilden zusammen die Gesamthärte (GH). Heben Sie sie um etwa 1 Grad am Tag mit einem zuvor gelösten Mineralsalz aus beiden oder mit härterem Wasser; Kochsalz hebt sie nicht. Liegt die GH schon im Ziel, ergänzen Sie nur, was von beiden fehlt. Härteres Wasser hebt oft auch KH und pH-Wert, testen Sie deshalb vorher Ammoniak.</translation>
    </message>
    <message>
        <source>HelpBack</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>HelpButton</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>HelpButtonToolTip</source>
        <translation>Diese Ansicht erklären</translation>
    </message>
    <message>
        <source>HelpFind</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <source>HelpFindCount</source>
        <extracomment>^0 is how often the text occurs</extracomment>
        <translation>^0 gefunden</translation>
    </message>
    <message>
        <source>HelpFindNone</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>HelpForward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>HelpHome</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>HelpPageTitle</source>
        <extracomment>^0 is the page&apos;s title</extracomment>
        <translation>^0 – Hilfe</translation>
    </message>
    <message>
        <source>HelpTitle</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>HideCalculatorWindow</source>
        <translation>Rechner ausblenden</translation>
    </message>
    <message>
        <source>HideNotificationWindow</source>
        <translation>Überfällige Aufgaben ausblenden</translation>
    </message>
    <message>
        <source>HideToolbar</source>
        <translation>Symbolleiste ausblenden</translation>
    </message>
    <message>
        <source>HighAmmoniaReason</source>
        <extracomment>Shown in the target editor: two lines at most. ^0 is the number above which a target is too high.</extracomment>
        <translation>Über ^0 kann Ammoniak die Kiemen schädigen. Je höher der pH-Wert, desto mehr davon ist giftig.</translation>
    </message>
    <message>
        <source>HighNitrateReason</source>
        <extracomment>Shown in the target editor: two lines at most. ^0 is the number above which a target is too high.</extracomment>
        <translation>Über ^0 schwächt Nitrat die Tiere auf Dauer, und Algen gedeihen davon.</translation>
    </message>
    <message>
        <source>HighNitriteReason</source>
        <extracomment>Shown in the target editor: two lines at most. ^0 is the number above which a target is too high.</extracomment>
        <translation>Über ^0 kann Nitrit das Blut am Sauerstofftransport hindern, am meisten in weichem Wasser.</translation>
    </message>
    <message>
        <source>HighNitriteSaltReason</source>
        <extracomment>Shown in the target editor: two lines at most. ^0 is the number above which a target is too high.</extracomment>
        <translation>Meerwasser schützt Fische, doch über ^0 kommt der Filter nicht nach: Ammoniak testen.</translation>
    </message>
    <message>
        <source>HighValueMessage</source>
        <extracomment>No per-cent sign: this text is used as a format. ^0 is the upper limit.</extracomment>
        <translation>In diesem Aquarium sollte er nicht über ^0 liegen.</translation>
    </message>
    <message>
        <source>HighValueTitle</source>
        <extracomment>^0 is the title of the parameter&apos;s column.</extracomment>
        <translation>Der Wert „^0“ ist zu hoch.</translation>
    </message>
    <message>
        <source>HighValueWarning</source>
        <extracomment>Shown in the target editor for ammonia, nitrate and nitrite. ^0 is the highest value that the target accepts.</extracomment>
        <translation>Ein Wert von ^0 ist mehr, als einem Becken guttut.</translation>
    </message>
    <message>
        <source>InventoryDataCount</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Anzahl: </translation>
    </message>
    <message>
        <source>InventoryDataHeader</source>
        <translation>Inventar</translation>
    </message>
    <message>
        <source>InventoryDataItem</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Gegenstand: </translation>
    </message>
    <message>
        <source>InventoryItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>dem Inventar</translation>
    </message>
    <message>
        <source>InventoryName</source>
        <translation>Inventar</translation>
    </message>
    <message>
        <source>InventoryUndo</source>
        <translation>Änderung am Inventar</translation>
    </message>
    <message>
        <source>InvertBreedingMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to breed, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unbekannt, Leicht, Mittel, Schwierig, Noch nicht gelungen</translation>
    </message>
    <message>
        <source>InvertDataHeader</source>
        <translation>Wirbellose</translation>
    </message>
    <message>
        <source>InvertName</source>
        <translation>Wirbellose</translation>
    </message>
    <message>
        <source>Iodine</source>
        <translation>Jod</translation>
    </message>
    <message>
        <source>IodineHighAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Geben Sie kein Jod mehr zu. Wechseln Sie täglich ein Zehntel bis ein Fünftel des Wassers, und filtern Sie über frische Aktivkohle, die Jod bindet. Auch manche Heil- und Desinfektionsmittel enthalten es.</translation>
    </message>
    <message>
        <source>IodineLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Im Süßwasser bekommen Tiere mit dem Futter genug Jod. Geben Sie keines zu, und schalten Sie die Warnung dieses Zielwerts aus.</translation>
    </message>
    <message>
        <source>IodineLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Das Meer enthält etwa 0,06 mg/l, und wenig mehr ist für viele Tiere schon giftig. Geben Sie Jod nur nach Test zu, in kleineren Mengen, als der Hersteller erlaubt, und streben Sie nie mehr als diesen Wert an.</translation>
    </message>
    <message>
        <source>Iron</source>
        <translation>Eisen</translation>
    </message>
    <message>
        <source>IronHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Geben Sie eine Weile keinen Eisendünger, wechseln Sie ein Zehntel bis ein Fünftel des Wassers, und testen Sie das Leitungswasser. Mehr als etwa 0,5 mg/l nähren nur Algen.</translation>
    </message>
    <message>
        <source>IronHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Geben Sie kein Eisen mehr zu, und suchen Sie nach Rost an Pumpen, Magneten, Klemmen und Schrauben, die das Wasser berühren. Wechseln Sie ein Zehntel bis ein Fünftel des Wassers.</translation>
    </message>
    <message>
        <source>IronLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Tiere brauchen kein Eisen im Wasser. Werden die jüngsten Blätter der Pflanzen blass, geben Sie Eisendünger in kleinen Gaben; 0,1 mg/l sind reichlich.</translation>
    </message>
    <message>
        <source>IronLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Salzwasser enthält weniger Eisen, als diese Tests messen können, und Futter bringt genug davon mit. Geben Sie nach einem niedrigen Test keines zu, und setzen Sie den Zielwert auf 0.</translation>
    </message>
    <message>
        <source>ItemPagesName</source>
        <translation>Seiten des Profils</translation>
    </message>
    <message>
        <source>ItemSearchButton</source>
        <translation>Profile suchen …</translation>
    </message>
    <message>
        <source>ItemSearchToolTip</source>
        <translation>Sucht die Art in den mitgelieferten Profilen. Änderungen, die noch nicht gespeichert sind, gehen verloren, wenn die Suche abgebrochen wird.</translation>
    </message>
    <message>
        <source>ItemSubmitButton</source>
        <translation>Profil einsenden …</translation>
    </message>
    <message>
        <source>ItemSubmitToolTip</source>
        <translation>Schreibt alles, was hier steht, in eine Nachricht Ihres Mailprogramms</translation>
    </message>
    <message>
        <source>ItemTabNames</source>
        <translation>Namen und Grunddaten</translation>
    </message>
    <message>
        <source>ItemTabPicture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>ItemTabWater</source>
        <translation>Wasser und Ansprüche</translation>
    </message>
    <message>
        <source>KH</source>
        <extracomment>Carbonate hardness; the column is 40 pixels wide.</extracomment>
        <translation>KH</translation>
    </message>
    <message>
        <source>KHHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Ersetzen Sie täglich ein Zehntel des Wassers durch eine Mischung mit Umkehrosmose- oder destilliertem Wasser, und suchen Sie nach Kalkstein, Muscheln oder Korallensand im Becken. Gießen Sie niemals Säure hinein: Sie verwandelt die Härte schlagartig in Kohlendioxid, und zu viel davon lässt den pH-Wert abstürzen.</translation>
    </message>
    <message>
        <source>KHLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Testen Sie Ammoniak, bevor Sie den Wert heben: Der pH-Wert steigt mit der KH, und von pH 6 auf 7 wird zehnmal so viel Ammonium zu Ammoniak. Solange ein Test welches zeigt, wechseln Sie zuerst täglich ein Zehntel mit Wasser von etwa gleichem pH-Wert. Heben Sie die KH dann um höchstens 1 Grad am Tag: Dazu braucht es 3 Gramm Natriumhydrogencarbonat auf 100 Liter, in Wasser gelöst.</translation>
    </message>
    <message>
        <source>KHLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>In Salzwasser ist das die Alkalinität. Heben Sie sie mit einem gelösten Puffer für Riffbecken um höchstens 1 Grad am Tag, und testen Sie auch Calcium und Magnesium. Solange ein Test Ammoniak zeigt, warten Sie damit, denn ein Puffer hebt den pH-Wert.</translation>
    </message>
    <message>
        <source>KeptCopiesMessage</source>
        <extracomment>^0 is a list of paths, one a line.</extracomment>
        <translation>Brinemark wurde beendet, während es eine Datei überschrieb. Ist sie jetzt beschädigt, ersetzen Sie sie durch diese Kopie dessen, was sie vorher enthielt:

^0</translation>
    </message>
    <message>
        <source>KeptCopiesTitle</source>
        <translation>Eine Datei ist möglicherweise beschädigt.</translation>
    </message>
    <message>
        <source>LastColumnToolTip</source>
        <translation>Das Protokoll braucht mindestens eine Spalte</translation>
    </message>
    <message>
        <source>LengthMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Zoll in Zentimeter, Zentimeter in Zoll, Dezimeter in Yard, Zentimeter in Fuß, Fuß in Meter, Meter in Yard, Yard in Meter</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Profile werden geladen …</translation>
    </message>
    <message>
        <source>LowValueMessage</source>
        <extracomment>No per-cent sign: this text is used as a format. ^0 is the lower limit.</extracomment>
        <translation>In diesem Aquarium sollte er nicht unter ^0 liegen.</translation>
    </message>
    <message>
        <source>LowValueTitle</source>
        <extracomment>^0 is the title of the parameter&apos;s column.</extracomment>
        <translation>Der Wert „^0“ ist zu niedrig.</translation>
    </message>
    <message>
        <source>Magnesium</source>
        <translation>Magnesium</translation>
    </message>
    <message>
        <source>MagnesiumHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Prüfen Sie zuerst die Salinität, denn Magnesium steigt mit ihr. Geben Sie keines mehr zu, und lassen Sie den Wert durch gewöhnliche Wasserwechsel sinken; bis etwa 1500 mg/l eilt es nicht.</translation>
    </message>
    <message>
        <source>MagnesiumLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Riffbecken hält man gewöhnlich bei 1250 bis 1400 mg/l. Prüfen Sie zuerst die Salinität, denn Magnesium sinkt mit ihr. Heben Sie Magnesium mit einem gelösten Salz um höchstens 50 mg/l am Tag, bevor Sie Calcium oder Alkalinität korrigieren, die sich ohne Magnesium nicht halten.</translation>
    </message>
    <message>
        <source>MainViewTitle</source>
        <extracomment>Heads a view: ^0 is what it shows, ^1 the tank&apos;s name.</extracomment>
        <translation>^0 – ^1</translation>
    </message>
    <message>
        <source>MakeDefaultCheck</source>
        <extracomment>Check box in the open and save dialogs.</extracomment>
        <translation>Diese Datei bei jedem Start von Brinemark öffnen</translation>
    </message>
    <message>
        <source>MeasurementMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Grad Härte in ppm, ppm in Grad Härte, Relative Dichte in Salinität (Promille), Salinität (Promille) in relative Dichte, Esslöffel in Teelöffel, Teelöffel in Tropfen, Milliliter in Teelöffel, Teelöffel in Milliliter, Grad Karbonathärte in mval/l, mval/l in Grad Karbonathärte</translation>
    </message>
    <message>
        <source>MenuEdit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>MenuEditCopy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>MenuEditCut</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>MenuEditDelete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>MenuEditPaste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>MenuEditPreferences</source>
        <translation>E&amp;instellungen …</translation>
    </message>
    <message>
        <source>MenuEditRedo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>MenuEditRedoNamed</source>
        <extracomment>%@ is the change that can be repeated.</extracomment>
        <translation>%@ wiederholen</translation>
    </message>
    <message>
        <source>MenuEditSelectAll</source>
        <translation>Alles a&amp;uswählen</translation>
    </message>
    <message>
        <source>MenuEditUndo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>MenuEditUndoNamed</source>
        <extracomment>%@ is the change that can be undone.</extracomment>
        <translation>%@ rückgängig machen</translation>
    </message>
    <message>
        <source>MenuFile</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>MenuFileExport</source>
        <translation>Wassertests e&amp;xportieren …</translation>
    </message>
    <message>
        <source>MenuFileNew</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>MenuFileOpen</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>MenuFileOpenRecent</source>
        <translation>&amp;Zuletzt verwendet</translation>
    </message>
    <message>
        <source>MenuFilePageSetup</source>
        <translation>Seite &amp;einrichten …</translation>
    </message>
    <message>
        <source>MenuFilePrint</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>MenuFileQuit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>MenuFileRevert</source>
        <translation>Zurück zur &amp;gespeicherten Fassung</translation>
    </message>
    <message>
        <source>MenuFileSave</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>MenuFileSaveAs</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>MenuHelp</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>MenuHelpAbout</source>
        <translation>Ü&amp;ber Brinemark</translation>
    </message>
    <message>
        <source>MenuHelpFeedback</source>
        <translation>&amp;Rückmeldung senden</translation>
    </message>
    <message>
        <source>MenuHelpHelp</source>
        <translation>Brinemark-&amp;Hilfe</translation>
    </message>
    <message>
        <source>MenuHelpMailingList</source>
        <translation>&amp;Mailingliste …</translation>
    </message>
    <message>
        <source>MenuHelpProductPage</source>
        <translation>&amp;Produktseite</translation>
    </message>
    <message>
        <source>MenuHelpUpdates</source>
        <translation>Nach &amp;Updates suchen …</translation>
    </message>
    <message>
        <source>MenuRecentClear</source>
        <translation>&amp;Menü leeren</translation>
    </message>
    <message>
        <source>MenuRecentNone</source>
        <extracomment>Stands in the menu of the recent files while it holds none.</extracomment>
        <translation>Keine Dateien</translation>
    </message>
    <message>
        <source>MenuSortAscending</source>
        <extracomment>Without a mnemonic: the columns above need all letters.</extracomment>
        <translation>Aufsteigend</translation>
    </message>
    <message>
        <source>MenuSortDescending</source>
        <extracomment>Without a mnemonic: the columns above need all letters.</extracomment>
        <translation>Absteigend</translation>
    </message>
    <message>
        <source>MenuSortNone</source>
        <extracomment>Stands in the menu of the columns to sort by while no list is on screen.</extracomment>
        <translation>Keine Liste wird gezeigt</translation>
    </message>
    <message>
        <source>MenuTank</source>
        <translation>&amp;Aquarium</translation>
    </message>
    <message>
        <source>MenuTankEdit</source>
        <translation>Aquarium &amp;bearbeiten …</translation>
    </message>
    <message>
        <source>MenuTankNewActivity</source>
        <translation>Neue A&amp;ufgabe</translation>
    </message>
    <message>
        <source>MenuTankNewCoral</source>
        <translation>Neue &amp;Koralle …</translation>
    </message>
    <message>
        <source>MenuTankNewExpense</source>
        <translation>Neue Au&amp;sgabe</translation>
    </message>
    <message>
        <source>MenuTankNewFish</source>
        <translation>Neuer &amp;Fisch …</translation>
    </message>
    <message>
        <source>MenuTankNewInventory</source>
        <translation>Neuer &amp;Gegenstand</translation>
    </message>
    <message>
        <source>MenuTankNewInvert</source>
        <translation>Neues &amp;wirbelloses Tier …</translation>
    </message>
    <message>
        <source>MenuTankNewNote</source>
        <translation>Neue &amp;Notiz</translation>
    </message>
    <message>
        <source>MenuTankNewPlant</source>
        <translation>Neue &amp;Pflanze …</translation>
    </message>
    <message>
        <source>MenuTankNewTank</source>
        <translation>Neues &amp;Aquarium …</translation>
    </message>
    <message>
        <source>MenuTankNewWaterTest</source>
        <translation>Neuer Wasser&amp;test</translation>
    </message>
    <message>
        <source>MenuTreeRename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>MenuView</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>MenuViewCollapse</source>
        <translation>&amp;Zuklappen</translation>
    </message>
    <message>
        <source>MenuViewCustomiseToolbar</source>
        <translation>&amp;Symbolleiste anpassen …</translation>
    </message>
    <message>
        <source>MenuViewExpand</source>
        <translation>&amp;Aufklappen</translation>
    </message>
    <message>
        <source>MenuViewGraph</source>
        <translation>&amp;Diagramm …</translation>
    </message>
    <message>
        <source>MenuViewSortBy</source>
        <translation>Sortieren &amp;nach</translation>
    </message>
    <message>
        <source>MenuWindow</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>MenuWindowMinimise</source>
        <translation>&amp;Minimieren</translation>
    </message>
    <message>
        <source>NewButtonToolTip</source>
        <translation>Eintrag hinzufügen</translation>
    </message>
    <message>
        <source>NewCoralName</source>
        <translation>Neue Koralle</translation>
    </message>
    <message>
        <source>NewExpenseItem</source>
        <translation>Neue Ausgabe</translation>
    </message>
    <message>
        <source>NewFishName</source>
        <translation>Neuer Fisch</translation>
    </message>
    <message>
        <source>NewInventoryItem</source>
        <translation>Neuer Gegenstand</translation>
    </message>
    <message>
        <source>NewInvertName</source>
        <translation>Neues wirbelloses Tier</translation>
    </message>
    <message>
        <source>NewNoteItem</source>
        <translation>Neue Notiz</translation>
    </message>
    <message>
        <source>NewPlantName</source>
        <translation>Neue Pflanze</translation>
    </message>
    <message>
        <source>NewScheduleItem</source>
        <translation>Neue Aufgabe</translation>
    </message>
    <message>
        <source>NewTankName</source>
        <translation>Neues Aquarium</translation>
    </message>
    <message>
        <source>NewTankTitle</source>
        <translation>Neues Aquarium</translation>
    </message>
    <message>
        <source>NewTitle</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>NextItemToolTip</source>
        <translation>Nächster Eintrag dieser Gruppe</translation>
    </message>
    <message>
        <source>NextMonth</source>
        <translation>Nächster Monat (Bild ab)</translation>
    </message>
    <message>
        <source>NextYear</source>
        <translation>Nächstes Jahr (Umschalt + Bild ab)</translation>
    </message>
    <message>
        <source>Nitrate</source>
        <translation>Nitrat</translation>
    </message>
    <message>
        <source>NitrateFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated nitrate in fresh water, mg/l.</extracomment>
        <translation>40</translation>
    </message>
    <message>
        <source>NitrateHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Gibt Ihr Test Stickstoff an (NO₃-N), multiplizieren Sie seinen Wert mit 4,4, um Nitrat zu erhalten, und vergleichen Sie das mit dem Zielwert.</translation>
    </message>
    <message>
        <source>NitrateHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Korallen und andere Wirbellose vertragen weniger als Fische, etwa 20 mg/l. Gibt Ihr Test Stickstoff an (NO₃-N), multiplizieren Sie seinen Wert mit 4,4, um Nitrat zu erhalten, und vergleichen Sie das mit dem Zielwert.</translation>
    </message>
    <message>
        <source>NitrateLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Fische brauchen kein Nitrat. Pflanzen gedeihen gewöhnlich bei 10 bis 20 mg/l; in einem Becken ohne Pflanzen setzen Sie den Zielwert auf 0.</translation>
    </message>
    <message>
        <source>NitrateLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Fische brauchen kein Nitrat, aber Korallen hungern, wenn Nitrat und Phosphat beide null sind. Üblich sind im Riffbecken 2 bis 10 mg/l.</translation>
    </message>
    <message>
        <source>NitrateSaltValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated nitrate in sea water, mg/l.</extracomment>
        <translation>20</translation>
    </message>
    <message>
        <source>NitrateTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Nitrat ist, was von Futter und Ausscheidungen bleibt, wenn der Filter seine Arbeit getan hat. Es wirkt langsam, Sie haben also Zeit.

Zu hoch: Wechseln Sie jetzt und danach alle paar Tage ein Fünftel bis ein Drittel des Wassers, bis der Wert im Rahmen liegt, aber nie alles auf einmal, denn an viel Nitrat gewöhnte Tiere vertragen ein plötzliches Absinken schlecht. Testen Sie auch das Leitungswasser. Damit der Wert niedrig bleibt: weniger füttern, den Boden reinigen, den Filter in Aquarienwasser ausspülen, wenige Tiere halten und Pflanzen wachsen lassen, im Meerwasser Makroalgen bei guter Abschäumung.

Zu niedrig für Pflanzen oder Korallen: etwas mehr füttern oder einen Nitratdünger in kleinen Mengen zugeben und vor jeder Gabe testen.</translation>
    </message>
    <message>
        <source>Nitrite</source>
        <translation>Nitrit</translation>
    </message>
    <message>
        <source>NitriteFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated nitrite in fresh water, mg/l.</extracomment>
        <translation>0.1</translation>
    </message>
    <message>
        <source>NitriteHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>Sofort: Testen Sie Ammoniak; ist unter pH 7 welches da, wechseln Sie jeweils nur ein Zehntel des Wassers, denn ein höherer pH-Wert macht es giftig. Sonst ersetzen Sie ein Drittel bis die Hälfte des Wassers durch aufbereitetes Wasser gleicher Temperatur, und das täglich, bis der Wert im Rahmen liegt, denn Nitrit hindert das Blut am Sauerstofftransport. Chlorid schützt Fische: Fast alle, und die meisten Pflanzen, vertragen etwa 1 Gramm reines Salz (Natriumchlorid ohne Zusätze) auf 10 Liter, in Aquarienwasser gelöst und einmalig über mehrere Stunden zugegeben. Danach geben Sie nur so viel nach, wie jeder Wasserwechsel entfernt.</translation>
    </message>
    <message>
        <source>NitriteHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Salzwasser enthält etwa 19 g/l Chlorid, das Nitrit von den Kiemen fernhält: Fische vertragen ein Vielfaches dessen, was ihnen im Süßwasser schaden würde. Nitrit allein verlangt hier keinen großen Wasserwechsel. Warten Sie auf den Filter, und handeln Sie, wenn ein Test Ammoniak zeigt.</translation>
    </message>
    <message>
        <source>NitriteLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Zu niedrig ist kein Mangel: Ein eingefahrenes Becken zeigt kein Nitrit. Geben Sie keines zu und setzen Sie den Zielwert auf 0.</translation>
    </message>
    <message>
        <source>NitriteSaltValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated nitrite in sea water, mg/l.</extracomment>
        <translation>0.5</translation>
    </message>
    <message>
        <source>NitriteTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Beginnt der letzte Absatz mit „Sofort“, tun Sie das zuerst. Nitrit im Wasser zeigt, dass die Bakterien des Filters nicht nachkommen, wie oft in einem neuen Becken. Testen Sie auch Ammoniak, das gefährlicher ist.

Bis der Wert im Rahmen liegt, testen Sie täglich, füttern wenig, belüften kräftig, setzen keine Tiere ein und spülen Filtermaterial nur in Aquarienwasser.</translation>
    </message>
    <message>
        <source>NoBrowserMessage</source>
        <extracomment>^0 is a web address.</extracomment>
        <translation>Richten Sie auf Ihrem Desktop einen Browser ein, oder besuchen Sie ^0 selbst.</translation>
    </message>
    <message>
        <source>NoBrowserTitle</source>
        <translation>Es wurde kein Webbrowser gefunden.</translation>
    </message>
    <message>
        <source>NoDisplayMessage</source>
        <translation>Brinemark braucht einen Desktop, um sein Fenster zu zeigen, und hat keinen gefunden. Starten Sie es aus einer Desktop-Sitzung oder setzen Sie DISPLAY oder WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>NoFishData</source>
        <translation>Die Profile konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>NoFishDataMessage</source>
        <translation>Die Sammlung der Artenprofile, die zu Brinemark gehört, fehlt oder ist beschädigt. Ihre Aquarien sind davon nicht betroffen. Eine erneute Installation von Brinemark stellt die Profile wieder her.</translation>
    </message>
    <message>
        <source>NoLabel</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>NoMailProgramMessage</source>
        <extracomment>^0 is a mail address.</extracomment>
        <translation>Richten Sie auf Ihrem Desktop ein E-Mail-Programm ein, oder schreiben Sie selbst an ^0.</translation>
    </message>
    <message>
        <source>NoMailProgramTitle</source>
        <translation>Es wurde kein E-Mail-Programm gefunden.</translation>
    </message>
    <message>
        <source>NoneSelected</source>
        <extracomment>No file is opened at start.</extracomment>
        <translation>Keine ausgewählt</translation>
    </message>
    <message>
        <source>NotATankFileMessage</source>
        <translation>Wählen Sie eine Datei, die mit diesem Programm gesichert wurde.</translation>
    </message>
    <message>
        <source>NotATankFileTitle</source>
        <extracomment>^0 is the name of the file</extracomment>
        <translation>„^0“ ist keine Tankdatei.</translation>
    </message>
    <message>
        <source>NotFullyReadMessage</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>Nur ein Teil von „^0“ ist geöffnet. Beim Sichern in dieselbe Datei ginge verloren, was nicht gelesen werden konnte. Sichern Sie unter einem anderen Namen, um beides zu behalten.</translation>
    </message>
    <message>
        <source>NotFullyReadTitle</source>
        <translation>Nicht alles in dieser Datei konnte gelesen werden.</translation>
    </message>
    <message>
        <source>NotTested</source>
        <extracomment>Fills the table cells of values that were not tested: a few letters, no digits, not a lone hyphen.</extracomment>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>NotTestedDialogMessage</source>
        <translation>In einem neuen Wassertest gelten zunächst alle Werte als nicht getestet. Solche Werte führen zu keiner Warnung, bleiben in Exporten leer und werden in Diagrammen durch eine gerade Linie überbrückt. Leeren Sie eine Zelle, um ihren Wert wieder als nicht getestet zu kennzeichnen.</translation>
    </message>
    <message>
        <source>NotTestedDialogTitle</source>
        <translation>Tragen Sie nur ein, was Sie getestet haben.</translation>
    </message>
    <message>
        <source>NoteDataDate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Datum: </translation>
    </message>
    <message>
        <source>NoteDataHeader</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>NoteDataNote</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Notiz: </translation>
    </message>
    <message>
        <source>NoteItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>den Notizen</translation>
    </message>
    <message>
        <source>NoteName</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>NoteUndo</source>
        <translation>Änderung an der Notiz</translation>
    </message>
    <message>
        <source>NotificationGoTo</source>
        <translation>Im Wartungsplan zeigen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OffLabel</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>OnLabel</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Online</source>
        <extracomment>Ends the list of what to search by; opens the browser.</extracomment>
        <translation>Im Internet</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Ursprünglicher Termin</translation>
    </message>
    <message>
        <source>OverdueRescheduleMessage</source>
        <translation>Von welchem Tag an soll die nächste gezählt werden? „Heute“ beginnt einen neuen Rhythmus; „Ursprünglicher Termin“ behält den alten bei, auch wenn die nächste Aufgabe dann sofort fällig ist. „Abbrechen“ kennzeichnet diese Aufgabe wieder als nicht erledigt.</translation>
    </message>
    <message>
        <source>OverdueRescheduleTitle</source>
        <translation>Diese Aufgabe war überfällig.</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Sauerstoff</translation>
    </message>
    <message>
        <source>OxygenHighAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>In hellem Licht heben Pflanzen und Algen den Wert über das, was Luft allein geben kann: etwa 8 mg/l in warmem Süßwasser und 7 mg/l in warmem Salzwasser. Das ist harmlos. Bleiben kleine Blasen an den Tieren, suchen Sie nach einer Pumpe, die Luft ansaugt, und bewegen Sie die Oberfläche. Unter 5 mg/l ist es zu wenig, was immer der Zielwert sagt.</translation>
    </message>
    <message>
        <source>OxygenLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>Sofort: Belüften Sie kräftig, lassen Sie den Filter die Oberfläche bewegen und stellen Sie jede Kohlendioxidzufuhr ab. Unter 5 mg/l leiden Jungfische, unter 3 mg/l auch ausgewachsene. Füttern Sie dann einen Tag nicht, entfernen Sie Totes und Faulendes und kühlen Sie zu warmes Wasser langsam. Testen Sie wieder am frühen Morgen, wenn der Sauerstoff am niedrigsten ist.</translation>
    </message>
    <message>
        <source>OxygenShort</source>
        <extracomment>Column title: keep it short.</extracomment>
        <translation>O₂</translation>
    </message>
    <message>
        <source>Ph</source>
        <translation>pH</translation>
    </message>
    <message>
        <source>PhHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Pflanzen verbrauchen Kohlendioxid und heben tagsüber den pH-Wert; vergleichen Sie also Tests der gleichen Stunde. Zeigt ein Test Ammoniak, behandeln Sie das zuerst: Ein Teil von 19 ist giftig bei pH 8, einer von 180 bei pH 7.</translation>
    </message>
    <message>
        <source>PhHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Über etwa pH 8,6 geben Sie kein Kalkwasser und keinen Puffer mehr zu und belüften: Kohlendioxid aus der Luft senkt den pH-Wert. Zeigt ein Test Ammoniak, behandeln Sie das zuerst.</translation>
    </message>
    <message>
        <source>PhLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Unter etwa pH 6 arbeiten die Filterbakterien kaum, und Ammonium kann sich unbemerkt angesammelt haben. Testen Sie vor jedem Wasserwechsel oder Puffer Ammoniak: Von pH 6 auf 7 wird zehnmal so viel davon giftig.</translation>
    </message>
    <message>
        <source>PhLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>In einem Riffbecken ist der pH-Wert am frühen Morgen am niedrigsten; vergleichen Sie also Tests der gleichen Stunde. Lüften Sie den Raum, testen Sie dann die Alkalinität, und puffern Sie nur, wenn auch sie niedrig ist.</translation>
    </message>
    <message>
        <source>PhTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Eine ganze pH-Stufe bedeutet das Zehnfache. Ändern Sie den Wert deshalb um höchstens 0,2 bis 0,3 am Tag: Ein beständiger, nicht ganz passender Wert schadet weniger als eine schnelle Korrektur. Messen Sie zuerst Ammoniak und Karbonathärte (KH). Heben Sie den pH-Wert niemals an, solange Ammoniak nachweisbar ist; unter etwa 4 Grad KH schwankt er leicht.

Zu niedrig: Meist ist die Karbonathärte verbraucht; wechseln Sie jeden Tag ein wenig Wasser und heben Sie die KH dann in kleinen Schritten an. Im Meerwasser hilft oft schon frische Luft im Raum.

Zu hoch: Im Süßwasser weicheres Wasser beimischen oder Kohlendioxid oder Torf einsetzen; im Meerwasser, wo 8,0 bis 8,4 üblich sind, vor jedem Zusatz die Alkalinität prüfen.</translation>
    </message>
    <message>
        <source>Phosphate</source>
        <translation>Phosphat</translation>
    </message>
    <message>
        <source>PhosphateHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Phosphat schadet Tieren kaum, nährt aber Algen. Füttern Sie weniger, wechseln Sie jeweils ein Zehntel bis ein Fünftel des Wassers, testen Sie das Leitungswasser, und verwenden Sie einen Phosphatentferner, wenn das nicht reicht. Gibt Ihr Test Phosphor an (PO₄-P), multiplizieren Sie seinen Wert mit 3,1, um Phosphat zu erhalten.</translation>
    </message>
    <message>
        <source>PhosphateHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Über etwa 0,1 mg/l wachsen Korallen langsamer. Füttern Sie weniger, und verwenden Sie einen Phosphatentferner in kleinen Mengen: Ein plötzliches Absinken schadet Korallen mehr als der Wert selbst. Gibt Ihr Test Phosphor an (PO₄-P), multiplizieren Sie seinen Wert mit 3,1, um Phosphat zu erhalten.</translation>
    </message>
    <message>
        <source>PhosphateLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Tiere brauchen kein Phosphat im Wasser. Pflanzen gedeihen bei 0,1 bis 1 mg/l, aus Dünger in kleinen Gaben; in einem Becken ohne Pflanzen setzen Sie den Zielwert auf 0.</translation>
    </message>
    <message>
        <source>PhosphateLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Korallen brauchen eine Spur, gewöhnlich 0,02 bis 0,1 mg/l. Nehmen Sie etwas vom Phosphatentferner heraus, oder füttern Sie ein wenig mehr.</translation>
    </message>
    <message>
        <source>PictureChoose</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>PictureDamaged</source>
        <translation>Die Datei ist beschädigt oder nicht vollständig.</translation>
    </message>
    <message>
        <source>PictureFilter</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>PictureLabel</source>
        <translation>Bild: </translation>
    </message>
    <message>
        <source>PictureNotAPicture</source>
        <translation>Wählen Sie ein Bild in einem der Formate PNG, JPEG, WebP, GIF, BMP oder TIFF.</translation>
    </message>
    <message>
        <source>PictureNotReadable</source>
        <translation>Die Datei kann nicht gelesen werden. Prüfen Sie, ob sie noch da ist und ob Sie sie öffnen dürfen.</translation>
    </message>
    <message>
        <source>PicturePageTitle</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>PictureRefusedTitle</source>
        <extracomment>^0 is the name of the file</extracomment>
        <translation>Das Bild „^0“ kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>PictureRemove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>PictureTooLarge</source>
        <translation>Es ist zu groß. Ein Bild darf bis zu 100 Millionen Bildpunkte haben.</translation>
    </message>
    <message>
        <source>PictureUnreadable</source>
        <translation>Dieses Bild kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>PlantBreedingMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to breed, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unbekannt, Leicht, Mittel, Schwierig, Gelingt selten</translation>
    </message>
    <message>
        <source>PlantDataHeader</source>
        <translation>Pflanzen</translation>
    </message>
    <message>
        <source>PlantName</source>
        <translation>Pflanzen</translation>
    </message>
    <message>
        <source>PlusMinus</source>
        <extracomment>Stands before a tolerance, with a blank between.</extracomment>
        <translation>±</translation>
    </message>
    <message>
        <source>PollutantMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Nitrat in Nitratstickstoff, Nitratstickstoff in Nitrat</translation>
    </message>
    <message>
        <source>PreferencesNotSavedMessage</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>Was Sie darin ändern, gilt, bis Sie das Programm beenden. Prüfen Sie, ob die Datei „^0“ geschrieben werden kann und ob auf dem Datenträger noch Platz frei ist.</translation>
    </message>
    <message>
        <source>PreferencesNotSavedTitle</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>PreferredStepperToolTip</source>
        <translation>Zielwert erhöhen oder senken</translation>
    </message>
    <message>
        <source>PreferredToolTip</source>
        <translation>Der angestrebte Wert, in der Einheit Ihres Testsets</translation>
    </message>
    <message>
        <source>PrefsAutoSaveAsk</source>
        <translation>Nachfragen</translation>
    </message>
    <message>
        <source>PrefsAutoSaveOn</source>
        <translation>Automatisch speichern</translation>
    </message>
    <message>
        <source>PrefsCalendar</source>
        <translation>Kalender für Aufgaben:</translation>
    </message>
    <message>
        <source>PrefsChoose</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>PrefsClear</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>PrefsClearToolTip</source>
        <translation>Beim Start keine Datei öffnen</translation>
    </message>
    <message>
        <source>PrefsDefaultFile</source>
        <translation>Beim Start geöffnete Datei:</translation>
    </message>
    <message>
        <source>PrefsHiddenMessages</source>
        <translation>Nicht mehr angezeigte Meldungen:</translation>
    </message>
    <message>
        <source>PrefsHiddenMessagesNone</source>
        <extracomment>The number of messages that are not shown again.</extracomment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>PrefsNoCalendars</source>
        <translation>Kein Kalender gefunden</translation>
    </message>
    <message>
        <source>PrefsOnQuit</source>
        <translation>Nicht gespeicherte Änderungen beim Beenden:</translation>
    </message>
    <message>
        <source>PrefsOverdueCheck</source>
        <translation>Beim Öffnen einer Datei überfällige Aufgaben anzeigen</translation>
    </message>
    <message>
        <source>PrefsSchedule</source>
        <translation>Wartung:</translation>
    </message>
    <message>
        <source>PrefsShowMessages</source>
        <translation>Wieder anzeigen</translation>
    </message>
    <message>
        <source>PrefsShowMessagesToolTip</source>
        <translation>Alle Meldungen wieder anzeigen, die Sie mit „Diese Meldung nicht mehr anzeigen“ abgeschaltet haben</translation>
    </message>
    <message>
        <source>PrefsTitle</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>PreviousItemToolTip</source>
        <translation>Voriger Eintrag dieser Gruppe</translation>
    </message>
    <message>
        <source>PreviousMonth</source>
        <translation>Voriger Monat (Bild auf)</translation>
    </message>
    <message>
        <source>PreviousYear</source>
        <translation>Voriges Jahr (Umschalt + Bild auf)</translation>
    </message>
    <message>
        <source>PrintItemMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>Alles, Ausgewählte Teile</translation>
    </message>
    <message>
        <source>PrintPartsLabel</source>
        <translation>Teile:</translation>
    </message>
    <message>
        <source>PrintTankMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>Alle Aquarien, Aktuelles Aquarium</translation>
    </message>
    <message>
        <source>PrintTanksLabel</source>
        <translation>Drucken:</translation>
    </message>
    <message>
        <source>PrintTitle</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>ProfileViewTitle</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>ReadErrorMessage</source>
        <translation>Ein Teil der Daten konnte nicht gelesen werden, weil er beschädigt oder unvollständig ist. Was vorher gelesen werden konnte, wird angezeigt; die Datei, aus der es stammt, wurde nicht verändert. Legen Sie eine Kopie dieser Datei an, bevor Sie etwas darüber speichern.</translation>
    </message>
    <message>
        <source>ReefSafeMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Yes, no, unknown.</extracomment>
        <translation>ja, nein, unbekannt</translation>
    </message>
    <message>
        <source>ReplaceFileButton</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>ReplaceFileMessage</source>
        <translation>Wenn Sie die Datei ersetzen, geht ihr jetziger Inhalt verloren.</translation>
    </message>
    <message>
        <source>ReplaceFileTitle</source>
        <extracomment>^0 is the name of a file.</extracomment>
        <translation>„^0“ gibt es schon.</translation>
    </message>
    <message>
        <source>RevertLabel</source>
        <translation>Zurückkehren</translation>
    </message>
    <message>
        <source>RevertMessage</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>Die Datei „^0“ auf dem Datenträger bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>RevertTitle</source>
        <translation>Möchten Sie zur gespeicherten Fassung zurückkehren?</translation>
    </message>
    <message>
        <source>Salinity</source>
        <translation>Salinität</translation>
    </message>
    <message>
        <source>SaltHighAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Ersetzen Sie Beckenwasser in mehreren kleinen Mengen durch aufbereitetes Süßwasser, sodass die relative Dichte um höchstens 0,001 am Tag sinkt. Füllen Sie Verdunstetes nur mit Süßwasser nach, denn das Salz bleibt zurück.</translation>
    </message>
    <message>
        <source>SaltLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Geben Sie niemals trockenes Salz ins Becken, denn es verätzt die Tiere, die es berührt. Lösen Sie es vorher in anderem Wasser, und gießen Sie dieses in mehreren kleinen Mengen langsam hinein, sodass die relative Dichte um höchstens 0,001 am Tag steigt.</translation>
    </message>
    <message>
        <source>SaveErrorBeforeNew</source>
        <translation>Ihre Änderungen sind noch geöffnet, gehen aber verloren, wenn Sie eine neue Datei beginnen, ohne sie zu speichern.</translation>
    </message>
    <message>
        <source>SaveErrorBeforeOpen</source>
        <translation>Ihre Änderungen sind noch geöffnet, gehen aber verloren, wenn Sie eine andere Datei öffnen, ohne sie zu speichern.</translation>
    </message>
    <message>
        <source>SaveErrorBeforeQuit</source>
        <translation>Ihre Änderungen sind noch geöffnet, gehen aber verloren, wenn Sie das Programm beenden, ohne sie zu speichern.</translation>
    </message>
    <message>
        <source>SaveErrorDiscardNew</source>
        <translation>Neu ohne Speichern</translation>
    </message>
    <message>
        <source>SaveErrorDiscardOpen</source>
        <translation>Öffnen ohne Speichern</translation>
    </message>
    <message>
        <source>SaveErrorDiscardQuit</source>
        <translation>Beenden ohne Speichern</translation>
    </message>
    <message>
        <source>SaveErrorMessage</source>
        <translation>Die Aquariendatei konnte nicht richtig gespeichert werden.</translation>
    </message>
    <message>
        <source>SaveErrorStillOpen</source>
        <translation>Ihre Änderungen sind in Brinemark weiterhin geöffnet. Versuchen Sie es noch einmal, oder wählen Sie mit „Speichern unter“ einen anderen Ort.</translation>
    </message>
    <message>
        <source>SaveLabel</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>SaveLeftDamagedFile</source>
        <extracomment>^0 is the path of a copy.</extracomment>
        <translation>Die Datei ist jetzt beschädigt. Was sie vorher enthielt, steht in „^0“.</translation>
    </message>
    <message>
        <source>SaveLeftNewFile</source>
        <translation>Die neue Fassung steht in der Datei, aber der Datenträger hat nicht bestätigt, dass sie einen Stromausfall übersteht.</translation>
    </message>
    <message>
        <source>SaveLeftOldFile</source>
        <translation>Auf dem Datenträger wurde nichts verändert.</translation>
    </message>
    <message>
        <source>SaveMessage</source>
        <translation>Wenn Sie nicht speichern, geht alles verloren, was Sie seit dem letzten Speichern geändert haben.</translation>
    </message>
    <message>
        <source>SaveProblemDevice</source>
        <translation>Der Datenträger oder das Netzlaufwerk meldet einen Fehler.</translation>
    </message>
    <message>
        <source>SaveProblemNameTooLong</source>
        <translation>Der Name der Datei ist zu lang.</translation>
    </message>
    <message>
        <source>SaveProblemNoPermission</source>
        <translation>Sie dürfen dort nicht schreiben.</translation>
    </message>
    <message>
        <source>SaveProblemNoSafeCopy</source>
        <translation>In seinem Ordner kann nichts angelegt werden, und in Ihrem persönlichen Ordner ließ sich keine Kopie aufbewahren, während die Datei überschrieben wird.</translation>
    </message>
    <message>
        <source>SaveProblemNoSpace</source>
        <translation>Auf dem Datenträger ist nicht genug Platz frei.</translation>
    </message>
    <message>
        <source>SaveProblemNotAFile</source>
        <translation>Unter diesem Namen gibt es schon etwas, das keine Datei ist.</translation>
    </message>
    <message>
        <source>SaveProblemOther</source>
        <extracomment>^0 is the system&apos;s reason.</extracomment>
        <translation>Das System meldet: ^0.</translation>
    </message>
    <message>
        <source>SaveProblemPathGone</source>
        <translation>Der Ordner ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>SaveProblemQuota</source>
        <translation>Ihr Anteil am Speicherplatz ist verbraucht.</translation>
    </message>
    <message>
        <source>SaveProblemReadOnly</source>
        <translation>Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>SaveProblemTooLarge</source>
        <translation>Die Datei ist größer, als der Datenträger erlaubt.</translation>
    </message>
    <message>
        <source>SaveQuitTitle</source>
        <translation>Möchten Sie die Änderungen vor dem Beenden speichern?</translation>
    </message>
    <message>
        <source>SaveTitle</source>
        <translation>Möchten Sie die Änderungen an dieser Aquariendatei speichern?</translation>
    </message>
    <message>
        <source>SavingPicturesMessage</source>
        <translation>Einige Bilder werden zuvor in PNG umgewandelt.</translation>
    </message>
    <message>
        <source>SavingPicturesTitle</source>
        <extracomment>^0 is the name of the file</extracomment>
        <translation>„^0“ wird gespeichert …</translation>
    </message>
    <message>
        <source>ScheduleCustomDays</source>
        <translation>Anzahl Tage …</translation>
    </message>
    <message>
        <source>ScheduleCustomWeeks</source>
        <translation>Anzahl Wochen …</translation>
    </message>
    <message>
        <source>ScheduleDataActivity</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Aufgabe: </translation>
    </message>
    <message>
        <source>ScheduleDataAuto</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Wiederkehrend: </translation>
    </message>
    <message>
        <source>ScheduleDataComplete</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Erledigt: </translation>
    </message>
    <message>
        <source>ScheduleDataDate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Fällig: </translation>
    </message>
    <message>
        <source>ScheduleDataHeader</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>ScheduleIntervalMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>1 Tag, 2 Tage, 1 Woche, 2 Wochen, 4 Wochen, 52 Wochen</translation>
    </message>
    <message>
        <source>ScheduleItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>dem Wartungsplan</translation>
    </message>
    <message>
        <source>ScheduleName</source>
        <extracomment>Name of the maintenance schedule; also ends the title of a calendar event.</extracomment>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>ScheduleUndo</source>
        <translation>Änderung an der Aufgabe</translation>
    </message>
    <message>
        <source>SciName</source>
        <translation>Wissenschaftlicher Name</translation>
    </message>
    <message>
        <source>SearchBy</source>
        <translation>Suchen nach:</translation>
    </message>
    <message>
        <source>SearchByToolTip</source>
        <translation>Auswählen, wonach gesucht wird</translation>
    </message>
    <message>
        <source>SearchImagesOnline</source>
        <translation>Bilder im Internet suchen</translation>
    </message>
    <message>
        <source>SearchOnline</source>
        <translation>Im Internet suchen</translation>
    </message>
    <message>
        <source>SearchProfileImages</source>
        <translation>Nach Bildern suchen</translation>
    </message>
    <message>
        <source>SearchProfileOnline</source>
        <translation>Im Web suchen</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Suche läuft …</translation>
    </message>
    <message>
        <source>SelectCal</source>
        <translation>Kalender wählen …</translation>
    </message>
    <message>
        <source>SendLabel</source>
        <translation>Einsenden …</translation>
    </message>
    <message>
        <source>ShowCalculatorWindow</source>
        <translation>Rechner einblenden</translation>
    </message>
    <message>
        <source>ShowNotificationWindow</source>
        <translation>Überfällige Aufgaben einblenden</translation>
    </message>
    <message>
        <source>ShowPicturePage</source>
        <translation>Das ganze Bild zeigen</translation>
    </message>
    <message>
        <source>ShowProfilePage</source>
        <translation>Das Profil zeigen</translation>
    </message>
    <message>
        <source>ShowToolbar</source>
        <translation>Symbolleiste einblenden</translation>
    </message>
    <message>
        <source>SignUpAddress</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>SignUpJoin</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>SignUpMessage</source>
        <translation>Möchten Sie per E-Mail von neuen Versionen erfahren? Geben Sie Ihre Adresse ein oder wählen Sie „Abbrechen“; Sie können sich später im Hilfe-Menü anmelden.</translation>
    </message>
    <message>
        <source>SignUpTitle</source>
        <translation>Mailingliste</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>SortedAscending</source>
        <extracomment>^0 is a column&apos;s header; what a screen reader says of the column that a list is sorted by.</extracomment>
        <translation>^0, aufsteigend sortiert</translation>
    </message>
    <message>
        <source>SortedDescending</source>
        <extracomment>^0 is a column&apos;s header; what a screen reader says of the column that a list is sorted by.</extracomment>
        <translation>^0, absteigend sortiert</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <extracomment>%@ is the name to search for; a menu entry.</extracomment>
        <translation>Nach „%@“ suchen</translation>
    </message>
    <message>
        <source>StandardWarning</source>
        <extracomment>%@ is one of ConditionItem, ScheduleItem, ExpenseItem, NoteItem, InventoryItem.</extracomment>
        <translation>Auswahl aus %@ löschen?</translation>
    </message>
    <message>
        <source>StepDown</source>
        <translation>Verringern</translation>
    </message>
    <message>
        <source>StepUp</source>
        <translation>Erhöhen</translation>
    </message>
    <message>
        <source>SubmitMessage</source>
        <translation>Ihr E-Mail-Programm öffnet eine Nachricht mit allem, was im Editor zu sehen ist. Nichts verlässt diesen Rechner, bevor Sie diese Nachricht abschicken.</translation>
    </message>
    <message>
        <source>SubmitTitle</source>
        <translation>Möchten Sie dieses Profil einsenden?</translation>
    </message>
    <message>
        <source>SurfaceMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Quadratfuß in Quadratmeter, Quadratmeter in Quadratfuß, Quadratfuß in Quadratzoll, Quadratzoll in Quadratfuß</translation>
    </message>
    <message>
        <source>TankFileFilter</source>
        <extracomment>Kind of file in the open and save dialogs; the pattern in brackets stays as it is.</extracomment>
        <translation>Aquariendateien (*.xml)</translation>
    </message>
    <message>
        <source>TankFreshwater</source>
        <translation>Süßwasser</translation>
    </message>
    <message>
        <source>TankLevelMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Profiles refer to the items by their number, counted from 0.</extracomment>
        <translation>Alle Zonen, Oben, Oben bis Mitte, Mitte, Mitte bis unten, Unten, Schwimmend, Vordergrund, Hintergrund, Auf Stein oder Holz</translation>
    </message>
    <message>
        <source>TankListLabel</source>
        <extracomment>What a screen reader calls the tree of tanks.</extracomment>
        <translation>Aquarien</translation>
    </message>
    <message>
        <source>TankNameLabel</source>
        <translation>Name: </translation>
    </message>
    <message>
        <source>TankSaltwater</source>
        <translation>Meerwasser</translation>
    </message>
    <message>
        <source>TankSheetDeviation</source>
        <translation>&amp;Toleranz (±):</translation>
    </message>
    <message>
        <source>TankSheetHelpToolTip</source>
        <translation>Wassertests und Zielwerte erklären</translation>
    </message>
    <message>
        <source>TankSheetName</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>TankSheetParameter</source>
        <translation>&amp;Messgröße:</translation>
    </message>
    <message>
        <source>TankSheetPreferred</source>
        <translation>&amp;Zielwert:</translation>
    </message>
    <message>
        <source>TankSheetSize</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>TankSheetType</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>TankSize</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Größe: </translation>
    </message>
    <message>
        <source>TankSizeToolTip</source>
        <translation>Volumen oder Maße, wie Sie sie schreiben möchten</translation>
    </message>
    <message>
        <source>TankType</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Art: </translation>
    </message>
    <message>
        <source>TankViewTitle</source>
        <translation>Aquarium</translation>
    </message>
    <message>
        <source>TargetPopupToolTip</source>
        <translation>Die Messgröße, deren Ziel unten steht</translation>
    </message>
    <message>
        <source>TargetsTitle</source>
        <translation>Zielwerte</translation>
    </message>
    <message>
        <source>TempFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. The temperature target of a new tank, in the unit people of this language use.</extracomment>
        <translation>25</translation>
    </message>
    <message>
        <source>TempMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Fahrenheit in Celsius, Celsius in Fahrenheit</translation>
    </message>
    <message>
        <source>TempTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Eine plötzliche Änderung schadet den Tieren mehr als ein bis zwei Grad Abweichung. Bringen Sie die Temperatur deshalb um höchstens etwa 1 Grad Celsius in der Stunde zurück. Vergleichen Sie zuerst mit einem zweiten Thermometer und prüfen Sie, ob der Heizer arbeitet und das Wasser umgewälzt wird.

Zu warm: Heizer herunterregeln oder ausstecken, Abdeckung öffnen, Licht dämpfen, einen Ventilator über die Oberfläche blasen lassen und belüften, denn warmes Wasser enthält weniger Sauerstoff.

Zu kalt: Heizer instand setzen oder ergänzen und das Becken abdecken; ein Wasserwechsel mit etwas wärmerem, aufbereitetem Wasser hilft, im selben Rahmen.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>TemperatureShort</source>
        <extracomment>Column title: keep it short.</extracomment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>ToolbarCalculate</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>ToolbarCalculateToolTip</source>
        <translation>Umrechner und Rechner ein- oder ausblenden</translation>
    </message>
    <message>
        <source>ToolbarCustomise</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>ToolbarCustomiseAdd</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarCustomiseAvailable</source>
        <translation>&amp;Verfügbar:</translation>
    </message>
    <message>
        <source>ToolbarCustomiseDisplay</source>
        <translation>An&amp;zeigen als:</translation>
    </message>
    <message>
        <source>ToolbarCustomiseDone</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>ToolbarCustomiseDown</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>ToolbarCustomiseRemove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>ToolbarCustomiseReset</source>
        <translation>Zu&amp;rücksetzen</translation>
    </message>
    <message>
        <source>ToolbarCustomiseShown</source>
        <translation>An&amp;gezeigt:</translation>
    </message>
    <message>
        <source>ToolbarCustomiseTitle</source>
        <translation>Symbolleiste anpassen</translation>
    </message>
    <message>
        <source>ToolbarCustomiseToolTip</source>
        <translation>Wählen, was die Symbolleiste zeigt</translation>
    </message>
    <message>
        <source>ToolbarCustomiseUp</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>ToolbarDelete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>ToolbarDeleteToolTip</source>
        <translation>Auswahl löschen</translation>
    </message>
    <message>
        <source>ToolbarFlexibleSpace</source>
        <translation>Flexibler Abstand</translation>
    </message>
    <message>
        <source>ToolbarIconAndText</source>
        <translation>Symbol und Text</translation>
    </message>
    <message>
        <source>ToolbarIconOnly</source>
        <translation>Nur Symbol</translation>
    </message>
    <message>
        <source>ToolbarNewCoral</source>
        <translation>Neue Koralle</translation>
    </message>
    <message>
        <source>ToolbarNewCoralToolTip</source>
        <translation>Dem aktuellen Aquarium eine Koralle hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarNewFish</source>
        <translation>Neuer Fisch</translation>
    </message>
    <message>
        <source>ToolbarNewFishToolTip</source>
        <translation>Dem aktuellen Aquarium einen Fisch hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarNewInvert</source>
        <translation>Neues Wirbelloses</translation>
    </message>
    <message>
        <source>ToolbarNewInvertToolTip</source>
        <translation>Dem aktuellen Aquarium ein wirbelloses Tier hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarNewPlant</source>
        <translation>Neue Pflanze</translation>
    </message>
    <message>
        <source>ToolbarNewPlantToolTip</source>
        <translation>Dem aktuellen Aquarium eine Pflanze hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarNewTank</source>
        <translation>Neues Aquarium</translation>
    </message>
    <message>
        <source>ToolbarNewTankToolTip</source>
        <translation>Dieser Datei ein Aquarium hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarNote</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>ToolbarNoteToolTip</source>
        <translation>Überfällige Wartungsaufgaben ein- oder ausblenden</translation>
    </message>
    <message>
        <source>ToolbarPrint</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>ToolbarPrintToolTip</source>
        <translation>Aquarien und Einträge drucken</translation>
    </message>
    <message>
        <source>ToolbarSeparator</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>ToolbarSpace</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>ToolbarTextOnly</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>ToolbarTitle</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>TreeNewToolTip</source>
        <translation>Ein Aquarium oder einen Bewohner hinzufügen</translation>
    </message>
    <message>
        <source>UnsetTargetAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Der Zielwert ist noch 0 wie in jedem neuen Aquarium, deshalb sagt dieser Hinweis noch nichts über Ihr Wasser. Legen Sie den Zielwert fest, bevor Sie handeln: Wählen Sie das Aquarium aus und doppelklicken Sie in dessen Liste der Zielwerte auf den Wert.</translation>
    </message>
    <message>
        <source>Unspecified</source>
        <extracomment>Stored in a record in place of an empty text.</extracomment>
        <translation>Keine Angabe</translation>
    </message>
    <message>
        <source>UnspecifiedHolder</source>
        <extracomment>Grey placeholder in an empty field.</extracomment>
        <translation>keine Angabe</translation>
    </message>
    <message>
        <source>UntitledFileName</source>
        <extracomment>A file without a name yet; also a new expense category.</extracomment>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>VolumeMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Britische Gallonen in US-Gallonen, Britische Gallonen in Liter, Liter in britische Gallonen, Liter in US-Gallonen, US-Gallonen in Liter, US-Gallonen in US-Quart</translation>
    </message>
    <message>
        <source>WarningCheckboxToolTip</source>
        <translation>Neue Wassertests mit diesem Ziel vergleichen</translation>
    </message>
    <message>
        <source>WindowEditedMark</source>
        <extracomment>Said beside the file&apos;s name while changes are unsaved.</extracomment>
        <translation>Bearbeitet</translation>
    </message>
    <message>
        <source>WindowTitle</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>^0 – Brinemark</translation>
    </message>
    <message>
        <source>YesLabel</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>genericTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Die Alkalinität hält den pH-Wert stabil, und Korallen brauchen sie für ihr Skelett. Wiederholen Sie den Test, bevor Sie eingreifen, und ändern Sie den Wert dann um höchstens etwa 1 °dKH (18 ppm, 0,36 mmol/l) am Tag. Testen Sie auch Calcium und Magnesium, denn die drei hängen voneinander ab.

Zu niedrig: einen Teil des Wassers wechseln oder einen Karbonatpuffer wie Natriumhydrogencarbonat in kleinen, in Wasser gelösten Mengen dort zugeben, wo die Strömung stark ist. Solange Ammoniak nachweisbar ist, warten Sie damit: Ein Puffer hebt den pH-Wert.

Zu hoch: nichts mehr zugeben und den Wert durch Verbrauch und gewöhnliche Wasserwechsel sinken lassen.</translation>
    </message>
    <message>
        <source>iCalAlertMessage</source>
        <translation>Wählen Sie in den Einstellungen, welcher Kalender Ihre Aufgaben erhält. Bisher wurde nichts eingetragen.</translation>
    </message>
    <message>
        <source>iCalAlertTitle</source>
        <translation>Es ist kein Kalender ausgewählt.</translation>
    </message>
    <message>
        <source>ppmTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Beginnt der letzte Absatz mit „Sofort“, tun Sie das zuerst. In allen anderen Fällen ist Zeit: Wiederholen Sie den Test, denn ein einzelnes Ergebnis kann falsch sein, und prüfen Sie, ob Test und Zielwert dieselbe Einheit haben.

Suchen Sie dann die Ursache, etwa Leitungswasser, Verdunstung, Futter, Zusätze oder ein Heilmittel. In der Regel führen Sie den Wert in kleinen Schritten über Tage zurück und testen vor jedem Schritt.</translation>
    </message>
</context>
<context>
    <name>QZCURLTaskStrings</name>
    <message>
        <source>DownloadSize</source>
        <extracomment>^0 is the amount received, ^1 the total, ^2 the amount received in a second.</extracomment>
        <translation>^0 von ^1 (^2/s)</translation>
    </message>
    <message>
        <source>DownloadTimeRemaining</source>
        <extracomment>^0 is a time made of the time labels, such as 1 hour and 2 minutes.</extracomment>
        <translation>Noch ^0</translation>
    </message>
    <message>
        <source>HoursLabel</source>
        <extracomment>Follows a number directly.</extracomment>
        <translation> Stunden</translation>
    </message>
    <message>
        <source>MinutesLabel</source>
        <extracomment>Follows a number directly.</extracomment>
        <translation> Minuten</translation>
    </message>
    <message>
        <source>SecondsLabel</source>
        <extracomment>Follows a number directly.</extracomment>
        <translation> Sekunden</translation>
    </message>
    <message>
        <source>SingleHourLabel</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>SingleMinuteLabel</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <source>SingleSecondLabel</source>
        <translation>1 Sekunde</translation>
    </message>
    <message>
        <source>TimeAndLabel</source>
        <extracomment>Stands between hours and minutes.</extracomment>
        <translation> und </translation>
    </message>
</context>
<context>
    <name>QZUpdateStrings</name>
    <message>
        <source>CancelLabel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>CheckNowLabel</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>CheckingForUpdate</source>
        <translation>Es wird nach einer neueren Version gesucht …</translation>
    </message>
    <message>
        <source>CloseConformation</source>
        <translation>Das Herunterladen ist noch nicht abgeschlossen.</translation>
    </message>
    <message>
        <source>CloseConformationMessage</source>
        <translation>„Fortfahren“ lässt das Fenster offen und das Herunterladen weiterlaufen. „Abbrechen“ beendet das Herunterladen und schließt das Fenster.</translation>
    </message>
    <message>
        <source>ContinueLabel</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>CurrentVersion</source>
        <extracomment>%@ is the program&apos;s name.</extracomment>
        <translation>Sie haben die neueste Version von %@.</translation>
    </message>
    <message>
        <source>DownloadFailed</source>
        <translation>Das Herunterladen ist fehlgeschlagen. Es wurde nichts installiert oder verändert; bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>DownloadLabel</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>DownloadingUpdatedVersion</source>
        <translation>Die neue Version wird heruntergeladen …</translation>
    </message>
    <message>
        <source>ErrorWhenChecking</source>
        <translation>Die Suche nach einer neueren Version ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>ErrorWhenCheckingMessage</source>
        <translation>Die Website des Produkts war nicht erreichbar. Prüfen Sie Ihre Internetverbindung und versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>LastCheck</source>
        <translation>Letzte Suche:</translation>
    </message>
    <message>
        <source>NeverChecked</source>
        <translation>Noch nie</translation>
    </message>
    <message>
        <source>NewVersionAvailable</source>
        <extracomment>%@ is the program&apos;s name.</extracomment>
        <translation>Eine neuere Version von %@ ist verfügbar.</translation>
    </message>
    <message>
        <source>SelectLabel</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>UpdateAutoLabel</source>
        <translation>Automatisch suchen:</translation>
    </message>
    <message>
        <source>UpdateFrequencyMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>Bei jedem Start, Jede Woche, Alle vier Wochen</translation>
    </message>
    <message>
        <source>UpdateWindowLabel</source>
        <extracomment>%@ is the program&apos;s name.</extracomment>
        <translation>%@ kann im Internet nach einer neueren Version suchen.</translation>
    </message>
    <message>
        <source>UpdateWindowTitle</source>
        <extracomment>%@ is the program&apos;s name. It comes last: desktops add the name to titles that do not end with it.</extracomment>
        <translation>Updates für %@</translation>
    </message>
</context>
</TS>
