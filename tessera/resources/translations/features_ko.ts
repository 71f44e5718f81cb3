<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>CameraDevice</name>
    <message>
        <source>AcquisitionAbort_Tooltip</source>
        <translation>이미지 획득을 즉시 중단하고 진행 중인 프레임을 버립니다.</translation>
    </message>
    <message>
        <source>AcquisitionArm_Tooltip</source>
        <translation>설정을 확인하고 카메라를 준비하여 이후의 획득 시작이 지연 없이 이루어지게 합니다.</translation>
    </message>
    <message>
        <source>AcquisitionBurstFrameCount_Tooltip</source>
        <translation>버스트 시작 트리거 하나마다 획득하는 프레임 수입니다.</translation>
    </message>
    <message>
        <source>AcquisitionFrameCount_Tooltip</source>
        <translation>멀티 프레임 모드에서 획득이 자동으로 끝날 때까지의 프레임 수입니다.</translation>
    </message>
    <message>
        <source>AcquisitionFrameRate_Tooltip</source>
        <translation>프리런에서의 프레임 속도 상한을 초당 프레임 수로 설정합니다.</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateAbs_Tooltip</source>
        <translation>이전 이름으로 제공되는 프레임 속도 상한(Hz)입니다. 새 카메라에서는 AcquisitionFrameRate를 사용합니다.</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateEnable_Tooltip</source>
        <translation>프레임 속도를 설정값으로 제한합니다. 끄면 노출, 리드아웃, 링크가 허용하는 최대 속도로 동작합니다.</translation>
    </message>
    <message>
        <source>AcquisitionLineRate_Tooltip</source>
        <translation>라인 스캔 카메라의 라인 속도를 초당 라인 수로 설정합니다.</translation>
    </message>
    <message>
        <source>AcquisitionLineRateAbs_Tooltip</source>
        <translation>이전 이름으로 제공되는 라인 속도(Hz)입니다. 새 카메라에서는 AcquisitionLineRate를 사용합니다.</translation>
    </message>
    <message>
        <source>AcquisitionMode_Tooltip</source>
        <translation>획득을 한 번 시작할 때 얻는 이미지 수(한 장, 지정한 수, 정지할 때까지 연속)를 설정합니다.</translation>
    </message>
    <message>
        <source>AcquisitionStart_Tooltip</source>
        <translation>이미지 획득을 시작합니다. 정지할 때까지 이미지 포맷 설정은 잠깁니다.</translation>
    </message>
    <message>
        <source>AcquisitionStatus_Tooltip</source>
        <translation>선택한 획득 신호가 현재 활성 상태인지 나타냅니다.</translation>
    </message>
    <message>
        <source>AcquisitionStatusSelector_Tooltip</source>
        <translation>상태를 표시할 내부 획득 신호를 선택합니다.</translation>
    </message>
    <message>
        <source>AcquisitionStop_Tooltip</source>
        <translation>현재 프레임이 완료된 후 이미지 획득을 종료합니다.</translation>
    </message>
    <message>
        <source>AcquisitionStopMode_Tooltip</source>
        <translation>정지할 때 진행 중인 프레임의 완료를 기다릴지 버릴지 설정합니다.</translation>
    </message>
    <message>
        <source>ActionDeviceKey_Tooltip</source>
        <translation>카메라가 액션 명령을 따르려면 명령에 있어야 하는 장치 키입니다.</translation>
    </message>
    <message>
        <source>ActionGroupKey_Tooltip</source>
        <translation>같은 액션 명령에 반응하는 카메라 그룹의 키입니다.</translation>
    </message>
    <message>
        <source>ActionGroupMask_Tooltip</source>
        <translation>명령의 마스크와 비교하는 마스크입니다. 공통 비트가 있으면 카메라가 반응합니다.</translation>
    </message>
    <message>
        <source>ActionQueueSize_Tooltip</source>
        <translation>카메라가 보관할 수 있는 예약 액션 명령의 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>ActionSelector_Tooltip</source>
        <translation>설정할 액션 신호를 선택합니다.</translation>
    </message>
    <message>
        <source>ActionUnconditionalMode_Tooltip</source>
        <translation>카메라를 열지 않은 응용 프로그램의 액션 명령도 받아들입니다.</translation>
    </message>
    <message>
        <source>Aperture_Tooltip</source>
        <translation>렌즈의 조리개(F값)입니다. 클수록 심도가 깊어지고 광량이 줄어듭니다.</translation>
    </message>
    <message>
        <source>ApertureStatus_Tooltip</source>
        <translation>조리개의 상태를 나타냅니다. 움직이는 동안에는 사용 중으로 표시됩니다.</translation>
    </message>
    <message>
        <source>ApertureStepper_Tooltip</source>
        <translation>조리개 모터의 위치를 스텝 수로 나타냅니다.</translation>
    </message>
    <message>
        <source>AutoBacklightCompensation_Tooltip</source>
        <translation>자동 기능이 무시하는 가장 밝은 픽셀의 비율입니다. 밝은 점 때문에 피사체가 어두워지는 것을 막습니다.</translation>
    </message>
    <message>
        <source>AutoBrightnessConverged_Tooltip</source>
        <translation>자동 기능이 목표 밝기에 도달했는지 나타냅니다.</translation>
    </message>
    <message>
        <source>AutoExposureTimeAbsLowerLimit_Tooltip</source>
        <translation>이전 이름으로 제공되는 자동 노출 시간의 하한(마이크로초)입니다. 새 카메라에서는 AutoExposureTimeLowerLimit를 사용합니다.</translation>
    </message>
    <message>
        <source>AutoExposureTimeAbsUpperLimit_Tooltip</source>
        <translation>이전 이름으로 제공되는 자동 노출 시간의 상한(마이크로초)입니다. 새 카메라에서는 AutoExposureTimeUpperLimit를 사용합니다.</translation>
    </message>
    <message>
        <source>AutoExposureTimeLowerLimit_Tooltip</source>
        <translation>자동 노출이 설정할 수 있는 최단 노출 시간(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>AutoExposureTimeUpperLimit_Tooltip</source>
        <translation>자동 노출이 설정할 수 있는 최장 노출 시간(마이크로초)입니다. 프레임 주기보다 짧게 하면 프레임 속도가 유지됩니다.</translation>
    </message>
    <message>
        <source>AutoFunctionProfile_Tooltip</source>
        <translation>자동 기능이 노출 시간과 게인 중 무엇을 먼저 바꿀지(저노이즈 우선 또는 흐림 감소 우선) 설정합니다.</translation>
    </message>
    <message>
        <source>AutoGainLowerLimit_Tooltip</source>
        <translation>자동 게인 제어가 설정할 수 있는 최소 게인입니다.</translation>
    </message>
    <message>
        <source>AutoGainRawLowerLimit_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 자동 게인의 하한입니다. 새 카메라에서는 AutoGainLowerLimit를 사용합니다.</translation>
    </message>
    <message>
        <source>AutoGainRawUpperLimit_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 자동 게인의 상한입니다. 새 카메라에서는 AutoGainUpperLimit를 사용합니다.</translation>
    </message>
    <message>
        <source>AutoGainUpperLimit_Tooltip</source>
        <translation>자동 게인 제어가 설정할 수 있는 최대 게인입니다. 낮추면 노이즈를 제한할 수 있습니다.</translation>
    </message>
    <message>
        <source>AutoMeasuredBrightness_Tooltip</source>
        <translation>최신 이미지에서 자동 기능이 측정한 평균 밝기를 나타냅니다.</translation>
    </message>
    <message>
        <source>AutoRegionHeight_Tooltip</source>
        <translation>선택한 자동 기능 영역의 높이(픽셀)입니다.</translation>
    </message>
    <message>
        <source>AutoRegionHighlight_Tooltip</source>
        <translation>설치할 때 확인할 수 있도록 선택한 영역을 이미지에서 강조합니다.</translation>
    </message>
    <message>
        <source>AutoRegionOffsetX_Tooltip</source>
        <translation>선택한 자동 기능 영역의 왼쪽 가장자리 기준 가로 위치(픽셀)입니다.</translation>
    </message>
    <message>
        <source>AutoRegionOffsetY_Tooltip</source>
        <translation>선택한 자동 기능 영역의 위쪽 가장자리 기준 세로 위치(픽셀)입니다.</translation>
    </message>
    <message>
        <source>AutoRegionSelector_Tooltip</source>
        <translation>설정할 자동 기능용 관심 영역(ROI)을 선택합니다.</translation>
    </message>
    <message>
        <source>AutoRegionUseBrightness_Tooltip</source>
        <translation>선택한 영역을 자동 노출과 자동 게인의 밝기 측정에 사용합니다.</translation>
    </message>
    <message>
        <source>AutoRegionUseWhiteBalance_Tooltip</source>
        <translation>선택한 영역을 자동 화이트 밸런스의 색상 측정에 사용합니다.</translation>
    </message>
    <message>
        <source>AutoRegionWidth_Tooltip</source>
        <translation>선택한 자동 기능 영역의 너비(픽셀)입니다.</translation>
    </message>
    <message>
        <source>AutoTargetBrightness_Tooltip</source>
        <translation>자동 노출과 자동 게인이 목표로 하는 평균 밝기를 흰색에 대한 비율로 설정합니다.</translation>
    </message>
    <message>
        <source>AutoTargetBrightnessDamping_Tooltip</source>
        <translation>자동 기능의 반응을 완화합니다. 강하게 하면 오버슈트를 막지만 목표 도달이 늦어집니다.</translation>
    </message>
    <message>
        <source>AutoTargetValue_Tooltip</source>
        <translation>자동 기능의 목표 밝기를 그레이 값으로 나타냅니다. 새 카메라에서는 AutoTargetBrightness를 사용합니다.</translation>
    </message>
    <message>
        <source>BalanceRatio_Tooltip</source>
        <translation>선택한 색상 채널의 계수입니다. 무채색 영역에서 약한 색의 값을 높입니다.</translation>
    </message>
    <message>
        <source>BalanceRatioAbs_Tooltip</source>
        <translation>이전 이름으로 제공되는 선택한 색상의 밸런스 비율입니다. 새 카메라에서는 BalanceRatio를 사용합니다.</translation>
    </message>
    <message>
        <source>BalanceRatioRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 선택한 색상의 밸런스 비율입니다. 새 카메라에서는 BalanceRatio를 사용합니다.</translation>
    </message>
    <message>
        <source>BalanceRatioSelector_Tooltip</source>
        <translation>밸런스 비율을 설정할 색상 채널을 선택합니다.</translation>
    </message>
    <message>
        <source>BalanceWhiteAdjustmentDampingAbs_Tooltip</source>
        <translation>자동 화이트 밸런스의 반응을 완화합니다. 강하게 하면 색상이 더 천천히 부드럽게 바뀝니다.</translation>
    </message>
    <message>
        <source>BalanceWhiteAdjustmentDampingRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 자동 화이트 밸런스의 완화 정도입니다.</translation>
    </message>
    <message>
        <source>BalanceWhiteAuto_Tooltip</source>
        <translation>화이트 밸런스를 한 번 또는 연속으로 자동 조정합니다. 무채색 면을 비추면 가장 좋은 결과를 얻습니다.</translation>
    </message>
    <message>
        <source>BandwidthReserveMode_Tooltip</source>
        <translation>손실된 패킷의 재전송을 위해 남겨 둘 대역폭을 선택합니다. 많으면 안전하고 적으면 빠릅니다.</translation>
    </message>
    <message>
        <source>BinningHorizontal_Tooltip</source>
        <translation>하나로 합치는 인접 열의 수입니다. 감도가 높아지고 이미지 너비가 줄어듭니다.</translation>
    </message>
    <message>
        <source>BinningHorizontalMode_Tooltip</source>
        <translation>비닝할 열을 더하여 밝게 할지, 평균하여 노이즈를 줄일지 설정합니다.</translation>
    </message>
    <message>
        <source>BinningSelector_Tooltip</source>
        <translation>비닝을 수행할 위치(센서 또는 디지털 처리)를 선택합니다.</translation>
    </message>
    <message>
        <source>BinningVertical_Tooltip</source>
        <translation>하나로 합치는 인접 행의 수입니다. 감도가 높아지고 이미지 높이가 줄어듭니다.</translation>
    </message>
    <message>
        <source>BinningVerticalMode_Tooltip</source>
        <translation>비닝할 행을 더하여 밝게 할지, 평균하여 노이즈를 줄일지 설정합니다.</translation>
    </message>
    <message>
        <source>BlackLevel_Tooltip</source>
        <translation>모든 픽셀 값에 더하는 오프셋입니다. 어두운 영역의 노이즈가 0에서 잘리지 않게 합니다.</translation>
    </message>
    <message>
        <source>BlackLevelAuto_Tooltip</source>
        <translation>암부 기준에서 블랙 레벨을 자동으로 결정합니다.</translation>
    </message>
    <message>
        <source>BlackLevelAutoBalance_Tooltip</source>
        <translation>온도가 변해도 센서 탭 간의 블랙 레벨을 자동으로 맞춥니다.</translation>
    </message>
    <message>
        <source>BlackLevelRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 정수 블랙 레벨입니다. 새 카메라에서는 BlackLevel을 사용합니다.</translation>
    </message>
    <message>
        <source>BlackLevelSelector_Tooltip</source>
        <translation>블랙 레벨을 설정할 채널을 선택합니다.</translation>
    </message>
    <message>
        <source>ChunkCounterSelector_Tooltip</source>
        <translation>이미지에 기록된 값을 표시할 카운터를 선택합니다.</translation>
    </message>
    <message>
        <source>ChunkCounterValue_Tooltip</source>
        <translation>이미지를 촬영한 시점의 선택한 카운터 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkEnable_Tooltip</source>
        <translation>선택한 청크를 이미지 데이터에 포함합니다. 대역폭을 조금 사용합니다.</translation>
    </message>
    <message>
        <source>ChunkExposureTime_Tooltip</source>
        <translation>이미지 촬영에 사용한 노출 시간(마이크로초)을 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkFrameID_Tooltip</source>
        <translation>이미지의 프레임 번호를 나타냅니다. 번호가 비면 이미지가 손실된 것입니다.</translation>
    </message>
    <message>
        <source>ChunkGain_Tooltip</source>
        <translation>이미지 촬영에 사용한 게인을 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkGainSelector_Tooltip</source>
        <translation>이미지에 기록된 값을 표시할 게인을 선택합니다.</translation>
    </message>
    <message>
        <source>ChunkHeight_Tooltip</source>
        <translation>수신한 이미지의 높이(픽셀)를 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkLineStatusAll_Tooltip</source>
        <translation>이미지를 촬영한 시점의 모든 라인 레벨을 라인당 한 비트로 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkModeActive_Tooltip</source>
        <translation>노출 시간 등의 청크 데이터를 각 이미지에 덧붙입니다.</translation>
    </message>
    <message>
        <source>ChunkOffsetX_Tooltip</source>
        <translation>이미지를 촬영한 시점의 관심 영역(ROI) 가로 오프셋을 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkOffsetY_Tooltip</source>
        <translation>이미지를 촬영한 시점의 관심 영역(ROI) 세로 오프셋을 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkPixelFormat_Tooltip</source>
        <translation>수신한 이미지의 픽셀 포맷을 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkSelector_Tooltip</source>
        <translation>켜거나 끌 청크를 선택합니다.</translation>
    </message>
    <message>
        <source>ChunkSequencerSetActive_Tooltip</source>
        <translation>이미지 촬영에 사용한 시퀀서 세트를 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkTimestamp_Tooltip</source>
        <translation>이미지를 촬영한 시점의 카메라 클록 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>ChunkWidth_Tooltip</source>
        <translation>수신한 이미지의 너비(픽셀)를 나타냅니다.</translation>
    </message>
    <message>
        <source>ClConfiguration_Tooltip</source>
        <translation>사용하는 케이블과 탭의 수를 정하는 Camera Link 구성입니다.</translation>
    </message>
    <message>
        <source>ClPixelClock_Tooltip</source>
        <translation>Camera Link의 픽셀 클록입니다. 빠르면 프레임 속도가 높아지고 느리면 더 긴 케이블을 쓸 수 있습니다.</translation>
    </message>
    <message>
        <source>ClTapGeometry_Tooltip</source>
        <translation>Camera Link 탭에서의 이미지 배치입니다. 프레임 그래버도 같게 설정해야 합니다.</translation>
    </message>
    <message>
        <source>ClTimeSlotsCount_Tooltip</source>
        <translation>Camera Link 데이터를 나누는 타임 슬롯의 수입니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentEnable_Tooltip</source>
        <translation>여섯 가지 색 범위의 색조와 채도 조정을 적용합니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentHue_Tooltip</source>
        <translation>선택한 색 범위의 색조를 인접한 색 쪽으로 돌립니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentHueRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 선택한 색의 색조 이동입니다. 새 카메라에서는 ColorAdjustmentHue를 사용합니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSaturation_Tooltip</source>
        <translation>선택한 색 범위의 채도입니다. 1은 변화 없음, 0은 무채색입니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSaturationRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 선택한 색의 채도입니다. 새 카메라에서는 ColorAdjustmentSaturation을 사용합니다.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSelector_Tooltip</source>
        <translation>조정할 색 범위를 선택합니다.</translation>
    </message>
    <message>
        <source>ColorTransformationEnable_Tooltip</source>
        <translation>이미지에 색상 변환 행렬을 적용합니다.</translation>
    </message>
    <message>
        <source>ColorTransformationMatrixFactor_Tooltip</source>
        <translation>색상 변환의 강도입니다. 0은 효과 없음, 1은 완전 적용입니다.</translation>
    </message>
    <message>
        <source>ColorTransformationMatrixFactorRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 색상 변환 강도입니다. 새 카메라에서는 ColorTransformationMatrixFactor를 사용합니다.</translation>
    </message>
    <message>
        <source>ColorTransformationSelector_Tooltip</source>
        <translation>설정할 색상 변환 행렬을 선택합니다.</translation>
    </message>
    <message>
        <source>ColorTransformationValue_Tooltip</source>
        <translation>선택한 행렬 요소의 값입니다. 각 행의 합이 1이면 무채색 영역에 색이 돌지 않습니다.</translation>
    </message>
    <message>
        <source>ColorTransformationValueSelector_Tooltip</source>
        <translation>행과 열로 행렬 요소를 선택합니다.</translation>
    </message>
    <message>
        <source>ComponentEnable_Tooltip</source>
        <translation>선택한 구성 요소를 각 프레임과 함께 전송합니다.</translation>
    </message>
    <message>
        <source>ComponentIDValue_Tooltip</source>
        <translation>수신 데이터에서 선택한 구성 요소를 식별하는 번호를 나타냅니다.</translation>
    </message>
    <message>
        <source>ComponentSelector_Tooltip</source>
        <translation>강도나 신뢰도 등 설정할 이미지 구성 요소를 선택합니다.</translation>
    </message>
    <message>
        <source>ContrastEnhancement_Tooltip</source>
        <translation>국부 콘트라스트를 높여 밝기가 고른 영역의 미세한 구조가 보이게 합니다.</translation>
    </message>
    <message>
        <source>CounterDuration_Tooltip</source>
        <translation>카운터가 끝나 트리거를 발생시킬 수 있게 될 때까지의 이벤트 수입니다.</translation>
    </message>
    <message>
        <source>CounterEventActivation_Tooltip</source>
        <translation>셀 신호의 에지를 설정합니다.</translation>
    </message>
    <message>
        <source>CounterEventSource_Tooltip</source>
        <translation>카운터가 셀 이벤트를 선택합니다.</translation>
    </message>
    <message>
        <source>CounterReset_Tooltip</source>
        <translation>카운터를 리셋합니다. 그때까지의 값은 CounterValueAtReset에 보존됩니다.</translation>
    </message>
    <message>
        <source>CounterResetActivation_Tooltip</source>
        <translation>카운터를 리셋할 신호의 에지를 설정합니다.</translation>
    </message>
    <message>
        <source>CounterResetSource_Tooltip</source>
        <translation>카운터를 리셋할 이벤트를 선택합니다.</translation>
    </message>
    <message>
        <source>CounterSelector_Tooltip</source>
        <translation>설정할 카운터를 선택합니다.</translation>
    </message>
    <message>
        <source>CounterStatus_Tooltip</source>
        <translation>카운터의 상태(유휴, 트리거 대기, 계수 중, 완료)를 나타냅니다.</translation>
    </message>
    <message>
        <source>CounterTriggerActivation_Tooltip</source>
        <translation>카운터를 시작할 신호의 에지 또는 레벨을 설정합니다.</translation>
    </message>
    <message>
        <source>CounterTriggerSource_Tooltip</source>
        <translation>카운터를 시작할 이벤트를 선택합니다.</translation>
    </message>
    <message>
        <source>CounterValue_Tooltip</source>
        <translation>현재 카운트 값입니다. 값을 쓰면 그 값부터 계속 셉니다.</translation>
    </message>
    <message>
        <source>CounterValueAtReset_Tooltip</source>
        <translation>마지막 리셋 시점의 카운트 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnAchievedFrameRate_Tooltip</source>
        <translation>현재 설정에서 카메라가 도달하는 프레임 속도(초당 프레임 수)를 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnBrightness_Tooltip</source>
        <translation>노출과 게인을 바꾸지 않고 모든 그레이 값을 이동하여 이미지를 밝거나 어둡게 합니다.</translation>
    </message>
    <message>
        <source>CvnColorAdjustmentEnable_Tooltip</source>
        <translation>색상 변환 후에 색조와 채도 조정을 적용합니다.</translation>
    </message>
    <message>
        <source>CvnColorAdjustmentHue_Tooltip</source>
        <translation>색상 변환 후에 선택한 색 범위의 색조를 돌립니다.</translation>
    </message>
    <message>
        <source>CvnColorAdjustmentSaturation_Tooltip</source>
        <translation>색상 변환 후에 적용되는 선택한 색 범위의 채도입니다. 0은 무채색입니다.</translation>
    </message>
    <message>
        <source>CvnColorAdjustmentSelector_Tooltip</source>
        <translation>색상 변환 후에 조정할 색 범위를 선택합니다.</translation>
    </message>
    <message>
        <source>CvnColorSpace_Tooltip</source>
        <translation>선형이나 sRGB 등 이미지의 색상을 부호화하는 곡선입니다.</translation>
    </message>
    <message>
        <source>CvnColorSpaceMode_Tooltip</source>
        <translation>이미지의 색 공간을 선택합니다. 표시에는 sRGB, 측정에는 선형 RGB가 적합합니다.</translation>
    </message>
    <message>
        <source>CvnContrast_Tooltip</source>
        <translation>그레이 값의 폭을 늘리거나 줄입니다. 양수이면 밝은 곳은 더 밝고 어두운 곳은 더 어두워집니다.</translation>
    </message>
    <message>
        <source>CvnContrastMode_Tooltip</source>
        <translation>선형 콘트라스트 곡선 또는 가장 어둡고 밝은 값을 보존하는 S자 곡선을 선택합니다.</translation>
    </message>
    <message>
        <source>CvnDeviceHealth_Tooltip</source>
        <translation>카메라의 고장 레지스터를 나타냅니다. 설정된 비트마다 고장을 뜻하며 0은 이상 없음입니다.</translation>
    </message>
    <message>
        <source>CvnExposureTimeMode_Tooltip</source>
        <translation>일반 노출 시간 범위와 초단시간 노출 범위를 전환합니다.</translation>
    </message>
    <message>
        <source>CvnFrameCounter_Tooltip</source>
        <translation>카메라의 전원을 켠 뒤 획득한 프레임 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnHue_Tooltip</source>
        <translation>이미지의 모든 색조를 각도(도)만큼 돌립니다.</translation>
    </message>
    <message>
        <source>CvnImageCompressionRatio_Tooltip</source>
        <translation>최근 압축 이미지의 크기를 비압축 이미지에 대한 비율로 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnImmediateTriggerMode_Tooltip</source>
        <translation>트리거 직후에 노출을 시작합니다. 이때 플래시 출력이 조금 늦어질 수 있습니다.</translation>
    </message>
    <message>
        <source>CvnInputFilterTime_Tooltip</source>
        <translation>입력 레벨이 유효하다고 인정되기까지 안정되어야 하는 시간(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>CvnInputHoldOffTime_Tooltip</source>
        <translation>에지 이후에 이어지는 에지를 무시하는 시간(마이크로초)입니다. 이중 트리거를 막습니다.</translation>
    </message>
    <message>
        <source>CvnInstallationSite_Tooltip</source>
        <translation>카메라의 설치 위치를 적는 자유 텍스트로 카메라에 저장됩니다.</translation>
    </message>
    <message>
        <source>CvnLUTReset_Tooltip</source>
        <translation>선택한 룩업 테이블(LUT)을 픽셀 값이 바뀌지 않는 상태로 되돌립니다.</translation>
    </message>
    <message>
        <source>CvnLightSourcePreset_Tooltip</source>
        <translation>일반적인 조명에 맞춘 색상 보정값을 허용된 기능에 불러옵니다.</translation>
    </message>
    <message>
        <source>CvnLightSourcePresetFeatureEnable_Tooltip</source>
        <translation>조명 프리셋이 선택한 기능을 변경하도록 허용합니다. 수동 설정값을 유지하려면 끕니다.</translation>
    </message>
    <message>
        <source>CvnLightSourcePresetFeatureSelector_Tooltip</source>
        <translation>조명 프리셋이 변경하도록 허용할 기능을 선택합니다.</translation>
    </message>
    <message>
        <source>CvnLinkThroughputCurrent_Tooltip</source>
        <translation>현재 설정에 필요한 데이터 속도(초당 바이트)를 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnMissedTriggers_Tooltip</source>
        <translation>카메라가 다음 프레임을 획득할 수 없을 때 들어온 트리거 수를 나타냅니다. 늘어나면 트리거 속도를 낮춰야 합니다.</translation>
    </message>
    <message>
        <source>CvnNoiseReduction_Tooltip</source>
        <translation>디모자이킹 후에 적용되는 노이즈 제거 강도입니다. 강한 에지는 유지됩니다.</translation>
    </message>
    <message>
        <source>CvnOperatingHours_Tooltip</source>
        <translation>카메라의 누적 통전 시간(시간)을 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnPeriodicSignalDelay_Tooltip</source>
        <translation>주기 신호를 마이크로초 단위로 이동하여 여러 카메라나 조명의 시점을 분산합니다.</translation>
    </message>
    <message>
        <source>CvnPeriodicSignalPeriod_Tooltip</source>
        <translation>주기 신호의 펄스 간격(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>CvnPeriodicSignalSelector_Tooltip</source>
        <translation>설정할 주기 신호 발생기를 선택합니다.</translation>
    </message>
    <message>
        <source>CvnPixelFormatLegacy_Tooltip</source>
        <translation>오래된 프로그램을 위해 픽셀 포맷을 이전 코드로 알립니다.</translation>
    </message>
    <message>
        <source>CvnPowerConsumption_Tooltip</source>
        <translation>카메라의 현재 소비 전력(와트)을 나타냅니다. 프레임 속도와 처리량에 따라 늘어납니다.</translation>
    </message>
    <message>
        <source>CvnPtpManagementEnable_Tooltip</source>
        <translation>PTP 관리 메시지에 응답하여 네트워크 도구가 클록을 조회할 수 있게 합니다.</translation>
    </message>
    <message>
        <source>CvnPtpPriority1_Tooltip</source>
        <translation>카메라의 PTP 우선순위입니다. 값이 가장 작은 장치가 마스터가 됩니다.</translation>
    </message>
    <message>
        <source>CvnPtpTwoStep_Tooltip</source>
        <translation>정확한 타임스탬프를 후속 메시지로 보냅니다. 일부 스위치에서 필요합니다.</translation>
    </message>
    <message>
        <source>CvnReadoutOverlapMax_Tooltip</source>
        <translation>이전 프레임의 리드아웃과 겹칠 수 있는 노출의 최대 시간(마이크로초)을 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnSaturation_Tooltip</source>
        <translation>모든 색의 채도입니다. 1은 변화 없음, 0은 회색 이미지가 됩니다.</translation>
    </message>
    <message>
        <source>CvnScalingFactor_Tooltip</source>
        <translation>카메라가 이미지를 축소하는 배율입니다. 데시메이션보다 매끄러운 결과를 얻습니다.</translation>
    </message>
    <message>
        <source>CvnSensorBitDepth_Tooltip</source>
        <translation>센서가 각 픽셀을 디지털화하는 비트 수입니다. 적을수록 높은 프레임 속도가 가능합니다.</translation>
    </message>
    <message>
        <source>CvnSensorBitDepthMode_Tooltip</source>
        <translation>센서의 비트 심도를 픽셀 포맷에 맞출지 수동으로 선택할지 설정합니다.</translation>
    </message>
    <message>
        <source>CvnSensorDiagonal_Tooltip</source>
        <translation>센서 유효 영역의 대각선 길이(마이크로미터)를 나타냅니다. 렌즈의 이미지 서클은 이보다 작으면 안 됩니다.</translation>
    </message>
    <message>
        <source>CvnServiceContact_Tooltip</source>
        <translation>서비스를 요청할 연락처로 카메라에 저장됩니다.</translation>
    </message>
    <message>
        <source>CvnSharpnessEnhancement_Tooltip</source>
        <translation>스케일링 후에 적용되는 선명도 강조의 강도입니다. 축소된 이미지도 선명해집니다.</translation>
    </message>
    <message>
        <source>CvnStreamBandwidthAssigned_Tooltip</source>
        <translation>패킷 크기와 지연에 따라 카메라에 할당된 대역폭(초당 바이트)을 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnStreamBandwidthCurrent_Tooltip</source>
        <translation>이미지 스트림이 현재 사용하는 대역폭(초당 바이트)을 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnStreamBandwidthMax_Tooltip</source>
        <translation>현재 설정에서 카메라가 사용할 수 있는 최대 대역폭(초당 바이트)을 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnStreamJitterMax_Tooltip</source>
        <translation>네트워크가 혼잡할 때 이미지에 생길 수 있는 최대 지연을 나타냅니다.</translation>
    </message>
    <message>
        <source>CvnStreamReserveBursts_Tooltip</source>
        <translation>패킷 재전송 버스트 한 번에 쓸 수 있는 예비 대역폭의 수입니다.</translation>
    </message>
    <message>
        <source>CvnSupplyVoltage_Tooltip</source>
        <translation>카메라의 공급 전압(볼트)을 나타냅니다. 부하가 걸릴 때 내려가면 케이블이 길거나 가는 것입니다.</translation>
    </message>
    <message>
        <source>CvnTemperatureAbs_Tooltip</source>
        <translation>이전 이름으로 제공되는 온도(섭씨)입니다. 새 카메라에서는 DeviceTemperature를 사용합니다.</translation>
    </message>
    <message>
        <source>CvnTemperatureAlarm_Tooltip</source>
        <translation>온도가 정상, 위험, 과열 중 어느 상태인지 나타냅니다. 과열되면 카메라의 일부가 꺼집니다.</translation>
    </message>
    <message>
        <source>CvnThermalDrift_Tooltip</source>
        <translation>전원을 켠 뒤 온도 상승으로 인한 상면의 추정 이동량(마이크로미터)을 나타냅니다.</translation>
    </message>
    <message>
        <source>CxpErrorCounterReset_Tooltip</source>
        <translation>선택한 CoaXPress 오류 카운터를 리셋합니다.</translation>
    </message>
    <message>
        <source>CxpErrorCounterSelector_Tooltip</source>
        <translation>읽을 CoaXPress 오류 카운터를 선택합니다.</translation>
    </message>
    <message>
        <source>CxpErrorCounterValue_Tooltip</source>
        <translation>선택한 CoaXPress 오류의 횟수를 나타냅니다. 늘어나면 케이블이나 커넥터 불량이 의심됩니다.</translation>
    </message>
    <message>
        <source>CxpLinkConfigurationPreferred_Tooltip</source>
        <translation>카메라가 최대 프레임 속도를 내는 데 권장되는 CoaXPress 연결의 속도와 수입니다.</translation>
    </message>
    <message>
        <source>CxpLinkConfigurationStatus_Tooltip</source>
        <translation>사용 중인 CoaXPress 연결의 속도와 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>DecimationHorizontal_Tooltip</source>
        <translation>n번째 열만 남깁니다. 시야는 그대로이고 이미지 너비가 줄어듭니다.</translation>
    </message>
    <message>
        <source>DecimationHorizontalMode_Tooltip</source>
        <translation>건너뛴 열을 버릴지 남는 열과 평균할지 설정합니다.</translation>
    </message>
    <message>
        <source>DecimationVertical_Tooltip</source>
        <translation>n번째 행만 남깁니다. 시야는 그대로이고 프레임 속도를 높일 수 있습니다.</translation>
    </message>
    <message>
        <source>DecimationVerticalMode_Tooltip</source>
        <translation>건너뛴 행을 버릴지 남는 행과 평균할지 설정합니다.</translation>
    </message>
    <message>
        <source>DefectPixelCorrectionMode_Tooltip</source>
        <translation>결함 픽셀을 주변 값으로 대체합니다. 개별 픽셀을 측정할 때는 끕니다.</translation>
    </message>
    <message>
        <source>Deinterlacing_Tooltip</source>
        <translation>인터레이스 센서의 필드 이미지를 합치는 방법을 선택합니다.</translation>
    </message>
    <message>
        <source>DemosaicingMode_Tooltip</source>
        <translation>베이어 배열에서 컬러를 계산하는 방법(낮은 지연 또는 더 나은 에지 품질)을 선택합니다.</translation>
    </message>
    <message>
        <source>DeviceCharacterSet_Tooltip</source>
        <translation>카메라가 텍스트를 저장하는 문자 집합을 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceClockFrequency_Tooltip</source>
        <translation>선택한 클록의 주파수(Hz)입니다.</translation>
    </message>
    <message>
        <source>DeviceClockSelector_Tooltip</source>
        <translation>주파수를 표시할 내부 클록을 선택합니다.</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>카메라의 제품군을 나타냅니다. 같은 제품군의 카메라는 대부분의 기능이 같습니다.</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceEnd_Tooltip</source>
        <translation>설정의 저장 또는 복원이 끝났음을 카메라에 알립니다.</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceStart_Tooltip</source>
        <translation>설정의 저장 또는 복원을 시작함을 카메라에 알립니다.</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>카메라에서 동작 중인 펌웨어의 버전을 나타냅니다. 기술 지원을 요청할 때 필요합니다.</translation>
    </message>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>소프트웨어가 카메라를 다시 찾는 데 쓰는 고유 식별자를 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceIndicatorMode_Tooltip</source>
        <translation>표시등의 동작을 설정합니다. 빛이 이미지에 영향을 주면 끕니다.</translation>
    </message>
    <message>
        <source>DeviceLinkConnectionCount_Tooltip</source>
        <translation>링크를 구성하는 물리적 연결의 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceLinkHeartbeatMode_Tooltip</source>
        <translation>카메라가 응용 프로그램의 중단을 감지하는 하트비트를 켭니다. 디버깅할 때만 끕니다.</translation>
    </message>
    <message>
        <source>DeviceLinkHeartbeatTimeout_Tooltip</source>
        <translation>하트비트가 끊긴 뒤 카메라가 연결을 닫을 때까지의 시간(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>DeviceLinkSelector_Tooltip</source>
        <translation>설정할 카메라 링크를 선택합니다.</translation>
    </message>
    <message>
        <source>DeviceLinkSpeed_Tooltip</source>
        <translation>협상된 링크 속도(초당 바이트)를 나타냅니다. 값이 낮으면 포트나 케이블이 맞지 않는 것입니다.</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimit_Tooltip</source>
        <translation>카메라의 데이터 속도 상한(초당 바이트)을 설정합니다.</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimitMode_Tooltip</source>
        <translation>처리량 제한을 켜서 여러 카메라가 하나의 링크를 나누어 쓸 수 있게 합니다.</translation>
    </message>
    <message>
        <source>DeviceManifest_Tooltip</source>
        <translation>카메라에 저장된 기능 기술 파일의 목록을 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo_Tooltip</source>
        <translation>카메라에 관한 제조사의 추가 정보를 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceMaxThroughput_Tooltip</source>
        <translation>카메라가 이미지를 출력할 수 있는 최대 데이터 속도(초당 바이트)를 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>라벨에 표기된 카메라의 모델명을 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceRegistersCheck_Tooltip</source>
        <translation>현재 설정에 모순이 없는지 검사합니다.</translation>
    </message>
    <message>
        <source>DeviceRegistersValid_Tooltip</source>
        <translation>마지막 검사에서 설정이 일관되었는지 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceReset_Tooltip</source>
        <translation>카메라를 다시 시작합니다. 연결이 끊기고 저장하지 않은 설정은 사라집니다.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMajor_Tooltip</source>
        <translation>카메라가 따르는 SFNC(표준 기능 명명 규약)의 주 버전을 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMinor_Tooltip</source>
        <translation>카메라가 따르는 SFNC(표준 기능 명명 규약)의 부 버전을 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceScanType_Tooltip</source>
        <translation>센서가 에어리어 스캔인지 라인 스캔인지 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>개별 카메라를 식별하는 일련번호를 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMajor_Tooltip</source>
        <translation>전송 계층 프로토콜의 주 버전을 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMinor_Tooltip</source>
        <translation>전송 계층 프로토콜의 부 버전을 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceTapGeometry_Tooltip</source>
        <translation>출력 탭에서의 이미지 배치입니다. 프레임 그래버도 같게 설정해야 합니다.</translation>
    </message>
    <message>
        <source>DeviceTemperature_Tooltip</source>
        <translation>선택한 위치의 온도(섭씨)를 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceTemperatureSelector_Tooltip</source>
        <translation>온도를 측정할 카메라 내부 위치를 선택합니다.</translation>
    </message>
    <message>
        <source>DeviceType_Tooltip</source>
        <translation>데이터 송신기, 수신기 또는 송수신기 등 장치의 역할을 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceUserID_Tooltip</source>
        <translation>사용자가 카메라에 붙이는 이름으로 카메라에 저장됩니다. 여러 카메라를 구분할 때 편리합니다.</translation>
    </message>
    <message>
        <source>DeviceVendorName_Tooltip</source>
        <translation>카메라 제조사의 이름을 나타냅니다.</translation>
    </message>
    <message>
        <source>DeviceVersion_Tooltip</source>
        <translation>카메라의 하드웨어 버전을 나타냅니다.</translation>
    </message>
    <message>
        <source>DigitalShift_Tooltip</source>
        <translation>픽셀 값을 비트 단위로 올립니다. 한 단계마다 밝기가 두 배가 되어 어두운 부분의 세부가 보입니다.</translation>
    </message>
    <message>
        <source>EncoderDivider_Tooltip</source>
        <translation>출력 펄스 하나에 해당하는 엔코더 카운트 수입니다.</translation>
    </message>
    <message>
        <source>EncoderMode_Tooltip</source>
        <translation>지터에 강한 전체 주기 계수 또는 고해상도를 위한 모든 에지 계수를 설정합니다.</translation>
    </message>
    <message>
        <source>EncoderOutputMode_Tooltip</source>
        <translation>엔코더가 펄스를 출력하는 이동 조건을 설정합니다.</translation>
    </message>
    <message>
        <source>EncoderReset_Tooltip</source>
        <translation>엔코더 위치를 0으로 하고 이전 값을 EncoderValueAtReset에 보존합니다.</translation>
    </message>
    <message>
        <source>EncoderResolution_Tooltip</source>
        <translation>엔코더 카운트당 이동량입니다. 카운트를 길이로 환산하는 데 사용합니다.</translation>
    </message>
    <message>
        <source>EncoderSelector_Tooltip</source>
        <translation>설정할 엔코더를 선택합니다.</translation>
    </message>
    <message>
        <source>EncoderSourceA_Tooltip</source>
        <translation>엔코더 A상이 연결된 라인을 선택합니다.</translation>
    </message>
    <message>
        <source>EncoderSourceB_Tooltip</source>
        <translation>엔코더 B상이 연결된 라인을 선택합니다. 방향을 판별하려면 B상이 필요합니다.</translation>
    </message>
    <message>
        <source>EncoderStatus_Tooltip</source>
        <translation>엔코더의 이동 여부와 방향을 나타냅니다.</translation>
    </message>
    <message>
        <source>EncoderTimeout_Tooltip</source>
        <translation>펄스가 없을 때 정지로 판단하기까지의 시간(마이크로초)입니다. 0이면 꺼집니다.</translation>
    </message>
    <message>
        <source>EncoderValue_Tooltip</source>
        <translation>엔코더가 센 현재 위치입니다. 이동 방향에 따라 늘거나 줄어듭니다.</translation>
    </message>
    <message>
        <source>EncoderValueAtReset_Tooltip</source>
        <translation>마지막 리셋 시점의 엔코더 위치를 나타냅니다.</translation>
    </message>
    <message>
        <source>EventError_Tooltip</source>
        <translation>오류 이벤트의 식별자를 나타냅니다.</translation>
    </message>
    <message>
        <source>EventErrorCode_Tooltip</source>
        <translation>오류의 종류를 나타내는 코드를 표시합니다.</translation>
    </message>
    <message>
        <source>EventErrorFrameID_Tooltip</source>
        <translation>오류가 감지된 프레임의 번호를 나타냅니다.</translation>
    </message>
    <message>
        <source>EventErrorTimestamp_Tooltip</source>
        <translation>오류를 감지한 시점의 카메라 클록 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>EventExposureEnd_Tooltip</source>
        <translation>노출 종료 이벤트의 식별자를 나타냅니다.</translation>
    </message>
    <message>
        <source>EventExposureEndFrameID_Tooltip</source>
        <translation>노출이 끝난 프레임의 번호를 나타냅니다.</translation>
    </message>
    <message>
        <source>EventExposureEndTimestamp_Tooltip</source>
        <translation>노출이 끝난 시점의 카메라 클록 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>EventFrameTrigger_Tooltip</source>
        <translation>프레임 트리거 이벤트의 식별자를 나타냅니다.</translation>
    </message>
    <message>
        <source>EventFrameTriggerFrameID_Tooltip</source>
        <translation>트리거가 시작한 프레임의 번호를 나타냅니다.</translation>
    </message>
    <message>
        <source>EventFrameTriggerTimestamp_Tooltip</source>
        <translation>프레임 트리거를 받은 시점의 카메라 클록 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>EventNotification_Tooltip</source>
        <translation>선택한 이벤트가 발생할 때마다 응용 프로그램에 메시지를 보냅니다.</translation>
    </message>
    <message>
        <source>EventSelector_Tooltip</source>
        <translation>알림을 설정할 이벤트를 선택합니다.</translation>
    </message>
    <message>
        <source>EventTest_Tooltip</source>
        <translation>테스트 이벤트의 식별자를 나타냅니다.</translation>
    </message>
    <message>
        <source>EventTestTimestamp_Tooltip</source>
        <translation>테스트 이벤트를 요청한 시점의 카메라 클록 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>ExposureAuto_Tooltip</source>
        <translation>목표 밝기에 도달하도록 노출 시간을 한 번 또는 연속으로 자동 조정합니다.</translation>
    </message>
    <message>
        <source>ExposureMode_Tooltip</source>
        <translation>노출을 결정하는 방식(카메라 타이머, 트리거 펄스 폭, 개별 시작·종료 트리거)을 설정합니다.</translation>
    </message>
    <message>
        <source>ExposureTime_Tooltip</source>
        <translation>센서가 빛을 받는 시간(마이크로초)입니다. 길수록 밝아지지만 움직임에 의한 흐림이 커집니다.</translation>
    </message>
    <message>
        <source>ExposureTimeAbs_Tooltip</source>
        <translation>이전 이름으로 제공되는 노출 시간(마이크로초)입니다. 새 카메라에서는 ExposureTime을 사용합니다.</translation>
    </message>
    <message>
        <source>ExposureTimeMode_Tooltip</source>
        <translation>모든 구성 요소에 하나의 노출 시간을 적용할지 각각 다른 노출 시간을 적용할지 설정합니다.</translation>
    </message>
    <message>
        <source>ExposureTimeRaw_Tooltip</source>
        <translation>장치 고유의 틱 단위로 나타낸 노출 시간입니다. ExposureTime은 같은 설정을 마이크로초로 나타냅니다.</translation>
    </message>
    <message>
        <source>ExposureTimeSelector_Tooltip</source>
        <translation>개별 노출 시간을 사용할 때 설정할 노출 시간을 선택합니다.</translation>
    </message>
    <message>
        <source>FileAccessBuffer_Tooltip</source>
        <translation>파일에 쓸 데이터 또는 읽은 데이터의 바이트 블록으로, 프로그램용입니다.</translation>
    </message>
    <message>
        <source>FileAccessLength_Tooltip</source>
        <translation>다음 읽기·쓰기에서 옮길 바이트 수입니다.</translation>
    </message>
    <message>
        <source>FileAccessOffset_Tooltip</source>
        <translation>다음 읽기·쓰기를 시작할 파일 내 위치(바이트)입니다.</translation>
    </message>
    <message>
        <source>FileOpenMode_Tooltip</source>
        <translation>파일을 읽기용, 쓰기용 또는 읽기·쓰기용으로 열지 설정합니다.</translation>
    </message>
    <message>
        <source>FileOperationExecute_Tooltip</source>
        <translation>선택한 파일에 선택한 작업을 실행합니다.</translation>
    </message>
    <message>
        <source>FileOperationResult_Tooltip</source>
        <translation>마지막 파일 작업의 결과를 나타냅니다. 읽기·쓰기에서는 옮긴 바이트 수입니다.</translation>
    </message>
    <message>
        <source>FileOperationSelector_Tooltip</source>
        <translation>파일에 대해 실행할 작업을 선택합니다.</translation>
    </message>
    <message>
        <source>FileOperationStatus_Tooltip</source>
        <translation>마지막 파일 작업이 성공했는지 나타냅니다.</translation>
    </message>
    <message>
        <source>FileSelector_Tooltip</source>
        <translation>접근할 카메라 내부 파일을 선택합니다.</translation>
    </message>
    <message>
        <source>FileSize_Tooltip</source>
        <translation>선택한 파일의 크기(바이트)를 나타냅니다.</translation>
    </message>
    <message>
        <source>FocalPower_Tooltip</source>
        <translation>액체 렌즈의 굴절력(디옵터)입니다. 클수록 가까운 대상에 초점이 맞습니다.</translation>
    </message>
    <message>
        <source>FocusAuto_Tooltip</source>
        <translation>가장 선명한 이미지를 한 번 또는 연속으로 자동 검색합니다.</translation>
    </message>
    <message>
        <source>FocusStepper_Tooltip</source>
        <translation>초점 모터의 위치를 스텝 수로 나타냅니다.</translation>
    </message>
    <message>
        <source>ForceFailedBuffer_Tooltip</source>
        <translation>다음 이미지를 손상된 것으로 표시하여 응용 프로그램의 실패 버퍼 처리를 시험합니다.</translation>
    </message>
    <message>
        <source>ForceFailedBufferCount_Tooltip</source>
        <translation>ForceFailedBuffer가 손상시킬 이미지 수입니다.</translation>
    </message>
    <message>
        <source>FrequencyConverterInputSource_Tooltip</source>
        <translation>주파수를 변환할 신호를 선택합니다.</translation>
    </message>
    <message>
        <source>FrequencyConverterMultiplier_Tooltip</source>
        <translation>등간격 펄스를 삽입하여 분주된 주파수를 체배합니다.</translation>
    </message>
    <message>
        <source>FrequencyConverterPostDivider_Tooltip</source>
        <translation>체배된 주파수를 분주합니다. 3 대 2와 같은 비율을 만들 수 있습니다.</translation>
    </message>
    <message>
        <source>FrequencyConverterPreDivider_Tooltip</source>
        <translation>체배하기 전에 입력 주파수를 분주합니다.</translation>
    </message>
    <message>
        <source>Gain_Tooltip</source>
        <translation>이미지 신호의 증폭률이며 보통 dB 단위입니다. 높일수록 밝아지지만 노이즈도 커집니다.</translation>
    </message>
    <message>
        <source>GainAuto_Tooltip</source>
        <translation>목표 밝기에 도달하도록 게인을 한 번 또는 연속으로 자동 조정합니다.</translation>
    </message>
    <message>
        <source>GainAutoBalance_Tooltip</source>
        <translation>줄무늬가 생기지 않도록 센서 탭 간의 게인을 자동으로 맞춥니다.</translation>
    </message>
    <message>
        <source>GainRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 정수 게인입니다. 새 카메라에서는 Gain을 사용합니다.</translation>
    </message>
    <message>
        <source>GainSelector_Tooltip</source>
        <translation>아날로그나 디지털 등 설정할 게인을 선택합니다.</translation>
    </message>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>감마 곡선의 지수입니다. 1보다 작으면 어두운 영역이 밝아지고, 1보다 크면 어두워집니다.</translation>
    </message>
    <message>
        <source>GammaEnable_Tooltip</source>
        <translation>감마 보정을 적용합니다. 끄면 픽셀 값이 광량에 비례합니다.</translation>
    </message>
    <message>
        <source>GammaSelector_Tooltip</source>
        <translation>사용자 정의 지수 또는 표준 sRGB 곡선을 선택합니다.</translation>
    </message>
    <message>
        <source>GenDCStreamingMode_Tooltip</source>
        <translation>여러 구성 요소를 함께 담는 GenDC 컨테이너로 이미지를 보냅니다.</translation>
    </message>
    <message>
        <source>GenDCStreamingStatus_Tooltip</source>
        <translation>현재 이미지가 GenDC 컨테이너로 전송되는지 나타냅니다.</translation>
    </message>
    <message>
        <source>GevCCP_Tooltip</source>
        <translation>제어 응용 프로그램의 접근 권한(개방, 독점, 제어)입니다.</translation>
    </message>
    <message>
        <source>GevCurrentDefaultGateway_Tooltip</source>
        <translation>카메라가 현재 사용하는 기본 게이트웨이를 나타냅니다.</translation>
    </message>
    <message>
        <source>GevCurrentIPAddress_Tooltip</source>
        <translation>카메라가 현재 사용하는 IP 주소를 나타냅니다. 컴퓨터가 같은 서브넷에 있어야 합니다.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationDHCP_Tooltip</source>
        <translation>카메라가 시작할 때 DHCP 서버에서 IP 주소를 받도록 허용합니다.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationLLA_Tooltip</source>
        <translation>다른 방법이 실패하면 카메라가 링크 로컬 주소를 스스로 할당하도록 허용합니다.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationPersistentIP_Tooltip</source>
        <translation>카메라가 시작할 때 고정 IP 주소를 사용하도록 허용합니다. 가장 빠른 방법입니다.</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask_Tooltip</source>
        <translation>카메라가 현재 사용하는 서브넷 마스크를 나타냅니다.</translation>
    </message>
    <message>
        <source>GevDiscoveryAckDelay_Tooltip</source>
        <translation>카메라가 검색 요청에 응답하기까지의 최대 지연(밀리초)입니다. 여러 카메라의 응답을 분산합니다.</translation>
    </message>
    <message>
        <source>GevFirstURL_Tooltip</source>
        <translation>카메라의 기능 기술 파일을 불러오는 첫 번째 위치를 나타냅니다.</translation>
    </message>
    <message>
        <source>GevGVCPHeartbeatDisable_Tooltip</source>
        <translation>하트비트 감시를 꺼서 디버깅하는 동안 카메라 연결을 유지합니다.</translation>
    </message>
    <message>
        <source>GevGVCPPendingAck_Tooltip</source>
        <translation>응답이 늦어짐을 카메라가 미리 알려 시간 초과를 막습니다.</translation>
    </message>
    <message>
        <source>GevGVSPExtendedIDMode_Tooltip</source>
        <translation>64비트 블록 번호를 사용합니다. 끄면 65535장마다 번호가 다시 시작됩니다.</translation>
    </message>
    <message>
        <source>GevHeartbeatTimeout_Tooltip</source>
        <translation>하트비트가 끊긴 뒤 카메라가 연결을 닫을 때까지의 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>GevIPConfigurationStatus_Tooltip</source>
        <translation>카메라가 IP 주소를 얻은 방법을 나타냅니다.</translation>
    </message>
    <message>
        <source>GevInterfaceSelector_Tooltip</source>
        <translation>설정할 카메라의 네트워크 인터페이스를 선택합니다.</translation>
    </message>
    <message>
        <source>GevLinkSpeed_Tooltip</source>
        <translation>네트워크 링크의 속도(초당 메가비트)를 나타냅니다.</translation>
    </message>
    <message>
        <source>GevMACAddress_Tooltip</source>
        <translation>네트워크 인터페이스의 MAC 주소를 나타냅니다.</translation>
    </message>
    <message>
        <source>GevMCDA_Tooltip</source>
        <translation>카메라가 이벤트 메시지를 보내는 대상 IP 주소입니다.</translation>
    </message>
    <message>
        <source>GevMCPHostPort_Tooltip</source>
        <translation>이벤트 메시지를 보내는 UDP 포트입니다. 0이면 메시지 채널을 닫습니다.</translation>
    </message>
    <message>
        <source>GevMCRC_Tooltip</source>
        <translation>수신 확인이 없을 때 이벤트 메시지를 다시 보내는 횟수입니다.</translation>
    </message>
    <message>
        <source>GevMCTT_Tooltip</source>
        <translation>카메라가 이벤트 메시지의 수신 확인을 기다리는 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>GevPAUSEFrameReception_Tooltip</source>
        <translation>스위치나 컴퓨터가 PAUSE 프레임으로 카메라의 전송을 늦추도록 허용합니다.</translation>
    </message>
    <message>
        <source>GevPersistentDefaultGateway_Tooltip</source>
        <translation>고정 IP 주소와 함께 사용하는 기본 게이트웨이입니다.</translation>
    </message>
    <message>
        <source>GevPersistentIPAddress_Tooltip</source>
        <translation>고정 IP 주소입니다. 허용된 경우 다음에 시작할 때 사용합니다.</translation>
    </message>
    <message>
        <source>GevPersistentSubnetMask_Tooltip</source>
        <translation>고정 IP 주소와 함께 사용하는 서브넷 마스크입니다.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationIPAddress_Tooltip</source>
        <translation>카메라를 제어하는 응용 프로그램이 있는 컴퓨터의 IP 주소를 나타냅니다.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSocket_Tooltip</source>
        <translation>카메라를 제어하는 응용 프로그램의 UDP 포트를 나타냅니다.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSwitchoverKey_Tooltip</source>
        <translation>다른 응용 프로그램이 카메라 제어를 넘겨받을 때 쓰는 키입니다.</translation>
    </message>
    <message>
        <source>GevSCBWR_Tooltip</source>
        <translation>패킷 재전송을 위해 남겨 둘 대역폭의 비율(%)입니다.</translation>
    </message>
    <message>
        <source>GevSCDA_Tooltip</source>
        <translation>이미지를 보내는 대상 IP 주소입니다. 멀티캐스트 주소이면 여러 컴퓨터가 수신합니다.</translation>
    </message>
    <message>
        <source>GevSCFTD_Tooltip</source>
        <translation>이미지를 보내기 전의 지연(틱)입니다. 함께 트리거되는 여러 카메라의 전송을 분산합니다.</translation>
    </message>
    <message>
        <source>GevSCPD_Tooltip</source>
        <translation>스트림 패킷 사이의 간격(틱)입니다. 여러 카메라가 네트워크 포트를 공유하면 늘립니다.</translation>
    </message>
    <message>
        <source>GevSCPHostPort_Tooltip</source>
        <translation>이미지를 보내는 UDP 포트입니다. 0이면 스트림 채널을 닫습니다.</translation>
    </message>
    <message>
        <source>GevSCPInterfaceIndex_Tooltip</source>
        <translation>스트림을 보내는 카메라 네트워크 인터페이스의 번호입니다.</translation>
    </message>
    <message>
        <source>GevSCPSDoNotFragment_Tooltip</source>
        <translation>네트워크가 스트림 패킷을 나누지 못하게 합니다. 너무 큰 패킷은 손실되어 문제를 알 수 있습니다.</translation>
    </message>
    <message>
        <source>GevSCPSFireTestPacket_Tooltip</source>
        <translation>테스트 패킷을 보내 현재 패킷 크기가 전달되는지 확인합니다.</translation>
    </message>
    <message>
        <source>GevSCPSPacketSize_Tooltip</source>
        <translation>스트림 패킷의 크기(바이트)입니다. 크면 CPU 부하가 줄지만 경로 전체가 점보 프레임을 지원해야 합니다.</translation>
    </message>
    <message>
        <source>GevSCZoneConfigurationLock_Tooltip</source>
        <translation>이미지 획득 중에 구역 구성을 고정합니다.</translation>
    </message>
    <message>
        <source>GevSCZoneCount_Tooltip</source>
        <translation>이미지를 나누어 전송하는 구역의 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>GevSCZoneDirectionAll_Tooltip</source>
        <translation>각 구역의 전송 방향을 구역당 한 비트로 나타냅니다. 1은 아래에서 위를 뜻합니다.</translation>
    </message>
    <message>
        <source>GevSecondURL_Tooltip</source>
        <translation>카메라의 기능 기술 파일을 불러오는 대체 위치를 나타냅니다.</translation>
    </message>
    <message>
        <source>GevStreamChannelSelector_Tooltip</source>
        <translation>설정할 스트림 채널을 선택합니다.</translation>
    </message>
    <message>
        <source>GevTimestampControlLatch_Tooltip</source>
        <translation>이전 이름으로 제공되는 클록 래치 명령입니다. 새 카메라에서는 TimestampLatch를 사용합니다.</translation>
    </message>
    <message>
        <source>GevTimestampTickFrequency_Tooltip</source>
        <translation>초당 클록 틱 수를 나타냅니다. 타임스탬프를 초로 환산할 때 사용합니다.</translation>
    </message>
    <message>
        <source>GevTimestampValue_Tooltip</source>
        <translation>이전 이름으로 제공되는 래치된 클록 값(틱)입니다. 새 카메라에서는 TimestampLatchValue를 사용합니다.</translation>
    </message>
    <message>
        <source>GevVersionMajor_Tooltip</source>
        <translation>카메라가 따르는 GigE Vision 표준의 주 버전을 나타냅니다.</translation>
    </message>
    <message>
        <source>GevVersionMinor_Tooltip</source>
        <translation>카메라가 따르는 GigE Vision 표준의 부 버전을 나타냅니다.</translation>
    </message>
    <message>
        <source>GrayValueAdjustmentDampingAbs_Tooltip</source>
        <translation>자동 밝기 제어의 완화 정도입니다. 새 카메라에서는 AutoTargetBrightnessDamping을 사용합니다.</translation>
    </message>
    <message>
        <source>GrayValueAdjustmentDampingRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 자동 밝기 제어의 완화 정도입니다. 새 카메라에서는 AutoTargetBrightnessDamping을 사용합니다.</translation>
    </message>
    <message>
        <source>Height_Tooltip</source>
        <translation>관심 영역(ROI)의 높이를 픽셀 단위로 설정합니다. 행이 적을수록 보통 프레임 속도를 높일 수 있습니다.</translation>
    </message>
    <message>
        <source>HeightMax_Tooltip</source>
        <translation>현재 비닝과 데시메이션에서 가능한 최대 이미지 높이를 나타냅니다.</translation>
    </message>
    <message>
        <source>ImageCompressionBitrate_Tooltip</source>
        <translation>압축이 유지하는 데이터 속도(초당 메가비트)입니다.</translation>
    </message>
    <message>
        <source>ImageCompressionJPEGFormatOption_Tooltip</source>
        <translation>JPEG의 종류를 선택합니다. 베이스라인은 모든 디코더에서 읽을 수 있습니다.</translation>
    </message>
    <message>
        <source>ImageCompressionMode_Tooltip</source>
        <translation>전송할 이미지의 압축 방식(없음, 무손실, 손실)을 선택합니다.</translation>
    </message>
    <message>
        <source>ImageCompressionQuality_Tooltip</source>
        <translation>압축 이미지의 품질입니다. 값이 클수록 화질이 좋아지고 데이터가 커집니다.</translation>
    </message>
    <message>
        <source>ImageCompressionRateOption_Tooltip</source>
        <translation>압축할 때 화질과 데이터 속도 중 무엇을 일정하게 유지할지 설정합니다.</translation>
    </message>
    <message>
        <source>LUTEnable_Tooltip</source>
        <translation>픽셀 값을 룩업 테이블(LUT)의 값으로 바꿉니다. 먼저 테이블을 채워야 합니다.</translation>
    </message>
    <message>
        <source>LUTIndex_Tooltip</source>
        <translation>테이블 항목을 읽거나 쓸 입력 픽셀 값입니다.</translation>
    </message>
    <message>
        <source>LUTSelector_Tooltip</source>
        <translation>편집할 룩업 테이블(LUT)을 선택합니다.</translation>
    </message>
    <message>
        <source>LUTValue_Tooltip</source>
        <translation>지정한 인덱스의 픽셀 값을 대신하는 출력값입니다.</translation>
    </message>
    <message>
        <source>LUTValueAll_Tooltip</source>
        <translation>룩업 테이블(LUT) 전체를 하나의 바이트 블록으로 프로그램에 제공합니다.</translation>
    </message>
    <message>
        <source>LightBrightness_Tooltip</source>
        <translation>조명의 밝기를 정격 전류에 대한 비율(%)로 설정합니다.</translation>
    </message>
    <message>
        <source>LightConnectionStatus_Tooltip</source>
        <translation>조명이 연결되어 준비되었는지 나타냅니다.</translation>
    </message>
    <message>
        <source>LightControllerSelector_Tooltip</source>
        <translation>설정할 조명 컨트롤러를 선택합니다.</translation>
    </message>
    <message>
        <source>LightControllerSource_Tooltip</source>
        <translation>조명을 켜는 신호를 선택합니다.</translation>
    </message>
    <message>
        <source>LightCurrentMeasured_Tooltip</source>
        <translation>조명 전류의 측정값(암페어)을 나타냅니다.</translation>
    </message>
    <message>
        <source>LightCurrentRating_Tooltip</source>
        <translation>조명의 정격 전류(암페어)를 설정합니다. 값이 너무 크면 조명이 손상될 수 있습니다.</translation>
    </message>
    <message>
        <source>LightSourcePreset_Tooltip</source>
        <translation>일반적인 조명에 맞춘 색상 보정값을 불러옵니다.</translation>
    </message>
    <message>
        <source>LightSourceSelector_Tooltip</source>
        <translation>색상 보정의 대상이 되는 조명 종류를 선택합니다.</translation>
    </message>
    <message>
        <source>LightVoltageMeasured_Tooltip</source>
        <translation>조명 전압의 측정값(볼트)을 나타냅니다. 전원이 부족하면 내려갑니다.</translation>
    </message>
    <message>
        <source>LightVoltageRating_Tooltip</source>
        <translation>데이터시트에 적힌 조명의 정격 전압(볼트)을 설정합니다.</translation>
    </message>
    <message>
        <source>LineDebouncerTime_Tooltip</source>
        <translation>입력 라인이 받아들이는 최단 펄스(마이크로초)입니다. 채터링을 걸러내며 트리거도 같은 시간만큼 늦어집니다.</translation>
    </message>
    <message>
        <source>LineDebouncerTimeAbs_Tooltip</source>
        <translation>이전 이름으로 제공되는 디바운스 시간(마이크로초)입니다. 새 카메라에서는 LineDebouncerTime을 사용합니다.</translation>
    </message>
    <message>
        <source>LineFormat_Tooltip</source>
        <translation>TTL이나 LVDS 등 선택한 라인의 전기적 형식입니다.</translation>
    </message>
    <message>
        <source>LineInverter_Tooltip</source>
        <translation>연결된 장치의 극성에 맞게 선택한 라인의 신호를 반전합니다.</translation>
    </message>
    <message>
        <source>LineMode_Tooltip</source>
        <translation>선택한 라인을 입력 또는 출력으로 설정합니다. 먼저 배선을 확인해야 합니다.</translation>
    </message>
    <message>
        <source>LineOutputPulseMin_Tooltip</source>
        <translation>출력 라인이 내보내는 최단 펄스(마이크로초)입니다. 더 짧은 펄스는 늘어납니다.</translation>
    </message>
    <message>
        <source>LinePitch_Tooltip</source>
        <translation>이미지 버퍼에서 두 라인의 시작 사이의 거리(바이트)입니다.</translation>
    </message>
    <message>
        <source>LinePitchEnable_Tooltip</source>
        <translation>각 라인을 일정한 길이로 채웁니다. 라인 시작의 정렬이 필요한 수신 측에 사용합니다.</translation>
    </message>
    <message>
        <source>LineSelector_Tooltip</source>
        <translation>설정할 물리적 입출력 라인을 선택합니다.</translation>
    </message>
    <message>
        <source>LineSource_Tooltip</source>
        <translation>선택한 라인으로 출력할 내부 신호를 선택합니다. 조명 제어 등에 사용합니다.</translation>
    </message>
    <message>
        <source>LineStatus_Tooltip</source>
        <translation>선택한 라인의 현재 논리 레벨을 나타냅니다.</translation>
    </message>
    <message>
        <source>LineStatusAll_Tooltip</source>
        <translation>모든 라인의 현재 레벨을 라인당 한 비트로 나타냅니다.</translation>
    </message>
    <message>
        <source>LogicBlockFunction_Tooltip</source>
        <translation>입력을 조합하는 방법(AND, OR, 룩업 테이블)을 설정합니다.</translation>
    </message>
    <message>
        <source>LogicBlockInputInverter_Tooltip</source>
        <translation>선택한 입력의 신호를 반전합니다.</translation>
    </message>
    <message>
        <source>LogicBlockInputNumber_Tooltip</source>
        <translation>로직 블록이 사용하는 입력의 수입니다.</translation>
    </message>
    <message>
        <source>LogicBlockInputSelector_Tooltip</source>
        <translation>설정할 로직 블록의 입력을 선택합니다.</translation>
    </message>
    <message>
        <source>LogicBlockInputSource_Tooltip</source>
        <translation>선택한 입력에 연결할 신호를 선택합니다.</translation>
    </message>
    <message>
        <source>LogicBlockLUTIndex_Tooltip</source>
        <translation>입력을 이진수로 본 진리표의 행을 선택합니다.</translation>
    </message>
    <message>
        <source>LogicBlockLUTValue_Tooltip</source>
        <translation>진리표의 선택한 행에 대한 출력 레벨입니다.</translation>
    </message>
    <message>
        <source>LogicBlockLUTValueAll_Tooltip</source>
        <translation>진리표 전체를 행당 한 비트인 하나의 수로 나타냅니다.</translation>
    </message>
    <message>
        <source>LogicBlockSelector_Tooltip</source>
        <translation>설정할 로직 블록을 선택합니다.</translation>
    </message>
    <message>
        <source>MultiSlopeExposureGradient_Tooltip</source>
        <translation>니 포인트 전후의 응답 곡선 기울기 비율입니다.</translation>
    </message>
    <message>
        <source>MultiSlopeExposureLimit_Tooltip</source>
        <translation>다음 기울기가 시작되는 시점을 노출 시간의 비율(%)로 설정합니다.</translation>
    </message>
    <message>
        <source>MultiSlopeIntensityLimit_Tooltip</source>
        <translation>응답 곡선의 기울기가 바뀌는 밝기를 흰색에 대한 비율(%)로 설정합니다.</translation>
    </message>
    <message>
        <source>MultiSlopeKneePointCount_Tooltip</source>
        <translation>니 포인트의 수입니다. 하나마다 응답 곡선에 더 완만한 기울기가 하나씩 추가됩니다.</translation>
    </message>
    <message>
        <source>MultiSlopeKneePointSelector_Tooltip</source>
        <translation>설정할 니 포인트를 선택합니다.</translation>
    </message>
    <message>
        <source>MultiSlopeMode_Tooltip</source>
        <translation>여러 기울기를 가진 응답 곡선을 선택하여 밝은 장면의 다이내믹 레인지를 넓힙니다.</translation>
    </message>
    <message>
        <source>MultiSlopeSaturationThreshold_Tooltip</source>
        <translation>다음 기울기까지 픽셀 신호를 억제하는 기준을 포화 레벨의 비율(%)로 설정합니다.</translation>
    </message>
    <message>
        <source>NoiseReduction_Tooltip</source>
        <translation>노이즈 제거 필터의 강도입니다. 너무 강하면 세부가 흐려집니다.</translation>
    </message>
    <message>
        <source>NoiseReductionAbs_Tooltip</source>
        <translation>이전 이름으로 제공되는 노이즈 제거 강도입니다. 새 카메라에서는 NoiseReduction을 사용합니다.</translation>
    </message>
    <message>
        <source>NoiseReductionRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 노이즈 제거 강도입니다. 새 카메라에서는 NoiseReduction을 사용합니다.</translation>
    </message>
    <message>
        <source>OffsetX_Tooltip</source>
        <translation>센서 왼쪽 가장자리에서 관심 영역(ROI)까지의 가로 거리(픽셀)입니다.</translation>
    </message>
    <message>
        <source>OffsetY_Tooltip</source>
        <translation>센서 위쪽 가장자리에서 관심 영역(ROI)까지의 세로 거리(픽셀)입니다.</translation>
    </message>
    <message>
        <source>OpticControllerDisconnect_Tooltip</source>
        <translation>렌즈를 안전하게 분리할 수 있도록 연결을 해제합니다.</translation>
    </message>
    <message>
        <source>OpticControllerInitialize_Tooltip</source>
        <translation>렌즈를 초기화합니다. 보통 모터를 기준 위치까지 움직입니다.</translation>
    </message>
    <message>
        <source>OpticControllerModelName_Tooltip</source>
        <translation>연결된 렌즈의 모델명을 나타냅니다.</translation>
    </message>
    <message>
        <source>OpticControllerSelector_Tooltip</source>
        <translation>설정할 렌즈 컨트롤러를 선택합니다.</translation>
    </message>
    <message>
        <source>OpticControllerStatus_Tooltip</source>
        <translation>렌즈 컨트롤러의 상태를 나타냅니다. 준비 상태일 때만 렌즈가 동작합니다.</translation>
    </message>
    <message>
        <source>OpticControllerTemperature_Tooltip</source>
        <translation>렌즈의 온도(섭씨)를 나타냅니다. 따뜻해지면 초점이 조금 움직입니다.</translation>
    </message>
    <message>
        <source>OpticControllerVendorName_Tooltip</source>
        <translation>연결된 렌즈의 제조사를 나타냅니다.</translation>
    </message>
    <message>
        <source>OverlapMode_Tooltip</source>
        <translation>센서 리드아웃 중에 다음 노출을 허용하여 프레임 속도를 최대로 높입니다.</translation>
    </message>
    <message>
        <source>PayloadSize_Tooltip</source>
        <translation>이미지 한 장당 전송되는 바이트 수를 나타냅니다. 수신 버퍼는 이보다 작으면 안 됩니다.</translation>
    </message>
    <message>
        <source>PixelCoding_Tooltip</source>
        <translation>이전 방식의 픽셀 부호화 지정입니다. PixelFormat으로 대체되었습니다.</translation>
    </message>
    <message>
        <source>PixelColorFilter_Tooltip</source>
        <translation>이미지의 왼쪽 위 픽셀에서 시작하는 컬러 필터의 배열을 나타냅니다.</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMax_Tooltip</source>
        <translation>현재 픽셀 포맷에서 가능한 최대 픽셀 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMin_Tooltip</source>
        <translation>현재 픽셀 포맷에서 가능한 최소 픽셀 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>PixelFormat_Tooltip</source>
        <translation>픽셀의 부호화 형식과 비트 심도를 설정합니다. 화질과 필요한 대역폭이 결정됩니다.</translation>
    </message>
    <message>
        <source>PixelFormatInfoID_Tooltip</source>
        <translation>수신 측이 선택한 픽셀 포맷을 식별하는 숫자 코드를 나타냅니다.</translation>
    </message>
    <message>
        <source>PixelFormatInfoSelector_Tooltip</source>
        <translation>코드를 표시할 픽셀 포맷을 선택합니다.</translation>
    </message>
    <message>
        <source>PixelSize_Tooltip</source>
        <translation>현재 픽셀 포맷의 픽셀당 비트 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>Prelines_Tooltip</source>
        <translation>센서를 안정시키기 위해 이미지의 첫 라인 전에 읽고 버리는 라인 수입니다.</translation>
    </message>
    <message>
        <source>PtpClockAccuracy_Tooltip</source>
        <translation>PTP가 알리는 클록의 정확도를 나타냅니다.</translation>
    </message>
    <message>
        <source>PtpClockID_Tooltip</source>
        <translation>카메라 클록의 PTP 식별자를 나타냅니다.</translation>
    </message>
    <message>
        <source>PtpDataSetLatch_Tooltip</source>
        <translation>PTP 값들을 래치하여 같은 시점의 값으로 읽을 수 있게 합니다.</translation>
    </message>
    <message>
        <source>PtpEnable_Tooltip</source>
        <translation>PTP(정밀 시간 프로토콜)로 카메라 클록을 다른 장치와 동기화합니다.</translation>
    </message>
    <message>
        <source>PtpGrandmasterClockID_Tooltip</source>
        <translation>기준이 되는 그랜드마스터 클록의 PTP 식별자를 나타냅니다. 동기화된 모든 장치에서 같습니다.</translation>
    </message>
    <message>
        <source>PtpMeanPropagationDelay_Tooltip</source>
        <translation>카메라와 마스터 사이 메시지의 평균 전파 지연(나노초)을 나타냅니다.</translation>
    </message>
    <message>
        <source>PtpOffsetFromMaster_Tooltip</source>
        <translation>카메라 클록과 마스터 클록의 차이(나노초)를 나타냅니다.</translation>
    </message>
    <message>
        <source>PtpParentClockID_Tooltip</source>
        <translation>카메라가 따르는 상위 클록의 PTP 식별자를 나타냅니다.</translation>
    </message>
    <message>
        <source>PtpServoStatus_Tooltip</source>
        <translation>카메라 클록이 마스터 클록에 고정되었는지 나타냅니다. 고정된 뒤에만 타임스탬프를 신뢰할 수 있습니다.</translation>
    </message>
    <message>
        <source>PtpStatus_Tooltip</source>
        <translation>마스터나 슬레이브 등 카메라의 PTP 상태를 나타냅니다.</translation>
    </message>
    <message>
        <source>RegionDestination_Tooltip</source>
        <translation>영역을 전송할 스트림을 선택합니다.</translation>
    </message>
    <message>
        <source>RegionIDValue_Tooltip</source>
        <translation>수신 측에서 선택한 영역의 데이터를 식별하는 번호를 나타냅니다.</translation>
    </message>
    <message>
        <source>RegionMode_Tooltip</source>
        <translation>선택한 영역을 켭니다. 켜진 영역만 전송됩니다.</translation>
    </message>
    <message>
        <source>RegionSelector_Tooltip</source>
        <translation>설정할 관심 영역(ROI)을 선택합니다.</translation>
    </message>
    <message>
        <source>ReverseX_Tooltip</source>
        <translation>이미지를 좌우로 반전합니다. 거울을 통해 촬영하는 경우 등에 사용합니다.</translation>
    </message>
    <message>
        <source>ReverseY_Tooltip</source>
        <translation>이미지를 상하로 반전합니다. 카메라를 거꾸로 설치한 경우 등에 사용합니다.</translation>
    </message>
    <message>
        <source>SIPayloadFinalTransfer1Size_Tooltip</source>
        <translation>이미지의 나머지를 보내는 USB 전송의 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>SIPayloadTransferCount_Tooltip</source>
        <translation>이미지 한 장에 필요한 전체 크기 USB 전송의 횟수입니다.</translation>
    </message>
    <message>
        <source>SIPayloadTransferSize_Tooltip</source>
        <translation>이미지 데이터의 USB 전송 한 번의 크기(바이트)입니다.</translation>
    </message>
    <message>
        <source>SensorDigitizationTaps_Tooltip</source>
        <translation>동시에 디지털화하는 센서 탭의 수입니다. 줄이면 전력 소비와 프레임 속도가 낮아집니다.</translation>
    </message>
    <message>
        <source>SensorHeight_Tooltip</source>
        <translation>센서의 유효 세로 픽셀 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>SensorName_Tooltip</source>
        <translation>이미지 센서의 형식명을 나타냅니다.</translation>
    </message>
    <message>
        <source>SensorPixelHeight_Tooltip</source>
        <translation>센서 픽셀의 높이(마이크로미터)를 나타냅니다. 시야 계산에 사용합니다.</translation>
    </message>
    <message>
        <source>SensorPixelWidth_Tooltip</source>
        <translation>센서 픽셀의 너비(마이크로미터)를 나타냅니다. 시야 계산에 사용합니다.</translation>
    </message>
    <message>
        <source>SensorReadoutMode_Tooltip</source>
        <translation>센서의 리드아웃 방식을 설정합니다. 빠르면 프레임 속도가 높아지고 느리면 노이즈가 줄어듭니다.</translation>
    </message>
    <message>
        <source>SensorShutterMode_Tooltip</source>
        <translation>행의 노출 방식을 설정합니다. 글로벌 셔터는 움직이는 물체를 왜곡 없이 촬영합니다.</translation>
    </message>
    <message>
        <source>SensorTaps_Tooltip</source>
        <translation>센서가 픽셀을 병렬로 출력하는 채널(탭)의 수입니다.</translation>
    </message>
    <message>
        <source>SensorWidth_Tooltip</source>
        <translation>센서의 유효 가로 픽셀 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>SequencerConfigurationMode_Tooltip</source>
        <translation>시퀀서 세트를 편집할 수 있게 합니다. 동작시키기 전에 꺼야 합니다.</translation>
    </message>
    <message>
        <source>SequencerFeatureEnable_Tooltip</source>
        <translation>선택한 기능을 시퀀서 세트에 포함합니다.</translation>
    </message>
    <message>
        <source>SequencerFeatureSelector_Tooltip</source>
        <translation>시퀀서가 제어할 기능을 선택합니다.</translation>
    </message>
    <message>
        <source>SequencerMode_Tooltip</source>
        <translation>이미지마다 설정을 바꾸는 시퀀서를 동작시킵니다.</translation>
    </message>
    <message>
        <source>SequencerPathSelector_Tooltip</source>
        <translation>설정할 경로(트리거와 다음 세트의 조합)를 선택합니다.</translation>
    </message>
    <message>
        <source>SequencerSetActive_Tooltip</source>
        <translation>현재 사용 중인 세트를 나타냅니다.</translation>
    </message>
    <message>
        <source>SequencerSetLoad_Tooltip</source>
        <translation>선택한 시퀀서 세트를 카메라 설정에 불러옵니다.</translation>
    </message>
    <message>
        <source>SequencerSetNext_Tooltip</source>
        <translation>선택한 경로의 트리거가 발생하면 이어지는 세트입니다.</translation>
    </message>
    <message>
        <source>SequencerSetSave_Tooltip</source>
        <translation>현재 설정을 선택한 시퀀서 세트에 저장합니다.</translation>
    </message>
    <message>
        <source>SequencerSetSelector_Tooltip</source>
        <translation>편집하거나 불러오거나 저장할 시퀀서 세트를 선택합니다.</translation>
    </message>
    <message>
        <source>SequencerSetStart_Tooltip</source>
        <translation>시퀀스를 시작할 때 사용하는 세트입니다.</translation>
    </message>
    <message>
        <source>SequencerTriggerActivation_Tooltip</source>
        <translation>시퀀서가 다음으로 넘어가는 신호의 에지 또는 레벨을 설정합니다.</translation>
    </message>
    <message>
        <source>SequencerTriggerSource_Tooltip</source>
        <translation>시퀀서가 다음 세트로 넘어가는 이벤트를 선택합니다.</translation>
    </message>
    <message>
        <source>ShadingEnable_Tooltip</source>
        <translation>셰이딩 보정을 적용하여 이미지 전체의 밝기를 고르게 합니다.</translation>
    </message>
    <message>
        <source>ShadingSelector_Tooltip</source>
        <translation>어두운 이미지용 오프셋 셰이딩 또는 밝은 이미지용 게인 셰이딩을 선택합니다.</translation>
    </message>
    <message>
        <source>ShadingSetActivate_Tooltip</source>
        <translation>선택한 셰이딩 세트를 메모리에서 불러와 적용합니다.</translation>
    </message>
    <message>
        <source>ShadingSetCreate_Tooltip</source>
        <translation>다음 이미지로부터 선택한 셰이딩 세트를 생성합니다. 고르게 조명된 면을 비추어야 합니다.</translation>
    </message>
    <message>
        <source>ShadingSetDefaultSelector_Tooltip</source>
        <translation>카메라가 시작할 때 불러올 셰이딩 세트를 선택합니다.</translation>
    </message>
    <message>
        <source>ShadingSetSelector_Tooltip</source>
        <translation>생성하거나 활성화할 셰이딩 세트를 선택합니다.</translation>
    </message>
    <message>
        <source>ShadingStatus_Tooltip</source>
        <translation>셰이딩 세트의 최근 생성 또는 활성화 결과를 나타냅니다.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleCounter_Tooltip</source>
        <translation>샤프트 엔코더의 현재 카운트 값을 나타냅니다.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleCounterMax_Tooltip</source>
        <translation>카운터가 0부터 다시 시작하는 값입니다. 한 바퀴의 카운트 수 등을 설정합니다.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleCounterMode_Tooltip</source>
        <translation>회전 방향에 따른 카운터의 동작을 설정합니다.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleLineSelector_Tooltip</source>
        <translation>할당할 샤프트 엔코더의 상을 선택합니다.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleLineSource_Tooltip</source>
        <translation>선택한 상이 연결된 입력 라인을 선택합니다.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleMode_Tooltip</source>
        <translation>양방향 회전 모두에서 트리거를 낼지 정방향에서만 낼지 설정합니다.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleReverseCounterMax_Tooltip</source>
        <translation>역회전 시 기억했다가 다시 정회전할 때 건너뛰는 최대 카운트 수입니다.</translation>
    </message>
    <message>
        <source>SharpnessEnhancement_Tooltip</source>
        <translation>선명도 강조의 강도입니다. 너무 강하면 에지를 따라 밝은 테두리가 나타납니다.</translation>
    </message>
    <message>
        <source>SharpnessEnhancementAbs_Tooltip</source>
        <translation>이전 이름으로 제공되는 선명도 강조 강도입니다. 새 카메라에서는 SharpnessEnhancement를 사용합니다.</translation>
    </message>
    <message>
        <source>SharpnessEnhancementRaw_Tooltip</source>
        <translation>장치 고유의 단계로 나타낸 선명도 강조 강도입니다. 새 카메라에서는 SharpnessEnhancement를 사용합니다.</translation>
    </message>
    <message>
        <source>Shutter_Tooltip</source>
        <translation>렌즈의 셔터를 닫습니다. 암부 기준을 얻을 때 등에 사용합니다.</translation>
    </message>
    <message>
        <source>ShutterMode_Tooltip</source>
        <translation>이전 이름으로 제공되는 셔터 모드입니다. 새 카메라에서는 SensorShutterMode를 사용합니다.</translation>
    </message>
    <message>
        <source>SoftwareSignalPulse_Tooltip</source>
        <translation>선택한 소프트웨어 신호를 발생시킵니다. 이를 소스로 사용하는 모든 기능이 반응합니다.</translation>
    </message>
    <message>
        <source>SoftwareSignalSelector_Tooltip</source>
        <translation>발생시킬 소프트웨어 신호를 선택합니다.</translation>
    </message>
    <message>
        <source>Stabilization_Tooltip</source>
        <translation>렌즈의 손떨림 보정을 켭니다. 단단히 고정된 경우에는 꺼 둡니다.</translation>
    </message>
    <message>
        <source>TLParamsLocked_Tooltip</source>
        <translation>이미지 획득 중이어서 이미지 포맷 설정이 잠겼는지 나타냅니다.</translation>
    </message>
    <message>
        <source>TestEventGenerate_Tooltip</source>
        <translation>테스트 이벤트를 보내 응용 프로그램에 이벤트가 도달하는지 확인합니다.</translation>
    </message>
    <message>
        <source>TestImageSelector_Tooltip</source>
        <translation>이전 이름으로 제공되는 테스트 이미지 선택입니다. 새 카메라에서는 TestPattern을 사용합니다.</translation>
    </message>
    <message>
        <source>TestPattern_Tooltip</source>
        <translation>전송과 처리를 확인하기 위해 이미지를 합성 패턴으로 바꿉니다.</translation>
    </message>
    <message>
        <source>TestPatternGeneratorSelector_Tooltip</source>
        <translation>처리 과정에서 테스트 패턴을 삽입할 위치를 선택합니다.</translation>
    </message>
    <message>
        <source>TestPayloadFormatMode_Tooltip</source>
        <translation>수신 측을 시험하기 위해 다른 페이로드 형식으로 이미지를 보냅니다.</translation>
    </message>
    <message>
        <source>TestPendingAck_Tooltip</source>
        <translation>시간 초과 시험을 위해 이 항목의 쓰기에 응답하기까지의 지연(밀리초)을 설정합니다.</translation>
    </message>
    <message>
        <source>TimerDelay_Tooltip</source>
        <translation>타이머 트리거부터 펄스 시작까지의 시간(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>TimerDuration_Tooltip</source>
        <translation>타이머 펄스의 길이(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>TimerReset_Tooltip</source>
        <translation>타이머를 멈추고 펄스를 끝낸 뒤 리셋합니다.</translation>
    </message>
    <message>
        <source>TimerSelector_Tooltip</source>
        <translation>설정할 타이머를 선택합니다.</translation>
    </message>
    <message>
        <source>TimerStatus_Tooltip</source>
        <translation>타이머의 상태(유휴, 트리거 대기, 동작 중, 완료)를 나타냅니다.</translation>
    </message>
    <message>
        <source>TimerTriggerActivation_Tooltip</source>
        <translation>타이머를 시작할 신호의 에지 또는 레벨을 설정합니다.</translation>
    </message>
    <message>
        <source>TimerTriggerArmDelay_Tooltip</source>
        <translation>타이머 트리거 이후에 이어지는 트리거를 무시하는 시간(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>TimerTriggerSource_Tooltip</source>
        <translation>타이머를 시작할 이벤트를 선택합니다. 플래시 조명에는 노출 시작이 적합합니다.</translation>
    </message>
    <message>
        <source>TimerValue_Tooltip</source>
        <translation>동작 중인 타이머의 현재 값(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>Timestamp_Tooltip</source>
        <translation>카메라 클록의 현재 값(나노초)을 나타냅니다.</translation>
    </message>
    <message>
        <source>TimestampLatch_Tooltip</source>
        <translation>카메라 클록의 현재 값을 래치합니다. 값은 TimestampLatchValue에서 읽습니다.</translation>
    </message>
    <message>
        <source>TimestampLatchValue_Tooltip</source>
        <translation>마지막으로 래치한 클록 값(나노초)을 나타냅니다.</translation>
    </message>
    <message>
        <source>TimestampReset_Tooltip</source>
        <translation>카메라 클록을 0으로 되돌립니다.</translation>
    </message>
    <message>
        <source>TransferAbort_Tooltip</source>
        <translation>전송을 즉시 중단하고 보내던 이미지를 버립니다.</translation>
    </message>
    <message>
        <source>TransferBlockCount_Tooltip</source>
        <translation>전송을 한 번 시작할 때 보내는 이미지 수입니다.</translation>
    </message>
    <message>
        <source>TransferControlMode_Tooltip</source>
        <translation>이미지를 자동으로 전송할지 응용 프로그램의 요청에 따라 전송할지 설정합니다.</translation>
    </message>
    <message>
        <source>TransferOperationMode_Tooltip</source>
        <translation>전송을 시작하면 이미지를 연속으로 보낼지 정해진 수만 보낼지 설정합니다.</translation>
    </message>
    <message>
        <source>TransferQueueCurrentBlockCount_Tooltip</source>
        <translation>전송 큐에서 대기 중인 이미지 수를 나타냅니다. 계속 늘면 링크가 느린 것입니다.</translation>
    </message>
    <message>
        <source>TransferQueueMaxBlockCount_Tooltip</source>
        <translation>카메라의 전송 큐가 담을 수 있는 이미지 수입니다.</translation>
    </message>
    <message>
        <source>TransferQueueMode_Tooltip</source>
        <translation>이미지가 전송 큐에서 나가는 순서입니다.</translation>
    </message>
    <message>
        <source>TransferSelector_Tooltip</source>
        <translation>전송을 제어할 스트림을 선택합니다.</translation>
    </message>
    <message>
        <source>TransferStart_Tooltip</source>
        <translation>큐에서 대기 중인 이미지의 전송을 시작합니다.</translation>
    </message>
    <message>
        <source>TransferStatus_Tooltip</source>
        <translation>전송이 선택한 상태인지 나타냅니다.</translation>
    </message>
    <message>
        <source>TransferStatusSelector_Tooltip</source>
        <translation>보고할 전송 상태를 선택합니다.</translation>
    </message>
    <message>
        <source>TransferStop_Tooltip</source>
        <translation>현재 이미지를 보낸 뒤 전송을 멈춥니다.</translation>
    </message>
    <message>
        <source>TriggerActivation_Tooltip</source>
        <translation>트리거가 동작하는 신호의 에지 또는 레벨을 설정합니다.</translation>
    </message>
    <message>
        <source>TriggerDelay_Tooltip</source>
        <translation>트리거 신호를 받은 후 동작할 때까지의 지연 시간(마이크로초)입니다.</translation>
    </message>
    <message>
        <source>TriggerDelayAbs_Tooltip</source>
        <translation>이전 이름으로 제공되는 트리거 지연(마이크로초)입니다. 새 카메라에서는 TriggerDelay를 사용합니다.</translation>
    </message>
    <message>
        <source>TriggerDivider_Tooltip</source>
        <translation>입력 트리거 펄스를 분주합니다. 값이 n이면 n번째 펄스마다 한 번 동작합니다.</translation>
    </message>
    <message>
        <source>TriggerMode_Tooltip</source>
        <translation>선택한 트리거를 켭니다. 끄면 카메라는 프리런으로 동작합니다.</translation>
    </message>
    <message>
        <source>TriggerMultiplier_Tooltip</source>
        <translation>해상도가 낮은 엔코더 등의 입력 트리거 펄스를 체배합니다.</translation>
    </message>
    <message>
        <source>TriggerOverlap_Tooltip</source>
        <translation>이전 프레임이 노출 또는 리드아웃되는 동안 트리거를 받아들일지 설정합니다.</translation>
    </message>
    <message>
        <source>TriggerSelector_Tooltip</source>
        <translation>프레임 시작이나 버스트 시작 등 설정할 트리거를 선택합니다.</translation>
    </message>
    <message>
        <source>TriggerSoftware_Tooltip</source>
        <translation>선택한 트리거를 소프트웨어로 발생시킵니다. 트리거 소스가 Software로 설정되어 있어야 합니다.</translation>
    </message>
    <message>
        <source>TriggerSource_Tooltip</source>
        <translation>트리거를 발생시키는 입력 라인 또는 내부 신호를 선택합니다.</translation>
    </message>
    <message>
        <source>UsbLinkErrorCount_Tooltip</source>
        <translation>USB 링크의 오류 횟수를 나타냅니다. 늘어나면 케이블이나 커넥터 불량이 의심됩니다.</translation>
    </message>
    <message>
        <source>UsbLinkRecoveryCount_Tooltip</source>
        <translation>USB 링크가 복구된 횟수를 나타냅니다. 늘어나면 연결이 불안정한 것입니다.</translation>
    </message>
    <message>
        <source>UsbLinkSpeed_Tooltip</source>
        <translation>USB 링크의 속도 등급을 나타냅니다. SuperSpeed가 아니라 High-Speed이면 포트나 케이블을 확인해야 합니다.</translation>
    </message>
    <message>
        <source>UserOutputSelector_Tooltip</source>
        <translation>설정할 사용자 출력을 선택합니다.</translation>
    </message>
    <message>
        <source>UserOutputValue_Tooltip</source>
        <translation>선택한 사용자 출력의 레벨입니다. 이를 소스로 사용하는 모든 라인에 나타납니다.</translation>
    </message>
    <message>
        <source>UserOutputValueAll_Tooltip</source>
        <translation>모든 사용자 출력의 레벨을 한 비트씩 한 번에 설정합니다.</translation>
    </message>
    <message>
        <source>UserOutputValueAllMask_Tooltip</source>
        <translation>UserOutputValueAll이 변경하는 사용자 출력의 비트 마스크입니다.</translation>
    </message>
    <message>
        <source>UserSetDefault_Tooltip</source>
        <translation>카메라가 시작할 때 불러올 사용자 세트를 선택합니다.</translation>
    </message>
    <message>
        <source>UserSetDefaultSelector_Tooltip</source>
        <translation>이전 이름으로 제공되는 시작 사용자 세트 선택입니다. 새 카메라에서는 UserSetDefault를 사용합니다.</translation>
    </message>
    <message>
        <source>UserSetDescription_Tooltip</source>
        <translation>선택한 사용자 세트의 용도 등을 적어 두는 메모입니다.</translation>
    </message>
    <message>
        <source>UserSetFeatureEnable_Tooltip</source>
        <translation>선택한 기능을 사용자 세트에 포함합니다.</translation>
    </message>
    <message>
        <source>UserSetFeatureSelector_Tooltip</source>
        <translation>사용자 세트에 넣거나 뺄 기능을 선택합니다.</translation>
    </message>
    <message>
        <source>UserSetLoad_Tooltip</source>
        <translation>선택한 사용자 세트를 불러옵니다. 현재 설정이 모두 바뀝니다.</translation>
    </message>
    <message>
        <source>UserSetSave_Tooltip</source>
        <translation>현재 설정을 선택한 사용자 세트에 저장합니다. 전원이 꺼져도 유지됩니다.</translation>
    </message>
    <message>
        <source>UserSetSelector_Tooltip</source>
        <translation>불러오거나 저장하거나 설정할 사용자 세트를 선택합니다.</translation>
    </message>
    <message>
        <source>WhiteClip_Tooltip</source>
        <translation>픽셀 값의 상한입니다. 더 밝은 픽셀은 이 값으로 제한됩니다.</translation>
    </message>
    <message>
        <source>WhiteClipSelector_Tooltip</source>
        <translation>화이트 클립을 설정할 채널을 선택합니다.</translation>
    </message>
    <message>
        <source>Width_Tooltip</source>
        <translation>관심 영역(ROI)의 너비를 픽셀 단위로 설정합니다. 작을수록 필요한 대역폭이 줄어듭니다.</translation>
    </message>
    <message>
        <source>WidthMax_Tooltip</source>
        <translation>현재 비닝과 데시메이션에서 가능한 최대 이미지 너비를 나타냅니다.</translation>
    </message>
    <message>
        <source>aPAUSEMACCtrlFramesReceived_Tooltip</source>
        <translation>수신한 PAUSE 프레임 수를 나타냅니다. 늘어나면 네트워크나 컴퓨터가 따라가지 못하는 것입니다.</translation>
    </message>
    <message>
        <source>aPAUSEMACCtrlFramesTransmitted_Tooltip</source>
        <translation>카메라가 보낸 PAUSE 프레임 수를 나타냅니다.</translation>
    </message>
</context>
<context>
    <name>EventGrabber</name>
    <message>
        <source>DeliveryMode_Tooltip</source>
        <translation>이벤트 메시지를 이 컴퓨터에만 보낼지 멀티캐스트 그룹에 보낼지 설정합니다.</translation>
    </message>
    <message>
        <source>MessageBufferCount_Tooltip</source>
        <translation>대기할 수 있는 이벤트 메시지의 수입니다. 응용 프로그램이 바쁠 때 넘치는 메시지는 손실됩니다.</translation>
    </message>
    <message>
        <source>ReceiptRetries_Tooltip</source>
        <translation>이벤트 메시지의 수신 확인을 다시 보내는 횟수입니다.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Event_Count_Tooltip</source>
        <translation>번호가 비어 손실된 것으로 확인된 이벤트 메시지 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>Statistic_Received_Event_Count_Tooltip</source>
        <translation>카메라를 연 뒤 받은 이벤트 메시지 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>Timeout_Tooltip</source>
        <translation>이벤트 메시지를 기다리는 시간(밀리초)입니다.</translation>
    </message>
</context>
<context>
    <name>StreamGrabber</name>
    <message>
        <source>BufferSize_Tooltip</source>
        <translation>수신 버퍼의 크기(바이트)입니다. 이미지 한 장이 모두 들어가야 합니다.</translation>
    </message>
    <message>
        <source>CvnBufferHandling_Tooltip</source>
        <translation>응용 프로그램이 느릴 때 모든 이미지를 순서대로 넘길지 최신 이미지만 넘길지 설정합니다.</translation>
    </message>
    <message>
        <source>CvnStreamFrameRate_Tooltip</source>
        <translation>수신한 이미지의 평균 프레임 속도(초당 프레임 수)를 나타냅니다.</translation>
    </message>
    <message>
        <source>DeliveryMode_Tooltip</source>
        <translation>이미지를 한 대의 컴퓨터, 멀티캐스트 그룹 또는 모두에게 보낼지 설정합니다.</translation>
    </message>
    <message>
        <source>FrameTimeout_Tooltip</source>
        <translation>불완전한 이미지를 손상된 것으로 넘기기까지의 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>MaxNumBuffer_Tooltip</source>
        <translation>이미지 수신용 버퍼의 수입니다. 많을수록 프로그램 지연을 잘 견디지만 메모리를 더 씁니다.</translation>
    </message>
    <message>
        <source>MaxTransferSize_Tooltip</source>
        <translation>USB 전송 한 번에 받는 최대 데이터 양(바이트)입니다. 크면 CPU 부하가 줄어듭니다.</translation>
    </message>
    <message>
        <source>NumMaxQueuedUrbs_Tooltip</source>
        <translation>미리 큐에 넣는 USB 요청의 수입니다. 링크가 충분히 빠른데도 이미지가 손실되면 늘립니다.</translation>
    </message>
    <message>
        <source>PacketTimeout_Tooltip</source>
        <translation>도착하지 않은 패킷을 손실로 판단하기까지의 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>ReceiverAddress_Tooltip</source>
        <translation>이 컴퓨터가 이미지를 받는 IP 주소입니다.</translation>
    </message>
    <message>
        <source>ReceiverPort_Tooltip</source>
        <translation>이 컴퓨터가 이미지를 받는 UDP 포트입니다. 0이면 시스템이 선택합니다.</translation>
    </message>
    <message>
        <source>ReorderDepth_Tooltip</source>
        <translation>빠진 패킷을 아직 채울 수 있는 동시 수신 이미지의 수입니다.</translation>
    </message>
    <message>
        <source>ResendAttempts_Tooltip</source>
        <translation>패킷을 포기하기까지의 재전송 요청 횟수입니다.</translation>
    </message>
    <message>
        <source>ResendEnable_Tooltip</source>
        <translation>손실된 패킷의 재전송을 요청합니다. 손실이 없다고 알려진 네트워크가 아니면 켜 둡니다.</translation>
    </message>
    <message>
        <source>ResendThreshold_Tooltip</source>
        <translation>빠진 패킷의 재전송을 처음 요청하는 수신 윈도의 채움 비율(%)입니다.</translation>
    </message>
    <message>
        <source>Statistic_Buffer_Underrun_Count_Tooltip</source>
        <translation>빈 버퍼가 없어 버려진 이미지 수를 나타냅니다. 버퍼를 늘리거나 처리를 빠르게 해야 합니다.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Buffer_Count_Tooltip</source>
        <translation>불완전하거나 손상된 채 받은 이미지 수를 나타냅니다. 늘어나면 전송에 문제가 있는 것입니다.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Packet_Count_Tooltip</source>
        <translation>재전송을 요청해도 도착하지 않은 패킷 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>Statistic_Latest_Frame_Number_Tooltip</source>
        <translation>마지막으로 받은 이미지의 프레임 번호를 나타냅니다.</translation>
    </message>
    <message>
        <source>Statistic_Missed_Frame_Count_Tooltip</source>
        <translation>프레임 번호가 비어 받지 못한 것으로 확인된 이미지 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>Statistic_Out_Of_Memory_Error_Count_Tooltip</source>
        <translation>시스템 메모리가 부족하여 실패한 전송 횟수를 나타냅니다.</translation>
    </message>
    <message>
        <source>Statistic_Received_Buffer_Count_Tooltip</source>
        <translation>스트림을 연 뒤 받은 이미지 수를 나타냅니다. 손상된 이미지도 포함합니다.</translation>
    </message>
    <message>
        <source>Statistic_Received_Packet_Count_Tooltip</source>
        <translation>스트림을 연 뒤 받은 패킷 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>Statistic_Recovered_Packet_Count_Tooltip</source>
        <translation>재전송을 요청한 뒤 도착한 패킷 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>Statistic_Requested_Packet_Count_Tooltip</source>
        <translation>재전송을 요청한 패킷 수를 나타냅니다. 늘어나면 네트워크가 과부하 상태입니다.</translation>
    </message>
    <message>
        <source>Statistic_Resynchronization_Count_Tooltip</source>
        <translation>전송이 재동기화된 횟수를 나타냅니다. 그때마다 전송 중인 이미지가 손실됩니다.</translation>
    </message>
    <message>
        <source>StreamLostFrameCount_Tooltip</source>
        <translation>카메라에서 보냈지만 응용 프로그램에 도달하지 못한 이미지 수를 나타냅니다.</translation>
    </message>
    <message>
        <source>TransferLoopThreadPriority_Tooltip</source>
        <translation>이미지 데이터를 받는 스레드의 우선순위입니다. 높을수록 부하가 클 때 이미지 손실이 줄어듭니다.</translation>
    </message>
    <message>
        <source>TransferPriorityClass_Tooltip</source>
        <translation>이미지 데이터를 받는 스레드의 우선순위 클래스입니다. 실시간은 추가 권한이 필요할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>TransportLayer</name>
    <message>
        <source>CommunicationLog_Tooltip</source>
        <translation>카메라와의 통신을 기록하는 범위를 설정합니다. 모두 기록하면 접근이 느려집니다.</translation>
    </message>
    <message>
        <source>DoubleCommandsEnable_Tooltip</source>
        <translation>각 명령을 두 번 보냅니다. 패킷이 가끔 손실되는 네트워크에서 도움이 됩니다.</translation>
    </message>
    <message>
        <source>FormerNamesEnable_Tooltip</source>
        <translation>이전 기능 이름을 현재 이름에 대응시켜 오래된 프로그램도 동작하게 합니다.</translation>
    </message>
    <message>
        <source>HeartbeatTimeout_Tooltip</source>
        <translation>카메라를 열 때 기록하는 하트비트 시간 초과(밀리초)입니다.</translation>
    </message>
    <message>
        <source>ReadRetries_Tooltip</source>
        <translation>읽기가 실패로 처리되기까지의 재시도 횟수입니다.</translation>
    </message>
    <message>
        <source>ReadTimeout_Tooltip</source>
        <translation>읽기를 다시 시도하기 전에 응답을 기다리는 시간(밀리초)입니다.</translation>
    </message>
    <message>
        <source>RoundTripTime_Tooltip</source>
        <translation>읽기 요청부터 응답까지의 평균 시간(밀리초)을 나타냅니다.</translation>
    </message>
    <message>
        <source>Statistic_Timeout_Count_Tooltip</source>
        <translation>응답이 늦게 온 횟수를 나타냅니다. 늘어나면 네트워크나 카메라가 과부하 상태입니다.</translation>
    </message>
    <message>
        <source>WriteRetries_Tooltip</source>
        <translation>쓰기가 실패로 처리되기까지의 재시도 횟수입니다.</translation>
    </message>
    <message>
        <source>WriteTimeout_Tooltip</source>
        <translation>쓰기를 다시 시도하기 전에 응답을 기다리는 시간(밀리초)입니다.</translation>
    </message>
</context>
</TS>
