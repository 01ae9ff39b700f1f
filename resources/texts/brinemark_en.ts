<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name>Default</name>
    <message>
        <source>AboutMessage</source>
        <translation>A record of your aquariums: what lives in them, how the water tests, what needs doing.</translation>
    </message>
    <message>
        <source>AboutTitle</source>
        <translation>About Brinemark</translation>
    </message>
    <message>
        <source>AboutVersion</source>
        <extracomment>^0 is the version.</extracomment>
        <translation>Version ^0</translation>
    </message>
    <message>
        <source>AboveLimitToolTip</source>
        <extracomment>^0: the target or the limit</extracomment>
        <translation>Above the upper limit of ^0</translation>
    </message>
    <message>
        <source>AboveTargetToolTip</source>
        <extracomment>^0: the target or the limit</extracomment>
        <translation>Above the target of ^0</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>ActionButtonToolTip</source>
        <translation>More actions</translation>
    </message>
    <message>
        <source>AddToiCal</source>
        <translation>Add to Calendar</translation>
    </message>
    <message>
        <source>Alkalinity</source>
        <translation>Alkalinity</translation>
    </message>
    <message>
        <source>AlkalinityHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Stop dosing buffers and limewater. Above about 12 dKH (4.3 meq/l) calcium begins to fall out as lime, and corals lose tissue at their tips if nitrate and phosphate are low.</translation>
    </message>
    <message>
        <source>AlkalinityLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Reef tanks are usually kept at 7 to 11 dKH (2.5 to 4 meq/l). If magnesium is low, raise that first, because alkalinity does not hold without it. Never add a buffer together with calcium: the two fall out as lime.</translation>
    </message>
    <message>
        <source>AllFilesFilter</source>
        <extracomment>Kind of file in the open and save dialogs; the pattern in brackets stays as it is.</extracomment>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>Ammonia</source>
        <translation>Ammonia</translation>
    </message>
    <message>
        <source>AmmoniaFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated ammonia in fresh water, mg/l.</extracomment>
        <translation>0.1</translation>
    </message>
    <message>
        <source>AmmoniaHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Below pH 7 nearly all of it is ammonium, which does far less harm, and each step of pH makes about ten times as much ammonia of it. If the new water would raise such a low pH, change only a tenth of the water at a time.</translation>
    </message>
    <message>
        <source>AmmoniaHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>At pH 8.2, as in a reef tank, about ten times as much of it is toxic as at pH 7. Use salt water of the same salinity that was mixed and aerated beforehand, and look for animals that died among the rocks.</translation>
    </message>
    <message>
        <source>AmmoniaLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Too low is no fault: a tank with animals should show no ammonia. Add none, and set the target to 0. Ammonia is added only to start a filter while the tank has no animals yet.</translation>
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

Ammonia burns the gills, and the higher the pH and the temperature, the more of it is toxic. Never raise the pH while a test shows any.

Too high: replace a third to a half of the water now with conditioned water of the same temperature and, if you can, of no higher pH. Stop feeding for a day or two, take out dead animals and rotting plants, and aerate strongly.

