<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Default</name>
    <message>
        <source>TankSaltwater</source>
        <translation>Saltwater</translation>
    </message>
    <message>
        <source>TempFreshValue</source>
        <extracomment>A number, always written with a full stop: it is read without regard to the language. The temperature target of a new tank, in the unit people of this language use.</extracomment>
        <translation>78</translation>
    </message>
</context>
</TS>
