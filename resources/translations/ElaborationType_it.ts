<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Adattivo</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Stocastico (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Stocastico a crescita</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Riduzione pura (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Matrice dispersa (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Matrice dispersa HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Adattivo</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Stocastico (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Stocastico a crescita (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Riduzione pura (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Non stocastico (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Matrice dispersa (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Matrice dispersa HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Matrice dispersa T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Matrice dispersa personalizzata (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Ordinato (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Matrice aggregata (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Matrice di sovrapposizione (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Matrice di sovrapposizione HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Retino NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Retino LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Retino MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Retino HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Retino UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Retino UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Retino NG (basato sui livelli)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Retino LQ (basato sui livelli)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Retino MQ (basato sui livelli)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Retino HQ (basato sui livelli)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Retino UQ (basato sui livelli)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Retino a campo pieno</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Matrice di distanza HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Correlazione (area estesa)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Correlazione (compatibilità)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Alta definizione</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Retino 45° C7 (punto tondo)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Retino 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Retino 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Retino 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Retino 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>Standard RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Standard RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Standard RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Standard+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Passaggio diretto</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Passaggio diretto (divisione a scacchiera)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Maschera</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Retino C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Retino C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Retino 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Retino 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Retino 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Retino 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Stocastico (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Riduzione pura (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Matrice dispersa (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Matrice dispersa HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Matrice di sovrapposizione (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Matrice di sovrapposizione HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Stocastico (rotazione 90°; ritaglio 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Stocastico</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Stocastico (rotazione 90°; ritaglio 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Stocastico (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Riduzione pura (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Stocastico (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Riduzione pura (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Stocastico (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Riduzione pura (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Matrice dispersa (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Matrice dispersa HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Stocastico (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Riduzione pura (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Stocastico (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Riduzione pura (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Stocastico (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Riduzione pura (D; HI:3)</translation>
    </message>
    <message>
        <source>FiftlevelStochastic</source>
        <translation>Stocastico (F)</translation>
    </message>
    <message>
        <source>FiftlevelNearest</source>
        <translation>Riduzione pura (F)</translation>
    </message>
    <message>
        <source>FiftlevelBlueMask</source>
        <translation>Matrice dispersa (F)</translation>
    </message>
    <message>
        <source>Grayscale_8</source>
        <translation>Scala di grigio (8 bit)</translation>
    </message>
    <message>
        <source>Grayscale_16</source>
        <translation>Scala di grigio (16 bit)</translation>
    </message>
</context>
</TS>