Then test every day and repeat the water change until the value is in range. Meanwhile see that the filter runs, rinse its media only in tank water, and add no animals.</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>Analyse…</translation>
    </message>
    <message>
        <source>Aquarium</source>
        <extracomment>Search word stored with the file.</extracomment>
        <translation>aquarium</translation>
    </message>
    <message>
        <source>AutoColumnTooltip</source>
        <translation>Schedule again when done</translation>
    </message>
    <message>
        <source>BelowLimitToolTip</source>
        <extracomment>^0: the target or the limit</extracomment>
        <translation>Below the lower limit of ^0</translation>
    </message>
    <message>
        <source>BelowTargetToolTip</source>
        <extracomment>^0: the target or the limit</extracomment>
        <translation>Below the target of ^0</translation>
    </message>
    <message>
        <source>Calcium</source>
        <translation>Calcium</translation>
    </message>
    <message>
        <source>CalciumHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Check the salinity first, because calcium rises with it. Stop dosing, and let corals and ordinary water changes bring the value down. Above about 500 mg/l it falls out as lime and takes alkalinity with it.</translation>
    </message>
    <message>
        <source>CalciumLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Reef tanks are usually kept at 400 to 450 mg/l. Check salinity, magnesium and alkalinity first: if magnesium is low, calcium falls out as lime. Add a dissolved calcium salt, at most 20 mg/l of calcium a day, and never together with a carbonate buffer.</translation>
    </message>
    <message>
        <source>CalendarChosenDay</source>
        <extracomment>^0 is the day with its weekday and month written out</extracomment>
        <translation>Chosen day: ^0</translation>
    </message>
    <message>
        <source>CalendarDays</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>CalendarPopup</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>CalendarTime</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>CalendarToday</source>
        <translation>Choose today (T)</translation>
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
        <source>CareMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to keep, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unknown, Easy, Moderate, Difficult, Experts only</translation>
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
        <source>ColumnActivity</source>
        <translation>Activity</translation>
    </message>
    <message>
        <source>ColumnAmount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>ColumnCategory</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>ColumnCount</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>ColumnDeviation</source>
        <translation>Tolerance</translation>
    </message>
    <message>
        <source>ColumnDue</source>
        <translation>Due</translation>
    </message>
    <message>
        <source>ColumnExpense</source>
        <translation>Expense</translation>
    </message>
    <message>
        <source>ColumnItem</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>ColumnNext</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>ColumnNote</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>ColumnParameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>ColumnPreferred</source>
        <translation>Target</translation>
    </message>
    <message>
        <source>ColumnRepeats</source>
        <translation>Repeats</translation>
    </message>
    <message>
        <source>ColumnWarning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>CommandLineDark</source>
        <translation>Use dark colours with --render.</translation>
    </message>
    <message>
        <source>CommandLineDescription</source>
        <translation>Keeps a record of your aquariums: livestock, water tests, maintenance, notes, inventory and expenses.</translation>
    </message>
    <message>
        <source>CommandLineFile</source>
        <translation>The tank file to open.</translation>
    </message>
    <message>
        <source>CommandLineFileName</source>
        <extracomment>Stands for a file in the command-line help.</extracomment>
        <translation>file</translation>
    </message>
    <message>
        <source>CommandLineHelp</source>
        <translation>Show this help and leave.</translation>
    </message>
    <message>
        <source>CommandLineNoFile</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>There is no file “^0”.</translation>
    </message>
    <message>
        <source>CommandLineNotATankFile</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>“^0” is not a tank file.</translation>
    </message>
    <message>
        <source>CommandLineNotPrinted</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>“^0” could not be printed. Is there a printer?</translation>
    </message>
    <message>
        <source>CommandLineNotRendered</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>The picture “^0” could not be written.</translation>
    </message>
    <message>
        <source>CommandLinePrint</source>
        <translation>Print the file and leave.</translation>
    </message>
    <message>
        <source>CommandLinePrintNeedsFile</source>
        <translation>Name the file to print.</translation>
    </message>
    <message>
        <source>CommandLineRender</source>
        <translation>Draw the main window into a picture file and leave.</translation>
    </message>
    <message>
        <source>CommandLineRenderNeedsPicture</source>
        <translation>Name the picture file to write.</translation>
    </message>
    <message>
        <source>CommandLineTooManyFiles</source>
        <translation>Only one tank file can be open at a time.</translation>
    </message>
    <message>
        <source>CommandLineUnknownOption</source>
        <extracomment>^0 is the option.</extracomment>
        <translation>Unknown option: ^0</translation>
    </message>
    <message>
        <source>CommandLineUnreadable</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>The file “^0” could not be read.</translation>
    </message>
    <message>
        <source>CommandLineVersion</source>
        <translation>Show the version and leave.</translation>
    </message>
    <message>
        <source>CommonName</source>
        <translation>Common Name</translation>
    </message>
    <message>
        <source>Condition Columns...</source>
        <translation>Water-Test Columns…</translation>
    </message>
    <message>
        <source>ConditionColumnsLabel</source>
        <extracomment>^0 is the tank&apos;s name</extracomment>
        <translation>Show these columns for ^0:</translation>
    </message>
    <message>
        <source>ConditionColumnsTitle</source>
        <translation>Water-Test Columns</translation>
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
        <source>ConditionUndo</source>
        <translation>Change of Water Test</translation>
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
        <source>ConvertKindMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. The kinds of conversion.</extracomment>
        <translation>Temperature, Measurement, Length, Surface, Flow, Volume, Pollutant</translation>
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
        <source>ConverterConversion</source>
        <translation>Conversion:</translation>
    </message>
    <message>
        <source>ConverterKind</source>
        <translation>Quantity:</translation>
    </message>
    <message>
        <source>ConverterResult</source>
        <translation>Result:</translation>
    </message>
    <message>
        <source>ConverterSection</source>
        <translation>Unit Converter</translation>
    </message>
    <message>
        <source>ConverterValue</source>
        <translation>Value:</translation>
    </message>
    <message>
        <source>Copper</source>
        <translation>Copper</translation>
    </message>
    <message>
        <source>CopperHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>At once, unless you are treating fish with copper: change a third to a half of the water against conditioned water of the same temperature that has no copper itself, filter over fresh activated carbon, and stop every remedy that contains copper. If the new water would raise a pH below 7, test for ammonia first, and if there is any, change only a tenth at a time. A few hundredths of a mg/l kill invertebrates, and in soft water harm fish too. In a hospital tank change only enough water to come back into the remedy’s range.</translation>
    </message>
    <message>
        <source>CopperHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>At once, unless you are treating fish with copper: change a third to a half of the water against salt water of the same salinity and temperature, mixed and aerated beforehand, that has no copper itself; filter over fresh activated carbon, and stop every remedy that contains copper. A few hundredths of a mg/l kill corals and other invertebrates, and rock and sand give copper off again later. In a hospital tank change only enough water to come back into the remedy’s range.</translation>
    </message>
    <message>
        <source>CopperLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Only fish under treatment in a hospital tank need copper; below the remedy’s range the parasites live on. Add more of it there as its maker directs, in small portions, testing before each one, and take out carbon, sand and rock, which bind it. In any other tank add none, because copper kills invertebrates, and set the target to 0.</translation>
    </message>
    <message>
        <source>CoralBreedingMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to breed, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unknown, Easy, Moderate, Difficult, Not yet propagated</translation>
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
        <source>CustomDays</source>
        <translation>Days:</translation>
    </message>
    <message>
        <source>CustomWeeks</source>
        <translation>Weeks:</translation>
    </message>
    <message>
        <source>Customize condition columns</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Choose which columns the water tests show</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>DateRangeMessage</source>
        <translation>Choose a start date and an end date, with the start before the end.</translation>
    </message>
    <message>
        <source>DateRangeTitle</source>
        <translation>This range of dates cannot be used.</translation>
    </message>
    <message>
        <source>DeleteButtonToolTip</source>
        <translation>Delete the selected entries</translation>
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
        <source>DeviationCheckboxLabel</source>
        <translation>&amp;Allow a tolerance</translation>
    </message>
    <message>
        <source>DeviationCheckboxToolTip</source>
        <translation>Accept values near the target as well</translation>
    </message>
    <message>
        <source>DeviationStepperToolTip</source>
        <translation>Raise or lower the tolerance</translation>
    </message>
    <message>
        <source>DeviationToolTip</source>
        <translation>How far a value may lie above or below the target</translation>
    </message>
    <message>
        <source>DioxideHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>At once: turn off the carbon dioxide supply and aerate strongly until the fish breathe calmly. Above about 30 mg/l many fish suffer. The pH rises as the gas leaves, which turns ammonium into poisonous ammonia, so test for ammonia afterwards. Then check valve and timer, and start again with a lower supply.</translation>
    </message>
    <message>
        <source>DioxideHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>At once: aerate strongly, air the room, and turn off what gives carbon dioxide, such as a calcium reactor. Above about 30 mg/l many fish suffer. Then see that pumps and skimmer run and that air reaches the surface.</translation>
    </message>
    <message>
        <source>DioxideLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Animals need no carbon dioxide; without plants switch off the warning of this target. For plants raise the supply a little every few days, stay below about 30 mg/l, and watch whether the fish breathe calmly. The pH falls as the value rises.</translation>
    </message>
    <message>
        <source>DioxideLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>There is nothing to do: the animals of salt water need no carbon dioxide. Switch off the warning of this target.</translation>
    </message>
    <message>
        <source>DisplayWarningCheckboxLabel</source>
        <extracomment>^0 is the parameter&apos;s name.</extracomment>
        <translation>&amp;Warn when ^0 is off target</translation>
    </message>
    <message>
        <source>DockMenuTitle</source>
        <translation>Overdue Activities</translation>
    </message>
    <message>
        <source>DoneColumnTooltip</source>
        <translation>Done</translation>
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
        <source>DropImageHint</source>
        <translation>Drop a picture here, or choose one.</translation>
    </message>
    <message>
        <source>DroppedPictureRefusedTitle</source>
        <translation>The dropped picture cannot be used.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>EditItemTitle</source>
        <extracomment>^0 is the name of a fish, plant or other animal</extracomment>
        <translation>Edit ^0</translation>
    </message>
    <message>
        <source>EditItemToolTip</source>
        <translation>Change this entry</translation>
    </message>
    <message>
        <source>EditTankTitle</source>
        <translation>Edit Tank</translation>
    </message>
    <message>
        <source>EditTankToolTip</source>
        <translation>Change the name, size, type and targets</translation>
    </message>
    <message>
        <source>EmptyCondition</source>
        <translation>Every water test of this tank belongs here, one row for each.</translation>
    </message>
    <message>
        <source>EmptyCoral</source>
        <translation>The corals and anemones of this tank belong here.</translation>
    </message>
    <message>
        <source>EmptyExpense</source>
        <translation>What you spend on this tank belongs here.</translation>
    </message>
    <message>
        <source>EmptyFish</source>
        <translation>The fish that live in this tank belong here.</translation>
    </message>
    <message>
        <source>EmptyInventory</source>
        <translation>Equipment, food and supplies of this tank belong here.</translation>
    </message>
    <message>
        <source>EmptyInvert</source>
        <translation>The shrimps, snails and other invertebrates of this tank belong here.</translation>
    </message>
    <message>
        <source>EmptyNote</source>
        <translation>Anything worth remembering about this tank belongs here.</translation>
    </message>
    <message>
        <source>EmptyOverdue</source>
        <translation>Nothing is overdue.</translation>
    </message>
    <message>
        <source>EmptyPlant</source>
        <translation>The plants that grow in this tank belong here.</translation>
    </message>
    <message>
        <source>EmptySchedule</source>
        <translation>Water changes, filter cleaning and other activities with their due dates belong here.</translation>
    </message>
    <message>
        <source>EmptyTanks</source>
        <translation>No tank is selected. Choose one on the left, or add the first.</translation>
    </message>
    <message>
        <source>EqualValueMessage</source>
        <extracomment>No per-cent sign: this text is used as a format. ^0 is the target.</extracomment>
        <translation>The target for this tank is ^0.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>ExpenseAllItem</source>
        <extracomment>Every category.</extracomment>
        <translation>All</translation>
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
        <source>ExpenseEditItem</source>
        <translation>Edit Categories…</translation>
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
        <source>ExpensePeriodMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>All time, One year, One month, Range of dates</translation>
    </message>
    <message>
        <source>ExpenseUndo</source>
        <translation>Change of Expense</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>ExportFileFilter</source>
        <extracomment>Kind of file in the save dialog; the pattern in brackets stays as it is.</extracomment>
        <translation>Comma-separated values (*.csv)</translation>
    </message>
    <message>
        <source>ExportMessage</source>
        <translation>Export the water tests as comma-separated values.</translation>
    </message>
    <message>
        <source>ExportName</source>
        <extracomment>%@ is the tank&apos;s name; the proposed name of the exported file.</extracomment>
        <translation>Water Tests %@</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Family</translation>
    </message>
    <message>
        <source>FileGoneMessage</source>
        <translation>The file was moved, renamed or deleted, or its disk is not connected.</translation>
    </message>
    <message>
        <source>FileGoneTitle</source>
        <extracomment>^0 is the name of a file.</extracomment>
        <translation>“^0” is no longer there.</translation>
    </message>
    <message>
        <source>FileName</source>
        <extracomment>The file name proposed for a new tank file.</extracomment>
        <translation>My Tanks</translation>
    </message>
    <message>
        <source>Finding</source>
        <extracomment>%i is how many profiles match.</extracomment>
        <translation>%i found so far…</translation>
    </message>
    <message>
        <source>FishBreedingMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to breed, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unknown, Easy, Moderate, Difficult, Not yet bred</translation>
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
        <source>FishSearchButton</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>FishSearchChoose</source>
        <translation>Use Profile</translation>
    </message>
    <message>
        <source>FishSearchFieldName</source>
        <translation>Search for</translation>
    </message>
    <message>
        <source>FishSearchProgressName</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>FishSearchResultsName</source>
        <translation>Found profiles</translation>
    </message>
    <message>
        <source>FishSearchTitle</source>
        <translation>Search Profiles</translation>
    </message>
    <message>
        <source>FlowMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>US gallons per hour to litres per hour, Litres per hour to US gallons per hour, Litres per hour to litres per second</translation>
    </message>
    <message>
        <source>FolderName</source>
        <extracomment>Same in every language: the folder of this name in the user&apos;s application-data folder is deleted, with all it holds, whenever the program starts.</extracomment>
        <translation>Brinemark Temporary Items</translation>
    </message>
    <message>
        <source>Found</source>
        <extracomment>%i is how many profiles match; may be 0 or 1.</extracomment>
        <translation>%i found</translation>
    </message>
    <message>
        <source>GH</source>
        <extracomment>General hardness; the column is 40 pixels wide.</extracomment>
        <translation>GH</translation>
    </message>
    <message>
        <source>GHSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Salt water has a general hardness of more than 300 degrees, far beyond what these kits can measure. Test calcium and magnesium instead, and switch off the warning of this target.</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graph…</translation>
    </message>
    <message>
        <source>GraphClose</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>GraphDraw</source>
        <translation>Draw</translation>
    </message>
    <message>
        <source>GraphDrawing</source>
        <translation>Drawing</translation>
    </message>
    <message>
        <source>GraphEndLabel</source>
        <translation>End:</translation>
    </message>
    <message>
        <source>GraphEndToolTip</source>
        <translation>Choose the test to end with, or type a date</translation>
    </message>
    <message>
        <source>GraphExchangeAndDraw</source>
        <extracomment>Button of the message about dates whose start is after the end</extracomment>
        <translation>Exchange and Draw</translation>
    </message>
    <message>
        <source>GraphFitScale</source>
        <extracomment>check box below the legend of the graph</extracomment>
        <translation>Fit the scale</translation>
    </message>
    <message>
        <source>GraphFitScaleToolTip</source>
        <translation>Fit the scale to the lines that are shown</translation>
    </message>
    <message>
        <source>GraphFormSentence</source>
        <translation>Draws the water tests between two dates, with a line for each column that the log shows. The temperature is not drawn.</translation>
    </message>
    <message>
        <source>GraphHint</source>
        <extracomment>%@ is the date of the first test in the graph.</extracomment>
        <translation>Days count from %@. Scroll or press + and − to zoom, drag to move, double-click for the whole graph.</translation>
    </message>
    <message>
        <source>GraphLegend</source>
        <translation>Legend</translation>
    </message>
    <message>
        <source>GraphLegendBand</source>
        <extracomment>^0 and ^1 are the limits of the parameter&apos;s target, numbers.</extracomment>
        <translation>Target: ^0 to ^1</translation>
    </message>
    <message>
        <source>GraphLegendToolTip</source>
        <translation>Show or hide this line.</translation>
    </message>
    <message>
        <source>GraphLegendValue</source>
        <extracomment>^0 is the parameter&apos;s target, a number.</extracomment>
        <translation>Target: ^0</translation>
    </message>
    <message>
        <source>GraphNoLines</source>
        <translation>The log shows no column that can be drawn. Show more columns than the date and the temperature, then draw again.</translation>
    </message>
    <message>
        <source>GraphNoTests</source>
        <translation>There are no water tests between these dates.</translation>
    </message>
    <message>
        <source>GraphNotTested</source>
        <translation>Not tested in this range</translation>
    </message>
    <message>
        <source>GraphNothingTested</source>
        <translation>None of the columns in the log was tested between these dates.</translation>
    </message>
    <message>
        <source>GraphPaperAxis</source>
        <extracomment>%@ is the date of the first test; stands below the axis of days of a graph that is printed or saved.</extracomment>
        <translation>Day, counted from %@ (day 1)</translation>
    </message>
    <message>
        <source>GraphPaperDates</source>
        <extracomment>^0 and ^1 are the first and the last date that is visible; stands below the title of a graph that is printed or saved.</extracomment>
        <translation>^0 to ^1</translation>
    </message>
    <message>
        <source>GraphPaperTitle</source>
        <extracomment>%@ is the tank&apos;s name; stands above a graph that is printed or saved.</extracomment>
        <translation>Water tests of %@</translation>
    </message>
    <message>
        <source>GraphPdfFilter</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>GraphPngFilter</source>
        <translation>Pictures (*.png)</translation>
    </message>
    <message>
        <source>GraphPointFilledIn</source>
        <extracomment>^0 is the parameter and ^1 the date of a water test; in the tool tip of a point of the graph that was interpolated.</extracomment>
        <translation>^0: not tested on ^1, filled in from other tests</translation>
    </message>
    <message>
        <source>GraphPointTested</source>
        <extracomment>^0 is the parameter, ^1 the value and ^2 the date of a water test; in the tool tip of a point of the graph.</extracomment>
        <translation>^0: ^1 on ^2</translation>
    </message>
    <message>
        <source>GraphPrint</source>
        <translation>Print the graph…</translation>
    </message>
    <message>
        <source>GraphSave</source>
        <translation>Save the graph as a picture or PDF…</translation>
    </message>
    <message>
        <source>GraphSaveErrorTitle</source>
        <translation>The graph could not be saved.</translation>
    </message>
    <message>
        <source>GraphSaveMessage</source>
        <translation>Save the graph as a picture or as a PDF.</translation>
    </message>
    <message>
        <source>GraphSaveName</source>
        <extracomment>%@ is the tank&apos;s name; the proposed name of the saved picture.</extracomment>
        <translation>Graph %@</translation>
    </message>
    <message>
        <source>GraphScale</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>GraphScaleToolTip</source>
        <translation>Scale: move up to magnify low values</translation>
    </message>
    <message>
        <source>GraphStartLabel</source>
        <translation>Start:</translation>
    </message>
    <message>
        <source>GraphStartToolTip</source>
        <translation>Choose the test to begin with, or type a date</translation>
    </message>
    <message>
        <source>GraphSwapToolTip</source>
        <translation>Exchange start and end</translation>
    </message>
    <message>
        <source>GraphTitle</source>
        <extracomment>%@ is the tank&apos;s name; the title of the graph&apos;s window.</extracomment>
        <translation>Graph of %@</translation>
    </message>
    <message>
        <source>GraphTitleNoTank</source>
        <translation>Graph</translation>
    </message>
    <message>
        <source>GraphViewDescription</source>
        <extracomment>what a screen reader says about the use of a graph</extracomment>
        <translation>Plus and minus zoom, the arrow keys move what is visible, 0 shows everything.</translation>
    </message>
    <message>
        <source>GraphViewName</source>
        <extracomment>what a screen reader calls a graph</extracomment>
        <translation>Graph</translation>
    </message>
    <message>
        <source>GraphWhole</source>
        <translation>Show the whole graph</translation>
    </message>
    <message>
        <source>GroupEntries</source>
        <translation>Entries: </translation>
    </message>
    <message>
        <source>GroupSpecimens</source>
        <translation>Specimens: </translation>
    </message>
    <message>
        <source>HardnessHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Calcium and magnesium together make up the general hardness (GH). Each day replace a tenth of the water with a mixture that contains reverse-osmosis or distilled water, and look for limestone, shells or coral sand in the tank. That water lowers the carbonate hardness (KH) too: keep it above about 4 degrees, or the pH can fall suddenly. A household softener only puts sodium in place of the hardness.</translation>
    </message>
    <message>
        <source>HardnessLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Calcium and magnesium together make up the general hardness (GH). Raise it by about 1 degree a day with a mineral salt of both, dissolved first, or with harder water; table salt does not raise it. If the GH is already on target, replace only the one that is short. Harder water often raises KH and pH too, so test for ammonia before you use it.</translation>
    </message>
    <message>
        <source>HelpBack</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>HelpButton</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>HelpButtonToolTip</source>
        <translation>Explain this view</translation>
    </message>
    <message>
        <source>HelpFind</source>
        <translation>Find on this page</translation>
    </message>
    <message>
        <source>HelpFindCount</source>
        <extracomment>^0 is how often the text occurs</extracomment>
        <translation>^0 found</translation>
    </message>
    <message>
        <source>HelpFindNone</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>HelpForward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>HelpHome</source>
        <translation>Start Page</translation>
    </message>
    <message>
        <source>HelpPageTitle</source>
        <extracomment>^0 is the page&apos;s title</extracomment>
        <translation>^0 – Help</translation>
    </message>
    <message>
        <source>HelpTitle</source>
        <translation>Help</translation>
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
        <source>HighAmmoniaReason</source>
        <extracomment>Shown in the target editor: two lines at most. ^0 is the number above which a target is too high.</extracomment>
        <translation>Above ^0, ammonia can damage the gills. The higher the pH, the more of it is toxic.</translation>
    </message>
    <message>
        <source>HighNitrateReason</source>
        <extracomment>Shown in the target editor: two lines at most. ^0 is the number above which a target is too high.</extracomment>
        <translation>Above ^0, nitrate weakens animals in the long run, and algae thrive on it.</translation>
    </message>
    <message>
        <source>HighNitriteReason</source>
        <extracomment>Shown in the target editor: two lines at most. ^0 is the number above which a target is too high.</extracomment>
        <translation>Above ^0, nitrite can keep the blood from carrying oxygen, most of all in soft water.</translation>
    </message>
    <message>
        <source>HighNitriteSaltReason</source>
        <extracomment>Shown in the target editor: two lines at most. ^0 is the number above which a target is too high.</extracomment>
        <translation>Sea water protects fish, but above ^0 the filter cannot keep up: test for ammonia.</translation>
    </message>
    <message>
        <source>HighValueMessage</source>
        <extracomment>No per-cent sign: this text is used as a format. ^0 is the upper limit.</extracomment>
        <translation>In this tank it should not be above ^0.</translation>
    </message>
    <message>
        <source>HighValueTitle</source>
        <extracomment>^0 is the title of the parameter&apos;s column.</extracomment>
        <translation>The value of ^0 is too high.</translation>
    </message>
    <message>
        <source>HighValueWarning</source>
        <extracomment>Shown in the target editor for ammonia, nitrate and nitrite. ^0 is the highest value that the target accepts.</extracomment>
        <translation>A value of ^0 is more than is good for a tank.</translation>
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
        <source>InventoryUndo</source>
        <translation>Change of Inventory</translation>
    </message>
    <message>
        <source>InvertBreedingMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to breed, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unknown, Easy, Moderate, Difficult, Not yet bred</translation>
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
        <source>IodineHighAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Add no more iodine. Change a tenth to a fifth of the water a day, and filter over fresh activated carbon, which takes iodine up. Some remedies and disinfectants contain it too.</translation>
    </message>
    <message>
        <source>IodineLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>In fresh water, animals get enough iodine with their food. Add none, and switch off the warning of this target.</translation>
    </message>
    <message>
        <source>IodineLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>The sea contains about 0.06 mg/l, and a little more is already toxic to many animals. Add iodine only by the test, in smaller doses than its maker allows, and never aim higher than this value.</translation>
    </message>
    <message>
        <source>Iron</source>
        <translation>Iron</translation>
    </message>
    <message>
        <source>IronHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Give no plant food with iron for a while, change a tenth to a fifth of the water, and test the tap water. More than about 0.5 mg/l only feeds algae.</translation>
    </message>
    <message>
        <source>IronHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Add no more iron, and look for rust on pumps, magnets, clamps and screws that touch the water. Change a tenth to a fifth of the water.</translation>
    </message>
    <message>
        <source>IronLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Animals need no iron in the water. If the youngest leaves of the plants turn pale, give plant food with iron in small doses; 0.1 mg/l is plenty.</translation>
    </message>
    <message>
        <source>IronLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Salt water holds less iron than these kits can measure, and food brings enough of it. Add none because of a low test, and set the target to 0.</translation>
    </message>
    <message>
        <source>ItemPagesName</source>
        <translation>Pages of the profile</translation>
    </message>
    <message>
        <source>ItemSearchButton</source>
        <translation>Search Profiles…</translation>
    </message>
    <message>
        <source>ItemSearchToolTip</source>
        <translation>Looks the species up in the profiles that come with the program. Changes that are not saved yet are lost when the search is cancelled.</translation>
    </message>
    <message>
        <source>ItemSubmitButton</source>
        <translation>Send In Profile…</translation>
    </message>
    <message>
        <source>ItemSubmitToolTip</source>
        <translation>Puts everything shown here into a message of your mail program</translation>
    </message>
    <message>
        <source>ItemTabNames</source>
        <translation>Names and Basics</translation>
    </message>
    <message>
        <source>ItemTabPicture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>ItemTabWater</source>
        <translation>Water and Needs</translation>
    </message>
    <message>
        <source>KH</source>
        <extracomment>Carbonate hardness; the column is 40 pixels wide.</extracomment>
        <translation>KH</translation>
    </message>
    <message>
        <source>KHHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Each day replace a tenth of the water with a mixture that contains reverse-osmosis or distilled water, and look for limestone, shells or coral sand in the tank. Never pour in acid: it turns the hardness into carbon dioxide at once, and too much of it makes the pH collapse.</translation>
    </message>
    <message>
        <source>KHLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Test for ammonia before you raise it: the pH rises with the KH, and from pH 6 to 7 ten times as much ammonium becomes ammonia. While a test shows any, first change a tenth of the water a day with water of about the same pH. Then raise the KH by at most 1 degree a day: that takes 3 grams of sodium bicarbonate to 100 litres, dissolved in water.</translation>
    </message>
    <message>
        <source>KHLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>In salt water this is the alkalinity. Raise it with a dissolved buffer for reef tanks by at most 1 degree a day, and test calcium and magnesium too. While a test shows ammonia, wait, because a buffer raises the pH.</translation>
    </message>
    <message>
        <source>KeptCopiesMessage</source>
        <extracomment>^0 is a list of paths, one a line.</extracomment>
        <translation>Brinemark was ended while it wrote over a file. If that file is damaged now, replace it by this copy of what it contained before:

