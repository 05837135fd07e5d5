<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Žádný</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Standardní</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Adaptivní</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Stochastický (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Stochastický rostoucí</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Čistá redukce (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Rozptylová matice (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Rozptylová matice HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Standardní</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Adaptivní</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Stochastický (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Stochastický rostoucí (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Čistá redukce (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Nestochastický (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Rozptylová matice (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Rozptylová matice HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Rozptylová matice T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Personalizovaná rozptylová matice (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Uspořádaný (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Shluková matice (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Překryvová matice (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Překryvová matice HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Rastr NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Rastr LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Rastr MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Rastr HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Rastr UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Rastr UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Rastr NG (podle úrovní)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Rastr LQ (podle úrovní)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Rastr MQ (podle úrovní)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Rastr HQ (podle úrovní)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Rastr UQ (podle úrovní)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Rastr celého pole</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Vzdálenostní matice HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Korelace (rozšířená oblast)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Korelace (kompatibilita)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Vysoké rozlišení</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Rastr 45° C7 (kruhový bod)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Rastr 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Rastr 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Rastr 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Rastr 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>Standardní RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Standardní RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Standardní RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Standardní+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Přímý průchod</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Přímý průchod (šachovnicové rozdělení)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Maska</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Rastr C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Rastr C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Rastr 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Rastr 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Rastr 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Rastr 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Stochastický (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Čistá redukce (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Rozptylová matice (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Rozptylová matice HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Překryvová matice (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Překryvová matice HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Stochastický (otočení 90°; oříznutí 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Stochastický</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Stochastický (otočení 90°; oříznutí 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Stochastický (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Čistá redukce (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Stochastický (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Čistá redukce (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Stochastický (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Čistá redukce (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Rozptylová matice (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Rozptylová matice HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Stochastický (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Čistá redukce (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Stochastický (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Čistá redukce (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Stochastický (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Čistá redukce (D; HI:3)</translation>
    </message>
</context>
</TS>
