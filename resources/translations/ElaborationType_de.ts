<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Adaptiv</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Stochastisch (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Stochastisch wachsend</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Reine Reduktion (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Streumatrix (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Streumatrix HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Adaptiv</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Stochastisch (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Stochastisch wachsend (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Reine Reduktion (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Nicht stochastisch (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Streumatrix (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Streumatrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Streumatrix T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Benutzerdefinierte Streumatrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Geordnet (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Clustermatrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Überlappungsmatrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Überlappungsmatrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Raster NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Raster LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Raster MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Raster HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Raster UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Raster UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Raster NG (stufenbasiert)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Raster LQ (stufenbasiert)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Raster MQ (stufenbasiert)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Raster HQ (stufenbasiert)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Raster UQ (stufenbasiert)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Raster vollflächig</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Abstandsmatrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Korrelation (erweiterter Bereich)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Korrelation (Kompatibilität)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Hochauflösend</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Raster 45° C7 (runder Punkt)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Raster 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Raster 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Raster 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Raster 45° C11</translation>
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
        <translation>Durchleitung</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Durchleitung (Schachbrettaufteilung)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Maske</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Raster C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Raster C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Raster 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Raster 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Raster 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Raster 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Stochastisch (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Reine Reduktion (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Streumatrix (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Streumatrix HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Überlappungsmatrix (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Überlappungsmatrix HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Stochastisch (Drehung 90°; Zuschnitt 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Stochastisch</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Stochastisch (Drehung 90°; Zuschnitt 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Stochastisch (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Reine Reduktion (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Stochastisch (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Reine Reduktion (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Stochastisch (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Reine Reduktion (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Streumatrix (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Streumatrix HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Stochastisch (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Reine Reduktion (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Stochastisch (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Reine Reduktion (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Stochastisch (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Reine Reduktion (D; HI:3)</translation>
    </message>
</context>
</TS>