^0</translation>
    </message>
    <message>
        <source>KeptCopiesTitle</source>
        <translation>A file may be damaged.</translation>
    </message>
    <message>
        <source>LastColumnToolTip</source>
        <translation>The log needs at least one column</translation>
    </message>
    <message>
        <source>LengthMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Inches to centimetres, Centimetres to inches, Decimetres to yards, Centimetres to feet, Feet to metres, Metres to yards, Yards to metres</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Loading profiles…</translation>
    </message>
    <message>
        <source>LowValueMessage</source>
        <extracomment>No per-cent sign: this text is used as a format. ^0 is the lower limit.</extracomment>
        <translation>In this tank it should not be below ^0.</translation>
    </message>
    <message>
        <source>LowValueTitle</source>
        <extracomment>^0 is the title of the parameter&apos;s column.</extracomment>
        <translation>The value of ^0 is too low.</translation>
    </message>
    <message>
        <source>Magnesium</source>
        <translation>Magnesium</translation>
    </message>
    <message>
        <source>MagnesiumHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Check the salinity first, because magnesium rises with it. Stop dosing, and let ordinary water changes bring the value down; up to about 1500 mg/l there is no hurry.</translation>
    </message>
    <message>
        <source>MagnesiumLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Reef tanks are usually kept at 1250 to 1400 mg/l. Check the salinity first, because magnesium falls with it. Raise magnesium with a dissolved salt by at most 50 mg/l a day, before you correct calcium or alkalinity, which do not hold without it.</translation>
    </message>
    <message>
        <source>MainViewTitle</source>
        <extracomment>Heads a view: ^0 is what it shows, ^1 the tank&apos;s name.</extracomment>
        <translation>^0 – ^1</translation>
    </message>
    <message>
        <source>MakeDefaultCheck</source>
        <extracomment>Check box in the open and save dialogs.</extracomment>
        <translation>Open this file whenever Brinemark starts</translation>
    </message>
    <message>
        <source>MeasurementMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Degrees of hardness to ppm, ppm to degrees of hardness, Specific gravity to salinity (ppt), Salinity (ppt) to specific gravity, Tablespoons to teaspoons, Teaspoons to drops, Millilitres to teaspoons, Teaspoons to millilitres, Degrees of carbonate hardness to meq/l, meq/l to degrees of carbonate hardness</translation>
    </message>
    <message>
        <source>MenuEdit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>MenuEditCopy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>MenuEditCut</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>MenuEditDelete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>MenuEditPaste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>MenuEditPreferences</source>
        <translation>Pr&amp;eferences…</translation>
    </message>
    <message>
        <source>MenuEditRedo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>MenuEditRedoNamed</source>
        <extracomment>%@ is the change that can be repeated.</extracomment>
        <translation>Redo %@</translation>
    </message>
    <message>
        <source>MenuEditSelectAll</source>
        <translation>Select &amp;All</translation>
    </message>
    <message>
        <source>MenuEditUndo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>MenuEditUndoNamed</source>
        <extracomment>%@ is the change that can be undone.</extracomment>
        <translation>Undo %@</translation>
    </message>
    <message>
        <source>MenuFile</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>MenuFileExport</source>
        <translation>&amp;Export Water Tests…</translation>
    </message>
    <message>
        <source>MenuFileNew</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>MenuFileOpen</source>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>MenuFileOpenRecent</source>
        <translation>Open &amp;Recent</translation>
    </message>
    <message>
        <source>MenuFilePageSetup</source>
        <translation>Page Set&amp;up…</translation>
    </message>
    <message>
        <source>MenuFilePrint</source>
        <translation>&amp;Print…</translation>
    </message>
    <message>
        <source>MenuFileQuit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>MenuFileRevert</source>
        <translation>Re&amp;vert to Saved</translation>
    </message>
    <message>
        <source>MenuFileSave</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>MenuFileSaveAs</source>
        <translation>Save &amp;As…</translation>
    </message>
    <message>
        <source>MenuHelp</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>MenuHelpAbout</source>
        <translation>&amp;About Brinemark</translation>
    </message>
    <message>
        <source>MenuHelpFeedback</source>
        <translation>Send &amp;Feedback</translation>
    </message>
    <message>
        <source>MenuHelpHelp</source>
        <translation>Brinemark &amp;Help</translation>
    </message>
    <message>
        <source>MenuHelpMailingList</source>
        <translation>&amp;Mailing List…</translation>
    </message>
    <message>
        <source>MenuHelpProductPage</source>
        <translation>&amp;Product Page</translation>
    </message>
    <message>
        <source>MenuHelpUpdates</source>
        <translation>Check for &amp;Updates…</translation>
    </message>
    <message>
        <source>MenuRecentClear</source>
        <translation>&amp;Clear Menu</translation>
    </message>
    <message>
        <source>MenuRecentNone</source>
        <extracomment>Stands in the menu of the recent files while it holds none.</extracomment>
        <translation>No recent files</translation>
    </message>
    <message>
        <source>MenuSortAscending</source>
        <extracomment>Without a mnemonic: the columns above need all letters.</extracomment>
        <translation>Ascending</translation>
    </message>
    <message>
        <source>MenuSortDescending</source>
        <extracomment>Without a mnemonic: the columns above need all letters.</extracomment>
        <translation>Descending</translation>
    </message>
    <message>
        <source>MenuSortNone</source>
        <extracomment>Stands in the menu of the columns to sort by while no list is on screen.</extracomment>
        <translation>No list is shown</translation>
    </message>
    <message>
        <source>MenuTank</source>
        <translation>&amp;Tank</translation>
    </message>
    <message>
        <source>MenuTankEdit</source>
        <translation>E&amp;dit Tank…</translation>
    </message>
    <message>
        <source>MenuTankNewActivity</source>
        <translation>New &amp;Activity</translation>
    </message>
    <message>
        <source>MenuTankNewCoral</source>
        <translation>New &amp;Coral…</translation>
    </message>
    <message>
        <source>MenuTankNewExpense</source>
        <translation>New &amp;Expense</translation>
    </message>
    <message>
        <source>MenuTankNewFish</source>
        <translation>New &amp;Fish…</translation>
    </message>
    <message>
        <source>MenuTankNewInventory</source>
        <translation>New In&amp;ventory Item</translation>
    </message>
    <message>
        <source>MenuTankNewInvert</source>
        <translation>New &amp;Invertebrate…</translation>
    </message>
    <message>
        <source>MenuTankNewNote</source>
        <translation>New &amp;Note</translation>
    </message>
    <message>
        <source>MenuTankNewPlant</source>
        <translation>New &amp;Plant…</translation>
    </message>
    <message>
        <source>MenuTankNewTank</source>
        <translation>New &amp;Tank…</translation>
    </message>
    <message>
        <source>MenuTankNewWaterTest</source>
        <translation>New &amp;Water Test</translation>
    </message>
    <message>
        <source>MenuTreeRename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>MenuView</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>MenuViewCollapse</source>
        <translation>&amp;Collapse</translation>
    </message>
    <message>
        <source>MenuViewCustomiseToolbar</source>
        <translation>Customise &amp;Toolbar…</translation>
    </message>
    <message>
        <source>MenuViewExpand</source>
        <translation>&amp;Expand</translation>
    </message>
    <message>
        <source>MenuViewGraph</source>
        <translation>&amp;Graph…</translation>
    </message>
    <message>
        <source>MenuViewSortBy</source>
        <translation>&amp;Sort By</translation>
    </message>
    <message>
        <source>MenuWindow</source>
        <translation>&amp;Window</translation>
    </message>
    <message>
        <source>MenuWindowMinimise</source>
        <translation>&amp;Minimise</translation>
    </message>
    <message>
        <source>NewButtonToolTip</source>
        <translation>Add an entry</translation>
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
        <source>NewTankTitle</source>
        <translation>New Tank</translation>
    </message>
    <message>
        <source>NewTitle</source>
        <translation>New</translation>
    </message>
    <message>
        <source>NextItemToolTip</source>
        <translation>Next entry of this group</translation>
    </message>
    <message>
        <source>NextMonth</source>
        <translation>Next month (Page Down)</translation>
    </message>
    <message>
        <source>NextYear</source>
        <translation>Next year (Shift + Page Down)</translation>
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
        <source>NitrateHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>If your kit states nitrogen (NO₃-N), multiply its value by 4.4 to get nitrate, and compare that with the target.</translation>
    </message>
    <message>
        <source>NitrateHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Corals and other invertebrates bear less than fish, about 20 mg/l. If your kit states nitrogen (NO₃-N), multiply its value by 4.4 to get nitrate, and compare that with the target.</translation>
    </message>
    <message>
        <source>NitrateLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Fish need no nitrate. Plants usually do well with 10 to 20 mg/l; in a tank without plants set the target to 0.</translation>
    </message>
    <message>
        <source>NitrateLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Fish need no nitrate, but corals starve when both nitrate and phosphate are at zero. From 2 to 10 mg/l is usual in a reef tank.</translation>
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

