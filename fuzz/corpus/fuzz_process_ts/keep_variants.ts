<message><source>Cancel</source><translation variants="yes"><lengthvariant>Abbrechen</lengthvariant><lengthvariant/></translation></message>
<message numerus="yes"><source>%n item(s)</source><translation><numerusform variants="yes"><lengthvariant>a</lengthvariant><lengthvariant>b</lengthvariant></numerusform><numerusform>c</numerusform></translation></message>
