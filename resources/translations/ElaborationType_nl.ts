<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Adaptief</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Stochastisch (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Stochastisch groeiend</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Zuivere reductie (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Spreidingsmatrix (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Spreidingsmatrix HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Adaptief</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Stochastisch (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Stochastisch groeiend (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Zuivere reductie (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Niet-stochastisch (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Spreidingsmatrix (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Spreidingsmatrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Spreidingsmatrix T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Aangepaste spreidingsmatrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Geordend (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Clustermatrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Overlapmatrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Overlapmatrix HiDPI (T)</translation>
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
        <translation>Raster NG (op basis van niveaus)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Raster LQ (op basis van niveaus)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Raster MQ (op basis van niveaus)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Raster HQ (op basis van niveaus)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Raster UQ (op basis van niveaus)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Raster over het hele veld</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Afstandsmatrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Correlatie (uitgebreid gebied)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Correlatie (compatibiliteit)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Hoge definitie</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Raster 45° C7 (ronde punt)</translation>
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
        <translation>Standaard RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Standaard RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Standaard RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Standaard+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Directe doorvoer</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Directe doorvoer (schaakbordverdeling)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Masker</translation>
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
        <translation>Zuivere reductie (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Spreidingsmatrix (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Spreidingsmatrix HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Overlapmatrix (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Overlapmatrix HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Stochastisch (rotatie 90°; uitsnede 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Stochastisch</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Stochastisch (rotatie 90°; uitsnede 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Stochastisch (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Zuivere reductie (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Stochastisch (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Zuivere reductie (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Stochastisch (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Zuivere reductie (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Spreidingsmatrix (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Spreidingsmatrix HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Stochastisch (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Zuivere reductie (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Stochastisch (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Zuivere reductie (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Stochastisch (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Zuivere reductie (D; HI:3)</translation>
    </message>
</context>
</TS>