Nitrate is what remains of food and waste when the filter has done its work. Its effect is slow, so there is time.

Too high: change a fifth to a third of the water now, and again every few days until the value is in range. Do not change it all at once, because animals that are used to much nitrate cope badly with a sudden drop. Test the tap water too, as it may bring nitrate with it. To keep the value down, feed less, clean the bottom, rinse the filter in tank water, stock lightly and grow plants, or in a marine tank macroalgae beside a good skimmer.

Too low for plants or corals: feed a little more, or add a nitrate fertiliser in small doses, testing before each one.</translation>
    </message>
    <message>
        <source>Nitrite</source>
        <translation>Nitrite</translation>
    </message>
    <message>
        <source>NitriteFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. Tolerated nitrite in fresh water, mg/l.</extracomment>
        <translation>0.1</translation>
    </message>
    <message>
        <source>NitriteHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>At once: test for ammonia; below pH 7, if there is any, change only a tenth of the water at a time, because a higher pH makes it poisonous. Otherwise replace a third to a half of the water with conditioned water of the same temperature, and again every day until the value is in range, because nitrite keeps the blood from carrying oxygen. Chloride protects fish: nearly all of them, and most plants, tolerate about 1 gram of pure salt (sodium chloride without additives) to 10 litres, dissolved in tank water and added once, over several hours. After that add only as much as each water change takes out.</translation>
    </message>
    <message>
        <source>NitriteHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Salt water holds about 19 g/l of chloride, which keeps nitrite out of the gills: fish bear many times what would harm them in fresh water. Nitrite alone calls for no large water change here. Wait for the filter, and act on ammonia if a test shows any.</translation>
    </message>
    <message>
        <source>NitriteLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Too low is no fault: a settled tank shows no nitrite. Add none, and set the target to 0.</translation>
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

