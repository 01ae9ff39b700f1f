<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Default</name>
    <message>
        <source>Alkalinity</source>
        <translation>Alkalinität</translation>
    </message>
    <message>
        <source>AllFilesFilter</source>
        <extracomment>Kind of file in the open and save dialogs; the program adds the pattern.</extracomment>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Ammonia</source>
        <translation>Ammoniak</translation>
    </message>
    <message>
        <source>AmmoniaFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated ammonia in fresh water, mg/l.</extracomment>
        <translation>0.25</translation>
    </message>
    <message>
        <source>AmmoniaSaltValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated ammonia in sea water, mg/l.</extracomment>
        <translation>0.1</translation>
    </message>
    <message>
        <source>Aquarium</source>
        <extracomment>Search word stored with the file.</extracomment>
        <translation>Aquarium</translation>
    </message>
    <message>
        <source>Calcium</source>
        <translation>Calcium</translation>
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
        <source>Condition Columns...</source>
        <translation>Spalten der Wassertests …</translation>
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
        <source>ConvertMessage</source>
        <translation>Sie wird beim nächsten Speichern in die heutige Form umgewandelt; bis dahin bleibt die Datei auf dem Datenträger unverändert. Danach kann die frühere Version sie nicht mehr öffnen. Möchten Sie vorher eine Sicherungskopie im selben Ordner anlegen?</translation>
    </message>
    <message>
        <source>ConvertTitle</source>
        <translation>Diese Datei stammt von einer früheren Version von Brinemark.</translation>
    </message>
    <message>
        <source>Copper</source>
        <translation>Kupfer</translation>
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
        <source>Customize condition columns</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Wählen, welche Spalten die Wassertests zeigen</translation>
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
        <source>DockMenuTitle</source>
        <translation>Überfällige Aufgaben</translation>
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
        <source>Edit...</source>
        <translation>Bearbeiten …</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
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
        <source>FileName</source>
        <extracomment>The file name proposed for a new tank file.</extracomment>
        <translation>Meine Aquarien</translation>
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
        <source>FolderName</source>
        <extracomment>Same in every language: the folder of this name in the user&apos;s application-data folder is deleted, with all it holds, whenever the program starts.</extracomment>
        <translation>Brinemark Temporary Items</translation>
    </message>
    <message>
        <source>GH</source>
        <extracomment>General hardness; the column is 40 pixels wide.</extracomment>
        <translation>GH</translation>
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
        <source>Iron</source>
        <translation>Eisen</translation>
    </message>
    <message>
        <source>KH</source>
        <extracomment>Carbonate hardness; the column is 40 pixels wide.</extracomment>
        <translation>KH</translation>
    </message>
    <message>
        <source>Magnesium</source>
        <translation>Magnesium</translation>
    </message>
    <message>
        <source>MakeDefaultCheck</source>
        <extracomment>Check box in the open and save dialogs.</extracomment>
        <translation>Diese Datei bei jedem Start von Brinemark öffnen</translation>
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
        <source>NewTitle</source>
        <translation>Neu</translation>
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
        <source>NitrateSaltValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated nitrate in sea water, mg/l.</extracomment>
        <translation>20</translation>
    </message>
    <message>
        <source>Nitrite</source>
        <translation>Nitrit</translation>
    </message>
    <message>
        <source>NitriteFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated nitrite in fresh water, mg/l.</extracomment>
        <translation>0.25</translation>
    </message>
    <message>
        <source>NitriteSaltValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated nitrite in sea water, mg/l.</extracomment>
        <translation>0.1</translation>
    </message>
    <message>
        <source>NoLabel</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>NoneSelected</source>
        <extracomment>No file is opened at start.</extracomment>
        <translation>Keine ausgewählt</translation>
    </message>
    <message>
        <source>NotATankFileMessage</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>„^0“ ist keine Aquariendatei oder ist beschädigt. Die Datei wurde nicht geöffnet und nicht verändert; Ihre bisher geöffneten Aquarien sind weiterhin geöffnet.</translation>
    </message>
    <message>
        <source>NotTested</source>
        <extracomment>Fills the table cells of values that were not tested: a few letters, no digits, not a lone hyphen.</extracomment>
        <translation>k. A.</translation>
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
        <source>Oxygen</source>
        <translation>Sauerstoff</translation>
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
        <source>Phosphate</source>
        <translation>Phosphat</translation>
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
        <source>ReadErrorMessage</source>
        <translation>Ein Teil der Daten konnte nicht gelesen werden, weil er beschädigt oder unvollständig ist. Was vorher gelesen werden konnte, wird angezeigt; die Datei, aus der es stammt, wurde nicht verändert. Legen Sie eine Kopie dieser Datei an, bevor Sie etwas darüber speichern.</translation>
    </message>
    <message>
        <source>ReefSafeMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Yes, no, unknown.</extracomment>
        <translation>ja, nein, unbekannt</translation>
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
        <translation>Möchten Sie zur gesicherten Fassung zurückkehren?</translation>
    </message>
    <message>
        <source>Salinity</source>
        <translation>Salinität</translation>
    </message>
    <message>
        <source>SaveErrorMessage</source>
        <translation>Die Aquariendatei konnte nicht gesichert werden. Ihre Änderungen sind in Brinemark weiterhin geöffnet, und die Datei auf dem Datenträger ist unverändert. Prüfen Sie, ob Sie in den Ordner schreiben dürfen und ob noch Platz frei ist, oder wählen Sie mit „Speichern unter“ einen anderen Ort.</translation>
    </message>
    <message>
        <source>SaveLabel</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>SaveMessage</source>
        <translation>Wenn Sie nicht speichern, geht alles verloren, was Sie seit dem letzten Speichern geändert haben.</translation>
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
        <source>ShowCalculatorWindow</source>
        <translation>Rechner einblenden</translation>
    </message>
    <message>
        <source>ShowNotificationWindow</source>
        <translation>Überfällige Aufgaben einblenden</translation>
    </message>
    <message>
        <source>ShowToolbar</source>
        <translation>Symbolleiste einblenden</translation>
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
        <source>TankFileFilter</source>
        <extracomment>Kind of file in the open and save dialogs; the program adds the pattern.</extracomment>
        <translation>Aquariendateien</translation>
    </message>
    <message>
        <source>TankFreshwater</source>
        <translation>Süßwasser</translation>
    </message>
    <message>
        <source>TankSaltwater</source>
        <translation>Meerwasser</translation>
    </message>
    <message>
        <source>TankSize</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Größe: </translation>
    </message>
    <message>
        <source>TankType</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Art: </translation>
    </message>
    <message>
        <source>TempFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. The temperature target of a new tank, in the unit people of this language use.</extracomment>
        <translation>25</translation>
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
        <source>ToolbarCalculate</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>ToolbarCalculateToolTip</source>
        <translation>Umrechner und Rechner ein- oder ausblenden</translation>
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
        <source>ToolbarNewCoral</source>
        <translation>Koralle</translation>
    </message>
    <message>
        <source>ToolbarNewCoralToolTip</source>
        <translation>Dem aktuellen Aquarium eine Koralle hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarNewFish</source>
        <translation>Fisch</translation>
    </message>
    <message>
        <source>ToolbarNewFishToolTip</source>
        <translation>Dem aktuellen Aquarium einen Fisch hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarNewInvert</source>
        <translation>Wirbellose</translation>
    </message>
    <message>
        <source>ToolbarNewInvertToolTip</source>
        <translation>Dem aktuellen Aquarium ein wirbelloses Tier hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarNewPlant</source>
        <translation>Pflanze</translation>
    </message>
    <message>
        <source>ToolbarNewPlantToolTip</source>
        <translation>Dem aktuellen Aquarium eine Pflanze hinzufügen</translation>
    </message>
    <message>
        <source>ToolbarNewTank</source>
        <translation>Aquarium</translation>
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
        <source>YesLabel</source>
        <translation>Ja</translation>
    </message>
</context>
</TS>
