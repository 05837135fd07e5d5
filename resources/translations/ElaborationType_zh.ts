<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>没有</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>自适应</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>随机加网 (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>增长式随机加网</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>纯降阶 (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>分散矩阵 (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>分散矩阵 HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>自适应</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>随机加网 (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>增长式随机加网 (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>纯降阶 (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>非随机加网 (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>分散矩阵 (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>分散矩阵 HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>分散矩阵 T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>自定义分散矩阵 (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>有序加网 (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>聚集矩阵 (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>重叠矩阵 (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>重叠矩阵 HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>半色调 NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>半色调 LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>半色调 MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>半色调 HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>半色调 UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>半色调 UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>半色调 NG (基于色阶)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>半色调 LQ (基于色阶)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>半色调 MQ (基于色阶)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>半色调 HQ (基于色阶)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>半色调 UQ (基于色阶)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>全幅半色调</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>距离矩阵 HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>相关性 (扩展区域)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>相关性 (兼容性)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>高清</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>半色调 45° C7 (圆形网点)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>半色调 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>半色调 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>半色调 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>半色调 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>标准 RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>标准 RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>标准 RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>标准+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>直通</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>直通 (棋盘式拆分)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>蒙版</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>半色调 C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>半色调 C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>半色调 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>半色调 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>半色调 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>半色调 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>随机加网 (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>纯降阶 (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>分散矩阵 (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>分散矩阵 HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>重叠矩阵 (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>重叠矩阵 HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>随机加网 (旋转 90°; 裁切 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>随机加网</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>随机加网 (旋转 90°; 裁切 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>随机加网 (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>纯降阶 (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>随机加网 (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>纯降阶 (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>随机加网 (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>纯降阶 (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>分散矩阵 (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>分散矩阵 HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>随机加网 (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>纯降阶 (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>随机加网 (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>纯降阶 (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>随机加网 (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>纯降阶 (D; HI:3)</translation>
    </message>
</context>
</TS>
