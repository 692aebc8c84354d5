<message numerus="yes">
    <source>%n file(s)</source>
    <translation type="unfinished">
        <numerusform></numerusform>
        <numerusform></numerusform>
    </translation>
</message>