If the last paragraph begins with “At once”, do that first. Nitrite in the water shows that the bacteria of the filter are not keeping up, as often in a new tank. Test for ammonia as well, which is more dangerous.

Until the value is in range, test every day, feed little, aerate strongly, add no animals, and rinse filter media only in tank water.</translation>
    </message>
    <message>
        <source>NoBrowserMessage</source>
        <extracomment>^0 is a web address.</extracomment>
        <translation>Set up a browser on your desktop, or visit ^0 yourself.</translation>
    </message>
    <message>
        <source>NoBrowserTitle</source>
        <translation>No web browser was found.</translation>
    </message>
    <message>
        <source>NoDisplayMessage</source>
        <translation>Brinemark needs a desktop to show its window on, and none was found. Start it from a desktop session, or set DISPLAY or WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>NoFishData</source>
        <translation>The profiles could not be read.</translation>
    </message>
    <message>
        <source>NoFishDataMessage</source>
        <translation>The collection of species profiles that belongs to Brinemark is missing or damaged. Your tanks are not affected. Installing Brinemark again brings the profiles back.</translation>
    </message>
    <message>
        <source>NoLabel</source>
        <translation>No</translation>
    </message>
    <message>
        <source>NoMailProgramMessage</source>
        <extracomment>^0 is a mail address.</extracomment>
        <translation>Set up a mail program on your desktop, or write to ^0 yourself.</translation>
    </message>
    <message>
        <source>NoMailProgramTitle</source>
        <translation>No mail program was found.</translation>
    </message>
    <message>
        <source>NoneSelected</source>
        <extracomment>No file is opened at start.</extracomment>
        <translation>None selected</translation>
    </message>
    <message>
        <source>NotATankFileMessage</source>
        <translation>Choose a file that was saved by this program.</translation>
    </message>
    <message>
        <source>NotATankFileTitle</source>
        <extracomment>^0 is the name of the file</extracomment>
        <translation>“^0” is not a tank file.</translation>
    </message>
    <message>
        <source>NotFullyReadMessage</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>Only part of “^0” is open. Saving to the same file would remove what could not be read. Save under another name to keep both.</translation>
    </message>
    <message>
        <source>NotFullyReadTitle</source>
        <translation>Not everything in this file could be read.</translation>
    </message>
    <message>
        <source>NotTested</source>
        <extracomment>Fills the table cells of values that were not tested: a few letters, no digits, not a lone hyphen.</extracomment>
        <translation>n/a</translation>
    </message>
    <message>
        <source>NotTestedDialogMessage</source>
        <translation>A new water test begins with every value marked as not tested. Such values cause no warning, stay empty in exports, and are bridged by a straight line in graphs. To mark a value as not tested again, empty its cell.</translation>
    </message>
    <message>
        <source>NotTestedDialogTitle</source>
        <translation>Fill in only what you tested.</translation>
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
        <source>NoteUndo</source>
        <translation>Change of Note</translation>
    </message>
    <message>
        <source>NotificationGoTo</source>
        <translation>Show in the maintenance schedule</translation>
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
        <source>Online</source>
        <extracomment>Ends the list of what to search by; opens the browser.</extracomment>
        <translation>The Web</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original Date</translation>
    </message>
    <message>
        <source>OverdueRescheduleMessage</source>
        <translation>From which day should the next one be counted? “Today” starts a new rhythm; “Original Date” keeps the old one, even if the next activity is then due at once. “Cancel” marks this activity as not done.</translation>
    </message>
    <message>
        <source>OverdueRescheduleTitle</source>
        <translation>This activity was overdue.</translation>
    </message>
    <message>
        <source>Oxygen</source>
        <translation>Oxygen</translation>
    </message>
    <message>
        <source>OxygenHighAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>In bright light plants and algae lift the value above what air alone can give, about 8 mg/l in warm fresh water and 7 mg/l in warm salt water. That is harmless. If small bubbles stay on the animals, look for a pump that draws in air, and stir the surface. Below 5 mg/l there is too little, whatever the target says.</translation>
    </message>
    <message>
        <source>OxygenLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>At once: aerate strongly, let the filter stir the surface, and turn off any carbon dioxide supply. Below 5 mg/l young fish suffer, below 3 mg/l grown ones too. Then stop feeding for a day, take out what has died or rots, and cool the water slowly if it is too warm. Test again early in the morning, when oxygen is lowest.</translation>
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
        <translation>Plants use up carbon dioxide and lift the pH by day, so compare tests of the same hour. If a test shows ammonia, treat that first: one part in 19 of it is toxic at pH 8, one in 180 at pH 7.</translation>
    </message>
    <message>
        <source>PhHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Above about pH 8.6, stop dosing limewater and buffers and aerate: carbon dioxide from the air brings the pH down. If a test shows ammonia, treat that first.</translation>
    </message>
    <message>
        <source>PhLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Below about pH 6 the filter bacteria hardly work, so ammonium may have gathered unseen. Test for ammonia before any water change or buffer: from pH 6 to 7, ten times as much of it becomes toxic.</translation>
    </message>
    <message>
        <source>PhLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>In a reef tank the pH is lowest in the early morning, so compare tests of the same hour. Air the room, then test the alkalinity, and add a buffer only if that is low too.</translation>
    </message>
    <message>
        <source>PhTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

