<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Standardowy</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Adaptacyjny</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Stochastyczny (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Stochastyczny rosnący</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Czysta redukcja (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Macierz rozproszona (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Macierz rozproszona HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Standardowy</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Adaptacyjny</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Stochastyczny (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Stochastyczny rosnący (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Czysta redukcja (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Niestochastyczny (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Macierz rozproszona (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Macierz rozproszona HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Macierz rozproszona T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Macierz rozproszona spersonalizowana (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Uporządkowany (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Macierz skupiona (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Macierz nakładania (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Macierz nakładania HiDPI (T)</translation>
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
        <translation>Raster NG (według poziomów)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Raster LQ (według poziomów)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Raster MQ (według poziomów)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Raster HQ (według poziomów)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Raster UQ (według poziomów)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Raster pełnego pola</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Macierz odległości HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Korelacja (rozszerzony obszar)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Korelacja (zgodność)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Wysoka rozdzielczość</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Raster 45° C7 (punkt okrągły)</translation>
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
        <translation>Standardowy RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Standardowy RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Standardowy RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Standardowy+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Przekazywanie bezpośrednie</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Przekazywanie bezpośrednie (podział w szachownicę)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Maska</translation>
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
        <translation>Stochastyczny (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Czysta redukcja (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Macierz rozproszona (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Macierz rozproszona HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Macierz nakładania (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Macierz nakładania HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Stochastyczny (obrót 90°; przycięcie 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Stochastyczny</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Stochastyczny (obrót 90°; przycięcie 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Stochastyczny (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Czysta redukcja (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Stochastyczny (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Czysta redukcja (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Stochastyczny (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Czysta redukcja (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Macierz rozproszona (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Macierz rozproszona HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Stochastyczny (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Czysta redukcja (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Stochastyczny (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Czysta redukcja (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Stochastyczny (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Czysta redukcja (D; HI:3)</translation>
    </message>
</context>
</TS>
