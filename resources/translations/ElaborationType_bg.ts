<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="bg_BG">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Няма</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Стандартно</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Адаптивно</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Стохастично (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Стохастично нарастващо</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Чиста редукция (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Разпръсната матрица (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Разпръсната матрица HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Стандартно</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Адаптивно</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Стохастично (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Стохастично нарастващо (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Чиста редукция (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Нестохастично (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Разпръсната матрица (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Разпръсната матрица HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Разпръсната матрица T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Персонализирана разпръсната матрица (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Подредено (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Групирана матрица (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Матрица на припокриване (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Матрица на припокриване HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Растер NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Растер LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Растер MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Растер HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Растер UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Растер UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Растер NG (по нива)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Растер LQ (по нива)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Растер MQ (по нива)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Растер HQ (по нива)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Растер UQ (по нива)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Растер на цялото поле</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Матрица на разстоянията HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Корелация (разширена област)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Корелация (съвместимост)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Висока резолюция</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Растер 45° C7 (кръгла точка)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Растер 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Растер 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Растер 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Растер 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>Стандартно RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Стандартно RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Стандартно RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Стандартно+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Директно преминаване</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Директно преминаване (шахматно разделяне)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Маска</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Растер C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Растер C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Растер 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Растер 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Растер 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Растер 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Стохастично (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Чиста редукция (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Разпръсната матрица (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Разпръсната матрица HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Матрица на припокриване (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Матрица на припокриване HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Стохастично (завъртане 90°; изрязване 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Стохастично</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Стохастично (завъртане 90°; изрязване 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Стохастично (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Чиста редукция (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Стохастично (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Чиста редукция (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Стохастично (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Чиста редукция (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Разпръсната матрица (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Разпръсната матрица HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Стохастично (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Чиста редукция (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Стохастично (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Чиста редукция (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Стохастично (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Чиста редукция (D; HI:3)</translation>
    </message>
</context>
</TS>