A whole step of pH is a tenfold change, so move it by no more than 0.2 to 0.3 a day: a steady value that is a little off does less harm than a quick correction. Measure ammonia and carbonate hardness (KH) first. Never raise the pH while ammonia is present, and expect the pH to swing below about 4 degrees KH.

Too low: the carbonate hardness is usually used up; change a little of the water every day, then raise the KH in small steps. A marine tank often only wants fresh air in the room.

Too high: in fresh water mix in softer water, or add carbon dioxide or peat; in a marine tank, where 8.0 to 8.4 is usual, check the alkalinity before you add anything.</translation>
    </message>
    <message>
        <source>Phosphate</source>
        <translation>Phosphate</translation>
    </message>
    <message>
        <source>PhosphateHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Phosphate hardly harms animals, but it feeds algae. Feed less, change a tenth to a fifth of the water at a time, test the tap water, and use a phosphate remover if that is not enough. If your kit states phosphorus (PO₄-P), multiply its value by 3.1 to get phosphate.</translation>
    </message>
    <message>
        <source>PhosphateHighSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Above about 0.1 mg/l corals grow more slowly. Feed less, and use a phosphate remover in small amounts: a sudden drop harms corals more than the value does. If your kit states phosphorus (PO₄-P), multiply its value by 3.1 to get phosphate.</translation>
    </message>
    <message>
        <source>PhosphateLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Animals need no phosphate in the water. Plants do well with 0.1 to 1 mg/l, from plant food in small doses; in a tank without plants set the target to 0.</translation>
    </message>
    <message>
        <source>PhosphateLowSaltAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Corals need a trace, usually 0.02 to 0.1 mg/l. Take out some of the phosphate remover, or feed a little more.</translation>
    </message>
    <message>
        <source>PictureChoose</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>PictureDamaged</source>
        <translation>The file is damaged or not complete.</translation>
    </message>
    <message>
        <source>PictureFilter</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>PictureLabel</source>
        <translation>Picture: </translation>
    </message>
    <message>
        <source>PictureNotAPicture</source>
        <translation>Choose a picture in one of the formats PNG, JPEG, WebP, GIF, BMP or TIFF.</translation>
    </message>
    <message>
        <source>PictureNotReadable</source>
        <translation>The file cannot be read. See whether it is still there and whether you may open it.</translation>
    </message>
    <message>
        <source>PicturePageTitle</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>PictureRefusedTitle</source>
        <extracomment>^0 is the name of the file</extracomment>
        <translation>The picture “^0” cannot be used.</translation>
    </message>
    <message>
        <source>PictureRemove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>PictureTooLarge</source>
        <translation>It is too large. A picture may have up to 100 million pixels.</translation>
    </message>
    <message>
        <source>PictureUnreadable</source>
        <translation>This picture cannot be shown.</translation>
    </message>
    <message>
        <source>PlantBreedingMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. How hard it is to breed, from 0 (unknown); profiles refer to the items by their number. Two letters or more each.</extracomment>
        <translation>Unknown, Easy, Moderate, Difficult, Seldom succeeds</translation>
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
        <source>PollutantMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Nitrate to nitrate nitrogen, Nitrate nitrogen to nitrate</translation>
    </message>
    <message>
        <source>PreferencesNotSavedMessage</source>
        <extracomment>^0 is a path.</extracomment>
        <translation>What you change in them applies until you quit. Make sure that the file “^0” can be written and that the disk is not full.</translation>
    </message>
    <message>
        <source>PreferencesNotSavedTitle</source>
        <translation>The preferences could not be saved.</translation>
    </message>
    <message>
        <source>PreferredStepperToolTip</source>
        <translation>Raise or lower the target</translation>
    </message>
    <message>
        <source>PreferredToolTip</source>
        <translation>The value to aim for, in the unit of your test kit</translation>
    </message>
    <message>
        <source>PrefsAutoSaveAsk</source>
        <translation>Ask what to do</translation>
    </message>
    <message>
        <source>PrefsAutoSaveOn</source>
        <translation>Save automatically</translation>
    </message>
    <message>
        <source>PrefsCalendar</source>
        <translation>Calendar for activities:</translation>
    </message>
    <message>
        <source>PrefsChoose</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>PrefsClear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>PrefsClearToolTip</source>
        <translation>Open no file at the start</translation>
    </message>
    <message>
        <source>PrefsDefaultFile</source>
        <translation>File opened at start:</translation>
    </message>
    <message>
        <source>PrefsHiddenMessages</source>
        <translation>Messages not shown again:</translation>
    </message>
    <message>
        <source>PrefsHiddenMessagesNone</source>
        <extracomment>The number of messages that are not shown again.</extracomment>
        <translation>None</translation>
    </message>
    <message>
        <source>PrefsNoCalendars</source>
        <translation>No calendar found</translation>
    </message>
    <message>
        <source>PrefsOnQuit</source>
        <translation>Unsaved changes when quitting:</translation>
    </message>
    <message>
        <source>PrefsOverdueCheck</source>
        <translation>Show overdue activities when a file is opened</translation>
    </message>
    <message>
        <source>PrefsSchedule</source>
        <translation>Maintenance:</translation>
    </message>
    <message>
        <source>PrefsShowMessages</source>
        <translation>Show Again</translation>
    </message>
    <message>
        <source>PrefsShowMessagesToolTip</source>
        <translation>Show every message again that you switched off with “Do not show this message again”</translation>
    </message>
    <message>
        <source>PrefsTitle</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>PreviousItemToolTip</source>
        <translation>Previous entry of this group</translation>
    </message>
    <message>
        <source>PreviousMonth</source>
        <translation>Previous month (Page Up)</translation>
    </message>
    <message>
        <source>PreviousYear</source>
        <translation>Previous year (Shift + Page Up)</translation>
    </message>
    <message>
        <source>PrintItemMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>Everything, Chosen parts</translation>
    </message>
    <message>
        <source>PrintPartsLabel</source>
        <translation>Parts:</translation>
    </message>
    <message>
        <source>PrintTankMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>All tanks, Current tank</translation>
    </message>
    <message>
        <source>PrintTanksLabel</source>
        <translation>Print:</translation>
    </message>
    <message>
        <source>PrintTitle</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>ProfileViewTitle</source>
        <translation>Profile</translation>
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
        <source>ReplaceFileButton</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>ReplaceFileMessage</source>
        <translation>If you replace it, what it holds now is lost.</translation>
    </message>
    <message>
        <source>ReplaceFileTitle</source>
        <extracomment>^0 is the name of a file.</extracomment>
        <translation>“^0” already exists.</translation>
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
        <source>SaltHighAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Replace tank water with conditioned fresh water in several small portions, so that the specific gravity falls by at most 0.001 a day. Make up what evaporates with fresh water only, because the salt stays behind.</translation>
    </message>
    <message>
        <source>SaltLowAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Never put dry salt into the tank, because it burns the animals that it touches. Dissolve it in other water first, and pour that in slowly in several small portions, so that the specific gravity rises by at most 0.001 a day.</translation>
    </message>
    <message>
        <source>SaveErrorBeforeNew</source>
        <translation>Your changes are still open, but are lost when you begin a new file without saving them.</translation>
    </message>
    <message>
        <source>SaveErrorBeforeOpen</source>
        <translation>Your changes are still open, but are lost when you open another file without saving them.</translation>
    </message>
    <message>
        <source>SaveErrorBeforeQuit</source>
        <translation>Your changes are still open, but are lost when you quit without saving them.</translation>
    </message>
    <message>
        <source>SaveErrorDiscardNew</source>
        <translation>New Without Saving</translation>
    </message>
    <message>
        <source>SaveErrorDiscardOpen</source>
        <translation>Open Without Saving</translation>
    </message>
    <message>
        <source>SaveErrorDiscardQuit</source>
        <translation>Quit Without Saving</translation>
    </message>
    <message>
        <source>SaveErrorMessage</source>
        <translation>Saving the tank file failed.</translation>
    </message>
    <message>
        <source>SaveErrorStillOpen</source>
        <translation>Your changes are still open in Brinemark. Try again, or use “Save As” to choose another place.</translation>
    </message>
    <message>
        <source>SaveLabel</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>SaveLeftDamagedFile</source>
        <extracomment>^0 is the path of a copy.</extracomment>
        <translation>The file is damaged now. What it contained before is in “^0”.</translation>
    </message>
    <message>
        <source>SaveLeftNewFile</source>
        <translation>The new version is in the file, but the disk did not confirm that it would survive a power failure.</translation>
    </message>
    <message>
        <source>SaveLeftOldFile</source>
        <translation>Nothing on the disk was changed.</translation>
    </message>
    <message>
        <source>SaveMessage</source>
        <translation>If you do not save, everything you changed since you last saved is lost.</translation>
    </message>
    <message>
        <source>SaveProblemDevice</source>
        <translation>The disk or network drive reported an error.</translation>
    </message>
    <message>
        <source>SaveProblemNameTooLong</source>
        <translation>The name of the file is too long.</translation>
    </message>
    <message>
        <source>SaveProblemNoPermission</source>
        <translation>You do not have permission to write there.</translation>
    </message>
    <message>
        <source>SaveProblemNoSafeCopy</source>
        <translation>Nothing can be created in its folder, and no copy could be kept in your home folder while the file is overwritten.</translation>
    </message>
    <message>
        <source>SaveProblemNoSpace</source>
        <translation>There is not enough room left on the disk.</translation>
    </message>
    <message>
        <source>SaveProblemNotAFile</source>
        <translation>Something that is not a file has this name.</translation>
    </message>
    <message>
        <source>SaveProblemOther</source>
        <extracomment>^0 is the system&apos;s reason.</extracomment>
        <translation>The system reports: ^0.</translation>
    </message>
    <message>
        <source>SaveProblemPathGone</source>
        <translation>The folder no longer exists.</translation>
    </message>
    <message>
        <source>SaveProblemQuota</source>
        <translation>Your share of the disk is used up.</translation>
    </message>
    <message>
        <source>SaveProblemReadOnly</source>
        <translation>The disk is write-protected.</translation>
    </message>
    <message>
        <source>SaveProblemTooLarge</source>
        <translation>The file is larger than the disk allows.</translation>
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
        <source>SavingPicturesMessage</source>
        <translation>Some pictures are being converted to PNG first.</translation>
    </message>
    <message>
        <source>SavingPicturesTitle</source>
        <extracomment>^0 is the name of the file</extracomment>
        <translation>Saving “^0”…</translation>
    </message>
    <message>
        <source>ScheduleCustomDays</source>
        <translation>Number of days…</translation>
    </message>
    <message>
        <source>ScheduleCustomWeeks</source>
        <translation>Number of weeks…</translation>
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
        <source>ScheduleIntervalMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>1 day, 2 days, 1 week, 2 weeks, 4 weeks, 52 weeks</translation>
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
        <source>ScheduleUndo</source>
        <translation>Change of Activity</translation>
    </message>
    <message>
        <source>SciName</source>
        <translation>Scientific Name</translation>
    </message>
    <message>
        <source>SearchBy</source>
        <translation>Search by:</translation>
    </message>
    <message>
        <source>SearchByToolTip</source>
        <translation>Choose what to search by</translation>
    </message>
    <message>
        <source>SearchImagesOnline</source>
        <translation>Search the Web for Pictures</translation>
    </message>
    <message>
        <source>SearchOnline</source>
        <translation>Search the Web</translation>
    </message>
    <message>
        <source>SearchProfileImages</source>
        <translation>Search for Pictures</translation>
    </message>
    <message>
        <source>SearchProfileOnline</source>
        <translation>Search the Web</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Searching…</translation>
    </message>
    <message>
        <source>SelectCal</source>
        <translation>Choose Calendar…</translation>
    </message>
    <message>
        <source>SendLabel</source>
        <translation>Send…</translation>
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
        <source>ShowPicturePage</source>
        <translation>Show the whole picture</translation>
    </message>
    <message>
        <source>ShowProfilePage</source>
        <translation>Show the profile</translation>
    </message>
    <message>
        <source>ShowToolbar</source>
        <translation>Show Toolbar</translation>
    </message>
    <message>
        <source>SignUpAddress</source>
        <translation>E-mail address</translation>
    </message>
    <message>
        <source>SignUpJoin</source>
        <translation>Join</translation>
    </message>
    <message>
        <source>SignUpMessage</source>
        <translation>Would you like to hear of new versions by e-mail? Enter your address, or choose Cancel; you can join later from the Help menu.</translation>
    </message>
    <message>
        <source>SignUpTitle</source>
        <translation>Mailing List</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>SortedAscending</source>
        <extracomment>^0 is a column&apos;s header; what a screen reader says of the column that a list is sorted by.</extracomment>
        <translation>^0, sorted ascending</translation>
    </message>
    <message>
        <source>SortedDescending</source>
        <extracomment>^0 is a column&apos;s header; what a screen reader says of the column that a list is sorted by.</extracomment>
        <translation>^0, sorted descending</translation>
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
        <source>StepDown</source>
        <translation>Decrease</translation>
    </message>
    <message>
        <source>StepUp</source>
        <translation>Increase</translation>
    </message>
    <message>
        <source>SubmitMessage</source>
        <translation>Your mail program will open with a message that holds everything shown in the editor. Nothing leaves this computer until you send that message.</translation>
    </message>
    <message>
        <source>SubmitTitle</source>
        <translation>Do you want to send in this profile?</translation>
    </message>
    <message>
        <source>SurfaceMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Square feet to square metres, Square metres to square feet, Square feet to square inches, Square inches to square feet</translation>
    </message>
    <message>
        <source>TankFileFilter</source>
        <extracomment>Kind of file in the open and save dialogs; the pattern in brackets stays as it is.</extracomment>
        <translation>Tank files (*.xml)</translation>
    </message>
    <message>
        <source>TankFreshwater</source>
        <translation>Freshwater</translation>
    </message>
    <message>
        <source>TankLevelMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Profiles refer to the items by their number, counted from 0.</extracomment>
        <translation>All levels, Top, Top to middle, Middle, Middle to bottom, Bottom, Floating, Foreground, Background, On rock or wood</translation>
    </message>
    <message>
        <source>TankListLabel</source>
        <extracomment>What a screen reader calls the tree of tanks.</extracomment>
        <translation>Tanks</translation>
    </message>
    <message>
        <source>TankNameLabel</source>
        <translation>Name: </translation>
    </message>
    <message>
        <source>TankSaltwater</source>
        <translation>Marine</translation>
    </message>
    <message>
        <source>TankSheetDeviation</source>
        <translation>T&amp;olerance (±):</translation>
    </message>
    <message>
        <source>TankSheetHelpToolTip</source>
        <translation>Explain water tests and targets</translation>
    </message>
    <message>
        <source>TankSheetName</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>TankSheetParameter</source>
        <translation>&amp;Parameter:</translation>
    </message>
    <message>
        <source>TankSheetPreferred</source>
        <translation>&amp;Target:</translation>
    </message>
    <message>
        <source>TankSheetSize</source>
        <translation>&amp;Size:</translation>
    </message>
    <message>
        <source>TankSheetType</source>
        <translation>T&amp;ype:</translation>
    </message>
    <message>
        <source>TankSize</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Size: </translation>
    </message>
    <message>
        <source>TankSizeToolTip</source>
        <translation>Volume or measures, as you like to write them</translation>
    </message>
    <message>
        <source>TankType</source>
        <extracomment>Stands directly before its value.</extracomment>
        <translation>Type: </translation>
    </message>
    <message>
        <source>TankViewTitle</source>
        <translation>Tank</translation>
    </message>
    <message>
        <source>TargetPopupToolTip</source>
        <translation>The parameter whose target is shown below</translation>
    </message>
    <message>
        <source>TargetsTitle</source>
        <translation>Targets</translation>
    </message>
    <message>
        <source>TempFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. The temperature target of a new tank, in the unit people of this language use.</extracomment>
        <translation>25</translation>
    </message>
    <message>
        <source>TempMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Fahrenheit to Celsius, Celsius to Fahrenheit</translation>
    </message>
    <message>
        <source>TempTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

