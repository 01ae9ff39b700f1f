<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name>Default</name>
    <message>
        <source>Alkalinity</source>
        <translation>Alkalinity</translation>
    </message>
    <message>
        <source>AllFilesFilter</source>
        <extracomment>Kind of file in the open and save dialogs; the program adds the pattern.</extracomment>
        <translation>All files</translation>
    </message>
    <message>
        <source>Ammonia</source>
        <translation>Ammonia</translation>
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
        <translation>aquarium</translation>
    </message>
    <message>
        <source>Calcium</source>
        <translation>Calcium</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>CancelLabel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>CannotUndoMessage</source>
        <translation>This cannot be undone.</translation>
    </message>
    <message>
        <source>CarbonDioxide</source>
        <extracomment>Name of the target and column title: keep it short.</extracomment>
        <translation>CO₂</translation>
    </message>
    <message>
        <source>ChangedOnDiskMessage</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>“^0” is no longer the file that Brinemark last read or wrote. If you overwrite it, what the other program changed is lost; saving under another name keeps both.</translation>
    </message>
    <message>
        <source>ChangedOnDiskOverwrite</source>
        <translation>Overwrite</translation>
    </message>
    <message>
        <source>ChangedOnDiskSaveAs</source>
        <translation>Save As…</translation>
    </message>
    <message>
        <source>ChangedOnDiskTitle</source>
        <translation>The file was changed by another program.</translation>
    </message>
    <message>
        <source>Condition Columns...</source>
        <translation>Water-Test Columns…</translation>
    </message>
    <message>
        <source>ConditionDataAmmonia</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Ammonia: </translation>
    </message>
    <message>
        <source>ConditionDataDate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Date: </translation>
    </message>
    <message>
        <source>ConditionDataGH</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>GH: </translation>
    </message>
    <message>
        <source>ConditionDataHeader</source>
        <translation>Water Tests</translation>
    </message>
    <message>
        <source>ConditionDataKH</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>KH: </translation>
    </message>
    <message>
        <source>ConditionDataNitrate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Nitrate: </translation>
    </message>
    <message>
        <source>ConditionDataNitrite</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Nitrite: </translation>
    </message>
    <message>
        <source>ConditionDataPh</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>pH: </translation>
    </message>
    <message>
        <source>ConditionDataSalt</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Salinity: </translation>
    </message>
    <message>
        <source>ConditionDataTemp</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Temperature: </translation>
    </message>
    <message>
        <source>ConditionItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>the water tests</translation>
    </message>
    <message>
        <source>ConditionName</source>
        <translation>Water Tests</translation>
    </message>
    <message>
        <source>CondtionDataAlkalinity</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Alkalinity: </translation>
    </message>
    <message>
        <source>CondtionDataCalcium</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Calcium: </translation>
    </message>
    <message>
        <source>CondtionDataCarbonDioxide</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Carbon dioxide: </translation>
    </message>
    <message>
        <source>CondtionDataCopper</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Copper: </translation>
    </message>
    <message>
        <source>CondtionDataIodine</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Iodine: </translation>
    </message>
    <message>
        <source>CondtionDataIron</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Iron: </translation>
    </message>
    <message>
        <source>CondtionDataMagnesium</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Magnesium: </translation>
    </message>
    <message>
        <source>CondtionDataOxygen</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Oxygen: </translation>
    </message>
    <message>
        <source>CondtionDataPhosphate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Phosphate: </translation>
    </message>
    <message>
        <source>ConvertBackup</source>
        <extracomment>Begins the name of a backup copy; a blank and the file&apos;s name follow. No slash, no colon.</extracomment>
        <translation>Backup of</translation>
    </message>
    <message>
        <source>ConvertContinue</source>
        <translation>Continue Without a Copy</translation>
    </message>
    <message>
        <source>ConvertDuplicate</source>
        <translation>Keep a Backup Copy</translation>
    </message>
    <message>
        <source>ConvertMessage</source>
        <translation>It will be converted to the current form when you next save it; until then the file on disk stays as it is. Once converted, the earlier version can no longer open it. Do you want to keep a backup copy in the same folder first?</translation>
    </message>
    <message>
        <source>ConvertTitle</source>
        <translation>This file was written by an earlier version of Brinemark.</translation>
    </message>
    <message>
        <source>Copper</source>
        <translation>Copper</translation>
    </message>
    <message>
        <source>CoralDataHeader</source>
        <translation>Corals</translation>
    </message>
    <message>
        <source>CoralName</source>
        <translation>Corals</translation>
    </message>
    <message>
        <source>CreatePreview</source>
        <translation>Creating preview…</translation>
    </message>
    <message>
        <source>Customize condition columns</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Choose which columns the water tests show</translation>
    </message>
    <message>
        <source>DeleteCoralWarning</source>
        <extracomment>%@ is the coral&apos;s name.</extracomment>
        <translation>Delete the coral “%@”?</translation>
    </message>
    <message>
        <source>DeleteFishWarning</source>
        <extracomment>%@ is the fish&apos;s name.</extracomment>
        <translation>Delete the fish “%@”?</translation>
    </message>
    <message>
        <source>DeleteInvertWarning</source>
        <extracomment>%@ is the animal&apos;s name.</extracomment>
        <translation>Delete the invertebrate “%@”?</translation>
    </message>
    <message>
        <source>DeletePlantWarning</source>
        <extracomment>%@ is the plant&apos;s name.</extracomment>
        <translation>Delete the plant “%@”?</translation>
    </message>
    <message>
        <source>DeleteTankWarning</source>
        <extracomment>%@ is the tank&apos;s name.</extracomment>
        <translation>Delete the tank “%@”?</translation>
    </message>
    <message>
        <source>DeleteTitle</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>DockMenuTitle</source>
        <translation>Overdue Activities</translation>
    </message>
    <message>
        <source>DontSaveLabel</source>
        <translation>Don’t Save</translation>
    </message>
    <message>
        <source>DontShowAgain</source>
        <translation>Do not show this message again</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>ExpenseDataAmount</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Amount: </translation>
    </message>
    <message>
        <source>ExpenseDataCategory</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Category: </translation>
    </message>
    <message>
        <source>ExpenseDataDate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Date: </translation>
    </message>
    <message>
        <source>ExpenseDataExpense</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Expense: </translation>
    </message>
    <message>
        <source>ExpenseDataHeader</source>
        <translation>Expenses</translation>
    </message>
    <message>
        <source>ExpenseDefaultEquipmentItem</source>
        <extracomment>One of the expense categories of a new tank.</extracomment>
        <translation>Equipment</translation>
    </message>
    <message>
        <source>ExpenseItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>the expenses</translation>
    </message>
    <message>
        <source>ExpenseName</source>
        <translation>Expenses</translation>
    </message>
    <message>
        <source>ExpenseNoneItem</source>
        <extracomment>The category of an expense that has none.</extracomment>
        <translation>None</translation>
    </message>
    <message>
        <source>FileName</source>
        <extracomment>The file name proposed for a new tank file.</extracomment>
        <translation>My Tanks</translation>
    </message>
    <message>
        <source>FishDataBreeding</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Breeding: </translation>
    </message>
    <message>
        <source>FishDataCare</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Care: </translation>
    </message>
    <message>
        <source>FishDataCount</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Count: </translation>
    </message>
    <message>
        <source>FishDataDiet</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Diet: </translation>
    </message>
    <message>
        <source>FishDataFamily</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Family: </translation>
    </message>
    <message>
        <source>FishDataGh</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>GH: </translation>
    </message>
    <message>
        <source>FishDataHeader</source>
        <translation>Fish</translation>
    </message>
    <message>
        <source>FishDataKh</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>KH: </translation>
    </message>
    <message>
        <source>FishDataLifeSpan</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Life span: </translation>
    </message>
    <message>
        <source>FishDataName</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Name: </translation>
    </message>
    <message>
        <source>FishDataNote</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Notes: </translation>
    </message>
    <message>
        <source>FishDataPh</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>pH: </translation>
    </message>
    <message>
        <source>FishDataReef</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Reef safe: </translation>
    </message>
    <message>
        <source>FishDataSalt</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Salinity: </translation>
    </message>
    <message>
        <source>FishDataSciName</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Scientific name: </translation>
    </message>
    <message>
        <source>FishDataSize</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Size: </translation>
    </message>
    <message>
        <source>FishDataTankLevel</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Tank level: </translation>
    </message>
    <message>
        <source>FishDataTemp</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Temperature: </translation>
    </message>
    <message>
        <source>FishDataTraits</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Traits: </translation>
    </message>
    <message>
        <source>FishName</source>
        <translation>Fish</translation>
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
        <translation>Hide Calculators</translation>
    </message>
    <message>
        <source>HideNotificationWindow</source>
        <translation>Hide Overdue Activities</translation>
    </message>
    <message>
        <source>HideToolbar</source>
        <translation>Hide Toolbar</translation>
    </message>
    <message>
        <source>InventoryDataCount</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Count: </translation>
    </message>
    <message>
        <source>InventoryDataHeader</source>
        <translation>Inventory</translation>
    </message>
    <message>
        <source>InventoryDataItem</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Item: </translation>
    </message>
    <message>
        <source>InventoryItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>the inventory</translation>
    </message>
    <message>
        <source>InventoryName</source>
        <translation>Inventory</translation>
    </message>
    <message>
        <source>InvertDataHeader</source>
        <translation>Invertebrates</translation>
    </message>
    <message>
        <source>InvertName</source>
        <translation>Invertebrates</translation>
    </message>
    <message>
        <source>Iodine</source>
        <translation>Iodine</translation>
    </message>
    <message>
        <source>Iron</source>
        <translation>Iron</translation>
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
        <translation>Open this file whenever Brinemark starts</translation>
    </message>
    <message>
        <source>NewCoralName</source>
        <translation>New Coral</translation>
    </message>
    <message>
        <source>NewExpenseItem</source>
        <translation>New expense</translation>
    </message>
    <message>
        <source>NewFishName</source>
        <translation>New Fish</translation>
    </message>
    <message>
        <source>NewInventoryItem</source>
        <translation>New item</translation>
    </message>
    <message>
        <source>NewInvertName</source>
        <translation>New Invertebrate</translation>
    </message>
    <message>
        <source>NewNoteItem</source>
        <translation>New note</translation>
    </message>
    <message>
        <source>NewPlantName</source>
        <translation>New Plant</translation>
    </message>
    <message>
        <source>NewScheduleItem</source>
        <translation>New activity</translation>
    </message>
    <message>
        <source>NewTankName</source>
        <translation>New Tank</translation>
    </message>
    <message>
        <source>NewTitle</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Nitrate</source>
        <translation>Nitrate</translation>
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
        <translation>Nitrite</translation>
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
        <translation>No</translation>
    </message>
    <message>
        <source>NoneSelected</source>
        <extracomment>No file is opened at start.</extracomment>
        <translation>None selected</translation>
    </message>
    <message>
        <source>NotATankFileMessage</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>“^0” is not a tank file, or it is damaged. It was not opened and has not been changed; the tanks you had open are still open.</translation>
    </message>
    <message>
        <source>NotTested</source>
        <extracomment>Fills the table cells of values that were not tested: a few letters, no digits, not a lone hyphen.</extracomment>
        <translation>n/a</translation>
    </message>
    <message>
        <source>NoteDataDate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Date: </translation>
    </message>
    <message>
        <source>NoteDataHeader</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>NoteDataNote</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Note: </translation>
    </message>
    <message>
        <source>NoteItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>the notes</translation>
    </message>
    <message>
        <source>NoteName</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OffLabel</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>OnLabel</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygen</translation>
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
        <translation>Phosphate</translation>
    </message>
    <message>
        <source>PlantDataHeader</source>
        <translation>Plants</translation>
    </message>
    <message>
        <source>PlantName</source>
        <translation>Plants</translation>
    </message>
    <message>
        <source>PlusMinus</source>
        <extracomment>Stands before a tolerance, with a blank between.</extracomment>
        <translation>±</translation>
    </message>
    <message>
        <source>ReadErrorMessage</source>
        <translation>Some of the data could not be read because it is damaged or incomplete. What could be read before that is shown, and the file it came from has not been changed. Make a copy of that file before you save anything over it.</translation>
    </message>
    <message>
        <source>ReefSafeMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Yes, no, unknown.</extracomment>
        <translation>yes, no, unknown</translation>
    </message>
    <message>
        <source>RevertLabel</source>
        <translation>Revert</translation>
    </message>
    <message>
        <source>RevertMessage</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>The file “^0” on disk stays as it is.</translation>
    </message>
    <message>
        <source>RevertTitle</source>
        <translation>Do you want to go back to the saved version?</translation>
    </message>
    <message>
        <source>Salinity</source>
        <translation>Salinity</translation>
    </message>
    <message>
        <source>SaveErrorMessage</source>
        <translation>The tank file could not be saved. Your changes are still open in Brinemark, and the file on disk is as it was before. Check that you may write to the folder and that the disk is not full, or use “Save As” to choose another place.</translation>
    </message>
    <message>
        <source>SaveLabel</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>SaveMessage</source>
        <translation>If you do not save, everything you changed since you last saved is lost.</translation>
    </message>
    <message>
        <source>SaveQuitTitle</source>
        <translation>Do you want to save the changes before you quit?</translation>
    </message>
    <message>
        <source>SaveTitle</source>
        <translation>Do you want to save the changes to this tank file?</translation>
    </message>
    <message>
        <source>ScheduleDataActivity</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Activity: </translation>
    </message>
    <message>
        <source>ScheduleDataAuto</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Repeats: </translation>
    </message>
    <message>
        <source>ScheduleDataComplete</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Done: </translation>
    </message>
    <message>
        <source>ScheduleDataDate</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Due: </translation>
    </message>
    <message>
        <source>ScheduleDataHeader</source>
        <translation>Maintenance</translation>
    </message>
    <message>
        <source>ScheduleItem</source>
        <extracomment>Fills StandardWarning, with the article and case that it needs.</extracomment>
        <translation>the maintenance schedule</translation>
    </message>
    <message>
        <source>ScheduleName</source>
        <extracomment>Name of the maintenance schedule; also ends the title of a calendar event.</extracomment>
        <translation>Maintenance</translation>
    </message>
    <message>
        <source>ShowCalculatorWindow</source>
        <translation>Show Calculators</translation>
    </message>
    <message>
        <source>ShowNotificationWindow</source>
        <translation>Show Overdue Activities</translation>
    </message>
    <message>
        <source>ShowToolbar</source>
        <translation>Show Toolbar</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <extracomment>%@ is the name to search for; a menu entry.</extracomment>
        <translation>Search for “%@”</translation>
    </message>
    <message>
        <source>StandardWarning</source>
        <extracomment>%@ is one of ConditionItem, ScheduleItem, ExpenseItem, NoteItem, InventoryItem.</extracomment>
        <translation>Delete the selection from %@?</translation>
    </message>
    <message>
        <source>TankFileFilter</source>
        <extracomment>Kind of file in the open and save dialogs; the program adds the pattern.</extracomment>
        <translation>Tank files</translation>
    </message>
    <message>
        <source>TankFreshwater</source>
        <translation>Freshwater</translation>
    </message>
    <message>
        <source>TankSaltwater</source>
        <translation>Marine</translation>
    </message>
    <message>
        <source>TankSize</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Size: </translation>
    </message>
    <message>
        <source>TankType</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Type: </translation>
    </message>
    <message>
        <source>TempFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. The temperature target of a new tank, in the unit people of this language use.</extracomment>
        <translation>25</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>TemperatureShort</source>
        <extracomment>Column title: keep it short.</extracomment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>ToolbarCalculate</source>
        <translation>Calculators</translation>
    </message>
    <message>
        <source>ToolbarCalculateToolTip</source>
        <translation>Show or hide the unit converter and calculators</translation>
    </message>
    <message>
        <source>ToolbarDelete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>ToolbarDeleteToolTip</source>
        <translation>Delete what is selected</translation>
    </message>
    <message>
        <source>ToolbarNewCoral</source>
        <translation>New Coral</translation>
    </message>
    <message>
        <source>ToolbarNewCoralToolTip</source>
        <translation>Add a coral to the current tank</translation>
    </message>
    <message>
        <source>ToolbarNewFish</source>
        <translation>New Fish</translation>
    </message>
    <message>
        <source>ToolbarNewFishToolTip</source>
        <translation>Add a fish to the current tank</translation>
    </message>
    <message>
        <source>ToolbarNewInvert</source>
        <translation>New Invertebrate</translation>
    </message>
    <message>
        <source>ToolbarNewInvertToolTip</source>
        <translation>Add an invertebrate to the current tank</translation>
    </message>
    <message>
        <source>ToolbarNewPlant</source>
        <translation>New Plant</translation>
    </message>
    <message>
        <source>ToolbarNewPlantToolTip</source>
        <translation>Add a plant to the current tank</translation>
    </message>
    <message>
        <source>ToolbarNewTank</source>
        <translation>New Tank</translation>
    </message>
    <message>
        <source>ToolbarNewTankToolTip</source>
        <translation>Add a tank to this file</translation>
    </message>
    <message>
        <source>ToolbarNote</source>
        <translation>Overdue</translation>
    </message>
    <message>
        <source>ToolbarNoteToolTip</source>
        <translation>Show or hide the overdue maintenance activities</translation>
    </message>
    <message>
        <source>Unspecified</source>
        <extracomment>Stored in a record in place of an empty text.</extracomment>
        <translation>Unspecified</translation>
    </message>
    <message>
        <source>UnspecifiedHolder</source>
        <extracomment>Grey placeholder in an empty field.</extracomment>
        <translation>unspecified</translation>
    </message>
    <message>
        <source>UntitledFileName</source>
        <extracomment>A file without a name yet; also a new expense category.</extracomment>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>YesLabel</source>
        <translation>Yes</translation>
    </message>
</context>
</TS>
