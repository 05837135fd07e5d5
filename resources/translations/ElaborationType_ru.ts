<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Отсутствует</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Стандартный</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Адаптивный</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Стохастический (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Стохастический растущий</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Чистая редукция (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Рассеянная матрица (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Рассеянная матрица HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Стандартный</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Адаптивный</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Стохастический (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Стохастический растущий (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Чистая редукция (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Нестохастический (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Рассеянная матрица (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Рассеянная матрица HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Рассеянная матрица T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Персонализированная рассеянная матрица (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Упорядоченный (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Кластерная матрица (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Матрица перекрытия (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Матрица перекрытия HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Растр NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Растр LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Растр MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Растр HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Растр UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Растр UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Растр NG (по уровням)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Растр LQ (по уровням)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Растр MQ (по уровням)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Растр HQ (по уровням)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Растр UQ (по уровням)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Растр на всё поле</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Матрица расстояний HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Корреляция (расширенная область)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Корреляция (совместимость)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Высокая чёткость</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Растр 45° C7 (круглая точка)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Растр 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Растр 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Растр 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Растр 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>Стандартный RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Стандартный RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Стандартный RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Стандартный+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Прямая передача</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Прямая передача (шахматное разделение)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Маска</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Растр C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Растр C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Растр 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Растр 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Растр 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Растр 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Стохастический (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Чистая редукция (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Рассеянная матрица (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Рассеянная матрица HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Матрица перекрытия (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Матрица перекрытия HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Стохастический (поворот 90°; обрезка 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Стохастический</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Стохастический (поворот 90°; обрезка 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Стохастический (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Чистая редукция (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Стохастический (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Чистая редукция (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Стохастический (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Чистая редукция (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Рассеянная матрица (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Рассеянная матрица HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Стохастический (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Чистая редукция (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Стохастический (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Чистая редукция (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Стохастический (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Чистая редукция (D; HI:3)</translation>
    </message>
</context>
</TS>