A sudden change harms animals more than a degree or two does, so bring the temperature back by no more than about 1 degree Celsius an hour. First compare with a second thermometer, and see that the heater works and the water circulates.

Too warm: turn the heater down or unplug it, open the lid, dim the light, let a fan blow over the surface, and aerate, because warm water holds less oxygen.

Too cold: repair or add a heater and cover the tank; a water change with slightly warmer, conditioned water helps within the same limit.</translation>
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
        <source>Today</source>
        <translation>Today</translation>
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
        <source>ToolbarCustomise</source>
        <translation>Customise</translation>
    </message>
    <message>
        <source>ToolbarCustomiseAdd</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>ToolbarCustomiseAvailable</source>
        <translation>A&amp;vailable:</translation>
    </message>
    <message>
        <source>ToolbarCustomiseDisplay</source>
        <translation>Sho&amp;w:</translation>
    </message>
    <message>
        <source>ToolbarCustomiseDone</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>ToolbarCustomiseDown</source>
        <translation>Move &amp;Down</translation>
    </message>
    <message>
        <source>ToolbarCustomiseRemove</source>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>ToolbarCustomiseReset</source>
        <translation>Restore De&amp;faults</translation>
    </message>
    <message>
        <source>ToolbarCustomiseShown</source>
        <translation>&amp;Shown:</translation>
    </message>
    <message>
        <source>ToolbarCustomiseTitle</source>
        <translation>Customise Toolbar</translation>
    </message>
    <message>
        <source>ToolbarCustomiseToolTip</source>
        <translation>Choose what the toolbar shows</translation>
    </message>
    <message>
        <source>ToolbarCustomiseUp</source>
        <translation>Move &amp;Up</translation>
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
        <source>ToolbarFlexibleSpace</source>
        <translation>Flexible Space</translation>
    </message>
    <message>
        <source>ToolbarIconAndText</source>
        <translation>Icon and Text</translation>
    </message>
    <message>
        <source>ToolbarIconOnly</source>
        <translation>Icon Only</translation>
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
        <source>ToolbarPrint</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>ToolbarPrintToolTip</source>
        <translation>Print tanks and records</translation>
    </message>
    <message>
        <source>ToolbarSeparator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>ToolbarSpace</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>ToolbarTextOnly</source>
        <translation>Text Only</translation>
    </message>
    <message>
        <source>ToolbarTitle</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>TreeNewToolTip</source>
        <translation>Add a tank or something that lives in it</translation>
    </message>
    <message>
        <source>UnsetTargetAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>The target is still 0, as in every new tank, so this notice says nothing about your water yet. Set the target before you act on it: select the tank, and double-click the value in its list of targets.</translation>
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
        <source>VolumeMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Imperial gallons to US gallons, Imperial gallons to litres, Litres to imperial gallons, Litres to US gallons, US gallons to litres, US gallons to US quarts</translation>
    </message>
    <message>
        <source>WarningCheckboxToolTip</source>
        <translation>Hold new water tests against this target</translation>
    </message>
    <message>
        <source>WindowEditedMark</source>
        <extracomment>Said beside the file&apos;s name while changes are unsaved.</extracomment>
        <translation>Edited</translation>
    </message>
    <message>
        <source>WindowTitle</source>
        <extracomment>^0 is the file&apos;s name.</extracomment>
        <translation>^0 – Brinemark</translation>
    </message>
    <message>
        <source>YesLabel</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>genericTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Alkalinity keeps the pH steady, and corals need it for their skeletons. Repeat the test before you act, then change the value by no more than about 1 dKH (18 ppm, 0.36 meq/l) a day. Test calcium and magnesium too, as the three depend on each other.

