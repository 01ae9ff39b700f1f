<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Default</name>
    <message>
        <source>AmmoniaTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Any ammonia that a test can show is a danger, and the higher the pH and the temperature, the more of it is toxic. Change 30 to 50 percent of the water now with conditioned water of the same temperature, stop feeding for a day or two, take out dead animals and rotting plants, and aerate strongly. Never raise the pH while ammonia is present.

See that the filter runs, rinse its media only in tank water, add no animals, and test every day until the value is zero. If it stays above zero, repeat the water change daily.</translation>
    </message>
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

Nitrate harms slowly, so there is time. Change 20 to 30 percent of the water now and again every few days until the value is in range, rather than all at once: animals that are used to much nitrate do not bear a sudden drop. Test the tap water too, as it may bring nitrate with it.

To keep it down, feed less, clean the filter and the substrate, stock lightly and grow plants, or in a saltwater tank macroalgae with a good skimmer. If it is too low for the plants, add a nitrate fertilizer in small doses.</translation>
    </message>
    <message>
        <source>NitriteTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Nitrite keeps the blood from carrying oxygen, so act today. Change 30 to 50 percent of the water with conditioned water of the same temperature, stop feeding for a day or two and aerate strongly.

In fresh water chloride protects fish from nitrite: about 4 grams (two thirds of a teaspoon) of pure salt (sodium chloride without iodine or anti-caking agents) to 10 gallons, dissolved in tank water and added over several hours, is borne by nearly all fish and plants. Salt water already holds enough. Add no animals, rinse filter media only in tank water, and test every day until the value is zero.</translation>
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

Bring the temperature back slowly, by no more than about 2 degrees Fahrenheit an hour. First compare with a second thermometer and see that the heater works and the water circulates.

Too warm: turn the heater down, open the lid, dim the light, let a fan blow over the surface, and aerate, because warm water holds less oxygen. Too cold: repair or add a heater and cover the tank; a water change with slightly warmer, conditioned water helps within the same limit.</translation>
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
    <message>
        <source>ppmTreatment</source>
        <extracomment>No per-cent sign: this text is used as a format. Follows a message directly, so it begins with an empty line.</extracomment>
        <translation>

Repeat the test before you act, and check that test and target use the same unit. Then move the value slowly.

Too high: change 10 to 20 percent of the water a day with well-prepared water until it is in range, and look for the source. Too low: add what is missing in small doses as its maker directs, testing before each one.

Two cases cannot wait. When oxygen is short or carbon dioxide too high, aerate strongly at once. Copper kills invertebrates even in traces: change more of the water and filter over activated carbon.</translation>
    </message>
</context>
</TS>
