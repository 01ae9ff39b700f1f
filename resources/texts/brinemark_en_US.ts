<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Default</name>
    <message>
        <source>Analyze</source>
        <translation>Analyze…</translation>
    </message>
    <message>
        <source>CommandLineDark</source>
        <translation>Use dark colors with --render.</translation>
    </message>
    <message>
        <source>EmptyInvert</source>
        <translation>The shrimp, snails and other invertebrates of this tank belong here.</translation>
    </message>
    <message>
        <source>FlowMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>US gallons per hour to liters per hour, Liters per hour to US gallons per hour, Liters per hour to liters per second</translation>
    </message>
    <message>
        <source>HighNitriteSaltReason</source>
        <extracomment>Shown in the target editor: two lines at most. ^0 is the number above which a target is too high.</extracomment>
        <translation>Salt water protects fish, but above ^0 the filter cannot keep up: test for ammonia.</translation>
    </message>
    <message>
        <source>KHLowFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning.</extracomment>
        <translation>Test for ammonia before you raise it: the pH rises with the KH, and from pH 6 to 7 ten times as much ammonium becomes ammonia. While a test shows any, first change a tenth of the water a day with water of about the same pH. Then raise the KH by at most 1 degree a day: that takes about 1.1 grams (a quarter of a teaspoon) of sodium bicarbonate to 10 gallons, dissolved in water.</translation>
    </message>
    <message>
        <source>LengthMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Inches to centimeters, Centimeters to inches, Decimeters to yards, Centimeters to feet, Feet to meters, Meters to yards, Yards to meters</translation>
    </message>
    <message>
        <source>MeasurementMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Degrees of hardness to ppm, ppm to degrees of hardness, Specific gravity to salinity (ppt), Salinity (ppt) to specific gravity, Tablespoons to teaspoons, Teaspoons to drops, Milliliters to teaspoons, Teaspoons to milliliters, Degrees of carbonate hardness to meq/l, meq/l to degrees of carbonate hardness</translation>
    </message>
    <message>
        <source>MenuViewCustomiseToolbar</source>
        <translation>Customize &amp;Toolbar…</translation>
    </message>
    <message>
        <source>MenuWindowMinimise</source>
        <translation>&amp;Minimize</translation>
    </message>
    <message>
        <source>NitrateTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Nitrate is what remains of food and waste when the filter has done its work. Its effect is slow, so there is time.

Too high: change a fifth to a third of the water now, and again every few days until the value is in range. Do not change it all at once, because animals that are used to much nitrate cope badly with a sudden drop. Test the tap water too, as it may bring nitrate with it. To keep the value down, feed less, clean the substrate, rinse the filter in tank water, stock lightly and grow plants, or in a saltwater tank macroalgae beside a good skimmer.

Too low for plants or corals: feed a little more, or add a nitrate fertilizer in small doses, testing before each one.</translation>
    </message>
    <message>
        <source>NitriteHighFreshAdvice</source>
        <extracomment>No per-cent sign: this text is used as a format. The last paragraph of a warning. The treatment asks the reader to look for its first words, “At once”.</extracomment>
        <translation>At once: test for ammonia; below pH 7, if there is any, change only a tenth of the water at a time, because a higher pH makes it poisonous. Otherwise replace a third to a half of the water with conditioned water of the same temperature, and again every day until the value is in range, because nitrite keeps the blood from carrying oxygen. Chloride protects fish: nearly all of them, and most plants, tolerate about 4 grams (two thirds of a teaspoon) of pure salt (sodium chloride without additives) to 10 gallons, dissolved in tank water and added once, over several hours. After that add only as much as each water change takes out.</translation>
    </message>
    <message>
        <source>PhTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

A whole step of pH is a tenfold change, so move it by no more than 0.2 to 0.3 a day: a steady value that is a little off does less harm than a quick correction. Measure ammonia and carbonate hardness (KH) first. Never raise the pH while ammonia is present, and expect the pH to swing below about 4 degrees KH.

Too low: the carbonate hardness is usually used up; change a little of the water every day, then raise the KH in small steps. A saltwater tank often only wants fresh air in the room.

Too high: in fresh water mix in softer water, or add carbon dioxide or peat; in a saltwater tank, where 8.0 to 8.4 is usual, check the alkalinity before you add anything.</translation>
    </message>
    <message>
        <source>SurfaceMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Square feet to square meters, Square meters to square feet, Square feet to square inches, Square inches to square feet</translation>
    </message>
    <message>
        <source>TankSaltwater</source>
        <translation>Saltwater</translation>
    </message>
    <message>
        <source>TempFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. The temperature target of a new tank, in the unit people of this language use.</extracomment>
        <translation>78</translation>
    </message>
    <message>
        <source>TempTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

A sudden change harms animals more than a few degrees do, so bring the temperature back by no more than about 2 degrees Fahrenheit an hour. First compare with a second thermometer, and see that the heater works and the water circulates.

Too warm: turn the heater down or unplug it, open the lid, dim the light, let a fan blow over the surface, and aerate, because warm water holds less oxygen.

Too cold: repair or add a heater and cover the tank; a water change with slightly warmer, conditioned water helps within the same limit.</translation>
    </message>
    <message>
        <source>ToolbarCustomise</source>
        <translation>Customize</translation>
    </message>
    <message>
        <source>ToolbarCustomiseTitle</source>
        <translation>Customize Toolbar</translation>
    </message>
    <message>
        <source>VolumeMenu</source>
        <extracomment>A list with a comma and a blank between the items; the order matters, and no item may hold a comma. Each item names the conversion that the calculator does at its place.</extracomment>
        <translation>Imperial gallons to US gallons, Imperial gallons to liters, Liters to imperial gallons, Liters to US gallons, US gallons to liters, US gallons to US quarts</translation>
    </message>
</context>
</TS>
