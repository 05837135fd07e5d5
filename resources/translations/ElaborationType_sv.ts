<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
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
        <translation>Stokastisk (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Stokastisk växande</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Ren reducering (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Spridningsmatris (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Spridningsmatris HiDPI (B)</translation>
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
        <translation>Stokastisk (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Stokastisk växande (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Ren reducering (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Icke-stokastisk (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Spridningsmatris (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Spridningsmatris HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Spridningsmatris T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Anpassad spridningsmatris (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Ordnad (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Klustermatris (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Överlappningsmatris (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Överlappningsmatris HiDPI (T)</translation>
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
        <translation>Raster NG (nivåbaserat)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Raster LQ (nivåbaserat)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Raster MQ (nivåbaserat)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Raster HQ (nivåbaserat)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Raster UQ (nivåbaserat)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Raster över hela fältet</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Avståndsmatris HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Korrelation (utökat område)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Korrelation (kompatibilitet)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Hög upplösning</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Raster 45° C7 (rund punkt)</translation>
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
        <translation>Direkt genomsläpp</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Direkt genomsläpp (schackruteuppdelning)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Mask</translation>
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
        <translation>Stokastisk (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Ren reducering (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Spridningsmatris (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Spridningsmatris HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Överlappningsmatris (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Överlappningsmatris HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Stokastisk (rotation 90°; beskärning 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Stokastisk</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Stokastisk (rotation 90°; beskärning 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Stokastisk (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Ren reducering (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Stokastisk (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Ren reducering (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Stokastisk (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Ren reducering (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Spridningsmatris (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Spridningsmatris HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Stokastisk (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Ren reducering (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Stokastisk (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Ren reducering (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Stokastisk (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Ren reducering (D; HI:3)</translation>
    </message>
</context>
</TS>