Too low: change some of the water, or add a carbonate buffer, such as sodium bicarbonate, in small portions dissolved in water, where the current is strong. While ammonia is present, wait: a buffer raises the pH.

Too high: stop dosing, and let use and ordinary water changes bring it down.</translation>
    </message>
    <message>
        <source>iCalAlertMessage</source>
        <translation>Choose in the preferences which calendar receives your activities. Nothing has been added yet.</translation>
    </message>
    <message>
        <source>iCalAlertTitle</source>
        <translation>No calendar has been chosen.</translation>
    </message>
    <message>
        <source>ppmTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

If the last paragraph begins with “At once”, do that first. In all other cases there is time: repeat the test, because one result can be wrong, and check that test and target use the same unit.

Then look for the cause, such as tap water, evaporation, food, dosing or a remedy. As a rule bring the value back in small steps over days, and test before each one.</translation>
    </message>
</context>
<context>
    <name>QZCURLTaskStrings</name>
    <message>
        <source>DownloadSize</source>
        <extracomment>^0 is the amount received, ^1 the total, ^2 the amount received in a second.</extracomment>
        <translation>^0 of ^1 (^2/s)</translation>
    </message>
    <message>
        <source>DownloadTimeRemaining</source>
        <extracomment>^0 is a time made of the time labels, such as 1 hour and 2 minutes.</extracomment>
        <translation>^0 remaining</translation>
    </message>
    <message>
        <source>HoursLabel</source>
        <extracomment>Follows a number directly.</extracomment>
        <translation> hours</translation>
    </message>
    <message>
        <source>MinutesLabel</source>
        <extracomment>Follows a number directly.</extracomment>
        <translation> minutes</translation>
    </message>
    <message>
        <source>SecondsLabel</source>
        <extracomment>Follows a number directly.</extracomment>
        <translation> seconds</translation>
    </message>
    <message>
        <source>SingleHourLabel</source>
        <translation>1 hour</translation>
    </message>
    <message>
        <source>SingleMinuteLabel</source>
        <translation>1 minute</translation>
    </message>
    <message>
        <source>SingleSecondLabel</source>
        <translation>1 second</translation>
    </message>
    <message>
        <source>TimeAndLabel</source>
        <extracomment>Stands between hours and minutes.</extracomment>
        <translation> and </translation>
    </message>
</context>
<context>
    <name>QZUpdateStrings</name>
    <message>
        <source>CancelLabel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>CheckNowLabel</source>
        <translation>Check Now</translation>
    </message>
    <message>
        <source>CheckingForUpdate</source>
        <translation>Looking for a newer version…</translation>
    </message>
    <message>
        <source>CloseConformation</source>
        <translation>The download is not finished.</translation>
    </message>
    <message>
        <source>CloseConformationMessage</source>
        <translation>“Continue” keeps this window open and the download running. “Cancel” stops the download and closes the window.</translation>
    </message>
    <message>
        <source>ContinueLabel</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>CurrentVersion</source>
        <extracomment>%@ is the program&apos;s name.</extracomment>
        <translation>You have the latest version of %@.</translation>
    </message>
    <message>
        <source>DownloadFailed</source>
        <translation>The download failed. Nothing was installed or changed; please try again later.</translation>
    </message>
    <message>
        <source>DownloadLabel</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>DownloadingUpdatedVersion</source>
        <translation>Downloading the new version…</translation>
    </message>
    <message>
        <source>ErrorWhenChecking</source>
        <translation>The check for a newer version failed.</translation>
    </message>
    <message>
        <source>ErrorWhenCheckingMessage</source>
        <translation>The product’s web site could not be reached. Check your connection to the Internet and try again later.</translation>
    </message>
    <message>
        <source>LastCheck</source>
        <translation>Last check:</translation>
    </message>
    <message>
        <source>NeverChecked</source>
        <translation>Never</translation>
    </message>
    <message>
        <source>NewVersionAvailable</source>
        <extracomment>%@ is the program&apos;s name.</extracomment>
        <translation>A newer version of %@ is available.</translation>
    </message>
    <message>
        <source>SelectLabel</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>UpdateAutoLabel</source>
        <translation>Check automatically:</translation>
    </message>
    <message>
        <source>UpdateFrequencyMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma.</extracomment>
        <translation>At every start, Every week, Every four weeks</translation>
    </message>
    <message>
        <source>UpdateWindowLabel</source>
        <extracomment>%@ is the program&apos;s name.</extracomment>
        <translation>%@ can look online for a newer version of itself.</translation>
    </message>
    <message>
        <source>UpdateWindowTitle</source>
        <extracomment>%@ is the program&apos;s name. It comes last: desktops add the name to titles that do not end with it.</extracomment>
        <translation>Updates for %@</translation>
    </message>
</context>
</TS>
